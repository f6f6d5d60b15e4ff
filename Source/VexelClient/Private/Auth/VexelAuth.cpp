#include "Auth/VexelAuth.h"

#include "Auth/VexelAuthData.h"
#include "Auth/VexelAuthLoginState.h"
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
const FString RefreshTokenKey = TEXT("rt");
constexpr double FirstRetrySeconds = 5.0;
constexpr double LongestRetrySeconds = 300.0;
/** How long the end of the module waits for the answer to a refresh token. */
constexpr double LongestEndSeconds = 2.0;
constexpr float TurnPauseSeconds = 0.05f;
/** Half a minute: a process that was stopped in the middle of its turn may never end it. */
constexpr int32 MaxTurnAttempts = 600;

/**
 * Whether the service has looked at the refresh token and refused it. A service that is down, busy or broken says nothing about
 * the token, which is worth keeping then.
 */
bool WasTokenRefused(const FVexelError& Error)
{
	return Error.IsA<FVexelError_HttpStatusClientError>();
}

/** The stored refresh token, and the turn to use it up while that is held. */
struct FTurn
{
	FVexelAuthSecret RefreshToken;
	TSharedPtr<FVexelFileLock> Lock;
};

/** Empty where none is stored. */
FVexelAuthSecret LoadRefreshToken()
{
	TVexelExpected<FString> Stored = FVexelSecureStorage::LoadValueString(RefreshTokenKey);
	return FVexelAuthSecret(Stored.HasValue() ? MoveTemp(Stored).GetValue() : FString());
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
		.Then([Held](const FTurn& Turn) -> TVexelExpected<FTurn>
			{
				if (!Turn.Lock)
				{
					return VEXEL_ERROR(FVexelError_Auth_TokenRefresh, "Another process is still refreshing the login");
				}
				const FVexelAuthSecret Stored = LoadRefreshToken();
				return FTurn{Stored.IsEmpty() ? Held : Stored, Turn.Lock}; });
}

FVexelError MakeLateError()
{
	return VEXEL_ERROR(FVexelError_Auth_TokenProcessing, "The tokens arrived after the end of the login");
}

TVexelTaskResult<void> SendRevocation(const FVexelAuthSecret& RefreshToken)
{
	const TSharedPtr<FVexelHttp> Api = FVexelClient::Get().GetApiClient();
	return Try(FVexelAuth::PreloadClientId()).Then([Api, RefreshToken](const FString& ClientId)
		{ return VexelAuthRequests::Revoke({Api, ClientId, FString()}, RefreshToken); });
}
}

TVexelTaskResult<FString> FVexelAuth::PreloadClientId()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	const TSharedPtr<FVexelHttp> Api = FVexelClient::Get().GetApiClient();
	const FString Url = FVexelClient::GetApiUrl();
	TVexelTaskResult<FString> Preload;
	int32 PreloadNumber = 0;
	{
		FScopeLock Guard(&Data.Lock);
		const bool bSameService = Data.ClientIdUrl.Equals(Url);
		if (bSameService && !Data.ClientId.IsEmpty())
		{
			return Data.ClientId;
		}
		if (bSameService && Data.RunningPreload.IsValid())
		{
			return Data.RunningPreload;
		}
		Preload = TVexelTaskResult<FString>::MakePending();
		Data.RunningPreload = Preload;
		PreloadNumber = ++Data.PreloadNumber;
		Data.ClientIdUrl = Url;
		Data.ClientId.Empty();
	}
	// Outside the lock: a result that is complete at once goes on in this call.
	VexelAuthRequests::FetchClientId(*Api).OnComplete([Preload, PreloadNumber](const TVexelExpected<FString>& Result)
		{
			FVexelAuthData& Data = FVexelAuthData::Get();
			{
				FScopeLock Guard(&Data.Lock);
				if (Data.PreloadNumber == PreloadNumber)
				{
					Data.RunningPreload = TVexelTaskResult<FString>();
					Data.ClientId = Result.HasValue() ? Result.GetValue() : FString();
				}
			}
			Preload.Complete(Result); });
	return Preload;
}

