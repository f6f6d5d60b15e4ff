#pragma once

#include "GenericPlatform/GenericPlatformFile.h"
#include "Serialization/MemoryArchive.h"
#include "Templates/UniquePtr.h"

/** Reads the front of a package file. Names are made when they are first asked for: most of a table's are of no interest here. */
class FPackageHeaderArchive final : public FMemoryArchive
{
public:
	/** Headers of real packages, thumbnails included, have a few hundred kilobytes. */
	static constexpr int64 MaxHeaderBytes = 64 << 20;

	explicit FPackageHeaderArchive(const FString& Filename);

	bool IsOpen() const { return File.IsValid(); }
	int64 GetFileSize() const { return FileSize; }
	/** Makes the first bytes of the file readable: as many as asked for, or all that it has. False when that is not so much. */
	[[nodiscard]] bool Require(int64 NumBytes);
	/** Whether the file ends with the mark that packages end with. */
	bool EndsWithTag();
	/** Finds the names' places. False when the table is damaged. */
	[[nodiscard]] bool ReadNameTable(int32 Count, int32 TableOffset);

	int64 TotalSize() override { return Bytes.Num(); }
	void Serialize(void* Data, int64 Length) override;
	using FMemoryArchive::operator<<;
	FArchive& operator<<(FName& Name) override;

private:
	FName GetPlainName(int32 Index);

	TUniquePtr<IFileHandle> File;
	int64 FileSize = 0;
	TArray<uint8> Bytes;
	TArray<int32> NameOffsets;
	/** None for those not asked for yet. */
	TArray<FName> Names;
};
