#include "UObject/Field.h"

#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/PropertyHelper.h"
#include "UObject/FieldPathProperty.h"
#include "UObject/EnumProperty.h"
#include "UObject/Package.h"
#include "UObject/PropertyOptional.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
TMap<FName, FFieldClass*> MakeNameToFieldClassMap()
{
	FFieldClass* const Classes[] = {FInt8Property::StaticClass(), FInt16Property::StaticClass(), FIntProperty::StaticClass(),
		FInt64Property::StaticClass(), FByteProperty::StaticClass(), FUInt16Property::StaticClass(), FUInt32Property::StaticClass(),
		FUInt64Property::StaticClass(), FFloatProperty::StaticClass(), FDoubleProperty::StaticClass(), FBoolProperty::StaticClass(),
		FEnumProperty::StaticClass(), FNameProperty::StaticClass(), FStrProperty::StaticClass(), FTextProperty::StaticClass(),
		FObjectProperty::StaticClass(), FClassProperty::StaticClass(), FWeakObjectProperty::StaticClass(),
		FLazyObjectProperty::StaticClass(), FSoftObjectProperty::StaticClass(), FSoftClassProperty::StaticClass(),
		FInterfaceProperty::StaticClass(), FStructProperty::StaticClass(), FArrayProperty::StaticClass(), FSetProperty::StaticClass(),
		FMapProperty::StaticClass(), FOptionalProperty::StaticClass(), FDelegateProperty::StaticClass(),
		FMulticastInlineDelegateProperty::StaticClass(), FMulticastSparseDelegateProperty::StaticClass(),
		FFieldPathProperty::StaticClass()};
	TMap<FName, FFieldClass*> Result;
	for (FFieldClass* const Class : Classes)
	{
		Result.Add(Class->GetFName(), Class);
	}
	return Result;
}

const FString EmptyMetaDataValue;
}

FFieldClass::FFieldClass(
	const TCHAR* CppName, uint64 InId, uint64 InCastFlags, FFieldClass* InSuperClass, FConstructFunction InConstruct)
	: Name(CppName + 1)
	, Id(InId)
	, CastFlags(InCastFlags)
	, SuperClass(InSuperClass)
	, ConstructFunction(InConstruct)
{
}

bool FFieldClass::IsChildOfByWalk(const FFieldClass* Other) const
{
	for (const FFieldClass* Class = this; Class; Class = Class->SuperClass)
	{
		if (Class == Other)
		{
			return true;
		}
	}
	return false;
}

FText FFieldClass::GetDisplayNameText() const
{
	return FText::FromString(FName::NameToDisplayString(GetName(), false));
}

FField* FFieldClass::Construct(const FFieldVariant& Owner, const FName& FieldName, EObjectFlags Flags) const
{
	return ConstructFunction ? ConstructFunction(Owner, FieldName, Flags) : nullptr;
}

const TMap<FName, FFieldClass*>& FFieldClass::GetNameToFieldClassMap()
{
	static const TMap<FName, FFieldClass*> Map = MakeNameToFieldClassMap();
	return Map;
}

bool IsFieldOwnerObjectA(const UObject* Object, const UClass* Class)
{
	return Object->IsA(Class);
}

FFieldVariant FFieldVariant::GetOwnerVariant() const
{
	if (Field)
	{
		return Field->Owner;
	}
	return Object ? FFieldVariant(Object->GetOuter()) : FFieldVariant();
}

UClass* FFieldVariant::GetOwnerClass() const
{
	if (Field)
	{
		return Field->GetOwnerClass();
	}
	return Object ? Object->GetTypedOuter<UClass>() : nullptr;
}

FString FFieldVariant::GetName() const
{
	return GetFName().ToString();
}

FName FFieldVariant::GetFName() const
{
	if (Field)
	{
		return Field->GetFName();
	}
	return Object ? Object->GetFName() : FName();
}

FString FFieldVariant::GetPathName() const
{
	if (Field)
	{
		return Field->GetPathName();
	}
	return Object ? Object->GetPathName() : FString(TEXT("None"));
}

FString FFieldVariant::GetFullName() const
{
	if (Field)
	{
		return Field->GetFullName();
	}
	return Object ? Object->GetFullName() : FString(TEXT("None"));
}

FString FFieldVariant::GetClassName() const
{
	if (Field)
	{
		return Field->GetClass()->GetName();
	}
	return Object ? Object->GetClass()->GetName() : FString();
}

bool FFieldVariant::IsNative() const
{
	if (Field)
	{
		return Field->IsNative();
	}
	return Object && Object->IsNative();
}

UPackage* FFieldVariant::GetOutermost() const
{
	if (Field)
	{
		return Field->GetOutermost();
	}
	return Object ? Object->GetOutermost() : nullptr;
}

