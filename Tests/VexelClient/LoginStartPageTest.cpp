#include "LoginFixture.h"
#include "OtherUser.h"
#include "RawHttpClient.h"
#include "VexelHttpServer.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <regex>
#include <sys/stat.h>
#include <thread>

namespace
{
namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

std::string ReadFile(const fs::path& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(Stream), {});
}

/** Logins that the desktop's program for addresses is started for: one of the test's, which stays until it is let go. */
class LoginStartPage : public FLoginTest
{
protected:
	virtual void SetUp() override
	{
		FLoginTest::SetUp();
		std::string Pattern = (fs::temp_directory_path() / "vexel-opener-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
		ASSERT_EQ(mkfifo((Directory / "go").c_str(), 0600), 0);
		const std::string Opened = "\"" + (Directory / "opened").string() + "\"";
		std::ofstream(Directory / "xdg-open") << "#!/bin/sh\nprintf '%s' \"$1\" > " << Opened << ".new\nmv " << Opened << ".new " << Opened
											  << "\nread Line < \"" << (Directory / "go").string() << "\"\n";
		fs::permissions(Directory / "xdg-open", fs::perms::owner_all);
		OldPath = std::getenv("PATH");
		setenv("PATH", (Directory.string() + ":" + OldPath).c_str(), 1);
		FVexelAuth::SetOpenAddress(FVexelAuth::FOpenAddress());
	}

	virtual void TearDown() override
	{
		LetOpenerGo();
		setenv("PATH", OldPath.c_str(), 1);
		FLoginTest::TearDown();
		std::error_code Ignored;
		fs::remove_all(Directory, Ignored);
	}

	TSharedRef<FVexelAuthLoginState> Launch()
	{
		const TVexelExpected<TSharedRef<FVexelAuthLoginState>> Login = FVexelAuth::StartLogin();
		EXPECT_TRUE(PumpUntil([this]
			{ return fs::exists(Directory / "opened"); }))
			<< Log.ToText();
		StartUrl = ReadFile(Directory / "opened");
		return Login.GetValue();
	}

	/** The whole answer of the start page, or of another path where it is. */
	std::string Visit(const std::string& Path = "") const
	{
		const size_t PortBegin = StartUrl.rfind(':') + 1;
		const size_t PathBegin = StartUrl.find('/', PortBegin);
		const FRawClient Browser(std::stoi(StartUrl.substr(PortBegin)));
		const std::string Target = Path.empty() ? StartUrl.substr(PathBegin) : Path;
		return Browser.bConnected ? Browser.Ask("GET " + Target + " HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n\r\n") : "";
	}

	/** Takes the login's address from the start page's answer, as a browser would. */
	void Follow(const std::string& Answer)
	{
		std::smatch Location;
		ASSERT_TRUE(std::regex_search(Answer, Location, std::regex("\r\nLocation: ([^\r]*)\r\n"))) << Answer;
		SetOpenedAddress(Location[1]);
	}

	void LetOpenerGo() const
	{
		const int Gate = open((Directory / "go").c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
		if (Gate >= 0)
		{
			close(Gate);
		}
	}

	/** What every user of the machine can read of every process. */
	static std::string ReadCommandLines()
	{
		std::string Text;
		for (const fs::directory_entry& Process : fs::directory_iterator("/proc"))
		{
			if (std::isdigit(static_cast<unsigned char>(Process.path().filename().string()[0])))
			{
				Text += ReadFile(Process.path() / "cmdline") + '\n';
			}
		}
		return Text;
	}

	fs::path Directory;
	std::string OldPath;
	std::string StartUrl;
};
}

TEST_F(LoginStartPage, WhatOpensTheBrowserHasNoSecretOnItsCommandLine)
{
	Launch();
	const std::string CommandLines = ReadCommandLines();
	ASSERT_THAT(CommandLines, HasSubstr("xdg-open" + std::string(1, '\0') + StartUrl)) << "the program is still there";
	EXPECT_THAT(StartUrl, MatchesRegex("http://127\\.0\\.0\\.1:[0-9]+/auth-start/[A-Za-z0-9_-]{22}"));
	const std::string Answer = Visit();
	EXPECT_THAT(Answer, StartsWith("HTTP/1.1 302"));
	EXPECT_THAT(Answer, HasSubstr("\r\nReferrer-Policy: no-referrer\r\n"));
	EXPECT_THAT(Answer, HasSubstr("\r\nCache-Control: no-store\r\n"));
	ASSERT_NO_FATAL_FAILURE(Follow(Answer));
	EXPECT_THAT(GetOpenedAddress(), StartsWith(GetUrl() + "/oauth/authorize?response_type=code&"));
	Callback(MakeCallback());
	ASSERT_TRUE(WaitForState(FVexelAuth::EState::Online)) << Log.ToText();

	std::map<std::string, std::string> Form = ReadForm(FindRequests("/oauth/token")[0].Body);
	for (const std::string& Secret :
		{Form["state"], Form["code_verifier"], Form["device_id"], GetOpened("code_challenge"), std::string("authorize")})
	{
		ASSERT_NE(Secret, "");
		EXPECT_THAT(CommandLines, Not(HasSubstr(Secret)));
		EXPECT_THAT(StartUrl, Not(HasSubstr(Secret)));
	}
	EXPECT_THAT(Log.ToText(), Not(HasSubstr("/auth-start/"))) << "the log is no way to the page either";
}

TEST_F(LoginStartPage, LeadsToTheLoginOnceAndTheLoginGoesOn)
{
	const TSharedRef<FVexelAuthLoginState> Login = Launch();
	EXPECT_THAT(Visit("/auth-start/AAAAAAAAAAAAAAAAAAAAAA"), StartsWith("HTTP/1.1 404"));
	EXPECT_THAT(Visit("/auth-start/"), StartsWith("HTTP/1.1 404"));
	EXPECT_THAT(Visit("/auth-callback?auth_request_id=r&code=c&state=s"), StartsWith("HTTP/1.1 404")) << "the callback is elsewhere";
	ASSERT_NO_FATAL_FAILURE(Follow(Visit()));
	const std::string Second = Visit();
	EXPECT_THAT(Second, StartsWith("HTTP/1.1 410"));
	EXPECT_THAT(Second, HasSubstr("This page leads to a login once"));
	EXPECT_THAT(Second, Not(HasSubstr("Location:")));
	EXPECT_THAT(Second, Not(HasSubstr(GetOpened("state"))));
	EXPECT_FALSE(Login->IsComplete());
	Callback(MakeCallback());
	EXPECT_TRUE(WaitForState(FVexelAuth::EState::Online)) << Log.ToText();
}

TEST_F(LoginStartPage, ManyVisitorsAtOnceAreLedOnceAltogether)
{
	Launch();
	std::atomic<int32> NumLed = 0;
	std::vector<std::thread> Visitors;
	for (int32 Index = 0; Index < 8; ++Index)
	{
		Visitors.emplace_back([&]
			{ NumLed += Visit().starts_with("HTTP/1.1 302") ? 1 : 0; });
	}
	for (std::thread& Visitor : Visitors)
	{
		Visitor.join();
	}
	EXPECT_EQ(NumLed, 1);
}

TEST_F(LoginStartPage, AnotherUserOfTheMachineNeitherSeesTheLoginNorUsesThePageUp)
{
	Launch();
	std::string Answer;
	if (!RunAsOtherUser([&]
			{ Answer = Visit(); }))
	{
		GTEST_SKIP() << "only root can be another user for a moment";
	}
	EXPECT_THAT(Answer, StartsWith("HTTP/1.1 403"));
	EXPECT_THAT(Answer, Not(HasSubstr("state=")));
	EXPECT_THAT(Visit(), StartsWith("HTTP/1.1 302"));
}

TEST_F(LoginStartPage, HasAPlaceOfItsOwnWhereTheCallbacksPortIsTaken)
{
	FVexelHttpServer Other(0);
	ASSERT_TRUE(Other.Start().HasValue());
	SetCallbackPort(Other.GetPort());
	Launch();
	ASSERT_NO_FATAL_FAILURE(Follow(Visit()));
	EXPECT_EQ(GetOpened("redirect_uri"), "urn:vexel:oauth:noredirect");
	SetPoll(FScriptedAnswer::Json(R"({"status":"approved"})"));
	AdvanceTime(5.1f);
	EXPECT_TRUE(WaitForState(FVexelAuth::EState::Online)) << Log.ToText();
}

TEST_F(LoginStartPage, IsGoneWithItsLogin)
{
	Launch()->Cancel();
	EXPECT_THAT(Visit(), Not(HasSubstr("Location:")));
	EXPECT_TRUE(PumpUntil([this]
		{ return Visit().empty(); }))
		<< "nobody listens any more";
}

TEST_F(LoginStartPage, ADesktopThatOpensNothingFailsTheLogin)
{
	fs::remove(Directory / "xdg-open");
	setenv("PATH", Directory.c_str(), 1);
	const TVexelExpected<TSharedRef<FVexelAuthLoginState>> Login = FVexelAuth::StartLogin();
	ASSERT_TRUE(Login.HasValue());
	ASSERT_TRUE(PumpUntil([&]
		{ return FVexelAuth::GetLoginFailure().IsSet(); }));
	const std::string Failure = TCHAR_TO_UTF8(*FVexelAuth::GetLoginFailure()->ToString());
	EXPECT_THAT(Failure, HasSubstr("Browser launch error: Failed to launch browser: "));
}
