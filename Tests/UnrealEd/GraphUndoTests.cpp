#include "BlueprintEditTest.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "Editor/Transactor.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_Knot.h"

namespace
{
const TCHAR* const SystemLibrary = TEXT("/Script/Engine.KismetSystemLibrary");
const TCHAR* const MathLibrary = TEXT("/Script/Engine.KismetMathLibrary");

class FGraphUndoTest : public FBlueprintEditTest
{
protected:
	virtual void SetUp() override
	{
		FBlueprintEditTest::SetUp();
		Source = AddCall(Graph, SystemLibrary, TEXT("Delay"));
		Target = AddCall(Graph, SystemLibrary, TEXT("PrintString"));
		Other = AddCall(Graph, SystemLibrary, TEXT("PrintString"));
		ASSERT_TRUE(Source && Target && Other);
	}

	static UEdGraphPin* Then(const UEdGraphNode* Node) { return Node->FindPin(UEdGraphSchema_K2::PN_Then); }
	static UEdGraphPin* Execute(const UEdGraphNode* Node) { return Node->FindPin(UEdGraphSchema_K2::PN_Execute); }
	static const UEdGraphSchema_K2& Schema() { return *GetDefault<UEdGraphSchema_K2>(); }

	UK2Node_CallFunction* Source = nullptr;
	UK2Node_CallFunction* Target = nullptr;
	UK2Node_CallFunction* Other = nullptr;
};

TEST_F(FGraphUndoTest, ALinkIsMadeAndUnmadeOnBothSides)
{
	{
		const FScopedTransaction Transaction(Title(TEXT("Link")));
		ASSERT_TRUE(Schema().TryCreateConnection(Then(Source), Execute(Target)));
	}
	UEdGraphPin* const ThenPin = Then(Source);
	Undo();
	EXPECT_EQ(Then(Source)->LinkedTo.Num(), 0);
	EXPECT_EQ(Execute(Target)->LinkedTo.Num(), 0);
	Redo();
	EXPECT_EQ(Then(Source), ThenPin);
	ASSERT_EQ(Then(Source)->LinkedTo.Num(), 1);
	EXPECT_EQ(Then(Source)->LinkedTo[0], Execute(Target));
	EXPECT_EQ(Execute(Target)->LinkedTo[0], Then(Source));
}

TEST_F(FGraphUndoTest, ALinkThatReplacedAnotherGivesItBack)
{
	Then(Source)->MakeLinkTo(Execute(Target));
	{
		const FScopedTransaction Transaction(Title(TEXT("Relink")));
		ASSERT_TRUE(Schema().TryCreateConnection(Then(Source), Execute(Other)));
	}
	ASSERT_EQ(Execute(Target)->LinkedTo.Num(), 0);
	Undo();
	EXPECT_EQ(Execute(Other)->LinkedTo.Num(), 0);
	ASSERT_EQ(Then(Source)->LinkedTo.Num(), 1);
	EXPECT_EQ(Then(Source)->LinkedTo[0], Execute(Target));
	EXPECT_EQ(Execute(Target)->LinkedTo[0], Then(Source));
}

TEST_F(FGraphUndoTest, TheOrderOfManyLinksIsKept)
{
	UK2Node_CallFunction* const Add = AddCall(Graph, MathLibrary, TEXT("Add_IntInt"));
	UEdGraphPin* const Result = Add->GetReturnValuePin();
	TArray<UK2Node_CallFunction*> Users;
	for (int32 Index = 0; Index < 5; ++Index)
	{
		Users.Add(AddCall(Graph, MathLibrary, TEXT("Add_IntInt")));
		Result->MakeLinkTo(Users[Index]->FindPin(TEXT("A")));
	}
	const TArray<UEdGraphPin*> Links = Result->LinkedTo;
	{
		const FScopedTransaction Transaction(Title(TEXT("Delete")));
		FBlueprintEditorUtils::RemoveNode(Blueprint, Users[2]);
		FBlueprintEditorUtils::RemoveNode(Blueprint, Users[0]);
	}
	EXPECT_EQ(Result->LinkedTo.Num(), 3);
	Undo();
	EXPECT_EQ(Result->LinkedTo, Links);
	Redo();
	Collect();
	Undo();
	EXPECT_EQ(Result->LinkedTo.Num(), 5);
	for (int32 Index = 0; Index < 5; ++Index)
	{
		EXPECT_EQ(Result->LinkedTo[Index]->GetOwningNode(), Users[Index]);
		EXPECT_TRUE(Result->LinkedTo[Index]->LinkedTo.Contains(Result));
	}
}

TEST_F(FGraphUndoTest, ALinkThatOneSideAloneRecordedIsWholeOrGone)
{
	{
		const FScopedTransaction Transaction(Title(TEXT("Record the source alone")));
		Source->Modify();
		Source->NodePosX = 1;
	}
	// Made behind the transaction's back.
	Then(Source)->MakeLinkTo(Execute(Target));
	Undo();
	EXPECT_EQ(Then(Source)->LinkedTo.Num(), 0);
	EXPECT_EQ(Execute(Target)->LinkedTo.Num(), 0) << "the side that was not recorded still has the link";
	Redo();
	EXPECT_EQ(Then(Source)->LinkedTo.Num(), Execute(Target)->LinkedTo.Num());

	Then(Source)->BreakAllPinLinks();
	Then(Source)->MakeLinkTo(Execute(Other));
	{
		const FScopedTransaction Transaction(Title(TEXT("Record the source alone")));
		Source->Modify();
		Source->NodePosX = 2;
	}
	Other->DestroyNode();
	Undo();
	EXPECT_EQ(Then(Source)->LinkedTo.Num(), 0) << "a link to a node that has no end of it";
}

TEST_F(FGraphUndoTest, SplitPinsComeAndGoWithTheirValues)
{
	UK2Node_CallFunction* const Move = AddCall(Graph, TEXT("/Script/Engine.Actor"), TEXT("K2_SetActorLocation"));
	UEdGraphPin* const Location = Move->FindPin(TEXT("NewLocation"));
	Schema().TrySetDefaultValue(*Location, TEXT("1, 2, 3"));
	const int32 NumPins = Move->Pins.Num();
	{
		const FScopedTransaction Transaction(Title(TEXT("Split")));
		Schema().SplitPin(Location);
		Schema().TrySetDefaultValue(*Location->SubPins[1], TEXT("7.0"));
	}
	ASSERT_EQ(Move->Pins.Num(), NumPins + 3);
	Undo();
	Collect();
	EXPECT_EQ(Move->Pins.Num(), NumPins);
	EXPECT_EQ(Location->SubPins.Num(), 0);
	EXPECT_FALSE(Location->bHidden);
	EXPECT_EQ(Location->DefaultValue, TEXT("1, 2, 3"));
	Redo();
	ASSERT_EQ(Location->SubPins.Num(), 3);
	EXPECT_TRUE(Location->bHidden);
	EXPECT_EQ(Location->SubPins[1]->DefaultValue, TEXT("7.0"));
	EXPECT_EQ(Location->SubPins[1]->ParentPin, Location);
	EXPECT_EQ(Move->FindPin(TEXT("NewLocation_Y")), Location->SubPins[1]);
}

TEST_F(FGraphUndoTest, AnOrphanedPinBecomesAPinAgain)
{
	UK2Node_CustomEvent* const Event =
		AddNode<UK2Node_CustomEvent>(Graph, [](UK2Node_CustomEvent& Node)
			{ Node.CustomFunctionName = TEXT("Open"); });
	Event->CreateUserDefinedPin(TEXT("Speed"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	const UFunction* const Function = Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Open"));
	ASSERT_NE(Function, nullptr);
	UK2Node_CallFunction* const Call =
		AddNode<UK2Node_CallFunction>(Graph, [Function](UK2Node_CallFunction& Node)
			{ Node.SetFromFunction(Function); });
	ASSERT_NE(Call->FindPin(TEXT("Speed")), nullptr);
	Schema().TrySetDefaultValue(*Call->FindPin(TEXT("Speed")), TEXT("5"));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove Pin")));
		Event->Modify();
		Event->RemoveUserDefinedPinByName(TEXT("Speed"));
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
		Call->ReconstructNode();
	}
	ASSERT_NE(Call->FindPin(TEXT("Speed")), nullptr);
	EXPECT_TRUE(Call->FindPin(TEXT("Speed"))->bOrphanedPin);
	Undo();
	EXPECT_TRUE(Event->UserDefinedPinExists(TEXT("Speed")));
	ASSERT_NE(Call->FindPin(TEXT("Speed")), nullptr);
	EXPECT_FALSE(Call->FindPin(TEXT("Speed"))->bOrphanedPin);
	EXPECT_EQ(Call->FindPin(TEXT("Speed"))->DefaultValue, TEXT("5"));
	EXPECT_NE(Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Open"))->FindPropertyByName(TEXT("Speed")), nullptr)
		<< "the class follows";
	Redo();
	EXPECT_TRUE(Call->FindPin(TEXT("Speed"))->bOrphanedPin);
}

TEST_F(FGraphUndoTest, ReconstructionInATransactionKeepsPinsAndLinks)
{
	Then(Source)->MakeLinkTo(Execute(Target));
	const FGuid PinId = Then(Source)->PinId;
	{
		const FScopedTransaction Transaction(Title(TEXT("Refresh")));
		FBlueprintEditorUtils::RefreshAllNodes(Blueprint);
		Source->Modify();
		Source->NodePosY = 10;
	}
	Collect();
	Undo();
	EXPECT_EQ(Then(Source)->PinId, PinId);
	ASSERT_EQ(Then(Source)->LinkedTo.Num(), 1);
	EXPECT_EQ(Then(Source)->LinkedTo[0], Execute(Target));
}

TEST_F(FGraphUndoTest, ATypeThatALinkSpreadThroughReroutesIsTakenBack)
{
	UK2Node_Knot* const Near = AddNode<UK2Node_Knot>(Graph);
	UK2Node_Knot* const Far = AddNode<UK2Node_Knot>(Graph);
	ASSERT_TRUE(Schema().TryCreateConnection(Near->GetOutputPin(), Far->GetInputPin()));
	const UK2Node_CallFunction* const Add = AddCall(Graph, MathLibrary, TEXT("Add_IntInt"));
	{
		const FScopedTransaction Transaction(Title(TEXT("Link")));
		ASSERT_TRUE(Schema().TryCreateConnection(Add->GetReturnValuePin(), Near->GetInputPin()));
	}
	ASSERT_EQ(Far->GetOutputPin()->PinType.PinCategory, UEdGraphSchema_K2::PC_Int);
	Undo();
	EXPECT_EQ(Near->GetInputPin()->PinType.PinCategory, UEdGraphSchema_K2::PC_Wildcard);
	EXPECT_EQ(Far->GetOutputPin()->PinType.PinCategory, UEdGraphSchema_K2::PC_Wildcard);
}

TEST_F(FGraphUndoTest, ARemovedFunctionIsBackAsItWasAndCanBeSaved)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("Open"));
	const int32 NumNodes = Function->Nodes.Num();
	const EObjectFlags Flags = Function->GetFlags();
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveGraph(Blueprint, Function);
	}
	EXPECT_EQ(Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Open")), nullptr);
	Collect();
	Undo();
	EXPECT_TRUE(Blueprint->FunctionGraphs.Contains(Function));
	EXPECT_EQ(Function->GetOuter(), Blueprint);
	EXPECT_EQ(Function->GetName(), TEXT("Open"));
	EXPECT_EQ(Function->Nodes.Num(), NumNodes);
	EXPECT_EQ(Function->GetFlags(), Flags) << "a transient graph is not saved";
	EXPECT_NE(Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Open")), nullptr);
}

TEST_F(FGraphUndoTest, TheClassFollowsEventsThatComeAndGo)
{
	const auto HasFunction = [this]
	{ return Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("Knock")) != nullptr; };
	UK2Node_CustomEvent* Event = nullptr;
	{
		const FScopedTransaction Transaction(Title(TEXT("Add")));
		Event = AddNode<UK2Node_CustomEvent>(Graph, [](UK2Node_CustomEvent& Node)
			{ Node.CustomFunctionName = TEXT("Knock"); });
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveNode(Blueprint, Event);
	}
	EXPECT_FALSE(HasFunction());
	Undo();
	EXPECT_TRUE(HasFunction()) << "the event itself did not change, its graph did";
	Undo();
	EXPECT_FALSE(HasFunction());
	Redo();
	EXPECT_TRUE(HasFunction());
}

TEST_F(FGraphUndoTest, VariablesAreUndoneWithTheirClass)
{
	const auto HasProperty = [this](const TCHAR* Name)
	{ return Blueprint->SkeletonGeneratedClass->FindPropertyByName(Name) != nullptr; };
	{
		const FScopedTransaction Transaction(Title(TEXT("Add")));
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("3"));
	}
	const FGuid Guid = FBlueprintEditorUtils::FindMemberVariableGuidByName(Blueprint, TEXT("Health"));
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life"));
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, TEXT("Life"));
	}
	EXPECT_FALSE(HasProperty(TEXT("Life")));
	Undo();
	EXPECT_TRUE(HasProperty(TEXT("Life")));
	EXPECT_EQ(FBlueprintEditorUtils::FindMemberVariableGuidByName(Blueprint, TEXT("Life")), Guid);
	Undo();
	EXPECT_TRUE(HasProperty(TEXT("Health")));
	EXPECT_FALSE(HasProperty(TEXT("Life")));
	Undo();
	EXPECT_FALSE(HasProperty(TEXT("Health")));
	EXPECT_EQ(Blueprint->NewVariables.Num(), 0);
	Redo();
	EXPECT_TRUE(HasProperty(TEXT("Health")));
	EXPECT_EQ(Blueprint->Status, BS_Dirty);
}
}
