#include "TerminalChatFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;
using testing::Not;

const std::string Door = "/Game/BP_Door.BP_Door";

/** A chat in which the service asks for edits. */
class ChatEdit : public FTerminalChatTest
{
protected:
	ChatEdit() { SetAnswer("/api/tool_.*", FScriptedAnswer::Json("{}")); }

	/** A call of a tool on BP_Door, with the rest of its arguments. */
	static std::string MakeCall(const std::string& Tool, const std::string& Id, const std::string& Arguments)
	{
		return "<ToolCall info={\"tool_name\":\"" + Tool + "\",\"reply_id\":\"" + Id + "\",\"blueprint\":\"" + Door + "\"" + Arguments + "}/>";
	}

	static std::string MakeSpawn(const std::string& Id = "spawn")
	{
		return MakeCall("node_spawn", Id,
			R"(,"graph":"EventGraph","nodes":[{"node_type":"call.KismetSystemLibrary.PrintString","pin_values":{"InString":"Creak"}}])");
	}
};
}

TEST_F(ChatEdit, APipeShowsWhatEachEditDidAndUndoAndRedoTheirs)
{
	SetChat(FScriptedAnswer().Chunk("Done. " + MakeCall("read_blueprint", "read", "") + MakeSpawn()));
	const FProgramResult Result = RunInPipe("Print something\n/undo\n/redo\n");
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	EXPECT_EQ(Result.Output, "");
}
