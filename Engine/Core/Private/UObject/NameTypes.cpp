#include "UObject/NameTypes.h"

#include "Internationalization/Text.h"
#include "Misc/StringBuilder.h"
#include "UObject/NameTable.h"

#include <algorithm>
#include <limits>

namespace
{
using FPlainName = TStringBuilder<NAME_SIZE>;

/** Cuts a number off the end of a name and answers it in its internal form. */
int32 SplitNumber(FStringView& Name)
{
	constexpr int32 MaxDigits = 10;
	int32 NumDigits = 0;
	while (NumDigits < Name.Len() && FChar::IsDigit(Name[Name.Len() - 1 - NumDigits]))
	{
		++NumDigits;
	}
	const int32 Underscore = Name.Len() - 1 - NumDigits;
	if (NumDigits == 0 || NumDigits > MaxDigits || Underscore <= 0 || Name[Underscore] != '_')
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	const bool bLeadingZero = NumDigits > 1 && Name[Underscore + 1] == '0';
	if (bLeadingZero)
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	int64 Number = 0;
	for (const TCHAR Digit : Name.Right(NumDigits))
	{
		Number = Number * 10 + FChar::ConvertCharDigitToInt(Digit);
	}
	if (Number >= std::numeric_limits<int32>::max())
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	Name.LeftInline(Underscore);
	return static_cast<int32>(NAME_EXTERNAL_TO_INTERNAL(Number));
}

FName MakeName(FStringView Text, int32 Number, EFindName FindType)
{
	if (Text.IsEmpty())
	{
		return FName();
	}
	if (Text.Len() >= NAME_SIZE)
	{
		Text = TEXTVIEW("ERROR_NAME_SIZE_EXCEEDED");
		Number = NAME_NO_NUMBER_INTERNAL;
	}
	FNameTable::FEntryIds Ids;
	return FNameTable::Get().FindOrAdd(Text, FindType, Ids) ? FName(Ids.Comparison, Ids.Display, Number) : FName();
}

FName MakeNameAndSplit(FStringView Text, EFindName FindType)
{
	const int32 Number = SplitNumber(Text);
	return MakeName(Text, Number, FindType);
}

/** Whether the next word of a name is shown in lower case, as the third of "SetTimerByEvent" is. */
bool BeginsArticle(FStringView Name)
{
	static constexpr const TCHAR* Articles[] = {TEXT("In"), TEXT("As"), TEXT("To"), TEXT("Or"), TEXT("At"), TEXT("On"), TEXT("If"),
		TEXT("Be"), TEXT("By"), TEXT("The"), TEXT("For"), TEXT("And"), TEXT("With"), TEXT("When"), TEXT("From")};
	for (const FStringView Article : Articles)
	{
		// A name's last word is never one ("FadeIn"), and "In" does not begin "Instance".
		const bool bEndsHere = Name.Len() > Article.Len() && !FChar::IsLower(Name[Article.Len()]);
		if (bEndsHere && Name.StartsWith(Article, ESearchCase::CaseSensitive))
		{
			return true;
		}
	}
	return false;
}

const FNameEntry& ResolveOrDie(FNameEntryId Id)
{
	const FNameEntry* const Entry = FNameTable::Get().Resolve(Id);
	checkf(Entry != nullptr, TEXT("A name with the place %u was never made"), Id.ToUnstableInt());
	return *Entry;
}
}

bool FNameEntryId::LexicalLess(FNameEntryId Rhs) const
{
	return CompareLexical(Rhs) < 0;
}

int32 FNameEntryId::CompareLexical(FNameEntryId Rhs) const
{
	if (Value == Rhs.Value)
	{
		return 0;
	}
	FPlainName Left;
	FPlainName Right;
	AppendNameEntry(ResolveOrDie(*this), Left);
	AppendNameEntry(ResolveOrDie(Rhs), Right);
	return Left.ToView().Compare(Right.ToView(), ESearchCase::IgnoreCase);
}

FName::FName(EName Name)
	: FName(Name, NAME_NO_NUMBER_INTERNAL)
{
}

FName::FName(EName Name, int32 InNumber)
	: ComparisonIndex(Name == EName::None ? FNameEntryId() : FNameTable::Get().GetHardcoded(Name))
	, DisplayIndex(ComparisonIndex)
	, Number(static_cast<uint32>(InNumber))
{
}

FName::FName(const TCHAR* Name, EFindName FindType)
	: FName(MakeNameAndSplit(FStringView(Name), FindType))
{
}

FName::FName(const ANSICHAR* Name, EFindName FindType)
	: FName(FAnsiStringView(Name), FindType)
{
}

FName::FName(const UTF8CHAR* Name, EFindName FindType)
	: FName(FUtf8StringView(Name), FindType)
{
}

FName::FName(FStringView Name, EFindName FindType)
	: FName(MakeNameAndSplit(Name, FindType))
{
}

FName::FName(FAnsiStringView Name, EFindName FindType)
	: FName(FStringView(FANSIToTCHAR(Name)), FindType)
{
}

FName::FName(FUtf8StringView Name, EFindName FindType)
	: FName(FStringView(FUTF8ToTCHAR(Name)), FindType)
{
}

FName::FName(int32 Len, const TCHAR* Name, EFindName FindType)
	: FName(FStringView(Name, Len), FindType)
{
}

FName::FName(int32 Len, const ANSICHAR* Name, EFindName FindType)
	: FName(FAnsiStringView(Name, Len), FindType)
{
}

FName::FName(const TCHAR* Name, int32 InNumber, EFindName FindType)
	: FName(MakeName(FStringView(Name), InNumber, FindType))
{
}

