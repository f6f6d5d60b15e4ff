#include "Chat/ToolSummary.h"

#include "Chat/ChatDisplay.h"
#include "Containers/StringConv.h"
#include "VexelJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

FChatToolCall MakeCall(const TCHAR* Tool, const FString& Input)
{
	FChatToolCall Call;
	Call.Name = Tool;
	EXPECT_TRUE(FVexelJsonConversions::StringToJson(Input, Call.Input)) << TCHAR_TO_UTF8(*Input);
	return Call;
}

std::vector<std::string> Find(const FString& Answer)
{
	TSharedPtr<FJsonObject> Object;
	EXPECT_TRUE(FVexelJsonConversions::StringToJson(Answer, Object)) << TCHAR_TO_UTF8(*Answer);
	std::vector<std::string> Problems;
	for (const FString& Problem : FindProblems(*Object))
	{
		Problems.emplace_back(TCHAR_TO_UTF8(*Problem));
	}
	return Problems;
}
}

TEST(ToolSummary, ErrorsOfItemsAndOfTheCompilerAreProblems)
{
	EXPECT_THAT(Find(TEXT(R"({"blueprint":{},"warnings":["third"],"errors":["first","second"]})")), ElementsAre("first", "second", "warning: third"));
	EXPECT_THAT(Find(TEXT(R"({"success":false,"compiler_messages":[{"severity":"error","message":"no such pin"},
		{"severity":"info","message":"took 3 ms"},{"severity":"warning","message":"unused"}]})")),
		ElementsAre("error: no such pin", "warning: unused"));
	EXPECT_THAT(Find(TEXT(R"({"blueprint":{},"errors":[]})")), IsEmpty());
}

TEST(ToolSummary, StrangeAndLongAnswersAreBounded)
{
	EXPECT_THAT(Find(TEXT(R"({"errors":[null,{},[],"x"]})")), ElementsAre("x"));
	EXPECT_THAT(Find(TEXT(R"({"errors":"none","compiler_messages":{}})")), IsEmpty());
	FString Errors = TEXT("\"a\"");
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Errors += TEXT(",\"error\"");
	}
	const std::vector<std::string> Many = Find(TEXT("{\"errors\":[") + Errors + TEXT("]}"));
	ASSERT_EQ(Many.size(), 8u);
	EXPECT_EQ(Many.back(), "… and 94 more");
	const std::vector<std::string> Long = Find(TEXT("{\"errors\":[\"") + FString::ChrN(5000, TEXT('x')) + TEXT("\\n\\u001b[2J\"]}"));
	EXPECT_LT(Long[0].size(), 500u);
}

TEST(ToolSummary, TheSubjectIsTheNameThatPeopleUse)
{
	EXPECT_EQ(DescribeSubject(MakeCall(TEXT("read_blueprint"), TEXT(R"({"blueprint":"/Game/Doors/BP_Door.BP_Door"})"))), TEXT("BP_Door"));
	EXPECT_EQ(DescribeSubject(MakeCall(TEXT("get_source"), TEXT(R"({"file":"Config/DefaultEngine.ini"})"))), TEXT("Config/DefaultEngine.ini"));
	EXPECT_EQ(DescribeSubject(MakeCall(TEXT("search_assets"), TEXT(R"({"query":"door","limit":20})"))), TEXT("door"));
	EXPECT_TRUE(DescribeSubject(MakeCall(TEXT("get_project"), TEXT("{}"))).IsEmpty());
}
