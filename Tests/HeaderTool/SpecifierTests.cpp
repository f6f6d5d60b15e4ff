#include "HeaderParser/Flags.h"
#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

namespace
{
using namespace HeaderParser;

FHeader Parse(const std::string& Text)
{
	FParseResult Result = ParseHeader(Text);
	EXPECT_TRUE(Result.Succeeded()) << Text << "\n"
									<< (Result.Errors.empty() ? "" : FormatDiagnostic("X.h", Result.Errors[0]));
	return std::move(Result.Header);
}

std::string MetaText(const FMetaData& MetaData)
{
	std::string Text;
	for (const auto& [Key, Value] : MetaData.Pairs())
	{
		Text += (Text.empty() ? "" : ";") + Key + "=" + Value;
	}
	return Text;
}

struct FPropertyCase
{
	const char* Specifiers;
	/** Without those of access. */
	uint64_t Flags;
	const char* MetaData;
};

class PropertySpecifierTest : public testing::TestWithParam<FPropertyCase>
{
};

TEST_P(PropertySpecifierTest, SetsTheEnginesFlagsAndMetaData)
{
	const FHeader Header = Parse(std::string("USTRUCT() struct FThing { UPROPERTY(") + GetParam().Specifiers + ") int32 X; };");
	const FPropertyDeclaration& Property = Header.Structs.at(0).Properties.at(0);
	EXPECT_EQ(Property.Flags & ~PropertyFlags::NativeAccessSpecifierPublic, GetParam().Flags) << std::hex << Property.Flags;
	EXPECT_EQ(MetaText(Property.MetaData), GetParam().MetaData);
}

const FPropertyCase PropertyCases[] = {
	{"EditAnywhere", 0x1, ""},
	{"editanywhere", 0x1, ""},
	{"EditInstanceOnly", 0x801, ""},
	{"EditDefaultsOnly", 0x10001, ""},
	{"VisibleAnywhere", 0x20001, ""},
	{"VisibleInstanceOnly", 0x20801, ""},
	{"BlueprintReadWrite", 0x4, ""},
	{"BlueprintReadOnly", 0x14, ""},
	{"BlueprintSetter = SetX", 0x4, "BlueprintSetter=SetX"},
	{"BlueprintGetter = GetX, BlueprintSetter = SetX", 0x4, "BlueprintGetter=GetX;BlueprintSetter=SetX"},
	{"Interp", 0x200000005, ""},
	{"Config, Transient, SaveGame", 0x1006000, ""},
	{"Replicated", 0x20, ""},
	{"NoClear, EditFixedSize, AdvancedDisplay, SimpleDisplay",
		PropertyFlags::NoClear | PropertyFlags::EditFixedSize | PropertyFlags::AdvancedDisplay | PropertyFlags::SimpleDisplay, ""},
	{"EditAnywhere, Category = Plain", 0x1, "Category=Plain"},
	{"EditAnywhere, Category = \"Two Words|Sub\"", 0x1, "Category=Two Words|Sub"},
	{"Category = Door|Lock, meta = (ClampMin = \"0.0\", ClampMax = 1, Bitmask, EditCondition = \"bA && !bB\")", 0,
		"Category=Door|Lock;ClampMin=0.0;ClampMax=1;Bitmask=;EditCondition=bA && !bB"},
	{"meta = (MakeEditWidget = true,)", 0, "MakeEditWidget=true"},
	{"meta = (Units = \"cm\"), meta = (Units = \"m\")", 0, "Units=m"},
	{"Category = \"A\" \"B\", DisplayName = \"Say \\\"X\\\"\"", 0, "Category=AB;DisplayName=Say \"X\""},
};

INSTANTIATE_TEST_SUITE_P(Specifiers, PropertySpecifierTest, testing::ValuesIn(PropertyCases));

TEST(Access, IsThatOfTheSectionAndPrivateAtTheTopOfAClass)
{
	const FHeader Header = Parse("UCLASS() class UThing : public UObject { GENERATED_BODY() UPROPERTY() int32 A; protected: UPROPERTY() "
								 "int32 B; UFUNCTION() void F(); public: UPROPERTY() int32 C; };\n"
								 "UCLASS() class UOld : public UObject { GENERATED_UCLASS_BODY() UPROPERTY() int32 A; };");
	const std::vector<FPropertyDeclaration>& Properties = Header.Classes.at(0).Properties;
	EXPECT_EQ(Properties.at(0).Flags, PropertyFlags::NativeAccessSpecifierPrivate);
	EXPECT_EQ(Properties.at(1).Flags, PropertyFlags::NativeAccessSpecifierProtected | PropertyFlags::Protected);
	EXPECT_EQ(Properties.at(2).Flags, PropertyFlags::NativeAccessSpecifierPublic);
	EXPECT_TRUE(Header.Classes[0].Functions.at(0).Flags & FunctionFlags::Protected);
	EXPECT_EQ(Header.Classes.at(1).Properties.at(0).Access, EAccess::Public);
}

struct FFunctionCase
{
	const char* Text;
	uint32_t Flags;
};

class FunctionSpecifierTest : public testing::TestWithParam<FFunctionCase>
{
};

TEST_P(FunctionSpecifierTest, SetsTheEnginesFlags)
{
	const FHeader Header =
		Parse(std::string("UCLASS() class UThing : public UObject { GENERATED_BODY() public: ") + GetParam().Text + " };");
	ASSERT_EQ(Header.Classes.at(0).Functions.size(), 1u);
	EXPECT_EQ(Header.Classes[0].Functions[0].Flags, GetParam().Flags | FunctionFlags::Public)
		<< std::hex << Header.Classes[0].Functions[0].Flags;
}

constexpr uint32_t FinalNative = FunctionFlags::Final | FunctionFlags::Native;
const FFunctionCase FunctionCases[] = {
	{"UFUNCTION() void F();", FinalNative},
	{"UFUNCTION() virtual void F();", FunctionFlags::Native},
	{"UFUNCTION() void F() override;", FunctionFlags::Native},
	{"UFUNCTION(BlueprintCallable) void F(int32& Out);", FinalNative | FunctionFlags::BlueprintCallable | FunctionFlags::HasOutParms},
	{"UFUNCTION(BlueprintCallable) void F(const FVector& In);",
		FinalNative | FunctionFlags::BlueprintCallable | FunctionFlags::HasOutParms},
	{"UFUNCTION(BlueprintCallable) void F(const FString& In);", FinalNative | FunctionFlags::BlueprintCallable},
	{"UFUNCTION(BlueprintPure) int32 F();", FinalNative | FunctionFlags::BlueprintCallable | FunctionFlags::BlueprintPure},
	{"UFUNCTION(BlueprintImplementableEvent) void F();", FunctionFlags::Event | FunctionFlags::BlueprintEvent},
	{"UFUNCTION(BlueprintNativeEvent, BlueprintCallable) bool F() const;",
		FunctionFlags::Native | FunctionFlags::Event | FunctionFlags::BlueprintEvent | FunctionFlags::BlueprintCallable |
			FunctionFlags::Const},
	{"UFUNCTION(Server, Reliable, WithValidation) void F();",
		FunctionFlags::Native | FunctionFlags::Event | FunctionFlags::Net | FunctionFlags::NetServer | FunctionFlags::NetReliable |
			FunctionFlags::NetValidate},
	{"UFUNCTION(NetMulticast, Unreliable) void F();",
		FunctionFlags::Native | FunctionFlags::Event | FunctionFlags::Net | FunctionFlags::NetMulticast},
	{"UFUNCTION(Exec) static void F();", FinalNative | FunctionFlags::Exec | FunctionFlags::Static},
	{"UFUNCTION(BlueprintAuthorityOnly, BlueprintCosmetic) void F();",
		FinalNative | FunctionFlags::BlueprintAuthorityOnly | FunctionFlags::BlueprintCosmetic},
	{"\n#if WITH_EDITOR\nUFUNCTION() void F();\n#endif\n", FinalNative | FunctionFlags::EditorOnly},
	{"UFUNCTION() static ENGINE_API FORCEINLINE void F() { if (true) { return; } }", FinalNative | FunctionFlags::Static},
	{"UFUNCTION() virtual void F() const PURE_VIRTUAL(UThing::F, );", FunctionFlags::Native | FunctionFlags::Const},
	{"UE_DEPRECATED(5.1, \"Use G(), not F\") UFUNCTION() [[nodiscard]] void F() noexcept;", FinalNative},
};

INSTANTIATE_TEST_SUITE_P(Specifiers, FunctionSpecifierTest, testing::ValuesIn(FunctionCases));

TEST(Functions, ReturnValueTakesWhatUparamSays)
{
	const FHeader Header =
		Parse("UCLASS() class UThing : public UObject { GENERATED_BODY() UFUNCTION() UPARAM(DisplayName = \"Found\") bool F(UPARAM(meta = "
			  "(Categories = \"A.B\")) FName Tag, UPARAM(Ref) TArray<int32>& List); UFUNCTION() const TArray<FName>& G() const; };");
	const FFunctionDeclaration& F = Header.Classes.at(0).Functions.at(0);
	EXPECT_EQ(MetaText(F.ReturnValue.value().MetaData), "DisplayName=Found");
	EXPECT_EQ(MetaText(F.Parameters.at(0).MetaData), "Categories=A.B");
	EXPECT_EQ(F.Parameters.at(1).Flags & (PropertyFlags::ReferenceParm | PropertyFlags::OutParm),
		PropertyFlags::ReferenceParm | PropertyFlags::OutParm);
	EXPECT_EQ(Header.Classes[0].Functions.at(1).ReturnValue.value().Flags,
		PropertyFlags::Parm | PropertyFlags::OutParm | PropertyFlags::ReturnParm | PropertyFlags::ConstParm | PropertyFlags::ReferenceParm);
}

struct FClassCase
{
	const char* Text;
	uint32_t Flags;
	const char* MetaData;
};

class ClassSpecifierTest : public testing::TestWithParam<FClassCase>
{
};

TEST_P(ClassSpecifierTest, SetsTheEnginesFlagsAndMetaData)
{
	const FHeader Header = Parse(std::string(GetParam().Text) + " { GENERATED_BODY() };");
	ASSERT_EQ(Header.Classes.size(), 1u);
	EXPECT_EQ(Header.Classes[0].Flags, GetParam().Flags | ClassFlags::Native) << std::hex << Header.Classes[0].Flags;
	EXPECT_EQ(MetaText(Header.Classes[0].MetaData), GetParam().MetaData);
}

const FClassCase ClassCases[] = {
	{"UCLASS(Abstract) class UThing : public UObject", ClassFlags::Abstract, ""},
	{"UCLASS(Blueprintable) class ENGINE_API UThing : public UObject", ClassFlags::RequiredAPI, "IsBlueprintBase=true;BlueprintType=true"},
	{"UCLASS(NotBlueprintable, BlueprintType) class UThing : public UObject", 0, "IsBlueprintBase=false;BlueprintType=true"},
	{"UCLASS(Config = Game, DefaultConfig) class UThing : public UObject", ClassFlags::Config | ClassFlags::DefaultConfig, ""},
	{"UCLASS(MinimalAPI, EditInlineNew, DefaultToInstanced, CollapseCategories, HideDropdown) class UThing : public UObject",
		ClassFlags::MinimalAPI | ClassFlags::EditInlineNew | ClassFlags::DefaultToInstanced | ClassFlags::CollapseCategories |
			ClassFlags::HideDropDown,
		""},
	{"UCLASS(ClassGroup = (Custom, Rendering), HideCategories = (Object, \"Two Words\"), ShowCategories = Tags) class UThing : public "
	 "UObject",
		0, "ClassGroupNames=Custom Rendering;HideCategories=Object Two Words;ShowCategories=Tags"},
	{"UCLASS(Deprecated, Transient, Const) class UThing final : public UObject",
		ClassFlags::Deprecated | ClassFlags::NotPlaceable | ClassFlags::Transient | ClassFlags::Const, ""},
	{"UINTERFACE(meta = (CannotImplementInterfaceInBlueprint)) class UThing : public UInterface",
		ClassFlags::Interface | ClassFlags::Abstract, "CannotImplementInterfaceInBlueprint="},
};

INSTANTIATE_TEST_SUITE_P(Specifiers, ClassSpecifierTest, testing::ValuesIn(ClassCases));

struct FWrongPlaceCase
{
	const char* Text;
	const char* Error;
};

class WrongSpecifierTest : public testing::TestWithParam<FWrongPlaceCase>
{
};

TEST_P(WrongSpecifierTest, IsAnErrorWhereItStands)
{
	const FParseResult Result = ParseHeader(GetParam().Text);
	ASSERT_FALSE(Result.Succeeded());
	EXPECT_EQ(FormatDiagnostic("X.h", Result.Errors[0]), GetParam().Error);
}

const FWrongPlaceCase WrongPlaces[] = {
	{"UCLASS(BlueprintCallable)\nclass UThing {};", "X.h:1:8: error: expected a class specifier, found 'BlueprintCallable'"},
	{"USTRUCT(Blueprintable)\nstruct FThing {};", "X.h:1:9: error: expected a struct specifier, found 'Blueprintable'"},
	{"UENUM(EditAnywhere)\nenum E { A };", "X.h:1:7: error: expected a enum specifier, found 'EditAnywhere'"},
	{"USTRUCT() struct FThing { UPROPERTY(ReplicatedUsing) int32 X; };",
		"X.h:1:37: error: expected the name of a function after ReplicatedUsing, found none"},
	{"UCLASS() class UThing\n{\n\tUFUNCTION()\n\tvoid F(UPARAM(out) int32 X);\n};",
		"X.h:4:16: error: expected a parameter specifier, found 'out'"},
	{"UCLASS() class UThing { UFUNCTION() void F(void X); };", "X.h:1:44: error: expected a parameter's type, found 'void'"},
	{"UCLASS() class UThing { UFUNCTION() void F(int32); };", "X.h:1:49: error: expected a parameter's name, found ')'"},
	{"UCLASS() class UThing { UFUNCTION() UThing(); };", "X.h:1:43: error: expected '*' after the object class 'UThing', found '('"},
	{"UCLASS() class Thing {};", "X.h:1:16: error: expected a class name that begins with U or A, found 'Thing'"},
	{"USTRUCT() struct Thing {};", "X.h:1:18: error: expected a struct name that begins with F, found 'Thing'"},
	{"USTRUCT() struct FThing { UFUNCTION() void F(); };",
		"X.h:1:44: error: expected properties alone in a struct, found the function 'F'"},
	{"UINTERFACE() class UUse : public UInterface {};\nclass IUse { UPROPERTY() int32 X; };",
		"X.h:2:32: error: expected functions alone in an interface, found the property 'X'"},
	{"UCLASS(meta = (A B)) class UThing {};", "X.h:1:18: error: expected ',' or ')', found 'B'"},
	{"UCLASS(HideCategories = (A class UThing {};", "X.h:1:43: error: expected ',' or ')', found ';'"},
	{"USTRUCT() struct FThing {}", "X.h:1:27: error: expected ';', found the end of the file"},
};

INSTANTIATE_TEST_SUITE_P(Mistakes, WrongSpecifierTest, testing::ValuesIn(WrongPlaces));

TEST(Structs, NoExportAndBaseAreKept)
{
	const FHeader Header = Parse("USTRUCT(BlueprintType, noexport, meta = (HasNativeMake = \"A.B.C\")) struct FChild : public FBase { "
								 "UPROPERTY() int32 X; };\nUSTRUCT(Atomic) struct CORE_API FOther { GENERATED_USTRUCT_BODY() };");
	const FStructDeclaration& Child = Header.Structs.at(0);
	EXPECT_TRUE(Child.bNoExport);
	EXPECT_EQ(Child.Super, "FBase");
	EXPECT_EQ(Child.BodyLine, 0);
	EXPECT_EQ(MetaText(Child.MetaData), "BlueprintType=true;HasNativeMake=A.B.C");
	EXPECT_EQ(Header.Structs.at(1).Flags, StructFlags::Native | StructFlags::Atomic | StructFlags::RequiredAPI);
	EXPECT_EQ(Header.Structs[1].BodyLine, 2);
}
}
