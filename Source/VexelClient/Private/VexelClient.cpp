#include "VexelClient.h"

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthProvider.h"
#include "Auth/VexelAuthUserInfo.h"
#include "Embed/VexelEmbed.h"
#include "Embed/VexelNodeTypeCache.h"
#include "HAL/Event.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "Modules/ModuleManager.h"
#include "Subsystem/VexelStatusInfo.h"
#include "ToolMenus.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelLog.h"
#include "VexelSecureStorage.h"
#include "VexelSentry.h"
#include "VexelUrlUtils.h"
#include "VexelUserSettings.h"

namespace
{
FConfigValueBase ApiUrlSetting(TEXT("ApiUrl"), TEXT("https://api.vexel.dev"));
FConfigValueBase AppUrlSetting(TEXT("AppUrl"), TEXT("https://app.vexel.dev"));
FConfigValueBase InsightsApiUrlSetting(TEXT("InsightsApiUrl"), TEXT("https://insights.vexel.dev"));

const FName ModuleName = TEXT("VexelClient");
const FString FeatureHeaderName = TEXT("vexel-beta");
/** What every service takes as one header. */
constexpr int32 MaxFeatureHeaderLength = 4096;
const FString BlueprintAgentFeature = TEXT("blueprint_agent");

/** Whether a name can stand in a list in a header: it comes from the service, and a line end in it would begin another header. */
bool IsFeatureName(const FString& Feature)
{
	for (const TCHAR Character : Feature)
	{
		if (Character <= TEXT(' ') || Character >= 127 || Character == TEXT(','))
		{
			return false;
		}
	}
	return !Feature.IsEmpty();
}

FString JoinFeatures(const TArray<FString>& Features)
{
	FString Joined;
	int32 NumIgnored = 0;
	for (const FString& Feature : Features)
	{
		if (!IsFeatureName(Feature) || Joined.Len() + Feature.Len() >= MaxFeatureHeaderLength)
		{
			++NumIgnored;
			continue;
		}
		Joined += (Joined.IsEmpty() ? TEXT("") : TEXT(",")) + Feature;
	}
	if (NumIgnored > 0)
	{
		VEXEL_LOG(Warning, "%d of the user's features have no proper name or no room in a header and are ignored", NumIgnored);
	}
	return Joined;
}

/** Reports an error that nobody handles, unless it only says that the end of the module cut its request off. */
void Report(FVexelError Error, const FVexelErrorPlace& Place)
{
	if (!Error.IsCausedBy<FVexelError_HttpCancelled>() && !Error.IsCausedBy<FVexelError_TaskNotFinished>())
	{
		FVexelSentry::CaptureError(MoveTemp(Error), Place);
	}
}

/** What secrets are kept under: settings may name another service, which must not get the login of this one. */
FString GetServiceScope()
{
	const TVexelExpected<FString> Origin = FVexelUrlUtils::GetOrigin(ApiUrlSetting.Get());
	return Origin.HasValue() ? Origin.GetValue() : ApiUrlSetting.Get();
}

void SetErrorReportingUser(bool bLoggedIn)
{
	FVexelSentryUser User;
	if (bLoggedIn)
	{
		FVexelAuth::WithAccessTokenAndUser([&](const FString&, const FString& UserId)
			{ User.Id = UserId; });
	}
	FVexelSentry::User(User);
	if (User.Id.IsEmpty())
	{
		VEXEL_LOG(Log, "Sentry user context cleared");
	}
	else
	{
		VEXEL_LOG(Log, "Sentry user context set");
	}
}
}

IMPLEMENT_MODULE(FVexelClient, VexelClient)

FVexelClient::FVexelClient() = default;
FVexelClient::~FVexelClient() = default;

FVexelClient& FVexelClient::Get()
{
	return FModuleManager::GetModuleChecked<FVexelClient>(ModuleName);
}

void FVexelClient::StartupModule()
{
	// A program may have asked for some before the editor had read its .ini files.
	FVexelInternalConfig::ReloadAll();
	FVexelSentry::Start(FPaths::ProjectSavedDir() / TEXT("VexelCache/ErrorReports"));
	SettingsHandle = GetMutableDefault<UVexelUserSettings>()->OnSettingChanged().AddRaw(this, &FVexelClient::OnSettingChanged);
	Lock = MakeUnique<FCriticalSection>();
	GetApiClient();
	GetAppClient();
	GetInsightsClient();
	GetAuxiliaryHttpClient();
	HoldRequestsForFeatures();
	ServiceScope = GetServiceScope();
	FVexelSecureStorage::SetScope(ServiceScope);
	AuthProvider = MakeUnique<FVexelAuthProvider>();
	FVexelHttpManager::SetAuthProvider(AuthProvider.Get());

	// What it cannot fetch now, the login fetches, and reports.
	FVexelAuth::PreloadClientId().OnComplete([](const TVexelExpected<FString>&) {});
	FVexelAuth::StartAutoLogin();
	AuthStateHandle = FVexelAuth::AddAuthStateChangedCallback(
		FVexelAuth::FOnAuthStateChanged::FDelegate::CreateLambda([](FVexelAuth::EState)
			{ ScheduleAuthStateChanged(); }));
	if (FVexelAuth::IsOnline())
	{
		// The automatic login was through before anybody listened.
		ScheduleAuthStateChanged();
	}
	UserInfoHandle = FVexelAuthUserInfo::OnUserInfoChanged().AddRaw(this, &FVexelClient::OnUserInfoChanged);

	const TVexelExpected<void> IndexMade = FVexelEmbed::Initialize();
	if (IndexMade.HasError())
	{
		Report(IndexMade.GetError(), VEXEL_HERE);
	}
	StartLoadingNodeTypeCache();
	FVexelStatusInfo::StartMonitoring();
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FVexelClient::RegisterMenus));
}

