#include "Auth/VexelAuth.h"

#include "Dom/JsonObject.h"
#include "Misc/ScopeLock.h"
#include "VexelClient.h"
#include "VexelCrypto.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelJson.h"
#include "VexelLog.h"
#include "VexelSecureStorage.h"
#include "VexelSentry.h"
#include "VexelTry.h"

namespace
{
const FString RefreshTokenKey = TEXT("rt");
constexpr double MaxTimeoutSeconds = 600.0;
FConfigValueBase TimeoutSetting(TEXT("AuthTimeoutSeconds"), TEXT("10"));

/** Behind Lock, all of it. */
struct FAuthData
{
	FCriticalSection Lock;
	FVexelAuth::EState State = FVexelAuth::EState::Offline;
	FString AccessToken;
	FString RefreshToken;
	FDateTime Expiry;
	FString UserId;
	FString ClientId;
	TOptional<FVexelError> LoginFailure;
	/** The service that the client id, or the fetch of it that is under way, is of. */
	FString ClientIdUrl;
	/** Refers to no task when none is under way. */
	TVexelTaskResult<FString> RunningPreload;
	/** The refresh that is under way for refused tokens; refers to no task when none is. */
	TVexelTaskResult<void> RunningRefresh;
	/** Counts the ends of the module, so that an answer that comes late finds that it is nobody's. */
	int32 Session = 0;
	FVexelAuth::FOnAuthStateChanged OnStateChanged;
};

FAuthData& GetData()
{
	static FAuthData Data;
	return Data;
}

float GetTimeoutSeconds()
{
	return float(TimeoutSetting.GetNumber(0.1, MaxTimeoutSeconds));
}

int32 GetSession()
{
	FAuthData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	return Data.Session;
}

/**
 * Whether the service has looked at the refresh token and refused it. A service that is down, busy or broken says nothing about
 * the token, which is worth keeping then.
 */
bool WasTokenRefused(const FVexelError& Error)
{
	return Error.IsA<FVexelError_HttpStatusClientError>();
}

TSharedRef<FJsonObject> MakeScopeData(const TCHAR* Request, const TCHAR* Initiator)
{
	const TSharedRef<FJsonObject> Data = MakeShared<FJsonObject>();
	Data->SetStringField(TEXT("request"), Request);
	Data->SetStringField(TEXT("initiator"), Initiator);
	return Data;
}

/** The subject claim of a JSON web token. The signature is the service's business: the id addresses and displays, it grants nothing. */
FString ReadUserId(const FString& AccessToken)
{
	TArray<FString> Parts;
	TArray<uint8> PayloadBytes;
	TSharedPtr<FJsonObject> Payload;
	FString UserId;
	AccessToken.ParseIntoArray(Parts, TEXT("."), false);
	if (Parts.Num() != 3 || !FVexelCrypto::Base64UrlDecode(Parts[1], PayloadBytes))
	{
		return UserId;
	}
	const FUTF8ToTCHAR Text(reinterpret_cast<const ANSICHAR*>(PayloadBytes.GetData()), PayloadBytes.Num());
	if (FVexelJsonConversions::StringToJson(FString::ConstructFromPtrSize(Text.Get(), Text.Length()), Payload))
	{
		Payload->TryGetStringField(TEXT("sub"), UserId);
	}
	return UserId;
}

TVexelExpected<FString> ReadClientId(const TSharedRef<FVexelHttpResponse>& Response)
{
	const TSharedPtr<FJsonObject> Body = Response->GetContentJson();
	if (!Body)
	{
		return VEXEL_ERROR(FVexelError_Auth_ClientId, "Failed to parse plugin client ID response");
	}
	FString ClientId;
	if (!Body->TryGetStringField(TEXT("clientId"), ClientId) || ClientId.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_ClientId, "Response does not contain client_id field or it is empty");
	}
	return ClientId;
}

TVexelTaskResult<FString> FetchClientId()
{
	return Try(FVexelClient::Get()
				   .GetApiClient()
				   ->Request(EVexelHttpVerb::Get, TEXT("/api/auth/plugin-client-id"))
				   .WithTimeout(GetTimeoutSeconds())
				   .SendAndAwait())
		.Then([](const TSharedRef<FVexelHttpResponse>& Response)
			{ return ReadClientId(Response); })
		.Catch<FVexelError_Http>([](const FVexelError_Http& Error) -> TVexelExpected<FString>
			{ return VEXEL_ERROR_CAUSED(FVexelError_Auth_ClientId, Error, "while fetching plugin client ID from server"); });
}

void ReportAuthError(const FVexelError& Cause, const TCHAR* While)
{
	FVexelError Error = VEXEL_ERROR_CAUSED(FVexelError_Auth, Cause, "%s", *Cause.ToShortString());
	Error.AppendContext(While);
	FVexelSentry::CaptureError(MoveTemp(Error), VEXEL_HERE);
}
}

