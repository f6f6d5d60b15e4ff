#include "Lum/Compound/LumUnrealStructCompound.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

TVexelExpected<void> FLumUnrealStructCompound::CheckStruct() const
{
	if (!Struct)
	{
		return VEXEL_ERROR(FLumError_Read, "Struct type is not valid");
	}
	if (!Place->Resolve())
	{
		return VEXEL_ERROR(FLumError_Read, "Struct data is not valid");
	}
	return {};
}

TVexelExpected<TVexelPropTypeId> FLumUnrealStructCompound::GetCompoundType() const
{
	VEXEL_TRY_VOID(CheckStruct());
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Struct);
}

TVexelExpected<void> FLumUnrealStructCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY_VOID(CheckStruct());
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		VEXEL_TRY(const TSharedPtr<ILumProperty> Property, CreateSubProperty(**It), "while creating sub-property for '%s'", *It->GetName());
		if (Property)
		{
			VEXEL_TRY_VOID(Collector.Property(Property.ToSharedRef()), "while processing property '%s'", *It->GetName());
		}
	}
	return {};
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumUnrealStructCompound::Find(FStringView PropId) const
{
	VEXEL_TRY(const FProperty* const Field, FindField(PropId));
	if (!Field)
	{
		return TSharedPtr<ILumProperty>();
	}
	VEXEL_TRY(TSharedPtr<ILumProperty> Found, CreateSubProperty(*Field), "while creating sub-property for '%s'", *Field->GetName());
	return Found;
}

TVexelExpected<void> FLumUnrealStructCompound::FindInPlace(FStringView PropId, FLumPropertyRoom& OutProperty) const
{
	VEXEL_TRY(const FProperty* const Field, FindField(PropId));
	if (Field)
	{
		FLumUnrealPropertyFactory::CreateMember(Place, *Field, OutProperty);
	}
	return {};
}

TVexelExpected<const FProperty*> FLumUnrealStructCompound::FindField(FStringView Name) const
{
	VEXEL_TRY_VOID(CheckStruct());
	return FLumUnrealPropertyFactory::FindMember(*Struct, Name);
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumUnrealStructCompound::CreateSubProperty(const FProperty& Field) const
{
	// Who takes the fields one by one may do away with the struct meanwhile.
	VEXEL_TRY_VOID(CheckStruct());
	return FLumUnrealPropertyFactory::CreateSubProperty(MakeShared<FLumValuePlace>(Place, FLumValuePlace::EPart::Member, Field));
}
