#include "Misc/ConfigCacheIni.h"

#include "Misc/Char.h"
#include "Misc/FileHelper.h"

namespace
{
/** The value of a line: what stands in quotes with its escapes resolved, or the text as it is. */
FString ParseValue(const FString& Text)
{
	if (!Text.StartsWith(TEXT("\"")))
	{
		return Text;
	}
	FString Result;
	for (int32 Index = 1; Index < Text.Len() && Text[Index] != TEXT('"'); ++Index)
	{
		if (Text[Index] != TEXT('\\') || Index + 1 == Text.Len())
		{
			Result += Text[Index];
			continue;
		}
		const TCHAR Escaped = Text[++Index];
		Result += Escaped == TEXT('n') ? TEXT('\n') : (Escaped == TEXT('r') ? TEXT('\r') : (Escaped == TEXT('t') ? TEXT('\t') : Escaped));
	}
	return Result;
}

/** Knows of each character of a line, one after the other, whether it stands in quotes. */
class FQuotes
{
public:
	void Pass(TCHAR Char)
	{
		const bool bIsQuote = Char == TEXT('"') && !bEscaped;
		bEscaped = bOpen && Char == TEXT('\\') && !bEscaped;
		bOpen = bOpen != bIsQuote;
	}
	bool AreOpen() const { return bOpen; }

private:
	bool bOpen = false;
	bool bEscaped = false;
};

bool IsLineEnd(TCHAR Char)
{
	return Char == TEXT('\n') || Char == TEXT('\r');
}

bool IsBrace(TCHAR Char)
{
	return Char == TEXT('{') || Char == TEXT('}');
}

/** Whether the plain text of the value would be read as another one. */
bool NeedsQuotes(const FString& Value)
{
	if (Value.IsEmpty())
	{
		return false;
	}
	const TCHAR Last = Value[Value.Len() - 1];
	if (Value[0] == TEXT('"') || FChar::IsWhitespace(Value[0]) || FChar::IsWhitespace(Last) || Last == TEXT('\\'))
	{
		return true;
	}
	FQuotes Quotes;
	for (int32 Index = 0; Index < Value.Len(); ++Index)
	{
		const bool bBeginsComment = Value[Index] == TEXT('/') && Index + 1 < Value.Len() && Value[Index + 1] == TEXT('/');
		if (IsLineEnd(Value[Index]) || (!Quotes.AreOpen() && (bBeginsComment || IsBrace(Value[Index]))))
		{
			return true;
		}
		Quotes.Pass(Value[Index]);
	}
	return false;
}

/** The inverse of ParseValue. */
FString FormatValue(const FString& Value)
{
	return NeedsQuotes(Value) ? TEXT("\"") + Value.ReplaceCharWithEscapedChar() + TEXT("\"") : Value;
}

/**
 * Takes the next line without its comment. A backslash at its end, or a brace that is open, continues it on the next line of the text;
 * neither belongs to it.
 */
FString TakeLine(FStringView& Text)
{
	FString Line;
	FQuotes Quotes;
	int32 NumOpenBraces = 0;
	bool bInComment = false;
	while (!Text.IsEmpty())
	{
		const TCHAR Char = Text[0];
		const TCHAR Next = Text.Len() > 1 ? Text[1] : TCHAR(0);
		Text.RemovePrefix(1);
		if (IsLineEnd(Char))
		{
			if (NumOpenBraces <= 0)
			{
				break;
			}
			bInComment = false;
			continue;
		}
		const bool bIsPlain = !bInComment && !Quotes.AreOpen();
		bInComment = bInComment || (bIsPlain && Char == TEXT('/') && Next == TEXT('/')) || (Line.IsEmpty() && Char == TEXT(';'));
		if (bInComment)
		{
			continue;
		}
		if (Char == TEXT('\\') && IsLineEnd(Next))
		{
			Text.RemovePrefix(Next == TEXT('\r') && Text.Len() > 1 && Text[1] == TEXT('\n') ? 2 : 1);
			continue;
		}
		if (bIsPlain && IsBrace(Char))
		{
			NumOpenBraces += Char == TEXT('{') ? 1 : -1;
			continue;
		}
		Quotes.Pass(Char);
		if (!Line.IsEmpty() || !FChar::IsWhitespace(Char))
		{
			Line += Char;
		}
	}
	Line.TrimEndInline();
	return Line;
}

void ApplyLine(FConfigSection& Section, const FString& Line)
{
	const TCHAR Operator = Line[0];
	const bool bHasOperator = Operator == TEXT('+') || Operator == TEXT('-') || Operator == TEXT('.') || Operator == TEXT('!');
	int32 Equals = INDEX_NONE;
	Line.FindChar(TEXT('='), Equals);
	if (Equals == INDEX_NONE && Operator != TEXT('!'))
	{
		return;
	}
	const int32 Start = bHasOperator ? 1 : 0;
	const FString Key = (Equals == INDEX_NONE ? Line.Mid(Start) : Line.Mid(Start, Equals - Start)).TrimStartAndEnd();
	const FString Value = Equals == INDEX_NONE ? FString() : ParseValue(Line.Mid(Equals + 1).TrimStartAndEnd());
	if (Key.IsEmpty())
	{
		return;
	}
	switch (bHasOperator ? Operator : TEXT('='))
	{
		case TEXT('+'):
			Section.AddUnique(Key, Value);
			break;
		case TEXT('-'):
			Section.RemoveSingle(Key, Value);
			break;
		case TEXT('.'):
			Section.Add(Key, Value);
			break;
		case TEXT('!'):
			Section.Remove(Key);
			break;
		default:
			Section.Set(Key, Value);
			break;
	}
}

TArray<FString> GetValues(const FConfigSection* Section, const FString& Key)
{
	TArray<FString> Values;
	if (Section != nullptr)
	{
		Section->MultiFind(Key, Values);
	}
	return Values;
}

/** Keys compare without regard to case and values with it, since they may be paths of a file system that sees it. */
bool IsEntry(const FConfigSection::FEntry& Entry, const FString& Key, const FString& Value)
{
	return Entry.Key == Key && Entry.Value.Equals(Value, ESearchCase::CaseSensitive);
}

/** Values whose case alone differs are different values to save, though strings compare equal without regard to case. */
bool AreSameValues(const TArray<FString>& Left, const TArray<FString>& Right)
{
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Left.Num(); ++Index)
	{
		if (!Left[Index].Equals(Right[Index], ESearchCase::CaseSensitive))
		{
			return false;
		}
	}
	return true;
}

