#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphUtilities.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_IfThenElse.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Pastes what nobody should into a graph that holds two linked nodes, which must not notice. */
class FNodeTextHostileTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		static int32 Number = 0;
		UPackage* const Package = CreatePackage(*FString::Printf(TEXT("/Game/Hostile%d"), Number++));
		UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(
			AActor::StaticClass(), Package, TEXT("BP_Hostile"), BPTYPE_Normal);
		Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		for (UEdGraphNode* const Node : TArray<UEdGraphNode*>(Graph->Nodes))
		{
			Graph->RemoveNode(Node);
		}
		First = AddBranch();
		Second = AddBranch();
		First->GetThenPin()->MakeLinkTo(Second->GetExecPin());
		Before = Copy();
	}

	UK2Node_IfThenElse* AddBranch()
	{
		FGraphNodeCreator<UK2Node_IfThenElse> Creator(*Graph);
		UK2Node_IfThenElse* const Node = Creator.CreateNode(false);
		Creator.Finalize();
		return Node;
	}

	FString Copy() const
	{
		FString Text;
		FEdGraphUtilities::ExportNodesToText({First, Second}, Text);
		return Text;
	}

	/** Each link has two ends in the graph, and no pasted node is linked to one that was there. */
	void ExpectSound(const FNodeTextImportResult& Result) const
	{
		const TSet<UEdGraphNode*> Pasted(Result.Nodes);
		EXPECT_EQ(Graph->Nodes.Num(), 2 + Pasted.Num());
		for (const UEdGraphNode* const Node : Graph->Nodes)
		{
			for (UEdGraphPin* const Pin : Node->Pins)
			{
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					ASSERT_TRUE(Linked->LinkedTo.Contains(Pin));
					EXPECT_EQ(Pasted.Contains(Linked->GetOwningNode()), Pasted.Contains(const_cast<UEdGraphNode*>(Node)));
				}
			}
		}
		EXPECT_TRUE(Copy().Equals(Before, ESearchCase::CaseSensitive));
	}

	void RemovePasted(const FNodeTextImportResult& Result)
	{
		for (UEdGraphNode* const Node : Result.Nodes)
		{
			Graph->RemoveNode(Node);
		}
	}

	static FString MakeNode(const FString& Name, const FString& Pins)
	{
		return FString::Printf(
			TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_IfThenElse Name=\"%s\"\n%sEnd Object\n"), *Name, *Pins);
	}

	static FString MakePin(int32 Id, const TCHAR* Name, const TCHAR* Direction, const FString& Links)
	{
		return FString::Printf(TEXT("CustomProperties Pin (PinId=%032X,PinName=\"%s\",%sPinType.PinCategory=\"exec\",LinkedTo=(%s),)\n"),
			Id, Name, Direction, *Links);
	}

	UEdGraph* Graph = nullptr;
	UK2Node_IfThenElse* First = nullptr;
	UK2Node_IfThenElse* Second = nullptr;
	FString Before;
};

TEST_F(FNodeTextHostileTest, TextsThatAreNoneSayWhyAndLeaveTheGraph)
{
	for (const FString& Text :
		{FString(), FString(TEXT("\u0001\u0002\uFFFF")), FString(TEXT("Begin Object")), FString(TEXT("End Object\nEnd Object")),
			FString(TEXT("{\"nodes\": []}")), FString(TEXT("Begin Object Class=/Script/Engine.Actor Name=\"A\"\nEnd Object")),
			FString(TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node Name=\"A\"\nEnd Object")), FString::ChrN(100000, TEXT('(')),
			FString(TEXT("Begin Object Class=")) + FString::ChrN(100000, TEXT('x'))})
	{
		const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Text);
		EXPECT_EQ(Result.Nodes.Num(), 0);
		EXPECT_TRUE(!Result.Error.IsEmpty() || Result.SkippedNodes.Num() > 0);
		EXPECT_FALSE(FEdGraphUtilities::CanImportNodesFromText(Graph, Text));
		ExpectSound(Result);
	}
}

