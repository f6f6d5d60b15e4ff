#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "K2Node_AssignmentStatement.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_TemporaryVariable.h"

#include <functional>
#include <map>

namespace
{
/**
 * Runs a macro's graph as compiled code would: the few kinds of nodes that standard macros are made of, with values that are
 * integers. An array is its length, and its element the index.
 */
class FMacroRun
{
public:
	explicit FMacroRun(const UEdGraph& Graph)
		: Entry(UK2Node_MacroInstance::FindTunnel(&Graph, true))
		, Exit(UK2Node_MacroInstance::FindTunnel(&Graph, false))
	{
	}

	/** Enters by the input, and gives the outputs that were left by in their order: "LoopBody LoopBody Completed". */
	std::string Enter(const TCHAR* Input)
	{
		Trace.clear();
		Steps = 0;
		Follow(Entry->FindPin(Input, EGPD_Output));
		return Trace;
	}

	/** The value that the output has now. */
	int32 GetOutput(const TCHAR* Output) { return Evaluate(Exit->FindPin(Output, EGPD_Input)); }

	std::map<std::string, int32> Inputs;
	/** Called at each way out with its name. */
	std::function<void(const std::string&)> OnOutput;

private:
	static std::string NameOf(const UEdGraphPin* Pin) { return TCHAR_TO_UTF8(*Pin->PinName.ToString()); }

	void Leave(const UEdGraphPin* Output)
	{
		const std::string Name = NameOf(Output);
		Trace += (Trace.empty() ? "" : " ") + Name;
		if (OnOutput)
		{
			OnOutput(Name);
		}
	}

	void Follow(const UEdGraphPin* From)
	{
		ASSERT_NE(From, nullptr);
		ASSERT_LT(++Steps, 10000) << "never ends";
		if (From->LinkedTo.Num() == 0)
		{
			return;
		}
		const UEdGraphPin* const To = From->LinkedTo[0];
		const UEdGraphNode* const Node = To->GetOwningNode();
		if (Node == Exit)
		{
			Leave(To);
		}
		else if (const UK2Node_IfThenElse* const Branch = Cast<UK2Node_IfThenElse>(Node))
		{
			Follow(Evaluate(Branch->GetConditionPin()) ? Branch->GetThenPin() : Branch->GetElsePin());
		}
		else if (const UK2Node_AssignmentStatement* const Assign = Cast<UK2Node_AssignmentStatement>(Node))
		{
			Variables[Assign->GetVariablePin()->LinkedTo[0]] = Evaluate(Assign->GetValuePin());
			Follow(Assign->GetThenPin());
		}
		else if (const UK2Node_ExecutionSequence* const Sequence = Cast<UK2Node_ExecutionSequence>(Node))
		{
			for (int32 Index = 0; Sequence->GetThenPinGivenIndex(Index); ++Index)
			{
				Follow(Sequence->GetThenPinGivenIndex(Index));
			}
		}
		else
		{
			const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(Node);
			ASSERT_NE(Call, nullptr) << TCHAR_TO_UTF8(*Node->GetClass()->GetName());
			Follow(Call->GetThenPin());
		}
	}

	int32 Evaluate(const UEdGraphPin* Input)
	{
		if (Input->LinkedTo.Num() == 0)
		{
			const FString Text = Input->GetDefaultAsString();
			return Text == TEXT("true") ? 1 : FCString::Atoi(*Text);
		}
		const UEdGraphPin* const Source = Input->LinkedTo[0];
		const UEdGraphNode* const Node = Source->GetOwningNode();
		if (Node == Entry)
		{
			return Inputs[NameOf(Source)];
		}
		if (Node->IsA<UK2Node_TemporaryVariable>())
		{
			return Variables[Source];
		}
		return EvaluateCall(*CastChecked<UK2Node_CallFunction>(Node));
	}

