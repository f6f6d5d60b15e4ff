#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{
using namespace HeaderParser;

std::string ReadEngineHeader(const char* RelativePath)
{
	std::ifstream File(std::filesystem::path(VEXEL_ENGINE_DIR) / RelativePath, std::ios::binary);
	std::stringstream Text;
	Text << File.rdbuf();
	return Text.str();
}

/** The position of every error lies in the text, and says something. */
void ExpectErrorsInText(const FParseResult& Result, const std::string_view Text)
{
	const int32_t NumLines = 1 + static_cast<int32_t>(std::count(Text.begin(), Text.end(), '\n'));
	for (const FDiagnostic& Error : Result.Errors)
	{
		EXPECT_TRUE(Error.Position.Line >= 1 && Error.Position.Line <= NumLines && Error.Position.Column >= 1) << Error.Message;
		EXPECT_FALSE(Error.Message.empty());
		EXPECT_TRUE(Error.Message.find('\0') == std::string::npos || Text.find('\0') != std::string_view::npos) << Error.Message;
	}
}

class RealHeaderTest : public testing::TestWithParam<const char*>
{
protected:
	void SetUp() override
	{
		Text = ReadEngineHeader(GetParam());
		ASSERT_FALSE(Text.empty()) << GetParam();
		// The first part has every shape of declaration, and cutting it up is quadratic.
		Text.resize(std::min<size_t>(Text.size(), 6000));
	}

	std::string Text;
};

TEST_P(RealHeaderTest, CutAnywhereIsAnErrorOrAModel)
{
	for (size_t Length = 0; Length < Text.size(); ++Length)
	{
		const std::string_view Cut = std::string_view(Text).substr(0, Length);
		ExpectErrorsInText(ParseHeader(Cut), Cut);
	}
}

TEST_P(RealHeaderTest, WithAByteReplacedAnywhereIsAnErrorOrAModel)
{
	static constexpr char Replacements[] = {'{', '}', '(', '<', '"', '\'', '#', '\\', '\0', '\xFF', '/', ';'};
	for (size_t Index = 0; Index < Text.size(); Index += 3)
	{
		std::string Changed = Text;
		Changed[Index] = Replacements[Index / 3 % std::size(Replacements)];
		ExpectErrorsInText(ParseHeader(Changed), Changed);
	}
}

TEST_P(RealHeaderTest, WithoutALineIsAnErrorOrAModel)
{
	for (size_t Start = 0; Start < Text.size();)
	{
		const size_t End = std::min(Text.find('\n', Start), Text.size() - 1) + 1;
		const std::string Changed = Text.substr(0, Start) + Text.substr(End);
		ExpectErrorsInText(ParseHeader(Changed), Changed);
		Start = End;
	}
}

INSTANTIATE_TEST_SUITE_P(EngineHeaders, RealHeaderTest,
	testing::Values("Engine/Public/GameFramework/Actor.h", "CoreUObject/Public/UObject/NoExportTypes.h", "BlueprintGraph/Public/K2Node.h"));

std::string Repeat(const std::string& Part, const size_t Count)
{
	std::string Text;
	Text.reserve(Part.size() * Count);
	for (size_t Index = 0; Index < Count; ++Index)
	{
		Text += Part;
	}
	return Text;
}

constexpr size_t Many = 200000;

TEST(HugeHeaders, LongConditionIsReadInTime)
{
	EXPECT_TRUE(ParseHeader("#if " + Repeat("A||", 10 * Many) + "0\n#endif").Succeeded());
	EXPECT_TRUE(ParseHeader("#if " + Repeat("A&&", 10 * Many) + "0\n#endif").Succeeded());
	EXPECT_TRUE(ParseHeader("#if " + Repeat("!(", Many) + "\n#endif").Succeeded());
	EXPECT_TRUE(ParseHeader("#if " + Repeat("(", Many) + Repeat(")", Many) + "\n#endif").Succeeded());
}

TEST(HugeHeaders, DeepConditionsAreReadInTime)
{
	EXPECT_TRUE(ParseHeader(Repeat("#if 1\n", Many) + Repeat("#endif\n", Many)).Succeeded());
	EXPECT_FALSE(ParseHeader(Repeat("#if 1\n", Many)).Succeeded());
}

