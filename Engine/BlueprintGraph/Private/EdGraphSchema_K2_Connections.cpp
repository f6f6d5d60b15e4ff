#include "EdGraphSchema_K2.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node.h"
#include "K2Node_CallFunction.h"
#include "K2Node_Knot.h"
#include "K2Node_PromotableOperator.h"
#include "OperatorFunctions.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

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

/** The call is made on each of its targets, which may be linked one by one or as an array. */
bool TakesManyTargets(const UEdGraphPin& InputPin, const bool bAsArray)
{
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(InputPin.GetOwningNode());
	return Call && InputPin.PinName == UEdGraphSchema_K2::PN_Self && !InputPin.PinType.IsContainer() && Call->AllowMultipleSelfs(bAsArray);
}

bool IsContainer(const UEdGraphPin* Pin)
{
	return Pin->PinType.IsContainer();
}

FText DescribeTypes(const FText& Format, const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin)
{
	return FText::Format(Format, UEdGraphSchema_K2::TypeToText(OutputPin.PinType), UEdGraphSchema_K2::TypeToText(InputPin.PinType));
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
	const bool bIgnoreArray = OutputPin.PinType.IsArray() && TakesManyTargets(InputPin, true);
	const bool bIsOpen = IsOpenReroute(OutputPin) || IsOpenReroute(InputPin);
	if (bIsOpen || ArePinTypesCompatible(OutputPin.PinType, InputPin.PinType, CallingContext, bIgnoreArray))
	{
		return DetermineConnectionResponse(OutputPin, InputPin, bInputIsA);
	}
	const UK2Node_PromotableOperator* const Operator = Cast<UK2Node_PromotableOperator>(InputPin.GetOwningNode());
	if (Operator && Operator->TakesOperand(InputPin, OutputPin.PinType))
	{
		// The operator goes on as it is when the value widens to its type; it widens when the value does not.
		if (FOperatorFunctions::CountPromotions(OutputPin.PinType, InputPin.PinType) >= 0)
		{
			return DetermineConnectionResponse(OutputPin, InputPin, bInputIsA);
		}
		return FPinConnectionResponse(
			CONNECT_RESPONSE_MAKE_WITH_PROMOTION, DescribeTypes(LOCTEXT("PromoteTypes", "Promote {1} to {0}."), OutputPin, InputPin));
	}
	if (SearchForAutocastFunction(OutputPin.PinType, InputPin.PinType).IsSet() ||
		FindSpecializedConversionNode(OutputPin.PinType, InputPin, false).IsSet())
	{
		return FPinConnectionResponse(
			CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE, DescribeTypes(LOCTEXT("ConvertTypes", "Convert {0} to {1}."), OutputPin, InputPin));
	}
	return ExplainMismatch(OutputPin, InputPin);
}

const FPinConnectionResponse UEdGraphSchema_K2::DetermineConnectionResponse(
	const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin, bool bInputIsA) const
{
	const auto BreakInput = bInputIsA ? CONNECT_RESPONSE_BREAK_OTHERS_A : CONNECT_RESPONSE_BREAK_OTHERS_B;
	const auto BreakOutput = bInputIsA ? CONNECT_RESPONSE_BREAK_OTHERS_B : CONNECT_RESPONSE_BREAK_OTHERS_A;
	// Execution leaves by one way and may arrive by many; a value is the other way round.
	const bool bIsExec = IsExecPin(OutputPin);
	// An array of targets stands alone: the call goes over its elements.
	const bool bJoinsTargets = TakesManyTargets(InputPin, false) && !IsContainer(&OutputPin) &&
		!InputPin.LinkedTo.ContainsByPredicate(&IsContainer);
	const bool bReplacesOutput = bIsExec && OutputPin.LinkedTo.Num() > 0;
	const bool bReplacesInput = !bIsExec && InputPin.LinkedTo.Num() > 0 && !bJoinsTargets;
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
	if (OutputPin.PinType.PinCategory == PC_Struct && InputPin.PinType.PinCategory == PC_Struct && OutputStruct && InputStruct &&
		OutputStruct->IsChildOf(InputStruct))
	{
		return Refuse(LOCTEXT(
			"StructsIncompatible", "Only exactly matching structures are considered compatible. Derived structures are disallowed."));
	}
	return Refuse(DescribeTypes(LOCTEXT("DefaultPinIncompatibilityMessage", "{0} is not compatible with {1}."), OutputPin, InputPin));
}

void UEdGraphSchema_K2::MarkBlueprintAsModified(const UEdGraphNode* Node)
{
	UBlueprint* const Blueprint = Node ? Node->GetTypedOuter<UBlueprint>() : nullptr;
	if (Blueprint && !Blueprint->bBeingCompiled && !Blueprint->bIsRegeneratingOnLoad)
	{
		Blueprint->Status = BS_Dirty;
		Blueprint->MarkPackageDirty();
		Blueprint->BroadcastChanged();
	}
}

