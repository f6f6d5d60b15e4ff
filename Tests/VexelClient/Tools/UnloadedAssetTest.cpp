#include "Blueprint/VexelBlueprintMapping.h"
#include "Blueprint/VexelBlueprintPropType.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Tools/ToolFixture.h"

// Ids that name Blueprints of the project which nobody has opened.

namespace
{
class FUnloadedAssetTest : public FToolTest
{
protected:
	virtual void SetUp() override
	{
		FToolTest::SetUp();
		UBlueprint* Player = nullptr;
		ASSERT_TRUE(Mapping.ResolveBlueprint(TVexelBlueprintId(TEXT("/Game/BP_Player")), Player));
		EventGraph = FBlueprintEditorUtils::FindEventGraph(Player);
		if (IsEnemyLoaded())
		{
			GTEST_SKIP() << "a test before this one in the process has opened it";
		}
	}

	static bool IsEnemyLoaded() { return FindObject<UBlueprint>(nullptr, TEXT("/Game/BP_Enemy.BP_Enemy")) != nullptr; }

	std::string SpawnedId(const TCHAR* Id)
	{
		UBlueprintNodeSpawner* Spawner = nullptr;
		UEdGraphNode* const Node = Mapping.ResolveNodeTypeForGraph(TVexelNodeTypeId(Id), *EventGraph, Spawner)
			? Spawner->Invoke(EventGraph, IBlueprintNodeBinder::FBindingSet(), FVector2D(0, 0))
			: nullptr;
		return Node ? TCHAR_TO_UTF8(*Mapping.MakeNodeTypeReference(*Node).ToString()) : "";
	}

	FVexelBlueprintMapping Mapping;
	UEdGraph* EventGraph = nullptr;
};

TEST_F(FUnloadedAssetTest, ACallOfItsFunctionLoadsItAndAnIdThatNamesNothingDoesNot)
{
	EXPECT_EQ("", SpawnedId(TEXT("cast.BP_Enem")));
	EXPECT_EQ("", SpawnedId(TEXT("flow.unless")));
	EXPECT_FALSE(IsEnemyLoaded());
	EXPECT_EQ("call.BP_Enemy.Die", SpawnedId(TEXT("call.bp_enemy.die")));
	EXPECT_TRUE(IsEnemyLoaded());
	EXPECT_EQ("cast.BP_Enemy_C", SpawnedId(TEXT("cast.BP_Enemy")));
}

TEST_F(FUnloadedAssetTest, ASpawnOfOneLoadsIt)
{
	EXPECT_EQ("call.spawn_actor.BP_Enemy_C", SpawnedId(TEXT("call.spawn_actor.BP_Enemy")));
	EXPECT_TRUE(IsEnemyLoaded());
}

TEST_F(FUnloadedAssetTest, ItsTypesAreListedWithoutLoadingIt)
{
	TSet<FString> Ids;
	for (const TSharedRef<FVexelBlueprintPropType>& Type : Mapping.IteratePropTypes())
	{
		Ids.Add(Type->Id.ToString());
	}
	for (const TCHAR* const Id : {TEXT("object.BP_Enemy"), TEXT("class.BP_Enemy"), TEXT("softobject.BP_Enemy"), TEXT("object.BP_Player")})
	{
		EXPECT_TRUE(Ids.Contains(Id)) << TCHAR_TO_UTF8(Id);
	}
	EXPECT_FALSE(IsEnemyLoaded());
	FEdGraphPinType Type;
	EXPECT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(TEXT("array|object.BP_Enemy")), Type));
	EXPECT_TRUE(IsEnemyLoaded());
}
}
