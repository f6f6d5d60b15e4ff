#include "HeaderParser/Flags.h"
#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

namespace
{
using namespace HeaderParser;

constexpr const char* Arities[] = {"", "_OneParam", "_TwoParams", "_ThreeParams", "_FourParams", "_FiveParams", "_SixParams",
	"_SevenParams", "_EightParams", "_NineParams"};

/** ", int32, P0, int32, P1" */
std::string MakeParameters(const size_t Count)
{
	std::string Text;
	for (size_t Index = 0; Index < Count; ++Index)
	{
		Text += ", int32, P" + std::to_string(Index);
	}
	return Text;
}

struct FDelegateForm
{
	const char* Macro;
	const char* Before;
	const char* Behind;
	bool bReturns;
	bool bMulticast;
	bool bSparse;
};

class DelegateFormTest : public testing::TestWithParam<FDelegateForm>
{
};

TEST_P(DelegateFormTest, IsReadWithEveryNumberOfParameters)
{
	for (size_t Count = 0; Count < std::size(Arities); ++Count)
	{
		const std::string Text = std::string(GetParam().Macro) + Arities[Count] + "(" + GetParam().Before + "FOnUsed" + GetParam().Behind +
			MakeParameters(Count) + ");";
		const FParseResult Result = ParseHeader(Text);
		ASSERT_TRUE(Result.Succeeded()) << Text << "\n"
										<< FormatDiagnostic("X.h", Result.Errors.at(0));
		ASSERT_EQ(Result.Header.Delegates.size(), 1u) << Text;
		const FDelegateDeclaration& Delegate = Result.Header.Delegates[0];
		EXPECT_EQ(Delegate.Signature.Parameters.size(), Count) << Text;
		EXPECT_EQ(Delegate.Signature.ReturnValue.has_value(), GetParam().bReturns) << Text;
		EXPECT_EQ(Delegate.bMulticast, GetParam().bMulticast) << Text;
		EXPECT_EQ(Delegate.bSparse, GetParam().bSparse) << Text;
		EXPECT_EQ(Delegate.Signature.Flags,
			FunctionFlags::Public | FunctionFlags::Delegate | (GetParam().bMulticast ? FunctionFlags::MulticastDelegate : 0))
			<< Text;
	}
}

INSTANTIATE_TEST_SUITE_P(Forms, DelegateFormTest,
	testing::Values(FDelegateForm{"DECLARE_DYNAMIC_DELEGATE", "", "", false, false, false},
		FDelegateForm{"DECLARE_DYNAMIC_DELEGATE_RetVal", "bool, ", "", true, false, false},
		FDelegateForm{"DECLARE_DYNAMIC_MULTICAST_DELEGATE", "", "", false, true, false},
		FDelegateForm{"DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE", "", ", AActor, OnUsed", false, true, true}));

TEST(Delegates, ParametersKeepHowTheyArePassed)
{
	const FParseResult Result = ParseHeader("UDELEGATE(meta = (Ms = \"1\"))\nDECLARE_DYNAMIC_DELEGATE_ThreeParams(FAsk, const FString&, "
											"Text, UPARAM(ref) int32&, Count, const TArray<FName>&, Names);");
	ASSERT_TRUE(Result.Succeeded());
	const FFunctionDeclaration& Signature = Result.Header.Delegates.at(0).Signature;
	EXPECT_EQ(Signature.Parameters.at(0).Flags, PropertyFlags::Parm);
	EXPECT_EQ(Signature.Parameters.at(1).Flags, PropertyFlags::Parm | PropertyFlags::OutParm | PropertyFlags::ReferenceParm);
	EXPECT_EQ(Signature.Parameters.at(2).Flags,
		PropertyFlags::Parm | PropertyFlags::OutParm | PropertyFlags::ReferenceParm | PropertyFlags::ConstParm);
	EXPECT_TRUE(Signature.Flags & FunctionFlags::HasOutParms);
	EXPECT_TRUE(Signature.MetaData.Has("Ms"));
}

TEST(Delegates, MacrosThatReflectNothingArePassedOver)
{
	const FParseResult Result =
		ParseHeader("DECLARE_DELEGATE(FPlain);\nDECLARE_MULTICAST_DELEGATE_OneParam(FMany, std::vector<int>*);\nDECLARE_EVENT(UThing, "
					"FEvent);\n#define X DECLARE_DYNAMIC_DELEGATE(FNo);");
	EXPECT_TRUE(Result.Succeeded());
	EXPECT_TRUE(Result.Header.Delegates.empty());
}

struct FErrorCase
{
	const char* Text;
	const char* Error;
};

class MistakeTest : public testing::TestWithParam<FErrorCase>
{
};

TEST_P(MistakeTest, IsAnErrorWhereItStands)
{
	const FParseResult Result = ParseHeader(GetParam().Text);
	ASSERT_EQ(Result.Errors.size(), 1u);
	EXPECT_EQ(FormatDiagnostic("X.h", Result.Errors[0]), GetParam().Error);
}

const FErrorCase Mistakes[] = {
	{"DECLARE_DYNAMIC_DELEGATE(OnUsed);", "X.h:1:26: error: expected a delegate's name that begins with F, found 'OnUsed'"},
	{"DECLARE_DYNAMIC_DELEGATE_OneParam(FUsed);", "X.h:1:40: error: expected ',', found ')'"},
	{"DECLARE_DYNAMIC_DELEGATE_OneParam(FUsed, int32, A, int32, B);", "X.h:1:50: error: expected ')', found ','"},
	{"DECLARE_DYNAMIC_DELEGATE_OneParam(FUsed, int32 A);", "X.h:1:48: error: expected ',', found 'A'"},
	{"UDELEGATE()\nvoid F();", "X.h:2:1: error: expected a DECLARE_DYNAMIC_ delegate, found 'void'"},
	{"UENUM()\nstruct E {};", "X.h:2:1: error: expected 'enum', found 'struct'"},
	{"UENUM() enum E;", "X.h:1:15: error: expected '{', found ';'"},
	{"UENUM() enum E { A B };", "X.h:1:20: error: expected ',' or '}', found 'B'"},
	{"UENUM() enum E { 1 };", "X.h:1:18: error: expected an enumerator or '}', found '1'"},
	{"UENUM() enum E { A, }", "X.h:1:22: error: expected ';', found the end of the file"},
	{"UENUM() namespace N { struct E {}; }", "X.h:1:23: error: expected 'enum', found 'struct'"},
	{"UENUM() enum class UE_DEPRECATED", "X.h:1:33: error: expected an opening bracket, found the end of the file"},
	{"UENUM() enum E { A UE_DEPRECATED", "X.h:1:33: error: expected an opening bracket, found the end of the file"},
	{"UENUM() enum E { A = (1, B };", "X.h:1:28: error: expected ')', found '}'"},
};

INSTANTIATE_TEST_SUITE_P(Mistakes, MistakeTest, testing::ValuesIn(Mistakes));

struct FValueCase
{
	const char* Expression;
	std::optional<int64_t> Value;
};

class EnumeratorValueTest : public testing::TestWithParam<FValueCase>
{
};

TEST_P(EnumeratorValueTest, IsComputedWhereItCanBe)
{
	const FParseResult Result =
		ParseHeader(std::string("UENUM() enum class E : int64 { Two = 2, Four = 4, X = ") + GetParam().Expression + ", Next };");
	ASSERT_TRUE(Result.Succeeded()) << FormatDiagnostic("X.h", Result.Errors.at(0));
	const std::vector<FEnumeratorDeclaration>& Enumerators = Result.Header.Enums.at(0).Enumerators;
	EXPECT_EQ(Enumerators.at(2).Value, GetParam().Value);
	EXPECT_EQ(Enumerators.at(3).Value.has_value(), GetParam().Value.has_value());
}

const FValueCase ValueCases[] = {
	{"0x7F", 127},
	{"0b101", 5},
	{"010", 8},
	{"1u << 4", 16},
	{"Two | Four", 6},
	{"E::Two + 2 * 3", 8},
	{"(Two + 2) * 3", 12},
	{"10 - 2 - 3", 5},
	{"1 << 2 + 1", 8},
	{"7 & 3 | 8", 11},
	{"6 ^ 3", 5},
	{"-7 / 2", -3},
	{"-7 % 4", -3},
	{"~0", -1},
	{"- -3", 3},
	{"'A'", 65},
	{"Four >> 1", 2},
	{"0xFFFFFFFFFFFFFFFF", -1},
	{"1 << 64", std::nullopt},
	{"1 / 0", std::nullopt},
	{"Unknown", std::nullopt},
	{"Two == 2", std::nullopt},
	{"Two ? 1 : 2", std::nullopt},
	{"sizeof(int)", std::nullopt},
	{"()", std::nullopt},
	{"1 +", std::nullopt},
	{"09", std::nullopt},
	{"99999999999999999999", std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(Expressions, EnumeratorValueTest, testing::ValuesIn(ValueCases));

TEST(Enums, EnumeratorsCarryTheirMetaDataAndComments)
{
	const FParseResult Result = ParseHeader("UENUM(BlueprintType, Flags, meta = (Bitflags, UseEnumValuesAsMaskValuesInEditor = "
											"\"true\"))\nenum class EWay : uint8\n{\n\tNone = 0 UMETA(Hidden),\n\t/** To the left. */\n"
											"\tLeft UMETA(DisplayName = \"Go, left\", ToolTip = \"T\"),\n\t// Behind it.\n\tBack "
											"UE_DEPRECATED(5.0, \"x\") = 1 << 3,\n\tMAX\n};");
	ASSERT_TRUE(Result.Succeeded()) << FormatDiagnostic("X.h", Result.Errors.at(0));
	const FEnumDeclaration& Enum = Result.Header.Enums.at(0);
	EXPECT_TRUE(Enum.bFlags);
	EXPECT_TRUE(Enum.MetaData.Has("Bitflags"));
	EXPECT_TRUE(Enum.Enumerators.at(0).MetaData.Has("Hidden"));
	EXPECT_EQ(*Enum.Enumerators.at(1).MetaData.Find("DisplayName"), "Go, left");
	EXPECT_EQ(*Enum.Enumerators[1].MetaData.Find("ToolTip"), "T");
	EXPECT_EQ(*Enum.Enumerators.at(2).MetaData.Find("ToolTip"), "Behind it.");
	EXPECT_EQ(Enum.Enumerators[2].Value, 8);
	EXPECT_EQ(Enum.Enumerators.at(3).Value, 9);
}

TEST(Enums, NamespacedEnumIsNamedByItsNamespace)
{
	const FParseResult Result = ParseHeader("UENUM()\nnamespace ESide\n{\n\tenum Type : int\n\t{\n\t\tLeft,\n\t\tRight "
											"UMETA(Hidden),\n\t};\n}\nUENUM() enum class EWide : int64 { A };");
	ASSERT_TRUE(Result.Succeeded());
	const FEnumDeclaration& Side = Result.Header.Enums.at(0);
	EXPECT_EQ(Side.Form, EEnumForm::Namespaced);
	EXPECT_EQ(Side.InnerName, "Type");
	EXPECT_EQ(Side.QualifiedName(Side.Enumerators.at(1)), "ESide::Right");
	EXPECT_EQ(Side.UnderlyingSize(), 4);
	EXPECT_EQ(Result.Header.Enums.at(1).UnderlyingSize(), 8);
}
}
