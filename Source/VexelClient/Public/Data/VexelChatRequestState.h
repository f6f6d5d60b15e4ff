#pragma once

#include "CoreMinimal.h"

/** The states of a chat request, in the order that it passes through them. The last three are final. */
enum class EVexelChatRequestState : uint8
{
	/** Made, not yet sent. */
	Preparing,
	/** Sent; the answer streams in. */
	InProgress,
	Succeeded,
	Failed,
	Cancelled
};
