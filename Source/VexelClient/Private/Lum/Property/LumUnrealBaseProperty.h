#pragma once

#include "Lum/LumProperty.h"
#include "Lum/Value/LumValueOwner.h"
#include "Lum/Value/LumValuePlace.h"

class FLumPropertyRoom;
class FProperty;
class UObject;
class UStruct;

/** An engine property with the place of one value of it. What all kinds of such properties answer alike. */
class FLumUnrealBaseProperty
{
public:
	explicit FLumUnrealBaseProperty(const FLumValuePlaceRef& InPlace)
		: Property(&InPlace->GetProperty())
		, Place(InPlace)
	{
	}

	TVexelExpected<TVexelPropId> ReadPropId() const;
	TVexelExpected<TVexelPropTypeId> ReadOwnerTypeId() const { return ReadOwnerTypeIdOf(*Property); }
	TVexelExpected<TVexelPropTypeId> ReadValueTypeId() const;
	TVexelExpected<EPropertyFlags> ReadFlags() const;
	TVexelExpected<FString> ReadCategory() const;

	static TVexelExpected<TVexelPropTypeId> ReadOwnerTypeIdOf(const FProperty& Property);

protected:
	TVexelExpected<void> CheckProperty() const;
	/** The value's memory as of now; null when it is gone. */
	void* GetData() const { return Place->Resolve(); }
	/** The whole value in the engine's text form. False where the engine has none. */
	bool ExportText(FString& OutText) const;
	/** Writes the value that the text, which must be the engine's form of one, stands for. What the text leaves out stays. */
	TVexelExpected<void> ImportText(const FString& Text) const;

	const FProperty* Property;
	FLumValuePlaceRef Place;
};

/** The base as one of the property interfaces. */
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
	virtual TVexelExpected<void> JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override
	{
		return Place->GetOwner()->Change(*Place, EPropertyChangeType::ValueSet, [this, &Context, &Value]()
			{ return ImportValue(Context, Value); });
	}

protected:
	/** What JsonImportValue does, as one change of the value. */
	virtual TVexelExpected<void> ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) = 0;
};

/** Makes the kind of Lum property that fits an engine property. */
class FLumUnrealPropertyFactory
{
public:
	/** The member of that name; null where there is none. */
	static const FProperty* FindMember(const UStruct& Struct, FStringView Name);

	/** False for a property whose values no Blueprint type covers (a delegate, a fixed-size array). */
	static bool CanCreate(const FProperty& Property);
	/** Null where that is false. */
	static TSharedPtr<ILumProperty> CreateSubProperty(const FLumValuePlaceRef& Place);
	/** The same for one that is not kept; leaves the room empty where that is false. */
	static void CreateSubProperty(const FLumValuePlaceRef& Place, FLumPropertyRoom& OutProperty);
	/** The same for a member of the owner, or of the struct at the place above. */
	static void CreateMember(const TSharedRef<ILumValueOwner>& Owner, const FProperty& Member, FLumPropertyRoom& OutProperty);
	static void CreateMember(const FLumValuePlaceRef& Above, const FProperty& Member, FLumPropertyRoom& OutProperty);
	/** As CreateSubProperty, for a property of the object that the owner is. */
	static TVexelExpected<TSharedPtr<ILumProperty>> CreateMember(const TSharedRef<ILumValueOwner>& Owner, const FProperty& Property);
};
