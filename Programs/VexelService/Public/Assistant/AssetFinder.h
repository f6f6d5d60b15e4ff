#pragma once

#include "Assistant/AssistantChannel.h"
#include "Assistant/ProjectReader.h"
#include "Chat/ChatRequest.h"

#include <optional>
#include <string>

namespace VexelService
{

/** Finds the assets that a user's words mean, and says what it took them for. */
class FAssetFinder
{
public:
	/** All must outlive the finder. */
	FAssetFinder(const FChatRequest& InRequest, IAssistantChannel& InChannel, FProjectReader& InReader);

	/** The asset that a name or a path means. Says so when it takes another name for it. Nothing when there is none. */
	std::optional<FAssetRow> Find(const std::string& Name);

	/** The path of the open asset of that name. */
	std::optional<std::string> FindOpen(const std::string& Name) const;

	/** Tells that there is no asset of that name, and which Blueprints there are. */
	void SayMissing(const std::string& Name);

	/** Tells why a tool did not do its work; nothing when the turn is over anyway. */
	void SayFailure(const std::string& What);

private:
	const FChatRequest& Request;
	IAssistantChannel& Channel;
	FProjectReader& Reader;
};

/** Whether an asset is a Blueprint, or a level, which has one. */
bool IsBlueprintLike(const FAssetRow& Row);

/** "/Game/BP_Door.BP_Door" as "/Game/BP_Door". */
std::string PackageOf(const std::string& ObjectPath);

/** A user's word in quotes, cut where it is long. */
std::string Quoted(const std::string& Text);

}
