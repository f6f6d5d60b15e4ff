#pragma once

#include "CoreMinimal.h"

class FLinkerLoad;
class UObject;
class UPackage;

/**
 * A digest of what the object would write into a package of the linker's versions, together with its name and place. Names and
 * references count as what they name, so that two equal digests mean equal bytes in a package whose tables have not changed.
 */
uint64 ComputeFingerprint(UObject* Object, const FLinkerLoad& Linker);
/** The same of the package's metadata. */
uint64 ComputeMetaDataFingerprint(UPackage* Package);
