#include "HAL/Event.h"
#include "AnsweringAddresses.h"
#include "Http/LoopbackPeer.h"
#include "HttpFixture.h"
#include "OtherUser.h"
#include "RawHttpClient.h"
#include "VexelHttpServer.h"

#include <arpa/inet.h>
#include <atomic>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace
{
class FHttpServerTest : public FTaskTest
{
protected:
	virtual ~FHttpServerTest() override { FVexelHttpManager::Shutdown(); }

	/** Runs the server with a handler of "/a" and answers a client of it. */
	TSharedRef<FVexelHttp> Run(FVexelHttpServer::FHandler Handler)
	{
		EXPECT_TRUE(Server.AddRoute(EVexelHttpVerb::Get, TEXT("/a"), MoveTemp(Handler)).HasValue());
		EXPECT_TRUE(Server.Start().HasValue());
		return MakeShared<FVexelHttp>(FVexelHttpClientConfig(FString::Printf(TEXT("http://localhost:%d"), Server.GetPort())));
	}

	static bool HasIpv6()
	{
		// A port that nobody listens at: the machine says so only of an address that it has.
		const FRawClient Client(1, in6addr_loopback);
		return !Client.bConnected && errno == ECONNREFUSED;
	}

	static std::string MakeGet(const std::string& Target, const std::string& Host = "localhost")
	{
		return "GET " + Target + " HTTP/1.1\r\nHost: " + Host + "\r\n\r\n";
	}

	FVexelHttpServer Server{0};
};
}

TEST_F(FHttpServerTest, HandlersGetTheQueryAndTheirAnswerGoesOut)
{
	const TSharedRef<FVexelHttp> Client = Run(
		[](const FVexelHttpServerRequest& Request)
		{
			FVexelHttpServerResponse Response(
				201, Request.FindParam(TEXT("code")).Get(TEXT("none")) + TEXT("|") + Request.FindParam(TEXT("Code")).Get(TEXT("none")));
			Response.Headers.Emplace(TEXT("X-Path"), Request.Path);
			return Response;
		});
	FVexelHttpUrlParams Params;
	Params.Add(TEXT("code"), TEXT("T\u00FCr & 1+1=2")).Add(TEXT("code"), TEXT("second"));
	const FResponse Response = Await(Client->Request(EVexelHttpVerb::Get, TEXT("/a")).WithURLParams(Params).SendAndAwait());
	ASSERT_TRUE(Response.HasValue()) << ToUtf8(Response.GetError().ToString());
	EXPECT_EQ(Response.GetValue()->GetStatus(), 201);
	EXPECT_EQ(ToUtf8(Response.GetValue()->GetContentString()), "Tür & 1+1=2|none");
	EXPECT_EQ(ToUtf8(Response.GetValue()->GetHeader(TEXT("X-Path"))), "/a");
}

TEST_F(FHttpServerTest, BodiesArriveAndRedirectsAreSent)
{
	EXPECT_TRUE(Server.AddRoute(EVexelHttpVerb::Post, TEXT("/body"), [](const FVexelHttpServerRequest& Request)
						  { return FVexelHttpServerResponse(200, FString::Printf(TEXT("%d bytes"), Request.Body.Num())); })
					.HasValue());
	const TSharedRef<FVexelHttp> Client = Run([](const FVexelHttpServerRequest&)
		{
			FVexelHttpServerResponse Response(302, FString());
			Response.Headers.Emplace(TEXT("Location"), TEXT("https://host/auth/local?auth_request_id=1"));
			return Response; });
	FVexelHttpUrlParams Form;
	Form.Add(TEXT("a"), TEXT("b"));
	EXPECT_EQ(
		ToUtf8(Await(Client->Request(EVexelHttpVerb::Post, TEXT("/body")).WithPayload(Form).SendAndAwait()).GetValue()->GetContentString()),
		"3 bytes");
	const std::string Answer = FRawClient(Server.GetPort()).Ask(MakeGet("/a"));
	EXPECT_THAT(Answer, testing::StartsWith("HTTP/1.1 302"));
	EXPECT_THAT(Answer, HasSubstr("Location: https://host/auth/local?auth_request_id=1\r\n"));
}

