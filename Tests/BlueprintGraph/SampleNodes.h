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
class UPackage;

/** Nodes that the real editor made, in texts and packages. */
namespace SampleNodes
{
/** Texts that have a node of a Blueprint graph; none where the folder of samples is missing. */
std::vector<std::filesystem::path> FindTexts();
/** Packages with Blueprints. */
std::vector<std::filesystem::path> FindPackages();
/** The nodes of a text, imported into the graph. */
TArray<UK2Node*> ImportText(UEdGraph* Graph, const std::filesystem::path& Path);
}

/** A package of the samples, loaded into the test's project with those of its folder that it refers to. */
class FLoadedSample
{
public:
	FLoadedSample(const std::filesystem::path& Path, const FString& ProjectDir);
	/** Frees the names for another sample. */
	~FLoadedSample();

	TArray<UK2Node*> Nodes;

private:
	TArray<UPackage*> FindLoadedPackages() const;

	std::filesystem::path Copied;
};

/** What became of the comparison of the nodes of one class. */
struct FClassResult
{
	int32 NumCompared = 0;
	int32 NumEqual = 0;
	/** Nodes of which the function, variable, struct or enumeration is not declared here. */
	int32 NumUnknown = 0;
	/** Their titles by the reason. */
	std::map<std::string, std::set<std::string>> Unknown;
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
