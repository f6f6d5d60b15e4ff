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
using testing::Not;
using testing::UnorderedElementsAre;

/** A gate whose BeginPlay prints, and that can open and close itself. */
FJson MakeGate()
{
	FJson Events = MakeGraph("EventGraph", "ubergraph",
		{MakeNode("EventBeginPlay_0", "event.Actor.ReceiveBeginPlay", {ExecOut()}),
			MakeNode(
				"PrintString_0", "call.KismetSystemLibrary.PrintString", {ExecIn(), ExecOut(), DataIn("InString", "string", "Hello")})});
	Link(Events, "EventBeginPlay_0.then", "PrintString_0.execute");
	const FJson Open = MakeGraph("OpenGate", "function", {MakeNode("OpenGate_0", "graph.entry", {ExecOut()})});
	const FJson Close = MakeGraph("CloseGate", "function", {MakeNode("CloseGate_0", "graph.entry", {ExecOut()})});
	FJson Blueprint = MakeBlueprint("/Game/BP_Gate.BP_Gate", {Events, Open, Close}, {MakeVariable("bLocked", "bool", "False")});
	Blueprint["parent_chain"] = {"Actor", "Object"};
	return Blueprint;
}

class FlowEdit : public testing::Test
{
protected:
	std::string Ask(const std::string& Request) { return Editor.Ask("In /Game/BP_Gate, " + Request); }
	std::vector<std::string> Nodes() const { return Gate.ListNodes("EventGraph"); }
	std::vector<std::string> Links() const { return Gate.ListLinks("EventGraph"); }

	/** That nothing of an edit is left. */
	void ExpectAsBefore() const
	{
		EXPECT_THAT(
			Nodes(), UnorderedElementsAre("event.Actor.ReceiveBeginPlay()", "call.KismetSystemLibrary.PrintString(InString=Hello)"));
		EXPECT_THAT(Links(), ElementsAre("EventBeginPlay.then > PrintString.execute"));
		EXPECT_EQ(Gate.GetJson()["variables"].size(), 1u);
		EXPECT_EQ(Gate.GetJson()["graphs"].size(), 3u);
	}

	FScriptedEditor Editor;
	FEditableBlueprint Gate{Editor, MakeGate()};
};

TEST_F(FlowEdit, AnExistingEventIsExtendedBehindItsLastStep)
{
	const std::string Answer = Ask("on BeginPlay wait 2 seconds and print \"Late\"");
	EXPECT_THAT(Links(),
		UnorderedElementsAre(
			"EventBeginPlay.then > PrintString.execute", "PrintString.then > Delay.execute", "Delay.then > PrintString.execute"));
	EXPECT_THAT(Nodes(),
		AllOf(Contains("call.KismetSystemLibrary.Delay(Duration=2)"), Contains("call.KismetSystemLibrary.PrintString(InString=Late)")));
	EXPECT_THAT(Answer,
		AllOf(HasSubstr("What is new follows what **Event Begin Play** did already."), HasSubstr("compiles without errors"),
			HasSubstr("- Prints \"Hello\"\n- Waits 2 seconds\n- Prints \"Late\"\n")));
	EXPECT_EQ(std::count(Editor.GetCalls().begin(), Editor.GetCalls().end(), std::string("node_spawn /Game/BP_Gate EventGraph")), 1);
}

TEST_F(FlowEdit, WhereTheWaysPartASequenceStandsInFrontOfThem)
{
	Ask("on BeginPlay if bLocked print \"Locked\" otherwise open the gate");
	Ask("on BeginPlay print \"Done\"");
	EXPECT_THAT(Links(),
		AllOf(Contains("PrintString.then > sequence.execute"), Contains("sequence.then_0 > if.execute"),
			Contains("sequence.then_1 > PrintString.execute")));
	Ask("on overlap if bLocked print \"Locked\"");
	Ask("on overlap print \"Again\"");
	EXPECT_THAT(Links(),
		AllOf(Contains("ReceiveActorBeginOverlap.then > sequence.execute"), Contains("sequence.then_0 > if.execute"),
			Contains("sequence.then_1 > PrintString.execute")));
}

