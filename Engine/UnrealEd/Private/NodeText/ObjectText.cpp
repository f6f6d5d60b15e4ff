#include "ObjectText.h"

#include "Misc/Parse.h"

namespace
{
const TCHAR* const BeginObject = TEXT("Begin Object");
const TCHAR* const EndObject = TEXT("End Object");
const TCHAR* const CustomPropertiesWord = TEXT("CustomProperties ");

bool StartsWithWord(const FString& Line, const TCHAR* Word)
{
	const int32 Length = FCString::Strlen(Word);
	return Line.StartsWith(Word, ESearchCase::IgnoreCase) && (Line.Len() == Length || FChar::IsWhitespace(Line[Length]));
}

/** The end of an attribute's value: white space outside of quotes. */
const TCHAR* FindAttributeEnd(const TCHAR* Value)
{
	bool bQuoted = false;
	while (*Value && (bQuoted || !FChar::IsWhitespace(*Value)))
	{
		bQuoted = bQuoted != (*Value == TEXT('"'));
		++Value;
	}
	return Value;
}

void ReadHeader(const FString& Line, FObjectText& Object)
{
	const TCHAR* Cursor = *Line + FCString::Strlen(BeginObject);
	while (*Cursor)
	{
		while (FChar::IsWhitespace(*Cursor))
		{
			++Cursor;
		}
		const TCHAR* const KeyStart = Cursor;
		while (*Cursor && *Cursor != TEXT('=') && !FChar::IsWhitespace(*Cursor))
		{
			++Cursor;
		}
		if (*Cursor != TEXT('='))
		{
			continue;
		}
		const FString Key(static_cast<int32>(Cursor - KeyStart), KeyStart);
		const TCHAR* const ValueStart = ++Cursor;
		Cursor = FindAttributeEnd(ValueStart);
		const FString Value = FString(static_cast<int32>(Cursor - ValueStart), ValueStart).TrimQuotes();
		if (Key == TEXT("Class"))
		{
			Object.ClassName = Value;
		}
		else if (Key == TEXT("Name"))
		{
			Object.Name = Value;
		}
	}
}

/** Reads a text line by line with the blocks that are open. */
class FObjectTextParser
{
public:
	FObjectTextParser(const FString& InText, FNodeTextIssues& InIssues)
		: Cursor(*InText)
		, Issues(InIssues)
	{
	}

	TArray<TUniquePtr<FObjectText>> Parse()
	{
		FString Line;
		while (ReadLine(Line))
		{
			if (!Line.IsEmpty())
			{
				ProcessLine(Line);
			}
		}
		for (const FObjectText* const Object : Open)
		{
			Issues.Add(Object->Line, Object->Name, Object->ClassName, TEXT("The text ends before this object does"));
		}
		return MoveTemp(Objects);
	}

private:
	bool ReadLine(FString& OutLine)
	{
		if (!*Cursor)
		{
			return false;
		}
		++LineNumber;
		const TCHAR* Start = Cursor;
		while (*Cursor && *Cursor != TEXT('\n') && *Cursor != TEXT('\r'))
		{
			++Cursor;
		}
		const TCHAR* End = Cursor;
		if (*Cursor == TEXT('\r') && Cursor[1] == TEXT('\n'))
		{
			++Cursor;
		}
		if (*Cursor)
		{
			++Cursor;
		}
		while (Start < End && (FChar::IsWhitespace(*Start) || *Start == 0xFEFF))
		{
			++Start;
		}
		while (End > Start && FChar::IsWhitespace(End[-1]))
		{
			--End;
		}
		OutLine = FString(static_cast<int32>(End - Start), Start);
		return true;
	}

	void ProcessLine(const FString& Line)
	{
		if (StartsWithWord(Line, BeginObject))
		{
			Begin(Line);
		}
		else if (StartsWithWord(Line, EndObject))
		{
			End();
		}
		else if (NumTooDeep > 0)
		{
			// Inside a block that is left out.
		}
		else if (Open.Num() == 0)
		{
			Issues.Add(LineNumber, FString(), FString(), TEXT("This line is outside of any object"));
		}
		else if (Line.StartsWith(CustomPropertiesWord, ESearchCase::IgnoreCase))
		{
			Open.Last()->CustomProperties.Add({LineNumber, Line.RightChop(FCString::Strlen(CustomPropertiesWord))});
		}
		else if (!GetPropertyLineKey(Line).IsEmpty())
		{
			Open.Last()->Properties.Add({LineNumber, Line});
		}
		else
		{
			Issues.Add(LineNumber, Open.Last()->Name, Open.Last()->ClassName, TEXT("This line is neither an object nor a property"));
		}
	}