void FVexelAuth::StartAutoLogin()
{
	VexelAuthReport::FScope Scope(TEXT("login"), TEXT("auto"));
	FVexelAuthData& Data = FVexelAuthData::Get();
	const FVexelAuthSecret Stored = LoadRefreshToken();
	const bool bUsable = !Stored.IsEmpty();
	FVexelAuthNews News;
	TVexelTaskResult<void> Refresh;
	FLoginNumber Number = 0;
	{
		FScopeLock StoreGuard(&Data.StoreLock);
		FScopeLock Guard(&Data.Lock);
		if (Data.State != EState::Offline)
		{
			VEXEL_LOG(Warning, "Attempted to start auto-login while not offline.");
			return;
		}
		Data.LoginFailure.Reset();
		if (bUsable)
		{
			Data.BeginNumber();
			Number = Data.Number;
			// Requests that are made meanwhile wait for it.
			Refresh = TVexelTaskResult<void>::MakePending();
			Data.RunningRefresh = Refresh;
			News = Data.ChangeState(EState::LoggingIn);
		}
	}
	if (!bUsable)
	{
		VEXEL_LOG(Log, "No valid stored refresh token found for auto-login.");
		return;
	}
	News.Tell();
	InternalRefreshAccessToken(Stored, true, Number).OnComplete([Refresh, Number](const TVexelExpected<void>& Result)
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

void FVexelAuth::Logout()
{
	VexelAuthReport::FScope Scope(TEXT("logout"), TEXT("manual"));
	FVexelAuthData& Data = FVexelAuthData::Get();
	FVexelAuthSecret RefreshToken;
	const TVexelTaskResult<void> Revocation = TVexelTaskResult<void>::MakePending();
	FVexelAuthNews News;
	TVexelExpected<void> Deleted;
	{
		FScopeLock StoreGuard(&Data.StoreLock);
		{
			FScopeLock Guard(&Data.Lock);
			if (Data.State != EState::Online && Data.State != EState::Refreshing)
			{
				VEXEL_LOG(Warning, "Attempted to logout while not logged in.");
				return;
			}
			RefreshToken = Data.RefreshToken;
			Data.BeginNumber();
			Data.Revocation = Revocation;
			News = Data.ChangeState(EState::Offline);
		}
		Deleted = FVexelSecureStorage::DeleteValue(RefreshTokenKey);
	}
	SendRevocation(RefreshToken).OnComplete([Revocation](const TVexelExpected<void>& Result)
		{
			if (Result.HasError())
			{
				VexelAuthReport::Error(Result.GetError(), TEXT("while revoking tokens during logout"));
			}
			Revocation.Complete(Result); });
	if (Deleted.HasError())
	{
		VexelAuthReport::Error(Deleted.GetError(), TEXT("while clearing stored refresh token during logout"));
	}
	News.Tell();
}

void FVexelAuth::Leave()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	TSharedPtr<FVexelAuthLoginState> Login;
	FVexelAuthNews News;
	{
		FScopeLock StoreGuard(&Data.StoreLock);
		FScopeLock Guard(&Data.Lock);
		if (Data.State == EState::Offline)
		{
			return;
		}
		Login = Data.CurrentLogin;
		Data.BeginNumber();
		News = Data.ChangeState(EState::Offline);
	}
	if (Login)
	{
		Login->Cancel();
	}
	News.Tell();
}

TVexelTaskResult<void> FVexelAuth::GetRevocation()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	return Data.Revocation;
}

void FVexelAuth::EndLogin(const FVexelError& Failure, FLoginNumber Number, bool bForgetRefused, const TCHAR* While)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FVexelAuthNews News;
	TVexelExpected<void> Deleted;
	{
		FScopeLock StoreGuard(&Data.StoreLock);
		{
			FScopeLock Guard(&Data.Lock);
			if (Data.Number != Number)
			{
				return;
			}
		}
		if (bForgetRefused && WasTokenRefused(Failure))
		{
			Deleted = FVexelSecureStorage::DeleteValue(RefreshTokenKey);
		}
		FScopeLock Guard(&Data.Lock);
		Data.BeginNumber();
		Data.LoginFailure = Failure;
		News = Data.ChangeState(EState::Offline);
	}
	if (Deleted.HasError())
	{
		VexelAuthReport::Error(Deleted.GetError(), TEXT("while clearing stored refresh token after failed auto-login"));
	}
	if (Failure.IsA<FVexelError_Auth_PollCancel>())
	{
		VEXEL_LOG(Log, "OAuth login cancelled by user.");
	}
	else
	{
		VexelAuthReport::Error(Failure, While);
	}
	News.Tell();
}

TOptional<FVexelError> FVexelAuth::GetLoginFailure()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	return Data.LoginFailure;
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
	if (Result.HasError() && WasTokenRefused(Result.GetError()))
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

FVexelAuth::EState FVexelAuth::GetState()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	return Data.State;
}

FDelegateHandle FVexelAuth::AddAuthStateChangedCallback(const FOnAuthStateChanged::FDelegate& Callback)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	return Data.OnStateChanged.Add(Callback);
}

void FVexelAuth::RemoveAuthStateChangedCallback(FDelegateHandle Handle)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	Data.OnStateChanged.Remove(Handle);
}

