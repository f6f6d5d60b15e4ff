#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** An option of a command: "--project DIR", or "--save" alone. */
struct FOptionRow
{
	const TCHAR* Name;
	/** What stands behind the option in the help; null for an option without a value. */
	const TCHAR* ValueName;
	const TCHAR* Help;
};

/** A command line taken apart by a command's options. */
class FArguments
{
public:
	/** Answers why the words do not fit, or nothing when they do. Takes "--name value" and "--name=value". */
	TOptional<FString> Parse(TConstArrayView<FString> Words, TConstArrayView<FOptionRow> Options, int32 MaxPositional);

	bool Has(const TCHAR* Option) const { return Values.Contains(FString(Option)); }
	/** The option's value; empty without it. */
	FString Get(const TCHAR* Option) const { return Values.FindRef(FString(Option)); }
	const TArray<FString>& GetPositional() const { return Positional; }

private:
	TMap<FString, FString> Values;
	TArray<FString> Positional;
};
