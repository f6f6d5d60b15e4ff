#pragma once

#include "CoreMinimal.h"
#include "Storage/SecretBytes.h"
#include "VexelExpected.h"

#include <string>

/**
 * Files that their owner alone can read. Errors are FVexelError_SecureStorage and name the path, never what is in the file.
 */
namespace PrivateFile
{
/** Makes a directory, its parents too, and takes other users' access to it away. */
TVexelExpected<void> MakeDirectory(const std::string& Path);

bool Exists(const std::string& Path);

/** Refuses a file that is no plain one, belongs to or is open to somebody else, or is larger than the limit. */
TVexelExpected<FSecretBytes> Read(const std::string& Path, int32 MaxBytes);

/** Whole or not at all, and on the disk when this returns. */
TVexelExpected<void> Write(const std::string& Path, TConstArrayView<uint8> Bytes);
}
