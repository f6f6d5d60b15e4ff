#include "BlueprintEditTest.h"
#include "BlueprintText.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "UObject/UnrealType.h"

namespace
{
class FBlueprintFunctionTest : public FBlueprintEditTest
{
protected:
	static UK2Node_FunctionEntry* GetEntry(const UEdGraph* Function)
	{
		return CastChecked<UK2Node_FunctionEntry>(FBlueprintEditorUtils::GetEntryNode(Function));
	}

	static const UFunction* FindFunction(const UBlueprint* Of, const TCHAR* Name)
	{
		return Of->SkeletonGeneratedClass->FindFunctionByName(Name);
	}

	static UK2Node_CallFunction* AddCallOf(UEdGraph* ToGraph, const UFunction* Function)
	{
		return AddNode<UK2Node_CallFunction>(ToGraph, [Function](UK2Node_CallFunction& Node)
			{ Node.SetFromFunction(Function); });
	}
};

TEST_F(FBlueprintFunctionTest, CallsStartWithTheValuesThatParametersHaveAtTheEntry)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	UK2Node_FunctionEntry* const Entry = GetEntry(Function);
	UEdGraphPin* const Width = Entry->CreateUserDefinedPin(TEXT("Width"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
	Entry->CreateUserDefinedPin(TEXT("Name"), MakeType(UEdGraphSchema_K2::PC_String), EGPD_Output);
	ASSERT_TRUE(Entry->ModifyUserDefinedPinDefaultValue(Entry->UserDefinedPins[0], TEXT("42")));
	EXPECT_EQ(Width->DefaultValue, TEXT("42"));
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	const UK2Node_CallFunction* const Call = AddCallOf(Graph, FindFunction(Blueprint, TEXT("Open")));
	EXPECT_EQ(Call->FindPin(TEXT("Width"))->DefaultValue, TEXT("42"));
	EXPECT_EQ(Call->FindPin(TEXT("Name"))->DefaultValue, FString());
}

TEST_F(FBlueprintFunctionTest, WhatIsDeclaredOfAFunctionReachesItsCalls)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	UK2Node_FunctionEntry* const Entry = GetEntry(Function);
	Entry->MetaData.Category = Title(TEXT("Doors|Main"));
	Entry->MetaData.ToolTip = Title(TEXT("Opens it."));
	Entry->MetaData.Keywords = Title(TEXT("unlock"));
	Entry->MetaData.CompactNodeTitle = Title(TEXT("OP"));
	Entry->MetaData.bCallInEditor = true;
	Entry->MetaData.bIsDeprecated = true;
	Entry->MetaData.DeprecationMessage = TEXT("Use Unlock.");
	Entry->AddExtraFlags(FUNC_BlueprintPure);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	const UFunction* const Declared = FindFunction(Blueprint, TEXT("Open"));
	EXPECT_TRUE(Declared->HasAllFunctionFlags(FUNC_BlueprintPure | FUNC_BlueprintCallable));
	EXPECT_EQ(Declared->GetMetaData(TEXT("CallInEditor")), TEXT("true"));
	EXPECT_FALSE(Declared->HasMetaData(TEXT("BlueprintThreadSafe")));
	UK2Node_CallFunction* const Call = AddCallOf(Graph, Declared);
	EXPECT_TRUE(Call->IsNodePure());
	EXPECT_EQ(Call->GetExecPin(), nullptr);
	EXPECT_EQ(Call->GetCompactNodeTitle().ToString(), TEXT("OP"));
	EXPECT_TRUE(Call->GetTooltipText().ToString().Contains(TEXT("Opens it.")));
	EXPECT_TRUE(Call->GetKeywords().ToString().Contains(TEXT("unlock")));
	EXPECT_EQ(Call->GetMenuCategory().ToString(), TEXT("Doors|Main"));

	// A pure call is compiled where its value is taken; here something is executed that does so.
	Entry->ClearExtraFlags(FUNC_BlueprintPure);
	FBlueprintEditorUtils::RefreshAllNodes(Blueprint);
	ASSERT_NE(Call->GetExecPin(), nullptr) << "the call follows the function";
	Graph->Nodes[0]->FindPin(UEdGraphSchema_K2::PN_Then)->MakeLinkTo(Call->GetExecPin());
	EXPECT_TRUE(FString::Join(Compile(Blueprint), TEXT("|")).Contains(TEXT("is deprecated. Use Unlock.")));
}

TEST_F(FBlueprintFunctionTest, ACustomEventsDefaultsAndFlagsAreItsFunctions)
{
	UK2Node_CustomEvent* const Event = AddNode<UK2Node_CustomEvent>(Graph, [](UK2Node_CustomEvent& Node)
		{
			Node.CustomFunctionName = TEXT("Knock");
			Node.bCallInEditor = true;
			Node.FunctionFlags |= FUNC_Net | FUNC_NetServer | FUNC_NetReliable; });
	Event->CreateUserDefinedPin(TEXT("Times"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
	ASSERT_TRUE(Event->ModifyUserDefinedPinDefaultValue(Event->UserDefinedPins[0], TEXT("3")));
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const UFunction* const Function = Blueprint->GeneratedClass->FindFunctionByName(TEXT("Knock"));
	ASSERT_NE(Function, nullptr);
	EXPECT_TRUE(Function->HasAllFunctionFlags(FUNC_BlueprintEvent | FUNC_Net | FUNC_NetServer | FUNC_NetReliable | FUNC_BlueprintCallable));
	EXPECT_EQ(Function->GetMetaData(TEXT("CallInEditor")), TEXT("true"));
	EXPECT_EQ(AddCallOf(Graph, Function)->FindPin(TEXT("Times"))->DefaultValue, TEXT("3"));
}

TEST_F(FBlueprintFunctionTest, APrivateFunctionIsForItsOwnBlueprintAndAProtectedOneForItsChildren)
{
	AddFunction(Blueprint, TEXT("Mine"));
	AddFunction(Blueprint, TEXT("Ours"));
	GetEntry(UEdGraphSchema_K2::GetFunctionGraph(Blueprint, TEXT("Mine")))->SetExtraFlags(FUNC_Private | FUNC_BlueprintCallable);
	GetEntry(UEdGraphSchema_K2::GetFunctionGraph(Blueprint, TEXT("Ours")))->SetExtraFlags(FUNC_Protected | FUNC_BlueprintCallable);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UEdGraph* const ChildGraph = FBlueprintEditorUtils::FindEventGraph(Child);
	UEdGraphPin* Then = ChildGraph->Nodes[0]->FindPin(UEdGraphSchema_K2::PN_Then);
	for (const TCHAR* const Name : {TEXT("Mine"), TEXT("Ours")})
	{
		const UK2Node_CallFunction* const Call = AddCallOf(ChildGraph, Blueprint->GeneratedClass->FindFunctionByName(Name));
		ASSERT_TRUE(ChildGraph->GetSchema()->TryCreateConnection(Then, Call->GetExecPin()));
		Then = Call->GetThenPin();
	}
	const FString Errors = CompileForErrors(Child);
	EXPECT_TRUE(Errors.Contains(TEXT("Function Mine is private and cannot be called outside of"))) << TCHAR_TO_UTF8(*Errors);
	EXPECT_FALSE(Errors.Contains(TEXT("Ours"))) << TCHAR_TO_UTF8(*Errors);
}

TEST_F(FBlueprintFunctionTest, CallsFollowTheParametersAndAnUndoTakesBothBack)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	UK2Node_CallFunction* const Call = AddCallOf(Graph, FindFunction(Blueprint, TEXT("Open")));
	UK2Node_CallFunction* const Sum = AddCall(Graph, TEXT("/Script/Engine.KismetMathLibrary"), TEXT("Add_IntInt"));
	GEditor->ResetTransaction(Title(TEXT("Test")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Add parameter")));
		UK2Node_FunctionEntry* const Entry = GetEntry(Function);
		Entry->Modify();
		Entry->CreateUserDefinedPin(TEXT("Width"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	UEdGraphPin* const Width = Call->FindPin(TEXT("Width"));
	ASSERT_NE(Width, nullptr);
	{
		const FScopedTransaction Transaction(Title(TEXT("Link")));
		ASSERT_TRUE(Graph->GetSchema()->TryCreateConnection(Sum->GetReturnValuePin(), Width));
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove parameter")));
		UK2Node_FunctionEntry* const Entry = GetEntry(Function);
		Entry->Modify();
		Entry->RemoveUserDefinedPin(Entry->UserDefinedPins[0]);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	ASSERT_NE(Call->FindPin(TEXT("Width")), nullptr) << "its link is kept for the user to see";
	EXPECT_TRUE(Call->FindPin(TEXT("Width"))->bOrphanedPin);
	Graph->Nodes[0]->FindPin(UEdGraphSchema_K2::PN_Then)->MakeLinkTo(Call->GetExecPin());
	EXPECT_TRUE(CompileForErrors(Blueprint).Contains(TEXT("In use pin Width no longer exists on node Open.")));
	Graph->Nodes[0]->FindPin(UEdGraphSchema_K2::PN_Then)->BreakAllPinLinks();
	Undo();
	ASSERT_NE(Call->FindPin(TEXT("Width")), nullptr);
	EXPECT_FALSE(Call->FindPin(TEXT("Width"))->bOrphanedPin);
	EXPECT_EQ(Call->FindPin(TEXT("Width"))->LinkedTo.Num(), 1);
	Undo();
	Undo();
	EXPECT_EQ(Call->FindPin(TEXT("Width")), nullptr);
	Redo();
	EXPECT_NE(Call->FindPin(TEXT("Width")), nullptr);
}

TEST_F(FBlueprintFunctionTest, CallsAndOverridesInOtherBlueprintsFollowAndTheUndoTakesAllBackThoughTheyWereCompiled)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	UK2Node_FunctionEntry* const Entry = GetEntry(Function);
	Entry->CreateUserDefinedPin(TEXT("Width"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
	Entry->CreateUserDefinedPin(TEXT("Height"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UEdGraph* const Override =
		FBlueprintEditorUtils::CreateNewGraph(Child, TEXT("Open"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph(Child, Override, false, Blueprint->GeneratedClass.Get());
	UBlueprint* const Other = MakeBlueprint(TEXT("BP_Other"));
	UEdGraph* const Page = FBlueprintEditorUtils::FindEventGraph(Other);
	const UK2Node_CallFunction* const Call = AddCallOf(Page, Blueprint->GeneratedClass->FindFunctionByName(TEXT("Open")));
	UK2Node_CallFunction* const Giver = AddCall(Page, TEXT("/Script/Engine.KismetMathLibrary"), TEXT("RandomInteger"));
	ASSERT_TRUE(Page->GetSchema()->TryCreateConnection(Giver->GetReturnValuePin(), Call->FindPin(TEXT("Height"))));
	Call->FindPin(TEXT("Width"))->DefaultValue = TEXT("7");
	for (UBlueprint* const User : {Child, Other})
	{
		FKismetEditorUtilities::CompileBlueprint(User);
		User->GetPackage()->SetDirtyFlag(false);
	}
	GEditor->ResetTransaction(Title(TEXT("Test")));
	const FString ChildBefore = FBlueprintText::Take(*Child);
	const FString OtherBefore = FBlueprintText::Take(*Other);
	{
		const FScopedTransaction Transaction(Title(TEXT("Edit")));
		Entry->RemoveUserDefinedPinByName(TEXT("Width"));
		Entry->RemoveUserDefinedPinByName(TEXT("Height"));
		Entry->CreateUserDefinedPin(TEXT("Depth"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	EXPECT_NE(Call->FindPin(TEXT("Depth")), nullptr);
	ASSERT_NE(Call->FindPin(TEXT("Height")), nullptr);
	EXPECT_TRUE(Call->FindPin(TEXT("Height"))->bOrphanedPin) << "its link is not lost";
	EXPECT_NE(FBlueprintEditorUtils::GetEntryNode(Override)->FindPin(TEXT("Depth")), nullptr);
	EXPECT_TRUE(Child->GetPackage()->IsDirty());
	EXPECT_TRUE(Other->GetPackage()->IsDirty());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const FString ChildAfter = FBlueprintText::Take(*Child);
	const FString OtherAfter = FBlueprintText::Take(*Other);
	Undo();
	EXPECT_EQ(DescribeDifference(ChildBefore, FBlueprintText::Take(*Child)), FString());
	EXPECT_EQ(DescribeDifference(OtherBefore, FBlueprintText::Take(*Other)), FString());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(DescribeDifference(OtherBefore, FBlueprintText::Take(*Other)), FString());
	EXPECT_EQ(Other->Status, BS_UpToDate);
	Redo();
	EXPECT_EQ(DescribeDifference(ChildAfter, FBlueprintText::Take(*Child)), FString());
	EXPECT_EQ(DescribeDifference(OtherAfter, FBlueprintText::Take(*Other)), FString());
}
}
