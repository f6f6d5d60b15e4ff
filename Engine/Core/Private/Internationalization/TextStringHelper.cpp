#include "Internationalization/TextData.h"

#include "Misc/Parse.h"

namespace
{
/** Formats inside formats: no text that people write comes near it. */
constexpr int32 MaxDepth = 16;

/** Reads one text form from the left; every step fails without having moved. */
class FTextReader
{
public:
	FTextReader(const TCHAR* InText, const TCHAR* InTextNamespace, const TCHAR* InPackageNamespace)
		: At(InText)
		, TextNamespace(InTextNamespace)
		, PackageNamespace(InPackageNamespace)
	{
	}

	const TCHAR* GetPosition() const { return At; }

	/** One of the macros; plain strings are the caller's. */
	bool ReadMacro(FText& OutText, int32 Depth)
	{
		const TCHAR* const Begin = At;
		const bool bRead = ReadLocalized(OutText) || ReadTable(OutText) || ReadInvariant(OutText) ||
			(Depth < MaxDepth && ReadFormat(OutText, Depth));
		At = bRead ? At : Begin;
		return bRead;
	}

	/** A string in quotes, with or without TEXT() around it. */
	bool ReadQuoted(FString& OutString)
	{
		const bool bHasMacro = Word(TEXT("TEXT")) && Char('(');
		SkipBlanks();
		int32 NumRead = 0;
		if (!FParse::QuotedString(At, OutString, &NumRead))
		{
			return false;
		}
		At += NumRead;
		return !bHasMacro || Char(')');
	}

private:
	void SkipBlanks()
	{
		while (FChar::IsWhitespace(*At))
		{
			++At;
		}
	}

	bool Char(TCHAR Wanted)
	{
		SkipBlanks();
		const bool bFound = *At == Wanted;
		At += bFound ? 1 : 0;
		return bFound;
	}

	bool Word(FStringView Wanted)
	{
		SkipBlanks();
		const bool bFound = FCString::Strncmp(At, Wanted.GetData(), static_cast<SIZE_T>(Wanted.Len())) == 0 &&
			!FChar::IsIdentifier(At[Wanted.Len()]);
		At += bFound ? Wanted.Len() : 0;
		return bFound;
	}

	bool Macro(FStringView Name)
	{
		const TCHAR* const Begin = At;
		const bool bFound = Word(Name) && Char('(');
		At = bFound ? At : Begin;
		return bFound;
	}

	bool ReadLocalized(FText& OutText)
	{
		FString Namespace(TextNamespace);
		const bool bNamesNamespace = Macro(TEXTVIEW("NSLOCTEXT"));
		if (!bNamesNamespace && !Macro(TEXTVIEW("LOCTEXT")))
		{
			return false;
		}
		if (bNamesNamespace && !(ReadQuoted(Namespace) && Char(',')))
		{
			return false;
		}
		FString Key;
		FString Source;
		if (!ReadQuoted(Key) || !Char(',') || !ReadQuoted(Source) || !Char(')'))
		{
			return false;
		}
		OutText = UE::Core::Private::MakeBaseText(PutPackageNamespace(Namespace), Key, MoveTemp(Source));
		return true;
	}

	/** A package's own texts keep "[its namespace]" at the end of theirs; text that comes to another package gets that package's. */
	FString PutPackageNamespace(const FString& Namespace) const
	{
		int32 Bracket;
		const bool bHasOne = Namespace.EndsWith(TEXT("]")) && Namespace.FindLastChar('[', Bracket);
		if (!bHasOne || PackageNamespace == nullptr || *PackageNamespace == 0)
		{
			return Namespace;
		}
		return FString::Printf(TEXT("%s[%s]"), *Namespace.Left(Bracket), PackageNamespace);
	}

	bool ReadTable(FText& OutText)
	{
		FString Table;
		FString Key;
		if (!Macro(TEXTVIEW("LOCTABLE")) || !ReadQuoted(Table) || !Char(',') || !ReadQuoted(Key) || !Char(')'))
		{
			return false;
		}
		OutText = FText::FromStringTable(FName(Table), Key);
		return true;
	}

	bool ReadInvariant(FText& OutText)
	{
		FString Source;
		if (!Macro(TEXTVIEW("INVTEXT")) || !ReadQuoted(Source) || !Char(')'))
		{
			return false;
		}
		OutText = FText::AsCultureInvariant(MoveTemp(Source));
		return true;
	}

