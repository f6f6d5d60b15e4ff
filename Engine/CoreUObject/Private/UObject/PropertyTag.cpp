#include "UObject/PropertyTag.h"

#include "PropertyKindNames.h"
#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/PropertyOptional.h"
#include "UObject/UnrealType.h"

// Named, for a compiler that warns of operators that nobody uses in an unnamed one.
namespace PropertyTagForm
{
enum class EPropertyTagFlags : uint8
{
	None = 0,
	HasArrayIndex = 0x01,
	HasPropertyGuid = 0x02,
	HasPropertyExtensions = 0x04,
	HasBinaryOrNativeSerialize = 0x08,
	BoolTrue = 0x10,
	SkippedSerialize = 0x20
};
ENUM_CLASS_FLAGS(EPropertyTagFlags)

enum class EPropertyTagExtension : uint8
{
	NoExtension = 0,
	ReserveForFutureUse = 0x01,
	OverridableInformation = 0x02
};
ENUM_CLASS_FLAGS(EPropertyTagExtension)
}

namespace
{
using PropertyTagForm::EPropertyTagExtension;
using PropertyTagForm::EPropertyTagFlags;

/** Whether the value's bytes are the struct's own instead of members' tags. */
bool UsesBinaryOrNativeSerialization(const FProperty* Property)
{
	if (const FStructProperty* const Struct = CastField<FStructProperty>(Property))
	{
		const ICppStructOps* const Ops = Struct->Struct ? Struct->Struct->GetCppStructOps() : nullptr;
		return (Ops && Ops->HasSerializer()) ||
			(Struct->Struct && (Struct->Struct->StructFlags & (STRUCT_Immutable | STRUCT_SerializeNative)));
	}
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		return UsesBinaryOrNativeSerialization(Array->Inner);
	}
	if (const FSetProperty* const Set = CastField<FSetProperty>(Property))
	{
		return UsesBinaryOrNativeSerialization(Set->ElementProp);
	}
	if (const FMapProperty* const Map = CastField<FMapProperty>(Property))
	{
		return UsesBinaryOrNativeSerialization(Map->KeyProp) || UsesBinaryOrNativeSerialization(Map->ValueProp);
	}
	const FOptionalProperty* const Optional = CastField<FOptionalProperty>(Property);
	return Optional && UsesBinaryOrNativeSerialization(Optional->GetValueProperty());
}
}

FPropertyTag::FPropertyTag(FProperty* InProperty, int32 InIndex, uint8* Value)
	: Type(InProperty->GetIDForTag())
	, Name(InProperty->GetFName())
	, ArrayIndex(InIndex)
	, Prop(InProperty)
	, TypeName(InProperty)
{
	SetNamesFromType();
	bHasBinaryOrNativeSerialize = UsesBinaryOrNativeSerialization(InProperty);
	if (const FStructProperty* const Struct = CastField<FStructProperty>(InProperty); Struct && Struct->Struct)
	{
		StructGuid = Struct->Struct->GetCustomGuid();
	}
	if (const FBoolProperty* const Bool = CastField<FBoolProperty>(InProperty))
	{
		BoolVal = Bool->GetOptionalPropertyValue(Value) ? 1 : 0;
	}
}

void FPropertyTag::SetType(const FPropertyTypeName& InTypeName)
{
	TypeName = InTypeName;
	Type = TypeName.GetName();
	SetNamesFromType();
}

void FPropertyTag::SetNamesFromType()
{
	if (IsType(FPropertyKindNames::Get().Struct))
	{
		StructName = TypeName.GetParameterName(0);
		if (const FName Guid = TypeName.GetParameterName(1); !Guid.IsNone())
		{
			FGuid::Parse(Guid.ToString(), StructGuid);
		}
	}
	else if (IsType(FPropertyKindNames::Get().Byte) || IsType(FPropertyKindNames::Get().Enum))
	{
		EnumName = TypeName.GetParameterName(0);
	}
	else
	{
		InnerType = TypeName.GetParameterName(0);
		ValueType = TypeName.GetParameterName(1);
	}
}

void FPropertyTag::SetTypeFromNames()
{
	TypeName = FPropertyTypeName(Type);
	for (const FName& Parameter : {StructName, EnumName, InnerType, ValueType})
	{
		if (!Parameter.IsNone())
		{
			TypeName.AddParameter(FPropertyTypeName(Parameter));
		}
	}
}

