#pragma once

#include "Lum/LumProperty.h"

class FProperty;

/** An engine property with the memory of one value of it. What all kinds of such properties answer alike. */
class FLumUnrealBaseProperty
{
public:
	/** Data is the value's address; whoever owns it must outlive this. */
	FLumUnrealBaseProperty(const FProperty* InProperty, void* InData)
		: Property(InProperty)
		, Data(InData)
	{
	}

	TVexelExpected<TVexelPropId> ReadPropId() const;
	TVexelExpected<TVexelPropTypeId> ReadOwnerTypeId() const;
	TVexelExpected<TVexelPropTypeId> ReadValueTypeId() const;
	TVexelExpected<EPropertyFlags> ReadFlags() const;
	TVexelExpected<FString> ReadCategory() const;

protected:
	TVexelExpected<void> CheckProperty() const;
	/** The whole value in the engine's text form. False where the engine has none. */
	bool ExportText(FString& OutText) const;

	const FProperty* Property;
	void* Data;
};

/** The getters of the base, as those of one of the property interfaces. */
template <typename InterfaceType>
class TLumUnrealProperty : public InterfaceType, protected FLumUnrealBaseProperty
{
public:
	using FLumUnrealBaseProperty::FLumUnrealBaseProperty;

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return ReadPropId(); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override { return ReadOwnerTypeId(); }
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override { return ReadValueTypeId(); }
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return ReadFlags(); }
	virtual TVexelExpected<FString> GetCategory() const override { return ReadCategory(); }
};

/** Makes the kind of Lum property that fits an engine property. */
class FLumUnrealPropertyFactory
{
public:
	/** False for a property whose values no Blueprint type covers (a delegate, a fixed-size array). */
	static bool CanCreate(const FProperty& Property);
	/** Null where that is false. */
	static TSharedPtr<ILumProperty> CreateSubProperty(const FProperty& Property, void* Data);
};
