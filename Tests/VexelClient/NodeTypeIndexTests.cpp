#include "Blueprint/VexelNodeTypeIndex.h"
#include "BlueprintActionDatabase.h"
#include "BlueprintActionFilter.h"
#include "BlueprintBoundEventNodeSpawner.h"
#include "BlueprintNodeSpawner.h"
#include "K2Node.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "LumTestBlueprint.h"

#include <gmock/gmock.h>
#include <thread>

namespace
{
class FNodeTypeIndexTest : public FLumTest
{
protected:
	UBlueprintNodeSpawner* Resolve(const FString& Id)
	{
		UBlueprintNodeSpawner* Spawner = nullptr;
		const bool bResolved = Mapping.ResolveNodeTypeForGraph(TVexelNodeTypeId(Id), *EventGraph, Spawner);
		EXPECT_EQ(bResolved, Spawner != nullptr);
		return Spawner;
	}

	/** The id of the node that the id makes; empty where it makes none. */
	std::string SpawnedId(const FString& Id)
	{
		UBlueprintNodeSpawner* const Spawner = Resolve(Id);
		UEdGraphNode* const Node = Spawner ? Spawner->Invoke(EventGraph, IBlueprintNodeBinder::FBindingSet(), FVector2D(0, 0)) : nullptr;
		return Node ? ToStd(Mapping.MakeNodeTypeReference(*Node).ToString()) : std::string();
	}

	void AddVariable(const TCHAR* Name, FName Category)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Category;
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, Type));
	}
};

TEST_F(FNodeTypeIndexTest, WhatTheGraphsMenuOffersComesBackByItsId)
{
	FBlueprintActionFilter Filter;
	Filter.Context.Blueprints.Add(Blueprint);
	Filter.Context.Graphs.Add(EventGraph);
	TArray<FString> Ids;
	int32 NumOffered = 0;
	for (const auto& [Key, Actions] : FBlueprintActionDatabase::Get().GetAllActions())
	{
		for (const UBlueprintNodeSpawner* const Action : Actions)
		{
			FBlueprintActionInfo Info(Key.ResolveObjectPtr(), Action);
			// A prime, so that the sample keeps no step with how classes list their members.
			constexpr int32 SampleStep = 29;
			const bool bIsWhole = !Action->IsA<UBlueprintBoundEventNodeSpawner>();
			if (bIsWhole && !Filter.IsFiltered(Info) && NumOffered++ % SampleStep == 0)
			{
				Ids.Add(Mapping.MakeNodeTypeReference(*Action->GetTemplateNode()).ToString());
			}
		}
	}
	ASSERT_GT(Ids.Num(), 150);
	const FString OwnClass = TEXT(".") + Blueprint->GetName() + TEXT(".");
	for (const FString& Id : Ids)
	{
		EXPECT_FALSE(Id.IsEmpty());
		// A node of a variable goes without the class where the variable is the Blueprint's own.
		const bool bVariable = Id.StartsWith(TEXT("var."));
		EXPECT_EQ(ToStd(bVariable ? Id.Replace(*OwnClass, TEXT(".")) : Id), SpawnedId(Id));
	}
}

