#include "Chat/VexelChatHistoryManager.h"

#include "Data/VexelChatConversation.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"
#include "VexelFile.h"
#include "VexelLog.h"

namespace
{
/** An id that is a file name and nothing more. Ids of stored files are outside text. */
bool IsSafeChatId(const FString& ChatId)
{
	for (const TCHAR Character : ChatId)
	{
		if (!FChar::IsAlnum(Character) && Character != TEXT('-') && Character != TEXT('_'))
		{
			return false;
		}
	}
	return !ChatId.IsEmpty() && ChatId.Len() <= 128;
}

FDateTime GetOrderTime(const FVexelChatConversation& Conversation)
{
	return Conversation.GetUpdateTime().Get(Conversation.GetCreationTime().Get(FDateTime::MinValue()));
}
}

FVexelChatHistoryManager::FVexelChatHistoryManager(FString InDirectory)
	: Directory(MoveTemp(InDirectory))
{
}

void FVexelChatHistoryManager::Load()
{
	TArray<FString> FileNames;
	IFileManager::Get().FindFiles(FileNames, *(Directory / TEXT("*.json")), true, false);
	for (const FString& FileName : FileNames)
	{
		LoadFile(Directory / FileName);
	}
}

void FVexelChatHistoryManager::Add(const TSharedRef<FVexelChatConversation>& Conversation)
{
	Conversations.Add(Conversation->GetChatId(), Conversation);
}

TVexelExpected<void> FVexelChatHistoryManager::Save(const FVexelChatConversation& Conversation)
{
	FString Text;
	if (!IsSafeChatId(Conversation.GetChatId()) || !FVexelJsonConversions::JsonToPrettyString(Conversation.ToJson(), Text))
	{
		return VEXEL_ERROR_TITLED(
			FVexelError, "Conversation not saved", "The conversation '%s' cannot be written as JSON", *Conversation.GetChatId());
	}
	VEXEL_TRY_VOID(
		FVexelFile::SaveWhole(GetFilePath(Conversation.GetChatId()), Text), "while saving conversation '%s'", *Conversation.GetChatId());
	return TVexelExpected<void>();
}

bool FVexelChatHistoryManager::Delete(const FString& ChatId)
{
	if (Conversations.Remove(ChatId) == 0)
	{
		return false;
	}
	IFileManager::Get().Delete(*GetFilePath(ChatId), false, true, true);
	return true;
}

TSharedPtr<FVexelChatConversation> FVexelChatHistoryManager::Find(const FString& ChatId) const
{
	const TSharedRef<FVexelChatConversation>* const Found = Conversations.Find(ChatId);
	return Found ? Found->ToSharedPtr() : nullptr;
}

TArray<TSharedRef<FVexelChatConversation>> FVexelChatHistoryManager::GetConversations() const
{
	TArray<TSharedRef<FVexelChatConversation>> Result;
	Conversations.GenerateValueArray(Result);
	Result.StableSort([](const TSharedRef<FVexelChatConversation>& A, const TSharedRef<FVexelChatConversation>& B)
		{ return GetOrderTime(*A) > GetOrderTime(*B); });
	return Result;
}

FString FVexelChatHistoryManager::GetFilePath(const FString& ChatId) const
{
	return Directory / ChatId + TEXT(".json");
}

void FVexelChatHistoryManager::LoadFile(const FString& Path)
{
	FString Text;
	const TSharedRef<FVexelChatConversation> Conversation = MakeShared<FVexelChatConversation>();
	const bool bRead = FFileHelper::LoadFileToString(Text, *Path);
	if (bRead && Conversation->FromJsonString(Text) && IsSafeChatId(Conversation->GetChatId()))
	{
		Add(Conversation);
		return;
	}
	if (!bRead)
	{
		VEXEL_LOG(Warning, "The conversation file '%s' cannot be opened", *Path);
		return;
	}
	FString Aside = Path + TEXT(".damaged");
	if (IFileManager::Get().FileExists(*Aside))
	{
		// An earlier damaged file may be all that is left of another conversation.
		Aside = Path + TEXT(".") + FGuid::NewGuid().ToString() + TEXT(".damaged");
	}
	IFileManager::Get().Move(*Aside, *Path, false, true);
	VEXEL_LOG(Warning, "The conversation file '%s' is damaged; it is kept as '%s'", *Path, *Aside);
}
