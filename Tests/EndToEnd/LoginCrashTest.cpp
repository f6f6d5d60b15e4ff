#include "LoginCommandFixture.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>

namespace
{
using testing::HasSubstr;

/** Stands between the program and its service, and has a moment for the test once the service has given tokens. */
class FTokenProxy
{
public:
	explicit FTokenProxy(std::string InService)
		: Service(std::move(InService))
	{
		const auto Handler = [this](const httplib::Request& Request, httplib::Response& Response)
		{ Forward(Request, Response); };
		Server.Get(".*", Handler);
		Server.Post(".*", Handler);
		Port = Server.bind_to_any_port("127.0.0.1");
		Serving = std::thread([this]
			{ Server.listen_after_bind(); });
		// A stop that came before would be lost.
		while (!Server.is_running())
		{
			std::this_thread::yield();
		}
	}

	~FTokenProxy()
	{
		Server.stop();
		Serving.join();
	}
	UE_NONCOPYABLE(FTokenProxy)

	std::string GetUrl() const { return "http://127.0.0.1:" + std::to_string(Port); }
	int GetNumTokenAnswers() const { return NumTokenAnswers; }

	/** Called when the service has given tokens, before the program has them. While no program runs. */
	std::function<void()> OnTokens;

private:
	void Forward(const httplib::Request& Request, httplib::Response& Response)
	{
		httplib::Client Client(Service);
		httplib::Headers Headers;
		for (const char* const Name : {"Authorization", "Cookie"})
		{
			if (Request.has_header(Name))
			{
				Headers.emplace(Name, Request.get_header_value(Name));
			}
		}
		const httplib::Result Answer = Request.method == "GET"
			? Client.Get(Request.target, Headers)
			: Client.Post(Request.target, Headers, Request.body, Request.get_header_value("Content-Type"));
		if (!Answer)
		{
			Response.status = 502;
			return;
		}
		Response.status = Answer->status;
		Response.set_content(Answer->body, Answer->get_header_value("Content-Type"));
		if (Request.path == "/oauth/token" && Answer->status == 200)
		{
			++NumTokenAnswers;
			if (OnTokens)
			{
				OnTokens();
			}
		}
	}

	const std::string Service;
	httplib::Server Server;
	int Port = -1;
	std::atomic<int> NumTokenAnswers = 0;
	std::thread Serving;
};

/** A user who is logged in, and whose next program dies at a bad moment. */
class LoginCrash : public FLoginCommandTest
{
protected:
	void LogIn(int GraceSeconds)
	{
		ASSERT_NO_FATAL_FAILURE(StartService({{"decision", "approve"}}, {{"refresh_grace_seconds", GraceSeconds}}));
		Proxy = std::make_unique<FTokenProxy>(Url);
		Url = Proxy->GetUrl();
		const std::unique_ptr<FStartedProgram> Login = Start("login", false);
		httplib::Client(Url).Get(ReadAddress(*Login).substr(Url.size()));
		const FProgramResult LoggedIn = Login->Finish();
		ASSERT_EQ(LoggedIn.Status, 0) << LoggedIn.Errors;
	}

	/** With what it logs on its standard output. */
	std::unique_ptr<FStartedProgram> StartWhoami()
	{
		Victim = 0;
		auto Program = std::make_unique<FStartedProgram>(
			std::vector<std::string>{"/bin/sh", "-c", "exec \"$@\" 2>&1", "sh", VEXEL_PROGRAM, "whoami", "--verbose", "--service", Url},
			MakeSurroundings(false));
		Victim = Program->GetProcessId();
		Victim.notify_all();
		return Program;
	}

	/** Kills the program that runs, in the proxy's moment. */
	void KillAtTokens()
	{
		Proxy->OnTokens = [this]
		{
			Victim.wait(0);
			kill(Victim, SIGKILL);
		};
		EXPECT_EQ(StartWhoami()->Finish().Status, 128 + SIGKILL);
		Proxy->OnTokens = nullptr;
	}

	std::unique_ptr<FTokenProxy> Proxy;
	std::atomic<int> Victim = 0;
};
}

TEST_F(LoginCrash, AProgramThatIsKilledBeforeItHasTheNextTokenDoesNotLoseTheLogin)
{
	ASSERT_NO_FATAL_FAILURE(LogIn(120));
	for (int Round = 1; Round <= 2; ++Round)
	{
		const int NumBefore = Proxy->GetNumTokenAnswers();
		ASSERT_NO_FATAL_FAILURE(KillAtTokens());
		ASSERT_EQ(Proxy->GetNumTokenAnswers(), NumBefore + 1) << "the service has replaced the token";
		const FProgramResult Next = Run("whoami");
		EXPECT_EQ(Next.Status, 0) << Next.Errors;
		EXPECT_THAT(Next.Output, HasSubstr("Ada Lovelace"));
	}
	EXPECT_EQ(Run("logout").Status, 0);
}

TEST_F(LoginCrash, AProgramThatIsKilledBeforeItHasStoredTheNextTokenDoesNotLoseTheLogin)
{
	ASSERT_NO_FATAL_FAILURE(LogIn(120));
	// Another process that has the store keeps the program where it is about to store the token.
	int Store = -1;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Data))
	{
		if (Entry.path().filename() == "secrets.lock")
		{
			Store = open(Entry.path().c_str(), O_RDWR | O_CLOEXEC);
		}
	}
	ASSERT_GE(Store, 0);
	Proxy->OnTokens = [Store]
	{ flock(Store, LOCK_EX); };
	const std::unique_ptr<FStartedProgram> Whoami = StartWhoami();
	ASSERT_THAT(Whoami->WaitForOutput("OAuth token refresh successful"), HasSubstr("OAuth token refresh successful"));
	Whoami->Send(SIGKILL);
	EXPECT_EQ(Whoami->Finish().Status, 128 + SIGKILL);
	Proxy->OnTokens = nullptr;
	close(Store);
	const FProgramResult Next = Run("whoami");
	EXPECT_EQ(Next.Status, 0) << Next.Errors;
	EXPECT_THAT(Next.Output, HasSubstr("Ada Lovelace"));
}

TEST_F(LoginCrash, AServiceWithoutGraceEndsTheLoginOfAProgramThatWasKilled)
{
	ASSERT_NO_FATAL_FAILURE(LogIn(0));
	ASSERT_NO_FATAL_FAILURE(KillAtTokens());
	EXPECT_EQ(Run("whoami").Status, 1) << "or the other tests show nothing";
}
