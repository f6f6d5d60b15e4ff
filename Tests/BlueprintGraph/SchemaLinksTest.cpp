#include "SchemaFixture.h"

#include "Editor.h"
#include "Editor/Transactor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_IfThenElse.h"
#include "ScopedTransaction.h"

class FSchemaLinksTest : public FSchemaFixture
{
protected:
	template <class FunctionType>
	void Transact(FunctionType&& Edit)
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Edit")));
		Edit();
	}

	static bool AreLinked(const UEdGraphPin& A, const UEdGraphPin& B)
	{
		const bool bForth = A.LinkedTo.Contains(const_cast<UEdGraphPin*>(&B));
		EXPECT_EQ(bForth, B.LinkedTo.Contains(const_cast<UEdGraphPin*>(&A)));
		return bForth;
	}
};

TEST_F(FSchemaLinksTest, SecondValueTakesThePlaceOfTheFirstFromEitherEnd)
{
	UEdGraphPin& First = MakePin(EGPD_Output, "int");
	UEdGraphPin& Second = MakePin(EGPD_Output, "int");
	UEdGraphPin& Input = MakePin(EGPD_Input, "int");
	ASSERT_TRUE(Schema().TryCreateConnection(&First, &Input));
	const FPinConnectionResponse Response = Schema().CanCreateConnection(&Second, &Input);
	EXPECT_EQ(Response.Response, CONNECT_RESPONSE_BREAK_OTHERS_B);
	EXPECT_EQ(Response.Message.ToString(), FString(TEXT("Replace existing input connections")));
	EXPECT_EQ(Schema().CanCreateConnection(&Input, &Second).Response, CONNECT_RESPONSE_BREAK_OTHERS_A);
	ASSERT_TRUE(Schema().TryCreateConnection(&Input, &Second));
	EXPECT_FALSE(AreLinked(First, Input));
	EXPECT_TRUE(AreLinked(Second, Input));
	// One value may go to many.
	ASSERT_TRUE(Schema().TryCreateConnection(&Second, &MakePin(EGPD_Input, "int")));
	EXPECT_EQ(Second.LinkedTo.Num(), 2);
}

TEST_F(FSchemaLinksTest, DelegateInputsTakeOneLinkAsOtherValuesDo)
{
	UEdGraphPin& Input = MakePin(EGPD_Input, "delegate");
	ASSERT_TRUE(Schema().TryCreateConnection(&MakePin(EGPD_Output, "delegate"), &Input));
	EXPECT_EQ(Schema().CanCreateConnection(&MakePin(EGPD_Output, "delegate"), &Input).Response, CONNECT_RESPONSE_BREAK_OTHERS_B);
}

TEST_F(FSchemaLinksTest, ExecutionOutputSaysThatItsLinkIsReplaced)
{
	UEdGraphPin& Output = MakePin(EGPD_Output, "exec");
	UEdGraphPin& Input = MakePin(EGPD_Input, "exec");
	ASSERT_TRUE(Schema().TryCreateConnection(&Output, &MakePin(EGPD_Input, "exec")));
	EXPECT_EQ(Schema().CanCreateConnection(&Input, &Output).Response, CONNECT_RESPONSE_BREAK_OTHERS_B);
	EXPECT_EQ(Schema().CanCreateConnection(&Output, &Input).Message.ToString(), FString(TEXT("Replace existing output connections")));
}

TEST_F(FSchemaLinksTest, CallTakesManyTargetsOrOneArrayOfThem)
{
	UK2Node_CallFunction* const Destroy = Call(TEXT("/Script/Engine.Actor"), TEXT("K2_DestroyActor"));
	UEdGraphPin* const Target = Destroy->FindPinChecked(UEdGraphSchema_K2::PN_Self);
	UEdGraphPin& Array = MakePin(EGPD_Output, "array of object Actor");
	UEdGraphPin& Single = MakePin(EGPD_Output, "object Actor");
	ASSERT_TRUE(Schema().TryCreateConnection(&Single, Target));
	EXPECT_EQ(Schema().CanCreateConnection(&MakePin(EGPD_Output, "object Actor"), Target).Response, CONNECT_RESPONSE_MAKE);
	EXPECT_EQ(Schema().CanCreateConnection(&Array, Target).Response, CONNECT_RESPONSE_BREAK_OTHERS_B);
	ASSERT_TRUE(Schema().TryCreateConnection(&Array, Target));
	EXPECT_EQ(Target->LinkedTo.Num(), 1);
	EXPECT_EQ(Schema().CanCreateConnection(&Single, Target).Response, CONNECT_RESPONSE_BREAK_OTHERS_B);
	EXPECT_EQ(Schema().CanCreateConnection(&MakePin(EGPD_Output, "set of object Actor"), Target).Response, CONNECT_RESPONSE_DISALLOW);
	// A function with a result has one target.
	UEdGraphPin* const OneTarget =
		Call(TEXT("/Script/Engine.Actor"), TEXT("K2_GetActorLocation"))->FindPinChecked(UEdGraphSchema_K2::PN_Self);
	EXPECT_EQ(Schema().CanCreateConnection(&Array, OneTarget).Response, CONNECT_RESPONSE_DISALLOW);
}

