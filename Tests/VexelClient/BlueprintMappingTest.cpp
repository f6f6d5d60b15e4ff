#include "Engine/Blueprint.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_VariableGet.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "LumTestBlueprint.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

namespace
{
class FBlueprintMappingTest : public FLumTest
{
protected:
	UEdGraphNode& PlacePrint()
	{
		return Place<UK2Node_CallFunction>([](UK2Node_CallFunction& Node)
			{ Node.FunctionReference.SetExternalMember(TEXT("PrintString"), FindFirstObject<UClass>(TEXT("KismetSystemLibrary"))); });
	}
};

TEST_F(FBlueprintMappingTest, NodesOfOneTitleAreNumberedInTheOrderOfTheirNaming)
{
	const UEdGraphNode& First = PlacePrint();
	const UEdGraphNode& Second = PlacePrint();
	EXPECT_EQ("PrintString_0", ToStd(Mapping.MakeNodeReference(Second, true).ToString()));
	EXPECT_EQ("PrintString_1", ToStd(Mapping.MakeNodeReference(First, true).ToString()));
	EXPECT_EQ("PrintString_0", ToStd(Mapping.MakeNodeReference(Second, true).ToString()));
}

TEST_F(FBlueprintMappingTest, NodeWhoseTitleIsMadeOfPartsIsNamedByTheWhole)
{
	const UEdGraphNode& Node = Place<UK2Node_VariableGet>([](UK2Node_VariableGet& Get)
		{ Get.VariableReference.SetSelfMember(TEXT("InitialLifeSpan")); });
	EXPECT_EQ("GetInitialLifeSpan_0", ToStd(Mapping.MakeNodeReference(Node, true).ToString()));
}

TEST_F(FBlueprintMappingTest, NodeIsFoundWhateverTheCaseOfItsId)
{
	UEdGraphNode& Node = PlacePrint();
	Mapping.MakeNodeReference(Node, true);
	UEdGraphNode* Found = nullptr;
	EXPECT_TRUE(Mapping.ResolveNodeInGraph(TVexelNodeId(TEXT("printstring_0")), *EventGraph, Found));
	EXPECT_EQ(&Node, Found);
}

TEST_F(FBlueprintMappingTest, ResolvingNamesNoNode)
{
	UEdGraphNode& Node = PlacePrint();
	UEdGraphNode* Found = nullptr;
	EXPECT_TRUE(Mapping.ResolveNodeInGraph(TVexelNodeId(TEXT("PrintString_0")), *EventGraph, Found));
	EXPECT_EQ(&Node, Found);
	const TSharedRef<FJsonObject> Saved = Mapping.ToJson();
	EXPECT_EQ(0, Saved->GetObjectField(TEXT("node_agent_names"))->Values.Num());
}

TEST_F(FBlueprintMappingTest, LevelStandsForItsScript)
{
	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false, TEXT("L_Mapped"), CreatePackage(TEXT("/Game/L_Mapped")));
	UBlueprint* Found = nullptr;
	EXPECT_TRUE(Mapping.ResolveBlueprint(TVexelBlueprintId(TEXT("/Game/L_Mapped.L_Mapped")), Found));
	EXPECT_EQ(World->PersistentLevel->GetLevelScriptBlueprint(true), Found);
	World->DestroyWorld(false);
}

TEST_F(FBlueprintMappingTest, FailedResolveLeavesItsResultAlone)
{
	UEdGraphNode& Node = PlacePrint();
	UEdGraphNode* Found = &Node;
	EXPECT_FALSE(Mapping.ResolveNodeInGraph(TVexelNodeId(TEXT("Branch_0")), *EventGraph, Found));
	EXPECT_EQ(&Node, Found);
	UBlueprint* FoundBlueprint = Blueprint;
	EXPECT_FALSE(Mapping.ResolveBlueprint(TVexelBlueprintId(TEXT("/Game/Nowhere.Nowhere")), FoundBlueprint));
	EXPECT_EQ(Blueprint, FoundBlueprint);
	EXPECT_TRUE(Log.Contains("Failed to resolve blueprint at path: /Game/Nowhere.Nowhere"));
	UEdGraph* FoundGraph = EventGraph;
	EXPECT_FALSE(Mapping.ResolveGraphInBlueprint(TVexelGraphId(FString::ChrN(5000, TEXT('x'))), *Blueprint, FoundGraph));
	EXPECT_EQ(EventGraph, FoundGraph);
}

