#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/VexelBlueprintEnums.h"
#include "Blueprint/VexelBlueprintNodePin.h"
#include "Blueprint/VexelBlueprintPropType.h"
#include "EdGraphSchema_K2.h"
#include "GameFramework/Actor.h"
#include "LumTestBlueprint.h"

namespace
{
class FPropertyTypeIdTest : public FLumTest
{
protected:
	std::string MakeId(const FEdGraphPinType& Type) { return ToStd(Mapping.MakePropTypeReference(Type, nullptr).ToString()); }
};

struct FCategoryCase
{
	const FName& Category;
	const char* Id;
	/** With Actor, Vector or an enumeration as its object. */
	const TCHAR* Object;
};

TEST_F(FPropertyTypeIdTest, EachCategoryIsWrittenWithItsObject)
{
	const FName AllObjectTypes(TEXT("AllObjectTypes"));
	const FCategoryCase Cases[] = {
		{UEdGraphSchema_K2::PC_Boolean, "bool", nullptr},
		{UEdGraphSchema_K2::PC_Int, "int", nullptr},
		{UEdGraphSchema_K2::PC_Int64, "int64", nullptr},
		{UEdGraphSchema_K2::PC_Real, "real", nullptr},
		{UEdGraphSchema_K2::PC_Wildcard, "wildcard", nullptr},
		{UEdGraphSchema_K2::PC_Delegate, "delegate", nullptr},
		{UEdGraphSchema_K2::PC_Byte, "byte", nullptr},
		{UEdGraphSchema_K2::PC_Object, "object", nullptr},
		{UEdGraphSchema_K2::PC_Struct, "struct", nullptr},
		{UEdGraphSchema_K2::PC_Object, "object.Actor", TEXT("Actor")},
		{UEdGraphSchema_K2::PC_Class, "class.Actor", TEXT("Actor")},
		{UEdGraphSchema_K2::PC_SoftObject, "softobject.Actor", TEXT("Actor")},
		{UEdGraphSchema_K2::PC_SoftClass, "softclass.Actor", TEXT("Actor")},
		{UEdGraphSchema_K2::PC_Interface, "interface.Actor", TEXT("Actor")},
		{UEdGraphSchema_K2::PC_Exec, "exec", nullptr},
		{UEdGraphSchema_K2::PC_Name, "name", nullptr},
		{UEdGraphSchema_K2::PC_Text, "text", nullptr},
		{UEdGraphSchema_K2::PC_Class, "class", nullptr},
		{UEdGraphSchema_K2::PC_SoftObject, "softobject", nullptr},
		{UEdGraphSchema_K2::PC_SoftClass, "softclass", nullptr},
		{AllObjectTypes, "AllObjectTypes", nullptr},
		{AllObjectTypes, "AllObjectTypes.Actor", TEXT("Actor")},
		{UEdGraphSchema_K2::PC_Struct, "struct.Vector", TEXT("Vector")},
		{UEdGraphSchema_K2::PC_Byte, "enum.ECollisionChannel", TEXT("ECollisionChannel")},
		// An object that the category does not speak of is no part of the type.
		{UEdGraphSchema_K2::PC_String, "string", TEXT("Actor")},
		{UEdGraphSchema_K2::PC_Delegate, "delegate", TEXT("Actor")},
	};
	for (const FCategoryCase& Case : Cases)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Case.Category;
		Type.PinSubCategoryObject = Case.Object ? FindFirstObject<UObject>(Case.Object, EFindFirstObjectOptions::NativeFirst) : nullptr;
		EXPECT_EQ(Case.Id, MakeId(Type));
		Type.bIsReference = true;
		EXPECT_EQ("ref|" + std::string(Case.Id), MakeId(Type));
		Type.ContainerType = EPinContainerType::Set;
		EXPECT_EQ("ref|set|" + std::string(Case.Id), MakeId(Type));
	}
}

TEST_F(FPropertyTypeIdTest, GeneratedClassIsNamedByItsBlueprint)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_SoftClass;
	Type.PinSubCategoryObject = Blueprint->GeneratedClass.Get();
	EXPECT_EQ("softclass." + ToStd(Blueprint->GetName()), MakeId(Type));
}

TEST_F(FPropertyTypeIdTest, MapWhoseValueHasNoIdHasNoneEither)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Name;
	Type.ContainerType = EPinContainerType::Map;
	Type.PinValueType.TerminalCategory = UEdGraphSchema_K2::PC_Interface;
	Type.bIsReference = true;
	EXPECT_EQ("", MakeId(Type));
	EXPECT_EQ(1, Log.Count("Failed to resolve value type for map type 'name'!"));
}

