#include "Containers/UnrealString.h"

#include "Containers/Map.h"
#include "Misc/StringFormatArg.h"

#include <algorithm>
#include <limits>

namespace
{
int32 CheckedLength(int64 Length)
{
	checkf(Length < std::numeric_limits<int32>::max(), TEXT("A string would pass 2^31 characters"));
	return static_cast<int32>(Length);
}

/** Characters that escape sequences stand for; the backslash first. */
constexpr TCHAR EscapedChars[][2] = {{'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}, {'\'', '\''}, {'"', '"'}};

bool IsEscapeWanted(const TArray<TCHAR>* Chars, TCHAR Char)
{
	return Chars == nullptr || std::find(Chars->GetData(), Chars->GetData() + Chars->Num(), Char) != Chars->GetData() + Chars->Num();
}
}

FString::FString(const ANSICHAR* Text)
{
	AppendChars(Text, FCStringAnsi::Strlen(Text));
}

FString::FString(const UTF8CHAR* Text)
{
	AppendChars(Text, FCStringUtf8::Strlen(Text));
}

FString::FString(FAnsiStringView Text)
{
	AppendChars(Text.GetData(), Text.Len());
}

FString::FString(FUtf8StringView Text)
{
	AppendChars(Text.GetData(), Text.Len());
}

FString FString::ConstructFromPtrSizeWithSlack(const TCHAR* Text, int32 Size, int32 Slack)
{
	FString Result;
	Result.Reserve(CheckedLength(static_cast<int64>(Size) + Slack));
	Result.AppendChars(Text, Size);
	return Result;
}

FString FString::ConstructWithSlack(const TCHAR* Text, int32 Slack)
{
	return ConstructFromPtrSizeWithSlack(Text, FCString::Strlen(Text), Slack);
}

FString& FString::operator=(FStringView Text)
{
	const bool bIsOwnPart = Text.GetData() >= Data.GetData() && Text.GetData() < Data.GetData() + Data.Num();
	if (bIsOwnPart)
	{
		KeepPart(Text);
		return *this;
	}
	Data.Reset();
	AppendChars(Text.GetData(), Text.Len());
	return *this;
}

void FString::TrimToNullTerminator()
{
	if (Data.Num() > 0)
	{
		Truncate(FCString::Strnlen(Data.GetData(), static_cast<SIZE_T>(Data.Num() - 1)));
	}
}

TCHAR* FString::AddRoom(int32 Count)
{
	const int32 OldLen = Len();
	const int32 NewNum = CheckedLength(static_cast<int64>(OldLen) + Count + 1);
	Data.AddUninitialized(NewNum - Data.Num());
	Data.GetData()[NewNum - 1] = 0;
	return Data.GetData() + OldLen;
}

void FString::Truncate(int32 NewLen)
{
	if (NewLen <= 0)
	{
		Data.Reset();
		return;
	}
	Data.SetNumUninitialized(NewLen + 1, EAllowShrinking::No);
	Data.GetData()[NewLen] = 0;
}

void FString::KeepPart(FStringView Part)
{
	FMemory::Memmove(Data.GetData(), Part.GetData(), Part.NumBytes());
	Truncate(Part.Len());
}

void FString::AppendChars(const TCHAR* Text, int32 Count)
{
	if (Count <= 0)
	{
		return;
	}
	const bool bIsOwnPart = Text >= Data.GetData() && Text < Data.GetData() + Data.Num();
	const std::ptrdiff_t OwnOffset = bIsOwnPart ? Text - Data.GetData() : 0;
	TCHAR* const Room = AddRoom(Count);
	FMemory::Memcpy(Room, bIsOwnPart ? Data.GetData() + OwnOffset : Text, static_cast<SIZE_T>(Count) * sizeof(TCHAR));
}

void FString::AppendChars(const ANSICHAR* Text, int32 Count)
{
	if (Count > 0)
	{
		UE::Core::Private::ConvertAnsiToTChar(AddRoom(Count), Text, Count);
	}
}

void FString::AppendChars(const UTF8CHAR* Text, int32 Count)
{
	if (Count > 0)
	{
		const int32 OldLen = Len();
		const int32 NumWritten = UE::Core::Private::ConvertUtf8ToTChar(AddRoom(Count), Text, Count);
		Truncate(OldLen + NumWritten);
	}
}

void FString::AppendInt(int32 Number)
{
	Appendf(TEXT("%d"), Number);
}

void FString::InsertAt(int32 Index, TCHAR Char)
{
	InsertAt(Index, FStringView(&Char, 1));
}

