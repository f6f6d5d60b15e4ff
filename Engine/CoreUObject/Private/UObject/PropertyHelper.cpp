#include "UObject/PropertyHelper.h"

#include "Misc/OutputDevice.h"
#include "Misc/Parse.h"
#include "Serialization/Archive.h"

namespace
{
bool IsTokenChar(TCHAR Char, bool bDottedNames)
{
	return FChar::IsAlnum(Char) || Char == TEXT('_') || Char == TEXT('-') || Char == TEXT('+') ||
		(bDottedNames && (Char == TEXT('.') || Char == TEXT(':') || Char == TEXT('/')));
}

constexpr int32 MaxValueDepth = 100;
thread_local int32 ValueDepth = 0;
}

const TCHAR* FPropertyHelpers::ReadToken(const TCHAR* Buffer, FString& OutString, bool bDottedNames)
{
	OutString.Reset();
	if (*Buffer == TEXT('"'))
	{
		int32 NumCharsRead = 0;
		return FParse::QuotedString(Buffer, OutString, &NumCharsRead) ? Buffer + NumCharsRead : nullptr;
	}
	const TCHAR* End = Buffer;
	while (IsTokenChar(*End, bDottedNames))
	{
		++End;
	}
	OutString = FString(static_cast<int32>(End - Buffer), Buffer);
	return End == Buffer ? nullptr : End;
}

FString FPropertyHelpers::QuoteAndEscape(const FString& Text)
{
	return TEXT("\"") + Text.ReplaceCharWithEscapedChar() + TEXT("\"");
}

const TCHAR* FPropertyHelpers::SkipWhitespace(const TCHAR* Buffer)
{
	while (FChar::IsWhitespace(*Buffer))
	{
		++Buffer;
	}
	return Buffer;
}

const TCHAR* FPropertyHelpers::RefuseText(FOutputDevice* ErrorText, const FField* Property, const TCHAR* Reason, const TCHAR* Buffer)
{
	if (ErrorText)
	{
		constexpr int32 MaxQuotedChars = 60;
		ErrorText->Logf(
			ELogVerbosity::Warning, TEXT("%s: %s: '%s'"), *Property->GetPathName(), Reason, *FString(Buffer).Left(MaxQuotedChars));
	}
	return nullptr;
}

int32 FPropertyHelpers::SerializeCount(FArchive& Ar, int32 Count)
{
	Ar << Count;
	if (Ar.IsLoading() && (Count < 0 || !Ar.CanHold(Count)))
	{
		Ar.SetError();
		return 0;
	}
	return Ar.IsError() ? 0 : Count;
}

FValueNesting::FValueNesting()
{
	++ValueDepth;
}

FValueNesting::~FValueNesting()
{
	--ValueDepth;
}

bool FValueNesting::IsTooDeep() const
{
	return ValueDepth > MaxValueDepth;
}