TEST_F(FPropertyTypeIdTest, ContainersOfEveryKindOfTypeReadBack)
{
	for (const TCHAR* const Base : {TEXT("bool"), TEXT("int64"), TEXT("real"), TEXT("name"), TEXT("byte"), TEXT("object.Actor"),
			 TEXT("class.Actor"), TEXT("softclass.Actor"), TEXT("struct.Vector"), TEXT("enum.ECollisionChannel")})
	{
		for (const TCHAR* const Format : {TEXT("array|%s"), TEXT("set|%s"), TEXT("map|int,%s"), TEXT("map|%s,struct.Rotator")})
		{
			const FString Id = FString(Format).Replace(TEXT("%s"), Base);
			FEdGraphPinType Type;
			ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(Id), Type)) << ToStd(Id);
			EXPECT_EQ(ToStd(Id), MakeId(Type));
		}
	}
}

TEST_F(FPropertyTypeIdTest, IdsAreReadInAnyLetterCase)
{
	FEdGraphPinType Type;
	ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(TEXT("ARRAY|Object.aCTOR")), Type));
	EXPECT_EQ("array|object.Actor", MakeId(Type));
}

TEST_F(FPropertyTypeIdTest, IdsThatNameNoTypeAreRefused)
{
	for (const TCHAR* const Id : {TEXT(""), TEXT("."), TEXT(".."), TEXT("|"), TEXT("||"), TEXT("none|int"), TEXT("array|"), TEXT("|int"),
			 TEXT("set||int"), TEXT("array|array|int"), TEXT("array|map|int,int"), TEXT("map|"), TEXT("map|,"), TEXT("map|,int"),
			 TEXT("map|int,int,"), TEXT("map|a,b,c"), TEXT("map|array|int,int"), TEXT("object."), TEXT(".Actor"), TEXT("object..Actor"),
			 TEXT("object.Actor.Actor"), TEXT("object.Actor "), TEXT(" int"), TEXT("struct.Actor"), TEXT("object.Vector"),
			 TEXT("enum.Vector"), TEXT("class.ECollisionChannel"), TEXT("string.Actor"), TEXT("nonsense.Actor"), TEXT("object.Actor:Inner"),
			 TEXT("object.None"), TEXT("None"), TEXT("object./"), TEXT("object.%s%n"), TEXT("object.\"'\\"), TEXT("object.\u00e9\u4e2d")})
	{
		FEdGraphPinType Type;
		Type.PinCategory = TEXT("untouched");
		Log.Clear();
		EXPECT_FALSE(Mapping.ResolvePropType(TVexelPropTypeId(Id), Type)) << TCHAR_TO_UTF8(Id);
		EXPECT_EQ(FName(TEXT("untouched")), Type.PinCategory);
		EXPECT_FALSE(Log.GetLines().empty()) << TCHAR_TO_UTF8(Id);
	}
}

TEST_F(FPropertyTypeIdTest, HugeIdsAreRefused)
{
	const FString Huge = FString::ChrN(200000, TEXT('a'));
	FEdGraphPinType Type;
	for (const FString& Id : {Huge, Huge + TEXT(".Actor"), TEXT("object.") + Huge, TEXT("array|") + Huge,
			 TEXT("map|") + Huge + TEXT(",") + Huge, FString::ChrN(200000, TEXT('|')), FString::ChrN(200000, TEXT('.'))})
	{
		EXPECT_FALSE(Mapping.ResolvePropType(TVexelPropTypeId(Id), Type));
	}
	for (const int32 Length : {1020, 1021, 1022, 1023, 1024, 1025})
	{
		EXPECT_FALSE(Mapping.ResolvePropType(TVexelPropTypeId(TEXT("object.") + FString::ChrN(Length, TEXT('b'))), Type));
	}
}

