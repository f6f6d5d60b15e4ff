#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonValue.h"

namespace VexelObjectEditIgnored
{
/** A sentence for each part of the requests that means nothing and is passed over: operations and keys that there are not. */
TArray<FString> Describe(const TArray<TSharedPtr<FJsonValue>>& Requests);
}
