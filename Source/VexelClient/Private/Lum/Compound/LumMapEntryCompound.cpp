#include "Lum/Compound/LumMapEntryCompound.h"

#include "Lum/LumErrors.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/Property/LumForwardingProperty.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

namespace
{
TVexelExpected<void> CollectRole(ILumPropertyCollector& Collector, const TCHAR* Role, const FProperty& Property, void* Data)
{
	const TSharedPtr<ILumProperty> Inner = FLumUnrealPropertyFactory::CreateSubProperty(Property, Data);
	if (!Inner)
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	return Collector.Property(MakeShared<FLumIndexedForwardingProperty>(TVexelPropId(Role), Inner.ToSharedRef()));
}
}

TVexelExpected<void> FLumMapEntryCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY_VOID(CollectRole(Collector, TEXT("key"), *Map.KeyProp, Key), "while processing map entry key");
	VEXEL_TRY_VOID(CollectRole(Collector, TEXT("value"), *Map.ValueProp, Value), "while processing map entry value");
	return {};
}
