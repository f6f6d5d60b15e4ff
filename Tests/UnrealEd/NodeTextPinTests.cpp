#include "NodeTextSamples.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphUtilities.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
class FNodeTextPinTest : public FEditorTest
{
protected:
	static UEdGraph* MakeEventGraph()
	{
		static int32 NumMade = 0;
		UPackage* const Package = CreatePackage(*FString::Printf(TEXT("/Game/NodeTextPin_%d"), NumMade++));
		UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(
			AActor::StaticClass(), Package, FName(TEXT("BP_NodeTextPin")), BPTYPE_Normal);
		UEdGraph* const Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		const TArray<TObjectPtr<UEdGraphNode>> Nodes = Graph->Nodes;
		for (UEdGraphNode* const Node : Nodes)
		{
			Graph->RemoveNode(Node);
		}
		return Graph;
	}

	static FString MakeNodeText(const TCHAR* Name, const FString& Pins)
	{
		return FString::Printf(TEXT("Begin Object Class=/Script/BlueprintGraph.K2Node_Knot Name=\"%s\"\n%sEnd Object\n"), Name, *Pins);
	}

	static FString MakePinText(const FString& Fields) { return TEXT("CustomProperties Pin (") + Fields + TEXT(")\n"); }

	static FNodeTextImportResult Import(const FString& Text)
	{
		return FEdGraphUtilities::ImportNodesFromTextWithResult(MakeEventGraph(), Text);
	}
};

const TCHAR* const IdA = TEXT("AAAAAAAA4A02AF6B67D2879EC909179A");
const TCHAR* const IdB = TEXT("BBBBBBBB4A02AF6B67D2879EC909179A");

TEST_F(FNodeTextPinTest, EachWrongFieldIsNamedWithItsLineAndThePinStays)
{
	const TCHAR* const Fields[] = {
		TEXT("PinId=nonsense"),
		TEXT("PersistentGuid=123"),
		TEXT("SourceIndex=many"),
		TEXT("Direction=\"EGPD_Sideways\""),
		TEXT("bHidden=Perhaps"),
		TEXT("bOrphanedPin="),
		TEXT("PinType.ContainerType=Heap"),
		TEXT("PinType.PinValueType=17"),
		TEXT("PinType.bIsConst=Perhaps"),
		TEXT("LinkedTo=(K2Node_Knot_0)"),
		TEXT("LinkedTo=(K2Node_Knot_0 nonsense,)"),
		TEXT("ParentPin=x"),
		TEXT("SubPins=x"),
		TEXT("ReferencePassThroughConnection=\"\""),
	};
	for (const TCHAR* const Field : Fields)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Field));
		const FNodeTextImportResult Result = Import(MakeNodeText(TEXT("K2Node_Knot_0"),
			TEXT("NodePosX=1\n") + MakePinText(FString(TEXT("PinName=\"Kept\",")) + Field + TEXT(",PinToolTip=\"after\""))));
		ASSERT_EQ(Result.Nodes.Num(), 1);
		ASSERT_EQ(Result.Nodes[0]->Pins.Num(), 1);
		EXPECT_EQ(Result.Nodes[0]->Pins[0]->PinName, FName(TEXT("Kept")));
		EXPECT_EQ(Result.Nodes[0]->Pins[0]->PinToolTip, TEXT("after"));
		EXPECT_TRUE(Result.Nodes[0]->Pins[0]->PinId.IsValid());
		ASSERT_GE(Result.Warnings.Num(), 1);
		EXPECT_EQ(Result.Warnings[0].Line, 3);
	}
}

TEST_F(FNodeTextPinTest, FieldsOfOtherEngineVersionsAreIgnored)
{
	const FNodeTextImportResult Result = Import(MakeNodeText(TEXT("K2Node_Knot_0"),
		MakePinText(TEXT("PinName=\"A\",bFromTheFuture=(X=\"a),(b\",Y=2),\"Quoted\"=1,PinType.NewMember=3,PinToolTip=\"after\""))));
	ASSERT_EQ(Result.Nodes.Num(), 1);
	ASSERT_EQ(Result.Nodes[0]->Pins.Num(), 1);
	EXPECT_EQ(Result.Nodes[0]->Pins[0]->PinToolTip, TEXT("after"));
	EXPECT_EQ(Result.Warnings.Num(), 0);
}

