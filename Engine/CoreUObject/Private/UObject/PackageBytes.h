#pragma once

#include "CoreMinimal.h"
#include "Serialization/Archive.h"

/** The bytes of a package file. Small files stand in memory; larger ones stay on the disk and are read where they are asked for. */
class FPackageBytes
{
public:
	/** Null with the reason when the file cannot be opened. */
	static TUniquePtr<FPackageBytes> Open(const FString& Filename, FString& OutError);
	explicit FPackageBytes(TArray<uint8>&& InMemory);

	int64 Num() const { return Size; }
	/** All of the file's bytes; null for a file that is read where it is asked for. */
	const uint8* GetWhole() const { return Reader ? nullptr : Memory.GetData(); }
	/** False when there are not as many bytes, or when the disk fails. */
	[[nodiscard]] bool Read(int64 Offset, void* Out, int64 Length);

private:
	explicit FPackageBytes(TUniquePtr<FArchive>&& InReader);
	bool ReadFromDisk(int64 Offset, void* Out, int64 Length);

	int64 Size = 0;
	/** The whole file, or the part of it that was read last. */
	TArray<uint8> Memory;
	int64 MemoryStart = 0;
	TUniquePtr<FArchive> Reader;
};
