#include "VexelClient.h"

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthProvider.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "Modules/ModuleManager.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelSentry.h"

namespace
{
FVexelConfigValue ApiUrlSetting(TEXT("ApiUrl"), TEXT("https://api.vexel.dev"));
FVexelConfigValue AppUrlSetting(TEXT("AppUrl"), TEXT("https://app.vexel.dev"));
FVexelConfigValue InsightsApiUrlSetting(TEXT("InsightsApiUrl"), TEXT("https://insights.vexel.dev"));

const FName ModuleName = TEXT("VexelClient");
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
	Lock = MakeUnique<FCriticalSection>();
	FVexelSentry::Start(FPaths::ProjectSavedDir() / TEXT("VexelCache/ErrorReports"));
	AuthProvider = MakeUnique<FVexelAuthProvider>();
	FVexelHttpManager::SetAuthProvider(AuthProvider.Get());
	FVexelAuth::StartAutoLogin();
}

void FVexelClient::ShutdownModule()
{
	FVexelHttpManager::SetAuthProvider(nullptr);
	FVexelSentry::Stop();
	FVexelHttpManager::Shutdown();
	FVexelAuth::Shutdown();
	AuthProvider.Reset();
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

TSharedPtr<FVexelHttp> FVexelClient::GetClient(TSharedPtr<FVexelHttp>& Held, const FVexelConfigValue& Setting)
{
	const FString Url = Setting.Get();
	FScopeLock Guard(Lock.Get());
	if (!Held || !Held->GetBaseUrl().Equals(Url, ESearchCase::IgnoreCase))
	{
		Held = MakeShared<FVexelHttp>(FVexelHttpClientConfig(Url));
	}
	return Held;
}
