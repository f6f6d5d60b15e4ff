#include "EngineTestGraph.h"

#include "Engine/Blueprint.h"
#include "Misc/PackageName.h"
#include "UObject/SavePackage.h"
#include "UObject/StrongObjectPtr.h"

#include <filesystem>
#include <random>

namespace
{
class FPinLinksTest : public FEngineTest
{
protected:
	/** Every reference of a pin to another one is returned by that one, and leads to a pin that a node of the graph holds. */
	static void ExpectSound(const UEdGraph& Graph)
	{
		TSet<const UEdGraphPin*> Held;
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			for (const UEdGraphPin* const Pin : Node->Pins)
			{
				Held.Add(Pin);
			}
		}
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			for (UEdGraphPin* const Pin : Node->Pins)
			{
				SCOPED_TRACE(TCHAR_TO_UTF8(*Pin->GetName()));
				ASSERT_EQ(Pin->GetOwningNodeUnchecked(), Node);
				TSet<const UEdGraphPin*> Seen;
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					ASSERT_TRUE(Held.Contains(Linked));
					EXPECT_TRUE(Linked->LinkedTo.Contains(Pin));
					EXPECT_FALSE(Seen.Contains(Linked)) << "a link that is there twice";
					Seen.Add(Linked);
				}
				for (const UEdGraphPin* const SubPin : Pin->SubPins)
				{
					ASSERT_TRUE(Held.Contains(SubPin));
					EXPECT_EQ(SubPin->ParentPin, Pin);
				}
				if (Pin->ParentPin)
				{
					ASSERT_TRUE(Held.Contains(Pin->ParentPin));
					EXPECT_TRUE(Pin->ParentPin->SubPins.Contains(Pin));
				}
				if (Pin->ReferencePassThroughConnection)
				{
					ASSERT_TRUE(Held.Contains(Pin->ReferencePassThroughConnection));
					EXPECT_EQ(Pin->ReferencePassThroughConnection->ReferencePassThroughConnection, Pin);
				}
			}
		}
	}
};

TEST_F(FPinLinksTest, AnyMixOfEditsLeavesEveryReferenceMutual)
{
	std::mt19937 Random(4711);
	const TStrongObjectPtr<UEdGraph> Graph(MakeGraph());
	const auto Below = [&Random](int32 Num)
	{ return static_cast<int32>(Random() % static_cast<uint32>(Num)); };
	const auto PickNode = [&]() -> UEdGraphNode*
	{ return Graph->Nodes.Num() > 0 ? Graph->Nodes[Below(Graph->Nodes.Num())].Get() : nullptr; };
	const auto PickPin = [&]() -> UEdGraphPin*
	{
		UEdGraphNode* const Node = PickNode();
		return Node && Node->Pins.Num() > 0 ? Node->Pins[Below(Node->Pins.Num())] : nullptr;
	};
	for (int32 Step = 0; Step < 4000; ++Step)
	{
		UEdGraphPin* const Pin = PickPin();
		UEdGraphPin* const Other = PickPin();
		const int32 Edit = Graph->Nodes.Num() < 6 || !Pin || !Other ? 0 : Below(12);
		SCOPED_TRACE(testing::Message() << "step " << Step << ", edit " << Edit);
		switch (Edit)
		{
			case 0:
				MakeNode(*Graph, TEXT("In"), TEXT("Out"));
				break;
			case 1:
			case 2:
			case 3:
				if (Pin != Other)
				{
					Pin->MakeLinkTo(Other);
				}
				break;
			case 4:
				Pin->BreakLinkTo(Other);
				break;
			case 5:
				Pin->BreakAllPinLinks(true);
				break;
			case 6:
				Pin->GetOwningNode()->RemovePin(Pin);
				break;
			case 7:
				Graph->RemoveNode(PickNode());
				break;
			case 8:
			{
				UEdGraphPin* const SubPin = Pin->GetOwningNode()->CreatePin(
					EGPD_Input, FName(TEXT("real")), FName(*FString::Printf(TEXT("Sub_%d"), Step)));
				SubPin->ParentPin = Pin;
				Pin->SubPins.Add(SubPin);
				break;
			}
			case 9:
			{
				// What a node does to its pins when it builds them anew.
				UEdGraphNode* const Node = Pin->GetOwningNode();
				UEdGraphPin* const New = Node->CreatePin(Pin->Direction, Pin->PinType, Pin->PinName);
				if (Below(2) == 0 && Other != New)
				{
					New->MakeLinkTo(Other->GetOwningNode() == Node ? nullptr : Other);
				}
				New->MovePersistentDataFromOldPin(*Pin);
				Node->RemovePin(Pin);
				break;
			}
			case 10:
				Pin->PinName = FName(*FString::Printf(TEXT("Renamed_%d"), Step));
				break;
			case 11:
				CollectGarbage(RF_NoFlags);
				break;
			default:
				break;
		}
		ExpectSound(*Graph);
		if (HasFatalFailure())
		{
			return;
		}
	}
}

