#pragma once

#include "CoreMinimal.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using FHttpHeaders = std::vector<std::pair<std::string, std::string>>;

/** One request as it came over the wire. */
struct FScriptedRequest
{
	std::string Method;
	/** "/path?query" */
	std::string Target;
	FHttpHeaders Headers;
	std::string Body;

	std::string GetPath() const { return Target.substr(0, Target.find('?')); }
	/** Without its "?"; empty without one. */
	std::string GetQuery() const { return Target.find('?') == std::string::npos ? "" : Target.substr(Target.find('?') + 1); }
	/** None for a header that is not there; names compare without regard to case. */
	std::optional<std::string> GetHeader(const std::string& Name) const;
	int32 CountHeader(const std::string& Name) const;
};

/** Keeps answers from going on until the test lets them. */
class FScriptedGate
{
public:
	void Open();
	/** False when the server stopped first. */
	bool Wait(const std::atomic<bool>& bStopping);

private:
	std::mutex Mutex;
	std::condition_variable Changed;
	bool bOpen = false;
};

/**
 * What the server does about one request, step by step. A body of one Text is sent with its length; a body of chunks with chunked
 * coding, each chunk flushed before the next step.
 */
class FScriptedAnswer
{
public:
	explicit FScriptedAnswer(int32 InStatus = 200)
		: Status(InStatus)
	{
	}

	/** Bytes to send just as they are, in place of a status line, headers and body. */
	static FScriptedAnswer Raw(std::string Bytes);
	static FScriptedAnswer Json(std::string Text, int32 Status = 200)
	{
		return FScriptedAnswer(Status).Header("Content-Type", "application/json").Text(std::move(Text));
	}
	static FScriptedAnswer Redirect(std::string Location, int32 Status = 302) { return FScriptedAnswer(Status).Header("Location", std::move(Location)); }

	FScriptedAnswer& Header(std::string Name, std::string Value);
	/** The whole body. */
	FScriptedAnswer& Text(std::string Bytes);
	/** Not an empty one, which would end the body. */
	FScriptedAnswer& Chunk(std::string Bytes);
	FScriptedAnswer& Pause(std::chrono::milliseconds Time);
	/** Before the first chunk it holds the headers back too. */
	FScriptedAnswer& WaitFor(FScriptedGate& Gate);
	/** Sends nothing more and keeps the connection open until the client closes it or the server stops. */
	FScriptedAnswer& Stall();
	/** Closes the connection in the middle of the answer. */
	FScriptedAnswer& Close();

private:
	friend class FScriptedHttpServer;

	enum class EStep : uint8
	{
		Chunk,
		Pause,
		Wait,
		Stall,
		Close
	};
	struct FStep
	{
		EStep Kind;
		std::string Bytes;
		std::chrono::milliseconds Time{0};
		FScriptedGate* Gate = nullptr;
	};

	int32 Status;
	FHttpHeaders Headers;
	std::optional<std::string> WholeBody;
	std::optional<std::string> RawBytes;
	std::vector<FStep> Steps;
};

/** An HTTP/1.1 server on a free port of the loopback interface, which answers by script and remembers what it was asked. */
class FScriptedHttpServer
{
public:
	using FAnswerFunction = std::function<FScriptedAnswer(const FScriptedRequest&)>;

	FScriptedHttpServer();
	/** Ends every answer that is under way. */
	~FScriptedHttpServer();

	UE_NONCOPYABLE(FScriptedHttpServer)

	int32 GetPort() const { return Port; }
	/** "http://127.0.0.1:PORT" */
	FString GetUrl() const { return FString::Printf(TEXT("http://127.0.0.1:%d"), Port); }

	/** The next answer of a path. Answers of a path are given in their order; the last is given again and again. */
	void Answer(const std::string& Path, FScriptedAnswer Answer);
	/** Answers every request of a path by a function, which is called on the connection's thread. */
	void AnswerWith(const std::string& Path, FAnswerFunction Function);

	/** Everything asked so far, in the order in which the requests were read. A path without a script is answered with 404. */
	std::vector<FScriptedRequest> GetRequests() const;
	/** Waits until so many requests have been read; false when that takes longer than ten seconds. */
	bool WaitForRequests(size_t Num) const;
	/** Waits until that many connections were closed by the client or ended; false as above. */
	bool WaitForClosedConnections(size_t Num) const;

private:
	struct FScript
	{
		std::vector<FScriptedAnswer> Answers;
		size_t NumGiven = 0;
		FAnswerFunction Function;
	};

	void Accept();
	void Serve(int Socket);
	bool ServeOne(int Socket, std::string& Buffered);
	bool Read(int Socket, std::string& Buffered) const;
	bool ReadRequest(int Socket, std::string& Buffered, FScriptedRequest& OutRequest) const;
	bool ReadChunkedBody(int Socket, std::string& Buffered, std::string& OutBody) const;
	FScriptedAnswer Choose(const FScriptedRequest& Request);
	/** False when the connection is to be closed. */
	bool Send(int Socket, const FScriptedAnswer& Answer);
	bool SendSteps(int Socket, const FScriptedAnswer& Answer);
	void WaitForClose(int Socket) const;

	int Listener = -1;
	int32 Port = 0;
	std::atomic<bool> bStopping{false};

	mutable std::mutex Mutex;
	mutable std::condition_variable Changed;
	std::map<std::string, FScript> Scripts;
	std::vector<FScriptedRequest> Requests;
	std::vector<std::thread> Connections;
	size_t NumClosed = 0;

	std::thread Acceptor;
};
