#include "EditorFixture.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumProperty.h"
#include "Lum/LumPropertyCollector.h"
#include "LumTestTypes.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <string>

namespace
{
std::string Utf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

std::string ToText(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
	return Utf8(Text);
}

class FLumPropertyKindTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		Thing = NewObject<ULumThing>(GetTransientPackage());
	}

	TVexelExpected<TSharedRef<ILumProperty>> Resolve(const FString& Path) const
	{
		return FLumHelper::CompoundPathResolve(MakeShared<FLumUnrealObjectCompound>(*Thing), Path);
	}

	/** The property object as JSON, or the error. */
	std::string Export(const TCHAR* Path) const
	{
		const TVexelExpected<TSharedRef<ILumProperty>> Property = Resolve(Path);
		if (Property.HasError())
		{
			return Utf8(Property.GetError().GetMessage());
		}
		const TVexelExpected<TSharedRef<FJsonObject>> Object = Property.GetValue()->JsonExportPropertyObject(Context);
		return Object.HasError() ? Utf8(Object.GetError().GetMessage()) : ToText(Object.GetValue());
	}

	ULumThing* Thing = nullptr;
	FLumContext Context{MakeShared<FVexelBlueprintMapping>()};
};

struct FLeafCase
{
	const TCHAR* Path;
	/** From "type" to "category". */
	const char* Json;
};

TEST_F(FLumPropertyKindTest, LeafIsItsExactTypeAndTheEnginesText)
{
	const FLeafCase Cases[] = {
		{TEXT("Int8"), R"("type":"int8","value":"-128","category":"Numbers|Small")"},
		{TEXT("Int16"), R"("type":"int16","value":"-32768")"},
		{TEXT("Int32"), R"("type":"int32","value":"-2147483648")"},
		{TEXT("Int64"), R"("type":"int64","value":"-9223372036854775808")"},
		{TEXT("UInt8"), R"("type":"byte","value":"255")"},
		{TEXT("UInt16"), R"("type":"uint16","value":"65535")"},
		{TEXT("UInt32"), R"("type":"uint32","value":"4294967295")"},
		{TEXT("UInt64"), R"("type":"uint64","value":"18446744073709551615")"},
		{TEXT("Float"), R"("type":"real","value":"-0.250000")"},
		{TEXT("Double"), R"("type":"real","value":"1.500000")"},
		{TEXT("bBool"), R"("type":"bool","value":"True")"},
		{TEXT("bFirstBit"), R"("type":"bool","value":"False")"},
		{TEXT("bSecondBit"), R"("type":"bool","value":"True")"},
		{TEXT("Side"), R"("type":"enum.ELumSide","value":"LS_Right")"},
		{TEXT("Mood"), R"("type":"enum.ELumMood","value":"Angry")"},
		{TEXT("Name"), R"("type":"name","value":"A name")"},
		{TEXT("String"), R"("type":"string","value":"two\n\"lines\"")"},
		{TEXT("Empty"), R"("type":"string","value":"")"},
		{TEXT("Path"), R"("type":"fieldpath","value":"None")"},
	};
	for (const FLeafCase& Case : Cases)
	{
		const std::string Json = Export(Case.Path);
		EXPECT_NE(std::string::npos, Json.find(std::string(R"("declared_in":"object.LumThing",)") + Case.Json)) << Json;
	}
}

