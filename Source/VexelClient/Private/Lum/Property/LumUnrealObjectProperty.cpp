#include "Lum/Property/LumUnrealObjectProperty.h"

#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Value/LumComponentTemplate.h"
#include "Lum/Value/LumTemporaryValue.h"

#include "UObject/UnrealType.h"

namespace
{
TVexelExpected<FString> ReadReference(const FProperty& Property, const FJsonValue& Value)
{
	if (Value.Type != EJson::String)
	{
		return VEXEL_ERROR(FLumError_Import, "Expected string value for property '%s'", *Property.GetName());
	}
	VEXEL_TRY(FString Path, FLumHelper::ParseReferenceString(Value.AsString()), "while parsing reference string");
	return Path;
}

/** Refuses a class that is none of those that a class property is for. */
TVexelExpected<void> CheckMetaClass(const FProperty& Property, const UObject* Object)
{
	const FClassProperty* const Class = CastField<FClassProperty>(&Property);
	const FSoftClassProperty* const SoftClass = CastField<FSoftClassProperty>(&Property);
	const UClass* const MetaClass = Class ? Class->MetaClass : SoftClass ? SoftClass->MetaClass
																		 : nullptr;
	const UClass* const Given = Cast<UClass>(Object);
	if (MetaClass && Given && !Given->IsChildOf(MetaClass) && !Given->ImplementsInterface(MetaClass))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' is no class of a %s", *Given->GetPathName(), *MetaClass->GetName());
	}
	return {};
}
}

TVexelExpected<TSharedRef<FJsonValue>> FLumUnrealObjectReferenceProperty::JsonExportValue(const FLumContext&) const
{
	VEXEL_TRY(const FString Reference, MakeReference());
	return MakeShared<FJsonValueString>(Reference);
}

TVexelExpected<FString> FLumUnrealObjectReferenceProperty::MakeReference() const
{
	const void* const Data = GetData();
	if (!Data)
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

TVexelExpected<void> FLumUnrealObjectReferenceProperty::ImportValue(const FLumContext&, const TSharedRef<FJsonValue>& Value)
{
	const void* const Data = GetData();
	if (!Data)
	{
		return VEXEL_ERROR(FLumError_Import, "Property data is null");
	}
	VEXEL_TRY(const FString Path, ReadReference(*Property, *Value));
	const FLumTemporaryValue New(*Property, Data);
	VEXEL_TRY_VOID(SetReference(New.Get(), Path));
	return Place->Assign(New.Get());
}

TVexelExpected<void> FLumUnrealObjectReferenceProperty::SetReference(void* Memory, const FString& Path) const
{
	UObject* const Referrer = Place->GetOwner()->GetReferrer();
	if (Property->IsA<FSoftObjectProperty>())
	{
		return SetSoftReference(Memory, Path);
	}
	if (const FObjectPropertyBase* const ObjectProperty = CastField<FObjectPropertyBase>(Property))
	{
		VEXEL_TRY(UObject* const Object, FLumHelper::ResolveReference(Path, ObjectProperty->PropertyClass, Referrer));
		VEXEL_TRY_VOID(CheckMetaClass(*Property, Object));
		ObjectProperty->SetObjectPropertyValue(Memory, Object);
		return {};
	}
	if (const FInterfaceProperty* const Interface = CastField<FInterfaceProperty>(Property))
	{
		VEXEL_TRY(UObject* const Object, FLumHelper::ResolveReference(Path, Interface->InterfaceClass, Referrer));
		FScriptInterface New;
		New.SetObject(Object);
		New.SetInterface(Object ? Object->GetInterfaceAddress(Interface->InterfaceClass) : nullptr);
		Interface->SetPropertyValue(Memory, New);
		return {};
	}
	return VEXEL_ERROR(FLumError_Import, "Property is not an object property");
}

TVexelExpected<void> FLumUnrealObjectReferenceProperty::SetSoftReference(void* Memory, const FString& Path) const
{
	const FSoftObjectProperty* const Soft = CastFieldChecked<FSoftObjectProperty>(Property);
	if (!Path.IsEmpty() && (Path.Len() >= NAME_SIZE || !Path.StartsWith(TEXT("/"))))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' is no path of an object", *Path);
	}
	// What is not loaded may be anything, or not there yet.
	const FSoftObjectPath SoftPath(Path);
	UObject* const Loaded = SoftPath.ResolveObject();
	if (Loaded && !Loaded->IsA(Soft->PropertyClass))
	{
		return VEXEL_ERROR(
			FLumError_Import, "'%s' is a %s, not a %s", *Path, *Loaded->GetClass()->GetName(), *Soft->PropertyClass->GetName());
	}
	VEXEL_TRY_VOID(CheckMetaClass(*Property, Loaded));
	Soft->SetPropertyValue(Memory, FSoftObjectPtr(SoftPath));
	return {};
}

TVexelExpected<UObject*> FLumUnrealObjectInstanceProperty::GetObject() const
{
	const FObjectPropertyBase* const Object = CastField<FObjectPropertyBase>(Property);
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Read, "Property is not an object property");
	}
	const void* const Data = GetData();
	if (!Data)
	{
		return VEXEL_ERROR(FLumError_Read, "Property data is null");
	}
	UObject* const Value = Object->GetObjectPropertyValue(Data);
	return Value ? Value : LumComponentTemplate::Find(*Property, Place->GetOwner()->GetObject());
}

TVexelExpected<TSharedPtr<ILumCompound>> FLumUnrealObjectInstanceProperty::GetCompound() const
{
	VEXEL_TRY(UObject* const Object, GetObject());
	return Object ? TSharedPtr<ILumCompound>(MakeShared<FLumUnrealObjectCompound>(*Object, Place)) : nullptr;
}

TVexelExpected<void> FLumUnrealObjectInstanceProperty::ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value)
{
	if (Value->Type != EJson::String)
	{
		return ILumCompoundProperty::JsonImportValue(Context, Value);
	}
	const FObjectPropertyBase* const ObjectProperty = CastFieldChecked<FObjectPropertyBase>(Property);
	VEXEL_TRY(const FString Path, ReadReference(*Property, *Value));
	VEXEL_TRY(
		UObject* const Object, FLumHelper::ResolveReference(Path, ObjectProperty->PropertyClass, Place->GetOwner()->GetReferrer()));
	VEXEL_TRY(const UObject* const Current, GetObject());
	if (Object == Current)
	{
		return {};
	}
	if (LumComponentTemplate::Find(*Property, Place->GetOwner()->GetObject()))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' is a component of the blueprint", *Property->GetName());
	}
	if (Object)
	{
		VEXEL_TRY_VOID(CheckCanBePart(*Object));
	}
	const FLumTemporaryValue New(*Property);
	ObjectProperty->SetObjectPropertyValue(New.Get(), Object);
	return Place->Assign(New.Get());
}

TVexelExpected<void> FLumUnrealObjectInstanceProperty::CheckCanBePart(const UObject& Object) const
{
	const UObject* const Owner = Place->GetOwner()->GetReferrer();
	if (!Owner || &Object == Owner || Owner->IsIn(&Object))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' cannot be a part of itself", *Object.GetPathName());
	}
	if (Object.GetOuter() != Owner)
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' is a part of another object", *Object.GetPathName());
	}
	return {};
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
