#include "BlueprintDiff.h"
#include "ItemMatch.h"

namespace
{
FString GetPinKey(const FPinSnapshot& Pin)
{
	return (Pin.bInput ? TEXT("<") : TEXT(">")) + Pin.Name.ToString();
}

bool HaveSameIds(const TArray<FPinSnapshot>& Before, const TArray<FPinSnapshot>& After)
{
	if (Before.Num() != After.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Before.Num(); ++Index)
	{
		if (Before[Index].Id != After[Index].Id)
		{
			return false;
		}
	}
	return true;
}
}

FItemMatch MatchNodes(const FGraphSnapshot& Before, const FGraphSnapshot& After)
{
	return ItemMatch::Match(
		Before.Nodes, After.Nodes, [](const FNodeSnapshot& Node)
		{ return Node.Name; },
		false);
}

FItemMatch MatchPins(const FNodeSnapshot& Before, const FNodeSnapshot& After)
{
	if (!HaveSameIds(Before.Pins, After.Pins))
	{
		return ItemMatch::Match(Before.Pins, After.Pins, GetPinKey, true);
	}
	FItemMatch Same;
	for (int32 Index = 0; Index < Before.Pins.Num(); ++Index)
	{
		Same.BeforeOf.Add(Index);
		Same.AfterOf.Add(Index);
	}
	return Same;
}
