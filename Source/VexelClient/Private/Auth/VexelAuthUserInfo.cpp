#include "Auth/VexelAuthUserInfo.h"

#include "Auth/VexelAuthErrors.h"
#include "Auth/VexelAuthIds.h"
#include "Data/VexelChatModeInfo.h"
#include "Misc/ScopeLock.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"
#include "VexelLog.h"
#include "VexelSentry.h"
#include "VexelTry.h"

namespace
{
constexpr float TimeoutSeconds = 30.0f;
constexpr int32 MaxAnswerBytes = 1 << 20;
const FString UserGuidHeader = TEXT("vexel-id");

struct FUserInfoData
{
	FCriticalSection Lock;
	FVexelAuthUserInfo Current;
	/** Counts the profiles that were forgotten, so that an answer which was asked for before finds that it is nobody's. */
	int32 NumCleared = 0;
	FVexelAuthUserInfo::FOnUserInfoChanged OnChanged;
};

FUserInfoData& GetData()
{
	static FUserInfoData Data;
	return Data;
}

int32 GetNumCleared()
{
	FUserInfoData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	return Data.NumCleared;
}

TVexelExpected<FVexelAuthUserInfo> ReadUserInfo(const TSharedRef<FVexelHttpResponse>& Response)
{
	const TSharedPtr<FJsonObject> Body = Response->GetContentJson();
	FVexelAuthUserInfo Info;
	if (!Body || !Info.FromJson(Body.ToSharedRef()))
	{
		return VEXEL_ERROR(FVexelError_UserInfoFetch, "Malformed user info response");
	}
	return Info;
}

/** A field that is absent or null is nothing; false for one of another type. */
bool ReadInteger(const FJsonObject& Object, const TCHAR* Field, int32& Out)
{
	return !Object.HasField(Field) || Object.HasTypedField<EJson::Null>(Field) || Object.TryGetNumberField(Field, Out);
}

bool ReadText(const FJsonObject& Object, const TCHAR* Field, FString& Out)
{
	return !Object.HasField(Field) || Object.HasTypedField<EJson::Null>(Field) || Object.TryGetStringField(Field, Out);
}
}

FVexelAuthUserInfo FVexelAuthUserInfo::GetCurrent()
{
	FUserInfoData& Data = GetData();
	FScopeLock Guard(&Data.Lock);
	return Data.Current;
}

TVexelExpected<FString> FVexelAuthUserInfo::GetUserGuid()
{
	return VexelAuthIds::FindOrMake<FVexelError_UserInfoGuid>(TEXT("vid"), TEXT("while storing new Vexel ID"), []
		{ VEXEL_LOG(Log, "No Vexel ID found in secure storage, generating a new one"); });
}

TVexelTaskResult<FVexelAuthUserInfo> FVexelAuthUserInfo::ForceRefresh()
{
	FVexelHttpPendingRequest Request = FVexelClient::Get().GetApiClient()->Request(EVexelHttpVerb::Get, TEXT("/api/user"));
	Request.WithTimeout(TimeoutSeconds).WithAnswerLimit(MaxAnswerBytes).WithAuth().WithoutHold();
	const TVexelExpected<FString> UserGuid = GetUserGuid();
	if (UserGuid.HasValue())
	{
		Request.WithHeader(UserGuidHeader, UserGuid.GetValue());
	}
	else
	{
		FVexelSentry::CaptureErrorSoft(FVexelError(UserGuid.GetError()), VEXEL_HERE);
	}
	return Try(Request.SendAndAwait())
		.Then([](const TSharedRef<FVexelHttpResponse>& Response)
			{ return ReadUserInfo(Response); })
		.Catch<FVexelError_HttpUnauthorized>([](const FVexelError& Error) -> TVexelExpected<FVexelAuthUserInfo>
			{ return VexelAuthErrors::Wrap<FVexelError_UserInfoFetch>(VEXEL_HERE, Error, TEXT("unauthorized access while fetching user info")); })
		.Catch<FVexelError>([](const FVexelError& Error) -> TVexelExpected<FVexelAuthUserInfo>
			{ return VexelAuthErrors::Wrap<FVexelError_UserInfoFetch>(VEXEL_HERE, Error, TEXT("while fetching user info")); })
		.ThenOn(EVexelTaskThread::GameThread, [NumCleared = GetNumCleared()](const FVexelAuthUserInfo& Info) -> TVexelExpected<FVexelAuthUserInfo>
			{
				if (GetNumCleared() != NumCleared)
				{
					// As a request that was cut off, which is no failure to report.
					const FVexelError Late = VEXEL_ERROR_TITLED(FVexelError_HttpCancelled, "Cancelled", "The user logged out in the meantime");
					return VEXEL_ERROR_CAUSED(FVexelError_UserInfoFetch, Late, "%s", *Late.GetMessage());
				}
				SetCurrent(Info);
				return Info; });
}

void FVexelAuthUserInfo::Clear()
{
	{
		FUserInfoData& Data = GetData();
		FScopeLock Guard(&Data.Lock);
		++Data.NumCleared;
	}
	SetCurrent(FVexelAuthUserInfo());
}

FVexelAuthUserInfo::FOnUserInfoChanged& FVexelAuthUserInfo::OnUserInfoChanged()
{
	return GetData().OnChanged;
}

void FVexelAuthUserInfo::SetCurrent(const FVexelAuthUserInfo& Info)
{
	check(IsInGameThread());
	FUserInfoData& Data = GetData();
	{
		FScopeLock Guard(&Data.Lock);
		Data.Current = Info;
	}
	Data.OnChanged.Broadcast(Info);
}

TSharedRef<FJsonObject> FVexelAuthUserInfo::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("name"), Name);
	Object->SetStringField(TEXT("email"), Email);
	Object->SetNumberField(TEXT("credits"), Credits);
	Object->SetNumberField(TEXT("max_credits"), MaxCredits);
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FString& Feature : Features)
	{
		Values.Add(MakeShared<FJsonValueString>(Feature));
	}
	Object->SetArrayField(TEXT("features"), Values);
	return Object;
}

bool FVexelAuthUserInfo::FromJson(const TSharedRef<FJsonObject>& Object)
{
	*this = FVexelAuthUserInfo();
	const bool bRead = ReadText(*Object, TEXT("name"), Name) && ReadText(*Object, TEXT("email"), Email) &&
		ReadInteger(*Object, TEXT("credits"), Credits) && ReadInteger(*Object, TEXT("max_credits"), MaxCredits) &&
		(!Object->HasField(TEXT("features")) || Object->TryGetStringArrayField(TEXT("features"), Features));
	if (!bRead)
	{
		VEXEL_LOG(Warning, "The user info has a field of another type than the service's");
	}
	return bRead;
}

bool FVexelAuthUserInfo::IsFeatureEnabled(const FString& Feature) const
{
	return Features.ContainsByPredicate([&](const FString& Enabled)
		{ return Enabled.Equals(Feature); });
}

bool FVexelAuthUserInfo::CanUseChatMode(const FString& ChatMode) const
{
	return Features.ContainsByPredicate([&](const FString& Enabled)
		{ return Enabled.Equals(ChatMode, ESearchCase::IgnoreCase); });
}

bool FVexelAuthUserInfo::CanUseChatMode(const FVexelChatModeInfo& Mode) const
{
	return CanUseChatMode(Mode.ChatMode);
}
