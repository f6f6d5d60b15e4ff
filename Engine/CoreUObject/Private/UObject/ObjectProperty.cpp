#include "UObject/ObjectProperty.h"

#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyTag.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

IMPLEMENT_ABSTRACT_FIELD(FObjectPropertyBase)
IMPLEMENT_FIELD(FObjectProperty)
IMPLEMENT_FIELD(FClassProperty)
IMPLEMENT_FIELD(FWeakObjectProperty)
IMPLEMENT_FIELD(FLazyObjectProperty)
IMPLEMENT_FIELD(FSoftObjectProperty)
IMPLEMENT_FIELD(FSoftClassProperty)
IMPLEMENT_FIELD(FInterfaceProperty)

namespace
{
FString GetClassCPPName(const UClass* Class)
{
	return Class ? FString(Class->GetPrefixCPP()) + Class->GetName() : FString(TEXT("UObject"));
}

FString MakeTemplateCPPType(FString* ExtendedTypeText, const TCHAR* Template, const FString& Argument)
{
	if (!ExtendedTypeText)
	{
		return FString::Printf(TEXT("%s<%s>"), Template, *Argument);
	}
	*ExtendedTypeText = TEXT("<") + Argument + TEXT(">");
	return Template;
}

/** The saved types whose values are soft paths. */
bool IsSoftPathTag(const FPropertyTag& Tag)
{
	return Tag.IsType(TEXT("SoftObjectProperty")) || Tag.IsType(TEXT("SoftClassProperty")) || Tag.IsType(TEXT("AssetObjectProperty")) ||
		Tag.IsType(TEXT("AssetClassProperty")) ||
		(Tag.IsType(TEXT("StructProperty")) && (Tag.StructName == TEXT("SoftObjectPath") || Tag.StructName == TEXT("SoftClassPath")));
}
}

void FObjectPropertyBase::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << PropertyClass;
	if (Ar.IsLoading() && PropertyClass && !PropertyClass->IsA(UClass::StaticClass()))
	{
		PropertyClass = UObject::StaticClass();
		Ar.SetError();
	}
}

void FObjectPropertyBase::PostDuplicate(const FField& InField)
{
	PropertyClass = static_cast<const FObjectPropertyBase&>(InField).PropertyClass;
	Super::PostDuplicate(InField);
}

void FObjectPropertyBase::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(PropertyClass);
}

bool FObjectPropertyBase::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && PropertyClass == static_cast<const FObjectPropertyBase*>(Other)->PropertyClass;
}

bool FObjectPropertyBase::ContainsInstancedObjectProperty() const
{
	return HasAnyPropertyFlags(CPF_InstancedReference | CPF_ContainsInstancedReference);
}

void FObjectPropertyBase::FitLoadedValue(FArchive& Ar, void* Value) const
{
	UObject* const Object = Ar.IsLoading() && PropertyClass ? GetObjectPropertyValue(Value) : nullptr;
	if (!Object || Object->IsA(PropertyClass) || PropertyClass->bStandsInForUnknown)
	{
		return;
	}
	// While a class is rebuilt, values of its old and new layouts stand for one another.
	if ((Object->GetClass()->ClassFlags | PropertyClass->ClassFlags) & CLASS_NewerVersionExists)
	{
		return;
	}
	UObject* const Fitting = UE::CoreUObject::FitPlaceholder(Object, PropertyClass);
	SetObjectPropertyValue(Value, Fitting);
	if (!Fitting)
	{
		UE_LOG(LogClass, Warning, TEXT("%s: %s holds %s, which is no %s; the reference is cleared"), *Ar.GetArchiveName(), *GetPathName(),
			*Object->GetFullName(), *PropertyClass->GetName());
	}
}

FString FObjectPropertyBase::GetInnerCPPTypeName() const
{
	return GetClassCPPName(PropertyClass);
}

