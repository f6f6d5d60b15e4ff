#include "Serialization/MemoryArchive.h"

#include "Serialization/BufferArchive.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

FString FMemoryArchive::GetArchiveName() const
{
	return TEXT("FMemoryArchive");
}

FArchive& FMemoryArchive::operator<<(FName& Name)
{
	FString Text;
	if (IsLoading())
	{
		*this << Text;
		Name = FName(*Text);
		return *this;
	}
	Text = Name.ToString();
	return *this << Text;
}

FMemoryReaderView::FMemoryReaderView(TConstArrayView<uint8> InBytes, bool bIsPersistent)
	: Bytes(InBytes.GetData(), InBytes.Num())
{
	SetIsLoading(true);
	SetIsPersistent(bIsPersistent);
}

FString FMemoryReaderView::GetArchiveName() const
{
	return TEXT("FMemoryReaderView");
}

void FMemoryReaderView::Serialize(void* Data, int64 Num)
{
	if (Num <= 0)
	{
		return;
	}
	if (!IsError() && Offset >= 0 && Offset <= TotalSize() && Num <= TotalSize() - Offset)
	{
		FMemory::Memcpy(Data, Bytes.GetData() + Offset, static_cast<SIZE_T>(Num));
		Offset += Num;
		return;
	}
	SetError();
	FMemory::Memzero(Data, static_cast<SIZE_T>(Num));
}

FString FMemoryReader::GetArchiveName() const
{
	return TEXT("FMemoryReader");
}

FMemoryWriter::FMemoryWriter(TArray<uint8>& InBytes, bool bIsPersistent, bool bSetOffset, const FName InArchiveName)
	: Bytes(InBytes)
	, ArchiveName(InArchiveName)
{
	SetIsSaving(true);
	SetIsPersistent(bIsPersistent);
	if (bSetOffset)
	{
		Offset = InBytes.Num();
	}
}

FString FMemoryWriter::GetArchiveName() const
{
	return ArchiveName.IsNone() ? FString(TEXT("FMemoryWriter")) : ArchiveName.ToString();
}

void FMemoryWriter::Serialize(void* Data, int64 Num)
{
	if (Num <= 0 || IsError())
	{
		return;
	}
	constexpr int64 MostBytes = std::numeric_limits<int32>::max();
	if (Offset < 0 || Num > MostBytes || Offset > MostBytes - Num)
	{
		SetError();
		return;
	}
	const int64 End = Offset + Num;
	if (End > Bytes.Num())
	{
		Bytes.AddZeroed(static_cast<int32>(End - Bytes.Num()));
	}
	FMemory::Memcpy(Bytes.GetData() + Offset, Data, static_cast<SIZE_T>(Num));
	Offset = End;
}

FString FBufferArchive::GetArchiveName() const
{
	return TEXT("FBufferArchive");
}
