#pragma once

#include "Containers/ArrayView.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"

namespace UE
{
/**
 * Puts a file's new contents in place of the old in one step: whoever reads, even after a crash or a full disk, finds either all of
 * the old or all of the new. The folder must exist. On failure OutError says what failed and the system's reason, the old file is
 * as it was, and nothing is left beside it. Of this host alone: the engine has no such function.
 */
[[nodiscard]] CORE_API bool SaveFileAtomically(const FString& Path, TArrayView<const uint8> Bytes, FString& OutError);
/** The text as UTF-8 without a byte order mark. */
[[nodiscard]] CORE_API bool SaveFileAtomically(const FString& Path, const FString& Text, FString& OutError);
}
