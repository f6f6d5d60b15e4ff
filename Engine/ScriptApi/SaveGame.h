// Package: /Script/Engine
#pragma once

#include "AsyncActions.h"
#include "SaveGame.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnAsyncHandleSaveGame, USaveGame*, SaveGame, bool, bSuccess);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnPrimaryAssetLoaded, UObject*, Loaded);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnPrimaryAssetClassLoaded, TSubclassOf<UObject>, Loaded);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnPrimaryAssetListLoaded, const TArray<UObject*>&, Loaded);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnPrimaryAssetClassListLoaded, const TArray<TSubclassOf<UObject>>&, Loaded);

/** Saves and loads games in the background. */
UCLASS()
class ENGINE_API UAsyncActionHandleSaveGame : public UBlueprintAsyncActionBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnAsyncHandleSaveGame Completed;

	/** Saves a game. */
	UFUNCTION(BlueprintCallable, Category = "SaveGame", meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true"))
	static UAsyncActionHandleSaveGame* AsyncSaveGameToSlot(
		UObject* WorldContextObject, USaveGame* SaveGameObject, const FString& SlotName, const int32 UserIndex);

	/** Loads a game. */
	UFUNCTION(BlueprintCallable, Category = "SaveGame", meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true"))
	static UAsyncActionHandleSaveGame* AsyncLoadGameFromSlot(UObject* WorldContextObject, const FString& SlotName, const int32 UserIndex);
};

/** Loads primary assets. */
UCLASS(Abstract)
class ENGINE_API UAsyncActionLoadPrimaryAssetBase : public UBlueprintAsyncActionBase
{
	GENERATED_BODY()
};

/** Loads a primary asset. */
UCLASS()
class ENGINE_API UAsyncActionLoadPrimaryAsset : public UAsyncActionLoadPrimaryAssetBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnPrimaryAssetLoaded Completed;

	/** Loads a primary asset. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager",
		meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "LoadBundles"))
	static UAsyncActionLoadPrimaryAsset* AsyncLoadPrimaryAsset(
		UObject* WorldContextObject, FPrimaryAssetId PrimaryAsset, const TArray<FName>& LoadBundles);
};

/** Loads a primary asset's class. */
UCLASS()
class ENGINE_API UAsyncActionLoadPrimaryAssetClass : public UAsyncActionLoadPrimaryAssetBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnPrimaryAssetClassLoaded Completed;

	/** Loads a primary asset's class. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager",
		meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "LoadBundles"))
	static UAsyncActionLoadPrimaryAssetClass* AsyncLoadPrimaryAssetClass(
		UObject* WorldContextObject, FPrimaryAssetId PrimaryAsset, const TArray<FName>& LoadBundles);
};

/** Loads primary assets. */
UCLASS()
class ENGINE_API UAsyncActionLoadPrimaryAssetList : public UAsyncActionLoadPrimaryAssetBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnPrimaryAssetListLoaded Completed;

	/** Loads primary assets. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager",
		meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "LoadBundles"))
	static UAsyncActionLoadPrimaryAssetList* AsyncLoadPrimaryAssetList(
		UObject* WorldContextObject, const TArray<FPrimaryAssetId>& PrimaryAssetList, const TArray<FName>& LoadBundles);
};

/** Loads primary assets' classes. */
UCLASS()
class ENGINE_API UAsyncActionLoadPrimaryAssetClassList : public UAsyncActionLoadPrimaryAssetBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnPrimaryAssetClassListLoaded Completed;

	/** Loads primary assets' classes. */
	UFUNCTION(BlueprintCallable, Category = "AssetManager",
		meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true", AutoCreateRefTerm = "LoadBundles"))
	static UAsyncActionLoadPrimaryAssetClassList* AsyncLoadPrimaryAssetClassList(
		UObject* WorldContextObject, const TArray<FPrimaryAssetId>& PrimaryAssetList, const TArray<FName>& LoadBundles);
};

/** A node that goes on later and can be given up. */
UCLASS(Abstract, BlueprintType, meta = (ExposedAsyncProxy = "AsyncAction"))
class ENGINE_API UCancellableAsyncAction : public UBlueprintAsyncActionBase
{
	GENERATED_BODY()

public:
	/** Gives the work up. */
	UFUNCTION(BlueprintCallable, Category = "Async Action")
	void Cancel();

	/** True if it is active. */
	UFUNCTION(BlueprintPure, Category = "Async Action")
	bool IsActive() const;
};
