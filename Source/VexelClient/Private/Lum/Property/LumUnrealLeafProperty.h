#pragma once

#include "Lum/Property/LumUnrealBaseProperty.h"

/** A value without parts: a number, a bool, a string, a name, a text. Its JSON is a string, the engine's text form. */
class FLumUnrealLeafProperty : public TLumUnrealProperty<ILumProperty>
{
public:
	using TLumUnrealProperty::TLumUnrealProperty;

	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;

private:
	TVexelExpected<FString> ExportString() const;
};

/** A value of an enumeration. Its JSON is the enumerator's name. */
class FLumUnrealEnumProperty : public FLumUnrealLeafProperty
{
public:
	using FLumUnrealLeafProperty::FLumUnrealLeafProperty;

	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override;
};
