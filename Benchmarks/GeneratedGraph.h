#pragma once

#include "CoreMinimal.h"

class FVexelBlueprintMapping;
class UBlueprint;
class UEdGraph;
class UEdGraphNode;

/** An Actor Blueprint of its own with an empty event graph to put nodes into. */
class FGeneratedGraph
{
public:
	FGeneratedGraph();
	~FGeneratedGraph();
	FGeneratedGraph(const FGeneratedGraph&) = delete;
	FGeneratedGraph& operator=(const FGeneratedGraph&) = delete;

	UEdGraphNode* Spawn(const TCHAR* Id);
	TArray<UEdGraphNode*> GetNodes() const;

	/** Ways in which graphs are built. */
	enum class EShape : uint8
	{
		/** One event, and a long way with values. */
		Chain,
		/** Branches and sequences, of which each way goes on by itself. */
		Tree,
		/** As Tree, and many ways come together again. */
		Joins,
		/** Values made of values, which several read. */
		Values,
		/** Many events with a few nodes each. */
		Events,
		/** Everything, in equal parts. */
		Mixed,
	};
	static constexpr EShape Shapes[] = {EShape::Chain, EShape::Tree, EShape::Joins, EShape::Values, EShape::Events, EShape::Mixed};
	static const char* GetName(EShape Shape);
	/** Adds about as many nodes; the same ones for the same seed. */
	void Fill(EShape Shape, int32 NumNodes, int32 Seed);

	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
	TSharedRef<FVexelBlueprintMapping> Mapping;
};
