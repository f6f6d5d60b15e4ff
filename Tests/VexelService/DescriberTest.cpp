#include "Assistant/BlueprintDescriber.h"

#include "BlueprintJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

namespace VexelService
{

namespace
{

using testing::HasSubstr;
using testing::Not;

std::string Overview(const FJson& Export)
{
	const std::optional<FBlueprintModel> Model = ReadBlueprintModel(Export);
	return Model ? FBlueprintDescriber(*Model).Overview() : "(no model)";
}

std::string OverviewOf(FJson Graph, std::vector<FJson> Variables = {})
{
	return Overview(MakeBlueprint("/Game/BP_Door.BP_Door", {std::move(Graph)}, std::move(Variables)));
}

FJson BeginPlay()
{
	return MakeNode("EventBeginPlay_0", "event.Actor.ReceiveBeginPlay", {ExecOut()});
}

FJson Print(const std::string& Id, const std::string& Text)
{
	return MakeNode(Id, "call.KismetSystemLibrary.PrintString", {ExecIn(), DataIn("InString", "string", Text), ExecOut()});
}

TEST(Describer, ABranchIsToldWithItsConditionAndBothWays)
{
	const std::string Text = Overview(MakeDoor());
	EXPECT_THAT(Text, HasSubstr("**BP_Door** is a Blueprint with the parent class Actor."));
	EXPECT_THAT(
		Text, HasSubstr("**When play begins**:\n\n- If Health is less than or equal to 0, destroys itself; otherwise prints \"Hello\"\n"));
	EXPECT_THAT(Text, HasSubstr("- **Health**: number, 100 by default\n"));
}

TEST(Describer, ComponentsAreListedWithWhatIsChangedOfThem)
{
	FJson Export = MakeBlueprint("/Game/BP_Walker.BP_Walker", {}, {});
	const auto List = [&Export]
	{
		const std::optional<FBlueprintModel> Model = ReadBlueprintModel(Export);
		return Model ? FBlueprintDescriber(*Model).Components() : "(no model)";
	};
	EXPECT_EQ(List(), "**BP_Walker** has no components.\n");
	const FJson Mesh = {{"type", "object.SkeletalMeshComponent"},
		{"properties", {{{"id", "bOwnerNoSee"}, {"type", "bool"}, {"value", "True"}}, {{"id", "OverlayMaterial"}, {"type", "object.Material"}}}}};
	Export["properties"] = {{{"id", "$ClassDefaultObject"}, {"type", "object.BP_Walker"},
		{"value",
			{{"type", "object.BP_Walker"},
				{"properties",
					{{{"id", "Mesh"}, {"type", "object.SkeletalMeshComponent"}, {"value", Mesh}},
						{{"id", "InitialLifeSpan"}, {"type", "real"}, {"value", "5.0"}},
						{{"id", "CapsuleComponent"}, {"type", "object.CapsuleComponent"},
							{"value", {{"type", "object.CapsuleComponent"}}}}}}}}}};
	EXPECT_EQ(List(),
		"**BP_Walker** has 2 components:\n\n- **Mesh**: SkeletalMeshComponent, with bOwnerNoSee = true and OverlayMaterial\n"
		"- **CapsuleComponent**: CapsuleComponent\n");
}

TEST(Describer, WhatATimerRunsIsToldByItsName)
{
	const FJson Timer = MakeNode("Timer_0", "call.KismetSystemLibrary.K2_SetTimerDelegate",
		{ExecIn(), DataIn("Delegate", "delegate"), DataIn("Time", "real", "5.0"), DataIn("bLooping", "bool", "true"), ExecOut()});
	FJson Event = MakeNode("CustomEvent_0", "event.custom", {DataOut("OutputDelegate", "delegate"), ExecOut()});
	Event["properties"] = {{{"id", "name"}, {"value", "SpawnEnemy"}}};
	FJson Graph = MakeGraph("EventGraph", "ubergraph", {BeginPlay(), Timer, Event});
	Link(Graph, "EventBeginPlay_0.then", "Timer_0.execute");
	FJson OfFunction = Graph;
	Link(Graph, "CustomEvent_0.OutputDelegate", "Timer_0.Delegate");
	EXPECT_THAT(OverviewOf(Graph), HasSubstr("- Starts a timer that runs the event SpawnEnemy every 5 seconds\n"));
	OfFunction["nodes"].push_back(MakeNode("CreateEvent_0", "delegate.create.SpawnAll", {DataOut("OutputDelegate", "delegate")}));
	Link(OfFunction, "CreateEvent_0.OutputDelegate", "Timer_0.Delegate");
	EXPECT_THAT(OverviewOf(OfFunction), HasSubstr("- Starts a timer that runs the function SpawnAll every 5 seconds\n"));
}

TEST(Describer, AChangedGraphChangesTheAnswer)
{
	FJson Door = MakeDoor();
	FJson& Graph = Door["graphs"][0];
	Graph["nodes"][3]["node_type"] = "call.KismetMathLibrary.Greater_DoubleDouble";
	Graph["nodes"][5]["pins"][1]["value"] = "Bye";
	EXPECT_THAT(Overview(Door), HasSubstr("- If Health is greater than 0, destroys itself; otherwise prints \"Bye\"\n"));
}

TEST(Describer, WaysThatMeetAgainGoOnTogether)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph", {
														   BeginPlay(),
														   MakeNode("Branch_0", "flow.if", {ExecIn(), DataIn("Condition", "bool"), ExecOut("then"), ExecOut("else")}),
														   MakeNode("GetbOpen_0", "var.get.bOpen", {DataOut("bOpen", "bool")}),
														   Print("PrintString_0", "Open"),
														   Print("PrintString_1", "Closed"),
														   Print("PrintString_2", "Done"),
													   });
	Link(Graph, "EventBeginPlay_0.then", "Branch_0.execute");
	Link(Graph, "GetbOpen_0.bOpen", "Branch_0.Condition");
	Link(Graph, "Branch_0.then", "PrintString_0.execute");
	Link(Graph, "Branch_0.else", "PrintString_1.execute");
	Link(Graph, "PrintString_0.then", "PrintString_2.execute");
	Link(Graph, "PrintString_1.then", "PrintString_2.execute");
	EXPECT_THAT(OverviewOf(Graph), HasSubstr("- If bOpen is true, prints \"Open\"; otherwise prints \"Closed\"\n- Prints \"Done\"\n"));
}

