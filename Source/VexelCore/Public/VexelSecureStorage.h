#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"
#include "VexelFileLock.h"

/**
 * Short secrets in the user's protected store, which outlive the editor. They stand in the desktop's keyring; where the session
 * has none, in an encrypted file (AES-256-GCM) with its key beside it, both readable by the user alone, in the user's data
 * directory. What an earlier session without a keyring left in the file is found there, and moves to the keyring when it is
 * stored again. The setting "SecretStore" says "file" to leave the keyring alone. Any thread, any number of processes.
 */
class VEXELCORE_API FVexelSecureStorage
{
public:
	static TVexelExpected<void> StoreValueString(const FString& Key, const FString& Value);
	/** FVexelError_SecureStorage for a key that is not there, and for a store that cannot be read or was tampered with. */
	static TVexelExpected<FString> LoadValueString(const FString& Key);
	/** Success also when there was nothing to delete. */
	static TVexelExpected<void> DeleteValue(const FString& Key);

	/**
	 * The turn of one among all processes and threads of the user that share these secrets, for a value that is read, used up and
	 * replaced by the next one; unset while another has it. Single values need none. A lock file beside the secrets stays behind.
	 */
	static TVexelExpected<TOptional<FVexelFileLock>> TryTakeTurn();

	/** Whose secrets from now on: the address of a service, so that one service's token never goes to another. Empty at first. */
	static void SetScope(const FString& Scope);

	/** Keeps the secrets in a file of that directory from now on, whatever the session has; the user's own store when empty. */
	static void SetDirectory(const FString& Directory);
};
