#include "Embed/VexelEmbed.h"

#include "Misc/ScopeLock.h"
#include "VexelErrorKinds.h"

namespace
{
/** Written in front of a saved index, in little-endian order. */
constexpr int32 FileVersion = 4;
constexpr int32 NumVersionBytes = 4;

/** Behind Lock, all of it. */
struct FIndex
{
	FCriticalSection Lock;
	bool bInitialized = false;
	bool bSaved = true;
	TArray<uint8> Entries;
};

FIndex& GetIndex()
{
	static FIndex Index;
	return Index;
}

int32 ReadVersion(const TArray<uint8>& Bytes)
{
	return int32(uint32(Bytes[0]) | uint32(Bytes[1]) << 8 | uint32(Bytes[2]) << 16 | uint32(Bytes[3]) << 24);
}

void WriteVersion(TArray<uint8>& Bytes)
{
	for (int32 Index = 0; Index < NumVersionBytes; ++Index)
	{
		Bytes.Add(uint8(uint32(FileVersion) >> (8 * Index)));
	}
}

/** The lock is held. */
TVexelExpected<void> CheckInitialized(const FIndex& Index, const TCHAR* Function)
{
	if (!Index.bInitialized)
	{
		return VEXEL_ERROR(FVexelError_EmbedInitialization, "FVexelEmbed::%s called before Initialize", Function);
	}
	return TVexelExpected<void>();
}
}

TVexelExpected<void> FVexelEmbed::Initialize()
{
	FIndex& Index = GetIndex();
	FScopeLock Guard(&Index.Lock);
	if (Index.bInitialized)
	{
		return VEXEL_ERROR(FVexelError_EmbedInitialization, "FVexelEmbed::Initialize called multiple times");
	}
	Index.bInitialized = true;
	return TVexelExpected<void>();
}

void FVexelEmbed::Shutdown()
{
	FIndex& Index = GetIndex();
	FScopeLock Guard(&Index.Lock);
	Index.bInitialized = false;
	Index.bSaved = true;
	Index.Entries.Empty();
}

TVexelTaskResult<void> FVexelEmbed::LoadFromBytes(const TArray<uint8>& Bytes)
{
	FIndex& Index = GetIndex();
	FScopeLock Guard(&Index.Lock);
	VEXEL_TRY_VOID(CheckInitialized(Index, TEXT("LoadFromBytes")));
	if (Bytes.Num() < NumVersionBytes)
	{
		return VEXEL_ERROR(FVexelError_EmbedLoadFileCorrupted, "Embed database file is corrupted");
	}
	const int32 Version = ReadVersion(Bytes);
	if (Version < FileVersion)
	{
		return VEXEL_ERROR(FVexelError_EmbedLoadFileOutdated, "Embed database version is outdated");
	}
	if (Version > FileVersion)
	{
		return VEXEL_ERROR(FVexelError_EmbedLoadVersionInvalid, "Embed database version is invalid");
	}
	Index.Entries = TArray<uint8>(Bytes.GetData() + NumVersionBytes, Bytes.Num() - NumVersionBytes);
	Index.bSaved = true;
	return TVexelExpected<void>();
}

TVexelTaskResult<TSharedRef<TArray<uint8>>> FVexelEmbed::SaveToBytes()
{
	FIndex& Index = GetIndex();
	FScopeLock Guard(&Index.Lock);
	VEXEL_TRY_VOID(CheckInitialized(Index, TEXT("SaveToBytes")));
	if (Index.bSaved)
	{
		return VEXEL_ERROR(FVexelError_EmbedSaveUpToDate, "Embed database is already up to date");
	}
	const TSharedRef<TArray<uint8>> Bytes = MakeShared<TArray<uint8>>();
	Bytes->Reserve(NumVersionBytes + Index.Entries.Num());
	WriteVersion(*Bytes);
	Bytes->Append(Index.Entries);
	Index.bSaved = true;
	return Bytes;
}

TVexelExpected<void> FVexelEmbed::MarkNotSaved()
{
	FIndex& Index = GetIndex();
	FScopeLock Guard(&Index.Lock);
	VEXEL_TRY_VOID(CheckInitialized(Index, TEXT("MarkNotSaved")));
	Index.bSaved = false;
	return TVexelExpected<void>();
}
