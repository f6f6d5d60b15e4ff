#include "Companion.h"
#include "HttpFixture.h"
#include "TestCertificate.h"
#include "VexelInternalConfig.h"
#include "VexelTask.h"

#include <fstream>
#include <future>
#include <httplib.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>

namespace
{
namespace fs = std::filesystem;

FString ToPath(const fs::path& Path)
{
	return FString(UTF8_TO_TCHAR(Path.c_str()));
}

/** A server that speaks TLS with a certificate, and answers with the port that the request came from; "/redirect" with a redirect. */
class FTlsServer
{
public:
	explicit FTlsServer(const FTestCertificate& Certificate, const std::string& RedirectTarget = "/")
		: Server(Certificate.GetCertificatePath().c_str(), Certificate.GetKeyPath().c_str())
	{
		Server.Get("/redirect", [this, RedirectTarget](const httplib::Request&, httplib::Response& Response)
			{
				++NumAnswered;
				Response.set_redirect(RedirectTarget); });
		Server.Get(".*", [this](const httplib::Request& Request, httplib::Response& Response)
			{
				++NumAnswered;
				Response.set_content(std::to_string(Request.remote_port), "text/plain"); });
		Port = Server.bind_to_any_port("127.0.0.1");
		Thread = std::thread([this]
			{ Server.listen_after_bind(); });
		while (!Server.is_running())
		{
			std::this_thread::yield();
		}
	}
	~FTlsServer()
	{
		// The server's stop waits for connections that are kept open for later requests.
		FVexelHttpManager::Shutdown();
		Server.stop();
		Thread.join();
	}

	FString GetUrl(const TCHAR* Host = TEXT("127.0.0.1")) const { return FString::Printf(TEXT("https://%s:%d"), Host, Port); }
	int32 GetNumAnswered() const { return NumAnswered; }

private:
	httplib::SSLServer Server;
	std::thread Thread;
	int32 Port = 0;
	std::atomic<int32> NumAnswered = 0;
};

class FHttpTlsTest : public FTaskTest
{
protected:
	virtual ~FHttpTlsTest() override
	{
		GetBundle().ClearOverride();
		FVexelHttpManager::Shutdown();
	}

	static FConfigValueBase& GetBundle() { return *FVexelInternalConfig::Find(TEXT("CaBundleFile")); }
	static void Trust(const FTestCertificate& Certificate) { GetBundle().SetOverride(ToPath(Certificate.GetCertificatePath())); }

	static FResponse Get(const FString& BaseUrl, const TCHAR* Path = TEXT("/a.txt"))
	{
		return Await(FVexelHttp(FVexelHttpClientConfig(BaseUrl)).Request(EVexelHttpVerb::Get, Path).SendAndAwait());
	}

	static void ExpectRefused(const FResponse& Response, const std::string& Reason)
	{
		ExpectTransportError(Response);
		ASSERT_TRUE(Response.HasError());
		EXPECT_THAT(ToUtf8(Response.GetError().GetMessage()), HasSubstr(Reason));
	}
};

/** An HTTP/2 server of another make, with a directory of files. It speaks nothing older. */
class FHttp2Server
{
public:
	explicit FHttp2Server(const FTestCertificate& Certificate)
	{
		std::string Pattern = (fs::temp_directory_path() / "vexel-http2-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
		Port = FindClosedPort();
		Program.emplace(std::vector<std::string>{"nghttpd", "-a", "127.0.0.1", "-d", Directory.string(), "--echo-upload", std::to_string(Port),
							Certificate.GetKeyPath().string(), Certificate.GetCertificatePath().string()},
			"", false);
	}
	~FHttp2Server()
	{
		Program.reset();
		std::error_code Ignored;
		fs::remove_all(Directory, Ignored);
	}

	void AddFile(const std::string& Name, const std::string& Bytes) const { std::ofstream(Directory / Name, std::ios::binary) << Bytes; }
	FString GetUrl() const { return FString::Printf(TEXT("https://127.0.0.1:%d"), Port); }

	/** False when it does not listen within ten seconds. */
	bool WaitUntilItListens() const
	{
		const auto Deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
		while (std::chrono::steady_clock::now() < Deadline)
		{
			const int Socket = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
			sockaddr_in Address = {};
			Address.sin_family = AF_INET;
			Address.sin_port = htons(uint16(Port));
			Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
			const bool bConnected = connect(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address)) == 0;
			close(Socket);
			if (bConnected)
			{
				return true;
			}
			std::this_thread::sleep_for(std::chrono::milliseconds(10));
		}
		return false;
	}

private:
	fs::path Directory;
	int32 Port = 0;
	std::optional<FCompanion> Program;
};
}

