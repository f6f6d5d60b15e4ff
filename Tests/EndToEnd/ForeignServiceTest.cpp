#include "ClearLine.h"
#include "ForeignServiceFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;
using testing::Not;

using ForeignService = FForeignServiceTest;
}

TEST_F(ForeignService, TakesATokenOnceAndKeepsTheNextOneForLater)
{
	const FProgramResult First = Chat();
	EXPECT_EQ(First.Status, 0) << First.Errors;
	EXPECT_EQ(First.Output, "Good day.\n");
	EXPECT_EQ(First.Errors, "");
	EXPECT_EQ(GetSentRefreshToken(), "first");
	SetTokens(MakeTokens("third"));
	EXPECT_EQ(Chat(std::nullopt).Status, 0);
	EXPECT_EQ(GetSentRefreshToken(), "second");
	EXPECT_EQ(Chat(std::nullopt).Status, 0);
	EXPECT_EQ(GetSentRefreshToken(), "third");
}

TEST_F(ForeignService, NeverGetsTheTokenOfAnother)
{
	ASSERT_EQ(Chat().Status, 0);
	const FScriptedHttpServer Other;
	const std::string Url = "http://127.0.0.1:" + std::to_string(Other.GetPort());
	const FProgramResult Result =
		RunVexel({"chat", "--project", Project.GetPath(), "--service", Url, "--message", "Hello?"}, MakeSurroundings(std::nullopt));
	ExpectOneClearLine(Result, 1, "not logged in at " + Url + ": there is no stored login for it; log in with: vexel login --service");
	for (const FScriptedRequest& Request : Other.GetRequests())
	{
		EXPECT_TRUE(Request.GetPath() == ClientPath || Request.GetPath() == "/api/v2/status.json") << Request.Target;
		EXPECT_EQ(Request.Method, "GET");
		EXPECT_FALSE(Request.GetHeader("Authorization"));
	}
}

TEST_F(ForeignService, RefusesDescriptorsThatGiveNoToken)
{
	ExpectOneClearLine(Chat(""), 1, "--token-fd 3: no token could be read from it");
	ExpectOneClearLine(Chat(" \nnot on the first line"), 1, "--token-fd 3: no token could be read from it");
	for (const std::string Descriptor : {"321", "-1", "secret", "99999999999"})
	{
		ExpectOneClearLine(Chat(std::nullopt, {"--token-fd", Descriptor}), 1, "--token-fd: there is no such open file descriptor");
	}
	EXPECT_TRUE(Server.GetRequests().empty());
}

TEST_F(ForeignService, EachBadLoginGivesOneClearLineAndKeepsTheToken)
{
	const FScriptedAnswer GoodClient = FScriptedAnswer::Json(R"({"clientId":"plugin"})");
	struct FCase
	{
		const char* Path;
		FScriptedAnswer Answer;
		std::string Words;
	};
	const FCase Cases[] = {
		{ClientPath, FScriptedAnswer(500).Text("<html>\nbroken\x1b[2J\n</html>"), "HTTP status 500"},
		{ClientPath, FScriptedAnswer().Chunk("{").Stall(), "timed out"},
		{ClientPath, FScriptedAnswer::Raw("this is no HTTP\r\n\r\n"), "HTTP/0.9"},
		{ClientPath, FScriptedAnswer::Json("{\"clientId\":"), "Failed to parse plugin client ID response"},
		{ClientPath, FScriptedAnswer::Json("{\"clientId\":\"\xff\""), "Failed to parse plugin client ID response"},
		{ClientPath, FScriptedAnswer::Json("{}"), "does not contain client_id"},
		{TokenPath, FScriptedAnswer(503), "HTTP status 503"},
		{TokenPath, FScriptedAnswer().Chunk("{").Stall(), "timed out"},
		{TokenPath, FScriptedAnswer().Chunk("{\"access_").Close(), "Request failed"},
		{TokenPath, FScriptedAnswer::Json("[]"), "Malformed token refresh response"},
		{TokenPath, FScriptedAnswer::Json(R"({"access_token":"a.b.c","refresh_token":"r"})"), "Incomplete token data received"},
		{TokenPath, FScriptedAnswer::Json(R"({"access_token":"x","refresh_token":"r","expires_in":1})"), "Failed to extract user ID"},
		{TokenPath, FScriptedAnswer::Redirect("https://127.0.0.1:1/", 307), "HTTP status 307"},
	};
	std::optional<std::string> Token = "first";
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Words);
		SetAnswer(ClientPath, GoodClient);
		SetTokens(MakeTokens("second"));
		SetAnswer(Case.Path, Case.Answer);
		const FProgramResult Result = Chat(Token);
		Token.reset();
		ExpectOneClearLine(Result, 1, "not logged in at " + GetUrl());
		EXPECT_THAT(Result.Errors, HasSubstr(Case.Words));
		EXPECT_THAT(Result.Errors, Not(HasSubstr("\x1b")));
		EXPECT_EQ(Result.Output, "");
	}
	SetTokens(MakeTokens("second"));
	EXPECT_EQ(Chat(std::nullopt).Output, "Good day.\n");
	EXPECT_EQ(GetSentRefreshToken(), "first");
}

