#include "VexelAccount.h"

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthLoginState.h"
#include "Auth/VexelAuthUserInfo.h"
#include "VexelSecureStorage.h"
#include "VexelTry.h"

namespace
{
TVexelExpected<FVexelAuthSecret> LoadStoredLogin()
{
	VEXEL_TRY(FString Token, FVexelSecureStorage::LoadValueString(FVexelAuth::GetRefreshTokenKey()));
	return FVexelAuthSecret(MoveTemp(Token));
}
}

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
	const TVexelExpected<FVexelAuthSecret> Stored = LoadStoredLogin();
	if (Stored.HasError())
	{
		return Stored.GetError();
	}
	return FVexelSecureStorage::DeleteValue(FVexelAuth::GetRefreshTokenKey());
}

bool FVexelAccount::IsLoginStored()
{
	return LoadStoredLogin().HasValue();
}

TVexelTaskResult<FVexelAccountUser> FVexelAccount::FetchUser()
{
	return Try(FVexelAuthUserInfo::ForceRefresh()).Then([](const FVexelAuthUserInfo& Info)
		{ return FVexelAccountUser{Info.GetName(), Info.GetEmail(), Info.GetCredits(), Info.GetMaxCredits(), Info.GetFeatures()}; });
}
