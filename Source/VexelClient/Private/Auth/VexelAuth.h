#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Misc/DateTime.h"
#include "VexelTaskResult.h"

/** What a token endpoint answers. Complete only with both tokens and a life time. */
struct FTokenResponse
{
	static FTokenResponse Parse(const class FJsonObject& Object);

	bool IsComplete() const { return !AccessToken.IsEmpty() && !RefreshToken.IsEmpty() && ExpiresInSeconds.IsSet(); }

	FString AccessToken;
	FString RefreshToken;
	TOptional<double> ExpiresInSeconds;
};

/** The user's login: one process-wide state behind one lock. Any thread; listeners are called on the thread that changed it. */
class FVexelAuth
{
public:
	enum class EState : uint8
	{
		/** A login may start. */
		Offline,
		LoggingIn,
		Refreshing,
		Online
	};

	DECLARE_MULTICAST_DELEGATE_OneParam(FOnAuthStateChanged, EState);

	/** Fetches the plug-in's OAuth client id once and keeps it. */
	static TVexelTaskResult<FString> PreloadClientId();

	/** Logs in silently from the stored refresh token; without one nothing happens. */
	static void StartAutoLogin();

	static EState GetState();
	static bool IsOnline() { return GetState() == EState::Online; }

	static FDelegateHandle AddAuthStateChangedCallback(const FOnAuthStateChanged::FDelegate& Callback);
	static void RemoveAuthStateChangedCallback(FDelegateHandle Handle);

	/** Why the last login failed; unset while one is under way and after one that succeeded. */
	static TOptional<FVexelError> GetLoginFailure();

	/**
	 * Gets another access token with the refresh token, in place of one that the service has refused. Several callers share one
	 * refresh; one whose token is no longer the current one needs none. The login stays as it is unless the service refuses the
	 * refresh token too: then it is over.
	 */
	static TVexelTaskResult<void> RefreshRefusedToken(const FString& RefusedToken);

	/** Calls back with a copy of the access token taken under the lock. */
	static void WithAccessToken(TFunctionRef<void(const FString& Token)> Callback);
	static void WithAccessTokenAndUser(TFunctionRef<void(const FString& Token, const FString& UserId)> Callback);

	/** Forgets login, tokens and client id, as at the end of the process. Nothing stored is touched. */
	static void Shutdown();

private:
	static TVexelTaskResult<void> InternalRefreshAccessToken(const FString& RefreshToken);
	/** Session is the one that the request was sent in; tokens that arrive after its end are nobody's. */
	static TVexelExpected<void> InternalProcessTokenResponse(const FTokenResponse& Response, int32 Session);
	static void EndLogin(const FVexelError& Failure, int32 Session, const TCHAR* While);
	static void SetState(EState NewState);
};
