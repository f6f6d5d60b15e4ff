#include "Lum/Compound/LumNodeCompound.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumJsonPropertyCollector.h"
#include "Lum/LumVariableRules.h"
#include "Lum/Property/LumNameProperty.h"
#include "Lum/Variable/LumPinVariable.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_EditablePinBase.h"

namespace
{
bool HasEditablePins(const UEdGraphNode& Node)
{
	const UK2Node_EditablePinBase* const Editable = Cast<UK2Node_EditablePinBase>(&Node);
	return Editable && (Editable->IsEditable() || Editable->UserDefinedPins.Num() > 0);
}

/** A pin that only the compiler knows of. The parent of split pins is hidden, but its parts are not. */
bool IsHidden(const UEdGraphPin& Pin)
{
	return Pin.bHidden && Pin.LinkedTo.IsEmpty() && Pin.SubPins.IsEmpty();
}
}

TSharedRef<FLumNodeCompound> FLumNodeCompound::Create(UEdGraphNode& Node)
{
	if (HasEditablePins(Node))
	{
		return MakeShared<FLumEditablePinsNodeCompound>(Node);
	}
	return MakeShared<FLumNodeCompound>(Node);
}

FLumNodeCompound::FLumNodeCompound(UEdGraphNode& Node)
	: WeakNode(&Node)
{
}

TVexelExpected<UEdGraphNode*> FLumNodeCompound::GetNode() const
{
	return FLumHelper::GetValid(WeakNode, TEXT("Node object is not valid"));
}

TVexelExpected<TVexelPropTypeId> FLumNodeCompound::GetCompoundType() const
{
	VEXEL_TRY(const UEdGraphNode* const Node, GetNode());
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Node->GetClass());
}

TVexelExpected<void> FLumNodeCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY_VOID(IterateName(Collector));
	VEXEL_TRY_VOID(IteratePins(Collector, false));
	return IterateEditablePins(Collector);
}

TVexelExpected<void> FLumNodeCompound::IterateName(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY(const UEdGraphNode* const Node, GetNode());
	if (!Node->IsA<UK2Node_CustomEvent>())
	{
		return {};
	}
	VEXEL_TRY(const TVexelPropTypeId Type, GetCompoundType());
	const auto Read = [WeakNode = WeakNode]() -> TVexelExpected<FString>
	{
		VEXEL_TRY(const UEdGraphNode* const Named, FLumHelper::GetValid(WeakNode, TEXT("Node object is not valid")));
		return CastChecked<UK2Node_CustomEvent>(Named)->CustomFunctionName.ToString();
	};
	const auto Rename = [WeakNode = WeakNode](const FString& NewName) -> TVexelExpected<void>
	{
		VEXEL_TRY(UEdGraphNode* const Renamed, FLumHelper::GetValid(WeakNode, TEXT("Node object is not valid")));
		return FLumHelper::RenameNode(*Renamed, NewName);
	};
	VEXEL_TRY_VOID(Collector.Property(MakeShared<FLumNameProperty>(Type, TEXT("Expected string for node name"), Read, Rename)),
		"while registering editable node name property");
	return {};
}

TVexelExpected<void> FLumNodeCompound::IteratePins(ILumPropertyCollector& Collector, bool bSkipHidden) const
{
	VEXEL_TRY(const UEdGraphNode* const Node, GetNode());
	for (const UEdGraphPin* const Pin : Node->Pins)
	{
		if (Pin && !(bSkipHidden && IsHidden(*Pin)))
		{
			VEXEL_TRY_VOID(Collector.Property(MakePin(*Node, *Pin)), "while iterating pin '%s' on node '%s'", *Pin->PinName.ToString(),
				*Node->GetName());
		}
	}
	return {};
}

TSharedRef<FLumPinVariable> FLumNodeCompound::MakePin(const UEdGraphNode&, const UEdGraphPin& Pin) const
{
	return MakeShared<FLumPinVariable>(Pin);
}