TEST_F(FBlueprintMappingTest, BlueprintGraphAndPinAreFoundByTheirIds)
{
	UEdGraphNode& Node = PlacePrint();
	UBlueprint* FoundBlueprint = nullptr;
	EXPECT_TRUE(Mapping.ResolveBlueprint(Mapping.MakeBlueprintReference(*Blueprint), FoundBlueprint));
	EXPECT_EQ(Blueprint, FoundBlueprint);
	UEdGraph* FoundGraph = nullptr;
	EXPECT_TRUE(Mapping.ResolveGraphInBlueprint(TVexelGraphId(TEXT("eventgraph")), *Blueprint, FoundGraph));
	EXPECT_EQ(EventGraph, FoundGraph);
	UEdGraphPin* FoundPin = nullptr;
	EXPECT_TRUE(Mapping.ResolvePinInNode(TVexelPinId(TEXT("INSTRING")), Node, FoundPin));
	EXPECT_EQ(Node.FindPin(TEXT("InString")), FoundPin);
}

TEST_F(FBlueprintMappingTest, SavedNamesHoldInAnotherMapping)
{
	const UEdGraphNode& First = PlacePrint();
	const UEdGraphNode& Second = PlacePrint();
	Mapping.MakeNodeReference(Second, true);
	Mapping.MakeNodeReference(First, true);

	FVexelBlueprintMapping Loaded;
	Loaded.FromJson(Mapping.ToJson());
	EXPECT_EQ("PrintString_1", ToStd(Loaded.MakeNodeReference(First, false).ToString()));
	EXPECT_EQ("PrintString_0", ToStd(Loaded.MakeNodeReference(Second, false).ToString()));
}

TEST_F(FBlueprintMappingTest, SavedFormWithoutNamesChangesNothing)
{
	const UEdGraphNode& First = PlacePrint();
	const UEdGraphNode& Second = PlacePrint();
	Mapping.MakeNodeReference(Second, true);
	Mapping.FromJson(MakeShared<FJsonObject>());
	EXPECT_EQ("PrintString_1", ToStd(Mapping.MakeNodeReference(First, false).ToString()));
}

TEST_F(FBlueprintMappingTest, PropertyKeepsItsGuid)
{
	const FProperty* const Property = AActor::StaticClass()->FindPropertyByName(TEXT("InitialLifeSpan"));
	ASSERT_NE(nullptr, Property);
	const FGuid Guid = Mapping.MakePropGuid(Property);
	EXPECT_TRUE(Guid.IsValid());
	EXPECT_EQ(Guid, Mapping.MakePropGuid(Property));
	EXPECT_EQ(Guid, Mapping.MakePropGuidDirect(AActor::StaticClass(), TVexelPropId(TEXT("InitialLifeSpan"))));
	EXPECT_NE(Guid, Mapping.MakePropGuidDirect(AActor::StaticClass(), TVexelPropId(TEXT("Owner"))));
}

TEST_F(FBlueprintMappingTest, NoPropertyOrOwnerHasTheZeroGuid)
{
	EXPECT_FALSE(Mapping.MakePropGuid(nullptr).IsValid());
	EXPECT_TRUE(Log.Contains("Property is null! Cannot create property GUID."));
	EXPECT_FALSE(Mapping.MakePropGuid(nullptr, FBPVariableDescription()).IsValid());
	EXPECT_TRUE(Log.Contains("OwnerObject is null! Cannot create property GUID."));
}
}
