#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/**
 * Files that the plug-in downloads and keeps: "VexelStorage/Models/ID" below the project's Saved directory has a model and what
 * belongs to it. Names come from the service; none of them leads to another place. Files are written whole. Any thread.
 */
class VEXELCORE_API FVexelStorage
{
public:
	/** @param Extension ".glb". Answers the stored path; unset, with the reason in the log, on failure. */
	static TOptional<FString> StoreGeneratedModel(const FString& ModelId, const FString& Extension, TConstArrayView<uint8> Bytes);

	/** Stores a file beside the model under its own name, or under what is left of the name without its special characters. */
	static TOptional<FString> StoreGeneratedAssetForModel(const FString& ModelId, const FString& FileName, TConstArrayView<uint8> Bytes);
};
