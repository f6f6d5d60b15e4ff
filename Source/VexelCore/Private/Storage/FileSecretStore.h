#pragma once

#include "Storage/SecretStore.h"
#include "VexelFileLock.h"

#include <string>

/** An encrypted file with its key beside it, both readable by the user alone. Any number of processes. */
class FFileSecretStore final : public ISecretStore
{
public:
	/** The directory is made when something is first stored. */
	explicit FFileSecretStore(const FString& Directory);

	virtual TVexelExpected<void> Store(const FString& Key, const FString& Value) override;
	virtual TVexelExpected<TOptional<FString>> Load(const FString& Key) override;
	virtual TVexelExpected<void> Delete(const FString& Key) override;

private:
	TVexelExpected<FVexelFileLock> TakeLock() const;

	std::string Directory;
};
