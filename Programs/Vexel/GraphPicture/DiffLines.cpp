#include "DiffLines.h"

#include "GraphPicture.h"

namespace
{
constexpr int32 MaxValueLength = 120;

FString Shorten(const FString& Value)
{
	return Value.Len() > MaxValueLength ? Value.Left(MaxValueLength - 1) + TEXT("…") : Value;
}

/** Two long values without what they begin with alike, which would leave no room for where they differ. */
void CutCommonBeginning(FString& Before, FString& After)
{
	constexpr int32 MaxKept = 20;
	int32 NumAlike = 0;
	while (NumAlike < FMath::Min(Before.Len(), After.Len()) && Before[NumAlike] == After[NumAlike])
	{
		++NumAlike;
	}
	if (FMath::Max(Before.Len(), After.Len()) > MaxValueLength && NumAlike > MaxKept)
	{
		Before = TEXT("…") + Before.RightChop(NumAlike - MaxKept);
		After = TEXT("…") + After.RightChop(NumAlike - MaxKept);
	}
}

/** A value beside the one that it was or became: a mark is "yes" or nothing. */
FString ShowBeside(const FString& Value, const FString& Other)
{
	const FString Nothing = Other == TEXT("yes") ? TEXT("no") : TEXT("none");
	return Value.IsEmpty() ? Nothing : Shorten(Value);
}
}

void FDiffLines::AddChange(EDifference Difference, const FStyledLine& Text, const FString& Rail, const FString& NextRail)
{
	if (IsFull())
	{
		Count();
		return;
	}
	const FTextStyle RailStyle = Difference == EDifference::Changed ? TextStyle::Faint : DiffText::GetStyle(Difference);
	FStyledLine First(DiffText::GetSign(Difference) + FString(TEXT(" ")), DiffText::GetStyle(Difference));
	FStyledLine Next = First;
	Add(Text, First.Add(Rail, RailStyle), Next.Add(NextRail, RailStyle));
}

void FDiffLines::AddContext(const FStyledLine& Text, const FString& Rail, const FString& NextRail)
{
	if (!IsFull())
	{
		Add(Text, FStyledLine(TEXT("  ") + Rail, TextStyle::Faint), FStyledLine(TEXT("  ") + NextRail, TextStyle::Faint));
	}
}

void FDiffLines::Add(const FStyledLine& Text, const FStyledLine& First, const FStyledLine& Next)
{
	AddFlowText(Lines, Text, Width, First, Next);
}

TArray<FStyledLine> FDiffLines::Finish()
{
	if (NumLeftOut > 0)
	{
		Lines.Add(FStyledLine(FString::Printf(TEXT("  … and %d more"), NumLeftOut), TextStyle::Faint));
	}
	return MoveTemp(Lines);
}

FTextStyle DiffText::GetStyle(EDifference Difference)
{
	constexpr FTextStyle Styles[] = {TextStyle::Good, TextStyle::Bad, TextStyle::Accent};
	return Styles[int32(Difference)];
}

const TCHAR* DiffText::GetSign(EDifference Difference)
{
	constexpr const TCHAR* Signs[] = {TEXT("+"), TEXT("-"), TEXT("~")};
	return Signs[int32(Difference)];
}

FTextStyle DiffText::GetNameStyle(EDifference Difference, bool bRenamed)
{
	FTextStyle Style = Difference == EDifference::Changed ? TextStyle::Plain : GetStyle(Difference);
	Style = bRenamed ? TextStyle::Good : Style;
	Style.bBold = true;
	return Style;
}

void DiffText::AddValue(FStyledLine& Text, const FString& Name, FString Before, FString After)
{
	CutCommonBeginning(Before, After);
	Text.Add(TEXT("  ") + Name + TEXT(": "), TextStyle::Faint);
	Text.Add(ShowBeside(Before, After), TextStyle::Bad);
	Text.Add(TEXT(" → "), TextStyle::Faint);
	Text.Add(ShowBeside(After, Before), TextStyle::Good);
}