FName::FName(const ANSICHAR* Name, int32 InNumber, EFindName FindType)
	: FName(FStringView(FANSIToTCHAR(FAnsiStringView(Name))), InNumber, FindType)
{
}

FName::FName(FStringView Name, int32 InNumber, EFindName FindType)
	: FName(MakeName(Name, InNumber, FindType))
{
}

FString FName::GetPlainNameString() const
{
	FPlainName Text;
	AppendNameEntry(ResolveOrDie(DisplayIndex), Text);
	return FString(Text.ToView());
}

FString FName::ToString() const
{
	FPlainName Text;
	AppendString(Text);
	return FString(Text.ToView());
}

void FName::ToString(FString& Out) const
{
	Out = ToString();
}

void FName::ToString(FStringBuilderBase& Out) const
{
	Out.Reset();
	AppendString(Out);
}

void FName::AppendString(FString& Out) const
{
	FPlainName Text;
	AppendString(Text);
	Out.Append(Text.ToView());
}

void FName::AppendString(FStringBuilderBase& Out) const
{
	AppendNameEntry(ResolveOrDie(DisplayIndex), Out);
	if (Number != NAME_NO_NUMBER_INTERNAL)
	{
		Out.Appendf(TEXT("_%d"), NAME_INTERNAL_TO_EXTERNAL(static_cast<int32>(Number)));
	}
}

uint32 FName::ToString(TCHAR* Out, uint32 OutSize) const
{
	FPlainName Text;
	AppendString(Text);
	FCString::Strncpy(Out, Text.ToString(), OutSize);
	return std::min(static_cast<uint32>(Text.Len()), OutSize - 1);
}

uint32 FName::GetStringLength() const
{
	FPlainName Text;
	AppendString(Text);
	return static_cast<uint32>(Text.Len());
}

bool FName::IsValid() const
{
	return FNameTable::Get().Resolve(ComparisonIndex) != nullptr;
}

bool FName::IsValidXName(const FString& InvalidChars, FText* OutReason, const FText* InErrorCtx) const
{
	return IsValidXName(ToString(), InvalidChars, OutReason, InErrorCtx);
}

bool FName::IsValidXName(const FString& InName, const FString& InInvalidChars, FText* OutReason, const FText* InErrorCtx)
{
	FString Matched;
	for (const TCHAR Char : InInvalidChars)
	{
		int32 Index;
		if (InName.FindChar(Char, Index))
		{
			Matched += Char;
		}
	}
	if (Matched.IsEmpty())
	{
		return true;
	}
	if (OutReason != nullptr)
	{
		const FText Context = InErrorCtx != nullptr ? *InErrorCtx : NSLOCTEXT("Core", "NameDefaultErrorCtx", "Name");
		*OutReason = FText::Format(NSLOCTEXT("Core", "NameContainsInvalidCharacters", "{0} may not contain the following characters: {1}"),
			Context, FText::FromString(Matched.ReplaceCharWithEscapedChar()));
	}
	return false;
}

FString FName::NameToDisplayString(const FString& InDisplayName, bool bIsBool)
{
	FStringView Name(InDisplayName);
	if (bIsBool && Name.Len() > 1 && Name[0] == 'b' && FChar::IsUpper(Name[1]))
	{
		Name.RemovePrefix(1);
	}
	FString Result;
	// Capitals and digits that follow each other stay together: "DrawScale3D" is "Draw Scale 3D".
	bool bInRun = false;
	bool bInNumber = false;
	for (; !Name.IsEmpty(); Name.RemovePrefix(1))
	{
		const TCHAR Char = Name[0] == '_' ? ' ' : Name[0];
		const bool bIsDigit = FChar::IsDigit(Char);
		TCHAR Before = Result.IsEmpty() ? TCHAR(0) : Result[Result.Len() - 1];
		const bool bBeginsWord = (FChar::IsUpper(Char) || (bIsDigit && Before != '-')) && !bInRun && !bInNumber && Before != '(';
		if (bBeginsWord && Before != 0 && Before != ' ')
		{
			Result += Before = ' ';
		}
		const bool bIsFirst = Before == 0 || (!bIsDigit && (Before == ' ' || Before == '('));
		const bool bIsLowered = bIsFirst && Before != 0 && BeginsArticle(Name);
		Result += bIsLowered ? FChar::ToLower(Char) : (bIsFirst ? FChar::ToUpper(Char) : Char);
		bInRun = Name[0] == '_' || (!FChar::IsLower(Char) && (bInRun || bBeginsWord));
		bInNumber = bIsDigit || (bInNumber && (Char == '-' || Char == '.'));
	}
	return Result;
}

int32 FName::Compare(const FName& Other) const
{
	if (ComparisonIndex == Other.ComparisonIndex)
	{
		return static_cast<int32>(Number) - static_cast<int32>(Other.Number);
	}
	return ComparisonIndex.CompareLexical(Other.ComparisonIndex);
}

bool FName::IsEqual(const FName& Other, ENameCase CompareMethod, bool bCompareNumber) const
{
	const bool bSameText = CompareMethod == ENameCase::IgnoreCase ? ComparisonIndex == Other.ComparisonIndex
																  : DisplayIndex == Other.DisplayIndex;
	return bSameText && (!bCompareNumber || Number == Other.Number);
}

bool FName::operator==(const TCHAR* Other) const
{
	FPlainName Text;
	AppendString(Text);
	return Text.ToView().Equals(FStringView(Other), ESearchCase::IgnoreCase);
}
