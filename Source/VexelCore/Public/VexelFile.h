#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

/** Files that are written whole or not at all. */
class VEXELCORE_API FVexelFile
{
public:
	/**
	 * Writes a file by way of a temporary one beside it, which is flushed to the disk and then takes its name. After a failure,
	 * a full disk for one, the old file is as it was and the temporary one is gone. Directories are made as needed.
	 */
	static TVexelExpected<void> SaveWhole(const FString& Path, TConstArrayView<uint8> Bytes);
	static TVexelExpected<void> SaveWhole(const FString& Path, const FString& Text);
};
