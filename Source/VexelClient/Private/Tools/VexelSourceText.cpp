#include "Tools/VexelSourceText.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "VexelErrorKinds.h"

namespace
{
constexpr int64 MaxFileBytes = 8 << 20;
constexpr TCHAR Replacement = 0xFFFD;

/** What windows-1252 has from 0x80 to 0x9F; 0 for what it leaves open. */
constexpr TCHAR Windows1252[] = {0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0,
	0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};

FString DecodeWindows1252(const TArray<uint8>& Bytes)
{
	FString Text;
	Text.Reserve(Bytes.Num());
	for (const uint8 Byte : Bytes)
	{
		const TCHAR Special = Byte >= 0x80 && Byte < 0xA0 ? Windows1252[Byte - 0x80] : TCHAR(Byte);
		Text.AppendChar(Special ? Special : Replacement);
	}
	return Text;
}

bool HasUtf16Mark(const TArray<uint8>& Bytes)
{
	return Bytes.Num() >= 2 && ((Bytes[0] == 0xFF && Bytes[1] == 0xFE) || (Bytes[0] == 0xFE && Bytes[1] == 0xFF));
}

/** How many replacement characters stand in UTF-8 text themselves, and not for bytes that are none. */
int32 CountReplacements(const TArray<uint8>& Bytes)
{
	int32 Num = 0;
	for (int32 Index = 2; Index < Bytes.Num(); ++Index)
	{
		Num += Bytes[Index - 2] == 0xEF && Bytes[Index - 1] == 0xBF && Bytes[Index] == 0xBD ? 1 : 0;
	}
	return Num;
}

int32 CountReplacements(const FString& Text)
{
	int32 Num = 0;
	for (const TCHAR Character : Text)
	{
		Num += Character == Replacement ? 1 : 0;
	}
	return Num;
}

FString Decode(const TArray<uint8>& Bytes, const TCHAR*& OutEncoding)
{
	FString Text;
	FFileHelper::BufferToString(Text, Bytes.GetData(), Bytes.Num());
	OutEncoding = HasUtf16Mark(Bytes) ? TEXT("utf-16") : TEXT("utf-8");
	if (!HasUtf16Mark(Bytes) && CountReplacements(Text) != CountReplacements(Bytes))
	{
		OutEncoding = TEXT("windows-1252");
		return DecodeWindows1252(Bytes);
	}
	return Text;
}

TArray<FString> SplitLines(const FString& Text)
{
	TArray<FString> Lines;
	int32 Begin = 0;
	while (Begin < Text.Len())
	{
		const int32 Found = Text.Find(TEXT("\n"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Begin);
		const int32 End = Found == INDEX_NONE ? Text.Len() : Found;
		const bool bReturn = End > Begin && Found != INDEX_NONE && Text[End - 1] == TEXT('\r');
		Lines.Add(Text.Mid(Begin, End - Begin - (bReturn ? 1 : 0)));
		Begin = End + 1;
	}
	return Lines;
}
}

TVexelExpected<FVexelSourceText> FVexelSourceText::Load(const FString& File)
{
	const FString Name = FPaths::GetCleanFilename(File);
	const int64 Size = IFileManager::Get().FileSize(*File);
	if (Size > MaxFileBytes)
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "The file '%s' is too large to be read: it has %lld bytes, and %lld is the most", *Name,
			Size, MaxFileBytes);
	}
	TArray<uint8> Bytes;
	// What has no size may be a device or a pipe, which would be waited for.
	if (Size > 0 && !FFileHelper::LoadFileToArray(Bytes, *File))
	{
		return VEXEL_ERROR(FVexelError_ToolCallFailed, "The file '%s' cannot be read", *Name);
	}
	if (!HasUtf16Mark(Bytes) && Bytes.Contains(uint8(0)))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "The file '%s' is no text", *Name);
	}
	FVexelSourceText Result;
	Result.Lines = SplitLines(Decode(Bytes, Result.Encoding));
	return Result;
}

FString FVexelSourceText::Join(int32 FirstLine, int32 LastLine) const
{
	FString Text;
	for (int32 Line = FMath::Max(FirstLine, 1); Line <= FMath::Min(LastLine, Lines.Num()); ++Line)
	{
		Text += Lines[Line - 1];
		Text += TEXT("\n");
	}
	return Text;
}
