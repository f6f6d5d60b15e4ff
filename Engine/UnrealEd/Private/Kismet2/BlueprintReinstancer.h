#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

class UBlueprint;
class UBlueprintGeneratedClass;

/**
 * Builds a Blueprint's class again in place, and the Blueprint classes that derive from it. The classes keep their identity;
 * what lives in the old layouts (default objects, instances) is moved to classes of its own, and new objects with the same
 * values, by member name or id, take its place.
 */
class FBlueprintCompileReinstancer
{
public:
	FBlueprintCompileReinstancer(UBlueprint& Blueprint, UBlueprintGeneratedClass& Class);

	/** The Blueprint that is met twice on the way up the parents; a class below it can never be built. Null where the parents end. */
	static const UBlueprint* FindRingOfParents(const UBlueprint& Blueprint);

	/** Appends what is wrong with the Blueprint itself, one sentence each. */
	void Rebuild(TArray<FString>& OutErrors);

private:
	struct FRebuiltClass
	{
		UBlueprint* Blueprint = nullptr;
		UBlueprintGeneratedClass* Class = nullptr;
		UBlueprintGeneratedClass* OldClass = nullptr;
		UObject* OldDefaultObject = nullptr;
		TArray<UObject*> OldInstances;
		TMap<FName, FGuid> OldPropertyGuids;
	};

	void AddClassAndDerived(UBlueprint& Blueprint, UBlueprintGeneratedClass& Class);
	void MoveOldLayoutAway(FRebuiltClass& Rebuilt);
	static void MoveObjectToClass(UObject& Object, UClass& NewClass) { Object.SetClass(&NewClass); }
	static void BuildClass(FRebuiltClass& Rebuilt, TArray<FString>& OutErrors);
	void CreateNewDefaultObject(FRebuiltClass& Rebuilt, TArray<FString>& OutErrors);
	/** What From was given itself; what it inherited, To inherits from its own archetype. */
	void TransferValues(UObject& From, UObject& To, const TMap<FName, FGuid>& OldGuids);
	/** Ids of the old properties of the class and of the ancestors that are rebuilt with it, by their old names. */
	TMap<FName, FGuid> GetOldPropertyGuids(const FRebuiltClass& Rebuilt) const;
	static void ApplyVariableDefaults(const FRebuiltClass& Rebuilt, TArray<FString>& OutErrors);
	/** A default that was given to a variable behind a change of its type is newer than the value of the old type. */
	void ApplyDefaultsOfRetyped(const FRebuiltClass& Rebuilt);
	/** The default objects of such classes are reached through their classes alone. */
	bool AreSkeletonsWithoutInstances() const;
	/** Packages that hold instances and have no change that is not saved. */
	TSet<UPackage*> FindUneditedPackages() const;
	void ReplaceObjects();

	/** Parents first. */
	TArray<FRebuiltClass> Classes;
	/** What takes the place of each old object, parts included. */
	TMap<UObject*, UObject*> Replacements;
};
