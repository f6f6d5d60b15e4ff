#include "VexelStringUtil.h"

#include "Containers/StringConv.h"
#include "Internationalization/Text.h"

namespace
{
constexpr TCHAR Replacement = TCHAR(0xFFFD);

/** The two ranges of control characters. A terminal may obey those of the second one too. */
bool IsControl(TCHAR Character)
{
	return Character < 0x20 || (Character >= 0x7F && Character <= 0x9F);
}
}

FString FVexelStringUtil::ToPrintable(FStringView Text)
{
	FString Printable;
	Printable.Reserve(Text.Len());
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR Character = Text[Index];
		if (Character == TEXT('\r') && Index + 1 < Text.Len() && Text[Index + 1] == TEXT('\n'))
		{
			continue;
		}
		const bool bKept = !IsControl(Character) || Character == TEXT('\n') || Character == TEXT('\t');
		Printable.AppendChar(bKept ? Character : Replacement);
	}
	return Printable;
}

FString FVexelStringUtil::ToPrintableLine(FStringView Text, int32 MaxLength)
{
	FString Line;
	bool bBlank = false;
	for (const TCHAR Character : ToPrintable(Text))
	{
		const bool bBlankNow = Character == TEXT(' ') || Character == TEXT('\n') || Character == TEXT('\t');
		if (!bBlankNow)
		{
			Line += bBlank && !Line.IsEmpty() ? TEXT(" ") : TEXT("");
			Line.AppendChar(Character);
		}
		bBlank = bBlankNow;
		if (Line.Len() > MaxLength)
		{
			return Line.Left(MaxLength) + TEXT("…");
		}
	}
	return Line;
}

bool FVexelStringUtil::TryGetTextSource(const FText& Text, FString& OutSource)
{
	const FString* const Source = FTextInspector::GetSourceString(Text);
	if (!Source)
	{
		return false;
	}
	OutSource = *Source;
	return true;
}

std::string FVexelStringUtil::ToStdStringUtf8(const FString& String)
{
	const FTCHARToUTF8 Utf8(*String, String.Len());
	return std::string(Utf8.Get(), size_t(Utf8.Length()));
}
