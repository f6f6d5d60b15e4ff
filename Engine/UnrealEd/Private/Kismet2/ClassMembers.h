#pragma once

#include "CoreMinimal.h"

class UClass;

/** What a class itself declares, each member as text that tells its type and flags: what a node that uses the member depends on. */
struct FClassMembers
{
	TMap<FName, FString> Functions;
	TMap<FName, FString> Properties;

	/** Of no class there are no members. */
	static FClassMembers Of(const UClass* Class);
	bool IsSameAs(const FClassMembers& Other) const;
};
