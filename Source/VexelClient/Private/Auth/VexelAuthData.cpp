#include "Auth/VexelAuthData.h"

#include "Auth/VexelAuthErrors.h"
#include "Auth/VexelAuthLoginState.h"
#include "Dom/JsonObject.h"
#include "VexelErrorKinds.h"
#include "VexelSentry.h"

namespace
{
TSharedRef<FJsonObject> MakeScopeData(const TCHAR* Request, const TCHAR* Initiator)
{
	const TSharedRef<FJsonObject> Data = MakeShared<FJsonObject>();
	Data->SetStringField(TEXT("request"), Request);
	Data->SetStringField(TEXT("initiator"), Initiator);
	return Data;
}
}

FVexelAuthData& FVexelAuthData::Get()
{
	// Never destroyed: requests that end with the process still ask for it.
	static FVexelAuthData* const Data = new FVexelAuthData;
	return *Data;
}

FVexelAuthNews FVexelAuthData::ChangeState(FVexelAuth::EState NewState)
{
	if (State == NewState)
	{
		return FVexelAuthNews();
	}
	State = NewState;
	return FVexelAuthNews(NewState, OnStateChanged);
}

void FVexelAuthData::BeginNumber()
{
	++Number;
	bEnded = false;
	CurrentLogin.Reset();
	AccessToken.Wipe();
	RefreshToken.Wipe();
	bTokenStored = false;
	UserId.Empty();
	RetrySeconds = 0.0;
	RunningRefresh = TVexelTaskResult<void>();
	SentRefresh = TVexelTaskResult<void>();
}

VexelAuthReport::FScope::FScope(const TCHAR* Request, const TCHAR* Initiator)
	: Scope(TEXT("auth"), MakeScopeData(Request, Initiator))
{
}

void VexelAuthReport::Error(const FVexelError& Cause, const TCHAR* While)
{
	FVexelSentry::CaptureError(VexelAuthErrors::Wrap<FVexelError_Auth>(VEXEL_HERE, Cause, While), VEXEL_HERE);
}
