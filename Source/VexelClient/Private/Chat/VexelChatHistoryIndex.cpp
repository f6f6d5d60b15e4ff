#include "Chat/VexelChatHistoryIndex.h"

#include "Data/VexelChatConversation.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "VexelFile.h"
#include "VexelJson.h"
#include "VexelLog.h"

namespace
{
constexpr int32 CacheVersion = 1;

const FString VersionField = TEXT("version");
const FString ConversationsField = TEXT("conversations");
const FString ChatIdField = TEXT("id");
const FString UserIdField = TEXT("user");
const FString TitleField = TEXT("title");
const FString ChatModeField = TEXT("mode");
const FString CreationTimeField = TEXT("created");
const FString UpdateTimeField = TEXT("updated");
const FString NumMessagesField = TEXT("messages");
const FString StampField = TEXT("stamp");
const FString SizeField = TEXT("size");

/** Ticks as a text, because a JSON number may lose digits of them. */
void WriteTicks(FJsonObject& Object, const FString& Name, const TOptional<FDateTime>& Time)
{
	if (Time)
	{
		Object.SetStringField(Name, LexToString(Time->GetTicks()));
	}
}

TOptional<FDateTime> ReadTicks(const FJsonObject& Object, const FString& Name)
{
	FString Text;
	int64 Ticks = 0;
	if (!Object.TryGetStringField(Name, Text) || !LexTryParseString(Ticks, *Text) || Ticks < 0 || Ticks > FDateTime::MaxValue().GetTicks())
	{
		return NullOpt;
	}
	return FDateTime(Ticks);
}

TSharedRef<FJsonObject> ToJson(const FVexelChatHeader& Header)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(ChatIdField, Header.ChatId);
	Object->SetStringField(UserIdField, Header.UserId);
	Object->SetStringField(TitleField, Header.Title);
	Object->SetStringField(ChatModeField, Header.ChatMode);
	WriteTicks(*Object, CreationTimeField, Header.CreationTime);
	WriteTicks(*Object, UpdateTimeField, Header.UpdateTime);
	Object->SetNumberField(NumMessagesField, Header.NumMessages);
	return Object;
}

bool FromJson(const FJsonObject& Object, FVexelChatHeader& OutHeader)
{
	OutHeader.CreationTime = ReadTicks(Object, CreationTimeField);
	OutHeader.UpdateTime = ReadTicks(Object, UpdateTimeField);
	return Object.TryGetStringField(ChatIdField, OutHeader.ChatId) && Object.TryGetStringField(UserIdField, OutHeader.UserId) &&
		Object.TryGetStringField(TitleField, OutHeader.Title) && Object.TryGetStringField(ChatModeField, OutHeader.ChatMode) &&
		Object.TryGetNumberField(NumMessagesField, OutHeader.NumMessages);
}
}

FVexelChatHistoryIndex::FVexelChatHistoryIndex(const FVexelChatHistoryFiles& InFiles)
	: Files(InFiles)
{
}

const TVexelChatIdMap<FVexelChatHeader>& FVexelChatHistoryIndex::Refresh()
{
	LoadCache();
	TVexelChatIdMap<FVexelChatHeader> OldHeaders = MoveTemp(Headers);
	TVexelChatIdMap<FVexelChatFileStamp> OldStamps = MoveTemp(Stamps);
	Headers.Reset();
	Stamps.Reset();
	bool bChanged = false;
	for (const FString& ChatId : Files.FindChatIds())
	{
		const FVexelChatFileStamp Now = Files.GetStamp(ChatId);
		const FVexelChatFileStamp* const Old = OldStamps.Find(ChatId);
		if (Old && Old->StillHolds(Now))
		{
			Headers.Add(ChatId, MoveTemp(OldHeaders[ChatId]));
			Stamps.Add(ChatId, *Old);
			continue;
		}
		bChanged |= ReadFile(ChatId, Now);
	}
	if (bChanged || Headers.Num() != OldHeaders.Num())
	{
		SaveCache();
	}
	return Headers;
}

bool FVexelChatHistoryIndex::ReadFile(const FString& ChatId, const FVexelChatFileStamp& Stamp)
{
	const TVexelExpected<FVexelFileLock> Lock = Files.Lock();
	const FVexelStoredChat Stored = Files.Read(ChatId, Lock.HasValue());
	if (!Stored.Conversation)
	{
		return false;
	}
	Headers.Add(ChatId, Stored.Conversation->MakeHeader());
	Stamps.Add(ChatId, Stamp);
	return Stamp.bSettled;
}

void FVexelChatHistoryIndex::LoadCache()
{
	if (bCacheLoaded)
	{
		return;
	}
	bCacheLoaded = true;
	const FString Path = Files.GetIndexPath();
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *Path, FFileHelper::EHashOptions::None, FILEREAD_Silent))
	{
		return;
	}
	TSharedPtr<FJsonObject> Object;
	int32 Version = 0;
	const TArray<TSharedPtr<FJsonValue>>* Entries = nullptr;
	if (!FVexelJsonConversions::StringToJson(Text, Object) || !Object->TryGetNumberField(VersionField, Version) || Version != CacheVersion ||
		!Object->TryGetArrayField(ConversationsField, Entries))
	{
		VEXEL_LOG(Log, "The list of conversations '%s' is damaged or of another version and is made again", *Path);
		return;
	}
	for (const TSharedPtr<FJsonValue>& Value : *Entries)
	{
		const TSharedPtr<FJsonObject>* Entry = nullptr;
		FVexelChatHeader Header;
		FVexelChatFileStamp Stamp;
		if (!Value->TryGetObject(Entry) || !FromJson(**Entry, Header) || !(*Entry)->TryGetNumberField(SizeField, Stamp.Size))
		{
			continue;
		}
		if (const TOptional<FDateTime> Time = ReadTicks(**Entry, StampField))
		{
			Stamp.ModificationTime = *Time;
			Stamp.bSettled = true;
			Stamps.Add(Header.ChatId, Stamp);
			const FString ChatId = Header.ChatId;
			Headers.Add(ChatId, MoveTemp(Header));
		}
	}
}

void FVexelChatHistoryIndex::SaveCache() const
{
	TArray<TSharedPtr<FJsonValue>> Entries;
	for (const auto& [ChatId, Stamp] : Stamps)
	{
		if (Stamp.bSettled)
		{
			const TSharedRef<FJsonObject> Entry = ToJson(Headers[ChatId]);
			WriteTicks(*Entry, StampField, Stamp.ModificationTime);
			Entry->SetNumberField(SizeField, double(Stamp.Size));
			Entries.Add(MakeShared<FJsonValueObject>(Entry));
		}
	}
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetNumberField(VersionField, CacheVersion);
	Object->SetArrayField(ConversationsField, MoveTemp(Entries));
	FString Text;
	const TVexelExpected<FVexelFileLock> Lock = Files.Lock();
	if (Lock.HasError() || !FVexelJsonConversions::JsonToString(Object, Text))
	{
		return;
	}
	const TVexelExpected<void> Saved = FVexelFile::SaveWhole(Files.GetIndexPath(), Text);
	if (Saved.HasError())
	{
		VEXEL_LOG(Log, "The list of conversations is not kept: %s", *Saved.GetError().ToShortString());
	}
}
