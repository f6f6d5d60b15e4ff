#pragma once

#include "Lum/LumCompound.h"
#include "Lum/Value/LumValuePlace.h"

class UScriptStruct;

/** The fields of a struct value. */
class FLumUnrealStructCompound : public ILumCompound
{
public:
	FLumUnrealStructCompound(const UScriptStruct* InStruct, const FLumValuePlaceRef& InPlace)
		: Struct(InStruct)
		, Place(InPlace)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;
	virtual TVexelExpected<TSharedPtr<ILumProperty>> Find(FStringView PropId) const override;
	virtual TVexelExpected<void> FindInPlace(FStringView PropId, FLumPropertyRoom& OutProperty) const override;

private:
	TVexelExpected<void> CheckStruct() const;
	/** Null where there is none of the name. */
	TVexelExpected<const FProperty*> FindField(FStringView Name) const;
	/** Null for a field whose values no Blueprint type covers. */
	TVexelExpected<TSharedPtr<ILumProperty>> CreateSubProperty(const FProperty& Field) const;

	const UScriptStruct* Struct;
	FLumValuePlaceRef Place;
};
