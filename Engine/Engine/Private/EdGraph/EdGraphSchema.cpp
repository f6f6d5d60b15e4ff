#include "EdGraph/EdGraphSchema.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "GraphEditor"

FString FGraphDisplayInfo::GetNotesAsString() const
{
	FString Result;
	if (Notes.Num() > 0)
	{
		Result = TEXT("(");
		for (int32 Index = 0; Index < Notes.Num(); ++Index)
		{
			Result += Index > 0 ? TEXT(", ") : TEXT("");
			Result += Notes[Index].ToString();
		}
		Result += TEXT(")");
	}
	return Result;
}

FEdGraphSchemaAction::FEdGraphSchemaAction(
	FText InNodeCategory, FText InMenuDesc, FText InToolTip, const int32 InGrouping, FText InKeywords, int32 InSectionID)
	: Grouping(InGrouping)
	, SectionID(InSectionID)
	, MenuDescription(MoveTemp(InMenuDesc))
	, TooltipDescription(MoveTemp(InToolTip))
	, Category(MoveTemp(InNodeCategory))
	, Keywords(MoveTemp(InKeywords))
{
}

UEdGraphNode* FEdGraphSchemaAction_NewNode::PerformAction(
	UEdGraph* ParentGraph, UEdGraphPin* FromPin, const FVector2D Location, bool bSelectNewNode)
{
	if (!NodeTemplate)
	{
		return nullptr;
	}
	ParentGraph->Modify();
	if (FromPin)
	{
		FromPin->Modify();
	}
	UEdGraphNode* const Node = DuplicateObject<UEdGraphNode>(NodeTemplate, ParentGraph);
	Node->SetFlags(RF_Transactional);
	ParentGraph->AddNode(Node, true, bSelectNewNode);
	Node->CreateNewGuid();
	Node->PostPlacedNewNode();
	if (Node->Pins.Num() == 0)
	{
		Node->AllocateDefaultPins();
	}
	Node->AutowireNewNode(FromPin);
	Node->NodePosX = static_cast<int32>(Location.X);
	Node->NodePosY = static_cast<int32>(Location.Y);
	return Node;
}

// Links

const FPinConnectionResponse UEdGraphSchema::CanCreateConnection(const UEdGraphPin* A, const UEdGraphPin* B) const
{
	return FPinConnectionResponse(CONNECT_RESPONSE_MAKE, FText());
}

const FPinConnectionResponse UEdGraphSchema::CanMergeNodes(const UEdGraphNode* A, const UEdGraphNode* B) const
{
	return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, FText());
}

bool UEdGraphSchema::CategorizePinsByDirection(UEdGraphPin* A, UEdGraphPin* B, UEdGraphPin*& OutInputPin, UEdGraphPin*& OutOutputPin)
{
	OutInputPin = A->Direction == EGPD_Input ? A : B->Direction == EGPD_Input ? B
																			  : nullptr;
	OutOutputPin = A->Direction == EGPD_Output ? A : B->Direction == EGPD_Output ? B
																				 : nullptr;
	return OutInputPin && OutOutputPin;
}

bool UEdGraphSchema::TryCreateConnection(UEdGraphPin* A, UEdGraphPin* B) const
{
	const FPinConnectionResponse Response = CanCreateConnection(A, B);
	// A node may make its pins anew when it is linked.
	UEdGraphNode* const NodeOfA = A ? A->GetOwningNodeUnchecked() : nullptr;
	UEdGraphNode* const NodeOfB = B ? B->GetOwningNodeUnchecked() : nullptr;
	bool bModified = false;
	switch (Response.Response)
	{
		case CONNECT_RESPONSE_MAKE:
			A->Modify();
			B->Modify();
			A->MakeLinkTo(B);
			bModified = true;
			break;

		case CONNECT_RESPONSE_BREAK_OTHERS_A:
		case CONNECT_RESPONSE_BREAK_OTHERS_B:
		case CONNECT_RESPONSE_BREAK_OTHERS_AB:
			A->Modify();
			B->Modify();
			if (Response.Response != CONNECT_RESPONSE_BREAK_OTHERS_B)
			{
				A->BreakAllPinLinks(true);
			}
			if (Response.Response != CONNECT_RESPONSE_BREAK_OTHERS_A)
			{
				B->BreakAllPinLinks(true);
			}
			A->MakeLinkTo(B);
			bModified = true;
			break;

		case CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE:
			bModified = CreateAutomaticConversionNodeAndConnections(A, B);
			break;

		case CONNECT_RESPONSE_MAKE_WITH_PROMOTION:
			bModified = CreatePromotedConnection(A, B);
			break;

		default:
			break;
	}
	if (bModified)
	{
		NodeOfA->NodeConnectionListChanged();
		NodeOfB->NodeConnectionListChanged();
	}
	return bModified;
}

void UEdGraphSchema::BreakNodeLinks(UEdGraphNode& TargetNode) const
{
	TargetNode.BreakAllNodeLinks();
}

void UEdGraphSchema::BreakPinLinks(UEdGraphPin& TargetPin, bool bSendsNodeNotifcation) const
{
	TargetPin.BreakAllPinLinks(bSendsNodeNotifcation);
}

