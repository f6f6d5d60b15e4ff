#include "VexelHttpServer.h"

#include "Containers/StringConv.h"
#include "Misc/ScopeLock.h"
#include "VexelErrorKinds.h"
#include "VexelLog.h"
#include "VexelStringUtil.h"

#include <condition_variable>
#include <httplib.h>
#include <mutex>
#include <sys/socket.h>
#include <thread>

namespace
{
constexpr size_t MaxBodyBytes = 64 * 1024;
constexpr int32 MaxConnections = 8;
constexpr time_t DawdleSeconds = 2;
constexpr std::chrono::seconds LongestStop(2 * DawdleSeconds + 1);
constexpr const char* Loopback = "127.0.0.1";
constexpr const char* AnyPath = ".*";
constexpr const char* PlainText = "text/plain; charset=utf-8";

FString ToText(const std::string& Utf8)
{
	const FUTF8ToTCHAR Text(Utf8.data(), int32(Utf8.size()));
	return FString::ConstructFromPtrSize(Text.Get(), Text.Length());
}

/** Whether the request was addressed to this machine. A page of the web may have another name resolve to it. */
bool IsMeantForThisMachine(const httplib::Request& Request)
{
	const std::string Host = Request.get_header_value("Host");
	const std::string Name = Host.substr(0, Host.find_last_of(':') == Host.find(':') ? Host.find(':') : Host.find("]:") + 1);
	return Name == "localhost" || Name == "127.0.0.1" || Name == "[::1]";
}

bool StaysOnItsLine(const FString& Text)
{
	for (const TCHAR Character : Text)
	{
		if (Character < TEXT(' ') || Character == 127)
		{
			return false;
		}
	}
	return true;
}

void Write(const FVexelHttpServerResponse& Answer, httplib::Response& Out)
{
	for (const TTuple<FString, FString>& Header : Answer.Headers)
	{
		if (!StaysOnItsLine(Header.Get<0>()) || !StaysOnItsLine(Header.Get<1>()))
		{
			Out.headers.clear();
			Out.status = 500;
			return;
		}
		Out.set_header(FVexelStringUtil::ToStdStringUtf8(Header.Get<0>()), FVexelStringUtil::ToStdStringUtf8(Header.Get<1>()));
	}
	Out.status = Answer.Status;
	Out.set_content(FVexelStringUtil::ToStdStringUtf8(Answer.Text), PlainText);
}
}

/** The server while it listens. Its thread shares it, so that a connection which outlives the stop finds it still there. */
class FVexelHttpServer::FListener
{
public:
	explicit FListener(const TArray<FRoute>& InRoutes)
		: Routes(InRoutes)
	{
		Server.new_task_queue = []
		{ return new httplib::ThreadPool(MaxConnections); };
		Server.set_payload_max_length(MaxBodyBytes);
		Server.set_read_timeout(DawdleSeconds);
		Server.set_write_timeout(DawdleSeconds);
		Server.set_keep_alive_timeout(DawdleSeconds);
		Server.set_keep_alive_max_count(1);
		// The library's own choice would let a second server share the port, and half of the requests.
		Server.set_socket_options([](socket_t Socket)
			{
				const int Yes = 1;
				setsockopt(Socket, SOL_SOCKET, SO_REUSEADDR, &Yes, sizeof(Yes)); });
		Server.Get(AnyPath, MakeHandler(EVexelHttpVerb::Get));
		Server.Post(AnyPath, MakeHandler(EVexelHttpVerb::Post));
		Server.Put(AnyPath, MakeHandler(EVexelHttpVerb::Put));
	}

	/** The port; negative when it cannot be had. */
	int32 Bind(int32 WantedPort)
	{
		if (WantedPort == 0)
		{
			BoundPort = Server.bind_to_any_port(Loopback);
		}
		else
		{
			BoundPort = Server.bind_to_port(Loopback, WantedPort) ? WantedPort : -1;
		}
		return BoundPort;
	}

	static void Run(const TSharedPtr<FListener>& This)
	{
		This->Thread = std::thread([This]
			{
				This->Server.listen_after_bind();
				const std::lock_guard Guard(This->Mutex);
				This->bEnded = true;
				This->Changed.notify_all(); });
		// A stop that came before the thread listens would be lost.
		while (!This->Server.is_running() && !This->HasEnded())
		{
			std::this_thread::yield();
		}
	}

	void Stop()
	{
		Server.stop();
		std::unique_lock Guard(Mutex);
		bStopping = true;
		Changed.wait(Guard, [this]
			{ return NumRunning == 0; });
		const bool bInTime = Changed.wait_for(Guard, LongestStop, [this]
			{ return bEnded; });
		Guard.unlock();
		if (bInTime)
		{
			Thread.join();
			return;
		}
		VEXEL_LOG(Warning, "A connection of the local HTTP server has not ended yet; it is left to itself");
		Thread.detach();
	}

