#include "Auth/VexelAuth.h"

#include "Auth/VexelAuthData.h"
#include "Auth/VexelAuthRequests.h"
#include "HAL/Event.h"
#include "Misc/ScopeLock.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelLog.h"
#include "VexelRepeat.h"
#include "VexelSecureStorage.h"
#include "VexelTry.h"

namespace
{
constexpr double FirstRetrySeconds = 5.0;
constexpr double LongestRetrySeconds = 300.0;
/** How long the end of the module waits for the answer to a refresh token. */
constexpr double LongestEndSeconds = 2.0;
constexpr float TurnPauseSeconds = 0.05f;
/** Half a minute: a process that was stopped in the middle of its turn may never end it. */
constexpr int32 MaxTurnAttempts = 600;

/** The stored refresh token, and the turn to use it up while that is held. */
struct FTurn
{
	FVexelAuthSecret RefreshToken;
	TSharedPtr<FVexelFileLock> Lock;
};

TVexelExpected<FVexelAuthSecret> LoadRefreshToken()
{
	TVexelExpected<FString> Stored = FVexelSecureStorage::LoadValueString(FVexelAuth::GetRefreshTokenKey());
	if (Stored.HasError())
	{
		return VEXEL_ERROR_CAUSED(FVexelError_SecureStorage, Stored.GetError(), "No stored refresh token found");
	}
	FVexelAuthSecret Token(MoveTemp(Stored).GetValue());
	if (Token.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "No stored refresh token found");
	}
	return Token;
}

bool IsCurrent(int32 Number)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	return Data.Number == Number;
}

/** The turn without its token; a null lock while another process has it. */
TVexelTaskResult<FTurn> TryTakeTurn()
{
	VEXEL_TRY(TOptional<FVexelFileLock> Lock, FVexelSecureStorage::TryTakeTurn());
	return FTurn{FVexelAuthSecret(), Lock ? MakeShared<FVexelFileLock>(MoveTemp(*Lock)) : TSharedPtr<FVexelFileLock>()};
}

/** Waits for this process's turn with the stored refresh token, as long as the login of that number is the one. */
TVexelTaskResult<FTurn> WaitForTurn(const FVexelAuthSecret& Held, int32 Number)
{
	return Try(VexelRepeat<FTurn>(&TryTakeTurn)
				   .While([Number, NumLeft = MaxTurnAttempts](const TVexelExpected<FTurn>& Latest) mutable
					   { return Latest.HasValue() && !Latest.GetValue().Lock && IsCurrent(Number) && --NumLeft > 0; })
				   .DelayRepeat(TurnPauseSeconds)
				   .Flush())
		.Then([Held, Number](const FTurn& Turn) -> TVexelExpected<FTurn>
			{
				const TVexelExpected<FVexelAuthSecret> Stored = LoadRefreshToken();
				// After the look into the store, which is another service's once a login there has taken this one's place.
				if (!IsCurrent(Number))
				{
					return VEXEL_ERROR(FVexelError_Auth_TokenRefresh, "The login is over");
				}
				if (!Turn.Lock)
				{
					return VEXEL_ERROR(FVexelError_Auth_TokenRefresh, "Another process is still refreshing the login");
				}
				return FTurn{Stored.HasValue() ? Stored.GetValue() : Held, Turn.Lock}; });
}
}

void FVexelAuth::StartAutoLogin()
{
	VexelAuthReport::FScope Scope(TEXT("login"), TEXT("auto"));
	FVexelAuthData& Data = FVexelAuthData::Get();
	TVexelExpected<FVexelAuthSecret> Stored = FVexelAuthSecret();
	FVexelAuthNews News;
	TVexelTaskResult<void> Refresh;
	FLoginNumber Number = 0;
	{
		// Over the look into the store too: no login begins between the two.
		FScopeLock StoreGuard(&Data.StoreLock);
		if (GetState() != EState::Offline)
		{
			VEXEL_LOG(Warning, "Attempted to start auto-login while not offline.");
			return;
		}
		Stored = LoadRefreshToken();
		FScopeLock Guard(&Data.Lock);
		Data.LoginFailure.Reset();
		if (Stored.HasValue())
		{
			Data.BeginNumber();
			Number = Data.Number;
			// Requests that are made meanwhile wait for it.
			Refresh = TVexelTaskResult<void>::MakePending();
			Data.RunningRefresh = Refresh;
			News = Data.ChangeState(EState::LoggingIn);
		}
	}
	if (Stored.HasError())
	{
		VEXEL_LOG(Log, "No valid stored refresh token found for auto-login.");
		VEXEL_LOG(Verbose, "%s", *Stored.GetError().ToChainString());
		return;
	}
	News.Tell();
	InternalRefreshAccessToken(Stored.GetValue(), true, Number).OnComplete([Refresh, Number](const TVexelExpected<void>& Result)
		{
			if (Result.HasError())
			{
				EndLogin(Result.GetError(), Number, true, TEXT("while performing auto-login"));
			}
			else
			{
				OnRefreshed(Result, Number, nullptr);
			}
			Refresh.Complete(Result); });
}

TVexelTaskResult<void> FVexelAuth::RefreshRefusedToken(const FString& RefusedToken)
{
	return StartRefresh(&RefusedToken);
}

void FVexelAuth::RefreshDueToken()
{
	StartRefresh(nullptr).OnComplete([](const TVexelExpected<void>&) {});
}

