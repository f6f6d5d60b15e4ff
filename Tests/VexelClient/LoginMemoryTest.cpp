#include "Auth/VexelAuthData.h"
#include "Auth/VexelAuthPkce.h"
#include "FreedMemoryWatch.h"
#include "LoginFixture.h"
#include "VexelSecureStorage.h"

namespace
{
class LoginMemory : public FLoginTest
{
protected:
	virtual void SetUp() override
	{
		if (!FFreedMemoryWatch::IsAble())
		{
			GTEST_SKIP() << "a sanitizer frees memory in its own way";
		}
		FLoginTest::SetUp();
	}
	virtual void TearDown() override
	{
		if (FFreedMemoryWatch::IsAble())
		{
			FLoginTest::TearDown();
		}
	}
};
}

TEST_F(LoginMemory, TheWatchSeesATextThatIsFreed)
{
	const FString Needle = TEXT("a text that nobody else has");
	const FFreedMemoryWatch Watch(Needle);
	{
		const FString Copy = Needle + TEXT("!");
		EXPECT_FALSE(Copy.IsEmpty());
	}
	EXPECT_GE(Watch.GetNumFound(), 1);
}

TEST_F(LoginMemory, ASecretIsOverwrittenBeforeItsMemoryIsFreed)
{
	const FString Needle = TEXT("the secret of this test alone");
	const FVexelAuthSecret Kept{FString(Needle)};
	const FFreedMemoryWatch Watch(Needle);
	{
		FVexelAuthSecret Copy = Kept;
		FVexelAuthSecret Assigned{FString(TEXT("another"))};
		Assigned = Copy;
		FVexelAuthSecret Moved = MoveTemp(Copy);
		Assigned = MoveTemp(Moved);
		Assigned = FVexelAuthSecret(FString(TEXT("a third")));
		Moved = Kept;
		Moved.Wipe();
		TArray<FVexelAuthSecret> Many;
		for (int32 Index = 0; Index < 100; ++Index)
		{
			Many.Add(Kept);
		}
		EXPECT_TRUE(Moved.IsEmpty());
		EXPECT_TRUE(Many.Last().Equals(Needle));
	}
	EXPECT_EQ(Watch.GetNumFound(), 0);
}

TEST_F(LoginMemory, ALogoutOverwritesTheTokensThatItFrees)
{
	for (FVexelAuthSecret FVexelAuthData::*const Member : {&FVexelAuthData::AccessToken, &FVexelAuthData::RefreshToken})
	{
		LogIn();
		const FString Token(*(FVexelAuthData::Get().*Member).Get());
		const FFreedMemoryWatch Watch(Token, *(FVexelAuthData::Get().*Member).Get());
		FVexelAuth::Logout();
		EXPECT_GE(Watch.GetNumFreed(), 1);
		EXPECT_EQ(Watch.GetNumFound(), 0);
	}
}

TEST_F(LoginMemory, TheVerifierOfALoginThatEndsIsOverwritten)
{
	const TSharedRef<FVexelAuthLoginState> Login = FVexelAuthLoginState::Make().GetValue();
	const FVexelAuthSecret Verifier = Login->GetCodeVerifier();
	const FFreedMemoryWatch Watch(Verifier.Get());
	Login->Cancel();
	EXPECT_TRUE(Login->GetCodeVerifier().IsEmpty());
	EXPECT_EQ(Watch.GetNumFound(), 0);
}

TEST_F(LoginMemory, TheTokenThatARefreshUsesUpIsOverwrittenWhereverItWas)
{
	LogIn();
	const FString Token = TEXT("the-token-that-another-process-has-stored");
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), Token).HasValue());
	SetAnswer("/oauth/token", MakeTokens("the-next-refresh-token"));
	const FString Refused = UTF8_TO_TCHAR(AccessToken);
	const FFreedMemoryWatch Watch(Token);
	const TVexelTaskResult<void> Refresh = FVexelAuth::RefreshRefusedToken(Refused);
	ASSERT_TRUE(PumpUntil([&]
		{ return Refresh.IsComplete(); }));
	EXPECT_EQ(Watch.GetNumFound(), 0) << "on its way from the store through the form to the service";
	EXPECT_EQ(ReadForm(FindRequests("/oauth/token")[1].Body)["refresh_token"], "the-token-that-another-process-has-stored");
}
