#pragma once

#include "Support/JsonText.h"

#include <chrono>
#include <functional>
#include <string_view>

namespace VexelService
{

/**
 * Writes one answer in the stream's own form: text interleaved with self-closing tags. Once a write failed, every later one
 * does nothing and returns false.
 */
class FStreamWriter
{
public:
	/** Sends bytes to the client; false when the client is gone. */
	using FSend = std::function<bool(std::string_view)>;

	FStreamWriter(FSend InSend, std::chrono::milliseconds InPieceDelay);

	/** Sends text a few words at a time. Whatever it holds, it cannot be taken for a tag. */
	bool Text(std::string_view Content);

	bool ToolCall(std::string_view ToolName, std::string_view ReplyId, const FJson& Arguments);
	/** An image that the client can fetch from Url. */
	bool Image(std::string_view AssetId, std::string_view Url);
	bool Checkpoint(std::string_view CheckpointId);
	bool Error(std::string_view Message);

private:
	bool SendBytes(std::string_view Bytes);
	/** Attributes are keys with JSON values: "info={...}". */
	bool Tag(std::string_view Name, std::string_view Attributes);
	bool InfoTag(std::string_view Name, const FOrderedJson& Info);

	const FSend Send;
	const std::chrono::milliseconds PieceDelay;
	bool bFailed = false;
};

}
