#include "BlueprintJson.h"
#include "ScriptedEditor.h"
#include "ScriptedObjectEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace VexelService
{

namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

FJson MakeList(const char* Id, const char* Type, std::vector<std::string> Elements)
{
	FJson Variable = MakeVariable(Id, Type, "");
	Variable["value"] = {{"type", Type}, {"properties", FJson::array()}};
	for (const std::string& Element : Elements)
	{
		Variable["value"]["properties"].push_back({{"id", std::to_string(Variable["value"]["properties"].size())}, {"value", Element},
			{"category", ""}});
	}
	return Variable;
}

// The enemy of the scripted project, with a function, a custom event and lists.
FJson MakeRichEnemy()
{
	FJson Enemy = MakeDoor();
	Enemy["id"] = "/Game/Enemies/BP_Enemy.BP_Enemy";
	Enemy["parent_chain"] = {"Character", "Pawn", "Actor", "Object"};
	FJson Heal = MakeGraph("Heal", "function", {MakeNode("Heal_0", "graph.entry", {ExecOut()})});
	Heal["variables"] = {MakeVariable("Amount", "real", "1.0", "in"), MakeVariable("NewHealth", "real", "", "out"),
		MakeVariable("Count", "int", "0", "local")};
	Enemy["graphs"].push_back(Heal);
	FJson OnHit = MakeNode("OnHit_0", "event.custom", {ExecOut()});
	OnHit["properties"] = {{{"id", "name"}, {"value", "OnHit"}}};
	OnHit["editable_pins"] = {MakeVariable("Damage", "real", "", "out")};
	OnHit["pins"].push_back(DataOut("Damage", "real"));
	Enemy["graphs"][0]["nodes"].push_back(OnHit);
	Link(Enemy["graphs"][0], "OnHit_0.Damage", "LessEqual_0.B");
	Enemy["graphs"][0]["nodes"].push_back(MakeNode("GetBody_0", "var.get.Body", {DataOut("Body", "object.SkeletalMeshComponent")}));
	for (const FJson& Variable : {MakeVariable("bDead", "bool", "False"), MakeVariable("PatrolIndex", "int", "2"),
			 MakeVariable("State", "enum.EDoorState", "Open"),
			 MakeVariable("Home", "struct.Vector", "(X=0,Y=0,Z=0)"), MakeVariable("Target", "object.Actor", "ref|None"),
			 MakeVariable("Greeting", "string", "Hi"),
			 MakeList("Loot", "array|name", {"Coin", "Key"}),
			 MakeList("Waypoints", "array|struct.Vector", {"(X=0,Y=0,Z=0)", "(X=1,Y=1,Z=1)", "(X=2,Y=2,Z=2)"}),
			 MakeList("Prices", "map|name,int", {})})
	{
		Enemy["variables"].push_back(Variable);
	}
	return Enemy;
}

class MemberEdit : public testing::Test
{
protected:
	MemberEdit()
	{
		Editor.SetTool("read_blueprint", [this](const FJson& Arguments) -> FJson
			{
				const std::string Path = Arguments.value("blueprint", "");
				if (Path.find("BP_Enemy") != std::string::npos)
				{
					return Blueprint.GetBlueprint();
				}
				return Path.find("BP_Player") != std::string::npos ? Player : FJson(); });
		Editor.SetTool("object_edit", [this](const FJson& Arguments)
			{ return Blueprint.Edit(Arguments); });
		Editor.SetTool("graph_add", [this](const FJson& Arguments)
			{ return Blueprint.AddGraph(Arguments); });
		Editor.SetTool("graph_remove", [this](const FJson& Arguments)
			{ return Blueprint.RemoveGraph(Arguments); });
		Editor.SetTool("compile", [this](const FJson& Arguments) -> FJson
			{
				Compiled.push_back(Arguments["blueprint"]);
				return {{"success", CompilerMessages.empty()}, {"compiler_messages", CompilerMessages}}; });
		Editor.SetTool("get_asset_info", [](const FJson&) -> FJson
			{ return {{"referencers", {{"hard", {"/Game/BP_Player"}}, {"soft", FJson::array()}}}}; });
	}

	/** What was asked of the editor for one message. */
	std::vector<std::string> Operations(const std::string& Message)
	{
		const std::size_t Before = Blueprint.GetOperations().size();
		Answer = Editor.Ask(Message);
		return {Blueprint.GetOperations().begin() + static_cast<std::ptrdiff_t>(Before), Blueprint.GetOperations().end()};
	}

	FScriptedEditor Editor;
	FScriptedObjectEdit Blueprint{MakeRichEnemy()};
	FJson Player = MakeBlueprint("/Game/BP_Player.BP_Player", {}, {});
	FJson CompilerMessages = FJson::array();
	std::vector<std::string> Compiled;
	std::string Answer;
};

std::string Description(const std::string& Name, const std::string& Type, const std::string& Category = "",
	const std::string& Scope = "member")
{
	FJson Json = {{"prop_id", Name}, {"scope_id", Scope}, {"type_id", Type}};
	if (!Category.empty())
	{
		Json["category"] = Category;
	}
	return Json.dump();
}

TEST_F(MemberEdit, VariablesAreAddedInManyWords)
{
	const struct
	{
		const char* Message;
		const char* Name;
		const char* Type;
		/** What the default is set to; empty for none. */
		const char* Default;
		const char* Category;
	} Cases[] = {
		{"Add a float variable Armor with default 100 to BP_Enemy", "Armor", "real", "\"100\"", ""},
		{"give BP_Enemy a boolean bLocked", "bLocked", "bool", "", ""},
		{"BP_Enemy needs a new boolean bAngry", "bAngry", "bool", "", ""},
		{"Can you please add an integer called Lives to BP_Enemy?", "Lives", "int", "", ""},
		{"In BP_Enemy, create a variable Speed of type float with a default value of 600", "Speed", "real", "\"600\"", ""},
		{"add an array of strings called Tags to BP_Enemy", "Tags", "array|string", "", ""},
		{"BP_Enemy: add a map from name to int called Costs", "Costs", "map|name,int", "", ""},
		{"add a map of strings to Actors called Owners to BP_Enemy", "Owners", "map|string,object.Actor", "", ""},
		{"Add a set of names Seen to BP_Enemy", "Seen", "set|name", "", ""},
		{"Add a reference to Actor called Enemy1 to BP_Enemy", "Enemy1", "object.Actor", "", ""},
		{"add an Actor reference Prey to BP_Enemy", "Prey", "object.Actor", "", ""},
		{"Create a variable Leader of class BP_Enemy in BP_Enemy", "Leader", "object.BP_Enemy", "", ""},
		{"add a class reference to BP_Enemy called Spawned to BP_Enemy", "Spawned", "class.BP_Enemy", "", ""},
		{"Add a vector Start with default 1, 2, 3 to BP_Enemy", "Start", "struct.Vector", "\"(X=1,Y=2,Z=3)\"", ""},
		{"Add a color Tint with default red to BP_Enemy", "Tint", "struct.LinearColor", "\"(R=1,G=0,B=0,A=1)\"", ""},
		{"add a variable Mode of type EDoorState to BP_Enemy", "Mode", "enum.EDoorState", "", ""},
		{"add a Stats struct variable Base to BP_Enemy", "Base", "struct.Stats", "", ""},
		{"Add a string Title with default \"Hello, world\" in the category Texts to BP_Enemy", "Title", "string", "\"Hello, world\"",
			"Texts"},
		{"Add a bool bFriendly that defaults to true to BP_Enemy", "bFriendly", "bool", "\"True\"", ""},
		{"add variable Stamina: float = 5 to BP_Enemy", "Stamina", "real", "\"5\"", ""},
		{"please make a new variable named Energy, type float, default value 7, category Stats in BP_Enemy", "Energy", "real", "\"7\"",
			"Stats"},
		{"add Mana (float) to BP_Enemy", "Mana", "real", "", ""},
		{"Add a float variable Max Rage to BP_Enemy under the Stats category", "MaxRage", "real", "", "Stats"},
		{"i want you to add an int variable Ammo to BP_Enemy starting at 30", "Ammo", "int", "\"30\"", ""},
		{"declare a 64 bit integer Total in BP_Enemy", "Total", "int64", "", ""},
		{"add a rotator Facing with default yaw 90 to BP_Enemy", "Facing", "struct.Rotator", "{\"Yaw\":\"90\"}", ""},
		{"add an event dispatcher OnDied to BP_Enemy", "OnDied", "mcdelegate", "", ""},
		{"add a map from name to int called Fees with default Apple = 3, Pear = 4 to BP_Enemy", "Fees", "map|name,int",
			"{\"0\":{\"key\":\"Apple\",\"value\":\"3\"},\"1\":{\"key\":\"Pear\",\"value\":\"4\"}}", ""},
		{"Add an array of names Drops with default Coin, Gem and Key to BP_Enemy", "Drops", "array|name",
			"{\"0\":\"Coin\",\"1\":\"Gem\",\"2\":\"Key\"}", ""},
	};
	for (const auto& Case : Cases)
	{
		std::vector<std::string> Expected = {
			"add_variable member " + std::string(Case.Name) + " " + Description(Case.Name, Case.Type, Case.Category)};
		if (*Case.Default)
		{
			Expected.push_back("update member " + std::string(Case.Name) + " " + Case.Default);
		}
		EXPECT_EQ(Operations(Case.Message), Expected) << Case.Message << "\n"
													  << Answer;
		EXPECT_THAT(Answer, AllOf(HasSubstr("I added the variable **" + std::string(Case.Name) + "** to **BP_Enemy**"), HasSubstr("**BP_Enemy** compiles without errors")))
			<< Case.Message;
	}
}

TEST_F(MemberEdit, SeveralVariablesComeFromOneMessage)
{
	EXPECT_THAT(Operations("Add float variables Armor and Shield to BP_Enemy"),
		ElementsAre(HasSubstr("add_variable member Armor"), HasSubstr("add_variable member Shield")));
	EXPECT_THAT(Operations("Add a float Rage and a boolean bCalm to BP_Enemy"),
		ElementsAre("add_variable member Rage " + Description("Rage", "real"),
			"add_variable member bCalm " + Description("bCalm", "bool")));
	EXPECT_EQ(Compiled.size(), 2u);
}

TEST_F(MemberEdit, LocalVariablesGoToTheirFunction)
{
	EXPECT_THAT(Operations("add a local integer Steps with default 3 to the function Heal of BP_Enemy"),
		ElementsAre("Graph (Heal): add_variable local Steps " + Description("Steps", "int", "", "local"),
			"Graph (Heal): update local Steps \"3\""));
	EXPECT_THAT(Operations("add a local float Rest to BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("not to which function"));
	EXPECT_THAT(Operations("add a local float Rest to the function Harm of BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("no function called \"Harm\""));
}

TEST_F(MemberEdit, WhatIsHalfUnderstoodIsAsked)
{
	const struct
	{
		const char* Message;
		const char* Said;
	} Cases[] = {
		{"Add a variable to BP_Enemy", "but not its name and its type"},
		{"Add a variable Armor to BP_Enemy", "a variable **Armor**, but not its type"},
		{"Add a float to BP_Enemy", "but not its name"},
		{"Add a function to BP_Enemy", "but not its name"},
		{"Add an input to the function Heal of BP_Enemy", "not its name and type"},
		{"Add a float input Power to BP_Enemy", "not to which function"},
		{"Rename Health to the best name of all in BP_Enemy", "but not to what"},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_THAT(Operations(Case.Message), IsEmpty()) << Case.Message;
		EXPECT_THAT(Answer, AllOf(HasSubstr("I understood that you want to"), HasSubstr(Case.Said))) << Case.Message;
	}
}

TEST_F(MemberEdit, OtherMessagesAreNotTakenForEdits)
{
	for (const char* const Message : {"Add a light to BP_Enemy", "What happens if I add a float variable Armor to BP_Enemy?",
			 "How do I rename Health in BP_Enemy?",
			 "Which variables does BP_Enemy have?", "Where is Health set in BP_Enemy?", "Add a comment to BP_Enemy",
			 "When play begins, set Health to 5 in BP_Enemy",
			 "set Health to 5 on BeginPlay in BP_Enemy", "set Health to 5 after 3 seconds in BP_Enemy", "add 5 to Health in BP_Enemy",
			 "remove the node Delay from BP_Enemy",
			 "Does BP_Enemy need a float?", "Paint the sky green", "BP_Enemy is broken"})
	{
		EXPECT_THAT(Operations(Message), IsEmpty()) << Message << "\n"
													<< Answer;
		EXPECT_THAT(Answer, Not(HasSubstr("I understood that"))) << Message;
	}
}

TEST_F(MemberEdit, LongMessagesAreReadInBoundedTime)
{
	const auto Repeat = [](const char* Text, int Count)
	{
		std::string All;
		for (int Index = 0; Index < Count; ++Index)
		{
			All += Text;
		}
		return All;
	};
	for (const std::string& Message : {"add " + Repeat("a and ", 600), "add a function X with inputs " + Repeat("a float A and ", 600),
			 "set " + Repeat("of x ", 600) + "to 5", "add " + Repeat("reference to ", 600), "rename " + Repeat("to ", 600),
			 "add a map " + Repeat("from of to ", 600), "remove " + Repeat("value x from ", 600), Repeat("\"a\" ", 600)})
	{
		EXPECT_THAT(Operations(Message), IsEmpty()) << Message.substr(0, 40);
	}
}

TEST_F(MemberEdit, AVariableThatIsThereIsNotAddedAgain)
{
	EXPECT_THAT(Operations("Add a float variable health to BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("already has a variable **Health** (number, default 100"));
}

TEST_F(MemberEdit, ADefaultThatDoesNotFitIsRefusedBeforeAnythingIsDone)
{
	EXPECT_THAT(Operations("Add an integer Ammo with default lots to BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("\"lots\" is no whole number"));
	EXPECT_THAT(Operations("Add a vector Spot with default 1, 2 to BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("I need the numbers X, Y and Z"));
}

TEST_F(MemberEdit, AVariableGoesAgainWhenTheEditorRefusesItsDefault)
{
	EXPECT_EQ(Operations("Add a variable Mode of type EDoorState with default Ajar to BP_Enemy").size(), 3u);
	EXPECT_EQ(Blueprint.FindVariable("Mode"), nullptr);
	EXPECT_THAT(Answer, AllOf(HasSubstr("I could not give **Mode** that default"), HasSubstr("The value does not fit the type."), HasSubstr("no such entry")));
	EXPECT_THAT(Compiled, IsEmpty());
}

TEST_F(MemberEdit, ATypeThatTheEditorDoesNotKnowIsToldInItsWords)
{
	EXPECT_EQ(Operations("Add a variable Pet of type Dragon to BP_Enemy").size(), 3u) << "a class, a struct and an enumeration were tried";
	EXPECT_THAT(Answer, AllOf(HasSubstr("I could not add the variable **Pet**"), HasSubstr("Failed to add variable 'Pet' of type")));
	EXPECT_EQ(Blueprint.FindVariable("Pet"), nullptr);
}

TEST_F(MemberEdit, MembersAreRenamed)
{
	EXPECT_THAT(Operations("Rename Health of BP_Enemy to Life"),
		ElementsAre("edit_variable member Health " + Description("Life", "real", "Default")));
	EXPECT_THAT(Answer, AllOf(HasSubstr("**Health** is used in 1 place of **BP_Enemy**"), HasSubstr("I renamed the variable **Health** to **Life**."), HasSubstr("**BP_Enemy** compiles without errors")));
	EXPECT_THAT(Operations("change the name of bDead to bIsDead in BP_Enemy"),
		ElementsAre("edit_variable member bDead " + Description("bIsDead", "bool", "Default")));
	EXPECT_THAT(Operations("rename the function Heal to Recover in BP_Enemy"), ElementsAre("Graph (Heal): update  name \"Recover\""));
	EXPECT_THAT(Operations("rename the custom event OnHit of BP_Enemy to OnHurt"),
		ElementsAre("Node (OnHit_0) in Graph (EventGraph): update  name \"OnHurt\""));
	EXPECT_THAT(Operations("rename the input Amount of the function Recover to Points in BP_Enemy"),
		ElementsAre("Graph (Recover): edit_variable in Amount " + Description("Points", "real", "Default", "in")));
	EXPECT_THAT(Operations("rename Gold to Silver in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("**BP_Enemy** has no variable, function or custom event called \"Gold\""));
	EXPECT_THAT(Operations("rename Helth to Life in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Operations("rename Greetin to Text in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("The nearest is **Greeting**"));
}

TEST_F(MemberEdit, VariablesGetAnotherType)
{
	const struct
	{
		const char* Message;
		const char* Operation;
	} Cases[] = {
		{"make Health of BP_Enemy an integer", "edit_variable member Health "},
		{"Change the type of Health to string in BP_Enemy", "edit_variable member Health "},
		{"change Health from string to int in BP_Enemy", "edit_variable member Health "},
		{"Health should be a float in BP_Enemy", "edit_variable member Health "},
		{"turn Health into a string in BP_Enemy", "edit_variable member Health "},
		{"convert Loot to an array of strings in BP_Enemy", "edit_variable member Loot "},
		{"make the input Amount of the function Heal an integer in BP_Enemy", "Graph (Heal): edit_variable in Amount "},
		{"change the type of Count of the function Heal to bool in BP_Enemy", "Graph (Heal): edit_variable local Count "},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_THAT(Operations(Case.Message), ElementsAre(HasSubstr(Case.Operation))) << Case.Message << "\n"
																					  << Answer;
		EXPECT_THAT(Answer, HasSubstr("I changed the type of")) << Case.Message;
	}
	EXPECT_EQ((*Blueprint.FindVariable("Health"))["type"], "string");
	EXPECT_EQ((*Blueprint.FindVariable("Loot"))["type"], "array|string");
	EXPECT_THAT(Operations("make Health a string in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("is of type string already"));
}

TEST_F(MemberEdit, ARemovalTellsWhatUsedItAndWhatBroke)
{
	CompilerMessages = {{{"severity", "error"}, {"message", "Could not find a variable named \"Health\""}}};
	EXPECT_THAT(Operations("Remove the variable Health from BP_Enemy"), ElementsAre("remove_variable member Health"));
	EXPECT_THAT(Answer, AllOf(HasSubstr("**Health** is used in 1 place of **BP_Enemy**:\n\n- In EventGraph"), HasSubstr("I removed the variable **Health**."), HasSubstr("**BP_Enemy** does not compile. 1 error:\n\n- Could not find a variable")));
	EXPECT_LT(Answer.find("is used in"), Answer.find("I removed"));
	CompilerMessages = FJson::array();
	EXPECT_THAT(Operations("delete bDead in BP_Enemy"), ElementsAre("remove_variable member bDead"));
	EXPECT_THAT(Answer, AllOf(HasSubstr("No step uses **bDead**."), HasSubstr("I removed")));
	EXPECT_THAT(Operations("get rid of the function Heal in BP_Enemy"), ElementsAre("graph_remove Heal"));
	EXPECT_THAT(Operations("remove the input Damage from the event OnHit of BP_Enemy"),
		ElementsAre("Node (OnHit_0) in Graph (EventGraph): remove_variable out Damage"));
	EXPECT_THAT(Answer, AllOf(HasSubstr("1 wire leads from or to **Damage**."), HasSubstr("No step uses **OnHit**.")));
}

TEST_F(MemberEdit, OtherBlueprintsThatUseAMemberAreToldAndCompiled)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph",
		{MakeNode("EventBeginPlay_0", "event.Actor.ReceiveBeginPlay", {ExecOut()}),
			MakeNode("Heal_0", "call.BP_Enemy_C.Heal", {ExecIn(), DataIn("self", "object.BP_Enemy_C"), ExecOut()})});
	Link(Graph, "EventBeginPlay_0.then", "Heal_0.execute");
	Player = MakeBlueprint("/Game/BP_Player.BP_Player", {Graph}, {});
	Operations("rename the function Heal of BP_Enemy to Recover");
	EXPECT_THAT(Answer, AllOf(HasSubstr("**Heal** is used in 1 place of **BP_Player**"), HasSubstr("**BP_Player** compiles without errors")));
	EXPECT_THAT(Compiled, ElementsAre("/Game/Enemies/BP_Enemy.BP_Enemy", "/Game/BP_Player.BP_Player"));
}

TEST_F(MemberEdit, CategoriesAndMarksAreSet)
{
	EXPECT_THAT(Operations("put Health of BP_Enemy in the category Stats"),
		ElementsAre("edit_variable member Health " + Description("Health", "real", "Stats")));
	EXPECT_THAT(Answer, HasSubstr("from the category **Default** to **Stats**"));
	EXPECT_THAT(Operations("move Health into the Life category in BP_Enemy"),
		ElementsAre("edit_variable member Health " + Description("Health", "real", "Life")));
	EXPECT_THAT(Operations("set the category of Health to \"My Stats\" in BP_Enemy"), ElementsAre(HasSubstr("\"category\":\"My Stats\"")));
	EXPECT_THAT(Operations("make Health of BP_Enemy instance editable and put it in category Tuning"),
		ElementsAre(AllOf(HasSubstr("\"instance_editable\":true"), HasSubstr("\"category\":\"Tuning\""))));
	EXPECT_THAT(Answer, AllOf(HasSubstr("is now marked **instance editable**"), HasSubstr("to **Tuning**")));
	EXPECT_THAT(Operations("make Health in BP_Enemy not editable"), ElementsAre(HasSubstr("\"instance_editable\":false")));
	EXPECT_THAT(Answer, HasSubstr("is no longer marked **instance editable**"));
	EXPECT_THAT(Operations("make Health private in BP_Enemy"), ElementsAre(HasSubstr("\"private\":true")));
	EXPECT_THAT(Operations("make Health transient in BP_Enemy"), ElementsAre(HasSubstr("\"transient\":true")));
	EXPECT_THAT(Answer, HasSubstr("The editor did not take the mark **transient**")) << "the scripted editor knows no such mark";
}

TEST_F(MemberEdit, DefaultsOfVariablesAreSet)
{
	const struct
	{
		const char* Message;
		const char* Operation;
	} Cases[] = {
		{"set Health of BP_Enemy to 50", "update member Health \"50\""},
		{"Set BP_Enemy's Health to 1,500.5", "update member Health \"1500.5\""},
		{"change the default value of Health in BP_Enemy to 75", "update member Health \"75\""},
		{"Health of BP_Enemy should be 20", "update member Health \"20\""},
		{"In BP_Enemy, set PatrolIndex = 4", "update member PatrolIndex \"4\""},
		{"set the patrol index to three in BP_Enemy", "update member PatrolIndex \"3\""},
		{"set dead to yes in BP_Enemy", "update member bDead \"True\""},
		{"make bDead false in BP_Enemy", "update member bDead \"False\""},
		{"make PatrolIndex 7 in BP_Enemy", "update member PatrolIndex \"7\""},
		{"set Greeting to \"Good morning, all\" in BP_Enemy", "update member Greeting \"Good morning, all\""},
		{"set Home to (10, 20, 30) in BP_Enemy", "update member Home \"(X=10,Y=20,Z=30)\""},
		{"set Home to X=1 Y=2 Z=3 in BP_Enemy", "update member Home \"(X=1,Y=2,Z=3)\""},
		{"set Waypoints to (1, 2, 3) and (4, 5, 6) and 7, 8, 9 in BP_Enemy",
			"update member Waypoints {\"0\":\"(X=1,Y=2,Z=3)\",\"1\":\"(X=4,Y=5,Z=6)\",\"2\":\"(X=7,Y=8,Z=9)\"}"},
		{"set State of BP_Enemy to Closed", "update member State \"Closed\""},
		{"set Target to L_Harbor in BP_Enemy", "update member Target \"ref|/Game/L_Harbor.L_Harbor\""},
		{"set Target to none in BP_Enemy", "update member Target \"ref|None\""},
		{"set the input Amount of the function Heal to 5 in BP_Enemy", "Graph (Heal): update in Amount \"5\""},
		{"set Count of the function Heal to 5 in BP_Enemy", "Graph (Heal): update local Count \"5\""},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_THAT(Operations(Case.Message), ElementsAre(Case.Operation)) << Case.Message << "\n"
																		   << Answer;
		EXPECT_THAT(Answer, AllOf(HasSubstr("I set the default of"), HasSubstr("**BP_Enemy** compiles without errors"))) << Case.Message;
	}
	EXPECT_THAT(Operations("set Health of BP_Enemy to 30"), ElementsAre("update member Health \"30\""));
	EXPECT_THAT(Answer, HasSubstr("I set the default of **Health** from 20 to 30."));
}

TEST_F(MemberEdit, ValuesThatDoNotFitAreRefused)
{
	EXPECT_THAT(Operations("set PatrolIndex of BP_Enemy to 1.5"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("**PatrolIndex**, which is an integer: \"1.5\" is no whole number"));
	EXPECT_THAT(Operations("set Home of BP_Enemy to far away"), IsEmpty());
	EXPECT_THAT(Operations("set Target of BP_Enemy to Submarine"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("no asset called \"Submarine\""));
	EXPECT_THAT(Operations("set State of BP_Enemy to Ajar"), ElementsAre("update member State \"Ajar\""));
	EXPECT_THAT(Answer, AllOf(HasSubstr("left everything as it was. The value does not fit the type."), HasSubstr("no such entry")));
	EXPECT_EQ((*Blueprint.FindVariable("State"))["value"], "Open");
	EXPECT_THAT(Compiled, IsEmpty());
}

namespace
{
/** The enemy, a Character, with components of its own and those of its parent, as an export shows them: by name and class. */
FJson MakeEnemyWith(std::vector<std::pair<std::string, std::string>> Components)
{
	Components.insert(Components.end(), {{"Mesh", "SkeletalMeshComponent"}, {"CharacterMovement", "CharacterMovementComponent"}, {"CapsuleComponent", "CapsuleComponent"}});
	FJson Properties = FJson::array();
	for (const auto& [Name, Class] : Components)
	{
		Properties.push_back({{"id", Name}, {"type", "object." + Class}, {"value", {{"type", "object." + Class}}}, {"category", ""}, {"instanced", true}});
	}
	FJson Enemy = MakeRichEnemy();
	Enemy["properties"] = FJson::array({{{"id", "$ClassDefaultObject"}, {"type", "object.BP_Enemy"},
		{"value", {{"type", "object.BP_Enemy"}, {"properties", Properties}}}, {"category", ""}}});
	return Enemy;
}
}

TEST_F(MemberEdit, PropertiesOfTheClassDefaultsAreFoundByTheirWords)
{
	const struct
	{
		const char* Message;
		const char* Operation;
	} Cases[] = {
		{"set the initial life span of BP_Enemy to 5 seconds", "update  $ClassDefaultObject.InitialLifeSpan \"5\""},
		{"set the max walk speed of the movement component to 600 in BP_Enemy",
			"update  $ClassDefaultObject.CharacterMovement.MaxWalkSpeed \"600\""},
		{"make the mesh invisible in BP_Enemy", "update  $ClassDefaultObject.Mesh.bVisible \"False\""},
		{"set the location of the mesh to 1, 2, 3 in BP_Enemy", "update  $ClassDefaultObject.Mesh.RelativeLocation \"(X=1,Y=2,Z=3)\""},
		{"set the mesh's location to 1, 2, 3 in BP_Enemy", "update  $ClassDefaultObject.Mesh.RelativeLocation \"(X=1,Y=2,Z=3)\""},
		{"set the scale of the mesh to 2 in BP_Enemy", "update  $ClassDefaultObject.Mesh.RelativeScale3D \"(X=2,Y=2,Z=2)\""},
		{"set the mesh's relative scale to 1, 1, 0.5 in BP_Enemy", "update  $ClassDefaultObject.Mesh.RelativeScale3D \"(X=1,Y=1,Z=0.5)\""},
		{"make the body red in BP_Enemy", "update  $ClassDefaultObject.Body.LightColor \"(R=255,G=0,B=0,A=255)\""},
		{"set the yaw of the rotation of the body to 90 in BP_Enemy", "update  $ClassDefaultObject.Body.RelativeRotation.Yaw \"90\""},
		{"make BP_Enemy hidden", "update  $ClassDefaultObject.bHidden \"True\""},
		{"set hidden of BP_Enemy to true", "update  $ClassDefaultObject.bHidden \"True\""},
	};
	Blueprint = FScriptedObjectEdit(MakeEnemyWith({}));
	for (const auto& Case : Cases)
	{
		const std::vector<std::string> Made = Operations(Case.Message);
		ASSERT_FALSE(Made.empty()) << Case.Message << "\n"
								   << Answer;
		EXPECT_EQ(Made.back(), Case.Operation) << Case.Message << "\n"
											   << Answer;
		EXPECT_THAT(Answer, HasSubstr("I set the default of")) << Case.Message;
	}
	EXPECT_THAT(Operations("set the intensity of the PointLight to 5000 in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("**BP_Enemy** has no component and no variable called \"PointLight\"."));
	// Another editor may show no defaults.
	Blueprint = FScriptedObjectEdit(MakeRichEnemy());
	Operations("set the intensity of the PointLight to 5000 in BP_Enemy");
	EXPECT_THAT(Answer, AllOf(HasSubstr("left everything as it was"), HasSubstr("no such object in the class's defaults")));
	Operations("set the wing span of BP_Enemy to 3");
	EXPECT_THAT(Answer, AllOf(HasSubstr("could not set \"wing span\""), HasSubstr("There is no property of that name.")));
}

TEST_F(MemberEdit, ComponentsAreLookedUpInTheExportAndNoneIsTried)
{
	const struct
	{
		const char* Said;
		const char* Component;
	} Cases[] = {
		{"PointLight", "CeilingLamp"},
		{"light", "CeilingLamp"},
		{"lamp", "CeilingLamp"},
		{"ceiling lamp", "CeilingLamp"},
		{"door mesh", "DoorMesh"},
		{"static mesh", "DoorMesh"},
		{"trigger", "Area"},
		{"box", "Area"},
		{"mesh", "Mesh"},
		{"capsule", "CapsuleComponent"},
		{"movement component", "CharacterMovement"},
		{"body", "Body"},
	};
	for (const auto& Case : Cases)
	{
		Blueprint = FScriptedObjectEdit(
			MakeEnemyWith({{"CeilingLamp", "PointLightComponent"}, {"DoorMesh", "StaticMeshComponent"}, {"Area", "BoxComponent"}}));
		EXPECT_THAT(Operations(std::string("set the intensity of the ") + Case.Said + " to 500 in BP_Enemy"),
			testing::ElementsAre(std::string("update  $ClassDefaultObject.") + Case.Component + ".Intensity \"500\""))
			<< Case.Said << "\n"
			<< Answer;
	}
}

TEST_F(MemberEdit, OfSeveralComponentsTheUserNamesOneAndOfNoneNothingIsTried)
{
	Blueprint = FScriptedObjectEdit(MakeEnemyWith({{"Lamp", "PointLightComponent"}, {"Torch", "PointLightComponent"}}));
	EXPECT_THAT(Operations("set the intensity of the light to 5000 in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("**BP_Enemy** has 2 components that fit \"light\": **Lamp** and **Torch**. Name the one that you mean."));
	EXPECT_THAT(Operations("set the intensity of the torch to 5000 in BP_Enemy"),
		testing::ElementsAre("update  $ClassDefaultObject.Torch.Intensity \"5000\""));
	EXPECT_THAT(Operations("make the chandelier invisible in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("**BP_Enemy** has no component and no variable called \"chandelier\"."));

	Blueprint = FScriptedObjectEdit(MakeRichEnemy());
	EXPECT_THAT(Operations("make the chandelier invisible in BP_Enemy"), testing::Contains("update  $ClassDefaultObject.Chandelier.bVisible \"False\""));
}

TEST_F(MemberEdit, ElementsAreSetAddedAndRemoved)
{
	const struct
	{
		const char* Message;
		const char* Operation;
	} Cases[] = {
		{"set the second element of Waypoints to 4, 5, 6 in BP_Enemy", "update member Waypoints {\"1\":\"(X=4,Y=5,Z=6)\"}"},
		{"change the last item of Loot to Gem in BP_Enemy", "update member Loot {\"1\":\"Gem\"}"},
		{"set Loot[0] to Ring in BP_Enemy", "update member Loot {\"0\":\"Ring\"}"},
		{"add \"Sword\" to Loot in BP_Enemy", "insert member Loot [2] \"Sword\""},
		{"append Bow to the Loot array of BP_Enemy", "insert member Loot [3] \"Bow\""},
		{"add Map to the beginning of Loot in BP_Enemy", "insert member Loot [0] \"Map\""},
		{"add 7, 8, 9 to the array Waypoints in BP_Enemy", "insert member Waypoints [3] \"(X=7,Y=8,Z=9)\""},
		{"remove the first element of Loot in BP_Enemy", "remove member Loot [0]"},
		{"delete the 2nd element from Waypoints in BP_Enemy", "remove member Waypoints [1]"},
		{"remove Bow from Loot in BP_Enemy", "remove member Loot [3]"},
		{"add Apple = 3 to the map Prices in BP_Enemy", "insert member Prices [0] {\"key\":\"Apple\",\"value\":\"3\"}"},
		{"set Apple in Prices to 4 in BP_Enemy", "update member Prices {\"0\":{\"key\":\"Apple\",\"value\":\"4\"}}"},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_THAT(Operations(Case.Message), ElementsAre(Case.Operation)) << Case.Message << "\n"
																		   << Answer;
		EXPECT_THAT(Answer, HasSubstr("**BP_Enemy** compiles without errors")) << Case.Message;
	}
	EXPECT_THAT(Operations("set the tenth element of Loot to Gem in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("There is no such element: **Loot** has 3 elements"));
	EXPECT_THAT(Operations("add Gold to Health in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("that is a number and has none"));
	EXPECT_THAT(Operations("set Loot to Gold and Silver in BP_Enemy"),
		ElementsAre("update member Loot {\"0\":\"Gold\",\"1\":\"Silver\"}", "remove member Loot [2]"));
}

TEST_F(MemberEdit, FunctionsComeWithTheirInputsAndOutputs)
{
	EXPECT_THAT(Operations("Add a function Revive to BP_Enemy with an input Amount of type float and an output NewHealth"),
		ElementsAre("graph_add Revive", "Graph (Revive): add_variable in Amount " + Description("Amount", "real", "", "in"),
			"Graph (Revive): add_variable out NewHealth " + Description("NewHealth", "real", "", "out")));
	EXPECT_THAT(Answer,
		AllOf(HasSubstr("I added the function **Revive** to **BP_Enemy**, with the input **Amount** (number) and the output **NewHealth** (number)."), HasSubstr("**BP_Enemy** compiles without errors")));
	EXPECT_THAT(Operations("create a function called Hurt in BP_Enemy that takes a float Damage and a boolean bForce and returns an integer Left"),
		ElementsAre("graph_add Hurt", "Graph (Hurt): add_variable in Damage " + Description("Damage", "real", "", "in"),
			"Graph (Hurt): add_variable in bForce " + Description("bForce", "bool", "", "in"),
			"Graph (Hurt): add_variable out Left " + Description("Left", "int", "", "out")));
	EXPECT_THAT(Operations("give BP_Enemy a new function Rest"), ElementsAre("graph_add Rest"));
	EXPECT_THAT(Operations("add a function Heal to BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("I could not add the function **Heal**"));
}

TEST_F(MemberEdit, AFunctionWhoseInputIsRefusedIsTakenBack)
{
	EXPECT_EQ(Operations("Add a function Feed to BP_Enemy with an input Food of type Dragon").back(), "graph_remove Feed");
	EXPECT_THAT(Answer, AllOf(HasSubstr("so I took the function back"), HasSubstr("The editor says")));
	EXPECT_EQ(Blueprint.GetBlueprint()["graphs"].size(), 2u);
}

TEST_F(MemberEdit, ParametersAreAddedToFunctionsAndEvents)
{
	const struct
	{
		const char* Message;
		const char* Operation;
	} Cases[] = {
		{"Add an integer input Times to the function Heal of BP_Enemy", "Graph (Heal): add_variable in Times "},
		{"give the function Heal a boolean input bFast in BP_Enemy", "Graph (Heal): add_variable in bFast "},
		{"add an output Done of type bool to Heal in BP_Enemy", "Graph (Heal): add_variable out Done "},
		{"add a float parameter Scale to the Heal function in BP_Enemy", "Graph (Heal): add_variable in Scale "},
		{"make Heal return a float Rest in BP_Enemy", "Graph (Heal): add_variable out Rest "},
		{"add an integer input Count to the custom event OnHit of BP_Enemy",
			"Node (OnHit_0) in Graph (EventGraph): add_variable out Count "},
		{"Add a pin Force of type vector to the event OnHit in BP_Enemy", "Node (OnHit_0) in Graph (EventGraph): add_variable out Force "},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_THAT(Operations(Case.Message), ElementsAre(HasSubstr(Case.Operation))) << Case.Message << "\n"
																					  << Answer;
		EXPECT_THAT(Answer, AllOf(HasSubstr("I added the "), HasSubstr("**BP_Enemy** compiles without errors"))) << Case.Message;
	}
	EXPECT_THAT(Operations("add an output Result of type int to the event OnHit in BP_Enemy"), IsEmpty());
	EXPECT_THAT(Answer, HasSubstr("An event gives nothing back"));
	EXPECT_THAT(Operations("Add a float input Power with default 2 to the function Heal of BP_Enemy"),
		ElementsAre(HasSubstr("add_variable in Power"), "Graph (Heal): update in Power \"2\""));
}

TEST_F(MemberEdit, ItMeansTheBlueprintOfTheConversation)
{
	Editor.Ask("What does BP_Enemy do?");
	EXPECT_THAT(Operations("give it a float variable Armor"), ElementsAre(HasSubstr("add_variable member Armor")));
	EXPECT_THAT(Operations("set Armor to 3"), ElementsAre("update member Armor \"3\""));
	EXPECT_THAT(Operations("add a boolean bTired to it"), ElementsAre(HasSubstr("add_variable member bTired")));
	EXPECT_THAT(Operations("make it hidden"), ElementsAre("update  $ClassDefaultObject.bHidden \"True\""));
}

TEST_F(MemberEdit, ItMeansTheMemberOfTheMessageBefore)
{
	Operations("Add a float variable Armor to BP_Enemy");
	EXPECT_THAT(Operations("set it to 5"), ElementsAre("update member Armor \"5\""));
	EXPECT_THAT(Operations("now rename it to Shield"),
		ElementsAre("edit_variable member Armor " + Description("Shield", "real", "Default")));
	EXPECT_THAT(Operations("make this variable editable and put it in the category Stats"),
		ElementsAre(AllOf(HasSubstr("edit_variable member Shield"), HasSubstr("\"instance_editable\":true"),
			HasSubstr("\"category\":\"Stats\""))))
		<< Answer;
	EXPECT_THAT(Operations("make it an integer"), ElementsAre(HasSubstr("edit_variable member Shield"))) << Answer;
	Editor.Ask("Which functions does BP_Enemy have?");
	EXPECT_THAT(Operations("remove it"), IsEmpty()) << "the last message was about no member";
	EXPECT_THAT(Answer, HasSubstr("Which variable, function or event do you mean?"));
	Operations("set Health to 5");
	EXPECT_THAT(Operations("remove it"), ElementsAre("remove_variable member Health"));
}

}

}
