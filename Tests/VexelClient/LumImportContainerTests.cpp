#include "LumValueFixture.h"

#include "Lum/Compound/LumUnrealContainerCompound.h"
#include "Lum/LumErrors.h"

namespace
{
class FLumImportContainerTest : public FLumValueTest
{
protected:
	std::string Insert(const TCHAR* Path, int32 Index, const char* Json)
	{
		return Say(Collection(Path).InsertAt(Context, Index, Parse(Json).ToSharedRef()));
	}
	std::string Remove(const TCHAR* Path, int32 Index) { return Say(Collection(Path).RemoveAt(Index)); }
	std::string Resize(const TCHAR* Path, int32 Count) { return Say(Collection(Path).Resize(Count)); }

	/** The elements' values in the model's order, between commas. */
	std::string List(const TCHAR* Path)
	{
		std::string All;
		const int32 Num = Collection(Path).GetNum().GetValue();
		for (int32 Index = 0; Index < Num; ++Index)
		{
			All += (Index ? "," : "") + Value(*FString::Printf(TEXT("%s.%d"), Path, Index));
		}
		return All;
	}
};

TEST_F(FLumImportContainerTest, ArrayTakesElementsByIndexAndGrows)
{
	EXPECT_EQ("ok", Import(TEXT("Numbers"), R"({"1":"11","0":"10"})"));
	EXPECT_EQ((TArray<int32>{10, 11}), Thing->Numbers);
	EXPECT_EQ("ok", Import(TEXT("Numbers"), R"({"4":"14"})"));
	EXPECT_EQ((TArray<int32>{10, 11, 0, 0, 14}), Thing->Numbers);
	EXPECT_EQ("ok", Import(TEXT("Numbers"), "{}"));
	EXPECT_EQ(5, Thing->Numbers.Num());
	EXPECT_EQ("ok", Import(TEXT("Numbers"), R"({"250":"1"})"));
	EXPECT_EQ(251, Thing->Numbers.Num());
	EXPECT_EQ("ok", Import(TEXT("Inners"), R"x({"0":{"Depth":"4"},"1":"(Label=\"b\")"})x"));
	EXPECT_EQ(4, Thing->Inners[0].Depth);
	EXPECT_EQ(FString(TEXT("b")), Thing->Inners[1].Label);
	EXPECT_EQ(2, Thing->Inners[1].Depth);
}

TEST_F(FLumImportContainerTest, ArrayKeyThatIsNoIndexIsRefused)
{
	Thing->Numbers = {1, 2};
	for (const char* const Key : {"x", "1.5", "-1", "", "01", "+1", " 1", "1 ", "99999999999", "0x1"})
	{
		EXPECT_EQ("Invalid array index key: '" + std::string(Key) + "'",
			Import(TEXT("Numbers"), (std::string("{\"0\":\"9\",\"") + Key + "\":\"5\"}").c_str()));
	}
	EXPECT_EQ("Array index 251 is too large (max 250)", Import(TEXT("Numbers"), R"({"0":"9","251":"5"})"));
	EXPECT_EQ("Array index 2147483647 is too large (max 250)", Import(TEXT("Numbers"), R"({"2147483647":"5"})"));
	EXPECT_EQ((TArray<int32>{1, 2}), Thing->Numbers);
}

TEST_F(FLumImportContainerTest, ArrayImportStopsAtTheFirstFailureAndKeepsWhatCameBefore)
{
	Thing->Numbers = {1, 2, 3};
	const std::string Message = Import(TEXT("Numbers"), R"({"2":"30","1":"zwei","0":"10"})");
	EXPECT_EQ(0u, Message.find("Failed to import text to property 'Numbers': ")) << Message;
	EXPECT_NE(std::string::npos, Message.find(", while importing array element at index 1")) << Message;
	EXPECT_EQ((TArray<int32>{10, 2, 3}), Thing->Numbers);
	EXPECT_EQ("Invalid JSON value for key '1', while importing array element at index 1", Import(TEXT("Numbers"), R"({"1":null})"));
	EXPECT_EQ((TArray<int32>{10, 2, 3}), Thing->Numbers);
	// An element that could not be made is not there at all, not even the part of it that could.
	EXPECT_EQ("Property 'Nope' not found, while importing array element at index 0",
		Import(TEXT("Inners"), R"({"0":{"Depth":"5","Nope":"1"}})"));
	EXPECT_EQ(0, Thing->Inners.Num());
	Thing->Inners.SetNum(1);
	EXPECT_EQ("Property 'Nope' not found, while importing array element at index 0",
		Import(TEXT("Inners"), R"({"0":{"Depth":"5","Nope":"1","Label":"x"}})"));
	EXPECT_EQ(5, Thing->Inners[0].Depth);
	EXPECT_NE(FString(TEXT("x")), Thing->Inners[0].Label);
}

TEST_F(FLumImportContainerTest, ArrayElementsAreInsertedRemovedAndCut)
{
	EXPECT_EQ("ok", Insert(TEXT("Strings"), 0, R"("b")"));
	EXPECT_EQ("ok", Insert(TEXT("Strings"), 0, R"("a")"));
	EXPECT_EQ("ok", Insert(TEXT("Strings"), 2, R"("c")"));
	EXPECT_EQ("a,b,c", List(TEXT("Strings")));
	EXPECT_EQ("Array index out of range, while inserting array element at index 4", Insert(TEXT("Strings"), 4, R"("x")"));
	EXPECT_EQ("Array index out of range, while inserting array element at index -5", Insert(TEXT("Strings"), -5, R"("x")"));
	EXPECT_EQ("Expected string value for property 'Strings', while inserting array element at index 1", Insert(TEXT("Strings"), 1, "1"));
	EXPECT_EQ("ok", Remove(TEXT("Strings"), 1));
	EXPECT_EQ("Array index out of range", Remove(TEXT("Strings"), 2));
	EXPECT_EQ("Array index out of range", Remove(TEXT("Strings"), -1));
	EXPECT_EQ("a,c", List(TEXT("Strings")));
	EXPECT_EQ("ok", Resize(TEXT("Strings"), 3));
	EXPECT_EQ("a,c,", List(TEXT("Strings")));
	EXPECT_EQ("Negative array size", Resize(TEXT("Strings"), -1));
	EXPECT_EQ("ok", Resize(TEXT("Strings"), 0));
	EXPECT_EQ(0, Thing->Strings.Num());
}

TEST_F(FLumImportContainerTest, SetHasEachElementOnce)
{
	Thing->Names = {TEXT("A"), TEXT("Gone"), TEXT("C")};
	Thing->Names.Remove(TEXT("Gone"));
	EXPECT_EQ("ok", Import(TEXT("Names"), R"({"1":"D","2":"E"})"));
	EXPECT_EQ("A,D,E", List(TEXT("Names")));
	EXPECT_TRUE(Thing->Names.Contains(TEXT("D")));
	EXPECT_FALSE(Thing->Names.Contains(TEXT("C")));
	EXPECT_EQ("'Names' already has an equal element, while importing set element at index 0", Import(TEXT("Names"), R"({"0":"E"})"));
	EXPECT_EQ("'Names' already has an equal element", Import(TEXT("Names.0"), R"("d")"));
	EXPECT_EQ("ok", Import(TEXT("Names.0"), R"("A")"));
	EXPECT_EQ("Set index out of range, while importing set element at index 9", Import(TEXT("Names"), R"({"9":"X"})"));
	EXPECT_EQ("Missing set entry at index 0, while importing set element at index 0", Import(TEXT("Names"), R"({"0":null})"));
	EXPECT_EQ("Invalid numeric key: 'x'", Import(TEXT("Names"), R"({"x":"X"})"));
	EXPECT_EQ("A,D,E", List(TEXT("Names")));
}

TEST_F(FLumImportContainerTest, SetElementsAreInsertedWhereTheIndexSaysAndRemoved)
{
	Thing->Names = {TEXT("A"), TEXT("Gone"), TEXT("B")};
	Thing->Names.Remove(TEXT("Gone"));
	EXPECT_EQ("ok", Insert(TEXT("Names"), 1, R"("N")"));
	EXPECT_EQ("A,N,B", List(TEXT("Names")));
	EXPECT_EQ("ok", Insert(TEXT("Names"), 3, R"("Z")"));
	EXPECT_EQ("'Names' already has an equal element, while inserting set element", Insert(TEXT("Names"), 0, R"("Z")"));
	EXPECT_EQ("Expected string value for property 'Names', while inserting set element", Insert(TEXT("Names"), 0, "{}"));
	EXPECT_EQ("Set index out of range", Insert(TEXT("Names"), 5, R"("Y")"));
	EXPECT_EQ("Set index out of range", Insert(TEXT("Names"), -2, R"("Y")"));
	EXPECT_EQ("ok", Remove(TEXT("Names"), 1));
	EXPECT_EQ("A,B,Z", List(TEXT("Names")));
	EXPECT_EQ("Set index out of range", Remove(TEXT("Names"), 3));
	EXPECT_EQ("Negative set size", Resize(TEXT("Names"), -3));
	EXPECT_EQ("ok", Resize(TEXT("Names"), 1));
	EXPECT_EQ("A", List(TEXT("Names")));
	EXPECT_EQ("ok", Resize(TEXT("Names"), 2));
	EXPECT_EQ("A,None", List(TEXT("Names")));
	EXPECT_EQ("'Names' already has an equal element", Resize(TEXT("Names"), 3));
	EXPECT_EQ("'Names' can hold one default element alone", Resize(TEXT("Names"), 5));
	EXPECT_EQ("A,None", List(TEXT("Names")));
}

TEST_F(FLumImportContainerTest, MemberOfASetElementMovesItInTheSet)
{
	Thing->Keys.Add({1, TEXT("one")});
	Thing->Keys.Add({2, TEXT("two")});
	EXPECT_EQ("ok", Import(TEXT("Keys.0.Id"), R"("7")"));
	EXPECT_TRUE(Thing->Keys.Contains({7, TEXT("")}));
	EXPECT_FALSE(Thing->Keys.Contains({1, TEXT("")}));
	EXPECT_EQ("'Keys' already has an equal element", Import(TEXT("Keys.1.Id"), R"("7")"));
	EXPECT_EQ("'Keys' already has an equal element", Import(TEXT("Keys.1"), R"x("(Id=7,Note=\"x\")")x"));
	EXPECT_TRUE(Thing->Keys.Contains({2, TEXT("")}));
	EXPECT_EQ("ok", Import(TEXT("Keys.1.Note"), R"("zwei")"));
	EXPECT_EQ(FString(TEXT("zwei")), Thing->Keys.Find({2, TEXT("")})->Note);
}

TEST_F(FLumImportContainerTest, MapTakesEntriesByIndex)
{
	EXPECT_EQ("ok", Import(TEXT("Counts"), R"({"0":{"key":"A","value":"1"},"1":{"value":"2","key":"B"}})"));
	EXPECT_EQ(2, Thing->Counts.Num());
	EXPECT_EQ(2, Thing->Counts[TEXT("B")]);
	EXPECT_EQ("ok", Import(TEXT("Counts"), R"({"0":{"value":"10"},"1":{"key":"C"}})"));
	EXPECT_EQ(10, Thing->Counts[TEXT("A")]);
	EXPECT_EQ(2, Thing->Counts[TEXT("C")]);
	EXPECT_FALSE(Thing->Counts.Contains(TEXT("B")));
	EXPECT_EQ("ok", Import(TEXT("Counts.1.value"), R"("20")"));
	EXPECT_EQ("ok", Import(TEXT("Counts.0"), R"({"key":"A2"})"));
	EXPECT_EQ(10, Thing->Counts[TEXT("A2")]);
	EXPECT_EQ(20, Thing->Counts[TEXT("C")]);
	EXPECT_EQ("ok", Import(TEXT("ByMood"), R"({"0":{"key":"Angry","value":"ref|/Script/LumTestTypes.LumPart"}})"));
	EXPECT_EQ(ULumPart::StaticClass(), Thing->ByMood[ELumMood::Angry].Get());
}

TEST_F(FLumImportContainerTest, MapRefusesWhatIsNoEntry)
{
	Thing->Counts = {{TEXT("A"), 1}, {TEXT("B"), 2}};
	const std::string Before = Snapshot(*Thing);
	const struct
	{
		const char* Json;
		const char* Message;
	} Cases[] = {
		{R"({"0":"A"})", "Map value must be an object"},
		{R"({"0":null})", "Invalid or missing map entry at index 0"},
		{R"({"3":{"key":"X"}})", "Map index out of range"},
		{R"({"k":{"key":"X"}})", "Invalid numeric key: 'k'"},
		{R"({"0":{"key":"B"}})", "'Counts' already has an equal key, while importing map entry key at index 0"},
		{R"({"2":{"key":"b"}})", "'Counts' already has an equal key, while importing map entry key at index 2"},
		{R"({"0":{"name":"B"}})", "Property 'name' not found"},
		{R"({"0":{"key":null}})", "Invalid JSON value for key 'key'"},
		{R"({"0":{"key":1}})", "Expected string value for property 'Counts_Key', while importing map entry key at index 0"},
		{R"({"0":{"value":1}})", "Expected string value for property 'Counts_Value', while importing map entry value at index 0"},
		{R"({"2":{"key":"X","value":1}})", "Expected string value for property 'Counts_Value', while importing map entry value at index 2"},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Case.Message, Import(TEXT("Counts"), Case.Json)) << Case.Json;
	}
	EXPECT_EQ("'Counts' already has an equal key", Import(TEXT("Counts.0.key"), R"("B")"));
	EXPECT_EQ(Before, Snapshot(*Thing));
}

TEST_F(FLumImportContainerTest, MapEntriesAreInsertedAndRemoved)
{
	EXPECT_EQ("ok", Insert(TEXT("Counts"), 0, R"({"key":"B","value":"2"})"));
	EXPECT_EQ("ok", Insert(TEXT("Counts"), 0, R"({"key":"A"})"));
	EXPECT_EQ("A", Value(TEXT("Counts.0.key")));
	EXPECT_EQ("0", Value(TEXT("Counts.0.value")));
	EXPECT_EQ("2", Value(TEXT("Counts.1.value")));
	EXPECT_EQ("Map value must be an object", Insert(TEXT("Counts"), 0, R"("A")"));
	EXPECT_EQ("Map index out of range", Insert(TEXT("Counts"), 3, R"({"key":"C"})"));
	EXPECT_EQ("'Counts' already has an equal key, while inserting map key", Insert(TEXT("Counts"), 0, R"({"key":"B"})"));
	EXPECT_EQ("Expected string value for property 'Counts_Key', while inserting map key", Insert(TEXT("Counts"), 0, R"({"key":1})"));
	EXPECT_EQ("Expected string value for property 'Counts_Value', while inserting map value",
		Insert(TEXT("Counts"), 0, R"({"key":"C","value":1})"));
	EXPECT_EQ(2, Thing->Counts.Num());
	EXPECT_EQ("ok", Remove(TEXT("Counts"), 0));
	EXPECT_EQ("Map index out of range", Remove(TEXT("Counts"), 1));
	EXPECT_EQ("B", Value(TEXT("Counts.0.key")));
	EXPECT_EQ("Negative map size", Resize(TEXT("Counts"), -1));
	EXPECT_EQ("ok", Resize(TEXT("Counts"), 2));
	EXPECT_EQ("'Counts' can hold one default key alone", Resize(TEXT("Counts"), 4));
	EXPECT_EQ("ok", Resize(TEXT("Counts"), 0));
	EXPECT_EQ(0, Thing->Counts.Num());
}

TEST_F(FLumImportContainerTest, PlaceInAMapWithHolesIsTheEntryThatWasFound)
{
	for (int32 Number = 0; Number < 8; ++Number)
	{
		Thing->ByKey.Add({Number, TEXT("")}, FLumInner());
	}
	for (const int32 Number : {0, 3, 4, 6})
	{
		Thing->ByKey.Remove({Number, TEXT("")});
	}
	EXPECT_EQ("ok", Import(TEXT("ByKey.2.value"), R"({"Depth":"55","Label":"five"})"));
	EXPECT_EQ(55, Thing->ByKey[(FLumKey{5, TEXT("")})].Depth);
	EXPECT_EQ(FString(TEXT("five")), Thing->ByKey[(FLumKey{5, TEXT("")})].Label);
	EXPECT_EQ("ok", Import(TEXT("ByKey.3.key"), R"({"Id":"70","Note":"seventy"})"));
	EXPECT_TRUE(Thing->ByKey.Contains({70, TEXT("")}));
	EXPECT_EQ("ok", Remove(TEXT("ByKey"), 2));
	EXPECT_FALSE(Thing->ByKey.Contains({5, TEXT("")}));
	EXPECT_EQ(
		"Property '4' not found in compound\nwhile resolving segment '4'\nwhile resolving path 'ByKey.4'", Import(TEXT("ByKey.4"), "{}"));
}

TEST_F(FLumImportContainerTest, CompoundTakesWhatItKnowsUntilTheFirstFailure)
{
	FLumUnrealObjectCompound Object(*Thing);
	const auto ImportAll = [&](const char* Json)
	{
		return Say(Object.JsonImportObject(Context, Parse(Json)->AsObject().ToSharedRef()));
	};
	EXPECT_EQ("ok", ImportAll("{}"));
	EXPECT_EQ("ok", ImportAll(R"({"Int32":"1","struct":{"Inner":{"Depth":"3"}},"Name":"N"})"));
	EXPECT_EQ(1, Thing->Int32);
	EXPECT_EQ(3, Thing->Struct.Inner.Depth);
	EXPECT_EQ("Property 'Nope' not found", ImportAll(R"({"Int16":"2","Nope":"1","Int64":"3"})"));
	EXPECT_EQ(2, Thing->Int16);
	EXPECT_NE(3, Thing->Int64);
	EXPECT_EQ("Invalid JSON value for key 'Int64'", ImportAll(R"({"Int64":null})"));
	EXPECT_EQ("Expected string value for property 'Depth', while importing property 'Depth', while importing property 'Inner', "
			  "while importing property 'Struct'",
		ImportAll(R"({"Struct":{"Inner":{"Label":"kept","Depth":4}}})"));
	EXPECT_EQ(FString(TEXT("kept")), Thing->Struct.Inner.Label);
	EXPECT_EQ("Property '' not found", ImportAll(R"({"":"1"})"));
	EXPECT_EQ("Property 'type' not found", ImportAll(R"({"type":"object.LumThing"})"));
}

TEST_F(FLumImportContainerTest, DeepJsonIsRefusedBeforeItIsDangerous)
{
	ULumPart* const Part = NewObject<ULumPart>(Thing);
	Thing->Part = Part;
	Part->Next = Part;
	TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("Strength"), TEXT("9"));
	const auto Wrap = [&Object](int32 Times)
	{
		for (int32 Time = 0; Time < Times; ++Time)
		{
			const TSharedRef<FJsonObject> Outer = MakeShared<FJsonObject>();
			Outer->SetObjectField(TEXT("Next"), Object);
			Object = Outer;
		}
		return MakeShared<FJsonValueObject>(Object);
	};
	EXPECT_EQ("ok", Say(Resolve(TEXT("Part")).GetValue()->JsonImportValue(Context, Wrap(255))));
	EXPECT_EQ(9, Part->Strength);
	EXPECT_EQ(0u, Say(Resolve(TEXT("Part")).GetValue()->JsonImportValue(Context, Wrap(1))).find("Exceeded maximum depth (256)"));
	EXPECT_EQ("ok", Import(TEXT("Part"), R"({"Strength":"10"})"));
}
}
