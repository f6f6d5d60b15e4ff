#include "AnsweringAddresses.h"
#include "Browser.h"
#include "ClearLine.h"
#include "LoginCommandFixture.h"

#include <arpa/inet.h>
#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <httplib.h>
#include <netinet/in.h>
#include <nlohmann/json.hpp>
#include <regex>
#include <sys/resource.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace
{
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

class LoginCommand : public FLoginCommandTest
{
};

/** The same with a real browser on the desktop, and a login that waits for it. */
class LoginBrowser : public LoginCommand
{
protected:
	virtual void SetUp() override
	{
		if (FBrowser::FindProgram().empty())
		{
			GTEST_SKIP() << "there is no chromium on this machine";
		}
		ASSERT_NO_FATAL_FAILURE(StartService());
		Login = Start("login", true);
		Browser = std::make_unique<FBrowser>();
	}

	std::unique_ptr<FStartedProgram> Login;
	std::unique_ptr<FBrowser> Browser;
};
}

TEST_F(LoginBrowser, ABrowserLogsInAndEveryLaterCommandIsLoggedIn)
{
	Browser->Open(WaitForOpened());
	ASSERT_TRUE(Browser->WaitForTitle("Allow access - Vexel")) << Browser->GetText();
	EXPECT_THAT(Browser->GetText(), HasSubstr("ada@example.org"));
	EXPECT_EQ(Browser->Evaluate("document.styleSheets[0].cssRules.length > 10"), "true") << "the page's policy lets its style through";
	EXPECT_EQ(Browser->Evaluate("(() => { const S = document.createElement('script'); S.text = 'window.Ran = 1'; "
								"document.head.append(S); return window.Ran; })()"),
		"undefined")
		<< "and no script";
	Browser->TakePicture("login-consent.png");
	ASSERT_TRUE(Browser->Click("button.primary"));
	ASSERT_TRUE(Browser->WaitForTitle("Logged in - Vexel")) << Browser->GetAddress() << Browser->GetText();
	EXPECT_THAT(Browser->GetAddress(), MatchesRegex(Url + "/auth/local\\?auth_request_id=[A-Za-z0-9_-]+"))
		<< "neither code nor state stay in the address";
	Browser->TakePicture("login-done.png");

	const FProgramResult LoggedIn = Login->Finish();
	EXPECT_EQ(LoggedIn.Status, 0) << LoggedIn.Errors;
	EXPECT_THAT(LoggedIn.Output, HasSubstr("Ada Lovelace <ada@example.org>"));
	EXPECT_THAT(Run("whoami").Output, HasSubstr("Ada Lovelace"));
	EXPECT_THAT(Run("login").Output, HasSubstr("Ada Lovelace")) << "who is logged in needs no browser";
	const FProgramResult Chat = Run("chat", {"--project", Project.GetPath(), "--message", "What does function CanOpen of BP_Door do?"});
	EXPECT_EQ(Chat.Status, 0) << Chat.Errors;
	EXPECT_THAT(Chat.Output, HasSubstr("CanOpen"));

	const FProgramResult Logout = Run("logout");
	EXPECT_EQ(Logout.Status, 0) << Logout.Errors;
	EXPECT_EQ(Logout.Output, "Logged out at " + Url + ".\n");
	EXPECT_EQ(Run("logout").Output, "Nobody is logged in at " + Url + ".\n");
	const FProgramResult Nobody = Run("chat", {"--project", Project.GetPath(), "--message", "Hello?"});
	ExpectOneClearLine(Nobody, 1, "there is no stored login for it; log in with: vexel login --service " + Url);
}

TEST_F(LoginBrowser, ARefusalInTheBrowserEndsTheLogin)
{
	Browser->Open(WaitForOpened());
	ASSERT_TRUE(Browser->WaitForTitle("Allow access - Vexel")) << Browser->GetText();
	ASSERT_TRUE(Browser->Click("button:not(.primary)"));
	ASSERT_TRUE(Browser->WaitForTitle("Access denied - Vexel")) << Browser->GetAddress() << Browser->GetText();
	Browser->TakePicture("login-denied.png");
	const FProgramResult Refused = Login->Finish();
	EXPECT_EQ(Refused.Status, 1);
	EXPECT_THAT(Refused.Errors, HasSubstr("Polling error"));
}

