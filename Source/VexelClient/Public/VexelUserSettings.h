#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"

#include "VexelUserSettings.generated.h"

/**
 * The user's own settings of the plug-in, kept in the project's per-user .ini. An edit takes effect at the next request. Where a
 * text is empty, the plug-in's default holds; the environment and the command line stand above both.
 */
UCLASS(config = EditorPerProjectUserSettings)
class VEXELCLIENT_API UVexelUserSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	UVexelUserSettings();

	virtual FName GetContainerName() const override;

	/** Whether the service has switched a feature on for the user; names compare without regard to case. */
	bool HasFeature(const FString& Feature) const { return Features.Contains(Feature); }

	/** Base URL of the service's API. */
	UPROPERTY(Config, EditAnywhere, Category = "Service")
	FString ApiUrl;

	/** Base URL of the web app, which the login opens. */
	UPROPERTY(Config, EditAnywhere, Category = "Service")
	FString AppUrl;

	/** Base URL of the insights API. */
	UPROPERTY(Config, EditAnywhere, Category = "Service")
	FString InsightsApiUrl;

	/** Base URL of the service's public status page. */
	UPROPERTY(Config, EditAnywhere, Category = "Service")
	FString StatusUrl;

	/** A file of certificates (PEM) to trust in place of the system's. */
	UPROPERTY(Config, EditAnywhere, Category = "Service", AdvancedDisplay)
	FString CaBundleFile;

	/** Seconds that a request of the login may take. */
	UPROPERTY(Config, EditAnywhere, Category = "Service", AdvancedDisplay)
	FString AuthTimeoutSeconds;

	/** Port of this machine to which the browser brings a login's answer. */
	UPROPERTY(Config, EditAnywhere, Category = "Service", AdvancedDisplay)
	FString AuthCallbackPort;

	/** Seconds that the service may be silent in the middle of an answer. */
	UPROPERTY(Config, EditAnywhere, Category = "Service", AdvancedDisplay)
	FString ChatStallTimeoutSeconds;

	/** "file" keeps the login in an encrypted file and leaves the desktop's keyring alone. */
	UPROPERTY(Config, EditAnywhere, Category = "Privacy", AdvancedDisplay)
	FString SecretStore;

	/** Where errors are reported; nowhere without it. */
	UPROPERTY(Config, EditAnywhere, Category = "Privacy", AdvancedDisplay)
	FString SentryDsn;

	/** What the service has switched on for the user who is logged in; nobody's without one. */
	UPROPERTY(Transient, VisibleAnywhere, Category = "Account")
	TArray<FString> Features;
};
