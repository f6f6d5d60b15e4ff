#pragma once

#include "Lum/LumCompound.h"
#include "UObject/WeakObjectPtr.h"

class FProperty;
class UObject;

/**
 * The properties of an object that a user can edit or a Blueprint can see. An export shows those that differ from the object's
 * archetype.
 */
class FLumUnrealObjectCompound : public ILumCompound
{
public:
	explicit FLumUnrealObjectCompound(UObject& Object);

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;
	virtual TVexelExpected<void> IterateForExport(ILumPropertyCollector& Collector) const override;

private:
	TVexelExpected<UObject*> GetObject() const;
	TVexelExpected<void> IterateWhere(
		ILumPropertyCollector& Collector, TFunctionRef<bool(const FProperty& Property, const UObject& Object)> Condition) const;

	TWeakObjectPtr<UObject> WeakObject;
};
