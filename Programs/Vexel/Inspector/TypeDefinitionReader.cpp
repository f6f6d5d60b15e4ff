#include "TypeDefinitionReader.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "PackageValues.h"
#include "StructLayouts.h"
#include "UObject/CoreObjectVersion.h"
#include "UObject/FrameworkObjectVersion.h"
#include "UObject/ReleaseObjectVersion.h"
#include "UObject/Script.h"

namespace
{
/** Containers hold containers through structs alone, so honest definitions are not deep. */
constexpr int32 MaxDepth = 8;

enum class EDefinition : uint8
{
	Class,
	Function,
	SparseDelegate,
	ScriptStruct,
	Enum,
	Property
};

struct FDefinitionClass
{
	const TCHAR* Name;
	EDefinition Kind;
};

constexpr FDefinitionClass DefinitionClasses[] = {
	{TEXT("Class"), EDefinition::Class},
	{TEXT("BlueprintGeneratedClass"), EDefinition::Class},
	{TEXT("WidgetBlueprintGeneratedClass"), EDefinition::Class},
	{TEXT("AnimBlueprintGeneratedClass"), EDefinition::Class},
	{TEXT("Function"), EDefinition::Function},
	{TEXT("DelegateFunction"), EDefinition::Function},
	{TEXT("SparseDelegateFunction"), EDefinition::SparseDelegate},
	{TEXT("ScriptStruct"), EDefinition::ScriptStruct},
	{TEXT("UserDefinedStruct"), EDefinition::ScriptStruct},
	{TEXT("Enum"), EDefinition::Enum},
	{TEXT("UserDefinedEnum"), EDefinition::Enum}};

/** What stands behind the common part of a property's definition. */
struct FPropertyKind
{
	const TCHAR* Name;
	/** Members that refer to objects. */
	TArray<const TCHAR*> References;
	/** Members that are properties: within it, or, in packages before 4.25, objects of their own. */
	TArray<const TCHAR*> Properties;
};

const TArray<FPropertyKind>& GetPropertyKinds()
{
	static const TArray<FPropertyKind> Kinds = {
		{TEXT("ByteProperty"), {TEXT("enum")}, {}},
		{TEXT("ObjectProperty"), {TEXT("class")}, {}},
		{TEXT("ObjectPtrProperty"), {TEXT("class")}, {}},
		{TEXT("WeakObjectProperty"), {TEXT("class")}, {}},
		{TEXT("LazyObjectProperty"), {TEXT("class")}, {}},
		{TEXT("SoftObjectProperty"), {TEXT("class")}, {}},
		{TEXT("ClassProperty"), {TEXT("class"), TEXT("meta_class")}, {}},
		{TEXT("ClassPtrProperty"), {TEXT("class"), TEXT("meta_class")}, {}},
		{TEXT("SoftClassProperty"), {TEXT("class"), TEXT("meta_class")}, {}},
		{TEXT("InterfaceProperty"), {TEXT("class")}, {}},
		{TEXT("StructProperty"), {TEXT("struct")}, {}},
		{TEXT("DelegateProperty"), {TEXT("signature")}, {}},
		{TEXT("MulticastDelegateProperty"), {TEXT("signature")}, {}},
		{TEXT("MulticastInlineDelegateProperty"), {TEXT("signature")}, {}},
		{TEXT("MulticastSparseDelegateProperty"), {TEXT("signature")}, {}},
		{TEXT("EnumProperty"), {TEXT("enum")}, {TEXT("underlying")}},
		{TEXT("ArrayProperty"), {}, {TEXT("element")}},
		{TEXT("SetProperty"), {}, {TEXT("element")}},
		{TEXT("MapProperty"), {}, {TEXT("key"), TEXT("value")}},
		{TEXT("OptionalProperty"), {}, {TEXT("value")}},
		{TEXT("BoolProperty"), {}, {}},
		{TEXT("FieldPathProperty"), {}, {}},
		{TEXT("Int8Property"), {}, {}},
		{TEXT("Int16Property"), {}, {}},
		{TEXT("IntProperty"), {}, {}},
		{TEXT("Int64Property"), {}, {}},
		{TEXT("UInt16Property"), {}, {}},
		{TEXT("UInt32Property"), {}, {}},
		{TEXT("UInt64Property"), {}, {}},
		{TEXT("FloatProperty"), {}, {}},
		{TEXT("DoubleProperty"), {}, {}},
		{TEXT("NameProperty"), {}, {}},
		{TEXT("StrProperty"), {}, {}},
		{TEXT("Utf8StrProperty"), {}, {}},
		{TEXT("AnsiStrProperty"), {}, {}},
		{TEXT("TextProperty"), {}, {}}};
	return Kinds;
}

const FPropertyKind* FindPropertyKind(FName Name)
{
	static const TMap<FName, const FPropertyKind*> ByName = []
	{
		TMap<FName, const FPropertyKind*> Result;
		for (const FPropertyKind& Kind : GetPropertyKinds())
		{
			Result.Add(FName(Kind.Name), &Kind);
		}
		return Result;
	}();
	const FPropertyKind* const* const Found = ByName.Find(Name);
	return Found ? *Found : nullptr;
}

const EDefinition* FindDefinition(FName ClassName)
{
	static const TMap<FName, EDefinition> ByName = []
	{
		TMap<FName, EDefinition> Result;
		for (const FDefinitionClass& Class : DefinitionClasses)
		{
			Result.Add(FName(Class.Name), Class.Kind);
		}
		for (const FPropertyKind& Kind : GetPropertyKinds())
		{
			Result.Add(FName(Kind.Name), EDefinition::Property);
		}
		return Result;
	}();
	return ByName.Find(ClassName);
}

FString ToHex(uint64 Flags)
{
	return FString::Printf(TEXT("0x%llx"), static_cast<unsigned long long>(Flags));
}

/** Adds a list unless it is empty. */
void AddList(FJsonObject& Out, const TCHAR* Name, TArray<TSharedPtr<FJsonValue>>&& Values)
{
	if (!Values.IsEmpty())
	{
		Out.SetArrayField(Name, MoveTemp(Values));
	}
}
}

