#include "HeaderParser/Parser.h"

#include <gtest/gtest.h>

namespace
{
using namespace HeaderParser;

FParseResult ParseParameter(const std::string& Parameter)
{
	return ParseHeader("UCLASS() class UThing : public UObject { GENERATED_BODY()\nUFUNCTION() void Use(\n" + Parameter + "); };");
}

struct FDefaultCase
{
	const char* Parameter;
	const char* Import;
};

class DefaultConversionTest : public testing::TestWithParam<FDefaultCase>
{
};

TEST_P(DefaultConversionTest, GivesTheTextThatAPinStartsWith)
{
	const FParseResult Result = ParseParameter(GetParam().Parameter);
	ASSERT_TRUE(Result.Succeeded()) << FormatDiagnostic("X.h", Result.Errors.at(0));
	const std::string* const Import = Result.Header.Classes.at(0).Functions.at(0).MetaData.Find("CPP_Default_X");
	ASSERT_NE(Import, nullptr);
	EXPECT_EQ(*Import, GetParam().Import);
}

const FDefaultCase DefaultCases[] = {
	{"int32 X = 0x10", "16"},
	{"int32 X = -0x10", "-16"},
	{"uint8 X = 255u", "255"},
	{"int64 X = 9223372036854775807LL", "9223372036854775807"},
	{"uint64 X = 18446744073709551615ULL", "18446744073709551615"},
	{"int32 X = 1'000'000", "1000000"},
	{"int32 X = +5", "5"},
	{"int32 X = INDEX_NONE", "-1"},
	{"uint8 X = EWay::Up", "Up"},
	{"float X = .5f", "0.500000"},
	{"float X = 1.", "1.000000"},
	{"float X = -1e-3F", "-0.001000"},
	{"double X = 100", "100.000000"},
	{"bool X = false", "false"},
	{"FName X = \"Root\"", "Root"},
	{"FName X = FName(TEXT(\"A, B\"))", "A, B"},
	{"FName X = FName()", "None"},
	{"const FString& X = TEXT(\"\")", ""},
	{"const FString& X = \"a\" \"b\"", "ab"},
	{"FString X = FString()", ""},
	{"FText X = FText::GetEmpty()", "INVTEXT(\"\")"},
	{"UObject* X = NULL", "None"},
	{"TSubclassOf<AActor> X = nullptr", "None"},
	{"TSoftObjectPtr<UObject> X = TSoftObjectPtr<UObject>()", "None"},
	{"const TArray<FName>& X = TArray<FName>()", "()"},
	{"FVector X = FVector(1)", "1.000000,1.000000,1.000000"},
	{"FVector X = FVector(ForceInit)", ""},
	{"FVector X = FVector::UpVector", "0.000000,0.000000,1.000000"},
	{"FRotator X = FRotator::ZeroRotator", ""},
	{"FVector2D X = FVector2D::ZeroVector", ""},
	{"FTransform X = FTransform::Identity", ""},
	{"FColor X = FColor(1, 2, 3)", "(R=1,G=2,B=3,A=255)"},
	{"FLinearColor X = FLinearColor(1, 0, 0, 0.5)", "(R=1.000000,G=0.000000,B=0.000000,A=0.500000)"},
	{"FIntPoint X = FIntPoint(-1, 2)", "(X=-1,Y=2)"},
	{"FHitResult X = FHitResult()", "()"},
	{"FHitResult X = {}", "()"},
	{"TEnumAsByte<ETraceTypeQuery> X = TraceTypeQuery1", "TraceTypeQuery1"},
};

INSTANTIATE_TEST_SUITE_P(Values, DefaultConversionTest, testing::ValuesIn(DefaultCases));

class BadDefaultTest : public testing::TestWithParam<const char*>
{
};

TEST_P(BadDefaultTest, IsRefusedAtTheValue)
{
	const FParseResult Result = ParseParameter(GetParam());
	ASSERT_EQ(Result.Errors.size(), 1u);
	EXPECT_EQ(Result.Errors[0].Position.Line, 3);
	EXPECT_NE(Result.Errors[0].Message.find("expected a default value of type"), std::string::npos) << Result.Errors[0].Message;
}

INSTANTIATE_TEST_SUITE_P(Values, BadDefaultTest,
	testing::Values("bool X = 1", "float X = 1banana", "float X = MAX_FLT", "float X = 1e999", "int32 X = 1.5", "int32 X = 12 + 3",
		"int32 X = 99999999999999999999", "int32 X = 0x", "FString X = GetName()", "FVector X = FVector(1, 2)",
		"FVector X = FVector(A, B, C)", "FVector2D X = FVector2D(1)", "TArray<int32> X = {1, 2}", "UObject* X = GetWorld()",
		"FText X = SomeText"));

TEST(DefaultArguments, HugeComponentsAreNotCutOff)
{
	const FParseResult Result = ParseParameter("FVector X = FVector(1e300, -1e300, 7)");
	ASSERT_TRUE(Result.Succeeded());
	const std::string Import = *Result.Header.Classes.at(0).Functions.at(0).MetaData.Find("CPP_Default_X");
	const std::string Huge = std::to_string(1e300);
	EXPECT_EQ(Import, Huge + ",-" + Huge + ",7.000000");
}

TEST(DefaultArguments, EveryParameterHasItsOwnKey)
{
	const FParseResult Result =
		ParseParameter("int32 A = 1, FVector B = FVector(1, 2, 3), TMap<FName, int32> C = TMap<FName, int32>(), int32 D = 4");
	ASSERT_TRUE(Result.Succeeded());
	const FMetaData& MetaData = Result.Header.Classes.at(0).Functions.at(0).MetaData;
	ASSERT_EQ(MetaData.Pairs().size(), 4u);
	EXPECT_EQ(MetaData.Pairs()[1].second, "1.000000,2.000000,3.000000");
	EXPECT_EQ(MetaData.Pairs()[2].second, "()");
	EXPECT_EQ(MetaData.Pairs()[3].first, "CPP_Default_D");
}
}
