#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "VexelExpected.h"
#include "VexelTaskResult.h"

/** The logged-in user as the service knows them. */
struct FVexelAccountUser
{
	FString Name;
	FString Email;
	int32 Credits = 0;
	int32 MaxCredits = 0;
	TArray<FString> Features;
};

/** How a login reaches the user. */
struct FVexelLoginWay
{
	/** Whether this machine's browser may bring the answer; without it the service is asked for the answer alone. */
	bool bListen = true;
	/**
	 * Shows the user the address to open in a browser, which holds secrets of the login, and may have the user's browser opened with
	 * LaunchBrowser, which keeps them off its command line. It answers, as LaunchBrowser does, why it cannot, or an empty text. Any
	 * thread. Without one the browser is launched.
	 */
	TFunction<FString(const FString& Url, TFunctionRef<FString()> LaunchBrowser)> Open;
};

/**
 * The user's login for those outside the module: programs and panels. FVexelClient::GetLoginState() tells where it stands, and
 * GetLoginFailure() why it is not where it should be.
 */
class VEXELCLIENT_API FVexelAccount
{
public:
	/**
	 * Starts a login in the user's browser, which goes on while the editor ticks; one that was started before gives way to it.
	 * FVexelError_Auth_AlreadyLoggedIn when somebody is logged in. Game thread.
	 */
	static TVexelExpected<void> LogIn(FVexelLoginWay Way = FVexelLoginWay());

	/** Ends a login that was started and is not complete; nothing otherwise. Game thread. */
	static void CancelLogin();

	/**
	 * Forgets the login on this machine, at once, also one that is only stored. The result is complete when the service has revoked
	 * the tokens too, or says why it has not. FVexelError_SecureStorage when there is no login to forget.
	 */
	static TVexelTaskResult<void> LogOut();

	/** Whether a login is stored for the service, which the next start of the module takes up. */
	static bool IsLoginStored();

	/** Fetches who is logged in. */
	static TVexelTaskResult<FVexelAccountUser> FetchUser();
};
