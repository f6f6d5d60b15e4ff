#pragma once

#include "CoreMinimal.h"
#include "UObject/StrongObjectPtr.h"
#include "VexelTaskResult.h"

class UBlueprint;

/** The file that keeps the node-type index from one session to the next. */
namespace VexelNodeTypeCache
{
/** "VexelCache/VexelDatabase.db" below the project's Saved directory, which is made. FVexelError_Embed when it cannot be. */
TVexelExpected<FString> GetPath();

/** Reads the file into the index. A file that is not there, or of an older version, is no error: the log says so. */
TVexelTaskResult<void> Load();

/** Writes the index into the file, whole. An index that is up to date is not written, and the log says so. */
TVexelTaskResult<void> Save();

/** A Blueprint that nobody sees, with an event graph, whose schema tells which node types can be spawned. Game thread. */
TStrongObjectPtr<UBlueprint> MakeScratchBlueprint();
}