TEST_F(FPinLinksTest, APinThatReplacesAnotherKeepsItsOwnLinksAndSharedOnesOnce)
{
	UEdGraph* const Graph = MakeGraph();
	UEdGraphNode* const Node = MakeNode(*Graph, TEXT("Old"), nullptr);
	UEdGraphPin* const Old = Node->Pins[0];
	UEdGraphPin* const New = Node->CreatePin(EGPD_Input, FName(TEXT("exec")), FName(TEXT("New")));
	UEdGraphPin* const Shared = MakeNode(*Graph, nullptr, TEXT("Shared"))->Pins[0];
	UEdGraphPin* const Own = MakeNode(*Graph, nullptr, TEXT("Own"))->Pins[0];
	UEdGraphPin* const Moved = MakeNode(*Graph, nullptr, TEXT("Moved"))->Pins[0];
	New->MakeLinkTo(Shared);
	New->MakeLinkTo(Own);
	Old->MakeLinkTo(Shared);
	Old->MakeLinkTo(Moved);
	New->MovePersistentDataFromOldPin(*Old);
	EXPECT_EQ(New->LinkedTo, (TArray<UEdGraphPin*>{Shared, Own, Moved}));
	EXPECT_EQ(Shared->LinkedTo, (TArray<UEdGraphPin*>{New}));
	ExpectSound(*Graph);
}

TEST_F(FPinLinksTest, HandlersHearOfNodesThatComeAndGoUntilTheyAreRemoved)
{
	UEdGraph* const Graph = MakeGraph();
	int32 NumChanges = 0;
	const FDelegateHandle Handle = Graph->AddOnGraphChangedHandler(
		UEdGraph::FOnGraphChanged::FDelegate::CreateLambda([&NumChanges](const FEdGraphEditAction&)
			{ ++NumChanges; }));
	UEdGraphNode* const First = MakeNode(*Graph, nullptr, TEXT("Out"));
	EXPECT_EQ(NumChanges, 1);
	EXPECT_TRUE(Graph->RemoveNode(First));
	EXPECT_EQ(NumChanges, 2);
	EXPECT_FALSE(Graph->RemoveNode(First));
	EXPECT_EQ(NumChanges, 2);
	Graph->RemoveOnGraphChangedHandler(Handle);
	MakeNode(*Graph, nullptr, nullptr);
	EXPECT_EQ(NumChanges, 2);
}

TEST_F(FPinLinksTest, RemovingASubPinLeavesItsParentAndSiblings)
{
	const TStrongObjectPtr<UEdGraph> Graph(MakeGraph());
	UEdGraphNode* const Node = MakeNode(*Graph, TEXT("Vector"), nullptr);
	UEdGraphPin* const Vector = Node->Pins[0];
	for (const TCHAR* const Name : {TEXT("X"), TEXT("Y"), TEXT("Z")})
	{
		UEdGraphPin* const Member = Node->CreatePin(EGPD_Input, FName(TEXT("real")), FName(Name));
		Vector->SubPins.Add(Member);
		Member->ParentPin = Vector;
	}
	EXPECT_TRUE(Node->RemovePin(Node->FindPin(TEXT("Y"))));
	CollectGarbage(RF_NoFlags);
	ASSERT_EQ(Vector->SubPins.Num(), 2);
	EXPECT_EQ(Vector->SubPins[1]->PinName, FName(TEXT("Z")));
	ExpectSound(*Graph);
}

