#include "Auth/VexelAuth.h"

#include "Auth/VexelAuthData.h"
#include "Auth/VexelAuthLoginState.h"
#include "Auth/VexelAuthRequests.h"
#include "Misc/ScopeLock.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelLog.h"
#include "VexelSecureStorage.h"
#include "VexelTry.h"

namespace
{
const FString RefreshTokenKey = TEXT("rt");

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
		if (bForgetRefused && VexelAuthRequests::WasTokenRefused(Failure))
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
