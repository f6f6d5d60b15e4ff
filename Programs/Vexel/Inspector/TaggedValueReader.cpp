#include "TaggedValueReader.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "GraphPinReader.h"
#include "Misc/Base64.h"
#include "PackageValues.h"
#include "StructLayouts.h"
#include "UObject/ReleaseObjectVersion.h"

namespace
{
constexpr int32 MaxDepth = 48;
/** A value takes some hundred bytes as JSON and may take one in the file, so their number is bounded apart from the file's size. */
constexpr int64 MaxValuesOfAnyFile = 1'000'000;
constexpr int64 MaxValuesOfSmallFile = 10'000;
/** More elements than this are told by their bytes. */
constexpr int32 MaxElements = 10'000;
constexpr int64 NameBytes = 8;

TSharedPtr<FJsonValue> MakeText(const FString& Text)
{
	return MakeShared<FJsonValueString>(Text);
}

using FSimpleReader = TSharedPtr<FJsonValue> (*)(FPackageValues&);

/** The kinds whose values stand by themselves. */
const TMap<FName, FSimpleReader>& GetSimpleReaders()
{
	static const TMap<FName, FSimpleReader> Readers = {
		{TEXT("BoolProperty"), [](FPackageValues& Values) -> TSharedPtr<FJsonValue>
			{ return MakeShared<FJsonValueBoolean>(Values.Read<uint8>() != 0); }},
		{TEXT("Int8Property"), [](FPackageValues& Values)
			{ return MakeJsonInteger(Values.Read<int8>()); }},
		{TEXT("Int16Property"), [](FPackageValues& Values)
			{ return MakeJsonInteger(Values.Read<int16>()); }},
		{TEXT("IntProperty"), [](FPackageValues& Values)
			{ return MakeJsonInteger(Values.Read<int32>()); }},
		{TEXT("Int64Property"), [](FPackageValues& Values)
			{ return MakeJsonInteger(Values.Read<int64>()); }},
		{TEXT("UInt16Property"), [](FPackageValues& Values)
			{ return MakeJsonInteger(Values.Read<uint16>()); }},
		{TEXT("UInt32Property"), [](FPackageValues& Values)
			{ return MakeJsonInteger(Values.Read<uint32>()); }},
		{TEXT("UInt64Property"), [](FPackageValues& Values)
			{ return MakeText(FString::Printf(TEXT("%llu"), static_cast<unsigned long long>(Values.Read<uint64>()))); }},
		{TEXT("FloatProperty"), [](FPackageValues& Values)
			{ return MakeJsonNumber(Values.Read<float>()); }},
		{TEXT("DoubleProperty"), [](FPackageValues& Values)
			{ return MakeJsonNumber(Values.Read<double>()); }},
		{TEXT("StrProperty"), [](FPackageValues& Values)
			{ return MakeText(Values.Read<FString>()); }},
		{TEXT("LazyObjectProperty"), [](FPackageValues& Values)
			{ return MakeText(Values.Read<FGuid>().ToString()); }}};
	return Readers;
}

bool IsSoftPathStruct(FName Struct)
{
	static const TArray<FName> Structs = {TEXT("SoftObjectPath"), TEXT("SoftClassPath"), TEXT("StringAssetReference"), TEXT("StringClassReference")};
	return Structs.Contains(Struct);
}
}

FTaggedValueReader::FTaggedValueReader(FPackageValues& InValues)
	: Values(InValues)
	, Linker(InValues.GetLinker())
	, MaxValues(FMath::Clamp(Linker.GetFileSize(), MaxValuesOfSmallFile, MaxValuesOfAnyFile))
{
}

