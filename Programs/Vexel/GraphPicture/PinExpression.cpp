#include "PinExpression.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "K2Node.h"
#include "K2Node_GetArrayItem.h"
#include "K2Node_Knot.h"
#include "K2Node_Self.h"
#include "K2Node_VariableGet.h"
#include "UObject/Object.h"

namespace
{
constexpr int32 MaxDepth = 6;
constexpr int32 MaxTextLength = 160;
constexpr int32 MaxReroutes = 1000;
const TCHAR* const Ellipsis = TEXT("…");

FString Shorten(const FString& Text, int32 MaxLength)
{
	return Text.Len() <= MaxLength ? Text : Text.Left(MaxLength - 1) + Ellipsis;
}

class FExpressionWriter
{
public:
	explicit FExpressionWriter(TSet<const UEdGraphNode*>& InUsed)
		: Used(InUsed)
	{
	}

	/** @param bOperand Whether the text stands inside another expression, so that an operator needs parentheses. */
	FString WriteInput(const UEdGraphPin& Pin, int32 Depth, bool bOperand)
	{
		if (Pin.LinkedTo.IsEmpty())
		{
			return WriteDefault(Pin);
		}
		const UEdGraphPin* const Source = PinExpression::FollowReroutes(*Pin.LinkedTo[0]);
		return Source ? WriteOutput(*Source, Depth, bOperand) : FString(TEXT("?"));
	}

private:
	static FString WriteDefault(const UEdGraphPin& Pin)
	{
		const FString Value = Pin.GetDefaultAsString();
		const FName Category = Pin.PinType.PinCategory;
		if (Value.IsEmpty())
		{
			return FString();
		}
		if (Category == UEdGraphSchema_K2::PC_String || Category == UEdGraphSchema_K2::PC_Text)
		{
			return TEXT("\"") + Shorten(Value, MaxTextLength) + TEXT("\"");
		}
		if (Pin.DefaultObject)
		{
			return Pin.DefaultObject->GetName();
		}
		return Shorten(TrimNumber(Value), MaxTextLength);
	}

	/** "90.000000" as "90". */
	static FString TrimNumber(const FString& Value)
	{
		if (!Value.IsNumeric() || !Value.Contains(TEXT(".")))
		{
			return Value;
		}
		FString Trimmed = Value;
		while (Trimmed.RemoveFromEnd(TEXT("0")))
		{
		}
		Trimmed.RemoveFromEnd(TEXT("."));
		return Trimmed;
	}

	FString WriteOutput(const UEdGraphPin& Output, int32 Depth, bool bOperand)
	{
		const UEdGraphNode& Node = *Output.GetOwningNode();
		if (Node.IsA<UK2Node_Self>())
		{
			Used.Add(&Node);
			return TEXT("self");
		}
		if (!PinExpression::IsPure(Node))
		{
			// The result of a call says nothing by its own name.
			const bool bResult = Output.PinName == UEdGraphSchema_K2::PN_ReturnValue;
			return bResult ? TEXT("result of ") + PinExpression::GetTitle(Node) : PinExpression::GetName(Output);
		}
		Used.Add(&Node);
		if (Depth >= MaxDepth)
		{
			return Ellipsis;
		}
		if (Node.IsA<UK2Node_VariableGet>())
		{
			return WriteVariable(Node, Output, Depth);
		}
		return WriteCall(Node, Output, Depth, bOperand);
	}

	FString WriteVariable(const UEdGraphNode& Node, const UEdGraphPin& Output, int32 Depth)
	{
		const UEdGraphPin* const Target = Node.FindPin(UEdGraphSchema_K2::PN_Self, EGPD_Input);
		const bool bOther = Target && !Target->LinkedTo.IsEmpty();
		return (bOther ? WriteInput(*Target, Depth + 1, true) + TEXT(".") : FString()) + PinExpression::GetName(Output);
	}

	/** Inputs that a reader sees, and how many outputs a reader can choose from. */
	static TArray<const UEdGraphPin*> FindOperands(const UEdGraphNode& Node, int32& OutNumOutputs)
	{
		TArray<const UEdGraphPin*> Operands;
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			if (Pin->bHidden || PinExpression::IsExec(*Pin))
			{
				continue;
			}
			if (Pin->Direction == EGPD_Input)
			{
				Operands.Add(Pin);
			}
			else
			{
				OutNumOutputs += Pin->ParentPin ? 0 : 1;
			}
		}
		return Operands;
	}

