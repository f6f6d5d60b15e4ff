#pragma once

#include "CoreMinimal.h"
#include "VexelCrypto.h"

/** A text that is overwritten when it goes: a token, a verifier. Each copy is overwritten for itself. */
class FVexelAuthSecret
{
public:
	FVexelAuthSecret() = default;
	explicit FVexelAuthSecret(FString InText)
		: Text(MoveTemp(InText))
	{
	}
	FVexelAuthSecret(const FVexelAuthSecret&) = default;
	FVexelAuthSecret(FVexelAuthSecret&&) = default;
	~FVexelAuthSecret() { Wipe(); }

	FVexelAuthSecret& operator=(const FVexelAuthSecret& Other)
	{
		if (this != &Other)
		{
			Wipe();
			Text = Other.Text;
		}
		return *this;
	}
	FVexelAuthSecret& operator=(FVexelAuthSecret&& Other)
	{
		if (this != &Other)
		{
			Wipe();
			Text = MoveTemp(Other.Text);
		}
		return *this;
	}

	const FString& Get() const { return Text; }
	bool IsEmpty() const { return Text.IsEmpty(); }
	bool Equals(const FString& Other) const { return FVexelCrypto::SecretsEqual(Text, Other); }
	void Wipe() { FVexelCrypto::Wipe(Text); }

private:
	FString Text;
};
