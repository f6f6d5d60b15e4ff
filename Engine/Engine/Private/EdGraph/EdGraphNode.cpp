#include "EdGraph/EdGraphNode.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraph/EdGraphSchema.h"
#include "Misc/FeedbackContext.h"
#include "Misc/Parse.h"
#include "Serialization/Archive.h"
#include "UObject/BlueprintsObjectVersion.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#define LOCTEXT_NAMESPACE "EdGraph"

namespace
{
/** Pixels of one character of a title, and of what stands beside it. */
constexpr int32 TitleCharacterWidth = 7;
constexpr int32 TitleMargin = 80;

/** Nodes that a node was linked to before an undo that is going on. */
TMap<const UEdGraphNode*, TArray<TWeakObjectPtr<UEdGraphNode>>>& GetFormerNeighbours()
{
	static TMap<const UEdGraphNode*, TArray<TWeakObjectPtr<UEdGraphNode>>> Neighbours;
	return Neighbours;
}
}

UEdGraphNode::UEdGraphNode(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bDisplayAsDisabled(false)
	, bUserSetEnabledState(false)
	, bHasCompilerMessage(false)
	, bCommentBubblePinned(false)
	, bCommentBubbleVisible(false)
	, bCommentBubbleMakeVisible(false)
	, bCanRenameNode(false)
{
}

void UEdGraphNode::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	for (const UEdGraphPin* const Pin : CastChecked<UEdGraphNode>(InThis)->Pins)
	{
		Pin->AddStructReferencedObjects(Collector);
	}
	Super::AddReferencedObjects(InThis, Collector);
}

// Pins

UEdGraphPin* UEdGraphNode::CreatePin(EEdGraphPinDirection Dir, const FEdGraphPinType& InPinType, const FName PinName, int32 Index)
{
	UEdGraphPin* const NewPin = UEdGraphPin::CreatePin(this);
	NewPin->PinName = PinName;
	NewPin->Direction = Dir;
	NewPin->PinType = InPinType;
	if (Pins.IsValidIndex(Index))
	{
		Pins.Insert(NewPin, Index);
	}
	else
	{
		Pins.Add(NewPin);
	}
	return NewPin;
}

UEdGraphPin* UEdGraphNode::CreatePin(EEdGraphPinDirection Dir, const FName PinCategory, const FName PinSubCategory,
	UObject* PinSubCategoryObject, const FName PinName, const FCreatePinParams& PinParams)
{
	FEdGraphPinType PinType(
		PinCategory, PinSubCategory, PinSubCategoryObject, PinParams.ContainerType, PinParams.bIsReference, PinParams.ValueTerminalType);
	PinType.bIsConst = PinParams.bIsConst;
	return CreatePin(Dir, PinType, PinName, PinParams.Index);
}

UEdGraphPin* UEdGraphNode::CreatePin(
	EEdGraphPinDirection Dir, const FName PinCategory, const FName PinName, const FCreatePinParams& PinParams)
{
	return CreatePin(Dir, PinCategory, NAME_None, nullptr, PinName, PinParams);
}

UEdGraphPin* UEdGraphNode::CreatePin(
	EEdGraphPinDirection Dir, const FName PinCategory, const FName PinSubCategory, const FName PinName, const FCreatePinParams& PinParams)
{
	return CreatePin(Dir, PinCategory, PinSubCategory, nullptr, PinName, PinParams);
}

UEdGraphPin* UEdGraphNode::CreatePin(EEdGraphPinDirection Dir, const FName PinCategory, UObject* PinSubCategoryObject, const FName PinName,
	const FCreatePinParams& PinParams)
{
	return CreatePin(Dir, PinCategory, NAME_None, PinSubCategoryObject, PinName, PinParams);
}

UEdGraphPin* UEdGraphNode::FindPin(const FNameParameterHelper PinName, const EEdGraphPinDirection Direction) const
{
	return FindPinByPredicate(
		[Name = *PinName, Direction](const UEdGraphPin* Pin)
		{ return Pin->PinName == Name && (Direction == EGPD_MAX || Pin->Direction == Direction); });
}

UEdGraphPin* UEdGraphNode::FindPinChecked(const FNameParameterHelper PinName, const EEdGraphPinDirection Direction) const
{
	UEdGraphPin* const Result = FindPin(PinName, Direction);
	check(Result);
	return Result;
}

UEdGraphPin* UEdGraphNode::FindPinById(const FGuid PinId) const
{
	return FindPinByPredicate([&PinId](const UEdGraphPin* Pin)
		{ return Pin->PinId == PinId; });
}

UEdGraphPin* UEdGraphNode::FindPinByIdChecked(const FGuid PinId) const
{
	UEdGraphPin* const Result = FindPinById(PinId);
	check(Result);
	return Result;
}