TEST_F(FlowEdit, AFreeWayOfASequenceIsUsedBeforeAnotherSequenceIsMade)
{
	FJson Json = MakeGate();
	FJson& Events = Json["graphs"][0];
	Events["nodes"].push_back(MakeNode("Sequence_0", "flow.sequence", {ExecIn(), ExecOut("then_0"), ExecOut("then_1")}));
	Link(Events, "PrintString_0.then", "Sequence_0.execute");
	FEditableBlueprint WithSequence(Editor, Json);
	Ask("on BeginPlay open the gate");
	EXPECT_THAT(WithSequence.ListLinks("EventGraph"), Contains("Sequence.then_0 > OpenGate.execute"));
	Ask("on BeginPlay close the gate");
	EXPECT_THAT(WithSequence.ListLinks("EventGraph"), Contains("Sequence.then_1 > CloseGate.execute"));
}

TEST_F(FlowEdit, OwnFunctionsAreCalledByWhatPeopleCallThem)
{
	const std::string Answer = Ask("make the gate open on overlap and close after 3 seconds");
	EXPECT_THAT(Links(),
		AllOf(Contains("ReceiveActorBeginOverlap.then > OpenGate.execute"), Contains("OpenGate.then > Delay.execute"),
			Contains("Delay.then > CloseGate.execute")));
	EXPECT_THAT(Nodes(), Contains("call.KismetSystemLibrary.Delay(Duration=3)"));
	EXPECT_THAT(Answer, HasSubstr("**When another actor begins to overlap it**"));
}

TEST_F(FlowEdit, APronounBehindAnEventBelongsToIt)
{
	EXPECT_THAT(Ask("when the player touches it the gate opens"), HasSubstr("calls OpenGate"));
	EXPECT_THAT(Links(), Contains("if.then > OpenGate.execute"));
}

TEST_F(FlowEdit, AVariableThatIsChangedIsMadeAndSaidSo)
{
	const std::string Answer = Ask("add health that drops on damage and destroys at zero");
	EXPECT_THAT(Answer,
		AllOf(HasSubstr("The variable **Health** (number) is new; it begins with 100."), HasSubstr("Sets Health to Health - the damage"),
			HasSubstr("If Health is less than or equal to 0, destroys itself")));
	EXPECT_EQ(Gate.GetJson()["variables"].back()["value"], "100");
	EXPECT_THAT(Links(),
		AllOf(Contains("ReceiveAnyDamage.Damage > Subtract.B"), Contains("Health.Health > Subtract.A"),
			Contains("Subtract.ReturnValue > Health.Health"), Contains("LessEqual.ReturnValue > if.Condition")));
}

TEST_F(FlowEdit, ATimerCallsAnEventOfItsOwn)
{
	const std::string Answer = Ask("every 5 seconds spawn BP_Enemy");
	EXPECT_THAT(Nodes(),
		AllOf(Contains("call.spawn_actor(Class=/Game/Enemies/BP_Enemy.BP_Enemy_C)"),
			Contains("call.KismetSystemLibrary.K2_SetTimerDelegate(Time=5,bLooping=true)")));
	EXPECT_THAT(Links(),
		AllOf(Contains("custom.OutputDelegate > K2_SetTimerDelegate.Delegate"), Contains("custom.then > spawn_actor.execute"),
			Contains("PrintString.then > K2_SetTimerDelegate.execute")));
	EXPECT_THAT(Answer, HasSubstr("SpawnEnemy"));
}

