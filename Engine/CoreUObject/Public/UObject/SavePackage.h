#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class FOutputDevice;
class UObject;
class UPackage;

enum class ESavePackageResult
{
	Success,
	Canceled,
	Error
};

/** How to save; the engine's members that mean nothing here are left out. */
struct FSavePackageArgs
{
	/** Objects with one of these flags are saved, with all that they refer to in the package. */
	EObjectFlags TopLevelFlags = RF_Public | RF_Standalone;
	uint32 SaveFlags = 0;
	/** Receives the reason of a failure; the log has it in any case. */
	FOutputDevice* Error = nullptr;
	bool bForceByteSwapping = false;
	bool bWarnOfLongFilename = true;
};

struct FSavePackageResultStruct
{
	FSavePackageResultStruct(ESavePackageResult InResult = ESavePackageResult::Error, int64 InTotalFileSize = 0)
		: Result(InResult)
		, TotalFileSize(InTotalFileSize)
	{
	}
	bool IsSuccessful() const { return Result == ESavePackageResult::Success; }

	ESavePackageResult Result;
	int64 TotalFileSize;
};