int32 UEdGraphNode::GetPinIndex(const UEdGraphPin* Pin) const
{
	return Pins.IndexOfByPredicate([Pin](const UEdGraphPin* Other)
		{ return Other == Pin; });
}

bool UEdGraphNode::RemovePin(UEdGraphPin* Pin)
{
	if (!Pin || !Pins.Contains(Pin))
	{
		return false;
	}
	Modify();
	const TArray<UEdGraphPin*> SubPins = Pin->SubPins;
	for (UEdGraphPin* const SubPin : SubPins)
	{
		RemovePin(SubPin);
	}
	Pin->BreakAllPinLinks();
	Pins.Remove(Pin);
	Pin->MarkAsGarbage();
	return true;
}

void UEdGraphNode::RemovePinAt(const int32 PinIndex, const EEdGraphPinDirection PinDirection)
{
	int32 Remaining = PinIndex;
	for (UEdGraphPin* const Pin : Pins)
	{
		if ((PinDirection == EGPD_MAX || Pin->Direction == PinDirection) && Remaining-- == 0)
		{
			RemovePin(Pin);
			return;
		}
	}
}

void UEdGraphNode::BreakAllNodeLinks()
{
	TSet<UEdGraphNode*> Neighbours = {this};
	for (UEdGraphPin* const Pin : Pins)
	{
		for (const UEdGraphPin* const Linked : Pin->LinkedTo)
		{
			Neighbours.Add(Linked->GetOwningNode());
		}
		Pin->BreakAllPinLinks();
	}
	for (UEdGraphNode* const Neighbour : Neighbours)
	{
		Neighbour->NodeConnectionListChanged();
	}
}

void UEdGraphNode::DestroyPinList(TArray<UEdGraphPin*>& InPins)
{
	for (UEdGraphPin* const Pin : InPins)
	{
		Pin->Modify();
		Pin->BreakAllPinLinks();
		Pin->MarkAsGarbage();
	}
	InPins.Empty();
}

// What a kind of node says of itself

bool UEdGraphNode::IsCompatibleWithGraph(const UEdGraph* TargetGraph) const
{
	return CanCreateUnderSpecifiedSchema(TargetGraph->GetSchema());
}

bool UEdGraphNode::CanPasteHere(const UEdGraph* TargetGraph) const
{
	return CanCreateUnderSpecifiedSchema(TargetGraph->GetSchema());
}

FText UEdGraphNode::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::FromString(GetClass()->GetName());
}

FLinearColor UEdGraphNode::GetNodeTitleColor() const
{
	return FLinearColor(0.4f, 0.62f, 1.0f);
}

FLinearColor UEdGraphNode::GetNodeCommentColor() const
{
	return FLinearColor::White;
}

FText UEdGraphNode::GetTooltipText() const
{
	const FText ClassToolTip = GetClass()->GetToolTipText();
	return ClassToolTip.IsEmpty() ? GetNodeTitle(ENodeTitleType::ListView) : ClassToolTip;
}

FString UEdGraphNode::GetDocumentationExcerptName() const
{
	return FString::Printf(TEXT("%s%s"), GetClass()->GetPrefixCPP(), *GetClass()->GetName());
}

FString UEdGraphNode::GetFindReferenceSearchString() const
{
	return GetNodeTitle(ENodeTitleType::ListView).ToString();
}

FText UEdGraphNode::GetPinDisplayName(const UEdGraphPin* Pin) const
{
	return Pin->GetDisplayName();
}

void UEdGraphNode::GetPinHoverText(const UEdGraphPin& Pin, FString& HoverTextOut) const
{
	HoverTextOut = Pin.PinToolTip.IsEmpty() ? Pin.GetDisplayName().ToString() : Pin.PinToolTip;
}

bool UEdGraphNode::IsDeprecated() const
{
	return GetClass()->HasAnyClassFlags(CLASS_Deprecated);
}

// What happens to a node

FText UEdGraphNode::GetKeywords() const
{
	return GetClass()->GetMetaDataText(TEXT("Keywords"));
}

void UEdGraphNode::DestroyNode()
{
	if (UEdGraph* const Graph = GetGraph())
	{
		Graph->RemoveNode(this);
	}
}

void UEdGraphNode::OnUpdateCommentText(const FString& NewComment)
{
	if (NodeComment.Equals(NewComment, ESearchCase::CaseSensitive))
	{
		return;
	}
	Modify();
	NodeComment = NewComment;
}

// State

UEdGraph* UEdGraphNode::GetGraph() const
{
	return Cast<UEdGraph>(GetOuter());
}

const UEdGraphSchema* UEdGraphNode::GetSchema() const
{
	const UEdGraph* const Graph = GetGraph();
	return Graph ? Graph->GetSchema() : nullptr;
}

