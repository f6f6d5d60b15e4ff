#include "PackageHeaderArchive.h"

#include "UObject/PackageFileSummary.h"

namespace
{
constexpr int32 NameHashBytes = 4;
constexpr int64 MinNameBytes = 4;
}

FPackageHeaderArchive::FPackageHeaderArchive(const FString& Filename)
	: File(IPlatformFile::GetPlatformPhysical().OpenRead(*Filename))
	, FileSize(File ? File->Size() : 0)
{
	SetIsLoading(true);
	SetIsPersistent(true);
}

bool FPackageHeaderArchive::Require(int64 NumBytes)
{
	const int64 Wanted = FMath::Min(FMath::Min(NumBytes, FileSize), MaxHeaderBytes);
	const int64 Present = Bytes.Num();
	if (Wanted > Present)
	{
		Bytes.SetNumUninitialized(static_cast<int32>(Wanted));
		// The first read is at the file's start, where the handle stands already.
		const bool bInPlace = Present == 0 || File->Seek(Present);
		if (!bInPlace || !File->Read(Bytes.GetData() + Present, Wanted - Present))
		{
			Bytes.SetNum(static_cast<int32>(Present));
			return false;
		}
	}
	return Bytes.Num() >= NumBytes;
}

bool FPackageHeaderArchive::EndsWithTag()
{
	uint32 Tag = 0;
	constexpr int64 TagBytes = sizeof(Tag);
	if (FileSize < TagBytes)
	{
		return false;
	}
	if (FileSize == Bytes.Num())
	{
		FMemory::Memcpy(&Tag, Bytes.GetData() + FileSize - TagBytes, sizeof(Tag));
		return Tag == PACKAGE_FILE_TAG;
	}
	return File->Seek(FileSize - TagBytes) && File->Read(reinterpret_cast<uint8*>(&Tag), TagBytes) && Tag == PACKAGE_FILE_TAG;
}

bool FPackageHeaderArchive::ReadNameTable(int32 Count, int32 TableOffset)
{
	if (Count < 0 || TableOffset < 0 || TableOffset > Bytes.Num() || Count > (Bytes.Num() - TableOffset) / MinNameBytes)
	{
		return false;
	}
	const int64 HashBytes = UEVer() >= VER_UE4_NAME_HASHES_SERIALIZED ? NameHashBytes : 0;
	NameOffsets.SetNumUninitialized(Count);
	Names.SetNum(Count);
	int64 Next = TableOffset;
	for (int32& NameOffset : NameOffsets)
	{
		int32 Length = 0;
		if (Next + MinNameBytes > Bytes.Num())
		{
			return false;
		}
		FMemory::Memcpy(&Length, Bytes.GetData() + Next, sizeof(Length));
		NameOffset = static_cast<int32>(Next);
		// A negative length counts characters of two bytes.
		Next += MinNameBytes + (Length < 0 ? -2 * static_cast<int64>(Length) : Length) + HashBytes;
	}
	return Next <= Bytes.Num();
}

void FPackageHeaderArchive::Serialize(void* Data, int64 Length)
{
	if (Length < 0 || Offset < 0 || Offset > Bytes.Num() || Length > Bytes.Num() - Offset)
	{
		FMemory::Memzero(Data, static_cast<SIZE_T>(FMath::Max<int64>(Length, 0)));
		SetError();
		return;
	}
	FMemory::Memcpy(Data, Bytes.GetData() + Offset, static_cast<SIZE_T>(Length));
	Offset += Length;
}

FName FPackageHeaderArchive::GetPlainName(int32 Index)
{
	if (!NameOffsets.IsValidIndex(Index))
	{
		SetError();
		return FName();
	}
	if (Names[Index].IsNone())
	{
		const int64 Before = Tell();
		Seek(NameOffsets[Index]);
		FString Text;
		static_cast<FArchive&>(*this) << Text;
		Seek(Before);
		if (Text.Len() >= NAME_SIZE)
		{
			SetError();
			return FName();
		}
		// The suffix belongs to each use of a name, never to the table's entry.
		Names[Index] = FName(FStringView(Text), NAME_NO_NUMBER_INTERNAL);
	}
	return Names[Index];
}

FArchive& FPackageHeaderArchive::operator<<(FName& Name)
{
	int32 Index = 0;
	int32 Number = 0;
	static_cast<FArchive&>(*this) << Index << Number;
	Name = IsError() ? FName() : FName(GetPlainName(Index), Number);
	return *this;
}
