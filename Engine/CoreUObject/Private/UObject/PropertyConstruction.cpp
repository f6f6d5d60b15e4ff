#include "UObject/PropertyConstruction.h"

#include "Serialization/Archive.h"
#include "UObject/Casts.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/FieldPathProperty.h"
#include "UObject/PropertyOptional.h"
#include "UObject/UnrealType.h"

using UECodeGen_Private::EPropertyGenKind;
using UECodeGen_Private::FPropertyParams;

namespace
{
/** In the order of EPropertyGenKind. */
FFieldClass* GetFieldClass(EPropertyGenKind Kind)
{
	static FFieldClass* const Classes[] = {FBoolProperty::StaticClass(), FByteProperty::StaticClass(), FInt8Property::StaticClass(),
		FInt16Property::StaticClass(), FIntProperty::StaticClass(), FInt64Property::StaticClass(), FUInt16Property::StaticClass(),
		FUInt32Property::StaticClass(), FUInt64Property::StaticClass(), FFloatProperty::StaticClass(), FDoubleProperty::StaticClass(),
		FEnumProperty::StaticClass(), FNameProperty::StaticClass(), FStrProperty::StaticClass(), FTextProperty::StaticClass(),
		FObjectProperty::StaticClass(), FWeakObjectProperty::StaticClass(), FLazyObjectProperty::StaticClass(),
		FSoftObjectProperty::StaticClass(), FClassProperty::StaticClass(), FSoftClassProperty::StaticClass(),
		FInterfaceProperty::StaticClass(), FStructProperty::StaticClass(), FArrayProperty::StaticClass(), FSetProperty::StaticClass(),
		FMapProperty::StaticClass(), FDelegateProperty::StaticClass(), FMulticastInlineDelegateProperty::StaticClass(),
		FFieldPathProperty::StaticClass(), FOptionalProperty::StaticClass()};
	static_assert(UE_ARRAY_COUNT(Classes) == static_cast<SIZE_T>(EPropertyGenKind::Optional) + 1);
	return Classes[static_cast<SIZE_T>(Kind)];
}

/** Gives the property the class, struct, enum or signature of its type. False when its kind needs one and has none. */
bool SetType(FProperty* Property, UField* Type, UClass* MetaClass)
{
	if (FObjectPropertyBase* const Object = CastField<FObjectPropertyBase>(Property))
	{
		Object->PropertyClass = Cast<UClass>(Type);
		if (FClassProperty* const Class = CastField<FClassProperty>(Property))
		{
			Class->PropertyClass = Class->PropertyClass ? Class->PropertyClass : UClass::StaticClass();
			Class->MetaClass = MetaClass ? MetaClass : UObject::StaticClass();
		}
		else if (FSoftClassProperty* const SoftClass = CastField<FSoftClassProperty>(Property))
		{
			SoftClass->PropertyClass = SoftClass->PropertyClass ? SoftClass->PropertyClass : UClass::StaticClass();
			SoftClass->MetaClass = MetaClass ? MetaClass : UObject::StaticClass();
		}
		return Object->PropertyClass != nullptr;
	}
	if (FInterfaceProperty* const Interface = CastField<FInterfaceProperty>(Property))
	{
		Interface->InterfaceClass = Cast<UClass>(Type);
		return Interface->InterfaceClass != nullptr;
	}
	if (FStructProperty* const Struct = CastField<FStructProperty>(Property))
	{
		Struct->Struct = Cast<UScriptStruct>(Type);
		return Struct->Struct != nullptr;
	}
	if (FEnumProperty* const Enum = CastField<FEnumProperty>(Property))
	{
		Enum->SetEnum(Cast<UEnum>(Type));
		return Enum->GetEnum() != nullptr;
	}
	if (FByteProperty* const Byte = CastField<FByteProperty>(Property))
	{
		Byte->Enum = Cast<UEnum>(Type);
	}
	else if (FDelegateProperty* const Delegate = CastField<FDelegateProperty>(Property))
	{
		Delegate->SignatureFunction = Cast<UFunction>(Type);
	}
	else if (FMulticastDelegateProperty* const Multicast = CastField<FMulticastDelegateProperty>(Property))
	{
		Multicast->SignatureFunction = Cast<UFunction>(Type);
	}
	return true;
}

bool NeedsInner(EPropertyGenKind Kind)
{
	return Kind == EPropertyGenKind::Array || Kind == EPropertyGenKind::Set || Kind == EPropertyGenKind::Map ||
		Kind == EPropertyGenKind::Optional || Kind == EPropertyGenKind::Enum;
}

/** Finds the byte and bit that the emitted setter touches, in an owner of zeros. */
void PlaceBitField(FBoolProperty* Property, const FPropertyParams& Params, uint32 OwnerSize)
{
	TArray<uint8> Owner;
	Owner.SetNumZeroed(static_cast<int32>(OwnerSize));
	Params.SetBit(Owner.GetData());
	for (int32 Index = 0; Index < Owner.Num(); ++Index)
	{
		if (Owner[Index] != 0)
		{
			Property->SetOffset_Internal(Index);
			Property->SetBoolSize(1, false, Owner[Index]);
			return;
		}
	}
	checkf(false, TEXT("The setter of bit-field %s touches no bit of its owner's %u bytes"), *Property->GetFullName(), OwnerSize);
}

FProperty* ConstructUnlinked(FFieldVariant Owner, const FPropertyParams& Params, uint32 OwnerSize)
{
	const FName Name(UTF8_TO_TCHAR(Params.NameUTF8));
	FProperty* const Property = CastFieldChecked<FProperty>(GetFieldClass(Params.Kind)->Construct(Owner, Name, RF_Public | RF_Transient));
	Property->PropertyFlags = Params.PropertyFlags;
	Property->ArrayDim = FMath::Max<int32>(Params.ArrayDim, 1);
	Property->SetOffset_Internal(static_cast<int32>(Params.Offset));
	Property->SetElementSize(static_cast<int32>(Params.ElementSize));
	if (Params.RepNotifyFuncUTF8)
	{
		Property->RepNotifyFunc = FName(UTF8_TO_TCHAR(Params.RepNotifyFuncUTF8));
	}
	for (int32 Index = 0; Index < Params.NumMetaData; ++Index)
	{
		Property->SetMetaData(FName(UTF8_TO_TCHAR(Params.MetaData[Index].NameUTF8)), UTF8_TO_TCHAR(Params.MetaData[Index].ValueUTF8));
	}
	const bool bHasType =
		SetType(Property, Params.TypeFunc ? Params.TypeFunc() : nullptr, Params.MetaClassFunc ? Params.MetaClassFunc() : nullptr);
	checkf(bHasType, TEXT("%s has no type"), *Property->GetFullName());
	if (FBoolProperty* const Bool = CastField<FBoolProperty>(Property))
	{
		if (Params.SetBit && OwnerSize > 0)
		{
			PlaceBitField(Bool, Params, OwnerSize);
		}
		else
		{
			Bool->SetBoolSize(sizeof(bool), true);
		}
	}
	for (const FPropertyParams* const Inner : {Params.Inner, Params.Value})
	{
		if (Inner)
		{
			Property->AddCppProperty(ConstructUnlinked(Property, *Inner, 0));
		}
	}
	return Property;
}
}

