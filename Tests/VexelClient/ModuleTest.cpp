#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthUserInfo.h"
#include "Containers/StringConv.h"
#include "Dom/JsonObject.h"
#include "EditorFixture.h"
#include "Embed/VexelEmbed.h"
#include "Engine/Blueprint.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Misc/CoreMisc.h"
#include "Misc/OutputDeviceNull.h"
#include "Misc/Paths.h"
#include "ScriptedHttpServer.h"
#include "Subsystem/VexelChatSubsystem.h"
#include "Subsystem/VexelStatusInfo.h"
#include "ToolMenus.h"
#include "UObject/GarbageCollection.h"
#include "UObject/PropertyChangedEvent.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelSecureStorage.h"
#include "VexelUserSettings.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <thread>

namespace
{
namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

const bool bModuleWanted = (FEditorTest::WantModule(TEXT("VexelClient")), true);

/** Names a user "user-1". */
constexpr const char* AccessToken = "e30.eyJzdWIiOiJ1c2VyLTEifQ.signature";

/** The module, ended and begun again at a scripted service; what the other tests of the program left is put back. */
class Module : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		ASSERT_TRUE(bModuleWanted);
		FVexelClient::Get().ShutdownModule();
		for (const TCHAR* const Key : ServiceKeys)
		{
			OldUrls.Add(FVexelInternalConfig::Find(Key)->Get());
			FVexelInternalConfig::Find(Key)->SetOverride(Server.GetUrl());
		}
		FVexelSecureStorage::SetDirectory(GetProjectDir() / TEXT("ModuleSecrets"));
		fs::remove_all(GetCacheDirectory());
		Server.Answer("/api/auth/plugin-client-id", FScriptedAnswer::Json(R"({"clientId":"plugin"})"));
		Server.AnswerWith("/api/v2/status.json", [](const FScriptedRequest&)
			{ return FScriptedAnswer::Json(R"({"status":{"indicator":"minor","description":"Slow"}})"); });
		Server.Answer("/oauth/token",
			FScriptedAnswer::Json("{\"access_token\":\"" + std::string(AccessToken) + R"(","refresh_token":"next","expires_in":3600})"));
		SetFeatures({});
		Log.Clear();
	}

	virtual void TearDown() override
	{
		FVexelClient::Get().ShutdownModule();
		(void)FVexelSecureStorage::DeleteValue(TEXT("rt"));
		for (int32 Index = 0; Index < OldUrls.Num(); ++Index)
		{
			FVexelInternalConfig::Find(ServiceKeys[Index])->SetOverride(OldUrls[Index]);
		}
		FVexelClient::Get().StartupModule();
	}

	/** What "/api/user" answers from now on. */
	void SetFeatures(const std::vector<std::string>& Features)
	{
		std::string List;
		for (const std::string& Feature : Features)
		{
			List += (List.empty() ? "\"" : ",\"") + Feature + "\"";
		}
		const std::string Body = R"({"name":"Ada","email":"a@b","credits":7,"max_credits":9,"features":[)" + List + "]}";
		Server.AnswerWith("/api/user", [Body](const FScriptedRequest&)
			{ return FScriptedAnswer::Json(Body); });
	}

	void LogIn()
	{
		ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
		FVexelClient::Get().StartupModule();
		ASSERT_TRUE(PumpUntil([]
			{ return FVexelAuthUserInfo::GetCurrent().IsValid(); }))
			<< Log.ToText();
	}

	/** The header "vexel-beta" of a request that is sent now. */
	std::optional<std::string> GetSentFeatures()
	{
		const TVexelTaskResult<TSharedRef<FVexelHttpResponse>> Result =
			FVexelClient::Get().GetApiClient()->Request(EVexelHttpVerb::Get, TEXT("/probe")).SendAndAwait();
		EXPECT_TRUE(PumpUntil([&]
			{ return Result.IsComplete(); }));
		return Server.GetRequests().back().GetHeader("vexel-beta");
	}

	/** The newest request of a path. */
	std::optional<FScriptedRequest> FindRequest(const std::string& Path) const
	{
		std::optional<FScriptedRequest> Found;
		for (const FScriptedRequest& Request : Server.GetRequests())
		{
			Found = Request.GetPath() == Path ? Request : Found;
		}
		return Found;
	}

	bool WaitForLog(const std::string& Text)
	{
		return PumpUntil([&]
			{ return Log.Contains(Text); });
	}

	static fs::path GetCacheDirectory() { return fs::path(TCHAR_TO_UTF8(*FPaths::ProjectSavedDir())) / "VexelCache"; }

	static void WriteCache(const std::string& Bytes)
	{
		fs::create_directories(GetCacheDirectory());
		std::ofstream(GetCacheDirectory() / "VexelDatabase.db", std::ios::binary) << Bytes;
	}

	static std::string ReadCache()
	{
		std::ifstream Stream(GetCacheDirectory() / "VexelDatabase.db", std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}

	/** Those of the texts that the log has, in the order in which it has them. */
	std::vector<std::string> FindInOrder(const std::vector<std::string>& Texts) const
	{
		std::vector<std::string> Found;
		for (const FLogCapture::FLine& Line : Log.GetLines())
		{
			for (const std::string& Text : Texts)
			{
				if (Line.Text.find(Text) != std::string::npos)
				{
					Found.push_back(Text);
				}
			}
		}
		return Found;
	}

	static int32 CountScratchBlueprints()
	{
		int32 Num = 0;
		for (TObjectIterator<UBlueprint> Blueprint; Blueprint; ++Blueprint)
		{
			Num += Blueprint->GetName().StartsWith(TEXT("VexelNodeTypes")) ? 1 : 0;
		}
		return Num;
	}

	static constexpr const TCHAR* ServiceKeys[] = {TEXT("ApiUrl"), TEXT("AppUrl"), TEXT("InsightsApiUrl"), TEXT("StatusUrl")};
	TArray<FString> OldUrls;
	FScriptedHttpServer Server;
};
}

