#pragma once

#include "Lum/LumProperty.h"
#include "UObject/WeakObjectPtr.h"

class UObject;

/** The default object of a Blueprint's class, as the property "$ClassDefaultObject". */
class FLumClassDefaultObjectProperty : public ILumCompoundProperty
{
public:
	explicit FLumClassDefaultObjectProperty(UObject& DefaultObject);

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return TVexelPropId(TEXT("$ClassDefaultObject")); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override { return GetValueTypeId(); }
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override;
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return CPF_None; }
	virtual TVexelExpected<FString> GetCategory() const override { return FString(); }
	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override;

private:
	TWeakObjectPtr<UObject> WeakObject;
};