TEST_F(FHttpTlsTest, ACertificateThatNobodyVouchesForIsRefused)
{
	const FTestCertificate Certificate("IP:127.0.0.1");
	const FTlsServer Server(Certificate);
	ExpectRefused(Get(Server.GetUrl()), "self-signed certificate");
	EXPECT_EQ(Server.GetNumAnswered(), 0) << "nothing was sent";
}

TEST_F(FHttpTlsTest, ACertificateOfATrustedAuthorityIsTakenAndItsConnectionUsedAgain)
{
	const FTestCertificate Certificate("IP:127.0.0.1");
	const FTlsServer Server(Certificate);
	Trust(Certificate);
	const FResponse First = Get(Server.GetUrl());
	ASSERT_TRUE(First.HasValue()) << ToUtf8(First.GetError().ToString());
	const FResponse Second = Get(Server.GetUrl());
	ASSERT_TRUE(Second.HasValue());
	EXPECT_EQ(ToUtf8(First.GetValue()->GetContentString()), ToUtf8(Second.GetValue()->GetContentString())) << "the client's port";

	// A connection that was made while the authority was trusted serves nobody who does not trust it.
	GetBundle().ClearOverride();
	ExpectRefused(Get(Server.GetUrl()), "self-signed certificate");
}

TEST_F(FHttpTlsTest, ACertificateForAnotherNameOrOfThePastIsRefused)
{
	const FTestCertificate Other("DNS:other.example");
	const FTlsServer OtherServer(Other);
	Trust(Other);
	ExpectRefused(Get(OtherServer.GetUrl()), "127.0.0.1");

	const FTestCertificate Expired("IP:127.0.0.1", -60);
	const FTlsServer ExpiredServer(Expired);
	Trust(Expired);
	ExpectRefused(Get(ExpiredServer.GetUrl()), "expired");
	EXPECT_EQ(OtherServer.GetNumAnswered() + ExpiredServer.GetNumAnswered(), 0);
}

TEST_F(FHttpTlsTest, ABundleThatCannotBeReadTrustsNobody)
{
	const FTestCertificate Certificate("IP:127.0.0.1");
	const FTlsServer Server(Certificate);
	GetBundle().SetOverride(TEXT("/nonexistent/bundle.pem"));
	ExpectTransportError(Get(Server.GetUrl()));
	// A key is no certificate.
	GetBundle().SetOverride(ToPath(Certificate.GetKeyPath()));
	ExpectTransportError(Get(Server.GetUrl()));
	EXPECT_EQ(Server.GetNumAnswered(), 0);
}

TEST_F(FHttpTlsTest, ARedirectNeverLeavesTlsForAnOpenConnection)
{
	const FTestCertificate Certificate("IP:127.0.0.1");
	const FScriptedHttpServer Open;
	const FTlsServer Server(Certificate, ToUtf8(Open.GetUrl()) + "/open");
	Trust(Certificate);
	ExpectTransportError(Get(Server.GetUrl(), TEXT("/redirect")));
	EXPECT_EQ(Server.GetNumAnswered(), 1);
	EXPECT_TRUE(Open.GetRequests().empty());
}

