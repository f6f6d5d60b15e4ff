#include "Lum/Property/LumUnrealObjectProperty.h"

#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"

#include "UObject/UnrealType.h"

TVexelExpected<TSharedRef<FJsonValue>> FLumUnrealObjectReferenceProperty::JsonExportValue(const FLumContext&) const
{
	VEXEL_TRY(const FString Reference, MakeReference());
	return MakeShared<FJsonValueString>(Reference);
}

TVexelExpected<FString> FLumUnrealObjectReferenceProperty::MakeReference() const
{
	if (!Property || !Data)
	{
		return VEXEL_ERROR(FLumError_Export, "Property data is null");
	}
	// A soft reference has a path even where its object is not loaded.
	if (const FSoftObjectProperty* const Soft = CastField<FSoftObjectProperty>(Property))
	{
		return FLumHelper::MakeReferenceString(Soft->GetPropertyValue(Data).ToString());
	}
	if (const FObjectPropertyBase* const Object = CastField<FObjectPropertyBase>(Property))
	{
		return FLumHelper::MakeReferenceString(Object->GetObjectPropertyValue(Data));
	}
	if (const FInterfaceProperty* const Interface = CastField<FInterfaceProperty>(Property))
	{
		return FLumHelper::MakeReferenceString(Interface->GetPropertyValue(Data).GetObject());
	}
	return VEXEL_ERROR(FLumError_Export, "Property is not an object property");
}

TVexelExpected<UObject*> FLumUnrealObjectInstanceProperty::GetObject() const
{
	const FObjectPropertyBase* const Object = CastField<FObjectPropertyBase>(Property);
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Read, "Property is not an object property");
	}
	if (!Data)
	{
		return VEXEL_ERROR(FLumError_Read, "Property data is null");
	}
	return Object->GetObjectPropertyValue(Data);
}

TVexelExpected<TSharedPtr<ILumCompound>> FLumUnrealObjectInstanceProperty::GetCompound() const
{
	VEXEL_TRY(UObject* const Object, GetObject());
	return Object ? TSharedPtr<ILumCompound>(MakeShared<FLumUnrealObjectCompound>(*Object)) : nullptr;
}

TVexelExpected<TSharedRef<FJsonValue>> FLumUnrealObjectInstanceProperty::JsonExportValue(const FLumContext& Context) const
{
	VEXEL_TRY(UObject* const Object, GetObject());
	if (!Object || !Context.CanOpen(Object))
	{
		return MakeShared<FJsonValueString>(FLumHelper::MakeReferenceString(Object));
	}
	return ILumCompoundProperty::JsonExportValue(Context);
}