	FString WriteCall(const UEdGraphNode& Node, const UEdGraphPin& Output, int32 Depth, bool bOperand)
	{
		int32 NumOutputs = 0;
		const TArray<const UEdGraphPin*> Operands = FindOperands(Node, NumOutputs);
		const UK2Node* const Known = Cast<UK2Node>(&Node);
		const FString Compact = Known && Node.ShouldDrawCompact() ? Known->GetCompactNodeTitle().ToString() : FString();
		const bool bSign = !Compact.IsEmpty() && !FChar::IsAlpha(Compact[0]);
		FString Text;
		if (Node.IsA<UK2Node_GetArrayItem>() && Operands.Num() == 2)
		{
			Text = WriteInput(*Operands[0], Depth + 1, true) + TEXT("[") + WriteInput(*Operands[1], Depth + 1, false) + TEXT("]");
		}
		else if (bSign && Operands.Num() >= 2)
		{
			const FString Inner = FString::JoinBy(Operands, *(TEXT(" ") + Compact + TEXT(" ")), [&](const UEdGraphPin* Pin)
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
			Text = PinExpression::GetTitle(Node) + WriteArguments(Operands, Depth);
		}
		Text = Shorten(Text, MaxTextLength);
		return NumOutputs > 1 ? Text + TEXT(".") + PinExpression::GetName(Output) : Text;
	}

	FString WriteArguments(const TArray<const UEdGraphPin*>& Operands, int32 Depth)
	{
		TArray<FString> Arguments;
		for (const UEdGraphPin* const Pin : Operands)
		{
			const FString Value = WriteInput(*Pin, Depth + 1, false);
			if (!Value.IsEmpty())
			{
				Arguments.Add(PinExpression::GetName(*Pin) + TEXT(": ") + Value);
			}
		}
		return Arguments.IsEmpty() ? FString() : TEXT("(") + FString::Join(Arguments, TEXT(", ")) + TEXT(")");
	}

	TSet<const UEdGraphNode*>& Used;
};
}

FString PinExpression::GetTitle(const UEdGraphNode& Node)
{
	const FString Title = Node.GetNodeTitle(ENodeTitleType::ListView).ToString().TrimStartAndEnd();
	int32 LineEnd = INDEX_NONE;
	const FString FirstLine = Title.FindChar(TEXT('\n'), LineEnd) ? Title.Left(LineEnd) : Title;
	return FirstLine.IsEmpty() ? Node.GetName() : FirstLine;
}

FString PinExpression::GetName(const UEdGraphPin& Pin)
{
	const FString Name = Pin.GetDisplayName().ToString();
	return Name.IsEmpty() ? Pin.PinName.ToString() : Name;
}

bool PinExpression::IsExec(const UEdGraphPin& Pin)
{
	return Pin.PinType.PinCategory == UEdGraphSchema_K2::PC_Exec;
}

bool PinExpression::IsPure(const UEdGraphNode& Node)
{
	return !Node.Pins.ContainsByPredicate([](const UEdGraphPin* Pin)
		{ return IsExec(*Pin); });
}

const UEdGraphPin* PinExpression::FollowReroutes(const UEdGraphPin& Linked)
{
	const UEdGraphPin* Pin = &Linked;
	for (int32 Hops = 0; Hops < MaxReroutes; ++Hops)
	{
		const UEdGraphNode* const Node = Pin->GetOwningNodeUnchecked();
		if (!Node || !Node->IsA<UK2Node_Knot>())
		{
			return Node ? Pin : nullptr;
		}
		const UEdGraphPin* const OtherSide = Node->FindPinByPredicate([Pin](const UEdGraphPin* Candidate)
			{ return Candidate->Direction != Pin->Direction; });
		if (!OtherSide || OtherSide->LinkedTo.IsEmpty())
		{
			return nullptr;
		}
		Pin = OtherSide->LinkedTo[0];
	}
	return nullptr;
}

FString PinExpression::GetInput(const UEdGraphPin& Pin, TSet<const UEdGraphNode*>& Used)
{
	return FExpressionWriter(Used).WriteInput(Pin, 0, false);
}
