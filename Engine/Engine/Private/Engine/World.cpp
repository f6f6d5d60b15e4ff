#include "Engine/World.h"

#include "Components/ActorComponent.h"
#include "Components/SceneComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/Engine.h"
#include "Engine/LevelScriptActor.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/WorldSettings.h"
#include "TimerManager.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogSpawn, Log, All);

namespace
{
/** Adds what the Blueprints of the class and of its parents add, the most basic first. */
void ConstructComponents(AActor& Actor, const UClass& Class)
{
	TArray<const UBlueprintGeneratedClass*> Classes;
	UBlueprintGeneratedClass::GetGeneratedClassesHierarchy(&Class, Classes);
	for (int32 Index = Classes.Num() - 1; Index >= 0; --Index)
	{
		if (USimpleConstructionScript* const Script = Classes[Index]->SimpleConstructionScript)
		{
			Script->ExecuteScriptOnActor(&Actor);
		}
	}
}
}

UWorld::UWorld(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, TimerManager(MakeUnique<FTimerManager>())
{
}

UWorld::~UWorld() = default;

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName, UPackage* InWorldPackage)
{
	const FString BaseName = WorldName.IsNone() ? FString(TEXT("Untitled")) : WorldName.ToString();
	UPackage* const Package = InWorldPackage
		? InWorldPackage
		: CreatePackage(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), FName(*(TEXT("/Temp/") + BaseName))).ToString());
	Package->ThisContainsMap();
	UWorld* const World = NewObject<UWorld>(Package, FName(*BaseName), RF_Public | RF_Standalone | RF_Transactional);
	World->WorldType = InWorldType;
	World->PersistentLevel = NewObject<ULevel>(World, TEXT("PersistentLevel"), RF_Transactional);
	World->PersistentLevel->OwningWorld = World;
	FActorSpawnParameters SettingsParameters;
	SettingsParameters.Name = TEXT("WorldSettings");
	World->PersistentLevel->SetWorldSettings(World->SpawnActor<AWorldSettings>(SettingsParameters));
	if (bInformEngineOfWorld && GEngine)
	{
		GEngine->CreateNewWorldContext(InWorldType).SetCurrentWorld(World);
	}
	return World;
}

void UWorld::DestroyWorld(bool bInformEngineOfWorld)
{
	if (bInformEngineOfWorld && GEngine)
	{
		if (FWorldContext* const Context = GEngine->GetWorldContextFromWorld(this))
		{
			Context->SetCurrentWorld(nullptr);
		}
	}
	ClearFlags(RF_Standalone);
	MarkAsGarbage();
}

AActor* UWorld::SpawnActor(UClass* Class, FVector const* Location, FRotator const* Rotation, const FActorSpawnParameters& SpawnParameters)
{
	FTransform Transform;
	if (Location)
	{
		Transform.SetLocation(*Location);
	}
	if (Rotation)
	{
		Transform.SetRotation(Rotation->Quaternion());
	}
	return SpawnActor(Class, &Transform, SpawnParameters);
}

AActor* UWorld::SpawnActor(UClass* Class, FTransform const* Transform, const FActorSpawnParameters& SpawnParameters)
{
	if (!Class || !Class->IsChildOf(AActor::StaticClass()) || Class->HasAnyClassFlags(CLASS_Deprecated | CLASS_Abstract))
	{
		UE_LOG(LogSpawn, Warning, TEXT("SpawnActor failed because the class '%s' cannot be spawned"),
			Class ? *Class->GetName() : TEXT("None"));
		return nullptr;
	}
	ULevel* const Level = SpawnParameters.OverrideLevel ? SpawnParameters.OverrideLevel : GetCurrentLevel();
	FName Name = SpawnParameters.Name;
	if (Name.IsNone() || StaticFindObjectFast(nullptr, Level, Name))
	{
		Name = MakeUniqueObjectName(Level, Class, Name);
	}
	Level->Modify();
	AActor* const Actor = NewObject<AActor>(Level, Class, Name, SpawnParameters.ObjectFlags, SpawnParameters.Template);
	Actor->SetOwner(SpawnParameters.Owner);
	Actor->ActorLabel = SpawnParameters.InitialActorLabel;
	Level->Actors.Add(Actor);
	ConstructComponents(*Actor, *Class);
	if (!Actor->GetRootComponent() && !Class->IsChildOf(AInfo::StaticClass()))
	{
		// An actor whose class brings no scene component still has a place.
		Actor->RootComponent = NewObject<USceneComponent>(Actor, TEXT("DefaultSceneRoot"), RF_Transactional);
	}
	if (Transform)
	{
		Actor->SetActorTransform(*Transform);
	}
	for (UActorComponent* const Component : Actor->GetComponents())
	{
		Component->RegisterComponent();
	}
	return Actor;
}

bool UWorld::DestroyActor(AActor* Actor, bool bNetForce, bool bShouldModifyLevel)
{
	if (!Actor || Actor->bActorIsBeingDestroyed)
	{
		return false;
	}
	ULevel* const Level = Actor->GetLevel();
	if (Level && bShouldModifyLevel)
	{
		Level->Modify();
		Actor->Modify();
	}
	Actor->bActorIsBeingDestroyed = true;
	for (UActorComponent* const Component : Actor->GetComponents())
	{
		Component->DestroyComponent();
	}
	if (Level)
	{
		const int32 Index = Level->Actors.Find(Actor);
		if (Index != INDEX_NONE)
		{
			Level->Actors[Index] = nullptr;
		}
	}
	Actor->MarkAsGarbage();
	return true;
}

const TArray<ULevel*> UWorld::GetLevels() const
{
	TArray<ULevel*> Levels;
	if (PersistentLevel)
	{
		Levels.Add(PersistentLevel);
	}
	return Levels;
}

void UWorld::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << PersistentLevel;
	Ar << ExtraReferencedObjects;
	Ar << StreamingLevels;
	if (Ar.IsLoading() && PersistentLevel)
	{
		PersistentLevel->OwningWorld = this;
	}
}

void UWorld::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UWorld* const This = CastChecked<UWorld>(InThis);
	Collector.AddReferencedObjects(This->ExtraReferencedObjects);
	Collector.AddReferencedObjects(This->StreamingLevels);
	Super::AddReferencedObjects(InThis, Collector);
}

FTimerManager& UWorld::GetTimerManager() const
{
	return *TimerManager;
}

void UWorld::Tick(float DeltaSeconds)
{
	TimerManager->Tick(DeltaSeconds);
}
