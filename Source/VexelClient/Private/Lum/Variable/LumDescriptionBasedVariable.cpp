#include "Lum/Variable/LumDescriptionBasedVariable.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"

#include "Engine/Blueprint.h"

FLumDescriptionBasedVariable::FLumDescriptionBasedVariable(UBlueprint& Blueprint, FName InName)
	: Name(InName)
	, WeakBlueprint(&Blueprint)
{
}

TVexelExpected<UBlueprint*> FLumDescriptionBasedVariable::GetBlueprint() const
{
	return FLumHelper::GetValid(WeakBlueprint, TEXT("Blueprint object is not valid"));
}

TVexelExpected<const FBPVariableDescription*> FLumDescriptionBasedVariable::FindDescription(
	const TArray<FBPVariableDescription>& Descriptions) const
{
	const FBPVariableDescription* const Description = Descriptions.FindByPredicate([this](const FBPVariableDescription& Variable)
		{ return Variable.VarName == Name; });
	if (!Description)
	{
		return VEXEL_ERROR(FLumError_Read, "Variable '%s' not found", *Name.ToString());
	}
	return Description;
}

TVexelExpected<TVexelPropId> FLumDescriptionBasedVariable::GetPropId() const
{
	return TVexelPropId(Name.ToString());
}

TVexelExpected<TVexelPropTypeId> FLumDescriptionBasedVariable::GetOwnerTypeId() const
{
	VEXEL_TRY(const UBlueprint* const Blueprint, GetBlueprint());
	const UClass* const Class = Blueprint->GeneratedClass ? Blueprint->GeneratedClass : Blueprint->SkeletonGeneratedClass;
	if (!Class)
	{
		return VEXEL_ERROR(FLumError_Read, "Property does not have a valid owner struct!");
	}
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Class);
}

TVexelExpected<TVexelPropTypeId> FLumDescriptionBasedVariable::GetValueTypeId() const
{
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	return FVexelBlueprintPropTypeBuilder::MakeId(Description->VarType);
}

TVexelExpected<EPropertyFlags> FLumDescriptionBasedVariable::GetFlags() const
{
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	return static_cast<EPropertyFlags>(Description->PropertyFlags);
}

TVexelExpected<FString> FLumDescriptionBasedVariable::GetCategory() const
{
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	return Description->Category.ToString();
}

TVexelExpected<TSharedRef<FJsonValue>> FLumDescriptionBasedVariable::JsonExportValue(const FLumContext& Context) const
{
	VEXEL_TRY(const TSharedPtr<ILumProperty> Value, CreateLumValueWrapper());
	if (Value)
	{
		return Value->JsonExportValue(Context);
	}
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	return MakeShared<FJsonValueString>(Description->DefaultValue);
}
