#pragma once

#include "Assistant/AssistantChannel.h"
#include "Chat/ChatTurn.h"
#include "Chat/StreamWriter.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace VexelService
{

/** An image that the client can fetch. */
struct FKeptImage
{
	std::string Id;
	std::string Url;
};

/** A turn's channel over its HTTP connection: writes the stream, and waits for tool results that other connections bring. */
class FTurnChannel final : public IAssistantChannel
{
public:
	/** Keeps an image in base64 for the client to fetch; nothing for what is none. */
	using FKeepImage = std::function<std::optional<FKeptImage>(std::string_view Base64)>;

	FTurnChannel(FChatTurn& InTurn, FStreamWriter& InWriter, std::chrono::milliseconds InToolTimeout, std::function<bool()> InIsListening,
		FKeepImage InKeepImage);

	bool Say(std::string_view Text) override;
	bool ShowImage(std::string_view Base64) override;

	/** A call that times out is told to the user here, as an error tag. */
	FToolOutcome CallTool(std::string_view ToolName, const FJson& Arguments) override;

	/** Marks the end of a turn that went well with a checkpoint. */
	void Finish();

private:
	FChatTurn& Turn;
	FStreamWriter& Writer;
	const std::chrono::milliseconds ToolTimeout;
	const std::function<bool()> IsListening;
	const FKeepImage KeepImage;
	bool bBroken = false;
};

}
