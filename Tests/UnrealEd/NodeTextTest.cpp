#include "NodeTextSamples.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "EdGraphUtilities.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "EditorFixture.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <random>

namespace
{
class FNodeTextTest : public FEditorTest
{
protected:
	/** An empty event graph of a Blueprint of its own. */
	static UEdGraph* MakeEventGraph()
	{
		static int32 NumMade = 0;
		UPackage* const Package = CreatePackage(*FString::Printf(TEXT("/Game/NodeText_%d"), NumMade++));
		UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(
			AActor::StaticClass(), Package, FName(TEXT("BP_NodeText")), BPTYPE_Normal);
		UEdGraph* const Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		const TArray<TObjectPtr<UEdGraphNode>> Nodes = Graph->Nodes;
		for (UEdGraphNode* const Node : Nodes)
		{
			Graph->RemoveNode(Node);
		}
		return Graph;
	}

	static TSet<UEdGraphNode*> ToSet(const TArray<UEdGraphNode*>& Nodes)
	{
		TSet<UEdGraphNode*> Set;
		for (UEdGraphNode* const Node : Nodes)
		{
			Set.Add(Node);
		}
		return Set;
	}
};

bool IsBlueprintText(const FString& Text)
{
	return Text.Contains(TEXT("K2Node_"), ESearchCase::CaseSensitive) &&
		!Text.Contains(TEXT("EdGraphPin Name="), ESearchCase::CaseSensitive);
}

TEST_F(FNodeTextTest, EverySamplePastesWithItsPinsDefaultsAndLinks)
{
	const std::vector<FNodeTextSample> Samples = LoadNodeTextSamples();
	if (Samples.empty())
	{
		GTEST_SKIP() << "the folder of sample texts is missing";
	}
	for (const FNodeTextSample& Sample : Samples)
	{
		if (!IsBlueprintText(Sample.Text))
		{
			continue;
		}
		SCOPED_TRACE(Sample.Name);
		UEdGraph* const Graph = MakeEventGraph();
		const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Sample.Text);
		EXPECT_TRUE(Result.IsOk()) << TCHAR_TO_UTF8(*Result.Error);
		for (const FNodeTextIssue& Issue : Result.SkippedNodes)
		{
			ADD_FAILURE() << TCHAR_TO_UTF8(*Issue.ToString());
		}
		const std::vector<std::string> Names = GetNodeNames(Sample.Text);
		const std::vector<std::string> Expected = GetPinLines(Sample.Text);
		const std::vector<std::string> Actual = GetPinLines(CopyNodes(*Graph));
		ASSERT_EQ(Actual.size(), Expected.size());
		for (size_t Index = 0; Index < Expected.size(); ++Index)
		{
			EXPECT_EQ(Actual[Index], DropLinksToOthers(Expected[Index], Names));
		}
	}
}

TEST_F(FNodeTextTest, ACopyOfAPasteIsThePaste)
{
	for (const FNodeTextSample& Sample : LoadNodeTextSamples())
	{
		SCOPED_TRACE(Sample.Name);
		UEdGraph* const First = MakeEventGraph();
		TSet<UEdGraphNode*> Pasted = ToSet(FEdGraphUtilities::ImportNodesFromTextWithResult(First, Sample.Text).Nodes);
		FEdGraphUtilities::PostProcessPastedNodes(Pasted);
		const FString Copied = CopyNodes(*First);
		UEdGraph* const Second = MakeEventGraph();
		const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Second, Copied);
		EXPECT_EQ(Result.Nodes.Num(), First->Nodes.Num());
		EXPECT_TRUE(First->Nodes.Num() == 0 || Result.IsOk());
		for (const FNodeTextIssue& Issue : Result.Warnings)
		{
			ADD_FAILURE() << TCHAR_TO_UTF8(*Issue.ToString());
		}
		EXPECT_EQ(GetPinLines(CopyNodes(*Second)), GetPinLines(Copied));
	}
}

