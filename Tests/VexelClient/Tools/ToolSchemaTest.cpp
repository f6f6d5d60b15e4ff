#include "Tools/VexelToolSchema.h"

#include "Containers/StringConv.h"
#include "Tools/ToolFixture.h"
#include "VexelErrorKinds.h"

namespace
{
struct FLink
{
	FString From;
	bool bRemove = false;

	static const TVexelToolSchema<FLink>& GetSchema()
	{
		static const TVexelToolSchema<FLink> Schema = TVexelToolSchema<FLink>()
														  .Required(TEXT("from"), &FLink::From, {.Complaint = TEXT("Missing or invalid 'from'")})
														  .Optional(TEXT("remove"), &FLink::bRemove);
		return Schema;
	}
};

struct FRecord
{
	FString Graph;
	TOptional<FString> Title;
	int32 Limit = 20;
	TArray<FLink> Links;
	TArray<FString> Names;
	TSharedPtr<FJsonObject> Values;

	static const TVexelToolSchema<FRecord>& GetSchema()
	{
		static const TVexelToolSchema<FRecord> Schema =
			TVexelToolSchema<FRecord>()
				.Required(TEXT("graph"), &FRecord::Graph, {.bNotEmpty = true})
				.Optional(TEXT("title"), &FRecord::Title, {.Most = 5})
				.Optional(TEXT("limit"), &FRecord::Limit, {.Least = 1, .Most = 200})
				.Optional(TEXT("links"), &FRecord::Links,
					{.bNotEmpty = true, .Complaint = TEXT("No links"), .ElementComplaint = TEXT("Each link must be an object")})
				.Optional(TEXT("names"), &FRecord::Names)
				.Optional(TEXT("values"), &FRecord::Values);
		return Schema;
	}
};

std::string Complain(const std::string& Input)
{
	const TVexelExpected<FRecord> Record = FRecord::GetSchema().Read(*ParseJson(Input));
	if (Record.HasValue())
	{
		return "no error";
	}
	EXPECT_TRUE(Record.GetError().IsA<FVexelError_ToolInvalidInput>());
	return TCHAR_TO_UTF8(*Record.GetError().GetMessage());
}
}

TEST(ToolSchema, ReadsEachKindOfArgumentAndKeepsTheDefaultsOfMissingOnes)
{
	const TVexelExpected<FRecord> Full = FRecord::GetSchema().Read(*ParseJson(
		R"({"graph":"G","title":"T","limit":200,"links":[{"from":"a"},{"from":"b","remove":true}],"names":["x","y"],"values":{"k":1},"reply_id":7})"));
	ASSERT_TRUE(Full.HasValue());
	EXPECT_EQ(Full.GetValue().Graph, TEXT("G"));
	EXPECT_EQ(Full.GetValue().Title.Get(FString()), TEXT("T"));
	EXPECT_EQ(Full.GetValue().Limit, 200);
	ASSERT_EQ(Full.GetValue().Links.Num(), 2);
	EXPECT_EQ(Full.GetValue().Links[1].From, TEXT("b"));
	EXPECT_FALSE(Full.GetValue().Links[0].bRemove);
	EXPECT_TRUE(Full.GetValue().Links[1].bRemove);
	EXPECT_EQ(Full.GetValue().Names, TArray<FString>({TEXT("x"), TEXT("y")}));
	EXPECT_EQ(Full.GetValue().Values->GetIntegerField(TEXT("k")), 1);

	const TVexelExpected<FRecord> Least = FRecord::GetSchema().Read(*ParseJson(R"({"graph":"G","title":null,"limit":null})"));
	ASSERT_TRUE(Least.HasValue());
	EXPECT_FALSE(Least.GetValue().Title.IsSet());
	EXPECT_EQ(Least.GetValue().Limit, 20);
	EXPECT_FALSE(Least.GetValue().Values);
}

TEST(ToolSchema, SaysWhichArgumentIsMissingOrWrongAndWhatWasExpected)
{
	const struct
	{
		const char* Input;
		const char* Complaint;
	} Cases[] = {
		{R"({})", "Missing `graph`"},
		{R"({"graph":null})", "Missing `graph`"},
		{R"({"graph":7})", "`graph` must be a string that is not empty, not 7"},
		{R"({"graph":""})", "`graph` must be a string that is not empty, not an empty string"},
		{R"({"graph":"G","title":["T"]})", "`title` must be a string of at most 5 characters, not an array"},
		{R"({"graph":"G","title":"123456"})", "`title` must be a string of at most 5 characters, not one of 6"},
		{R"({"graph":"G","limit":"7"})", "`limit` must be an integer from 1 to 200, not a string"},
		{R"({"graph":"G","limit":0})", "`limit` must be an integer from 1 to 200, not 0"},
		{R"({"graph":"G","limit":201})", "`limit` must be an integer from 1 to 200, not 201"},
		{R"({"graph":"G","limit":1.5})", "`limit` must be an integer from 1 to 200, not 1.5"},
		{R"({"graph":"G","limit":1e300})", "`limit` must be an integer from 1 to 200, not 100000000000000005250476..."},
		{R"({"graph":"G","limit":true})", "`limit` must be an integer from 1 to 200, not a boolean"},
		{R"({"graph":"G","names":"x"})", "`names` must be an array of strings, not a string"},
		{R"({"graph":"G","names":["x",{}]})", "`names[1]` must be a string, not an object"},
		{R"({"graph":"G","names":["x",null]})", "`names[1]` must be a string, not null"},
		{R"({"graph":"G","values":[]})", "`values` must be an object, not an empty array"},
		{R"({"graph":"G","links":[{"from":"a","remove":1}]})", "`links[0].remove` must be a boolean, not 1"},
		// Words of the tool's own.
		{R"({"graph":"G","links":[]})", "No links"},
		{R"({"graph":"G","links":{}})", "No links"},
		{R"({"graph":"G","links":[{"from":"a"},"b"]})", "Each link must be an object"},
		{R"({"graph":"G","links":[{}]})", "Missing or invalid 'from'"},
		{R"({"graph":"G","links":[{"from":3}]})", "Missing or invalid 'from'"},
		// The first that is wrong, in the schema's order.
		{R"({"limit":0,"title":3})", "Missing `graph`"},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Complain(Case.Input), Case.Complaint) << Case.Input;
	}
}
