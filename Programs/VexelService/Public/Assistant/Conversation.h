#pragma once

#include "Assistant/Question.h"
#include "Chat/ChatRequest.h"

#include <string>

namespace VexelService
{

/** What a conversation is about when its last message comes: that which "it", "that" and "and ...?" refer to. */
struct FTopic
{
	/** The Blueprint spoken of last, by its path or as the user named it; may be empty. */
	std::string Blueprint;
	/** The Blueprint that was read last for an answer of its own. */
	std::string ReadPath;
	/** The variable, function, event or other thing asked about last. */
	std::string Subject;
	/** What the last message was about; empty when it was about no one thing of a Blueprint. An edit's "it" means nothing older. */
	std::string LastSubject;
	/** The last question that was understood, without references to earlier ones. */
	FQuestion Question;
};

/** The names of the assets that are open in editors. */
std::vector<std::string> OpenAssetNames(const FChatRequest& Request);

/** Follows the messages before the last one. */
FTopic ReadTopic(const FChatRequest& Request);

/** The question with everything in the place of its references that the topic knows. */
FQuestion ResolveReferences(FQuestion Question, const FTopic& Topic);

}