TEST_F(FlowEdit, AComponentIsFoundByItsNameAndALightIsMadeWhereThereIsNone)
{
	Gate.Components["Lantern"] = "PointLightComponent";
	const std::string Answer = Ask("when L is pressed toggle the lantern");
	EXPECT_THAT(Links(), AllOf(Contains("L.Pressed > ToggleVisibility.execute"), Contains("Lantern.Lantern > ToggleVisibility.self")));
	EXPECT_THAT(Answer, HasSubstr("**Auto Receive Input** to Player 0"));
	Gate.Components.clear();
	const std::string Second = Ask("when K is pressed toggle the light");
	EXPECT_THAT(Second,
		AllOf(HasSubstr("no component called \"light\", so it adds a Point Light Component when play begins"), HasSubstr("**Light**")));
	EXPECT_THAT(Links(),
		AllOf(Contains("K.Pressed > ToggleVisibility.execute"), Contains("PrintString.then > PointLightComponent.execute"),
			Contains("PointLightComponent.ReturnValue > Light.Light")));
}

TEST_F(FlowEdit, WhoOverlapsIsAskedWhereItMatters)
{
	Ask("when the player overlaps it, open the gate");
	EXPECT_THAT(Links(),
		AllOf(Contains("ReceiveActorBeginOverlap.OtherActor > EqualEqual.A"), Contains("GetPlayerPawn.ReturnValue > EqualEqual.B"),
			Contains("if.then > OpenGate.execute")));
}

TEST_F(FlowEdit, AChangeOfAVariableCallsAnEventBehindEachStepThatSetsIt)
{
	Ask("on overlap set bLocked to true, then print \"Shut\"");
	const std::string Answer = Ask("when bLocked changes print bLocked");
	EXPECT_THAT(Links(),
		AllOf(Contains("ReceiveActorBeginOverlap.then > bLocked.execute"), Contains("bLocked.then > OnLockedChanged.execute"),
			Contains("OnLockedChanged.then > PrintString.execute")));
	EXPECT_THAT(Answer, HasSubstr("is called behind 1 step that sets it"));
}

TEST_F(FlowEdit, AFunctionIsMadeWithItsSteps)
{
	const std::string Answer = Ask("add a function Lock that sets bLocked to true and prints \"Locked\"");
	EXPECT_THAT(Gate.ListLinks("Lock"), ElementsAre("Lock.then > bLocked.execute", "bLocked.then > PrintString.execute"));
	EXPECT_THAT(Answer, HasSubstr("The function **Lock** is new."));
	EXPECT_THAT(Ask("add a function Lock that prints \"Again\""), HasSubstr("has a function or event called **Lock** already"));
	EXPECT_THAT(Editor.Ask("Add a function Unlock to /Game/BP_Gate that sets bLocked to false"), HasSubstr("The function **Unlock** is new."));
}

TEST_F(FlowEdit, WhatIsNotKnownIsAskedAndNothingIsChanged)
{
	for (const char* const Request : {"on BeginPlay fly to the moon", "when F is pressed toggle the chandelier",
			 "on BeginPlay spawn BP_Submarine", "on BeginPlay call Explode", "when the moon rises print \"Howl\"",
			 "on overlap if Mana is less than 5 print \"Tired\"", "on BeginPlay play sound S_Boom"})
	{
		const std::string Answer = Ask(Request);
		EXPECT_THAT(Answer, HasSubstr("changed nothing")) << Request;
		ExpectAsBefore();
	}
	EXPECT_THAT(Ask("print \"Hello\""), HasSubstr("But when should it happen?"));
}

TEST_F(FlowEdit, ARefusedNodeTakesAllOfItBack)
{
	Gate.Refuse = [](const std::string& Tool, const FJson& Item) -> std::optional<std::string>
	{
		return Tool == "node_spawn" && Item["node_type"] == "call.Actor.K2_DestroyActor"
			? std::optional<std::string>("Node type is not valid")
			: std::nullopt;
	};
	const std::string Answer = Ask("add health that drops on damage and destroys at zero");
	EXPECT_THAT(Answer, AllOf(HasSubstr("I could not do that."), HasSubstr("K2_DestroyActor"), HasSubstr("the Blueprint is as it was")));
	ExpectAsBefore();
}

