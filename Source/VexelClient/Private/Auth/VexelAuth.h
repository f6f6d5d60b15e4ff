#pragma once

#include "Auth/VexelAuthSecret.h"
#include "Auth/VexelAuthTokens.h"
#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Misc/DateTime.h"
#include "VexelTaskResult.h"

class FVexelAuthLoginState;
class FVexelFileLock;
namespace VexelAuthRequests
{
struct FClient;
}

/** The user's login: one process-wide state behind one lock. Any thread; listeners are called on the thread that changed it. */
class FVexelAuth
{
public:
	enum class EState : uint8
	{
		/** A login may start. */
		Offline,
		/** A login is under way: one in the browser, or the silent one from the stored token. */
		LoggingIn,
		/** The access token is good for nothing any more, and another one is on its way. */
		Refreshing,
		Online
	};

	enum class ECodeRoute : uint8
	{
		Callback,
		Polling
	};

	/** What a delivered authorization code carries. */
	struct FAuthCodeInfo
	{
		FVexelAuthSecret Code;
		/** Of the login that it was issued for. */
		FVexelAuthSecret State;
		ECodeRoute Route = ECodeRoute::Polling;
	};

	DECLARE_MULTICAST_DELEGATE_OneParam(FOnAuthStateChanged, EState);
	/** Opens the login in the user's browser, with nothing of its address on a command line; answers why it cannot, or an empty text. */
	using FLaunchBrowser = TFunctionRef<FString()>;
	/** Shows the user an address to open, and may launch the browser with it; answers why it cannot, or an empty text. */
	using FOpenAddress = TFunction<FString(const FString& Url, FLaunchBrowser LaunchBrowser)>;

	/** Fetches the plug-in's OAuth client id once and keeps it. */
	static TVexelTaskResult<FString> PreloadClientId();

	/**
	 * Starts a login in the user's browser. It goes on by itself; the answered state tells its end and can cancel it. A login in the
	 * browser that is under way gives way to this one; in any other state but offline there is none to be had
	 * (FVexelError_Auth_AlreadyLoggedIn).
	 * @param bListen Whether the browser may bring the code to this machine; without it the code comes by polling alone.
	 */
	static TVexelExpected<TSharedRef<FVexelAuthLoginState>> StartLogin(bool bListen = true);

	/** The login in the browser that is under way; null for none. */
	static TSharedPtr<FVexelAuthLoginState> GetCurrentLogin();

	/** Logs in silently from the stored refresh token; without one nothing happens. */
	static void StartAutoLogin();

	/**
	 * Forgets the tokens here, at once, and has the service revoke them: GetRevocation() tells when it has. Nothing while nobody is
	 * logged in.
	 */
	static void Logout();
	/** Forgets the login here, at once, because requests go to another service from now on. What is stored stays. */
	static void Leave();
	/** Of the last logout; refers to no task without one. A failure is reported already. */
	static TVexelTaskResult<void> GetRevocation();

	static EState GetState();
	static bool IsOnline() { return GetState() == EState::Online; }

	static FDelegateHandle AddAuthStateChangedCallback(const FOnAuthStateChanged::FDelegate& Callback);
	static void RemoveAuthStateChangedCallback(FDelegateHandle Handle);

	/** Where the secure store has the refresh token of the last login. */
	static const FString& GetRefreshTokenKey();

	/** Replaces the launch of the user's browser by another way to show an address; the launch again without a function. */
	static void SetOpenAddress(FOpenAddress Open);

	/** Why the last login failed; unset while one is under way and after one that succeeded. */
	static TOptional<FVexelError> GetLoginFailure();

	/**
	 * Gets another access token with the refresh token, in place of one that the service has refused. Several callers share one
	 * refresh; one whose token is no longer the current one needs none. The login stays as it is unless the service refuses the
	 * refresh token too: then it is over.
	 */
	static TVexelTaskResult<void> RefreshRefusedToken(const FString& RefusedToken);

	/** When the access token is to be replaced; unset while there is none and while a refresh is under way. */
	static TOptional<FDateTime> GetRefreshTime();
	/** Replaces the access token when it is time to; the monitoring thread's step. */
	static void RefreshDueToken();

	/** Calls back with a copy of the access token taken under the lock. */
	static void WithAccessToken(TFunctionRef<void(const FString& Token)> Callback);
	static void WithAccessTokenAndUser(TFunctionRef<void(const FString& Token, const FString& UserId)> Callback);

	/**
	 * Ends what is under way and the monitoring thread, and forgets login, tokens and client id, as at the end of the process.
	 * Nothing stored is touched, but for the token that a refresh brings which has used the stored one up: for that it waits a moment.
	 */
	static void Shutdown();

private:
	/** A login's number. What a request of one login brings is nobody's once the number has changed. */
	using FLoginNumber = int32;

	static TVexelExpected<void> InternalStartBrowserWithClientId(
		const TSharedRef<FVexelAuthLoginState>& Login, const FString& ClientId, const FString& DeviceId);
	static void InternalStartPollingForAuthCode(const TSharedRef<FVexelAuthLoginState>& Login);
	static TVexelTaskResult<void> InternalProcessAuthCode(
		const TSharedRef<FVexelAuthLoginState>& Login, const FAuthCodeInfo& Info, FLoginNumber Number);
	static TVexelExpected<void> InternalProcessTokenResponse(const FTokenResponse& Response, FLoginNumber Number);
	/** The same; what nobody will use is revoked. */
	static TVexelExpected<void> ProcessOrRevoke(
		const VexelAuthRequests::FClient& Client, const FTokenResponse& Response, FLoginNumber Number);
	/**
	 * With the stored refresh token where Held was stored, because another process may have used that up and stored the next one;
	 * processes that share the store do this one after the other. With Held where it was not stored, or nothing is any more.
	 */
	static TVexelTaskResult<void> InternalRefreshAccessToken(const FVexelAuthSecret& Held, bool bHeldIsStored, FLoginNumber Number);

	/** Turn is held until the next token is stored, or there is none. */
	static TVexelTaskResult<void> RefreshInTurn(const VexelAuthRequests::FClient& Client, const FVexelAuthSecret& RefreshToken,
		const TSharedPtr<FVexelFileLock>& Turn, FLoginNumber Number);
	static void WaitForSentRefresh();

	static TVexelExpected<void> BeginLogin(
		const TSharedRef<FVexelAuthLoginState>& Login, TSharedPtr<FVexelAuthLoginState>& OutEarlier);
	static void OnLoginComplete(
		const TSharedRef<FVexelAuthLoginState>& Login, const TVexelExpected<FAuthCodeInfo>& Result, FLoginNumber Number);
	/** Back to offline, when that login is still the one; what is stored goes too when the service has refused it. */
	static void EndLogin(const FVexelError& Failure, FLoginNumber Number, bool bForgetRefused, const TCHAR* While);
	/** Joins a refresh that is under way. Without a refused token it is the monitoring thread that asks. */
	static TVexelTaskResult<void> StartRefresh(const FString* RefusedToken);
	static void OnRefreshed(const TVexelExpected<void>& Result, FLoginNumber Number, const TCHAR* While);
};
