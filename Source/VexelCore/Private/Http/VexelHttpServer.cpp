#include "VexelHttpServer.h"

#include "Containers/StringConv.h"
#include "Http/LoopbackPeer.h"
#include "Misc/ScopeLock.h"
#include "VexelErrorKinds.h"
#include "VexelLog.h"
#include "VexelStringUtil.h"
#include "VexelTaskManager.h"

#include <atomic>
#include <condition_variable>
#include <httplib.h>
#include <mutex>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace
{
constexpr size_t MaxBodyBytes = 64 * 1024;
constexpr int32 MaxConnections = 8;
constexpr time_t DawdleSeconds = 2;
constexpr std::chrono::seconds LongestStop(2 * DawdleSeconds + 1);
/** A free port of one address may be taken at the other. */
constexpr int32 MaxBindAttempts = 16;
constexpr const char* Loopback4 = "127.0.0.1";
constexpr const char* Loopback6 = "::1";
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

/** Whether "localhost" may mean the address of IPv6 on this machine. */
bool HasLoopback6()
{
	const int Socket = socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0);
	sockaddr_in6 Address = {};
	Address.sin6_family = AF_INET6;
	Address.sin6_addr = in6addr_loopback;
	const bool bBound = Socket >= 0 && bind(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address)) == 0;
	if (Socket >= 0)
	{
		close(Socket);
	}
	return bBound;
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

/** One address that the server listens at, and the thread that does. */
class FVexelHttpServer::FEndpoint
{
public:
	using FAnswer = TFunction<void(EVexelHttpVerb, const httplib::Request&, httplib::Response&)>;

	explicit FEndpoint(const FAnswer& Answer)
	{
		Server.new_task_queue = []
		{ return new httplib::ThreadPool(MaxConnections); };
		Server.set_payload_max_length(MaxBodyBytes);
		Server.set_read_timeout(DawdleSeconds);
		Server.set_write_timeout(DawdleSeconds);
		Server.set_keep_alive_timeout(DawdleSeconds);
		Server.set_keep_alive_max_count(1);
		// The library's own choice would let a second server share the port, and half of the requests.
		Server.set_socket_options([this](socket_t Opened)
			{
				const int Yes = 1;
				setsockopt(Opened, SOL_SOCKET, SO_REUSEADDR, &Yes, sizeof(Yes));
				Socket = Opened; });
		const auto MakeHandler = [&Answer](EVexelHttpVerb Verb) -> httplib::Server::Handler
		{
			return [Answer, Verb](const httplib::Request& Request, httplib::Response& Response)
			{ Answer(Verb, Request, Response); };
		};
		Server.Get(AnyPath, MakeHandler(EVexelHttpVerb::Get));
		Server.Post(AnyPath, MakeHandler(EVexelHttpVerb::Post));
		Server.Put(AnyPath, MakeHandler(EVexelHttpVerb::Put));
	}

	~FEndpoint()
	{
		// The library closes only what it has listened at.
		if (bBound && !bListened)
		{
			close(Socket);
		}
	}
	UE_NONCOPYABLE(FEndpoint)

	/** The port, a free one for 0; negative when it cannot be had. */
	int32 Bind(const char* Address, int32 WantedPort)
	{
		const int32 Port =
			WantedPort == 0 ? Server.bind_to_any_port(Address) : (Server.bind_to_port(Address, WantedPort) ? WantedPort : -1);
		bBound = Port >= 0;
		return Port;
	}

	void Listen()
	{
		bListened = true;
		Server.listen_after_bind();
	}

	httplib::Server Server;
	std::thread Thread;

private:
	socket_t Socket = -1;
	bool bBound = false;
	std::atomic<bool> bListened = false;
};

/** The server while it listens. Its threads share it, so that a connection which outlives the stop finds it still there. */
class FVexelHttpServer::FListener
{
public:
	explicit FListener(const TArray<FRoute>& InRoutes)
		: Routes(InRoutes)
	{
	}

