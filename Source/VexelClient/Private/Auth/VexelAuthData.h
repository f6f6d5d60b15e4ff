#pragma once

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthMonitor.h"
#include "HAL/CriticalSection.h"

/** The news of a state, to be told when no lock is held, because listeners ask for tokens. */
class FVexelAuthNews
{
public:
	FVexelAuthNews() = default;
	FVexelAuthNews(FVexelAuth::EState InState, const FVexelAuth::FOnAuthStateChanged& InListeners)
		: State(InState)
		, Listeners(InListeners)
	{
	}

	void Tell() const { Listeners.Broadcast(State); }

private:
	FVexelAuth::EState State = FVexelAuth::EState::Offline;
	FVexelAuth::FOnAuthStateChanged Listeners;
};

/**
 * What the process knows of the login, all of it behind Lock. The number of the login changes only while StoreLock is held too,
 * and so does what is stored: a token that arrives late is never stored behind the back of a logout. StoreLock is taken first,
 * and nothing but the secure store is called under it.
 */
struct FVexelAuthData
{
	static FVexelAuthData& Get();

	/** Lock is held. */
	FVexelAuthNews ChangeState(FVexelAuth::EState NewState);
	/** Ends what is known of the login that was, so that nothing of it has an effect any more. Both locks are held. */
	void BeginNumber();

	FCriticalSection StoreLock;
	FCriticalSection Lock;

	FVexelAuth::EState State = FVexelAuth::EState::Offline;
	int32 Number = 0;
	/** Whether the module has ended, and nothing is sent any more. */
	bool bEnded = false;
	/** The login in the browser that is under way; null for none. */
	TSharedPtr<FVexelAuthLoginState> CurrentLogin;
	TOptional<FVexelError> LoginFailure;

	FVexelAuthSecret AccessToken;
	FVexelAuthSecret RefreshToken;
	/** Whether the secure store took the refresh token. */
	bool bTokenStored = false;
	FDateTime Expiry;
	/** A little before the expiry; later than that after a refresh that failed. */
	FDateTime RefreshTime;
	double RetrySeconds = 0.0;
	FString UserId;

	/** Of this login's last refresh, from the moment when its token was sent; refers to no task without one. */
	TVexelTaskResult<void> SentRefresh;
	/** Refers to no task when none is under way, as the next two. */
	TVexelTaskResult<void> RunningRefresh;
	TVexelTaskResult<void> Revocation;
	TVexelTaskResult<FString> RunningPreload;
	/** Changes with each fetch of the client id, whose late answer is nobody's then. */
	int32 PreloadNumber = 0;
	FString ClientId;
	/** The service that the client id, or the fetch of it that is under way, is of. */
	FString ClientIdUrl;

	/** Made with the first login. */
	TUniquePtr<FVexelAuthMonitor> Monitor;
	FVexelAuth::FOnAuthStateChanged OnStateChanged;
	FVexelAuth::FOpenAddress OpenAddress;
};

namespace VexelAuthReport
{
/** Opens the error context of a public operation. */
class FScope
{
public:
	FScope(const TCHAR* Request, const TCHAR* Initiator);

private:
	FVexelErrorContextScope Scope;
};

/** Reports "Authentication error" with its cause and what was being done. */
void Error(const FVexelError& Cause, const TCHAR* While);
}
