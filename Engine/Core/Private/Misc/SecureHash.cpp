#include "Misc/SecureHash.h"

#include "Containers/StringConv.h"
#include "Serialization/Archive.h"

#include <openssl/evp.h>

namespace
{
EVP_MD_CTX* StartDigest(const EVP_MD* Kind)
{
	EVP_MD_CTX* const Context = EVP_MD_CTX_new();
	checkf(Context != nullptr && EVP_DigestInit_ex(Context, Kind, nullptr) == 1, TEXT("The cryptography library has no such digest"));
	return Context;
}

FString ToLowerHex(const uint8* Bytes, int32 Count)
{
	FString Result;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Result += FString::Printf(TEXT("%02x"), Bytes[Index]);
	}
	return Result;
}
}

FMD5::FMD5()
	: Context(StartDigest(EVP_md5()))
{
}

FMD5::~FMD5()
{
	EVP_MD_CTX_free(Context);
}

void FMD5::Update(const uint8* Input, uint64 InputLen)
{
	EVP_DigestUpdate(Context, Input, InputLen);
}

void FMD5::Final(uint8* Digest)
{
	EVP_DigestFinal_ex(Context, Digest, nullptr);
}

FString FMD5::HashBytes(const uint8* Input, uint64 InputLen)
{
	uint8 Digest[16];
	FMD5 Hash;
	Hash.Update(Input, InputLen);
	Hash.Final(Digest);
	return ToLowerHex(Digest, sizeof(Digest));
}

FString FMD5::HashAnsiString(const TCHAR* String)
{
	const FTCHARToUTF8 Converted(String);
	return HashBytes(reinterpret_cast<const uint8*>(Converted.Get()), static_cast<uint64>(Converted.Length()));
}

void FMD5Hash::Set(FMD5& MD5)
{
	MD5.Final(Bytes);
	bIsValid = true;
}

bool FMD5Hash::operator==(const FMD5Hash& Other) const
{
	return bIsValid == Other.bIsValid && (!bIsValid || FMemory::Memcmp(Bytes, Other.Bytes, sizeof(Bytes)) == 0);
}

FString LexToString(const FMD5Hash& Hash)
{
	return Hash.bIsValid ? ToLowerHex(Hash.Bytes, sizeof(Hash.Bytes)) : FString();
}

FString FSHAHash::ToString() const
{
	return ToLowerHex(Hash, sizeof(Hash)).ToUpper();
}

bool FSHAHash::FromString(const FStringView& Source)
{
	if (Source.Len() != 2 * static_cast<int32>(sizeof(Hash)))
	{
		return false;
	}
	uint8 Read[sizeof(Hash)] = {};
	for (int32 Index = 0; Index < Source.Len(); ++Index)
	{
		const TCHAR Char = Source[Index];
		if (!FChar::IsHexDigit(Char))
		{
			return false;
		}
		const int32 Digit = FChar::IsDigit(Char) ? Char - '0' : (Char | 0x20) - 'a' + 10;
		Read[Index / 2] = static_cast<uint8>(Read[Index / 2] << 4 | Digit);
	}
	FMemory::Memcpy(Hash, Read, sizeof(Hash));
	return true;
}

FArchive& operator<<(FArchive& Ar, FSHAHash& Hash)
{
	Ar.Serialize(Hash.Hash, sizeof(Hash.Hash));
	return Ar;
}

FSHA1::FSHA1()
	: Context(StartDigest(EVP_sha1()))
{
}

FSHA1::~FSHA1()
{
	EVP_MD_CTX_free(Context);
}

void FSHA1::Reset()
{
	EVP_DigestInit_ex(Context, EVP_sha1(), nullptr);
}

void FSHA1::Update(const uint8* Data, uint64 Length)
{
	EVP_DigestUpdate(Context, Data, Length);
}

void FSHA1::UpdateWithString(const TCHAR* String, uint32 Length)
{
	Update(reinterpret_cast<const uint8*>(String), static_cast<uint64>(Length) * sizeof(TCHAR));
}

void FSHA1::Final()
{
	EVP_DigestFinal_ex(Context, m_digest, nullptr);
}

void FSHA1::GetHash(uint8* OutHash) const
{
	FMemory::Memcpy(OutHash, m_digest, sizeof(m_digest));
}

FSHAHash FSHA1::Finalize()
{
	Final();
	FSHAHash Result;
	GetHash(Result.Hash);
	return Result;
}

void FSHA1::HashBuffer(const void* Data, uint64 DataSize, uint8* OutHash)
{
	FSHA1 Hash;
	Hash.Update(static_cast<const uint8*>(Data), DataSize);
	Hash.Final();
	Hash.GetHash(OutHash);
}

FSHAHash FSHA1::HashBuffer(const void* Data, uint64 DataSize)
{
	FSHAHash Result;
	HashBuffer(Data, DataSize, Result.Hash);
	return Result;
}