void UEdGraphNode::CreateNewGuid()
{
	NodeGuid = FGuid::NewGuid();
}

void UEdGraphNode::ClearCompilerMessage()
{
	bHasCompilerMessage = false;
	ErrorType = 0;
	ErrorMsg.Empty();
}

void UEdGraphNode::SetEnabledState(const ENodeEnabledState NewEnabledState, const bool bUserAction)
{
	EnabledState = NewEnabledState;
	bUserSetEnabledState = bUserAction;
}

bool UEdGraphNode::IsAutomaticallyPlacedGhostNode() const
{
	return !bUserSetEnabledState && EnabledState == ENodeEnabledState::Disabled;
}

void UEdGraphNode::MakeAutomaticallyPlacedGhostNode()
{
	EnabledState = ENodeEnabledState::Disabled;
	bUserSetEnabledState = false;
	NodeComment = LOCTEXT("DefaultEventHelpMessage", "This node is disabled and will not be called.\nDrag off pins to build functionality.")
					  .ToString();
	bCommentBubblePinned = false;
	bCommentBubbleVisible = false;
}

int32 UEdGraphNode::EstimateNodeWidth() const
{
	return NodeWidth > 0 ? NodeWidth : GetNodeTitle(ENodeTitleType::FullTitle).ToString().Len() * TitleCharacterWidth + TitleMargin;
}

void UEdGraphNode::SnapToGrid(uint32 GridSnapSize)
{
	if (GridSnapSize > 0)
	{
		NodePosX = static_cast<int32>(GridSnapSize) * FMath::RoundToInt(static_cast<float>(NodePosX) / static_cast<float>(GridSnapSize));
		NodePosY = static_cast<int32>(GridSnapSize) * FMath::RoundToInt(static_cast<float>(NodePosY) / static_cast<float>(GridSnapSize));
	}
}

FString UEdGraphNode::GetPropertyNameAndValueForDiff(const FProperty* Prop, const uint8* PropertyAddr) const
{
	FString Value;
	Prop->ExportTextItem_Direct(Value, PropertyAddr, nullptr, nullptr, PPF_None);
	return FString::Printf(TEXT("%s: %s"), *Prop->GetName(), *Value);
}

// UObject

void UEdGraphNode::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar.UsingCustomVersion(FBlueprintsObjectVersion::GUID);
	const bool bIsPackage = Ar.IsLoading() || Ar.IsPersistent();
	if (!bIsPackage || Ar.CustomVer(FBlueprintsObjectVersion::GUID) >= FBlueprintsObjectVersion::EdGraphPinOptimized)
	{
		UEdGraphPin::SerializeAsOwningNode(Ar, Pins);
	}
	else if (Ar.IsSaving() && Pins.Num() > 0)
	{
		// Pins were objects of their own in packages of that version.
		Ar.SetError();
	}
}

void UEdGraphNode::PostLoad()
{
	Super::PostLoad();
	ConvertDeprecatedPins();
	if (!NodeGuid.IsValid())
	{
		CreateNewGuid();
	}
}

void UEdGraphNode::PostDuplicate(bool bDuplicateForPIE)
{
	Super::PostDuplicate(bDuplicateForPIE);
	if (bDuplicateForPIE)
	{
		return;
	}
	CreateNewGuid();
	// A copy of the node alone still names the links of the original, which do not link back.
	UEdGraphPin::SanitizePinsPostUndoRedo(this, Pins);
}

void UEdGraphNode::PreEditUndo()
{
	Super::PreEditUndo();
	TArray<TWeakObjectPtr<UEdGraphNode>> Neighbours;
	for (const UEdGraphPin* const Pin : Pins)
	{
		for (const UEdGraphPin* const Linked : Pin->LinkedTo)
		{
			Neighbours.AddUnique(Linked->GetOwningNodeUnchecked());
		}
	}
	GetFormerNeighbours().Add(this, MoveTemp(Neighbours));
}

void UEdGraphNode::PostEditUndo()
{
	Super::PostEditUndo();
	UEdGraphPin::SanitizePinsPostUndoRedo(this, Pins);
	// A neighbour that the transaction knows nothing of keeps its end of a link that this node's restored state does not have.
	TArray<TWeakObjectPtr<UEdGraphNode>> Neighbours;
	GetFormerNeighbours().RemoveAndCopyValue(this, Neighbours);
	for (const TWeakObjectPtr<UEdGraphNode>& Neighbour : Neighbours)
	{
		if (UEdGraphNode* const Node = Neighbour.Get(true))
		{
			UEdGraphPin::SanitizePinsPostUndoRedo(Node, Node->Pins);
		}
	}
}

void UEdGraphNode::PostEditImport()
{
	Super::PostEditImport();
	ConvertDeprecatedPins();
}

