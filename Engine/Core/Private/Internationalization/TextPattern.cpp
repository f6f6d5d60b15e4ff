#include "Internationalization/TextData.h"

#include "Misc/StringBuilder.h"

#include <algorithm>
#include <cmath>

namespace
{
/** In characters. Formats that repeat formats multiply their lengths, so a few lines of a file could ask for more than there is memory. */
constexpr int32 MaxFormattedLen = 1 << 20;
/** In characters. Broken modifiers, which are read to their end in vain, must not make a long text expensive. */
constexpr int32 MaxModifierLen = 1024;
/** Choices inside choices. */
constexpr int32 MaxChoiceDepth = 4;

using FChoice = TPair<FStringView, FStringView>;

/** "plural(one=...,other=...)" taken apart. */
struct FModifier
{
	FStringView Name;
	/** The name before the '=' and what stands behind; without a name, the first part is empty. */
	TArray<FChoice, TInlineAllocator<6>> Choices;
};

/** Takes a choice off the text, which then begins with the ',' or ')' behind it; false when there is none. */
bool TakeChoice(FStringView& Rest, FChoice& OutChoice)
{
	const int32 NameLen = static_cast<int32>(std::find_if(Rest.begin(), Rest.end(), [](TCHAR Char)
												 { return Char == '=' || Char == ',' || Char == ')' || Char == '"'; }) -
		Rest.begin());
	FStringView Name;
	if (NameLen < Rest.Len() && Rest[NameLen] == '=')
	{
		Name = Rest.Left(NameLen).TrimStartAndEnd();
		Rest.RemovePrefix(NameLen + 1);
	}
	Rest = Rest.TrimStart();
	if (!Rest.IsEmpty() && Rest[0] == '"')
	{
		int32 End;
		Rest.RemovePrefix(1);
		if (!Rest.FindChar('"', End))
		{
			return false;
		}
		OutChoice = FChoice(Name, Rest.Left(End));
		Rest = Rest.RightChop(End + 1).TrimStart();
		return !Rest.IsEmpty() && (Rest[0] == ',' || Rest[0] == ')');
	}
	const TCHAR* const End = std::find_if(Rest.begin(), Rest.end(), [](TCHAR Char)
		{ return Char == ',' || Char == ')'; });
	const int32 Len = static_cast<int32>(End - Rest.begin());
	OutChoice = FChoice(Name, Rest.Left(Len));
	Rest.RemovePrefix(Len);
	return !Rest.IsEmpty();
}

/** Takes a modifier with its '|' off the text, or leaves the text alone. */
bool TakeModifier(FStringView& Text, FModifier& OutModifier)
{
	FStringView Rest = Text.Left(MaxModifierLen);
	for (const FStringView Known : {TEXTVIEW("|plural("), TEXTVIEW("|ordinal("), TEXTVIEW("|gender(")})
	{
		if (Rest.StartsWith(Known, ESearchCase::CaseSensitive))
		{
			OutModifier.Name = Known.Mid(1, Known.Len() - 2);
			Rest.RemovePrefix(Known.Len());
		}
	}
	FChoice Choice;
	while (!OutModifier.Name.IsEmpty() && TakeChoice(Rest, Choice))
	{
		OutModifier.Choices.Add(Choice);
		const bool bIsLast = Rest[0] == ')';
		Rest.RemovePrefix(1);
		if (bIsLast)
		{
			Text.RemovePrefix(static_cast<int32>(Rest.GetData() - Text.GetData()));
			return true;
		}
	}
	return false;
}

/** The form that English uses for a number. */
FStringView GetPluralForm(bool bOrdinal, double Number)
{
	const double Magnitude = std::abs(Number);
	if (!bOrdinal)
	{
		return Magnitude == 1.0 ? TEXTVIEW("one") : TEXTVIEW("other");
	}
	const int32 Hundredth = static_cast<int32>(std::fmod(std::floor(Magnitude), 100.0));
	const int32 Tenth = Hundredth / 10 == 1 ? 0 : Hundredth % 10;
	constexpr const TCHAR* Forms[] = {TEXT("other"), TEXT("one"), TEXT("two"), TEXT("few")};
	return Forms[Tenth < 4 ? Tenth : 0];
}

FStringView Choose(const FModifier& Modifier, const FFormatArgumentValue& Value)
{
	if (Modifier.Name.Equals(TEXTVIEW("gender")))
	{
		const int32 Index = Value.GetType() == EFormatArgumentType::Gender ? static_cast<int32>(Value.GetGenderValue()) : INDEX_NONE;
		return Modifier.Choices.IsValidIndex(Index) ? Modifier.Choices[Index].Value : FStringView();
	}
	const FStringView Form = GetPluralForm(Modifier.Name.Equals(TEXTVIEW("ordinal")), Value.GetNumber());
	for (const FStringView Wanted : {Form, TEXTVIEW("other")})
	{
		const FChoice* const Found = Modifier.Choices.FindByPredicate([Wanted](const FChoice& Choice)
			{ return Choice.Key.Equals(Wanted); });
		if (Found != nullptr)
		{
			return Found->Value;
		}
	}
	return FStringView();
}

class FPatternFormatter
{
public:
	FPatternFormatter(const FFormatNamedArguments& InNamed, const FFormatOrderedArguments& InOrdered)
		: Named(InNamed)
		, Ordered(InOrdered)
	{
	}

