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
	if (!Data)
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
		const TSharedPtr<ILumProperty> Property = FLumUnrealPropertyFactory::CreateSubProperty(**It, It->ContainerPtrToValuePtr<void>(Data));
		if (Property)
		{
			VEXEL_TRY_VOID(Collector.Property(Property.ToSharedRef()), "while processing property '%s'", *It->GetName());
		}
	}
	return {};
}
