#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/** Each call is a process of its own, as if the editor were started anew. */
class MemberReach : public testing::Test
{
protected:
	FProgramResult Run(std::vector<std::string> Words) const
	{
		Words.insert(Words.end(), {"--project", Project.GetPath()});
		return RunVexel(Words);
	}

	nlohmann::json Edit(const std::string& Target, const std::string& Operation) const
	{
		const FProgramResult Result = Run({"tool", "object_edit", "--save", "--input",
			R"({"blueprint":"/Game/BP_Door","requests":[{"target":)" + Target + R"(,"operations":[)" + Operation + "]}]}"});
		EXPECT_EQ(Result.Status, 0) << Result.Output << Result.Errors;
		return nlohmann::json::parse(Result.Output, nullptr, false);
	}

	void ExpectCompiles(const std::string& Blueprint) const
	{
		const FProgramResult Result = Run({"tool", "compile", "--input", R"({"blueprint":")" + Blueprint + "\"}"});
		EXPECT_EQ(nlohmann::json::parse(Result.Output, nullptr, false).value("success", false), true) << Result.Output;
	}

	const FSampleProjectCopy Project;
};

TEST_F(MemberReach, ARenameIsSavedInBlueprintsThatNobodyHadOpened)
{
	// BP_Player, which is not loaded, asks a door whether it can be opened, and opens it.
	Edit(R"({"target_type":"graph","graph":"OpenDoor"})", R"({"operation":"update","prop_path":"name","value":"Swing"})");
	Edit(R"({"target_type":"graph","graph":"CanOpen"})",
		R"({"operation":"edit_variable","scope":"out","name":"bCanOpen","value":{"prop_id":"bReady"}})");
	const std::string Picture = Run({"graph", "show", "--blueprint", "BP_Player"}).Output;
	EXPECT_THAT(Picture, AllOf(HasSubstr("Swing  Target: As BP Door"), Not(HasSubstr("Open Door"))));
	EXPECT_THAT(Run({"graph", "export", "--blueprint", "BP_Player"}).Output, AllOf(HasSubstr("bReady"), Not(HasSubstr("bCanOpen"))));
	ExpectCompiles("/Game/BP_Player");
	ExpectCompiles("/Game/BP_Door");
}

TEST_F(MemberReach, WhatARetypeCostsElsewhereIsTold)
{
	const nlohmann::json Answer = Edit(R"({"target_type":"graph","graph":"CanOpen"})",
		R"({"operation":"edit_variable","scope":"out","name":"bCanOpen","value":{"type_id":"struct.Vector"}})");
	EXPECT_THAT(Answer["warnings"].dump(), HasSubstr("in graph 'EventGraph' of 'BP_Player' does not fit any more")) << Answer["warnings"];
}
}