TEST_F(Module, StartsAndEndsInOrder)
{
	LogIn();
	ASSERT_TRUE(WaitForLog("Node type cache not found, starting fresh."));
	ASSERT_TRUE(PumpUntil([]
		{ return FVexelStatusInfo::GetCurrent().Status == EVexelSystemStatus::Degraded; }));
	const FVexelAuthUserInfo Info = FVexelAuthUserInfo::GetCurrent();
	EXPECT_EQ(Info.GetName(), FString(TEXT("Ada")));
	EXPECT_EQ(Info.GetCredits(), 7);
	EXPECT_EQ(Info.GetMaxCredits(), 9);
	EXPECT_TRUE(Log.Contains("[VexelClient:")) << "lines begin with their place";
	EXPECT_THAT(FindInOrder({"OAuth token refresh successful", "Sentry user context set"}),
		ElementsAre("OAuth token refresh successful", "Sentry user context set"));
	EXPECT_EQ(Log.Count("error"), 0) << Log.ToText();

	Log.Clear();
	ASSERT_TRUE(FVexelEmbed::MarkNotSaved().HasValue());
	FVexelClient::Get().ShutdownModule();
	EXPECT_THAT(FindInOrder({"Saving node type cache...", "Node type cache saved successfully.", "Sentry user context cleared"}),
		ElementsAre("Saving node type cache...", "Node type cache saved successfully."));
	EXPECT_EQ(ReadCache(), std::string("\x04\0\0\0", 4)) << "the save was waited for";
	EXPECT_TRUE(FVexelEmbed::MarkNotSaved().HasError()) << "the index is gone";
	FString Token;
	EXPECT_EQ(FVexelHttpManager::GetAuthState(Token), FVexelHttp::IAuthProvider::EAuthResult::NotAuthenticated);
	EXPECT_FALSE(FVexelAuthUserInfo::GetCurrent().IsValid());
	FVexelClient::Get().StartupModule();
}

TEST_F(Module, TheClientIdIsFetchedOnceForPreloadAndLogin)
{
	LogIn();
	int32 NumFetches = 0;
	for (const FScriptedRequest& Request : Server.GetRequests())
	{
		NumFetches += Request.GetPath() == "/api/auth/plugin-client-id" ? 1 : 0;
	}
	EXPECT_EQ(NumFetches, 1);
}

