#include "LoginFixture.h"

#include "Containers/StringConv.h"
#include "Misc/Paths.h"
#include "RawHttpClient.h"
#include "VexelClient.h"
#include "VexelInternalConfig.h"
#include "VexelSecureStorage.h"

namespace
{
const bool bModuleWanted = (FEditorTest::WantModule(TEXT("VexelClient")), true);
constexpr const TCHAR* UrlKeys[] = {TEXT("ApiUrl"), TEXT("AppUrl"), TEXT("InsightsApiUrl"), TEXT("StatusUrl")};

std::string UrlDecode(const std::string& Text)
{
	std::string Decoded;
	for (size_t Index = 0; Index < Text.size(); ++Index)
	{
		const bool bEscape = Text[Index] == '%' && Index + 2 < Text.size();
		Decoded += bEscape ? char(std::stoi(Text.substr(Index + 1, 2), nullptr, 16)) : Text[Index];
		Index += bEscape ? 2 : 0;
	}
	return Decoded;
}
}

void FLoginTest::SetUp()
{
	FEditorTest::SetUp();
	ASSERT_TRUE(bModuleWanted);
	FVexelClient::Get().ShutdownModule();
	for (const TCHAR* const Key : UrlKeys)
	{
		OldUrls.Add(FVexelInternalConfig::Find(Key)->Get());
		FVexelInternalConfig::Find(Key)->SetOverride(Server.GetUrl());
	}
	SetCallbackPort(0);
	FVexelSecureStorage::SetDirectory(GetProjectDir() / TEXT("LoginSecrets"));
	SetAnswer("/api/auth/plugin-client-id", FScriptedAnswer::Json(R"({"clientId":"plugin"})"));
	SetAnswer("/api/v2/status.json", FScriptedAnswer::Json(R"({"status":{"indicator":"none","description":""}})"));
	SetAnswer("/api/user", FScriptedAnswer::Json(R"({"name":"Ada"})"));
	SetAnswer("/oauth/revoke", FScriptedAnswer::Json("{}"));
	SetAnswer("/oauth/token", MakeTokens(RefreshToken));
	SetPoll(FScriptedAnswer::Json(R"({"status":"not_found"})"));
	FVexelClient::Get().StartupModule();
	FVexelAuth::SetOpenAddress([this](const FString& Url, FVexelAuth::FLaunchBrowser)
		{
			SetOpenedAddress(TCHAR_TO_UTF8(*Url));
			return FString(); });
	Log.Clear();
}

void FLoginTest::TearDown()
{
	FVexelClient::Get().ShutdownModule();
	FVexelAuth::SetOpenAddress(FVexelAuth::FOpenAddress());
	(void)FVexelSecureStorage::DeleteValue(TEXT("rt"));
	FVexelInternalConfig::Find(TEXT("AuthCallbackPort"))->ClearOverride();
	for (int32 Index = 0; Index < OldUrls.Num(); ++Index)
	{
		FVexelInternalConfig::Find(UrlKeys[Index])->SetOverride(OldUrls[Index]);
	}
	FVexelClient::Get().StartupModule();
}

void FLoginTest::RestartModule()
{
	FVexelClient::Get().ShutdownModule();
	FVexelClient::Get().StartupModule();
}

void FLoginTest::SetCallbackPort(int32 Port)
{
	FVexelInternalConfig::Find(TEXT("AuthCallbackPort"))->SetOverride(FString::FromInt(Port));
}

void FLoginTest::SetAnswer(const std::string& Path, const FScriptedAnswer& Answer)
{
	Server.AnswerWith(Path, [Answer](const FScriptedRequest&)
		{ return Answer; });
}

void FLoginTest::SetPoll(const FScriptedAnswer& Status, const FScriptedAnswer& Code)
{
	Server.AnswerWith("/oauth/poll", [Status, Code](const FScriptedRequest& Request)
		{ return Request.Body.find("return_code") == std::string::npos ? Status : Code; });
}

FScriptedAnswer FLoginTest::MakeTokens(const std::string& Refresh, double ExpiresIn)
{
	return FScriptedAnswer::Json("{\"access_token\":\"" + std::string(AccessToken) + "\",\"refresh_token\":\"" + Refresh +
		"\",\"expires_in\":" + std::to_string(ExpiresIn) + "}");
}

TSharedRef<FVexelAuthLoginState> FLoginTest::OpenLogin()
{
	SetOpenedAddress("");
	const TVexelExpected<TSharedRef<FVexelAuthLoginState>> Login = FVexelAuth::StartLogin();
	EXPECT_TRUE(PumpUntil([this]
		{ return !GetOpenedAddress().empty(); }))
		<< Log.ToText();
	return Login.GetValue();
}

TSharedRef<FVexelAuthLoginState> FLoginTest::LogIn()
{
	const TSharedRef<FVexelAuthLoginState> Login = OpenLogin();
	Callback(MakeCallback());
	EXPECT_TRUE(WaitForState(FVexelAuth::EState::Online)) << Log.ToText();
	return Login;
}

std::string FLoginTest::GetOpenedAddress() const
{
	const std::lock_guard Guard(OpenedLock);
	return OpenedAddress;
}

void FLoginTest::SetOpenedAddress(const std::string& Address)
{
	const std::lock_guard Guard(OpenedLock);
	OpenedAddress = Address;
}

std::string FLoginTest::GetOpened(const std::string& Name) const
{
	const std::string Address = GetOpenedAddress();
	return ReadForm(Address.substr(Address.find('?') + 1))[Name];
}

std::string FLoginTest::Callback(const std::string& Target, const std::string& Host) const
{
	const std::string Redirect = GetOpened("redirect_uri");
	const std::string Origin = "http://localhost:";
	EXPECT_EQ(Redirect.substr(0, Origin.size()), Origin) << Redirect;
	const FRawClient Browser(std::stoi(Redirect.substr(Origin.size())));
	return Browser.Ask("GET " + Target + " HTTP/1.1\r\nHost: " + Host + "\r\nConnection: close\r\n\r\n");
}

std::string FLoginTest::MakeCallback(const std::string& Code) const
{
	return "/auth-callback?auth_request_id=request-1&code=" + Code + "&state=" + GetOpened("state");
}

bool FLoginTest::WaitForState(FVexelAuth::EState State)
{
	return PumpUntil([State]
		{ return FVexelAuth::GetState() == State; });
}

std::string FLoginTest::GetStored(const TCHAR* Key)
{
	const TVexelExpected<FString> Stored = FVexelSecureStorage::LoadValueString(Key);
	return Stored.HasValue() ? std::string(TCHAR_TO_UTF8(*Stored.GetValue())) : std::string();
}

std::vector<FScriptedRequest> FLoginTest::FindRequests(const std::string& Path) const
{
	std::vector<FScriptedRequest> Found;
	for (const FScriptedRequest& Request : Server.GetRequests())
	{
		if (Request.GetPath() == Path)
		{
			Found.push_back(Request);
		}
	}
	return Found;
}

std::map<std::string, std::string> FLoginTest::ReadForm(const std::string& Text)
{
	std::map<std::string, std::string> Fields;
	for (size_t Begin = 0; Begin < Text.size();)
	{
		const size_t End = std::min(Text.find('&', Begin), Text.size());
		const std::string Pair = Text.substr(Begin, End - Begin);
		const size_t Equals = std::min(Pair.find('='), Pair.size());
		Fields[UrlDecode(Pair.substr(0, Equals))] = Equals < Pair.size() ? UrlDecode(Pair.substr(Equals + 1)) : "";
		Begin = End + 1;
	}
	return Fields;
}