void FVexelClient::ShutdownModule()
{
	FVexelHttpManager::SetAuthProvider(nullptr);
	FVexelAuth::RemoveAuthStateChangedCallback(AuthStateHandle);
	FVexelAuthUserInfo::OnUserInfoChanged().Remove(UserInfoHandle);
	FVexelStatusInfo::StopMonitoring();
	SaveNodeTypeCacheAndWait();
	FVexelEmbed::Shutdown();

	UToolMenus::UnRegisterStartupCallback(this);
	UToolMenus::UnregisterOwner(this);
	NodeTypeBlueprint.Reset();
	if (UObjectInitialized())
	{
		GetMutableDefault<UVexelUserSettings>()->OnSettingChanged().Remove(SettingsHandle);
	}
	// Nobody's features come any more. Who waits for them finds the login gone.
	FeaturesKnown.Complete(TVexelExpected<void>());
	FVexelSentry::Stop();
	// Before the requests are cut off, which would look like failures of the login.
	FVexelAuth::Shutdown();
	FVexelHttpManager::Shutdown();
	FVexelAuthUserInfo::Clear();
	AuthProvider.Reset();
	ForgetClients();
}

void FVexelClient::ForgetClients()
{
	FScopeLock Guard(Lock.Get());
	FeatureHeader.Empty();
	for (TSharedPtr<FVexelHttp>* const Client : {&ApiClient, &AppClient, &InsightsClient, &AuxiliaryClient})
	{
		Client->Reset();
	}
}

TSharedPtr<FVexelHttp> FVexelClient::GetApiClient()
{
	return GetClient(ApiClient, ApiUrlSetting);
}

TSharedPtr<FVexelHttp> FVexelClient::GetAppClient()
{
	return GetClient(AppClient, AppUrlSetting);
}

TSharedPtr<FVexelHttp> FVexelClient::GetInsightsClient()
{
	return GetClient(InsightsClient, InsightsApiUrlSetting);
}

TSharedPtr<FVexelHttp> FVexelClient::GetAuxiliaryHttpClient()
{
	FScopeLock Guard(Lock.Get());
	if (!AuxiliaryClient)
	{
		AuxiliaryClient = MakeShared<FVexelHttp>(FVexelHttpClientConfig(FString()));
	}
	return AuxiliaryClient;
}

FVexelClient::ELoginState FVexelClient::GetLoginState()
{
	switch (FVexelAuth::GetState())
	{
		case FVexelAuth::EState::Offline:
			return ELoginState::LoggedOut;
		case FVexelAuth::EState::Online:
			return ELoginState::LoggedIn;
		default:
			return ELoginState::Pending;
	}
}

TOptional<FVexelError> FVexelClient::GetLoginFailure()
{
	return FVexelAuth::GetLoginFailure();
}

FString FVexelClient::GetApiUrl()
{
	return ApiUrlSetting.Get();
}

FString FVexelClient::GetAppUrl()
{
	return AppUrlSetting.Get();
}

FString FVexelClient::GetInsightsApiUrl()
{
	return InsightsApiUrlSetting.Get();
}

TSharedPtr<FVexelHttp> FVexelClient::GetClient(TSharedPtr<FVexelHttp>& Held, const FConfigValueBase& Setting)
{
	const FString Url = Setting.Get();
	FScopeLock Guard(Lock.Get());
	if (!Held || !Held->GetBaseUrl().Equals(Url, ESearchCase::IgnoreCase))
	{
		Held = MakeShared<FVexelHttp>(FVexelHttpClientConfig(Url));
		if (&Held == &ApiClient)
		{
			ApplyFeatureHeader(*Held);
			Held->HoldRequests(FeaturesKnown);
		}
	}
	return Held;
}

void FVexelClient::ApplyFeatureHeader(FVexelHttp& Client) const
{
	Client.RemoveDefaultHeader(FeatureHeaderName);
	if (!FeatureHeader.IsEmpty())
	{
		Client.SetDefaultHeader(FeatureHeaderName, FeatureHeader);
	}
}

