#pragma once

#include "CoreMinimal.h"
#include "PinExpression.h"
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

/** Pure nodes that a text is made of. */
struct FShownNodes
{
	TSet<int32> Named;
	/** The text has their values alone: conversions. */
	TSet<int32> Unnamed;

	bool Contains(int32 Node) const { return Named.Contains(Node) || Unnamed.Contains(Node); }
	/** Adds those of an expression, unless it is cut: nobody knows what is left of it then. */
	void Add(const FPinExpression& Expression)
	{
		if (!Expression.bCut)
		{
			Named.Append(Expression.Named);
			Unnamed.Append(Expression.Unnamed);
		}
	}
};

/** "Print String  In String: "Hello"  # why". Adds the pure nodes that it shows to Shown. */
FStyledLine WriteNode(const FGraphSnapshot& Graph, const FNodeSnapshot& Node, const FNodeStyles& Styles, FShownNodes& Shown);

/** What a root gives to the nodes behind it: " → Damage, Damage Type"; empty without outputs. */
FString WriteRootOutputs(const FNodeSnapshot& Root);
