#pragma once

#include "CoreMinimal.h"

class UPackage;

/** What an object may ask about the save that it is being prepared for. */
class FObjectPreSaveContext
{
public:
	FObjectPreSaveContext() = default;
	FObjectPreSaveContext(const FString& InTargetFilename, uint32 InSaveFlags)
		: TargetFilename(InTargetFilename)
		, SaveFlags(InSaveFlags)
	{
	}
	const TCHAR* GetTargetFilename() const { return *TargetFilename; }
	uint32 GetSaveFlags() const { return SaveFlags; }
	bool IsCooking() const { return false; }
	bool IsProceduralSave() const { return false; }
	bool IsFromAutoSave() const { return false; }

private:
	FString TargetFilename;
	uint32 SaveFlags = 0;
};

class FObjectPostSaveContext
{
public:
	FObjectPostSaveContext() = default;
	FObjectPostSaveContext(const FString& InTargetFilename, bool bInSaveSucceeded)
		: TargetFilename(InTargetFilename)
		, bSaveSucceeded(bInSaveSucceeded)
	{
	}
	const TCHAR* GetTargetFilename() const { return *TargetFilename; }
	bool SaveSucceeded() const { return bSaveSucceeded; }
	bool IsCooking() const { return false; }
	bool IsProceduralSave() const { return false; }

private:
	FString TargetFilename;
	bool bSaveSucceeded = false;
};

class FObjectPostSaveRootContext : public FObjectPostSaveContext
{
public:
	using FObjectPostSaveContext::FObjectPostSaveContext;
};