TEST_F(FlowEdit, ANodeOfTheSameNameElsewhereIsTakenInstead)
{
	Gate.Refuse = [](const std::string& Tool, const FJson& Item) -> std::optional<std::string>
	{
		const bool bOld = Tool == "node_spawn" && Item["node_type"] == "call.KismetSystemLibrary.Delay";
		return bOld ? std::optional<std::string>(
						  "Node type is not valid. Nearest: 'call.KismetSystemLibrary.DelayUntilNextTick', 'call.OtherLibrary.Delay'")
					: std::nullopt;
	};
	const std::string Answer = Ask("on overlap wait 2 seconds, then open the gate");
	EXPECT_THAT(Nodes(), Contains("call.OtherLibrary.Delay(Duration=2)"));
	EXPECT_THAT(Answer, HasSubstr("so I took `call.OtherLibrary.Delay`"));
}

TEST_F(FlowEdit, ALinkThatIsRefusedOnceIsMadeAgain)
{
	int Refusals = 0;
	Gate.Refuse = [&Refusals](const std::string& Tool, const FJson& Item) -> std::optional<std::string>
	{
		return Tool == "node_link" && Item["to_pin"] == "B" && ++Refusals == 1
			? std::optional<std::string>("Connection not allowed: wildcard")
			: std::nullopt;
	};
	EXPECT_THAT(Ask("add health that drops on damage and destroys at zero"), HasSubstr("compiles without errors"));
	EXPECT_THAT(Links(), Contains("ReceiveAnyDamage.Damage > Subtract.B"));
}

TEST_F(FlowEdit, ALinkThatStaysRefusedTakesAllOfItBackWithTheWiresThatWereMoved)
{
	Ask("on overlap if bLocked print \"Locked\"");
	const std::vector<std::string> Before = Links();
	Gate.Refuse = [](const std::string& Tool, const FJson& Item) -> std::optional<std::string>
	{
		return Tool == "node_link" && Item["to_pin"] == "execute" && Item["from_pin"] == "then_1"
			? std::optional<std::string>("Connection not allowed")
			: std::nullopt;
	};
	EXPECT_THAT(Ask("on overlap open the gate"), AllOf(HasSubstr("Connection not allowed"), HasSubstr("the Blueprint is as it was")));
	EXPECT_THAT(Links(), testing::UnorderedElementsAreArray(Before));
}

TEST_F(FlowEdit, ErrorsOfTheNewNodesTakeThemBackAndOthersAreOnlyTold)
{
	Gate.CompilerErrors = {"The function OldOne in node Sail could not be found"};
	EXPECT_THAT(Ask("on overlap open the gate"),
		AllOf(HasSubstr("Done in **BP_Gate**"), HasSubstr("does not compile. 1 error"), HasSubstr("create it again, or remove the node")));
	const std::vector<std::string> Before = Nodes();
	Gate.CompilerErrors = {"The current value of the 'Duration' pin of Delay is invalid"};
	EXPECT_THAT(
		Ask("on hit wait 2 seconds, then close the gate"), AllOf(HasSubstr("I could not do that"), HasSubstr("of Delay is invalid")));
	EXPECT_EQ(Nodes(), Before);
}

TEST_F(FlowEdit, AToolThatNeverAnswersEndsTheTurnWithoutMoreCalls)
{
	Editor.SetOutcome("node_link", EToolStatus::TimedOut);
	const std::string Answer = Ask("on overlap open the gate");
	EXPECT_EQ(Editor.GetCalls().back(), "node_link /Game/BP_Gate EventGraph");
	EXPECT_THAT(Answer, Not(HasSubstr("Done")));
}

TEST_F(FlowEdit, AUserWhoIsGoneGetsNoFurtherEdits)
{
	Editor.SetOutcome("node_spawn", EToolStatus::Gone);
	Ask("on overlap open the gate");
	EXPECT_EQ(Editor.GetCalls().back(), "node_spawn /Game/BP_Gate EventGraph");
	ExpectAsBefore();
}