TEST_F(Module, ChatModesAreThoseThatTheFeaturesNameOnceTheAccountIsKnown)
{
	const auto GetModes = []
	{
		return FString::JoinBy(UVexelChatSubsystem::GetAllowedChatModes(), TEXT(" "), [](const FVexelChatModeInfo& Mode)
			{ return Mode.ChatMode; });
	};
	EXPECT_EQ(GetModes(), TEXT("vexel_agent vexel_agent_lite"));
	SetFeatures({"VEXEL_Agent_Lite", "b"});
	LogIn();
	EXPECT_EQ(GetModes(), TEXT("vexel_agent_lite"));
	FVexelAuthUserInfo::Clear();
	EXPECT_EQ(GetModes(), TEXT("vexel_agent vexel_agent_lite"));
}

TEST_F(Module, FeaturesGoWithEveryLaterRequestUntilTheyAreGone)
{
	SetFeatures({"a", "B"});
	LogIn();
	EXPECT_EQ(GetSentFeatures(), "a,B");
	EXPECT_TRUE(GetDefault<UVexelUserSettings>()->HasFeature(TEXT("b")));
	EXPECT_FALSE(FVexelAuthUserInfo::GetCurrent().IsFeatureEnabled(TEXT("b")));
	EXPECT_TRUE(FVexelAuthUserInfo::GetCurrent().CanUseChatMode(TEXT("b")));

	// Another address makes another client, whose requests carry them too.
	const FScriptedHttpServer Other;
	FVexelInternalConfig::Find(TEXT("ApiUrl"))->SetOverride(Other.GetUrl());
	const TVexelTaskResult<TSharedRef<FVexelHttpResponse>> Result =
		FVexelClient::Get().GetApiClient()->Request(EVexelHttpVerb::Get, TEXT("/probe")).SendAndAwait();
	ASSERT_TRUE(Other.WaitForRequests(1));
	EXPECT_EQ(Other.GetRequests()[0].GetHeader("vexel-beta"), "a,B");
	ASSERT_TRUE(PumpUntil([&]
		{ return Result.IsComplete(); }));
	FVexelInternalConfig::Find(TEXT("ApiUrl"))->SetOverride(Server.GetUrl());

	SetFeatures({});
	const TVexelTaskResult<FVexelAuthUserInfo> Refresh = FVexelAuthUserInfo::ForceRefresh();
	ASSERT_TRUE(PumpUntil([&]
		{ return Refresh.IsComplete(); }));
	EXPECT_EQ(GetSentFeatures(), std::nullopt);
}

TEST_F(Module, TheFirstRequestAfterTheLoginHasTheFeaturesThoughTheyComeLater)
{
	FScriptedGate Gate;
	Server.AnswerWith("/api/user", [&](const FScriptedRequest&)
		{ return FScriptedAnswer::Json(R"({"name":"Ada","features":["a","B"]})").WaitFor(Gate); });
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
	FVexelClient::Get().StartupModule();
	while (!FVexelAuth::IsOnline())
	{
		std::this_thread::yield();
	}
	// The game thread has not even heard of the login.
	const TVexelTaskResult<TSharedRef<FVexelHttpResponse>> First =
		FVexelClient::Get().GetApiClient()->Request(EVexelHttpVerb::Post, TEXT("/api/chat")).WithAuth().SendAndAwait();
	ASSERT_TRUE(PumpUntil([&]
		{ return FindRequest("/api/user").has_value(); }));
	Gate.Open();
	ASSERT_TRUE(PumpUntil([&]
		{ return First.IsComplete(); }));
	ASSERT_TRUE(FindRequest("/api/chat"));
	EXPECT_EQ(FindRequest("/api/chat")->GetHeader("vexel-beta"), "a,B");
}