FTokenResponse FTokenResponse::Parse(const FJsonObject& Object)
{
	FTokenResponse Response;
	double ExpiresIn = 0.0;
	Object.TryGetStringField(TEXT("access_token"), Response.AccessToken);
	Object.TryGetStringField(TEXT("refresh_token"), Response.RefreshToken);
	if (Object.TryGetNumberField(TEXT("expires_in"), ExpiresIn))
	{
		Response.ExpiresInSeconds = ExpiresIn;
	}
	return Response;
}

TVexelTaskResult<FString> FVexelAuth::PreloadClientId()
{
	FAuthData& Data = GetData();
	const FString Url = FVexelClient::GetApiUrl();
	TVexelTaskResult<FString> Preload;
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
		Data.ClientIdUrl = Url;
		Data.ClientId.Empty();
	}
	// Outside the lock: a result that is complete at once goes on in this call.
	FetchClientId().OnComplete([Preload, Url, Session = GetSession()](const TVexelExpected<FString>& Result)
		{
			FAuthData& Data = GetData();
			{
				FScopeLock Guard(&Data.Lock);
				if (Data.Session == Session && Data.ClientIdUrl.Equals(Url))
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
	FVexelErrorContextScope Scope(TEXT("auth"), MakeScopeData(TEXT("login"), TEXT("auto")));
	FAuthData& Data = GetData();
	{
		FScopeLock Guard(&Data.Lock);
		if (Data.State != EState::Offline)
		{
			VEXEL_LOG(Warning, "Attempted to start auto-login while not offline.");
			return;
		}
	}
	{
		FScopeLock Guard(&Data.Lock);
		Data.LoginFailure.Reset();
	}
	const TVexelExpected<FString> Stored = FVexelSecureStorage::LoadValueString(RefreshTokenKey);
	if (Stored.HasError() || Stored.GetValue().IsEmpty())
	{
		VEXEL_LOG(Log, "No valid stored refresh token found for auto-login.");
		return;
	}
	SetState(EState::LoggingIn);
	InternalRefreshAccessToken(Stored.GetValue()).OnComplete([Session = GetSession()](const TVexelExpected<void>& Result)
		{
			if (Result.HasError())
			{
				EndLogin(Result.GetError(), Session, TEXT("while performing auto-login"));
			} });
}

void FVexelAuth::EndLogin(const FVexelError& Failure, int32 Session, const TCHAR* While)
{
	FAuthData& Data = GetData();
	{
		FScopeLock Guard(&Data.Lock);
		if (Data.Session != Session)
		{
			return;
		}
		Data.LoginFailure = Failure;
		Data.AccessToken.Empty();
		Data.RefreshToken.Empty();
		Data.UserId.Empty();
	}
	if (WasTokenRefused(Failure))
	{
		const TVexelExpected<void> Deleted = FVexelSecureStorage::DeleteValue(RefreshTokenKey);
		if (Deleted.HasError())
		{
			ReportAuthError(Deleted.GetError(), TEXT("while clearing stored refresh token after failed auto-login"));
		}
	}
	ReportAuthError(Failure, While);
	SetState(EState::Offline);
}

TOptional<FVexelError> FVexelAuth::GetLoginFailure()
{
	FAuthData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	return Data.LoginFailure;
}

TVexelTaskResult<void> FVexelAuth::RefreshRefusedToken(const FString& RefusedToken)
{
	FAuthData& Data = GetData();
	TVexelTaskResult<void> Refresh;
	FString RefreshToken;
	int32 Session = 0;
	{
		FScopeLock Guard(&Data.Lock);
		if (!Data.AccessToken.Equals(RefusedToken))
		{
			return TVexelExpected<void>();
		}
		if (Data.RunningRefresh.IsValid())
		{
			return Data.RunningRefresh;
		}
		Refresh = TVexelTaskResult<void>::MakePending();
		Data.RunningRefresh = Refresh;
		RefreshToken = Data.RefreshToken;
		Session = Data.Session;
	}
	// Outside the lock: a result that is complete at once goes on in this call.
	InternalRefreshAccessToken(RefreshToken).OnComplete([Refresh, Session](const TVexelExpected<void>& Result)
		{
			FAuthData& Data = GetData();
			{
				FScopeLock Guard(&Data.Lock);
				Data.RunningRefresh = TVexelTaskResult<void>();
			}
			if (Result.HasError() && WasTokenRefused(Result.GetError()))
			{
				EndLogin(Result.GetError(), Session, TEXT("while refreshing access token"));
			}
			Refresh.Complete(Result); });
	return Refresh;
}

FVexelAuth::EState FVexelAuth::GetState()
{
	FAuthData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	return Data.State;
}

FDelegateHandle FVexelAuth::AddAuthStateChangedCallback(const FOnAuthStateChanged::FDelegate& Callback)
{
	FAuthData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	return Data.OnStateChanged.Add(Callback);
}

void FVexelAuth::RemoveAuthStateChangedCallback(FDelegateHandle Handle)
{
	FAuthData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	Data.OnStateChanged.Remove(Handle);
}

void FVexelAuth::WithAccessToken(TFunctionRef<void(const FString& Token)> Callback)
{
	WithAccessTokenAndUser([&](const FString& Token, const FString&)
		{ Callback(Token); });
}

void FVexelAuth::WithAccessTokenAndUser(TFunctionRef<void(const FString& Token, const FString& UserId)> Callback)
{
	FAuthData& Data = GetData();
	FString Token;
	FString UserId;
	{
		FScopeLock Guard(&Data.Lock);
		Token = Data.AccessToken;
		UserId = Data.UserId;
	}
	Callback(Token, UserId);
}

void FVexelAuth::Shutdown()
{
	FAuthData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	Data.State = EState::Offline;
	Data.AccessToken.Empty();
	Data.RefreshToken.Empty();
	Data.UserId.Empty();
	Data.ClientId.Empty();
	Data.LoginFailure.Reset();
	Data.ClientIdUrl.Empty();
	Data.RunningPreload = TVexelTaskResult<FString>();
	Data.RunningRefresh = TVexelTaskResult<void>();
	++Data.Session;
	Data.OnStateChanged.Clear();
}

TVexelTaskResult<void> FVexelAuth::InternalRefreshAccessToken(const FString& RefreshToken)
{
	// Taken here, because a step may run when the module is gone already.
	const TSharedPtr<FVexelHttp> ApiClient = FVexelClient::Get().GetApiClient();
	return Try(PreloadClientId())
		.Then([RefreshToken, ApiClient](const FString& ClientId)
			{
				FVexelHttpUrlParams Form;
				Form.Add(TEXT("grant_type"), TEXT("refresh_token")).Add(TEXT("refresh_token"), RefreshToken).Add(TEXT("client_id"), ClientId);
				return ApiClient->Request(EVexelHttpVerb::Post, TEXT("/oauth/token"))
					.WithTimeout(GetTimeoutSeconds())
					.WithSecrecy()
					.WithPayload(Form)
					.SendAndAwait(); })
		.Then([](const TSharedRef<FVexelHttpResponse>& Response) -> TVexelExpected<FTokenResponse>
			{
				const TSharedPtr<FJsonObject> Body = Response->GetContentJson();
				if (!Body)
				{
					return VEXEL_ERROR(FVexelError_Auth_TokenRefresh, "Malformed token refresh response");
				}
				const FTokenResponse Tokens = FTokenResponse::Parse(*Body);
				if (!Tokens.IsComplete())
				{
					return VEXEL_ERROR(FVexelError_Auth_TokenRefresh, "Incomplete token data received");
				}
				VEXEL_LOG(Log, "OAuth token refresh successful");
				return Tokens; })
		.Then([Session = GetSession()](const FTokenResponse& Tokens)
			{ return InternalProcessTokenResponse(Tokens, Session); });
}

TVexelExpected<void> FVexelAuth::InternalProcessTokenResponse(const FTokenResponse& Response, int32 Session)
{
	const FString UserId = ReadUserId(Response.AccessToken);
	if (UserId.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_TokenProcessing, "Failed to extract user ID from access token");
	}
	FAuthData& Data = GetData();
	{
		FScopeLock Guard(&Data.Lock);
		if (Data.Session != Session)
		{
			return VEXEL_ERROR(FVexelError_Auth_TokenProcessing, "The tokens arrived after the end of the login");
		}
		Data.LoginFailure.Reset();
		Data.UserId = UserId;
		Data.AccessToken = Response.AccessToken;
		Data.RefreshToken = Response.RefreshToken;
		Data.Expiry = FDateTime::UtcNow() + FTimespan::FromSeconds(*Response.ExpiresInSeconds);
	}
	const TVexelExpected<void> Stored = FVexelSecureStorage::StoreValueString(RefreshTokenKey, Response.RefreshToken);
	if (Stored.HasError())
	{
		ReportAuthError(Stored.GetError(), TEXT("while storing refresh token"));
	}
	SetState(EState::Online);
	return TVexelExpected<void>();
}

void FVexelAuth::SetState(EState NewState)
{
	FAuthData& Data = GetData();
	FOnAuthStateChanged Listeners;
	{
		FScopeLock Guard(&Data.Lock);
		if (Data.State == NewState)
		{
			return;
		}
		Data.State = NewState;
		Listeners = Data.OnStateChanged;
	}
	// Outside the lock, because listeners ask for tokens.
	Listeners.Broadcast(NewState);
}
