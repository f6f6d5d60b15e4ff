#pragma once

#include "Containers/Array.h"
#include "Serialization/MemoryArchive.h"

/** Writes to an array of bytes, which grows. Writing past the end after a Seek fills the gap with zeros. */
class CORE_API FMemoryWriter : public FMemoryArchive
{
public:
	explicit FMemoryWriter(
		TArray<uint8>& InBytes, bool bIsPersistent = false, bool bSetOffset = false, const FName InArchiveName = NAME_None);

	FString GetArchiveName() const override;
	int64 TotalSize() override { return Bytes.Num(); }
	void Serialize(void* Data, int64 Num) override;

private:
	TArray<uint8>& Bytes;
	FName ArchiveName;
};
