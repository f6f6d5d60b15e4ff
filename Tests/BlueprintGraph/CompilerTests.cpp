#include "CompilerFixture.h"
#include "EdGraphToken.h"
#include "K2Node_Composite.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_SpawnActorFromClass.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"

namespace
{
const TCHAR* const SystemLibrary = TEXT("/Script/Engine.KismetSystemLibrary");
const TCHAR* const MathLibrary = TEXT("/Script/Engine.KismetMathLibrary");

TEST_F(FCompilerTest, AGoodGraphCompilesWithoutAWord)
{
	UK2Node_IfThenElse* const Branch = Add<UK2Node_IfThenElse>();
	UK2Node_CallFunction* const Text = Print();
	Chain(Event->GetThenPin(), Branch->GetExecPin());
	Chain(Branch->GetThenPin(), Text->GetExecPin());
	Compile();
	EXPECT_EQ(Results->Messages.Num(), 0);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
	EXPECT_NE(Blueprint->GeneratedClass->FindFunctionByName(TEXT("Start")), nullptr);
}

TEST_F(FCompilerTest, ALostFunctionIsAnErrorOnItsNodeAndGoesAwayWhenItIsMended)
{
	UK2Node_CallFunction* const Lost = Print();
	Chain(Event->GetThenPin(), Lost->GetExecPin());
	Lost->FunctionReference.SetExternalMember(TEXT("PrintNonsense"), FindObject<UClass>(nullptr, SystemLibrary));
	Compile();
	EXPECT_EQ(Results->NumErrors, 1);
	EXPECT_EQ(Said(EMessageSeverity::Error),
		TEXT("Could not find a function named \"PrintNonsense\" in 'KismetSystemLibrary'.\nMake sure 'KismetSystemLibrary' has been "
			 "compiled for Print Nonsense|"));
	EXPECT_EQ(Blueprint->Status, BS_Error);
	EXPECT_TRUE(Lost->bHasCompilerMessage);
	EXPECT_EQ(Lost->ErrorType, int32(EMessageSeverity::Error));
	const TSharedRef<IMessageToken>& Last = Results->Messages[0]->GetMessageTokens().Last();
	ASSERT_EQ(Last->GetType(), EMessageToken::EdGraph);
	EXPECT_EQ(static_cast<const FEdGraphToken&>(*Last).GetGraphObject(), Lost);

	Lost->FunctionReference.SetExternalMember(TEXT("PrintString"), FindObject<UClass>(nullptr, SystemLibrary));
	Compile();
	EXPECT_EQ(Results->NumErrors, 0);
	EXPECT_FALSE(Lost->bHasCompilerMessage);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
}

TEST_F(FCompilerTest, EveryMessageAboutNodesLeadsToOneOfThem)
{
	// One mistake of each kind that a node can make, all of them in one graph.
	UK2Node_CallFunction* const Lost = Print();
	Lost->FunctionReference.SetExternalMember(TEXT("PrintNonsense"), FindObject<UClass>(nullptr, SystemLibrary));
	UK2Node_VariableSet* const Set = Variable<UK2Node_VariableSet>(TEXT("Nothing"));
	UK2Node_SpawnActorFromClass* const Spawn = Add<UK2Node_SpawnActorFromClass>();
	UK2Node_DynamicCast* const Cast = Add<UK2Node_DynamicCast>();
	UK2Node_CallFunction* const Text = Print();
	Text->FindPin(TEXT("Duration"))->DefaultValue = TEXT("soon");
	Print();
	UEdGraphPin* Then = Event->GetThenPin();
	for (UK2Node* const Node : TArray<UK2Node*>{Lost, Spawn, Cast, Text})
	{
		Chain(Then, Node->GetExecPin());
		Then = Node->GetThenPin();
	}
	Chain(Then, Set->GetExecPin());
	Compile();
	EXPECT_EQ(Results->NumErrors, 5) << TCHAR_TO_UTF8(*Said(EMessageSeverity::Error));
	EXPECT_EQ(Said(EMessageSeverity::Info), TEXT("Print String is never executed: nothing leads to it|"));
	TSet<const UObject*> Blamed;
	for (const TSharedRef<FTokenizedMessage>& Message : Results->Messages)
	{
		int32 NumNodes = 0;
		for (const TSharedRef<IMessageToken>& Token : Message->GetMessageTokens())
		{
			const UObject* const Object =
				Token->GetType() == EMessageToken::EdGraph ? static_cast<const FEdGraphToken&>(*Token).GetGraphObject() : nullptr;
			if (Object && Object->IsA<UK2Node>())
			{
				EXPECT_TRUE(Object->IsIn(Blueprint));
				++NumNodes;
				Blamed.Add(Object);
			}
		}
		EXPECT_GT(NumNodes, 0) << TCHAR_TO_UTF8(*Message->ToText().ToString());
	}
	for (const UK2Node* const Node : TArray<const UK2Node*>{Lost, Set, Spawn, Cast, Text})
	{
		EXPECT_TRUE(Blamed.Contains(Node)) << TCHAR_TO_UTF8(*Node->GetName());
		EXPECT_TRUE(Node->bHasCompilerMessage);
	}
}

TEST_F(FCompilerTest, WhatIsNotExecutedIsANoteAndItsMistakesDoNotCount)
{
	UK2Node_CallFunction* const Lost = Print();
	Lost->FunctionReference.SetExternalMember(TEXT("PrintNonsense"), FindObject<UClass>(nullptr, SystemLibrary));
	Compile();
	EXPECT_EQ(Results->NumErrors, 0);
	EXPECT_EQ(Said(EMessageSeverity::Info), TEXT("Print Nonsense is never executed: nothing leads to it|"));
}

TEST_F(FCompilerTest, AValueOfANodeThatIsNotExecutedIsAWarning)
{
	UK2Node_CallFunction* const Trace = Call(SystemLibrary, TEXT("PrintString"));
	UK2Node_SpawnActorFromClass* const Spawn = Add<UK2Node_SpawnActorFromClass>();
	Schema().TrySetDefaultObject(*Spawn->GetClassPin(), AActor::StaticClass());
	UK2Node_CallFunction* const Destroy = Call(TEXT("/Script/Engine.Actor"), TEXT("K2_DestroyActor"));
	Chain(Event->GetThenPin(), Destroy->GetExecPin());
	Chain(Spawn->GetResultPin(), Destroy->FindPin(UEdGraphSchema_K2::PN_Self));
	Compile();
	EXPECT_EQ(Results->NumErrors, 0);
	EXPECT_EQ(Results->NumWarnings, 1);
	EXPECT_EQ(Blueprint->Status, BS_UpToDateWithWarnings);
	EXPECT_TRUE(Spawn->bHasCompilerMessage);
	EXPECT_TRUE(Trace->bHasCompilerMessage);
	EXPECT_EQ(Trace->ErrorType, int32(EMessageSeverity::Info));
}

TEST_F(FCompilerTest, InputsThatNeedALinkAndTypesThatAreOpenAreErrors)
{
	UK2Node_CallFunction* const Length = Call(TEXT("/Script/Engine.KismetArrayLibrary"), TEXT("Array_Clear"));
	UK2Node_CallFunction* const Play = Call(TEXT("/Script/Engine.PrimitiveComponent"), TEXT("SetSimulatePhysics"));
	Chain(Event->GetThenPin(), Length->GetExecPin());
	Chain(Length->GetThenPin(), Play->GetExecPin());
	Compile();
	const FString Errors = Said(EMessageSeverity::Error);
	EXPECT_TRUE(Errors.Contains(TEXT("The type of Target Array is undetermined.  Connect something to Clear to imply a specific type.")))
		<< TCHAR_TO_UTF8(*Errors);
	EXPECT_TRUE(Errors.Contains(
		TEXT("This blueprint (self) is not a PrimitiveComponent, therefore 'Target' of Set Simulate Physics must have a connection.")))
		<< TCHAR_TO_UTF8(*Errors);
	EXPECT_EQ(Results->NumErrors, 2);
}

TEST_F(FCompilerTest, LostAndRetypedVariablesAreFound)
{
	AddInteger(TEXT("Count"));
	UK2Node_VariableSet* const Set = Variable<UK2Node_VariableSet>(TEXT("Count"));
	UK2Node_VariableGet* const Get = Variable<UK2Node_VariableGet>(TEXT("Count"));
	Chain(Event->GetThenPin(), Set->GetExecPin());
	Chain(Get->GetValuePin(), Set->FindPin(TEXT("Count"), EGPD_Input));
	Compile();
	ASSERT_EQ(Results->NumErrors, 0);

	// A type changed below the node, as a hand-made text may have it: the link no longer fits.
	Get->GetValuePin()->PinType.PinCategory = UEdGraphSchema_K2::PC_Boolean;
	Compile();
	EXPECT_TRUE(Said(EMessageSeverity::Error).StartsWith(TEXT("Can't connect pins Count and Count: ")))
		<< TCHAR_TO_UTF8(*Said(EMessageSeverity::Error));

	Blueprint->NewVariables.Empty();
	Compile();
	const FString Errors = Said(EMessageSeverity::Error);
	EXPECT_TRUE(Errors.Contains(TEXT("Could not find a variable named \"Count\" in 'BP_Test'."))) << TCHAR_TO_UTF8(*Errors);
	EXPECT_EQ(Results->NumErrors, 2);
}

TEST_F(FCompilerTest, DuplicateNamesAreErrors)
{
	// The editor gives a new event a name of its own; pasted text may bring one twice.
	Add<UK2Node_CustomEvent>()->CustomFunctionName = TEXT("Start");
	AddInteger(TEXT("Count"));
	Blueprint->NewVariables.Add(Blueprint->NewVariables[0]);
	Compile();
	const FString Errors = Said(EMessageSeverity::Error);
	EXPECT_TRUE(Errors.Contains(TEXT("Found more than one function with the same name Start; second occurance at Start")))
		<< TCHAR_TO_UTF8(*Errors);
	EXPECT_TRUE(Errors.Contains(TEXT("Found more than one member variable with the same name Count"))) << TCHAR_TO_UTF8(*Errors);
}

TEST_F(FCompilerTest, ARingOfPureNodesIsAnErrorOnce)
{
	UK2Node_CallFunction* const First = Call(MathLibrary, TEXT("Add_IntInt"));
	UK2Node_CallFunction* const Second = Call(MathLibrary, TEXT("Add_IntInt"));
	Chain(First->GetReturnValuePin(), Second->FindPin(TEXT("A")));
	Chain(Second->GetReturnValuePin(), First->FindPin(TEXT("A")));
	Compile();
	EXPECT_EQ(Results->NumErrors, 1);
	EXPECT_TRUE(Said(EMessageSeverity::Error).StartsWith(TEXT("Dependency cycle detected, preventing ")));
}

TEST_F(FCompilerTest, AFunctionMayNotWaitAndMustReturnWhatItPromises)
{
	UEdGraph* const Function = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, TEXT("Work"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Function, true, nullptr);
	TArray<UK2Node_FunctionEntry*> Entries;
	Function->GetNodesOfClass(Entries);
	ASSERT_EQ(Entries.Num(), 1);
	Graph = Function;
	UK2Node_CallFunction* const Delay = Call(SystemLibrary, TEXT("Delay"));
	Chain(Entries[0]->GetThenPin(), Delay->GetExecPin());
	Compile();
	EXPECT_EQ(
		Said(EMessageSeverity::Error), TEXT("The latent node Delay cannot be used in the function Work: a function returns at once|"));
}

TEST_F(FCompilerTest, CastsSayWhenTheyAlwaysOrNeverSucceed)
{
	UClass* const Pawn = FindObject<UClass>(nullptr, TEXT("/Script/Engine.Pawn"));
	UClass* const Controller = FindObject<UClass>(nullptr, TEXT("/Script/Engine.Controller"));
	ASSERT_TRUE(Pawn && Controller);
	UK2Node_CallFunction* const GetPawn = Call(TEXT("/Script/Engine.GameplayStatics"), TEXT("GetPlayerPawn"));
	UEdGraphPin* Then = Event->GetThenPin();
	for (UClass* const Target : {AActor::StaticClass(), Controller, Pawn})
	{
		UK2Node_DynamicCast* const Cast = Add<UK2Node_DynamicCast>([Target](UK2Node_DynamicCast& Node)
			{ Node.TargetType = Target; });
		Chain(Then, Cast->GetExecPin());
		Chain(GetPawn->GetReturnValuePin(), Cast->GetCastSourcePin());
		Then = Cast->GetValidCastPin();
	}
	Compile();
	EXPECT_EQ(Said(EMessageSeverity::Warning), TEXT("'Controller' does not inherit from 'Pawn' (Cast To Controller would always fail).|"));
	EXPECT_EQ(Said(EMessageSeverity::Info),
		TEXT("'Pawn' is already a 'Actor', you don't need Cast To Actor.|'Pawn' is already a 'Pawn', you don't need Cast To Pawn.|"));
}

TEST_F(FCompilerTest, MacrosClassesAndOrphansThatAreMissing)
{
	UK2Node_MacroInstance* const Macro = Add<UK2Node_MacroInstance>([](UK2Node_MacroInstance& Node)
		{ Node.SetMacroGraph(FStandardMacros::Find(TEXT("ForLoop"))); });
	UK2Node_SpawnActorFromClass* const Spawn = Add<UK2Node_SpawnActorFromClass>();
	UK2Node_CallFunction* const Text = Print();
	Chain(Event->GetThenPin(), Macro->FindPin(UEdGraphSchema_K2::PN_Execute));
	Chain(Macro->FindPin(TEXT("LoopBody")), Spawn->GetExecPin());
	Chain(Macro->FindPin(TEXT("Completed")), Text->GetExecPin());
	Macro->SetMacroGraph(nullptr);
	UEdGraphPin* const Orphan = Text->CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_String, TEXT("OldText"));
	Orphan->bOrphanedPin = true;
	Compile();
	const FString Errors = Said(EMessageSeverity::Error);
	EXPECT_TRUE(Errors.Contains(TEXT("is pointing at an invalid macro graph."))) << TCHAR_TO_UTF8(*Errors);
	EXPECT_TRUE(Errors.Contains(TEXT("must have a Class specified."))) << TCHAR_TO_UTF8(*Errors);
	EXPECT_TRUE(Said(EMessageSeverity::Warning).Contains(TEXT("Old Text no longer exists on node Print String")))
		<< TCHAR_TO_UTF8(*Said(EMessageSeverity::Warning));
}

