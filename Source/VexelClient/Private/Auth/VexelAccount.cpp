#include "VexelAccount.h"

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthLoginState.h"
#include "Auth/VexelAuthUserInfo.h"
#include "VexelSecureStorage.h"
#include "VexelTry.h"

TVexelExpected<void> FVexelAccount::LogIn(FVexelLoginWay Way)
{
	FVexelAuth::SetOpenAddress(MoveTemp(Way.Open));
	VEXEL_TRY_VOID(FVexelAuth::StartLogin(Way.bListen));
	return TVexelExpected<void>();
}

void FVexelAccount::CancelLogin()
{
	if (const TSharedPtr<FVexelAuthLoginState> Login = FVexelAuth::GetCurrentLogin())
	{
		Login->Cancel();
	}
}

TVexelTaskResult<void> FVexelAccount::LogOut()
{
	const FVexelAuth::EState State = FVexelAuth::GetState();
	if (State == FVexelAuth::EState::Online || State == FVexelAuth::EState::Refreshing)
	{
		FVexelAuth::Logout();
		return FVexelAuth::GetRevocation();
	}
	const TVexelExpected<FString> Stored = FVexelSecureStorage::LoadValueString(FVexelAuth::GetRefreshTokenKey());
	if (Stored.HasError())
	{
		return Stored.GetError();
	}
	return FVexelSecureStorage::DeleteValue(FVexelAuth::GetRefreshTokenKey());
}

bool FVexelAccount::IsLoginStored()
{
	return FVexelSecureStorage::LoadValueString(FVexelAuth::GetRefreshTokenKey()).HasValue();
}

TVexelTaskResult<FVexelAccountUser> FVexelAccount::FetchUser()
{
	return Try(FVexelAuthUserInfo::ForceRefresh()).Then([](const FVexelAuthUserInfo& Info)
		{ return FVexelAccountUser{Info.GetName(), Info.GetEmail(), Info.GetCredits(), Info.GetMaxCredits(), Info.GetFeatures()}; });
}
