#pragma once

#include "Containers/Array.h"
#include "Containers/ContainersFwd.h"
#include "Containers/StringConv.h"
#include "Containers/StringFwd.h"
#include "Containers/StringView.h"
#include "CoreTypes.h"
#include "Misc/CString.h"
#include "Misc/StringBuilder.h"
#include "String/FormatStringSan.h"
#include "Templates/UnrealTemplate.h"

#include <concepts>
#include <type_traits>

class FArchive;
struct FStringFormatArg;

using FStringFormatNamedArguments = TMap<FString, FStringFormatArg>;
using FStringFormatOrderedArguments = TArray<FStringFormatArg>;

/**
 * Text in UTF-16 that owns its characters. `operator*` gives a terminated pointer that is never null. The comparison operators and the
 * hash ignore case; Equals() and Compare() see it unless told otherwise, and searches ignore it unless told otherwise.
 */
class CORE_API FString
{
public:
	using ElementType = TCHAR;
	using DataType = TArray<TCHAR>;

	FString() = default;
	FString(FString&&) = default;
	FString(const FString&) = default;
	FString& operator=(FString&&) = default;
	FString& operator=(const FString&) = default;

	FString(const TCHAR* Text)
	{
		AppendChars(Text, FCString::Strlen(Text));
	}
	/** ASCII; other bytes become '?'. UTF-8 comes in through FUTF8ToTCHAR or `const UTF8CHAR*`. */
	FString(const ANSICHAR* Text);
	FString(const UTF8CHAR* Text);
	explicit FString(FStringView Text) { AppendChars(Text.GetData(), Text.Len()); }
	explicit FString(FAnsiStringView Text);
	explicit FString(FUtf8StringView Text);
	template <typename ConverterType>
	explicit FString(const TStringConversion<ConverterType>& Text) requires(std::is_same_v<typename ConverterType::ToType, TCHAR>)
	{
		AppendChars(Text.Get(), Text.Length());
	}
	/** Of the first `Len` characters. */
	FString(int32 Len, const TCHAR* Text) { AppendChars(Text, Len); }

	static FString ConstructFromPtrSize(const TCHAR* Text, int32 Size) { return FString(FStringView(Text, Size)); }
	static FString ConstructFromPtrSize(const ANSICHAR* Text, int32 Size) { return FString(FAnsiStringView(Text, Size)); }
	static FString ConstructFromPtrSize(const UTF8CHAR* Text, int32 Size) { return FString(FUtf8StringView(Text, Size)); }
	static FString ConstructFromPtrSizeWithSlack(const TCHAR* Text, int32 Size, int32 Slack);
	static FString ConstructWithSlack(const TCHAR* Text, int32 Slack);

	FString& operator=(const TCHAR* Text) { return *this = FStringView(Text); }
	FString& operator=(FStringView Text);

	[[nodiscard]] TCHAR& operator[](int32 Index) UE_LIFETIMEBOUND
	{
		checkf(IsValidIndex(Index), TEXT("String index out of bounds: %d of %d"), Index, Len());
		return Data.GetData()[Index];
	}
	[[nodiscard]] const TCHAR& operator[](int32 Index) const UE_LIFETIMEBOUND
	{
		checkf(IsValidIndex(Index), TEXT("String index out of bounds: %d of %d"), Index, Len());
		return Data.GetData()[Index];
	}
	[[nodiscard]] const TCHAR* operator*() const UE_LIFETIMEBOUND { return Data.Num() > 0 ? Data.GetData() : TEXT(""); }
	/** The characters with their terminator; empty for an empty text. Whoever changes it keeps the terminator. */
	[[nodiscard]] DataType& GetCharArray() UE_LIFETIMEBOUND { return Data; }
	[[nodiscard]] const DataType& GetCharArray() const UE_LIFETIMEBOUND { return Data; }
	[[nodiscard]] int32 Len() const { return Data.Num() > 0 ? Data.Num() - 1 : 0; }
	[[nodiscard]] bool IsEmpty() const { return Data.Num() <= 1; }
	[[nodiscard]] bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	[[nodiscard]] SIZE_T GetAllocatedSize() const { return Data.GetAllocatedSize(); }
	void Empty(int32 Slack = 0) { Data.Empty(Slack > 0 ? Slack + 1 : 0); }
	/** Empties and keeps the memory. */
	void Reset(int32 NewReservedSize = 0) { Data.Reset(NewReservedSize > 0 ? NewReservedSize + 1 : 0); }
	void Reserve(int32 CharacterCount)
	{
		if (CharacterCount > 0)
		{
			Data.Reserve(CharacterCount + 1);
		}
	}
	void Shrink() { Data.Shrink(); }
	/** Cuts at the first terminator after somebody wrote into the character array. */
	void TrimToNullTerminator();
	void CheckInvariants() const { checkSlow(Data.Num() == 0 || Data.GetData()[Data.Num() - 1] == 0); }

