#include "EngineTestGraph.h"

#include "Components/SceneComponent.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"

namespace
{
class FWorldTest : public FEngineTest
{
protected:
	virtual void SetUp() override { World = UWorld::CreateWorld(EWorldType::Editor, false); }
	virtual void TearDown() override
	{
		World->DestroyWorld(false);
		FEngineTest::TearDown();
	}

	UWorld* World = nullptr;
};

TEST_F(FWorldTest, AnActorStandsWhereItWasSpawnedUntilItIsDestroyed)
{
	AActor* const Actor = World->SpawnActor<AActor>(AActor::StaticClass(), FVector(100.0, 0.0, 50.0), FRotator(0.0, 90.0, 0.0));
	ASSERT_NE(Actor, nullptr);
	EXPECT_EQ(Actor->GetWorld(), World);
	EXPECT_TRUE(World->PersistentLevel->Actors.Contains(Actor));
	EXPECT_TRUE(Actor->GetActorLocation().Equals(FVector(100.0, 0.0, 50.0)));
	EXPECT_TRUE(Actor->GetActorForwardVector().Equals(FVector(0.0, 1.0, 0.0), 1.e-6));
	EXPECT_TRUE(Actor->Destroy());
	EXPECT_FALSE(IsValid(Actor));
	EXPECT_FALSE(World->PersistentLevel->Actors.Contains(Actor));
}

TEST_F(FWorldTest, AttachingKeepsWhatTheRuleKeepsAndRefusesCircles)
{
	AActor* const Actor = World->SpawnActor<AActor>(AActor::StaticClass(), FVector(100.0, 0.0, 0.0), FRotator(0.0, 90.0, 0.0));
	USceneComponent* const Child = NewObject<USceneComponent>(Actor, TEXT("Child"));
	Child->SetRelativeLocation(FVector(10.0, 0.0, 0.0));
	EXPECT_TRUE(Child->AttachToComponent(Actor->GetRootComponent(), FAttachmentTransformRules::KeepWorldTransform));
	EXPECT_TRUE(Child->GetComponentLocation().Equals(FVector(10.0, 0.0, 0.0), 1.e-6));
	Child->DetachFromComponent(FDetachmentTransformRules::KeepWorldTransform);
	EXPECT_TRUE(Child->AttachToComponent(Actor->GetRootComponent(), FAttachmentTransformRules::KeepRelativeTransform));
	EXPECT_TRUE(Child->GetComponentLocation().Equals(FVector(100.0, 10.0, 0.0), 1.e-6));
	EXPECT_FALSE(Actor->GetRootComponent()->AttachToComponent(Child, FAttachmentTransformRules::KeepWorldTransform));
}

TEST_F(FWorldTest, OnlyActorsAreSpawned)
{
	EXPECT_EQ(World->SpawnActor(USceneComponent::StaticClass()), nullptr);
	EXPECT_EQ(World->SpawnActor(nullptr), nullptr);
}
}
