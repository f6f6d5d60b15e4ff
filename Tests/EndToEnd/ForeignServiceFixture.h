#pragma once

#include "History.h"
#include "Program.h"
#include "ScriptedHttpServer.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

inline constexpr const char* AccessToken = "e30.eyJzdWIiOiJ1c2VyLTEifQ.signature";
inline constexpr const char* TokenPath = "/oauth/token";
inline constexpr const char* ClientPath = "/api/auth/plugin-client-id";

/** A service that follows a script, a sample project, and a user's data directory of their own. */
class FForeignServiceTest : public testing::Test
{
protected:
	FForeignServiceTest()
	{
		SetAnswer(ClientPath, FScriptedAnswer::Json(R"({"clientId":"plugin"})"));
		SetTokens(MakeTokens("second"));
		SetChat(FScriptedAnswer().Chunk("Good day."));
	}

	static FScriptedAnswer MakeTokens(const std::string& RefreshToken)
	{
		return FScriptedAnswer::Json(
			R"({"access_token":")" + std::string(AccessToken) + R"(","refresh_token":")" + RefreshToken + R"(","expires_in":3600})");
	}
	/** From now on. */
	void SetTokens(const FScriptedAnswer& Answer) { SetAnswer(TokenPath, Answer); }
	void SetChat(const FScriptedAnswer& Answer) { SetAnswer("/api/chat", Answer); }
	void SetAnswer(const char* Path, const FScriptedAnswer& Answer)
	{
		Server.AnswerWith(Path, [Answer](const FScriptedRequest&)
			{ return Answer; });
	}

	std::string GetUrl() const { return "http://127.0.0.1:" + std::to_string(Server.GetPort()); }

	FProgramSurroundings MakeSurroundings(const std::optional<std::string>& Token) const
	{
		return {.Environment = {"XDG_DATA_HOME=" + (Project.GetPath() / "data").string(), "VEXEL_SECRET_STORE=file",
					"VEXEL_CHAT_STALL_TIMEOUT_SECONDS=1", "VEXEL_AUTH_TIMEOUT_SECONDS=1"},
			.ThirdDescriptor = Token};
	}

	/** A message to the service; with a token it is given through descriptor 3. */
	FProgramResult Chat(const std::optional<std::string>& Token = "first\n", std::vector<std::string> More = {}) const
	{
		std::vector<std::string> Words = {"chat", "--project", Project.GetPath(), "--service", GetUrl(), "--message", "Hello?"};
		if (Token)
		{
			Words.insert(Words.end(), {"--token-fd", "3"});
		}
		Words.insert(Words.end(), More.begin(), More.end());
		return RunVexel(Words, MakeSurroundings(Token));
	}

	/** The refresh token of the last request for tokens; empty without one. */
	std::string GetSentRefreshToken() const
	{
		const std::string Name = "&refresh_token=";
		std::string Token;
		for (const FScriptedRequest& Request : Server.GetRequests())
		{
			const size_t At = Request.Body.find(Name);
			if (Request.GetPath() == TokenPath && At != std::string::npos)
			{
				const size_t Begin = At + Name.size();
				Token = Request.Body.substr(Begin, Request.Body.find('&', Begin) - Begin);
			}
		}
		return Token;
	}

	std::vector<nlohmann::json> ReadStored() const { return ReadHistory(Project.GetPath()); }

	FScriptedHttpServer Server;
	FSampleProjectCopy Project;
};
