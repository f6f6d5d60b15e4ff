#include "Chat/VexelChatHistoryFiles.h"

#include "Containers/StringConv.h"
#include "Data/VexelChatConversation.h"
#include "HAL/FileManager.h"
#include "Hash/CityHash.h"
#include "Misc/FileHelper.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"
#include "VexelFile.h"
#include "VexelLog.h"

namespace
{
const FString Extension = TEXT(".json");
const FString SetAsideExtension = TEXT(".damaged");
constexpr int32 MaxChatIdLength = 128;
/** A conversation that is read at all. Texts of a whole life of chatting stay far below. */
constexpr int64 MaxFileBytes = int64(512) << 20;

/** Coarser than any file system's time stamps. */
const FTimespan SettlingTime = FTimespan::FromSeconds(3.0);

uint64 HashOf(TConstArrayView<uint8> Bytes)
{
	return CityHash64(reinterpret_cast<const char*>(Bytes.GetData()), uint32(Bytes.Num()));
}
}

FVexelChatHistoryFiles::FVexelChatHistoryFiles(FString InDirectory)
	: Directory(MoveTemp(InDirectory))
{
}

bool FVexelChatHistoryFiles::IsSafeChatId(const FString& ChatId)
{
	for (const TCHAR Character : ChatId)
	{
		if (Character >= 127 || (!FChar::IsAlnum(Character) && Character != TEXT('-') && Character != TEXT('_')))
		{
			return false;
		}
	}
	return !ChatId.IsEmpty() && ChatId.Len() <= MaxChatIdLength;
}

TVexelExpected<FVexelFileLock> FVexelChatHistoryFiles::Lock() const
{
	if (!IFileManager::Get().MakeDirectory(*Directory, true))
	{
		return VEXEL_ERROR_TITLED(FVexelError, "History not locked", "The directory '%s' cannot be made", *Directory);
	}
	return FVexelFileLock::Take(Directory / TEXT("history.lock"));
}

bool FVexelChatHistoryFiles::HasDirectory() const
{
	return IFileManager::Get().DirectoryExists(*Directory);
}

bool FVexelChatHistoryFiles::HasFile(const FString& ChatId) const
{
	return IFileManager::Get().FileExists(*GetPath(ChatId));
}

TArray<FString> FVexelChatHistoryFiles::FindChatIds() const
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Directory / TEXT("*") + Extension), true, false);
	TArray<FString> ChatIds;
	ChatIds.Reserve(Names.Num());
	for (const FString& Name : Names)
	{
		FString ChatId = Name.LeftChop(Extension.Len());
		if (IsSafeChatId(ChatId))
		{
			ChatIds.Add(MoveTemp(ChatId));
		}
		else
		{
			VEXEL_LOG(Warning, "The file '%s' is not named like a conversation and is left alone", *(Directory / Name));
		}
	}
	return ChatIds;
}

FString FVexelChatHistoryFiles::GetPath(const FString& ChatId) const
{
	return Directory / ChatId + Extension;
}

FVexelChatFileStamp FVexelChatHistoryFiles::GetStamp(const FString& ChatId) const
{
	const FFileStatData Data = IFileManager::Get().GetStatData(*GetPath(ChatId));
	return {Data.ModificationTime, Data.FileSize, Data.ModificationTime + SettlingTime < FDateTime::UtcNow()};
}

TArray<FString> FVexelChatHistoryFiles::FindSetAside() const
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Directory / TEXT("*") + SetAsideExtension), true, false);
	for (FString& Name : Names)
	{
		Name = Directory / Name;
	}
	return Names;
}

FVexelStoredChat FVexelChatHistoryFiles::Read(const FString& ChatId, bool bLocked, TOptional<uint64> KnownHash) const
{
	const FString Path = GetPath(ChatId);
	const int64 Size = IFileManager::Get().FileSize(*Path);
	if (Size < 0)
	{
		return FVexelStoredChat();
	}
	TArray<uint8> Bytes;
	if (Size > MaxFileBytes || !FFileHelper::LoadFileToArray(Bytes, *Path, FILEREAD_Silent))
	{
		VEXEL_LOG(Warning, "The conversation file '%s' %s", *Path, Size > MaxFileBytes ? TEXT("is too large") : TEXT("cannot be opened"));
		return FVexelStoredChat();
	}
	const uint64 Hash = HashOf(Bytes);
	if (Hash == KnownHash)
	{
		return {nullptr, Hash};
	}
	FString Text;
	FFileHelper::BufferToString(Text, Bytes.GetData(), Bytes.Num());
	const TSharedRef<FVexelChatConversation> Conversation = MakeShared<FVexelChatConversation>();
	if (!Conversation->FromJsonString(Text))
	{
		VEXEL_LOG(Warning, "The conversation file '%s' is damaged", *Path);
		if (bLocked)
		{
			SetAside(Path);
		}
		return FVexelStoredChat();
	}
	if (!Conversation->GetChatId().Equals(ChatId))
	{
		// A copy that somebody made of a file is a conversation of its own, else it would take the place of the first.
		VEXEL_LOG(Log, "The conversation '%s' stands in the file of '%s' and goes by that id", *Conversation->GetChatId(), *ChatId);
		Conversation->SetChatId(ChatId);
	}
	return {Conversation, Hash};
}

TVexelExpected<uint64> FVexelChatHistoryFiles::Write(const FVexelChatConversation& Conversation) const
{
	const FString& ChatId = Conversation.GetChatId();
	FString Text;
	if (!IsSafeChatId(ChatId) || !FVexelJsonConversions::JsonToPrettyString(Conversation.ToJson(), Text))
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Conversation not saved", "The conversation '%s' cannot be written as JSON", *ChatId);
	}
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	const TConstArrayView<uint8> Bytes(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
	VEXEL_TRY_VOID(FVexelFile::SaveWhole(GetPath(ChatId), Bytes), "while saving conversation '%s'", *ChatId);
	return HashOf(Bytes);
}

void FVexelChatHistoryFiles::Delete(const FString& ChatId) const
{
	IFileManager::Get().Delete(*GetPath(ChatId), false, true, true);
}

void FVexelChatHistoryFiles::RemoveTemporaryFiles() const
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Directory / TEXT("*.tmp")), true, false);
	for (const FString& Name : Names)
	{
		IFileManager::Get().Delete(*(Directory / Name), false, true, true);
	}
}

void FVexelChatHistoryFiles::SetAside(const FString& Path) const
{
	FString Aside = Path + SetAsideExtension;
	if (IFileManager::Get().FileExists(*Aside))
	{
		// An earlier damaged file may be all that is left of another conversation.
		Aside = Path + TEXT(".") + FGuid::NewGuid().ToString() + SetAsideExtension;
	}
	if (IFileManager::Get().Move(*Aside, *Path, false, true))
	{
		VEXEL_LOG(Warning, "The conversation file '%s' is damaged; it is kept as '%s'", *Path, *Aside);
	}
	else
	{
		VEXEL_LOG(Warning, "The damaged conversation file '%s' cannot be set aside as '%s'", *Path, *Aside);
	}
}
