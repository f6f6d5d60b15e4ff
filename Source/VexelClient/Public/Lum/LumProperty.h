#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "UObject/ObjectMacros.h"
#include "VexelExpected.h"
#include "VexelId.h"

class FLumContext;
class ILumCollectionCompound;
class ILumCompound;
class ILumCompoundProperty;

/**
 * One named value with a type, somewhere inside a Blueprint. It refers to live memory: use it before anything else changes the
 * object that it came from. Game thread.
 */
class ILumProperty
{
public:
	virtual ~ILumProperty() = default;

	virtual TVexelExpected<TVexelPropId> GetPropId() const = 0;
	/** Type id of the struct or class that declares it. */
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const = 0;
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const = 0;
	virtual TVexelExpected<EPropertyFlags> GetFlags() const = 0;
	virtual TVexelExpected<FString> GetCategory() const = 0;

	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const = 0;

	/** This property where its value has properties of its own, else null. */
	virtual const ILumCompoundProperty* AsCompoundProperty() const { return nullptr; }

	/** Id, type, value and flags of the property. Flags that are not set have no key. */
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportPropertyObject(const FLumContext& Context) const;

private:
	TVexelExpected<TSharedRef<FJsonObject>> MakePropertyObject(const FLumContext& Context) const;
};

/** A property whose value has properties of its own. */
class ILumCompoundProperty : public ILumProperty
{
public:
	/** Null where the value is an object and there is none. */
	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const = 0;

	virtual const ILumCompoundProperty* AsCompoundProperty() const override { return this; }
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;
};

/** A property that is an array, a set or a map. */
class ILumCollectionProperty : public ILumCompoundProperty
{
public:
	virtual TVexelExpected<int32> GetNum() const = 0;
	virtual TVexelExpected<TSharedPtr<ILumCollectionCompound>> GetCollectionCompound() const = 0;

	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override;
};