TEST_F(FNodeTextTest, NodesOfOtherEditorsAreNamedAndSkipped)
{
	UEdGraph* const Graph = MakeEventGraph();
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph,
		TEXT("Begin Object Class=/Script/NiagaraEditor.NiagaraNodeOp Name=\"NiagaraNodeOp_1\"\n   OpName=\"Add\"\nEnd Object\n")
			TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"K2Node_Knot_0\"\n   NodePosX=16\nEnd Object\n")
				TEXT("Begin Object Class=/Script/Engine.Actor Name=\"Actor_0\"\nEnd Object\n"));
	ASSERT_EQ(Result.Nodes.Num(), 1);
	EXPECT_EQ(Result.Nodes[0]->NodePosX, 16);
	ASSERT_EQ(Result.SkippedNodes.Num(), 2);
	EXPECT_EQ(Result.SkippedNodes[0].ToString(),
		TEXT("line 1: NiagaraNodeOp_1 (/Script/NiagaraEditor.NiagaraNodeOp): The class is not known here"));
	EXPECT_EQ(Result.SkippedNodes[1].ToString(), TEXT("line 7: Actor_0 (/Script/Engine.Actor): The class is no graph node"));
}

TEST_F(FNodeTextTest, PinObjectsOfOldTextsBecomePins)
{
	UEdGraph* const Graph = MakeEventGraph();
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph,
		TEXT("Begin Object Class=K2Node_Knot Name=\"K2Node_Knot_0\"\n")
			TEXT("   Begin Object Class=EdGraphPin Name=\"EdGraphPin_1\"\n   End Object\n")
				TEXT("   Begin Object Name=\"EdGraphPin_1\"\n      PinName=\"OutputPin\"\n      Direction=EGPD_Output\n      "
					 "PinType=(PinCategory=\"exec\")\n") TEXT("      LinkedTo(0)=EdGraphPin'K2Node_Knot_7.EdGraphPin_2'\n      "
															  "LinkedTo(1)=EdGraphPin'K2Node_Missing.EdGraphPin_3'\n   End Object\n") TEXT("   Pins(0)=EdGraphPin'EdGraphPin_1'\nEnd Object\n") TEXT("Begin Object Class=K2Node_Knot Name=\"K2Node_Knot_7\"\n")
					TEXT("   Begin Object Class=EdGraphPin Name=\"EdGraphPin_2\"\n   End Object\n")
						TEXT("   Begin Object Name=\"EdGraphPin_2\"\n      PinName=\"InputPin\"\n      PinType=(PinCategory=\"exec\")\n")
							TEXT("      LinkedTo(0)=EdGraphPin'K2Node_Knot_0.EdGraphPin_1'\n   End Object\n")
								TEXT("   Pins(0)=EdGraphPin'EdGraphPin_2'\nEnd Object\n"));
	EXPECT_EQ(Result.Warnings.Num(), 0);
	ASSERT_EQ(Result.Nodes.Num(), 2);
	ASSERT_EQ(Result.Nodes[0]->Pins.Num(), 1);
	ASSERT_EQ(Result.Nodes[1]->Pins.Num(), 1);
	EXPECT_EQ(Result.Nodes[0]->Pins[0]->PinType.PinCategory, UEdGraphSchema_K2::PC_Exec);
	EXPECT_EQ(Result.Nodes[0]->Pins[0]->LinkedTo, (TArray<UEdGraphPin*>{Result.Nodes[1]->Pins[0]}));
	EXPECT_FALSE(CopyNodes(*Graph).Contains(TEXT("EdGraphPin_1")));
}

TEST_F(FNodeTextTest, IdsAreKeptUnlessTheGraphHasThemAndNamesBecomeFree)
{
	const FString Text = TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"K2Node_Knot_0\"\n   "
							  "NodeGuid=968059974A02AF6B67D2879EC909179A\nEnd Object\n");
	UEdGraph* const Graph = MakeEventGraph();
	const UEdGraphNode* const First = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Text).Nodes[0];
	const UEdGraphNode* const Second = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Text).Nodes[0];
	EXPECT_EQ(First->NodeGuid.ToString(), TEXT("968059974A02AF6B67D2879EC909179A"));
	EXPECT_NE(Second->NodeGuid, First->NodeGuid);
	EXPECT_EQ(First->GetName(), TEXT("K2Node_Knot_0"));
	EXPECT_NE(Second->GetName(), First->GetName());
	EXPECT_EQ(Second->GetGraph(), Graph);
}

