#include "Storage/SecretBytes.h"

FSecretBytes::FSecretBytes(int32 Num)
{
	Bytes.SetNumZeroed(Num);
}

FSecretBytes::FSecretBytes(TConstArrayView<uint8> From)
{
	Bytes.Append(From.GetData(), From.Num());
}

FSecretBytes::FSecretBytes(const FString& Text)
{
	const FWipedUtf8 Utf8(*Text, Text.Len());
	Bytes.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
}

FSecretBytes::~FSecretBytes()
{
	Wipe();
}

FSecretBytes::FSecretBytes(FSecretBytes&& Other)
	: Bytes(MoveTemp(Other.Bytes))
{
}

FSecretBytes& FSecretBytes::operator=(FSecretBytes&& Other)
{
	if (this != &Other)
	{
		Wipe();
		Bytes = MoveTemp(Other.Bytes);
	}
	return *this;
}

FString FSecretBytes::ToText() const
{
	const FWipedTChar Text(reinterpret_cast<const ANSICHAR*>(Bytes.GetData()), Bytes.Num());
	return FString::ConstructFromPtrSize(Text.Get(), Text.Length());
}

bool FSecretBytes::operator==(const FSecretBytes& Other) const
{
	return Bytes.Num() == Other.Bytes.Num() && CRYPTO_memcmp(Bytes.GetData(), Other.Bytes.GetData(), size_t(Bytes.Num())) == 0;
}

void FSecretBytes::Wipe()
{
	OPENSSL_cleanse(Bytes.GetData(), size_t(Bytes.Num()));
	Bytes.Reset();
}
