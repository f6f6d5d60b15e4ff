#include "Chat/VexelChatMerge.h"
#include "ChatFuzzing.h"
#include "Data/VexelChatConversation.h"

#include <cstddef>
#include <cstdint>

namespace
{
int32 CountStoredMessages(const FJsonObject& Object)
{
	const TArray<TSharedPtr<FJsonValue>>* Messages = nullptr;
	return Object.TryGetArrayField(TEXT("Messages"), Messages) ? Messages->Num() : 0;
}

void Expect(bool bHolds, const char* What)
{
	if (!bHolds)
	{
		std::fprintf(stderr, "%s\n", What);
		std::abort();
	}
}

void RevertToEachCheckpoint(FVexelChatConversation& Conversation)
{
	TArray<FVexelCheckpoint> Checkpoints = Conversation.GetCheckpoints();
	while (!Checkpoints.IsEmpty())
	{
		const FVexelCheckpoint Last = Checkpoints.Pop();
		Expect(Conversation.RevertToBlockIndex(Last.MessageIndex, Last.BlockIndex), "a checkpoint is not found again");
		Expect(Conversation.FindLastCheckpointId().Equals(Last.Id), "the last checkpoint is another than the one reverted to");
		Expect(Conversation.GetCheckpoints().Num() == Checkpoints.Num() + 1, "a revert takes other checkpoints along");
	}
}
}

/** A text that is read as a conversation goes back into its file without loss, merges with itself and reverts to its checkpoints. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	ChatFuzzing::BeQuiet();
	const FUTF8ToTCHAR Text(reinterpret_cast<const ANSICHAR*>(Data), int32(Size));
	TSharedPtr<FJsonObject> Object;
	FVexelChatConversation Conversation;
	if (!FVexelJsonConversions::StringToJson(FString::ConstructFromPtrSize(Text.Get(), Text.Length()), Object) ||
		!Conversation.FromJson(Object.ToSharedRef()))
	{
		return 0;
	}
	Expect(Conversation.GetMessages().Num() == CountStoredMessages(*Object), "a message is lost");
	ChatFuzzing::ExpectStable(Conversation);

	FVexelChatConversation Other;
	Expect(Other.FromJsonString(ChatFuzzing::ToText(Conversation)), "the stored form is not read");
	FVexelChatSyncPoint SyncPoint(Conversation, 1);
	Expect(MergeStoredChat(Conversation, SyncPoint, Other, 2) == EVexelChatMerge::TakenIn, "a conversation differs from itself");
	ChatFuzzing::ExpectSame("a merge with itself changes a conversation", ChatFuzzing::ToText(Other), ChatFuzzing::ToText(Conversation));

	for (const FVexelChatMessage& Message : Conversation.GetMessages())
	{
		Message.ToServiceJson([](const FString& AssetId)
			{ return AssetId.IsEmpty() ? TArray<uint8>() : TArray<uint8>{1}; });
	}
	RevertToEachCheckpoint(Conversation);
	ChatFuzzing::ExpectStable(Conversation);
	return 0;
}