	[[nodiscard]] TCHAR* begin() { return Data.GetData(); }
	[[nodiscard]] TCHAR* end() { return Data.GetData() + Len(); }
	[[nodiscard]] const TCHAR* begin() const { return Data.GetData(); }
	[[nodiscard]] const TCHAR* end() const { return Data.GetData() + Len(); }

	// Adding
	FString& AppendChar(TCHAR Char)
	{
		AppendChars(&Char, 1);
		return *this;
	}
	/** `Text` may be a part of this string. */
	void AppendChars(const TCHAR* Text, int32 Count);
	void AppendChars(const ANSICHAR* Text, int32 Count);
	void AppendChars(const UTF8CHAR* Text, int32 Count);
	FString& Append(FStringView Text)
	{
		AppendChars(Text.GetData(), Text.Len());
		return *this;
	}
	FString& Append(const TCHAR* Text, int32 Count)
	{
		AppendChars(Text, Count);
		return *this;
	}
	FString& Append(const ANSICHAR* Text)
	{
		AppendChars(Text, FCStringAnsi::Strlen(Text));
		return *this;
	}
	FString& operator+=(FStringView Text) { return Append(Text); }
	FString& operator+=(const ANSICHAR* Text) { return Append(Text); }
	FString& operator+=(TCHAR Char) { return AppendChar(Char); }
	FString& operator+=(ANSICHAR Char) { return AppendChar(static_cast<TCHAR>(Char)); }
	void AppendInt(int32 Number);
	void InsertAt(int32 Index, TCHAR Char);
	void InsertAt(int32 Index, FStringView Text);
	void RemoveAt(int32 Index, int32 Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Default);
	/** Adds `Text` behind exactly one slash. */
	void PathAppend(const TCHAR* Text, int32 TextLength);
	FString& operator/=(FStringView Text)
	{
		PathAppend(Text.GetData(), Text.Len());
		return *this;
	}

	template <typename... Types>
	[[nodiscard]] static FString Printf(UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {UE::Core::FFormatArgument(Args)..., UE::Core::FFormatArgument()};
		return PrintfImpl(Format.GetFormatString(), Arguments, static_cast<int32>(sizeof...(Types)));
	}

	template <typename... Types>
	FString& Appendf(UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {UE::Core::FFormatArgument(Args)..., UE::Core::FFormatArgument()};
		return AppendfImpl(Format.GetFormatString(), Arguments, static_cast<int32>(sizeof...(Types)));
	}

	/** Replaces `{Name}`; a backquote escapes a brace. A name without an argument stays as it is. */
	[[nodiscard]] static FString Format(const TCHAR* InFormatString, const FStringFormatNamedArguments& InNamedArguments);
	/** Replaces `{0}`, `{1}` ... likewise. */
	[[nodiscard]] static FString Format(const TCHAR* InFormatString, const FStringFormatOrderedArguments& InOrderedArguments);