TEST(Describer, ALoopTellsItsBodyAndWhatFollows)
{
	FJson Graph = MakeGraph("EventGraph", "GT_Ubergraph",
		{
			BeginPlay(),
			MakeNode("ForEachLoop_0", "macro.ForEachLoop",
				{ExecIn("Exec"), DataIn("Array", "array|object.Actor"), ExecOut("LoopBody"), DataOut("Array Element", "object.Actor"),
					DataOut("Array Index", "int"), ExecOut("Completed")}),
			MakeNode("GetDoors_0", "var.get.Doors", {DataOut("Doors", "array|object.Actor")}),
			MakeNode("DestroyActor_0", "call.Actor.K2_DestroyActor", {ExecIn(), DataIn("self", "object.Actor"), ExecOut()}),
			Print("PrintString_0", "Done"),
		});
	Link(Graph, "EventBeginPlay_0.then", "ForEachLoop_0.Exec");
	Link(Graph, "GetDoors_0.Doors", "ForEachLoop_0.Array");
	Link(Graph, "ForEachLoop_0.LoopBody", "DestroyActor_0.execute");
	Link(Graph, "ForEachLoop_0.Array Element", "DestroyActor_0.self");
	Link(Graph, "ForEachLoop_0.Completed", "PrintString_0.execute");
	EXPECT_THAT(OverviewOf(Graph), HasSubstr("- For each element of Doors, destroys the current element\n- Prints \"Done\"\n"));
}

TEST(Describer, AWireThatLeadsBackIsToldOnce)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph", {
														   BeginPlay(),
														   Print("PrintString_0", "Tick"),
														   MakeNode("Delay_0", "call.KismetSystemLibrary.Delay", {ExecIn(), DataIn("Duration", "real", "0.500000"), ExecOut()}),
														   MakeNode("Knot_0", "graph.knot", {DataIn("InputPin", "exec"), DataOut("OutputPin", "exec")}),
													   });
	Link(Graph, "EventBeginPlay_0.then", "PrintString_0.execute");
	Link(Graph, "PrintString_0.then", "Delay_0.execute");
	Link(Graph, "Delay_0.then", "Knot_0.InputPin");
	Link(Graph, "Knot_0.OutputPin", "PrintString_0.execute");
	EXPECT_THAT(OverviewOf(Graph),
		HasSubstr("- Prints \"Tick\"\n- Waits 0.5 seconds\n- Goes back to the step \"prints \"Tick\"\" and repeats from there\n"));
}

