#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Serialization/Archive.h"

/** Where a level is found: a map, and the host that serves it if it is not this one. */
struct ENGINE_API FURL
{
	FString Protocol = TEXT("unreal");
	FString Host;
	FString Map;
	FString Portal;
	/** "Name=Value" each. */
	TArray<FString> Op;
	int32 Port = 7777;
	int32 Valid = 1;

	friend ENGINE_API FArchive& operator<<(FArchive& Ar, FURL& URL);
};