TEST_F(FNodeTextPinTest, BothSpellingsOfAReferenceNameTheSameClass)
{
	for (const TCHAR* const Spelling :
		{TEXT("Class'\"/Script/Engine.Actor\"'"), TEXT("\"/Script/CoreUObject.Class'/Script/Engine.Actor'\""),
			TEXT("Class'/Script/Engine.Actor'"), TEXT("\"/Script/Engine.Actor\"")})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Spelling));
		const FNodeTextImportResult Result = Import(MakeNodeText(TEXT("K2Node_Knot_0"),
			MakePinText(FString(TEXT("PinName=\"A\",PinType.PinCategory=\"object\",PinType.PinSubCategoryObject=")) + Spelling)));
		ASSERT_EQ(Result.Nodes.Num(), 1);
		ASSERT_EQ(Result.Nodes[0]->Pins.Num(), 1);
		EXPECT_EQ(Result.Nodes[0]->Pins[0]->PinType.PinSubCategoryObject.Get(), AActor::StaticClass());
		EXPECT_EQ(Result.Warnings.Num(), 0);
	}
}

TEST_F(FNodeTextPinTest, HugeValuesAreKeptWholeAndHugeNamesDoNoHarm)
{
	const FString Huge = FString::ChrN(1000000, TEXT('x'));
	const FNodeTextImportResult Result = Import(
		MakeNodeText(TEXT("K2Node_Knot_0"), MakePinText(TEXT("PinName=\"A\",DefaultValue=\"") + Huge + TEXT("\""))));
	ASSERT_EQ(Result.Nodes.Num(), 1);
	ASSERT_EQ(Result.Nodes[0]->Pins.Num(), 1);
	EXPECT_EQ(Result.Nodes[0]->Pins[0]->DefaultValue.Len(), Huge.Len());
	EXPECT_TRUE(CopyNodes(*Result.Nodes[0]->GetGraph()).Contains(Huge, ESearchCase::CaseSensitive));

	const FString LongName = FString::ChrN(5000, TEXT('n'));
	for (const FString& Field : {TEXT("PinName=\"") + LongName + TEXT("\""), TEXT("PinType.") + LongName + TEXT("=1"),
			 TEXT("PinType.PinCategory=\"") + LongName + TEXT("\""), TEXT("LinkedTo=(") + LongName + TEXT(" ") + IdA + TEXT(",)"),
			 TEXT("DefaultObject=\"/Game/") + LongName + TEXT(".") + LongName + TEXT("\"")})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Field.Left(24)));
		EXPECT_EQ(Import(MakeNodeText(TEXT("K2Node_Knot_0"), MakePinText(Field))).Nodes.Num(), 1);
	}
}

TEST_F(FNodeTextPinTest, LinksToPinsAndNodesThatAreNotThereAreDroppedAndTheOthersMade)
{
	const FString First = FString::Printf(TEXT("PinId=%s,PinName=\"Out\",Direction=\"EGPD_Output\",LinkedTo=(Other %s,Other "
											   "CCCCCCCC4A02AF6B67D2879EC909179A,Absent %s,First %s,),"),
		IdA, IdB, IdB, IdA);
	const FNodeTextImportResult Result = Import(MakeNodeText(TEXT("First"), MakePinText(First)) +
		MakeNodeText(TEXT("Other"), MakePinText(FString::Printf(TEXT("PinId=%s,PinName=\"In\""), IdB))));
	ASSERT_EQ(Result.Nodes.Num(), 2);
	UEdGraphPin* const Out = Result.Nodes[0]->Pins[0];
	UEdGraphPin* const In = Result.Nodes[1]->Pins[0];
	EXPECT_EQ(Out->LinkedTo, (TArray<UEdGraphPin*>{In}));
	EXPECT_EQ(In->LinkedTo, (TArray<UEdGraphPin*>{Out}));
}