TEST_F(FHttpServerTest, OnlyRoutesAreAnsweredAndOnlyForThisMachinesName)
{
	std::atomic<int32> NumCalls = 0;
	Run([&](const FVexelHttpServerRequest&)
		{ ++NumCalls; return FVexelHttpServerResponse(200, TEXT("OK")); });
	const auto Ask = [&](const std::string& Bytes)
	{ return FRawClient(Server.GetPort()).Ask(Bytes).substr(0, 12); };
	EXPECT_EQ(Ask(MakeGet("/a")), "HTTP/1.1 200");
	EXPECT_EQ(Ask(MakeGet("/a?x", "127.0.0.1:" + std::to_string(Server.GetPort()))), "HTTP/1.1 200");
	EXPECT_EQ(Ask(MakeGet("/a", "[::1]:4000")), "HTTP/1.1 200");
	EXPECT_EQ(NumCalls, 3);
	EXPECT_EQ(Ask(MakeGet("/")), "HTTP/1.1 404");
	EXPECT_EQ(Ask(MakeGet("/ab")), "HTTP/1.1 404");
	EXPECT_EQ(Ask(MakeGet("/A")), "HTTP/1.1 404");
	EXPECT_EQ(Ask("HEAD /a HTTP/1.1\r\nHost: localhost\r\n\r\n"), "HTTP/1.1 405") << "one who only looks sets nothing going";
	EXPECT_EQ(Ask("POST /a HTTP/1.1\r\nHost: localhost\r\nContent-Length: 0\r\n\r\n"), "HTTP/1.1 405");
	for (const std::string Host : {"evil.example", "localhost.evil.example", "127.0.0.1.evil.example:80", "", "evil.example:localhost"})
	{
		EXPECT_EQ(Ask(MakeGet("/a", Host)), "HTTP/1.1 400") << Host;
	}
	EXPECT_EQ(NumCalls, 3);
}