TEST_F(FPinLinksTest, PinsOfAPackageThatOnlyOneSideKnowsOfAreDropped)
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-pins-test-XXXXXX").string();
	const std::filesystem::path Directory = mkdtemp(Pattern.data());
	const FString Content = FString(UTF8_TO_TCHAR(Directory.c_str())) + TEXT("/");
	FPackageName::RegisterMountPoint(TEXT("/PinsTest/"), Content);
	UPackage* const Package = CreatePackage(TEXT("/PinsTest/BP_Damaged"));
	UBlueprint* const Blueprint = NewObject<UBlueprint>(Package, TEXT("BP_Damaged"), RF_Public | RF_Standalone);
	UEdGraph* const Graph = MakeGraph(Blueprint, TEXT("EventGraph"));
	Blueprint->UbergraphPages.Add(Graph);
	UEdGraphNode* const First = MakeNode(*Graph, TEXT("A"), TEXT("B"));
	UEdGraphNode* const Second = MakeNode(*Graph, TEXT("C"), TEXT("D"));
	First->Pins[0]->LinkedTo.Add(Second->Pins[0]);
	First->Pins[1]->MakeLinkTo(Second->Pins[0]);
	First->Pins[0]->SubPins = {First->Pins[0], First->Pins[1], Second->Pins[1]};
	First->Pins[0]->ParentPin = First->Pins[0];
	Second->Pins[0]->ParentPin = Second->Pins[1];
	Second->Pins[1]->ParentPin = Second->Pins[0];
	Second->Pins[0]->SubPins = {Second->Pins[1]};
	Second->Pins[1]->SubPins = {Second->Pins[0]};
	First->Pins[1]->ReferencePassThroughConnection = First->Pins[0];
	ASSERT_TRUE(UPackage::SavePackage(Package, Blueprint, *(Content + TEXT("BP_Damaged.uasset")), FSavePackageArgs()));
	for (const UEdGraphNode* const Node : {First, Second})
	{
		for (UEdGraphPin* const Pin : Node->Pins)
		{
			Pin->LinkedTo.Empty();
			Pin->SubPins.Empty();
			Pin->ParentPin = Pin->ReferencePassThroughConnection = nullptr;
		}
	}
	Blueprint->ClearFlags(RF_Standalone);
	Package->Rename(TEXT("/PinsTest/BP_Old"), nullptr, REN_DontCreateRedirectors);

	UBlueprint* const Loaded = LoadObject<UBlueprint>(nullptr, TEXT("/PinsTest/BP_Damaged.BP_Damaged"));
	ASSERT_NE(Loaded, nullptr);
	UEdGraph* const LoadedGraph = Loaded->UbergraphPages[0];
	ASSERT_EQ(LoadedGraph->Nodes.Num(), 2);
	ExpectSound(*LoadedGraph);
	UEdGraphNode* const LoadedFirst = LoadedGraph->Nodes[0];
	EXPECT_FALSE(LoadedFirst->Pins[0]->HasAnyConnections());
	EXPECT_TRUE(LoadedFirst->Pins[1]->HasAnyConnections());
	EXPECT_TRUE(LoadedFirst->RemovePin(LoadedFirst->Pins[0]));
	EXPECT_TRUE(LoadedGraph->RemoveNode(LoadedGraph->Nodes[1]));
	CollectGarbage(RF_Standalone);
	ExpectSound(*LoadedGraph);
	Loaded->ClearFlags(RF_Standalone);
	FPackageName::UnRegisterMountPoint(TEXT("/PinsTest/"), Content);
	std::error_code Ignored;
	std::filesystem::remove_all(Directory, Ignored);
}
}
