#pragma once

#include "CoreMinimal.h"

/** What a piece of a message is. */
enum class EVexelChatMessageBlockType : uint8
{
	Text,
	Image,
	ToolCall,
	ToolResult,
	SubChainStart,
	SubChainEnd,
	Checkpoint,
	Error,
	/** Of a later version, or damaged: kept and written back as it was read. */
	Unknown
};