FProperty* UECodeGen_Private::ConstructProperty(FFieldVariant Owner, const FPropertyParams& Params, uint32 OwnerSize)
{
	FProperty* const Property = ConstructUnlinked(Owner, Params, OwnerSize);
	FArchive Linker;
	Property->LinkWithoutChangingOffset(Linker);
	return Property;
}

FProperty* ConstructPropertyFromDescription(FFieldVariant Owner, const FPropertyDescription& Description)
{
	const bool bLacksInner = NeedsInner(Description.Kind) && !Description.Inner && Description.Kind != EPropertyGenKind::Enum;
	if (bLacksInner || (Description.Kind == EPropertyGenKind::Map && !Description.Value))
	{
		return nullptr;
	}
	TUniquePtr<FProperty> Property(
		CastFieldChecked<FProperty>(GetFieldClass(Description.Kind)->Construct(Owner, Description.Name, RF_Public)));
	Property->PropertyFlags = Description.PropertyFlags;
	Property->ArrayDim = FMath::Max(Description.ArrayDim, 1);
	Property->RepNotifyFunc = Description.RepNotifyFunc;
	Property->AppendMetaData(Description.MetaData);
	if (!SetType(Property.Get(), Description.Type, Description.MetaClass))
	{
		return nullptr;
	}
	if (FBoolProperty* const Bool = CastField<FBoolProperty>(Property.Get()))
	{
		Bool->SetBoolSize(sizeof(bool), true);
	}
	if (Description.Kind == EPropertyGenKind::Enum && !Description.Inner)
	{
		Property->AddCppProperty(new FByteProperty(Property.Get(), TEXT("UnderlyingType")));
	}
	for (const TSharedPtr<FPropertyDescription>& Inner : {Description.Inner, Description.Value})
	{
		if (!Inner)
		{
			continue;
		}
		FProperty* const InnerProperty = ConstructPropertyFromDescription(Property.Get(), *Inner);
		if (!InnerProperty)
		{
			return nullptr;
		}
		Property->AddCppProperty(InnerProperty);
	}
	return Property.Release();
}
