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

void UK2Node_MacroInstance::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	if (Pin->LinkedTo.Num() == 0 || Pin->PinType.PinCategory != UEdGraphSchema_K2::PC_Wildcard || Pin->LinkedTo[0]->PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard)
	{
		return;
	}
	Modify();
	ResolvedWildcardType = Pin->LinkedTo[0]->PinType;
	ApplyWildcardType();
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
