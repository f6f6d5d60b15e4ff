#include "NodeTextSamples.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphUtilities.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace
{
std::vector<std::string> SplitLines(const FString& Text)
{
	std::vector<std::string> Lines;
	std::istringstream Stream(TCHAR_TO_UTF8(*Text));
	for (std::string Line; std::getline(Stream, Line);)
	{
		Line.erase(0, Line.find_first_not_of(" \t"));
		Line.erase(Line.find_last_not_of(" \t\r") + 1);
		Lines.push_back(Line);
	}
	return Lines;
}
}

std::vector<FNodeTextSample> LoadNodeTextSamples()
{
	std::vector<FNodeTextSample> Samples;
	const std::filesystem::path Folder = std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/t3d";
	std::error_code Missing;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Folder, Missing))
	{
		std::ostringstream Bytes;
		Bytes << std::ifstream(Entry.path(), std::ios::binary).rdbuf();
		Samples.push_back({Entry.path().stem().string(), FString(UTF8_TO_TCHAR(Bytes.str().c_str()))});
	}
	std::sort(Samples.begin(), Samples.end(), [](const FNodeTextSample& A, const FNodeTextSample& B)
		{ return A.Name < B.Name; });
	return Samples;
}

std::vector<std::string> GetPinLines(const FString& Text)
{
	// Class'"/Path"' is how engines before 5.1 write "Class'/Path'".
	static const std::regex OldReference(R"rx((=)([/A-Za-z0-9_.]+)'"([^"']*)"'(?=[,)]))rx");
	static const std::string Prefix = "CustomProperties ";
	std::vector<std::string> Pins;
	for (const std::string& Line : SplitLines(Text))
	{
		if (Line.starts_with(Prefix))
		{
			Pins.push_back(std::regex_replace(Line.substr(Prefix.size()), OldReference, "$1\"$2'$3'\""));
		}
	}
	return Pins;
}

std::string DropLinksToOthers(const std::string& PinLine, const std::vector<std::string>& NodeNames)
{
	static const std::regex Links(R"rx(LinkedTo=\(([^)]*)\),)rx");
	std::smatch Match;
	if (!std::regex_search(PinLine, Match, Links))
	{
		return PinLine;
	}
	std::string Kept;
	std::istringstream Stream(Match[1].str());
	for (std::string Link; std::getline(Stream, Link, ',');)
	{
		const std::string Node = Link.substr(0, Link.find(' '));
		if (std::find(NodeNames.begin(), NodeNames.end(), Node) != NodeNames.end())
		{
			Kept += Link + ",";
		}
	}
	const std::string Replacement = Kept.empty() ? std::string() : "LinkedTo=(" + Kept + "),";
	return Match.prefix().str() + Replacement + Match.suffix().str();
}

std::vector<std::string> GetNodeNames(const FString& Text)
{
	static const std::regex Begin(R"rx(^Begin Object .*Name="([^"]*)")rx");
	std::vector<std::string> Names;
	int Depth = 0;
	for (const std::string& Line : SplitLines(Text))
	{
		std::smatch Match;
		if (Depth == 0 && std::regex_search(Line, Match, Begin))
		{
			Names.push_back(Match[1].str());
		}
		Depth += Line.starts_with("Begin Object") ? 1 : Line.starts_with("End Object") ? -1
																					   : 0;
	}
	return Names;
}

FString CopyNodes(const UEdGraph& Graph)
{
	TSet<UObject*> Nodes;
	for (UEdGraphNode* const Node : Graph.Nodes)
	{
		Nodes.Add(Node);
	}
	FString Text;
	FEdGraphUtilities::ExportNodesToText(Nodes, Text);
	return Text;
}
