#pragma once

#include "Assistant/AssetFinder.h"
#include "Assistant/AssistantChannel.h"
#include "Assistant/ProjectReader.h"

#include <optional>
#include <string>
#include <vector>

namespace VexelService
{

/** Tells where something is used in the whole project. */
class FUsageAnswer
{
public:
	/** All must outlive the answer. */
	FUsageAnswer(IAssistantChannel& InChannel, FProjectReader& InReader, FAssetFinder& InAssets);

	/** Uses of an asset: by those that refer to it, each with where it stands in them. */
	void TellUsesOfAsset(const std::string& Said);

	/** Uses of a variable, a function or a class: by the Blueprints that have it or name it. */
	void TellUsesOfMember(const std::string& Said);

private:
	IAssistantChannel& Channel;
	FProjectReader& Reader;
	FAssetFinder& Assets;
};

}
