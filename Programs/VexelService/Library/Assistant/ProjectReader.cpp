#include "Assistant/ProjectReader.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxShownErrorBytes = 1000;

constexpr const char* BlueprintClass = "Blueprint";
/** As many as the editor lists at once. */
constexpr std::size_t MaxListedAssets = 200;

FAssetRow ReadRow(const FJson& Object)
{
	return {TextMember(Object, "path"), TextMember(Object, "name"), TextMember(Object, "class"), TextMember(Object, "parent_class")};
}

const FAssetRow* FindRow(const FAssetList& List, const std::string& Package)
{
	const auto Found = std::find_if(List.Rows.begin(), List.Rows.end(), [&Package](const FAssetRow& Row)
		{ return PackageOf(Row.Path) == Package; });
	return Found == List.Rows.end() ? nullptr : &*Found;
}

}

FProjectReader::FProjectReader(IAssistantChannel& InChannel)
	: Channel(InChannel)
{
}

std::optional<FJson> FProjectReader::Call(std::string_view Tool, const FJson& Arguments)
{
	if (bOver)
	{
		return std::nullopt;
	}
	FToolOutcome Outcome = Channel.CallTool(Tool, Arguments);
	if (Outcome.Status == EToolStatus::Replied)
	{
		LastError.clear();
		return std::move(Outcome.Reply);
	}
	LastError = Shortened(Outcome.ErrorMessage, MaxShownErrorBytes);
	bOver = Outcome.Status != EToolStatus::Failed;
	return std::nullopt;
}

const FBlueprintModel* FProjectReader::ReadBlueprint(const std::string& Path)
{
	const auto Known = Blueprints.find(Path);
	if (Known != Blueprints.end())
	{
		return Known->second.get();
	}
	const std::optional<FJson> Reply = Call("read_blueprint", {{"blueprint", Path}});
	if (!Reply)
	{
		return nullptr;
	}
	const FBlueprintModel* const Model = Keep(Path, *Reply);
	if (!Model)
	{
		LastError = "it answered, but not with a Blueprint that I can read";
	}
	return Model;
}

const FBlueprintModel* FProjectReader::Keep(const std::string& Path, const FJson& Export)
{
	std::optional<FBlueprintModel> Model = ReadBlueprintModel(Export);
	if (!Model)
	{
		return nullptr;
	}
	if (Model->Name.empty())
	{
		Model->Name = ShortName(Path);
	}
	std::unique_ptr<FBlueprintModel>& Kept = Blueprints[Path];
	if (Kept)
	{
		*Kept = std::move(*Model);
	}
	else
	{
		Kept = std::make_unique<FBlueprintModel>(std::move(*Model));
	}
	return Kept.get();
}

std::optional<FAssetList> FProjectReader::SearchAssets(const FAssetQuery& Query)
{
	FJson Arguments = {{"limit", Query.Limit}};
	if (!Query.Words.empty())
	{
		Arguments["query"] = Query.Words;
	}
	if (!Query.Class.empty())
	{
		Arguments["class"] = Query.Class;
	}
	const std::optional<FJson> Reply = Call("search_assets", Arguments);
	if (!Reply)
	{
		return std::nullopt;
	}
	FAssetList List;
	for (const FJson& Asset : ArrayMember(*Reply, "assets"))
	{
		if (List.Rows.size() < Query.Limit)
		{
			List.Rows.push_back(ReadRow(Asset));
		}
	}
	const FJson* const Total = FindMember(*Reply, "total");
	List.Total = Total && Total->is_number_unsigned() ? Total->get<std::size_t>() : List.Rows.size();
	return List;
}

std::optional<std::vector<FAssetRow>> FProjectReader::FindBlueprints(const std::vector<std::string>& Packages, std::size_t Most)
{
	const std::optional<FAssetList> All = SearchAssets({.Words = {}, .Class = BlueprintClass, .Limit = MaxListedAssets});
	if (!All)
	{
		return std::nullopt;
	}
	// A large project has more than one answer lists; those are looked for by their names.
	std::size_t NumSearches = All->Total > All->Rows.size() ? Most : 0;
	std::vector<FAssetRow> Found;
	for (std::size_t Index = 0; Index < Packages.size() && Found.size() < Most; ++Index)
	{
		std::optional<FAssetList> Named;
		const FAssetRow* Row = FindRow(*All, Packages[Index]);
		if (!Row && NumSearches > 0)
		{
			--NumSearches;
			Named = SearchAssets({.Words = ShortName(Packages[Index]), .Class = BlueprintClass});
			Row = Named ? FindRow(*Named, Packages[Index]) : nullptr;
		}
		if (Row)
		{
			Found.push_back(*Row);
		}
	}
	return Found;
}

std::optional<FJson> FProjectReader::ReadAssetInfo(const std::string& Path)
{
	return Call("get_asset_info", {{"asset", Path}});
}

std::optional<FJson> FProjectReader::ReadProject()
{
	return Call("get_project", FJson::object());
}

std::optional<FJson> FProjectReader::ReadSource(const FJson& Arguments)
{
	return Call("get_source", Arguments);
}

std::optional<FJson> FProjectReader::TakeScreenshot(const FJson& Arguments)
{
	return Call("get_scene_screenshot", Arguments);
}

}
