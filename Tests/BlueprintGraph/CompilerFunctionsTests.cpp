#include "CompilerFixture.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_BreakStruct.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_Knot.h"
#include "K2Node_MacroInstance.h"
#include "UObject/NoExportTypes.h"

namespace
{
class FCompilerFunctionsTest : public FCompilerTest
{
protected:
	UEdGraph* NewGraph(const TCHAR* Name)
	{
		return FBlueprintEditorUtils::CreateNewGraph(Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	}

	UEdGraph* AddFunction(const TCHAR* Name)
	{
		UEdGraph* const Function = NewGraph(Name);
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Function, true, nullptr);
		return Function;
	}

	/** A macro with one way in and one way out, without anything in between. */
	UEdGraph* AddMacro(const TCHAR* Name)
	{
		UEdGraph* const Macro = NewGraph(Name);
		FBlueprintEditorUtils::AddMacroGraph(Blueprint, Macro, true, nullptr);
		FEdGraphPinType Exec;
		Exec.PinCategory = UEdGraphSchema_K2::PC_Exec;
		GetEntry(Macro)->CreateUserDefinedPin(TEXT("In"), Exec, EGPD_Output);
		return Macro;
	}

	static UK2Node_EditablePinBase* GetEntry(const UEdGraph* OfGraph) { return FBlueprintEditorUtils::GetEntryNode(OfGraph); }

	UK2Node_MacroInstance* UseMacro(UEdGraph* Macro)
	{
		return Add<UK2Node_MacroInstance>([Macro](UK2Node_MacroInstance& Node)
			{ Node.SetMacroGraph(Macro); });
	}

	FString Errors() const { return Said(EMessageSeverity::Error); }
};

TEST_F(FCompilerFunctionsTest, AFunctionThatItsParentDoesNotLetOverrideIsAnError)
{
	AddFunction(TEXT("Work"));
	Blueprint->FunctionGraphs.Last()->Rename(TEXT("K2_DestroyActor"));
	Compile();
	EXPECT_EQ(Errors(), TEXT("The function K2_DestroyActor has the name of a function of Actor that cannot be overridden|"));
}

TEST_F(FCompilerFunctionsTest, AnOverrideHasTheParametersOfWhatItOverrides)
{
	AddFunction(TEXT("Work"));
	Compile();
	UClass* const ParentClass = Blueprint->GeneratedClass.Get();
	Blueprint = FKismetEditorUtilities::CreateBlueprint(
		ParentClass, CreatePackage(TEXT("/Game/BP_Overriding")), TEXT("BP_Overriding"), BPTYPE_Normal);
	UEdGraph* const Override = NewGraph(TEXT("Work"));
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Override, false, ParentClass);
	Compile();
	EXPECT_EQ(Errors(), FString());
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Int;
	GetEntry(Override)->CreateUserDefinedPin(TEXT("Number"), Type, EGPD_Output);
	Compile();
	EXPECT_EQ(Results->NumErrors, 1);
	EXPECT_TRUE(Errors().StartsWith(TEXT("The function Work does not have the parameters of the function of ")))
		<< TCHAR_TO_UTF8(*Errors());
}

TEST_F(FCompilerFunctionsTest, AMacroThatWaitsCannotBeUsedInAFunction)
{
	UEdGraph* const Inner = AddMacro(TEXT("Wait"));
	Graph = Inner;
	UK2Node_CallFunction* const Delay = Call(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("Delay"));
	Chain(GetEntry(Inner)->FindPin(TEXT("In")), Delay->GetExecPin());
	UEdGraph* const Outer = AddMacro(TEXT("WaitLonger"));
	Graph = Outer;
	Chain(GetEntry(Outer)->FindPin(TEXT("In")), UseMacro(Inner)->FindPin(TEXT("In")));
	UEdGraph* const Function = AddFunction(TEXT("Work"));
	Graph = Function;
	UK2Node_MacroInstance* const Used = UseMacro(Outer);
	Chain(CastChecked<UK2Node_FunctionEntry>(GetEntry(Function))->GetThenPin(), Used->FindPin(TEXT("In")));
	Compile();
	EXPECT_EQ(Errors(), TEXT("The latent node Wait Longer cannot be used in the function Work: a function returns at once|"));
	EXPECT_TRUE(Used->bHasCompilerMessage);

	// In an event graph a macro may wait.
	Used->BreakAllNodeLinks();
	Graph = Blueprint->UbergraphPages[0];
	Chain(Event->GetThenPin(), UseMacro(Outer)->FindPin(TEXT("In")));
	Compile();
	EXPECT_EQ(Errors(), FString());
}

