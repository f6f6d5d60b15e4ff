#include "Assistant/Edits/EditRequest.h"
#include "Assistant/Edits/FlowPhrases.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace VexelService
{

namespace
{

using testing::HasSubstr;

/** The examples of the requests in the assistant's documentation: what stands in backticks in the rows of its tables. */
std::vector<std::string> DocumentedRequests()
{
	std::ifstream File(VEXEL_SOURCE_DIR "/Docs/Assistant.md");
	std::stringstream Text;
	Text << File.rdbuf();
	std::vector<std::string> Requests;
	bool bInside = false;
	for (std::string Line; std::getline(Text, Line);)
	{
		bInside = Line.starts_with("## ") ? Line == "## What it can change" : bInside && Line != "### How it edits";
		if (!bInside || !Line.starts_with("| "))
		{
			continue;
		}
		for (std::size_t Open = Line.find('`'); Open != std::string::npos;)
		{
			const std::size_t Close = Line.find('`', Open + 1);
			Requests.push_back(Line.substr(Open + 1, Close - Open - 1));
			Open = Line.find('`', Close + 1);
		}
	}
	return Requests;
}

TEST(EditRequest, TheDocumentedRequestsAreUnderstood)
{
	const std::vector<std::string> Requests = DocumentedRequests();
	ASSERT_GT(Requests.size(), 50u);
	for (const std::string& Request : Requests)
	{
		const std::optional<FEditRequest> Read = ReadEditRequest(Request);
		EXPECT_TRUE(Read && Read->Edit) << Request << (Read ? ": " + Read->Question : std::string());
	}
}

TEST(EditRequest, TheBlueprintIsTakenOutOfTheWords)
{
	const struct
	{
		const char* Message;
		const char* Blueprint;
	} Cases[] = {
		{"In BP_Door, on overlap print \"Hi\"", "BP_Door"},
		{"BP_Door: on overlap print \"Hi\"", "BP_Door"},
		{"On overlap spawn BP_Coin in BP_Door", "BP_Door"},
		{"On overlap print \"Hi\" in /Game/Doors/BP_Door", "/Game/Doors/BP_Door"},
		{"in the door blueprint, on overlap print \"Hi\"", "door"},
		{"On overlap spawn an actor of class BP_Coin", ""},
		{"On overlap spawn BP_Coin", ""},
		{"When BP_Player overlaps it print \"Hi\"", ""},
		{"On overlap print \"in BP_Door\"", ""},
		{"compile BP_Door", "BP_Door"},
		{"why does BP_Door not compile", "BP_Door"},
	};
	for (const auto& Case : Cases)
	{
		const std::optional<FEditRequest> Read = ReadEditRequest(Case.Message);
		ASSERT_TRUE(Read) << Case.Message;
		EXPECT_EQ(Read->Blueprint, Case.Blueprint) << Case.Message;
	}
}

TEST(EditRequest, QuestionsAndTalkAreNoEdits)
{
	for (const char* const Message : {"What does BP_Door do?", "What happens when F is pressed in BP_Door?",
			 "what would happen if I pressed F", "Tell me what would happen if the player overlaps it", "how do I spawn an actor",
			 "Where is Health set?", "Does it print Hello on BeginPlay?", "Which event opens the door?", "Explain BP_Door",
			 "Show me the graph OpenDoor of BP_Door", "hello", "thanks", "help", "And BP_Enemy?", "", "   ", "...", "\"", "in BP_Door",
			 "the moon rises", "on", "when", "if", "and then", "List all levels."})
	{
		EXPECT_FALSE(ReadEditRequest(Message)) << Message;
	}
}

TEST(EditRequest, StepsWithoutAnEventAreAskedForOne)
{
	const std::optional<FEditRequest> Read = ReadEditRequest("print \"Hello\" and destroy the actor");
	ASSERT_TRUE(Read);
	EXPECT_FALSE(Read->Edit);
	EXPECT_THAT(Read->Question, HasSubstr("\"print Hello\" and \"destroy the actor\". But when should it happen?"));
}

TEST(EditRequest, ManyWaysToSayTheSame)
{
	for (const char* const Message :
		{"on BeginPlay print \"Hi\"", "On begin play, print \"Hi\".", "when the game starts print \"Hi\"", "When play begins: print \"Hi\"",
			"print \"Hi\" on BeginPlay", "Please print \"Hi\" when the level starts", "can you print \"Hi\" on begin play?",
			"could you please make it so that on BeginPlay it prints \"Hi\"", "I want it to print \"Hi\" when the game begins",
			"add logic that prints \"Hi\" on BeginPlay", "on start, display 'Hi'", "When it spawns log \"Hi\"",
			"whenever the player touches it, say \"Hi\"", "upon overlap write \"Hi\"", "as soon as it is hit, print \"Hi\"",
			"every frame print \"Hi\"", "each second print \"Hi\"", "pressing F prints \"Hi\"", "when I press the F key print \"Hi\"",
			"on key F print \"Hi\"", "when the left mouse button is pressed print \"Hi\"", "when someone enters, print \"Hi\""})
	{
		const std::optional<FEditRequest> Read = ReadEditRequest(Message);
		EXPECT_TRUE(Read && Read->Edit) << Message << (Read ? ": " + Read->Question : std::string());
	}
}

TEST(EditRequest, TurnsOfSpeechMeanPlainWords)
{
	const struct
	{
		const char* Said;
		const char* Plain;
	} Cases[] = {
		{"wait half a second", "wait 0.5 second"},
		{"wait one and a half seconds", "wait 1.5 second"},
		{"wait 2s", "wait 2 s"},
		{"close it 2 seconds later", "close it after 2 second"},
		{"close it three minutes afterwards", "close it after 3 minute"},
		{"close it 2 s after", "close it after 2 second"},
		{"2 s after that close it", "2 s after that close it"},
		{"spawn BP_Coin twice a minute", "spawn BP_Coin every 30 second"},
		{"spawn BP_Coin once per second", "spawn BP_Coin every 1 second"},
		{"spawn it periodically every 3 s", "spawn it every 3 s"},
		{"each time Health changes", "when Health changes"},
		{"as soon as it is hit", "when it is hit"},
		{"the door should open", "the door open"},
		{"it must be destroyed", "it is destroyed"},
		{"overlap -> open", "on overlap, open"},
		{"when hit -> open", "when hit, open"},
		{"print \"2s later\"", "print 2s later"},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(JoinWords(ToPlainPhrases(*SplitEditWords(Case.Said))), Case.Plain) << Case.Said;
	}
	EXPECT_TRUE(ToPlainPhrases({}).empty());
}

TEST(EditRequest, ABlueprintMayBeTheSubjectOrTheObjectOfTheRequest)
{
	for (const char* const Message : {"BP_Door should open on overlap", "Make BP_Door open on overlap", "I want BP_Door to open on overlap",
			 "let BP_Door print \"Hi\" on BeginPlay", "Recompile BP_Door", "Check that BP_Door compiles"})
	{
		const std::optional<FEditRequest> Read = ReadEditRequest(Message);
		ASSERT_TRUE(Read && Read->Edit) << Message << (Read ? ": " + Read->Question : std::string());
		EXPECT_EQ(Read->Blueprint, "BP_Door") << Message;
	}
}

TEST(EditWords, PatternsMatchWordsSlotsAndOptionalWords)
{
	const auto Match = [](std::string_view Pattern, std::string_view Text)
	{ return MatchWords(Pattern, *SplitEditWords(Text)); };
	EXPECT_EQ(CapturedText(*Match("set {what} to|as {value}", "please set the Door Angle to 90."), "what"), "Door Angle");
	EXPECT_EQ(CapturedText(*Match("print {value}", "prints \"to, the end\""), "value"), "to, the end");
	EXPECT_EQ(CapturedText(*Match("move {target} by {offset}", "move it by (0, 0, 100)"), "offset"), "0, 0, 100");
	EXPECT_EQ(CapturedText(*Match("move by {offset}", "move by 0, -5, 1.5"), "offset"), "0, -5, 1.5");
	EXPECT_EQ(CapturedText(*Match("press {key:1} [key]", "press the A key"), "key"), "A");
	EXPECT_TRUE(Match("open [the] door [now]", "open door"));
	EXPECT_FALSE(Match("open {what} door", "open door"));
	EXPECT_FALSE(Match("print {value}", "\"print\" hello")) << "a quoted word is no word of the language";
	EXPECT_FALSE(Match("set {what} to {value}", "set x, b to c")) << "a slot ends at a mark";
	EXPECT_FALSE(SplitEditWords(std::string(5000, 'a')));
	EXPECT_EQ(SplitEditWords("it's \"un closed")->size(), 3u);
}

}

}
