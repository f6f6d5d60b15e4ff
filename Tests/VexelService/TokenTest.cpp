#include "Auth/AccessToken.h"
#include "Auth/Crypto.h"

#include "ServiceFixture.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace VexelService
{

namespace
{

using testing::HasSubstr;
using testing::Not;

using Token = FServiceTest;

std::string DetailOf(const httplib::Result& Result)
{
	return FJson::parse(Result->body)["detail"];
}

TEST_F(Token, ARefreshAnswersTokensThatOpenTheApi)
{
	StartService();
	LogIn();
	const httplib::Result User = MakeClient().Get("/api/user", Bearer());
	ASSERT_EQ(User->status, 200);
	const FJson Profile = FJson::parse(User->body);
	EXPECT_EQ(Profile["features"], FJson({"vexel_agent", "vexel_agent_lite", "vexel_lite", "blueprint_agent"}));
	EXPECT_TRUE(Profile["credits"].is_number_integer() && Profile["max_credits"].is_number_integer() && Profile["name"].is_string() &&
		Profile["email"].is_string());
}

TEST_F(Token, AnAccessTokenNamesTheUserTheClientAndItsTimes)
{
	StartService();
	LogIn();
	const std::size_t Dot = AccessToken.find('.');
	const FJson Payload = FJson::parse(*Base64UrlDecode(AccessToken.substr(Dot + 1, AccessToken.rfind('.') - Dot - 1)));
	EXPECT_EQ(Payload["aud"], GetClientId());
	EXPECT_EQ(Payload["sub"], "local-user") << "conversations belong to this id, whichever run they came from";
	EXPECT_EQ(Payload["iat"], Now->load());
	EXPECT_EQ(Payload["exp"], Now->load() + 3600);
}

TEST_F(Token, EveryApiPathButTheClientIdAsksForAToken)
{
	StartService();
	for (const char* const Path : {"/api/user", "/api/no/such/path"})
	{
		const httplib::Result Result = MakeClient().Get(Path);
		EXPECT_EQ(Result->status, 401) << Path;
		EXPECT_EQ(DetailOf(Result), "An access token is required.") << Path;
	}
	for (const char* const Path : {"/api/chat", "/api/tool_reply/x", "/api/tool_error/x"})
	{
		EXPECT_EQ(MakeClient().Post(Path, "{}", "application/json")->status, 401) << Path;
	}
}

TEST_F(Token, ATokenThatWasTamperedWithIsRefused)
{
	StartService();
	LogIn();
	const std::string Good = AccessToken;
	const std::string Unsigned =
		Base64UrlEncode(R"({"alg":"none","typ":"JWT"})") + Good.substr(Good.find('.'), Good.rfind('.') - Good.find('.')) + ".";
	std::string Changed = Good;
	Changed[Good.find('.') + 10] ^= 1;
	const FAccessClaims Claims{.Subject = "user", .Audience = GetClientId(), .Family = "f", .Grant = "g", .IssuedAt = 0, .ExpiresAt = 1LL << 40};
	for (const std::string& Bad : {Unsigned, Changed, std::string("x"), std::string(".."), SignAccessToken(Claims, "another key"), Good + "A"})
	{
		AccessToken = Bad;
		const httplib::Result Result = MakeClient().Get("/api/user", Bearer());
		EXPECT_EQ(Result->status, 401) << Bad;
		EXPECT_EQ(DetailOf(Result), "The access token is not valid.") << Bad;
	}
}

TEST_F(Token, AnAccessTokenEndsAtItsExpiry)
{
	StartService();
	LogIn();
	*Now += 3599;
	EXPECT_EQ(MakeClient().Get("/api/user", Bearer())->status, 200);
	*Now += 1;
	const httplib::Result Result = MakeClient().Get("/api/user", Bearer());
	EXPECT_EQ(Result->status, 401);
	EXPECT_EQ(DetailOf(Result), "The access token has expired.");
}

/** Refresh tokens in the course of a session, whose answers may have got lost on the way. */
class RefreshReuse : public FServiceTest
{
protected:
	virtual void SetUp() override
	{
		StartService();
		First = *Server->MintRefreshToken();
	}

	FJson Refresh(const std::string& Token) const
	{
		const httplib::Result Result = RefreshWith(Token);
		EXPECT_EQ(Result->status, 200) << Result->body;
		return FJson::parse(Result->body, nullptr, false);
	}

	int UseAccessTokenOf(const FJson& Tokens)
	{
		AccessToken = Tokens["access_token"];
		return MakeClient().Get("/api/user", Bearer())->status;
	}

	/** Shows a token that has no second chance, and expects the session of the other tokens to be over with that. */
	void ExpectToEndTheSession(const std::string& Token, const FJson& Other)
	{
		const httplib::Result Reuse = RefreshWith(Token);
		EXPECT_EQ(Reuse->status, 400);
		EXPECT_EQ(FJson::parse(Reuse->body)["error"], "invalid_grant");
		EXPECT_EQ(RefreshWith(Other["refresh_token"])->status, 400);
		AccessToken = Other["access_token"];
		EXPECT_EQ(DetailOf(MakeClient().Get("/api/user", Bearer())), "The access token has been revoked.");
	}

	std::string First;
};

TEST_F(RefreshReuse, RevokesTheWholeFamilyOnceTheSuccessorWasUsed)
{
	const FJson Second = Refresh(First);
	const FJson Third = Refresh(Second["refresh_token"]);
	ExpectToEndTheSession(First, Third);
}

TEST_F(RefreshReuse, RevokesTheWholeFamilyOnceTheSuccessorsAccessTokenWasUsed)
{
	const FJson Second = Refresh(First);
	EXPECT_EQ(UseAccessTokenOf(Second), 200);
	ExpectToEndTheSession(First, Second);
}

TEST_F(RefreshReuse, IsASecondChanceWhileNothingOfTheFirstAnswerWasUsed)
{
	Refresh(First);
	*Now += Options.Config.RefreshTokenGrace.count() - 1;
	const FJson Again = Refresh(First);
	EXPECT_EQ(UseAccessTokenOf(Again), 200);
	Refresh(Again["refresh_token"]);
}

TEST_F(RefreshReuse, HasNoSecondChanceAfterTheGrace)
{
	const FJson Second = Refresh(First);
	*Now += Options.Config.RefreshTokenGrace.count();
	ExpectToEndTheSession(First, Second);
}

TEST_F(RefreshReuse, HasNoThirdChance)
{
	Refresh(First);
	const FJson Again = Refresh(First);
	ExpectToEndTheSession(First, Again);
}

TEST_F(RefreshReuse, TheAnswerThatASecondChanceReplacesIsVoidAndEndsTheSession)
{
	const FJson Lost = Refresh(First);
	const FJson Again = Refresh(First);
	EXPECT_EQ(UseAccessTokenOf(Lost), 401);
	EXPECT_EQ(UseAccessTokenOf(Again), 200) << "an access token alone is no sign of a thief: it may have been on its way";
	ExpectToEndTheSession(Lost["refresh_token"], Again);
}

TEST_F(RefreshReuse, EveryRotationHasItsOwnSecondChance)
{
	const FJson Second = Refresh(First);
	Refresh(Second["refresh_token"]);
	const FJson Third = Refresh(Second["refresh_token"]);
	EXPECT_EQ(UseAccessTokenOf(Third), 200);
	ExpectToEndTheSession(Second["refresh_token"], Third);
}

TEST_F(RefreshReuse, TheSecondChanceOutlivesTheServiceAndIsNotGivenTwice)
{
	Options.DataFolder = std::filesystem::temp_directory_path() / ("vexel-service-test-" + RandomId());
	StartService();
	First = *Server->MintRefreshToken();
	const FJson Lost = Refresh(First);
	StartService();
	const FJson Again = Refresh(First);
	StartService();
	EXPECT_EQ(UseAccessTokenOf(Lost), 401);
	ExpectToEndTheSession(First, Again);
	std::filesystem::remove_all(Options.DataFolder);
}

TEST_F(RefreshReuse, CanBeRefusedFromTheFirstTimeByConfiguration)
{
	Options.Config.RefreshTokenGrace = std::chrono::seconds(0);
	StartService();
	First = *Server->MintRefreshToken();
	ExpectToEndTheSession(First, Refresh(First));
}

TEST_F(Token, ARefreshTokenExpires)
{
	StartService();
	const std::string First = *Server->MintRefreshToken();
	*Now += Options.Config.RefreshTokenLifetime.count();
	EXPECT_EQ(RefreshWith(First)->status, 400);
}

TEST_F(Token, RevocationEndsTheSessionAndIsSilentAboutUnknownTokens)
{
	StartService();
	const std::string Refresh = LogIn();
	const httplib::Params Revocation = {{"client_id", GetClientId()}, {"token", Refresh}, {"token_type_hint", "refresh_token"}};
	EXPECT_EQ(PostForm("/oauth/revoke", Revocation)->status, 200);
	EXPECT_EQ(MakeClient().Get("/api/user", Bearer())->status, 401);
	EXPECT_EQ(RefreshWith(Refresh)->status, 400);
	EXPECT_EQ(PostForm("/oauth/revoke", Revocation)->status, 200);
}

TEST_F(Token, BadTokenRequestsAreRefusedByName)
{
	StartService();
	const std::string Refresh = *Server->MintRefreshToken();
	const struct
	{
		httplib::Params Params;
		int Status;
		const char* Error;
	} Cases[] = {
		{{{"grant_type", "refresh_token"}, {"refresh_token", Refresh}, {"client_id", "another"}}, 401, "invalid_client"},
		{{{"grant_type", "refresh_token"}, {"refresh_token", "guess"}, {"client_id", GetClientId()}}, 400, "invalid_grant"},
		{{{"grant_type", "password"}, {"refresh_token", Refresh}, {"client_id", GetClientId()}}, 400, "unsupported_grant_type"},
		{{{"grant_type", "refresh_token"}, {"client_id", GetClientId()}}, 400, "invalid_request"},
		{{{"grant_type", "refresh_token"}, {"refresh_token", Refresh}, {"refresh_token", "x"}, {"client_id", GetClientId()}}, 400,
			"invalid_request"},
	};
	for (const auto& Case : Cases)
	{
		const httplib::Result Result = PostForm("/oauth/token", Case.Params);
		EXPECT_EQ(Result->status, Case.Status) << Case.Error;
		EXPECT_EQ(FJson::parse(Result->body)["error"], Case.Error);
	}
	EXPECT_EQ(MakeClient().Post("/oauth/token?refresh_token=" + Refresh, "", "application/x-www-form-urlencoded")->status, 400);
	EXPECT_EQ(RefreshWith(Refresh)->status, 200) << "refused requests must not spend the token";
}

TEST_F(Token, StateOutlivesTheServiceWithOwnerOnlyAccessAndWithoutTokens)
{
	Options.DataFolder = std::filesystem::temp_directory_path() / ("vexel-service-test-" + RandomId());
	StartService();
	const FJson ClientId = GetClientId();
	const std::string Refresh = LogIn();
	Server.reset();

	const std::filesystem::path File = Options.DataFolder / "state.json";
	EXPECT_EQ(std::filesystem::status(File).permissions(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
	EXPECT_EQ(std::filesystem::status(Options.DataFolder).permissions(), std::filesystem::perms::owner_all);
	std::ifstream Stream(File);
	EXPECT_THAT(std::string(std::istreambuf_iterator<char>(Stream), {}), Not(HasSubstr(Refresh)));

	StartService();
	EXPECT_EQ(GetClientId(), ClientId);
	EXPECT_EQ(MakeClient().Get("/api/user", Bearer())->status, 200);
	EXPECT_EQ(RefreshWith(Refresh)->status, 200);
	Server.reset();
	std::ofstream(File) << "{\"client_id\":";
	EXPECT_FALSE(FAssistantServer::Start(Options)) << "a damaged state must not be replaced in silence";
	std::filesystem::remove_all(Options.DataFolder);
}

}

}