void FVexelClient::HoldRequestsForFeatures()
{
	FScopeLock Guard(Lock.Get());
	if (!FeaturesKnown.IsValid() || FeaturesKnown.IsComplete())
	{
		FeaturesKnown = TVexelTaskResult<void>::MakePending();
		ApiClient->HoldRequests(FeaturesKnown);
	}
}

void FVexelClient::OnSettingChanged(UObject* Settings, FPropertyChangedEvent&)
{
	Settings->SaveConfig();
	FVexelInternalConfig::ReloadAll();
	FollowService();
}

void FVexelClient::FollowService()
{
	const FString Scope = GetServiceScope();
	if (Scope.Equals(ServiceScope))
	{
		return;
	}
	ServiceScope = Scope;
	FVexelAuth::Leave();
	FVexelSecureStorage::SetScope(Scope);
	FVexelAuth::StartAutoLogin();
}

void FVexelClient::ScheduleAuthStateChanged()
{
	FVexelTaskManager::ScheduleFunc(EVexelTaskThread::GameThread, []
		{
			if (FVexelClient* const This = FModuleManager::GetModulePtr<FVexelClient>(ModuleName))
			{
				This->OnAuthStateChanged();
			} });
}

void FVexelClient::OnAuthStateChanged()
{
	if (!AuthProvider)
	{
		// The module ended while this was on its way.
		return;
	}
	switch (FVexelAuth::GetState())
	{
		case FVexelAuth::EState::Online:
			FVexelAuthUserInfo::ForceRefresh().OnComplete([Known = FeaturesKnown](const TVexelExpected<FVexelAuthUserInfo>& Result)
				{
					if (Result.HasError())
					{
						Report(Result.GetError(), VEXEL_HERE);
					}
					Known.Complete(TVexelExpected<void>()); });
			break;
		case FVexelAuth::EState::Offline:
			FVexelAuthUserInfo::Clear();
			HoldRequestsForFeatures();
			break;
		default:
			break;
	}
}

void FVexelClient::OnUserInfoChanged(const FVexelAuthUserInfo& Info)
{
	SetErrorReportingUser(Info.IsValid());
	GetMutableDefault<UVexelUserSettings>()->Features = Info.GetFeatures();
	{
		FScopeLock Guard(Lock.Get());
		FeatureHeader = JoinFeatures(Info.GetFeatures());
		ApplyFeatureHeader(*ApiClient);
	}
	if (Info.CanUseChatMode(BlueprintAgentFeature))
	{
		InitializeNodeTypeCacheIfNeeded();
	}
}

void FVexelClient::InitializeNodeTypeCacheIfNeeded()
{
	if (!FVexelAuth::IsOnline() || !GetDefault<UVexelUserSettings>()->HasFeature(BlueprintAgentFeature) || NodeTypeBlueprint.IsValid())
	{
		return;
	}
	NodeTypeBlueprint = VexelNodeTypeCache::MakeScratchBlueprint();
	if (!NodeTypeBlueprint.IsValid())
	{
		FVexelError Error = VEXEL_ERROR(FVexelError_EmbedInitialization, "The scratch Blueprint could not be made");
		Error.AppendContext(TEXT("During node type cache initialization"));
		Report(MoveTemp(Error), VEXEL_HERE);
	}
}

TVexelTaskResult<void> FVexelClient::LoadNodeTypeCache()
{
	return VexelNodeTypeCache::Load();
}

TVexelTaskResult<void> FVexelClient::SaveNodeTypeCache()
{
	return VexelNodeTypeCache::Save();
}

void FVexelClient::StartLoadingNodeTypeCache()
{
	LoadNodeTypeCache().OnComplete([](const TVexelExpected<void>& Loaded)
		{
			if (Loaded.HasError())
			{
				FVexelError Error = VEXEL_ERROR_CAUSED(FVexelError_EmbedLoad, Loaded.GetError(), "");
				Error.AppendContext(TEXT("while loading node type cache"));
				Report(MoveTemp(Error), VEXEL_HERE);
			} });
}

void FVexelClient::SaveNodeTypeCacheAndWait()
{
	// Shared, since the one who triggers it may still be at it when the wait is over.
	const TSharedRef<FEventRef> Done = MakeShared<FEventRef>(EEventMode::ManualReset);
	const TVexelTaskResult<void> Saved = SaveNodeTypeCache();
	Saved.OnComplete([Done](const TVexelExpected<void>&)
		{ (*Done)->Trigger(); });
	(*Done)->Wait();
	TVexelExpected<void> Result = Saved.Value();
	if (Result.HasValue())
	{
		VEXEL_LOG(Log, "Node type cache saved successfully.");
		return;
	}
	VEXEL_LOG(Error, "Failed to save node type cache");
	FVexelError Error = MoveTemp(Result).GetError();
	Error.AppendContext(TEXT("Failed to save node type cache on shutdown"));
	FVexelSentry::CaptureError(MoveTemp(Error), VEXEL_HERE);
}