TEST_F(FCompilerTest, UsersOfAChangedMemberAreRefreshedAndChecked)
{
	AddInteger(TEXT("Count"));
	Compile();
	UBlueprint* const User = FKismetEditorUtilities::CreateBlueprint(
		Blueprint->GeneratedClass.Get(), CreatePackage(TEXT("/Game/BP_User")), TEXT("BP_User"), BPTYPE_Normal);
	UBlueprint* const Maker = Blueprint;
	Blueprint = User;
	Graph = User->UbergraphPages[0];
	Event = Add<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Node)
		{ Node.CustomFunctionName = TEXT("Use"); });
	UK2Node_VariableSet* const Set = Variable<UK2Node_VariableSet>(TEXT("Count"));
	Chain(Event->GetThenPin(), Set->GetExecPin());
	Compile();
	ASSERT_EQ(Results->NumErrors, 0) << TCHAR_TO_UTF8(*Said(EMessageSeverity::Error));

	FBlueprintEditorUtils::RemoveMemberVariable(Maker, TEXT("Count"));
	FKismetEditorUtilities::CompileBlueprint(Maker);
	EXPECT_EQ(Maker->Status, BS_UpToDate);
	EXPECT_EQ(User->Status, BS_Error);
	EXPECT_TRUE(Set->bHasCompilerMessage);
}

