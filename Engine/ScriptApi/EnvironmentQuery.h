// Package: /Script/AIModule
#pragma once

#include "Engine/DataAsset.h"
#include "EnvironmentQuery.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(
	FEQSQueryDoneSignature, UEnvQueryInstanceBlueprintWrapper*, QueryInstance, EEnvQueryStatus::Type, QueryStatus);

/** A query of the world. */
UCLASS(BlueprintType)
class AIMODULE_API UEnvQuery : public UDataAsset
{
	GENERATED_BODY()
};

/** What a query goes around. */
UCLASS(Abstract)
class AIMODULE_API UEnvQueryContext : public UObject
{
	GENERATED_BODY()
};

/** What a query goes around, of a project. */
UCLASS(Abstract, Blueprintable)
class AIMODULE_API UEnvQueryContext_BlueprintBase : public UEnvQueryContext
{
	GENERATED_BODY()

public:
	/** Names an actor. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Context")
	void ProvideSingleActor(UObject* QuerierObject, AActor* QuerierActor, AActor*& ResultingActor) const;

	/** Names a place. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Context")
	void ProvideSingleLocation(UObject* QuerierObject, AActor* QuerierActor, FVector& ResultingLocation) const;

	/** Names actors. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Context")
	void ProvideActorsSet(UObject* QuerierObject, AActor* QuerierActor, TArray<AActor*>& ResultingActorsSet) const;

	/** Names places. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Context")
	void ProvideLocationsSet(UObject* QuerierObject, AActor* QuerierActor, TArray<FVector>& ResultingLocationSet) const;
};

/** A query that runs. */
UCLASS(BlueprintType)
class AIMODULE_API UEnvQueryInstanceBlueprintWrapper : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "AI|EQS")
	FEQSQueryDoneSignature OnQueryFinishedEvent;

	/** The item score. */
	UFUNCTION(BlueprintCallable, Category = "AI|EQS")
	float GetItemScore(int32 ItemIndex) const;

	/** The query results as actors. */
	UFUNCTION(BlueprintCallable, Category = "AI|EQS")
	bool GetQueryResultsAsActors(TArray<AActor*>& ResultActors) const;

	/** The query results as locations. */
	UFUNCTION(BlueprintCallable, Category = "AI|EQS")
	bool GetQueryResultsAsLocations(TArray<FVector>& ResultLocations) const;

	/** Sets the named param. */
	UFUNCTION(BlueprintCallable, Category = "AI|EQS")
	void SetNamedParam(FName ParamName, float Value);
};

/** All queries of a world. */
UCLASS(config = Game, defaultconfig, Transient)
class AIMODULE_API UEnvQueryManager : public UObject
{
	GENERATED_BODY()

public:
	/** Runs a query. */
	UFUNCTION(BlueprintCallable, Category = "AI|EQS", meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "WrapperClass"))
	static UEnvQueryInstanceBlueprintWrapper* RunEQSQuery(UObject* WorldContextObject, UEnvQuery* QueryTemplate, UObject* Querier,
		TEnumAsByte<EEnvQueryRunMode::Type> RunMode, TSubclassOf<UEnvQueryInstanceBlueprintWrapper> WrapperClass);
};
