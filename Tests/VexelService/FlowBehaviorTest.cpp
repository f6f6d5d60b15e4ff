#include "BlueprintJson.h"
#include "EditableBlueprint.h"
#include "ScriptedEditor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace VexelService
{

namespace
{

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

/** A crate with a box and a lamp, an event that it can be sent, and a function. */
FJson MakeCrate()
{
	FJson Alarm = MakeNode("Alarm_0", "event.custom", {ExecOut()});
	Alarm["properties"] = {{{"id", "name"}, {"value", "Alarm"}}};
	const FJson Events = MakeGraph("EventGraph", "ubergraph", {MakeNode("EventBeginPlay_0", "event.Actor.ReceiveBeginPlay", {ExecOut()}), Alarm});
	const FJson Break = MakeGraph("Break", "function", {MakeNode("Break_0", "graph.entry", {ExecOut()})});
	FJson Blueprint = MakeBlueprint("/Game/BP_Crate.BP_Crate", {Events, Break},
		{MakeVariable("bLocked", "bool", "False"), MakeVariable("Health", "real", "100.0"), MakeVariable("Count", "int", "0"),
			MakeVariable("Home", "struct.Vector", "(X=0,Y=0,Z=0)"), MakeVariable("Target", "object.Actor", "ref|None")});
	const auto MakeComponent = [](const char* Id, const char* Class) -> FJson
	{ return {{"id", Id}, {"type", Class}, {"value", {{"type", Class}}}, {"category", ""}, {"instanced", true}}; };
	const FJson Components = {MakeComponent("Box", "object.BoxComponent"), MakeComponent("Lamp", "object.PointLightComponent")};
	Blueprint["properties"] = FJson::array({{{"id", "$ClassDefaultObject"}, {"type", "object.BP_Crate"},
		{"value", {{"type", "object.BP_Crate"}, {"properties", Components}}}, {"category", ""}}});
	Blueprint["parent_chain"] = {"Actor", "Object"};
	return Blueprint;
}

class FlowBehavior : public testing::Test
{
protected:
	FlowBehavior()
	{
		Begin();
	}

	/** The crate as it is without any edit. */
	void Begin()
	{
		Crate.emplace(Editor, MakeCrate());
		Crate->Components = {{"Box", "BoxComponent"}, {"Lamp", "PointLightComponent"}};
	}

	std::string Ask(const std::string& Request) { return Editor.Ask("In /Game/BP_Crate, " + Request); }
	std::vector<std::string> Nodes() const { return Crate->ListNodes("EventGraph"); }
	std::vector<std::string> Links() const { return Crate->ListLinks("EventGraph"); }

	FScriptedEditor Editor;
	std::optional<FEditableBlueprint> Crate;
};

TEST_F(FlowBehavior, SentencesBecomeTheNodesAndWiresThatTheyMean)
{
	const struct
	{
		const char* Request;
		std::vector<std::string> Nodes;
		std::vector<std::string> Links;
	} Cases[] = {
		{"after 3 seconds print \"Late\"", {"call.KismetSystemLibrary.Delay(Duration=3)"},
			{"EventBeginPlay.then > Delay.execute", "Delay.then > PrintString.execute"}},
		{"on BeginPlay wait 2 minutes and print \"Late\"", {"call.KismetSystemLibrary.Delay(Duration=120)"}, {}},
		{"every 2 minutes print \"Tick\"", {"call.KismetSystemLibrary.K2_SetTimerDelegate(Time=120,bLooping=true)"}, {}},
		{"every second print \"Tick\"", {"call.KismetSystemLibrary.K2_SetTimerDelegate(Time=1,bLooping=true)"}, {}},
		{"when Alarm is called print \"Loud\"", {}, {"Alarm.then > PrintString.execute"}},
		{"when the custom event Siren is called print \"Loud\"", {}, {"custom.then > PrintString.execute"}},
		{"on BeginPlay repeat 3 times: print \"Again\"", {"macro.ForLoop(FirstIndex=1,LastIndex=3)"},
			{"EventBeginPlay.then > ForLoop.execute", "ForLoop.LoopBody > PrintString.execute"}},
		{"when E is pressed alternate between print \"A\" and print \"B\"", {},
			{"E.Pressed > FlipFlop.None", "FlipFlop.A > PrintString.execute", "FlipFlop.B > PrintString.execute"}},
		{"on overlap do once: print \"First\"", {}, {"ReceiveActorBeginOverlap.then > DoOnce.execute", "DoOnce.Completed > PrintString.execute"}},
		{"on hit toggle bLocked", {}, {"bLocked.bLocked > Not_PreBool.A", "Not_PreBool.ReturnValue > bLocked.bLocked"}},
		{"on hit double Health", {}, {"Health.Health > Multiply.A", "Multiply.ReturnValue > Health.Health"}},
		{"on tick if Health is 0 or less and bLocked print \"Over\"", {},
			{"LessEqual.ReturnValue > BooleanAND.A", "bLocked.bLocked > BooleanAND.B", "BooleanAND.ReturnValue > if.Condition"}},
		{"on tick if not bLocked print \"Free\"", {}, {"bLocked.bLocked > Not_PreBool.A", "Not_PreBool.ReturnValue > if.Condition"}},
		{"on tick if bLocked is false print \"Free\"", {}, {"if.then > PrintString.execute"}},
		{"on BeginPlay print \"Health: \" + Health", {},
			{"Health.Health > Concat_StrStr.B", "Concat_StrStr.ReturnValue > PrintString.InString"}},
		{"on BeginPlay set Health to Health * 2 + 5", {}, {"Multiply.ReturnValue > Add.A", "Add.ReturnValue > Health.Health"}},
		{"on overlap apply 10 damage to the other actor", {"call.GameplayStatics.ApplyDamage(BaseDamage=10)"},
			{"ReceiveActorBeginOverlap.OtherActor > ApplyDamage.DamagedActor"}},
		{"on overlap move it to Home", {}, {"Home.Home > K2_SetActorLocation.NewLocation"}},
		{"on overlap move it to (1, 2, 3)", {"call.Actor.K2_SetActorLocation(NewLocation=1, 2, 3)"}, {}},
		{"on overlap move the actor up by 100", {"call.Actor.K2_AddActorWorldOffset(DeltaLocation=0, 0, 100)"}, {}},
		{"on overlap move the actor forward by 50", {"call.Actor.K2_AddActorLocalOffset(DeltaLocation=50, 0, 0)"}, {}},
		{"on hit set its rotation to (0, 90, 0)", {"call.Actor.K2_SetActorRotation(NewRotation=0, 90, 0)"}, {}},
		{"on tick rotate the lamp by 5 degrees", {"call.SceneComponent.K2_AddLocalRotation(DeltaRotation=0, 5, 0)"},
			{"Lamp.Lamp > K2_AddLocalRotation.self"}},
		{"on hit turn off the light", {"call.SceneComponent.SetVisibility(bNewVisibility=false,bPropagateToChildren=true)"},
			{"Lamp.Lamp > SetVisibility.self"}},
		{"on BeginPlay call Break every 3 seconds", {"call.KismetSystemLibrary.K2_SetTimer(FunctionName=Break,Time=3,bLooping=true)"}, {}},
		{"on hit stop the timer Alarm", {"call.KismetSystemLibrary.K2_ClearTimer(FunctionName=Alarm)"}, {}},
		{"on hit restart the level", {"call.KismetSystemLibrary.ExecuteConsoleCommand(Command=RestartLevel)"}, {"ReceiveHit.then > ExecuteConsoleCommand.execute"}},
		{"when something overlaps the box print \"In\"", {}, {}},
		{"on hit open it", {"call.Actor.K2_AddActorLocalRotation(DeltaRotation=0, 90, 0)"}, {}},
	};
	for (const auto& Case : Cases)
	{
		Begin();
		const std::string Answer = Ask(Case.Request);
		EXPECT_THAT(Answer, HasSubstr("Done in **BP_Crate**")) << Case.Request;
		EXPECT_THAT(Nodes(), IsSupersetOf(Case.Nodes)) << Case.Request << "\n"
													   << Answer;
		EXPECT_THAT(Links(), IsSupersetOf(Case.Links)) << Case.Request << "\n"
													   << Answer;
	}
}

TEST_F(FlowBehavior, WhatASentenceLeavesOpenIsAskedAndNothingIsMade)
{
	const std::vector<std::string> Before = Nodes();
	const std::pair<const char*, const char*> Cases[] = {
		{"when the blorp key is pressed print \"A\"", "blorp"},
		{"when Explosion is called print \"A\"", "has no custom event or function called \"Explosion\""},
		{"on hit stop the timer Nothing", "has no function or custom event called \"Nothing\" for a timer to call"},
		{"on hit toggle Mana", "Mana"},
		{"on overlap play sound S_Boom", "The project has no sound called"},
	};
	for (const auto& [Request, Told] : Cases)
	{
		const std::string Answer = Ask(Request);
		EXPECT_THAT(Answer, AllOf(HasSubstr(Told), HasSubstr("changed nothing"))) << Request;
		EXPECT_EQ(Nodes(), Before) << Request;
	}
}

TEST_F(FlowBehavior, OfSeveralLightsTheUserNamesOne)
{
	FJson Json = MakeCrate();
	FJson Torch = Json["properties"][0]["value"]["properties"][1];
	Torch["id"] = "Torch";
	Json["properties"][0]["value"]["properties"].push_back(Torch);
	Crate.emplace(Editor, Json);
	Crate->Components = {{"Lamp", "PointLightComponent"}, {"Torch", "PointLightComponent"}};
	EXPECT_THAT(Ask("when L is pressed toggle the light"), AllOf(HasSubstr("**Lamp** and **Torch**"), HasSubstr("changed nothing")));
	EXPECT_THAT(Ask("when L is pressed toggle the torch"), HasSubstr("Done in **BP_Crate**"));
	EXPECT_THAT(Links(), Contains("Torch.Torch > ToggleVisibility.self"));
}

TEST_F(FlowBehavior, NoNodeIsTriedForAComponentThatTheExportHas)
{
	int NumRefused = 0;
	Crate->Refuse = [&NumRefused](const std::string& Tool, const FJson& Item) -> std::optional<std::string>
	{
		const std::string Type = Item.value("node_type", "");
		const bool bUnknown = Tool == "node_spawn" && Type.starts_with("var.get.") && Type != "var.get.Lamp" && Type != "var.get.Box";
		NumRefused += bUnknown;
		return bUnknown ? std::optional<std::string>("Node type is not valid") : std::nullopt;
	};
	for (const char* const Said : {"light", "lamp", "point light", "box", "trigger"})
	{
		EXPECT_THAT(Ask(std::string("when L is pressed toggle the ") + Said), HasSubstr("Done in **BP_Crate**")) << Said;
	}
	EXPECT_EQ(NumRefused, 0);
	EXPECT_THAT(Ask("when L is pressed toggle the chandelier"), HasSubstr("no component and no variable called \"chandelier\""));
	EXPECT_EQ(NumRefused, 0) << "the export shows that there is none";
}

TEST_F(FlowBehavior, WiresAreNamedByPinsAndRefusalsAreTold)
{
	Ask("on BeginPlay print \"A\"");
	Ask("on hit print \"B\"");
	EXPECT_THAT(Ask("connect EventBeginPlay_0.then to Teapot_0.execute"), HasSubstr("Teapot_0"));
	EXPECT_THAT(Ask("disconnect Alarm_0 from PrintString_100"), HasSubstr("There is no wire"));
	EXPECT_THAT(Ask("remove the node Print String"), HasSubstr("in EventGraph")) << "there are two";
	Crate->Refuse = [](const std::string& Tool, const FJson&) -> std::optional<std::string>
	{ return Tool == "node_link" ? std::optional<std::string>("Connection not allowed: no") : std::nullopt; };
	EXPECT_THAT(Ask("connect Alarm_0.then to PrintString_100.execute"), AllOf(HasSubstr("The editor refused"), HasSubstr("Connection not allowed")));
}

}

}
