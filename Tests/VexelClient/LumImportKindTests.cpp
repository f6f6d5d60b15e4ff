#include "LumValueFixture.h"

#include "UObject/Package.h"

namespace
{
/** A value that a property takes, and what it is afterwards. */
struct FKindCase
{
	const TCHAR* Path;
	const char* Json;
	/** As it is exported; null where that is the string of the JSON itself. */
	const char* Exported = nullptr;
};

const FKindCase Kinds[] = {
	{TEXT("Int8"), R"("127")"},
	{TEXT("Int16"), R"("-32768")"},
	{TEXT("Int32"), R"("2147483647")"},
	{TEXT("Int32"), R"(" +7 ")", "7"},
	{TEXT("Int32"), R"("5.000000")", "5"},
	{TEXT("Int64"), R"("-9223372036854775808")"},
	{TEXT("UInt8"), R"("0")"},
	{TEXT("UInt16"), R"("65535")"},
	{TEXT("UInt32"), R"("0xFFFFFFFF")", "4294967295"},
	{TEXT("UInt64"), R"("18446744073709551615")"},
	{TEXT("Float"), R"("0.5")", "0.500000"},
	{TEXT("Double"), R"("-1e3")", "-1000.000000"},
	{TEXT("bBool"), R"("false")", "False"},
	{TEXT("bFirstBit"), R"("True")"},
	{TEXT("bSecondBit"), R"("0")", "False"},
	{TEXT("Side"), R"("LS_Left")"},
	{TEXT("Mood"), R"("Calm")"},
	{TEXT("Mood"), R"("ELumMood::Calm")", "Calm"},
	{TEXT("Mood"), R"("1")", "Angry"},
	{TEXT("Name"), R"("Other Name")"},
	{TEXT("Name"), R"("")", "None"},
	{TEXT("String"), R"("a \"b\"\n\u00e4")", "a \"b\"\n\xC3\xA4"},
	{TEXT("String"), R"("(X=1) and more")"},
	{TEXT("Text"), R"x("NSLOCTEXT(\"Space\", \"Key\", \"Words\")")x", R"x(NSLOCTEXT("Space", "Key", "Words"))x"},
	{TEXT("Text"), R"x("INVTEXT(\"Plain\")")x", R"x(INVTEXT("Plain"))x"},
	{TEXT("Object"), R"("ref|/Script/LumTestTypes.LumPart")"},
	{TEXT("Object"), R"("ref|None")"},
	{TEXT("Class"), R"("ref|/Script/LumTestTypes.LumPart")"},
	{TEXT("PartClass"), R"("ref|/Script/LumTestTypes.LumPart")"},
	{TEXT("SoftObject"), R"("ref|/Game/Not/There.There")"},
	{TEXT("SoftClass"), R"("ref|/Script/LumTestTypes.LumPart")"},
	{TEXT("SoftClass"), R"("ref|None")"},
	{TEXT("Weak"), R"("ref|/Script/LumTestTypes.LumPart")"},
	{TEXT("Talker"), R"("ref|/Script/LumTestTypes.Default__LumTalkingThing")"},
	{TEXT("Talker"), R"("ref|None")"},
	{TEXT("Path"), R"("/Script/LumTestTypes.LumPart:Strength")"},
	{TEXT("Path"), R"("None")"},
	{TEXT("Lazy"), R"("ref|None")"},
	{TEXT("Vector.Y"), R"("8")", "8.000000"},
	{TEXT("Struct.Inner"), R"x("(Depth=7,Label=\"L\")")x",
		R"x({"type":"struct.LumInner","properties":[{"id":"Depth","declared_in":"struct.LumInner","type":"int32","value":"7","category":""},{"id":"Label","declared_in":"struct.LumInner","type":"string","value":"L","category":""}]})x"},
	{TEXT("Struct.Inner.Label"), R"("deep")"},
	{TEXT("Guid"), R"("00112233445566778899AABBCCDDEEFF")", nullptr},
	{TEXT("SoftPath"), R"("/Game/A.A")", nullptr},
	{TEXT("Color.G"), R"("0.25")", "0.250000"},
	{TEXT("Transform.Translation"), R"x("(X=1,Y=2,Z=3)")x", nullptr},
};

class FLumImportKindTest : public FLumValueTest
{
};

TEST_F(FLumImportKindTest, EveryKindTakesItsTextAndGivesItBack)
{
	int32 Row = 0;
	for (const FKindCase& Case : Kinds)
	{
		EXPECT_EQ("ok", Import(Case.Path, Case.Json)) << Utf8(Case.Path) << " = " << Case.Json;
		const std::string Exported = Value(Case.Path);
		const TSharedPtr<FJsonValue> Given = Parse(Case.Json);
		if (Case.Exported || Exported.find("{") == std::string::npos)
		{
			EXPECT_EQ(Case.Exported ? Case.Exported : Utf8(Given->AsString()), Exported) << Utf8(Case.Path) << " = " << Case.Json;
		}
		RecordProperty("row" + std::to_string(Row++), Utf8(Case.Path) + "\t" + Case.Json + "\t" + Exported);
	}
	EXPECT_EQ(FGuid(0x00112233, 0x44556677, 0x8899AABB, 0xCCDDEEFF), Thing->Guid);
	EXPECT_EQ(FVector(1, 2, 3), Thing->Transform.GetTranslation());
	EXPECT_EQ(FString(TEXT("/Game/A.A")), Thing->SoftPath.ToString());
	EXPECT_EQ(FVector(1, 8, 3), Thing->Vector);
}

TEST_F(FLumImportKindTest, ExportedValueCanBeImportedAgain)
{
	const std::string Before = Snapshot(*Thing);
	const TCHAR* const Paths[] = {TEXT("Int8"), TEXT("UInt64"), TEXT("Double"), TEXT("bBool"), TEXT("Side"), TEXT("Mood"), TEXT("Name"),
		TEXT("String"), TEXT("Empty"), TEXT("Text"), TEXT("Object"), TEXT("Class"), TEXT("SoftObject"), TEXT("Weak"), TEXT("Talker"),
		TEXT("Part"), TEXT("Vector.X"), TEXT("Color.R"), TEXT("Struct.Weight")};
	for (const TCHAR* const Path : Paths)
	{
		const TSharedRef<ILumProperty> Property = Resolve(Path).GetValue();
		const TSharedRef<FJsonValue> Exported = Property->JsonExportValue(Context).GetValue();
		EXPECT_EQ("ok", Say(Property->JsonImportValue(Context, Exported))) << Utf8(Path);
	}
	EXPECT_EQ(Before, Snapshot(*Thing));
}

/** A value that a property refuses. */
struct FRefusal
{
	const TCHAR* Path;
	const char* Json;
	const char* Message;
};

const FRefusal Refusals[] = {
	{TEXT("Int32"), "5", "Expected string value for property 'Int32'"},
	{TEXT("bBool"), "true", "Expected string value for property 'bBool'"},
	{TEXT("Name"), "null", "Expected string value for property 'Name'"},
	{TEXT("String"), "[]", "Expected string value for property 'String'"},
	{TEXT("Mood"), "{}", "Expected string value for property 'Mood'"},
	{TEXT("Object"), "1", "Expected string value for property 'Object'"},
	{TEXT("SoftClass"), "{}", "Expected string value for property 'SoftClass'"},
	{TEXT("Vector"), "1", "Expected JSON object for compound property"},
	{TEXT("Vector"), "[]", "Expected JSON object for compound property"},
	{TEXT("Numbers"), "[1]", "Expected JSON object for compound property"},
	{TEXT("Numbers"), R"x("(1,2)")x", "Expected JSON object for compound property"},
	{TEXT("Names"), "true", "Expected JSON object for compound property"},
	{TEXT("Counts"), "7", "Expected JSON object for compound property"},
	{TEXT("Part"), "3", "Expected JSON object for compound property"},
	{TEXT("Part"), "{}", "Compound property is null"},
	{TEXT("Object"), R"("None")", "Invalid reference string, while parsing reference string"},
	{TEXT("Object"), R"("")", "Invalid reference string, while parsing reference string"},
	{TEXT("Object"), R"("REF|None")", "Invalid reference string, while parsing reference string"},
	{TEXT("Object"), R"("ref|/Game/No.Such")", "There is no object '/Game/No.Such'"},
	{TEXT("Object"), R"("ref|.:..")", "There is no object '.:..'"},
	{TEXT("PartReference"), R"("ref|/Script/LumTestTypes.Default__LumTalkingThing")",
		"'/Script/LumTestTypes.Default__LumTalkingThing' is a LumTalkingThing, not a LumPart"},
	{TEXT("Class"), R"("ref|/Script/LumTestTypes.Default__LumPart")", "'/Script/LumTestTypes.Default__LumPart' is a LumPart, not a Class"},
	{TEXT("PartClass"), R"("ref|/Script/LumTestTypes.LumThing")", "'/Script/LumTestTypes.LumThing' is no class of a LumPart"},
	{TEXT("SoftClass"), R"("ref|/Script/LumTestTypes.Default__LumPart")",
		"'/Script/LumTestTypes.Default__LumPart' is a LumPart, not a Class"},
	{TEXT("SoftObject"), R"("ref|no path")", "'no path' is no path of an object"},
	{TEXT("Talker"), R"("ref|/Script/LumTestTypes.Default__LumPart")",
		"'/Script/LumTestTypes.Default__LumPart' is a LumPart, not a LumTalker"},
	{TEXT("Hidden"), R"("1")", "Property 'Hidden' not found in compound\nwhile resolving segment 'Hidden'\nwhile resolving path 'Hidden'"},
	{TEXT("ReadOnly"), R"("1")", "Property 'ReadOnly' of '%s' cannot be edited: only native code sets it"},
	{TEXT("ReadWrite"), R"("1")", "Property 'ReadWrite' of '%s' cannot be edited: only native code sets it"},
};

TEST_F(FLumImportKindTest, RefusedValueSaysWhyAndChangesNothing)
{
	const std::string Before = Snapshot(*Thing);
	for (const FRefusal& Case : Refusals)
	{
		std::string Message = Case.Message;
		const size_t Place = Message.find("%s");
		Message = Place == std::string::npos ? Message : Message.replace(Place, 2, Utf8(Thing->GetName()));
		EXPECT_EQ(Message, Import(Case.Path, Case.Json)) << Utf8(Case.Path) << " = " << Case.Json;
	}
	EXPECT_EQ(Before, Snapshot(*Thing));
}

/** Texts that are no value of the property. The message is the part behind the property's name. */
const FRefusal BadTexts[] = {
	{TEXT("Int8"), R"("128")", "out of range"},
	{TEXT("Int8"), R"("-129")", "out of range"},
	{TEXT("UInt8"), R"("256")", "out of range"},
	{TEXT("UInt8"), R"("-1")", "out of range"},
	{TEXT("Int32"), R"("2147483648")", "out of range"},
	{TEXT("Int32"), R"("99999999999999999999999999")", "out of range"},
	{TEXT("UInt32"), R"("0x100000000")", "out of range"},
	{TEXT("Int64"), R"("9223372036854775808")", "out of range"},
	{TEXT("UInt64"), R"("18446744073709551616")", "out of range"},
	{TEXT("Int32"), R"("")", "is not a number"},
	{TEXT("Int32"), R"("5 apples")", "'apples' stands behind the value"},
	{TEXT("Int32"), R"("5.7")", "'5.7' is not a whole number"},
	{TEXT("Int32"), R"("--")", "is not a number"},
	{TEXT("Float"), R"("1.5x")", "'x' stands behind the value"},
	{TEXT("Float"), R"("nan")", "'Float' must be a finite number"},
	{TEXT("Double"), R"("-inf")", "'Double' must be a finite number"},
	{TEXT("Double"), R"("1e999")", "'Double' must be a finite number"},
	{TEXT("Float"), R"("1e99")", "'Float' must be a finite number"},
	{TEXT("bBool"), R"("maybe")", "is neither True nor False"},
	{TEXT("bBool"), R"("true false")", "'false' stands behind the value"},
	{TEXT("Mood"), R"("Furious")", "Valid names: Calm, Angry"},
	{TEXT("Mood"), R"("77")", "'ELumMood' has no value 77. Valid names: Calm, Angry"},
	{TEXT("Side"), R"("LS_Top")", "Valid names: LS_Left, LS_Right"},
	{TEXT("Side"), R"("9")", "'ELumSide' has no value 9. Valid names: LS_Left, LS_Right"},
	{TEXT("Vector"), R"("1,2,3")", ""},
	{TEXT("Vector"), R"x("(X=1,Y=2")x", ""},
	{TEXT("Vector"), R"x("(X=5,Y=nan,Z=3)")x", "'Y' must be a finite number"},
	{TEXT("Vector"), R"x("(X=5,Y=6,Z=7) tail")x", "'tail' stands behind the value"},
	{TEXT("Struct"), R"x("(Inner=(Depth=99999999999))")x", ""},
	{TEXT("Struct"), R"x("(Inner=(Depth=5),Weight=heavy)")x", ""},
	{TEXT("Guid"), R"("not a guid")", ""},
	{TEXT("Vector"), R"x("(X=5,Hight=6)")x", "Unknown property in Vector: Hight"},
	{TEXT("Struct"), R"x("(Weight=4,Inner=(Depth=5,Gone=1))")x", "Unknown property in LumInner: Gone"},
	{TEXT("Struct"), R"x("(Weight=4,Weight=5)")x", "redundant data: Weight"},
	{TEXT("String"), R"("a\u0000b")", "it has a character of the code 0"},
	{TEXT("Name"), R"("a\u0000b")", "it has a character of the code 0"},
	{TEXT("Text"), R"("a\u0000b")", "it has a character of the code 0"},
};

TEST_F(FLumImportKindTest, BadTextIsRefusedWhole)
{
	const std::string Before = Snapshot(*Thing);
	for (const FRefusal& Case : BadTexts)
	{
		const std::string Result = Import(Case.Path, Case.Json);
		EXPECT_EQ(0u, Result.find("Failed to import text to property '" + Utf8(Case.Path) + "': ")) << Case.Json << ": " << Result;
		EXPECT_NE(std::string::npos, Result.find(Case.Message)) << Case.Json << ": " << Result;
		EXPECT_EQ(Before, Snapshot(*Thing)) << Utf8(Case.Path) << " = " << Case.Json;
	}
}

TEST_F(FLumImportKindTest, NameHas1023CharactersAtMost)
{
	const auto ImportName = [this](int32 Length)
	{
		return Import(TEXT("Name"), ("\"" + std::string(Length, 'n') + "\"").c_str());
	};
	EXPECT_EQ("ok", ImportName(1023));
	EXPECT_EQ(1023, Thing->Name.ToString().Len());
	EXPECT_EQ(0u, ImportName(1024).find("Failed to import text to property 'Name': ")) << ImportName(1024);
	EXPECT_EQ(1023, Thing->Name.ToString().Len());
	EXPECT_EQ("ok", Import(TEXT("SoftObject"), ("\"ref|/" + std::string(1022, 'n') + "\"").c_str()));
	const std::string LongReference = "\"ref|/" + std::string(5000, 'n') + "\"";
	EXPECT_EQ(0u, Import(TEXT("Object"), LongReference.c_str()).find("There is no object '/nnn"));
	EXPECT_NE(std::string::npos, Import(TEXT("SoftObject"), LongReference.c_str()).find("' is no path of an object"));
}

TEST_F(FLumImportKindTest, ReferenceToWhatIsPrivateToAnotherPackageIsRefused)
{
	UPackage* const Package = CreatePackage(TEXT("/Temp/LumOther"));
	UObject* const Private = NewObject<ULumTalkingThing>(Package, TEXT("Private"));
	UObject* const Public = NewObject<ULumTalkingThing>(Package, TEXT("Public"), RF_Public);
	EXPECT_EQ("'/Temp/LumOther.Private' is private to its package", Import(TEXT("Object"), R"("ref|/Temp/LumOther.Private")"));
	EXPECT_EQ(nullptr, Thing->Object);
	EXPECT_EQ("ok", Import(TEXT("Object"), R"("ref|/Temp/LumOther.Public")"));
	EXPECT_EQ(Public, Thing->Object);
	EXPECT_EQ("'/Temp/LumOther.Private' is private to its package", Import(TEXT("Weak"), R"("ref|/Temp/LumOther.Private")"));
	EXPECT_NE(nullptr, Private);
}

TEST_F(FLumImportKindTest, PartOfTheOwnerCanBeSetAndNothingElse)
{
	ULumPart* const First = NewObject<ULumPart>(Thing, TEXT("First"));
	ULumPart* const Inner = NewObject<ULumPart>(First, TEXT("Inner"));
	Thing->Part = First;
	const auto Reference = [](const UObject& Object)
	{
		return "\"ref|" + Utf8(Object.GetPathName()) + "\"";
	};
	EXPECT_EQ("ok", Import(TEXT("Part.Next"), Reference(*Inner).c_str()));
	EXPECT_EQ(Inner, First->Next);
	EXPECT_EQ("'" + Utf8(First->GetPathName()) + "' cannot be a part of itself", Import(TEXT("Part.Next"), Reference(*First).c_str()));
	EXPECT_EQ("'" + Utf8(First->GetPathName()) + "' cannot be a part of itself", Import(TEXT("Part.Next.Next"), Reference(*First).c_str()));
	EXPECT_EQ("'" + Utf8(Inner->GetPathName()) + "' is a part of another object", Import(TEXT("Part"), Reference(*Inner).c_str()));
	EXPECT_EQ(First, Thing->Part);
	EXPECT_EQ(Inner, First->Next);
	EXPECT_EQ("ok", Import(TEXT("Part.Next"), R"("ref|None")"));
	EXPECT_EQ(nullptr, First->Next);
	EXPECT_EQ("ok", Import(TEXT("Part"), R"({"Strength":"11"})"));
	EXPECT_EQ(11, First->Strength);
}
}
