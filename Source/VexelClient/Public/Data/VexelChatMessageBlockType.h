#pragma once

#include "CoreMinimal.h"

/** What a piece of a message is. The order is that of the wire names in VexelChatMessageBlock.cpp. */
enum class EVexelChatMessageBlockType : uint8
{
	Text,
	Image,
	ToolCall,
	ToolResult,
	SubChainStart,
	SubChainEnd,
	Checkpoint,
	Error
};