TEST_F(FNodeTypeIndexTest, LetterCaseDoesNotMatterAndNothingElseIsForgiven)
{
	EXPECT_EQ("call.KismetSystemLibrary.PrintString", SpawnedId(TEXT("CALL.kismetsystemlibrary.PRINTSTRING")));
	for (const TCHAR* const Id : {TEXT(""), TEXT("call."), TEXT("call.KismetSystemLibrary"), TEXT("call.KismetSystemLibrary.PrintString "), TEXT("var.")})
	{
		EXPECT_EQ(nullptr, Resolve(Id)) << ToStd(FString(Id));
	}
	EXPECT_EQ(nullptr, Resolve(FString::ChrN(100'000, TEXT('.'))));
	EXPECT_EQ(nullptr, Resolve(TEXT("var.get.") + FString::ChrN(5'000, TEXT('x'))));
}

TEST_F(FNodeTypeIndexTest, AnIdHoldsAsLongAsWhatItNames)
{
	const FString Class = Blueprint->GetName();
	UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Open"), UEdGraph::StaticClass(), EventGraph->Schema);
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
	EXPECT_NE(nullptr, Resolve(TEXT("call.") + Class + TEXT(".Open")));
	ASSERT_TRUE(FBlueprintEditorUtils::RenameGraph(Graph, TEXT("Close")));
	EXPECT_EQ(nullptr, Resolve(TEXT("call.") + Class + TEXT(".Open")));
	EXPECT_EQ(ToStd(TEXT("call.") + Class + TEXT(".Close")), SpawnedId(TEXT("call.") + Class + TEXT(".Close")));
	FBlueprintEditorUtils::RemoveGraph(Blueprint, Graph);
	EXPECT_EQ(nullptr, Resolve(TEXT("call.") + Class + TEXT(".Close")));

	AddVariable(TEXT("Health"), TEXT("int"));
	EXPECT_EQ("var.get.Health", SpawnedId(TEXT("var.get.Health")));
	EXPECT_EQ("var.set.Health", SpawnedId(TEXT("var.set.") + Class + TEXT(".Health"))) << "its own class may be named";
	FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, TEXT("Health"));
	EXPECT_EQ(nullptr, Resolve(TEXT("var.get.Health")));
	EXPECT_EQ(nullptr, Resolve(TEXT("var.set.") + Class + TEXT(".Health")));
}

TEST_F(FNodeTypeIndexTest, AnEventOfAComponentIsBoundToIt)
{
	UClass* const BoxClass = FindFirstObject<UClass>(TEXT("BoxComponent"), EFindFirstObjectOptions::NativeFirst);
	ASSERT_NE(nullptr, BoxClass);
	USCS_Node* const Box = Blueprint->SimpleConstructionScript->CreateNode(BoxClass, TEXT("Trigger"));
	Blueprint->SimpleConstructionScript->AddNode(Box);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	EXPECT_EQ("event.PrimitiveComponent.OnComponentBeginOverlap.Trigger", SpawnedId(TEXT("event.PrimitiveComponent.OnComponentBeginOverlap.trigger")));
	for (const TCHAR* const Id : {TEXT("event.PrimitiveComponent.OnComponentBeginOverlap.Other"), TEXT("event.Actor.OnComponentBeginOverlap.Trigger"),
			 TEXT("event.PrimitiveComponent.OnNothing.Trigger"), TEXT("event...")})
	{
		EXPECT_EQ(nullptr, Resolve(Id)) << ToStd(FString(Id));
	}
}

TEST_F(FNodeTypeIndexTest, ADatabaseThatIsMadeAnewIsLookedAtAnew)
{
	ASSERT_NE(nullptr, Resolve(TEXT("flow.if")));
	FBlueprintActionDatabase::Get().RefreshAll();
	CollectGarbage(RF_Standalone);
	EXPECT_EQ("flow.if", SpawnedId(TEXT("flow.if")));
	EXPECT_EQ("call.KismetSystemLibrary.PrintString", SpawnedId(TEXT("call.KismetSystemLibrary.PrintString")));
}

TEST_F(FNodeTypeIndexTest, WhatMayOnlyBeReadIsNotWritten)
{
	AddVariable(TEXT("Score"), TEXT("int"));
	FBlueprintEditorUtils::SetBlueprintPropertyReadOnlyFlag(Blueprint, TEXT("Score"), true);
	EXPECT_EQ("var.get.Score", SpawnedId(TEXT("var.get.Score")));
	EXPECT_EQ("", SpawnedId(TEXT("var.set.Score")));
}

TEST_F(FNodeTypeIndexTest, AnotherThreadWaitsForTheGameThread)
{
	std::atomic<bool> bDone = false;
	UBlueprintNodeSpawner* Spawner = nullptr;
	std::thread Asker([&]
		{
			Mapping.ResolveNodeTypeForBlueprint(TVexelNodeTypeId(TEXT("flow.if")), *Blueprint, Spawner);
			bDone = true; });
	EXPECT_TRUE(PumpUntil([&bDone]
		{ return bDone.load(); }));
	Asker.join();
	EXPECT_NE(nullptr, Spawner);
}

TEST_F(FNodeTypeIndexTest, AnUnknownIdHasNeighbours)
{
	const TArray<FString> Nearest = FVexelNodeTypeIndex::Get().FindNearest(TVexelNodeTypeId(TEXT("call.KismetSystemLibary.PrintSting")), 3);
	ASSERT_EQ(3, Nearest.Num());
	EXPECT_TRUE(Nearest.Contains(TEXT("call.KismetSystemLibrary.PrintString")));
	EXPECT_TRUE(FVexelNodeTypeIndex::Get().FindNearest(TVexelNodeTypeId(), 3).IsEmpty());
}

TEST_F(FNodeTypeIndexTest, ThousandsOfNodesOfOneTitleHaveNamesOfTheirOwn)
{
	constexpr int32 NumNodes = 3000;
	UBlueprintNodeSpawner* const Spawner = Resolve(TEXT("flow.if"));
	ASSERT_NE(nullptr, Spawner);
	for (int32 Index = 0; Index < NumNodes; ++Index)
	{
		Mapping.MakeNodeReference(*Spawner->Invoke(EventGraph, IBlueprintNodeBinder::FBindingSet(), FVector2D(0, 0)), true);
	}
	UEdGraphNode* Last = nullptr;
	ASSERT_TRUE(Mapping.ResolveNodeInGraph(TVexelNodeId(FString::Printf(TEXT("Branch_%d"), NumNodes - 1)), *EventGraph, Last));
	EXPECT_EQ(EventGraph->Nodes.Last().Get(), Last);
	EventGraph->RemoveNode(EventGraph->Nodes[0]);
	ASSERT_TRUE(Mapping.ResolveNodeInGraph(TVexelNodeId(FString::Printf(TEXT("Branch_%d"), NumNodes - 1)), *EventGraph, Last));
	EXPECT_EQ(EventGraph->Nodes.Last().Get(), Last) << "though it stands elsewhere now";
	EventGraph->RemoveNode(Last);
	EXPECT_FALSE(Mapping.ResolveNodeInGraph(TVexelNodeId(FString::Printf(TEXT("Branch_%d"), NumNodes - 1)), *EventGraph, Last));
}
}