bool UEdGraphSchema_K2::TryCreateConnection(UEdGraphPin* PinA, UEdGraphPin* PinB) const
{
	// A node may make its pins anew when it is linked.
	UEdGraphNode* const NodeOfA = PinA ? PinA->GetOwningNodeUnchecked() : nullptr;
	if (!Super::TryCreateConnection(PinA, PinB))
	{
		return false;
	}
	MarkBlueprintAsModified(NodeOfA);
	return true;
}

void UEdGraphSchema_K2::BreakNodeLinks(UEdGraphNode& TargetNode) const
{
	Super::BreakNodeLinks(TargetNode);
	MarkBlueprintAsModified(&TargetNode);
}

void UEdGraphSchema_K2::BreakPinLinks(UEdGraphPin& TargetPin, bool bSendsNodeNotifcation) const
{
	// The pin may not outlive what its node does when told.
	const UEdGraphNode* const Node = TargetPin.GetOwningNode();
	Super::BreakPinLinks(TargetPin, bSendsNodeNotifcation);
	MarkBlueprintAsModified(Node);
}

void UEdGraphSchema_K2::BreakSinglePinLink(UEdGraphPin* SourcePin, UEdGraphPin* TargetPin) const
{
	const UEdGraphNode* const Node = SourcePin->GetOwningNode();
	Super::BreakSinglePinLink(SourcePin, TargetPin);
	MarkBlueprintAsModified(Node);
}

bool UEdGraphSchema_K2::CreatePromotedConnection(UEdGraphPin* PinA, UEdGraphPin* PinB) const
{
	UEdGraphPin* InputPin = nullptr;
	UEdGraphPin* OutputPin = nullptr;
	if (!CategorizePinsByDirection(PinA, PinB, InputPin, OutputPin))
	{
		return false;
	}
	InputPin->Modify();
	OutputPin->Modify();
	// The operator follows its links: it turns into that of the wider type when it is told of the new one.
	InputPin->BreakAllPinLinks(true);
	InputPin->MakeLinkTo(OutputPin);
	return true;
}

UK2Node* UEdGraphSchema_K2::MakeConversionTemplate(const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin) const
{
	const TOptional<FSearchForAutocastFunctionResults> Autocast = SearchForAutocastFunction(OutputPin.PinType, InputPin.PinType);
	if (Autocast.IsSet())
	{
		UK2Node_CallFunction* const Node = NewObject<UK2Node_CallFunction>();
		Node->SetFromFunction(Autocast->FunctionOwner->FindFunctionByName(Autocast->TargetFunction));
		return Node;
	}
	const TOptional<FFindSpecializedConversionNodeResults> Specialized = FindSpecializedConversionNode(OutputPin.PinType, InputPin, true);
	return Specialized.IsSet() ? Specialized->TargetNode : nullptr;
}

bool UEdGraphSchema_K2::AutowireConversionNode(UEdGraphPin& OutputPin, UEdGraphPin& InputPin, UK2Node& ConversionNode) const
{
	const auto FindWithResponse = [this, &ConversionNode](const UEdGraphPin& Pin, const bool bMayReplace)
	{
		return ConversionNode.FindPinByPredicate(
			[this, &Pin, bMayReplace](const UEdGraphPin* Candidate)
			{
				const FPinConnectionResponse Response = CanCreateConnection(Candidate, &Pin);
				return !Candidate->bHidden && !IsExecPin(*Candidate) &&
					(Response.CanSafeConnect() || (bMayReplace && Response.Response == CONNECT_RESPONSE_BREAK_OTHERS_B));
			});
	};
	UEdGraphPin* const Source = FindWithResponse(OutputPin, false);
	if (!Source || !Super::TryCreateConnection(Source, &OutputPin))
	{
		return false;
	}
	// What the node gives may have taken its type from what it was just given.
	UEdGraphPin* const Result = FindWithResponse(InputPin, true);
	return Result && Super::TryCreateConnection(Result, &InputPin);
}

bool UEdGraphSchema_K2::CreateAutomaticConversionNodeAndConnections(UEdGraphPin* PinA, UEdGraphPin* PinB) const
{
	UEdGraphPin* InputPin = nullptr;
	UEdGraphPin* OutputPin = nullptr;
	if (!CategorizePinsByDirection(PinA, PinB, InputPin, OutputPin))
	{
		return false;
	}
	UEdGraphNode* const InputNode = InputPin->GetOwningNode();
	const UEdGraphNode* const OutputNode = OutputPin->GetOwningNode();
	FEdGraphSchemaAction_NewNode Action;
	Action.NodeTemplate = MakeConversionTemplate(*OutputPin, *InputPin);
	if (!Action.NodeTemplate)
	{
		return false;
	}
	const FVector2D Location((InputNode->NodePosX + OutputNode->NodePosX) / 2, (InputNode->NodePosY + OutputNode->NodePosY) / 2);
	UK2Node* const Node = CastChecked<UK2Node>(Action.PerformAction(InputNode->GetGraph(), nullptr, Location, false));
	if (!AutowireConversionNode(*OutputPin, *InputPin, *Node))
	{
		Node->DestroyNode();
		return false;
	}
	return true;
}

#undef LOCTEXT_NAMESPACE
