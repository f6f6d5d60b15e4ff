#include "TaggedValueReader.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Misc/Base64.h"
#include "StructLayouts.h"
#include "UObject/BlueprintsObjectVersion.h"
#include "UObject/FrameworkObjectVersion.h"
#include "UObject/LinkerLoad.h"
#include "UObject/ReleaseObjectVersion.h"
#include "UObject/UE5ReleaseStreamObjectVersion.h"

namespace
{
constexpr int32 MaxDepth = 48;
/** A value takes some hundred bytes as JSON and may take one in the file, so their number is bounded apart from the file's size. */
constexpr int64 MaxValuesOfAnyFile = 1'000'000;
constexpr int64 MaxValuesOfSmallFile = 10'000;
/** A name or a path may be long and takes a few bytes in the file, so its text counts as more values. */
constexpr int32 CharactersOfAValue = 64;
/** More elements than this are told by their bytes. */
constexpr int32 MaxElements = 10'000;
constexpr int64 NameBytes = 8;

template <typename Type>
Type ReadPlain(FLinkerLoad& Linker)
{
	Type Value{};
	static_cast<FArchive&>(Linker) << Value;
	return Value;
}

FString ReadName(FLinkerLoad& Linker)
{
	FName Name;
	Linker << Name;
	return Name.ToString();
}

TSharedPtr<FJsonValue> MakeText(const FString& Text)
{
	return MakeShared<FJsonValueString>(Text);
}

using FSimpleReader = TSharedPtr<FJsonValue> (*)(FLinkerLoad&);

/** The kinds whose values stand by themselves. */
const TMap<FName, FSimpleReader>& GetSimpleReaders()
{
	static const TMap<FName, FSimpleReader> Readers = {
		{TEXT("BoolProperty"), [](FLinkerLoad& Linker) -> TSharedPtr<FJsonValue>
			{ return MakeShared<FJsonValueBoolean>(ReadPlain<uint8>(Linker) != 0); }},
		{TEXT("Int8Property"), [](FLinkerLoad& Linker)
			{ return MakeJsonInteger(ReadPlain<int8>(Linker)); }},
		{TEXT("Int16Property"), [](FLinkerLoad& Linker)
			{ return MakeJsonInteger(ReadPlain<int16>(Linker)); }},
		{TEXT("IntProperty"), [](FLinkerLoad& Linker)
			{ return MakeJsonInteger(ReadPlain<int32>(Linker)); }},
		{TEXT("Int64Property"), [](FLinkerLoad& Linker)
			{ return MakeJsonInteger(ReadPlain<int64>(Linker)); }},
		{TEXT("UInt16Property"), [](FLinkerLoad& Linker)
			{ return MakeJsonInteger(ReadPlain<uint16>(Linker)); }},
		{TEXT("UInt32Property"), [](FLinkerLoad& Linker)
			{ return MakeJsonInteger(ReadPlain<uint32>(Linker)); }},
		{TEXT("UInt64Property"), [](FLinkerLoad& Linker)
			{ return MakeText(FString::Printf(TEXT("%llu"), static_cast<unsigned long long>(ReadPlain<uint64>(Linker)))); }},
		{TEXT("FloatProperty"), [](FLinkerLoad& Linker)
			{ return MakeJsonNumber(ReadPlain<float>(Linker)); }},
		{TEXT("DoubleProperty"), [](FLinkerLoad& Linker)
			{ return MakeJsonNumber(ReadPlain<double>(Linker)); }},
		{TEXT("StrProperty"), [](FLinkerLoad& Linker)
			{ return MakeText(ReadPlain<FString>(Linker)); }},
		{TEXT("LazyObjectProperty"), [](FLinkerLoad& Linker)
			{ return MakeText(ReadPlain<FGuid>(Linker).ToString()); }}};
	return Readers;
}

bool IsSoftPathStruct(FName Struct)
{
	static const TArray<FName> Structs = {TEXT("SoftObjectPath"), TEXT("SoftClassPath"), TEXT("StringAssetReference"), TEXT("StringClassReference")};
	return Structs.Contains(Struct);
}

FString ReadSoftPath(FLinkerLoad& Linker)
{
	FSoftObjectPath Path;
	Linker << Path;
	return Path.ToString();
}
}

FTaggedValueReader::FTaggedValueReader(FLinkerLoad& InLinker)
	: Linker(InLinker)
	, MaxValues(FMath::Clamp(InLinker.GetFileSize(), MaxValuesOfSmallFile, MaxValuesOfAnyFile))
{
}

FTaggedValueReader::FValue FTaggedValueReader::MakeCountedText(const FString& Text)
{
	NumValues += Text.Len() / CharactersOfAValue;
	return MakeText(Text);
}

