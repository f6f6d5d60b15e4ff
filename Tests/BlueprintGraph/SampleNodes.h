#pragma once

#include "CoreMinimal.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

class UEdGraph;
class UEdGraphPin;
class UK2Node;

/** Nodes that the real editor made, in texts and packages. */
namespace SampleNodes
{
/** Texts that have a node of a Blueprint graph; none where the folder of samples is missing. */
std::vector<std::filesystem::path> FindTexts();
/** Packages with Blueprints. */
std::vector<std::filesystem::path> FindPackages();
/** The nodes of a text, imported into the graph. */
TArray<UK2Node*> ImportText(UEdGraph* Graph, const std::filesystem::path& Path);
/** The nodes of a package, which is loaded under a name of its own. */
TArray<UK2Node*> LoadPackage(const std::filesystem::path& Path);
}

/** What became of the comparison of the nodes of one class. */
struct FClassResult
{
	int32 NumCompared = 0;
	int32 NumEqual = 0;
	/** Nodes of which the function, variable, struct or enumeration is not declared here. */
	int32 NumUnknown = 0;
	std::set<std::string> Unknown;
	std::set<std::string> Accepted;
};

/** Compares real nodes with fresh ones of the same identity. */
class FNodeComparison
{
public:
	/** Old packages lack what later engines write; see the table of accepted differences. */
	void Compare(UK2Node& Sample, bool bIsOldPackage);
	std::string MakeTable() const;
	int32 GetNumCompared() const;

	std::map<std::string, FClassResult> Classes;
	/** One entry a pin that differs: the node, what is expected, what was made. */
	std::vector<std::string> Differences;
};
