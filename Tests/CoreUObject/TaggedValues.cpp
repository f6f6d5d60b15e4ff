#include "TaggedValues.h"

#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"
#include "Serialization/NameAsStringProxyArchive.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/SoftObjectPtr.h"

namespace
{
/** Names as text, objects by path: enough of a linker for values of every kind. */
class FValueArchive : public FNameAsStringProxyArchive
{
public:
	FValueArchive(FArchive& Inner, const FPackageFileVersion& Version)
		: FNameAsStringProxyArchive(Inner)
	{
		SetUEVer(Version);
	}

	using FNameAsStringProxyArchive::operator<<;
	FArchive& operator<<(UObject*& Value) override
	{
		FString Path = Value ? Value->GetPathName() : FString();
		FArchive& Ar = *this;
		Ar << Path;
		Value = Path.IsEmpty() ? nullptr : StaticFindObject(UObject::StaticClass(), nullptr, *Path);
		return *this;
	}
	FArchive& operator<<(FSoftObjectPath& Value) override
	{
		Value.SerializePath(*this);
		return *this;
	}
	FArchive& operator<<(FSoftObjectPtr& Value) override
	{
		FSoftObjectPath Path = Value.ToSoftObjectPath();
		*this << Path;
		Value = Path;
		return *this;
	}
};
}

TArray<uint8> SaveValue(FTestValue& Value, const FPackageFileVersion& Version, const void* Defaults)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes, true);
	FValueArchive Ar(Writer, Version);
	Value.Property->SerializeItem(Ar, Value.Memory, Defaults);
	return Bytes;
}

bool LoadValue(FTestValue& Value, const TArray<uint8>& Bytes, const FPackageFileVersion& Version, const void* Defaults)
{
	FMemoryReader Reader(Bytes, true);
	FValueArchive Ar(Reader, Version);
	Value.Property->SerializeItem(Ar, Value.Memory, Defaults);
	return !Ar.IsError() && !Reader.IsError();
}

TArray<FPropertyDescription> GetMembersOfEveryKind()
{
	const FPropertyDescription Item = Describe(EPropertyGenKind::Struct, TEXT("Item"), GetItemStruct());
	FPropertyDescription Slots = Describe(EPropertyGenKind::Int, TEXT("Slots"));
	Slots.ArrayDim = 3;
	return {Describe(EPropertyGenKind::Bool, TEXT("bFlag")), Describe(EPropertyGenKind::Byte, TEXT("Byte")),
		Describe(EPropertyGenKind::Byte, TEXT("ByteEnum"), GetDoorEnum()), Describe(EPropertyGenKind::Int8, TEXT("Int8")),
		Describe(EPropertyGenKind::Int16, TEXT("Int16")), Describe(EPropertyGenKind::Int, TEXT("Int")),
		Describe(EPropertyGenKind::Int64, TEXT("Int64")), Describe(EPropertyGenKind::UInt16, TEXT("UInt16")),
		Describe(EPropertyGenKind::UInt32, TEXT("UInt32")), Describe(EPropertyGenKind::UInt64, TEXT("UInt64")),
		Describe(EPropertyGenKind::Float, TEXT("Float")), Describe(EPropertyGenKind::Double, TEXT("Double")),
		Describe(EPropertyGenKind::Enum, TEXT("Enum"), GetDoorEnum()), Describe(EPropertyGenKind::Name, TEXT("Name")),
		Describe(EPropertyGenKind::Str, TEXT("Str")), Describe(EPropertyGenKind::Text, TEXT("Text")),
		Describe(EPropertyGenKind::Object, TEXT("Object"), UObject::StaticClass()), Item, Slots,
		DescribeContainer(EPropertyGenKind::Array, Item, TEXT("Items")),
		DescribeContainer(EPropertyGenKind::Set, Describe(EPropertyGenKind::Name, TEXT("Names")), TEXT("Names")),
		DescribeMap(Describe(EPropertyGenKind::Str, TEXT("Map")), Item, TEXT("Map")),
		DescribeContainer(EPropertyGenKind::Optional, Describe(EPropertyGenKind::Str, TEXT("Optional")), TEXT("Optional"))};
}

UScriptStruct* GetEveryKindStruct()
{
	UPackage* const Package = MakeTestPackage(TEXT("/Script/PropertyTests"));
	UScriptStruct* const Existing = FindObject<UScriptStruct>(Package, TEXT("EveryKind"));
	return Existing ? Existing : MakeTestStruct(Package, TEXT("EveryKind"), GetMembersOfEveryKind());
}