TEST_F(Module, AProfileThatCannotBeHadHoldsUpNothing)
{
	Server.AnswerWith("/api/user", [&](const FScriptedRequest&)
		{ return FScriptedAnswer(500); });
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
	FVexelClient::Get().StartupModule();
	ASSERT_TRUE(PumpUntil([]
		{ return FVexelAuth::IsOnline(); }));
	const TVexelTaskResult<TSharedRef<FVexelHttpResponse>> First =
		FVexelClient::Get().GetApiClient()->Request(EVexelHttpVerb::Post, TEXT("/api/chat")).WithAuth().SendAndAwait();
	EXPECT_TRUE(PumpUntil([&]
		{ return First.IsComplete(); }));
	ASSERT_TRUE(FindRequest("/api/chat"));
	EXPECT_EQ(FindRequest("/api/chat")->GetHeader("vexel-beta"), std::nullopt);
}

TEST_F(Module, ALoginThatTheEndOvertakesChangesNothing)
{
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
	FVexelClient::Get().StartupModule();
	while (!FVexelAuth::IsOnline())
	{
		std::this_thread::yield();
	}
	// What the game thread has to do about the login stands in its queue still.
	FVexelClient::Get().ShutdownModule();
	Pump();
	EXPECT_FALSE(FVexelAuthUserInfo::GetCurrent().IsValid());
	EXPECT_FALSE(FindRequest("/api/user"));
	FVexelClient::Get().StartupModule();
}

TEST_F(Module, AFeatureThatCouldBeginAnotherHeaderIsLeftOut)
{
	SetFeatures({"good", "bad\\r\\nX-Evil: 1", "two,three", ""});
	LogIn();
	EXPECT_EQ(GetSentFeatures(), "good");
	EXPECT_TRUE(Log.Contains("3 of the user's features have no proper name or no room in a header and are ignored"));
}

TEST_F(Module, MoreFeaturesThanAHeaderHoldsLeaveRequestsPossible)
{
	SetFeatures(std::vector<std::string>(5000, "a_feature_of_a_hostile_service"));
	LogIn();
	const std::optional<std::string> Sent = GetSentFeatures();
	ASSERT_TRUE(Sent);
	EXPECT_LE(Sent->size(), 4096u);
	EXPECT_GT(Sent->size(), 4000u);
}

TEST_F(Module, EndsWithRequestsInFlightAndReportsNoneOfThem)
{
	for (const char* const Path : {"/api/user", "/api/v2/status.json"})
	{
		Server.AnswerWith(Path, [](const FScriptedRequest&)
			{ return FScriptedAnswer().Chunk("{").Stall(); });
	}
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
	FVexelClient::Get().StartupModule();
	ASSERT_TRUE(PumpUntil([this]
		{ return Server.GetRequests().size() >= 4; }))
		<< Log.ToText();
	FVexelClient::Get().ShutdownModule();
	// Requests that were waited for, until their time is over, would be reported as failed.
	EXPECT_TRUE(Server.WaitForClosedConnections(2));
	Pump();
	for (const FLogCapture::FLine& Line : Log.GetLines())
	{
		EXPECT_GT(Line.Verbosity, ELogVerbosity::Warning) << Line.Text;
	}
	FVexelClient::Get().StartupModule();
}

TEST_F(Module, TheBlueprintAgentsFeatureMakesTheScratchBlueprintOnceAndKeepsIt)
{
	SetFeatures({"BLUEPRINT_AGENT"});
	LogIn();
	ASSERT_EQ(CountScratchBlueprints(), 1);
	const TVexelTaskResult<FVexelAuthUserInfo> Refresh = FVexelAuthUserInfo::ForceRefresh();
	ASSERT_TRUE(PumpUntil([&]
		{ return Refresh.IsComplete(); }));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(CountScratchBlueprints(), 1);
	FVexelClient::Get().ShutdownModule();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(CountScratchBlueprints(), 0);
	FVexelClient::Get().StartupModule();
}

TEST_F(Module, WithoutALoginNothingIsMadeForTheFeature)
{
	FVexelClient::Get().StartupModule();
	ASSERT_TRUE(WaitForLog("No valid stored refresh token found for auto-login."));
	FVexelAuthUserInfo Info;
	ASSERT_TRUE(Info.FromJsonString(TEXT("{\"name\":\"x\",\"features\":[\"blueprint_agent\"]}")));
	FVexelAuthUserInfo::OnUserInfoChanged().Broadcast(Info);
	EXPECT_EQ(CountScratchBlueprints(), 0);
	EXPECT_TRUE(Log.Contains("Sentry user context cleared"));
	FVexelAuthUserInfo::Clear();
}