void UEdGraphSchema::BreakSinglePinLink(UEdGraphPin* SourcePin, UEdGraphPin* TargetPin) const
{
	SourcePin->BreakLinkTo(TargetPin);
	TargetPin->GetOwningNode()->NodeConnectionListChanged();
	SourcePin->GetOwningNode()->NodeConnectionListChanged();
}

FPinConnectionResponse UEdGraphSchema::MovePinLinks(
	UEdGraphPin& MoveFromPin, UEdGraphPin& MoveToPin, bool bIsIntermediateMove, bool bNotifyLinkedNodes) const
{
	FPinConnectionResponse Result(CONNECT_RESPONSE_MAKE, FText());
	const TArray<UEdGraphPin*> OldLinks = MoveFromPin.LinkedTo;
	for (UEdGraphPin* const Linked : OldLinks)
	{
		const FPinConnectionResponse Response = CanCreateConnection(&MoveToPin, Linked);
		const bool bAllowed = Response.Response != CONNECT_RESPONSE_DISALLOW;
		if (!bAllowed && !bIsIntermediateMove)
		{
			Result = Response;
			continue;
		}
		MoveFromPin.BreakLinkTo(Linked);
		MoveToPin.MakeLinkTo(Linked);
		if (bNotifyLinkedNodes)
		{
			Linked->GetOwningNode()->PinConnectionListChanged(Linked);
		}
	}
	if (MoveToPin.PinType == MoveFromPin.PinType || MoveToPin.PinType.PinCategory == MoveFromPin.PinType.PinCategory)
	{
		MoveToPin.DefaultValue = MoveFromPin.DefaultValue;
		MoveToPin.DefaultObject = MoveFromPin.DefaultObject;
		MoveToPin.DefaultTextValue = MoveFromPin.DefaultTextValue;
	}
	return Result;
}

FPinConnectionResponse UEdGraphSchema::CopyPinLinks(UEdGraphPin& CopyFromPin, UEdGraphPin& CopyToPin, bool bIsIntermediateCopy) const
{
	FPinConnectionResponse Result(CONNECT_RESPONSE_MAKE, FText());
	const TArray<UEdGraphPin*> Links = CopyFromPin.LinkedTo;
	for (UEdGraphPin* const Linked : Links)
	{
		const FPinConnectionResponse Response = CanCreateConnection(&CopyToPin, Linked);
		if (Response.Response == CONNECT_RESPONSE_DISALLOW && !bIsIntermediateCopy)
		{
			Result = Response;
			continue;
		}
		CopyToPin.MakeLinkTo(Linked);
	}
	CopyToPin.DefaultValue = CopyFromPin.DefaultValue;
	CopyToPin.DefaultObject = CopyFromPin.DefaultObject;
	CopyToPin.DefaultTextValue = CopyFromPin.DefaultTextValue;
	return Result;
}

// Defaults

void UEdGraphSchema::TrySetDefaultValue(UEdGraphPin& InPin, const FString& InNewDefaultValue, bool bMarkAsModified) const
{
	if (bMarkAsModified)
	{
		InPin.Modify();
	}
	InPin.DefaultValue = InNewDefaultValue;
	InPin.GetOwningNode()->PinDefaultValueChanged(&InPin);
}

void UEdGraphSchema::TrySetDefaultObject(UEdGraphPin& InPin, UObject* InNewDefaultObject, bool bMarkAsModified) const
{
	if (bMarkAsModified)
	{
		InPin.Modify();
	}
	InPin.DefaultObject = InNewDefaultObject;
	InPin.GetOwningNode()->PinDefaultValueChanged(&InPin);
}

void UEdGraphSchema::TrySetDefaultText(UEdGraphPin& InPin, const FText& InNewDefaultText, bool bMarkAsModified) const
{
	if (bMarkAsModified)
	{
		InPin.Modify();
	}
	InPin.DefaultTextValue = InNewDefaultText;
	InPin.GetOwningNode()->PinDefaultValueChanged(&InPin);
}

bool UEdGraphSchema::DoesDefaultValueMatchAutogenerated(const UEdGraphPin& InPin) const
{
	return InPin.GetDefaultAsString().Equals(InPin.AutogeneratedDefaultValue, ESearchCase::CaseSensitive);
}

// Graphs and names

void UEdGraphSchema::GetGraphDisplayInformation(const UEdGraph& Graph, FGraphDisplayInfo& DisplayInfo) const
{
	DisplayInfo.PlainName = FText::FromString(Graph.GetName());
	DisplayInfo.DisplayName = DisplayInfo.PlainName;
}

FText UEdGraphSchema::GetPinDisplayName(const UEdGraphPin* Pin) const
{
	if (!Pin->PinFriendlyName.IsEmpty())
	{
		return Pin->PinFriendlyName;
	}
	return Pin->PinName.IsNone() ? FText::GetEmpty() : FText::FromName(Pin->PinName);
}

void UEdGraphSchema::ReconstructNode(UEdGraphNode& TargetNode, bool bIsBatchRequest) const
{
	TargetNode.ReconstructNode();
}

#undef LOCTEXT_NAMESPACE
