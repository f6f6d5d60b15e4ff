#include "HttpFixture.h"

#include <thread>

namespace
{
/** A client whose authenticated requests are held until the test lets them go. */
class FHttpHoldTest : public FHttpTest
{
protected:
	FHttpHoldTest()
	{
		FVexelHttpManager::SetAuthProvider(&Auth);
		Server.AnswerWith("/a", [](const FScriptedRequest& Request)
			{ return FScriptedAnswer().Text(Request.GetHeader("X-Beta").value_or("none")); });
		Client->HoldRequests(Hold);
	}
	virtual ~FHttpHoldTest() override { FVexelHttpManager::SetAuthProvider(nullptr); }

	TSharedRef<FVexelHttpRequest> Send() { return Client->Request(EVexelHttpVerb::Get, TEXT("/a")).WithAuth().Send(); }

	static std::string GetText(const FResponse& Response)
	{
		return Response ? ToUtf8(Response.GetValue()->GetContentString()) : ToUtf8(Response.GetError().GetMessage());
	}

	FFixedAuth Auth;
	const TVexelTaskResult<void> Hold = TVexelTaskResult<void>::MakePending();
};
}

TEST_F(FHttpHoldTest, AHeldRequestTakesTheHeadersOfTheMomentWhenItLeaves)
{
	const TSharedRef<FVexelHttpRequest> Held = Send();
	EXPECT_EQ(GetText(Await(Client->Request(EVexelHttpVerb::Get, TEXT("/a")).SendAndAwait())), "none") << "without a token none is held";
	EXPECT_EQ(GetText(Await(Client->Request(EVexelHttpVerb::Get, TEXT("/a")).WithAuth().WithoutHold().SendAndAwait())), "none");
	EXPECT_FALSE(Held->Await().IsComplete());
	Client->SetDefaultHeader(TEXT("X-Beta"), TEXT("known"));
	Hold.Complete(TVexelExpected<void>());
	EXPECT_EQ(GetText(Await(Held->Await())), "known");
	EXPECT_EQ(GetText(Await(Send()->Await())), "known") << "nothing is held any more";
	EXPECT_EQ(Server.GetRequests().size(), 4u);
}

TEST_F(FHttpHoldTest, AFailureLetsRequestsGoToo)
{
	const TSharedRef<FVexelHttpRequest> Held = Send();
	Hold.Complete(VEXEL_ERROR_TITLED(FVexelError_Http, "No", "no features"));
	EXPECT_EQ(GetText(Await(Held->Await())), "none");
}

TEST_F(FHttpHoldTest, ACancelledRequestNeverLeaves)
{
	const TSharedRef<FVexelHttpRequest> Held = Send();
	Held->Cancel();
	ASSERT_TRUE(Held->Await().IsComplete()) << "nobody else would complete it";
	Hold.Complete(TVexelExpected<void>());
	EXPECT_TRUE(Held->Await().Value().GetError().IsA<FVexelError_HttpCancelled>());
	EXPECT_EQ(GetText(Await(Send()->Await())), "none");
	EXPECT_EQ(Server.GetRequests().size(), 1u);
}

TEST_F(FHttpHoldTest, ARequestThatIsCancelledAsItBeginsToWaitForATokenCompletes)
{
	/** Cancels the request in the middle of its question for a token, and has it wait for one. */
	struct FCancellingAuth final : FVexelHttp::IAuthProvider
	{
		virtual EAuthResult GetAuthState(FString& OutToken) override
		{
			OutToken = TEXT("token-1");
			if (!Cancelled)
			{
				return EAuthResult::Authenticated;
			}
			Cancelled->Cancel();
			return EAuthResult::Pending;
		}
		virtual TVexelTaskResult<void> RefreshToken(const FString&) override { return Refreshed; }

		TSharedPtr<FVexelHttpRequest> Cancelled;
		const TVexelTaskResult<void> Refreshed = TVexelTaskResult<void>::MakePending();
	};
	FCancellingAuth Cancelling;
	FVexelHttpManager::SetAuthProvider(&Cancelling);
	const TSharedRef<FVexelHttpRequest> Held = Send();
	Cancelling.Cancelled = Held;
	Hold.Complete(TVexelExpected<void>());
	Cancelling.Refreshed.Complete(TVexelExpected<void>());
	ASSERT_TRUE(Held->Await().IsComplete()) << "whoever waits for it would wait for ever";
	EXPECT_TRUE(Held->Await().Value().GetError().IsA<FVexelError_HttpCancelled>());
	EXPECT_TRUE(Server.GetRequests().empty());
}

TEST_F(FHttpHoldTest, WithoutALoginARequestFailsAtOnce)
{
	Auth.Result = FVexelHttp::IAuthProvider::EAuthResult::Pending;
	EXPECT_TRUE(Await(Send()->Await()).GetError().IsA<FVexelError_HttpUnauthorized>());
}

TEST_F(FHttpHoldTest, ALoginThatEndsMeanwhileFailsTheRequestUnsent)
{
	const TSharedRef<FVexelHttpRequest> Held = Send();
	FVexelHttpManager::SetAuthProvider(nullptr);
	Hold.Complete(TVexelExpected<void>());
	EXPECT_TRUE(Await(Held->Await()).GetError().IsA<FVexelError_HttpUnauthorized>());
	EXPECT_TRUE(Server.GetRequests().empty());
}

TEST_F(FHttpHoldTest, AHoldThatNobodyWillEndEndsWithItsClient)
{
	Client->HoldRequests(TVexelTaskResult<void>::MakePending());
	const TSharedRef<FVexelHttpRequest> Held = Send();
	Client.Reset();
	EXPECT_EQ(GetText(Await(Held->Await())), "none");
}

TEST_F(FHttpHoldTest, CancelAndTheEndOfTheHoldAtOnceCompleteEachRequestOnce)
{
	constexpr int32 NumRounds = 200;
	Client->HoldRequests(TVexelTaskResult<void>());
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const TVexelTaskResult<void> Brief = TVexelTaskResult<void>::MakePending();
		Client->HoldRequests(Brief);
		const TSharedRef<FVexelHttpRequest> Held = Send();
		std::atomic<int32> NumCompletions = 0;
		Held->Await().OnComplete([&](const FResponse&)
			{ ++NumCompletions; });
		std::thread Ending([&]
			{ Brief.Complete(TVexelExpected<void>()); });
		Held->Cancel();
		Ending.join();
		(void)Await(Held->Await());
		EXPECT_EQ(NumCompletions, 1);
	}
}
