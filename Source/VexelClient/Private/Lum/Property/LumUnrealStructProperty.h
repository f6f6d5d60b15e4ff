#pragma once

#include "Lum/Property/LumUnrealBaseProperty.h"

/** A struct value. Its JSON is the struct with its fields; inside another struct, the engine's text form in a string. */
class FLumUnrealStructProperty : public TLumUnrealProperty<ILumCompoundProperty>
{
public:
	using TLumUnrealProperty::TLumUnrealProperty;

	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override;
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;

protected:
	/** Takes the engine's text form in a string, or an object of fields. */
	virtual TVexelExpected<void> ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;
};
