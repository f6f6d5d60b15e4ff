#include "Emitter/Module.h"
#include "HeaderParser/Parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using namespace HeaderTool;
using testing::HasSubstr;
using testing::Not;

struct FEmitted
{
	std::string Header;
	std::string Source;
};

FEmitted Emit(const std::string_view Text)
{
	FReflectedHeader Header;
	Header.Stem = "Door";
	Header.ModuleRelativePath = "Public/Door.h";
	Header.IncludePath = "Door.h";
	Header.FileId = "FID_Door_h";
	Header.Package = "/Script/Game";
	HeaderParser::FParseResult Result = HeaderParser::ParseHeader(Text);
	EXPECT_TRUE(Result.Succeeded());
	Header.Model = std::move(Result.Header);
	HeaderParser::FTypeIndex Types;
	Types.Add(Header.Model);
	return {EmitGeneratedHeader(Header, Types), EmitGeneratedSource(Header, Types)};
}

TEST(Emitter, BodyMacroIsNamedByFileAndLine)
{
	const FEmitted Emitted = Emit("\nUSTRUCT()\nstruct FDoor : public FBase\n{\n\tGENERATED_BODY()\n};");
	EXPECT_THAT(Emitted.Header,
		HasSubstr("#define FID_Door_h_5_GENERATED_BODY \\\n\tfriend struct Z_Construct_UScriptStruct_FDoor_Statics; \\\n\tstatic "
				  "UScriptStruct* StaticStruct(); \\\n\tusing Super = FBase;\n"));
}

TEST(Emitter, ClassWithoutConstructorsIsMadeTheWayOfItsSuper)
{
	const FEmitted Emitted = Emit("UCLASS() class UA : public UObject { GENERATED_BODY() public: UA(); };\nUCLASS() class UB : public UA { "
								  "GENERATED_BODY() };\nUCLASS() class UC : public UObject { GENERATED_BODY() };");
	EXPECT_THAT(Emitted.Header, HasSubstr("new ((EInternal*)X.GetObj()) UA();"));
	EXPECT_THAT(Emitted.Header, HasSubstr("\tUB() {}"));
	EXPECT_THAT(Emitted.Header,
		HasSubstr("UC(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get()) : Super(ObjectInitializer) {}"));
}

TEST(Emitter, WithinNamesAClassWithoutItsPrefix)
{
	const FEmitted Emitted = Emit("UCLASS() class ADoor : public UObject { GENERATED_BODY() };\nUCLASS(Within = Door) class UHandle : "
								  "public UObject { GENERATED_BODY() };");
	EXPECT_THAT(Emitted.Source, HasSubstr("[]() -> UClass* { return Z_Construct_UClass_ADoor_NoRegister(); }"));
}

TEST(Emitter, BitFieldsAreFoundBySettingThem)
{
	const FEmitted Emitted = Emit("USTRUCT() struct FDoor { GENERATED_BODY() UPROPERTY() uint8 bLocked : 1; };");
	EXPECT_THAT(Emitted.Source,
		HasSubstr("static void NewProp_bLocked_SetBit(void* Owner) { static_cast<::FDoor*>(Owner)->bLocked = 1; }"));
	EXPECT_THAT(Emitted.Source,
		HasSubstr("{\"bLocked\", UECodeGen_Private::EPropertyGenKind::Bool, (EPropertyFlags)0x10000000000000, 1, 0, sizeof(bool), nullptr, "
				  "nullptr, NewProp_bLocked_SetBit,"));
}

TEST(Emitter, NamedTypesAreToldApartByTheirDeclarations)
{
	const FEmitted Emitted = Emit(
		"UENUM() enum class EWay : uint16 { A };\nUENUM() enum EOld { O_A };\nDECLARE_DYNAMIC_DELEGATE(FDone);\nUSTRUCT() struct FDoor { "
		"GENERATED_BODY() UPROPERTY() EWay Way; UPROPERTY() TEnumAsByte<EOld> Old; UPROPERTY() FDone Done; UPROPERTY() FVector Place; };");
	EXPECT_THAT(Emitted.Source, HasSubstr("NewProp_Way_Underlying = {\"UnderlyingType\", UECodeGen_Private::EPropertyGenKind::UInt16"));
	EXPECT_THAT(Emitted.Source,
		HasSubstr("{\"Old\", UECodeGen_Private::EPropertyGenKind::Byte, (EPropertyFlags)0x10000000000000, 1, offsetof(::FDoor, Old)"));
	EXPECT_THAT(Emitted.Source, HasSubstr("EPropertyGenKind::Delegate"));
	EXPECT_THAT(Emitted.Source, HasSubstr("Z_Construct_UDelegateFunction_FDone()"));
	EXPECT_THAT(Emitted.Source, HasSubstr("class UScriptStruct* Z_Construct_UScriptStruct_FVector();"));
}

TEST(Emitter, NoExportStructIsMeasuredByACopyOfItsLayout)
{
	const FEmitted Emitted = Emit("USTRUCT(noexport) struct FPoint { UPROPERTY() int32 X; UPROPERTY() int32 Y; };");
	EXPECT_THAT(Emitted.Source, HasSubstr("offsetof(FLayout, Y)"));
	EXPECT_THAT(Emitted.Source, HasSubstr("static_assert(sizeof(FLayout) == sizeof(::FPoint)"));
	EXPECT_THAT(Emitted.Source, Not(HasSubstr("StaticStruct()")));
	EXPECT_THAT(Emitted.Header, Not(HasSubstr("GENERATED_BODY")));
}

