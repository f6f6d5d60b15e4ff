#include "BlueprintEditTest.h"
#include "BlueprintText.h"
#include "EdGraphUtilities.h"
#include "K2Node_Composite.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_MakeArray.h"
#include "NodeTextImportResult.h"
#include "NodeTextSamples.h"

namespace
{
class FMacroDependentsTest : public FBlueprintEditTest
{
protected:
	static UEdGraph* AddMacro(UBlueprint* ToBlueprint, const TCHAR* Name)
	{
		UEdGraph* const Macro =
			FBlueprintEditorUtils::CreateNewGraph(ToBlueprint, FName(Name), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddMacroGraph(ToBlueprint, Macro, true, nullptr);
		return Macro;
	}

	static UK2Node_Tunnel* GetEnd(const UEdGraph* Macro, bool bEntry)
	{
		return const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(Macro, bEntry));
	}

	static UK2Node_MacroInstance* UseMacro(UEdGraph* In, UEdGraph* Macro)
	{
		return AddNode<UK2Node_MacroInstance>(In, [Macro](UK2Node_MacroInstance& Node)
			{ Node.SetMacroGraph(Macro); });
	}

	/** An edit of the macro's entry as a user makes it: the pins, then what the editor does after each edit. */
	static void EditEntry(UBlueprint* Of, const UEdGraph* Macro, TFunctionRef<void(UK2Node_Tunnel&)> Edit)
	{
		const FScopedTransaction Transaction(Title(TEXT("Edit Macro")));
		Edit(*GetEnd(Macro, true));
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Of);
	}

	static TArray<UEdGraphNode*> Paste(UEdGraph* Into, const UEdGraphNode* Copied)
	{
		FString Text;
		FEdGraphUtilities::ExportNodesToText({const_cast<UEdGraphNode*>(Copied)}, Text);
		const FNodeTextImportResult Pasted = FEdGraphUtilities::ImportNodesFromTextWithResult(Into, Text);
		TSet<UEdGraphNode*> Nodes;
		for (UEdGraphNode* const Node : Pasted.Nodes)
		{
			Nodes.Add(Node);
		}
		FEdGraphUtilities::PostProcessPastedNodes(Nodes);
		return Pasted.Nodes;
	}
};

