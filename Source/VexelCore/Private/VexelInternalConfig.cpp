#include "VexelInternalConfig.h"

#include "CoreGlobals.h"
#include "HAL/PlatformMisc.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Parse.h"
#include "Misc/ScopeLock.h"
#include "VexelLog.h"

namespace
{
const TCHAR* const SettingsSection = TEXT("/Script/VexelClient.VexelUserSettings");

/** "VEXEL_API_URL" of "ApiUrl". */
FString GetEnvironmentName(const FString& Key)
{
	FString Name = TEXT("VEXEL");
	for (const TCHAR Character : Key)
	{
		if (FChar::IsUpper(Character))
		{
			Name += TEXT('_');
		}
		Name += FChar::ToUpper(Character);
	}
	return Name;
}
}

FVexelConfigValue::FVexelConfigValue(const TCHAR* InKey, const TCHAR* InDefault)
	: Key(InKey)
	, Default(InDefault)
{
	FVexelInternalConfig::GetValues().Add(this);
}

FString FVexelConfigValue::Get() const
{
	FScopeLock Guard(&Lock);
	EnsureLoaded();
	return Override ? *Override : *Loaded;
}

double FVexelConfigValue::GetNumber(double Min, double Max) const
{
	const FString Text = Get();
	const bool bNumber = Text.IsNumeric();
	if (!bNumber)
	{
		VEXEL_LOG(Warning, "The setting %s is '%s', which is no number; it counts as %s", *Key, *Text, *Default);
	}
	return FMath::Clamp(FCString::Atod(bNumber ? *Text : *Default), Min, Max);
}

void FVexelConfigValue::SetOverride(const FString& Value)
{
	FScopeLock Guard(&Lock);
	Override = Value;
}

void FVexelConfigValue::Reload()
{
	FScopeLock Guard(&Lock);
	Loaded.Reset();
}

void FVexelConfigValue::EnsureLoaded() const
{
	if (Loaded)
	{
		return;
	}
	FString Value = Default;
	if (GConfig)
	{
		GConfig->GetString(SettingsSection, *Key, Value, GEditorPerProjectIni);
	}
	const FString Environment = FPlatformMisc::GetEnvironmentVariable(*GetEnvironmentName(Key));
	if (!Environment.IsEmpty())
	{
		Value = Environment;
	}
	FParse::Value(FCommandLine::Get(), *FString::Printf(TEXT("-%s="), *Key), Value);
	Loaded = Value;
}

TArray<FVexelConfigValue*>& FVexelInternalConfig::GetValues()
{
	static TArray<FVexelConfigValue*> Values;
	return Values;
}

FVexelConfigValue* FVexelInternalConfig::Find(const FString& Key)
{
	FVexelConfigValue* const* const Found = GetValues().FindByPredicate([&](const FVexelConfigValue* Value)
		{ return Value->GetKey() == Key; });
	return Found ? *Found : nullptr;
}
