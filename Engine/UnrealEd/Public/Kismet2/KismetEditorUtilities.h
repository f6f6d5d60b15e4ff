#pragma once

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"

class FCompilerResultsLog;
class UBlueprint;
class UBlueprintGeneratedClass;
class UEdGraph;

/** How a Blueprint is compiled. */
enum class EBlueprintCompileOptions
{
	None = 0,
	SkipGarbageCollection = 1 << 0,
	IncludeCDOInReferenceReplacement = 1 << 1,
	SkipSave = 1 << 2,
	SkipReinstancing = 1 << 3,
	BatchCompile = 1 << 4
};
ENUM_CLASS_FLAGS(EBlueprintCompileOptions)

/** Making and compiling Blueprints. Game thread. */
class UNREALED_API FKismetEditorUtilities
{
public:
	/**
	 * Makes a Blueprint of the parent class in Outer, with its classes and default object, and the graphs that its type starts
	 * with. The two class arguments name the kinds of Blueprint and generated class.
	 */
	static UBlueprint* CreateBlueprint(UClass* ParentClass, UObject* Outer, const FName NewBPName, enum EBlueprintType BlueprintType, TSubclassOf<UBlueprint> BlueprintClassType,
		TSubclassOf<UBlueprintGeneratedClass> BlueprintGeneratedClassType, FName CallingContext = NAME_None);
	static UBlueprint* CreateBlueprint(UClass* ParentClass, UObject* Outer, const FName NewBPName, enum EBlueprintType BlueprintType, FName CallingContext = NAME_None);

	/**
	 * Checks the Blueprint, brings its classes up to date with its variables and graphs, and sets its Status; refreshes and compiles the
	 * loaded Blueprints that use members which changed. What is wrong goes to pResults, to the output log and to marks on the nodes.
	 */
	static void CompileBlueprint(UBlueprint* BlueprintObj, EBlueprintCompileOptions CompileFlags = EBlueprintCompileOptions::None, FCompilerResultsLog* pResults = nullptr);
	/** Builds the skeleton class alone. */
	static bool GenerateBlueprintSkeleton(UBlueprint* BlueprintObj, bool bForceRegeneration = false);

	static bool CanCreateBlueprintOfClass(const UClass* Class);
	static bool IsClassABlueprintSkeleton(const UClass* Class);
};
