#pragma once

#include "Chat/VexelChatHistoryFiles.h"
#include "CoreMinimal.h"
#include "Data/VexelChatHeader.h"

/**
 * The headers of all stored conversations, so that thousands are listed without reading them: a file is read again only when its
 * time stamp or its size has changed. What is known is kept in a cache file beside the conversations, which may be lost at any
 * time and is made again when it is damaged.
 */
class FVexelChatHistoryIndex
{
public:
	explicit FVexelChatHistoryIndex(const FVexelChatHistoryFiles& Files);

	/** Brings the headers up to date with the directory. Takes the lock; without one to be had nothing is written. */
	const TVexelChatIdMap<FVexelChatHeader>& Refresh();

private:
	void LoadCache();
	void SaveCache() const;
	bool ReadFile(const FString& ChatId, const FVexelChatFileStamp& Stamp);

	const FVexelChatHistoryFiles& Files;
	TVexelChatIdMap<FVexelChatHeader> Headers;
	TVexelChatIdMap<FVexelChatFileStamp> Stamps;
	bool bCacheLoaded = false;
};
