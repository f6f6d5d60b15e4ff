#include "Containers/StringConv.h"
#include "LoginFixture.h"
#include "VexelClient.h"
#include "VexelSecureStorage.h"

#include <atomic>
#include <barrier>
#include <filesystem>
#include <functional>
#include <random>
#include <regex>
#include <set>
#include <thread>

namespace
{
using EState = FVexelAuth::EState;

/** Threads that wait for a round, start it as closely together as they can, each at its own moment, and do one thing each. */
class FActors
{
public:
	explicit FActors(int32 InNum)
		: Num(InNum)
		, Start(Num + 1)
		, End(Num + 1)
	{
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Threads.emplace_back([this, Index]
				{ Run(Index); });
		}
	}

	~FActors()
	{
		bEnded = true;
		Start.arrive_and_wait();
		for (std::thread& Thread : Threads)
		{
			Thread.join();
		}
	}

	/** Begins a round; the functions run on the threads. Seed decides when each is called, within some thousand steps of a loop. */
	void Begin(std::vector<std::function<void()>> InActions, uint32 Seed)
	{
		Actions = std::move(InActions);
		std::mt19937 Random(Seed);
		Delays.clear();
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Delays.push_back(1u << (Random() % 13));
		}
		Start.arrive_and_wait();
	}
	void WaitForEnd() { End.arrive_and_wait(); }

private:
	void Run(int32 Index)
	{
		while (true)
		{
			Start.arrive_and_wait();
			if (bEnded)
			{
				return;
			}
			for (std::atomic<uint32> Step = 0; Step < Delays[size_t(Index)]; ++Step)
			{
			}
			if (size_t(Index) < Actions.size())
			{
				Actions[size_t(Index)]();
			}
			End.arrive_and_wait();
		}
	}

	const int32 Num;
	std::barrier<> Start;
	std::barrier<> End;
	std::atomic<bool> bEnded = false;
	std::vector<std::function<void()>> Actions;
	std::vector<uint32> Delays;
	std::vector<std::thread> Threads;
};

FVexelHttpServerRequest MakeCallbackRequest(const FString& State)
{
	FVexelHttpServerRequest Request;
	Request.QueryParams = {{TEXT("auth_request_id"), TEXT("r")}, {TEXT("code"), TEXT("called")}, {TEXT("state"), State}};
	return Request;
}

class LoginRace : public FLoginTest
{
protected:
	virtual void SetUp() override
	{
		FLoginTest::SetUp();
		// In memory where that is possible: the store waits for the disk at each write.
		const std::filesystem::path Memory = "/dev/shm";
		if (std::filesystem::exists(Memory))
		{
			Store = Memory / ("vexel-race-" + std::to_string(getpid()));
			FVexelSecureStorage::SetDirectory(UTF8_TO_TCHAR(Store.c_str()));
		}
		ServeTokens();
	}

	virtual void TearDown() override
	{
		FLoginTest::TearDown();
		std::error_code Ignored;
		if (!Store.empty())
		{
			std::filesystem::remove_all(Store, Ignored);
		}
	}

	/** A service that gives each login its tokens, counts what it is asked, and remembers which tokens nobody has revoked. */
	void ServeTokens()
	{
		Server.AnswerWith("/oauth/token", [this](const FScriptedRequest& Request)
			{
				const std::lock_guard Guard(Lock);
				std::map<std::string, std::string> Form = ReadForm(Request.Body);
				if (Form["grant_type"] == "authorization_code")
				{
					++NumExchanges[Form["state"]];
				}
				else
				{
					++NumRefreshes;
					LiveTokens.erase(Form["refresh_token"]);
				}
				const std::string Number = std::to_string(++NumIssued);
				LiveTokens.insert("refresh-" + Number);
				return FScriptedAnswer::Json("{\"access_token\":\"e30.eyJzdWIiOiJ1c2VyLTEifQ.s" + Number + "\",\"refresh_token\":\"refresh-" + Number +
					"\",\"expires_in\":3600}"); });
		Server.AnswerWith("/oauth/revoke", [this](const FScriptedRequest& Request)
			{
				const std::lock_guard Guard(Lock);
				LiveTokens.erase(ReadForm(Request.Body)["token"]);
				return FScriptedAnswer::Json("{}"); });
	}

	std::set<std::string> GetLiveTokens() const
	{
		const std::lock_guard Guard(Lock);
		return LiveTokens;
	}