TEST_F(Module, CachesOfOtherVersionsAndBrokenOnesAreSaid)
{
	struct FCase
	{
		std::string Bytes;
		std::string Line;
		bool bReported;
	};
	const FCase Cases[] = {
		{std::string("\x03\0\0\0more", 8), "Node type cache is outdated, won't load.", false},
		{std::string("\x04\0\0\0more", 8), "Node type cache loaded successfully.", false},
		{std::string("\x05\0\0\0more", 8), "Embed database version is invalid", true},
		{std::string("\x04\0\0", 3), "Embed database file is corrupted", true},
	};
	for (const FCase& Case : Cases)
	{
		WriteCache(Case.Bytes);
		Log.Clear();
		FVexelClient::Get().StartupModule();
		EXPECT_TRUE(WaitForLog(Case.Line)) << Case.Line;
		EXPECT_EQ(WaitForLog(Case.bReported ? "while loading node type cache [FVexelError_EmbedLoad" : Case.Line), true) << Log.ToText();
		EXPECT_EQ(Log.Contains("Failed to load node type cache from"), Case.bReported);
		FVexelClient::Get().ShutdownModule();
		EXPECT_TRUE(Log.Contains("Node type cache is already up to date."));
		EXPECT_EQ(ReadCache(), Case.Bytes) << "what was not changed is not written";
	}
	FVexelClient::Get().StartupModule();
}

TEST_F(Module, ACacheThatWasLoadedIsSavedWhole)
{
	WriteCache(std::string("\x04\0\0\0entries", 11));
	FVexelClient::Get().StartupModule();
	ASSERT_TRUE(WaitForLog("Node type cache loaded successfully."));
	fs::remove_all(GetCacheDirectory());
	ASSERT_TRUE(FVexelEmbed::MarkNotSaved().HasValue());
	const TVexelTaskResult<void> Saved = FVexelClient::Get().SaveNodeTypeCache();
	ASSERT_TRUE(PumpUntil([&]
		{ return Saved.IsComplete(); }));
	EXPECT_TRUE(Saved.Value().HasValue());
	EXPECT_EQ(ReadCache(), std::string("\x04\0\0\0entries", 11));
}

TEST_F(Module, ADirectoryInTheWayOfTheCacheIsNamed)
{
	const FString Directory = FPaths::ProjectSavedDir() / TEXT("VexelCache");
	std::ofstream(GetCacheDirectory()) << "a file";
	FVexelClient::Get().StartupModule();
	const std::string Path = TCHAR_TO_UTF8(*Directory);
	EXPECT_TRUE(WaitForLog("Embed Error: Failed to create node database directory `" + Path + "`")) << Log.ToText();
	Log.Clear();
	FVexelClient::Get().ShutdownModule();
	EXPECT_TRUE(Log.Contains("Failed to save node type cache"));
	EXPECT_TRUE(Log.Contains("Failed to save node type cache on shutdown"));
	fs::remove(GetCacheDirectory());
	FVexelClient::Get().StartupModule();
}