TEST_F(FLumPropertyKindTest, ReferenceIsThePathOfItsObjectOrNone)
{
	const FLeafCase Empty[] = {
		{TEXT("Object"), R"("type":"object.Object","value":"ref|None")"},
		{TEXT("Class"), R"("type":"class.Object","value":"ref|None")"},
		{TEXT("SoftObject"), R"("type":"softobject.Object","value":"ref|None")"},
		{TEXT("SoftClass"), R"("type":"softclass.Object","value":"ref|None")"},
		{TEXT("Weak"), R"("type":"object.Object","value":"ref|None")"},
		{TEXT("Lazy"), R"("type":"object.Object","value":"ref|None")"},
		{TEXT("Talker"), R"("type":"interface.LumTalker","value":"ref|None")"},
		{TEXT("Part"), R"("type":"object.LumPart","value":"ref|None")"},
	};
	for (const FLeafCase& Case : Empty)
	{
		EXPECT_NE(std::string::npos, Export(Case.Path).find(Case.Json)) << Export(Case.Path);
	}
	UObject* const Target = NewObject<ULumPart>(GetTransientPackage(), TEXT("LumTarget"));
	Thing->Object = Target;
	Thing->Class = ULumPart::StaticClass();
	Thing->SoftObject = FSoftObjectPath(TEXT("/Game/Not/Loaded.Loaded"));
	Thing->Weak = Target;
	EXPECT_NE(std::string::npos, Export(TEXT("Object")).find(R"("value":"ref|)" + Utf8(Target->GetPathName()) + "\""))
		<< Export(TEXT("Object"));
	EXPECT_NE(std::string::npos, Export(TEXT("Weak")).find(R"("value":"ref|)" + Utf8(Target->GetPathName()) + "\""));
	EXPECT_NE(std::string::npos, Export(TEXT("Class")).find(R"("value":"ref|/Script/LumTestTypes.LumPart")")) << Export(TEXT("Class"));
	EXPECT_NE(std::string::npos, Export(TEXT("SoftObject")).find(R"("value":"ref|/Game/Not/Loaded.Loaded")")) << Export(TEXT("SoftObject"));
}

TEST_F(FLumPropertyKindTest, FlagsBecomeKeysAndAreAbsentOtherwise)
{
	const FLeafCase Cases[] = {
		{TEXT("Int32"), R"("category":"","edit":true})"},
		{TEXT("ReadOnly"), R"("category":"","access":"read_only"})"},
		{TEXT("ReadWrite"), R"("category":"","edit":true,"access":"read_write"})"},
		{TEXT("Part"), R"("category":"","instanced":true,"edit":true})"},
	};
	for (const FLeafCase& Case : Cases)
	{
		const std::string Json = Export(Case.Path);
		const std::string End = Case.Json;
		EXPECT_TRUE(Json.size() >= End.size() && Json.substr(Json.size() - End.size()) == End) << Json;
	}
}

TEST_F(FLumPropertyKindTest, PropertiesWithoutABlueprintTypeAreNotThere)
{
	for (const TCHAR* const Name : {TEXT("Fixed"), TEXT("OnDone"), TEXT("OnChanged"), TEXT("Hidden"), TEXT("Maybe"), TEXT("WeakByName")})
	{
		EXPECT_EQ("Property '" + Utf8(Name) + "' not found in compound\nwhile resolving segment '" + Utf8(Name) +
				"'\nwhile resolving path '" + Utf8(Name) + "'",
			Export(Name));
	}
}

