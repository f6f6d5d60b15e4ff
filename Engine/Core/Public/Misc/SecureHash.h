#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

class FArchive;
struct evp_md_ctx_st;

/** MD5 in steps: Update any number of times, then Final once. For telling data apart, not for safety. */
class CORE_API FMD5
{
public:
	FMD5();
	~FMD5();
	FMD5(const FMD5&) = delete;
	FMD5& operator=(const FMD5&) = delete;

	void Update(const uint8* Input, uint64 InputLen);
	/** Writes 16 bytes. */
	void Final(uint8* Digest);

	/** 32 lower-case hexadecimal digits of a text's UTF-8 bytes. */
	static FString HashAnsiString(const TCHAR* String);
	static FString HashBytes(const uint8* Input, uint64 InputLen);

private:
	evp_md_ctx_st* Context;
};

/** A digest of MD5, or none. */
struct CORE_API FMD5Hash
{
	bool IsValid() const { return bIsValid; }
	void Set(FMD5& MD5);
	const uint8* GetBytes() const { return Bytes; }
	static constexpr int32 GetSize() { return 16; }
	bool operator==(const FMD5Hash& Other) const;
	friend CORE_API FString LexToString(const FMD5Hash& Hash);

private:
	bool bIsValid = false;
	uint8 Bytes[16] = {};
};

/** A digest of SHA-1. */
class CORE_API FSHAHash
{
public:
	uint8 Hash[20] = {};

	/** 40 upper-case hexadecimal digits. */
	FString ToString() const;
	bool FromString(const FStringView& Source);
	bool operator==(const FSHAHash& Other) const = default;
	friend CORE_API FArchive& operator<<(FArchive& Ar, FSHAHash& Hash);
	friend uint32 GetTypeHash(const FSHAHash& InHash)
	{
		uint32 Result;
		FMemory::Memcpy(&Result, InHash.Hash, sizeof(Result));
		return Result;
	}
};

/** SHA-1 in steps: Update any number of times, then Final, then the digest. */
class CORE_API FSHA1
{
public:
	static constexpr uint32 DigestSize = 20;

	FSHA1();
	~FSHA1();
	FSHA1(const FSHA1&) = delete;
	FSHA1& operator=(const FSHA1&) = delete;

	void Reset();
	void Update(const uint8* Data, uint64 Length);
	void UpdateWithString(const TCHAR* String, uint32 Length);
	void Final();
	void GetHash(uint8* OutHash) const;
	FSHAHash Finalize();

	static void HashBuffer(const void* Data, uint64 DataSize, uint8* OutHash);
	static FSHAHash HashBuffer(const void* Data, uint64 DataSize);

	uint8 m_digest[DigestSize] = {};

private:
	evp_md_ctx_st* Context;
};
