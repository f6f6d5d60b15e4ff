#include "Storage/SecretBytes.h"

#include "Containers/StringConv.h"

#include <openssl/crypto.h>

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
	FTCHARToUTF8 Utf8(*Text, Text.Len());
	Bytes.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
	OPENSSL_cleanse(const_cast<ANSICHAR*>(Utf8.Get()), size_t(Utf8.Length()));
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
	FUTF8ToTCHAR Text(reinterpret_cast<const ANSICHAR*>(Bytes.GetData()), Bytes.Num());
	const FString Answer = FString::ConstructFromPtrSize(Text.Get(), Text.Length());
	OPENSSL_cleanse(const_cast<TCHAR*>(Text.Get()), sizeof(TCHAR) * size_t(Text.Length()));
	return Answer;
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