TEST_F(FNodeTextTest, BadTextsAreExplained)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Message;
	};
	const FCase Cases[] = {
		{TEXT("hello"), TEXT("The text has no nodes: it must start with 'Begin Object'")},
		{TEXT(""), TEXT("The text has no nodes: it must start with 'Begin Object'")},
		{TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"A\"\n NodePosX=1\n"),
			TEXT("line 1: A (/Script/BlueprintGraph.K2Node_Knot): The node's text is cut off")},
		{TEXT("Begin Object Name=\"A\"\nEnd Object\n"), TEXT("line 1: A: The object has no class")},
		{TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"A\"\n NoSuchThing=1\nEnd Object\n"),
			TEXT("line 2: A (/Script/BlueprintGraph.K2Node_Knot): There is no property 'NoSuchThing'")},
		{TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"A\"\n CustomProperties Pin (PinName=\"x\nEnd Object\n"),
			TEXT("line 2: A (/Script/BlueprintGraph.K2Node_Knot): The pin's text ends before its closing ')'")},
	};
	for (const FCase& Case : Cases)
	{
		const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(MakeEventGraph(), Case.Text);
		FString Messages = Result.Error;
		for (const FNodeTextIssue& Issue : Result.SkippedNodes)
		{
			Messages += TEXT("\n") + Issue.ToString();
		}
		for (const FNodeTextIssue& Issue : Result.Warnings)
		{
			Messages += TEXT("\n") + Issue.ToString();
		}
		EXPECT_TRUE(Messages.Contains(Case.Message)) << TCHAR_TO_UTF8(*Messages);
	}
}

TEST_F(FNodeTextTest, DeepNestingAndOpenParenthesesEndInMessages)
{
	FString Deep;
	for (int32 Level = 0; Level < 100000; ++Level)
	{
		Deep += TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"A\"\n");
	}
	const FNodeTextImportResult DeepResult = FEdGraphUtilities::ImportNodesFromTextWithResult(MakeEventGraph(), Deep);
	EXPECT_EQ(DeepResult.Nodes.Num(), 0);
	EXPECT_EQ(DeepResult.SkippedNodes.Num(), 1);

	const FString Parentheses = TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"A\"\nCustomProperties Pin (PinName=") +
		FString::ChrN(1000000, TEXT('(')) + TEXT("\nEnd Object\n");
	const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(MakeEventGraph(), Parentheses);
	ASSERT_EQ(Result.Nodes.Num(), 1);
	EXPECT_EQ(Result.Nodes[0]->Pins.Num(), 0);
	EXPECT_EQ(Result.Warnings.Num(), 1);
}

TEST_F(FNodeTextTest, DamagedTextsAreSurvived)
{
	std::mt19937 Random(20260101);
	for (const FNodeTextSample& Sample : LoadNodeTextSamples())
	{
		FString Text = Sample.Text;
		for (int32 Change = 0; Change < 20 && Text.Len() > 0; ++Change)
		{
			const int32 Place = static_cast<int32>(Random() % static_cast<uint32>(Text.Len()));
			if (Change % 2 == 0)
			{
				Text[Place] = TEXT("()\"'\\,=\n")[Random() % 8];
			}
			else
			{
				Text.RemoveAt(Place, FMath::Min<int32>(static_cast<int32>(Random() % 200), Text.Len() - Place));
			}
		}
		UEdGraph* const Graph = MakeEventGraph();
		TSet<UEdGraphNode*> Nodes = ToSet(FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Text).Nodes);
		FEdGraphUtilities::PostProcessPastedNodes(Nodes);
		for (const UEdGraphNode* const Node : Graph->Nodes)
		{
			for (UEdGraphPin* const Pin : Node->Pins)
			{
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					EXPECT_TRUE(Linked->LinkedTo.Contains(Pin));
				}
			}
		}
	}
}
}