void UEdGraphNode::BeginDestroy()
{
	for (UEdGraphPin* const Pin : Pins)
	{
		Pin->MarkAsGarbage();
	}
	Pins.Empty();
	Super::BeginDestroy();
}

void UEdGraphNode::ExportCustomProperties(FOutputDevice& Out, uint32 Indent)
{
	for (const UEdGraphPin* const Pin : Pins)
	{
		FString PinText;
		Pin->ExportTextItem(PinText, PPF_Delimited);
		Out.Logf(TEXT("%sCustomProperties Pin %s\r\n"), FCString::Spc(static_cast<int32>(Indent)), *PinText);
	}
}

void UEdGraphNode::ImportCustomProperties(const TCHAR* SourceText, FFeedbackContext* Warn)
{
	if (!FParse::Command(&SourceText, TEXT("Pin")))
	{
		return;
	}
	UEdGraphPin* const NewPin = UEdGraphPin::CreatePin(this);
	Pins.Add(NewPin);
	if (!NewPin->ImportTextItem(SourceText, PPF_Delimited, this, Warn))
	{
		Pins.Remove(NewPin);
		NewPin->MarkAsGarbage();
		return;
	}
	const bool bIdIsTaken = Pins.ContainsByPredicate([NewPin](const UEdGraphPin* Pin)
		{ return Pin != NewPin && Pin->PinId == NewPin->PinId; });
	if (bIdIsTaken || !NewPin->PinId.IsValid())
	{
		NewPin->PinId = FGuid::NewGuid();
	}
	UEdGraphPin::ResolveReferencesToPin(NewPin);
}

void UEdGraphNode::ConvertDeprecatedPins()
{
	if (DeprecatedPins.Num() == 0)
	{
		return;
	}
	// Links of the old form name the other pin's object; the object's pin is found by the id that both sides derive from its path.
	const auto MakeId = [](const UEdGraphPin_Deprecated& OldPin)
	{ return FGuid::NewDeterministicGuid(OldPin.GetPathName()); };
	TMap<const UEdGraphPin_Deprecated*, UEdGraphPin*> Converted;
	for (const UEdGraphPin_Deprecated* const OldPin : DeprecatedPins)
	{
		if (!OldPin || Converted.Contains(OldPin))
		{
			continue;
		}
		UEdGraphPin* const Pin = CreatePin(
			OldPin->Direction, OldPin->PinType, OldPin->PinName.IsEmpty() ? FName() : FName(*OldPin->PinName));
		Converted.Add(OldPin, Pin);
		Pin->PinId = MakeId(*OldPin);
		Pin->PinFriendlyName = OldPin->PinFriendlyName;
		Pin->PinToolTip = OldPin->PinToolTip;
		Pin->DefaultValue = OldPin->DefaultValue;
		Pin->AutogeneratedDefaultValue = OldPin->AutogeneratedDefaultValue;
		Pin->DefaultObject = OldPin->DefaultObject;
		Pin->DefaultTextValue = OldPin->DefaultTextValue;
		Pin->bHidden = OldPin->bHidden;
		Pin->bNotConnectable = OldPin->bNotConnectable;
		Pin->bDefaultValueIsReadOnly = OldPin->bDefaultValueIsReadOnly;
		Pin->bDefaultValueIsIgnored = OldPin->bDefaultValueIsIgnored;
		Pin->bAdvancedView = OldPin->bAdvancedView;
		Pin->PersistentGuid = OldPin->PersistentGuid;
	}
	for (const TPair<const UEdGraphPin_Deprecated*, UEdGraphPin*>& Pair : Converted)
	{
		for (const UEdGraphPin_Deprecated* const SubPin : Pair.Key->SubPins)
		{
			if (UEdGraphPin* const* const Found = Converted.Find(SubPin))
			{
				Pair.Value->SubPins.AddUnique(*Found);
				(*Found)->ParentPin = Pair.Value;
			}
		}
		for (const UEdGraphPin_Deprecated* const Linked : Pair.Key->LinkedTo)
		{
			const UEdGraphNode* const LinkedNode = Linked ? Cast<UEdGraphNode>(Linked->GetOuter()) : nullptr;
			// The side that is converted last finds the other one's pin and links both.
			UEdGraphPin* const LinkedPin = LinkedNode ? LinkedNode->FindPinById(MakeId(*Linked)) : nullptr;
			if (LinkedPin)
			{
				Pair.Value->LinkedTo.AddUnique(LinkedPin);
				LinkedPin->LinkedTo.AddUnique(Pair.Value);
			}
		}
	}
	for (UEdGraphPin_Deprecated* const OldPin : DeprecatedPins)
	{
		if (OldPin)
		{
			OldPin->MarkAsGarbage();
		}
	}
	DeprecatedPins.Empty();
}

#undef LOCTEXT_NAMESPACE
