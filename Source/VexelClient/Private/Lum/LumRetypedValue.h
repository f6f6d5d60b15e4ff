#pragma once

#include "CoreMinimal.h"

class FProperty;

/** What becomes of values whose variable gets another type. */
namespace LumRetypedValue
{
/**
 * The engine's text of a value as a property of another type has it, with the part of a number that a whole number cannot have cut off, and
 * a localized text as what it says. Unset where the type cannot hold the value.
 */
TOptional<FString> Convert(const FString& Text, const FProperty& NewProperty);

/** Whether the text is of the value that the property has where nobody gives it one. */
bool IsInitial(const FString& Text, const FProperty& Property);
}
