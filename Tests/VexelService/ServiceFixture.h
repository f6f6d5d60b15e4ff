#pragma once

#include "Server/AssistantServer.h"
#include "Support/JsonText.h"

#include <httplib.h>

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace VexelService
{

/** A real service on a free port, with a clock that the test moves. */
class FServiceTest : public testing::Test
{
protected:
	void StartService();

	/** A client of its own for each call, as separate connections are what the plug-in uses. */
	httplib::Client MakeClient() const;

	FJson GetClientId() const;
	httplib::Result PostForm(const std::string& Path, const httplib::Params& Params) const;
	httplib::Result RefreshWith(const std::string& RefreshToken) const;

	/** Logs in: leaves an access token in AccessToken and returns the new refresh token. */
	std::string LogIn();

	httplib::Headers Bearer() const;
	httplib::Result PostJson(const std::string& Path, const FJson& Body) const;

	/** A valid chat body that asks Question. */
	static FJson ChatBody(const std::string& ChatId, const std::string& Question);

	FServerOptions Options;
	std::shared_ptr<std::atomic<std::int64_t>> Now = std::make_shared<std::atomic<std::int64_t>>(1'000'000);
	std::unique_ptr<FAssistantServer> Server;
	std::string AccessToken;
};

/** Posts a chat on a thread of its own and collects the stream as it arrives. */
class FStreamReader
{
public:
	FStreamReader(httplib::Client InClient, httplib::Headers Headers, const FJson& Body);
	~FStreamReader();

	/** Waits until the stream holds Text; returns what it holds by then. */
	std::string WaitFor(const std::string& Text);

	/** Waits for the stream's end; returns all of it. */
	std::string Finish();

	/** Closes the connection from this side at the next piece, or at once when the stream is silent. */
	void HangUp();

	int GetStatus() const { return Status; }
	/** False when the connection broke before the stream's proper end. */
	bool EndedWell() const { return bEndedWell; }

private:
	httplib::Client Client;
	std::mutex Mutex;
	std::condition_variable Arrived;
	std::string Received;
	bool bFinished = false;
	std::atomic<int> Status = 0;
	std::atomic<bool> bEndedWell = false;
	std::thread Thread;
};

/** The value of the first "<Name info={...}/>" of a stream. */
FJson TagInfo(const std::string& Stream, const std::string& Name);

}
