#include "Auth/VexelAuthProvider.h"

#include "Auth/VexelAuth.h"
#include "VexelCrypto.h"
#include "VexelErrorKinds.h"
#include "VexelSentry.h"

FVexelHttp::IAuthProvider::EAuthResult FVexelAuthProvider::GetAuthState(FString& OutToken)
{
	FVexelCrypto::Wipe(OutToken);
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
		if (!FVexelAuth::IsOnline())
		{
			// A logout came between the two questions.
			return EAuthResult::NotAuthenticated;
		}
		FVexelSentry::CaptureError(
			VEXEL_ERROR(FVexelError_Auth, "Auth provider reports online state but failed to retrieve access token"), VEXEL_HERE);
		return EAuthResult::NotAuthenticated;
	}
	return EAuthResult::Authenticated;
}

TVexelTaskResult<void> FVexelAuthProvider::RefreshToken(const FString& RefusedToken)
{
	if (RefusedToken.IsEmpty() && FVexelAuth::GetState() == FVexelAuth::EState::LoggingIn)
	{
		return VEXEL_ERROR(FVexelError_Auth, "The login may take the user minutes, and is not waited for");
	}
	return FVexelAuth::RefreshRefusedToken(RefusedToken);
}
