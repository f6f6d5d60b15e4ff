#pragma once

#include "CoreMinimal.h"
#include "VexelId.h"

/** Describes kinds of nodes in a sentence each, for the search index and the assistant. */
class FVexelNodeTypeDescription
{
public:
	/** The sentence of the id, what the node's tooltip adds to it, and the keywords. Name, Keywords and Tooltip are the node's own. */
	static FString Make(const TVexelNodeTypeId& Id, const FString& Name, const FString& Keywords, const FString& Tooltip);

	/** The sentence that the id's leading segments choose, with the rest of the id in it. */
	static FString MakeSentence(const TVexelNodeTypeId& Id, const FString& Name);
};
