#include "Lum/Variable/LumBlueprintMemberVariable.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariableEdits.h"
#include "Lum/LumVariableFlags.h"
#include "Lum/Property/LumUnrealBaseProperty.h"
#include "Lum/Property/LumVariableVirtualProperty.h"
#include "Lum/Value/LumObjectOwner.h"

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

TVexelExpected<TArray<ELumVarFlag>> FLumBlueprintMemberVariable::GetVariableFlags() const
{
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	return LumVariableFlags::Read(*Description);
}

TVexelExpected<void> FLumBlueprintMemberVariable::SetVariableDescriptor(const FLumVarDesc& Desc)
{
	VEXEL_TRY(UBlueprint* const Blueprint, GetBlueprint());
	return LumVariableEdits::ChangeMember(*Blueprint, Name, Desc);
}

TSharedPtr<ILumProperty> FLumBlueprintMemberVariable::FindCompiledValue(
	const UBlueprint& Blueprint, const FBPVariableDescription& Description) const
{
	const FProperty* const Property = LumVariableEdits::FindCompiled(Blueprint, Description);
	if (!Property)
	{
		return nullptr;
	}
	TVexelExpected<TSharedPtr<ILumProperty>> Member =
		FLumUnrealPropertyFactory::CreateMember(MakeShared<FLumObjectOwner>(*Blueprint.GeneratedClass->GetDefaultObject(false)), *Property);
	return Member.HasValue() ? Member.GetValue() : nullptr;
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumBlueprintMemberVariable::CreateLumValueWrapper() const
{
	VEXEL_TRY(UBlueprint* const Blueprint, GetBlueprint());
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	if (const TSharedPtr<ILumProperty> Compiled = FindCompiledValue(*Blueprint, *Description))
	{
		return Compiled;
	}
	FLumEditBatch::BringUpToDate(*Blueprint);
	const UClass* const Skeleton = LumSkeleton::Get(*Blueprint);
	const FProperty* const Property = Skeleton ? Skeleton->FindPropertyByName(Name) : nullptr;
	if (!Property || !FLumUnrealPropertyFactory::CanCreate(*Property))
	{
		return TSharedPtr<ILumProperty>();
	}
	VEXEL_TRY(const TSharedRef<ILumProperty> Value,
		FLumUnrealVirtualProperty::Create<FLumMemberVariableVirtualProperty>(*Property, Description->DefaultValue, *Blueprint, Name));
	return Value;
}
