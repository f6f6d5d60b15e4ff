#pragma once

#include "Serialization/MemoryWriter.h"

/** A writer that is its own array of bytes. */
class CORE_API FBufferArchive : public TArray<uint8>, public FMemoryWriter
{
public:
	explicit FBufferArchive(bool bIsPersistent = false, const FName InArchiveName = NAME_None)
		: FMemoryWriter(static_cast<TArray<uint8>&>(*this), bIsPersistent, false, InArchiveName)
	{
	}
	FBufferArchive(const FBufferArchive&) = delete;
	FBufferArchive& operator=(const FBufferArchive&) = delete;

	FString GetArchiveName() const override;
};