TEST_F(FNodeTextPinTest, SubPinsThatAreTheirOwnParentsOrOfOtherNodesAreNoSubPins)
{
	const auto MakeFamily = [](const TCHAR* Id, const TCHAR* Name, const FString& SubPins, const FString& Parent)
	{
		return MakePinText(FString::Printf(TEXT("PinId=%s,PinName=\"%s\",SubPins=(%s),ParentPin=%s,ReferencePassThroughConnection=%s,"), Id,
			Name, *SubPins, *Parent, *Parent));
	};
	const FString A = FString(TEXT("First ")) + IdA;
	const FString B = FString(TEXT("First ")) + IdB;
	const FString Foreign = FString(TEXT("Other ")) + IdA;
	const FString Texts[] = {
		MakeFamily(IdA, TEXT("A"), A, A),
		MakeFamily(IdA, TEXT("A"), B, B) + MakeFamily(IdB, TEXT("B"), A, A),
		MakeFamily(IdA, TEXT("A"), Foreign, Foreign) + MakeFamily(IdB, TEXT("B"), Foreign, A),
		MakeFamily(IdA, TEXT("A"), B + TEXT(",") + B, Foreign) + MakeFamily(IdB, TEXT("B"), B, A),
	};
	for (const FString& Text : Texts)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Text));
		const FNodeTextImportResult Result = Import(
			MakeNodeText(TEXT("First"), Text) + MakeNodeText(TEXT("Other"), MakeFamily(IdA, TEXT("Own"), A, A)));
		ASSERT_EQ(Result.Nodes.Num(), 2);
		for (const UEdGraphNode* const Node : Result.Nodes)
		{
			for (UEdGraphPin* const Pin : Node->Pins)
			{
				EXPECT_NE(Pin->ParentPin, Pin);
				EXPECT_LE(Pin->SubPins.Num(), 1);
				for (const UEdGraphPin* const SubPin : Pin->SubPins)
				{
					EXPECT_EQ(SubPin->GetOwningNode(), Node);
					EXPECT_EQ(SubPin->ParentPin, Pin);
				}
			}
			while (Node->Pins.Num() > 0)
			{
				ASSERT_TRUE(const_cast<UEdGraphNode*>(Node)->RemovePin(Node->Pins[0]));
			}
		}
	}
}

TEST_F(FNodeTextPinTest, LineEndsAndIndentationCarryNoMeaning)
{
	for (const FNodeTextSample& Sample : LoadNodeTextSamples())
	{
		if (Sample.Text.Contains(TEXT("EdGraphPin Name="), ESearchCase::CaseSensitive))
		{
			// Pins of that old form have no ids in the text: each import gives them new ones.
			continue;
		}
		SCOPED_TRACE(Sample.Name);
		const FString Unix = Sample.Text.Replace(TEXT("\r\n"), TEXT("\n"));
		UEdGraph* const Plain = MakeEventGraph();
		FEdGraphUtilities::ImportNodesFromTextWithResult(Plain, Unix);
		UEdGraph* const Odd = MakeEventGraph();
		FEdGraphUtilities::ImportNodesFromTextWithResult(Odd, TEXT("\xFEFF") + Unix.Replace(TEXT("\n"), TEXT(" \t\r\n\t  ")));
		EXPECT_EQ(GetPinLines(CopyNodes(*Odd)), GetPinLines(CopyNodes(*Plain)));
		EXPECT_EQ(GetNodeNames(CopyNodes(*Odd)), GetNodeNames(CopyNodes(*Plain)));
		EXPECT_EQ(CopyNodes(*Plain), CopyNodes(*Plain));
	}
}

TEST_F(FNodeTextPinTest, ASecondPasteIntoTheGraphIsLinkedWithinItselfAndLeavesTheFirst)
{
	for (const FNodeTextSample& Sample : LoadNodeTextSamples())
	{
		SCOPED_TRACE(Sample.Name);
		UEdGraph* const Graph = MakeEventGraph();
		const FNodeTextImportResult First = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Sample.Text);
		const FString Before = CopyNodes(*Graph);
		const FNodeTextImportResult Second = FEdGraphUtilities::ImportNodesFromTextWithResult(Graph, Sample.Text);
		ASSERT_EQ(Second.Nodes.Num(), First.Nodes.Num());
		EXPECT_TRUE(CopyNodes(*Graph).StartsWith(Before, ESearchCase::CaseSensitive));
		TSet<FGuid> Guids;
		for (const UEdGraphNode* const Node : Graph->Nodes)
		{
			bool bTaken = false;
			Guids.Add(Node->NodeGuid, &bTaken);
			EXPECT_FALSE(bTaken);
		}
		for (const UEdGraphNode* const Node : Second.Nodes)
		{
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					EXPECT_TRUE(Second.Nodes.Contains(Linked->GetOwningNode()));
				}
			}
		}
	}
}
}
