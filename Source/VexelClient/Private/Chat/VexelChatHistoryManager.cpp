#include "Chat/VexelChatHistoryManager.h"

#include "Data/VexelChatConversation.h"
#include "Misc/Guid.h"
#include "VexelLog.h"

FVexelChatHistoryManager::FVexelChatHistoryManager(FString Directory)
	: Files(MoveTemp(Directory))
	, Index(Files)
{
	if (Files.HasDirectory())
	{
		const TVexelExpected<FVexelFileLock> Lock = Files.Lock();
		if (Lock.HasValue())
		{
			Files.RemoveTemporaryFiles();
		}
	}
}

TArray<FVexelChatHeader> FVexelChatHistoryManager::GetHeaders()
{
	const TVexelChatIdMap<FVexelChatHeader>& Stored = Index.Refresh();
	TArray<FVexelChatHeader> Headers;
	Headers.Reserve(Stored.Num() + OpenChats.Num());
	for (const auto& [ChatId, Header] : Stored)
	{
		const FOpenChat* const Open = OpenChats.Find(ChatId);
		const bool bChangedHere = Open && Open->Conversation->GetRevision() != Open->SyncPoint.Revision;
		Headers.Add(bChangedHere ? Open->Conversation->MakeHeader() : Header);
	}
	for (const auto& [ChatId, Open] : OpenChats)
	{
		if (!Stored.Contains(ChatId))
		{
			Headers.Add(Open.Conversation->MakeHeader());
		}
	}
	Headers.StableSort([](const FVexelChatHeader& A, const FVexelChatHeader& B)
		{ return A.GetOrderTime() > B.GetOrderTime(); });
	return Headers;
}

void FVexelChatHistoryManager::Add(const TSharedRef<FVexelChatConversation>& Conversation)
{
	OpenChats.Add(Conversation->GetChatId(), {Conversation, FVexelChatSyncPoint(), FVexelChatFileStamp()});
}

TSharedPtr<FVexelChatConversation> FVexelChatHistoryManager::Find(const FString& ChatId)
{
	if (const FOpenChat* const Open = OpenChats.Find(ChatId))
	{
		return Open->Conversation;
	}
	if (!FVexelChatHistoryFiles::IsSafeChatId(ChatId) || !Files.HasFile(ChatId))
	{
		return nullptr;
	}
	const TVexelExpected<FVexelFileLock> Lock = Files.Lock();
	const FVexelStoredChat Stored = Files.Read(ChatId, Lock.HasValue());
	if (!Stored.Conversation)
	{
		return nullptr;
	}
	OpenChats.Add(ChatId,
		{Stored.Conversation.ToSharedRef(), FVexelChatSyncPoint(*Stored.Conversation, *Stored.Hash), Files.GetStamp(ChatId)});
	return Stored.Conversation;
}

bool FVexelChatHistoryManager::Refresh(const FString& ChatId)
{
	FOpenChat* const Open = OpenChats.Find(ChatId);
	if (!Open || !Files.HasFile(ChatId) || Open->Stamp.StillHolds(Files.GetStamp(ChatId)))
	{
		return false;
	}
	const TVexelExpected<FVexelFileLock> Lock = Files.Lock();
	const FVexelStoredChat Stored = Files.Read(ChatId, Lock.HasValue(), Open->SyncPoint.FileHash);
	Open->Stamp = Stored.Hash ? Files.GetStamp(ChatId) : FVexelChatFileStamp();
	if (!Stored.Conversation)
	{
		return false;
	}
	FVexelChatConversation& Conversation = *Open->Conversation;
	const bool bChangedHere = Conversation.GetRevision() != Open->SyncPoint.Revision;
	const EVexelChatMerge Merge = MergeStoredChat(Conversation, Open->SyncPoint, *Stored.Conversation, *Stored.Hash);
	if (bChangedHere)
	{
		return Merge != EVexelChatMerge::Diverged;
	}
	if (Merge != EVexelChatMerge::TakenIn)
	{
		Conversation.FromJson(Stored.Conversation->ToJson());
	}
	Open->SyncPoint = FVexelChatSyncPoint(Conversation, *Stored.Hash);
	return true;
}

TVexelExpected<void> FVexelChatHistoryManager::Save(const FString& ChatId)
{
	FOpenChat* const Open = OpenChats.Find(ChatId);
	if (!Open || !FVexelChatHistoryFiles::IsSafeChatId(ChatId))
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Conversation not saved", "There is no open conversation '%s' that can be stored", *ChatId);
	}
	VEXEL_TRY(const FVexelFileLock Lock, Files.Lock(), "while saving conversation '%s'", *ChatId);
	VEXEL_TRY_VOID(TakeInStored(*Open), "while saving conversation '%s'", *ChatId);
	VEXEL_TRY(const uint64 Hash, Files.Write(*Open->Conversation));
	Open->SyncPoint = FVexelChatSyncPoint(*Open->Conversation, Hash);
	Open->Stamp = Files.GetStamp(ChatId);
	return TVexelExpected<void>();
}

bool FVexelChatHistoryManager::Delete(const FString& ChatId)
{
	const bool bOpen = OpenChats.Remove(ChatId) > 0;
	if (!FVexelChatHistoryFiles::IsSafeChatId(ChatId) || !Files.HasFile(ChatId))
	{
		return bOpen;
	}
	const TVexelExpected<FVexelFileLock> Lock = Files.Lock();
	if (Lock.HasError())
	{
		VEXEL_LOG(Warning, "The conversation '%s' is not deleted: %s", *ChatId, *Lock.GetError().ToShortString());
		return false;
	}
	Files.Delete(ChatId);
	return true;
}

TVexelExpected<void> FVexelChatHistoryManager::TakeInStored(FOpenChat& Open)
{
	const FString& ChatId = Open.Conversation->GetChatId();
	const FVexelStoredChat Stored = Files.Read(ChatId, true, Open.SyncPoint.FileHash);
	if (!Stored.Conversation)
	{
		if (!Stored.Hash && Files.HasFile(ChatId))
		{
			return VEXEL_ERROR_TITLED(FVexelError, "Conversation not saved", "'%s' cannot be read, and may hold what is not here",
				*Files.GetPath(ChatId));
		}
		return TVexelExpected<void>();
	}
	if (MergeStoredChat(*Open.Conversation, Open.SyncPoint, *Stored.Conversation, *Stored.Hash) == EVexelChatMerge::Diverged)
	{
		VEXEL_TRY_VOID(KeepAsCopy(Stored.Conversation.ToSharedRef()), "while keeping what another editor has stored");
		Open.SyncPoint.FileHash = Stored.Hash;
	}
	return TVexelExpected<void>();
}

TVexelExpected<void> FVexelChatHistoryManager::KeepAsCopy(const TSharedRef<FVexelChatConversation>& Stored)
{
	const FString CopyId = FGuid::NewGuid().ToString(EGuidFormats::DigitsWithHyphensLower);
	VEXEL_LOG(Warning, "The conversation '%s' was changed by another editor at the same time; that state is kept as '%s'",
		*Stored->GetChatId(), *CopyId);
	Stored->SetChatId(CopyId);
	Stored->SetTitle(Stored->GetTitle() + TEXT(" (copy)"));
	VEXEL_TRY_VOID(Files.Write(*Stored));
	return TVexelExpected<void>();
}
