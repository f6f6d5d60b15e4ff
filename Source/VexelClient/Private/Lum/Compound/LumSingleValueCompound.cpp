#include "Lum/Compound/LumSingleValueCompound.h"

#include "Lum/LumPropertyCollector.h"
#include "Lum/Property/LumForwardingProperty.h"

TVexelExpected<void> FLumSingleValueCompound::Iterate(ILumPropertyCollector& Collector) const
{
	const TSharedRef<ILumProperty> Named = MakeShared<FLumIndexedForwardingProperty>(TVexelPropId(TEXT("value")), Value);
	VEXEL_TRY_VOID(Collector.Property(Named), "while processing single value property");
	return {};
}