TEST_F(Module, AnEditedSettingIsSavedAndTakesEffectAtTheNextRequest)
{
	FVexelClient& Client = FVexelClient::Get();
	Client.StartupModule();
	UVexelUserSettings* const Settings = GetMutableDefault<UVexelUserSettings>();
	FConfigValueBase* const Setting = FVexelInternalConfig::Find(TEXT("InsightsApiUrl"));
	Setting->ClearOverride();
	unsetenv("VEXEL_INSIGHTS_API_URL");
	Setting->Reload();
	const TSharedPtr<FVexelHttp> Default = Client.GetInsightsClient();
	EXPECT_EQ(Client.GetInsightsClient(), Default);

	Settings->InsightsApiUrl = TEXT("http://insights.example");
	FPropertyChangedEvent Event(UVexelUserSettings::StaticClass()->FindPropertyByName(TEXT("InsightsApiUrl")));
	Settings->PostEditChangeProperty(Event);
	EXPECT_EQ(Client.GetInsightsClient()->GetBaseUrl(), FString(TEXT("http://insights.example")));
	setenv("VEXEL_INSIGHTS_API_URL", "http://environment.example", 1);
	Settings->PostEditChangeProperty(Event);
	EXPECT_EQ(FVexelClient::GetInsightsApiUrl(), FString(TEXT("http://environment.example"))) << "the environment stands above";

	unsetenv("VEXEL_INSIGHTS_API_URL");
	Settings->InsightsApiUrl.Empty();
	Settings->PostEditChangeProperty(Event);
	EXPECT_EQ(FVexelClient::GetInsightsApiUrl(), Default->GetBaseUrl()) << "an empty text gives the default back";
	setenv("VEXEL_INSIGHTS_API_URL", "http://127.0.0.1:1", 1);
}

TEST_F(Module, EverySettingIsOneOfTheSettingsObject)
{
	for (const FString& Key : FVexelInternalConfig::GetKeys())
	{
		const FProperty* const Property = UVexelUserSettings::StaticClass()->FindPropertyByName(*Key);
		ASSERT_NE(Property, nullptr) << TCHAR_TO_UTF8(*Key) << " cannot be edited: UVexelUserSettings has no such property";
		EXPECT_TRUE(Property->HasAllPropertyFlags(CPF_Config | CPF_Edit)) << TCHAR_TO_UTF8(*Key);
	}
}

TEST_F(Module, ALoginThatIsThroughBeforeTheModuleListensLetsRequestsGoWithItsFeatures)
{
	SetFeatures({"early"});
	Server.Answer("/probe", FScriptedAnswer().Text("ok"));
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
	FVexelAuth::StartAutoLogin();
	ASSERT_TRUE(PumpUntil([]
		{ return FVexelAuth::IsOnline(); }))
		<< Log.ToText();
	FVexelClient::Get().StartupModule();
	const auto Probe = FVexelClient::Get().GetApiClient()->Request(EVexelHttpVerb::Get, TEXT("/probe")).WithAuth().SendAndAwait();
	EXPECT_FALSE(Probe.IsComplete());
	ASSERT_TRUE(PumpUntil([&Probe]
		{ return Probe.IsComplete(); }))
		<< "it would wait for ever";
	EXPECT_TRUE(Probe.Value().HasValue());
	EXPECT_EQ(FindRequest("/probe")->GetHeader("vexel-beta"), "early");
}

TEST_F(Module, ALoginIsOfferedToTheServiceThatItIsOfAlone)
{
	// The user's own store, as in the editor.
	FVexelSecureStorage::SetDirectory(FString());
	FVexelSecureStorage::SetScope(Server.GetUrl());
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("for the first service")).HasValue());

	const FScriptedHttpServer Other;
	FVexelInternalConfig::Find(TEXT("ApiUrl"))->SetOverride(Other.GetUrl());
	FVexelClient::Get().StartupModule();
	EXPECT_TRUE(Log.Contains("No valid stored refresh token found for auto-login."));
	FVexelClient::Get().ShutdownModule();
	FVexelInternalConfig::Find(TEXT("ApiUrl"))->SetOverride(Server.GetUrl() + TEXT("/"));
	FVexelClient::Get().StartupModule();
	// Its state may have gone on from "logging in" already.
	EXPECT_EQ(Log.Count("No valid stored refresh token found for auto-login."), 1) << Log.ToText();

	FVexelClient::Get().ShutdownModule();
	EXPECT_TRUE(FVexelSecureStorage::DeleteValue(TEXT("rt")).HasValue());
	FVexelSecureStorage::SetDirectory(GetProjectDir() / TEXT("ModuleSecrets"));
	FVexelClient::Get().StartupModule();
}

