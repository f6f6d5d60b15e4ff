#include "NodeText.h"

#include "BlueprintSnapshot.h"
#include "EdGraphSchema_K2.h"

TArray<int32> FindShownInputs(const FNodeSnapshot& Node)
{
	TArray<int32> Inputs;
	for (int32 Index = 0; Index < Node.Pins.Num(); ++Index)
	{
		const FPinSnapshot& Pin = Node.Pins[Index];
		const bool bOfShownParent = Pin.Parent != INDEX_NONE && !Node.Pins[Pin.Parent].bHidden;
		if (Pin.bInput && !Pin.bHidden && !Pin.bExec && !bOfShownParent)
		{
			Inputs.Add(Index);
		}
	}
	return Inputs;
}

FStyledLine WriteNode(const FGraphSnapshot& Graph, const FNodeSnapshot& Node, const FNodeStyles& Styles, FShownNodes& Shown)
{
	FStyledLine Text(Node.Title, Styles.Title);
	for (const int32 Index : FindShownInputs(Node))
	{
		const FPinSnapshot& Pin = Node.Pins[Index];
		if (Pin.Links.IsEmpty() && Pin.bUsualValue)
		{
			continue;
		}
		const FPinExpression Value = WritePinExpression(Graph, Pin);
		Shown.Add(Value);
		if (!Value.Text.IsEmpty())
		{
			Text.Add(TEXT("  ") + Pin.Label + TEXT(": "), Styles.Label).Add(Value.Text, Styles.Value);
		}
	}
	if (!Node.Comment.IsEmpty())
	{
		Text.Add(TEXT("  # ") + Node.Comment, Styles.Comment);
	}
	return Text;
}

FString WriteRootOutputs(const FNodeSnapshot& Root)
{
	TArray<FString> Outputs;
	for (const FPinSnapshot& Pin : Root.Pins)
	{
		if (!Pin.bInput && !Pin.bHidden && !Pin.bExec && Pin.Parent == INDEX_NONE && Pin.Category != UEdGraphSchema_K2::PC_Delegate)
		{
			Outputs.Add(Pin.Label);
		}
	}
	return Outputs.IsEmpty() ? FString() : TEXT(" → ") + FString::Join(Outputs, TEXT(", "));
}