	// Comparing
	[[nodiscard]] bool Equals(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return FStringView(*this).Equals(Other, SearchCase);
	}
	[[nodiscard]] int32 Compare(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return FStringView(*this).Compare(Other, SearchCase);
	}
	[[nodiscard]] bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return FStringView(*this).StartsWith(Prefix, SearchCase);
	}
	[[nodiscard]] bool EndsWith(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return FStringView(*this).EndsWith(Suffix, SearchCase);
	}
	/** `*` stands for any text and `?` for one character. */
	[[nodiscard]] bool MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	[[nodiscard]] bool IsNumeric() const { return FStringView(*this).IsNumeric(); }
	[[nodiscard]] bool ToBool() const { return FCString::ToBool(**this); }

	// Searching
	/** Searching from the end, `StartPosition` is where the found text must end at the latest. */
	[[nodiscard]] int32 Find(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	[[nodiscard]] bool Contains(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool FindChar(TCHAR Char, int32& OutIndex) const { return FStringView(*this).FindChar(Char, OutIndex); }
	bool FindLastChar(TCHAR Char, int32& OutIndex) const { return FStringView(*this).FindLastChar(Char, OutIndex); }
	template <typename Predicate>
	[[nodiscard]] int32 FindLastCharByPredicate(Predicate Pred, int32 Count) const
	{
		for (int32 Index = Count - 1; Index >= 0; --Index)
		{
			if (Pred((*this)[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename Predicate>
	[[nodiscard]] int32 FindLastCharByPredicate(Predicate Pred) const
	{
		return FindLastCharByPredicate(Pred, Len());
	}

	// Parts. Counts and positions outside the text are brought inside it.
	[[nodiscard]] FString Left(int32 Count) const { return FString(FStringView(*this).Left(Count)); }
	[[nodiscard]] FString LeftChop(int32 Count) const { return FString(FStringView(*this).LeftChop(Count)); }
	[[nodiscard]] FString Right(int32 Count) const { return FString(FStringView(*this).Right(Count)); }
	[[nodiscard]] FString RightChop(int32 Count) const { return FString(FStringView(*this).RightChop(Count)); }
	[[nodiscard]] FString Mid(int32 Start) const { return FString(FStringView(*this).Mid(Start)); }
	[[nodiscard]] FString Mid(int32 Start, int32 Count) const;
	void LeftInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { KeepPart(FStringView(*this).Left(Count)); }
	void LeftChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		KeepPart(FStringView(*this).LeftChop(Count));
	}
	void RightInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { KeepPart(FStringView(*this).Right(Count)); }
	void RightChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		KeepPart(FStringView(*this).RightChop(Count));
	}
	void MidInline(int32 Start, int32 Count = MAX_COUNT, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		KeepPart(FStringView(*this).Mid(Start, Count));
	}
	/** Outputs are the texts around `InS`, untouched where it does not stand in the string; either may be null or this string. */
	bool Split(FStringView InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	bool RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty = true) const;
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* DelimArray, int32 NumDelims, bool InCullEmpty = true) const;
	/** At white space, and at `pchExtraDelim` where given. */
	int32 ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* pchExtraDelim = nullptr, bool InCullEmpty = true) const;
	int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty = true) const;
	static int32 CullArray(TArray<FString>* InArray);

	/** The elements with a separator between them. Elements are strings, views or pointers. */
	template <typename RangeType>
	[[nodiscard]] static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += FStringView(Element);
		}
		return Result;
	}

	template <typename RangeType, typename ProjectionType>
	[[nodiscard]] static FString JoinBy(const RangeType& Range, const TCHAR* Separator, ProjectionType Projection)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += FStringView(Projection(Element));
		}
		return Result;
	}

	// Changing
	[[nodiscard]] FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** Answers how many were replaced. */
	int32 ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	void ReplaceCharInline(TCHAR SearchChar, TCHAR ReplacementChar, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	[[nodiscard]] FString ToLower() const&;
	[[nodiscard]] FString ToLower() &&;
	[[nodiscard]] FString ToUpper() const&;
	[[nodiscard]] FString ToUpper() &&;
	void ToLowerInline();
	void ToUpperInline();
	[[nodiscard]] FString LeftPad(int32 ChCount) const;
	[[nodiscard]] FString RightPad(int32 ChCount) const;
	[[nodiscard]] FString TrimStart() const { return FString(FStringView(*this).TrimStart()); }
	[[nodiscard]] FString TrimEnd() const { return FString(FStringView(*this).TrimEnd()); }
	[[nodiscard]] FString TrimStartAndEnd() const { return FString(FStringView(*this).TrimStartAndEnd()); }
	void TrimStartInline() { KeepPart(FStringView(*this).TrimStart()); }
	void TrimEndInline() { KeepPart(FStringView(*this).TrimEnd()); }
	void TrimStartAndEndInline() { KeepPart(FStringView(*this).TrimStartAndEnd()); }
	[[nodiscard]] FString TrimChar(TCHAR CharacterToTrim, bool* bCharRemoved = nullptr) const;
	void TrimCharInline(TCHAR CharacterToTrim, bool* bCharRemoved = nullptr);
	/** Takes away one double quote at each end. */
	[[nodiscard]] FString TrimQuotes(bool* bQuotesRemoved = nullptr) const;
	void RemoveSpacesInline();
	[[nodiscard]] FString Reverse() const;
	void ReverseString() { *this = Reverse(); }
	[[nodiscard]] FString ConvertTabsToSpaces(int32 InSpacesPerTab) const;
	/** Escapes every double quote that is not escaped yet. */
	[[nodiscard]] FString ReplaceQuotesWithEscapedQuotes() const;
	/** Writes line feed, carriage return, tab, quotes and backslash (or those of them in `Chars`) as `\n` and the like. */
	[[nodiscard]] FString ReplaceCharWithEscapedChar(const TArray<TCHAR>* Chars = nullptr) const;
	void ReplaceCharWithEscapedCharInline(const TArray<TCHAR>* Chars = nullptr) { *this = ReplaceCharWithEscapedChar(Chars); }
	/** The inverse. */
	[[nodiscard]] FString ReplaceEscapedCharWithChar(const TArray<TCHAR>* Chars = nullptr) const;
	void ReplaceEscapedCharWithCharInline(const TArray<TCHAR>* Chars = nullptr) { *this = ReplaceEscapedCharWithChar(Chars); }

	// Making
	[[nodiscard]] static FString Chr(TCHAR Char) { return FString(FStringView(&Char, 1)); }
	[[nodiscard]] static FString ChrN(int32 NumCharacters, TCHAR Char);
	[[nodiscard]] static FString FromInt(int32 Number);
	[[nodiscard]] static FString FormatAsNumber(int32 Number);
	/** Without trailing zeros, but with `InMinFractionalDigits` digits behind the point. */
	[[nodiscard]] static FString SanitizeFloat(double InFloat, int32 InMinFractionalDigits = 1);
	[[nodiscard]] static FString FromHexBlob(const uint8* SrcBuffer, uint32 SrcSize);
	/** False, with the destination in an unknown state, when the text is not `DestSize` bytes in hexadecimal. */
	static bool ToHexBlob(const FString& Source, uint8* DestBuffer, uint32 DestSize);
	[[nodiscard]] static FString FromBlob(const uint8* SrcBuffer, uint32 SrcSize);
	static bool ToBlob(const FString& Source, uint8* DestBuffer, uint32 DestSize);

	[[nodiscard]] friend FString operator+(const FString& Lhs, const FString& Rhs) { return Concatenate(Lhs, Rhs); }
	[[nodiscard]] friend FString operator+(FString&& Lhs, const FString& Rhs) { return MoveTemp(Lhs.Append(Rhs)); }
	[[nodiscard]] friend FString operator+(const FString& Lhs, const TCHAR* Rhs) { return Concatenate(Lhs, Rhs); }
	[[nodiscard]] friend FString operator+(FString&& Lhs, const TCHAR* Rhs) { return MoveTemp(Lhs.Append(Rhs)); }
	[[nodiscard]] friend FString operator+(const TCHAR* Lhs, const FString& Rhs) { return Concatenate(Lhs, Rhs); }
	[[nodiscard]] friend FString operator+(const FString& Lhs, FStringView Rhs) { return Concatenate(Lhs, Rhs); }
	[[nodiscard]] friend FString operator+(FString&& Lhs, FStringView Rhs) { return MoveTemp(Lhs.Append(Rhs)); }
	[[nodiscard]] friend FString operator+(FStringView Lhs, const FString& Rhs) { return Concatenate(Lhs, Rhs); }
	[[nodiscard]] friend FString operator+(const FString& Lhs, TCHAR Rhs) { return Concatenate(Lhs, FStringView(&Rhs, 1)); }
	[[nodiscard]] friend FString operator+(FString&& Lhs, TCHAR Rhs) { return MoveTemp(Lhs.AppendChar(Rhs)); }
	[[nodiscard]] friend FString operator+(TCHAR Lhs, const FString& Rhs) { return Concatenate(FStringView(&Lhs, 1), Rhs); }
	[[nodiscard]] friend FString operator/(const FString& Lhs, FStringView Rhs)
	{
		FString Result(Lhs);
		Result /= Rhs;
		return Result;
	}
	[[nodiscard]] friend FString operator/(FString&& Lhs, FStringView Rhs)
	{
		Lhs /= Rhs;
		return MoveTemp(Lhs);
	}
	[[nodiscard]] friend FString operator/(const TCHAR* Lhs, const FString& Rhs)
	{
		FString Result(Lhs);
		Result /= FStringView(Rhs);
		return Result;
	}

	[[nodiscard]] friend bool operator==(const FString& Lhs, const FString& Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	[[nodiscard]] friend bool operator==(const FString& Lhs, const TCHAR* Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	[[nodiscard]] friend bool operator==(const TCHAR* Lhs, const FString& Rhs) { return Rhs.Equals(Lhs, ESearchCase::IgnoreCase); }
	[[nodiscard]] friend bool operator!=(const FString& Lhs, const FString& Rhs) { return !(Lhs == Rhs); }
	[[nodiscard]] friend bool operator!=(const FString& Lhs, const TCHAR* Rhs) { return !(Lhs == Rhs); }
	[[nodiscard]] friend bool operator!=(const TCHAR* Lhs, const FString& Rhs) { return !(Lhs == Rhs); }
	[[nodiscard]] friend bool operator<(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0; }
	[[nodiscard]] friend bool operator<(const FString& Lhs, const TCHAR* Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0; }
	[[nodiscard]] friend bool operator>(const FString& Lhs, const TCHAR* Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) > 0; }
	[[nodiscard]] friend bool operator<=(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) <= 0; }
	[[nodiscard]] friend bool operator>(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) > 0; }
	[[nodiscard]] friend bool operator>=(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) >= 0; }
	[[nodiscard]] friend uint32 GetTypeHash(const FString& String) { return UE::String::Private::HashIgnoringCase(*String, String.Len()); }

	/**
	 * The engine's binary form: an int32 count with the terminator, negative for UTF-16, then the characters. A count that is absurd or
	 * passes the archive's end sets the archive's error.
	 */
	CORE_API friend FArchive& operator<<(FArchive& Ar, FString& String);