TEST(Emitter, NativeEventRunsItsImplementation)
{
	const FEmitted Emitted = Emit("UCLASS() class UDoor : public UObject { GENERATED_BODY() UFUNCTION(BlueprintNativeEvent) int32 "
								  "Use(const FVector& Where); UFUNCTION(BlueprintImplementableEvent) void Used(); };");
	EXPECT_THAT(Emitted.Header, HasSubstr("virtual int32 Use_Implementation(const FVector& Where);"));
	EXPECT_THAT(Emitted.Source, HasSubstr("int32 UDoor::Use(const FVector& Where)\n{\n\treturn Use_Implementation(Where);\n}"));
	EXPECT_THAT(Emitted.Header, Not(HasSubstr("Used_Implementation")));
	EXPECT_THAT(Emitted.Source, HasSubstr("void UDoor::Used()"));
}

TEST(Emitter, TextIsEscaped)
{
	const FEmitted Emitted = Emit("/** A \"caf\xC3\xA9\"\\ */\nUENUM() enum class EX : uint8 { A };");
	EXPECT_THAT(Emitted.Source, HasSubstr("\"A \\\"caf\\303\\251\\\"\\\\\""));
}

class ModuleTest : public testing::Test
{
protected:
	void SetUp() override
	{
		Root = std::filesystem::path(testing::TempDir()) /
			("HeaderTool_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
		std::filesystem::remove_all(Root);
		std::filesystem::create_directories(Root / "Public");
	}
	void TearDown() override { std::filesystem::remove_all(Root); }

	FModule MakeModule(const std::string& Text)
	{
		EXPECT_TRUE(WriteFileIfChanged(Root / "Public/Door.h", Text));
		return FModule({"Game", Root, {Root / "Public"}, {Root / "Public/Door.h"}, Root / "Generated"});
	}

	std::filesystem::path Root;
};

TEST_F(ModuleTest, FileWhoseTextStaysIsNotTouched)
{
	FModule First = MakeModule("UENUM() enum class EX : uint8 { A };");
	ASSERT_TRUE(First.Read() && First.Write());
	const std::filesystem::path Source = Root / "Generated/Door.gen.cpp";
	const std::filesystem::file_time_type Old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
	std::filesystem::last_write_time(Source, Old);

	FModule Second = MakeModule("\nUENUM() enum class EX : uint8 { A };");
	ASSERT_TRUE(Second.Read() && Second.Write());
	EXPECT_EQ(std::filesystem::last_write_time(Source), Old);

	FModule Third = MakeModule("UENUM() enum class EX : uint8 { B };");
	ASSERT_TRUE(Third.Read() && Third.Write());
	EXPECT_GT(std::filesystem::last_write_time(Source), Old);
}

TEST_F(ModuleTest, DelegateOfAnIncludedHeaderIsKnown)
{
	ASSERT_TRUE(WriteFileIfChanged(Root / "Public/Other.h", "DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnDone);"));
	FModule Module =
		MakeModule("#include \"Other.h\"\nUCLASS() class UDoor : public UObject { GENERATED_BODY() UPROPERTY() FOnDone OnDone; };");
	ASSERT_TRUE(Module.Read() && Module.Write());
	EXPECT_THAT(ReadFile(Root / "Generated/Door.gen.cpp").value_or(""), HasSubstr("MulticastInlineDelegate"));
}

TEST_F(ModuleTest, ClassWithoutBodyMacroIsAnError)
{
	FModule Module = MakeModule("UCLASS()\nclass UDoor : public UObject {};");
	EXPECT_FALSE(Module.Read());
	EXPECT_THAT(Module.Errors(), testing::ElementsAre(HasSubstr("Door.h:2:7: error: expected GENERATED_BODY() in 'UDoor', found none")));
	EXPECT_FALSE(std::filesystem::exists(Root / "Generated"));
}

TEST_F(ModuleTest, MistakesOfAllHeadersAreToldAtOnceAndNothingIsWritten)
{
	ASSERT_TRUE(WriteFileIfChanged(Root / "Public/Gate.h", "UENUM()\nenum class EGate : uint8 { A = };\nUCLASS()\nclass Gate {};\n"));
	const std::filesystem::path Door = Root / "Public/Door.h";
	ASSERT_TRUE(WriteFileIfChanged(Door, "USTRUCT()\nstruct FDoor\n{\n\tGENERATED_BODY()\n\tUPROPERTY(Wrong) int32 X;\n};\n"));
	FModule Module({"Game", Root, {Root / "Public"}, {Door, Root / "Public/Gate.h"}, Root / "Generated"});
	EXPECT_FALSE(Module.Read());
	EXPECT_THAT(Module.Errors(),
		testing::ElementsAre(HasSubstr("Door.h:5:12: error: expected a property specifier, found 'Wrong'"),
			HasSubstr("Gate.h:2:32: error: expected the value of 'A', found '}'"),
			HasSubstr("Gate.h:4:7: error: expected a class name that begins with U or A, found 'Gate'")));
	EXPECT_FALSE(std::filesystem::exists(Root / "Generated"));
}
}
