#pragma once

#include "Support/JsonText.h"

#include <string>
#include <string_view>

namespace VexelService
{

enum class EToolStatus
{
	Replied,
	Failed,
	TimedOut,
	/** Nobody listens any more; the turn should end without another word. */
	Gone,
};

/** How one tool call ended. */
struct FToolOutcome
{
	EToolStatus Status = EToolStatus::Gone;
	/** The tool's result, when it replied. */
	FJson Reply = {};
	/** The editor's own words, when the tool failed. */
	std::string ErrorMessage = {};
};

/** The assistant's side of one turn: what it says and does reaches the user through here. */
class IAssistantChannel
{
public:
	virtual ~IAssistantChannel() = default;

	/** Streams Markdown text. Returns false when nobody listens any more. */
	virtual bool Say(std::string_view Text) = 0;

	/** Shows an image, a PNG in base64. Returns false when nobody listens any more, or it is no image that can be shown. */
	virtual bool ShowImage(std::string_view Base64) = 0;

	/** Asks the editor to run a tool and waits for the result. Arguments is an object. */
	virtual FToolOutcome CallTool(std::string_view ToolName, const FJson& Arguments) = 0;
};

}
