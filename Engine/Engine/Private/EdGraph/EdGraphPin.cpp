#include "EdGraph/EdGraphPin.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphSchema.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Pins given up since the last collection: code that is still running may hold pointers to them. */
TArray<UEdGraphPin*>& GetTrashedPins()
{
	static TArray<UEdGraphPin*> TrashedPins;
	return TrashedPins;
}

void NotifyLinkChange(UEdGraphPin* Pin)
{
	if (UEdGraphNode* const Node = Pin->GetOwningNodeUnchecked())
	{
		Node->PinConnectionListChanged(Pin);
	}
}
}

void FEdGraphPinReference::SetPin(const UEdGraphPin* NewPin)
{
	OwningNode = NewPin ? NewPin->GetOwningNodeUnchecked() : nullptr;
	PinId = NewPin ? NewPin->PinId : FGuid();
}

void FEdGraphPinReference::SetPinById(UEdGraphNode* Node, const FGuid& InPinId)
{
	OwningNode = Node;
	PinId = InPinId;
}

UEdGraphPin* FEdGraphPinReference::Get() const
{
	const UEdGraphNode* const Node = OwningNode.Get();
	return Node ? Node->FindPinById(PinId) : nullptr;
}

UEdGraphPin::UEdGraphPin(UEdGraphNode* InOwningNode, const FGuid& PinGuid)
	: OwningNode(InOwningNode)
	, PinId(PinGuid)
	, Direction(EGPD_Input)
	, bHidden(false)
	, bNotConnectable(false)
	, bDefaultValueIsReadOnly(false)
	, bDefaultValueIsIgnored(false)
	, bIsDiffing(false)
	, bAdvancedView(false)
	, bDisplayAsMutableRef(false)
	, bAllowFriendlyName(true)
	, bOrphanedPin(false)
	, bWasTrashed(false)
{
}

UEdGraphPin* UEdGraphPin::CreatePin(UEdGraphNode* InOwningNode)
{
	check(InOwningNode);
	return new UEdGraphPin(InOwningNode, FGuid::NewGuid());
}

bool UEdGraphPin::Modify(bool bAlwaysMarkDirty)
{
	return OwningNode && OwningNode->Modify(bAlwaysMarkDirty);
}

void UEdGraphPin::MakeLinkTo(UEdGraphPin* ToPin)
{
	if (!ToPin)
	{
		return;
	}
	check(!bWasTrashed && !ToPin->bWasTrashed);
	if (LinkedTo.Contains(ToPin))
	{
		check(ToPin->LinkedTo.Contains(this));
		return;
	}

	UEdGraphNode* const MyNode = GetOwningNode();
	UEdGraphNode* const TheirNode = ToPin->GetOwningNode();
	checkf(MyNode->GetGraph() == TheirNode->GetGraph(), TEXT("Pins of two graphs cannot be linked: %s and %s"), *MyNode->GetPathName(),
		*TheirNode->GetPathName());
	Modify();
	ToPin->Modify();
	LinkedTo.Add(ToPin);
	ToPin->LinkedTo.Add(this);
	NotifyLinkChange(this);
	NotifyLinkChange(ToPin);
	// A ghost that the editor placed becomes a real node when the user links it.
	for (UEdGraphNode* const Node : {MyNode, TheirNode})
	{
		if (Node->IsAutomaticallyPlacedGhostNode())
		{
			Node->SetEnabledState(ENodeEnabledState::Enabled, false);
			Node->NodeComment.Empty();
			Node->bCommentBubbleMakeVisible = false;
		}
	}
}

void UEdGraphPin::BreakLinkTo(UEdGraphPin* ToPin)
{
	if (!ToPin || !LinkedTo.Contains(ToPin))
	{
		return;
	}
	Modify();
	ToPin->Modify();
	LinkedTo.Remove(ToPin);
	ToPin->LinkedTo.Remove(this);
	NotifyLinkChange(this);
	NotifyLinkChange(ToPin);
}

void UEdGraphPin::BreakAllPinLinks(bool bNotifyNodes)
{
	if (LinkedTo.Num() == 0)
	{
		return;
	}
	const TArray<UEdGraphPin*> OldLinks = LinkedTo;
	for (UEdGraphPin* const OldLink : OldLinks)
	{
		BreakLinkTo(OldLink);
		if (bNotifyNodes && OldLink->GetOwningNodeUnchecked())
		{
			OldLink->GetOwningNode()->NodeConnectionListChanged();
		}
	}
	if (bNotifyNodes && OwningNode)
	{
		OwningNode->NodeConnectionListChanged();
	}
}

void UEdGraphPin::TransferPersistentData(const UEdGraphPin& SourcePin)
{
	PinId = SourcePin.PinId;
	bAdvancedView = bAdvancedView || SourcePin.bAdvancedView;
	if (!PersistentGuid.IsValid())
	{
		PersistentGuid = SourcePin.PersistentGuid;
	}
	// The node decides about a pin that it makes read-only; every other default is the user's.
	if (!bDefaultValueIsReadOnly && !SourcePin.bDefaultValueIsReadOnly)
	{
		DefaultValue = SourcePin.DefaultValue;
		DefaultObject = SourcePin.DefaultObject;
		DefaultTextValue = SourcePin.DefaultTextValue;
	}
}