TEST_F(FLumPropertyKindTest, StructIsAnObjectWithTheInnerOneAsText)
{
	EXPECT_NE(std::string::npos,
		Export(TEXT("Vector"))
			.find(
				R"("type":"struct.Vector","value":{"type":"struct.Vector","properties":[{"id":"X","declared_in":"struct.Vector","type":"real","value":"1.000000")"))
		<< Export(TEXT("Vector"));
	const std::string Json = Export(TEXT("Struct"));
	EXPECT_NE(std::string::npos,
		Json.find(
			R"x({"id":"Inner","declared_in":"struct.LumOuter","type":"struct.LumInner","value":"(Depth=2,Label=\"say \\\"x\\\"\")","category":"Outer","edit":true})x"))
		<< Json;
	EXPECT_NE(std::string::npos, Json.find(R"("type":"array|struct.LumInner","value":{"type":"array|struct.LumInner"})")) << Json;
}

TEST_F(FLumPropertyKindTest, ContainersHaveTheirElementsByIndex)
{
	Thing->Numbers = {5, -6};
	Thing->Names = {TEXT("First"), TEXT("Gone"), TEXT("Last")};
	Thing->Names.Remove(TEXT("Gone"));
	EXPECT_NE(
		std::string::npos, Export(TEXT("Numbers")).find(R"("type":"array|int32","value":{"type":"array|int32","properties":[{"id":"0")"))
		<< Export(TEXT("Numbers"));
	EXPECT_NE(std::string::npos, Export(TEXT("Numbers.1")).find(R"("id":"1")"));
	EXPECT_NE(std::string::npos, Export(TEXT("Numbers.1")).find(R"("value":"-6")"));
	EXPECT_NE(std::string::npos, Export(TEXT("Names.1")).find(R"("value":"Last")")) << Export(TEXT("Names"));
	EXPECT_EQ("Property '2' not found in compound\nwhile resolving segment '2'\nwhile resolving path 'Names.2'", Export(TEXT("Names.2")));
	EXPECT_EQ(
		"Property '-1' not found in compound\nwhile resolving segment '-1'\nwhile resolving path 'Numbers.-1'", Export(TEXT("Numbers.-1")));
	EXPECT_EQ(
		"Property '01' not found in compound\nwhile resolving segment '01'\nwhile resolving path 'Numbers.01'", Export(TEXT("Numbers.01")));
}

TEST_F(FLumPropertyKindTest, PathGoesThroughMapsStructsAndArrays)
{
	FLumOuter Outer;
	Outer.List.SetNum(2);
	Outer.List[1].Depth = 42;
	Thing->Structs.Add(TEXT("Gone"), FLumOuter());
	Thing->Structs.Add(TEXT("Here"), Outer);
	Thing->Structs.Remove(TEXT("Gone"));
	EXPECT_NE(std::string::npos, Export(TEXT("Structs.0.key")).find(R"("value":"Here")")) << Export(TEXT("Structs.0.key"));
	EXPECT_NE(std::string::npos, Export(TEXT("Structs.0.value.List.1.Depth")).find(R"("value":"42")"))
		<< Export(TEXT("Structs.0.value.List.1.Depth"));
	EXPECT_NE(std::string::npos, Export(TEXT("structs.0.VALUE.inner.depth")).find(R"("value":"2")"));
	EXPECT_NE(std::string::npos, Export(TEXT("Structs")).find(R"("type":"map|string|struct.LumOuter")"));
	EXPECT_EQ(
		"Property 'Depth' is not a compound property\nwhile resolving path 'Struct.Inner.Depth.X'", Export(TEXT("Struct.Inner.Depth.X")));
	EXPECT_EQ("Property 'Name' is not a compound property\nwhile resolving path 'Name.X'", Export(TEXT("Name.X")));
	EXPECT_EQ("Property 'Object' is not a compound property\nwhile resolving path 'Object.X'", Export(TEXT("Object.X")));
}

TEST_F(FLumPropertyKindTest, PartsAreShownTwoLevelsDeepAndNeverInsideThemselves)
{
	ULumPart* const First = NewObject<ULumPart>(Thing, TEXT("First"));
	ULumPart* const Second = NewObject<ULumPart>(First, TEXT("Second"));
	Thing->Part = First;
	EXPECT_EQ(
		"Property 'Next' does not contain a valid compound\nwhile resolving path 'Part.Next.Strength'", Export(TEXT("Part.Next.Strength")));
	First->Strength = 8;
	First->Next = Second;
	Second->Strength = 9;
	ULumPart* const Third = NewObject<ULumPart>(Second, TEXT("Third"));
	Second->Next = Third;
	const std::string Json = Export(TEXT("Part"));
	EXPECT_NE(std::string::npos,
		Json.find(
			R"("value":{"type":"object.LumPart","properties":[{"id":"Strength","declared_in":"object.LumPart","type":"int32","value":"8")"))
		<< Json;
	EXPECT_NE(std::string::npos, Json.find(R"("value":"9")")) << Json;
	EXPECT_NE(std::string::npos, Json.find(R"("value":"ref|)" + Utf8(Third->GetPathName()))) << Json;
	EXPECT_NE(std::string::npos, Export(TEXT("Part.Next.Next.Strength")).find(R"("value":"3")"));

	First->Next = First;
	EXPECT_NE(std::string::npos, Export(TEXT("Part")).find(R"("value":"ref|)" + Utf8(First->GetPathName()) + "\"")) << Export(TEXT("Part"));
}

TEST_F(FLumPropertyKindTest, ObjectThatIsGoneIsAnError)
{
	const TSharedRef<FLumUnrealObjectCompound> Compound = MakeShared<FLumUnrealObjectCompound>(*Thing);
	Thing->MarkAsGarbage();
	CollectGarbage(RF_Standalone);
	const TVexelExpected<TSharedPtr<ILumProperty>> Found = Compound->FindProperty(TVexelPropId(TEXT("Name")));
	ASSERT_TRUE(Found.HasError());
	EXPECT_EQ("Invalid object\nwhile iterating properties", Utf8(Found.GetError().GetMessage()));
	EXPECT_EQ("Invalid object\nwhile getting compound type", Utf8(Compound->JsonExportObject(Context).GetError().GetMessage()));
}

/** Fails at the N-th property. */
class FFailingCollector : public ILumPropertyCollector
{
public:
	explicit FFailingCollector(int32 InNumLeft)
		: NumLeft(InNumLeft)
	{
	}

	virtual TVexelExpected<void> Property(const TSharedRef<ILumProperty>&) override
	{
		++NumSeen;
		if (NumSeen > NumLeft)
		{
			return VEXEL_ERROR(FLumError_Traverse, "enough");
		}
		return {};
	}
	virtual TVexelExpected<void> Variable(const TSharedRef<ILumVariable>&) override { return {}; }

	int32 NumSeen = 0;

private:
	int32 NumLeft;
};

TEST_F(FLumPropertyKindTest, FirstErrorStopsTheIterationAndSaysWhere)
{
	FFailingCollector Collector(1);
	const TVexelExpected<void> Result = FLumUnrealObjectCompound(*Thing).IterateProperties(Collector);
	ASSERT_TRUE(Result.HasError());
	EXPECT_TRUE(Result.GetError().IsA<FLumError_Traverse>());
	EXPECT_EQ("enough\nwhile processing property 'Int16'\nwhile iterating properties", Utf8(Result.GetError().GetMessage()));
	EXPECT_EQ(2, Collector.NumSeen);

	Thing->Numbers = {1, 2, 3};
	FFailingCollector Second(2);
	const TVexelExpected<void> Items =
		Resolve(TEXT("Numbers")).GetValue()->AsCompoundProperty()->GetCompound().GetValue()->IterateProperties(Second);
	ASSERT_TRUE(Items.HasError());
	EXPECT_EQ("enough\nwhile collecting item at index 2\nwhile iterating properties", Utf8(Items.GetError().GetMessage()));
}

TEST_F(FLumPropertyKindTest, TextThatIsNoValueIsRefusedAndNamed)
{
	const FProperty* const Property = ULumThing::StaticClass()->FindPropertyByName(TEXT("Vector"));
	const TVexelExpected<void> Result = FLumHelper::ImportStringToProperty(*Property, &Thing->Vector, TEXT("nonsense"));
	ASSERT_TRUE(Result.HasError());
	EXPECT_TRUE(Result.GetError().IsA<FLumError_Import>());
	EXPECT_EQ(0u, Utf8(Result.GetError().GetMessage()).find("Failed to import text to property 'Vector': "));
	EXPECT_EQ(FVector(1, 2, 3), Thing->Vector);
	EXPECT_TRUE(FLumHelper::ImportStringToProperty(*Property, &Thing->Vector, TEXT("(X=7,Y=8,Z=9)")).HasValue());
	EXPECT_EQ(FVector(7, 8, 9), Thing->Vector);
}

TEST_F(FLumPropertyKindTest, ExportOfAnObjectShowsWhatDiffersAlone)
{
	EXPECT_EQ(R"({"type":"object.LumThing"})", ToText(FLumUnrealObjectCompound(*Thing).JsonExportObject(Context).GetValue()));
	Thing->bSecondBit = false;
	const std::string Json = ToText(FLumUnrealObjectCompound(*Thing).JsonExportObject(Context).GetValue());
	EXPECT_EQ(
		R"({"type":"object.LumThing","properties":[{"id":"bSecondBit","declared_in":"object.LumThing","type":"bool","value":"False","category":"","edit":true}]})",
		Json);
}
}