TVexelTaskResult<void> FVexelAuth::StartRefresh(const FString* RefusedToken)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	TVexelTaskResult<void> Refresh;
	FVexelAuthSecret Held;
	bool bStored = false;
	FLoginNumber Number = 0;
	FVexelAuthNews News;
	{
		FScopeLock Guard(&Data.Lock);
		if (Data.RunningRefresh.IsValid())
		{
			return Data.RunningRefresh;
		}
		const FDateTime Now = FDateTime::UtcNow();
		const bool bNeeded = RefusedToken ? Data.AccessToken.Equals(*RefusedToken) : Data.State == EState::Online && Now >= Data.RefreshTime;
		if (!bNeeded)
		{
			return TVexelExpected<void>();
		}
		if (Data.RefreshToken.IsEmpty())
		{
			return VEXEL_ERROR(FVexelError_Auth_TokenRefresh, "Nobody is logged in");
		}
		Refresh = TVexelTaskResult<void>::MakePending();
		Data.RunningRefresh = Refresh;
		Held = Data.RefreshToken;
		bStored = Data.bTokenStored;
		Number = Data.Number;
		if (RefusedToken || Now >= Data.Expiry)
		{
			News = Data.ChangeState(EState::Refreshing);
		}
	}
	News.Tell();
	const TCHAR* const While =
		RefusedToken ? TEXT("while refreshing access token") : TEXT("while refreshing access token in monitoring thread");
	// Outside the lock: a result that is complete at once goes on in this call.
	InternalRefreshAccessToken(Held, bStored, Number).OnComplete([Refresh, Number, While](const TVexelExpected<void>& Result)
		{
			OnRefreshed(Result, Number, While);
			Refresh.Complete(Result); });
	return Refresh;
}

void FVexelAuth::OnRefreshed(const TVexelExpected<void>& Result, FLoginNumber Number, const TCHAR* While)
{
	if (Result.HasError() && VexelAuthRequests::WasTokenRefused(Result.GetError()))
	{
		EndLogin(Result.GetError(), Number, true, While);
		return;
	}
	FVexelAuthData& Data = FVexelAuthData::Get();
	FVexelAuthNews News;
	{
		FScopeLock Guard(&Data.Lock);
		if (Data.Number != Number)
		{
			return;
		}
		Data.RunningRefresh = TVexelTaskResult<void>();
		if (Result.HasError())
		{
			// The login stands: the token may still be good, and the service is asked again later.
			Data.RetrySeconds = FMath::Clamp(Data.RetrySeconds * 2.0, FirstRetrySeconds, LongestRetrySeconds);
			Data.RefreshTime = FDateTime::UtcNow() + FTimespan::FromSeconds(Data.RetrySeconds);
			News = Data.ChangeState(EState::Online);
		}
		Data.Monitor->Wake();
	}
	if (Result.HasError())
	{
		VexelAuthReport::Error(Result.GetError(), While);
	}
	News.Tell();
}

TOptional<FDateTime> FVexelAuth::GetRefreshTime()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	return Data.State == EState::Online && !Data.RunningRefresh.IsValid() ? TOptional<FDateTime>(Data.RefreshTime) : NullOpt;
}

TVexelTaskResult<void> FVexelAuth::InternalRefreshAccessToken(const FVexelAuthSecret& Held, bool bHeldIsStored, FLoginNumber Number)
{
	// Taken here, because a step may run when the module is gone already.
	const TSharedPtr<FVexelHttp> Api = FVexelClient::Get().GetApiClient();
	return Try(PreloadClientId()).Then([Held, bHeldIsStored, Api, Number](const FString& ClientId) -> TVexelTaskResult<void>
		{
			const VexelAuthRequests::FClient OAuthClient{Api, ClientId, FString()};
			const TVexelTaskResult<FTurn> Turn = bHeldIsStored ? WaitForTurn(Held, Number) : TVexelTaskResult<FTurn>(FTurn{Held, nullptr});
			return Try(Turn).Then([OAuthClient, Number](const FTurn& Taken)
				{ return RefreshInTurn(OAuthClient, Taken.RefreshToken, Taken.Lock, Number); }); });
}

TVexelTaskResult<void> FVexelAuth::RefreshInTurn(const VexelAuthRequests::FClient& OAuthClient, const FVexelAuthSecret& RefreshToken,
	const TSharedPtr<FVexelFileLock>& Turn, FLoginNumber Number)
{
	const TVexelTaskResult<void> Sent =
		Try(VexelAuthRequests::Refresh(OAuthClient, RefreshToken)).Then([OAuthClient, Number, Turn](const FTokenResponse& Tokens)
			{
				VEXEL_LOG(Log, "OAuth token refresh successful");
				return ProcessOrRevoke(OAuthClient, Tokens, Number); });
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	if (Data.Number == Number)
	{
		Data.SentRefresh = Sent;
	}
	return Sent;
}

void FVexelAuth::WaitForSentRefresh()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	TVexelTaskResult<void> Sent;
	{
		FScopeLock Guard(&Data.Lock);
		Sent = Data.SentRefresh;
	}
	if (Sent.IsValid())
	{
		// Shared, since the one who triggers it may still be at it when the wait is over.
		const TSharedRef<FEventRef> Done = MakeShared<FEventRef>(EEventMode::ManualReset);
		Sent.OnComplete([Done](const TVexelExpected<void>&)
			{ (*Done)->Trigger(); });
		(*Done)->Wait(FTimespan::FromSeconds(LongestEndSeconds));
	}
}
