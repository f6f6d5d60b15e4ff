#pragma once

#include "CoreMinimal.h"
#include "VexelId.h"

namespace LumTypeSuggestions
{
/**
 * What may have been meant by a type id that names no type, for the end of an error: the ids that are most like it, or how type ids are
 * written. Empty where many of a batch are wrong.
 */
FString Describe(const TVexelPropTypeId& TypeId);
}
