#include "Serialization/JsonWriter.h"

#include "Containers/StringConv.h"
#include "Serialization/Archive.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace UE::Json::Private
{
namespace
{
/** "-1.7976931348623157e+308" has 24 characters. */
constexpr size_t MaxNumberChars = 32;
constexpr int32 DigitsOfDouble = 17;
/** Whole numbers below have so few digits that their form with 17 digits is the plain one. */
constexpr double MaxPlainInteger = 1e15;

/** Those that share a line with each other in an array. */
bool IsShort(EJsonToken Token)
{
	return Token == EJsonToken::Number || Token == EJsonToken::True || Token == EJsonToken::False || Token == EJsonToken::Null;
}

bool EndsValue(EJsonToken Token)
{
	return IsShort(Token) || Token == EJsonToken::String || Token == EJsonToken::CurlyClose || Token == EJsonToken::SquareClose;
}

bool NeedsEscape(TCHAR Character)
{
	return Character < 0x20 || Character == '"' || Character == '\\';
}

/** The letter behind the backslash; 0 for a character that is written as its code. */
TCHAR GetEscapeLetter(TCHAR Character)
{
	switch (Character)
	{
		case '"':
		case '\\':
			return Character;
		case '\b':
			return 'b';
		case '\f':
			return 'f';
		case '\n':
			return 'n';
		case '\r':
			return 'r';
		case '\t':
			return 't';
		default:
			return 0;
	}
}

template <typename NumberType, typename... FormatTypes>
FAnsiStringView PrintNumber(ANSICHAR (&Buffer)[MaxNumberChars], NumberType Value, FormatTypes... Format)
{
	const ANSICHAR* const End = std::to_chars(Buffer, Buffer + MaxNumberChars, Value, Format...).ptr;
	return FAnsiStringView(Buffer, int32(End - Buffer));
}
}

void FDocumentWriter::StartObject()
{
	const bool bIsField = Previous == EJsonToken::Identifier;
	if (bIsField)
	{
		BreakLine(Open.Num());
		Previous = EJsonToken::CurlyOpen;
	}
	else
	{
		BeginValue(EJsonToken::CurlyOpen);
	}
	Characters.Add('{');
	Open.Add(EJson::Object);
}

void FDocumentWriter::EndObject()
{
	checkf(!Open.IsEmpty() && Open.Last() == EJson::Object, TEXT("No JSON object is open"));
	Open.Pop(EAllowShrinking::No);
	BreakLine(Open.Num());
	Characters.Add('}');
	Previous = EJsonToken::CurlyClose;
}

void FDocumentWriter::StartArray()
{
	BeginValue(EJsonToken::SquareOpen);
	Characters.Add('[');
	Open.Add(EJson::Array);
}

void FDocumentWriter::EndArray()
{
	checkf(!Open.IsEmpty() && Open.Last() == EJson::Array, TEXT("No JSON array is open"));
	Open.Pop(EAllowShrinking::No);
	if (IsShort(Previous))
	{
		PlaceSpace();
	}
	else if (Previous != EJsonToken::SquareOpen)
	{
		BreakLine(Open.Num());
	}
	Characters.Add(']');
	Previous = EJsonToken::SquareClose;
}

void FDocumentWriter::Key(FStringView Name)
{
	checkf(!Open.IsEmpty() && Open.Last() == EJson::Object, TEXT("A JSON field stands in an object"));
	if (EndsValue(Previous))
	{
		Characters.Add(',');
	}
	BreakLine(Open.Num());
	AppendQuoted(Name);
	Characters.Add(':');
	Previous = EJsonToken::Identifier;
}

void FDocumentWriter::String(FStringView Value)
{
	BeginValue(EJsonToken::String);
	AppendQuoted(Value);
}

void FDocumentWriter::RawNumber(FStringView Text)
{
	BeginValue(EJsonToken::Number);
	Characters.Append(Text.GetData(), Text.Len());
}

void FDocumentWriter::Number(double Value)
{
	const bool bIsPlain = std::abs(Value) < MaxPlainInteger && Value == std::trunc(Value) && !(Value == 0.0 && std::signbit(Value));
	if (bIsPlain || !std::isfinite(Value))
	{
		Integer(bIsPlain ? int64(Value) : 0);
		return;
	}
	ANSICHAR Buffer[MaxNumberChars];
	BeginValue(EJsonToken::Number);
	Append(PrintNumber(Buffer, Value, std::chars_format::general, DigitsOfDouble));
}

void FDocumentWriter::Integer(int64 Value)
{
	ANSICHAR Buffer[MaxNumberChars];
	BeginValue(EJsonToken::Number);
	Append(PrintNumber(Buffer, Value));
}

void FDocumentWriter::Unsigned(uint64 Value)
{
	ANSICHAR Buffer[MaxNumberChars];
	BeginValue(EJsonToken::Number);
	Append(PrintNumber(Buffer, Value));
}

void FDocumentWriter::Bool(bool bValue)
{
	BeginValue(bValue ? EJsonToken::True : EJsonToken::False);
	Append(bValue ? "true" : "false");
}

void FDocumentWriter::Null()
{
	BeginValue(EJsonToken::Null);
	Append("null");
}

void FDocumentWriter::TakeText(FString& Output)
{
	if (!Output.IsEmpty() || Characters.IsEmpty())
	{
		Output.Append(GetText());
		ClearText();
		return;
	}
	*Add(1) = 0;
	Output.GetCharArray() = MoveTemp(Characters);
}

void FDocumentWriter::Append(FAnsiStringView Text)
{
	std::copy_n(Text.GetData(), Text.Len(), Add(Text.Len()));
}

void FDocumentWriter::AppendQuoted(FStringView Text)
{
	const int32 Start = Characters.Num();
	TCHAR* const Out = Add(Text.Len() + 2);
	bool bNeedsEscape = false;
	Out[0] = '"';
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		bNeedsEscape |= NeedsEscape(Text[Index]);
		Out[Index + 1] = Text[Index];
	}
	Out[Text.Len() + 1] = '"';
	if (bNeedsEscape)
	{
		Characters.SetNumUninitialized(Start, EAllowShrinking::No);
		AppendEscaped(Text);
	}
}

