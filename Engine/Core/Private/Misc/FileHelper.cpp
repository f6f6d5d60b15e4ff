#include "Misc/FileHelper.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformFileManager.h"
#include "Serialization/Archive.h"
#include "Templates/UniquePtr.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr int64 MaxFileSize = MAX_int32 - 1;
constexpr uint8 Utf8Mark[] = {0xEF, 0xBB, 0xBF};
constexpr uint8 Utf16LittleMark[] = {0xFF, 0xFE};
constexpr uint8 Utf16BigMark[] = {0xFE, 0xFF};

template <SIZE_T Num>
bool StartsWith(const uint8* Buffer, int32 Size, const uint8 (&Mark)[Num])
{
	return Size >= static_cast<int32>(Num) && std::equal(Mark, Mark + Num, Buffer);
}

FString FromUtf16(const uint8* Buffer, int32 Size, bool bBigEndian)
{
	FString Result;
	Result.Reserve(Size / 2);
	for (int32 Index = 0; Index + 1 < Size; Index += 2)
	{
		const uint32 Low = Buffer[Index + (bBigEndian ? 1 : 0)];
		const uint32 High = Buffer[Index + (bBigEndian ? 0 : 1)];
		const TCHAR Char = static_cast<TCHAR>(High << 8 | Low);
		// A zero would end the string for every reader of its characters.
		Result += Char != 0 ? Char : static_cast<TCHAR>(0xFFFD);
	}
	return Result;
}

std::vector<uint8> ToUtf8(FStringView String)
{
	const FTCHARToUTF8 Utf8(String.GetData(), String.Len());
	const uint8* const Bytes = reinterpret_cast<const uint8*>(Utf8.Get());
	return std::vector<uint8>(Bytes, Bytes + Utf8.Length());
}

bool IsAscii(FStringView String)
{
	return std::all_of(String.begin(), String.end(), [](TCHAR Char)
		{ return Char < 0x80; });
}

/** A byte order mark belongs only at a file's start. */
std::vector<uint8> Encode(FStringView String, FFileHelper::EEncodingOptions Options, bool bAtStart)
{
	using EEncodingOptions = FFileHelper::EEncodingOptions;
	const bool bUtf16 = Options == EEncodingOptions::ForceUnicode || (Options == EEncodingOptions::AutoDetect && !IsAscii(String));
	std::vector<uint8> Result;
	if (bUtf16)
	{
		if (bAtStart)
		{
			Result.assign(std::begin(Utf16LittleMark), std::end(Utf16LittleMark));
		}
		for (const TCHAR Char : String)
		{
			Result.push_back(static_cast<uint8>(Char & 0xFF));
			Result.push_back(static_cast<uint8>(Char >> 8));
		}
		return Result;
	}
	if (Options == EEncodingOptions::ForceAnsi)
	{
		for (const TCHAR Char : String)
		{
			Result.push_back(Char <= 0xFF ? static_cast<uint8>(Char) : static_cast<uint8>('?'));
		}
		return Result;
	}
	Result = ToUtf8(String);
	if (Options == EEncodingOptions::ForceUTF8 && bAtStart)
	{
		Result.insert(Result.begin(), std::begin(Utf8Mark), std::end(Utf8Mark));
	}
	return Result;
}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags)
{
	Result.Reset();
	const TUniquePtr<IFileHandle> Handle(IPlatformFile::GetPlatformPhysical().OpenRead(Filename));
	const int64 Size = Handle ? Handle->Size() : -1;
	if (Size < 0 || Size > MaxFileSize)
	{
		return false;
	}
	Result.SetNumUninitialized(static_cast<int32>(Size));
	if (!Handle->Read(Result.GetData(), Size))
	{
		Result.Reset();
		return false;
	}
	return true;
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags, uint32 ReadFlags)
{
	TArray<uint8> Bytes;
	if (!LoadFileToArray(Bytes, Filename, ReadFlags))
	{
		return false;
	}
	BufferToString(Result, Bytes.GetData(), Bytes.Num());
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename, EHashOptions VerifyFlags)
{
	FString Text;
	Result.Reset();
	if (!LoadFileToString(Text, Filename, VerifyFlags))
	{
		return false;
	}
	Text.ParseIntoArrayLines(Result, false);
	// A break ends a line; what stands behind the last one is a line only when it is not empty.
	if (!Result.IsEmpty() && Result.Last().IsEmpty())
	{
		Result.Pop();
	}
	return true;
}

void FFileHelper::BufferToString(FString& Result, const uint8* Buffer, int32 Size)
{
	Result.Reset();
	if (StartsWith(Buffer, Size, Utf16LittleMark))
	{
		Result = FromUtf16(Buffer + 2, Size - 2, false);
		return;
	}
	if (StartsWith(Buffer, Size, Utf16BigMark))
	{
		Result = FromUtf16(Buffer + 2, Size - 2, true);
		return;
	}
	const int32 Skip = StartsWith(Buffer, Size, Utf8Mark) ? 3 : 0;
	if (Size > Skip)
	{
		const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Buffer + Skip), Size - Skip);
		Result = FString(Converted.Length(), Converted.Get());
	}
}

bool FFileHelper::SaveArrayToFile(TArrayView<const uint8> Array, const TCHAR* Filename, IFileManager* FileManager, uint32 WriteFlags)
{
	const TUniquePtr<FArchive> Archive(FileManager->CreateFileWriter(Filename, WriteFlags));
	if (!Archive)
	{
		return false;
	}
	Archive->Serialize(const_cast<uint8*>(Array.GetData()), Array.Num());
	return Archive->Close();
}

bool FFileHelper::SaveStringToFile(
	FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	const bool bAtStart = (WriteFlags & FILEWRITE_Append) == 0 || FileManager->FileSize(Filename) <= 0;
	const std::vector<uint8> Bytes = Encode(String, EncodingOptions, bAtStart);
	return SaveArrayToFile(TArrayView<const uint8>(Bytes.data(), static_cast<int32>(Bytes.size())), Filename, FileManager, WriteFlags);
}

bool FFileHelper::SaveStringArrayToFile(
	const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	FString Text;
	for (const FString& Line : Lines)
	{
		Text += Line + TEXT("\n");
	}
	return SaveStringToFile(Text, Filename, EncodingOptions, FileManager, WriteFlags);
}
