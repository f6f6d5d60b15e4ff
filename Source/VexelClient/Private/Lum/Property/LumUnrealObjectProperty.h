#pragma once

#include "Lum/Property/LumUnrealBaseProperty.h"

/** A reference to an object that lives elsewhere. Its JSON is a reference string. */
class FLumUnrealObjectReferenceProperty : public TLumUnrealProperty<ILumProperty>
{
public:
	using TLumUnrealProperty::TLumUnrealProperty;

	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;

private:
	TVexelExpected<FString> MakeReference() const;
	/** Makes the value at Memory refer to what is at the path, or to nothing. */
	TVexelExpected<void> SetReference(void* Memory, const FString& Path) const;
	TVexelExpected<void> SetSoftReference(void* Memory, const FString& Path) const;
};

/**
 * An object that belongs to the one that refers to it. Its JSON is the object with its properties; a reference string where it is
 * too deep, or none. It takes an object of properties, or a reference to another part of its owner, or to none.
 */
class FLumUnrealObjectInstanceProperty : public TLumUnrealProperty<ILumCompoundProperty>
{
public:
	using TLumUnrealProperty::TLumUnrealProperty;

	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override;
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;

private:
	TVexelExpected<UObject*> GetObject() const;
	TVexelExpected<void> CheckCanBePart(const UObject& Object) const;
};