	void Begin(const FString& Line)
	{
		if (NumTooDeep > 0 || Open.Num() >= FNodeTextLimits::MaxDepth)
		{
			if (NumTooDeep++ == 0)
			{
				Issues.Add(LineNumber, Open.Last()->Name, Open.Last()->ClassName,
					FString::Printf(TEXT("Objects are nested more than %d deep"), FNodeTextLimits::MaxDepth));
			}
			return;
		}
		TArray<TUniquePtr<FObjectText>>& Siblings = Open.Num() > 0 ? Open.Last()->Children : Objects;
		FObjectText& Object = *Siblings.Add_GetRef(MakeUnique<FObjectText>());
		Object.Line = LineNumber;
		ReadHeader(Line, Object);
		Open.Add(&Object);
	}

	void End()
	{
		if (NumTooDeep > 0)
		{
			--NumTooDeep;
		}
		else if (Open.Num() > 0)
		{
			Open.Pop()->bClosed = true;
		}
		else
		{
			Issues.Add(LineNumber, FString(), FString(), TEXT("This line ends an object, but none is open"));
		}
	}

	const TCHAR* Cursor;
	FNodeTextIssues& Issues;
	int32 LineNumber = 0;
	int32 NumTooDeep = 0;
	TArray<TUniquePtr<FObjectText>> Objects;
	TArray<FObjectText*> Open;
};
}

FString FNodeTextIssue::ToString() const
{
	FString Result = Line > 0 ? FString::Printf(TEXT("line %d: "), Line) : FString();
	if (!ObjectName.IsEmpty())
	{
		Result += ObjectName;
		Result += ClassName.IsEmpty() ? FString(TEXT(": ")) : FString::Printf(TEXT(" (%s): "), *ClassName);
	}
	return Result + Message;
}

FNodeTextIssues::~FNodeTextIssues()
{
	if (NumOmitted > 0)
	{
		FNodeTextIssue& Last = Issues.AddDefaulted_GetRef();
		Last.Message = FString::Printf(TEXT("%d more"), NumOmitted);
	}
}

void FNodeTextIssues::Add(int32 Line, const FString& ObjectName, const FString& ClassName, FString Message)
{
	constexpr int32 MaxNameLength = 256;
	if (Issues.Num() >= FNodeTextLimits::MaxIssues)
	{
		++NumOmitted;
		return;
	}
	FNodeTextIssue& Issue = Issues.AddDefaulted_GetRef();
	Issue.Line = Line;
	Issue.ObjectName = ObjectName.Left(MaxNameLength);
	Issue.ClassName = ClassName.Left(MaxNameLength);
	Issue.Message = MoveTemp(Message);
}

TArray<TUniquePtr<FObjectText>> ParseObjectTexts(const FString& Text, FNodeTextIssues& Issues)
{
	return FObjectTextParser(Text, Issues).Parse();
}

FString GetPropertyLineKey(const FString& Line)
{
	// Later engines put the name in quotes: "Seed"=1, "Pins"(0)=...
	const bool bQuoted = Line.StartsWith(TEXT("\""), ESearchCase::CaseSensitive);
	int32 End = bQuoted ? 1 : 0;
	while (End < Line.Len() && Line[End] != TEXT('=') && Line[End] != TEXT('"') && !FChar::IsWhitespace(Line[End]))
	{
		++End;
	}
	FString Key = Line.Mid(bQuoted ? 1 : 0, End - (bQuoted ? 1 : 0));
	if (bQuoted && End < Line.Len() && Line[End] == TEXT('"'))
	{
		const int32 IndexStart = ++End;
		while (End < Line.Len() && Line[End] != TEXT('='))
		{
			++End;
		}
		Key += Line.Mid(IndexStart, End - IndexStart);
	}
	return End < Line.Len() && Line[End] == TEXT('=') ? Key : FString();
}