TEST_F(FMacroDependentsTest, InstancesInEveryLoadedBlueprintFollowAnEditOfTheMacrosPins)
{
	UBlueprint* const Library = MakeBlueprint(TEXT("BPML"), AActor::StaticClass(), BPTYPE_MacroLibrary);
	UEdGraph* const Macro = AddMacro(Library, TEXT("Ring"));
	UBlueprint* const Other = MakeBlueprint(TEXT("BP_Other"));
	UK2Node_MacroInstance* const Here = UseMacro(Graph, Macro);
	UK2Node_MacroInstance* const There = UseMacro(FBlueprintEditorUtils::FindEventGraph(Other), Macro);
	for (UBlueprint* const User : {Blueprint, Other})
	{
		FKismetEditorUtilities::CompileBlueprint(User);
		User->GetPackage()->SetDirtyFlag(false);
	}
	GEditor->ResetTransaction(Title(TEXT("Test")));

	EditEntry(Library, Macro, [](UK2Node_Tunnel& Entry)
		{
			Entry.CreateUserDefinedPin(TEXT("Times"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
			Entry.CreateUserDefinedPin(TEXT("Loud"), MakeType(UEdGraphSchema_K2::PC_Boolean), EGPD_Output); });
	for (const UK2Node_MacroInstance* const Instance : {Here, There})
	{
		ASSERT_NE(Instance->FindPin(TEXT("Times"), EGPD_Input), nullptr);
		ASSERT_NE(Instance->FindPin(TEXT("Loud"), EGPD_Input), nullptr);
		EXPECT_TRUE(Instance->GetBlueprint()->GetPackage()->IsDirty());
		EXPECT_EQ(Instance->GetBlueprint()->Status, BS_Dirty);
	}
	Here->FindPin(TEXT("Times"))->DefaultValue = TEXT("3");

	EditEntry(Library, Macro, [](UK2Node_Tunnel& Entry)
		{ Entry.RemoveUserDefinedPinByName(TEXT("Loud")); });
	EXPECT_EQ(There->FindPin(TEXT("Loud")), nullptr);
	EXPECT_EQ(Here->FindPin(TEXT("Times"))->DefaultValue, FString(TEXT("3"))) << "what the user set stays";

	EditEntry(Library, Macro, [](UK2Node_Tunnel& Entry)
		{ Entry.ModifyUserDefinedPinDefaultValue(Entry.UserDefinedPins[0], TEXT("5")); });
	EXPECT_EQ(There->FindPin(TEXT("Times"))->DefaultValue, FString(TEXT("5")));
	EXPECT_EQ(Here->FindPin(TEXT("Times"))->DefaultValue, FString(TEXT("3")));
	EditEntry(Library, Macro, [](UK2Node_Tunnel& Entry)
		{ Entry.ModifyUserDefinedPinDefaultValue(Entry.UserDefinedPins[0], FString()); });
	EXPECT_EQ(There->FindPin(TEXT("Times"))->DefaultValue, FString(TEXT("0")));

	EditEntry(Library, Macro, [](UK2Node_Tunnel& Entry)
		{
			Entry.UserDefinedPins[0]->PinType = MakeType(UEdGraphSchema_K2::PC_Name);
			Entry.ReconstructNode(); });
	EXPECT_EQ(There->FindPin(TEXT("Times"))->PinType.PinCategory, UEdGraphSchema_K2::PC_Name);
	EXPECT_EQ(Here->FindPin(TEXT("Times"))->PinType.PinCategory, UEdGraphSchema_K2::PC_Name);

	for (int32 Edit = 0; Edit < 5; ++Edit)
	{
		ASSERT_TRUE(Undo());
	}
	EXPECT_EQ(There->Pins.Num(), 0);
	EXPECT_EQ(Here->Pins.Num(), 0);
	for (int32 Edit = 0; Edit < 5; ++Edit)
	{
		ASSERT_TRUE(Redo());
	}
	EXPECT_EQ(There->FindPin(TEXT("Times"))->PinType.PinCategory, UEdGraphSchema_K2::PC_Name);
	EXPECT_EQ(There->FindPin(TEXT("Loud")), nullptr);
}

TEST_F(FMacroDependentsTest, AnEditThatLeavesTheEndsAloneLeavesInstancesAlone)
{
	UEdGraph* const Macro = AddMacro(Blueprint, TEXT("Ring"));
	EditEntry(Blueprint, Macro, [](UK2Node_Tunnel& Entry)
		{ Entry.CreateUserDefinedPin(TEXT("Items"), MakeType(UEdGraphSchema_K2::PC_Wildcard), EGPD_Output); });
	UBlueprint* const Other = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	UEdGraph* const Page = FBlueprintEditorUtils::FindEventGraph(Other);
	UK2Node_MacroInstance* const Instance = UseMacro(Page, Macro);
	UK2Node_CallFunction* const Giver = AddCall(Page, TEXT("/Script/Engine.KismetMathLibrary"), TEXT("RandomInteger"));
	ASSERT_TRUE(Page->GetSchema()->TryCreateConnection(Giver->GetReturnValuePin(), Instance->FindPin(TEXT("Items"))));
	const UEdGraphPin* const Pin = Instance->FindPin(TEXT("Items"));
	ASSERT_EQ(Pin->PinType.PinCategory, UEdGraphSchema_K2::PC_Int);
	Other->GetPackage()->SetDirtyFlag(false);
	AddCall(Macro, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	EXPECT_EQ(Instance->FindPin(TEXT("Items")), Pin) << "the pin itself, not one like it";
	EXPECT_FALSE(Other->GetPackage()->IsDirty());
	// A wildcard that takes its type from a link is not another pin for that; one more is.
	EditEntry(Blueprint, Macro, [](UK2Node_Tunnel& Entry)
		{ Entry.CreateUserDefinedPin(TEXT("Item"), MakeType(UEdGraphSchema_K2::PC_Wildcard), EGPD_Output); });
	ASSERT_NE(Instance->FindPin(TEXT("Item")), nullptr);
	EXPECT_EQ(Instance->FindPin(TEXT("Item"))->PinType.PinCategory, UEdGraphSchema_K2::PC_Int) << "wildcards of a macro are of one type";
	EXPECT_EQ(Instance->FindPin(TEXT("Item"))->DefaultValue, FString(TEXT("0")));
	EXPECT_EQ(Instance->FindPin(TEXT("Items"))->LinkedTo.Num(), 1);
}

TEST_F(FMacroDependentsTest, ANodeOfACollapsedGraphFollowsItsEnds)
{
	UK2Node_Composite* const Composite = AddNode<UK2Node_Composite>(Graph);
	GEditor->ResetTransaction(Title(TEXT("Test")));
	EditEntry(Blueprint, Composite->BoundGraph, [](UK2Node_Tunnel& Entry)
		{ Entry.CreateUserDefinedPin(TEXT("Times"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output); });
	EXPECT_NE(Composite->FindPin(TEXT("Times"), EGPD_Input), nullptr);
	Undo();
	EXPECT_EQ(Composite->FindPin(TEXT("Times"), EGPD_Input), nullptr);
}

TEST_F(FMacroDependentsTest, AnInstanceOfAMacroThatIsRemovedIsAnErrorUntilTheUndo)
{
	UEdGraph* const Macro = AddMacro(Blueprint, TEXT("Ring"));
	EditEntry(Blueprint, Macro, [](UK2Node_Tunnel& Entry)
		{ Entry.CreateUserDefinedPin(TEXT("Go"), MakeType(UEdGraphSchema_K2::PC_Exec), EGPD_Output); });
	UK2Node_MacroInstance* const Instance = UseMacro(Graph, Macro);
	UK2Node_CustomEvent* const Start = AddNode<UK2Node_CustomEvent>(Graph);
	ASSERT_TRUE(Graph->GetSchema()->TryCreateConnection(Start->FindPin(UEdGraphSchema_K2::PN_Then), Instance->FindPin(TEXT("Go"))));
	ASSERT_EQ(CompileForErrors(Blueprint), FString());
	GEditor->ResetTransaction(Title(TEXT("Test")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove Macro")));
		FBlueprintEditorUtils::RemoveGraph(Blueprint, Macro);
	}
	Collect();
	EXPECT_EQ(Instance->GetMacroGraph(), nullptr);
	EXPECT_NE(Instance->FindPin(TEXT("Go")), nullptr) << "the node stays as it was";
	const FString Errors = CompileForErrors(Blueprint);
	EXPECT_TRUE(Errors.Contains(TEXT("invalid macro graph"))) << TCHAR_TO_UTF8(*Errors);
	Undo();
	EXPECT_EQ(Instance->GetMacroGraph(), Macro);
	EXPECT_EQ(CompileForErrors(Blueprint), FString());
}

TEST_F(FMacroDependentsTest, AMacroOfAnotherBlueprintIsNotTakenForOneOfTheSameName)
{
	UEdGraph* const Macro = AddMacro(Blueprint, TEXT("Ring"));
	EditEntry(Blueprint, Macro, [](UK2Node_Tunnel& Entry)
		{ Entry.CreateUserDefinedPin(TEXT("Times"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output); });
	const UK2Node_MacroInstance* const Instance = UseMacro(Graph, Macro);
	UBlueprint* const Other = MakeBlueprint(TEXT("BP_Other"));
	UEdGraph* const SameName = AddMacro(Other, TEXT("Ring"));
	const TArray<UEdGraphNode*> Pasted = Paste(FBlueprintEditorUtils::FindEventGraph(Other), Instance);
	ASSERT_EQ(Pasted.Num(), 1);
	const UK2Node_MacroInstance* const Copy = CastChecked<UK2Node_MacroInstance>(Pasted[0]);
	EXPECT_EQ(Copy->GetMacroGraph(), nullptr);
	EXPECT_NE(Copy->FindPin(TEXT("Times")), nullptr) << "its pins still show what was copied";
	EXPECT_EQ(SameName->GetOuter(), Other);

	// A child may use its parent's macro, and everyone may use a library's.
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	AddMacro(Child, TEXT("Ring"));
	EXPECT_EQ(CastChecked<UK2Node_MacroInstance>(Paste(FBlueprintEditorUtils::FindEventGraph(Child), Instance)[0])->GetMacroGraph(), Macro);
	UBlueprint* const Library = MakeBlueprint(TEXT("BPML"), AActor::StaticClass(), BPTYPE_MacroLibrary);
	UEdGraph* const Shared = AddMacro(Library, TEXT("Ring"));
	EXPECT_EQ(CastChecked<UK2Node_MacroInstance>(Paste(FBlueprintEditorUtils::FindEventGraph(Other), UseMacro(Graph, Shared))[0])
				  ->GetMacroGraph(),
		Shared);
}

TEST_F(FMacroDependentsTest, AMacroDoesNotTakeACopyOfItself)
{
	UEdGraph* const Macro = AddMacro(Blueprint, TEXT("Ring"));
	EXPECT_EQ(Paste(Macro, UseMacro(Graph, Macro)).Num(), 0);
	EXPECT_EQ(Paste(Graph, UseMacro(Graph, Macro)).Num(), 1);
}

TEST_F(FMacroDependentsTest, ACollapsedGraphsCopyGetsAGraphOfItsOwnBesideOneOfTheSameName)
{
	UK2Node_Composite* const Composite = AddNode<UK2Node_Composite>(Graph);
	Composite->OnRenameNode(TEXT("Ring"));
	AddCall(Composite->BoundGraph, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
	UBlueprint* const Other = MakeBlueprint(TEXT("BP_Other"));
	UEdGraph* const Page = FBlueprintEditorUtils::FindEventGraph(Other);
	UEdGraph* const Macro = AddMacro(Other, TEXT("Ring"));
	UK2Node_Composite* const Existing = AddNode<UK2Node_Composite>(Page);
	Existing->OnRenameNode(TEXT("Ring"));
	const TArray<UEdGraphNode*> Pasted = Paste(Page, Composite);
	ASSERT_EQ(Pasted.Num(), 1);
	const UK2Node_Composite* const Copy = CastChecked<UK2Node_Composite>(Pasted[0]);
	ASSERT_NE(Copy->BoundGraph, nullptr);
	EXPECT_NE(Copy->BoundGraph, Composite->BoundGraph);
	EXPECT_EQ(Copy->BoundGraph->GetTypedOuter<UBlueprint>(), Other);
	EXPECT_EQ(Copy->BoundGraph->GetName(), TEXT("Ring_0"));
	EXPECT_EQ(Existing->BoundGraph->GetName(), TEXT("Ring"));
	EXPECT_EQ(Macro->GetName(), TEXT("Ring"));
	EXPECT_EQ(Copy->BoundGraph->Nodes.Num(), 3) << "two ends and the call";
	EXPECT_TRUE(Page->SubGraphs.Contains(Copy->BoundGraph));
	EXPECT_EQ(CompileForErrors(Other), FString());
}
}
