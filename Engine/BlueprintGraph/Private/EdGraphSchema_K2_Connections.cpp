#include "EdGraphSchema_K2.h"

#include "EdGraph/EdGraph.h"
#include "K2Node.h"
#include "K2Node_CallFunction.h"
#include "K2Node_Knot.h"
#include "K2Node_PromotableOperator.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "KismetSchema"

namespace
{
FPinConnectionResponse Refuse(const FText& Reason)
{
	return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, Reason);
}

const UK2Node* GetK2Node(const UEdGraphPin& Pin)
{
	return Cast<UK2Node>(Pin.GetOwningNodeUnchecked());
}

/** A reroute node that has no type yet takes any wire, execution too. */
bool IsOpenReroute(const UEdGraphPin& Pin)
{
	return Pin.PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard && Pin.GetOwningNode()->IsA<UK2Node_Knot>();
}

UClass* GetCallingContext(const UEdGraphPin& Pin)
{
	const UK2Node* const Node = GetK2Node(Pin);
	return Node ? Node->GetBlueprintClassFromNode() : nullptr;
}
}

const FPinConnectionResponse UEdGraphSchema_K2::CanCreateConnection(const UEdGraphPin* PinA, const UEdGraphPin* PinB) const
{
	if (!PinA || !PinB)
	{
		return Refuse(LOCTEXT("PinNull", "One or both of the pins was null"));
	}
	if (PinA->bOrphanedPin || PinB->bOrphanedPin)
	{
		return Refuse(LOCTEXT("PinOrphaned", "Cannot make new connections to orphaned pin"));
	}
	if (PinA->GetOwningNode() == PinB->GetOwningNode())
	{
		return Refuse(LOCTEXT("ConnectionSameNode", "Both are on the same node"));
	}
	if (PinA->GetOwningNode()->GetGraph() != PinB->GetOwningNode()->GetGraph())
	{
		return Refuse(LOCTEXT("ConnectionOtherGraph", "The pins are not in the same graph"));
	}
	if (PinA->bNotConnectable || PinB->bNotConnectable)
	{
		return Refuse(LOCTEXT("PinNotConnectable", "Not connectable"));
	}
	if (PinA->Direction == PinB->Direction)
	{
		return Refuse(LOCTEXT("DirectionsIncompatible", "Directions are not compatible"));
	}
	for (const TPair<const UEdGraphPin*, const UEdGraphPin*>& Ends : {MakeTuple(PinA, PinB), MakeTuple(PinB, PinA)})
	{
		FString Reason;
		const UK2Node* const Node = GetK2Node(*Ends.Key);
		if (Node && Node->IsConnectionDisallowed(Ends.Key, Ends.Value, Reason))
		{
			return Refuse(FText::FromString(Reason));
		}
	}

	const bool bInputIsA = PinA->Direction == EGPD_Input;
	const UEdGraphPin& OutputPin = bInputIsA ? *PinB : *PinA;
	const UEdGraphPin& InputPin = bInputIsA ? *PinA : *PinB;
	const UClass* const CallingContext = GetCallingContext(*PinA);
	// The targets of a call may be many: an array of objects does for a single one.
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(InputPin.GetOwningNode());
	const bool bIgnoreArray = Call && IsSelfPin(InputPin) && OutputPin.PinType.IsArray() && Call->AllowMultipleSelfs(false);
	const UK2Node_PromotableOperator* const Operator = Cast<UK2Node_PromotableOperator>(InputPin.GetOwningNode());
	const bool bIsTaken = IsOpenReroute(OutputPin) || IsOpenReroute(InputPin) || (Operator && Operator->TakesOperand(InputPin, OutputPin.PinType));
	if (bIsTaken || ArePinTypesCompatible(OutputPin.PinType, InputPin.PinType, CallingContext, bIgnoreArray))
	{
		return DetermineConnectionResponse(OutputPin, InputPin, bInputIsA);
	}
	if (SearchForAutocastFunction(OutputPin.PinType, InputPin.PinType))
	{
		return FPinConnectionResponse(CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE,
			FText::Format(LOCTEXT("ConvertTypes", "Convert {0} to {1}."), TypeToText(OutputPin.PinType), TypeToText(InputPin.PinType)));
	}
	return ExplainMismatch(OutputPin, InputPin);
}

