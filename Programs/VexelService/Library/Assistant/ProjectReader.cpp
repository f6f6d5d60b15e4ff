#include "Assistant/ProjectReader.h"

#include "Assistant/Words.h"

#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxShownErrorBytes = 1000;

FAssetRow ReadRow(const FJson& Object)
{
	return {TextMember(Object, "path"), TextMember(Object, "name"), TextMember(Object, "class"), TextMember(Object, "parent_class")};
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
