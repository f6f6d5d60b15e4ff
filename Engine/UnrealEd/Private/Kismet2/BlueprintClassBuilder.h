#pragma once

#include "CoreMinimal.h"

class FProperty;
class UBlueprint;
class UBlueprintGeneratedClass;
class UEdGraph;
class UEdGraphPin;
class UFunction;
struct FEdGraphPinType;

/**
 * Gives a Blueprint's class the members that the Blueprint declares: variables, components, widgets, timelines, dispatchers, functions,
 * events.
 */
class FBlueprintClassBuilder
{
public:
	FBlueprintClassBuilder(UBlueprint& InBlueprint, UBlueprintGeneratedClass& InClass)
		: Blueprint(InBlueprint)
		, Class(InClass)
	{
	}

	/** The class must be empty; it is linked afterwards. Appends what is wrong, one sentence each. */
	void Build(TArray<FString>& OutErrors);

private:
	void AddDispatcherSignatures();
	void AddVariables();
	void AddComponentsAndTimelines();
	void AddWidgets();
	void AddInterfaces();
	void AddFunctions();
	void AddFunctionOfGraph(const UEdGraph& Graph);
	void AddEvents();
	UFunction* AddFunction(FName Name, uint32 Flags, const TArray<UEdGraphPin*>& Parameters, const TArray<UEdGraphPin*>& Results);
	FProperty* AddProperty(FName Name, const FEdGraphPinType& Type, uint64 Flags);
	FProperty* AddObjectProperty(FName Name, UClass* ObjectClass, uint64 Flags);

	UBlueprint& Blueprint;
	UBlueprintGeneratedClass& Class;
	TArray<FString>* Errors = nullptr;
};