/** The lines that make a key's values of the base into these. */
FString GetKeyLines(const FString& Key, const TArray<FString>& BaseValues, const TArray<FString>& Values)
{
	if (AreSameValues(BaseValues, Values))
	{
		return FString();
	}
	if (Values.Num() == 1)
	{
		return Key + TEXT("=") + FormatValue(Values[0]) + TEXT("\n");
	}
	FString Lines = BaseValues.IsEmpty() ? FString() : TEXT("!") + Key + TEXT("=ClearArray\n");
	for (const FString& Value : Values)
	{
		Lines += TEXT(".") + Key + TEXT("=") + FormatValue(Value) + TEXT("\n");
	}
	return Lines;
}

FString GetSectionLines(const FConfigSection* Base, const FConfigSection* Section)
{
	FString Lines;
	const TArray<FString> Keys = Section != nullptr ? Section->GetKeys() : TArray<FString>();
	for (const FString& Key : Keys)
	{
		Lines += GetKeyLines(Key, GetValues(Base, Key), GetValues(Section, Key));
	}
	const TArray<FString> BaseKeys = Base != nullptr ? Base->GetKeys() : TArray<FString>();
	for (const FString& Key : BaseKeys)
	{
		if (!Keys.Contains(Key))
		{
			Lines += TEXT("!") + Key + TEXT("=ClearArray\n");
		}
	}
	return Lines;
}
}

const FString* FConfigSection::Find(const FString& Key) const
{
	for (int32 Index = Entries.Num() - 1; Index >= 0; --Index)
	{
		if (Entries[Index].Key == Key)
		{
			return &Entries[Index].Value;
		}
	}
	return nullptr;
}

void FConfigSection::MultiFind(const FString& Key, TArray<FString>& OutValues) const
{
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Key == Key)
		{
			OutValues.Add(Entry.Value);
		}
	}
}

void FConfigSection::Set(const FString& Key, const FString& Value)
{
	const int32 First = Entries.IndexOfByPredicate([&Key](const FEntry& Entry)
		{ return Entry.Key == Key; });
	if (First == INDEX_NONE)
	{
		Add(Key, Value);
		return;
	}
	Entries[First].Value = Value;
	for (int32 Index = Entries.Num() - 1; Index > First; --Index)
	{
		if (Entries[Index].Key == Key)
		{
			Entries.RemoveAt(Index);
		}
	}
}

void FConfigSection::AddUnique(const FString& Key, const FString& Value)
{
	const bool bIsThere = Entries.ContainsByPredicate([&](const FEntry& Entry)
		{ return IsEntry(Entry, Key, Value); });
	if (!bIsThere)
	{
		Add(Key, Value);
	}
}

int32 FConfigSection::Remove(const FString& Key)
{
	return Entries.RemoveAll([&Key](const FEntry& Entry)
		{ return Entry.Key == Key; });
}

int32 FConfigSection::RemoveSingle(const FString& Key, const FString& Value)
{
	return Entries.RemoveAll([&](const FEntry& Entry)
		{ return IsEntry(Entry, Key, Value); });
}

TArray<FString> FConfigSection::GetKeys() const
{
	TArray<FString> Keys;
	for (const FEntry& Entry : Entries)
	{
		Keys.AddUnique(Entry.Key);
	}
	return Keys;
}

void FConfigFile::CombineFromBuffer(const FString& Buffer)
{
	FStringView Text(Buffer);
	FString SectionName;
	while (!Text.IsEmpty())
	{
		const FString Line = TakeLine(Text);
		if (Line.IsEmpty())
		{
			continue;
		}
		if (Line.StartsWith(TEXT("[")) && Line.EndsWith(TEXT("]")))
		{
			SectionName = Line.Mid(1, Line.Len() - 2);
			FindOrAddSection(SectionName);
		}
		else if (!SectionName.IsEmpty())
		{
			ApplyLine(FindOrAddSection(SectionName), Line);
		}
	}
}

bool FConfigFile::Combine(const FString& Filename)
{
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *Filename))
	{
		return false;
	}
	CombineFromBuffer(Text);
	return true;
}

FString FConfigFile::ToText(const FConfigFile& Base) const
{
	TArray<FString> Names;
	for (const TPair<FString, FConfigSection>& Pair : Sections)
	{
		Names.Add(Pair.Key);
	}
	for (const TPair<FString, FConfigSection>& Pair : Base.Sections)
	{
		Names.AddUnique(Pair.Key);
	}
	FString Text;
	for (const FString& Name : Names)
	{
		const FString Lines = GetSectionLines(Base.FindSection(Name), FindSection(Name));
		if (!Lines.IsEmpty())
		{
			Text += TEXT("[") + Name + TEXT("]\n") + Lines + TEXT("\n");
		}
	}
	return Text;
}
