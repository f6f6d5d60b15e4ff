#pragma once

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthLoginState.h"
#include "EditorFixture.h"
#include "ScriptedHttpServer.h"
#include "VexelErrorKinds.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>

/** The module at a scripted service, started afresh, with a secret store of the test's own; the browser is the test. */
class FLoginTest : public FEditorTest
{
protected:
	static constexpr const char* AccessToken = "e30.eyJzdWIiOiJ1c2VyLTEifQ.signature";
	static constexpr const char* RefreshToken = "refresh-token-of-the-login";

	virtual void SetUp() override;
	virtual void TearDown() override;

	/** Starts the module again, which takes up a stored login. */
	static void RestartModule();
	std::string GetUrl() const { return "http://127.0.0.1:" + std::to_string(Server.GetPort()); }
	/** Which port the callback takes; 0 for a free one. */
	static void SetCallbackPort(int32 Port);

	/** From now on. */
	void SetAnswer(const std::string& Path, const FScriptedAnswer& Answer);
	/** What "/oauth/poll" answers when asked for the status, and when asked for the code. */
	void SetPoll(const FScriptedAnswer& Status, const FScriptedAnswer& Code = FScriptedAnswer::Json(R"({"code":"polled-code"})"));
	static FScriptedAnswer MakeTokens(const std::string& Refresh, double ExpiresIn = 3600.0);

	/** Starts a login and waits until its address was opened. */
	TSharedRef<FVexelAuthLoginState> OpenLogin();
	/** A login that the callback has completed. */
	TSharedRef<FVexelAuthLoginState> LogIn();

	/** A parameter of the address that was opened last, decoded. */
	std::string GetOpened(const std::string& Name) const;
	std::string GetOpenedAddress() const;
	/** Where another way than the fixture's opened the login. */
	void SetOpenedAddress(const std::string& Address);
	/** What the callback's server answers to that target, whole; Host is whom the request is addressed to. */
	std::string Callback(const std::string& Target, const std::string& Host = "localhost") const;
	/** The target that the service would send the browser to. */
	std::string MakeCallback(const std::string& Code = "called-code") const;

	bool WaitForState(FVexelAuth::EState State);
	static std::string GetStored(const TCHAR* Key);
	/** The requests of a path, in their order. */
	std::vector<FScriptedRequest> FindRequests(const std::string& Path) const;
	/** The fields of a form body or a query, decoded. */
	static std::map<std::string, std::string> ReadForm(const std::string& Text);

	FScriptedHttpServer Server;

private:
	mutable std::mutex OpenedLock;
	std::string OpenedAddress;
	TArray<FString> OldUrls;
};
