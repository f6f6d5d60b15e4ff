#include "PinExpression.h"

#include "BlueprintSnapshot.h"
#include "EdGraphSchema_K2.h"
#include "Misc/PackageName.h"

namespace
{
constexpr int32 MaxDepth = 6;
constexpr int32 MaxTextLength = 160;
/** Nodes that a text is made of, each time that it is in it: a node that many paths lead to is met on each of them. */
constexpr int32 MaxVisits = 200;
const TCHAR* const Ellipsis = TEXT("…");

class FExpressionWriter
{
public:
	explicit FExpressionWriter(const FGraphSnapshot& InGraph)
		: Graph(InGraph)
	{
	}

	/** @param bOperand Whether the text stands inside another expression, so that an operator needs parentheses. */
	FString WriteInput(const FPinSnapshot& Pin, int32 Depth, bool bOperand)
	{
		if (Pin.Links.IsEmpty())
		{
			return WriteDefault(Pin);
		}
		const FPinLink Source = Graph.FollowReroutes(Pin.Links[0]);
		return Source.IsSet() ? WriteOutput(Source, Depth, bOperand) : FString(TEXT("?"));
	}

	FString WriteDefault(const FPinSnapshot& Pin)
	{
		if (Pin.Value.IsEmpty())
		{
			return FString();
		}
		if (Pin.Category == UEdGraphSchema_K2::PC_String || Pin.Category == UEdGraphSchema_K2::PC_Text)
		{
			return TEXT("\"") + Shorten(Pin.Value) + TEXT("\"");
		}
		// An object by the name that its path ends with.
		const bool bPath = Pin.Value.StartsWith(TEXT("/"));
		return Shorten(bPath ? FPackageName::ObjectPathToObjectName(Pin.Value) : ShortenNumber(Pin.Value));
	}

	FPinExpression Finish(const FString& Text)
	{
		Expression.Text = Text;
		return MoveTemp(Expression);
	}

private:
	FString Shorten(const FString& Text)
	{
		if (Text.Len() <= MaxTextLength)
		{
			return Text;
		}
		Expression.bCut = true;
		return Text.Left(MaxTextLength - 1) + Ellipsis;
	}

	FString WriteOutput(const FPinLink& Link, int32 Depth, bool bOperand)
	{
		const FNodeSnapshot& Node = Graph.Nodes[Link.Node];
		const FPinSnapshot& Output = Graph.GetPin(Link);
		if (Node.Form == ENodeForm::Self)
		{
			Expression.Named.Add(Link.Node);
			return TEXT("self");
		}
		if (Output.Category == UEdGraphSchema_K2::PC_Delegate && !Node.bPure)
		{
			// An event: its pin has the same label on each of them.
			return Node.Title;
		}
		if (!Node.bPure)
		{
			// The result of a call says nothing by its own name.
			const bool bResult = Output.Name == UEdGraphSchema_K2::PN_ReturnValue;
			return bResult ? TEXT("result of ") + Node.Title : Output.Label;
		}
		if (Depth >= MaxDepth || ++NumVisits > MaxVisits)
		{
			return Ellipsis;
		}
		if (Node.Form == ENodeForm::VariableGet)
		{
			Expression.Named.Add(Link.Node);
			return WriteVariable(Node, Output, Depth);
		}
		return WriteCall(Link.Node, Output, Depth, bOperand);
	}

	FString WriteVariable(const FNodeSnapshot& Node, const FPinSnapshot& Output, int32 Depth)
	{
		const FPinSnapshot* const Target = Node.Pins.FindByPredicate([](const FPinSnapshot& Pin)
			{ return Pin.bInput && Pin.Name == UEdGraphSchema_K2::PN_Self; });
		const bool bOther = Target && !Target->Links.IsEmpty();
		return (bOther ? WriteInput(*Target, Depth + 1, true) + TEXT(".") : FString()) + Output.Label;
	}

	/** Inputs that a reader sees, and how many outputs a reader can choose from. */
	static TArray<const FPinSnapshot*> FindOperands(const FNodeSnapshot& Node, int32& OutNumOutputs)
	{
		TArray<const FPinSnapshot*> Operands;
		for (const FPinSnapshot& Pin : Node.Pins)
		{
			if (Pin.bHidden || Pin.bExec)
			{
				continue;
			}
			if (Pin.bInput)
			{
				Operands.Add(&Pin);
			}
			else
			{
				OutNumOutputs += Pin.Parent == INDEX_NONE ? 1 : 0;
			}
		}
		return Operands;
	}

	FString WriteCall(int32 NodeIndex, const FPinSnapshot& Output, int32 Depth, bool bOperand)
	{
		const FNodeSnapshot& Node = Graph.Nodes[NodeIndex];
		int32 NumOutputs = 0;
		const TArray<const FPinSnapshot*> Operands = FindOperands(Node, NumOutputs);
		const FString& Compact = Node.CompactTitle;
		const bool bSign = !Compact.IsEmpty() && !FChar::IsAlpha(Compact[0]);
		(bSign && Operands.Num() == 1 ? Expression.Unnamed : Expression.Named).Add(NodeIndex);
		FString Text;
		if (Node.Form == ENodeForm::ArrayItem && Operands.Num() == 2)
		{
			Text = WriteInput(*Operands[0], Depth + 1, true) + TEXT("[") + WriteInput(*Operands[1], Depth + 1, false) + TEXT("]");
		}
		else if (bSign && Operands.Num() >= 2)
		{
			const FString Inner = FString::JoinBy(Operands, *(TEXT(" ") + Compact + TEXT(" ")), [&](const FPinSnapshot* Pin)
				{ return WriteInput(*Pin, Depth + 1, true); });
			Text = bOperand ? TEXT("(") + Inner + TEXT(")") : Inner;
		}
		else if (!Compact.IsEmpty() && Operands.Num() == 1)
		{
			// A sign alone is that of a conversion, of which a reader sees the value.
			const FString Value = WriteInput(*Operands[0], Depth + 1, bSign && bOperand);
			Text = bSign ? Value : Compact + TEXT("(") + Value + TEXT(")");
		}
		else
		{
			Text = Node.Title + WriteArguments(Operands, Depth);
		}
		Text = Shorten(Text);
		return NumOutputs > 1 ? Text + TEXT(".") + Output.Label : Text;
	}

	FString WriteArguments(const TArray<const FPinSnapshot*>& Operands, int32 Depth)
	{
		TArray<FString> Arguments;
		for (const FPinSnapshot* const Pin : Operands)
		{
			const FString Value = WriteInput(*Pin, Depth + 1, false);
			if (!Value.IsEmpty())
			{
				Arguments.Add(Pin->Label + TEXT(": ") + Value);
			}
		}
		return Arguments.IsEmpty() ? FString() : TEXT("(") + FString::Join(Arguments, TEXT(", ")) + TEXT(")");
	}

	const FGraphSnapshot& Graph;
	FPinExpression Expression;
	int32 NumVisits = 0;
};
}

FPinExpression WritePinExpression(const FGraphSnapshot& Graph, const FPinSnapshot& Input)
{
	FExpressionWriter Writer(Graph);
	const FString Text = Writer.WriteInput(Input, 0, false);
	return Writer.Finish(Text);
}