void FPropertyTag::SerializeOldForm(FArchive& Ar)
{
	Ar << Type;
	if (Ar.IsSaving())
	{
		SizeOffset = Ar.Tell() >= 0 ? Ar.Tell() : -1;
	}
	Ar << Size << ArrayIndex;
	if (IsType(FPropertyKindNames::Get().Struct))
	{
		Ar << StructName;
		if (Ar.UEVer() >= VER_UE4_STRUCT_GUID_IN_PROPERTY_TAG)
		{
			Ar << StructGuid;
		}
	}
	else if (IsType(FPropertyKindNames::Get().Bool))
	{
		Ar << BoolVal;
	}
	else if (IsType(FPropertyKindNames::Get().Byte) || IsType(FPropertyKindNames::Get().Enum))
	{
		Ar << EnumName;
	}
	else if (IsType(FPropertyKindNames::Get().Array) || IsType(FPropertyKindNames::Get().Optional))
	{
		Ar << InnerType;
	}
	else if (Ar.UEVer() >= VER_UE4_PROPERTY_TAG_SET_MAP_SUPPORT && IsType(FPropertyKindNames::Get().Set))
	{
		Ar << InnerType;
	}
	else if (Ar.UEVer() >= VER_UE4_PROPERTY_TAG_SET_MAP_SUPPORT && IsType(FPropertyKindNames::Get().Map))
	{
		Ar << InnerType << ValueType;
	}
	if (Ar.UEVer() >= VER_UE4_PROPERTY_GUID_IN_PROPERTY_TAG)
	{
		Ar << HasPropertyGuid;
		if (HasPropertyGuid)
		{
			Ar << PropertyGuid;
		}
	}
	if (Ar.UEVer() >= EUnrealEngineObjectUE5Version::PROPERTY_TAG_EXTENSION_AND_OVERRIDABLE_SERIALIZATION)
	{
		SerializeExtensions(Ar, true);
	}
	if (Ar.IsLoading())
	{
		SetTypeFromNames();
	}
}

void FPropertyTag::SerializeExtensions(FArchive& Ar, bool bHasExtensions)
{
	if (!bHasExtensions)
	{
		return;
	}
	EPropertyTagExtension Extensions = EPropertyTagExtension::NoExtension;
	Ar << Extensions;
	if (EnumHasAnyFlags(Extensions, EPropertyTagExtension::OverridableInformation))
	{
		uint8 OverrideOperation = 0;
		bool bExperimentalOverridableLogic = false;
		Ar << OverrideOperation << bExperimentalOverridableLogic;
	}
}

void FPropertyTag::SerializeCompleteTypeName(FArchive& Ar)
{
	Ar << TypeName;
	if (Ar.IsSaving())
	{
		SizeOffset = Ar.Tell() >= 0 ? Ar.Tell() : -1;
	}
	Ar << Size;
	EPropertyTagFlags Flags = EPropertyTagFlags::None;
	Flags |= ArrayIndex != 0 ? EPropertyTagFlags::HasArrayIndex : EPropertyTagFlags::None;
	Flags |= HasPropertyGuid ? EPropertyTagFlags::HasPropertyGuid : EPropertyTagFlags::None;
	Flags |= bHasBinaryOrNativeSerialize ? EPropertyTagFlags::HasBinaryOrNativeSerialize : EPropertyTagFlags::None;
	Flags |= BoolVal ? EPropertyTagFlags::BoolTrue : EPropertyTagFlags::None;
	Flags |= bSkippedSerialize ? EPropertyTagFlags::SkippedSerialize : EPropertyTagFlags::None;
	Ar << Flags;
	if (Ar.IsLoading())
	{
		Type = TypeName.GetName();
		SetNamesFromType();
		BoolVal = EnumHasAnyFlags(Flags, EPropertyTagFlags::BoolTrue) ? 1 : 0;
		HasPropertyGuid = EnumHasAnyFlags(Flags, EPropertyTagFlags::HasPropertyGuid) ? 1 : 0;
		bHasBinaryOrNativeSerialize = EnumHasAnyFlags(Flags, EPropertyTagFlags::HasBinaryOrNativeSerialize);
		bSkippedSerialize = EnumHasAnyFlags(Flags, EPropertyTagFlags::SkippedSerialize);
	}
	if (EnumHasAnyFlags(Flags, EPropertyTagFlags::HasArrayIndex))
	{
		Ar << ArrayIndex;
	}
	if (HasPropertyGuid)
	{
		Ar << PropertyGuid;
	}
	SerializeExtensions(Ar, EnumHasAnyFlags(Flags, EPropertyTagFlags::HasPropertyExtensions));
}

FArchive& operator<<(FArchive& Ar, FPropertyTag& Tag)
{
	Ar << Tag.Name;
	if (Tag.Name.IsNone() || Ar.IsError())
	{
		return Ar;
	}
	if (Ar.UEVer() >= EUnrealEngineObjectUE5Version::PROPERTY_TAG_COMPLETE_TYPE_NAME)
	{
		Tag.SerializeCompleteTypeName(Ar);
	}
	else
	{
		Tag.SerializeOldForm(Ar);
	}
	const bool bIsHostile = Tag.Size < 0 || Tag.ArrayIndex < 0 || (Ar.IsLoading() && !Ar.IsError() && !Ar.CanHold(Tag.Size));
	if (bIsHostile)
	{
		Ar.SetError();
	}
	return Ar;
}

void FPropertyTag::SerializeTaggedProperty(FArchive& Ar, FProperty* Property, uint8* Value, const uint8* Defaults) const
{
	if (const FBoolProperty* const Bool = CastField<FBoolProperty>(Property))
	{
		// The tag has told the value.
		if (Ar.IsLoading())
		{
			Bool->SetPropertyValue(Value, BoolVal != 0);
		}
		return;
	}
	FProperty* const Previous = Ar.GetSerializedProperty();
	Ar.PushSerializedProperty(Property, Property->IsEditorOnlyProperty());
	Property->SerializeItem(Ar, Value, Defaults);
	Ar.PopSerializedProperty(Property, Property->IsEditorOnlyProperty());
	Ar.SetSerializedProperty(Previous);
}
