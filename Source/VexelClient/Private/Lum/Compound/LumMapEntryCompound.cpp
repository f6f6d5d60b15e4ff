#include "Lum/Compound/LumMapEntryCompound.h"

#include "Lum/LumErrors.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/Property/LumForwardingProperty.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

namespace
{
TVexelExpected<void> CollectRole(ILumPropertyCollector& Collector, const TCHAR* Role, const FLumValuePlaceRef& Place)
{
	const TSharedPtr<ILumProperty> Inner = FLumUnrealPropertyFactory::CreateSubProperty(Place);
	if (!Inner)
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	return Collector.Property(MakeShared<FLumIndexedForwardingProperty>(TVexelPropId(Role), Inner.ToSharedRef()));
}
}

TVexelExpected<void> FLumMapEntryCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY_VOID(CollectRole(Collector, KeyId, Key), "while processing map entry key");
	VEXEL_TRY_VOID(CollectRole(Collector, ValueId, Value), "while processing map entry value");
	return {};
}
