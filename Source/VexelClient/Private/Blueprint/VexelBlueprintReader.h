#pragma once

#include "Blueprint/VexelSerializedGraph.h"
#include "CoreMinimal.h"
#include "UObject/WeakObjectPtr.h"
#include "VexelExpected.h"
#include "VexelId.h"

class UBlueprint;

/** One variable of a Blueprint, as text. */
struct FVexelVariableData
{
	/** "Global" of a member variable, "Local" of one of a function. */
	FString Scope;
	/** The function whose variable it is; empty for a member. */
	FString Function;
	FString Name;
	TVexelPropTypeId Type;
	/** The default, in the engine's text form. */
	FString Value;
};

/**
 * A Blueprint as text without the property model: its graphs as the engine's copied nodes, and its variables. A plain value that keeps no
 * Blueprint from collection. Game thread.
 */
class FVexelBlueprintReader
{
public:
	/** Loads the asset at the path. False where it is no Blueprint; the reader keeps what it had then. */
	bool TryLoadBlueprint(const FString& Path);
	/** Takes the graphs that the Blueprint has now. False, as above, for null. */
	bool TryLoadBlueprint(const UBlueprint* InBlueprint);

	/** A block for each graph: a line that names it, and the text of its nodes. Empty where the Blueprint is gone. */
	FString GetBlueprintCode();

	/** The member variables, then those of the functions, in the order of their declarations. Members need a compiled Blueprint. */
	TVexelExpected<TArray<FVexelVariableData>> GetBlueprintVariableData() const;

private:
	void TryLoadGraphs();
	TArray<FVexelVariableData> GetLocalVariableDatas() const;

	TWeakObjectPtr<UBlueprint> Blueprint;
	TArray<FVexelSerializedGraph> Graphs;
};
