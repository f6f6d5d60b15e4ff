#pragma once

#include "Containers/StringConv.h"
#include "CoreMinimal.h"

#include <openssl/crypto.h>

/** A secret text in another encoding, overwritten when it goes. */
template <typename ConversionType>
class TWipedConversion : public ConversionType
{
public:
	using ConversionType::ConversionType;
	~TWipedConversion()
	{
		OPENSSL_cleanse(const_cast<void*>(static_cast<const void*>(this->Get())), sizeof(*this->Get()) * size_t(this->Length()));
	}
	UE_NONCOPYABLE(TWipedConversion)
};
using FWipedUtf8 = TWipedConversion<FTCHARToUTF8>;
using FWipedTChar = TWipedConversion<FUTF8ToTCHAR>;

/** Bytes of a secret, overwritten when they go. Their number is fixed when they are made, so that no copy is left behind by growth. */
class FSecretBytes
{
public:
	FSecretBytes() = default;
	explicit FSecretBytes(int32 Num);
	explicit FSecretBytes(TConstArrayView<uint8> From);
	/** The string as UTF-8. */
	explicit FSecretBytes(const FString& Text);
	~FSecretBytes();

	FSecretBytes(FSecretBytes&& Other);
	FSecretBytes& operator=(FSecretBytes&& Other);
	FSecretBytes(const FSecretBytes&) = delete;
	FSecretBytes& operator=(const FSecretBytes&) = delete;

	uint8* GetData() { return Bytes.GetData(); }
	const uint8* GetData() const { return Bytes.GetData(); }
	int32 Num() const { return Bytes.Num(); }
	TConstArrayView<uint8> View() const { return TConstArrayView<uint8>(Bytes.GetData(), Bytes.Num()); }
	FString ToText() const;

	bool operator==(const FSecretBytes& Other) const;

private:
	void Wipe();

	TArray<uint8> Bytes;
};
