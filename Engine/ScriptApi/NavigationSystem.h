// Package: /Script/NavigationSystem
#pragma once

#include "Actor.h"
#include "NavigationBase.h"
#include "SkeletalMeshActor.h"
#include "NavigationSystem.generated.h"

/** What a question to navigation gave. */
UENUM(BlueprintType)
namespace ENavigationQueryResult
{
enum Type : int
{
	Invalid,
	Error,
	Fail,
	Success
};
}

/** Yes, no or as usual. */
UENUM(BlueprintType)
namespace ENavigationOptionFlag
{
enum Type : int
{
	Default,
	Enable UMETA(DisplayName = "Yes"),
	Disable UMETA(DisplayName = "No")
};
}

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnNavDataGenericEvent, ANavigationData*, NavData);

/** Where pawns can go. */
UCLASS(config = Engine, defaultconfig, NotBlueprintable, abstract)
class NAVIGATIONSYSTEM_API ANavigationData : public AActor
{
	GENERATED_BODY()
};

/** A part of the level that pawns find their way in. */
UCLASS(hidecategories = (Navigation))
class NAVIGATIONSYSTEM_API ANavMeshBoundsVolume : public AVolume
{
	GENERATED_BODY()
};

/** A part of the level that pawns go through differently. */
UCLASS(hidecategories = (Navigation))
class NAVIGATIONSYSTEM_API ANavModifierVolume : public AVolume
{
	GENERATED_BODY()

public:
	/** Sets the area class. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void SetAreaClass(TSubclassOf<UNavArea> NewAreaClass);
};

/** How costly it is to go somewhere. */
UCLASS(config = Engine, Abstract, Blueprintable)
class NAVIGATIONSYSTEM_API UNavArea : public UObject
{
	GENERATED_BODY()
};

/** Where pawns may go. */
UCLASS(Abstract, Blueprintable)
class NAVIGATIONSYSTEM_API UNavigationQueryFilter : public UObject
{
	GENERATED_BODY()
};

/** A way. */
UCLASS()
class NAVIGATIONSYSTEM_API UNavigationPath : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, Category = "Navigation")
	TArray<FVector> PathPoints;

	/** The debug string. */
	UFUNCTION(BlueprintCallable, Category = "AI|Debug")
	FString GetDebugString() const;

	UFUNCTION(BlueprintCallable, Category = "AI|Debug")
	void EnableDebugDrawing(bool bShouldDrawDebugData, FLinearColor PathColor = FLinearColor::White);

	UFUNCTION(BlueprintCallable, Category = "Navigation")
	void EnableRecalculationOnInvalidation(TEnumAsByte<ENavigationOptionFlag::Type> DoRecalculation);

	/** The path length. */
	UFUNCTION(BlueprintCallable, Category = "Navigation")
	double GetPathLength() const;

	/** The path cost. */
	UFUNCTION(BlueprintCallable, Category = "Navigation")
	double GetPathCost() const;

	/** True if it is partial. */
	UFUNCTION(BlueprintCallable, Category = "Navigation")
	bool IsPartial() const;

	/** True if it is valid. */
	UFUNCTION(BlueprintCallable, Category = "Navigation")
	bool IsValid() const;

	/** True if it is string pulled. */
	UFUNCTION(BlueprintCallable, Category = "Navigation")
	bool IsStringPulled() const;
};

/** Finds ways. */
UCLASS(Within = World, config = Engine, defaultconfig)
class NAVIGATIONSYSTEM_API UNavigationSystemV1 : public UNavigationSystemBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Navigation", meta = (DisplayName = "OnNavDataRegistered"))
	FOnNavDataGenericEvent OnNavDataRegisteredEvent;

	UPROPERTY(BlueprintAssignable, Category = "Navigation", meta = (DisplayName = "OnNavigationGenerationFinished"))
	FOnNavDataGenericEvent OnNavigationGenerationFinishedDelegate;

	/** The navigation system. */
	UFUNCTION(BlueprintPure, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static UNavigationSystemV1* GetNavigationSystem(UObject* WorldContextObject);

	/** The place that pawns can stand on that is nearest. */
	UFUNCTION(BlueprintPure, Category = "AI|Navigation",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Project Point to Navigation", ScriptName = "ProjectPointToNavigation"))
	static bool K2_ProjectPointToNavigation(UObject* WorldContextObject, const FVector& Point, FVector& ProjectedLocation,
		ANavigationData* NavData, TSubclassOf<UNavigationQueryFilter> FilterClass, const FVector QueryExtent = FVector::ZeroVector);

	/** A random place that can be reached. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Get Random Reachable Point In Radius",
			ScriptName = "GetRandomReachablePointInRadius"))
	static bool K2_GetRandomReachablePointInRadius(UObject* WorldContextObject, const FVector& Origin, FVector& RandomLocation,
		float Radius, ANavigationData* NavData = nullptr, TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr);

	/** A random place that pawns can stand on. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Get Random Location in Navigable Radius",
			ScriptName = "GetRandomLocationInNavigableRadius"))
	static bool K2_GetRandomLocationInNavigableRadius(UObject* WorldContextObject, const FVector& Origin, FVector& RandomLocation,
		float Radius, ANavigationData* NavData = nullptr, TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr);

	/** The path cost. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static ENavigationQueryResult::Type GetPathCost(UObject* WorldContextObject, const FVector& PathStart, const FVector& PathEnd,
		double& PathCost, ANavigationData* NavData = nullptr, TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr);

	/** The path length. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static ENavigationQueryResult::Type GetPathLength(UObject* WorldContextObject, const FVector& PathStart, const FVector& PathEnd,
		double& PathLength, ANavigationData* NavData = nullptr, TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr);

	/** True if it is navigation being built. */
	UFUNCTION(BlueprintPure, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static bool IsNavigationBeingBuilt(UObject* WorldContextObject);

	/** True if it is navigation being built or locked. */
	UFUNCTION(BlueprintPure, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static bool IsNavigationBeingBuiltOrLocked(UObject* WorldContextObject);

	/** A way to an actor. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static UNavigationPath* FindPathToActorSynchronously(UObject* WorldContextObject, const FVector& PathStart, AActor* GoalActor,
		float TetherDistance = 50.f, AActor* PathfindingContext = nullptr, TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr);

	/** A way to a place. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static UNavigationPath* FindPathToLocationSynchronously(UObject* WorldContextObject, const FVector& PathStart, const FVector& PathEnd,
		AActor* PathfindingContext = nullptr, TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr);

	/** Where a straight way ends. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static bool NavigationRaycast(UObject* WorldContextObject, const FVector& RayStart, const FVector& RayEnd, FVector& HitLocation,
		TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr, AController* Querier = nullptr);

	/** Sets the max simultaneous tile generation jobs count. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void SetMaxSimultaneousTileGenerationJobsCount(int32 MaxNumberOfJobs);

	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void ResetMaxSimultaneousTileGenerationJobsCount();

	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void RegisterNavigationInvoker(AActor* Invoker, float TileGenerationRadius = 3000, float TileRemovalRadius = 5000);

	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void UnregisterNavigationInvoker(AActor* Invoker);

	UFUNCTION(BlueprintCallable, Category = "Navigation")
	void OnNavigationBoundsUpdated(ANavMeshBoundsVolume* NavVolume);
};