	/**
	 * Both loopback addresses where the machine has both, because browsers take either for "localhost", and another user's program
	 * at the other one would get what is meant for this. The port; negative when it cannot be had.
	 */
	int32 Bind(int32 WantedPort)
	{
		const bool bBoth = HasLoopback6();
		const int32 NumAttempts = WantedPort == 0 ? MaxBindAttempts : 1;
		for (int32 Attempt = 0; Attempt < NumAttempts; ++Attempt)
		{
			Endpoints.Reset();
			BoundPort = AddEndpoint(Loopback4, WantedPort);
			if (BoundPort >= 0 && (!bBoth || AddEndpoint(Loopback6, BoundPort) >= 0))
			{
				return BoundPort;
			}
		}
		Endpoints.Reset();
		return -1;
	}

	static void Run(const TSharedPtr<FListener>& This)
	{
		This->NumListening = This->Endpoints.Num();
		for (const TUniquePtr<FEndpoint>& Endpoint : This->Endpoints)
		{
			Endpoint->Thread = std::thread([This, &Endpoint = *Endpoint]
				{
					Endpoint.Listen();
					const std::lock_guard Guard(This->Mutex);
					--This->NumListening;
					This->Changed.notify_all(); });
		}
		// A stop that came before a thread listens would be lost.
		for (const TUniquePtr<FEndpoint>& Endpoint : This->Endpoints)
		{
			while (!Endpoint->Server.is_running() && !This->HasFailed())
			{
				std::this_thread::yield();
			}
		}
	}

	void Stop()
	{
		for (const TUniquePtr<FEndpoint>& Endpoint : Endpoints)
		{
			Endpoint->Server.stop();
		}
		std::unique_lock Guard(Mutex);
		bStopping = true;
		Changed.wait(Guard, [this]
			{ return NumRunning == 0; });
		const bool bInTime = Changed.wait_for(Guard, LongestStop, [this]
			{ return NumListening == 0; });
		Guard.unlock();
		if (!bInTime)
		{
			VEXEL_LOG(Warning, "A connection of the local HTTP server has not ended yet; it is left to itself");
		}
		for (const TUniquePtr<FEndpoint>& Endpoint : Endpoints)
		{
			if (bInTime)
			{
				Endpoint->Thread.join();
			}
			else
			{
				Endpoint->Thread.detach();
			}
		}
	}

	int32 GetPort() const { return BoundPort; }

private:
	int32 AddEndpoint(const char* Address, int32 WantedPort)
	{
		const TUniquePtr<FEndpoint>& Endpoint = Endpoints.Add_GetRef(
			MakeUnique<FEndpoint>([this](EVexelHttpVerb Verb, const httplib::Request& Request, httplib::Response& Response)
				{ Answer(Verb, Request, Response); }));
		return Endpoint->Bind(Address, WantedPort);
	}

	/** Whether an endpoint has ended by itself. */
	bool HasFailed()
	{
		const std::lock_guard Guard(Mutex);
		return NumListening < Endpoints.Num();
	}

	void Answer(EVexelHttpVerb Verb, const httplib::Request& Request, httplib::Response& Response)
	{
		if (!IsMeantForThisMachine(Request))
		{
			Response.status = 400;
			return;
		}
		if (!LoopbackPeer::IsOfThisUser({Request.remote_addr, Request.remote_port}, {Request.local_addr, Request.local_port}))
		{
			Response.status = 403;
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
				// The library has GET's handler answer HEAD too, but one who only looks is not to set anything going.
				Route = Candidate.Verb == Verb && Request.method != "HEAD" ? &Candidate : Route;
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
	TArray<TUniquePtr<FEndpoint>> Endpoints;
	int32 BoundPort = -1;

	std::mutex Mutex;
	std::condition_variable Changed;
	int32 NumListening = 0;
	int32 NumRunning = 0;
	bool bStopping = false;
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

void FVexelHttpServer::StopElsewhere(TSharedPtr<FVexelHttpServer>&& Server)
{
	if (Server)
	{
		FVexelTaskManager::ScheduleFunc(EVexelTaskThread::BackgroundThread, [Server = MoveTemp(Server)]
			{ Server->Stop(); });
	}
}

int32 FVexelHttpServer::GetPort() const
{
	FScopeLock Guard(&Lock);
	return Listener ? Listener->GetPort() : Port;
}