TEST(Describer, DanglingWiresAndUnknownNodesAreSaidSo)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph",
		{BeginPlay(), MakeNode("Strange_0", "quantum.flip", {ExecIn(), DataIn("Speed", "real", "3.0"), ExecOut()}),
			Print("PrintString_0", "Never")});
	Link(Graph, "EventBeginPlay_0.then", "Strange_0.execute");
	Graph["nodes"][1]["pins"][2]["connections"].push_back({{"node", "Gone_0"}, {"pin", "execute"}});
	Graph["nodes"][1]["pins"][1]["connections"].push_back({{"node", "Gone_1"}, {"pin", "Out"}});
	const std::string Text = OverviewOf(Graph);
	EXPECT_THAT(Text,
		HasSubstr(
			"- Runs the node \"Strange\" (of the kind `quantum.flip`, which I cannot put into words) with Speed = a value from a node that the export does not show\n"));
	EXPECT_THAT(Text, HasSubstr("- Goes on at a node that the export does not show\n"));
	EXPECT_THAT(Text, HasSubstr("1 node is connected to no execution wire and never runs. It would do this:\n\n- Prints \"Never\"\n"));
}

TEST(Describer, ASwitchFoldsCasesThatDoTheSame)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph",
		{
			BeginPlay(),
			MakeNode("SwitchonName_0", "switch.name",
				{ExecIn(), DataIn("Selection", "name", "Red"), ExecOut("Red"), ExecOut("Blue"), ExecOut("Default")}),
			Print("PrintString_0", "Color"),
			Print("PrintString_1", "Color"),
			Print("PrintString_2", "None"),
		});
	Link(Graph, "EventBeginPlay_0.then", "SwitchonName_0.execute");
	Link(Graph, "SwitchonName_0.Red", "PrintString_0.execute");
	Link(Graph, "SwitchonName_0.Blue", "PrintString_1.execute");
	Link(Graph, "SwitchonName_0.Default", "PrintString_2.execute");
	EXPECT_THAT(OverviewOf(Graph), HasSubstr("- If \"Red\" is Red, or if \"Red\" is Blue, prints \"Color\"; otherwise prints \"None\"\n"));
}

TEST(Describer, AFunctionTellsItsParametersAndWhatItReturns)
{
	FJson Graph = MakeGraph("Heal", "function", {
													MakeNode("Heal_0", "graph.entry", {ExecOut(), DataOut("Amount", "real")}),
													MakeNode("GetHealth_0", "var.get.Health", {DataOut("Health", "real")}),
													MakeNode("Add_0", "call.op.Add", {DataIn("A", "real"), DataIn("B", "real"), DataOut("ReturnValue", "real")}),
													MakeNode("SetHealth_0", "var.set.Health", {ExecIn(), DataIn("Health", "real"), ExecOut(), DataOut("Output_Get", "real")}),
													MakeNode("ReturnNode_0", "graph.return", {ExecIn(), DataIn("NewHealth", "real")}),
												});
	Graph["variables"] = {MakeVariable("Amount", "real", "", "in"), MakeVariable("NewHealth", "real", "", "out")};
	Link(Graph, "Heal_0.then", "SetHealth_0.execute");
	Link(Graph, "Heal_0.Amount", "Add_0.B");
	Link(Graph, "GetHealth_0.Health", "Add_0.A");
	Link(Graph, "Add_0.ReturnValue", "SetHealth_0.Health");
	Link(Graph, "SetHealth_0.then", "ReturnNode_0.execute");
	Link(Graph, "SetHealth_0.Output_Get", "ReturnNode_0.NewHealth");
	const std::optional<FBlueprintModel> Model =
		ReadBlueprintModel(MakeBlueprint("/Game/BP_Door.BP_Door", {Graph}, {MakeVariable("Health", "real", "5.0")}));
	const FBlueprintDescriber Describer(*Model);
	EXPECT_THAT(Describer.Function("heal"),
		HasSubstr(
			"**Function Heal** takes Amount (number) and gives back NewHealth (number):\n\n- Sets Health to Health + Amount\n- Returns NewHealth = Health\n"));
	EXPECT_THAT(Describer.VariableUse("Health"),
		HasSubstr("**Health** is set in 1 step of **BP_Door**:\n\n- In Heal, set by the step \"sets Health to Health + Amount\"\n"));
	EXPECT_THAT(Describer.VariableUse("Armor"), HasSubstr("**BP_Door** has no variable \"Armor\""));
}