FTypeDefinitionReader::FTypeDefinitionReader(FPackageValues& InValues)
	: Values(InValues)
	, Linker(InValues.GetLinker())
{
}

bool FTypeDefinitionReader::IsDefinition(FName ClassName)
{
	return FindDefinition(ClassName) != nullptr;
}

bool FTypeDefinitionReader::Read(FName ClassName, int64 Start, int64 End, FJsonObject& OutDefinition, int64& OutEnd)
{
	const EDefinition* const Kind = FindDefinition(ClassName);
	check(Kind);
	const FReadLimit Reads(Linker, Start, End);
	switch (*Kind)
	{
		case EDefinition::Class:
			ReadClass(OutDefinition);
			break;
		case EDefinition::Function:
			ReadFunction(OutDefinition);
			break;
		case EDefinition::SparseDelegate:
			ReadFunction(OutDefinition);
			OutDefinition.SetStringField(TEXT("owning_class"), Values.ReadName());
			OutDefinition.SetStringField(TEXT("delegate"), Values.ReadName());
			break;
		case EDefinition::ScriptStruct:
			ReadScriptStruct(OutDefinition);
			break;
		case EDefinition::Enum:
			ReadEnum(OutDefinition);
			break;
		case EDefinition::Property:
			ReadPropertyObject(ClassName, OutDefinition);
			break;
	}
	OutEnd = Reads.GetReached();
	return !Linker.IsError();
}

void FTypeDefinitionReader::ReadFieldLink(FJsonObject& Out)
{
	if (Linker.CustomVer(FFrameworkObjectVersion::GUID) < FFrameworkObjectVersion::RemoveUField_Next)
	{
		Out.SetField(TEXT("next"), Values.ReadReference());
	}
}

void FTypeDefinitionReader::ReadScript(FJsonObject& Out)
{
	const int32 MemoryBytes = Values.Read<int32>();
	const int32 FileBytes = Values.ReadCount(1);
	if (FileBytes > 0)
	{
		const TSharedRef<FJsonObject> Script = MakeShared<FJsonObject>();
		Script->SetNumberField(TEXT("offset"), double(Linker.Tell()));
		Script->SetNumberField(TEXT("size"), FileBytes);
		Script->SetNumberField(TEXT("size_in_memory"), MemoryBytes);
		Out.SetObjectField(TEXT("script"), Script);
	}
	Linker.Seek(Linker.Tell() + FileBytes);
}

