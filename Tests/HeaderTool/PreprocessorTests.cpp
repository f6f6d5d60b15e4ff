#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

namespace
{
using namespace HeaderParser;

struct FConditionCase
{
	const char* Condition;
	bool bHolds;
};

class ConditionTest : public testing::TestWithParam<FConditionCase>
{
};

TEST_P(ConditionTest, ChoosesTheBranch)
{
	const FParseResult Result =
		ParseHeader(std::string("#if ") + GetParam().Condition + "\nUENUM() enum EThen { A };\n#else\nUENUM() enum EElse { A };\n#endif");
	ASSERT_TRUE(Result.Succeeded()) << FormatDiagnostic("X.h", Result.Errors.at(0));
	ASSERT_EQ(Result.Header.Enums.size(), 1u);
	EXPECT_EQ(Result.Header.Enums[0].Name, GetParam().bHolds ? "EThen" : "EElse");
}

const FConditionCase Conditions[] = {
	{"1", true},
	{"0", false},
	{"!0", true},
	{"!!0", false},
	{"CPP", false},
	{"!CPP", true},
	{"WITH_EDITOR", true},
	{"!WITH_EDITOR", false},
	{"WITH_EDITOR && !UE_BUILD_SHIPPING", true},
	{"0 || 0 || 1", true},
	{"1 && 1 && 0", false},
	{"1 || 0 && 0", true},
	{"(1 || 0) && 0", false},
	{"!(CPP || 0)", true},
	{"!(WITH_EDITOR && (1 || CPP))", false},
	{"defined(WITH_EDITOR) && 0", false},
	{"0 // or 1", false},
	{"0 /* 1 */", false},
	{"WITH_EDITOR && \\\n 0", false},
};

INSTANTIATE_TEST_SUITE_P(Conditions, ConditionTest, testing::ValuesIn(Conditions));

std::vector<std::string> EnumsOf(const std::string& Text)
{
	const FParseResult Result = ParseHeader(Text);
	EXPECT_TRUE(Result.Succeeded()) << (Result.Errors.empty() ? "" : FormatDiagnostic("X.h", Result.Errors[0]));
	std::vector<std::string> Names;
	for (const FEnumDeclaration& Enum : Result.Header.Enums)
	{
		Names.push_back(Enum.Name);
	}
	return Names;
}

using FNames = std::vector<std::string>;

TEST(Preprocessor, OnlyTheFirstBranchThatHoldsIsRead)
{
	EXPECT_EQ(EnumsOf("#if 0\nUENUM() enum EA { X };\n#elif 1\nUENUM() enum EB { X };\n#elif 1\nUENUM() enum EC { X };\n#else\nUENUM() "
					  "enum ED { X };\n#endif\nUENUM() enum EE { X };"),
		(FNames{"EB", "EE"}));
}

TEST(Preprocessor, NothingInsideABranchLeftOutIsRead)
{
	EXPECT_EQ(EnumsOf("#if 0\n#if 1\nUENUM() enum EA { X };\n#else\nUENUM() enum EB { X };\n#endif\nUENUM() broken \" text\n#include "
					  "\"No.h\"\n#endif\nUENUM() enum EC { X };"),
		FNames{"EC"});
	EXPECT_TRUE(ParseHeader("#if 0\n#include \"No.h\"\n#endif").Header.Includes.empty());
}

TEST(Preprocessor, BlanksMayStandInDirectives)
{
	EXPECT_EQ(EnumsOf(" \t#  if 0\nUENUM() enum EA { X };\n#\telse // x\nUENUM() enum EB { X };\r\n  # endif\r\n"), FNames{"EB"});
	EXPECT_EQ(EnumsOf("/* note */ #if 0\nUENUM() enum EA { X };\n#endif"), FNames{});
}

TEST(Preprocessor, MacroTextIsNotRead)
{
	EXPECT_EQ(EnumsOf("#define DECLARE(Name) \\\n\tUENUM() \\\n\tenum Name { X };\n#pragma once\n#undef DECLARE\nUENUM() enum EA { X };"),
		FNames{"EA"});
}

TEST(Preprocessor, IncludesAreThoseInQuotes)
{
	const FParseResult Result =
		ParseHeader("\xEF\xBB\xBF#include \"A/B.h\"\n#include <vector>\n#include \"C.h\" // why\n#include MACRO\n#include \"Open.h\n");
	ASSERT_GE(Result.Header.Includes.size(), 2u);
	EXPECT_EQ(Result.Header.Includes[0], "A/B.h");
	EXPECT_EQ(Result.Header.Includes[1], "C.h");
}

struct FUnbalancedCase
{
	const char* Text;
	const char* Error;
};

class UnbalancedConditionTest : public testing::TestWithParam<FUnbalancedCase>
{
};

TEST_P(UnbalancedConditionTest, IsAnError)
{
	const FParseResult Result = ParseHeader(GetParam().Text);
	ASSERT_EQ(Result.Errors.size(), 1u);
	EXPECT_EQ(FormatDiagnostic("X.h", Result.Errors[0]), GetParam().Error);
}

INSTANTIATE_TEST_SUITE_P(Mistakes, UnbalancedConditionTest,
	testing::Values(FUnbalancedCase{"\n#else\n", "X.h:2:1: error: expected #if before #else"},
		FUnbalancedCase{"#if 1\n#endif\n#elif 0", "X.h:3:1: error: expected #if before #elif"},
		FUnbalancedCase{"#ifdef A\n", "X.h:2:1: error: expected #endif, found the end of the file"},
		FUnbalancedCase{"#if 0\n/* open", "X.h:2:1: error: expected */, found the end of the file"},
		FUnbalancedCase{"\"open", "X.h:1:1: error: expected \" before the end of the line"},
		FUnbalancedCase{"int A = 'x", "X.h:1:9: error: expected ' before the end of the line"},
		FUnbalancedCase{"R\"delimiter_that_is_long(x)delimiter_that_is_long\"", "X.h:1:1: error: expected the end of the raw string"},
		FUnbalancedCase{"R\"a(x)b\"", "X.h:1:1: error: expected the end of the raw string"}));

TEST(EditorOnly, IsWhatStandsInTheEditorsConditions)
{
	const FParseResult Result = ParseHeader(
		"UCLASS() class UThing : public UObject { GENERATED_BODY()\n#if WITH_EDITORONLY_DATA\n#if 1\nUPROPERTY() int32 "
		"A;\n#endif\n#endif\nUPROPERTY() int32 B;\n"
		"#if WITH_EDITOR\nUFUNCTION() void F();\n#endif\nUFUNCTION() void G();\n#if 0\n#else\nUPROPERTY() int32 C;\n#endif\n};");
	ASSERT_TRUE(Result.Succeeded()) << FormatDiagnostic("X.h", Result.Errors.at(0));
	constexpr uint64_t EditorOnlyProperty = 0x800000000;
	constexpr uint32_t EditorOnlyFunction = 0x20000000;
	const FClassDeclaration& Class = Result.Header.Classes.at(0);
	EXPECT_TRUE(Class.Properties.at(0).Flags & EditorOnlyProperty);
	EXPECT_FALSE(Class.Properties.at(1).Flags & EditorOnlyProperty);
	EXPECT_FALSE(Class.Properties.at(2).Flags & EditorOnlyProperty);
	EXPECT_TRUE(Class.Functions.at(0).Flags & EditorOnlyFunction);
	EXPECT_FALSE(Class.Functions.at(1).Flags & EditorOnlyFunction);
}

TEST(ToolTips, AreOfTheNearestCommentAlone)
{
	const FParseResult Result = ParseHeader(
		"// A file's banner.\n\n/** Of the struct. */\nUSTRUCT()\nstruct FThing\n{\n\tint32 Plain; // trailing\n\tUPROPERTY()\n\tint32 A;\n"
		"\t//~ a note\n\tUPROPERTY()\n\tint32 B;\n\t// far\n\n\t// near\n\tUPROPERTY()\n\tint32 C;\n\t/** x */ UPROPERTY(meta = (ToolTip = "
		"\"Given\"))\n\tint32 D;\n\t/***/\n\tUPROPERTY() int32 E;\n};");
	ASSERT_TRUE(Result.Succeeded());
	const FStructDeclaration& Struct = Result.Header.Structs.at(0);
	const auto ToolTip = [](const FMetaData& MetaData)
	{
		const std::string* const Text = MetaData.Find("ToolTip");
		return Text ? *Text : "(none)";
	};
	EXPECT_EQ(ToolTip(Struct.MetaData), "Of the struct.");
	EXPECT_EQ(ToolTip(Struct.Properties.at(0).MetaData), "(none)");
	EXPECT_EQ(ToolTip(Struct.Properties.at(1).MetaData), "(none)");
	EXPECT_EQ(ToolTip(Struct.Properties.at(2).MetaData), "near");
	EXPECT_EQ(ToolTip(Struct.Properties.at(3).MetaData), "Given");
	EXPECT_EQ(ToolTip(Struct.Properties.at(4).MetaData), "(none)");
}
}
