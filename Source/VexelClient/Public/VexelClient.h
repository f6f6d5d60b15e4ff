#pragma once

#include "CoreMinimal.h"
#include "Delegates/IDelegateInstance.h"
#include "Misc/Optional.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"
#include "UObject/StrongObjectPtr.h"
#include "VexelError.h"
#include "VexelTaskResult.h"

class FConfigValueBase;
class FVexelAuthProvider;
class FVexelAuthUserInfo;
class FVexelHttp;
class UBlueprint;
class UObject;
struct FPropertyChangedEvent;

/** The plug-in's module: owns the service clients and brings the subsystems to life in their order. */
class VEXELCLIENT_API FVexelClient : public IModuleInterface
{
public:
	FVexelClient();
	virtual ~FVexelClient();

	/** The loaded module. It must be loaded. */
	static FVexelClient& Get();

	virtual void StartupModule() override;
	/** Waits until the node-type cache is saved. */
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

	/** Reads the node-type cache into the index. A cache that is not there or of an older version is no error. */
	TVexelTaskResult<void> LoadNodeTypeCache();
	/** Writes the index into the node-type cache unless it stands there already. */
	TVexelTaskResult<void> SaveNodeTypeCache();

	/**
	 * Has the service check the user's beta features, with a modal window while it does and a notification of the outcome. In the
	 * editor an entry of the Tools menu and the console command "Vexel.ValidateBetaFeatures". Game thread; waits.
	 */
	TVexelExpected<void> ValidateBetaFeatures();

private:
	TSharedPtr<FVexelHttp> GetClient(TSharedPtr<FVexelHttp>& Held, const FConfigValueBase& Setting);
	/** Sets or removes the header of the features on a client. The lock is held. */
	void ApplyFeatureHeader(FVexelHttp& Client) const;
	/** Has the API's requests wait for the features of the next login. */
	void HoldRequestsForFeatures();
	void ForgetClients();
	/** Ends the login when the settings name another service, and goes on with the one that is stored for that. */
	void FollowService();

	void RegisterMenus();
	void OnSettingChanged(UObject* Settings, FPropertyChangedEvent& Event);
	/** Looks at the login's state at the game thread's next tick. Any thread. */
	static void ScheduleAuthStateChanged();
	void OnAuthStateChanged();
	void OnUserInfoChanged(const FVexelAuthUserInfo& Info);
	void InitializeNodeTypeCacheIfNeeded();
	void StartLoadingNodeTypeCache();
	void SaveNodeTypeCacheAndWait();

	/** Guards the held clients and the features. Made at start-up. */
	TUniquePtr<FCriticalSection> Lock;
	TSharedPtr<FVexelHttp> ApiClient;
	TSharedPtr<FVexelHttp> AppClient;
	TSharedPtr<FVexelHttp> InsightsClient;
	TSharedPtr<FVexelHttp> AuxiliaryClient;
	/** The features' names, joined with ",". */
	FString FeatureHeader;
	/** Complete from when the features of a login are known, or known not to come, to the login's end. */
	TVexelTaskResult<void> FeaturesKnown;

	TUniquePtr<FVexelAuthProvider> AuthProvider;
	FDelegateHandle SettingsHandle;
	/** Of the service whose login this is. */
	FString ServiceScope;
	FDelegateHandle AuthStateHandle;
	FDelegateHandle UserInfoHandle;
	/** Made when the user's features first ask for the cache. */
	TStrongObjectPtr<UBlueprint> NodeTypeBlueprint;
};