FTaggedValueReader::FValue FTaggedValueReader::MakeBytes(int64 Start, int64 Size) const
{
	constexpr int64 MaxShownBytes = 1 << 20;
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetNumberField(TEXT("size"), static_cast<double>(Size));
	if (Size <= MaxShownBytes)
	{
		Object->SetStringField(TEXT("base64"), FBase64::Encode(Linker.ReadBytes(Start, Size)));
	}
	return MakeShared<FJsonValueObject>(Object);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadDelegate()
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetField(TEXT("object"), Values.ReadReference());
	Object->SetStringField(TEXT("function"), Values.ReadName());
	return MakeShared<FJsonValueObject>(Object);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadByte(const FPropertyTypeName& Type, int64 Size)
{
	const bool bHasEnum = !Type.GetParameterName(0).IsNone() || Size == NameBytes;
	return bHasEnum && Size != 1 ? MakeText(Values.ReadName()) : MakeJsonInteger(Values.Read<uint8>());
}

FTaggedValueReader::FValue FTaggedValueReader::ReadTaggedStruct()
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	while (!Linker.IsError())
	{
		FPropertyTag Tag;
		static_cast<FArchive&>(Linker) << Tag;
		if (Linker.IsError() || Tag.Name.IsNone())
		{
			break;
		}
		const FString Name = Tag.ArrayIndex > 0 ? FString::Printf(TEXT("%s[%d]"), *Tag.Name.ToString(), Tag.ArrayIndex) : Tag.Name.ToString();
		Object->SetField(Name, ReadTagged(Tag, Linker.TotalSize()));
	}
	return MakeShared<FJsonValueObject>(Object);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadStruct(FName StructName, int64 Size)
{
	static const FName GuidName(TEXT("Guid"));
	static const FName PinTypeName(TEXT("EdGraphPinType"));
	static const FName TagContainerName(TEXT("GameplayTagContainer"));
	if (StructName == GuidName)
	{
		return MakeText(Values.Read<FGuid>().ToString());
	}
	if (IsSoftPathStruct(StructName))
	{
		return MakeText(Values.ReadSoftPath());
	}
	if (StructName == PinTypeName)
	{
		return FGraphPinReader(Values).ReadPinType();
	}
	if (StructName == TagContainerName)
	{
		return ReadElements(FPropertyTypeName(TEXT("NameProperty")), Values.Read<int32>(), -1);
	}
	if (StructLayouts::Has(StructName))
	{
		return MakeShared<FJsonValueObject>(StructLayouts::Read(Linker, StructName));
	}
	return ReadTaggedStruct();
}

FTaggedValueReader::FValue FTaggedValueReader::ReadElements(const FPropertyTypeName& Element, int32 Count, int64 Size)
{
	if (Count < 0 || Count > MaxElements || !Linker.CanHold(Count))
	{
		return nullptr;
	}
	TArray<TSharedPtr<FJsonValue>> Values;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		const FValue Value = Read(Element, Size >= 0 ? Size / Count : -1);
		if (!Value || Linker.IsError())
		{
			return nullptr;
		}
		Values.Add(Value);
	}
	return MakeShared<FJsonValueArray>(Values);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadArray(const FPropertyTypeName& Type, int64 Size)
{
	const int64 Start = Linker.Tell();
	const int32 Count = Values.ReadCount();
	if (Linker.IsError())
	{
		return nullptr;
	}
	static const FName ByteKind(TEXT("ByteProperty"));
	FPropertyTypeName Element = Type.GetParameter(0);
	const int64 Left = Size >= 0 ? Start + Size - Linker.Tell() : -1;
	const bool bIsBytes = Element.GetName() == ByteKind && Element.GetParameterCount() == 0 && Left == Count;
	if (bIsBytes)
	{
		const FValue Bytes = MakeBytes(Linker.Tell(), Count);
		Linker.Seek(Linker.Tell() + Count);
		return Bytes;
	}
	static const FName StructKind(TEXT("StructProperty"));
	const bool bHasInnerTag = Element.GetName() == StructKind && Linker.UEVer() >= VER_UE4_INNER_ARRAY_TAG_INFO && Linker.UEVer() < EUnrealEngineObjectUE5Version::PROPERTY_TAG_COMPLETE_TYPE_NAME;
	if (bHasInnerTag)
	{
		FPropertyTag InnerTag;
		static_cast<FArchive&>(Linker) << InnerTag;
		Element = InnerTag.GetType();
	}
	return ReadElements(Element, Count, Left);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadSet(const FPropertyTypeName& Type)
{
	const FPropertyTypeName Element = Type.GetParameter(0);
	return ReadElements(Element, Values.ReadCount(), -1) ? ReadElements(Element, Values.ReadCount(), -1) : nullptr;
}

FTaggedValueReader::FValue FTaggedValueReader::ReadMap(const FPropertyTypeName& Type, int64 Size)
{
	const int64 Start = Linker.Tell();
	const FPropertyTypeName Value = Type.GetParameter(1);
	const FValue Pairs = ReadPairs(Type.GetParameter(0), Value);
	static const FName StructKind(TEXT("StructProperty"));
	const bool bIsUnnamedStruct = Value.GetName() == StructKind && Value.GetParameterCount() == 0;
	const bool bIsWhole = Pairs && !Linker.IsError() && (Size < 0 || Linker.Tell() == Start + Size);
	if (bIsWhole || !bIsUnnamedStruct)
	{
		return Pairs;
	}
	// Tags from before complete type names do not say which struct a map has; that of GUIDs is the one without tags.
	FPropertyTypeName Guids(TEXT("StructProperty"));
	Guids.AddParameter(FPropertyTypeName(TEXT("Guid")));
	Linker.ClearError();
	Linker.Seek(Start);
	return ReadPairs(Type.GetParameter(0), Guids);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadPairs(const FPropertyTypeName& KeyType, const FPropertyTypeName& ValueType)
{
	const FValue Removed = ReadElements(KeyType, Values.ReadCount(), -1);
	const int32 Count = Removed ? Values.ReadCount() : 0;
	if (!Removed || Linker.IsError() || Count > MaxElements)
	{
		return nullptr;
	}
	TArray<TSharedPtr<FJsonValue>> Pairs;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		const TSharedRef<FJsonObject> Pair = MakeShared<FJsonObject>();
		const FValue Key = Read(KeyType, -1);
		const FValue Value = Key ? Read(ValueType, -1) : nullptr;
		if (!Value || Linker.IsError())
		{
			return nullptr;
		}
		Pair->SetField(TEXT("key"), Key);
		Pair->SetField(TEXT("value"), Value);
		Pairs.Add(MakeShared<FJsonValueObject>(Pair));
	}
	return MakeShared<FJsonValueArray>(Pairs);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadFieldPath()
{
	const FValue Path = ReadElements(FPropertyTypeName(TEXT("NameProperty")), Values.Read<int32>(), -1);
	const bool bHasOwner = Linker.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::FFieldPathOwnerSerialization;
	return !Path || !bHasOwner || Values.ReadReference() ? Path : nullptr;
}

FTaggedValueReader::FValue FTaggedValueReader::ReadMulticastDelegate()
{
	TArray<TSharedPtr<FJsonValue>> Delegates;
	for (int32 Left = Values.ReadCount(); Left > 0 && !Linker.IsError(); --Left)
	{
		Delegates.Add(ReadDelegate());
	}
	return MakeShared<FJsonValueArray>(Delegates);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadOptional(const FPropertyTypeName& Type)
{
	const bool bIsSet = Values.Read<bool>();
	return bIsSet ? Read(Type.GetParameter(0), -1) : FValue(MakeShared<FJsonValueNull>());
}

const TMap<FName, FTaggedValueReader::FKindReader>& FTaggedValueReader::GetKindReaders()
{
	using FType = FPropertyTypeName;
	static const TMap<FName, FKindReader> Readers = []
	{
		TMap<FName, FKindReader> Result = {
			{TEXT("StructProperty"), [](FTaggedValueReader& Self, const FType& Type, int64 Size)
				{ return Self.ReadStruct(Type.GetParameterName(0), Size); }},
			{TEXT("ByteProperty"), [](FTaggedValueReader& Self, const FType& Type, int64 Size)
				{ return Self.ReadByte(Type, Size); }},
			{TEXT("TextProperty"), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.Values.ReadText(); }},
			{TEXT("ArrayProperty"), [](FTaggedValueReader& Self, const FType& Type, int64 Size)
				{ return Self.ReadArray(Type, Size); }},
			{TEXT("SetProperty"), [](FTaggedValueReader& Self, const FType& Type, int64)
				{ return Self.ReadSet(Type); }},
			{TEXT("MapProperty"), [](FTaggedValueReader& Self, const FType& Type, int64 Size)
				{ return Self.ReadMap(Type, Size); }},
			{TEXT("OptionalProperty"), [](FTaggedValueReader& Self, const FType& Type, int64)
				{ return Self.ReadOptional(Type); }},
			{TEXT("DelegateProperty"), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.ReadDelegate(); }},
			{TEXT("NameProperty"), [](FTaggedValueReader& Self, const FType&, int64)
				{ return MakeText(Self.Values.ReadName()); }},
			{TEXT("EnumProperty"), [](FTaggedValueReader& Self, const FType&, int64)
				{ return MakeText(Self.Values.ReadName()); }},
			{TEXT("FieldPathProperty"), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.ReadFieldPath(); }}};
		for (const TCHAR* const Kind : {TEXT("ObjectProperty"), TEXT("ClassProperty"), TEXT("WeakObjectProperty"), TEXT("InterfaceProperty"), TEXT("ObjectPtrProperty"), TEXT("ClassPtrProperty")})
		{
			Result.Add(FName(Kind), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.Values.ReadReference(); });
		}
		for (const TCHAR* const Kind : {TEXT("SoftObjectProperty"), TEXT("SoftClassProperty"), TEXT("AssetObjectProperty"), TEXT("AssetClassProperty")})
		{
			Result.Add(FName(Kind), [](FTaggedValueReader& Self, const FType&, int64)
				{ return MakeText(Self.Values.ReadSoftPath()); });
		}
		for (const TCHAR* const Kind : {TEXT("MulticastDelegateProperty"), TEXT("MulticastInlineDelegateProperty"), TEXT("MulticastSparseDelegateProperty")})
		{
			Result.Add(FName(Kind), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.ReadMulticastDelegate(); });
		}
		return Result;
	}();
	return Readers;
}