	FString Format(FStringView Pattern)
	{
		Append(Pattern, 0);
		return FString(Result.ToView());
	}

private:
	void Append(FStringView Rest, int32 Depth)
	{
		// Known beforehand, so that a text of opening braces alone is not searched anew for each of them.
		int32 LastBrace;
		Rest.FindLastChar('}', LastBrace);
		const TCHAR* const LastEnd = Rest.GetData() + LastBrace;
		while (!Rest.IsEmpty())
		{
			const TCHAR Char = Rest[0];
			if (Char == '`' && Rest.Len() > 1 && (Rest[1] == '{' || Rest[1] == '}' || Rest[1] == '`'))
			{
				Result.AppendChar(Rest[1]);
				Rest.RemovePrefix(2);
				continue;
			}
			int32 End;
			if (Char == '{' && Rest.GetData() < LastEnd && Rest.FindChar('}', End))
			{
				const FStringView Whole = Rest.Left(End + 1);
				Rest.RemovePrefix(End + 1);
				AppendArgument(Whole, Rest, Depth);
				continue;
			}
			Result.AppendChar(Char);
			Rest.RemovePrefix(1);
		}
	}

	void AppendArgument(FStringView Whole, FStringView& Rest, int32 Depth)
	{
		const FFormatArgumentValue* const Value = Find(Whole.Mid(1, Whole.Len() - 2).TrimStartAndEnd());
		FModifier Modifier;
		if (Value != nullptr && Depth < MaxChoiceDepth && TakeModifier(Rest, Modifier))
		{
			Append(Choose(Modifier, *Value), Depth + 1);
			return;
		}
		const FString Replacement = Value != nullptr ? Value->ToFormattedString() : FString();
		const bool bFits = Value != nullptr && Replacement.Len() <= MaxFormattedLen - Result.Len();
		Result.Append(bFits ? FStringView(Replacement) : Whole);
	}

	/** By name first, then by number. */
	const FFormatArgumentValue* Find(FStringView Name) const
	{
		const FString NameString(Name);
		if (const FFormatArgumentValue* const Value = Named.Find(NameString))
		{
			return Value;
		}
		const bool bIsIndex = !Name.IsEmpty() && Name.Len() < 6 && std::all_of(Name.begin(), Name.end(), [](TCHAR Char)
																	   { return FChar::IsDigit(Char); });
		const int32 Index = bIsIndex ? FCString::Atoi(*NameString) : INDEX_NONE;
		return Ordered.IsValidIndex(Index) ? &Ordered[Index] : nullptr;
	}

	const FFormatNamedArguments& Named;
	const FFormatOrderedArguments& Ordered;
	TStringBuilder<512> Result;
};
}

FString UE::Core::Private::FormatPattern(const FString& Pattern, const FFormatNamedArguments& Named, const FFormatOrderedArguments& Ordered)
{
	return FPatternFormatter(Named, Ordered).Format(Pattern);
}

void FText::GetFormatPatternParameters(const FText& Fmt, TArray<FString>& ParameterNames)
{
	FStringView Rest(Fmt.ToString());
	while (!Rest.IsEmpty())
	{
		int32 End;
		const bool bIsEscape = Rest[0] == '`' && Rest.Len() > 1;
		if (Rest[0] != '{')
		{
			Rest.RemovePrefix(bIsEscape ? 2 : 1);
			continue;
		}
		if (!Rest.FindChar('}', End))
		{
			return;
		}
		const FString Name(Rest.Mid(1, End - 1).TrimStartAndEnd());
		const bool bIsThere = ParameterNames.ContainsByPredicate([&Name](const FString& Other)
			{ return Other.Equals(Name); });
		if (!bIsThere)
		{
			ParameterNames.Add(Name);
		}
		Rest.RemovePrefix(End + 1);
	}
}