FFieldClass* FField::StaticClass()
{
	static FFieldClass FieldClass(TEXT("FField"), StaticClassCastFlagsPrivate(), StaticClassCastFlags(), nullptr, nullptr);
	return &FieldClass;
}

FField::FField(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags)
	: Owner(InOwner)
	, NamePrivate(InName)
	, FlagsPrivate(InFlags)
{
}

FField::~FField() = default;

FFieldClass* FField::GetClass() const
{
	return StaticClass();
}

void FField::Serialize(FArchive& Ar)
{
	Ar << NamePrivate;
	uint32 Flags = FlagsPrivate;
	Ar << Flags;
	FlagsPrivate = static_cast<EObjectFlags>(Flags);
	if (Ar.IsFilterEditorOnly())
	{
		return;
	}
	bool bHasMetaData = MetaDataMap && !MetaDataMap->IsEmpty();
	Ar << bHasMetaData;
	if (!bHasMetaData)
	{
		return;
	}
	if (!MetaDataMap)
	{
		MetaDataMap = MakeUnique<TMap<FName, FString>>();
	}
	Ar << *MetaDataMap;
}

void FField::AddCppProperty(FProperty* Property)
{
	checkf(false, TEXT("%s cannot have inner properties"), *GetFullName());
}

void FField::PostDuplicate(const FField& InField)
{
	CopyMetaData(&InField, this);
}

FString FField::GetPathName(const UObject* StopOuter) const
{
	FString Result = GetName();
	FFieldVariant Parent = Owner;
	for (; Parent.ToField(); Parent = Parent.GetOwnerVariant())
	{
		Result = Parent.GetName() + TEXT(".") + Result;
	}
	if (const UObject* const Object = Parent.ToUObject(); Object && Object != StopOuter)
	{
		Result = Object->GetPathName(StopOuter) + TEXT(":") + Result;
	}
	return Result;
}

FString FField::GetFullName() const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName();
}

FString FField::GetAuthoredName() const
{
	const UStruct* const Struct = GetOwner<UStruct>();
	return Struct ? Struct->GetAuthoredNameForField(this) : GetName();
}

UObject* FField::GetOwnerUObject() const
{
	FFieldVariant Parent = Owner;
	while (Parent.ToField())
	{
		Parent = Parent.GetOwnerVariant();
	}
	return Parent.ToUObject();
}

UClass* FField::GetOwnerClass() const
{
	return GetTypedOwner<UClass>();
}

UStruct* FField::GetOwnerStruct() const
{
	return GetTypedOwner<UStruct>();
}

UPackage* FField::GetOutermost() const
{
	const UObject* const Object = GetOwnerUObject();
	return Object ? Object->GetOutermost() : nullptr;
}

bool FField::IsIn(const UObject* InOwner) const
{
	const UObject* const Object = GetOwnerUObject();
	return Object && (Object == InOwner || Object->IsIn(InOwner));
}

bool FField::IsIn(const FField* InOwner) const
{
	for (const FField* Parent = Owner.ToField(); Parent; Parent = Parent->Owner.ToField())
	{
		if (Parent == InOwner)
		{
			return true;
		}
	}
	return false;
}

const FString* FField::FindMetaData(const FName& Key) const
{
	return MetaDataMap ? MetaDataMap->Find(Key) : nullptr;
}

const FString* FField::FindMetaData(const TCHAR* Key) const
{
	return MetaDataMap ? MetaDataMap->Find(FName(Key, FNAME_Find)) : nullptr;
}

const FString& FField::GetMetaData(const FName& Key) const
{
	const FString* const Value = FindMetaData(Key);
	return Value ? *Value : EmptyMetaDataValue;
}

const FString& FField::GetMetaData(const TCHAR* Key) const
{
	const FString* const Value = FindMetaData(Key);
	return Value ? *Value : EmptyMetaDataValue;
}

FText FField::GetMetaDataText(const TCHAR* MetaDataKey, const FString LocalizationNamespace, const FString LocalizationKey) const
{
	return FText::FromString(GetMetaData(MetaDataKey));
}

void FField::SetMetaData(const FName& Key, FString&& InValue)
{
	if (!MetaDataMap)
	{
		MetaDataMap = MakeUnique<TMap<FName, FString>>();
	}
	MetaDataMap->Add(Key, MoveTemp(InValue));
}

void FField::SetMetaData(const FName& Key, const TCHAR* InValue)
{
	SetMetaData(Key, FString(InValue));
}

void FField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	SetMetaData(FName(Key), FString(InValue));
}

void FField::SetMetaData(const TCHAR* Key, FString&& InValue)
{
	SetMetaData(FName(Key), MoveTemp(InValue));
}

bool FField::GetBoolMetaData(const FName& Key) const
{
	const FString* const Value = FindMetaData(Key);
	return Value && (Value->IsEmpty() || *Value == TEXT("true"));
}

bool FField::GetBoolMetaData(const TCHAR* Key) const
{
	return GetBoolMetaData(FName(Key, FNAME_Find));
}