FTaggedValueReader::FValue FTaggedValueReader::Read(const FPropertyTypeName& Type, int64 Size)
{
	if (Depth >= MaxDepth || ++NumValues > MaxValues)
	{
		return nullptr;
	}
	const TGuardValue<int32> Deeper(Depth, Depth + 1);
	if (const FSimpleReader* const Simple = GetSimpleReaders().Find(Type.GetName()))
	{
		return (*Simple)(Values);
	}
	const FKindReader* const Reader = GetKindReaders().Find(Type.GetName());
	return Reader ? (*Reader)(*this, Type, Size) : nullptr;
}

FTaggedValueReader::FValue FTaggedValueReader::ReadTagged(const FPropertyTag& Tag, int64 End)
{
	const int64 Start = Linker.Tell();
	if (Tag.Size > End - Start)
	{
		Linker.SetError();
		return nullptr;
	}
	static const FName BoolKind(TEXT("BoolProperty"));
	if (Tag.IsType(BoolKind))
	{
		return MakeShared<FJsonValueBoolean>(Tag.BoolVal != 0);
	}
	const int64 OldLimit = Linker.LimitReads(Start + Tag.Size);
	FValue Value = Read(Tag.GetType(), Tag.Size);
	const bool bIsWhole = Value && !Linker.IsError() && Linker.Tell() == Start + Tag.Size;
	Linker.ClearError();
	Linker.LimitReads(OldLimit);
	Linker.Seek(Start + Tag.Size);
	return bIsWhole ? Value : MakeBytes(Start, Tag.Size);
}