void FTypeDefinitionReader::ReadStruct(FJsonObject& Out)
{
	ReadFieldLink(Out);
	Out.SetField(TEXT("super"), Values.ReadReference());
	if (Linker.CustomVer(FFrameworkObjectVersion::GUID) < FFrameworkObjectVersion::RemoveUField_Next)
	{
		Out.SetField(TEXT("first_child"), Values.ReadReference());
	}
	else
	{
		TArray<FValue> Children;
		for (int32 Left = Values.ReadCount(sizeof(int32)); Left > 0; --Left)
		{
			Children.Add(Values.ReadReference());
		}
		AddList(Out, TEXT("children"), MoveTemp(Children));
	}
	if (Linker.CustomVer(FCoreObjectVersion::GUID) >= FCoreObjectVersion::FProperties)
	{
		TArray<FValue> Members;
		constexpr int64 MinPropertyBytes = 8;
		for (int32 Left = Values.ReadCount(MinPropertyBytes); Left > 0 && !Linker.IsError(); --Left)
		{
			Members.Add(ReadProperty());
		}
		AddList(Out, TEXT("members"), MoveTemp(Members));
	}
	ReadScript(Out);
}

void FTypeDefinitionReader::ReadFunction(FJsonObject& Out)
{
	ReadStruct(Out);
	const uint32 Flags = Values.Read<uint32>();
	Out.SetStringField(TEXT("function_flags"), ToHex(Flags));
	if (Flags & FUNC_Net)
	{
		Values.Read<int16>();
	}
	if (Linker.UEVer() >= VER_UE4_SERIALIZE_BLUEPRINT_EVENTGRAPH_FASTCALLS_IN_UFUNCTION)
	{
		Out.SetField(TEXT("event_graph_function"), Values.ReadReference());
		Out.SetNumberField(TEXT("event_graph_offset"), Values.Read<int32>());
	}
}

void FTypeDefinitionReader::ReadInterfaces(FJsonObject& Out)
{
	TArray<FValue> Interfaces;
	constexpr int64 InterfaceBytes = 3 * sizeof(int32);
	for (int32 Left = Values.ReadCount(InterfaceBytes); Left > 0; --Left)
	{
		Interfaces.Add(Values.ReadReference());
		Values.Read<int32>();
		Values.Read<bool>();
	}
	AddList(Out, TEXT("interfaces"), MoveTemp(Interfaces));
}

void FTypeDefinitionReader::ReadClass(FJsonObject& Out)
{
	ReadStruct(Out);
	const TSharedRef<FJsonObject> Functions = MakeShared<FJsonObject>();
	constexpr int64 FunctionBytes = 12;
	for (int32 Left = Values.ReadCount(FunctionBytes); Left > 0; --Left)
	{
		const FString Name = Values.ReadName();
		Functions->SetField(Name, Values.ReadReference());
	}
	if (!Functions->Values.IsEmpty())
	{
		Out.SetObjectField(TEXT("functions"), Functions);
	}
	Out.SetStringField(TEXT("class_flags"), ToHex(Values.Read<uint32>()));
	Out.SetField(TEXT("within"), Values.ReadReference());
	Out.SetStringField(TEXT("config"), Values.ReadName());
	const bool bInterfacesLast = Linker.UEVer() >= VER_UE4_UCLASS_SERIALIZE_INTERFACES_AFTER_LINKING;
	if (!bInterfacesLast)
	{
		ReadInterfaces(Out);
	}
	Out.SetField(TEXT("generated_by"), Values.ReadReference());
	if (bInterfacesLast)
	{
		ReadInterfaces(Out);
	}
	Values.Read<bool>();
	Values.ReadName();
	if (Linker.UEVer() >= VER_UE4_ADD_COOKED_TO_UCLASS)
	{
		Out.SetBoolField(TEXT("cooked"), Values.Read<bool>());
	}
	Out.SetField(TEXT("default_object"), Values.ReadReference());
}

void FTypeDefinitionReader::ReadScriptStruct(FJsonObject& Out)
{
	ReadStruct(Out);
	Out.SetStringField(TEXT("struct_flags"), ToHex(Values.Read<uint32>()));
}