TEST_F(LoginBrowser, AHostilePageNeitherDecidesNorAnswers)
{
	const std::string Start = WaitForOpened();
	const std::string Address = FollowStart(Start);
	std::smatch Port;
	ASSERT_TRUE(std::regex_search(Address, Port, std::regex("localhost%3A([0-9]+)")));
	httplib::Server Hostile;
	const std::string Page = "<title>hostile</title><iframe src=\"" + Address + "\"></iframe><form id=f method=post action=\"" + Url +
		"/oauth/decision\"><input name=auth_request_id value=guess><input name=form_token value=guess><input name=decision value=approve></form>"
		"<script>const Tries = []; for (const Where of ['code=c', 'error=access_denied']) Tries.push(fetch('http://localhost:" +
		Port[1].str() + "/auth-callback?auth_request_id=r&state=AAAAAAAAAAAAAAAAAAAAAA&' + Where, {mode: 'no-cors'}).catch(() => 0)); "
						"Tries.push(fetch('" +
		Start.substr(0, Start.rfind('/')) + "/AAAAAAAAAAAAAAAAAAAAAA', {mode: 'no-cors'}).catch(() => 0)); "
											"Promise.all(Tries).then(() => { document.title = 'tried'; });</script>";
	Hostile.Get("/", [&](const httplib::Request&, httplib::Response& Response)
		{ Response.set_content(Page, "text/html"); });
	const int HostilePort = Hostile.bind_to_any_port("127.0.0.1");
	std::thread Serving([&]
		{ Hostile.listen_after_bind(); });
	Browser->Open("http://127.0.0.1:" + std::to_string(HostilePort) + "/");
	EXPECT_TRUE(Browser->WaitForTitle("tried"));
	EXPECT_EQ(Browser->Evaluate("(() => { try { return frames[0].document.title; } catch (E) { return E.name; } })()"), "SecurityError");
	Browser->Evaluate("document.getElementById('f').submit()");
	EXPECT_TRUE(Browser->WaitForTitle("Login refused - Vexel")) << Browser->GetText();

	// The login is as open as before.
	Browser->Open(Address);
	ASSERT_TRUE(Browser->WaitForTitle("Allow access - Vexel")) << Browser->GetText();
	ASSERT_TRUE(Browser->Click("button.primary"));
	EXPECT_TRUE(Browser->WaitForTitle("Logged in - Vexel"));
	EXPECT_EQ(Login->Finish().Status, 0);
	Hostile.stop();
	Serving.join();
}

TEST_F(LoginCommand, WithoutADesktopTheAddressIsPrintedAndPollingAloneBringsTheCode)
{
	ASSERT_NO_FATAL_FAILURE(StartService());
	const std::unique_ptr<FStartedProgram> Login = Start("login", false);
	const std::string Address = ReadAddress(*Login);
	ASSERT_THAT(Address, HasSubstr("redirect_uri=urn%3Avexel%3Aoauth%3Anoredirect"));
	EXPECT_THAT(DecideAt(Address, "approve"), HasSubstr("/auth/local?auth_request_id="));
	const FProgramResult LoggedIn = Login->Finish();
	EXPECT_EQ(LoggedIn.Status, 0) << LoggedIn.Errors;
	EXPECT_THAT(LoggedIn.Output, HasSubstr("To log in, open this address in a browser, on any machine:"));
	EXPECT_THAT(LoggedIn.Output, HasSubstr("Logged in at " + Url + " as\nAda Lovelace"));
	EXPECT_FALSE(std::filesystem::exists(OpenedFile)) << "there is no browser to open";
	const nlohmann::json User = nlohmann::json::parse(Run("whoami", {"--json"}).Output, nullptr, false);
	EXPECT_EQ(User.value("email", ""), "ada@example.org");
}

TEST_F(LoginCommand, ATakenPortLeavesPolling)
{
	ASSERT_NO_FATAL_FAILURE(StartService());
	httplib::Server Other;
	Other.set_socket_options([](socket_t) {});
	CallbackPort = Other.bind_to_any_port("127.0.0.1");
	std::thread Serving([&]
		{ Other.listen_after_bind(); });
	const std::unique_ptr<FStartedProgram> Login = Start("login", true);
	const std::string Address = FollowStart(WaitForOpened());
	EXPECT_THAT(Address, HasSubstr("redirect_uri=urn%3Avexel%3Aoauth%3Anoredirect"));
	DecideAt(Address, "approve");
	EXPECT_EQ(Login->Finish().Status, 0);
	Other.stop();
	Serving.join();
}

TEST_F(LoginCommand, TheDesktopGetsAnAddressWithoutSecretsThatWorksOnce)
{
	ASSERT_NO_FATAL_FAILURE(StartService());
	const std::unique_ptr<FStartedProgram> Login = Start("login", true);
	const std::string Opened = WaitForOpened();
	EXPECT_THAT(Opened, MatchesRegex("http://127\\.0\\.0\\.1:[0-9]+/auth-start/[A-Za-z0-9_-]{22}"));
	const std::string Address = FollowStart(Opened);
	EXPECT_EQ(Address, ReadAddress(*Login)) << "the terminal alone shows the whole";
	EXPECT_EQ(FollowStart(Opened), "");
	const std::string Callback = DecideAt(Address, "approve");
	const std::string Origin = Callback.substr(0, Callback.find("/auth-callback"));
	const httplib::Result Answer = httplib::Client(Origin).Get(Callback.substr(Origin.size()));
	ASSERT_TRUE(Answer);
	EXPECT_EQ(Answer->status, 302);
	EXPECT_EQ(Login->Finish().Status, 0);
	EXPECT_FALSE(httplib::Client(Opened.substr(0, Opened.find("/auth-start"))).Get("/")) << "the page is gone with the login";
}