bool FTaggedValueReader::ReadProperties(int64 Start, int64 End, TArray<TSharedPtr<FJsonValue>>& OutProperties, int64& OutEnd)
{
	const FReadLimit Reads(Linker, Start, End);
	while (!Linker.IsError() && NumValues <= MaxValues)
	{
		FPropertyTag Tag;
		static_cast<FArchive&>(Linker) << Tag;
		if (Linker.IsError() || Tag.Name.IsNone())
		{
			break;
		}
		const FValue Value = ReadTagged(Tag, End);
		if (!Value)
		{
			break;
		}
		const TSharedRef<FJsonObject> Property = MakeShared<FJsonObject>();
		Property->SetStringField(TEXT("name"), Tag.Name.ToString());
		Property->SetStringField(TEXT("type"), Tag.GetType().ToString());
		if (Tag.ArrayIndex > 0)
		{
			Property->SetNumberField(TEXT("index"), Tag.ArrayIndex);
		}
		if (Tag.HasPropertyGuid)
		{
			Property->SetStringField(TEXT("guid"), Tag.PropertyGuid.ToString());
		}
		Property->SetField(TEXT("value"), Value);
		OutProperties.Add(MakeShared<FJsonValueObject>(Property));
	}
	OutEnd = Reads.GetReached();
	return !Linker.IsError();
}
