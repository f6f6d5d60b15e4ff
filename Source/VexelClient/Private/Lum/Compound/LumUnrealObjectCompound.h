#pragma once

#include "Lum/LumCompound.h"
#include "Lum/Value/LumValuePlace.h"

class FProperty;
class UObject;

/**
 * The properties of an object that a user can edit or a Blueprint can see. An export shows those that differ from the object's
 * archetype, of a component those that differ from its class's defaults, and of a Blueprint's default object also the components that the
 * Blueprint and its parents add.
 */
class FLumUnrealObjectCompound : public ILumCompound
{
public:
	/** Within is the place of the reference through which the object was reached from the one that it is a part of. */
	explicit FLumUnrealObjectCompound(UObject& Object, const TSharedPtr<const FLumValuePlace>& Within = nullptr);

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;
	virtual TVexelExpected<void> IterateForExport(ILumPropertyCollector& Collector) const override;
	virtual TVexelExpected<TSharedPtr<ILumProperty>> Find(FStringView PropId) const override;
	virtual TVexelExpected<void> FindInPlace(FStringView PropId, FLumPropertyRoom& OutProperty) const override;

private:
	TVexelExpected<UObject*> GetObject() const;
	TVexelExpected<void> IterateWhere(
		ILumPropertyCollector& Collector, TFunctionRef<bool(const FProperty& Property, const UObject& Object)> Condition) const;

	/** Null where there is none of the name that is shown. */
	TVexelExpected<const FProperty*> FindMember(FStringView Name) const;
	/** Null for a property whose values no Blueprint type covers. */
	TVexelExpected<TSharedPtr<ILumProperty>> CreateSubProperty(const FProperty& Member) const;

	TSharedRef<ILumValueOwner> Owner;
};