void UEdGraphPin::MovePersistentDataFromOldPin(UEdGraphPin& SourcePin)
{
	TransferPersistentData(SourcePin);

	const TArray<UEdGraphPin*> MovedLinks = MoveTemp(SourcePin.LinkedTo);
	SourcePin.LinkedTo.Empty();
	for (UEdGraphPin* const Linked : MovedLinks)
	{
		const int32 Index = Linked->LinkedTo.Find(&SourcePin);
		if (Index == INDEX_NONE)
		{
			continue;
		}
		if (LinkedTo.Contains(Linked))
		{
			Linked->LinkedTo.RemoveAt(Index);
			continue;
		}
		LinkedTo.Add(Linked);
		Linked->LinkedTo[Index] = this;
	}

	if (SourcePin.ReferencePassThroughConnection)
	{
		SourcePin.ReferencePassThroughConnection->ReferencePassThroughConnection = this;
		ReferencePassThroughConnection = SourcePin.ReferencePassThroughConnection;
		SourcePin.ReferencePassThroughConnection = nullptr;
	}
	if (SourcePin.SubPins.Num() > 0 && SubPins.Num() == 0)
	{
		SubPins = MoveTemp(SourcePin.SubPins);
		SourcePin.SubPins.Empty();
		for (UEdGraphPin* const SubPin : SubPins)
		{
			SubPin->ParentPin = this;
		}
		bHidden = true;
	}
}

void UEdGraphPin::CopyPersistentDataFromOldPin(const UEdGraphPin& SourcePin)
{
	TransferPersistentData(SourcePin);
	const TArray<UEdGraphPin*> OldLinks = SourcePin.LinkedTo;
	for (UEdGraphPin* const OldLink : OldLinks)
	{
		LinkedTo.AddUnique(OldLink);
		OldLink->LinkedTo.AddUnique(this);
	}
}

void UEdGraphPin::AssignByRefPassThroughConnection(UEdGraphPin* InTargetPin)
{
	if (!InTargetPin || GetOwningNode() != InTargetPin->GetOwningNode() || Direction == InTargetPin->Direction)
	{
		return;
	}
	ReferencePassThroughConnection = InTargetPin;
	InTargetPin->ReferencePassThroughConnection = this;
}

FText UEdGraphPin::GetDisplayName() const
{
	const UEdGraphSchema* const Schema = GetSchema();
	return Schema ? Schema->GetPinDisplayName(this) : FText::FromName(PinName);
}

const UEdGraphSchema* UEdGraphPin::GetSchema() const
{
	return OwningNode ? OwningNode->GetSchema() : nullptr;
}

FString UEdGraphPin::GetLinkInfoString(const FString& InFunctionName, const FString& InInfoData, const UEdGraphPin* InToPin) const
{
	const FString FromName = OwningNode ? OwningNode->GetName() : FString(TEXT("None"));
	const FString ToName = InToPin && InToPin->OwningNode ? InToPin->OwningNode->GetName() : FString(TEXT("None"));
	const FString ToPinName = InToPin ? InToPin->GetName() : FString(TEXT("None"));
	return FString::Printf(TEXT("%s %s: %s.%s to %s.%s"), *InFunctionName, *InInfoData, *FromName, *GetName(), *ToName, *ToPinName);
}

bool UEdGraphPin::SafeSetHidden(bool bIsHidden)
{
	if (bHidden == bIsHidden || (bIsHidden && (LinkedTo.Num() > 0 || ParentPin)))
	{
		return false;
	}
	bHidden = bIsHidden;
	return true;
}

void UEdGraphPin::ResetDefaultValue()
{
	DefaultValue.Empty();
	AutogeneratedDefaultValue.Empty();
	DefaultObject = nullptr;
	DefaultTextValue = FText::GetEmpty();
}

FString UEdGraphPin::GetDefaultAsString() const
{
	if (DefaultObject)
	{
		return DefaultObject->GetPathName();
	}
	return DefaultTextValue.IsEmpty() ? DefaultValue : DefaultTextValue.ToString();
}

FText UEdGraphPin::GetDefaultAsText() const
{
	if (DefaultObject)
	{
		return FText::FromString(DefaultObject->GetPathName());
	}
	return DefaultTextValue.IsEmpty() ? FText::FromString(DefaultValue) : DefaultTextValue;
}

bool UEdGraphPin::IsDefaultAsStringEmpty() const
{
	return !DefaultObject && DefaultTextValue.IsEmpty() && DefaultValue.IsEmpty();
}

void UEdGraphPin::GetDefaultValueAndType(FString& OutValue, FString& OutType) const
{
	OutValue = GetDefaultAsString();
	OutType = PinType.PinCategory.ToString();
}

