#pragma once

#include "Containers/ArrayView.h"
#include "Serialization/MemoryArchive.h"

/** Reads bytes that the caller keeps alive. */
class CORE_API FMemoryReaderView : public FMemoryArchive
{
public:
	explicit FMemoryReaderView(TConstArrayView<uint8> InBytes, bool bIsPersistent = false);

	FString GetArchiveName() const override;
	int64 TotalSize() override { return Bytes.Num() < LimitSize ? Bytes.Num() : LimitSize; }
	void Serialize(void* Data, int64 Num) override;
	/** Makes the reader end early. */
	void SetLimitSize(int64 NewLimitSize) { LimitSize = NewLimitSize; }

private:
	TConstArrayView<uint8> Bytes;
	int64 LimitSize = std::numeric_limits<int64>::max();
};

/** Reads an array of bytes that the caller keeps alive and does not change. */
class CORE_API FMemoryReader : public FMemoryReaderView
{
public:
	explicit FMemoryReader(const TArray<uint8>& InBytes, bool bIsPersistent = false)
		: FMemoryReaderView(InBytes, bIsPersistent)
	{
	}

	FString GetArchiveName() const override;
};