	static std::string GetAccessToken()
	{
		std::string Token;
		FVexelAuth::WithAccessToken([&](const FString& Current)
			{ Token = TCHAR_TO_UTF8(*Current); });
		return Token;
	}

	/** Ends every login that is under way or done. */
	void LogEverythingOut()
	{
		ASSERT_TRUE(PumpUntil([]
			{
				if (const TSharedPtr<FVexelAuthLoginState> Current = FVexelAuth::GetCurrentLogin())
				{
					Current->Cancel();
				}
				const EState State = FVexelAuth::GetState();
				if (State == EState::Online || State == EState::Refreshing)
				{
					FVexelAuth::Logout();
				}
				return FVexelAuth::GetState() == EState::Offline && !FVexelAuth::GetCurrentLogin(); }))
			<< Log.ToText();
	}

	std::filesystem::path Store;
	mutable std::mutex Lock;
	std::map<std::string, int32> NumExchanges;
	std::set<std::string> LiveTokens;
	int32 NumIssued = 0;
	int32 NumRefreshes = 0;
};
}

TEST_F(LoginRace, OneOfAllWhoCompleteALoginDoesAndNobodyHangs)
{
	constexpr uint32 NumRounds = 10'000;
	FActors Actors(4);
	std::map<std::string, int32> Winners;
	for (uint32 Round = 0; Round < NumRounds; ++Round)
	{
		const TSharedRef<FVexelAuthLoginState> Login = FVexelAuthLoginState::Make().GetValue();
		const FVexelAuthSecret State = Login->GetState();
		std::atomic<int32> NumCompletions = 0;
		std::atomic<int32> NumGrants = 0;
		std::atomic<int32> NumTaken = 0;
		Login->GetResult().OnComplete([&](const TVexelExpected<FVexelAuth::FAuthCodeInfo>& Result)
			{
				++NumCompletions;
				NumGrants += Result.HasValue() && !Login->TakeGrant(Result.GetValue()).CodeVerifier.IsEmpty() ? 1 : 0; });
		Actors.Begin({[&]
						 { NumTaken += Login->HandleCallback(MakeCallbackRequest(State.Get())).Status == 302 ? 1 : 0; },
						 [&]
						 { NumTaken += Login->CompleteWithCode({FVexelAuthSecret(TEXT("polled")), State, FVexelAuth::ECodeRoute::Polling}) ? 1 : 0; },
						 [&]
						 { Login->Cancel(); },
						 [&]
						 { Login->FailLoginWithError(VEXEL_ERROR(FVexelError_Auth_Polling, "failed")); }},
			Round);
		Actors.WaitForEnd();
		const TVexelExpected<FVexelAuth::FAuthCodeInfo> Result = Login->GetResult().Value();
		ASSERT_EQ(NumCompletions, 1);
		ASSERT_EQ(NumTaken, Result.HasValue() ? 1 : 0) << "who is told that the code was taken is the one whose it was";
		ASSERT_EQ(NumGrants, NumTaken.load()) << "the verifier goes with the code, once";
		ASSERT_TRUE(Login->GetState().IsEmpty() && Login->GetCodeVerifier().IsEmpty());
		++Winners[Result.HasValue() ? TCHAR_TO_UTF8(*Result.GetValue().Code.Get()) : TCHAR_TO_UTF8(*Result.GetError().GetKind().GetName())];
	}
	// Otherwise this would not be a race.
	EXPECT_EQ(Winners.size(), 4u);
	for (const auto& [Winner, Num] : Winners)
	{
		RecordProperty(Winner, Num);
	}
}

