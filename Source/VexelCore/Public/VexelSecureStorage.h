#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

/**
 * Short secrets in the user's protected store, which outlive the editor. The store is an encrypted file (AES-256-GCM) with its
 * key beside it, both readable by the user alone, in the user's data directory. Any thread, any number of processes.
 */
class VEXELCORE_API FVexelSecureStorage
{
public:
	static TVexelExpected<void> StoreValueString(const FString& Key, const FString& Value);
	/** FVexelError_SecureStorage for a key that is not there, and for a store that cannot be read or was tampered with. */
	static TVexelExpected<FString> LoadValueString(const FString& Key);
	/** Success also when there was nothing to delete. */
	static TVexelExpected<void> DeleteValue(const FString& Key);

	/** Directory of the store from now on: one a service, so that a local one's tokens never replace another's. */
	static void SetDirectory(const FString& Directory);
};
