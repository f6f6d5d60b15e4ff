#include "Auth/VexelAuthProvider.h"

#include "Auth/VexelAuth.h"
#include "VexelErrorKinds.h"
#include "VexelSentry.h"

FVexelHttp::IAuthProvider::EAuthResult FVexelAuthProvider::GetAuthState(FString& OutToken)
{
	OutToken.Empty();
	const FVexelAuth::EState State = FVexelAuth::GetState();
	if (State == FVexelAuth::EState::Offline)
	{
		return EAuthResult::NotAuthenticated;
	}
	if (State != FVexelAuth::EState::Online)
	{
		return EAuthResult::Pending;
	}
	FVexelAuth::WithAccessToken([&](const FString& Token)
		{ OutToken = Token; });
	if (OutToken.IsEmpty())
	{
		FVexelSentry::CaptureError(
			VEXEL_ERROR(FVexelError_Auth, "Auth provider reports online state but failed to retrieve access token"), VEXEL_HERE);
		return EAuthResult::NotAuthenticated;
	}
	return EAuthResult::Authenticated;
}

TVexelTaskResult<void> FVexelAuthProvider::RefreshToken(const FString& RefusedToken)
{
	return FVexelAuth::RefreshRefusedToken(RefusedToken);
}
