#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"

#include "BlueprintEditorLibrary.generated.h"

class UBlueprint;
class UEdGraph;

/** Edits of Blueprints for scripts. */
UCLASS()
class UNREALED_API UBlueprintEditorLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Has the Blueprint derive from another class and compiles it. Nothing happens when the class is the Blueprint's own or
	 * derives from it, or when Blueprints of its kind cannot derive from it.
	 */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static void ReparentBlueprint(UBlueprint* Blueprint, UClass* NewParentClass);

	/** Compiles the Blueprint. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static void CompileBlueprint(UBlueprint* Blueprint);

	/** Null when the name is taken or is no name. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static UEdGraph* AddFunctionGraph(UBlueprint* Blueprint, const FString& FuncName = FString(TEXT("NewFunction")));

	/** Removes the Blueprint's function of that name. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static void RemoveFunctionGraph(UBlueprint* Blueprint, FName FuncName);

	/** Gives the graph another name. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static void RenameGraph(UEdGraph* Graph, const FString& NewNameStr = FString(TEXT("NewGraph")));

	/** The Blueprint's event graph, or none. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static UEdGraph* FindEventGraph(UBlueprint* Blueprint);

	/** The graph of the name, at any depth; null without one. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static UEdGraph* FindGraph(UBlueprint* Blueprint, FName GraphName);

	/** Answers how many there were. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static int32 RemoveUnusedVariables(UBlueprint* Blueprint);

	/** The class that the Blueprint makes. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint Editor")
	static UClass* GeneratedClass(UBlueprint* BlueprintObj);
};
