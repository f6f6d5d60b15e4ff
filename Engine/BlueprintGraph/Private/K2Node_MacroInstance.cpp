#include "K2Node_MacroInstance.h"

#include "Engine/Blueprint.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
bool IsWildcard(const UEdGraphPin& Pin)
{
	return Pin.PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard;
}
}

UK2Node_MacroInstance::UK2Node_MacroInstance(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	bIsEditable = false;
}

const UK2Node_Tunnel* UK2Node_MacroInstance::FindTunnel(const UEdGraph* Graph, bool bEntry)
{
	TArray<UK2Node_Tunnel*> Tunnels;
	if (Graph)
	{
		Graph->GetNodesOfClass(Tunnels);
	}
	for (const UK2Node_Tunnel* const Tunnel : Tunnels)
	{
		const bool bIsEnd = Tunnel->GetClass() == UK2Node_Tunnel::StaticClass();
		if (bIsEnd && (bEntry ? Tunnel->bCanHaveOutputs : Tunnel->bCanHaveInputs))
		{
			return Tunnel;
		}
	}
	return nullptr;
}

bool UK2Node_MacroInstance::CanUseMacroOf(const UBlueprint& Source, const UBlueprint& User)
{
	const UClass* const Needed = Source.BlueprintType == BPTYPE_MacroLibrary ? Source.ParentClass.Get() : Source.GeneratedClass.Get();
	const UClass* const Self = User.ParentClass.Get();
	return &Source == &User || !Needed || (Self && Self->IsChildOf(Needed));
}

bool UK2Node_MacroInstance::CanPasteHere(const UEdGraph* TargetGraph) const
{
	return Super::CanPasteHere(TargetGraph) && GetMacroGraph() != TargetGraph;
}

void UK2Node_MacroInstance::PostPasteNode()
{
	Super::PostPasteNode();
	const UBlueprint* const Source = GetSourceBlueprint();
	const UBlueprint* const User = GetBlueprint();
	if (Source && User && !CanUseMacroOf(*Source, *User))
	{
		SetMacroGraph(nullptr);
	}
}

bool UK2Node_MacroInstance::HasKnownDefinition() const
{
	return GetMacroGraph() != nullptr;
}

void UK2Node_MacroInstance::AllocateDefaultPins()
{
	CreatePinsOfExpansion();
}

void UK2Node_MacroInstance::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	if (ResolvedWildcardType.PinCategory.IsNone())
	{
		// Pasted text names no resolved type; the old pins show it.
		ForEachPinOfExpansion([this, &OldPins](const UEdGraphPin& Inner, EEdGraphPinDirection Direction)
			{
				const UEdGraphPin* const Old = FindOldPin(OldPins, Inner.PinName, Direction);
				const bool bWasResolved = IsWildcard(Inner) && Old && !IsWildcard(*Old);
				if (bWasResolved && ResolvedWildcardType.PinCategory.IsNone())
				{
					ResolvedWildcardType = Old->PinType;
				} });
	}
	AllocateDefaultPins();
}

FEdGraphPinType UK2Node_MacroInstance::GetOuterType(const UEdGraphPin& Inner) const
{
	const bool bIsResolved = IsWildcard(Inner) && !ResolvedWildcardType.PinCategory.IsNone();
	return bIsResolved ? WithValueType(Inner.PinType, ResolvedWildcardType) : Inner.PinType;
}

TArray<UEdGraphPin*> UK2Node_MacroInstance::GetWildcardPins() const
{
	TArray<UEdGraphPin*> Wildcards;
	ForEachPinOfExpansion([this, &Wildcards](const UEdGraphPin& Inner, EEdGraphPinDirection Direction)
		{
			UEdGraphPin* const Pin = IsWildcard(Inner) ? FindPin(Inner.PinName, Direction) : nullptr;
			if (Pin)
			{
				Wildcards.Add(Pin);
			} });
	return Wildcards;
}

void UK2Node_MacroInstance::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	const TArray<UEdGraphPin*> Wildcards = GetWildcardPins();
	if (!Wildcards.Contains(Pin))
	{
		return;
	}
	const auto GivesType = [](const UEdGraphPin* Item)
	{ return Item->LinkedTo.Num() > 0 && !IsWildcard(*Item->LinkedTo[0]); };
	UEdGraphPin* const* const Giver = Wildcards.FindByPredicate(GivesType);
	const bool bIsResolved = !ResolvedWildcardType.PinCategory.IsNone();
	// The first link decides; what is linked later must fit, and with the last link the macro is open again.
	if (bIsResolved == (Giver != nullptr))
	{
		return;
	}
	Modify();
	ResolvedWildcardType = Giver ? (*Giver)->LinkedTo[0]->PinType : FEdGraphPinType();
	FollowLinkedType(Wildcards);
	if (UEdGraph* const Graph = GetGraph())
	{
		Graph->NotifyNodeChanged(this);
	}
}

bool UK2Node_MacroInstance::IsNodePure() const
{
	return Pins.Num() > 0 && !Pins.ContainsByPredicate([](const UEdGraphPin* Pin)
								 { return UEdGraphSchema_K2::IsExecPin(*Pin); });
}

FText UK2Node_MacroInstance::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UEdGraph* const Graph = GetMacroGraph();
	return Graph ? FText::FromString(FName::NameToDisplayString(Graph->GetName(), false)) : LOCTEXT("MacroInstance", "Macro instance");
}

FText UK2Node_MacroInstance::GetTooltipText() const
{
	const UK2Node_Tunnel* const Entry = FindTunnel(GetMacroGraph(), true);
	return Entry && !Entry->MetaData.ToolTip.IsEmpty() ? Entry->MetaData.ToolTip : GetNodeTitle(ENodeTitleType::ListView);
}

FText UK2Node_MacroInstance::GetKeywords() const
{
	const UK2Node_Tunnel* const Entry = FindTunnel(GetMacroGraph(), true);
	return Entry ? Entry->MetaData.Keywords : FText::GetEmpty();
}

FText UK2Node_MacroInstance::GetMenuCategory() const
{
	const UK2Node_Tunnel* const Entry = FindTunnel(GetMacroGraph(), true);
	return Entry ? Entry->MetaData.Category : FText::GetEmpty();
}

FText UK2Node_MacroInstance::GetCompactNodeTitle() const
{
	const UK2Node_Tunnel* const Entry = FindTunnel(GetMacroGraph(), true);
	return Entry ? Entry->MetaData.CompactNodeTitle : FText::GetEmpty();
}

bool UK2Node_MacroInstance::ShouldDrawCompact() const
{
	return !GetCompactNodeTitle().IsEmpty();
}

#undef LOCTEXT_NAMESPACE