TEST_F(FlowEdit, CompilingTellsErrorsWithWhatToDo)
{
	EXPECT_THAT(Editor.Ask("compile /Game/BP_Gate"), HasSubstr("**BP_Gate** compiles without errors."));
	Gate.CompilerErrors = {"The type of  Add  is undetermined.  Connect something to  Add  to imply a specific type."};
	EXPECT_THAT(Editor.Ask("why does it not compile?"), AllOf(HasSubstr("does not compile. 1 error"), HasSubstr("whose type is known")));
}

TEST_F(FlowEdit, WhyNothingWasCompiledIsToldAlikeBehindEveryEdit)
{
	Editor.SetTool("compile", [](const FJson&)
		{ return FJson(); });
	const std::string Told = "**BP_Gate** could not be compiled. The editor says:\n\n- no such thing\n";
	EXPECT_THAT(Editor.Ask("compile /Game/BP_Gate"), HasSubstr(Told));
	EXPECT_THAT(Ask("remove the node Print String"), AllOf(HasSubstr("Removed the node"), HasSubstr(Told)));
	EXPECT_THAT(Ask("add a float variable Armor"), AllOf(HasSubstr("I added the variable **Armor**"), HasSubstr(Told)));
}

TEST_F(FlowEdit, NodesAreConnectedDisconnectedAndRemovedByTitleOrId)
{
	Ask("on overlap open the gate");
	EXPECT_THAT(Ask("disconnect BeginPlay from Print String"), HasSubstr("Broke the wire from `EventBeginPlay_0`.then"));
	EXPECT_THAT(Links(), Not(Contains("EventBeginPlay.then > PrintString.execute")));
	EXPECT_THAT(Ask("connect Event BeginPlay to PrintString_0"), HasSubstr("Connected `EventBeginPlay_0`.then to `PrintString_0`.execute"));
	EXPECT_THAT(Links(), Contains("EventBeginPlay.then > PrintString.execute"));
	EXPECT_THAT(Ask("remove the node Print String"), HasSubstr("Removed the node **Print String**"));
	EXPECT_THAT(Nodes(), Not(Contains(HasSubstr("PrintString"))));
	EXPECT_THAT(Ask("remove the node Teapot"), AllOf(HasSubstr("no node called \"Teapot\""), HasSubstr("changed nothing")));
}

TEST_F(FlowEdit, HostileSentencesAreSurvived)
{
	const std::string Long(3000, 'x');
	std::string Words;
	for (int Count = 0; Count < 190; ++Count)
	{
		Words += "if ";
	}
	std::string Ands;
	for (int Count = 0; Count < 60; ++Count)
	{
		Ands += "print a and ";
	}
	for (const std::string& Request : {"on BeginPlay print \"" + Long + "\"", "on BeginPlay " + Words + "print x",
			 "on BeginPlay " + Ands + "print b", std::string("on BeginPlay print \"**bold** `code` </tag>\""),
			 std::string("on BeginPlay set \"\" to \"\""), std::string("on , . ; \" '"), "on BeginPlay set " + Long + " to 5"})
	{
		EXPECT_FALSE(Ask(Request).empty());
	}
}

TEST_F(FlowEdit, ABehaviourIsUnderstoodInManyWords)
{
	for (const char* const Words : {"on overlap open the gate, wait 2 seconds, then close it", "make it open on overlap and close 2 seconds later",
			 "it should open when something overlaps it and shut after 2s", "open as soon as something touches it and close two seconds after",
			 "I want the gate to open when something enters, then close 2 seconds later", "overlap -> open the gate, delay 2, close the gate",
			 "when something comes near, open the gate; after a delay of 2 s close the gate",
			 "the moment something overlaps it, open the gate automatically and close it 2 sec later"})
	{
		FEditableBlueprint Fresh(Editor, MakeGate());
		const std::string Answer = Ask(Words);
		EXPECT_THAT(Fresh.ListLinks("EventGraph"),
			AllOf(Contains("ReceiveActorBeginOverlap.then > OpenGate.execute"), Contains("OpenGate.then > Delay.execute"),
				Contains("Delay.then > CloseGate.execute")))
			<< Words << "\n"
			<< Answer;
		EXPECT_THAT(Fresh.ListNodes("EventGraph"), Contains("call.KismetSystemLibrary.Delay(Duration=2)")) << Words;
	}
}