TEST_F(Module, AnotherServiceInTheSettingsNeverGetsTheTokenOfTheFirst)
{
	// The user's own store, as in the editor.
	FVexelSecureStorage::SetDirectory(FString());
	FVexelSecureStorage::SetScope(Server.GetUrl());
	LogIn();
	ASSERT_TRUE(FVexelAuth::IsOnline());
	UVexelUserSettings* const Settings = GetMutableDefault<UVexelUserSettings>();
	FVexelInternalConfig::Find(TEXT("ApiUrl"))->ClearOverride();
	unsetenv("VEXEL_API_URL");

	FScriptedHttpServer Other;
	Other.Answer("/probe", FScriptedAnswer().Text("ok"));
	FPropertyChangedEvent Event(UVexelUserSettings::StaticClass()->FindPropertyByName(TEXT("ApiUrl")));
	Settings->ApiUrl = Other.GetUrl();
	Settings->PostEditChangeProperty(Event);
	EXPECT_FALSE(FVexelAuth::IsOnline());
	const auto Probe = FVexelClient::Get().GetApiClient()->Request(EVexelHttpVerb::Get, TEXT("/probe")).WithAuth().SendAndAwait();
	EXPECT_TRUE(PumpUntil([&Probe]
		{ return Probe.IsComplete(); }));
	EXPECT_TRUE(Probe.Value().HasError());
	for (const FScriptedRequest& Request : Other.GetRequests())
	{
		EXPECT_FALSE(Request.GetHeader("authorization")) << Request.GetPath();
	}

	Settings->ApiUrl = Server.GetUrl();
	Settings->PostEditChangeProperty(Event);
	EXPECT_TRUE(PumpUntil([]
		{ return FVexelAuth::IsOnline(); }))
		<< "what is stored for the first service logs in there again";

	FVexelClient::Get().ShutdownModule();
	EXPECT_TRUE(FVexelSecureStorage::DeleteValue(TEXT("rt")).HasValue());
	FVexelSecureStorage::SetDirectory(GetProjectDir() / TEXT("ModuleSecrets"));
	Settings->ApiUrl.Empty();
	Settings->PostEditChangeProperty(Event);
	setenv("VEXEL_API_URL", "http://127.0.0.1:1", 1);
	FVexelInternalConfig::Find(TEXT("ApiUrl"))->SetOverride(Server.GetUrl());
}

TEST_F(Module, ClientsAreKeptWhileTheirAddressIsTheSameButForCase)
{
	FVexelClient& Client = FVexelClient::Get();
	Client.StartupModule();
	FVexelInternalConfig::Find(TEXT("AppUrl"))->SetOverride(TEXT("http://app.example"));
	const TSharedPtr<FVexelHttp> Held = Client.GetAppClient();
	FVexelInternalConfig::Find(TEXT("AppUrl"))->SetOverride(TEXT("HTTP://App.Example"));
	EXPECT_EQ(Client.GetAppClient(), Held);
	FVexelInternalConfig::Find(TEXT("AppUrl"))->SetOverride(TEXT("http://app2.example"));
	EXPECT_NE(Client.GetAppClient(), Held);
	EXPECT_EQ(Client.GetAuxiliaryHttpClient()->GetBaseUrl(), FString());
}

TEST_F(Module, UserInfoFailuresSayWhichAndLeaveTheProfile)
{
	LogIn();
	struct FCase
	{
		FScriptedAnswer Answer;
		std::string Part;
	};
	const FCase Cases[] = {
		{FScriptedAnswer(401), "unauthorized access while fetching user info"},
		{FScriptedAnswer(500), "\nwhile fetching user info"},
		{FScriptedAnswer().Text("no json"), "Malformed user info response"},
		{FScriptedAnswer::Json(R"({"credits":"many"})"), "Malformed user info response"},
	};
	for (const FCase& Case : Cases)
	{
		Server.AnswerWith("/api/user", [&](const FScriptedRequest&)
			{ return Case.Answer; });
		const TVexelTaskResult<FVexelAuthUserInfo> Refresh = FVexelAuthUserInfo::ForceRefresh();
		ASSERT_TRUE(PumpUntil([&]
			{ return Refresh.IsComplete(); }));
		ASSERT_TRUE(Refresh.Value().HasError());
		EXPECT_EQ(Refresh.Value().GetError().GetTitle(), FString(TEXT("User info fetch error")));
		EXPECT_THAT(std::string(TCHAR_TO_UTF8(*Refresh.Value().GetError().GetMessage())), HasSubstr(Case.Part));
		EXPECT_EQ(FVexelAuthUserInfo::GetCurrent().GetName(), FString(TEXT("Ada")));
	}
}

