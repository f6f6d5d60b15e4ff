#pragma once

#include "Lum/Property/LumUnrealBaseProperty.h"

/** A reference to an object that lives elsewhere. Its JSON is a reference string. */
class FLumUnrealObjectReferenceProperty : public TLumUnrealProperty<ILumProperty>
{
public:
	using TLumUnrealProperty::TLumUnrealProperty;

	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;

private:
	TVexelExpected<FString> MakeReference() const;
};

/**
 * An object that belongs to the one that refers to it. Its JSON is the object with its properties; a reference string where it is
 * too deep, or none.
 */
class FLumUnrealObjectInstanceProperty : public TLumUnrealProperty<ILumCompoundProperty>
{
public:
	using TLumUnrealProperty::TLumUnrealProperty;

	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override;
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;

private:
	TVexelExpected<UObject*> GetObject() const;
};
