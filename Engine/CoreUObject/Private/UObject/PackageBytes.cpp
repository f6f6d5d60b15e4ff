#include "PackageBytes.h"

#include "HAL/FileManager.h"

namespace
{
/** Keeping more files than a process may have open is worse than keeping this much of each. */
constexpr int64 MaxBytesInMemory = 256 * 1024;
constexpr int64 WindowBytes = 64 * 1024;
}

TUniquePtr<FPackageBytes> FPackageBytes::Open(const FString& Filename, FString& OutError)
{
	TUniquePtr<FArchive> Reader(IFileManager::Get().CreateFileReader(*Filename));
	if (!Reader)
	{
		OutError = TEXT("the file cannot be read");
		return nullptr;
	}
	const int64 Size = Reader->TotalSize();
	if (Size > MaxBytesInMemory)
	{
		return TUniquePtr<FPackageBytes>(new FPackageBytes(MoveTemp(Reader)));
	}
	TArray<uint8> Bytes;
	Bytes.SetNumUninitialized(static_cast<int32>(FMath::Max<int64>(Size, 0)));
	Reader->Serialize(Bytes.GetData(), Bytes.Num());
	if (Reader->IsError())
	{
		OutError = TEXT("the file cannot be read");
		return nullptr;
	}
	return MakeUnique<FPackageBytes>(MoveTemp(Bytes));
}

FPackageBytes::FPackageBytes(TArray<uint8>&& InMemory)
	: Size(InMemory.Num())
	, Memory(MoveTemp(InMemory))
{
}

FPackageBytes::FPackageBytes(TUniquePtr<FArchive>&& InReader)
	: Size(InReader->TotalSize())
	, Reader(MoveTemp(InReader))
{
}

bool FPackageBytes::ReadFromDisk(int64 Offset, void* Out, int64 Length)
{
	Reader->Seek(Offset);
	Reader->Serialize(Out, Length);
	const bool bDone = !Reader->IsError();
	Reader->ClearError();
	return bDone;
}

bool FPackageBytes::Read(int64 Offset, void* Out, int64 Length)
{
	if (Offset < 0 || Length < 0 || Offset > Size || Length > Size - Offset)
	{
		return false;
	}
	const bool bInMemory = Offset >= MemoryStart && Offset + Length <= MemoryStart + Memory.Num();
	if (!bInMemory && Length >= WindowBytes)
	{
		return ReadFromDisk(Offset, Out, Length);
	}
	if (!bInMemory)
	{
		Memory.SetNumUninitialized(static_cast<int32>(FMath::Min(WindowBytes, Size - Offset)));
		MemoryStart = Offset;
		if (!ReadFromDisk(Offset, Memory.GetData(), Memory.Num()))
		{
			Memory.Reset();
			return false;
		}
	}
	FMemory::Memcpy(Out, Memory.GetData() + (Offset - MemoryStart), Length);
	return true;
}
