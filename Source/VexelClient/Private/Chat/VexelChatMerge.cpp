#include "Chat/VexelChatMerge.h"

#include "Data/VexelChatConversation.h"

namespace
{
FString ToComparable(const FVexelChatMessage& Message)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetField(TEXT("message"), Message.ToStoredValue());
	FString Text;
	FVexelJsonConversions::JsonToString(Object, Text);
	return Text;
}

bool BeginAlike(const FVexelChatConversation& A, const FVexelChatConversation& B, int32 NumMessages)
{
	if (A.GetMessages().Num() < NumMessages || B.GetMessages().Num() < NumMessages)
	{
		return false;
	}
	for (int32 Index = 0; Index < NumMessages; ++Index)
	{
		if (!ToComparable(A.GetMessages()[Index]).Equals(ToComparable(B.GetMessages()[Index]), ESearchCase::CaseSensitive))
		{
			return false;
		}
	}
	return true;
}
}

FVexelChatSyncPoint::FVexelChatSyncPoint(const FVexelChatConversation& Conversation, uint64 InFileHash)
	: FileHash(InFileHash)
	, NumMessages(Conversation.GetMessages().Num())
	, NumReverts(Conversation.GetNumReverts())
	, Revision(Conversation.GetRevision())
	, Title(Conversation.GetTitle())
	, ChatMode(Conversation.GetChatMode().ChatMode)
{
}

EVexelChatMerge MergeStoredChat(
	FVexelChatConversation& Open, FVexelChatSyncPoint& SyncPoint, const FVexelChatConversation& Stored, uint64 StoredHash)
{
	const int32 NumStored = Stored.GetMessages().Num();
	const bool bTakesIn = Open.GetNumReverts() == SyncPoint.NumReverts && BeginAlike(Open, Stored, SyncPoint.NumMessages);
	if (!bTakesIn && !BeginAlike(Open, Stored, NumStored))
	{
		return EVexelChatMerge::Diverged;
	}
	Open.TakeOver(Stored, bTakesIn ? SyncPoint.NumMessages : NumStored, Open.GetTitle().Equals(SyncPoint.Title),
		Open.GetChatMode().ChatMode.Equals(SyncPoint.ChatMode));
	// The open conversation counts as changed until it is saved, so that it keeps its revision apart from the file's.
	const int32 OpenRevision = SyncPoint.Revision;
	SyncPoint = FVexelChatSyncPoint(Stored, StoredHash);
	SyncPoint.NumReverts = Open.GetNumReverts();
	SyncPoint.Revision = OpenRevision;
	return bTakesIn ? EVexelChatMerge::TakenIn : EVexelChatMerge::OpenIsLonger;
}
