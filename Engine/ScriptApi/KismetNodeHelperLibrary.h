// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetNodeHelperLibrary.generated.h"

/** What nodes turn into when they are compiled. */
UCLASS(meta = (BlueprintThreadSafe))
class ENGINE_API UKismetNodeHelperLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** True if a bit is set. */
	UFUNCTION(BlueprintPure, meta = (BlueprintInternalUseOnly = "true"))
	static bool BitIsMarked(int32 Data, int32 Index);

	/** Sets a bit. */
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void MarkBit(UPARAM(ref) int32& Data, int32 Index);

	/** Clears a bit. */
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void ClearBit(UPARAM(ref) int32& Data, int32 Index);

	/** Clears all bits. */
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void ClearAllBits(UPARAM(ref) int32& Data);

	/** True if a bit is clear. */
	UFUNCTION(BlueprintPure, meta = (BlueprintInternalUseOnly = "true"))
	static bool HasUnmarkedBit(int32 Data, int32 NumBits);

	/** True if a bit is set. */
	UFUNCTION(BlueprintPure, meta = (BlueprintInternalUseOnly = "true"))
	static bool HasMarkedBit(int32 Data, int32 NumBits);

	/** A clear bit. */
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static int32 GetUnmarkedBit(int32 Data, int32 StartIdx, int32 NumBits, bool bRandom);

	/** The first clear bit. */
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static int32 GetFirstUnmarkedBit(int32 Data, int32 StartIdx, int32 NumBits);

	/** The first set bit. */
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static int32 GetFirstMarkedBit(int32 Data, int32 StartIdx, int32 NumBits);

	/** Name of an enumerator. */
	UFUNCTION(BlueprintPure, meta = (BlueprintInternalUseOnly = "true"))
	static FName GetEnumeratorName(const UEnum* Enum, uint8 EnumeratorValue);

	/** Name of an enumerator for people. */
	UFUNCTION(BlueprintPure, meta = (BlueprintInternalUseOnly = "true"))
	static FString GetEnumeratorUserFriendlyName(const UEnum* Enum, uint8 EnumeratorValue);

	/** The value, or the last one if it is none of the enumeration. */
	UFUNCTION(BlueprintPure, meta = (BlueprintInternalUseOnly = "true"))
	static uint8 GetValidValue(const UEnum* Enum, uint8 EnumeratorValue);

	/** Value of an enumerator by its place. */
	UFUNCTION(BlueprintPure, meta = (BlueprintInternalUseOnly = "true"))
	static uint8 GetEnumeratorValueFromIndex(const UEnum* Enum, uint8 EnumeratorIndex);
};
