#include "Misc/Parse.h"

#include "Internationalization/Text.h"
#include "Misc/Guid.h"
#include "Misc/StringBuilder.h"
#include "UObject/NameTypes.h"

#include <limits>

namespace
{
/** Behind `Match` where it stands in the stream, in any case, outside quotes and not inside a longer word; null where it does not. */
const TCHAR* FindValue(const TCHAR* Stream, const TCHAR* Match)
{
	if (Stream == nullptr)
	{
		return nullptr;
	}
	const int32 MatchLen = FCString::Strlen(Match);
	bool bInQuotes = false;
	for (const TCHAR* At = Stream; *At != 0; ++At)
	{
		if (bInQuotes && *At == '\\' && At[1] != 0)
		{
			++At;
			continue;
		}
		const bool bBeginsWord = At == Stream || !FChar::IsAlnum(At[-1]);
		if (!bInQuotes && bBeginsWord && FCString::Strnicmp(At, Match, static_cast<SIZE_T>(MatchLen)) == 0)
		{
			return At + MatchLen;
		}
		bInQuotes ^= *At == '"';
	}
	return nullptr;
}

template <typename IntegerType>
bool ReadInteger(const TCHAR* Stream, const TCHAR* Match, IntegerType& Value)
{
	const TCHAR* const Found = FindValue(Stream, Match);
	if (Found != nullptr)
	{
		Value = static_cast<IntegerType>(
			std::is_signed_v<IntegerType> ? static_cast<uint64>(FCString::Atoi64(Found)) : FCString::Strtoui64(Found, nullptr, 10));
	}
	return Found != nullptr;
}

void SkipBlanks(const TCHAR*& Stream)
{
	while (*Stream == ' ' || *Stream == '\t')
	{
		++Stream;
	}
}

void SkipWhitespace(const TCHAR*& Stream)
{
	while (FChar::IsWhitespace(*Stream))
	{
		++Stream;
	}
}

/** Reads up to `MaxDigits` digits of a base that is a power of two. */
uint32 ReadDigits(const TCHAR*& Text, int32 MaxDigits, int32 Base)
{
	uint32 Value = 0;
	for (; MaxDigits > 0 && FChar::IsHexDigit(*Text) && FParse::HexDigit(*Text) < Base; --MaxDigits, ++Text)
	{
		Value = Value * static_cast<uint32>(Base) + static_cast<uint32>(FParse::HexDigit(*Text));
	}
	return Value;
}

/** Reads the escape behind a backslash. */
void ReadEscape(const TCHAR*& Text, FStringBuilderBase& Out)
{
	const TCHAR Char = *Text;
	if (FChar::IsOctDigit(Char))
	{
		Out.AppendChar(static_cast<TCHAR>(ReadDigits(Text, 3, 8)));
		return;
	}
	++Text;
	const bool bNeedsDigits = Char == 'x' || Char == 'u' || Char == 'U';
	if (bNeedsDigits && !FChar::IsHexDigit(*Text))
	{
		Out.AppendChar(Char);
		return;
	}
	switch (Char)
	{
		case 'n':
			Out.AppendChar('\n');
			return;
		case 'r':
			Out.AppendChar('\r');
			return;
		case 't':
			Out.AppendChar('\t');
			return;
		case 'x':
			Out.AppendChar(static_cast<TCHAR>(ReadDigits(Text, 4, 16)));
			return;
		case 'u':
			Out.AppendChar(static_cast<TCHAR>(ReadDigits(Text, 4, 16)));
			return;
		case 'U':
		{
			const UTF32CHAR Code = ReadDigits(Text, 8, 16);
			Out.Append(FUTF32ToTCHAR(&Code, 1));
			return;
		}
		default:
			// A quote, a backslash, or a letter without a meaning, which stands for itself.
			Out.AppendChar(Char);
			return;
	}
}
}