void FString::InsertAt(int32 Index, FStringView Text)
{
	checkf(Index >= 0 && Index <= Len(), TEXT("InsertAt at %d of a string of %d characters"), Index, Len());
	const FString Tail(FStringView(*this).RightChop(Index));
	const FString Inserted(Text);
	Truncate(Index);
	Append(Inserted).Append(Tail);
}

void FString::RemoveAt(int32 Index, int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Start = std::clamp(Index, 0, Len());
	const int32 Removed = std::clamp(Count, 0, Len() - Start);
	if (Removed > 0)
	{
		TCHAR* const At = Data.GetData() + Start;
		FMemory::Memmove(At, At + Removed, static_cast<SIZE_T>(Len() - Start - Removed) * sizeof(TCHAR));
		Truncate(Len() - Removed);
	}
}

void FString::PathAppend(const TCHAR* Text, int32 TextLength)
{
	FStringView Part(Text, TextLength);
	if (Len() > 0 && (*this)[Len() - 1] != '/' && (*this)[Len() - 1] != '\\')
	{
		AppendChar('/');
	}
	if (Len() > 0 && Part.StartsWith(TEXT('/')))
	{
		Part.RemovePrefix(1);
	}
	Append(Part);
}

FString FString::Concatenate(FStringView Lhs, FStringView Rhs)
{
	FString Result;
	Result.Reserve(CheckedLength(static_cast<int64>(Lhs.Len()) + Rhs.Len()));
	Result.Append(Lhs).Append(Rhs);
	return Result;
}

FString FString::PrintfImpl(const TCHAR* Format, const UE::Core::FFormatArgument* Arguments, int32 NumArguments)
{
	TStringBuilder<512> Builder;
	UE::Core::FormatTo(Builder, Format, Arguments, NumArguments);
	return FString(Builder.ToView());
}

FString& FString::AppendfImpl(const TCHAR* Format, const UE::Core::FFormatArgument* Arguments, int32 NumArguments)
{
	// Formatted aside, because an argument may be this string.
	TStringBuilder<512> Builder;
	UE::Core::FormatTo(Builder, Format, Arguments, NumArguments);
	return Append(Builder.ToView());
}

namespace
{
/** Copies a format, asking `FindArgument` for each name in braces; a null answer leaves the braces as they are. */
template <typename FindArgumentType>
FString ReplaceBraces(FStringView Format, FindArgumentType&& FindArgument)
{
	FString Result;
	// Known beforehand, so that a text of opening braces alone is not searched anew for each of them.
	int32 LastBrace;
	Format.FindLastChar('}', LastBrace);
	const TCHAR* const LastEnd = Format.GetData() + LastBrace;
	while (!Format.IsEmpty())
	{
		const TCHAR Char = Format[0];
		if (Char == '`' && Format.Len() > 1 && (Format[1] == '{' || Format[1] == '`'))
		{
			Result.AppendChar(Format[1]);
			Format.RemovePrefix(2);
			continue;
		}
		int32 End;
		if (Char == '{' && Format.GetData() < LastEnd && Format.FindChar('}', End))
		{
			const FString* const Value = FindArgument(Format.Mid(1, End - 1).TrimStartAndEnd());
			Result.Append(Value != nullptr ? FStringView(*Value) : Format.Left(End + 1));
			Format.RemovePrefix(End + 1);
			continue;
		}
		Result.AppendChar(Char);
		Format.RemovePrefix(1);
	}
	return Result;
}
}

FString FString::Format(const TCHAR* InFormatString, const FStringFormatNamedArguments& InNamedArguments)
{
	return ReplaceBraces(FStringView(InFormatString), [&InNamedArguments](FStringView Name) -> const FString*
		{
		const FStringFormatArg* const Found = InNamedArguments.Find(FString(Name));
		return Found != nullptr ? &Found->Text : nullptr; });
}

FString FString::Format(const TCHAR* InFormatString, const FStringFormatOrderedArguments& InOrderedArguments)
{
	return ReplaceBraces(FStringView(InFormatString),
		[&InOrderedArguments](FStringView Name) -> const FString*
		{
			const bool bIsIndex = !Name.IsEmpty() && Name.Len() < 6 &&
				std::all_of(Name.begin(), Name.end(), [](TCHAR Char)
					{ return FChar::IsDigit(Char); });
			const int32 Index = bIsIndex ? FCString::Atoi(*FString(Name)) : INDEX_NONE;
			return Index >= 0 && Index < InOrderedArguments.Num() ? &InOrderedArguments[Index].Text : nullptr;
		});
}

