#pragma once

#include "Storage/SecretStore.h"

/** The desktop's keyring, spoken to as the Secret Service of the user's D-Bus session. */
class FKeyringSecretStore final : public ISecretStore
{
public:
	/** Whether the session has a keyring. Asks the session bus. */
	static bool IsAvailable();

	/** @param Scope Whose secrets: the same key of two scopes is two secrets. */
	explicit FKeyringSecretStore(const FString& Scope);

	virtual TVexelExpected<void> Store(const FString& Key, const FString& Value) override;
	virtual TVexelExpected<TOptional<FString>> Load(const FString& Key) override;
	virtual TVexelExpected<void> Delete(const FString& Key) override;

private:
	FString Scope;
};
