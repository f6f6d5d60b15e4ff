#include "Arguments.h"

TOptional<FString> FArguments::Parse(TConstArrayView<FString> Words, TConstArrayView<FOptionRow> Options, int32 MaxPositional)
{
	for (int32 Index = 0; Index < Words.Num(); ++Index)
	{
		const FString& Word = Words[Index];
		if (!Word.StartsWith(TEXT("--")))
		{
			Positional.Add(Word);
			continue;
		}
		FString Name = Word;
		FString Value;
		const bool bInlineValue = Word.Split(TEXT("="), &Name, &Value);
		const FOptionRow* const Option = Options.FindByPredicate([&](const FOptionRow& Row)
			{ return Name.Equals(Row.Name); });
		if (!Option)
		{
			return FString::Printf(TEXT("unknown option '%s'"), *Name);
		}
		if (!Option->ValueName && bInlineValue)
		{
			return FString::Printf(TEXT("option '%s' takes no value"), *Name);
		}
		if (Option->ValueName && !bInlineValue)
		{
			if (++Index == Words.Num())
			{
				return FString::Printf(TEXT("option '%s' needs a value: %s %s"), *Name, *Name, Option->ValueName);
			}
			Value = Words[Index];
		}
		Values.Add(Name, Value);
	}
	if (Positional.Num() > MaxPositional)
	{
		return FString::Printf(TEXT("unexpected argument '%s'"), *Positional[MaxPositional]);
	}
	return NullOpt;
}