TEST_F(LoginRace, EveryOrderOfEventsLeavesOneExchangeAndNoTokenAfterTheLogout)
{
	// Each event happens on this thread at its place in the order; what it has asked of the service arrives between the later ones.
	const std::vector<std::pair<char, std::function<void()>>> Events = {
		{'c', []
			{
				if (const TSharedPtr<FVexelAuthLoginState> Current = FVexelAuth::GetCurrentLogin())
				{
					Current->HandleCallback(MakeCallbackRequest(Current->GetState().Get()));
				} }},
		{'p', []
			{
				if (const TSharedPtr<FVexelAuthLoginState> Current = FVexelAuth::GetCurrentLogin())
				{
					Current->CompleteWithCode({FVexelAuthSecret(TEXT("polled")), Current->GetState(), FVexelAuth::ECodeRoute::Polling});
				} }},
		{'x', []
			{
				if (const TSharedPtr<FVexelAuthLoginState> Current = FVexelAuth::GetCurrentLogin())
				{
					Current->Cancel();
				} }},
		{'s', []
			{ (void)FVexelAuth::StartLogin(false); }},
		{'l', []
			{ FVexelAuth::Logout(); }},
	};
	std::string Order = "clpsx";
	std::sort(Order.begin(), Order.end());
	int32 NumOrders = 0;
	do
	{
		SCOPED_TRACE(Order);
		ASSERT_TRUE(FVexelAuth::StartLogin(false).HasValue());
		for (const char Name : Order)
		{
			std::find_if(Events.begin(), Events.end(), [Name](const auto& Event)
				{ return Event.first == Name; })
				->second();
			Pump();
		}
		LogEverythingOut();
		ASSERT_TRUE(PumpUntil([this]
			{ return GetLiveTokens().empty(); }));
		ASSERT_EQ(GetAccessToken(), "");
		ASSERT_EQ(GetStored(TEXT("rt")), "");
		Log.Clear();
		++NumOrders;
	} while (std::next_permutation(Order.begin(), Order.end()));
	EXPECT_EQ(NumOrders, 120);
	for (const auto& [State, Num] : NumExchanges)
	{
		EXPECT_EQ(Num, 1);
	}
}

TEST_F(LoginRace, ThreadsThatLogInOutAndRefreshAtOnceLeaveNothingBehind)
{
	constexpr uint32 NumRounds = 600;
	FActors Actors(5);
	std::vector<TSharedRef<FVexelAuthLoginState>> Logins;
	std::atomic<int32> NumCompletions = 0;
	const auto StartCounted = [&]
	{
		const TVexelExpected<TSharedRef<FVexelAuthLoginState>> Started = FVexelAuth::StartLogin(false);
		if (Started.HasValue())
		{
			const std::lock_guard Guard(Lock);
			Logins.push_back(Started.GetValue());
			Started.GetValue()->GetResult().OnComplete([&](const TVexelExpected<FVexelAuth::FAuthCodeInfo>&)
				{ ++NumCompletions; });
		}
	};
	const auto CompleteCurrent = []
	{
		if (const TSharedPtr<FVexelAuthLoginState> Current = FVexelAuth::GetCurrentLogin())
		{
			Current->HandleCallback(MakeCallbackRequest(Current->GetState().Get()));
		}
	};
	SetPoll(FScriptedAnswer::Json(R"({"status":"approved"})"));
	for (uint32 Round = 0; Round < NumRounds; ++Round)
	{
		if (Round % 2 == 0)
		{
			StartCounted();
		}
		Actors.Begin({StartCounted, CompleteCurrent,
						 []
						 {
							 if (const TSharedPtr<FVexelAuthLoginState> Current = FVexelAuth::GetCurrentLogin())
							 {
								 Current->Cancel();
							 }
						 },
						 []
						 {
							 (void)FVexelAuth::RefreshRefusedToken(UTF8_TO_TCHAR(GetAccessToken().c_str()));
							 FVexelAuth::RefreshDueToken();
						 },
						 []
						 { FVexelAuth::Logout(); }},
			Round);
		Pump();
		Actors.WaitForEnd();
		if (Round % 8 == 7)
		{
			LogEverythingOut();
			ASSERT_EQ(GetAccessToken(), "");
			ASSERT_EQ(GetStored(TEXT("rt")), "");
			Log.Clear();
		}
		else if (Round % 4 == 1)
		{
			// Time for what is under way to arrive in the middle of the next round, at another place each time.
			PumpUntil([]
				{ return FVexelAuth::IsOnline(); },
				0.001 * double(Round % 16));
		}
	}
	LogEverythingOut();
	ASSERT_TRUE(PumpUntil([this]
		{ return GetLiveTokens().empty(); }))
		<< "every token that was given is used up or revoked";
	EXPECT_EQ(FVexelAuth::GetState(), EState::Offline);
	EXPECT_EQ(GetAccessToken(), "");
	EXPECT_EQ(GetStored(TEXT("rt")), "");
	EXPECT_EQ(NumCompletions, int32(Logins.size())) << "each login is completed once";
	for (const auto& [State, Num] : NumExchanges)
	{
		EXPECT_EQ(Num, 1);
	}
	EXPECT_GT(NumExchanges.size(), 20u) << "or nothing was raced";
	RecordProperty("logins", int(Logins.size()));
	RecordProperty("exchanges", int(NumExchanges.size()));
	RecordProperty("refreshes", NumRefreshes);
}