bool FString::MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase) const
{
	const auto SameChar = [SearchCase](TCHAR A, TCHAR B)
	{
		return A == B || (SearchCase == ESearchCase::IgnoreCase && FChar::ToLower(A) == FChar::ToLower(B));
	};
	const FStringView Text(*this);
	int32 TextIndex = 0;
	int32 WildcardIndex = 0;
	// Where the last star stood and what it had taken so far: going back there alone is enough, and keeps the time linear per star.
	int32 StarIndex = INDEX_NONE;
	int32 StarTextIndex = 0;
	while (TextIndex < Text.Len())
	{
		if (WildcardIndex < Wildcard.Len() && Wildcard[WildcardIndex] == '*')
		{
			StarIndex = WildcardIndex++;
			StarTextIndex = TextIndex;
		}
		else if (WildcardIndex < Wildcard.Len() && (Wildcard[WildcardIndex] == '?' || SameChar(Wildcard[WildcardIndex], Text[TextIndex])))
		{
			++WildcardIndex;
			++TextIndex;
		}
		else if (StarIndex != INDEX_NONE)
		{
			WildcardIndex = StarIndex + 1;
			TextIndex = ++StarTextIndex;
		}
		else
		{
			return false;
		}
	}
	while (WildcardIndex < Wildcard.Len() && Wildcard[WildcardIndex] == '*')
	{
		++WildcardIndex;
	}
	return WildcardIndex == Wildcard.Len();
}

int32 FString::Find(FStringView SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	if (SearchDir == ESearchDir::FromStart)
	{
		const int32 Start = StartPosition == INDEX_NONE ? 0 : std::clamp(StartPosition, 0, Len());
		return UE::String::Private::FindRange(**this, Len(), SubStr.GetData(), SubStr.Len(), Start, SearchCase);
	}
	const int32 Last = (StartPosition < 0 || StartPosition > Len() ? Len() : StartPosition) - SubStr.Len();
	return UE::String::Private::FindLastRange(**this, Len(), SubStr.GetData(), SubStr.Len(), Last, SearchCase);
}

FString FString::Mid(int32 Start, int32 Count) const
{
	// A start before the text takes from the count, so that Mid(-2, 5) is the first three characters.
	const int64 End = static_cast<int64>(Start) + Count;
	const int32 First = std::clamp(Start, 0, Len());
	const int32 Last = static_cast<int32>(std::clamp<int64>(End, First, Len()));
	return FString(FStringView(*this).Mid(First, Count < 0 ? 0 : Last - First));
}

bool FString::Split(FStringView InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 At = Find(InS, SearchCase, SearchDir);
	if (At == INDEX_NONE)
	{
		return false;
	}
	FString NewLeft = Left(At);
	FString NewRight = Mid(At + InS.Len());
	if (LeftS != nullptr)
	{
		*LeftS = MoveTemp(NewLeft);
	}
	if (RightS != nullptr)
	{
		*RightS = MoveTemp(NewRight);
	}
	return true;
}

bool FString::RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase)
{
	const bool bStarts = !Prefix.IsEmpty() && StartsWith(Prefix, SearchCase);
	if (bStarts)
	{
		RightChopInline(Prefix.Len());
	}
	return bStarts;
}

bool FString::RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase)
{
	const bool bEnds = !Suffix.IsEmpty() && EndsWith(Suffix, SearchCase);
	if (bEnds)
	{
		LeftChopInline(Suffix.Len());
	}
	return bEnds;
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result(*this);
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

int32 FString::ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase)
{
	const FStringView Search(SearchText);
	const FStringView Replacement(ReplacementText);
	int32 Found = Search.IsEmpty() ? INDEX_NONE : Find(Search, SearchCase);
	if (Found == INDEX_NONE)
	{
		return 0;
	}
	FString Result;
	Result.Reserve(Len());
	int32 Count = 0;
	int32 Copied = 0;
	for (; Found != INDEX_NONE; Found = Find(Search, SearchCase, ESearchDir::FromStart, Copied), ++Count)
	{
		Result.Append(FStringView(*this).Mid(Copied, Found - Copied)).Append(Replacement);
		Copied = Found + Search.Len();
	}
	Result.Append(FStringView(*this).RightChop(Copied));
	*this = MoveTemp(Result);
	return Count;
}

void FString::ReplaceCharInline(TCHAR SearchChar, TCHAR ReplacementChar, ESearchCase::Type SearchCase)
{
	for (TCHAR& Char : *this)
	{
		const bool bSame =
			Char == SearchChar || (SearchCase == ESearchCase::IgnoreCase && FChar::ToLower(Char) == FChar::ToLower(SearchChar));
		Char = bSame ? ReplacementChar : Char;
	}
}

FString FString::ToLower() const&
{
	FString Result(*this);
	Result.ToLowerInline();
	return Result;
}

FString FString::ToLower() &&
{
	ToLowerInline();
	return MoveTemp(*this);
}