TEST_F(FCompilerTest, AMissingParentAndARingOfParentsLeaveTheBlueprintAsItWas)
{
	UClass* const Before = Blueprint->GeneratedClass.Get();
	UClass* const Parent = Blueprint->ParentClass.Get();
	Blueprint->ParentClass = nullptr;
	Compile();
	EXPECT_EQ(Said(EMessageSeverity::Error), TEXT("The parent class of BP_Test does not exist. Reparent it to another class.|"));
	Blueprint->ParentClass = Before;
	Compile();
	EXPECT_TRUE(Said(EMessageSeverity::Error).StartsWith(TEXT("The parents of BP_Test form a ring")))
		<< TCHAR_TO_UTF8(*Said(EMessageSeverity::Error));
	Blueprint->ParentClass = Parent;
	Compile();
	EXPECT_EQ(Results->NumErrors, 0);
	EXPECT_EQ(Blueprint->GeneratedClass.Get(), Before);
	EXPECT_TRUE(Before->IsChildOf(AActor::StaticClass()));
}

TEST_F(FCompilerTest, TheSummaryEndsALogWithEvents)
{
	Results = MakeShared<FCompilerResultsLog>(true);
	FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::None, Results.Get());
	ASSERT_EQ(Results->Messages.Num(), 1);
	EXPECT_TRUE(Results->Messages[0]->ToText().ToString().StartsWith(TEXT("Compile of BP_Test successful! [in ")));
}
}
