// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetGuidLibrary.generated.h"

/** Globally unique identifiers. */
UCLASS(meta = (BlueprintThreadSafe))
class ENGINE_API UKismetGuidLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** True if they are the same. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Guid", meta = (DisplayName = "Equal (Guid)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_GuidGuid(const FGuid& A, const FGuid& B);

	/** True if they differ. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Guid",
		meta = (DisplayName = "Not Equal (Guid)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_GuidGuid(const FGuid& A, const FGuid& B);

	/** True if the identifier is not zero. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Guid", meta = (DisplayName = "Is Valid (Guid)", Keywords = "valid"))
	static bool IsValid_Guid(const FGuid& InGuid);

	/** Makes the identifier zero. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Guid", meta = (DisplayName = "Invalidate (Guid)", Keywords = "reset"))
	static void Invalidate_Guid(UPARAM(ref) FGuid& InGuid);

	/** A new identifier. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Guid")
	static FGuid NewGuid();

	/** Text of an identifier. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Guid",
		meta = (DisplayName = "To String (Guid)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FString Conv_GuidToString(const FGuid& InGuid);

	/** Reads an identifier. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Guid", meta = (DisplayName = "Parse String to Guid"))
	static void Parse_StringToGuid(const FString& GuidString, FGuid& OutGuid, bool& Success);
};
