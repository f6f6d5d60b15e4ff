// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "AsyncActions.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnPrimaryAssetBundlesChanged);

/** A node that goes on later. */
UCLASS()
class ENGINE_API UBlueprintAsyncActionBase : public UObject
{
	GENERATED_BODY()

public:
	/** Begins the work, when its delegates are bound. */
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	void Activate();
};

/** Loads and unloads bundles of primary assets. */
UCLASS()
class ENGINE_API UAsyncActionChangePrimaryAssetBundles : public UBlueprintAsyncActionBase
{
	GENERATED_BODY()

public:
	/** The bundles are as asked for. */
	UPROPERTY(BlueprintAssignable)
	FOnPrimaryAssetBundlesChanged Completed;

	/** Replaces bundles of all loaded primary assets that have the old ones. */
	UFUNCTION(
		BlueprintCallable, Category = "Asset Manager", meta = (BlueprintInternalUseOnly = "true", WorldContext = "WorldContextObject"))
	static UAsyncActionChangePrimaryAssetBundles* AsyncChangeBundleStateForMatchingPrimaryAssets(
		UObject* WorldContextObject, const TArray<FName>& NewBundles, const TArray<FName>& OldBundles);

	/** Adds and removes bundles of some primary assets. */
	UFUNCTION(
		BlueprintCallable, Category = "Asset Manager", meta = (BlueprintInternalUseOnly = "true", WorldContext = "WorldContextObject"))
	static UAsyncActionChangePrimaryAssetBundles* AsyncChangeBundleStateForPrimaryAssetList(UObject* WorldContextObject,
		const TArray<FPrimaryAssetId>& PrimaryAssetList, const TArray<FName>& AddBundles, const TArray<FName>& RemoveBundles);
};
