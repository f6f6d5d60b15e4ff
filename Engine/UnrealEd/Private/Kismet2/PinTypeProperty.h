#pragma once

#include "CoreMinimal.h"

class UClass;
struct FEdGraphPinType;
struct FPropertyDescription;

/** Describes the property that a variable of the pin type is. SelfClass is what "self" means. False when the type is unknown. */
bool DescribePinType(FName Name, const FEdGraphPinType& Type, UClass* SelfClass, FPropertyDescription& OutDescription);
