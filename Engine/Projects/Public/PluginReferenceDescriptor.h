#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** A plug-in that a project switches on or off. */
struct PROJECTS_API FPluginReferenceDescriptor
{
	FString Name;
	bool bEnabled = false;
	bool bOptional = false;
	FString Description;
	FString MarketplaceURL;

	bool Read(const FJsonObject& Object, FText& OutFailReason);

	/** Reads an array field; a missing one is an empty one. */
	static bool ReadArray(
		const FJsonObject& Object, const TCHAR* Name, TArray<FPluginReferenceDescriptor>& OutPlugins, FText& OutFailReason);
};