TEST_F(FHttpTlsTest, Http2IsSpokenWhereItIsOffered)
{
	if (!IsInstalled("nghttpd"))
	{
		GTEST_SKIP() << "the package nghttp2-server is needed for this test";
	}
	const FTestCertificate Certificate("IP:127.0.0.1");
	const FHttp2Server Server(Certificate);
	std::string Large(3'000'000, 'x');
	for (size_t Index = 0; Index < Large.size(); Index += 997)
	{
		Large[Index] = char('a' + Index % 26);
	}
	Server.AddFile("a.txt", "over two");
	Server.AddFile("large.bin", Large);
	ASSERT_TRUE(Server.WaitUntilItListens());
	Trust(Certificate);
	const FResponse First = Get(Server.GetUrl());
	ASSERT_TRUE(First.HasValue()) << ToUtf8(First.GetError().ToString());
	EXPECT_EQ(ToUtf8(First.GetValue()->GetContentString()), "over two");

	// Many at once share one connection.
	TArray<TVexelTaskResult<TSharedRef<FVexelHttpResponse>>> Results;
	FVexelHttp Client{FVexelHttpClientConfig(Server.GetUrl())};
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Results.Add(Client.Request(EVexelHttpVerb::Get, Index % 10 == 0 ? TEXT("/large.bin") : TEXT("/a.txt")).SendAndAwait());
	}
	const auto All = Await(VexelTaskCollectAll(Results));
	ASSERT_TRUE(All.HasValue());
	for (int32 Index = 0; Index < 50; ++Index)
	{
		const FResponse& Response = All.GetValue()[Index];
		ASSERT_TRUE(Response.HasValue()) << ToUtf8(Response.GetError().ToString());
		EXPECT_EQ(Response.GetValue()->GetContent().Num(), Index % 10 == 0 ? int32(Large.size()) : 8);
	}

	const FVexelHttpTextPayload Payload{TEXT("text/plain"), TEXT("there and back")};
	const FResponse Posted = Await(Client.Request(EVexelHttpVerb::Put, TEXT("/echo")).WithPayload(Payload).SendAndAwait());
	ASSERT_TRUE(Posted.HasValue()) << ToUtf8(Posted.GetError().ToString());
	EXPECT_EQ(ToUtf8(Posted.GetValue()->GetContentString()), "there and back");
	EXPECT_EQ(ToUtf8(Get(Server.GetUrl(), TEXT("/none")).GetError().GetKind().GetName()), "FVexelError_HttpStatusClientError");
}

TEST_F(FHttpTlsTest, AStreamOfHttp2IsCancelledAlone)
{
	if (!IsInstalled("nghttpd"))
	{
		GTEST_SKIP() << "the package nghttp2-server is needed for this test";
	}
	const FTestCertificate Certificate("IP:127.0.0.1");
	const FHttp2Server Server(Certificate);
	Server.AddFile("a.txt", "small");
	Server.AddFile("large.bin", std::string(64'000'000, 'x'));
	ASSERT_TRUE(Server.WaitUntilItListens());
	Trust(Certificate);
	FVexelHttp Client{FVexelHttpClientConfig(Server.GetUrl())};
	// Cancelled from within its own progress, so that it is surely under way.
	std::promise<FVexelHttpRequest*> ToCancel;
	std::shared_future<FVexelHttpRequest*> Cancelled = ToCancel.get_future().share();
	const TSharedRef<FVexelHttpRequest> Large = Client.Request(EVexelHttpVerb::Get, TEXT("/large.bin"))
													.WithProgress([Cancelled](TConstArrayView<uint8>)
														{ Cancelled.get()->Cancel(); })
													.Send();
	const TVexelTaskResult<TSharedRef<FVexelHttpResponse>> Small = Client.Request(EVexelHttpVerb::Get, TEXT("/a.txt")).SendAndAwait();
	ToCancel.set_value(&*Large);
	EXPECT_TRUE(Await(Large->Await()).GetError().IsA<FVexelError_HttpCancelled>());
	const FResponse Answer = Await(Small);
	ASSERT_TRUE(Answer.HasValue()) << ToUtf8(Answer.GetError().ToString());
	EXPECT_EQ(ToUtf8(Answer.GetValue()->GetContentString()), "small");
}
