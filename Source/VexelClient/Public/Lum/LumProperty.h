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
class ILumEditableVariable;

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

	/**
	 * Writes the value; each kind says which JSON it takes. Undo restores what was there when the caller has a transaction open. A value
	 * that is refused leaves the old one; of a compound's value, what came before the first refusal stays. A property that cannot be
	 * written refuses every value.
	 */
	virtual TVexelExpected<void> JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value);

	/** To be called when the value's compound was changed in place: a value that no object holds is written back then. */
	virtual TVexelExpected<void> OnImport();

	/** This property where its value has properties of its own, else null. */
	virtual const ILumCompoundProperty* AsCompoundProperty() const { return nullptr; }

	/** This property where it is a variable that takes a new descriptor, else null. */
	virtual ILumEditableVariable* AsEditableVariable() { return nullptr; }

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
	/** Takes an object, whose keys are ids of the compound's properties. */
	virtual TVexelExpected<void> JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;
};

/** A property that is an array, a set or a map. */
class ILumCollectionProperty : public ILumCompoundProperty
{
public:
	virtual TVexelExpected<int32> GetNum() const = 0;
	virtual TVexelExpected<TSharedPtr<ILumCollectionCompound>> GetCollectionCompound() const = 0;

	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override;
};