const FPinConnectionResponse UEdGraphSchema_K2::DetermineConnectionResponse(const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin, bool bInputIsA) const
{
	const auto BreakInput = bInputIsA ? CONNECT_RESPONSE_BREAK_OTHERS_A : CONNECT_RESPONSE_BREAK_OTHERS_B;
	const auto BreakOutput = bInputIsA ? CONNECT_RESPONSE_BREAK_OTHERS_B : CONNECT_RESPONSE_BREAK_OTHERS_A;
	// Execution leaves by one way and may arrive by many; a value is the other way round.
	const bool bIsExec = IsExecPin(OutputPin);
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(InputPin.GetOwningNode());
	const bool bManyTargets = IsSelfPin(InputPin) && Call && Call->AllowMultipleSelfs(false);
	const bool bReplacesOutput = bIsExec && OutputPin.LinkedTo.Num() > 0;
	const bool bReplacesInput = !bIsExec && InputPin.LinkedTo.Num() > 0 && !bManyTargets && !IsDelegateCategory(InputPin.PinType.PinCategory);
	if (bReplacesOutput)
	{
		return FPinConnectionResponse(BreakOutput, LOCTEXT("ConnectReplaceOutputs", "Replace existing output connections"));
	}
	if (bReplacesInput)
	{
		return FPinConnectionResponse(BreakInput, LOCTEXT("ConnectReplaceInputs", "Replace existing input connections"));
	}
	return FPinConnectionResponse(CONNECT_RESPONSE_MAKE, FText::GetEmpty());
}

const FPinConnectionResponse UEdGraphSchema_K2::ExplainMismatch(const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin) const
{
	const UScriptStruct* const OutputStruct = Cast<UScriptStruct>(OutputPin.PinType.PinSubCategoryObject.Get());
	const UScriptStruct* const InputStruct = Cast<UScriptStruct>(InputPin.PinType.PinSubCategoryObject.Get());
	if (OutputPin.PinType.PinCategory == PC_Struct && InputPin.PinType.PinCategory == PC_Struct && OutputStruct && InputStruct && InputStruct->IsChildOf(OutputStruct))
	{
		return Refuse(LOCTEXT("StructsIncompatible", "Only exactly matching structures are considered compatible. Derived structures are disallowed."));
	}
	return Refuse(FText::Format(LOCTEXT("DefaultPinIncompatibilityMessage", "{0} is not compatible with {1}."), TypeToText(OutputPin.PinType), TypeToText(InputPin.PinType)));
}

bool UEdGraphSchema_K2::TryCreateConnection(UEdGraphPin* PinA, UEdGraphPin* PinB) const
{
	const bool bModified = Super::TryCreateConnection(PinA, PinB);
	if (!bModified)
	{
		return false;
	}
	for (UEdGraphPin* const Pin : {PinA, PinB})
	{
		if (!Pin->WasTrashed())
		{
			Pin->GetOwningNode()->PinConnectionListChanged(Pin);
		}
	}
	return true;
}

void UEdGraphSchema_K2::BreakPinLinks(UEdGraphPin& TargetPin, bool bSendsNodeNotifcation) const
{
	const TArray<UEdGraphPin*> OldLinks = TargetPin.LinkedTo;
	Super::BreakPinLinks(TargetPin, bSendsNodeNotifcation);
	if (!bSendsNodeNotifcation)
	{
		return;
	}
	for (UEdGraphPin* const Linked : OldLinks)
	{
		if (!Linked->WasTrashed())
		{
			Linked->GetOwningNode()->PinConnectionListChanged(Linked);
		}
	}
}

bool UEdGraphSchema_K2::CreateAutomaticConversionNodeAndConnections(UEdGraphPin* PinA, UEdGraphPin* PinB) const
{
	UEdGraphPin* InputPin = nullptr;
	UEdGraphPin* OutputPin = nullptr;
	if (!CategorizePinsByDirection(PinA, PinB, InputPin, OutputPin))
	{
		return false;
	}
	UFunction* const Conversion = SearchForAutocastFunction(OutputPin->PinType, InputPin->PinType);
	UEdGraph* const Graph = InputPin->GetOwningNode()->GetGraph();
	if (!Conversion || !Graph)
	{
		return false;
	}
	FGraphNodeCreator<UK2Node_CallFunction> Creator(*Graph);
	UK2Node_CallFunction* const Node = Creator.CreateNode(false);
	Node->SetFromFunction(Conversion);
	Node->NodePosX = (InputPin->GetOwningNode()->NodePosX + OutputPin->GetOwningNode()->NodePosX) / 2;
	Node->NodePosY = (InputPin->GetOwningNode()->NodePosY + OutputPin->GetOwningNode()->NodePosY) / 2;
	Creator.Finalize();

	UEdGraphPin* const Source = Node->FindPinByPredicate(
		[this, OutputPin](const UEdGraphPin* Pin)
		{ return Pin->Direction == EGPD_Input && !Pin->bHidden && ArePinTypesCompatible(OutputPin->PinType, Pin->PinType); });
	UEdGraphPin* const Result = Node->GetReturnValuePin();
	if (!Source || !Result)
	{
		Node->DestroyNode();
		return false;
	}
	return TryCreateConnection(OutputPin, Source) && TryCreateConnection(Result, InputPin);
}

#undef LOCTEXT_NAMESPACE
