#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"
#include "VexelError.h"

class FVexelAuthProvider;
class FVexelConfigValue;
class FVexelHttp;

/** The plug-in's module: owns the service clients and brings the subsystems to life in their order. */
class VEXELCLIENT_API FVexelClient : public IModuleInterface
{
public:
	FVexelClient();
	virtual ~FVexelClient();

	/** The loaded module. It must be loaded. */
	static FVexelClient& Get();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	/**
	 * The client of each service. One that is asked for after its setting changed is new; requests in flight keep the old one.
	 * Any thread.
	 */
	TSharedPtr<FVexelHttp> GetApiClient();
	TSharedPtr<FVexelHttp> GetAppClient();
	TSharedPtr<FVexelHttp> GetInsightsClient();
	/** A client without a base URL, for absolute URLs. */
	TSharedPtr<FVexelHttp> GetAuxiliaryHttpClient();

	enum class ELoginState : uint8
	{
		LoggedOut,
		Pending,
		LoggedIn
	};
	/** Where the user's login stands. Any thread. */
	static ELoginState GetLoginState();
	/** Why the last login failed; unset when none did. Any thread. */
	static TOptional<FVexelError> GetLoginFailure();

	static FString GetApiUrl();
	static FString GetAppUrl();
	static FString GetInsightsApiUrl();

private:
	TSharedPtr<FVexelHttp> GetClient(TSharedPtr<FVexelHttp>& Held, const FVexelConfigValue& Setting);

	/** Guards the held clients. Made at start-up. */
	TUniquePtr<FCriticalSection> Lock;
	TSharedPtr<FVexelHttp> ApiClient;
	TSharedPtr<FVexelHttp> AppClient;
	TSharedPtr<FVexelHttp> InsightsClient;
	TSharedPtr<FVexelHttp> AuxiliaryClient;
	TUniquePtr<FVexelAuthProvider> AuthProvider;
};
