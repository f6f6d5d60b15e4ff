#include "Companion.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "HttpFixture.h"
#include "VexelInternalConfig.h"
#include "VexelJson.h"
#include "VexelSentry.h"
#include "VexelUrlUtils.h"

#include <filesystem>

namespace
{
namespace fs = std::filesystem;

/** The local service as a program, logged in to as its user. */
class FSentryServiceTest : public FTaskTest
{
protected:
	FSentryServiceTest()
		: Service({VEXEL_SERVICE_PROGRAM, "--port", "0"}, "")
	{
		std::string Pattern = (fs::temp_directory_path() / "vexel-reports-XXXXXX").string();
		Root = mkdtemp(Pattern.data());
	}
	virtual ~FSentryServiceTest() override
	{
		FVexelSentry::Stop();
		FVexelInternalConfig::Find(TEXT("SentryDsn"))->SetOverride(FString());
		FVexelHttpManager::SetAuthProvider(nullptr);
		FVexelHttpManager::Shutdown();
		fs::remove_all(Root);
	}

	virtual void SetUp() override
	{
		TSharedPtr<FJsonObject> Greeting;
		ASSERT_TRUE(FVexelJsonConversions::StringToJson(UTF8_TO_TCHAR(Service.FirstLine.c_str()), Greeting)) << Service.FirstLine;
		Url = Greeting->GetStringField(TEXT("url"));
		Client = MakeShared<FVexelHttp>(FVexelHttpClientConfig(Url));
		const TSharedPtr<FJsonObject> Id = Read(Client->Request(EVexelHttpVerb::Get, TEXT("/api/auth/plugin-client-id")).SendAndAwait());
		ASSERT_TRUE(Id.IsValid());
		FVexelHttpUrlParams Form;
		Form.Add(TEXT("grant_type"), TEXT("refresh_token"))
			.Add(TEXT("refresh_token"), Greeting->GetStringField(TEXT("refresh_token")))
			.Add(TEXT("client_id"), Id->GetStringField(TEXT("clientId")));
		const TSharedPtr<FJsonObject> Tokens = Read(Client->Request(EVexelHttpVerb::Post, TEXT("/oauth/token")).WithPayload(Form).SendAndAwait());
		ASSERT_TRUE(Tokens.IsValid());
		Auth.Token = Tokens->GetStringField(TEXT("access_token"));
		FVexelHttpManager::SetAuthProvider(&Auth);
		ASSERT_TRUE(Read(Client->Request(EVexelHttpVerb::Get, TEXT("/api/user")).WithAuth().SendAndAwait()).IsValid());
	}

	static TSharedPtr<FJsonObject> Read(const TVexelTaskResult<TSharedRef<FVexelHttpResponse>>& Sent)
	{
		const FResponse Response = Await(Sent);
		EXPECT_TRUE(Response.HasValue()) << ToUtf8(Response.GetError().ToString());
		return Response ? Response.GetValue()->GetContentJson() : nullptr;
	}

	/** What the service shows of the reports, when it has so many. */
	TArray<TSharedPtr<FJsonValue>> WaitForReports(int32 Num)
	{
		TArray<TSharedPtr<FJsonValue>> Reports;
		for (const double Deadline = FPlatformTime::Seconds() + 10.0; Reports.Num() < Num && FPlatformTime::Seconds() < Deadline;)
		{
			const TSharedPtr<FJsonObject> Answer = Read(Client->Request(EVexelHttpVerb::Get, TEXT("/api/reports")).WithAuth().SendAndAwait());
			Reports = Answer ? Answer->GetArrayField(TEXT("reports")) : Reports;
		}
		return Reports;
	}

	const FCompanion Service;
	fs::path Root;
	FString Url;
	TSharedPtr<FVexelHttp> Client;
	struct FTokenAuth final : FVexelHttp::IAuthProvider
	{
		virtual EAuthResult GetAuthState(FString& OutToken) override
		{
			OutToken = Token;
			return EAuthResult::Authenticated;
		}
		FString Token;
	} Auth;
};
}

TEST_F(FSentryServiceTest, WhatIsReportedCanBeReadThere)
{
	const FString Dsn = Url.Replace(TEXT("http://"), TEXT("http://local@")) + TEXT("/1");
	FVexelInternalConfig::Find(TEXT("SentryDsn"))->SetOverride(Dsn);
	FVexelSentry::Start(UTF8_TO_TCHAR(Root.c_str()));
	FVexelSentry::User({TEXT("user-7")});
	const FVexelErrorContextScope Scope(TEXT("chat"));
	const FVexelError Cause = VEXEL_ERROR_TITLED(FVexelError_Http, "Request failed", "T\u00FCr with %s", *Auth.Token);
	FVexelError Error = VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "no answer");
	Error.AppendContext(TEXT("while waiting"));
	FVexelSentry::CaptureError(MoveTemp(Error), VEXEL_HERE);

	const TArray<TSharedPtr<FJsonValue>> Reports = WaitForReports(1);
	ASSERT_EQ(Reports.Num(), 1);
	const TSharedPtr<FJsonObject> Report = Reports[0]->AsObject();
	const TArray<TSharedPtr<FJsonValue>> Exceptions = Report->GetObjectField(TEXT("exception"))->GetArrayField(TEXT("values"));
	ASSERT_EQ(Exceptions.Num(), 2);
	EXPECT_EQ(ToUtf8(Exceptions[0]->AsObject()->GetStringField(TEXT("value"))), "Request failed: T\u00FCr with [secret]");
	EXPECT_EQ(ToUtf8(Exceptions[1]->AsObject()->GetStringField(TEXT("type"))), "FVexelError_ChatRequestFailed");
	EXPECT_EQ(ToUtf8(Exceptions[1]->AsObject()->GetStringField(TEXT("value"))), "Chat request failed: no answer, while waiting");
	EXPECT_EQ(ToUtf8(Report->GetObjectField(TEXT("user"))->GetStringField(TEXT("id"))), "user-7");
	EXPECT_TRUE(Report->GetObjectField(TEXT("contexts"))->HasField(TEXT("chat")));
}
