#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class FLinkerLoad;

/**
 * A package as JSON: what its summary and tables tell, and its objects with their values. Parts that are damaged are left out,
 * and OutErrors says what and at which offset.
 */
TSharedRef<FJsonObject> InspectPackage(FLinkerLoad& Linker, TArray<FString>& OutErrors);