private:
	static constexpr int32 MAX_COUNT = 0x7fffffff;

	static FString Concatenate(FStringView Lhs, FStringView Rhs);
	static FString PrintfImpl(const TCHAR* Format, const UE::Core::FFormatArgument* Arguments, int32 NumArguments);
	FString& AppendfImpl(const TCHAR* Format, const UE::Core::FFormatArgument* Arguments, int32 NumArguments);
	/** Adds room with the terminator in place and answers where the new characters go. */
	TCHAR* AddRoom(int32 Count);
	void KeepPart(FStringView Part);
	void Truncate(int32 NewLen);

	DataType Data;
};

inline const TCHAR* GetData(const FString& String)
{
	return *String;
}

inline int32 GetNum(const FString& String)
{
	return String.Len();
}

[[nodiscard]] CORE_API TCHAR NibbleToTChar(uint8 Num);
CORE_API void ByteToHex(uint8 In, FString& Result);
[[nodiscard]] CORE_API FString BytesToHex(const uint8* In, int32 Count);
[[nodiscard]] CORE_API FString BytesToHexLower(const uint8* In, int32 Count);
/** 0 for a character that is no digit; ask CheckTCharIsHex(). */
[[nodiscard]] CORE_API uint8 TCharToNibble(TCHAR Hex);
[[nodiscard]] CORE_API bool CheckTCharIsHex(TCHAR Char);
/** Answers the bytes written; `OutBytes` has room for half the text's length, rounded up. */
CORE_API int32 HexToBytes(const FString& HexString, uint8* OutBytes);

