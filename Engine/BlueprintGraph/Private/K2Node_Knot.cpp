#include "K2Node_Knot.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
/** Adds the reroute nodes that hang together with this one. */
void CollectChain(UK2Node_Knot& Knot, TArray<UK2Node_Knot*>& OutChain)
{
	OutChain.Add(&Knot);
	for (int32 Index = 0; Index < OutChain.Num(); ++Index)
	{
		for (const UEdGraphPin* const Pin : OutChain[Index]->Pins)
		{
			for (const UEdGraphPin* const Linked : Pin->LinkedTo)
			{
				UK2Node_Knot* const Next = Cast<UK2Node_Knot>(Linked->GetOwningNode());
				if (Next && Next->Pins.Num() > 1)
				{
					OutChain.AddUnique(Next);
				}
			}
		}
	}
}

/** The type of the first pin of another kind of node that the chain is linked to: one that gives a value before one that takes it. */
const UEdGraphPin* FindTypedEnd(const TArray<UK2Node_Knot*>& Chain)
{
	for (const bool bSource : {true, false})
	{
		for (const UK2Node_Knot* const Knot : Chain)
		{
			for (const UEdGraphPin* const Linked : (bSource ? Knot->GetInputPin() : Knot->GetOutputPin())->LinkedTo)
			{
				if (!Linked->GetOwningNode()->IsA<UK2Node_Knot>() && Linked->PinType.PinCategory != UEdGraphSchema_K2::PC_Wildcard)
				{
					return Linked;
				}
			}
		}
	}
	return nullptr;
}
}

void UK2Node_Knot::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("InputPin"))->bDefaultValueIsIgnored = true;
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("OutputPin"));
}

void UK2Node_Knot::PostReconstructNode()
{
	PropagatePinType();
	Super::PostReconstructNode();
}

void UK2Node_Knot::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	PropagatePinType();
}

void UK2Node_Knot::PropagatePinType()
{
	if (Pins.Num() < 2)
	{
		return;
	}
	TArray<UK2Node_Knot*> Chain;
	CollectChain(*this, Chain);
	const UEdGraphPin* const End = FindTypedEnd(Chain);
	const bool bIsAlone = Pins[0]->LinkedTo.Num() == 0 && Pins[1]->LinkedTo.Num() == 0;
	if (!End && !bIsAlone)
	{
		return;
	}
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Wildcard;
	Type = End ? End->PinType : Type;
	for (UK2Node_Knot* const Knot : Chain)
	{
		if (Knot->GetInputPin()->PinType == Type && Knot->GetOutputPin()->PinType == Type)
		{
			continue;
		}
		Knot->Modify();
		Knot->GetInputPin()->PinType = Type;
		Knot->GetOutputPin()->PinType = Type;
	}
}

UEdGraphPin* UK2Node_Knot::GetPassThroughPin(const UEdGraphPin* FromPin) const
{
	return FromPin && Pins.Contains(const_cast<UEdGraphPin*>(FromPin)) ? (FromPin == GetInputPin() ? GetOutputPin() : GetInputPin())
																	   : nullptr;
}

FText UK2Node_Knot::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	if (TitleType == ENodeTitleType::EditableTitle)
	{
		return FText::FromString(NodeComment);
	}
	return TitleType == ENodeTitleType::MenuTitle ? LOCTEXT("KnotListTitle", "Add Reroute Node...") : LOCTEXT("KnotTitle", "Reroute Node");
}

FText UK2Node_Knot::GetTooltipText() const
{
	return LOCTEXT("KnotTooltip", "Reroute Node (reroutes wires)");
}

#undef LOCTEXT_NAMESPACE
