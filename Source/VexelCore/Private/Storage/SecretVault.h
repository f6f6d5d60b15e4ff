#pragma once

#include "CoreMinimal.h"
#include "Storage/SecretBytes.h"
#include "VexelExpected.h"

#include <string>

/**
 * One directory's store: "secrets.bin", encrypted with AES-256-GCM under the key of "secrets.key". A vault is opened for one
 * operation, under the store's lock, and forgotten after it, so that processes never work on each other's old contents.
 *
 * The file: the eight bytes of its magic, which are authenticated too, a fresh nonce of 12 bytes, the cipher text, a tag of 16 bytes.
 * The plain text: key and value of each entry, each a little-endian uint32 of its length and its UTF-8 bytes.
 */
class FSecretVault
{
public:
	/** Reads the store of a directory; one that is not there yet is empty. The caller holds the store's lock. */
	static TVexelExpected<FSecretVault> Open(const std::string& Directory);

	/** Null without such a key. Keys differ by case. */
	const FSecretBytes* Find(const FSecretBytes& Key) const;
	void Set(FSecretBytes&& Key, FSecretBytes&& Value);
	/** Whether there was such a key. */
	bool Remove(const FSecretBytes& Key);

	/** Writes the whole store, under a new nonce. */
	TVexelExpected<void> Save(const std::string& Directory) const;

private:
	struct FEntry
	{
		FSecretBytes Key;
		FSecretBytes Value;
	};

	int32 IndexOf(const FSecretBytes& Key) const;
	bool ReadEntries(TConstArrayView<uint8> Plain);
	FSecretBytes WriteEntries() const;

	TArray<FEntry> Entries;
};
