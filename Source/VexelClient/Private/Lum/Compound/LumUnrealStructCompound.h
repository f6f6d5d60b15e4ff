#pragma once

#include "Lum/LumCompound.h"

class UScriptStruct;

/** The fields of a struct value. The value must outlive it. */
class FLumUnrealStructCompound : public ILumCompound
{
public:
	FLumUnrealStructCompound(const UScriptStruct* InStruct, void* InData)
		: Struct(InStruct)
		, Data(InData)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	TVexelExpected<void> CheckStruct() const;

	const UScriptStruct* Struct;
	void* Data;
};
