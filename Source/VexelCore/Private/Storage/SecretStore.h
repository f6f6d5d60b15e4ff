#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

/** One place that keeps secrets. Errors are FVexelError_SecureStorage and never say what a secret is. Any thread. */
class ISecretStore
{
public:
	virtual ~ISecretStore() = default;

	virtual TVexelExpected<void> Store(const FString& Key, const FString& Value) = 0;
	/** Unset for a key that is not there; an error for a store that cannot be read. */
	virtual TVexelExpected<TOptional<FString>> Load(const FString& Key) = 0;
	/** Success also when there was nothing to delete. */
	virtual TVexelExpected<void> Delete(const FString& Key) = 0;
};
