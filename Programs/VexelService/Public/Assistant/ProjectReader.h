#pragma once

#include "Assistant/AssistantChannel.h"
#include "Assistant/BlueprintModel.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** One asset as the editor's search lists it. */
struct FAssetRow
{
	/** The object path. */
	std::string Path;
	std::string Name;
	std::string Class;
	/** Of Blueprints. */
	std::string ParentClass;
};

/** A page of assets, and how many there are. */
struct FAssetList
{
	std::vector<FAssetRow> Rows;
	std::size_t Total = 0;
};

/** What to search for; an empty member does not narrow the search. */
struct FAssetQuery
{
	std::string Words;
	std::string Class;
	std::size_t Limit = 20;
};

/**
 * Reads a project through the editor's tools during one turn. Every answer is nothing when the tool failed, with its words in
 * LastError, or when nobody listens any more.
 */
class FProjectReader
{
public:
	/** Channel must outlive the reader. */
	explicit FProjectReader(IAssistantChannel& InChannel);

	/** A Blueprint by its path; read once a turn. Null as above. */
	const FBlueprintModel* ReadBlueprint(const std::string& Path);

	std::optional<FAssetList> SearchAssets(const FAssetQuery& Query);

	/** Those of some packages that are Blueprints, in the packages' order, and no more than the most. */
	std::optional<std::vector<FAssetRow>> FindBlueprints(const std::vector<std::string>& Packages, std::size_t Most);

	/** What the tool answers about one asset, by path. */
	std::optional<FJson> ReadAssetInfo(const std::string& Path);

	std::optional<FJson> ReadProject();
	/** A text of the project: arguments as the tool takes them. */
	std::optional<FJson> ReadSource(const FJson& Arguments);
	std::optional<FJson> TakeScreenshot(const FJson& Arguments);

	/** Calls a tool as it is. */
	std::optional<FJson> Call(std::string_view Tool, const FJson& Arguments);

	/** Puts what a tool answered of a Blueprint into the model that ReadBlueprint gives; null when it is none that can be read. */
	const FBlueprintModel* Keep(const std::string& Path, const FJson& Export);
	/** Has the Blueprint read anew when it is asked for; the model that was given before is no more. */
	void Forget(const std::string& Path) { Blueprints.erase(Path); }

	/** The editor's words for the last tool that failed, in short. */
	const std::string& GetLastError() const { return LastError; }

	/** Whether the turn is over because nobody listens, or a tool never answered. */
	bool IsOver() const { return bOver; }

private:
	IAssistantChannel& Channel;
	std::map<std::string, std::unique_ptr<FBlueprintModel>> Blueprints;
	std::string LastError;
	bool bOver = false;
};

}
