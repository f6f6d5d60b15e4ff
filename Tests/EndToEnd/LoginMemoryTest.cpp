#include "ForeignServiceFixture.h"
#include "ProcessMemory.h"
#include "Sanitized.h"

#include <mutex>
#include <random>

namespace
{
/** Programs whose memory is looked through, and a service that gives tokens of many lengths, each of them known here. */
class LoginMemory : public FForeignServiceTest
{
protected:
	virtual void SetUp() override
	{
		if (VEXEL_SANITIZED)
		{
			GTEST_SKIP() << "a sanitizer's own memory is too much to look through, and keeps what is freed";
		}
		SetAnswer("/api/user", FScriptedAnswer::Json(R"({"name":"Ada","features":["blueprint_agent"]})"));
		SetAnswer("/oauth/revoke", FScriptedAnswer::Json("{}"));
		Code = MakeSecret(64);
		Server.AnswerWith("/oauth/poll", [this](const FScriptedRequest& Request)
			{
				const nlohmann::json Body = nlohmann::json::parse(Request.Body, nullptr, false);
				const std::lock_guard Guard(Lock);
				if (!Body.contains("return_code"))
				{
					return FScriptedAnswer::Json(R"({"status":"approved"})");
				}
				Secrets["verifier"] = Body.value("code_verifier", "");
				Secrets["code"] = Code;
				return FScriptedAnswer::Json(nlohmann::json{{"code", Code}}.dump()); });
		Server.AnswerWith(TokenPath, [this](const FScriptedRequest&)
			{
				const std::lock_guard Guard(Lock);
				const std::string Number = std::to_string(++NumIssued);
				// Of lengths that fit into the conversions' own buffers, and of lengths that do not.
				const std::string Access = MakeSecret(NumIssued % 2 ? 43 : 700);
				const std::string Refresh = MakeSecret(NumIssued % 2 ? 700 : 43);
				Secrets["access token " + Number] = Access;
				Secrets["refresh token " + Number] = Refresh;
				const std::string Answer = nlohmann::json{
					{"access_token", "e30.eyJzdWIiOiJ1c2VyLTEifQ." + Access}, {"refresh_token", Refresh}, {"expires_in", 3600}}
											   .dump();
				// In pieces, as of a service that does not say beforehand how much will come.
				return FScriptedAnswer().Header("Content-Type", "application/json").Chunk(Answer.substr(0, 100)).Chunk(Answer.substr(100)); });
	}

	std::string MakeSecret(size_t Length)
	{
		static constexpr std::string_view Letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
		std::string Text;
		while (Text.size() < Length)
		{
			Text += Letters[Random() % Letters.size()];
		}
		return Text;
	}

	/** Runs a program until it is about to write its result. */
	std::unique_ptr<FStartedProgram> RunUntilResult(const FHeldOutput& Output, std::vector<std::string> Words) const
	{
		Words.insert(Words.begin(), VEXEL_PROGRAM);
		Words.insert(Words.end(), {"--service", GetUrl(), "--json"});
		FProgramSurroundings Surroundings = MakeSurroundings({});
		Surroundings.PassedDescriptors = {Output.GetPassed()};
		// The system's libraries look up functions at their first call, and the loader saves registers on the stack for that: with
		// what a copy has left in them.
		Surroundings.Environment.push_back("LD_BIND_NOW=1");
		return std::make_unique<FStartedProgram>(Words, Surroundings);
	}

	std::map<std::string, std::string> GetSecrets() const
	{
		const std::lock_guard Guard(Lock);
		return Secrets;
	}

	/** What is in the program's memory for good: what other threads are about to overwrite has a moment for that. */
	std::set<std::string> FindWhatStays(int Process, const std::set<std::string>& Expected) const
	{
		std::set<std::string> Found;
		for (int Attempt = 0; Attempt < 50; ++Attempt)
		{
			Found = ProcessMemory::Find(Process, GetSecrets());
			if (Found == Expected)
			{
				break;
			}
			std::this_thread::sleep_for(std::chrono::milliseconds(100));
		}
		return Found;
	}

	mutable std::mutex Lock;
	std::map<std::string, std::string> Secrets;
	std::string Code;
	int NumIssued = 0;

private:
	std::mt19937_64 Random{std::random_device()()};
};
}

TEST_F(LoginMemory, ALoginLeavesItsTokensAloneAndALogoutNothing)
{
	const FHeldOutput Output;
	{
		const std::unique_ptr<FStartedProgram> Login = RunUntilResult(Output, {"login", "--no-browser"});
		if (!ProcessMemory::IsReadable(Login->GetProcessId()))
		{
			GTEST_SKIP() << "no program may look into another's memory here";
		}
		ASSERT_TRUE(FHeldOutput::WaitUntilHeld(Login->GetProcessId()));
		const std::set<std::string> Tokens = {"access token 1", "refresh token 1"};
		EXPECT_EQ(FindWhatStays(Login->GetProcessId(), Tokens), Tokens) << "neither code nor verifier; and the search finds what is there";
	}
	const std::unique_ptr<FStartedProgram> Logout = RunUntilResult(Output, {"logout"});
	ASSERT_TRUE(FHeldOutput::WaitUntilHeld(Logout->GetProcessId()));
	ASSERT_EQ(GetSecrets().size(), 6u) << "it has refreshed the login before";
	ASSERT_EQ(FForeignServiceTest::GetSentRefreshToken(), GetSecrets().at("refresh token 1"));
	EXPECT_EQ(FindWhatStays(Logout->GetProcessId(), {}), std::set<std::string>());
}