void FTypeDefinitionReader::ReadEnum(FJsonObject& Out)
{
	ReadFieldLink(Out);
	const bool bHasValues = Linker.UEVer() >= VER_UE4_TIGHTLY_PACKED_ENUMS;
	const bool bByteValues = Linker.CustomVer(FCoreObjectVersion::GUID) < FCoreObjectVersion::EnumProperties;
	TArray<FValue> Enumerators;
	constexpr int64 NameBytes = 8;
	const int32 Count = Values.ReadCount(bHasValues ? NameBytes + 1 : NameBytes);
	for (int32 Index = 0; Index < Count && !Linker.IsError(); ++Index)
	{
		const TSharedRef<FJsonObject> Enumerator = MakeShared<FJsonObject>();
		Enumerator->SetStringField(TEXT("name"), Values.ReadName());
		const int64 Value = !bHasValues ? Index : bByteValues ? Values.Read<uint8>()
															  : Values.Read<int64>();
		Enumerator->SetField(TEXT("value"), MakeJsonInteger(Value));
		Enumerators.Add(MakeShared<FJsonValueObject>(Enumerator));
	}
	Out.SetArrayField(TEXT("enumerators"), MoveTemp(Enumerators));
	const bool bHasForm = Linker.UEVer() >= VER_UE4_ENUM_CLASS_SUPPORT;
	Out.SetNumberField(TEXT("form"), bHasForm ? Values.Read<uint8>() : Values.Read<bool>() ? 1
																						   : 0);
}

void FTypeDefinitionReader::ReadPropertyObject(FName Kind, FJsonObject& Out)
{
	ReadFieldLink(Out);
	Out.SetNumberField(TEXT("array_dim"), Values.Read<int32>());
	Out.SetStringField(TEXT("property_flags"), ToHex(Values.Read<uint64>()));
	Out.SetStringField(TEXT("rep_notify"), Values.ReadName());
	if (Linker.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::PropertiesSerializeRepCondition)
	{
		Out.SetNumberField(TEXT("rep_condition"), Values.Read<uint8>());
	}
	ReadPropertyType(Kind, Out, false);
}

void FTypeDefinitionReader::ReadMetaData(FJsonObject& Out)
{
	if (Linker.IsFilterEditorOnly() || !Values.Read<bool>())
	{
		return;
	}
	const TSharedRef<FJsonObject> MetaData = MakeShared<FJsonObject>();
	constexpr int64 MinPairBytes = 12;
	for (int32 Left = Values.ReadCount(MinPairBytes); Left > 0 && !Linker.IsError(); --Left)
	{
		const FString Key = Values.ReadName();
		MetaData->SetStringField(Key, Values.Read<FString>());
	}
	Out.SetObjectField(TEXT("metadata"), MetaData);
}

FTypeDefinitionReader::FValue FTypeDefinitionReader::ReadProperty()
{
	FName Kind;
	Linker << Kind;
	if (Kind.IsNone())
	{
		return MakeShared<FJsonValueNull>();
	}
	const TSharedRef<FJsonObject> Out = MakeShared<FJsonObject>();
	if (Depth >= MaxDepth)
	{
		Linker.SetError();
		return MakeShared<FJsonValueNull>();
	}
	const TGuardValue<int32> Deeper(Depth, Depth + 1);
	Out->SetStringField(TEXT("name"), Values.ReadName());
	Out->SetStringField(TEXT("type"), Kind.ToString());
	Values.Read<uint32>();
	ReadMetaData(*Out);
	Out->SetNumberField(TEXT("array_dim"), Values.Read<int32>());
	Out->SetNumberField(TEXT("element_size"), Values.Read<int32>());
	Out->SetStringField(TEXT("property_flags"), ToHex(Values.Read<uint64>()));
	Values.Read<uint16>();
	Out->SetStringField(TEXT("rep_notify"), Values.ReadName());
	Out->SetNumberField(TEXT("rep_condition"), Values.Read<uint8>());
	ReadPropertyType(Kind, *Out, true);
	return MakeShared<FJsonValueObject>(Out);
}

void FTypeDefinitionReader::ReadPropertyType(FName KindName, FJsonObject& Out, bool bWithin)
{
	// The bit's place, then the size and whether it is a whole byte; an object of its own has the last two alone.
	const int32 BoolBytes = bWithin ? 6 : 2;
	const FPropertyKind* const Kind = FindPropertyKind(KindName);
	if (!Kind || Linker.IsError())
	{
		Linker.SetError();
		return;
	}
	for (const TCHAR* const Reference : Kind->References)
	{
		Out.SetField(Reference, Values.ReadReference());
	}
	for (const TCHAR* const Property : Kind->Properties)
	{
		Out.SetField(Property, bWithin ? ReadProperty() : Values.ReadReference());
	}
	if (KindName == FName(TEXT("BoolProperty")))
	{
		Linker.Seek(Linker.Tell() + BoolBytes);
	}
	else if (KindName == FName(TEXT("FieldPathProperty")))
	{
		Out.SetStringField(TEXT("class"), Values.ReadName());
	}
}