bool FObjectPropertyBase::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	UObject* const ObjectA = GetObjectPropertyValue(A);
	UObject* const ObjectB = B ? GetObjectPropertyValue(B) : nullptr;
	if (ObjectA == ObjectB)
	{
		return true;
	}
	if (!ObjectA || !ObjectB || ObjectA->GetClass() != ObjectB->GetClass() ||
		!(PortFlags & (PPF_DeepComparison | PPF_DeepCompareInstances)))
	{
		return false;
	}
	// Instanced sub-objects are equal when all that they hold is. Only parts are compared so, which keeps the walk within a tree.
	if (!HasAnyPropertyFlags(CPF_InstancedReference) || ObjectA->GetFName() != ObjectB->GetFName())
	{
		return false;
	}
	for (TFieldIterator<FProperty> It(ObjectA->GetClass()); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			if (It->ShouldPort() && !It->Identical_InContainer(ObjectA, ObjectB, Index, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

FString FObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (HasAnyPropertyFlags(CPF_TObjectPtr))
	{
		return MakeTemplateCPPType(ExtendedTypeText, TEXT("TObjectPtr"), GetInnerCPPTypeName());
	}
	return GetInnerCPPTypeName() + TEXT("*");
}

void FObjectProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		Collector.AddReferencedObject(GetPropertyValuePtr(Value)[Index], ReferencingObject);
	}
}

EConvertFromTypeResult FObjectProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.IsType(GetID()) || Tag.IsType(TEXT("ObjectProperty")) || Tag.IsType(TEXT("ClassProperty")) ||
		Tag.IsType(TEXT("ObjectPtrProperty")))
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	UObject* Object = nullptr;
	if (IsSoftPathTag(Tag))
	{
		FSoftObjectPath Path;
		Ar << Path;
		Object = Path.TryLoad();
	}
	else if (Tag.IsType(TEXT("InterfaceProperty")))
	{
		Ar << Object;
	}
	else
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	SetObjectPropertyValue(Data, Object && PropertyClass && Object->IsA(PropertyClass) ? Object : nullptr);
	return EConvertFromTypeResult::Converted;
}

void FClassProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << MetaClass;
	if (Ar.IsLoading() && !(MetaClass && MetaClass->IsA(UClass::StaticClass())))
	{
		MetaClass = UObject::StaticClass();
	}
}

void FClassProperty::PostDuplicate(const FField& InField)
{
	MetaClass = static_cast<const FClassProperty&>(InField).MetaClass;
	Super::PostDuplicate(InField);
}

void FClassProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(MetaClass);
}

bool FClassProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && MetaClass == static_cast<const FClassProperty*>(Other)->MetaClass;
}

FString FClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (HasAnyPropertyFlags(CPF_UObjectWrapper))
	{
		return MakeTemplateCPPType(ExtendedTypeText, TEXT("TSubclassOf"), GetClassCPPName(MetaClass));
	}
	return TEXT("UClass*");
}

FString FWeakObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return MakeTemplateCPPType(
		ExtendedTypeText, HasAnyPropertyFlags(CPF_AutoWeak) ? TEXT("TAutoWeakObjectPtr") : TEXT("TWeakObjectPtr"), GetInnerCPPTypeName());
}

FString FLazyObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return MakeTemplateCPPType(ExtendedTypeText, TEXT("TLazyObjectPtr"), GetInnerCPPTypeName());
}

bool FLazyObjectProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return B ? GetPropertyValue(A) == GetPropertyValue(B) : GetPropertyValue(A).IsNull();
}

FString FSoftObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return MakeTemplateCPPType(ExtendedTypeText, TEXT("TSoftObjectPtr"), GetInnerCPPTypeName());
}

UObject* FSoftObjectProperty::LoadObjectPropertyValue(const void* PropertyValueAddress) const
{
	return GetPropertyValue(PropertyValueAddress).LoadSynchronous();
}

bool FSoftObjectProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return B ? GetPropertyValue(A) == GetPropertyValue(B) : GetPropertyValue(A).IsNull();
}

EConvertFromTypeResult FSoftObjectProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.IsType(GetID()) || IsSoftPathTag(Tag))
	{
		FSoftObjectPath Path;
		Ar << Path;
		SetPropertyValue(Data, FSoftObjectPtr(Path));
		return EConvertFromTypeResult::Converted;
	}
	if (Tag.IsType(TEXT("ObjectProperty")) || Tag.IsType(TEXT("ClassProperty")) || Tag.IsType(TEXT("ObjectPtrProperty")))
	{
		UObject* Object = nullptr;
		Ar << Object;
		SetObjectPropertyValue(Data, Object);
		return EConvertFromTypeResult::Converted;
	}
	if (Tag.IsType(TEXT("StrProperty")) || Tag.IsType(TEXT("NameProperty")))
	{
		FString Text;
		if (Tag.IsType(TEXT("NameProperty")))
		{
			FName Name;
			Ar << Name;
			Text = Name.ToString();
		}
		else
		{
			Ar << Text;
		}
		SetPropertyValue(Data, FSoftObjectPtr(FSoftObjectPath(Text)));
		return EConvertFromTypeResult::Converted;
	}
	return EConvertFromTypeResult::CannotConvert;
}

void FSoftObjectProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FSoftObjectPtr& Pointer = GetPropertyValue(PropertyValue);
	// The object's path of today, if it was renamed while the pointer held it.
	const UObject* const Object = Pointer.Get();
	const FSoftObjectPath Path = Object ? FSoftObjectPath(Object) : Pointer.GetUniqueID();
	Path.ExportTextItem(ValueStr, Path, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FSoftObjectProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FSoftObjectPath Path;
	const TCHAR* const Start = Buffer;
	if (!Path.ImportTextItem(Buffer, PortFlags, OwnerObject, ErrorText))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not an object's path"), Start);
	}
	SetPropertyValue(PropertyValue, FSoftObjectPtr(Path));
	return Buffer;
}

void FSoftClassProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << MetaClass;
	if (Ar.IsLoading() && !(MetaClass && MetaClass->IsA(UClass::StaticClass())))
	{
		MetaClass = UObject::StaticClass();
	}
}

void FSoftClassProperty::PostDuplicate(const FField& InField)
{
	MetaClass = static_cast<const FSoftClassProperty&>(InField).MetaClass;
	Super::PostDuplicate(InField);
}

void FSoftClassProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(MetaClass);
}

bool FSoftClassProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && MetaClass == static_cast<const FSoftClassProperty*>(Other)->MetaClass;
}

FString FSoftClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return MakeTemplateCPPType(ExtendedTypeText, TEXT("TSoftClassPtr"), GetClassCPPName(MetaClass));
}

void FInterfaceProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << InterfaceClass;
	if (Ar.IsLoading() && InterfaceClass && !InterfaceClass->IsA(UClass::StaticClass()))
	{
		InterfaceClass = nullptr;
		Ar.SetError();
	}
}

void FInterfaceProperty::PostDuplicate(const FField& InField)
{
	InterfaceClass = static_cast<const FInterfaceProperty&>(InField).InterfaceClass;
	Super::PostDuplicate(InField);
}

void FInterfaceProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(InterfaceClass);
}

bool FInterfaceProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && InterfaceClass == static_cast<const FInterfaceProperty*>(Other)->InterfaceClass;
}

FString FInterfaceProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return MakeTemplateCPPType(ExtendedTypeText, TEXT("TScriptInterface"),
		TEXT("I") + (InterfaceClass ? InterfaceClass->GetName() : FString(TEXT("Interface"))));
}

bool FInterfaceProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetPropertyValue(A).GetObject() == (B ? GetPropertyValue(B).GetObject() : nullptr);
}

bool FInterfaceProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return EnumHasAnyFlags(InReferenceType, EPropertyObjectReferenceType::Strong);
}

void FInterfaceProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		FScriptInterface& Interface = GetPropertyValuePtr(Value)[Index];
		UObject* Object = Interface.GetObject();
		Collector.AddReferencedObject(Object, ReferencingObject);
		if (!Object)
		{
			Interface.SetObject(nullptr);
		}
	}
}

void FInterfaceProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	FScriptInterface& Interface = *GetPropertyValuePtr(Value);
	UObject* Object = Interface.GetObject();
	Ar << Object;
	if (Object != Interface.GetObject() || Ar.IsLoading())
	{
		Interface.SetObject(Object);
		Interface.SetInterface(Object ? Object->GetInterfaceAddress(InterfaceClass) : nullptr);
	}
}

void FInterfaceProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += FObjectPropertyBase::GetExportPath(GetPropertyValue(PropertyValue).GetObject(), Parent, ExportRootScope, PortFlags);
}

const TCHAR* FInterfaceProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	TObjectPtr<UObject> Object;
	const TCHAR* const Start = Buffer;
	if (!FObjectPropertyBase::ParseObjectPropertyValue(this, OwnerObject, nullptr, PortFlags, Buffer, Object))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not an object reference"), Start);
	}
	if (Object && InterfaceClass && !Object->GetClass()->ImplementsInterface(InterfaceClass))
	{
		return FPropertyHelpers::RefuseText(
			ErrorText, this, *FString::Printf(TEXT("does not implement %s"), *InterfaceClass->GetName()), Start);
	}
	FScriptInterface& Interface = *GetPropertyValuePtr(PropertyValue);
	Interface.SetObject(Object);
	Interface.SetInterface(Object ? Object->GetInterfaceAddress(InterfaceClass) : nullptr);
	return Buffer;
}