TEST_F(FPropertyTypeIdTest, DirectionsAndContainersAreWordsOfATable)
{
	for (const auto& [Direction, Word] :
		{std::pair{EGPD_Input, "input"}, std::pair{EGPD_Output, "output"}, std::pair{EGPD_MAX, "unknown"}})
	{
		EXPECT_EQ(Word, ToStd(FString(VexelBlueprintWords::GetWord(Direction))));
	}
	for (const auto& [Container, Word] : {std::pair{EPinContainerType::None, "none"}, std::pair{EPinContainerType::Array, "array"},
			 std::pair{EPinContainerType::Set, "set"}, std::pair{EPinContainerType::Map, "map"}})
	{
		EXPECT_EQ(Word, ToStd(FString(VexelBlueprintWords::GetWord(Container))));
		EPinContainerType Read = EPinContainerType::None;
		EXPECT_TRUE(VexelBlueprintWords::FindByWord(FString(VexelBlueprintWords::GetWord(Container)), Read));
		EXPECT_EQ(Container, Read);
	}
	EEdGraphPinDirection Untouched = EGPD_Output;
	EXPECT_FALSE(VexelBlueprintWords::FindByWord(TEXT("unknown"), Untouched));
	EXPECT_EQ(EGPD_Output, Untouched);
}

TEST_F(FPropertyTypeIdTest, PinRecordReadsBackFromItsJson)
{
	FVexelBlueprintNodePin Pin;
	Pin.Id = TEXT("Target");
	Pin.Direction = EGPD_Output;
	Pin.Guid = FGuid(1, 2, 3, 4);
	Pin.Name = TEXT("The target");
	Pin.Type = TVexelPropTypeId(TEXT("ref|object.Actor"));
	Pin.bRef = true;
	const TSharedRef<FJsonObject> Plain = MakeShared<FJsonObject>();
	Pin.ToJson(Plain);
	for (const TCHAR* const Absent : {TEXT("const"), TEXT("value"), TEXT("connections")})
	{
		EXPECT_FALSE(Plain->HasField(Absent)) << TCHAR_TO_UTF8(Absent);
	}
	EXPECT_EQ("00000001000000020000000300000004", ToStd(Plain->GetStringField(TEXT("guid"))));

	FVexelBlueprintNodePinConnection& Connection = Pin.Connections.AddDefaulted_GetRef();
	Connection.Node = TEXT("Branch_0");
	Connection.Pin = TEXT("execute");
	Pin.bConst = true;
	Pin.DefaultValue = TEXT("x");
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Pin.ToJson(Object);
	FVexelBlueprintNodePin Read;
	ASSERT_TRUE(Read.FromJson(Object));
	EXPECT_EQ(Pin.Guid, Read.Guid);
	EXPECT_EQ(EGPD_Output, Read.Direction);
	EXPECT_TRUE(Read.bConst && Read.bRef);
	ASSERT_EQ(1, Read.Connections.Num());
	EXPECT_EQ("Branch_0", ToStd(Read.Connections[0].Node));

	Object->SetArrayField(TEXT("connections"), {MakeShared<FJsonValueString>(TEXT("no object"))});
	Object->SetStringField(TEXT("id"), TEXT("Other"));
	EXPECT_FALSE(Read.FromJson(Object));
	EXPECT_EQ("Target", ToStd(Read.Id));
	EXPECT_EQ(1, Read.Connections.Num());
}

TEST_F(FPropertyTypeIdTest, EachTypeOfTheListReadsBackAsItself)
{
	const TArray<TSharedRef<FVexelBlueprintPropType>> Types = Mapping.IteratePropTypes();
	TSet<FString> Ids;
	for (const TSharedRef<FVexelBlueprintPropType>& Type : Types)
	{
		Ids.Add(Type->Id.ToString());
		FEdGraphPinType PinType;
		if (!Mapping.ResolvePropType(Type->Id, PinType))
		{
			ADD_FAILURE() << ToStd(Type->Id.ToString());
			continue;
		}
		EXPECT_EQ(ToStd(Type->Id.ToString()), MakeId(PinType));
		EXPECT_FALSE(Type->Keywords.IsEmpty()) << ToStd(Type->Id.ToString());
	}
	EXPECT_EQ(Types.Num(), Ids.Num()) << "each once";
	for (const FString& Id : {FString(TEXT("bool")), FString(TEXT("real")), FString(TEXT("text")), FString(TEXT("object.Actor")),
			 FString(TEXT("softclass.Actor")), FString(TEXT("struct.Vector")), FString(TEXT("enum.ECollisionChannel")),
			 TEXT("class.") + Blueprint->GetName()})
	{
		EXPECT_TRUE(Ids.Contains(Id)) << ToStd(Id);
	}
	for (const FString& Id : {FString(TEXT("exec")), FString(TEXT("wildcard")), FString(TEXT("object.K2Node")),
			 TEXT("object.") + Blueprint->SkeletonGeneratedClass->GetName()})
	{
		EXPECT_FALSE(Ids.Contains(Id)) << ToStd(Id);
	}
}
}
