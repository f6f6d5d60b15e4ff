#include "ChatTurnFixture.h"

#include "Auth/VexelAuth.h"
#include "Containers/StringConv.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "VexelCrypto.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelJson.h"
#include "VexelSecureStorage.h"

namespace
{
const FName ClientModule = TEXT("VexelClient");
const bool bModuleWanted = (FEditorTest::WantModule(ClientModule), true);

std::string MakeToken(const std::string& UserId)
{
	const std::string Payload = "{\"sub\":\"" + UserId + "\"}";
	const FString Encoded =
		FVexelCrypto::Base64UrlEncode(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Payload.data()), int32(Payload.size())));
	return std::string("e30.") + TCHAR_TO_UTF8(*Encoded) + ".signature";
}
}

std::string ChatTurn::GetToken()
{
	return MakeToken("user-1");
}

void ChatTurn::SetUp()
{
	FEditorTest::SetUp();
	ASSERT_TRUE(bModuleWanted);
	Server.Answer("/api/auth/plugin-client-id", FScriptedAnswer::Json(R"({"clientId":"plugin"})"));
	for (const TCHAR* const Key : {TEXT("ApiUrl"), TEXT("AppUrl"), TEXT("InsightsApiUrl")})
	{
		FVexelInternalConfig::Find(Key)->SetOverride(Server.GetUrl());
	}
	LogIn();
	Subsystem = UVexelChatSubsystem::Get();
	ASSERT_NE(Subsystem, nullptr);
	Conversation = Subsystem->CreateConversation(UVexelChatSubsystem::GetDefaultAgentChatMode());
	ASSERT_TRUE(Conversation.IsValid());
	for (const std::string& ChatId : {GetChatId(), std::string("sub")})
	{
		for (const std::string Path : {"/api/tool_reply/", "/api/tool_error/"})
		{
			Server.AnswerWith(Path + ChatId, [](const FScriptedRequest&)
				{ return FScriptedAnswer::Json("{}"); });
		}
	}
	FVexelChatEvents& Events = Subsystem->GetEvents();
	Events.OnTextAppended.AddLambda([this](const FString&, FStringView Text)
		{ Streamed += Text; });
	Events.OnRequestStateChanged.AddLambda([this](const FString&, EVexelChatRequestState State, const FVexelError* Error)
		{
			LastState = State;
			Failure = Error ? TCHAR_TO_UTF8(*Error->ToShortString()) : "";
			FailureChain = Error ? TCHAR_TO_UTF8(*Error->ToChainString()) : ""; });
	Events.OnConversationChanged.AddLambda([this](const FString&)
		{ ++NumChanges; });
}

void ChatTurn::TearDown()
{
	if (Subsystem)
	{
		Subsystem->DeleteConversation(Conversation);
		Subsystem->GetEvents() = FVexelChatEvents();
	}
}

void ChatTurn::LogIn()
{
	if (FVexelAuth::IsOnline())
	{
		return;
	}
	Server.Answer("/oauth/token",
		FScriptedAnswer::Json("{\"access_token\":\"" + GetToken() + "\",\"refresh_token\":\"next\",\"expires_in\":3600}"));
	FVexelSecureStorage::SetDirectory(GetProjectDir() / TEXT("Secrets"));
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
	FVexelAuth::StartAutoLogin();
	ASSERT_TRUE(PumpUntil([]
		{ return FVexelAuth::IsOnline(); }))
		<< Log.ToText();
}

std::string ChatTurn::GetChatId() const
{
	return TCHAR_TO_UTF8(*Conversation->GetChatId());
}

void ChatTurn::RunTurn(const TCHAR* Message)
{
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), Message).HasValue());
	ASSERT_TRUE(PumpUntil([this]
		{ return !Subsystem->HasActiveRequest(Conversation->GetChatId()); }))
		<< Log.ToText();
}

void ChatTurn::RunUntilText(const TCHAR* Message)
{
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), Message).HasValue());
	ASSERT_TRUE(PumpUntil([this]
		{ return !Streamed.IsEmpty(); }))
		<< Log.ToText();
}

TArray<TSharedPtr<FJsonObject>> ChatTurn::FindBodies(const std::string& Path) const
{
	TArray<TSharedPtr<FJsonObject>> Bodies;
	for (const FScriptedRequest& Request : Server.GetRequests())
	{
		if (Request.GetPath() == Path)
		{
			FVexelJsonConversions::StringToJson(FString(UTF8_TO_TCHAR(Request.Body.c_str())), Bodies.AddDefaulted_GetRef());
		}
	}
	return Bodies;
}

TSharedPtr<FJsonObject> ChatTurn::FindBody(const std::string& Path) const
{
	const TArray<TSharedPtr<FJsonObject>> Bodies = FindBodies(Path);
	return Bodies.IsEmpty() ? nullptr : Bodies.Last();
}

std::string ChatTurn::ReadStoredConversation() const
{
	FString Text;
	const FString Path = FPaths::ProjectSavedDir() / TEXT("ChatHistories") / Conversation->GetChatId() + TEXT(".json");
	FFileHelper::LoadFileToString(Text, *Path);
	return TCHAR_TO_UTF8(*Text);
}
