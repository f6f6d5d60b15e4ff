#include "BlueprintEditTest.h"
#include "EdGraphUtilities.h"
#include "K2Node_CustomEvent.h"
#include "NodeTextImportResult.h"
#include "UObject/Interface.h"

namespace
{
class FPastedEventTest : public FBlueprintEditTest
{
protected:
	UK2Node_Event* AddOverride(UEdGraph* To, FName Name, UClass* Class)
	{
		return AddNode<UK2Node_Event>(To, [&](UK2Node_Event& Event)
			{
				Event.EventReference.SetExternalMember(Name, Class);
				Event.bOverrideFunction = true; });
	}

	/** Pastes copies of the nodes as one edit. */
	FNodeTextImportResult Paste(UEdGraph* Into, const TSet<UObject*>& Copied)
	{
		FString Text;
		FEdGraphUtilities::ExportNodesToText(Copied, Text);
		const FScopedTransaction Transaction(Title(TEXT("Paste")));
		Into->Modify();
		const FNodeTextImportResult Pasted = FEdGraphUtilities::ImportNodesFromTextWithResult(Into, Text);
		TSet<UEdGraphNode*> Nodes;
		for (UEdGraphNode* const Node : Pasted.Nodes)
		{
			Nodes.Add(Node);
		}
		FEdGraphUtilities::PostProcessPastedNodes(Nodes);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(FBlueprintEditorUtils::FindBlueprintForGraph(Into));
		return Pasted;
	}

	static const UK2Node_CustomEvent* FindCustom(const FNodeTextImportResult& Pasted)
	{
		UEdGraphNode* const* const Found = Pasted.Nodes.FindByPredicate([](const UEdGraphNode* Node)
			{ return Node->IsA<UK2Node_CustomEvent>(); });
		return Found ? Cast<UK2Node_CustomEvent>(*Found) : nullptr;
	}
};

TEST_F(FPastedEventTest, AnEventThatIsThereAlreadyBecomesACustomEventWithItsLinks)
{
	UBlueprint* const Source = MakeBlueprint(TEXT("BP_Source"));
	UEdGraph* const Page = FBlueprintEditorUtils::FindEventGraph(Source);
	UK2Node_Event* const Tick = AddOverride(Page, TEXT("ReceiveTick"), AActor::StaticClass());
	UK2Node_CallFunction* const Print = AddCall(Page, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
	ASSERT_TRUE(Page->GetSchema()->TryCreateConnection(Tick->FindPin(UEdGraphSchema_K2::PN_Then), Print->GetExecPin()));

	const FNodeTextImportResult First = Paste(Graph, {Tick, Print});
	ASSERT_EQ(First.Nodes.Num(), 2);
	EXPECT_EQ(First.Warnings.Num(), 0);
	EXPECT_EQ(First.Nodes[0]->GetClass(), UK2Node_Event::StaticClass()) << "the suggestion of the editor gives way";
	TArray<UK2Node_Event*> Ticks;
	FBlueprintEditorUtils::GetAllNodesOfClass(Blueprint, Ticks);
	Ticks.RemoveAll([](const UK2Node_Event* Event)
		{ return Event->GetFunctionName() != TEXT("ReceiveTick"); });
	EXPECT_EQ(Ticks.Num(), 1);

	GEditor->ResetTransaction(Title(TEXT("Test")));
	const int32 NumNodes = Graph->Nodes.Num();
	const FNodeTextImportResult Second = Paste(Graph, {Tick, Print});
	ASSERT_EQ(Second.Nodes.Num(), 2);
	ASSERT_EQ(Second.Warnings.Num(), 1);
	const UK2Node_CustomEvent* const Custom = FindCustom(Second);
	ASSERT_NE(Custom, nullptr);
	EXPECT_EQ(Custom->CustomFunctionName, FName(TEXT("ReceiveTick_0")));
	ASSERT_NE(Custom->FindPin(TEXT("DeltaSeconds"), EGPD_Output), nullptr);
	const UEdGraphPin* const Then = Custom->FindPin(UEdGraphSchema_K2::PN_Then);
	ASSERT_EQ(Then->LinkedTo.Num(), 1);
	EXPECT_TRUE(Second.Nodes.Contains(Then->LinkedTo[0]->GetOwningNode()));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
	EXPECT_NE(Blueprint->GeneratedClass->FindFunctionByName(TEXT("ReceiveTick_0")), nullptr);
	Undo();
	EXPECT_EQ(Graph->Nodes.Num(), NumNodes);
	Redo();
	EXPECT_EQ(Graph->Nodes.Num(), NumNodes + 2);
	EXPECT_EQ(Custom->FindPin(UEdGraphSchema_K2::PN_Then)->LinkedTo.Num(), 1);
}

TEST_F(FPastedEventTest, AnEventOfAClassThatIsNoParentBecomesACustomEvent)
{
	UBlueprint* const Source = MakeBlueprint(TEXT("BP_Source"), FindObject<UClass>(nullptr, TEXT("/Script/Engine.Pawn")));
	UEdGraph* const Page = FBlueprintEditorUtils::FindEventGraph(Source);
	const FNodeTextImportResult Pasted =
		Paste(Graph, {AddOverride(Page, TEXT("ReceivePossessed"), FindObject<UClass>(nullptr, TEXT("/Script/Engine.Pawn")))});
	const UK2Node_CustomEvent* const Custom = FindCustom(Pasted);
	ASSERT_NE(Custom, nullptr);
	EXPECT_EQ(Custom->CustomFunctionName, FName(TEXT("ReceivePossessed")));
	EXPECT_NE(Custom->FindPin(TEXT("NewController"), EGPD_Output), nullptr);
}

TEST_F(FPastedEventTest, AFunctionTakesNoEvent)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Measure"));
	const int32 NumNodes = Function->Nodes.Num();
	const FNodeTextImportResult Pasted = Paste(Function, {AddOverride(Graph, TEXT("ReceiveDestroyed"), AActor::StaticClass())});
	EXPECT_EQ(Pasted.Nodes.Num(), 0);
	EXPECT_EQ(Pasted.SkippedNodes.Num(), 1);
	EXPECT_EQ(Function->Nodes.Num(), NumNodes);
}
}