TEST_F(FCompilerFunctionsTest, MacrosThatUseEachOtherAreAnErrorAndEnd)
{
	UEdGraph* const First = AddMacro(TEXT("First"));
	UEdGraph* const Second = AddMacro(TEXT("Second"));
	for (UEdGraph* const Macro : {First, Second})
	{
		Graph = Macro;
		// Made below the editor, which offers no such node.
		Chain(GetEntry(Macro)->FindPin(TEXT("In")), UseMacro(Macro == First ? Second : First)->FindPin(TEXT("In")));
	}
	Graph = AddFunction(TEXT("Work"));
	Chain(CastChecked<UK2Node_FunctionEntry>(GetEntry(Graph))->GetThenPin(), UseMacro(First)->FindPin(TEXT("In")));
	Compile();
	EXPECT_TRUE(Errors().Contains(TEXT("uses itself"))) << TCHAR_TO_UTF8(*Errors());
	EXPECT_EQ(Results->NumErrors, 2) << TCHAR_TO_UTF8(*Errors());
}

TEST_F(FCompilerFunctionsTest, ARingThroughReroutesIsOneRing)
{
	UK2Node_CallFunction* const Sum = Call(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("Add_IntInt"));
	UK2Node_Knot* const Knot = Add<UK2Node_Knot>();
	Chain(Sum->GetReturnValuePin(), Knot->GetInputPin());
	Chain(Knot->GetOutputPin(), Sum->FindPin(TEXT("A")));
	Compile();
	EXPECT_EQ(Results->NumErrors, 1) << TCHAR_TO_UTF8(*Errors());
	EXPECT_TRUE(Errors().StartsWith(TEXT("Dependency cycle detected, preventing ")));
}

TEST_F(FCompilerFunctionsTest, TypesThatAreMissingAreErrors)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Struct;
	FBPVariableDescription Variable;
	Variable.VarName = TEXT("Place");
	Variable.VarGuid = FGuid::NewGuid();
	Variable.VarType = Type;
	Blueprint->NewVariables.Add(Variable);
	UK2Node_BreakStruct* const Break = Add<UK2Node_BreakStruct>([](UK2Node_BreakStruct& Node)
		{ Node.StructType = TBaseStructure<FVector>::Get(); });
	UK2Node_CallFunction* const Text = Print();
	Chain(Event->GetThenPin(), Text->GetExecPin());
	Chain(Break->FindPin(TEXT("X")), Text->FindPin(TEXT("Duration")));
	Break->StructType = nullptr;
	Compile();
	EXPECT_TRUE(Errors().Contains(TEXT("The variable type of Place is unknown; try changing the variable's type.")))
		<< TCHAR_TO_UTF8(*Errors());
	EXPECT_TRUE(Break->bHasCompilerMessage);
	EXPECT_EQ(Break->ErrorType, int32(EMessageSeverity::Error));
	EXPECT_EQ(Blueprint->GeneratedClass->FindPropertyByName(TEXT("Place")), nullptr);
}

TEST_F(FCompilerFunctionsTest, AnExecutionThatForksWithoutASequenceIsAnError)
{
	UK2Node_CallFunction* const First = Print();
	UK2Node_CallFunction* const Second = Print();
	Chain(Event->GetThenPin(), First->GetExecPin());
	Event->GetThenPin()->MakeLinkTo(Second->GetExecPin());
	Compile();
	EXPECT_TRUE(Errors().Contains(TEXT("has more than one link, and can have only one"))) << TCHAR_TO_UTF8(*Errors());
}

TEST_F(FCompilerFunctionsTest, AReturnNodeThatNothingReachesIsAWarning)
{
	UEdGraph* const Function = AddFunction(TEXT("Work"));
	UK2Node_FunctionResult* const Result = FBlueprintEditorUtils::FindOrCreateFunctionResultNode(GetEntry(Function));
	ASSERT_NE(Result, nullptr);
	Compile();
	EXPECT_EQ(Results->NumWarnings, 0);
	Result->BreakAllNodeLinks();
	Compile();
	EXPECT_EQ(Results->NumErrors, 0);
	EXPECT_TRUE(Said(EMessageSeverity::Warning).Contains(TEXT("No path through the function Work reaches its return node")));
}

TEST_F(FCompilerFunctionsTest, AnEventPastedIntoAFunctionIsAnError)
{
	Graph = AddFunction(TEXT("Work"));
	Add<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Node)
		{ Node.CustomFunctionName = TEXT("Knock"); });
	Compile();
	EXPECT_TRUE(Errors().Contains(TEXT("cannot stand in the function Work"))) << TCHAR_TO_UTF8(*Errors());
}
}
