#include "Assistant/Question.h"

#include <gtest/gtest.h>

#include <string>

namespace VexelService
{

namespace
{

TEST(Question, TheDocumentedQuestionsAreUnderstood)
{
	using E = EQuestionKind;
	const struct
	{
		const char* Message;
		E Kind;
		const char* Blueprint;
		const char* Subject;
	} Cases[] = {
		{"What does BP_Door do?", E::Overview, "BP_Door", ""},
		{"what does the Blueprint /Game/Foo/BP_X.BP_X do", E::Overview, "/Game/Foo/BP_X.BP_X", ""},
		{"Please explain BP_Door.", E::Overview, "BP_Door", ""},
		{"Can you describe `BP_Door` to me?", E::Overview, "BP_Door", ""},
		{"How does it work?", E::Overview, "it", ""},
		{"BP_Door", E::Overview, "BP_Door", ""},
		{"What happens when the player overlaps it in BP_Door?", E::WhenEvent, "BP_Door", "player overlaps it"},
		{"What happens in BP_Door when F is pressed?", E::WhenEvent, "BP_Door", "F is pressed"},
		{"What does BP_Door do on BeginPlay?", E::WhenEvent, "BP_Door", "BeginPlay"},
		{"What happens when the game starts?", E::WhenEvent, "", "game starts"},
		{"Which variables does BP_Door have?", E::Variables, "BP_Door", ""},
		{"What are BP_Door's variables?", E::Variables, "BP_Door", ""},
		{"list the functions of BP_Door", E::Functions, "BP_Door", ""},
		{"what events are there in BP_Door", E::Events, "BP_Door", ""},
		{"What graphs does BP_Door have?", E::Graphs, "BP_Door", ""},
		{"What components does BP_Door have?", E::Components, "BP_Door", ""},
		{"list BP_Door's components", E::Components, "BP_Door", ""},
		{"How many macros does BP_Door have?", E::Macros, "BP_Door", ""},
		{"Where is Health used in BP_Door?", E::VariableUse, "BP_Door", "Health"},
		{"Where is the variable Max Health changed in BP_Door?", E::VariableUse, "BP_Door", "Max Health"},
		{"Where is Health set?", E::VariableUse, "", "Health"},
		{"What does the function Open Door of BP_Door do?", E::Function, "BP_Door", "Open Door"},
		{"What does Open of BP_Door do?", E::Function, "BP_Door", "Open"},
		{"explain the macro Slide in BP_Door", E::Function, "BP_Door", "Slide"},
	};
	for (const auto& Case : Cases)
	{
		const FQuestion Question = ReadQuestion(Case.Message);
		EXPECT_EQ(Question.Kind, Case.Kind) << Case.Message;
		EXPECT_EQ(Question.Blueprint, Case.Blueprint) << Case.Message;
		EXPECT_EQ(Question.Subject, Case.Subject) << Case.Message;
	}
}

TEST(Question, ABlueprintIsFoundWhereverItStands)
{
	using E = EQuestionKind;
	const struct
	{
		const char* Message;
		E Kind;
		const char* Blueprint;
		const char* Subject;
	} Cases[] = {
		{"What happens when BP_Enemy takes damage?", E::WhenEvent, "BP_Enemy", "takes damage"},
		{"What happens if the player touches BP_Door?", E::WhenEvent, "BP_Door", "player touches"},
		{"What happens when BP_Player overlaps BP_Door?", E::WhenEvent, "BP_Door", "BP_Player overlaps"},
		{"What happens when the player walks into `BP_Door`?", E::WhenEvent, "BP_Door", "player walks into"},
		{"When BP_Player presses E, what happens?", E::WhenEvent, "BP_Player", "presses E"},
		{"In BP_Door, what happens when Toggle is called?", E::WhenEvent, "BP_Door", "Toggle is called"},
		{"What happens to BP_Enemy when it dies?", E::WhenEvent, "BP_Enemy", "it dies"},
		{"What does BP_Enemy do every frame?", E::WhenEvent, "BP_Enemy", "every frame"},
		{"What happens every frame in BP_Enemy?", E::WhenEvent, "BP_Enemy", "every frame"},
		{"How does BP_Enemy react to damage?", E::WhenEvent, "BP_Enemy", "damage"},
		{"Why does BP_Door stay shut when it is locked?", E::WhenEvent, "BP_Door", "it is locked"},
		{"What is BP_Enemy's health?", E::Function, "BP_Enemy", "health"},
		{"What does BP_Door\u2019s OpenDoor do?", E::Function, "BP_Door", "OpenDoor"},
		{"How does bp_enemy patrol?", E::Function, "bp_enemy", "patrol"},
		{"What variables does \u201CBP_Enemy\u201D use?", E::Variables, "BP_Enemy", ""},
		{"Does L_Harbor have any events?", E::Events, "L_Harbor", ""},
		{"where is `BP_Enemy`'s Health changed", E::VariableUse, "BP_Enemy", "Health"},
		{"Where is OpenDoor called in BP_Player?", E::VariableUse, "BP_Player", "OpenDoor"},
		{"Summarize Blueprint'/Game/Doors/BP_Door.BP_Door' in a few words", E::Overview, "/Game/Doors/BP_Door.BP_Door", ""},
		{"what's in /Game/BP_Player?", E::Overview, "/Game/BP_Player", ""},
		{"What happens when Crate is hit?", E::WhenEvent, "Crate", "is hit"},
	};
	for (const auto& Case : Cases)
	{
		const FQuestion Question = ReadQuestion(Case.Message, {"Crate"});
		EXPECT_EQ(Question.Kind, Case.Kind) << Case.Message;
		EXPECT_EQ(Question.Blueprint, Case.Blueprint) << Case.Message;
		EXPECT_EQ(Question.Subject, Case.Subject) << Case.Message;
	}
}

TEST(Question, OtherMessagesAreNotGuessedAt)
{
	const std::string Long = "what happens when " + std::string(100'000, 'x') + " in BP_Door";
	std::string ManyWords = "what happens when";
	for (int Index = 0; Index < 10'000; ++Index)
	{
		ManyWords += " in in";
	}
	for (const std::string& Message : {std::string(), std::string("???"), std::string("Add a light to BP_Door"),
			 std::string("How do I add a variable to BP_Door?"), std::string("BP_Door is broken"), Long, ManyWords})
	{
		EXPECT_EQ(ReadQuestion(Message).Kind, EQuestionKind::Unknown) << Message.substr(0, 60);
	}
}

}

}