FString FString::ToUpper() const&
{
	FString Result(*this);
	Result.ToUpperInline();
	return Result;
}

FString FString::ToUpper() &&
{
	ToUpperInline();
	return MoveTemp(*this);
}

void FString::ToLowerInline()
{
	std::transform(begin(), end(), begin(), [](TCHAR Char)
		{ return FChar::ToLower(Char); });
}

void FString::ToUpperInline()
{
	std::transform(begin(), end(), begin(), [](TCHAR Char)
		{ return FChar::ToUpper(Char); });
}

FString FString::LeftPad(int32 ChCount) const
{
	return ChrN(std::max(ChCount - Len(), 0), ' ') + *this;
}

FString FString::RightPad(int32 ChCount) const
{
	return *this + ChrN(std::max(ChCount - Len(), 0), ' ');
}

FString FString::TrimChar(TCHAR CharacterToTrim, bool* bCharRemoved) const
{
	FString Result(*this);
	Result.TrimCharInline(CharacterToTrim, bCharRemoved);
	return Result;
}

void FString::TrimCharInline(TCHAR CharacterToTrim, bool* bCharRemoved)
{
	FStringView View(*this);
	const bool bStarts = View.StartsWith(CharacterToTrim);
	View.RemovePrefix(bStarts ? 1 : 0);
	const bool bEnds = View.EndsWith(CharacterToTrim);
	View.RemoveSuffix(bEnds ? 1 : 0);
	KeepPart(View);
	if (bCharRemoved != nullptr)
	{
		*bCharRemoved = bStarts || bEnds;
	}
}

FString FString::TrimQuotes(bool* bQuotesRemoved) const
{
	return TrimChar('"', bQuotesRemoved);
}

void FString::RemoveSpacesInline()
{
	Truncate(static_cast<int32>(std::remove(begin(), end(), TEXT(' ')) - begin()));
}

FString FString::Reverse() const
{
	FString Result(*this);
	std::reverse(Result.begin(), Result.end());
	return Result;
}

FString FString::ConvertTabsToSpaces(int32 InSpacesPerTab) const
{
	FString Result;
	int32 Column = 0;
	for (const TCHAR Char : *this)
	{
		if (Char == '\t' && InSpacesPerTab > 0)
		{
			const int32 NumSpaces = InSpacesPerTab - Column % InSpacesPerTab;
			Result.Append(ChrN(NumSpaces, ' '));
			Column += NumSpaces;
			continue;
		}
		Result.AppendChar(Char);
		Column = Char == '\n' ? 0 : Column + 1;
	}
	return Result;
}

FString FString::ReplaceQuotesWithEscapedQuotes() const
{
	FString Result;
	bool bEscaped = false;
	for (const TCHAR Char : *this)
	{
		if (Char == '"' && !bEscaped)
		{
			Result.AppendChar('\\');
		}
		Result.AppendChar(Char);
		bEscaped = Char == '\\' && !bEscaped;
	}
	return Result;
}

FString FString::ReplaceCharWithEscapedChar(const TArray<TCHAR>* Chars) const
{
	FString Result;
	Result.Reserve(Len());
	for (const TCHAR Char : *this)
	{
		TCHAR Escape = 0;
		for (const auto& [Plain, Letter] : EscapedChars)
		{
			Escape = Plain == Char && IsEscapeWanted(Chars, Char) ? Letter : Escape;
		}
		if (Escape != 0)
		{
			Result.AppendChar('\\');
		}
		Result.AppendChar(Escape != 0 ? Escape : Char);
	}
	return Result;
}

FString FString::ReplaceEscapedCharWithChar(const TArray<TCHAR>* Chars) const
{
	FString Result;
	Result.Reserve(Len());
	// One pass from the left: "\\n" is an escaped backslash before an n, which replacing sequence by sequence would misread.
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		const TCHAR Char = (*this)[Index];
		const TCHAR Next = Char == '\\' && Index + 1 < Len() ? (*this)[Index + 1] : TCHAR(0);
		bool bEscaped = false;
		for (const auto& [Plain, Letter] : EscapedChars)
		{
			if (Next == Letter && IsEscapeWanted(Chars, Plain))
			{
				Result.AppendChar(Plain);
				bEscaped = true;
				break;
			}
		}
		if (bEscaped)
		{
			++Index;
			continue;
		}
		Result.AppendChar(Char);
	}
	return Result;
}

FString FString::ChrN(int32 NumCharacters, TCHAR Char)
{
	FString Result;
	if (NumCharacters > 0)
	{
		std::fill_n(Result.AddRoom(NumCharacters), NumCharacters, Char);
	}
	return Result;
}
