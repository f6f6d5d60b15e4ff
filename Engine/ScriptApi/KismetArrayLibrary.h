// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetArrayLibrary.generated.h"

/** Which items come first. */
UENUM(BlueprintType)
enum class EArraySortOrder : uint8
{
	Ascending,
	Descending
};

/** Arrays of any type. The declared element type stands for the wildcard that ArrayParm names. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "ArrayLibrary"))
class ENGINE_API UKismetArrayLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Adds an item and answers its place. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Add", CompactNodeTitle = "ADD", ArrayParm = "TargetArray", ArrayTypeDependentParams = "NewItem",
			AutoCreateRefTerm = "NewItem", Keywords = "plus"))
	static int32 Array_Add(const TArray<int32>& TargetArray, const int32& NewItem);

	/** Adds an item that is not there yet. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Add Unique", CompactNodeTitle = "ADDUNIQUE", ArrayParm = "TargetArray", ArrayTypeDependentParams = "NewItem",
			AutoCreateRefTerm = "NewItem", Keywords = "plus"))
	static int32 Array_AddUnique(const TArray<int32>& TargetArray, const int32& NewItem);

	/** Adds the items of another array. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Append Array", CompactNodeTitle = "APPEND", ArrayParm = "TargetArray",
			ArrayTypeDependentParams = "SourceArray", Keywords = "plus"))
	static void Array_Append(const TArray<int32>& TargetArray, const TArray<int32>& SourceArray);

	/** Puts an item before the one at a place. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Insert", CompactNodeTitle = "INSERT", ArrayParm = "TargetArray", ArrayTypeDependentParams = "NewItem",
			AutoCreateRefTerm = "NewItem"))
	static void Array_Insert(const TArray<int32>& TargetArray, const int32& NewItem, int32 Index);

	/** Takes out the item at a place. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Remove Index", CompactNodeTitle = "REMOVE INDEX", ArrayParm = "TargetArray"))
	static void Array_Remove(const TArray<int32>& TargetArray, int32 IndexToRemove);

	/** Takes out every equal item. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Remove Item", CompactNodeTitle = "REMOVE", ArrayParm = "TargetArray", ArrayTypeDependentParams = "Item"))
	static bool Array_RemoveItem(const TArray<int32>& TargetArray, const int32& Item);

	/** Takes out all items. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Clear", CompactNodeTitle = "CLEAR", ArrayParm = "TargetArray", Keywords = "empty"))
	static void Array_Clear(const TArray<int32>& TargetArray);

	/** Sets the number of items. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Resize", CompactNodeTitle = "RESIZE", ArrayParm = "TargetArray"))
	static void Array_Resize(const TArray<int32>& TargetArray, int32 Size);

	/** Reverses the order of the items. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Reverse", CompactNodeTitle = "REVERSE", ArrayParm = "TargetArray"))
	static void Array_Reverse(const TArray<int32>& TargetArray);

	/** Number of items. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Length", CompactNodeTitle = "LENGTH", ArrayParm = "TargetArray", Keywords = "num size count"))
	static int32 Array_Length(const TArray<int32>& TargetArray);

	/** True if there are no items. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Is Empty", CompactNodeTitle = "IS EMPTY", ArrayParm = "TargetArray"))
	static bool Array_IsEmpty(const TArray<int32>& TargetArray);

	/** True if there are items. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Is Not Empty", CompactNodeTitle = "IS NOT EMPTY", ArrayParm = "TargetArray"))
	static bool Array_IsNotEmpty(const TArray<int32>& TargetArray);

	/** Place of the last item. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Last Index", CompactNodeTitle = "LAST INDEX", ArrayParm = "TargetArray"))
	static int32 Array_LastIndex(const TArray<int32>& TargetArray);

	/** A copy of the item at a place. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (BlueprintInternalUseOnly = "true", DisplayName = "Get", CompactNodeTitle = "GET", ArrayParm = "TargetArray",
			ArrayTypeDependentParams = "Item"))
	static void Array_Get(const TArray<int32>& TargetArray, int32 Index, int32& Item);

	/** Sets the item at a place. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Set Array Elem", CompactNodeTitle = "SET", ArrayParm = "TargetArray", ArrayTypeDependentParams = "Item",
			AutoCreateRefTerm = "Item"))
	static void Array_Set(const TArray<int32>& TargetArray, int32 Index, const int32& Item, bool bSizeToFit);

	/** Place of the first equal item, or -1. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Find Item", CompactNodeTitle = "FIND", ArrayParm = "TargetArray", ArrayTypeDependentParams = "ItemToFind",
			AutoCreateRefTerm = "ItemToFind"))
	static int32 Array_Find(const TArray<int32>& TargetArray, const int32& ItemToFind);

	/** True if an equal item is there. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Contains Item", CompactNodeTitle = "CONTAINS", ArrayParm = "TargetArray",
			ArrayTypeDependentParams = "ItemToFind", AutoCreateRefTerm = "ItemToFind"))
	static bool Array_Contains(const TArray<int32>& TargetArray, const int32& ItemToFind);

	/** True if a place holds an item. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Is Valid Index", CompactNodeTitle = "IS VALID INDEX", ArrayParm = "TargetArray"))
	static bool Array_IsValidIndex(const TArray<int32>& TargetArray, int32 IndexToTest);

	/** Brings the items into random order. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Shuffle", CompactNodeTitle = "SHUFFLE", ArrayParm = "TargetArray"))
	static void Array_Shuffle(const TArray<int32>& TargetArray);

	/** Swaps two items. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Swap Array Elements", CompactNodeTitle = "SWAP", ArrayParm = "TargetArray"))
	static void Array_Swap(const TArray<int32>& TargetArray, int32 FirstIndex, int32 SecondIndex);

	/** A random item and its place. */
	UFUNCTION(BlueprintCallable, CustomThunk, BlueprintPure, Category = "Utilities|Array",
		meta = (DisplayName = "Random Array Item", CompactNodeTitle = "RANDOM", ArrayParm = "TargetArray",
			ArrayTypeDependentParams = "OutItem"))
	static void Array_Random(const TArray<int32>& TargetArray, int32& OutItem, int32& OutIndex);

	/** True if both arrays have equal items in the same order. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Identical", CompactNodeTitle = "==", ArrayParm = "ArrayA,ArrayB", ArrayTypeDependentParams = "ArrayB"))
	static bool Array_Identical(const TArray<int32>& ArrayA, const TArray<int32>& ArrayB);

	/** Brings the items into an order of a stream. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Shuffle from Stream", CompactNodeTitle = "SHUFFLE", ArrayParm = "TargetArray"))
	static void Array_ShuffleFromStream(const TArray<int32>& TargetArray, UPARAM(ref) FRandomStream& RandomStream);

	/** An item of a stream's choice and its place. */
	UFUNCTION(BlueprintPure, CustomThunk, Category = "Utilities|Array",
		meta = (DisplayName = "Random Array Item from Stream", CompactNodeTitle = "RANDOM", ArrayParm = "TargetArray",
			ArrayTypeDependentParams = "OutItem"))
	static void Array_RandomFromStream(
		const TArray<int32>& TargetArray, UPARAM(ref) FRandomStream& RandomStream, int32& OutItem, int32& OutIndex);

	/** Sets a property by name. */
	UFUNCTION(BlueprintCallable, CustomThunk, Category = "Utilities|Array", meta = (BlueprintInternalUseOnly = "true", ArrayParm = "Value"))
	static void SetArrayPropertyByName(UObject* Object, FName PropertyName, const TArray<int32>& Value);

	/** The actors of a class. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Array",
		meta = (DeterminesOutputType = "FilterClass", DynamicOutputParam = "FilteredArray"))
	static void FilterArray(const TArray<AActor*>& TargetArray, TSubclassOf<AActor> FilterClass, TArray<AActor*>& FilteredArray);

	/** Sorts texts. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Array", meta = (DisplayName = "Sort String Array", CompactNodeTitle = "SORT"))
	static void SortStringArray(
		UPARAM(ref) TArray<FString>& TargetArray, bool bStableSort = false, EArraySortOrder SortOrder = EArraySortOrder::Ascending);

	/** Sorts names. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Array", meta = (DisplayName = "Sort Name Array", CompactNodeTitle = "SORT"))
	static void SortNameArray(UPARAM(ref) TArray<FName>& TargetArray, bool bStableSort = false, bool bLexicalSort = true,
		EArraySortOrder SortOrder = EArraySortOrder::Ascending);

	/** Sorts numbers. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Array", meta = (DisplayName = "Sort Byte Array", CompactNodeTitle = "SORT"))
	static void SortByteArray(
		UPARAM(ref) TArray<uint8>& TargetArray, bool bStableSort = false, EArraySortOrder SortOrder = EArraySortOrder::Ascending);

	/** Sorts numbers. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Array", meta = (DisplayName = "Sort Integer Array", CompactNodeTitle = "SORT"))
	static void SortIntArray(
		UPARAM(ref) TArray<int32>& TargetArray, bool bStableSort = false, EArraySortOrder SortOrder = EArraySortOrder::Ascending);

	/** Sorts numbers. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Array", meta = (DisplayName = "Sort Integer64 Array", CompactNodeTitle = "SORT"))
	static void SortInt64Array(
		UPARAM(ref) TArray<int64>& TargetArray, bool bStableSort = false, EArraySortOrder SortOrder = EArraySortOrder::Ascending);

	/** Sorts numbers. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Array", meta = (DisplayName = "Sort Float Array", CompactNodeTitle = "SORT"))
	static void SortFloatArray(
		UPARAM(ref) TArray<double>& TargetArray, bool bStableSort = false, EArraySortOrder SortOrder = EArraySortOrder::Ascending);
};