TVexelExpected<TSharedRef<FJsonObject>> FLumNodeCompound::JsonExportObject(const FLumContext& Context) const
{
	VEXEL_TRY(const UEdGraphNode* const Node, GetNode());
	VEXEL_TRY(const TVexelPropTypeId Type, GetCompoundType(), "while getting type id for node '%s'", *Node->GetName());

	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	constexpr int32 NumUsualFields = 6;
	Object->Values.Reserve(NumUsualFields);
	Object->SetStringField(TEXT("type"), Type.ToString());
	Object->SetStringField(TEXT("id"), Context.GetMapping().MakeNodeReference(*Node, true).ToString());
	Object->SetStringField(TEXT("node_type"), Context.GetMapping().MakeNodeTypeReference(*Node).ToString());
	Object->SetStringField(TEXT("guid"), Node->NodeGuid.ToString(EGuidFormats::Digits));

	FLumJsonPropertyCollector Properties(Context);
	VEXEL_TRY_VOID(IterateName(Properties), "while exporting properties and variables to JSON");
	Properties.MoveTo(Object, TEXT("properties"), TEXT("variables"));
	FLumJsonPropertyCollector Pins(Context);
	Pins.Reserve(Node->Pins.Num());
	VEXEL_TRY_VOID(IteratePins(Pins, true), "while exporting properties and variables to JSON");
	VEXEL_TRY_VOID(IterateEditablePins(Pins), "while exporting properties and variables to JSON");
	Pins.MoveTo(Object, TEXT("pins"), TEXT("editable_pins"));
	return Object;
}

TVexelExpected<TArray<TVexelVarScopeId>> FLumEditablePinsNodeCompound::GetVariableScopes() const
{
	VEXEL_TRY_VOID(GetEditableNode());
	return TArray<TVexelVarScopeId>{LumScope::In(), LumScope::Out()};
}

TVexelExpected<UK2Node_EditablePinBase*> FLumEditablePinsNodeCompound::GetEditableNode() const
{
	VEXEL_TRY(UEdGraphNode* const Node, GetNode());
	UK2Node_EditablePinBase* const Editable = Cast<UK2Node_EditablePinBase>(Node);
	if (!Editable)
	{
		return VEXEL_ERROR(FLumError_Read, "Node does not support editable pins");
	}
	return Editable;
}

TVexelExpected<void> FLumEditablePinsNodeCompound::AddVariable(const FLumVarDesc& Desc)
{
	VEXEL_TRY_VOID(LumVariableRules::CheckComplete(Desc));
	VEXEL_TRY(UK2Node_EditablePinBase* const Node, GetEditableNode());
	VEXEL_TRY(const FName Name, LumVariableRules::MakeName(Desc.PropId));
	TArray<UK2Node_EditablePinBase*> Nodes;
	VEXEL_TRY_VOID(FLumHelper::GetAllNodesForUserPinEdit(*Node, Nodes));
	return FLumHelper::AddUserDefinedPin(Nodes, Name, Desc);
}

TVexelExpected<void> FLumEditablePinsNodeCompound::RemoveVariable(const TVexelVarScopeId&, const TVexelPropId& PropId)
{
	VEXEL_TRY(UK2Node_EditablePinBase* const Node, GetEditableNode());
	VEXEL_TRY(const FName Name, LumVariableRules::MakeName(PropId));
	TArray<UK2Node_EditablePinBase*> Nodes;
	VEXEL_TRY_VOID(FLumHelper::GetAllNodesForUserPinEdit(*Node, Nodes));
	return FLumHelper::RemoveUserDefinedPin(Nodes, Name);
}

TSharedRef<FLumPinVariable> FLumEditablePinsNodeCompound::MakePin(const UEdGraphNode& Node, const UEdGraphPin& Pin) const
{
	const UK2Node_EditablePinBase* const Editable = Cast<UK2Node_EditablePinBase>(&Node);
	return MakeShared<FLumPinVariable>(Pin, Editable && Editable->UserDefinedPinExists(Pin.PinName));
}

TVexelExpected<void> FLumEditablePinsNodeCompound::IterateEditablePins(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY(const UK2Node_EditablePinBase* const Node, GetEditableNode());
	for (const UEdGraphPin* const Pin : Node->Pins)
	{
		if (Pin && Node->UserDefinedPinExists(Pin->PinName))
		{
			VEXEL_TRY_VOID(Collector.Variable(MakeShared<FLumEditablePinVariable>(*Pin)), "while iterating pin '%s' on node '%s'",
				*Pin->PinName.ToString(), *Node->GetName());
		}
	}
	return {};
}
