#pragma once

#include "Serialization/ArchiveUObject.h"
#include "Templates/Function.h"

/** Writes an object's state for a copy of it in the same run: references are addresses. */
class COREUOBJECT_API FDuplicateDataWriter : public FArchiveUObject
{
public:
	FDuplicateDataWriter(TArray<uint8>& InData, uint32 InPortFlags = 0);

	using FArchiveUObject::operator<<;
	FArchive& operator<<(FName& Name) override;
	FArchive& operator<<(UObject*& Object) override;
	void Serialize(void* Source, int64 Num) override;
	void Seek(int64 InPos) override { Offset = InPos; }
	int64 Tell() override { return Offset; }
	int64 TotalSize() override { return Data.Num(); }
	FString GetArchiveName() const override { return TEXT("FDuplicateDataWriter"); }

private:
	TArray<uint8>& Data;
	int64 Offset = 0;
};

/** Reads what FDuplicateDataWriter wrote. MapObject answers the copy of a referenced object, or null to keep the reference. */
class COREUOBJECT_API FDuplicateDataReader : public FArchiveUObject
{
public:
	FDuplicateDataReader(const TArray<uint8>& InData, uint32 InPortFlags, TFunction<UObject*(UObject*)> InMapObject);

	using FArchiveUObject::operator<<;
	FArchive& operator<<(FName& Name) override;
	FArchive& operator<<(UObject*& Object) override;
	void Serialize(void* Target, int64 Num) override;
	void Seek(int64 InPos) override { Offset = InPos; }
	int64 Tell() override { return Offset; }
	int64 TotalSize() override { return Data.Num(); }
	FString GetArchiveName() const override { return TEXT("FDuplicateDataReader"); }

private:
	const TArray<uint8>& Data;
	TFunction<UObject*(UObject*)> MapObject;
	int64 Offset = 0;
};
