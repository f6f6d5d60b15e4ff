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
	const TVexelExpected<TSharedPtr<ILumProperty>> Value = CreateLumValueWrapper();
	if (Value.HasValue() && Value.GetValue())
	{
		return Value.GetValue()->JsonExportValue(Context);
	}
	// A text that the type cannot read, such as one of a package, is shown as it is.
	VEXEL_TRY(const FBPVariableDescription* const Description, GetBpVariableDescription());
	return MakeShared<FJsonValueString>(Description->DefaultValue);
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumDescriptionBasedVariable::GetValue() const
{
	if (!OpenValue)
	{
		VEXEL_TRY(OpenValue, CreateLumValueWrapper());
	}
	return OpenValue;
}

TVexelExpected<void> FLumDescriptionBasedVariable::JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value)
{
	VEXEL_TRY(const TSharedPtr<ILumProperty> Property, GetValue());
	if (!Property)
	{
		return VEXEL_ERROR(FLumError_Import, "Property '%s' cannot be changed", *Name.ToString());
	}
	return Property->JsonImportValue(Context, Value);
}

TVexelExpected<void> FLumDescriptionBasedVariable::OnImport()
{
	VEXEL_TRY(const TSharedPtr<ILumProperty> Property, GetValue());
	return Property ? Property->OnImport() : TVexelExpected<void>();
}

const ILumCompoundProperty* FLumDescriptionBasedVariable::AsCompoundProperty() const
{
	const TVexelExpected<TSharedPtr<ILumProperty>> Property = GetValue();
	return Property.HasValue() && Property.GetValue() ? Property.GetValue()->AsCompoundProperty() : nullptr;
}