	int32 EvaluateCall(const UK2Node_CallFunction& Call)
	{
		const auto Operand = [this, &Call](const TCHAR* Name)
		{ return Evaluate(Call.FindPinChecked(Name)); };
		const std::string Function = TCHAR_TO_UTF8(*Call.GetFunctionName().ToString());
		const std::map<std::string, std::function<int32()>> Functions = {
			{"Add_IntInt", [&]
				{ return Operand(TEXT("A")) + Operand(TEXT("B")); }},
			{"Subtract_IntInt", [&]
				{ return Operand(TEXT("A")) - Operand(TEXT("B")); }},
			{"Less_IntInt", [&]
				{ return Operand(TEXT("A")) < Operand(TEXT("B")); }},
			{"LessEqual_IntInt", [&]
				{ return Operand(TEXT("A")) <= Operand(TEXT("B")); }},
			{"GreaterEqual_IntInt", [&]
				{ return Operand(TEXT("A")) >= Operand(TEXT("B")); }},
			{"Not_PreBool", [&]
				{ return !Operand(TEXT("A")); }},
			{"Array_Length", [&]
				{ return Operand(TEXT("TargetArray")); }},
			{"Array_Get", [&]
				{ return Operand(TEXT("Index")); }},
			{"IsValid", [&]
				{ return Operand(TEXT("Object")); }},
		};
		const auto Found = Functions.find(Function);
		EXPECT_NE(Found, Functions.end()) << Function;
		return Found != Functions.end() ? Found->second() : 0;
	}

	const UK2Node_Tunnel* const Entry;
	const UK2Node_Tunnel* const Exit;
	std::map<const UEdGraphPin*, int32> Variables;
	std::string Trace;
	int32 Steps = 0;
};

/** What the standard macros do when they run. */
class FStandardMacroRunTest : public FGraphTest
{
protected:
	static FMacroRun Start(const TCHAR* Macro) { return FMacroRun(*FStandardMacros::Find(Macro)); }

	/** A macro that starts closed lets nothing through until one of the inputs has opened it. */
	static void ExpectOpened(const TCHAR* Macro, const std::string& StartClosed, const TCHAR* Enter, const TCHAR* Open, bool bTryFirst)
	{
		FMacroRun Run = Start(Macro);
		Run.Inputs = {{StartClosed, 1}};
		if (bTryFirst)
		{
			EXPECT_EQ(Run.Enter(Enter), "");
		}
		Run.Enter(Open);
		EXPECT_NE(Run.Enter(Enter), "") << TCHAR_TO_UTF8(Open);
	}

	/** The values that an output has each time that the body runs. */
	static std::vector<int32> Loop(FMacroRun& Run, const TCHAR* Input, const TCHAR* Value)
	{
		std::vector<int32> Values;
		Run.OnOutput = [&Run, &Values, Value](const std::string& Output)
		{
			if (Output == "LoopBody")
			{
				Values.push_back(Run.GetOutput(Value));
			}
		};
		Run.Enter(Input);
		Run.OnOutput = nullptr;
		return Values;
	}

