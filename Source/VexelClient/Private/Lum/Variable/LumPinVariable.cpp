#include "Lum/Variable/LumPinVariable.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/VexelBlueprintNodePin.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphSchema.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_EditablePinBase.h"

namespace
{
const TCHAR* const EditablePinKey = TEXT("is_editable_pin");

/** Whether the pin's type has values that can be written down. */
bool CanHaveDefault(const UEdGraphPin& Pin)
{
	const FName Category = Pin.PinType.PinCategory;
	return Category != UEdGraphSchema_K2::PC_Exec && Category != UEdGraphSchema_K2::PC_Delegate &&
		Category != UEdGraphSchema_K2::PC_MCDelegate;
}

TVexelExpected<FString> GetDefaultText(const UEdGraphPin& Pin)
{
	if (!CanHaveDefault(Pin))
	{
		return FString();
	}
	return FLumHelper::GetPinDefaultValue(Pin);
}

/** What a pin's record says of its value: that of an input while nothing is linked to it. A null reference is no value. */
TVexelExpected<FString> GetRecordValue(const UEdGraphPin& Pin)
{
	if (Pin.Direction != EGPD_Input || Pin.bDefaultValueIsIgnored || Pin.HasAnyConnections())
	{
		return FString();
	}
	VEXEL_TRY(const FString Text, GetDefaultText(Pin));
	return Text == FLumHelper::MakeReferenceString(nullptr) ? FString() : Text;
}
}

FLumPinVariable::FLumPinVariable(const UEdGraphPin& Pin, TOptional<bool> bInEditablePin)
	: WeakNode(Pin.GetOwningNodeUnchecked())
	, PinId(Pin.PinId)
	, PinName(Pin.PinName)
	, bEditablePin(bInEditablePin)
{
}

TVexelExpected<const UEdGraphPin*> FLumPinVariable::GetPin() const
{
	const UEdGraphNode* const Node = WeakNode.Get();
	if (!Node)
	{
		return VEXEL_ERROR(FLumError_Read, "Node object is not valid");
	}
	const UEdGraphPin* const Pin = Node->FindPinById(PinId);
	if (!Pin)
	{
		return VEXEL_ERROR(FLumError_Read, "Pin '%s' not found in blueprint node.", *PinName.ToString());
	}
	return Pin;
}

TVexelExpected<TVexelPropId> FLumPinVariable::GetPropId() const
{
	return TVexelPropId(PinName.ToString());
}

TVexelExpected<TVexelPropTypeId> FLumPinVariable::GetOwnerTypeId() const
{
	const UEdGraphNode* const Node = WeakNode.Get();
	if (!Node)
	{
		return VEXEL_ERROR(FLumError_Read, "Node object is not valid");
	}
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Node->GetClass());
}

TVexelExpected<TVexelPropTypeId> FLumPinVariable::GetValueTypeId() const
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	return FVexelBlueprintPropTypeBuilder::MakeId(Pin->PinType);
}

TVexelExpected<EPropertyFlags> FLumPinVariable::GetFlags() const
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	EPropertyFlags Flags = CPF_None;
	Flags |= Pin->PinType.bIsReference ? CPF_ReferenceParm : CPF_None;
	Flags |= Pin->PinType.bIsConst ? CPF_ConstParm : CPF_None;
	return Flags;
}

TVexelExpected<TVexelVarScopeId> FLumPinVariable::GetVarScopeId() const
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	return Pin->Direction == EGPD_Input ? LumScope::In() : LumScope::Out();
}

TVexelExpected<TSharedRef<FJsonValue>> FLumPinVariable::JsonExportValue(const FLumContext&) const
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	VEXEL_TRY(const FString Text, GetDefaultText(*Pin));
	return MakeShared<FJsonValueString>(Text);
}

TVexelExpected<void> FLumPinVariable::JsonImportValue(const FLumContext&, const TSharedRef<FJsonValue>& Value)
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	return FLumHelper::SetPinDefaultValueFromJsonValue(*Pin->GetOwningNode()->FindPinById(PinId), Value);
}

ILumEditableVariable* FLumPinVariable::AsEditableVariable()
{
	const UK2Node_EditablePinBase* const Node = Cast<UK2Node_EditablePinBase>(WeakNode.Get());
	return Node && Node->IsEditable() && Node->UserDefinedPinExists(PinName) ? this : nullptr;
}

TVexelExpected<void> FLumPinVariable::SetVariableDescriptor(const FLumVarDesc& Desc)
{
	UK2Node_EditablePinBase* const Node = Cast<UK2Node_EditablePinBase>(WeakNode.Get());
	if (!Node)
	{
		return VEXEL_ERROR(FLumError_Write, "Node does not support editable pins");
	}
	TArray<UK2Node_EditablePinBase*> Nodes;
	VEXEL_TRY_VOID(FLumHelper::GetAllNodesForUserPinEdit(*Node, Nodes));
	return FLumHelper::ChangeUserDefinedPin(Nodes, PinName, Desc);
}

TVexelExpected<TSharedRef<FJsonObject>> FLumPinVariable::JsonExportPropertyObject(const FLumContext& Context) const
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	VEXEL_TRY(FString DefaultValue, GetRecordValue(*Pin));
	FVexelBlueprintNodePin Record(*Pin, Context.GetMapping(), MoveTemp(DefaultValue));
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Record.MoveToJson(Object);
	if (bEditablePin)
	{
		Object->SetBoolField(EditablePinKey, *bEditablePin);
	}
	return Object;
}

TVexelExpected<TSharedRef<FJsonObject>> FLumEditablePinVariable::JsonExportPropertyObject(const FLumContext& Context) const
{
	VEXEL_TRY(TSharedRef<FJsonObject> Object, ILumVariable::JsonExportPropertyObject(Context));
	Object->SetBoolField(EditablePinKey, true);
	return Object;
}

TVexelExpected<TVexelVarScopeId> FLumGraphInputOutputVariable::GetVarScopeId() const
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	return Pin->Direction == EGPD_Output ? LumScope::In() : LumScope::Out();
}

TVexelExpected<void> FLumGraphInputOutputVariable::SetVariableDescriptor(const FLumVarDesc& Desc)
{
	VEXEL_TRY(const UEdGraphPin* const Pin, GetPin());
	VEXEL_TRY(const TVexelVarScopeId ScopeId, GetVarScopeId());
	VEXEL_TRY(const EEdGraphPinDirection Direction, FLumHelper::CreatePinDirectionFromScopeId(ScopeId));
	return FLumHelper::ChangeFunctionInputOutput(*Pin->GetOwningNode()->GetGraph(), Direction, GetPinName(), Desc);
}

TVexelExpected<TSharedRef<FJsonObject>> FLumGraphInputOutputVariable::JsonExportPropertyObject(const FLumContext& Context) const
{
	return ILumVariable::JsonExportPropertyObject(Context);
}
