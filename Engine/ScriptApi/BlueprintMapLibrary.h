// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "BlueprintMapLibrary.generated.h"

/** Maps of any types. */
UCLASS(meta = (BlueprintThreadSafe))
class ENGINE_API UBlueprintMapLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Sets the value of a key. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Add", CompactNodeTitle = "ADD", MapParam = "TargetMap", MapKeyParam = "Key", MapValueParam = "Value",
			AutoCreateRefTerm = "Key, Value"))
	static void Map_Add(const TMap<int32, int32>& TargetMap, const int32& Key, const int32& Value);

	/** Takes out a key; true if it was there. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Remove", CompactNodeTitle = "REMOVE", MapParam = "TargetMap", MapKeyParam = "Key",
			AutoCreateRefTerm = "Key"))
	static bool Map_Remove(const TMap<int32, int32>& TargetMap, const int32& Key);

	/** Value of a key; false if it is not there. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Find", CompactNodeTitle = "FIND", MapParam = "TargetMap", MapKeyParam = "Key", MapValueParam = "Value",
			AutoCreateRefTerm = "Key", BlueprintThreadSafe))
	static bool Map_Find(const TMap<int32, int32>& TargetMap, const int32& Key, int32& Value);

	/** True if the key is there. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Contains", CompactNodeTitle = "CONTAINS", MapParam = "TargetMap", MapKeyParam = "Key",
			AutoCreateRefTerm = "Key"))
	static bool Map_Contains(const TMap<int32, int32>& TargetMap, const int32& Key);

	/** All keys. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Keys", CompactNodeTitle = "KEYS", MapParam = "TargetMap", MapKeyParam = "Keys", AutoCreateRefTerm = "Keys"))
	static void Map_Keys(const TMap<int32, int32>& TargetMap, TArray<int32>& Keys);

	/** All values. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Values", CompactNodeTitle = "VALUES", MapParam = "TargetMap", MapValueParam = "Values",
			AutoCreateRefTerm = "Values"))
	static void Map_Values(const TMap<int32, int32>& TargetMap, TArray<int32>& Values);

	/** Number of keys. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Length", CompactNodeTitle = "LENGTH", MapParam = "TargetMap", Keywords = "num size count"))
	static int32 Map_Length(const TMap<int32, int32>& TargetMap);

	/** True if there are no keys. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Is Empty", CompactNodeTitle = "IS EMPTY", MapParam = "TargetMap", Keywords = "is empty"))
	static bool Map_IsEmpty(const TMap<int32, int32>& TargetMap);

	/** True if there are keys. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Is Not Empty", CompactNodeTitle = "IS NOT EMPTY", MapParam = "TargetMap", Keywords = "is not empty"))
	static bool Map_IsNotEmpty(const TMap<int32, int32>& TargetMap);

	/** Takes out all keys. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Map",
		meta = (DisplayName = "Clear", CompactNodeTitle = "CLEAR", MapParam = "TargetMap"))
	static void Map_Clear(const TMap<int32, int32>& TargetMap);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Map", meta = (BlueprintInternalUseOnly = "true", MapParam = "Value"))
	static void SetMapPropertyByName(UObject* Object, FName PropertyName, const TMap<int32, int32>& Value);
};
