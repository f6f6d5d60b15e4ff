#include "Lum/Variable/LumGraphLocalVariable.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariableEdits.h"
#include "Lum/Property/LumUnrealBaseProperty.h"
#include "Lum/Property/LumVariableVirtualProperty.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "UObject/UnrealType.h"

FLumGraphLocalVariable::FLumGraphLocalVariable(UBlueprint& Blueprint, UK2Node_FunctionEntry& Entry, FName InName)
	: FLumDescriptionBasedVariable(Blueprint, InName)
	, WeakEntry(&Entry)
{
}

TVexelExpected<TVexelVarScopeId> FLumGraphLocalVariable::GetVarScopeId() const
{
	return LumScope::Local();
}

TVexelExpected<const FBPVariableDescription*> FLumGraphLocalVariable::GetBpVariableDescription() const
{
	VEXEL_TRY(const UK2Node_FunctionEntry* const Entry, FLumHelper::GetValid(WeakEntry, TEXT("Graph does not have a valid function scope")));
	return FindDescription(Entry->LocalVariables);
}

TVexelExpected<void> FLumGraphLocalVariable::SetVariableDescriptor(const FLumVarDesc& Desc)
{
	VEXEL_TRY(const UK2Node_FunctionEntry* const Entry, FLumHelper::GetValid(WeakEntry, TEXT("Graph does not have a valid function scope")));
	return LumVariableEdits::ChangeLocal(*Entry->GetGraph(), Name, Desc);
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumGraphLocalVariable::CreateLumValueWrapper() const
{
	VEXEL_TRY(UBlueprint* const Blueprint, GetBlueprint());
	VEXEL_TRY(UK2Node_FunctionEntry* const Entry, FLumHelper::GetValid(WeakEntry, TEXT("Graph does not have a valid function scope")));
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	FLumEditBatch::BringUpToDate(*Blueprint);
	const UFunction* const Function = LumVariableEdits::FindFunction(*Entry->GetGraph());
	const FProperty* const Property = Function ? Function->FindPropertyByName(Name) : nullptr;
	if (!Property || !FLumUnrealPropertyFactory::CanCreate(*Property))
	{
		return TSharedPtr<ILumProperty>();
	}
	VEXEL_TRY(const TSharedRef<ILumProperty> Value,
		FLumUnrealVirtualProperty::Create<FLumLocalVariableVirtualProperty>(*Property, Description->DefaultValue, *Entry, Name));
	return Value;
}
