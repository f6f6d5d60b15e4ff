#include "Lum/Variable/LumGraphLocalVariable.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumUnrealVirtualProperty.h"

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

TVexelExpected<TSharedPtr<ILumProperty>> FLumGraphLocalVariable::CreateLumValueWrapper() const
{
	VEXEL_TRY(const UBlueprint* const Blueprint, GetBlueprint());
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	const UEdGraph* const Graph = WeakEntry.IsValid() ? WeakEntry->GetGraph() : nullptr;
	const UClass* const Class = Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass : Blueprint->GeneratedClass;
	const UFunction* const Function = Class && Graph ? Class->FindFunctionByName(Graph->GetFName()) : nullptr;
	const FProperty* const Property = Function ? Function->FindPropertyByName(Name) : nullptr;
	if (!Property)
	{
		return TSharedPtr<ILumProperty>();
	}
	VEXEL_TRY(const TSharedRef<ILumProperty> Value, FLumUnrealVirtualProperty::Create(*Property, Description->DefaultValue));
	return Value;
}
