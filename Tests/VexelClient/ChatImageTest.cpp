#include "ChatTurnFixture.h"
#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "VexelJson.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;

const std::string PngHead = "\x89PNG\r\n\x1a\n";

TArray<uint8> MakeImage(const std::string& Head, int32 Size = 64)
{
	TArray<uint8> Bytes(reinterpret_cast<const uint8*>(Head.data()), int32(Head.size()));
	Bytes.SetNumZeroed(Size);
	return Bytes;
}

class ChatImage : public ChatTurn
{
protected:
	TVexelExpected<FString> Attach(const TArray<uint8>& Bytes) { return Subsystem->AttachImage(Conversation->GetChatId(), Bytes); }

	/** The content of the last message that was sent; null when it is one text. */
	const TArray<TSharedPtr<FJsonValue>>* FindLastContent()
	{
		LastBody = FindBody("/api/chat");
		const TArray<TSharedPtr<FJsonValue>>& Messages = LastBody->GetArrayField(TEXT("messages"));
		const TArray<TSharedPtr<FJsonValue>>* Parts = nullptr;
		Messages.Last()->AsObject()->TryGetArrayField(TEXT("content"), Parts);
		return Parts;
	}

	TSharedPtr<FJsonObject> LastBody;
};
}

TEST_F(ChatImage, WhatTheUserAttachesGoesAlongWithTheirNextMessageAndStaysInTheHistory)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("A door."));
	const TVexelExpected<FString> AssetId = Attach(MakeImage(PngHead, 9));
	ASSERT_TRUE(AssetId.HasValue());
	RunTurn(TEXT("What is this?"));
	const TArray<TSharedPtr<FJsonValue>>* Parts = FindLastContent();
	ASSERT_NE(Parts, nullptr);
	ASSERT_EQ(Parts->Num(), 2);
	EXPECT_EQ((*Parts)[0]->AsObject()->GetStringField(TEXT("text")), FString(TEXT("What is this?")));
	const TSharedPtr<FJsonObject> Source = (*Parts)[1]->AsObject()->GetObjectField(TEXT("source"));
	EXPECT_EQ(Source->GetStringField(TEXT("type")), FString(TEXT("base64")));
	EXPECT_EQ(Source->GetStringField(TEXT("data")), FString(TEXT("iVBORw0KGgoA")));
	EXPECT_THAT(ReadStoredConversation(), HasSubstr(TCHAR_TO_UTF8(*AssetId.GetValue())));
	EXPECT_TRUE(Subsystem->FindImage(Conversation->GetChatId(), AssetId.GetValue()).EndsWith(TEXT(".png")));

	RunTurn(TEXT("And now?"));
	EXPECT_EQ(FindLastContent(), nullptr) << "an image goes with one message";
	const TArray<TSharedPtr<FJsonValue>>& Messages = LastBody->GetArrayField(TEXT("messages"));
	EXPECT_EQ(Messages[0]->AsObject()->GetArrayField(TEXT("content")).Num(), 2) << "an earlier message keeps its image";
}

TEST_F(ChatImage, OnlyImagesOfAKnownKindAndSizeAreTaken)
{
	EXPECT_TRUE(Attach(MakeImage("\xFF\xD8\xFF")).HasValue());
	EXPECT_TRUE(Attach(MakeImage("GIF89a")).HasValue());
	EXPECT_TRUE(Attach(MakeImage("RIFF1234WEBP")).HasValue());
	for (const std::string& Head : {std::string("<svg>"), std::string("MZ"), std::string()})
	{
		EXPECT_THAT(TCHAR_TO_UTF8(*Attach(MakeImage(Head)).GetError().ToShortString()), HasSubstr("It is no PNG, JPEG, GIF or WebP"));
	}
	EXPECT_TRUE(Attach({}).HasError());
	EXPECT_THAT(TCHAR_TO_UTF8(*Attach(MakeImage(PngHead, (5 << 20) + 1)).GetError().ToShortString()), HasSubstr("the most is 5242880"));
	EXPECT_TRUE(Subsystem->AttachImage(TEXT("none"), MakeImage(PngHead)).HasError());
}

TEST_F(ChatImage, AMessageHasAFewImagesAndEachOnce)
{
	const TVexelExpected<FString> First = Attach(MakeImage(PngHead, 10));
	EXPECT_EQ(Attach(MakeImage(PngHead, 10)).GetValue(), First.GetValue());
	for (int32 Size = 11; Size < 10 + UVexelChatSubsystem::MaxAttachedImages; ++Size)
	{
		EXPECT_TRUE(Attach(MakeImage(PngHead, Size)).HasValue());
	}
	EXPECT_TRUE(Attach(MakeImage(PngHead, 100)).HasError());
	EXPECT_TRUE(Subsystem->DetachImage(Conversation->GetChatId(), First.GetValue()));
	EXPECT_FALSE(Subsystem->DetachImage(Conversation->GetChatId(), First.GetValue()));
	EXPECT_TRUE(Attach(MakeImage(PngHead, 100)).HasValue());
}

TEST_F(ChatImage, WhatTheServiceShowsIsFetchedStoredAndTold)
{
	const TArray<uint8> Image = MakeImage(PngHead);
	Server.Answer("/image.png", FScriptedAnswer().Text(std::string(reinterpret_cast<const char*>(Image.GetData()), size_t(Image.Num()))));
	Server.Answer("/page.html", FScriptedAnswer().Text("<html>"));
	const std::string Url = TCHAR_TO_UTF8(*Server.GetUrl());
	Server.Answer("/api/chat",
		FScriptedAnswer().Chunk("See <Image asset_id=\"img 1\" url=\"" + Url + "/image.png\"/><Image asset_id=\"bad\" url=\"" + Url +
			"/page.html\"/><Image asset_id=\"plain\" url=\"http://example.com/x.png\"/>"
			"<Image asset_id=\"file\" url=\"file:///etc/hostname\"/><Image asset_id=\"local\" url=\"https://127.0.0.1:1/x.png\"/>"
			"<Image asset_id=\"only\"/>"));
	FString StoredId;
	FString StoredPath;
	Subsystem->GetEvents().OnImageStored.AddLambda([&](const FString&, const FString& AssetId, const FString& Path)
		{
			StoredId = AssetId;
			StoredPath = Path; });
	RunTurn(TEXT("Show me"));
	ASSERT_TRUE(PumpUntil([&]
		{ return !StoredPath.IsEmpty() && Log.Contains("The image 'bad' is not at hand: Image not taken: It is no PNG"); }));
	EXPECT_EQ(StoredId, FString(TEXT("img 1")));
	TArray<uint8> Stored;
	ASSERT_TRUE(FFileHelper::LoadFileToArray(Stored, *StoredPath));
	EXPECT_EQ(Stored, Image);
	EXPECT_EQ(Subsystem->FindImage(Conversation->GetChatId(), TEXT("img 1")), StoredPath);
	for (const char* const Id : {"plain", "file", "local"})
	{
		EXPECT_TRUE(Log.Contains("The image '" + std::string(Id) + "' is not at hand: Image not taken: It has no address of https"));
	}
	EXPECT_TRUE(Subsystem->FindImage(Conversation->GetChatId(), TEXT("only")).IsEmpty());
	EXPECT_THAT(ReadStoredConversation(), HasSubstr("/image.png"));

	Subsystem->DeleteConversation(Conversation);
	EXPECT_FALSE(FPaths::FileExists(StoredPath));
}