bool FParse::Param(const TCHAR* Stream, const TCHAR* Param)
{
	if (Stream == nullptr || *Param == 0)
	{
		return false;
	}
	const int32 ParamLen = FCString::Strlen(Param);
	for (const TCHAR* Found = FCString::Stristr(Stream, Param); Found != nullptr; Found = FCString::Stristr(Found + 1, Param))
	{
		const bool bHasDash = Found > Stream && (Found[-1] == '-' || Found[-1] == '/');
		const bool bBeginsWord = bHasDash && (Found - 1 == Stream || FChar::IsWhitespace(Found[-2]));
		const TCHAR After = Found[ParamLen];
		if (bBeginsWord && (After == 0 || FChar::IsWhitespace(After)))
		{
			return true;
		}
	}
	return false;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint32& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int32& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint8& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int8& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint16& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int16& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint64& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int64& Value)
{
	return ReadInteger(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, float& Value)
{
	const TCHAR* const Found = FindValue(Stream, Match);
	Value = Found != nullptr ? FCString::Atof(Found) : Value;
	return Found != nullptr;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, double& Value)
{
	const TCHAR* const Found = FindValue(Stream, Match);
	Value = Found != nullptr ? FCString::Atod(Found) : Value;
	return Found != nullptr;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FName& Name)
{
	FString Text;
	if (!FParse::Value(Stream, Match, Text))
	{
		return false;
	}
	Name = FName(Text);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FGuid& Guid)
{
	FString Text;
	return FParse::Value(Stream, Match, Text) && FGuid::Parse(Text, Guid);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FText& Value, const TCHAR* Namespace)
{
	const TCHAR* const Found = FindValue(Stream, Match);
	return Found != nullptr && FTextStringHelper::ReadFromBuffer(Found, Value, Namespace, nullptr, true) != nullptr;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator)
{
	const TCHAR* const Found = FindValue(Stream, Match);
	if (Found == nullptr)
	{
		return false;
	}
	if (*Found == '"')
	{
		if (QuotedString(Found, Value))
		{
			return true;
		}
		// A quote that nobody closed: all the rest.
		Value = Found + 1;
		return true;
	}
	const TCHAR* End = Found;
	while (*End != 0 && !FChar::IsWhitespace(*End) && !(bShouldStopOnSeparator && (*End == ',' || *End == ')')))
	{
		++End;
	}
	Value = FString(FStringView(Found, static_cast<int32>(End - Found)));
	return true;
}

bool FParse::Bool(const TCHAR* Stream, const TCHAR* Match, bool& OnOff)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	OnOff = Text.ToBool();
	return true;
}

bool FParse::Command(const TCHAR** Stream, const TCHAR* Match, bool bParseMightTriggerExecution)
{
	const TCHAR* At = *Stream;
	SkipBlanks(At);
	const int32 MatchLen = FCString::Strlen(Match);
	if (FCString::Strnicmp(At, Match, static_cast<SIZE_T>(MatchLen)) != 0 || FChar::IsAlnum(At[MatchLen]))
	{
		return false;
	}
	At += MatchLen;
	SkipBlanks(At);
	*Stream = At;
	return true;
}

bool FParse::Token(const TCHAR*& Str, FString& Arg, bool bUseEscape)
{
	Arg.Reset();
	SkipWhitespace(Str);
	if (*Str == '"')
	{
		for (++Str; *Str != 0 && *Str != '"'; ++Str)
		{
			if (bUseEscape && *Str == '\\' && Str[1] != 0)
			{
				++Str;
			}
			Arg += *Str;
		}
		Str += *Str == '"' ? 1 : 0;
		return !Arg.IsEmpty();
	}
	// A quoted part inside a word belongs to it, with its quotes: -Name="two words".
	bool bInQuotes = false;
	for (; *Str != 0 && (bInQuotes || !FChar::IsWhitespace(*Str)); ++Str)
	{
		if (bUseEscape && bInQuotes && *Str == '\\' && Str[1] != 0)
		{
			Arg += *Str++;
		}
		else
		{
			bInQuotes ^= *Str == '"';
		}
		Arg += *Str;
	}
	return !Arg.IsEmpty();
}

