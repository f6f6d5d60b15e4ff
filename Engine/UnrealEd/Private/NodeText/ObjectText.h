#pragma once

#include "CoreMinimal.h"
#include "NodeTextImportResult.h"

/** A line inside an object's text, without the white space around it. */
struct FObjectTextLine
{
	int32 Line = 0;
	FString Text;
};

/** One `Begin Object ... End Object` of a text. */
struct FObjectText
{
	int32 Line = 0;
	/** As the text spells it; empty for a block that continues an object made before. */
	FString ClassName;
	FString Name;
	TArray<TUniquePtr<FObjectText>> Children;
	/** `Name=Value` lines. */
	TArray<FObjectTextLine> Properties;
	/** What follows `CustomProperties `. */
	TArray<FObjectTextLine> CustomProperties;
	/** False when the text ended before the block did. */
	bool bClosed = false;
};

/** Collects what could not be read, up to the limit. */
class FNodeTextIssues
{
public:
	explicit FNodeTextIssues(TArray<FNodeTextIssue>& InIssues)
		: Issues(InIssues)
	{
	}
	~FNodeTextIssues();

	void Add(int32 Line, const FString& ObjectName, const FString& ClassName, FString Message);

private:
	TArray<FNodeTextIssue>& Issues;
	int32 NumOmitted = 0;
};

/** Splits a text into its objects. Lines outside of objects and blocks too deep are reported and left out. */
TArray<TUniquePtr<FObjectText>> ParseObjectTexts(const FString& Text, FNodeTextIssues& Issues);

/** The name of a property line's property, with its index: "Pins(0)". Empty when the line is none. */
FString GetPropertyLineKey(const FString& Line);
