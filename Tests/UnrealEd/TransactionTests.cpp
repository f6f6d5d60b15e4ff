#include "BlueprintEditTest.h"
#include "EdGraph/EdGraphNode.h"
#include "Editor/TransBuffer.h"
#include "EditorUndoClient.h"
#include "Misc/Change.h"
#include "UObject/UnrealType.h"

#include <random>

namespace
{
class FTransactionTest : public FBlueprintEditTest
{
protected:
	virtual void SetUp() override
	{
		FBlueprintEditTest::SetUp();
		First = AddCall(Graph, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
		Second = AddCall(Graph, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
		ASSERT_TRUE(First && Second);
	}

	void Move(UEdGraphNode* Node, int32 PositionX, const TCHAR* Name = TEXT("Move"))
	{
		const FScopedTransaction Transaction(Title(Name));
		Node->Modify();
		Node->NodePosX = PositionX;
	}

	static void Comment(UTransBuffer& Buffer, UEdGraphNode* Node, const FString& Text)
	{
		Buffer.Begin(TEXT(""), Title(TEXT("Comment")));
		Node->Modify();
		Node->NodeComment = Text;
		Buffer.End();
	}

	UEdGraphNode* First = nullptr;
	UEdGraphNode* Second = nullptr;
};

/** A text that has nothing in common with one made before. */
FString MakeNoise(std::mt19937& Random, int32 Length)
{
	FString Noise;
	while (Noise.Len() < Length)
	{
		Noise.AppendChar(static_cast<TCHAR>(TEXT('!') + Random() % 90));
	}
	return Noise;
}

/** Inserts or replaces at any place. */
FString EditText(std::mt19937& Random, const FString& Text)
{
	const int32 Place = static_cast<int32>(Random() % (Text.Len() + 1));
	const int32 NumRemoved = Random() % 2 ? static_cast<int32>(Random() % 40) : 0;
	const int32 NumAdded = static_cast<int32>(Random() % 40) + 1;
	return Text.Left(Place) + MakeNoise(Random, NumAdded) + Text.RightChop(Place + NumRemoved);
}

TEST_F(FTransactionTest, UndoGoesBackStepByStepAndRedoForth)
{
	Move(First, 100);
	Move(First, 200);
	Move(Second, 300);
	EXPECT_EQ(NumEntries(), 3);
	ASSERT_TRUE(Undo());
	EXPECT_EQ(Second->NodePosX, 0);
	EXPECT_EQ(First->NodePosX, 200);
	ASSERT_TRUE(Undo());
	EXPECT_EQ(First->NodePosX, 100);
	ASSERT_TRUE(Undo());
	EXPECT_EQ(First->NodePosX, 0);
	EXPECT_FALSE(Undo());
	ASSERT_TRUE(Redo() && Redo() && Redo());
	EXPECT_EQ(First->NodePosX, 200);
	EXPECT_EQ(Second->NodePosX, 300);
	EXPECT_FALSE(Redo());
}

TEST_F(FTransactionTest, NestedTransactionsLeaveOneEntryNamedAfterTheOutermost)
{
	{
		const FScopedTransaction Outer(TEXT("Graph"), Title(TEXT("Outer")), First);
		Move(First, 1, TEXT("Inner one"));
		EXPECT_TRUE(GEditor->IsTransactionActive());
		EXPECT_FALSE(Undo());
		Move(Second, 2, TEXT("Inner two"));
		EXPECT_EQ(GEditor->GetTransactionName().ToString(), TEXT("Outer"));
	}
	EXPECT_FALSE(GEditor->IsTransactionActive());
	ASSERT_EQ(NumEntries(), 1);
	const FTransactionContext Context = GEditor->Trans->GetUndoContext();
	EXPECT_EQ(Context.Title.ToString(), TEXT("Outer"));
	EXPECT_EQ(Context.Context, TEXT("Graph"));
	EXPECT_EQ(Context.PrimaryObject, First);
	Undo();
	EXPECT_EQ(First->NodePosX, 0);
	EXPECT_EQ(Second->NodePosX, 0);
	EXPECT_EQ(GEditor->Trans->GetRedoContext().TransactionId, Context.TransactionId);
}

TEST_F(FTransactionTest, ATransactionThatChangesNothingLeavesNoEntryAndKeepsTheRedo)
{
	Move(First, 100);
	Undo();
	{
		const FScopedTransaction Transaction(Title(TEXT("Nothing")));
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Only looked at")));
		First->Modify();
		First->NodePosX = 5;
		First->NodePosX = 0;
	}
	EXPECT_EQ(NumEntries(), 1);
	ASSERT_TRUE(Redo());
	EXPECT_EQ(First->NodePosX, 100);
}

TEST_F(FTransactionTest, AnEditAfterAnUndoForgetsWhatCouldBeRedone)
{
	Move(First, 100);
	Move(First, 200);
	Undo();
	Move(Second, 50);
	EXPECT_FALSE(GEditor->Trans->CanRedo());
	EXPECT_EQ(NumEntries(), 2);
	Undo();
	Undo();
	EXPECT_EQ(First->NodePosX, 0);
}

TEST_F(FTransactionTest, ACancelledTransactionLeavesNoEntryAndStopsRemembering)
{
	Move(First, 100);
	Undo();
	{
		FScopedTransaction Transaction(Title(TEXT("Cancelled")));
		EXPECT_TRUE(Transaction.IsOutstanding());
		Transaction.Cancel();
		EXPECT_FALSE(Transaction.IsOutstanding());
		EXPECT_FALSE(GEditor->IsTransactionActive());
		EXPECT_FALSE(First->Modify());
	}
	EXPECT_EQ(NumEntries(), 1);
	EXPECT_TRUE(Redo());
}

TEST_F(FTransactionTest, ACancelledInnerTransactionLeavesTheOuterOnesRecords)
{
	{
		const FScopedTransaction Outer(Title(TEXT("Outer")));
		First->Modify();
		First->NodePosX = 10;
		FScopedTransaction Inner(Title(TEXT("Inner")));
		Second->Modify();
		Inner.Cancel();
		EXPECT_TRUE(GEditor->IsTransactionActive());
		EXPECT_TRUE(GEditor->Trans->IsObjectTransacting(First));
		EXPECT_FALSE(GEditor->Trans->IsObjectTransacting(Second));
	}
	ASSERT_EQ(NumEntries(), 1);
	Undo();
	EXPECT_EQ(First->NodePosX, 0);
}

TEST_F(FTransactionTest, ACancelledOuterTransactionEndsTheInnerOnes)
{
	FScopedTransaction Outer(Title(TEXT("Outer")));
	{
		const FScopedTransaction Inner(Title(TEXT("Inner")));
		Second->Modify();
		Second->NodePosX = 9;
		Outer.Cancel();
		EXPECT_FALSE(GEditor->IsTransactionActive());
	}
	EXPECT_EQ(NumEntries(), 0);
}

TEST_F(FTransactionTest, TheOldestEntriesGoWhenTheBufferIsFull)
{
	UTransBuffer* const Buffer = NewObject<UTransBuffer>();
	Buffer->Initialize(0);
	std::mt19937 Random(1);
	TArray<FString> Texts;
	const auto CommentAnew = [&]()
	{
		Texts.Add(First->NodeComment);
		Comment(*Buffer, First, MakeNoise(Random, 100'000));
	};
	for (int32 Number = 1; Number <= 3; ++Number)
	{
		CommentAnew();
	}
	EXPECT_EQ(Buffer->GetQueueLength(), 1);
	const SIZE_T SizeOfOne = Buffer->GetUndoSize();
	EXPECT_GT(SizeOfOne, 100'000u);
	Buffer->Initialize(3 * SizeOfOne + SizeOfOne / 2);
	for (int32 Number = 4; Number <= 9; ++Number)
	{
		CommentAnew();
	}
	EXPECT_EQ(Buffer->GetQueueLength(), 3);
	EXPECT_TRUE(Buffer->Undo() && Buffer->Undo() && Buffer->Undo());
	EXPECT_EQ(First->NodeComment, Texts[6]);
	EXPECT_FALSE(Buffer->Undo());
}

TEST_F(FTransactionTest, SmallEditsOfALargeObjectTakeLittleMemory)
{
	UTransBuffer* const Buffer = NewObject<UTransBuffer>();
	constexpr SIZE_T Enough = 64 * 1024 * 1024;
	constexpr int32 NumEdits = 200;
	Buffer->Initialize(Enough);
	std::mt19937 Random(2);
	const FString Text = MakeNoise(Random, 50'000);
	First->NodeComment = Text;
	for (int32 Number = 0; Number < NumEdits; ++Number)
	{
		Comment(*Buffer, First, EditText(Random, First->NodeComment));
	}
	EXPECT_EQ(Buffer->GetQueueLength(), NumEdits);
	EXPECT_LT(Buffer->GetUndoSize(), 500'000u);
	while (Buffer->Undo())
	{
		EXPECT_LT(Buffer->GetUndoSize(), 500'000u);
	}
	EXPECT_TRUE(First->NodeComment.Equals(Text, ESearchCase::CaseSensitive));
	Buffer->Reset(Title(TEXT("Forget")));
	EXPECT_EQ(Buffer->GetUndoSize(), 0u);
}

TEST_F(FTransactionTest, LongStatesComeBackExactlyWhateverHappensBetween)
{
	UTransBuffer* const Buffer = NewObject<UTransBuffer>();
	constexpr SIZE_T Enough = 64 * 1024 * 1024;
	Buffer->Initialize(Enough);
	std::mt19937 Random(3);
	First->NodeComment = MakeNoise(Random, 3'000);
	/** What each entry puts back, and how many entries are not undone. */
	TArray<FString> Entries;
	int32 Position = 0;
	FString Expected = First->NodeComment;
	for (int32 Step = 0; Step < 2'000; ++Step)
	{
		switch (Random() % 8)
		{
			case 0: // nobody is told
				Expected = EditText(Random, Expected);
				First->NodeComment = Expected;
				break;
			case 1: // what is cancelled stays changed
				Buffer->Begin(TEXT(""), Title(TEXT("Cancelled")));
				First->Modify();
				Expected = EditText(Random, Expected);
				First->NodeComment = Expected;
				Buffer->Cancel();
				break;
			case 2:
			case 3:
				EXPECT_EQ(Buffer->Redo(), Position < Entries.Num());
				if (Position < Entries.Num())
				{
					Swap(Expected, Entries[Position++]);
				}
				break;
			case 4:
			case 5:
				EXPECT_EQ(Buffer->Undo(), Position > 0);
				if (Position > 0)
				{
					Swap(Expected, Entries[--Position]);
				}
				break;
			default:
				Entries.SetNum(Position);
				Entries.Add(Expected);
				++Position;
				Expected = EditText(Random, Expected);
				Comment(*Buffer, First, Expected);
				break;
		}
		ASSERT_TRUE(First->NodeComment.Equals(Expected, ESearchCase::CaseSensitive)) << "step " << Step;
	}
}

TEST_F(FTransactionTest, ABarrierStopsUndoUntilItIsRemoved)
{
	Move(First, 100);
	GEditor->Trans->SetUndoBarrier();
	Move(First, 200);
	EXPECT_TRUE(Undo());
	FText Reason;
	EXPECT_FALSE(GEditor->Trans->CanUndo(&Reason));
	EXPECT_FALSE(Reason.IsEmpty());
	GEditor->Trans->RemoveUndoBarrier();
	EXPECT_TRUE(Undo());
	EXPECT_EQ(First->NodePosX, 0);
}

TEST_F(FTransactionTest, WhatWasRemovedOutlivesCollectionWhileItCanComeBack)
{
	const FName Name = First->GetFName();
	const TWeakObjectPtr<UEdGraphNode> Weak(First);
	{
		const FScopedTransaction Transaction(Title(TEXT("Delete")));
		FBlueprintEditorUtils::RemoveNode(Blueprint, First);
	}
	Collect();
	ASSERT_TRUE(Weak.IsValid());
	Undo();
	Collect();
	ASSERT_TRUE(Weak.IsValid());
	EXPECT_TRUE(Graph->Nodes.Contains(First));
	EXPECT_EQ(First->GetFName(), Name);
	Redo();
	GEditor->ResetTransaction(Title(TEXT("Forget")));
	Collect();
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FTransactionTest, WhatWasMadeIsGivenUpByUndoAndComesBackWithRedo)
{
	UEdGraphNode* Made = nullptr;
	FName Name;
	{
		const FScopedTransaction Transaction(Title(TEXT("Add")));
		Made = AddCall(Graph, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("Delay"));
		Made->NodePosX = 77;
		Name = Made->GetFName();
	}
	const int32 NumPins = Made->Pins.Num();
	Undo();
	EXPECT_FALSE(IsValid(Made));
	EXPECT_FALSE(Graph->Nodes.Contains(Made));
	EXPECT_EQ(StaticFindObjectFast(nullptr, Graph, Name), nullptr);
	Collect();
	Redo();
	EXPECT_TRUE(IsValid(Made));
	ASSERT_TRUE(Graph->Nodes.Contains(Made));
	EXPECT_EQ(Made->GetOuter(), Graph);
	EXPECT_EQ(Made->GetFName(), Name);
	EXPECT_EQ(Made->NodePosX, 77);
	EXPECT_EQ(Made->Pins.Num(), NumPins);
}

TEST_F(FTransactionTest, ANameThatAnUndoFreedCanBeGivenAgain)
{
	{
		const FScopedTransaction Transaction(Title(TEXT("Add Function")));
		AddFunction(Blueprint, TEXT("Open"));
	}
	Undo();
	EXPECT_TRUE(FBlueprintEditorUtils::IsGraphNameUnique(Blueprint, TEXT("Open")));
	UEdGraph* Again = nullptr;
	{
		const FScopedTransaction Transaction(Title(TEXT("Add Function Again")));
		Again = AddFunction(Blueprint, TEXT("Open"));
	}
	EXPECT_EQ(Again->GetName(), TEXT("Open"));
	Undo();
	Redo();
	EXPECT_EQ(Blueprint->FunctionGraphs.Last().Get(), Again);
	EXPECT_EQ(Again->GetName(), TEXT("Open"));
}

TEST_F(FTransactionTest, ARenameComesBackWithItsCase)
{
	UEdGraph* const Function = AddFunction(Blueprint, TEXT("open"));
	GEditor->ResetTransaction(Title(TEXT("Test")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Function, TEXT("Open")));
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Function, TEXT("Close")));
	}
	Undo();
	EXPECT_TRUE(Function->GetName().Equals(TEXT("Open"), ESearchCase::CaseSensitive));
	Undo();
	EXPECT_TRUE(Function->GetName().Equals(TEXT("open"), ESearchCase::CaseSensitive));
	EXPECT_EQ(StaticFindObjectFast(nullptr, Blueprint, TEXT("Close")), nullptr);
	Redo();
	Redo();
	EXPECT_EQ(Function->GetName(), TEXT("Close"));
}

TEST_F(FTransactionTest, RecordsOfADefaultObjectSurviveARecompileIntoAnotherLayout)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Last"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("1"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const UClass* const Class = Blueprint->GeneratedClass;
	const auto GetLast = [Class]()
	{ return FindFProperty<FIntProperty>(Class, TEXT("Last"))->GetPropertyValue_InContainer(Class->GetDefaultObject()); };
	GEditor->ResetTransaction(Title(TEXT("Test")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Edit Default")));
		UObject* const Defaults = Class->GetDefaultObject();
		ASSERT_TRUE(Defaults->Modify());
		FindFProperty<FIntProperty>(Class, TEXT("Last"))->SetPropertyValue_InContainer(Defaults, 42);
	}
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Text"), MakeType(UEdGraphSchema_K2::PC_String), TEXT("kept"));
	FBlueprintEditorUtils::ChangeMemberVariableType(Blueprint, TEXT("Last"), MakeType(UEdGraphSchema_K2::PC_Int));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Collect();
	ASSERT_EQ(GetLast(), 42);
	ASSERT_TRUE(Undo());
	EXPECT_EQ(GetLast(), 1);
	EXPECT_EQ(FindFProperty<FStrProperty>(Class, TEXT("Text"))->GetPropertyValue_InContainer(Class->GetDefaultObject()), TEXT("kept"));
	Redo();
	EXPECT_EQ(GetLast(), 42);
}

TEST_F(FTransactionTest, AVariableThatComesBackHasTheValueItWasGivenInTheDefaults)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Last"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("1"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const UClass* const Class = Blueprint->GeneratedClass;
	FindFProperty<FIntProperty>(Class, TEXT("Last"))->SetPropertyValue_InContainer(Class->GetDefaultObject(), 7);
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, TEXT("Last"));
	}
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	ASSERT_EQ(Class->FindPropertyByName(TEXT("Last")), nullptr);
	Undo();
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	ASSERT_NE(Class->FindPropertyByName(TEXT("Last")), nullptr);
	EXPECT_EQ(FindFProperty<FIntProperty>(Class, TEXT("Last"))->GetPropertyValue_InContainer(Class->GetDefaultObject()), 7);
}

/** Sets a number that no object holds. */
class FNumberChange final : public FSwapChange
{
public:
	FNumberChange(int32& InNumber, int32 InValue)
		: Number(InNumber)
		, Value(InValue)
	{
	}
	virtual TUniquePtr<FChange> Execute(UObject* Object) override
	{
		TUniquePtr<FChange> Back = MakeUnique<FNumberChange>(Number, Number);
		Number = Value;
		return Back;
	}
	virtual FString ToString() const override { return TEXT("Number"); }

private:
	int32& Number;
	int32 Value;
};

TEST_F(FTransactionTest, AChangeThatRevertsItselfIsExecutedBothWays)
{
	int32 Number = 1;
	{
		const FScopedTransaction Transaction(Title(TEXT("Change")));
		GUndo->StoreUndo(First, MakeUnique<FNumberChange>(Number, Number));
		Number = 2;
	}
	ASSERT_EQ(NumEntries(), 1);
	Undo();
	EXPECT_EQ(Number, 1);
	Redo();
	EXPECT_EQ(Number, 2);
	Undo();
	EXPECT_EQ(Number, 1);
}

class FCountingClient final : public FSelfRegisteringEditorUndoClient
{
public:
	virtual bool MatchesContext(
		const FTransactionContext& InContext, const TArray<TPair<UObject*, FTransactionObjectEvent>>& Objects) const override
	{
		return Objects.ContainsByPredicate([this](const TPair<UObject*, FTransactionObjectEvent>& Object)
			{ return Object.Key == Wanted; });
	}
	virtual void PostUndo(bool bSuccess) override { ++Undos; }
	virtual void PostRedo(bool bSuccess) override { ++Redos; }

	UObject* Wanted = nullptr;
	int32 Undos = 0;
	int32 Redos = 0;
};

TEST_F(FTransactionTest, AClientHearsOfWhatTouchesItsObjects)
{
	FCountingClient Client;
	Client.Wanted = First;
	Move(First, 1);
	Move(Second, 2);
	Undo();
	EXPECT_EQ(Client.Undos, 0);
	Undo();
	EXPECT_EQ(Client.Undos, 1);
	Redo();
	EXPECT_EQ(Client.Redos, 1);
	Redo();
	EXPECT_EQ(Client.Redos, 1);
}

TEST_F(FTransactionTest, NothingIsRememberedWhileSerializationIsOff)
{
	{
		const FScopedTransaction Transaction(Title(TEXT("Off")));
		GEditor->Trans->DisableObjectSerialization();
		EXPECT_FALSE(First->Modify());
		GEditor->Trans->EnableObjectSerialization();
		EXPECT_TRUE(Second->Modify());
		Second->NodePosX = 4;
	}
	Undo();
	EXPECT_EQ(Second->NodePosX, 0);
}
}