[[nodiscard]] CORE_API FString LexToString(bool Value);
[[nodiscard]] CORE_API FString LexToString(int8 Value);
[[nodiscard]] CORE_API FString LexToString(int16 Value);
[[nodiscard]] CORE_API FString LexToString(int32 Value);
[[nodiscard]] CORE_API FString LexToString(long Value);
[[nodiscard]] CORE_API FString LexToString(int64 Value);
[[nodiscard]] CORE_API FString LexToString(uint8 Value);
[[nodiscard]] CORE_API FString LexToString(uint16 Value);
[[nodiscard]] CORE_API FString LexToString(uint32 Value);
[[nodiscard]] CORE_API FString LexToString(unsigned long Value);
[[nodiscard]] CORE_API FString LexToString(uint64 Value);
[[nodiscard]] CORE_API FString LexToString(float Value);
[[nodiscard]] CORE_API FString LexToString(double Value);
[[nodiscard]] inline FString LexToString(FString Value)
{
	return Value;
}
[[nodiscard]] inline FString LexToString(const TCHAR* Value)
{
	return FString(Value);
}
/** As LexToString, with no trailing zeros of a fraction. */
[[nodiscard]] CORE_API FString LexToSanitizedString(double Value);

CORE_API void LexFromString(bool& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(int8& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(int16& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(int32& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(long& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(int64& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(uint8& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(uint16& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(uint32& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(unsigned long& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(uint64& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(float& OutValue, const TCHAR* Buffer);
CORE_API void LexFromString(double& OutValue, const TCHAR* Buffer);
inline void LexFromString(FString& OutValue, const TCHAR* Buffer)
{
	OutValue = Buffer;
}

/** LexFromString of a text that is a number; false, with the value untouched, for any other text. */
template <typename T>
requires(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>) bool LexTryParseString(T& OutValue, const TCHAR* Buffer)
{
	if (!FCString::IsNumeric(Buffer))
	{
		return false;
	}
	LexFromString(OutValue, Buffer);
	return true;
}

/** True for any text: a text that is not true is false. */
inline bool LexTryParseString(bool& OutValue, const TCHAR* Buffer)
{
	LexFromString(OutValue, Buffer);
	return true;
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, bool Value)
{
	return Builder.Append(Value ? TEXT("true") : TEXT("false"));
}