TEST(Describer, EventsAreFoundByTheWordsOfPeople)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph",
		{
			BeginPlay(),
			MakeNode(
				"EventActorBeginOverlap_0", "event.Actor.ReceiveActorBeginOverlap", {ExecOut(), DataOut("OtherActor", "object.Actor")}),
			MakeNode("CasttoBP_Player_0", "cast.BP_Player",
				{ExecIn(), DataIn("Object", "object.Object"), ExecOut("then"), ExecOut("CastFailed"),
					DataOut("AsBP Player", "object.BP_Player")}),
			MakeNode(
				"Kill_0", "call.BP_Player.Kill", {ExecIn(), DataIn("self", "object.BP_Player"), DataIn("Delay", "real", "2.0"), ExecOut()}),
			MakeNode("F_0", "input.key.F", {ExecOut("Pressed"), ExecOut("Released"), DataOut("Key", "struct.Key")}),
			Print("PrintString_0", "F"),
		});
	Link(Graph, "EventActorBeginOverlap_0.then", "CasttoBP_Player_0.execute");
	Link(Graph, "EventActorBeginOverlap_0.OtherActor", "CasttoBP_Player_0.Object");
	Link(Graph, "CasttoBP_Player_0.then", "Kill_0.execute");
	Link(Graph, "CasttoBP_Player_0.AsBP Player", "Kill_0.self");
	Link(Graph, "F_0.Released", "PrintString_0.execute");
	const std::optional<FBlueprintModel> Model = ReadBlueprintModel(MakeBlueprint("/Game/BP_Trap.BP_Trap", {Graph}));
	const FBlueprintDescriber Describer(*Model);
	const std::string Overlap = Describer.WhenEvent("the player overlaps it");
	EXPECT_THAT(Overlap,
		HasSubstr(
			"**When another actor begins to overlap it**:\n\n- Goes on only if the other actor is a BP_Player\n- Calls Kill on the other actor (as BP_Player) with Delay = 2\n"));
	EXPECT_THAT(Overlap, Not(HasSubstr("key F")));
	EXPECT_THAT(Describer.WhenEvent("F is released"), HasSubstr("**When the key F is released**:\n\n- Prints \"F\"\n"));
	EXPECT_THAT(Describer.WhenEvent("the game starts"), HasSubstr("**When play begins**: nothing happens, since nothing is connected to it."));
	EXPECT_THAT(Describer.WhenEvent("pigs fly"), HasSubstr("I find no event"));
}

TEST(Describer, TheWordsOfAQuestionChooseTheEntry)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph", {
														   BeginPlay(),
														   MakeNode("Begin_0", "event.Actor.ReceiveActorBeginOverlap", {ExecOut()}),
														   MakeNode("End_0", "event.Actor.ReceiveActorEndOverlap", {ExecOut()}),
														   MakeNode("Damage_0", "event.Actor.ReceiveAnyDamage", {ExecOut()}),
														   MakeNode("Tick_0", "event.Actor.ReceiveTick", {ExecOut()}),
														   MakeNode("E_0", "input.key.E", {ExecOut("Pressed"), ExecOut("Released")}),
														   Print("PrintString_0", "x"),
													   });
	for (const char* const Start : {"EventBeginPlay_0.then", "Begin_0.then", "End_0.then", "Damage_0.then", "Tick_0.then", "E_0.Pressed"})
	{
		Link(Graph, Start, "PrintString_0.execute");
	}
	FJson Die = MakeGraph("Die", "function", {MakeNode("Die_0", "graph.entry", {ExecOut()}), Print("PrintString_0", "dead")});
	Link(Die, "Die_0.then", "PrintString_0.execute");
	const std::optional<FBlueprintModel> Model = ReadBlueprintModel(MakeBlueprint("/Game/BP_Enemy.BP_Enemy", {Graph, Die}));
	const struct
	{
		const char* Words;
		const char* Heading;
	} Cases[] = {
		{"takes damage", "**When it takes damage**"},
		{"is hit", "**When it takes damage**"},
		{"player touches", "**When another actor begins to overlap it**"},
		{"something overlaps it", "**When another actor begins to overlap it**"},
		{"player stops overlapping", "**When another actor stops overlapping it**"},
		{"the player leaves", "**When another actor stops overlapping it**"},
		{"the game starts", "**When play begins**"},
		{"every frame", "**Every frame**"},
		{"E is pressed", "**When the key E is pressed**"},
		{"it dies", "**Function Die**"},
	};
	for (const auto& Case : Cases)
	{
		const std::string Answer = FBlueprintDescriber(*Model).WhenEvent(Case.Words);
		EXPECT_THAT(Answer, testing::StartsWith(std::string("In **BP_Enemy**:\n\n") + Case.Heading)) << Case.Words;
		EXPECT_EQ(Answer.find("\n**"), Answer.rfind("\n**")) << "only one entry fits \"" << Case.Words << "\":\n"
															 << Answer;
	}
}