TEST_F(FSchemaLinksTest, WhatCannotBeLinkedSaysWhyAndChangesNothing)
{
	UEdGraphPin& Output = MakePin(EGPD_Output, "int");
	UEdGraphPin& Orphan = MakePin(EGPD_Input, "int");
	Orphan.bOrphanedPin = true;
	UEdGraphPin& Closed = MakePin(EGPD_Input, "int");
	Closed.bNotConnectable = true;
	UEdGraph* const OtherGraph = Blueprint->FunctionGraphs[0];
	FGraphNodeCreator<UK2Node_TemporaryVariable> Creator(*OtherGraph);
	UEdGraphNode* const Node = Creator.CreateNode(false);
	Creator.Finalize();
	UEdGraphPin* const Elsewhere = Node->CreatePin(EGPD_Input, Type("int"), TEXT("Pin"));
	const TPair<UEdGraphPin*, const TCHAR*> Cases[] = {
		{nullptr, TEXT("One or both of the pins was null")},
		{&Orphan, TEXT("Cannot make new connections to orphaned pin")},
		{&Closed, TEXT("Not connectable")},
		{Elsewhere, TEXT("The pins are not in the same graph")},
		{&Output, TEXT("Both are on the same node")},
		{&MakePin(EGPD_Input, "exec"), TEXT("Integer is not compatible with Exec.")},
		{&MakePin(EGPD_Input, "struct Transform"), TEXT("Integer is not compatible with Transform.")},
	};
	const int32 NumNodes = Graph->Nodes.Num();
	Blueprint->Status = BS_UpToDate;
	for (const TPair<UEdGraphPin*, const TCHAR*>& Case : Cases)
	{
		EXPECT_EQ(Schema().CanCreateConnection(&Output, Case.Key).Message.ToString(), FString(Case.Value));
		EXPECT_FALSE(Schema().TryCreateConnection(&Output, Case.Key));
	}
	EXPECT_EQ(Graph->Nodes.Num(), NumNodes);
	EXPECT_EQ(Output.LinkedTo.Num(), 0);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
}

TEST_F(FSchemaLinksTest, StructWithMoreMembersIsRefusedWithItsOwnReason)
{
	const FPinConnectionResponse Response = Schema().CanCreateConnection(
		&MakePin(EGPD_Output, "struct Plane"), &MakePin(EGPD_Input, "struct Vector"));
	EXPECT_EQ(Response.Response, CONNECT_RESPONSE_DISALLOW);
	EXPECT_EQ(Response.Message.ToString(),
		FString(TEXT("Only exactly matching structures are considered compatible. Derived structures are disallowed.")));
	// A function of the library takes the part that the other wants.
	EXPECT_EQ(Schema().CanCreateConnection(&MakePin(EGPD_Output, "struct KeyEvent"), &MakePin(EGPD_Input, "struct InputEvent")).Response,
		CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE);
}

TEST_F(FSchemaLinksTest, EveryEditMarksTheBlueprintAndIsUndone)
{
	UEdGraphPin& A = MakePin(EGPD_Output, "int");
	UEdGraphPin& B = MakePin(EGPD_Input, "int");
	UEdGraphPin& C = MakePin(EGPD_Input, "int");
	UEdGraphPin& Number = MakePin(EGPD_Input, "int");
	ASSERT_TRUE(Schema().TryCreateConnection(&A, &C));
	const FGuid IdOfA = A.PinId;
	const FGuid IdOfB = B.PinId;
	const FGuid IdOfC = C.PinId;
	UEdGraphNode* const NodeOfA = A.GetOwningNode();
	UEdGraphNode* const NodeOfB = B.GetOwningNode();
	UEdGraphNode* const NodeOfC = C.GetOwningNode();
	UEdGraphNode* const NodeOfNumber = Number.GetOwningNode();
	const auto Linked = [&](UEdGraphNode* Node, const FGuid& Id)
	{ return AreLinked(*NodeOfA->FindPinByIdChecked(IdOfA), *Node->FindPinByIdChecked(Id)); };
	const auto PinOfA = [&]
	{ return NodeOfA->FindPinByIdChecked(IdOfA); };
	struct FEdit
	{
		const char* Name;
		TFunction<void()> Do;
		bool bLinkedToB;
		bool bLinkedToC;
	};
	const FEdit Edits[] = {
		{"make", [&]
			{ Schema().TryCreateConnection(PinOfA(), NodeOfB->FindPinByIdChecked(IdOfB)); },
			true, true},
		{"break one", [&]
			{ Schema().BreakSinglePinLink(PinOfA(), NodeOfC->FindPinByIdChecked(IdOfC)); },
			false, false},
		{"break all of a pin", [&]
			{ Schema().BreakPinLinks(*PinOfA(), true); },
			false, false},
		{"break all of a node", [&]
			{ Schema().BreakNodeLinks(*NodeOfA); },
			false, false},
		{"set a default", [&]
			{ Schema().TrySetDefaultValue(*NodeOfNumber->FindPinChecked(TEXT("Pin"), EGPD_Input), TEXT("7")); },
			false, true},
	};
	for (const FEdit& Edit : Edits)
	{
		SCOPED_TRACE(Edit.Name);
		Blueprint->Status = BS_UpToDate;
		Transact(Edit.Do);
		EXPECT_EQ(Blueprint->Status, BS_Dirty);
		EXPECT_EQ(Linked(NodeOfB, IdOfB), Edit.bLinkedToB);
		EXPECT_EQ(Linked(NodeOfC, IdOfC), Edit.bLinkedToC);
		ASSERT_TRUE(GEditor->UndoTransaction());
		EXPECT_FALSE(Linked(NodeOfB, IdOfB));
		EXPECT_TRUE(Linked(NodeOfC, IdOfC));
		EXPECT_TRUE(NodeOfNumber->FindPinChecked(TEXT("Pin"), EGPD_Input)->DefaultValue.IsEmpty());
	}
}