TEST_F(LoginCommand, NothingListensButAtTheLoopbackInterface)
{
	ASSERT_NO_FATAL_FAILURE(StartService());
	const std::unique_ptr<FStartedProgram> Login = Start("login", true);
	const std::string Opened = WaitForOpened();
	std::smatch Callback;
	const std::string Address = FollowStart(Opened);
	ASSERT_TRUE(std::regex_search(Address, Callback, std::regex("localhost%3A([0-9]+)")));
	for (const std::string& Port : {Url.substr(Url.rfind(':') + 1), Opened.substr(Opened.rfind(':') + 1), Callback[1].str()})
	{
		const std::set<std::string> Answering = FindAnsweringAddresses(std::stoi(Port));
		EXPECT_THAT(Answering, testing::Contains("127.0.0.1"));
		EXPECT_THAT(Answering, testing::IsSubsetOf({"127.0.0.1", "::1"}));
	}
}

TEST_F(LoginCommand, ProgramsThatStartAtOnceShareOneLogin)
{
	// Each refresh takes a while, in which another program that did not wait for its turn would send the same token.
	ASSERT_NO_FATAL_FAILURE(StartService({{"delay_milliseconds", 100}}));
	const std::unique_ptr<FStartedProgram> Login = Start("login", false);
	DecideAt(ReadAddress(*Login), "approve");
	ASSERT_EQ(Login->Finish().Status, 0);
	for (int Round = 0; Round < 2; ++Round)
	{
		std::vector<std::unique_ptr<FStartedProgram>> Programs;
		for (int Index = 0; Index < 5; ++Index)
		{
			Programs.push_back(Start("whoami", false));
		}
		for (const std::unique_ptr<FStartedProgram>& Program : Programs)
		{
			const FProgramResult Result = Program->Finish();
			EXPECT_EQ(Result.Status, 0) << Result.Errors;
			EXPECT_THAT(Result.Output, HasSubstr("Ada Lovelace"));
		}
	}
}

TEST_F(LoginCommand, ProgramsWithSecretsInMemoryLeaveNoCoreDump)
{
	rlimit Own = {};
	ASSERT_EQ(getrlimit(RLIMIT_CORE, &Own), 0);
	if (Own.rlim_max <= 1)
	{
		GTEST_SKIP() << "no program dumps here";
	}
	ASSERT_NO_FATAL_FAILURE(StartService());
	// Lets the program write its first line, ends it as a crash would, and answers its limit, and whether it left a dump.
	const auto Crash = [&](const std::string& Name, const std::vector<std::string>& Words)
	{
		const std::filesystem::path Directory = Project.GetPath() / Name;
		std::filesystem::create_directories(Directory);
		std::vector<std::string> All = {"/bin/bash", "-c", "cd \"$0\" && ulimit -S -c hard && exec \"$@\"", Directory};
		All.insert(All.end(), Words.begin(), Words.end());
		FStartedProgram Program(All, MakeSurroundings(false));
		Program.WaitForOutput("\n");
		std::ifstream Limits("/proc/" + std::to_string(Program.GetProcessId()) + "/limits");
		const std::string Text(std::istreambuf_iterator<char>(Limits), {});
		std::smatch Limit;
		EXPECT_TRUE(std::regex_search(Text, Limit, std::regex("Max core file size +(\\S+)"))) << Text;
		Program.Send(SIGABRT);
		EXPECT_EQ(Program.Finish().Status, 128 + SIGABRT) << Name;
		return Limit[1].str() + (std::filesystem::is_empty(Directory) ? "" : ", dumped");
	};
	EXPECT_EQ(Crash("vexel", {VEXEL_PROGRAM, "login", "--service", Url}), "1");
	EXPECT_EQ(Crash("service", {VEXEL_SERVICE_PROGRAM}), "1");
	EXPECT_THAT(Crash("ordinary", {"/bin/sh", "-c", "echo; exec sleep 60"}), Not(testing::StrEq("1"))) << "or this shows nothing";
}

TEST_F(LoginCommand, CtrlCCancelsTheLogin)
{
	ASSERT_NO_FATAL_FAILURE(StartService());
	const std::unique_ptr<FStartedProgram> Login = Start("login", false);
	const std::string Address = ReadAddress(*Login);
	Login->Send(SIGINT);
	ExpectOneClearLine(Login->Finish(), 1, "the login was cancelled");
	DecideAt(Address, "approve");
	EXPECT_EQ(Run("whoami").Status, 1);
}

