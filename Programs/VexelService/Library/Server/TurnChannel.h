#pragma once

#include "Assistant/AssistantChannel.h"
#include "Chat/ChatTurn.h"
#include "Chat/StreamWriter.h"

#include <chrono>
#include <functional>
#include <string_view>

namespace VexelService
{

/** A turn's channel over its HTTP connection: writes the stream, and waits for tool results that other connections bring. */
class FTurnChannel final : public IAssistantChannel
{
public:
	FTurnChannel(FChatTurn& InTurn, FStreamWriter& InWriter, std::chrono::milliseconds InToolTimeout, std::function<bool()> InIsListening);

	bool Say(std::string_view Text) override;

	/** A call that times out is told to the user here, as an error tag. */
	FToolOutcome CallTool(std::string_view ToolName, const FJson& Arguments) override;

	/** Marks the end of a turn that went well with a checkpoint. */
	void Finish();

private:
	FChatTurn& Turn;
	FStreamWriter& Writer;
	const std::chrono::milliseconds ToolTimeout;
	const std::function<bool()> IsListening;
	bool bBroken = false;
};

}
