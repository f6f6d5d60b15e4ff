// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "BlueprintSetLibrary.generated.h"

/** Sets of any type. */
UCLASS(meta = (BlueprintThreadSafe))
class ENGINE_API UBlueprintSetLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Adds an item. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Add", CompactNodeTitle = "ADD", SetParam = "TargetSet|NewItem", AutoCreateRefTerm = "NewItem"))
	static void Set_Add(const TSet<int32>& TargetSet, const int32& NewItem);

	/** Adds items. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Add Items", CompactNodeTitle = "ADD ITEMS", SetParam = "TargetSet|NewItems", AutoCreateRefTerm = "NewItems"))
	static void Set_AddItems(const TSet<int32>& TargetSet, const TArray<int32>& NewItems);

	/** Takes out an item; true if it was there. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Remove", CompactNodeTitle = "REMOVE", SetParam = "TargetSet|Item", AutoCreateRefTerm = "Item"))
	static bool Set_Remove(const TSet<int32>& TargetSet, const int32& Item);

	/** Takes out items. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Remove Items", CompactNodeTitle = "REMOVE ITEMS", SetParam = "TargetSet|Items", AutoCreateRefTerm = "Items"))
	static void Set_RemoveItems(const TSet<int32>& TargetSet, const TArray<int32>& Items);

	/** The items as an array. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "To Array", CompactNodeTitle = "TO ARRAY", SetParam = "A|Result"))
	static void Set_ToArray(const TSet<int32>& A, TArray<int32>& Result);

	/** Takes out all items. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Clear", CompactNodeTitle = "CLEAR", SetParam = "TargetSet"))
	static void Set_Clear(const TSet<int32>& TargetSet);

	/** Number of items. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Length", CompactNodeTitle = "LENGTH", SetParam = "TargetSet", Keywords = "num size count"))
	static int32 Set_Length(const TSet<int32>& TargetSet);

	/** True if there are no items. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Is Empty", CompactNodeTitle = "IS EMPTY", SetParam = "TargetSet"))
	static bool Set_IsEmpty(const TSet<int32>& TargetSet);

	/** True if there are items. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Is Not Empty", CompactNodeTitle = "IS NOT EMPTY", SetParam = "TargetSet"))
	static bool Set_IsNotEmpty(const TSet<int32>& TargetSet);

	/** True if the item is there. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Contains Item", CompactNodeTitle = "CONTAINS", SetParam = "TargetSet|ItemToFind",
			AutoCreateRefTerm = "ItemToFind"))
	static bool Set_Contains(const TSet<int32>& TargetSet, const int32& ItemToFind);

	/** The items that both have. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Intersection", CompactNodeTitle = "INTERSECTION", SetParam = "A|B|Result"))
	static void Set_Intersection(const TSet<int32>& A, const TSet<int32>& B, TSet<int32>& Result);

	/** The items that either has. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Union", CompactNodeTitle = "UNION", SetParam = "A|B|Result"))
	static void Set_Union(const TSet<int32>& A, const TSet<int32>& B, TSet<int32>& Result);

	/** The items of the first that the second lacks. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set",
		meta = (DisplayName = "Difference", CompactNodeTitle = "DIFFERENCE", SetParam = "A|B|Result"))
	static void Set_Difference(const TSet<int32>& A, const TSet<int32>& B, TSet<int32>& Result);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Set", meta = (BlueprintInternalUseOnly = "true", SetParam = "Value"))
	static void SetSetPropertyByName(UObject* Object, FName PropertyName, const TSet<int32>& Value);
};
