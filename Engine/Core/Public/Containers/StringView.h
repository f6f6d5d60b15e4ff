#pragma once

#include "Containers/StringFwd.h"
#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"

#include <concepts>
#include <type_traits>
#include <utility>

namespace UE::String::Private
{
/** Less than 0, 0 or more, as the first range stands before, with or after the second one. */
template <typename CharType>
int32 CompareRanges(const CharType* First, int32 FirstLen, const CharType* Second, int32 SecondLen, ESearchCase::Type SearchCase)
{
	const int32 MinLen = FirstLen < SecondLen ? FirstLen : SecondLen;
	for (int32 Index = 0; Index < MinLen; ++Index)
	{
		CharType A = First[Index];
		CharType B = Second[Index];
		if (A == B)
		{
			continue;
		}
		if (SearchCase == ESearchCase::IgnoreCase)
		{
			A = TChar<CharType>::ToLower(A);
			B = TChar<CharType>::ToLower(B);
		}
		if (A != B)
		{
			return TChar<CharType>::ToUnsigned(A) < TChar<CharType>::ToUnsigned(B) ? -1 : 1;
		}
	}
	return FirstLen - SecondLen;
}

template <typename CharType>
bool RangesAreEqual(const CharType* First, const CharType* Second, int32 Len, ESearchCase::Type SearchCase)
{
	if (SearchCase == ESearchCase::CaseSensitive)
	{
		return FMemory::Memcmp(First, Second, static_cast<SIZE_T>(Len) * sizeof(CharType)) == 0;
	}
	return CompareRanges(First, Len, Second, Len, SearchCase) == 0;
}

/** First index at or after `Start` where `Search` stands, or INDEX_NONE. An empty `Search` stands everywhere. */
template <typename CharType>
int32 FindRange(const CharType* Text, int32 TextLen, const CharType* Search, int32 SearchLen, int32 Start, ESearchCase::Type SearchCase)
{
	if (SearchLen == 0)
	{
		return Start <= TextLen ? Start : INDEX_NONE;
	}
	const bool bIgnoreCase = SearchCase == ESearchCase::IgnoreCase;
	const CharType Lower = bIgnoreCase ? TChar<CharType>::ToLower(Search[0]) : Search[0];
	const CharType Upper = bIgnoreCase ? TChar<CharType>::ToUpper(Search[0]) : Search[0];
	for (int32 Index = Start; Index <= TextLen - SearchLen; ++Index)
	{
		const CharType Char = Text[Index];
		// Beyond ASCII two characters may share a lower case without being each other's case, so the comparison decides there.
		const bool bMayMatch = Char == Lower || Char == Upper || (bIgnoreCase && !TChar<CharType>::IsAscii(Char));
		if (bMayMatch && RangesAreEqual(Text + Index, Search, SearchLen, SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** Last index at or before `Start` where `Search` stands, or INDEX_NONE. */
template <typename CharType>
int32 FindLastRange(const CharType* Text, int32 TextLen, const CharType* Search, int32 SearchLen, int32 Start, ESearchCase::Type SearchCase)
{
	const int32 LastStart = TextLen - SearchLen;
	for (int32 Index = Start < LastStart ? Start : LastStart; Index >= 0; --Index)
	{
		if (RangesAreEqual(Text + Index, Search, SearchLen, SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** Hash that does not see case; equal for an FString and a view of the same text. */
CORE_API uint32 HashIgnoringCase(const TCHAR* Text, int32 Len);
CORE_API uint32 HashIgnoringCase(const ANSICHAR* Text, int32 Len);
CORE_API uint32 HashIgnoringCase(const UTF8CHAR* Text, int32 Len);
}

/**
 * Text that somebody else owns: a pointer and a length, without a terminator. Whoever makes a view sees to it that the text lives
 * as long. Comparison by operator ignores case, as FString's does; the methods are told.
 */
template <typename CharType>
class TStringView
{
public:
	using ElementType = CharType;
	using ViewType = TStringView<CharType>;

	constexpr TStringView() = default;
	constexpr TStringView(const CharType* InData)
		: DataPtr(InData)
		, Size(TCString<CharType>::Strlen(InData))
	{
	}
	constexpr TStringView(std::nullptr_t) {}
	constexpr TStringView(const CharType* InData, int32 InSize)
		: DataPtr(InData)
		, Size(InSize)
	{
	}
	/** From a container of characters that ends with the container's Len(), as FString and string builders. */
	template <typename RangeType>
	requires(!std::is_same_v<std::remove_cvref_t<RangeType>, TStringView<CharType>> && requires(const RangeType& Range) {
		{
			Range.GetData()
			} -> std::convertible_to<const CharType*>;
		{
			Range.Len()
			} -> std::convertible_to<int32>;
	}) constexpr TStringView(const RangeType& Range)
		: DataPtr(Range.GetData())
		, Size(Range.Len())
	{
	}
	/** From FString, which keeps its characters behind operator*. */
	template <typename StringType>
	requires(std::is_same_v<StringType, FString>&& std::is_same_v<CharType, TCHAR>)
		TStringView(const StringType& String)
		: DataPtr(*String)
		, Size(String.Len())
	{
	}

	[[nodiscard]] constexpr const CharType& operator[](int32 Index) const
	{
		checkSlow(Index >= 0 && Index < Size);
		return DataPtr[Index];
	}
	[[nodiscard]] constexpr const CharType* GetData() const { return DataPtr; }
	[[nodiscard]] constexpr bool IsEmpty() const { return Size == 0; }
	[[nodiscard]] constexpr int32 Len() const { return Size; }
	[[nodiscard]] constexpr SIZE_T NumBytes() const { return static_cast<SIZE_T>(Size) * sizeof(CharType); }
	[[nodiscard]] constexpr bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Size; }

	constexpr void RemovePrefix(int32 CharCount)
	{
		DataPtr += CharCount;
		Size -= CharCount;
	}
	constexpr void RemoveSuffix(int32 CharCount) { Size -= CharCount; }
	constexpr void Reset()
	{
		DataPtr = nullptr;
		Size = 0;
	}

	/** Copies up to `CharCount` characters from `Position`, without a terminator, and answers how many. */
	int32 CopyString(CharType* Dest, int32 CharCount, int32 Position = 0) const
	{
		const ViewType Part = Mid(Position, CharCount);
		FMemory::Memcpy(Dest, Part.GetData(), Part.NumBytes());
		return Part.Len();
	}

	// Parts. Counts and positions outside the text are brought inside it.
	[[nodiscard]] constexpr ViewType Left(int32 CharCount) const { return ViewType(DataPtr, Clamp(CharCount)); }
	[[nodiscard]] constexpr ViewType LeftChop(int32 CharCount) const { return ViewType(DataPtr, Clamp(Size - CharCount)); }
	[[nodiscard]] constexpr ViewType Right(int32 CharCount) const
	{
		const int32 Count = Clamp(CharCount);
		return ViewType(DataPtr + Size - Count, Count);
	}
	[[nodiscard]] constexpr ViewType RightChop(int32 CharCount) const
	{
		const int32 Count = Clamp(CharCount);
		return ViewType(DataPtr + Count, Size - Count);
	}
	[[nodiscard]] constexpr ViewType Mid(int32 Position, int32 CharCount = 0x7fffffff) const
	{
		const int32 Start = Clamp(Position);
		const int32 Rest = Size - Start;
		return ViewType(DataPtr + Start, CharCount < 0 ? 0 : (CharCount < Rest ? CharCount : Rest));
	}
	[[nodiscard]] constexpr ViewType SubStr(int32 Position, int32 CharCount) const { return Mid(Position, CharCount); }

	constexpr void LeftInline(int32 CharCount) { *this = Left(CharCount); }
	constexpr void LeftChopInline(int32 CharCount) { *this = LeftChop(CharCount); }
	constexpr void RightInline(int32 CharCount) { *this = Right(CharCount); }
	constexpr void RightChopInline(int32 CharCount) { *this = RightChop(CharCount); }
	constexpr void MidInline(int32 Position, int32 CharCount = 0x7fffffff) { *this = Mid(Position, CharCount); }

	[[nodiscard]] constexpr ViewType TrimStart() const
	{
		int32 Start = 0;
		while (Start < Size && TChar<CharType>::IsWhitespace(DataPtr[Start]))
		{
			++Start;
		}
		return RightChop(Start);
	}
	[[nodiscard]] constexpr ViewType TrimEnd() const
	{
		int32 End = Size;
		while (End > 0 && TChar<CharType>::IsWhitespace(DataPtr[End - 1]))
		{
			--End;
		}
		return Left(End);
	}
	[[nodiscard]] constexpr ViewType TrimStartAndEnd() const { return TrimStart().TrimEnd(); }
	constexpr void TrimStartInline() { *this = TrimStart(); }
	constexpr void TrimEndInline() { *this = TrimEnd(); }
	constexpr void TrimStartAndEndInline() { *this = TrimStartAndEnd(); }

	[[nodiscard]] bool Equals(ViewType Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return Size == Other.Size && UE::String::Private::RangesAreEqual(DataPtr, Other.DataPtr, Size, SearchCase);
	}
	[[nodiscard]] int32 Compare(ViewType Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return UE::String::Private::CompareRanges(DataPtr, Size, Other.DataPtr, Other.Size, SearchCase);
	}
	[[nodiscard]] bool StartsWith(CharType Prefix) const { return Size > 0 && DataPtr[0] == Prefix; }
	[[nodiscard]] bool StartsWith(ViewType Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Size >= Prefix.Size && UE::String::Private::RangesAreEqual(DataPtr, Prefix.DataPtr, Prefix.Size, SearchCase);
	}
	[[nodiscard]] bool EndsWith(CharType Suffix) const { return Size > 0 && DataPtr[Size - 1] == Suffix; }
	[[nodiscard]] bool EndsWith(ViewType Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Size >= Suffix.Size &&
			UE::String::Private::RangesAreEqual(DataPtr + Size - Suffix.Size, Suffix.DataPtr, Suffix.Size, SearchCase);
	}

	[[nodiscard]] int32 Find(ViewType Search, int32 StartPosition = 0, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return UE::String::Private::FindRange(DataPtr, Size, Search.DataPtr, Search.Size, Clamp(StartPosition), SearchCase);
	}
	[[nodiscard]] bool Contains(ViewType Search, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return Find(Search, 0, SearchCase) != INDEX_NONE;
	}
	[[nodiscard]] bool Contains(CharType Search) const
	{
		int32 Index;
		return FindChar(Search, Index);
	}
	constexpr bool FindChar(CharType Char, int32& OutIndex) const
	{
		for (OutIndex = 0; OutIndex < Size; ++OutIndex)
		{
			if (DataPtr[OutIndex] == Char)
			{
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}
	constexpr bool FindLastChar(CharType Char, int32& OutIndex) const
	{
		for (OutIndex = Size - 1; OutIndex >= 0; --OutIndex)
		{
			if (DataPtr[OutIndex] == Char)
			{
				return true;
			}
		}
		return false;
	}

	[[nodiscard]] bool IsNumeric() const
	{
		int32 Index = Size > 0 && (DataPtr[0] == '-' || DataPtr[0] == '+') ? 1 : 0;
		bool bHasPoint = false;
		const int32 First = Index;
		for (; Index < Size; ++Index)
		{
			if (DataPtr[Index] == '.' && !bHasPoint)
			{
				bHasPoint = true;
			}
			else if (!TChar<CharType>::IsDigit(DataPtr[Index]))
			{
				return false;
			}
		}
		return Size > First;
	}

	[[nodiscard]] constexpr const CharType* begin() const { return DataPtr; }
	[[nodiscard]] constexpr const CharType* end() const { return DataPtr + Size; }

	[[nodiscard]] friend bool operator==(ViewType Lhs, ViewType Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	[[nodiscard]] friend bool operator!=(ViewType Lhs, ViewType Rhs) { return !Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	[[nodiscard]] friend bool operator<(ViewType Lhs, ViewType Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0; }
	[[nodiscard]] friend bool operator<=(ViewType Lhs, ViewType Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) <= 0; }
	[[nodiscard]] friend bool operator>(ViewType Lhs, ViewType Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) > 0; }
	[[nodiscard]] friend bool operator>=(ViewType Lhs, ViewType Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) >= 0; }
	[[nodiscard]] friend uint32 GetTypeHash(ViewType View) { return UE::String::Private::HashIgnoringCase(View.DataPtr, View.Size); }

private:
	constexpr int32 Clamp(int32 Count) const { return Count < 0 ? 0 : (Count < Size ? Count : Size); }

	const CharType* DataPtr = nullptr;
	int32 Size = 0;
};

template <typename CharType>
constexpr TStringView<CharType> MakeStringView(const CharType* Data, int32 Size)
{
	return TStringView<CharType>(Data, Size);
}

template <typename CharType>
constexpr TStringView<CharType> MakeStringView(const CharType* Data)
{
	return TStringView<CharType>(Data);
}

[[nodiscard]] constexpr FStringView operator""_SV(const TCHAR* String, SIZE_T Size)
{
	return FStringView(String, static_cast<int32>(Size));
}
[[nodiscard]] constexpr FAnsiStringView operator""_ASV(const ANSICHAR* String, SIZE_T Size)
{
	return FAnsiStringView(String, static_cast<int32>(Size));
}
[[nodiscard]] constexpr FUtf8StringView operator""_U8SV(const UTF8CHAR* String, SIZE_T Size)
{
	return FUtf8StringView(String, static_cast<int32>(Size));
}
[[nodiscard]] inline FUtf8StringView operator""_U8SV(const ANSICHAR* String, SIZE_T Size)
{
	return FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(String), static_cast<int32>(Size));
}

#define TEXTVIEW(String) (FStringView(TEXT(String), UE_ARRAY_COUNT(TEXT(String)) - 1))
#define ANSITEXTVIEW(String) (FAnsiStringView(String, UE_ARRAY_COUNT(String) - 1))
#define UTF8TEXTVIEW(String) (FUtf8StringView(UTF8TEXT(String), UE_ARRAY_COUNT(UTF8TEXT(String)) - 1))