TEST(Describer, GeneratedClassesAreCalledByTheirBlueprints)
{
	for (const char* const Class : {"BP_Player_C", "SKEL_BP_Player_C", "BP_Player"})
	{
		FJson Graph = MakeGraph("EventGraph", "ubergraph",
			{BeginPlay(), MakeNode("Cast_0", std::string("cast.") + Class, {ExecIn(), DataIn("Object", "object.Object"), ExecOut()})});
		Link(Graph, "EventBeginPlay_0.then", "Cast_0.execute");
		EXPECT_THAT(OverviewOf(Graph, {MakeVariable("Owner", std::string("object.") + Class, "")}),
			testing::AllOf(HasSubstr("is a BP_Player\n"), HasSubstr("BP_Player reference"), Not(HasSubstr("_C"))))
			<< Class;
	}
}

TEST(Describer, NodesThatNothingRunsOrReadsAreToldAsSuch)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph", {
														   Print("PrintString_0", "First"),
														   Print("PrintString_1", "Second"),
														   MakeNode("MultiGate_0", "flow.multigate", {ExecIn(), ExecOut("Out 0")}),
														   MakeNode("Add_0", "call.op.Add", {DataIn("A", "int", "2"), DataIn("B", "int", "3"), DataOut("ReturnValue", "int")}),
													   });
	Link(Graph, "PrintString_0.then", "PrintString_1.execute");
	const std::string Text = OverviewOf(Graph);
	EXPECT_THAT(Text, HasSubstr("In EventGraph, 2 nodes are connected to no execution wire and never run. They would do this:\n\n"
								"- Chain 1, from \"Print String\":\n  - Prints \"First\"\n  - Prints \"Second\"\n"
								"- Chain 2, from \"Multi Gate\", runs the node \"Multi Gate\", behind which nothing is connected\n"));
	EXPECT_THAT(Text, HasSubstr("In EventGraph, 1 node gives a value that nothing uses: \"Add\" (2 + 3).\n"));
}

TEST(Describer, ConditionsReadAsClauses)
{
	const struct
	{
		const char* NodeType;
		const char* Step;
	} Cases[] = {
		{"call.KismetMathLibrary.Less_DoubleDouble", "- If A1 is less than B1, prints \"x\"\n"},
		{"call.KismetMathLibrary.BooleanAND", "- If A1 is true and B1 is true, prints \"x\"\n"},
		{"call.KismetMathLibrary.Not_PreBool", "- If A1 is false, prints \"x\"\n"},
		{"call.op.NotEqual", "- If A1 is not equal to B1, prints \"x\"\n"},
		{"call.KismetSystemLibrary.IsQuestioned", "- If the result of Is Questioned (A = A1, B = B1) is true, prints \"x\"\n"},
	};
	for (const auto& Case : Cases)
	{
		FJson Graph = MakeGraph("EventGraph", "ubergraph", {
															   BeginPlay(),
															   MakeNode("Branch_0", "flow.if", {ExecIn(), DataIn("Condition", "bool"), ExecOut("then"), ExecOut("else")}),
															   MakeNode("A_0", "var.get.A1", {DataOut("A1", "bool")}),
															   MakeNode("B_0", "var.get.B1", {DataOut("B1", "bool")}),
															   MakeNode("Op_0", Case.NodeType, {DataIn("A", "bool"), DataIn("B", "bool"), DataOut("ReturnValue", "bool")}),
															   Print("PrintString_0", "x"),
														   });
		Link(Graph, "EventBeginPlay_0.then", "Branch_0.execute");
		Link(Graph, "A_0.A1", "Op_0.A");
		Link(Graph, "B_0.B1", "Op_0.B");
		Link(Graph, "Op_0.ReturnValue", "Branch_0.Condition");
		Link(Graph, "Branch_0.then", "PrintString_0.execute");
		EXPECT_THAT(OverviewOf(Graph), HasSubstr(Case.Step));
	}
}

