#pragma once

#include "CoreMinimal.h"
#include "HAL/CriticalSection.h"
#include "Misc/DateTime.h"
#include "Tools/VexelSourceDeclarations.h"

class FVexelProjectFiles;

/** What the project's C++ sources declare. A file is read again when its size or time has changed. Any thread. */
class FVexelSourceIndex
{
public:
	struct FMatch
	{
		/** Below the project's folder. */
		FString File;
		FVexelSourceDeclaration Declaration;
	};

	static FVexelSourceIndex& Get();

	/** The declarations of a name, or of the last parts of one ("ADoor::Open"), with their case; definitions first, then by file. */
	TArray<FMatch> Find(const FVexelProjectFiles& Files, const FString& Name);
	/** Names that are spelled like it, the nearest first. */
	TArray<FString> FindLike(const FString& Name, int32 Max);

private:
	struct FFile
	{
		int64 Size = 0;
		FDateTime Time;
		TArray<FVexelSourceDeclaration> Declarations;
	};

	void Refresh(const FVexelProjectFiles& Files);

	FCriticalSection Lock;
	TMap<FString, FFile> FilesByPath;
	/** Files by the last parts of the names that they declare. */
	TMap<FString, TArray<FString>> PathsByName;
};
