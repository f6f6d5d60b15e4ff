#pragma once

#include "CoreMinimal.h"
#include "LocalService.h"
#include "Misc/Optional.h"

class FArguments;

/** A running headless editor with a project open and, for commands that talk to the service, a login. One a process. */
class FSession
{
public:
	FSession() = default;
	~FSession();
	UE_NONCOPYABLE(FSession)

	/** Boots the editor with the project of "--project", or the sample project. Answers why it cannot, or nothing. */
	TOptional<FString> Start(const FArguments& Arguments);

	/**
	 * The same with the plug-in, logged in at the service of "--service" with its stored token or that of "--token-fd", or at a
	 * local service started for this program.
	 */
	TOptional<FString> StartConnected(const FArguments& Arguments);

	/** The same without waiting for the login, which may be none. */
	TOptional<FString> StartAtService(const FArguments& Arguments);

	/** Runs the editor until a condition holds; false when the user pressed Ctrl-C first. */
	static bool TickUntil(TFunctionRef<bool()> Condition);

	/** Whether Ctrl-C was pressed since the last call. */
	static bool TakeInterrupt();

private:
	TOptional<FString> Boot(const FArguments& Arguments, const TArray<FName>& Modules);
	/** Starts the local service and keeps its token where the plug-in looks for one. */
	TOptional<FString> StartLocalService();
	static TOptional<FString> WaitForLogin();

	FLocalService LocalService;
	FString SecretsDirectory;
	bool bStarted = false;
};