TEST_F(FSchemaLinksTest, UndoTakesTheConversionAwayAndBringsTheFormerLinkBack)
{
	UEdGraphPin& Integer = MakePin(EGPD_Output, "int");
	UEdGraphPin& Former = MakePin(EGPD_Output, "string");
	UEdGraphPin& Text = MakePin(EGPD_Input, "string");
	ASSERT_TRUE(Schema().TryCreateConnection(&Former, &Text));
	const int32 NumNodes = Graph->Nodes.Num();
	UEdGraphNode* const IntegerNode = Integer.GetOwningNode();
	UEdGraphNode* const FormerNode = Former.GetOwningNode();
	UEdGraphNode* const TextNode = Text.GetOwningNode();
	Transact([&]
		{ ASSERT_TRUE(Schema().TryCreateConnection(&Integer, &Text)); });
	ASSERT_EQ(Graph->Nodes.Num(), NumNodes + 1);
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Graph->Nodes.Num(), NumNodes);
	EXPECT_TRUE(AreLinked(*FormerNode->FindPinChecked(TEXT("Pin"), EGPD_Output), *TextNode->FindPinChecked(TEXT("Pin"), EGPD_Input)));
	EXPECT_EQ(IntegerNode->FindPinChecked(TEXT("Pin"), EGPD_Output)->LinkedTo.Num(), 0);
	ASSERT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(Graph->Nodes.Num(), NumNodes + 1);
	EXPECT_EQ(FormerNode->FindPinChecked(TEXT("Pin"), EGPD_Output)->LinkedTo.Num(), 0);
	EXPECT_EQ(IntegerNode->FindPinChecked(TEXT("Pin"), EGPD_Output)->LinkedTo.Num(), 1);
}

TEST_F(FSchemaLinksTest, LinkedStructPinIsNotSplitAndRecombiningBreaksLinksOfMembers)
{
	UK2Node_CallFunction* const Move = Call(TEXT("/Script/Engine.Actor"), TEXT("K2_SetActorLocation"));
	UEdGraphPin* const Location = Move->FindPinChecked(TEXT("NewLocation"));
	UEdGraphPin& Vector = MakePin(EGPD_Output, "struct Vector");
	ASSERT_TRUE(Schema().TryCreateConnection(&Vector, Location));
	EXPECT_FALSE(Schema().CanSplitStructPin(*Location));
	Schema().SplitPin(Location);
	EXPECT_EQ(Location->SubPins.Num(), 0) << "the link would be lost from sight";
	Schema().BreakPinLinks(*Location, true);
	Schema().SplitPin(Location);
	ASSERT_EQ(Location->SubPins.Num(), 3);
	UEdGraphPin& Number = MakePin(EGPD_Output, "real double");
	ASSERT_TRUE(Schema().TryCreateConnection(&Number, Move->FindPinChecked(TEXT("NewLocation_Y"))));
	Transact([&]
		{ Schema().RecombinePin(Move->FindPinChecked(TEXT("NewLocation_X"))); });
	EXPECT_EQ(Number.LinkedTo.Num(), 0);
	EXPECT_EQ(Move->FindPin(TEXT("NewLocation_Y")), nullptr);
	UEdGraphNode* const NumberNode = Number.GetOwningNode();
	ASSERT_TRUE(GEditor->UndoTransaction());
	ASSERT_NE(Move->FindPin(TEXT("NewLocation_Y")), nullptr);
	EXPECT_TRUE(AreLinked(*NumberNode->FindPinChecked(TEXT("Pin"), EGPD_Output), *Move->FindPin(TEXT("NewLocation_Y"))));
}
