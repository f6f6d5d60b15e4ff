#pragma once

#include "Containers/Map.h"
#include "CoreMinimal.h"
#include "VexelExpected.h"
#include "VexelFileLock.h"

class FVexelChatConversation;

/** Maps by chat id, which are names of files and differ by letter case. */
template <typename ValueType>
struct TVexelChatIdKeys : TDefaultMapKeyFuncs<FString, ValueType, false>
{
	static bool Matches(const FString& A, const FString& B) { return A.Equals(B, ESearchCase::CaseSensitive); }
};
template <typename ValueType>
using TVexelChatIdMap = TMap<FString, ValueType, FDefaultSetAllocator, TVexelChatIdKeys<ValueType>>;

/** A conversation as it was found in its file. */
struct FVexelStoredChat
{
	/** Null without a file, for one that cannot be read and for one that is known already. */
	TSharedPtr<FVexelChatConversation> Conversation;
	/** Of the file's bytes; unset without a file and for one that cannot be read. */
	TOptional<uint64> Hash;
};

/** What the file system said of a file when it was read. */
struct FVexelChatFileStamp
{
	/** Whether a file that has another stamp now is, as far as one can tell, the same still. */
	bool StillHolds(const FVexelChatFileStamp& Now) const
	{
		return bSettled && Size == Now.Size && ModificationTime == Now.ModificationTime;
	}

	FDateTime ModificationTime;
	int64 Size = -1;
	/** A file that was read right after it was written may change once more without a new time stamp. */
	bool bSettled = false;
};

/**
 * The files of the history: one of JSON a conversation, named by its id. A file is written whole, so that a crash at any instant
 * leaves its last or its new state. One that cannot be read is set aside under another name and said, never deleted. Whoever
 * writes holds the directory's lock, because several editors may have the project open.
 */
class FVexelChatHistoryFiles
{
public:
	explicit FVexelChatHistoryFiles(FString Directory);

	/** Whether the text is a file name and nothing more. Ids come from outside. */
	static bool IsSafeChatId(const FString& ChatId);

	/** Makes the directory where it is missing. */
	TVexelExpected<FVexelFileLock> Lock() const;

	/** Ids of all conversation files, in no order. Files of other names are left alone. */
	TArray<FString> FindChatIds() const;
	FString GetPath(const FString& ChatId) const;
	FString GetIndexPath() const { return Directory / TEXT("index.cache"); }
	bool HasDirectory() const;
	bool HasFile(const FString& ChatId) const;
	FVexelChatFileStamp GetStamp(const FString& ChatId) const;
	/** Paths of what was set aside. */
	TArray<FString> FindSetAside() const;

	/**
	 * Reads a conversation under the lock, or without it where there is none to be had: a damaged file then stays where it is.
	 * @param KnownHash Of a file that need not be read again.
	 */
	FVexelStoredChat Read(const FString& ChatId, bool bLocked, TOptional<uint64> KnownHash = NullOpt) const;
	/** Under the lock. Answers the hash of what was written. */
	TVexelExpected<uint64> Write(const FVexelChatConversation& Conversation) const;
	/** Under the lock. */
	void Delete(const FString& ChatId) const;
	/** Removes what writers that were killed have left behind. Under the lock. */
	void RemoveTemporaryFiles() const;

private:
	void SetAside(const FString& Path) const;

	FString Directory;
};