TEST_F(Module, AProfileThatComesAfterTheLogoutIsNobodys)
{
	LogIn();
	FScriptedGate Gate;
	Server.AnswerWith("/api/user", [&](const FScriptedRequest&)
		{ return FScriptedAnswer::Json(R"({"name":"Late"})").WaitFor(Gate); });
	const TVexelTaskResult<FVexelAuthUserInfo> Refresh = FVexelAuthUserInfo::ForceRefresh();
	FVexelAuthUserInfo::Clear();
	Gate.Open();
	ASSERT_TRUE(PumpUntil([&]
		{ return Refresh.IsComplete(); }));
	ASSERT_TRUE(Refresh.Value().HasError());
	EXPECT_TRUE(Refresh.Value().GetError().IsCausedBy<FVexelError_HttpCancelled>()) << "which nobody reports";
	EXPECT_FALSE(FVexelAuthUserInfo::GetCurrent().IsValid());
}

TEST_F(Module, TheToolsMenuHasAnEntryForTheValidationWhileTheModuleIsThere)
{
	const auto FindEntry = []() -> FToolMenuEntry*
	{
		UToolMenu* const Menu = UToolMenus::Get()->FindMenu(TEXT("LevelEditor.MainMenu.Tools"));
		FToolMenuSection* const Section = Menu ? Menu->FindSection(TEXT("Vexel")) : nullptr;
		return Section ? Section->FindEntry(TEXT("ValidateBetaFeatures")) : nullptr;
	};
	EXPECT_EQ(FindEntry(), nullptr);
	LogIn();
	Server.Answer("/api/validate_beta_features", FScriptedAnswer());
	ASSERT_NE(FindEntry(), nullptr);
	EXPECT_EQ(FindEntry()->Label.Get().ToString(), FString(TEXT("Validate Beta Features")));
	EXPECT_TRUE(FindEntry()->TryExecuteToolUIAction(FToolMenuContext()));
	EXPECT_TRUE(FindRequest("/api/validate_beta_features"));
	EXPECT_EQ(FSlateNotificationManager::Get().GetShownNotifications().Last().Text.ToString(), FString(TEXT("Beta Features Validation Complete")));
}

TEST_F(Module, BetaFeaturesAreValidatedByAConsoleCommand)
{
	LogIn();
	struct FCase
	{
		int32 Status;
		const TCHAR* Title;
		const TCHAR* Text;
		SNotificationItem::ECompletionState State;
	};
	const FCase Cases[] = {
		{200, TEXT("Beta Features Validation Complete"), TEXT("All beta features have been validated successfully"),
			SNotificationItem::CS_Success},
		{400, TEXT("Beta Features Validation Failed"), TEXT("Failed to validate beta features"), SNotificationItem::CS_Fail},
	};
	for (const FCase& Case : Cases)
	{
		Server.AnswerWith("/api/validate_beta_features", [&](const FScriptedRequest& Request)
			{ return FScriptedAnswer(Request.Method == "POST" && Request.GetHeader("Authorization") ? Case.Status : 500); });
		FOutputDeviceNull Nowhere;
		EXPECT_TRUE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("Vexel.ValidateBetaFeatures"), Nowhere));
		EXPECT_TRUE(Log.Contains("Validating Beta Features... Please wait."));
		const TArray<FShownNotification> Shown = FSlateNotificationManager::Get().GetShownNotifications();
		ASSERT_FALSE(Shown.IsEmpty());
		EXPECT_EQ(Shown.Last().Text.ToString(), FString(Case.Title));
		EXPECT_EQ(Shown.Last().SubText.ToString(), FString(Case.Text));
		EXPECT_EQ(Shown.Last().State, Case.State);
	}
	EXPECT_TRUE(Log.Contains("while validating beta features"));
}
