#pragma once

#include "Support/Refusal.h"

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

struct FChatMessage
{
	/** "user", "assistant" or "system". */
	std::string Role;
	/** The text blocks in order, a line break between two; what is not text is left out. */
	std::string Text;
	/** Paths of the Blueprints that the assistant read in it, each once. */
	std::vector<std::string> ReadBlueprints = {};
};

/** One turn as the plug-in asks for it. */
struct FChatRequest
{
	std::string ChatId;
	std::string UserId;
	std::string CheckpointId;
	std::string ChatMode;
	std::string EngineVersion;
	/** At least one; the last is the user's. */
	std::vector<FChatMessage> Messages;
	std::string CurrentWorld;
	/** Object paths of the assets that are open in editors. */
	std::vector<std::string> OpenAssets;
};

/** Reads and checks the body of "/api/chat"; a refusal has status 400 or 422 and names the member at fault. */
TOrRefusal<FChatRequest> ReadChatRequest(std::string_view Body);

}
