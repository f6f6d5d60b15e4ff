#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Engine/Level.h"
#include "GameFramework/Actor.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "World.generated.h"

class AActor;
class FTimerManager;
class ULevel;

/** How an actor is spawned. */
struct FActorSpawnParameters
{
	/** Name of the actor; a name in use is replaced by a new one. */
	FName Name;
	AActor* Template = nullptr;
	AActor* Owner = nullptr;
	/** Level that gets the actor; null for the world's current level. */
	ULevel* OverrideLevel = nullptr;
	ESpawnActorCollisionHandlingMethod SpawnCollisionHandlingOverride = ESpawnActorCollisionHandlingMethod::Undefined;
	EObjectFlags ObjectFlags = RF_Transactional;
	FString InitialActorLabel;
};

/** A map: its levels and what runs in them. */
UCLASS(config = Engine)
class ENGINE_API UWorld : public UObject
{
	GENERATED_BODY()

public:
	UWorld(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual ~UWorld();

	UPROPERTY(Transient)
	TObjectPtr<ULevel> PersistentLevel = nullptr;

	EWorldType::Type WorldType = EWorldType::None;

	/** Makes a world with an empty persistent level in a package of its own, or in InWorldPackage. */
	static UWorld* CreateWorld(
		const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName = NAME_None, UPackage* InWorldPackage = nullptr);
	void DestroyWorld(bool bInformEngineOfWorld);
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	template <class T>
	T* SpawnActor(const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(T::StaticClass(), nullptr, nullptr, SpawnParameters));
	}
	template <class T>
	T* SpawnActor(UClass* Class, const FTransform& Transform, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(Class, &Transform, SpawnParameters));
	}
	template <class T>
	T* SpawnActor(UClass* Class, FVector const& Location, FRotator const& Rotation,
		const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(Class, &Location, &Rotation, SpawnParameters));
	}
	/** Null for an abstract class and for one that is no actor. */
	AActor* SpawnActor(UClass* InClass, FVector const* Location = nullptr, FRotator const* Rotation = nullptr,
		const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());
	AActor* SpawnActor(UClass* Class, FTransform const* Transform, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());
	/** Takes the actor out of its level and marks it as garbage. */
	bool DestroyActor(AActor* Actor, bool bNetForce = false, bool bShouldModifyLevel = true);
	bool EditorDestroyActor(AActor* Actor, bool bShouldModifyLevel) { return DestroyActor(Actor, false, bShouldModifyLevel); }

	ULevel* GetCurrentLevel() const { return PersistentLevel; }
	const TArray<ULevel*> GetLevels() const;
	FString GetMapName() const { return GetName(); }
	bool IsGameWorld() const
	{
		return WorldType == EWorldType::Game || WorldType == EWorldType::PIE || WorldType == EWorldType::GamePreview;
	}
	FTimerManager& GetTimerManager() const;
	void Tick(float DeltaSeconds);
	virtual UWorld* GetWorld() const override { return const_cast<UWorld*>(this); }
	virtual void Serialize(FArchive& Ar) override;

private:
	/** Objects and streamed levels that the map's file names; kept for saving it. */
	TArray<TObjectPtr<UObject>> ExtraReferencedObjects;
	TArray<TObjectPtr<UObject>> StreamingLevels;

	TUniquePtr<FTimerManager> TimerManager;
};