TEST(HugeHeaders, LongListsAreReadInTime)
{
	EXPECT_EQ(ParseHeader("UENUM() enum E : int64 { " + Repeat("A,", Many) + " };").Header.Enums.at(0).Enumerators.size(), Many);
	EXPECT_TRUE(ParseHeader("UENUM() enum E { A = " + Repeat("1+", Many) + "1 };").Succeeded());
	EXPECT_TRUE(ParseHeader("UENUM() enum E { A = " + Repeat("-", Many) + "1 };").Succeeded());
	EXPECT_TRUE(ParseHeader("UENUM() enum E { A = " + Repeat("B::", Many) + "C };").Succeeded());
	EXPECT_EQ(
		ParseHeader("USTRUCT() struct F1 { " + Repeat("UPROPERTY() int32 A;", Many / 10) + " };").Header.Structs.at(0).Properties.size(),
		Many / 10);
	EXPECT_TRUE(ParseHeader(Repeat("// a\n", 5 * Many) + "UENUM() enum E { A };").Succeeded());
}

TEST(HugeHeaders, LongTextIsReadInTime)
{
	EXPECT_TRUE(ParseHeader("USTRUCT(meta = (A = \"" + Repeat("\\n", Many) + "\")) struct FThing {};").Succeeded());
	EXPECT_TRUE(ParseHeader("USTRUCT(meta = (A = " + Repeat("\"b\"", Many) + ")) struct FThing {};").Succeeded());
	EXPECT_TRUE(ParseHeader("#if 0\n" + Repeat("\"", 2 * Many) + "\n#endif").Succeeded());
	EXPECT_TRUE(ParseHeader("#define A \\\n" + Repeat("b \\\n", Many)).Succeeded());
}

TEST(HugeHeaders, InterfacesWithoutBodiesAreFoundInTime)
{
	const std::string Interfaces = Repeat("UINTERFACE() class UA : public UInterface {};\n", 2000);
	EXPECT_TRUE(ParseHeader(Interfaces + Repeat("class IB : public X {};\n", 2000)).Succeeded());
}

TEST(HostileText, StrayBracketsOutsideDeclarationsAreErrorsOrPassedOver)
{
	for (const char* const Text :
		{"}", ")", "]", ">", "}}}}", "({)}", "[", "(", "{", "class", "class I", "class I {", "DECLARE_DYNAMIC_DELEGATE",
			"DECLARE_DYNAMIC_DELEGATE(", "UDELEGATE", "UCLASS", "USTRUCT(", "UENUM()", "UINTERFACE()", "UENUM() enum", "UENUM() namespace",
			"UENUM() enum E {", "UENUM() enum E { A UMETA", "UENUM() enum E { A [", "UENUM() enum alignas", "USTRUCT() struct alignas",
			"USTRUCT() struct F1 :", "USTRUCT() struct F1 : A::", "USTRUCT() struct F1 : A<", "USTRUCT() struct F1 { UPROPERTY",
			"USTRUCT() struct F1 { UPROPERTY() alignas", "USTRUCT() struct F1 { UPROPERTY() UE_DEPRECATED",
			"USTRUCT() struct F1 { UPROPERTY() [", "USTRUCT() struct F1 { UPROPERTY() TMap<", "USTRUCT() struct F1 { UPROPERTY() int32 A {",
			"USTRUCT() struct F1 { UPROPERTY() int32 A :", "UCLASS() class U1 { UFUNCTION() void F() =",
			"UCLASS() class U1 { UFUNCTION() void F() A(", "UCLASS() class U1 { UFUNCTION() void F(int32 A = ",
			"UCLASS() class U1 { GENERATED_BODY", "UCLASS() class U1 { GENERATED_BODY(", "UCLASS(A =", "UCLASS(meta =", "UCLASS(meta = (",
			"UCLASS(A-", "UCLASS(meta = (A = TEXT(", "#", "#if", "#include \"", "\\", "\"\\", "R\"", "R\"(", "'\\", "//", "/*", "0x", "1e+",
			"::", "\xEF\xBB", "\xC3"})
	{
		ExpectErrorsInText(ParseHeader(Text), Text);
	}
}

TEST(HostileText, EscapesAreReadAsCompilersReadThem)
{
	const FParseResult Result = ParseHeader("USTRUCT(meta = (A = \"\\u00e9\\U0001F600\\x41\\t\\\\\\'\")) struct FThing {};");
	ASSERT_TRUE(Result.Succeeded());
	EXPECT_EQ(*Result.Header.Structs.at(0).MetaData.Find("A"), "\xC3\xA9\xF0\x9F\x98\x80"
															   "A\t\\'");
}
}
