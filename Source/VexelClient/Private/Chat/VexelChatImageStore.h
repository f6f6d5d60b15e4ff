#pragma once

#include "CoreMinimal.h"
#include "VexelHttp.h"

/**
 * The images of conversations: those that the user attaches, and those that the service has shown. A conversation's messages hold
 * ids alone; the bytes stand in files beside the history, a directory a conversation, each written whole. Game thread.
 */
class FVexelChatImageStore : public TSharedFromThis<FVexelChatImageStore>
{
public:
	/** Larger images are refused, both ways. */
	static constexpr int32 MaxImageBytes = 5 << 20;

	explicit FVexelChatImageStore(FString Directory);

	/** Stores what the user attaches, under an id made of the bytes. Fails for what is no PNG, JPEG, GIF or WebP, and by size. */
	TVexelExpected<FString> Attach(const FString& ChatId, TConstArrayView<uint8> Bytes) const;
	/** Stores an image of the service under its id; answers the path. Fails as Attach() does. */
	TVexelExpected<FString> Store(const FString& ChatId, const FString& AssetId, TConstArrayView<uint8> Bytes) const;

	/**
	 * Gets an image of the service from its address and stores it; answers the path. Only what is of https or of the service itself
	 * is asked for, without a login. Succeeds on the game thread, fails on any.
	 * @param ServiceUrl Of the service whose answer has shown the image.
	 */
	TVexelTaskResult<FString> Fetch(
		FVexelHttp& Client, const FString& ServiceUrl, const FString& ChatId, const FString& AssetId, const FString& Url) const;

	/** Path of a stored image; empty without one. */
	FString FindPath(const FString& ChatId, const FString& AssetId) const;
	/** Bytes of a stored image; none without one. */
	TArray<uint8> Load(const FString& ChatId, const FString& AssetId) const;

	/** Removes a conversation's images. */
	void DeleteAll(const FString& ChatId) const;

private:
	FString GetPath(const FString& ChatId, const FString& AssetId) const;

	FString Directory;
};
