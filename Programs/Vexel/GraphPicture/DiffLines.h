#pragma once

#include "BlueprintDiff.h"
#include "CoreMinimal.h"
#include "StyledText.h"

/** The lines of a picture of changes, as many as there is room for; what comes later is counted. */
class FDiffLines
{
public:
	FDiffLines(int32 InWidth, int32 InMaxLines)
		: Width(InWidth)
		, MaxLines(InMaxLines)
	{
	}

	/** Whether another line would only be counted: its text need not be written. */
	bool IsFull() const { return Lines.Num() >= MaxLines; }
	/** A change, behind its sign and what stands before its text. */
	void AddChange(EDifference Difference, const FStyledLine& Text, const FString& Rail = FString(), const FString& NextRail = FString());
	/** What stays as it was, for a reader to see where they are. */
	void AddContext(const FStyledLine& Text, const FString& Rail = FString(), const FString& NextRail = FString());
	/** A change whose text is not written because there is no room. */
	void Count() { ++NumLeftOut; }

	int32 GetWidth() const { return Width; }
	TArray<FStyledLine> Finish();

private:
	void Add(const FStyledLine& Text, const FStyledLine& First, const FStyledLine& Next);

	const int32 Width;
	const int32 MaxLines;
	TArray<FStyledLine> Lines;
	int32 NumLeftOut = 0;
};

namespace DiffText
{
FTextStyle GetStyle(EDifference Difference);
/** "+", "-" or "~". */
const TCHAR* GetSign(EDifference Difference);
/** The style of a name: in the colour of what came or went, or has this name only now; always bold. */
FTextStyle GetNameStyle(EDifference Difference, bool bRenamed = false);
/** "  Name: before → after"; the one that there is where there is only one. */
void AddValue(FStyledLine& Text, const FString& Name, FString Before, FString After);
}