	using FValues = std::vector<int32>;
};

TEST_F(FStandardMacroRunTest, ForLoopRunsFromTheFirstIndexToTheLast)
{
	FMacroRun Run = Start(TEXT("ForLoop"));
	Run.Inputs = {{"FirstIndex", 2}, {"LastIndex", 5}};
	EXPECT_EQ(Loop(Run, TEXT("execute"), TEXT("Index")), FValues({2, 3, 4, 5}));
	EXPECT_EQ(Run.Enter(TEXT("execute")), "LoopBody LoopBody LoopBody LoopBody Completed");
	Run.Inputs = {{"FirstIndex", 3}, {"LastIndex", 2}};
	EXPECT_EQ(Run.Enter(TEXT("execute")), "Completed");
}

TEST_F(FStandardMacroRunTest, LoopsOverAnArrayVisitEachElement)
{
	FMacroRun Forward = Start(TEXT("ForEachLoop"));
	Forward.Inputs = {{"Array", 3}};
	EXPECT_EQ(Loop(Forward, TEXT("Exec"), TEXT("Array Index")), FValues({0, 1, 2}));
	EXPECT_EQ(Forward.GetOutput(TEXT("Array Element")), 2) << "the last element stays";
	FMacroRun Backward = Start(TEXT("ReverseForEachLoop"));
	Backward.Inputs = {{"Array", 3}};
	EXPECT_EQ(Loop(Backward, TEXT("Exec"), TEXT("Array Element")), FValues({2, 1, 0}));
	Backward.Inputs = {{"Array", 0}};
	EXPECT_EQ(Backward.Enter(TEXT("Exec")), "Completed");
}

TEST_F(FStandardMacroRunTest, BreakEndsALoop)
{
	for (const auto& [Macro, Input, Value] : {std::tuple(TEXT("ForEachLoopWithBreak"), TEXT("Exec"), TEXT("Array Index")),
			 std::tuple(TEXT("ForLoopWithBreak"), TEXT("execute"), TEXT("Index"))})
	{
		FMacroRun Run = Start(Macro);
		Run.Inputs = {{"Array", 6}, {"FirstIndex", 0}, {"LastIndex", 5}};
		std::string Ways;
		Run.OnOutput = [&, Value = Value](const std::string& Output)
		{
			Ways += Output + " ";
			if (Output == "LoopBody" && Run.GetOutput(Value) == 1)
			{
				Run.Enter(TEXT("Break"));
			}
		};
		Run.Enter(Input);
		EXPECT_EQ(Ways, "LoopBody LoopBody Completed ") << TCHAR_TO_UTF8(Macro);
	}
}

TEST_F(FStandardMacroRunTest, WhileLoopAsksBeforeEachRound)
{
	FMacroRun Run = Start(TEXT("WhileLoop"));
	Run.Inputs = {{"Condition", 1}};
	int32 Rounds = 0;
	Run.OnOutput = [&](const std::string& Output)
	{
		Rounds += Output == "LoopBody" ? 1 : 0;
		Run.Inputs["Condition"] = Rounds < 3;
	};
	EXPECT_EQ(Run.Enter(TEXT("execute")), "LoopBody LoopBody LoopBody Completed");
	EXPECT_EQ(Run.Enter(TEXT("execute")), "Completed");
}

TEST_F(FStandardMacroRunTest, DoOnceOpensAgainWhenItIsReset)
{
	FMacroRun Run = Start(TEXT("DoOnce"));
	EXPECT_EQ(Run.Enter(TEXT("execute")), "Completed");
	EXPECT_EQ(Run.Enter(TEXT("execute")), "");
	Run.Enter(TEXT("Reset"));
	EXPECT_EQ(Run.Enter(TEXT("execute")), "Completed");
	ExpectOpened(TEXT("DoOnce"), "Start Closed", TEXT("execute"), TEXT("Reset"), true);
	// What was reset before it was asked does not start closed any more.
	ExpectOpened(TEXT("DoOnce"), "Start Closed", TEXT("execute"), TEXT("Reset"), false);
}

TEST_F(FStandardMacroRunTest, DoNCountsToItsNumber)
{
	FMacroRun Run = Start(TEXT("Do N"));
	Run.Inputs = {{"N", 2}};
	EXPECT_EQ(Run.Enter(TEXT("Enter")), "Exit");
	EXPECT_EQ(Run.GetOutput(TEXT("Counter")), 1);
	EXPECT_EQ(Run.Enter(TEXT("Enter")), "Exit");
	EXPECT_EQ(Run.Enter(TEXT("Enter")), "");
	Run.Enter(TEXT("Reset"));
	EXPECT_EQ(Run.Enter(TEXT("Enter")), "Exit");
}

TEST_F(FStandardMacroRunTest, FlipFlopStartsWithA)
{
	FMacroRun Run = Start(TEXT("FlipFlop"));
	const UK2Node_Tunnel* const Entry = UK2Node_MacroInstance::FindTunnel(FStandardMacros::Find(TEXT("FlipFlop")), true);
	const FString Input = Entry->Pins[0]->PinName.ToString();
	std::string Ways;
	for (int32 Time = 0; Time < 4; ++Time)
	{
		Ways += Run.Enter(*Input);
		EXPECT_EQ(Run.GetOutput(TEXT("IsA")), Time % 2 == 0 ? 1 : 0);
	}
	EXPECT_EQ(Ways, "ABAB");
}

TEST_F(FStandardMacroRunTest, GateLetsThroughWhileItIsOpen)
{
	FMacroRun Run = Start(TEXT("Gate"));
	EXPECT_EQ(Run.Enter(TEXT("Enter")), "Exit");
	Run.Enter(TEXT("Close"));
	EXPECT_EQ(Run.Enter(TEXT("Enter")), "");
	Run.Enter(TEXT("Toggle"));
	EXPECT_EQ(Run.Enter(TEXT("Enter")), "Exit");
	ExpectOpened(TEXT("Gate"), "bStartClosed", TEXT("Enter"), TEXT("Open"), true);
	// A gate that starts closed is opened by its first toggle, whether it was tried before or not.
	ExpectOpened(TEXT("Gate"), "bStartClosed", TEXT("Enter"), TEXT("Toggle"), false);
}

TEST_F(FStandardMacroRunTest, IsValidChoosesByItsObject)
{
	FMacroRun Run = Start(TEXT("IsValid"));
	Run.Inputs = {{"InputObject", 1}};
	EXPECT_EQ(Run.Enter(TEXT("exec")), "Is Valid");
	Run.Inputs = {{"InputObject", 0}};
	EXPECT_EQ(Run.Enter(TEXT("exec")), "Is Not Valid");
}
}
