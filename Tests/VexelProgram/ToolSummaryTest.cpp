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

std::vector<std::string> Summarize(const TCHAR* Tool, const FString& Input)
{
	std::vector<std::string> Edits;
	for (const FString& Edit : SummarizeEdits(MakeCall(Tool, Input)))
	{
		Edits.emplace_back(TCHAR_TO_UTF8(*Edit));
	}
	return Edits;
}
}

TEST(ToolSummary, EachEditIsALine)
{
	EXPECT_THAT(Summarize(TEXT("node_spawn"), TEXT(R"({"graph":"EventGraph","nodes":[{"node_type":"flow.if"},{"node_type":"var.get.Health"}]})")),
		ElementsAre("+ node flow.if in EventGraph", "+ node var.get.Health in EventGraph"));
	EXPECT_THAT(Summarize(TEXT("node_link"), TEXT(R"({"links":[{"from_node":"A_0","from_pin":"then","to_node":"B_0","to_pin":"execute"},
		{"from_node":"A_0","from_pin":"x","to_node":"B_0","to_pin":"y","remove":true}]})")),
		ElementsAre("+ link A_0.then → B_0.execute", "- link A_0.x → B_0.y"));
	EXPECT_THAT(Summarize(TEXT("node_remove"), TEXT(R"({"graph":"Open","nodes":["A_0"]})")), ElementsAre("- node A_0 in Open"));
	EXPECT_THAT(Summarize(TEXT("graph_add"), TEXT(R"({"graph":"Open"})")), ElementsAre("+ graph Open"));
	EXPECT_THAT(Summarize(TEXT("graph_remove"), TEXT(R"({"graph":"Open"})")), ElementsAre("- graph Open"));
	EXPECT_THAT(Summarize(TEXT("object_edit"), TEXT(R"({"requests":[{"target":{"node":"A_0"},"operations":[
		{"operation":"update","prop_path":"Speed","value":"3"},{"operation":"add_variable","name":"Health"},{"operation":"remove","prop_path":"Tags"}]}]})")),
		ElementsAre("~ update Speed = 3 of A_0", "+ add variable Health of A_0", "- remove Tags of A_0"));
	EXPECT_THAT(Summarize(TEXT("read_blueprint"), TEXT(R"({"graph":"Open","nodes":["A_0"]})")), IsEmpty());
}

TEST(ToolSummary, StrangeAndLongInputIsBounded)
{
	EXPECT_THAT(Summarize(TEXT("node_spawn"), TEXT(R"({"nodes":[1,null,"x",{}]})")), ElementsAre("+ node "));
	EXPECT_THAT(Summarize(TEXT("object_edit"), TEXT(R"({"requests":{"operations":[]}})")), IsEmpty());
	FString Nodes = TEXT("\"a\"");
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Nodes += TEXT(",\"node\"");
	}
	const std::vector<std::string> Edits = Summarize(TEXT("node_remove"), TEXT("{\"nodes\":[") + Nodes + TEXT("]}"));
	ASSERT_EQ(Edits.size(), 8u);
	EXPECT_EQ(Edits.back(), "… and 94 more");
	const std::vector<std::string> Long =
		Summarize(TEXT("node_remove"), TEXT("{\"nodes\":[\"") + FString::ChrN(5000, TEXT('x')) + TEXT("\\n\\u001b[2J\"]}"));
	EXPECT_LT(Long[0].size(), 100u);
}

TEST(ToolSummary, TheSubjectIsTheNameThatPeopleUse)
{
	EXPECT_EQ(DescribeSubject(MakeCall(TEXT("read_blueprint"), TEXT(R"({"blueprint":"/Game/Doors/BP_Door.BP_Door"})"))), TEXT("BP_Door"));
	EXPECT_EQ(DescribeSubject(MakeCall(TEXT("get_source"), TEXT(R"({"file":"Config/DefaultEngine.ini"})"))), TEXT("Config/DefaultEngine.ini"));
	EXPECT_EQ(DescribeSubject(MakeCall(TEXT("search_assets"), TEXT(R"({"query":"door","limit":20})"))), TEXT("door"));
	EXPECT_TRUE(DescribeSubject(MakeCall(TEXT("get_project"), TEXT("{}"))).IsEmpty());
}