	bool ReadFormat(FText& OutText, int32 Depth)
	{
		const bool bNamed = Macro(TEXTVIEW("LOCGEN_FORMAT_NAMED"));
		FText Pattern;
		if ((!bNamed && !Macro(TEXTVIEW("LOCGEN_FORMAT_ORDERED"))) || !ReadMacroOrQuoted(Pattern, Depth))
		{
			return false;
		}
		FFormatNamedArguments Named;
		FFormatOrderedArguments Ordered;
		while (Char(','))
		{
			FString Name;
			FFormatArgumentValue Value;
			if ((bNamed && !(ReadQuoted(Name) && Char(','))) || !ReadArgument(Value, Depth))
			{
				return false;
			}
			if (bNamed)
			{
				Named.Add(MoveTemp(Name), MoveTemp(Value));
			}
			else
			{
				Ordered.Add(MoveTemp(Value));
			}
		}
		if (!Char(')'))
		{
			return false;
		}
		OutText = bNamed ? FText::Format(MoveTemp(Pattern), MoveTemp(Named)) : FText::Format(MoveTemp(Pattern), MoveTemp(Ordered));
		return true;
	}

	bool ReadMacroOrQuoted(FText& OutText, int32 Depth)
	{
		FString Plain;
		if (ReadMacro(OutText, Depth + 1))
		{
			return true;
		}
		if (!ReadQuoted(Plain))
		{
			return false;
		}
		OutText = FText::FromString(MoveTemp(Plain));
		return true;
	}

	bool ReadGender(FFormatArgumentValue& OutValue)
	{
		if (!Word(TEXTVIEW("ETextGender")) || !Char(':') || !Char(':'))
		{
			return false;
		}
		for (const ETextGender Gender : {ETextGender::Masculine, ETextGender::Feminine, ETextGender::Neuter})
		{
			if (Word(UE::Core::Private::GetGenderName(Gender)))
			{
				OutValue = FFormatArgumentValue(Gender);
				return true;
			}
		}
		return false;
	}

	bool ReadArgument(FFormatArgumentValue& OutValue, int32 Depth)
	{
		SkipBlanks();
		if (*At == 'E')
		{
			return ReadGender(OutValue);
		}
		if (!FChar::IsDigit(*At) && *At != '-' && *At != '+')
		{
			FText Text;
			const bool bRead = ReadMacroOrQuoted(Text, Depth);
			OutValue = FFormatArgumentValue(MoveTemp(Text));
			return bRead;
		}
		const TCHAR* End = At;
		while (FChar::IsDigit(*End) || *End == '.' || *End == '-' || *End == '+')
		{
			++End;
		}
		const FString Number(FStringView(At, static_cast<int32>(End - At)));
		const bool bHasPoint = Number.Contains(TEXT("."));
		const bool bHasSuffix = *End == 'f' || *End == 'u';
		At = End + (bHasSuffix ? 1 : 0);
		if (*End == 'f')
		{
			OutValue = FFormatArgumentValue(FCString::Atof(*Number));
		}
		else if (*End == 'u')
		{
			OutValue = FFormatArgumentValue(FCString::Strtoui64(*Number, nullptr, 10));
		}
		else
		{
			OutValue = bHasPoint ? FFormatArgumentValue(FCString::Atod(*Number)) : FFormatArgumentValue(FCString::Atoi64(*Number));
		}
		return Number.IsNumeric();
	}

	const TCHAR* At;
	const TCHAR* TextNamespace;
	const TCHAR* PackageNamespace;
};

void AppendQuoted(FString& Buffer, const FString& Text)
{
	Buffer += TEXT('"');
	Buffer += Text.ReplaceCharWithEscapedChar();
	Buffer += TEXT('"');
}

FString StripPackageNamespaceOf(const FString& Namespace)
{
	int32 Bracket;
	const bool bHasOne = Namespace.EndsWith(TEXT("]")) && Namespace.FindLastChar('[', Bracket);
	return bHasOne ? Namespace.Left(Bracket).TrimEnd() : Namespace;
}

void WriteArgument(FString& Buffer, const FFormatArgumentValue& Value, bool bStripPackageNamespace)
{
	Buffer += TEXT(", ");
	if (Value.GetType() == EFormatArgumentType::Text)
	{
		FTextStringHelper::WriteToBuffer(Buffer, Value.GetTextValue(), true, bStripPackageNamespace);
		return;
	}
	Buffer += Value.ToExportedString();
}

void WriteFormat(FString& Buffer, const UE::Core::Private::FTextData& Data, bool bStripPackageNamespace)
{
	const bool bNamed = Data.Type == ETextHistoryType::NamedFormat;
	Buffer += bNamed ? TEXT("LOCGEN_FORMAT_NAMED(") : TEXT("LOCGEN_FORMAT_ORDERED(");
	FTextStringHelper::WriteToBuffer(Buffer, Data.Pattern, true, bStripPackageNamespace);
	for (const TPair<FString, FFormatArgumentValue>& Pair : Data.Named)
	{
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, Pair.Key);
		WriteArgument(Buffer, Pair.Value, bStripPackageNamespace);
	}
	for (const FFormatArgumentValue& Value : Data.Ordered)
	{
		WriteArgument(Buffer, Value, bStripPackageNamespace);
	}
	Buffer += TEXT(')');
}
}