void FDocumentWriter::AppendEscaped(FStringView Text)
{
	constexpr const ANSICHAR* HexDigits = "0123456789abcdef";
	Characters.Add('"');
	for (const TCHAR Character : Text)
	{
		if (!NeedsEscape(Character))
		{
			Characters.Add(Character);
			continue;
		}
		Characters.Add('\\');
		const TCHAR Letter = GetEscapeLetter(Character);
		if (Letter != 0)
		{
			Characters.Add(Letter);
			continue;
		}
		Append("u00");
		Characters.Add(HexDigits[Character >> 4]);
		Characters.Add(HexDigits[Character & 0xF]);
	}
	Characters.Add('"');
}

void FDocumentWriter::BreakLine(int32 NumTabs)
{
	if (bPretty)
	{
		Characters.Add('\n');
		std::fill_n(Add(NumTabs), NumTabs, TCHAR('\t'));
	}
}

void FDocumentWriter::PlaceSpace()
{
	if (bPretty)
	{
		Characters.Add(' ');
	}
}

void FDocumentWriter::BeginValue(EJsonToken Token)
{
	const bool bIsField = Previous == EJsonToken::Identifier;
	checkf(bIsField || (Open.IsEmpty() ? Previous == EJsonToken::None : Open.Last() == EJson::Array),
		TEXT("A JSON value is a field, an element or the document"));
	if (EndsValue(Previous))
	{
		Characters.Add(',');
	}
	const bool bStaysOnLine = IsShort(Token) && (Previous == EJsonToken::SquareOpen || IsShort(Previous));
	if (bIsField || bStaysOnLine)
	{
		PlaceSpace();
	}
	else if (!Open.IsEmpty())
	{
		BreakLine(Open.Num());
	}
	Previous = Token;
}

void WriteText(FArchive& Archive, FStringView Text, bool bUtf8)
{
	if (!bUtf8)
	{
		Archive.Serialize(const_cast<TCHAR*>(Text.GetData()), int64(Text.Len()) * int64(sizeof(TCHAR)));
		return;
	}
	const FTCHARToUTF8 Utf8(Text.GetData(), Text.Len());
	Archive.Serialize(const_cast<void*>(static_cast<const void*>(Utf8.Get())), Utf8.Length());
}
}