TEST_F(ForeignService, ARefusedTokenIsForgottenAndNeverQuoted)
{
	Server.AnswerWith(TokenPath, [](const FScriptedRequest& Request)
		{ return FScriptedAnswer(400).Text("you sent " + Request.Body); });
	const FProgramResult Refused = Chat("first", {"--verbose"});
	EXPECT_EQ(Refused.Status, 1);
	EXPECT_THAT(Refused.Errors, HasSubstr("HTTP status 400"));
	EXPECT_THAT(Refused.Errors, Not(HasSubstr("you sent")));
	ExpectOneClearLine(Chat(std::nullopt), 1, "there is no stored login for it");
}

TEST_F(ForeignService, EachBadAnswerGivesOneClearLineAndKeepsTheConversation)
{
	struct FCase
	{
		FScriptedAnswer Answer;
		std::string Words;
	};
	const FCase Cases[] = {
		{FScriptedAnswer(500).Text("<html>\n\x1b]0;mine\x07</html>"), "failed with HTTP status 500"},
		{FScriptedAnswer::Json("{\"detail\":\"no credits\\nleft\\u001b[2J\"}", 402), "no credits"},
		{FScriptedAnswer().Chunk("Wait").Stall(), "nothing came for 1 seconds"},
		{FScriptedAnswer().Chunk("half").Close(), "Request failed"},
		{FScriptedAnswer::Raw("this is no HTTP\r\n\r\n"), "Request failed"},
		{FScriptedAnswer::Raw(""), "Request failed"},
	};
	std::optional<std::string> Token = "first";
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Words);
		SetChat(Case.Answer);
		const FProgramResult Result = Chat(Token, {"--continue"});
		Token.reset();
		ExpectOneClearLine(Result, 1, Case.Words);
		EXPECT_THAT(Result.Errors + Result.Output, Not(HasSubstr("\x1b")));
	}
	SetChat(FScriptedAnswer().Chunk("Good day."));
	EXPECT_EQ(Chat(std::nullopt, {"--continue"}).Status, 0);
	const std::vector<nlohmann::json> History = ReadStored();
	ASSERT_EQ(History.size(), 1u);
	size_t NumPrompts = 0;
	for (const nlohmann::json& Message : History[0]["Messages"])
	{
		NumPrompts += Message["role"] == "user";
	}
	EXPECT_EQ(NumPrompts, std::size(Cases) + 1);
}

TEST_F(ForeignService, NobodyListeningGivesOneClearLine)
{
	std::string Url;
	{
		const FScriptedHttpServer Gone;
		Url = "http://127.0.0.1:" + std::to_string(Gone.GetPort());
	}
	const FProgramResult Result = RunVexel(
		{"chat", "--project", Project.GetPath(), "--service", Url, "--token-fd", "3", "--message", "x"}, MakeSurroundings("first"));
	ExpectOneClearLine(Result, 1, "not logged in at " + Url);
	EXPECT_THAT(Result.Errors, HasSubstr("connect"));
}

