#pragma once

#include "CoreMinimal.h"

class UEdGraph;
class UEdGraphNode;
class UClass;

/** Nodes that were copied out of a graph editor, as files. Without the folder every node is made anew. */
class FNodeTexts
{
public:
	/** An empty folder name is "no texts". */
	explicit FNodeTexts(const FString& InFolder)
		: Folder(InFolder)
	{
	}

	/**
	 * Pastes the file's first node of the class into the graph, without its links and with every default reset. Null when there
	 * are no texts; a file that is missing, or that does not paste, ends the program.
	 */
	UEdGraphNode* Paste(UEdGraph& Graph, UClass& NodeClass, const TCHAR* File) const;

private:
	FString Folder;
};