TEST_F(FlowEdit, OneSentenceMayTellOfTwoEvents)
{
	const std::string Answer = Ask("print \"Hi\" when something overlaps it and print \"Bye\" when something leaves");
	EXPECT_THAT(Links(),
		AllOf(Contains("ReceiveActorBeginOverlap.then > PrintString.execute"), Contains("ReceiveActorEndOverlap.then > PrintString.execute")))
		<< Answer;
}

TEST_F(FlowEdit, AChangeOfWhatTheRequestItselfSetsIsTold)
{
	const std::string Answer = Ask("it should lose health when damaged and be destroyed when its health reaches zero");
	EXPECT_THAT(Links(), Contains("Health.then > OnHealthChanged.execute")) << Answer;
	EXPECT_THAT(Answer, Not(HasSubstr("wherever you set it")));
}

TEST_F(FlowEdit, APronounIsTheVariableThatTheOtherHalfNames)
{
	EXPECT_THAT(Ask("print bLocked whenever it changes"), HasSubstr("Prints bLocked"));
	EXPECT_THAT(Ask("each time bLocked changes print it"), HasSubstr("Prints bLocked"));
}

TEST_F(FlowEdit, WhatAComponentIsCalledIsReadRatherThanTried)
{
	FJson Json = MakeGate();
	Json["properties"] = FJson::array({{{"id", "$ClassDefaultObject"}, {"type", "object.Actor"},
		{"value", {{"properties", FJson::array({{{"id", "Panel"}, {"type", "object.StaticMeshComponent"}, {"value", ""}}})}}}}});
	FEditableBlueprint WithPanel(Editor, Json);
	int Refusals = 0;
	WithPanel.Refuse = [&Refusals](const std::string& Tool, const FJson& Item) -> std::optional<std::string>
	{
		const bool bTried = Tool == "node_spawn" && Item["node_type"].get<std::string>().starts_with("var.get.");
		Refusals += bTried ? 1 : 0;
		return bTried ? std::optional<std::string>("Node type is not valid") : std::nullopt;
	};
	EXPECT_THAT(Ask("on overlap hide the gearbox"), HasSubstr("has no component and no variable called \"gearbox\""));
	EXPECT_EQ(Refusals, 0);
}

TEST_F(FlowEdit, NodesAreFoundByWhatTheyFollowAndByTheirPins)
{
	Ask("on overlap print \"Welcome\"");
	EXPECT_THAT(Ask("disconnect BeginPlay from Print String"), HasSubstr("Broke the wire from `EventBeginPlay_0`.then to `PrintString_0`.execute"))
		<< "the other one is not wired to it";
	EXPECT_THAT(Ask("connect the then pin of Receive Actor Begin Overlap to Print String"), HasSubstr("There are 2 nodes called \"Print String\""));
	EXPECT_THAT(Ask("remove the print after Receive Actor Begin Overlap"), HasSubstr("Removed the node **Print String**"));
	EXPECT_THAT(Nodes(), Not(Contains("call.KismetSystemLibrary.PrintString(InString=Welcome)")));
	EXPECT_THAT(Ask("get rid of the Print String"), HasSubstr("Removed the node **Print String**"));
	EXPECT_THAT(Ask("remove the flux capacitor"), HasSubstr("I changed nothing."));
}

TEST_F(FlowEdit, AChangeThatNobodyUnderstandsIsNoQuestion)
{
	EXPECT_THAT(Ask("give it fifty golden wishes"), HasSubstr("I did not understand what."));
	ExpectAsBefore();
}

}

}