TEST_F(LoginCommand, AServiceThatRefusesOrIsGoneIsSaidInOneLine)
{
	ASSERT_NO_FATAL_FAILURE(StartService({{"decision", "deny"}}));
	{
		const std::unique_ptr<FStartedProgram> Login = Start("login", false);
		httplib::Client(Url).Get(ReadAddress(*Login).substr(Url.size()));
		ExpectOneClearLine(Login->Finish(), 1, "not logged in at " + Url + ": Polling error");
	}
	Service.reset();
	ExpectOneClearLine(Run("login"), 1, "Cannot start login without valid client ID");
	ExpectOneClearLine(Run("whoami"), 1, "there is no stored login for it");
}

TEST_F(LoginCommand, AnUnreachableServiceDoesNotKeepTheLoginHere)
{
	ASSERT_NO_FATAL_FAILURE(StartService({{"decision", "approve"}}));
	const std::unique_ptr<FStartedProgram> Login = Start("login", false);
	httplib::Client(Url).Get(ReadAddress(*Login).substr(Url.size()));
	ASSERT_EQ(Login->Finish().Status, 0);
	Service.reset();
	ExpectOneClearLine(Run("logout"), 1, "is forgotten here, but the service did not revoke it");
	EXPECT_EQ(Run("logout").Output, "Nobody is logged in at " + Url + ".\n");
}

TEST_F(LoginCommand, NoSecretIsInTheLogTheProjectTheHistoryOrTheProcessList)
{
	ASSERT_NO_FATAL_FAILURE(StartService());
	const std::unique_ptr<FStartedProgram> Login = Start("login", false, {"--verbose"});
	const std::string Address = ReadAddress(*Login);
	std::smatch State;
	ASSERT_TRUE(std::regex_search(Address, State, std::regex("[?&]state=([^&]+)")));
	std::smatch Device;
	ASSERT_TRUE(std::regex_search(Address, Device, std::regex("[?&]device_id=([^&]+)")));
	for (const char* const File : {"cmdline", "environ"})
	{
		std::ifstream Stream("/proc/" + std::to_string(Login->GetProcessId()) + "/" + File);
		const std::string Text(std::istreambuf_iterator<char>(Stream), {});
		EXPECT_NE(Text, "");
		EXPECT_THAT(Text, Not(HasSubstr(State[1].str())));
	}
	DecideAt(Address, "approve");
	const FProgramResult Done = Login->Finish();
	ASSERT_EQ(Done.Status, 0);
	EXPECT_THAT(Done.Errors, HasSubstr("OAuth token exchange successful"));
	for (const std::string& Secret : {State[1].str(), Device[1].str(), std::string("eyJ")})
	{
		EXPECT_THAT(Done.Errors, Not(HasSubstr(Secret)));
		EXPECT_THAT(Done.Output.substr(Done.Output.find("Ctrl-C cancels.")), Not(HasSubstr(Secret)));
	}
	const FProgramResult Chat = Run("chat", {"--project", Project.GetPath(), "--message", "What does function CanOpen of BP_Door do?"});
	ASSERT_EQ(Chat.Status, 0) << Chat.Errors;
	size_t NumFiles = 0;
	bool bHistory = false;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Project.GetPath()))
	{
		if (!Entry.is_regular_file())
		{
			continue;
		}
		std::ifstream Stream(Entry.path(), std::ios::binary);
		const std::string Text(std::istreambuf_iterator<char>(Stream), {});
		bHistory = bHistory || Text.find("What does function CanOpen") != std::string::npos;
		for (const std::string& Secret : {State[1].str(), Device[1].str(), std::string("Bearer"), std::string("eyJhbGci")})
		{
			EXPECT_THAT(Text, Not(HasSubstr(Secret))) << Entry.path();
		}
		if (Entry.path().string().starts_with(Data.string()))
		{
			EXPECT_EQ(Entry.status().permissions() & ~std::filesystem::perms::owner_all, std::filesystem::perms::none) << Entry.path();
			++NumFiles;
		}
	}
	EXPECT_GT(NumFiles, 0u);
	EXPECT_TRUE(bHistory) << "the conversation is among the files";
}

TEST(AccountCommand, TheLocalServiceNeedsNoLogin)
{
	const FProgramResult Whoami = RunVexel({"whoami"});
	EXPECT_EQ(Whoami.Status, 0) << Whoami.Errors;
	EXPECT_THAT(Whoami.Output, HasSubstr("Local User"));
	for (const char* const Command : {"login", "logout"})
	{
		ExpectOneClearLine(RunVexel({Command}), 2, "at which service?");
		ExpectOneClearLine(RunVexel({Command, "--service", "http://assistant.example"}), 2, "must be one of https");
	}
}