	int32 GetPort() const { return BoundPort; }

private:
	bool HasEnded()
	{
		const std::lock_guard Guard(Mutex);
		return bEnded;
	}

	httplib::Server::Handler MakeHandler(EVexelHttpVerb Verb)
	{
		return [this, Verb](const httplib::Request& Request, httplib::Response& Response)
		{ Answer(Verb, Request, Response); };
	}

	void Answer(EVexelHttpVerb Verb, const httplib::Request& Request, httplib::Response& Response)
	{
		if (!IsMeantForThisMachine(Request))
		{
			Response.status = 400;
			return;
		}
		const FString Path = ToText(Request.path);
		const FRoute* Route = nullptr;
		Response.status = 404;
		for (const FRoute& Candidate : Routes)
		{
			if (Candidate.Path.Equals(Path))
			{
				Response.status = 405;
				Route = Candidate.Verb == Verb ? &Candidate : Route;
			}
		}
		if (!Route || !BeginHandler())
		{
			Response.status = Route ? 503 : Response.status;
			return;
		}
		Write(Route->Handler(MakeRequest(Verb, Path, Request)), Response);
		EndHandler();
	}

	static FVexelHttpServerRequest MakeRequest(EVexelHttpVerb Verb, const FString& Path, const httplib::Request& Request)
	{
		FVexelHttpServerRequest Answer;
		Answer.Verb = Verb;
		Answer.Path = Path;
		for (const auto& [Name, Value] : Request.params)
		{
			if (!Answer.FindParam(ToText(Name)))
			{
				Answer.QueryParams.Emplace(ToText(Name), ToText(Value));
			}
		}
		Answer.Body.Append(reinterpret_cast<const uint8*>(Request.body.data()), int32(Request.body.size()));
		return Answer;
	}

	bool BeginHandler()
	{
		const std::lock_guard Guard(Mutex);
		NumRunning += bStopping ? 0 : 1;
		return !bStopping;
	}

	void EndHandler()
	{
		const std::lock_guard Guard(Mutex);
		--NumRunning;
		Changed.notify_all();
	}

	const TArray<FRoute> Routes;
	httplib::Server Server;
	std::thread Thread;
	int32 BoundPort = -1;

	std::mutex Mutex;
	std::condition_variable Changed;
	int32 NumRunning = 0;
	bool bStopping = false;
	bool bEnded = false;
};

TOptional<FString> FVexelHttpServerRequest::FindParam(const FString& Name) const
{
	for (const auto& [Key, Value] : QueryParams)
	{
		if (Key.Equals(Name))
		{
			return Value;
		}
	}
	return NullOpt;
}

FVexelHttpServer::FVexelHttpServer(int32 InPort)
	: Port(InPort)
{
}

FVexelHttpServer::~FVexelHttpServer()
{
	Stop();
}

TVexelExpected<void> FVexelHttpServer::AddRoute(EVexelHttpVerb Verb, const FString& Path, FHandler Handler)
{
	FScopeLock Guard(&Lock);
	if (Listener)
	{
		return VEXEL_ERROR_TITLED(FVexelError_Http, "Route refused", "The server runs already");
	}
	if (!Path.StartsWith(TEXT("/")))
	{
		return VEXEL_ERROR_TITLED(FVexelError_Http, "Route refused", "'%s' does not begin with '/'", *Path);
	}
	const bool bTaken = Routes.ContainsByPredicate([&](const FRoute& Route)
		{ return Route.Verb == Verb && Route.Path.Equals(Path); });
	if (bTaken)
	{
		return VEXEL_ERROR_TITLED(FVexelError_Http, "Route refused", "'%s' has a handler already", *Path);
	}
	Routes.Add(FRoute{Verb, Path, MoveTemp(Handler)});
	return TVexelExpected<void>();
}

TVexelExpected<void> FVexelHttpServer::Start()
{
	FScopeLock Guard(&Lock);
	if (Listener)
	{
		return VEXEL_ERROR_TITLED(FVexelError_Http, "Server not started", "The server runs already");
	}
	const TSharedRef<FListener> Starting = MakeShared<FListener>(Routes);
	if (Starting->Bind(Port) < 0)
	{
		return VEXEL_ERROR_TITLED(FVexelError_Http, "Server not started", "Port %d of the loopback interface cannot be had", Port);
	}
	FListener::Run(Starting);
	Listener = Starting;
	return TVexelExpected<void>();
}

void FVexelHttpServer::Stop()
{
	TSharedPtr<FListener> Stopping;
	{
		FScopeLock Guard(&Lock);
		Stopping = MoveTemp(Listener);
	}
	if (Stopping)
	{
		Stopping->Stop();
	}
}

int32 FVexelHttpServer::GetPort() const
{
	FScopeLock Guard(&Lock);
	return Listener ? Listener->GetPort() : Port;
}