const TCHAR* FTextStringHelper::ReadFromBuffer(
	const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace, const TCHAR* PackageNamespace, bool bRequiresQuotes)
{
	FTextReader Reader(Buffer, TextNamespace, PackageNamespace);
	if (Reader.ReadMacro(OutValue, 0))
	{
		return Reader.GetPosition();
	}
	if (!bRequiresQuotes)
	{
		const int32 Len = FCString::Strlen(Buffer);
		OutValue = Len > 0 ? FText::FromString(FString(FStringView(Buffer, Len))) : FText::GetEmpty();
		return Buffer + Len;
	}
	FString Plain;
	if (!Reader.ReadQuoted(Plain))
	{
		return nullptr;
	}
	OutValue = Plain.IsEmpty() ? FText::GetEmpty() : FText::FromString(MoveTemp(Plain));
	return Reader.GetPosition();
}

FText FTextStringHelper::CreateFromBuffer(
	const TCHAR* Buffer, const TCHAR* TextNamespace, const TCHAR* PackageNamespace, bool bRequiresQuotes)
{
	FText Result;
	if (ReadFromBuffer(Buffer, Result, TextNamespace, PackageNamespace, bRequiresQuotes) == nullptr)
	{
		Result = FText::FromString(FString(Buffer));
	}
	return Result;
}

void FTextStringHelper::WriteToBuffer(FString& Buffer, const FText& Value, bool bRequiresQuotes, bool bStripPackageNamespace)
{
	const UE::Core::Private::FTextData& Data = *Value.Data;
	const bool bHasIdentity = !Data.Key.IsEmpty() || !Data.Namespace.IsEmpty();
	switch (Data.Type)
	{
		case ETextHistoryType::StringTableEntry:
			Buffer += TEXT("LOCTABLE(");
			AppendQuoted(Buffer, Data.TableId.ToString());
			Buffer += TEXT(", ");
			AppendQuoted(Buffer, Data.Key);
			Buffer += TEXT(')');
			return;
		case ETextHistoryType::NamedFormat:
		case ETextHistoryType::OrderedFormat:
			WriteFormat(Buffer, Data, bStripPackageNamespace);
			return;
		default:
			break;
	}
	if (Value.IsCultureInvariant() && !Data.Display.IsEmpty())
	{
		Buffer += TEXT("INVTEXT(");
		AppendQuoted(Buffer, Data.Display);
		Buffer += TEXT(')');
		return;
	}
	if (Data.Type == ETextHistoryType::Base && bHasIdentity)
	{
		Buffer += TEXT("NSLOCTEXT(");
		AppendQuoted(Buffer, bStripPackageNamespace ? StripPackageNamespaceOf(Data.Namespace) : Data.Namespace);
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, Data.Key);
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, Data.Display);
		Buffer += TEXT(')');
		return;
	}
	if (bRequiresQuotes)
	{
		AppendQuoted(Buffer, Data.Display);
		return;
	}
	Buffer += Data.Display;
}

bool FTextStringHelper::IsComplexText(const TCHAR* Buffer)
{
	for (const FStringView Macro :
		{TEXTVIEW("NSLOCTEXT("), TEXTVIEW("LOCTEXT("), TEXTVIEW("LOCTABLE("), TEXTVIEW("INVTEXT("), TEXTVIEW("LOCGEN_")})
	{
		if (FCString::Strncmp(Buffer, Macro.GetData(), static_cast<SIZE_T>(Macro.Len())) == 0)
		{
			return true;
		}
	}
	return false;
}
