#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtr.h"

class UBlueprint;
class UObject;

/**
 * Which Blueprints each Blueprint uses: as its parent, an interface, a variable's type, or in a node. What was found of a Blueprint is
 * kept until something in it is modified, so that to ask for a Blueprint's users costs a look-up in each loaded Blueprint. Game thread.
 */
class FBlueprintDependencies
{
public:
	static FBlueprintDependencies& Get();

	/** Loaded Blueprints that use the Blueprint, itself left out. */
	TArray<UBlueprint*> FindUsers(const UBlueprint& Blueprint);
	/** For what changes a Blueprint without Modify: a compile, a load. */
	void Forget(UBlueprint& Blueprint) { UsedBy.Remove(&Blueprint); }

	/** The Blueprint that the object is, makes its class, or has it as a part. */
	static UBlueprint* FindBlueprintOf(const UObject* Object);

private:
	using FUsed = TSet<TWeakObjectPtr<UBlueprint>>;

	FBlueprintDependencies();
	void OnModified(UObject* Object);
	const FUsed& GetUsed(UBlueprint& Blueprint);
	static FUsed Collect(const UBlueprint& Blueprint);

	TMap<TWeakObjectPtr<UBlueprint>, FUsed> UsedBy;
};