TEST_F(FNodeTextHostileTest, TextThatIsCutAnywhereIsTakenAsFarAsItsNodesAreWhole)
{
	for (int32 Length = 0; Length < Before.Len(); Length += 7)
	{
		SCOPED_TRACE(Length);
		const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Before.Left(Length));
		EXPECT_LE(Result.Nodes.Num(), 2);
		const bool bSaysSo = !Result.Error.IsEmpty() || Result.SkippedNodes.Num() > 0 || Result.Warnings.Num() > 0;
		EXPECT_TRUE(bSaysSo || Result.Nodes.Num() == 1 + (Length >= Before.Len() - 2 ? 1 : 0)) << "what is missing is told";
		ExpectSound(Result);
		RemovePasted(Result);
	}
}

TEST_F(FNodeTextHostileTest, LinksByNameToNodesOfTheGraphAreNotMade)
{
	// The text names a node of the graph and a pin of it by its id: copied nodes are linked among themselves alone.
	const FString Link = FString::Printf(TEXT("%s %s,"), *Second->GetName(), *Second->GetExecPin()->PinId.ToString());
	const FString Missing = TEXT("K2Node_IfThenElse_99 00000000000000000000000000000099,Copied 00000000000000000000000000000098,");
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(
		Graph, MakeNode(TEXT("Copied"), MakePin(1, TEXT("then"), TEXT("Direction=\"EGPD_Output\","), Link + Missing)));
	ASSERT_EQ(Result.Nodes.Num(), 1);
	EXPECT_EQ(Result.Nodes[0]->FindPinChecked(TEXT("then"))->LinkedTo.Num(), 0);
	ExpectSound(Result);
}

TEST_F(FNodeTextHostileTest, TenThousandNodesOfOneNameAreNodesOfTheirOwn)
{
	constexpr int32 NumNodes = 10000;
	FString Text;
	for (int32 Index = 0; Index < NumNodes; ++Index)
	{
		Text += MakeNode(TEXT("Same"), MakePin(Index + 1, TEXT("execute"), TEXT(""), FString()));
	}
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Text);
	EXPECT_EQ(Result.Nodes.Num(), NumNodes);
	TSet<FName> Names;
	for (const UEdGraphNode* const Node : Result.Nodes)
	{
		Names.Add(Node->GetFName());
	}
	EXPECT_EQ(Names.Num(), NumNodes);
}

TEST_F(FNodeTextHostileTest, PinThatThousandsOfNodesLinkToHasAllOfTheirLinksOnce)
{
	constexpr int32 NumNodes = 4000;
	const FString Hub = TEXT("Hub 00000000000000000000000000000001,");
	FString Text = MakeNode(TEXT("Hub"), MakePin(1, TEXT("execute"), TEXT(""), FString()));
	for (int32 Index = 0; Index < NumNodes; ++Index)
	{
		// Each says the same link twice; the hub says none.
		Text += MakeNode(
			FString::Printf(TEXT("Spoke_%d"), Index), MakePin(Index + 2, TEXT("then"), TEXT("Direction=\"EGPD_Output\","), Hub + Hub));
	}
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Text);
	ASSERT_EQ(Result.Nodes.Num(), NumNodes + 1);
	EXPECT_EQ(Result.Nodes[0]->FindPinChecked(TEXT("execute"))->LinkedTo.Num(), NumNodes);
	for (int32 Index = 1; Index <= NumNodes; ++Index)
	{
		ASSERT_EQ(Result.Nodes[Index]->FindPinChecked(TEXT("then"))->LinkedTo.Num(), 1);
	}
	EXPECT_TRUE(Copy().Equals(Before, ESearchCase::CaseSensitive));
}

TEST_F(FNodeTextHostileTest, NodeOfTooManyPinsKeepsThoseUpToTheLimitAndSaysSo)
{
	FString Pins;
	for (int32 Index = 0; Index < 9000; ++Index)
	{
		Pins += MakePin(Index + 1, *FString::Printf(TEXT("Pin%d"), Index), TEXT(""), FString());
	}
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, MakeNode(TEXT("Wide"), Pins));
	ASSERT_EQ(Result.Nodes.Num(), 1);
	EXPECT_EQ(Result.Nodes[0]->Pins.Num(), 8192);
	ASSERT_GT(Result.Warnings.Num(), 0);
	EXPECT_TRUE(Result.Warnings.Last().Message.Contains(TEXT("more than 8192 pins")));
	ExpectSound(Result);
}
}