TEST(Describer, TimelinesSpawnsAndSequencesReadAsALayeredList)
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph",
		{
			MakeNode("Open_0", "event.custom", {ExecOut(), DataOut("Speed", "real")}),
			MakeNode("Sequence_0", "flow.sequence", {ExecIn(), ExecOut("then_0"), ExecOut("then_1")}),
			MakeNode("Swing_0", "timeline.Swing",
				{ExecIn("Play"), ExecIn("Reverse"), ExecOut("Update"), ExecOut("Finished"), DataOut("Angle", "real")}),
			MakeNode("SetRelativeRotation_0", "call.SceneComponent.K2_SetRelativeRotation",
				{ExecIn(), DataIn("self", "object.SceneComponent"), DataIn("NewRotation", "struct.Rotator"), ExecOut()}),
			MakeNode("GetHinge_0", "var.get.Hinge", {DataOut("Hinge", "object.SceneComponent")}),
			MakeNode("MakeRotator_0", "call.KismetMathLibrary.MakeRotator",
				{DataIn("Roll", "real", "0.0"), DataIn("Pitch", "real", "0.0"), DataIn("Yaw", "real"),
					DataOut("ReturnValue", "struct.Rotator")}),
			MakeNode("SpawnActor_0", "call.spawn_actor.PointLight",
				{ExecIn(), DataIn("Class", "class.Actor", "ref|/Script/Engine.PointLight"), DataIn("SpawnTransform", "struct.Transform"),
					ExecOut(), DataOut("ReturnValue", "object.PointLight")}),
			MakeNode("SetLight_0", "var.set.Light",
				{ExecIn(), DataIn("Light", "object.PointLight"), ExecOut(), DataOut("Output_Get", "object.PointLight")}),
			MakeNode("SetActorHiddenInGame_0", "call.Actor.SetActorHiddenInGame",
				{ExecIn(), DataIn("self", "object.Actor"), DataIn("bNewHidden", "bool", "true"), ExecOut()}),
		});
	Graph["nodes"][0]["properties"] = {{{"id", "name"}, {"type", "name"}, {"value", "OpenDoor"}}};
	Link(Graph, "Open_0.then", "Sequence_0.execute");
	Link(Graph, "Sequence_0.then_0", "SpawnActor_0.execute");
	Link(Graph, "SpawnActor_0.then", "SetLight_0.execute");
	Link(Graph, "SpawnActor_0.ReturnValue", "SetLight_0.Light");
	Link(Graph, "SetLight_0.then", "SetActorHiddenInGame_0.execute");
	Link(Graph, "Sequence_0.then_1", "Swing_0.Play");
	Link(Graph, "Swing_0.Update", "SetRelativeRotation_0.execute");
	Link(Graph, "GetHinge_0.Hinge", "SetRelativeRotation_0.self");
	Link(Graph, "Swing_0.Angle", "MakeRotator_0.Yaw");
	Link(Graph, "MakeRotator_0.ReturnValue", "SetRelativeRotation_0.NewRotation");
	EXPECT_THAT(OverviewOf(Graph),
		HasSubstr(
			"**The custom event OpenDoor**:\n\n"
			"- Spawns a PointLight\n"
			"- Sets Light to the new PointLight\n"
			"- Hides itself in the game\n"
			"- Plays the timeline Swing; while it plays, rotates Hinge to (Roll 0, Pitch 0, Yaw the value Angle of the timeline Swing) relative to its parent\n"));
}

