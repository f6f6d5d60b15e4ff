#include "Containers/UnrealString.h"

#include "Containers/ArrayView.h"

namespace
{
/** The earliest delimiter at or after `Start`; of two at the same place, the one that stands first in the list. */
bool FindDelimiter(FStringView Text, int32 Start, TArrayView<const FStringView> Delimiters, int32& OutAt, int32& OutLen)
{
	OutAt = INDEX_NONE;
	for (const FStringView Delimiter : Delimiters)
	{
		const int32 At = Delimiter.IsEmpty() ? INDEX_NONE : Text.Find(Delimiter, Start, ESearchCase::CaseSensitive);
		if (At != INDEX_NONE && (OutAt == INDEX_NONE || At < OutAt))
		{
			OutAt = At;
			OutLen = Delimiter.Len();
		}
	}
	return OutAt != INDEX_NONE;
}

int32 ParseAtDelimiters(FStringView Text, TArray<FString>& OutArray, TArrayView<const FStringView> Delimiters, bool bCullEmpty)
{
	// The text may be an element of the output.
	TArray<FString> Parts;
	int32 Start = 0;
	int32 At;
	int32 DelimiterLen = 0;
	while (FindDelimiter(Text, Start, Delimiters, At, DelimiterLen))
	{
		if (!bCullEmpty || At > Start)
		{
			Parts.Emplace(Text.Mid(Start, At - Start));
		}
		Start = At + DelimiterLen;
	}
	if (!bCullEmpty || Start < Text.Len())
	{
		Parts.Emplace(Text.RightChop(Start));
	}
	OutArray = MoveTemp(Parts);
	return OutArray.Num();
}
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty) const
{
	const FStringView Delimiter(pchDelim);
	return ParseAtDelimiters(*this, OutArray, MakeArrayView(&Delimiter, 1), InCullEmpty);
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* DelimArray, int32 NumDelims, bool InCullEmpty) const
{
	TArray<FStringView> Delimiters;
	for (int32 Index = 0; Index < NumDelims; ++Index)
	{
		Delimiters.Emplace(DelimArray[Index]);
	}
	return ParseAtDelimiters(*this, OutArray, MakeArrayView(Delimiters.GetData(), Delimiters.Num()), InCullEmpty);
}

int32 FString::ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* pchExtraDelim, bool InCullEmpty) const
{
	const TCHAR* const WhiteSpace[] = {TEXT(" "), TEXT("\t"), TEXT("\r"), TEXT("\n"), pchExtraDelim};
	const int32 NumWhiteSpace = static_cast<int32>(UE_ARRAY_COUNT(WhiteSpace));
	return ParseIntoArray(OutArray, WhiteSpace, pchExtraDelim != nullptr ? NumWhiteSpace : NumWhiteSpace - 1, InCullEmpty);
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty) const
{
	const TCHAR* const LineEnds[] = {TEXT("\r\n"), TEXT("\r"), TEXT("\n")};
	return ParseIntoArray(OutArray, LineEnds, static_cast<int32>(UE_ARRAY_COUNT(LineEnds)), InCullEmpty);
}

int32 FString::CullArray(TArray<FString>* InArray)
{
	InArray->RemoveAll([](const FString& String)
		{ return String.IsEmpty(); });
	return InArray->Num();
}
