#include "ServiceFixture.h"

namespace VexelService
{

namespace
{

class Account : public FServiceTest
{
protected:
	httplib::Result Validate(const std::optional<std::string>& Features) const
	{
		httplib::Headers Headers = Bearer();
		if (Features)
		{
			Headers.emplace("vexel-beta", *Features);
		}
		return MakeClient().Post("/api/validate_beta_features", Headers, "", "text/plain");
	}
};

}

TEST_F(Account, FeaturesAreValidatedAgainstTheHeader)
{
	Options.Config.User.Features = {"one", "Two"};
	StartService();
	LogIn();
	struct FCase
	{
		std::optional<std::string> Header;
		int Status;
		std::string Part;
	};
	const FCase Cases[] = {
		{"one,Two", 200, "\"features\""},
		{"one,Two,three", 400, "The feature 'three' is not switched on"},
		{"one", 400, "lacks the feature 'Two'"},
		{std::nullopt, 400, "lacks the feature 'one'"},
		{"one,two", 400, "The feature 'two' is not switched on"},
	};
	for (const FCase& Case : Cases)
	{
		const httplib::Result Result = Validate(Case.Header);
		ASSERT_TRUE(Result);
		EXPECT_EQ(Result->status, Case.Status) << Result->body;
		EXPECT_NE(Result->body.find(Case.Part), std::string::npos) << Result->body;
	}
	AccessToken = "none";
	EXPECT_EQ(Validate("one,Two")->status, 401);
}

TEST_F(Account, TheStatusPageNeedsNoLogin)
{
	StartService();
	const httplib::Result Result = MakeClient().Get("/api/v2/status.json");
	ASSERT_TRUE(Result);
	EXPECT_EQ(FJson::parse(Result->body)["status"]["indicator"], "none");
}

}
