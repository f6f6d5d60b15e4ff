#include "K2Node_MacroInstance.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

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

bool UK2Node_MacroInstance::HasKnownDefinition() const
{
	return GetMacroGraph() != nullptr;
}

void UK2Node_MacroInstance::AllocateDefaultPins()
{
	const UEdGraph* const Graph = GetMacroGraph();
	CreatePinsOfTunnels(FindTunnel(Graph, true), FindTunnel(Graph, false));
}

void UK2Node_MacroInstance::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	AllocateDefaultPins();
	if (ResolvedWildcardType.PinCategory.IsNone())
	{
		// Pasted text names no resolved type; the old pins show it.
		for (const UEdGraphPin* const Pin : Pins)
		{
			const UEdGraphPin* const Old = FindOldPin(OldPins, Pin->PinName, Pin->Direction);
			if (Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard && Old && Old->PinType.PinCategory != UEdGraphSchema_K2::PC_Wildcard)
			{
				ResolvedWildcardType = Old->PinType;
				break;
			}
		}
	}
	ApplyWildcardType();
}

void UK2Node_MacroInstance::ApplyWildcardType()
{
	if (ResolvedWildcardType.PinCategory.IsNone())
	{
		return;
	}
	for (UEdGraphPin* const Pin : Pins)
	{
		if (Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard)
		{
			SetValueType(*Pin, ResolvedWildcardType);
		}
	}
}

TArray<UEdGraphPin*> UK2Node_MacroInstance::GetWildcardPins() const
{
	TArray<UEdGraphPin*> Wildcards;
	for (const bool bEntry : {true, false})
	{
		const UK2Node_Tunnel* const Tunnel = FindTunnel(GetMacroGraph(), bEntry);
		for (const UEdGraphPin* const Inner : Tunnel ? Tunnel->Pins : TArray<UEdGraphPin*>())
		{
			UEdGraphPin* const Pin = Inner->PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard ? FindPin(Inner->PinName, bEntry ? EGPD_Input : EGPD_Output) : nullptr;
			if (Pin)
			{
				Wildcards.Add(Pin);
			}
		}
	}
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
	{ return Item->LinkedTo.Num() > 0 && Item->LinkedTo[0]->PinType.PinCategory != UEdGraphSchema_K2::PC_Wildcard; };
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