TEST_F(FHttpServerTest, LargeAndBrokenRequestsReachNoHandler)
{
	std::atomic<int32> NumCalls = 0;
	const auto Count = [&](const FVexelHttpServerRequest&)
	{ ++NumCalls; return FVexelHttpServerResponse(); };
	EXPECT_TRUE(Server.AddRoute(EVexelHttpVerb::Post, TEXT("/a"), Count).HasValue());
	Run(Count);
	const std::string Requests[] = {
		MakeGet("/a?" + std::string(100'000, 'x')),
		"GET /a HTTP/1.1\r\nHost: localhost\r\nX-Long: " + std::string(100'000, 'x') + "\r\n\r\n",
		"POST /a HTTP/1.1\r\nHost: localhost\r\nContent-Length: 1000000\r\n\r\n" + std::string(100'000, 'x'),
		"POST /a HTTP/1.1\r\nHost: localhost\r\nContent-Length: -1\r\n\r\n",
		"POST /a HTTP/1.1\r\nHost: localhost\r\nTransfer-Encoding: chunked\r\n\r\nfffffffff\r\nx",
		"this is no HTTP\r\n\r\n",
		std::string("\0\0\0\0\r\n\r\n", 8),
	};
	for (const std::string& Request : Requests)
	{
		const std::string Answer = FRawClient(Server.GetPort()).Ask(Request);
		EXPECT_THAT(Answer, testing::Not(testing::StartsWith("HTTP/1.1 200"))) << Request.substr(0, 60);
	}
	EXPECT_EQ(NumCalls, 0);
	EXPECT_THAT(FRawClient(Server.GetPort()).Ask(MakeGet("/a")), testing::StartsWith("HTTP/1.1 200")) << "it goes on";
}

TEST_F(FHttpServerTest, AHeaderThatWouldBeginAnotherIsNotSent)
{
	Run([](const FVexelHttpServerRequest& Request)
		{
			FVexelHttpServerResponse Response(302, FString());
			Response.Headers.Emplace(TEXT("Location"), TEXT("/?") + Request.FindParam(TEXT("id")).Get(FString()));
			return Response; });
	const std::string Answer = FRawClient(Server.GetPort()).Ask(MakeGet("/a?id=1%0d%0aX-Injected:%20yes"));
	EXPECT_THAT(Answer, testing::StartsWith("HTTP/1.1 500"));
	EXPECT_THAT(Answer, testing::Not(HasSubstr("X-Injected")));
}

TEST_F(FHttpServerTest, APortHasOneServerAndIsFreeAfterTheStop)
{
	Run([](const FVexelHttpServerRequest&)
		{ return FVexelHttpServerResponse(); });
	const int32 Port = Server.GetPort();
	FVexelHttpServer Second(Port);
	const TVexelExpected<void> Taken = Second.Start();
	ASSERT_TRUE(Taken.HasError());
	EXPECT_TRUE(Taken.GetError().IsA<FVexelError_Http>());
	EXPECT_TRUE(Server.Start().HasError()) << "it runs already";
	EXPECT_TRUE(Server.AddRoute(EVexelHttpVerb::Get, TEXT("/late"), [](const FVexelHttpServerRequest&)
						  { return FVexelHttpServerResponse(); })
					.HasError());
	EXPECT_THAT(FRawClient(Port).Ask(MakeGet("/a")), testing::StartsWith("HTTP/1.1 200"));
	Server.Stop();
	Server.Stop();
	EXPECT_FALSE(FRawClient(Port).bConnected);
	EXPECT_TRUE(Second.Start().HasValue());
	EXPECT_EQ(Second.GetPort(), Port);
	EXPECT_TRUE(Second.AddRoute(EVexelHttpVerb::Get, TEXT("no slash"), nullptr).HasError());
}

TEST_F(FHttpServerTest, OtherInterfacesDoNotAnswer)
{
	Run([](const FVexelHttpServerRequest&)
		{ return FVexelHttpServerResponse(); });
	const std::set<std::string> Loopback = HasIpv6() ? std::set<std::string>{"127.0.0.1", "::1"} : std::set<std::string>{"127.0.0.1"};
	EXPECT_EQ(FindAnsweringAddresses(Server.GetPort()), Loopback);
}

TEST_F(FHttpServerTest, BothAddressesOfLocalhostAnswerAndAreFreeAfterTheStop)
{
	if (!HasIpv6())
	{
		GTEST_SKIP() << "this machine has no IPv6";
	}
	int32 Port = 0;
	for (int32 Round = 0; Round < 3; ++Round)
	{
		FVexelHttpServer Both(Port);
		ASSERT_TRUE(Both.AddRoute(EVexelHttpVerb::Get, TEXT("/a"), [](const FVexelHttpServerRequest&)
							{ return FVexelHttpServerResponse(); })
						.HasValue());
		ASSERT_TRUE(Both.Start().HasValue());
		EXPECT_THAT(FRawClient(Both.GetPort()).Ask(MakeGet("/a")), testing::StartsWith("HTTP/1.1 200"));
		EXPECT_THAT(FRawClient(Both.GetPort(), in6addr_loopback).Ask(MakeGet("/a")), testing::StartsWith("HTTP/1.1 200"));
		Port = Both.GetPort();
		Both.Stop();
		EXPECT_FALSE(FRawClient(Port).bConnected);
		EXPECT_FALSE(FRawClient(Port, in6addr_loopback).bConnected);
	}
}

TEST_F(FHttpServerTest, APortThatSomebodyElseHasAtTheOtherAddressIsTaken)
{
	if (!HasIpv6())
	{
		GTEST_SKIP() << "this machine has no IPv6";
	}
	const int Other = socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0);
	sockaddr_in6 Address = {};
	Address.sin6_family = AF_INET6;
	Address.sin6_addr = in6addr_loopback;
	socklen_t Length = sizeof(Address);
	ASSERT_EQ(bind(Other, reinterpret_cast<sockaddr*>(&Address), Length), 0);
	ASSERT_EQ(listen(Other, 1), 0);
	ASSERT_EQ(getsockname(Other, reinterpret_cast<sockaddr*>(&Address), &Length), 0);
	FVexelHttpServer Half(ntohs(Address.sin6_port));
	EXPECT_TRUE(Half.Start().HasError()) << "a browser might take what is meant for this one there";
	EXPECT_FALSE(FRawClient(ntohs(Address.sin6_port)).bConnected) << "nothing is left listening";
	close(Other);
	EXPECT_TRUE(Half.Start().HasValue());
}

TEST_F(FHttpServerTest, ProgramsOfOtherUsersReachNoHandler)
{
	std::atomic<int32> NumCalls = 0;
	Run([&](const FVexelHttpServerRequest&)
		{ ++NumCalls; return FVexelHttpServerResponse(); });
	std::string Answers[2];
	const auto AskBoth = [&]
	{
		Answers[0] = FRawClient(Server.GetPort()).Ask(MakeGet("/a"));
		Answers[1] = HasIpv6() ? FRawClient(Server.GetPort(), in6addr_loopback).Ask(MakeGet("/a")) : Answers[0];
	};
	if (!RunAsOtherUser(AskBoth))
	{
		GTEST_SKIP() << "only root can be another user for a moment";
	}
	EXPECT_THAT(Answers, testing::Each(testing::StartsWith("HTTP/1.1 403")));
	EXPECT_EQ(NumCalls, 0);
	EXPECT_THAT(FRawClient(Server.GetPort()).Ask(MakeGet("/a")), testing::StartsWith("HTTP/1.1 200"));
	in6_addr Mapped = {};
	ASSERT_EQ(inet_pton(AF_INET6, "::ffff:127.0.0.1", &Mapped), 1);
	EXPECT_THAT(FRawClient(Server.GetPort(), Mapped).Ask(MakeGet("/a")), testing::StartsWith("HTTP/1.1 200"));
}

TEST_F(FHttpServerTest, AConnectionThatItsProgramHasLeftIsNobodys)
{
	Run([](const FVexelHttpServerRequest&)
		{ return FVexelHttpServerResponse(); });
	const int32 Port = Server.GetPort();
	const LoopbackPeer::FEnd Own{"127.0.0.1", Port};
	LoopbackPeer::FEnd Other{"127.0.0.1", 0};
	{
		const FRawClient Client(Port);
		sockaddr_in Address = {};
		socklen_t Length = sizeof(Address);
		ASSERT_EQ(getsockname(Client.Socket, reinterpret_cast<sockaddr*>(&Address), &Length), 0);
		Other.Port = ntohs(Address.sin_port);
		EXPECT_TRUE(LoopbackPeer::IsOfThisUser(Other, Own));
		EXPECT_FALSE(LoopbackPeer::IsOfThisUser({"127.0.0.2", Other.Port}, Own));
		EXPECT_FALSE(LoopbackPeer::IsOfThisUser({"localhost", Other.Port}, Own)) << "a name is no address";
		// The server waits for a request yet, so that only this end of the connection is closed.
		shutdown(Client.Socket, SHUT_WR);
		EXPECT_FALSE(LoopbackPeer::IsOfThisUser(Other, Own));
	}
	EXPECT_FALSE(LoopbackPeer::IsOfThisUser(Other, Own));
}

TEST_F(FHttpServerTest, StopWaitsForTheHandlerThatRuns)
{
	FEventRef Entered;
	FEventRef MayAnswer;
	std::atomic<bool> bAnswered = false;
	Run([&](const FVexelHttpServerRequest&)
		{
			Entered->Trigger();
			MayAnswer->Wait();
			bAnswered = true;
			return FVexelHttpServerResponse(200, TEXT("OK")); });
	const int32 Port = Server.GetPort();
	std::string Answer;
	std::thread Asking([&]
		{ Answer = FRawClient(Port).Ask(MakeGet("/a")); });
	Entered->Wait();
	std::atomic<bool> bAnsweredBefore = false;
	std::thread Stopping([&]
		{ Server.Stop(); bAnsweredBefore = bAnswered.load(); });
	while (FRawClient(Port).bConnected)
	{
		std::this_thread::yield();
	}
	EXPECT_FALSE(bAnswered);
	MayAnswer->Trigger();
	Stopping.join();
	Asking.join();
	EXPECT_TRUE(bAnsweredBefore);
	EXPECT_THAT(Answer, testing::EndsWith("OK"));
}

TEST_F(FHttpServerTest, SilentConnectionsHoldUpNeitherOthersNorTheStop)
{
	Run([](const FVexelHttpServerRequest&)
		{ return FVexelHttpServerResponse(); });
	const FRawClient Silent(Server.GetPort());
	const FRawClient Half(Server.GetPort());
	send(Half.Socket, "GET /a HT", 9, MSG_NOSIGNAL);
	EXPECT_THAT(FRawClient(Server.GetPort()).Ask(MakeGet("/a")), testing::StartsWith("HTTP/1.1 200"));
	// The two never go away by themselves: a stop that waited for them would not return.
	Server.Stop();
	EXPECT_TRUE(Silent.WasClosed());
	EXPECT_TRUE(Half.WasClosed());
}
