#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"

namespace Descriptors
{
/** Index of the name; the number of names for a text that is none of them. */
template <SIZE_T Num>
int32 FindName(const TCHAR* const (&Names)[Num], const TCHAR* Text)
{
	int32 Index = 0;
	while (Index < int32(Num) && FCString::Stricmp(Names[Index], Text) != 0)
	{
		++Index;
	}
	return Index;
}

/** Reads an array field of descriptors, each by its own Read(). A missing field is an empty one. */
template <typename DescriptorType>
bool ReadArray(const FJsonObject& Object, const TCHAR* Name, TArray<DescriptorType>& OutItems, FText& OutFailReason)
{
	OutItems.Reset();
	if (!Object.HasField(Name))
	{
		return true;
	}
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	if (!Object.TryGetArrayField(Name, Values))
	{
		OutFailReason = FText::FromString(FString::Printf(TEXT("'%s' is not an array"), Name));
		return false;
	}
	for (int32 Index = 0; Index < Values->Num(); ++Index)
	{
		const TSharedPtr<FJsonObject>* Item = nullptr;
		DescriptorType& Descriptor = OutItems.AddDefaulted_GetRef();
		FText Reason = FText::FromString(TEXT("it is not an object"));
		if (!(*Values)[Index]->TryGetObject(Item) || !Descriptor.Read(**Item, Reason))
		{
			OutFailReason = FText::FromString(FString::Printf(TEXT("entry %d of '%s': %s"), Index, Name, *Reason.ToString()));
			return false;
		}
	}
	return true;
}

/** Answers false. */
bool Fail(FText& OutFailReason, const FString& Reason);

/** Reads a descriptor from its file, which is JSON; Kind, "project" or "plug-in", is for the reason. */
bool LoadFile(
	const FString& FileName, const TCHAR* Kind, FText& OutFailReason, TFunctionRef<bool(const FJsonObject&, FText&)> Read);

/** The "FileVersion", which must be from 1 to Latest. */
bool ReadVersion(const FJsonObject& Object, int32 Latest, int32& OutVersion, FText& OutFailReason);
}
