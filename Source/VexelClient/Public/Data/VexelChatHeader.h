#pragma once

#include "CoreMinimal.h"
#include "Misc/DateTime.h"
#include "Misc/Optional.h"

/** What a list of conversations shows of each, known without opening it. */
struct FVexelChatHeader
{
	FString ChatId;
	FString UserId;
	FString Title;
	/** Identifier of the chat mode. */
	FString ChatMode;
	/** In UTC; unset where the stored text was no date. */
	TOptional<FDateTime> CreationTime;
	TOptional<FDateTime> UpdateTime;
	int32 NumMessages = 0;

	/** What lists are ordered by: the time of the last change, else of creation. */
	FDateTime GetOrderTime() const { return UpdateTime.Get(CreationTime.Get(FDateTime::MinValue())); }
};