bool UEdGraphPin::DoesDefaultValueMatchAutogenerated() const
{
	const UEdGraphSchema* const Schema = GetSchema();
	return Schema ? Schema->DoesDefaultValueMatchAutogenerated(*this)
				  : GetDefaultAsString().Equals(AutogeneratedDefaultValue, ESearchCase::CaseSensitive);
}

bool UEdGraphPin::AreOrphanPinsEnabled()
{
	return true;
}

void UEdGraphPin::MarkAsGarbage()
{
	if (bWasTrashed)
	{
		return;
	}
	for (UEdGraphPin* const Linked : LinkedTo)
	{
		Linked->LinkedTo.Remove(this);
	}
	LinkedTo.Empty();
	for (UEdGraphPin* const SubPin : SubPins)
	{
		if (SubPin->ParentPin == this)
		{
			SubPin->ParentPin = nullptr;
		}
	}
	SubPins.Empty();
	if (ParentPin)
	{
		ParentPin->SubPins.Remove(this);
		ParentPin = nullptr;
	}
	if (ReferencePassThroughConnection)
	{
		ReferencePassThroughConnection->ReferencePassThroughConnection = nullptr;
		ReferencePassThroughConnection = nullptr;
	}
	OwningNode = nullptr;
	bWasTrashed = true;

	TArray<UEdGraphPin*>& TrashedPins = GetTrashedPins();
	[[maybe_unused]] static const FDelegateHandle PurgeHandle = FCoreUObjectDelegates::GetPostGarbageCollect().AddStatic(
		&UEdGraphPin::Purge);
	TrashedPins.Add(this);
}

void UEdGraphPin::Purge()
{
	TArray<UEdGraphPin*>& TrashedPins = GetTrashedPins();
	for (UEdGraphPin* const Pin : TrashedPins)
	{
		delete Pin;
	}
	TrashedPins.Empty();
	ResolveAllPinReferences();
}

void UEdGraphPin::AddStructReferencedObjects(FReferenceCollector& Collector) const
{
	UEdGraphPin* const This = const_cast<UEdGraphPin*>(this);
	Collector.AddReferencedObject(This->DefaultObject);
	for (FForeignLink& Foreign : This->ForeignLinks)
	{
		Collector.AddReferencedObject(Foreign.Node);
	}
	Collector.AddReferencedObject(This->PinType.PinSubCategoryMemberReference.MemberParent);
	// A type that only a pin names must live as long as the pin does.
	Collector.AddReferencedObject(This->PinType.PinSubCategoryObject);
	Collector.AddReferencedObject(This->PinType.PinValueType.TerminalSubCategoryObject);
}

void UEdGraphPin::SanitizePinsPostUndoRedo(UEdGraphNode* Node, const TArray<UEdGraphPin*>& Pins)
{
	for (UEdGraphPin* const Pin : Pins)
	{
		Pin->LinkedTo.RemoveAll([Pin](UEdGraphPin* Linked)
			{ return !Linked || Linked->bWasTrashed || !Linked->LinkedTo.Contains(Pin); });
	}
}

void UEdGraphPin::SanitizeFamilies(const TArray<UEdGraphPin*>& Pins)
{
	TSet<const UEdGraphPin*> Family;
	for (const UEdGraphPin* const Pin : Pins)
	{
		Family.Add(Pin);
	}
	for (UEdGraphPin* const Pin : Pins)
	{
		if (Pin->ParentPin && !(Family.Contains(Pin->ParentPin) && Pin->ParentPin->SubPins.Contains(Pin)))
		{
			Pin->ParentPin = nullptr;
		}
		if (Pin->ReferencePassThroughConnection && Pin->ReferencePassThroughConnection->ReferencePassThroughConnection != Pin)
		{
			Pin->ReferencePassThroughConnection = nullptr;
		}
	}
	for (UEdGraphPin* const Pin : Pins)
	{
		// A pin above a circle that it is no part of never comes back to itself.
		const UEdGraphPin* Ancestor = Pin->ParentPin;
		for (int32 Level = 0; Ancestor && Ancestor != Pin && Level < Pins.Num(); ++Level)
		{
			Ancestor = Ancestor->ParentPin;
		}
		if (Ancestor == Pin)
		{
			Pin->ParentPin = nullptr;
		}
	}
	for (UEdGraphPin* const Pin : Pins)
	{
		TSet<const UEdGraphPin*> Seen;
		Pin->SubPins.RemoveAll(
			[Pin, &Family, &Seen](const UEdGraphPin* SubPin)
			{
				bool bAlreadyThere = false;
				Seen.Add(SubPin, &bAlreadyThere);
				return bAlreadyThere || !Family.Contains(SubPin) || SubPin->ParentPin != Pin;
			});
	}
}

UEdGraphPin_Deprecated::UEdGraphPin_Deprecated(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bHidden(false)
	, bNotConnectable(false)
	, bDefaultValueIsReadOnly(false)
	, bDefaultValueIsIgnored(false)
	, bAdvancedView(false)
{
}