TEST(Describer, SharedPureNodesDoNotExplode)
{
	std::vector<FJson> Nodes = {BeginPlay(), MakeNode("SetX_0", "var.set.X", {ExecIn(), DataIn("X", "real"), ExecOut()})};
	for (int Index = 0; Index < 64; ++Index)
	{
		Nodes.push_back(MakeNode(
			"Add_" + std::to_string(Index), "call.op.Add", {DataIn("A", "real"), DataIn("B", "real"), DataOut("ReturnValue", "real")}));
	}
	FJson Graph = MakeGraph("EventGraph", "ubergraph", Nodes);
	Link(Graph, "EventBeginPlay_0.then", "SetX_0.execute");
	Link(Graph, "Add_0.ReturnValue", "SetX_0.X");
	for (int Index = 0; Index + 1 < 64; ++Index)
	{
		for (const char* const Input : {".A", ".B"})
		{
			Link(Graph, "Add_" + std::to_string(Index + 1) + ".ReturnValue", "Add_" + std::to_string(Index) + Input);
		}
	}
	Link(Graph, "Add_0.ReturnValue", "Add_63.A");
	const auto Start = std::chrono::steady_clock::now();
	EXPECT_THAT(OverviewOf(Graph), HasSubstr("- Sets X to "));
	EXPECT_LT(std::chrono::steady_clock::now() - Start, std::chrono::seconds(5));
}

TEST(Describer, DeepBranchesEndInsteadOfOverflowing)
{
	std::vector<FJson> Nodes = {BeginPlay()};
	for (int Index = 0; Index < 2000; ++Index)
	{
		Nodes.push_back(MakeNode("Branch_" + std::to_string(Index), "flow.if",
			{ExecIn(), DataIn("Condition", "bool", "true"), ExecOut("then"), ExecOut("else")}));
		Nodes.back()["pins"][2]["connections"].push_back({{"node", "Branch_" + std::to_string(Index + 1)}, {"pin", "execute"}});
	}
	FJson Graph = MakeGraph("EventGraph", "ubergraph", Nodes);
	Link(Graph, "EventBeginPlay_0.then", "Branch_0.execute");
	EXPECT_THAT(OverviewOf(Graph), HasSubstr("too many to tell here"));
}

TEST(Describer, AVeryLongListIsCutAndSaysSo)
{
	std::vector<FJson> Nodes = {BeginPlay()};
	for (int Index = 0; Index < 200; ++Index)
	{
		Nodes.push_back(Print("PrintString_" + std::to_string(Index), "Line " + std::to_string(Index)));
	}
	FJson Graph = MakeGraph("EventGraph", "ubergraph", Nodes);
	Link(Graph, "EventBeginPlay_0.then", "PrintString_0.execute");
	for (int Index = 0; Index + 1 < 200; ++Index)
	{
		Link(Graph, "PrintString_" + std::to_string(Index) + ".then", "PrintString_" + std::to_string(Index + 1) + ".execute");
	}
	EXPECT_THAT(OverviewOf(Graph), HasSubstr("- Prints \"Line 119\"\n- … and 80 further lines that I leave out for their number\n"));
}

TEST(Describer, AnyJsonShapeIsSurvived)
{
	for (const char* const Text :
		{
			R"({"id":7,"graphs":{"nodes":1}})",
			R"({"graphs":[null,1,"x",[],{"nodes":[null,{"pins":[null,{"connections":[null,{"node":3}]}]}]}]})",
			R"({"id":"/Game/X","parent_chain":"Actor","graphs":[{"graph_type":"function","nodes":[{"node_type":"graph.entry","pins":[{"dir":"output","type":"exec","connections":[{}]}]}]}]})",
			R"({"variables":[{"value":{"properties":[{"value":{"properties":7}}]}},{"type":"map|"},{"type":"array|array|"},5]})",
			R"({"graphs":[{"nodes":[{"id":"a","node_type":"event","pins":[{"id":"","dir":"output","type":"exec","connections":[{"node":"b","pin":""}]}]},{"id":"b","node_type":"call","pins":[]},{"id":"c","node_type":"call.op.Add","pins":[{"dir":"output"}]}]}]})",
		})
	{
		const std::optional<FJson> Export = ParseJson(Text);
		ASSERT_TRUE(Export) << Text;
		EXPECT_THAT(Overview(*Export), HasSubstr("**")) << Text;
	}
}

}

}