int32 FField::GetIntMetaData(const FName& Key) const
{
	return FCString::Atoi(*GetMetaData(Key));
}

int32 FField::GetIntMetaData(const TCHAR* Key) const
{
	return FCString::Atoi(*GetMetaData(Key));
}

float FField::GetFloatMetaData(const FName& Key) const
{
	return FCString::Atof(*GetMetaData(Key));
}

float FField::GetFloatMetaData(const TCHAR* Key) const
{
	return FCString::Atof(*GetMetaData(Key));
}

UClass* FField::GetClassMetaData(const FName& Key) const
{
	const FString& Value = GetMetaData(Key);
	return Value.IsEmpty() ? nullptr : FindFirstObject<UClass>(*Value);
}

UClass* FField::GetClassMetaData(const TCHAR* Key) const
{
	return GetClassMetaData(FName(Key, FNAME_Find));
}

void FField::RemoveMetaData(const FName& Key)
{
	if (MetaDataMap)
	{
		MetaDataMap->Remove(Key);
	}
}

void FField::RemoveMetaData(const TCHAR* Key)
{
	RemoveMetaData(FName(Key, FNAME_Find));
}

void FField::AppendMetaData(const TMap<FName, FString>& MetaDataMapToAppend)
{
	for (const TPair<FName, FString>& Pair : MetaDataMapToAppend)
	{
		SetMetaData(Pair.Key, FString(Pair.Value));
	}
}

void FField::CopyMetaData(const FField* InSourceField, FField* InDestField)
{
	if (InSourceField->MetaDataMap)
	{
		InDestField->MetaDataMap = MakeUnique<TMap<FName, FString>>(*InSourceField->MetaDataMap);
	}
	else
	{
		InDestField->MetaDataMap.Reset();
	}
}

FText FField::GetDisplayNameText() const
{
	const FString* const DisplayName = FindMetaData(TEXT("DisplayName"));
	if (DisplayName && !DisplayName->IsEmpty())
	{
		return FText::FromString(*DisplayName);
	}
	return FText::FromString(FName::NameToDisplayString(GetAuthoredName(), IsA<FBoolProperty>()));
}

FText FField::GetToolTipText(bool bShortTooltip) const
{
	const FString* const Short = bShortTooltip ? FindMetaData(TEXT("ShortTooltip")) : nullptr;
	const FString* const Tooltip = Short ? Short : FindMetaData(TEXT("ToolTip"));
	return Tooltip && !Tooltip->IsEmpty() ? FText::FromString(*Tooltip) : GetDisplayNameText();
}

FField* FField::TryConstruct(const FName& FieldTypeName, const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags)
{
	FFieldClass* const* const FieldClass = FFieldClass::GetNameToFieldClassMap().Find(FieldTypeName);
	return FieldClass ? (*FieldClass)->Construct(InOwner, InName, InFlags) : nullptr;
}

FField* FField::Construct(const FName& FieldTypeName, const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags)
{
	FField* const Result = TryConstruct(FieldTypeName, InOwner, InName, InFlags);
	checkf(Result, TEXT("There is no field class %s"), *FieldTypeName.ToString());
	return Result;
}

FField* FField::Duplicate(const FField* InField, const FFieldVariant& DestOwner, const FName DestName)
{
	FField* const Result =
		InField->GetClass()->Construct(DestOwner, DestName.IsNone() ? InField->GetFName() : DestName, InField->GetFlags());
	Result->PostDuplicate(*InField);
	return Result;
}

FName FField::GenerateFFieldName(const FFieldVariant& InOwner, const FFieldClass* InClass)
{
	const UStruct* const Struct = InOwner.Get<UStruct>();
	const FName BaseName(*InClass->GetName());
	for (int32 Number = 0;; ++Number)
	{
		const FName Candidate(BaseName, Number + 1);
		if (!Struct || !FindFProperty<FField>(Struct, Candidate))
		{
			return Candidate;
		}
	}
}

void SerializeSingleField(FArchive& Ar, FField*& Field, FFieldVariant Owner)
{
	FName TypeName = Field && !Ar.IsLoading() ? Field->GetClass()->GetFName() : FName();
	Ar << TypeName;
	if (Ar.IsLoading())
	{
		Field = TypeName.IsNone() ? nullptr : FField::TryConstruct(TypeName, Owner, FName());
		if (!Field && !TypeName.IsNone())
		{
			UE_LOG(LogClass, Error, TEXT("%s: there is no field class %s"), *Ar.GetArchiveName(), *TypeName.ToString());
			Ar.SetError();
		}
	}
	// An array's definition holds that of its elements, and so on.
	const FValueNesting Nesting;
	if (Nesting.IsTooDeep())
	{
		Ar.SetError();
	}
	else if (Field)
	{
		Field->Serialize(Ar);
	}
}