TSharedPtr<FVexelAuthLoginState> FVexelAuth::GetCurrentLogin()
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	return Data.CurrentLogin;
}

const FString& FVexelAuth::GetRefreshTokenKey()
{
	return RefreshTokenKey;
}

void FVexelAuth::SetOpenAddress(FOpenAddress Open)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FScopeLock Guard(&Data.Lock);
	Data.OpenAddress = MoveTemp(Open);
}

void FVexelAuth::WithAccessToken(TFunctionRef<void(const FString& Token)> Callback)
{
	WithAccessTokenAndUser([&](const FString& Token, const FString&)
		{ Callback(Token); });
}

void FVexelAuth::WithAccessTokenAndUser(TFunctionRef<void(const FString& Token, const FString& UserId)> Callback)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FVexelAuthSecret Token;
	FString UserId;
	{
		FScopeLock Guard(&Data.Lock);
		Token = Data.AccessToken;
		UserId = Data.UserId;
	}
	Callback(Token.Get(), UserId);
}

void FVexelAuth::Shutdown()
{
	WaitForSentRefresh();
	FVexelAuthData& Data = FVexelAuthData::Get();
	TSharedPtr<FVexelAuthLoginState> Login;
	TUniquePtr<FVexelAuthMonitor> Monitor;
	{
		FScopeLock StoreGuard(&Data.StoreLock);
		FScopeLock Guard(&Data.Lock);
		Login = Data.CurrentLogin;
		Monitor = MoveTemp(Data.Monitor);
		Data.BeginNumber();
		Data.bEnded = true;
		Data.State = EState::Offline;
		Data.LoginFailure.Reset();
		Data.Revocation = TVexelTaskResult<void>();
		Data.RunningPreload = TVexelTaskResult<FString>();
		++Data.PreloadNumber;
		Data.ClientId.Empty();
		Data.ClientIdUrl.Empty();
		Data.OnStateChanged.Clear();
	}
	if (Login)
	{
		Login->Cancel();
	}
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

TVexelExpected<void> FVexelAuth::ProcessOrRevoke(
	const VexelAuthRequests::FClient& OAuthClient, const FTokenResponse& Response, FLoginNumber Number)
{
	const TVexelExpected<void> Processed = InternalProcessTokenResponse(Response, Number);
	FVexelAuthData& Data = FVexelAuthData::Get();
	bool bRevoke = false;
	{
		FScopeLock Guard(&Data.Lock);
		bRevoke = Processed.HasError() && !Data.bEnded;
	}
	if (bRevoke)
	{
		VexelAuthRequests::Revoke(OAuthClient, Response.RefreshToken).OnComplete([](const TVexelExpected<void>&) {});
	}
	return Processed;
}

TVexelExpected<void> FVexelAuth::InternalProcessTokenResponse(const FTokenResponse& Response, FLoginNumber Number)
{
	const FString UserId = VexelAuthTokens::ReadUserId(Response.AccessToken.Get());
	if (UserId.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_TokenProcessing, "Failed to extract user ID from access token");
	}
	FVexelAuthData& Data = FVexelAuthData::Get();
	FVexelAuthNews News;
	TVexelExpected<void> Stored;
	{
		FScopeLock StoreGuard(&Data.StoreLock);
		{
			FScopeLock Guard(&Data.Lock);
			if (Data.Number != Number)
			{
				return MakeLateError();
			}
		}
		// Stored before anybody hears of the login, who may end the process then.
		Stored = FVexelSecureStorage::StoreValueString(RefreshTokenKey, Response.RefreshToken.Get());
		const FDateTime Now = FDateTime::UtcNow();
		FScopeLock Guard(&Data.Lock);
		Data.LoginFailure.Reset();
		Data.CurrentLogin.Reset();
		Data.UserId = UserId;
		Data.AccessToken = Response.AccessToken;
		Data.RefreshToken = Response.RefreshToken;
		Data.bTokenStored = Stored.HasValue();
		Data.RefreshTime = Now + FTimespan::FromSeconds(VexelAuthTokens::GetRefreshDelay(*Response.ExpiresInSeconds));
		Data.Expiry = Now + FTimespan::FromSeconds(VexelAuthTokens::ClampLife(*Response.ExpiresInSeconds));
		Data.RetrySeconds = 0.0;
		News = Data.ChangeState(EState::Online);
		if (Data.Monitor)
		{
			Data.Monitor->Wake();
		}
		else
		{
			Data.Monitor = MakeUnique<FVexelAuthMonitor>();
		}
	}
	if (Stored.HasError())
	{
		VexelAuthReport::Error(Stored.GetError(), TEXT("while storing refresh token"));
	}
	News.Tell();
	return TVexelExpected<void>();
}