TEST_F(ForeignService, HostileTextActsOnNoTerminal)
{
	SetChat(FScriptedAnswer()
				.Chunk("a\x1b]0;title\x07"
					   "b\x1b[2Jc\xC2\x9B"
					   "31md\x7F\x08 e\r")
				.Chunk("\nf\rg\xE9h <ToolCall info={broken}/><ToolCall info={\"tool_name\":\"x\x1b[2J\",\"reply_id\":\"r\"}/>"
					   "<Error info={\"message\":\"no\\u001b[2J\"}/> <Image nonsense/> <ToolCa"));
	const FProgramResult Result = Chat();
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	for (const char Character : Result.Output + Result.Errors)
	{
		EXPECT_TRUE(static_cast<unsigned char>(Character) >= 0x20 || Character == '\n' || Character == '\t') << int(Character);
	}
	EXPECT_THAT(Result.Output, Not(HasSubstr("\x7F")));
	EXPECT_THAT(Result.Output, Not(HasSubstr("\xC2\x9B")));
	EXPECT_THAT(Result.Output, HasSubstr("e\nf"));
	EXPECT_THAT(Result.Output, HasSubstr("<Image nonsense/> <ToolCa"));

	const FProgramResult Document = Chat(std::nullopt, {"--json"});
	const nlohmann::json Parsed = nlohmann::json::parse(Document.Output, nullptr, false);
	ASSERT_TRUE(Parsed.is_object()) << Document.Output;
	EXPECT_THAT(Parsed["answer"].get<std::string>(), HasSubstr("\x1b[2Jc\xC2\x9B")) << "a document holds what was said, in escapes";
	EXPECT_THAT(Document.Output, Not(HasSubstr("\xC2\x9B")));
	EXPECT_THAT(Document.Output, Not(HasSubstr("\x1b")));
}

TEST_F(ForeignService, AnExpiredTokenIsRenewedInTheMiddleOfASession)
{
	Server.AnswerWith("/api/chat", [](const FScriptedRequest& Request)
		{ return Request.GetHeader("Authorization") == "Bearer e30.eyJzdWIiOiJ1c2VyLTEifQ.newer" ? FScriptedAnswer().Chunk("Here I am.")
																								 : FScriptedAnswer(401); });
	Server.AnswerWith(TokenPath, [](const FScriptedRequest& Request)
		{
			const bool bSecond = Request.Body.find("refresh_token=second") != std::string::npos;
			return bSecond ? FScriptedAnswer::Json(
								 R"({"access_token":"e30.eyJzdWIiOiJ1c2VyLTEifQ.newer","refresh_token":"third","expires_in":9})")
						   : MakeTokens("second"); });
	const FProgramResult Result = Chat();
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	EXPECT_EQ(Result.Output, "Here I am.\n");
}

TEST_F(ForeignService, AnErrorReportArrivesWithItsChainAndWithoutSecrets)
{
	SetAnswer("/api/1/envelope/", FScriptedAnswer::Json("{}"));
	FProgramSurroundings Surroundings = MakeSurroundings("a-very-secret-token\n");
	Surroundings.Environment.push_back("VEXEL_SENTRY_DSN=http://public@127.0.0.1:" + std::to_string(Server.GetPort()) + "/1");
	SetTokens(FScriptedAnswer::Json(R"({"error":"invalid_grant","hint":"a-very-secret-token"})", 400));
	const std::vector<std::string> Words = {
		"chat", "--project", Project.GetPath(), "--service", GetUrl(), "--message", "Hello?", "--token-fd", "3"};
	EXPECT_EQ(RunVexel(Words, Surroundings).Status, 1);

	// A report that the end of the program cut off waits on disk for the next one.
	SetTokens(MakeTokens("second"));
	std::string Envelopes;
	for (int32 Run = 0; Run < 5 && Envelopes.find("auto-login") == std::string::npos; ++Run)
	{
		RunVexel(Words, Surroundings);
		Envelopes.clear();
		for (const FScriptedRequest& Request : Server.GetRequests())
		{
			Envelopes += Request.GetPath() == "/api/1/envelope/" ? Request.Body : "";
		}
	}
	EXPECT_THAT(Envelopes, HasSubstr("while performing auto-login"));
	EXPECT_THAT(Envelopes, HasSubstr("FVexelError_HttpStatusClientError"));
	EXPECT_THAT(Envelopes, HasSubstr(R"(\"request\":\"login\")"));
	EXPECT_THAT(Envelopes, Not(HasSubstr("a-very-secret-token")));
}

TEST_F(ForeignService, AFullDiskKeepsTheOldConversationWhole)
{
	const std::string Answer(3000, 'a');
	SetChat(FScriptedAnswer().Chunk(Answer));
	ASSERT_EQ(Chat().Status, 0);
	const std::vector<nlohmann::json> Before = ReadStored();
	const FProgramResult Result = RunVexelWithSmallFiles(
		{"chat", "--project", Project.GetPath(), "--service", GetUrl(), "--continue", "--message", "And now?"}, MakeSurroundings(std::nullopt));
	ExpectOneClearLine(Result, 1, "cannot be written; the disk may be full");
	EXPECT_EQ(Result.Output, Answer + "\n") << "the answer is shown all the same";
	EXPECT_EQ(ReadStored(), Before);
}
