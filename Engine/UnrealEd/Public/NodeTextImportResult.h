#pragma once

#include "CoreMinimal.h"

class UEdGraphNode;

/** One thing of a node text that was not taken over, and why. */
struct FNodeTextIssue
{
	/** Line of the text, counted from 1; 0 for the text as a whole. */
	int32 Line = 0;
	/** Object that the line belongs to, as the text names it; empty outside objects. */
	FString ObjectName;
	/** Class of that object as the text spells it; empty where the text gives none. */
	FString ClassName;
	/** One sentence for the user, without line and names. */
	FString Message;

	/** "line 12: K2Node_X_0 (Class): message". */
	UNREALED_API FString ToString() const;
};

/** What became of a node text. Specific to the headless host: the real editor shows such things in its log. */
struct FNodeTextImportResult
{
	/** Nodes that are in the graph now, in the order of the text. */
	TArray<UEdGraphNode*> Nodes;

	/** Whole nodes that are not in the graph: of an unknown class, of a class that is no node, refused by the graph, or damaged. */
	TArray<FNodeTextIssue> SkippedNodes;

	/** Parts of accepted nodes that could not be read: an unknown property, a value of the wrong type, a pin that does not parse. */
	TArray<FNodeTextIssue> Warnings;

	/** Why the text was refused as a whole; empty otherwise. Nothing was imported then. */
	FString Error;

	bool IsOk() const { return Error.IsEmpty(); }
};

/** Texts beyond these limits are refused or cut short with a message, whatever they hold. */
namespace FNodeTextLimits
{
/** Characters of a whole text. */
inline constexpr int32 MaxTextLength = 256 * 1024 * 1024;
/** Objects inside objects. */
inline constexpr int32 MaxDepth = 32;
/** Issues that a result lists; more are counted in one last entry. */
inline constexpr int32 MaxIssues = 1000;
}