bool FParse::Token(const TCHAR*& Str, TCHAR* Result, int32 MaxLen, bool bUseEscape)
{
	FString Arg;
	const bool bFound = Token(Str, Arg, bUseEscape);
	FCString::Strncpy(Result, *Arg, static_cast<SIZE_T>(MaxLen));
	return bFound;
}

FString FParse::Token(const TCHAR*& Str, bool bUseEscape)
{
	FString Arg;
	Token(Str, Arg, bUseEscape);
	return Arg;
}

bool FParse::AlnumToken(const TCHAR*& Str, FString& Arg)
{
	Arg.Reset();
	SkipWhitespace(Str);
	for (; FChar::IsAlnum(*Str) || *Str == '_'; ++Str)
	{
		Arg += *Str;
	}
	return !Arg.IsEmpty();
}

void FParse::Next(const TCHAR** Stream)
{
	while (**Stream == ' ' || **Stream == '\t' || **Stream == '\r' || **Stream == '\n')
	{
		++*Stream;
	}
}

bool FParse::Line(const TCHAR** Stream, FString& Result, bool bExact)
{
	const TCHAR* At = *Stream;
	const TCHAR* const Begin = At;
	const TCHAR* CommentAt = nullptr;
	bool bInQuotes = false;
	for (; *At != 0 && *At != '\n' && *At != '\r'; ++At)
	{
		if (!bInQuotes && !bExact)
		{
			if (*At == '|')
			{
				break;
			}
			if (CommentAt == nullptr && At[0] == '/' && At[1] == '/')
			{
				CommentAt = At;
			}
		}
		bInQuotes ^= *At == '"';
	}
	const bool bFound = *Begin != 0;
	Result = FString(FStringView(Begin, static_cast<int32>((CommentAt != nullptr ? CommentAt : At) - Begin)));
	if (bExact)
	{
		At += *At == '\r' ? 1 : 0;
		At += *At == '\n' ? 1 : 0;
	}
	else
	{
		while (*At == '\n' || *At == '\r' || *At == '|')
		{
			++At;
		}
	}
	*Stream = At;
	return bFound;
}

bool FParse::QuotedString(const TCHAR* Stream, FString& Value, int32* OutNumCharsRead)
{
	TStringBuilder<256> Builder;
	if (!QuotedString(Stream, Builder, OutNumCharsRead))
	{
		return false;
	}
	Value = Builder.ToView();
	return true;
}

bool FParse::QuotedString(const TCHAR* Stream, FStringBuilderBase& Value, int32* OutNumCharsRead)
{
	const int32 OldLen = Value.Len();
	if (OutNumCharsRead != nullptr)
	{
		*OutNumCharsRead = 0;
	}
	if (Stream == nullptr || *Stream != '"')
	{
		return false;
	}
	const TCHAR* At = Stream + 1;
	while (*At != 0 && *At != '"' && *At != '\n' && *At != '\r')
	{
		if (*At == '\\' && At[1] != 0)
		{
			++At;
			ReadEscape(At, Value);
			continue;
		}
		Value.AppendChar(*At++);
	}
	if (*At != '"')
	{
		Value.RemoveSuffix(Value.Len() - OldLen);
		return false;
	}
	if (OutNumCharsRead != nullptr)
	{
		*OutNumCharsRead = static_cast<int32>(At + 1 - Stream);
	}
	return true;
}

uint64 FParse::HexNumber64(const TCHAR* HexString)
{
	return FCString::Strtoui64(HexString, nullptr, 16);
}

uint32 FParse::HexNumber(const TCHAR* HexString)
{
	return static_cast<uint32>(HexNumber64(HexString));
}

int32 FParse::HexDigit(TCHAR Char)
{
	return TCharToNibble(Char);
}
