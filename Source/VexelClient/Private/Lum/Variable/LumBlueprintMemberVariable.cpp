#include "Lum/Variable/LumBlueprintMemberVariable.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "Engine/Blueprint.h"
#include "UObject/UnrealType.h"

TVexelExpected<TVexelVarScopeId> FLumBlueprintMemberVariable::GetVarScopeId() const
{
	return LumScope::Member();
}

TVexelExpected<const FBPVariableDescription*> FLumBlueprintMemberVariable::GetBpVariableDescription() const
{
	VEXEL_TRY(const UBlueprint* const Blueprint, GetBlueprint());
	return FindDescription(Blueprint->NewVariables);
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumBlueprintMemberVariable::CreateLumValueWrapper() const
{
	VEXEL_TRY(const UBlueprint* const Blueprint, GetBlueprint());
	const UClass* const Class = Blueprint->GeneratedClass;
	UObject* const DefaultObject = Class ? Class->GetDefaultObject(false) : nullptr;
	const FProperty* const Property = Class ? Class->FindPropertyByName(Name) : nullptr;
	if (!DefaultObject || !Property)
	{
		return TSharedPtr<ILumProperty>();
	}
	return FLumUnrealPropertyFactory::CreateSubProperty(*Property, Property->ContainerPtrToValuePtr<void>(DefaultObject));
}