bool FTaggedValueReader::ReadCount(int32& OutCount)
{
	OutCount = ReadPlain<int32>(Linker);
	if (!Linker.IsError() && OutCount < 0)
	{
		Linker.SetError();
	}
	return !Linker.IsError() && Linker.CanHold(OutCount);
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

FTaggedValueReader::FValue FTaggedValueReader::ReadObject()
{
	const FPackageIndex Index = FPackageIndex::FromRaw(ReadPlain<int32>(Linker));
	if (Index.IsNull())
	{
		return MakeShared<FJsonValueNull>();
	}
	if (!Linker.FindResource(Index))
	{
		Linker.SetError();
		return nullptr;
	}
	return MakeCountedText(Linker.GetPathName(Index));
}

FTaggedValueReader::FValue FTaggedValueReader::ReadText()
{
	FText Text;
	static_cast<FArchive&>(Linker) << Text;
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("text"), Text.ToString());
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
	const TOptional<FString> Key = FTextInspector::GetKey(Text);
	if (Key)
	{
		Object->SetStringField(TEXT("namespace"), Namespace ? *Namespace : FString());
		Object->SetStringField(TEXT("key"), *Key);
	}
	return MakeShared<FJsonValueObject>(Object);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadDelegate()
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	const FValue Target = ReadObject();
	Object->SetField(TEXT("object"), Target ? Target : MakeShared<FJsonValueNull>());
	Object->SetStringField(TEXT("function"), ReadName(Linker));
	return MakeShared<FJsonValueObject>(Object);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadByte(const FPropertyTypeName& Type, int64 Size)
{
	const bool bHasEnum = !Type.GetParameterName(0).IsNone() || Size == NameBytes;
	return bHasEnum && Size != 1 ? MakeText(ReadName(Linker)) : MakeJsonInteger(ReadPlain<uint8>(Linker));
}

FTaggedValueReader::FValue FTaggedValueReader::ReadOldName()
{
	if (Linker.CustomVer(FFrameworkObjectVersion::GUID) >= FFrameworkObjectVersion::PinsStoreFName)
	{
		return MakeText(ReadName(Linker));
	}
	return MakeText(ReadPlain<FString>(Linker));
}

FTaggedValueReader::FValue FTaggedValueReader::ReadTerminalType()
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetField(TEXT("TerminalCategory"), ReadOldName());
	Object->SetField(TEXT("TerminalSubCategory"), ReadOldName());
	Object->SetField(TEXT("TerminalSubCategoryObject"), ReadObject());
	Object->SetBoolField(TEXT("bTerminalIsConst"), ReadPlain<bool>(Linker));
	Object->SetBoolField(TEXT("bTerminalIsWeakPointer"), ReadPlain<bool>(Linker));
	if (Linker.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::PinTypeIncludesUObjectWrapperFlag)
	{
		Object->SetBoolField(TEXT("bTerminalIsUObjectWrapper"), ReadPlain<bool>(Linker));
	}
	return MakeShared<FJsonValueObject>(Object);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadPinType()
{
	const TCHAR* const Containers[] = {TEXT("None"), TEXT("Array"), TEXT("Set"), TEXT("Map")};
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetField(TEXT("PinCategory"), ReadOldName());
	Object->SetField(TEXT("PinSubCategory"), ReadOldName());
	Object->SetField(TEXT("PinSubCategoryObject"), ReadObject());
	uint8 Container = 0;
	if (Linker.CustomVer(FFrameworkObjectVersion::GUID) >= FFrameworkObjectVersion::EdGraphPinContainerType)
	{
		Container = ReadPlain<uint8>(Linker);
		if (Container == 3)
		{
			Object->SetField(TEXT("PinValueType"), ReadTerminalType());
		}
	}
	else
	{
		bool bIsMap = false;
		bool bIsSet = false;
		if (Linker.CustomVer(FBlueprintsObjectVersion::GUID) >= FBlueprintsObjectVersion::AdvancedContainerSupport)
		{
			bIsMap = ReadPlain<bool>(Linker);
			if (bIsMap)
			{
				Object->SetField(TEXT("PinValueType"), ReadTerminalType());
			}
			bIsSet = ReadPlain<bool>(Linker);
		}
		const bool bIsArray = ReadPlain<bool>(Linker);
		Container = bIsMap ? 3 : bIsSet ? 2
			: bIsArray                  ? 1
										: 0;
	}
	Object->SetStringField(TEXT("ContainerType"), Containers[FMath::Min<uint8>(Container, 3)]);
	Object->SetBoolField(TEXT("bIsReference"), ReadPlain<bool>(Linker));
	Object->SetBoolField(TEXT("bIsWeakPointer"), ReadPlain<bool>(Linker));
	if (Linker.UE4Ver() >= VER_UE4_MEMBERREFERENCE_IN_PINTYPE)
	{
		Object->SetField(TEXT("MemberParent"), ReadObject());
		Object->SetStringField(TEXT("MemberName"), ReadName(Linker));
		Object->SetStringField(TEXT("MemberGuid"), ReadPlain<FGuid>(Linker).ToString());
	}
	if (Linker.UE4Ver() >= VER_UE4_SERIALIZE_PINTYPE_CONST)
	{
		Object->SetBoolField(TEXT("bIsConst"), ReadPlain<bool>(Linker));
	}
	if (Linker.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::PinTypeIncludesUObjectWrapperFlag)
	{
		Object->SetBoolField(TEXT("bIsUObjectWrapper"), ReadPlain<bool>(Linker));
	}
	if (Linker.CustomVer(FUE5ReleaseStreamObjectVersion::GUID) >= FUE5ReleaseStreamObjectVersion::SerializeFloatPinDefaultValuesAsSinglePrecision)
	{
		Object->SetBoolField(TEXT("bSerializeAsSinglePrecisionFloat"), ReadPlain<bool>(Linker));
	}
	return MakeShared<FJsonValueObject>(Object);
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
		return MakeText(ReadPlain<FGuid>(Linker).ToString());
	}
	if (IsSoftPathStruct(StructName))
	{
		return MakeCountedText(ReadSoftPath(Linker));
	}
	if (StructName == PinTypeName)
	{
		return ReadPinType();
	}
	if (StructName == TagContainerName)
	{
		return ReadElements(FPropertyTypeName(TEXT("NameProperty")), ReadPlain<int32>(Linker), -1);
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
	int32 Count = 0;
	if (!ReadCount(Count))
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
	int32 NumRemoved = 0;
	int32 Count = 0;
	if (!ReadCount(NumRemoved) || !ReadElements(Type.GetParameter(0), NumRemoved, -1) || !ReadCount(Count))
	{
		return nullptr;
	}
	return ReadElements(Type.GetParameter(0), Count, -1);
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
	int32 NumRemoved = 0;
	int32 Count = 0;
	if (!ReadCount(NumRemoved) || !ReadElements(KeyType, NumRemoved, -1) || !ReadCount(Count) || Count > MaxElements)
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
	const FValue Path = ReadElements(FPropertyTypeName(TEXT("NameProperty")), ReadPlain<int32>(Linker), -1);
	const bool bHasOwner = Linker.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::FFieldPathOwnerSerialization;
	return !Path || !bHasOwner || ReadObject() ? Path : nullptr;
}

FTaggedValueReader::FValue FTaggedValueReader::ReadMulticastDelegate()
{
	int32 Count = 0;
	TArray<TSharedPtr<FJsonValue>> Delegates;
	for (ReadCount(Count); Delegates.Num() < Count && !Linker.IsError();)
	{
		Delegates.Add(ReadDelegate());
	}
	return MakeShared<FJsonValueArray>(Delegates);
}

FTaggedValueReader::FValue FTaggedValueReader::ReadOptional(const FPropertyTypeName& Type)
{
	const bool bIsSet = ReadPlain<bool>(Linker);
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
				{ return Self.ReadText(); }},
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
				{ return Self.MakeCountedText(ReadName(Self.Linker)); }},
			{TEXT("EnumProperty"), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.MakeCountedText(ReadName(Self.Linker)); }},
			{TEXT("FieldPathProperty"), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.ReadFieldPath(); }}};
		for (const TCHAR* const Kind : {TEXT("ObjectProperty"), TEXT("ClassProperty"), TEXT("WeakObjectProperty"), TEXT("InterfaceProperty"), TEXT("ObjectPtrProperty"), TEXT("ClassPtrProperty")})
		{
			Result.Add(FName(Kind), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.ReadObject(); });
		}
		for (const TCHAR* const Kind : {TEXT("SoftObjectProperty"), TEXT("SoftClassProperty"), TEXT("AssetObjectProperty"), TEXT("AssetClassProperty")})
		{
			Result.Add(FName(Kind), [](FTaggedValueReader& Self, const FType&, int64)
				{ return Self.MakeCountedText(ReadSoftPath(Self.Linker)); });
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
		return (*Simple)(Linker);
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
	const int64 OldLimit = Linker.LimitReads(End);
	Linker.Seek(Start);
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
		Property->SetField(TEXT("value"), Value);
		OutProperties.Add(MakeShared<FJsonValueObject>(Property));
	}
	OutEnd = Linker.IsError() ? Linker.GetErrorPosition() : Linker.Tell();
	const bool bDone = !Linker.IsError();
	Linker.ClearError();
	Linker.LimitReads(OldLimit);
	return bDone;
}
