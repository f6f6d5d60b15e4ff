#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

struct FGraphSnapshot;
struct FNodeSnapshot;

/** The styles of the parts of a node's text. */
struct FNodeStyles
{
	FTextStyle Number = TextStyle::Accent;
	FTextStyle Title = TextStyle::Strong;
	FTextStyle Label = TextStyle::Faint;
	FTextStyle Value = TextStyle::Code;
	FTextStyle Comment = {.bDim = true, .bItalic = true};

	/** All in one style. */
	static FNodeStyles All(const FTextStyle& Style) { return {Style, Style, Style, Style, Style}; }
};

/** Inputs of a node that a reader may see a value of. */
TArray<int32> FindShownInputs(const FNodeSnapshot& Node);

/** "Print String  In String: "Hello"  # why". Adds the pure nodes whose values are in it to Used. */
FStyledLine WriteNode(const FGraphSnapshot& Graph, const FNodeSnapshot& Node, const FNodeStyles& Styles, TSet<int32>& Used);

/** What a root gives to the nodes behind it: " → Damage, Damage Type"; empty without outputs. */
FString WriteRootOutputs(const FNodeSnapshot& Root);
