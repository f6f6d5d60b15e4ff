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

FConfigValueBase::FConfigValueBase(const TCHAR* InKey, const TCHAR* InDefault, EConfigValueFlags InFlags)
	: Key(InKey)
	, Default(InDefault)
	, Flags(InFlags)
{
	FVexelInternalConfig::GetValues().Add(this);
}

FString FConfigValueBase::Get() const
{
	FScopeLock Guard(&Lock);
	EnsureLoaded();
	return Override ? *Override : *Loaded;
}

double FConfigValueBase::GetNumber(double Min, double Max) const
{
	const FString Text = Get();
	const bool bNumber = Text.IsNumeric();
	if (!bNumber)
	{
		const TCHAR* const Shown = EnumHasAnyFlags(Flags, EConfigValueFlags::Secret) ? TEXT("...") : *Text;
		VEXEL_LOG(Warning, "The setting %s is '%s', which is no number; it counts as %s", *Key, Shown, *Default);
	}
	return FMath::Clamp(FCString::Atod(bNumber ? *Text : *Default), Min, Max);
}

void FConfigValueBase::SetOverride(const FString& Value)
{
	FScopeLock Guard(&Lock);
	Override = Value;
}

void FConfigValueBase::ClearOverride()
{
	FScopeLock Guard(&Lock);
	Override.Reset();
}

void FConfigValueBase::Reload()
{
	FScopeLock Guard(&Lock);
	Loaded.Reset();
	EnsureLoaded();
}

void FConfigValueBase::EnsureLoaded() const
{
	if (Loaded)
	{
		return;
	}
	FString Value = Default;
	const auto Take = [&Value](const FString& Text)
	{ Value = Text.IsEmpty() ? Value : Text; };
	FString Text;
	if (GConfig && GConfig->GetString(SettingsSection, *Key, Text, GEditorPerProjectIni))
	{
		Take(Text);
	}
	Take(FPlatformMisc::GetEnvironmentVariable(*GetEnvironmentName(Key)));
	if (!EnumHasAnyFlags(Flags, EConfigValueFlags::Secret) &&
		FParse::Value(FCommandLine::Get(), *FString::Printf(TEXT("-%s="), *Key), Text))
	{
		Take(Text);
	}
	Loaded = Value;
}

TArray<FConfigValueBase*>& FVexelInternalConfig::GetValues()
{
	static TArray<FConfigValueBase*> Values;
	return Values;
}

FConfigValueBase* FVexelInternalConfig::Find(const FString& Key)
{
	FConfigValueBase* const* const Found = GetValues().FindByPredicate([&](const FConfigValueBase* Value)
		{ return Value->GetKey() == Key; });
	return Found ? *Found : nullptr;
}

TArray<FString> FVexelInternalConfig::GetKeys()
{
	TArray<FString> Keys;
	for (const FConfigValueBase* const Value : GetValues())
	{
		Keys.Add(Value->GetKey());
	}
	return Keys;
}

void FVexelInternalConfig::ReloadAll()
{
	for (FConfigValueBase* const Value : GetValues())
	{
		Value->Reload();
	}
}
