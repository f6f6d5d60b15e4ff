#pragma once

#include "CoreMinimal.h"
#include "NodeTextImportResult.h"

class UEdGraph;
class UEdGraphNode;
class UBlueprint;

/** Graph and node operations that belong to no one kind of graph. */
class UNREALED_API FEdGraphUtilities
{
public:
	/** Writes the nodes as clipboard text, links to other nodes included. Calls PrepareForCopying of none of them. */
	static void ExportNodesToText(TSet<UObject*> NodesToExport, FString& ExportedText);

	/**
	 * Reads clipboard text into the graph. Nodes keep their ids unless the graph has a node of that id, get names that are free,
	 * and keep the links between each other alone. Call PostProcessPastedNodes with the set afterwards.
	 */
	static void ImportNodesFromText(UEdGraph* DestinationGraph, const FString& TextToImport, TSet<UEdGraphNode*>& ImportedNodeSet);
	/** As the other form, and says what was skipped and why. */
	static FNodeTextImportResult ImportNodesFromTextWithResult(UEdGraph* DestinationGraph, const FString& TextToImport);

	/** True when the text has at least one node that the graph would take. Changes nothing. */
	static bool CanImportNodesFromText(const UEdGraph* DestinationGraph, const FString& TextToImport);

	/** Tells each node that it was pasted, brings its pins up to date with what it refers to, and drops links that the schema refuses. */
	static void PostProcessPastedNodes(TSet<UEdGraphNode*>& SpawnedNodes);

	/** A copy of the graph with its sub-graphs, in NewOuter or in the transient package, with new ids. */
	static UEdGraph* CloneGraph(UEdGraph* InSource, UObject* NewOuter);

	/** A name for a new graph object inside NewOuter: Name itself, or Name with a number. */
	static void RenameGraphToNameOrCloseToName(UEdGraph* Graph, const FString& DesiredName);
};
