#pragma once

#include "CoreMinimal.h"

#include <string>
#include <vector>

class UEdGraph;

/** One text that was copied out of the real editor. */
struct FNodeTextSample
{
	std::string Name;
	FString Text;
};

/** The sample texts beside the source tree; empty when the folder is missing. */
std::vector<FNodeTextSample> LoadNodeTextSamples();

/** What follows "CustomProperties " in the text's pin lines, in order, with one spelling of what has several. */
std::vector<std::string> GetPinLines(const FString& Text);

/** The line without its links to nodes that are not among the names. */
std::string DropLinksToOthers(const std::string& PinLine, const std::vector<std::string>& NodeNames);

/** Names of the text's outermost objects. */
std::vector<std::string> GetNodeNames(const FString& Text);

/** The graph's nodes as clipboard text. */
FString CopyNodes(const UEdGraph& Graph);
