#include "HeaderParser/Flags.h"
#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

namespace
{
using namespace HeaderParser;

FHeader Parse(const std::string_view Text)
{
	FParseResult Result = ParseHeader(Text);
	EXPECT_TRUE(Result.Succeeded()) << (Result.Errors.empty() ? "" : FormatDiagnostic("Text", Result.Errors[0]));
	return std::move(Result.Header);
}

/** The members of `class UThing`, one text. */
FClassDeclaration ParseClass(const std::string& Members)
{
	FHeader Header = Parse("UCLASS()\nclass UThing : public UObject\n{\nGENERATED_BODY()\npublic:\n" + Members + "\n};");
	return Header.Classes.empty() ? FClassDeclaration() : std::move(Header.Classes[0]);
}

std::string FirstError(const std::string_view Text)
{
	const FParseResult Result = ParseHeader(Text);
	return Result.Errors.empty() ? "" : FormatDiagnostic("X.h", Result.Errors[0]);
}

std::string MetaValue(const FMetaData& MetaData, const std::string_view Key)
{
	const std::string* const Value = MetaData.Find(Key);
	return Value ? *Value : "(missing)";
}

struct FPropertyCase
{
	const char* Text;
	const char* Name;
	ETypeKind Kind;
	uint64_t Flags;
};

class PropertyFlagsTest : public testing::TestWithParam<FPropertyCase>
{
};

TEST_P(PropertyFlagsTest, DeclarationGivesKindAndFlags)
{
	const FClassDeclaration Class = ParseClass(GetParam().Text);
	ASSERT_EQ(Class.Properties.size(), 1u);
	const FPropertyDeclaration& Property = Class.Properties[0];
	EXPECT_EQ(Property.Name, GetParam().Name);
	EXPECT_EQ(Property.Type.Kind, GetParam().Kind);
	EXPECT_EQ(Property.Flags, GetParam().Flags | PropertyFlags::NativeAccessSpecifierPublic) << std::hex << Property.Flags;
}

INSTANTIATE_TEST_SUITE_P(Declarations, PropertyFlagsTest,
	testing::Values(
		FPropertyCase{"UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = A) int32 Count = 3;", "Count", ETypeKind::Int, 0x15},
		FPropertyCase{"UPROPERTY(VisibleDefaultsOnly) TObjectPtr<class UBar> Bar;", "Bar", ETypeKind::Object, 0x4000000030001},
		FPropertyCase{"UPROPERTY() const UBar* Bar{nullptr};", "Bar", ETypeKind::Object, 0},
		FPropertyCase{"UPROPERTY(Transient) uint8 bFlag : 1;", "bFlag", ETypeKind::Bool, 0x2000},
		FPropertyCase{"UPROPERTY() FString Old_DEPRECATED;", "Old", ETypeKind::String, 0x20000000},
		FPropertyCase{"UPROPERTY(ReplicatedUsing = OnRep_X) TArray<FName> X;", "X", ETypeKind::Array, 0x100000020},
		FPropertyCase{"UPROPERTY(BlueprintGetter = GetX) double X;", "X", ETypeKind::Double, 0x14},
		FPropertyCase{"UPROPERTY(Instanced) UBar* Bar;", "Bar", ETypeKind::Object, 0x2000000080008},
		FPropertyCase{"#if WITH_EDITORONLY_DATA\nUPROPERTY() bool bX;\n#endif", "bX", ETypeKind::Bool, 0x800000000},
		FPropertyCase{"UPROPERTY(GlobalConfig) TSubclassOf<class AActor> X;", "X", ETypeKind::Class, 0x4000000044000}));

struct FDefaultCase
{
	const char* Parameter;
	const char* Import;
};

class DefaultArgumentTest : public testing::TestWithParam<FDefaultCase>
{
};

TEST_P(DefaultArgumentTest, IsKeptInImportForm)
{
	const FClassDeclaration Class = ParseClass(std::string("UFUNCTION() void Use(") + GetParam().Parameter + ");");
	ASSERT_EQ(Class.Functions.size(), 1u);
	EXPECT_EQ(MetaValue(Class.Functions[0].MetaData, "CPP_Default_X"), GetParam().Import);
}

INSTANTIATE_TEST_SUITE_P(Values, DefaultArgumentTest,
	testing::Values(FDefaultCase{"float X = 2.f", "2.000000"}, FDefaultCase{"int32 X = -1", "-1"}, FDefaultCase{"bool X = true", "true"},
		FDefaultCase{"const FString& X = FString(TEXT(\"He said \\\"hi\\\"\"))", "He said \"hi\""},
		FDefaultCase{"FName X = NAME_None", "None"}, FDefaultCase{"AActor* X = nullptr", "None"},
		FDefaultCase{"FVector X = FVector(0, 0.5f, -1)", "0.000000,0.500000,-1.000000"},
		FDefaultCase{"FVector X = FVector::ZeroVector", ""},
		FDefaultCase{"FRotator X = FRotator(0.f, 90.f, 0.f)", "0.000000,90.000000,0.000000"},
		FDefaultCase{"FVector2D X = FVector2D(1.f, 2.f)", "(X=1.000,Y=2.000)"},
		FDefaultCase{"FLinearColor X = FLinearColor(0.0, 0.66, 1.0)", "(R=0.000000,G=0.660000,B=1.000000,A=1.000000)"},
		FDefaultCase{"FLinearColor X = FLinearColor::Red", "(R=1.000000,G=0.000000,B=0.000000,A=1.000000)"},
		FDefaultCase{"ESpawn X = ESpawn::AlwaysSpawn", "AlwaysSpawn"}, FDefaultCase{"TEnumAsByte<ESide::Type> X = ESide::Left", "Left"},
		FDefaultCase{"ECollisionChannel X = ECC_Visibility", "ECC_Visibility"},
		FDefaultCase{"FText X = INVTEXT(\"a, b\")", "INVTEXT(\"a, b\")"},
		FDefaultCase{"const TMap<FName, int32>& X = TMap<FName, int32>(), int32 Y = 3", "()"}));

TEST(Parser, ParameterPassingGivesFlags)
{
	const FClassDeclaration Class = ParseClass("UFUNCTION() void Use(const TArray<int32>& In, int32& Out, UPARAM(ref, DisplayName = "
											   "\"Both\") FHitResult& InOut, const UObject* World, const FString& Text);");
	const std::vector<FPropertyDeclaration>& Parameters = Class.Functions.at(0).Parameters;
	ASSERT_EQ(Parameters.size(), 5u);
	EXPECT_EQ(Parameters[0].Flags, 0x8000182u);
	EXPECT_EQ(Parameters[1].Flags, 0x180u);
	EXPECT_EQ(Parameters[2].Flags, 0x8000180u);
	EXPECT_EQ(MetaValue(Parameters[2].MetaData, "DisplayName"), "Both");
	EXPECT_EQ(Parameters[3].Flags, 0x82u);
	EXPECT_EQ(Parameters[4].Flags, 0x80u);
	EXPECT_TRUE(Class.Functions[0].Flags & FunctionFlags::HasOutParms);
}

TEST(Parser, PureStaticFunctionHasTheFlagsOfAMathNode)
{
	const FClassDeclaration Class = ParseClass("UFUNCTION(BlueprintPure) static int32 Add_IntInt(int32 A, int32 B = 1);");
	EXPECT_EQ(Class.Functions.at(0).Flags, 0x14022401u) << std::hex << Class.Functions[0].Flags;
}

TEST(Parser, ConstFunctionWithOutputIsPureUnlessItSaysNo)
{
	const FClassDeclaration Class = ParseClass("UFUNCTION(BlueprintCallable) bool IsOpen() const;\nUFUNCTION(BlueprintCallable, "
											   "BlueprintPure = false) bool Ask() const;\nUFUNCTION(BlueprintCallable) void Tell() const;");
	EXPECT_TRUE(Class.Functions.at(0).Flags & FunctionFlags::BlueprintPure);
	EXPECT_FALSE(Class.Functions.at(1).Flags & FunctionFlags::BlueprintPure);
	EXPECT_FALSE(Class.Functions.at(2).Flags & FunctionFlags::BlueprintPure);
}

TEST(Parser, ConstructorsAndTheLineOfTheBodyAreNoted)
{
	const FHeader Header = Parse(
		"UCLASS()\nclass X_API UThing final : public UBase, public IUsable\n{\n\tGENERATED_BODY()\n\tUThing(const FObjectInitializer& X = "
		"FObjectInitializer::Get());\n\t~UThing() override { if (a) { b(); } }\n\tvirtual void Must() = 0;\n};");
	const FClassDeclaration& Class = Header.Classes.at(0);
	EXPECT_EQ(Class.BodyLine, 4);
	EXPECT_TRUE(Class.Constructors.bObjectInitializer);
	EXPECT_FALSE(Class.Constructors.bDefault);
	EXPECT_TRUE(Class.Constructors.bDestructor);
	EXPECT_TRUE(Class.bDeclaresPureVirtual);
	EXPECT_EQ(Class.Super, "UBase");
	EXPECT_EQ(Class.Interfaces, std::vector<std::string>{"IUsable"});
}

TEST(Parser, EnumFormsKeepNamesAndCountValues)
{
	const FHeader Header = Parse(
		"UENUM(BlueprintType)\nenum class EDoor : uint8 { Closed, Open = 1 << 2 UMETA(DisplayName = \"Is Open\"), Ajar, Both = Open | "
		"Closed, Far = sizeof(int) };\nUENUM()\nnamespace ESide { enum Type : int { Left = -1, Right }; }\nUENUM()\nenum EPlain { PL_A };");
	ASSERT_EQ(Header.Enums.size(), 3u);
	const FEnumDeclaration& Door = Header.Enums[0];
	EXPECT_EQ(Door.QualifiedName(Door.Enumerators[1]), "EDoor::Open");
	EXPECT_EQ(MetaValue(Door.Enumerators[1].MetaData, "DisplayName"), "Is Open");
	EXPECT_EQ(Door.Enumerators[2].Value, 5);
	EXPECT_EQ(Door.Enumerators[3].Value, 4);
	EXPECT_FALSE(Door.Enumerators[4].Value);
	EXPECT_EQ(Header.Enums[1].Name, "ESide");
	EXPECT_EQ(Header.Enums[1].Enumerators[1].Value, 0);
	EXPECT_EQ(Header.Enums[2].QualifiedName(Header.Enums[2].Enumerators[0]), "PL_A");
}

TEST(Parser, DelegateMacrosBecomeSignatures)
{
	const FHeader Header =
		Parse("DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnUsed, AActor*, Who, const TMap<FName, int32>&, Map);\nUCLASS() class UThing "
			  ": public UObject { GENERATED_BODY() DECLARE_DYNAMIC_DELEGATE_RetVal(bool, FAsk); };");
	ASSERT_EQ(Header.Delegates.size(), 2u);
	EXPECT_EQ(Header.Delegates[0].Signature.Name, "OnUsed__DelegateSignature");
	EXPECT_TRUE(Header.Delegates[0].bMulticast);
	EXPECT_EQ(Header.Delegates[0].Signature.Parameters.at(1).Type.CppText, "TMap<FName, int32>");
	EXPECT_EQ(Header.Delegates[1].OuterClass, "UThing");
	EXPECT_EQ(Header.Delegates[1].Signature.ReturnValue->Name, "ReturnValue");
}

TEST(Parser, ToolTipIsTheCommentWithoutItsMarks)
{
	const FClassDeclaration Class =
		ParseClass("/**\n * Opens it.\n *   Slowly.\n *\n * @param Speed\tcm/s\n */\nUFUNCTION() void Open(float Speed);\n// One line.\n// "
				   "And one more.\nUPROPERTY() int32 A; // of A\nUPROPERTY() int32 B;");
	EXPECT_EQ(MetaValue(Class.Functions.at(0).MetaData, "ToolTip"), "Opens it.\n  Slowly.\n\n@param Speed\tcm/s");
	EXPECT_EQ(MetaValue(Class.Properties.at(0).MetaData, "ToolTip"), "One line.\nAnd one more.");
	EXPECT_EQ(MetaValue(Class.Properties.at(1).MetaData, "ToolTip"), "(missing)");
}

TEST(Parser, DirectivesNameThePackageAndExtendNativeClasses)
{
	const FHeader Header =
		Parse("// Package: /Script/Engine\n\n/** The actor. */\n// Extends native\nUCLASS()\nclass AActor : public UObject\n{\n};");
	EXPECT_EQ(Header.Package, "/Script/Engine");
	EXPECT_TRUE(Header.Classes.at(0).bExtendsNative);
	EXPECT_EQ(MetaValue(Header.Classes[0].MetaData, "ToolTip"), "The actor.");
	EXPECT_FALSE(Header.Classes[0].bContinues);
	EXPECT_FALSE(Header.Classes[0].InheritedDefault.has_value());
	EXPECT_TRUE(Parse("// Continues\nUCLASS()\nclass AActor : public UObject\n{\n};").Classes.at(0).bContinues);
}

TEST(Parser, ADirectiveGivesAnInheritedMemberAnotherStart)
{
	const FHeader Header = Parse("/** A text. */\n// Initially: bShown = false\nUCLASS()\nclass UText : public UPart\n{\n};");
	ASSERT_TRUE(Header.Classes.at(0).InheritedDefault.has_value());
	EXPECT_EQ(Header.Classes[0].InheritedDefault->first, "bShown");
	EXPECT_EQ(Header.Classes[0].InheritedDefault->second, "false");
	EXPECT_EQ(MetaValue(Header.Classes[0].MetaData, "ToolTip"), "A text.");
}

TEST(Parser, PreprocessorConditionsChooseWhatIsRead)
{
	const FHeader Header = Parse("#if !CPP\nUSTRUCT(noexport) struct FA { UPROPERTY() int32 X; };\n#endif\n#if CPP || 0\nstruct FA { "
								 "UPROPERTY() };\n#else\nUSTRUCT() struct FB { GENERATED_BODY() };\n#endif\n#if 0\nit's not "
								 "code\n#endif\n#define UCLASS_LIKE(x) \\\n\tUCLASS( x");
	ASSERT_EQ(Header.Structs.size(), 2u);
	EXPECT_TRUE(Header.Structs[0].bNoExport);
	EXPECT_EQ(Header.Structs[1].Name, "FB");
}

TEST(Parser, DeclarationsWithoutMacrosArePassedOver)
{
	const FHeader Header =
		Parse("template <typename T, int N = (3 > 2)> struct TFoo { T operator[](int) const { return {'}'}; } };\nnamespace X { class UNot "
			  "{ UPROPERTY() int32 A; }; }\nextern const char* Raw = R\"x(})\")x\";\nenum ENot { A };\nUSTRUCT() struct FYes { "
			  "GENERATED_BODY() struct FNested { int B[2]; }; template <class T> void F() {} UPROPERTY() int32 C; };");
	ASSERT_EQ(Header.Structs.size(), 1u);
	ASSERT_EQ(Header.Structs[0].Properties.size(), 1u);
	EXPECT_TRUE(Header.Classes.empty());
}

TEST(Parser, InterfaceTakesTheFunctionsOfItsBody)
{
	const FHeader Header = Parse("UINTERFACE(Blueprintable)\nclass UUsable : public UInterface { GENERATED_BODY() };\nclass X_API "
								 "IUsable\n{\n\tGENERATED_BODY()\npublic:\n\tUFUNCTION(BlueprintNativeEvent) bool Use(AActor* Who);\n};");
	const FClassDeclaration& Class = Header.Classes.at(0);
	ASSERT_TRUE(Class.InterfaceBody);
	EXPECT_EQ(Class.InterfaceBody->BodyLine, 5);
	EXPECT_EQ(Class.Functions.at(0).Flags & (FunctionFlags::Event | FunctionFlags::BlueprintEvent | FunctionFlags::Native), 0x8000C00u);
}

struct FErrorCase
{
	const char* Text;
	const char* Error;
};

class ParserErrorTest : public testing::TestWithParam<FErrorCase>
{
};

TEST_P(ParserErrorTest, SaysWhereAndWhatWasExpected) { EXPECT_EQ(FirstError(GetParam().Text), GetParam().Error); }

INSTANTIATE_TEST_SUITE_P(Mistakes, ParserErrorTest,
	testing::Values(FErrorCase{"UCLASS()\nstruct UThing {};", "X.h:2:1: error: expected 'class', found 'struct'"},
		FErrorCase{"USTRUCT()\nstruct FThing\n{\n\tUPROPERTY(EditAnyware)\n\tint32 X;\n};",
			"X.h:4:12: error: expected a property specifier, found 'EditAnyware'"},
		FErrorCase{"USTRUCT() struct FThing { UPROPERTY() UBar Bar; };",
			"X.h:1:44: error: expected '*' after the object class 'UBar', found 'Bar'"},
		FErrorCase{"USTRUCT() struct FThing { UPROPERTY() TArray<int32> };", "X.h:1:53: error: expected a property's name, found '}'"},
		FErrorCase{"USTRUCT() struct FThing {", "X.h:1:26: error: expected '}' at the end of 'FThing', found the end of the file"},
		FErrorCase{"UENUM()\nenum EX : float { A };", "X.h:2:11: error: expected an integer type, found 'float'"},
		FErrorCase{"/* \xC3\xA9", "X.h:1:1: error: expected */, found the end of the file"},
		FErrorCase{"/*\xC3\xA9*/ UCLASS(", "X.h:1:14: error: expected a specifier, found the end of the file"},
		FErrorCase{"#endif", "X.h:1:1: error: expected #if before #endif"},
		FErrorCase{"USTRUCT() struct FThing { UPROPERTY() std::vector<int> X; };",
			"X.h:1:39: error: expected a reflected type, found the template 'vector'"}));

TEST(Parser, NestingAndSizeAreLimited)
{
	const std::string Deep = "void F() " + std::string(100000, '{');
	EXPECT_NE(FirstError(Deep).find("found brackets too deep"), std::string::npos);
	std::string Types = "USTRUCT() struct FThing { UPROPERTY() ";
	for (int Index = 0; Index < 10000; ++Index)
	{
		Types += "TArray<";
	}
	EXPECT_NE(FirstError(Types).find("found brackets too deep"), std::string::npos);
	EXPECT_NE(FirstError("#if " + std::string(100000, '(')).find("#endif"), std::string::npos);
	FParseLimits Limits;
	Limits.MaxBytes = 4;
	EXPECT_EQ(ParseHeader("12345", Limits).Errors.at(0).Message, "expected at most 4 bytes, found 5");
}

TEST(Parser, EveryPrefixOfAHeaderEndsWithoutACrash)
{
	const std::string Text =
		"// Package: /Script/X\n#if WITH_EDITOR\n/** Doc */ UCLASS(meta = (A = \"b\\\"\", C))\nclass X_API UThing : public UObject, public "
		"IUsable\n{\nGENERATED_BODY()\nUFUNCTION(BlueprintCallable) static TMap<FName, TArray<int32>> F(UPARAM(ref) FHit& H, float X = "
		"-1.5e3f) const { return {}; }\nUPROPERTY() uint8 bX : 1 = 0;\nDECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FD, int32, "
		"A);\n};\nUENUM() namespace E { enum Type { A = ~(1 << 3), B UMETA(Hidden) }; }\n#endif\n";
	ASSERT_TRUE(ParseHeader(Text).Succeeded()) << FirstError(Text);
	int32_t Failures = 0;
	for (size_t Length = 0; Length < Text.size(); ++Length)
	{
		Failures += ParseHeader(std::string_view(Text).substr(0, Length)).Succeeded() ? 0 : 1;
	}
	EXPECT_GT(Failures, 0);
}
}
