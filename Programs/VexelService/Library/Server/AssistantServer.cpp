#include "Server/AssistantServer.h"

#include "Assistant/Assistant.h"
#include "Chat/ChatRequest.h"
#include "Chat/ChatTurn.h"
#include "Chat/StreamWriter.h"
#include "Server/ConnectionThreads.h"
#include "Server/HttpAnswers.h"
#include "Server/ImageStore.h"
#include "Server/LoginRoutes.h"
#include "Server/ReportStore.h"
#include "Server/TurnChannel.h"
#include "Support/JsonText.h"

#include <httplib.h>

#include <cstdio>
#include <algorithm>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <utility>

namespace VexelService
{

namespace
{

constexpr const char* LoopbackAddress = "127.0.0.1";
// Media types do not mind case, but the HTTP library's compressor does: it leaves this spelling alone. Compressed, a stream
// would reach the user in one burst at its end.
constexpr const char* StreamType = "Text/plain; charset=utf-8";
constexpr std::size_t MaxBodyBytes = 16u << 20;
/** Where images are fetched, their id behind it: outside the paths that need a login, as the id itself is the secret. */
constexpr const char* ImagePath = "/images/";
constexpr int MaxConnections = 512;
constexpr std::size_t MaxTurns = 256;
constexpr std::size_t MaxErrorMessageBytes = 64u << 10;

// The library's own choice would let another program listen on the same port and take half of the connections.
void UsePortAlone(socket_t Socket)
{
	const int Yes = 1;
	setsockopt(Socket, SOL_SOCKET, SO_REUSEADDR, &Yes, sizeof(Yes));
}

const char* DescribeStatus(int Status)
{
	switch (Status)
	{
		case 404:
			return "There is nothing at this path.";
		case 413:
			return "The body is too large.";
		case 414:
			return "The path is too long.";
		default:
			return Status >= 500 ? "The service failed to answer." : "The request is malformed.";
	}
}

bool IsApiPath(const std::string& Path)
{
	return Path.rfind("/api/", 0) == 0;
}

struct FToolAnswer
{
	std::string ChatId;
	std::string ReplyId;
	FToolOutcome Outcome;
};

TOrRefusal<FToolAnswer> ReadToolAnswer(const httplib::Request& Request, bool bIsError)
{
	std::optional<FJson> Body = ParseJson(Request.body);
	if (!Body || !Body->is_object())
	{
		return FRefusal{400, "The body must be a JSON object."};
	}
	FToolAnswer Answer{.ChatId = Request.matches[1].str(), .ReplyId = TextMember(*Body, "reply_id"), .Outcome = {}};
	if (Answer.ReplyId.empty())
	{
		return FRefusal{422, "\"reply_id\" must be a string."};
	}
	if (TextMember(*Body, "chat_id") != Answer.ChatId)
	{
		return FRefusal{422, "\"chat_id\" must be the chat that the path names."};
	}
	if (bIsError)
	{
		Answer.Outcome = {.Status = EToolStatus::Failed, .ErrorMessage = TextMember(*Body, "error_message")};
		if (Answer.Outcome.ErrorMessage.empty() || Answer.Outcome.ErrorMessage.size() > MaxErrorMessageBytes)
		{
			return FRefusal{422, "\"error_message\" must be a string of 1 to " + std::to_string(MaxErrorMessageBytes) + " bytes."};
		}
		return Answer;
	}
	const auto Reply = Body->find("tool_reply");
	if (Reply == Body->end() || !Reply->is_object())
	{
		return FRefusal{422, "\"tool_reply\" must be an object."};
	}
	Answer.Outcome = {.Status = EToolStatus::Replied, .Reply = std::move(*Reply)};
	return Answer;
}

}

class FAssistantServer::FImplementation
{
public:
	FImplementation(const FServerOptions& Options, std::unique_ptr<FTokenService> InTokens)
		: Config(Options.Config)
		, Tokens(std::move(InTokens))
		, Login(Config, *Tokens, Options.Clock)
	{
		Http.set_payload_max_length(MaxBodyBytes);
		Http.set_tcp_nodelay(true);
		Http.set_socket_options([this](socket_t Socket)
			{
				UsePortAlone(Socket);
				ListeningSocket = Socket; });
		Http.set_keep_alive_timeout(1);
		Http.new_task_queue = []
		{ return new FConnectionThreads(MaxConnections); };
		Http.set_pre_routing_handler([](const httplib::Request& Request, httplib::Response& Response)
			{
				if (IsAddressedToLoopback(Request))
				{
					return httplib::Server::HandlerResponse::Unhandled;
				}
				SendRefusal(Response, {421, "This service answers to the names of the loopback interface alone."});
				return httplib::Server::HandlerResponse::Handled; });
		Http.set_error_handler([this](const httplib::Request& Request, httplib::Response& Response)
			{ AnswerError(Request, Response); });
		if (Options.bVerbose)
		{
			Http.set_logger([](const httplib::Request& Request, const httplib::Response& Response)
				{ std::fprintf(stderr, "%s %s %d\n", Request.method.c_str(), Request.path.c_str(), Response.status); });
		}
		Login.AddTo(Http);
		AddApiRoutes();
		AddReportRoutes();
	}

	~FImplementation()
	{
		Turns.EndAll();
		Login.Stop();
		Http.stop();
		if (Listener.joinable())
		{
			Listener.join();
		}
	}

	bool Listen(int WantedPort)
	{
		if (WantedPort == 0)
		{
			Port = Http.bind_to_any_port(LoopbackAddress);
		}
		else
		{
			Port = Http.bind_to_port(LoopbackAddress, WantedPort) ? WantedPort : -1;
		}
		// The library lets five connections wait to be accepted, and a burst of chats would lose the others. Listening again on a
		// socket that listens only changes this number.
		if (Port <= 0 || listen(ListeningSocket, MaxConnections) != 0)
		{
			return false;
		}
		Listener = std::thread([this]
			{ Http.listen_after_bind(); });
		// Stopping a server that does not run yet would leave it running.
		while (!Http.is_running())
		{
			std::this_thread::sleep_for(std::chrono::milliseconds(1));
		}
		return true;
	}

	int GetPort() const { return Port; }
	FTokenService& GetTokens() { return *Tokens; }
	std::size_t CountTurns() const { return Turns.Count(); }

private:
	using FUserHandler = std::function<void(const httplib::Request&, httplib::Response&, const std::string& UserId)>;

	// The one door to every path that needs a login.
	httplib::Server::Handler ForUser(FUserHandler Handler)
	{
		return [this, Handler = std::move(Handler)](const httplib::Request& Request, httplib::Response& Response)
		{
			const TOrRefusal<std::string> UserId = Tokens->Authorize(Request.get_header_value("Authorization"));
			if (!UserId)
			{
				SendRefusal(Response, UserId.Error());
				return;
			}
			Handler(Request, Response, *UserId);
		};
	}

	void AddApiRoutes()
	{
		Http.Get("/api/user", ForUser([this](const httplib::Request&, httplib::Response& Response, const std::string&)
								  { AnswerUser(Response); }));
		Http.Post("/api/validate_beta_features", ForUser([this](const httplib::Request& Request, httplib::Response& Response, const std::string&)
													 { AnswerFeatureCheck(Request, Response); }));
		// As the status page of a service that is up: nobody needs a login for it.
		Http.Get("/api/v2/status.json", [](const httplib::Request&, httplib::Response& Response)
			{ SendJson(Response, 200, {{"status", {{"indicator", "none"}, {"description", "The local service is running"}}}}); });
		Http.Get(std::string(ImagePath) + "([A-Za-z0-9_-]+)", [this](const httplib::Request& Request, httplib::Response& Response)
			{ AnswerImage(Request, Response); });
		Http.Post("/api/chat", ForUser([this](const httplib::Request& Request, httplib::Response& Response, const std::string& UserId)
								   { AnswerChat(Request, Response, UserId); }));
		for (const bool bError : {false, true})
		{
			Http.Post(bError ? "/api/tool_error/([^/]+)" : "/api/tool_reply/([^/]+)",
				ForUser([this, bError](const httplib::Request& Request, httplib::Response& Response, const std::string& UserId)
					{ AnswerToolResult(Request, Response, UserId, bError); }));
		}
	}

	void AddReportRoutes()
	{
		Http.Post("/api/[0-9]+/envelope/", [this](const httplib::Request& Request, httplib::Response& Response)
			{ AnswerReport(Request, Response); });
		Http.Get("/api/reports", ForUser([this](const httplib::Request&, httplib::Response& Response, const std::string&)
									 { SendJson(Response, 200, {{"reports", Reports.GetReports()}}); }));
	}

	void AnswerReport(const httplib::Request& Request, httplib::Response& Response)
	{
		if (Request.get_header_value("X-Sentry-Auth").find("sentry_key=") == std::string::npos)
		{
			SendRefusal(Response, {401, "The header X-Sentry-Auth has no sentry_key."});
			return;
		}
		const TOrRefusal<std::string> Id = Reports.Take(Request.body);
		if (!Id)
		{
			SendRefusal(Response, Id.Error());
			return;
		}
		SendJson(Response, 200, {{"id", *Id}});
	}

	void AnswerError(const httplib::Request& Request, httplib::Response& Response)
	{
		if (!Response.body.empty())
		{
			return;
		}
		// Who is not logged in learns nothing about which paths exist.
		if (Response.status == 404 && IsApiPath(Request.path))
		{
			const TOrRefusal<std::string> UserId = Tokens->Authorize(Request.get_header_value("Authorization"));
			if (!UserId)
			{
				SendRefusal(Response, UserId.Error());
				return;
			}
		}
		SendRefusal(Response, {Response.status, DescribeStatus(Response.status)});
	}

	void AnswerUser(httplib::Response& Response)
	{
		const FUserProfile& User = Config.User;
		const FOrderedJson Body = {
			{"name", User.Name},
			{"email", User.Email},
			{"credits", User.Credits},
			{"max_credits", User.MaxCredits},
			{"features", User.Features},
		};
		SendJson(Response, 200, Body);
	}

	// The client lists in the header what it believes is switched on; a list that is not the account's own says what differs.
	void AnswerFeatureCheck(const httplib::Request& Request, httplib::Response& Response)
	{
		std::vector<std::string> Claimed;
		std::istringstream List(Request.get_header_value("vexel-beta"));
		for (std::string Name; std::getline(List, Name, ',');)
		{
			Claimed.push_back(Name);
		}
		const auto FindMissing = [](const std::vector<std::string>& Names, const std::vector<std::string>& In)
		{ return std::find_if(Names.begin(), Names.end(), [&](const std::string& Name)
			  { return std::find(In.begin(), In.end(), Name) == In.end(); }); };
		const std::vector<std::string>& Enabled = Config.User.Features;
		if (const auto Unknown = FindMissing(Claimed, Enabled); Unknown != Claimed.end())
		{
			SendRefusal(Response, {400, "The feature '" + *Unknown + "' is not switched on for this account."});
			return;
		}
		if (const auto Missing = FindMissing(Enabled, Claimed); Missing != Enabled.end())
		{
			SendRefusal(Response, {400, "The header vexel-beta lacks the feature '" + *Missing + "'."});
			return;
		}
		SendJson(Response, 200, {{"features", Enabled}});
	}

	void AnswerChat(const httplib::Request& Request, httplib::Response& Response, const std::string& UserId)
	{
		TOrRefusal<FChatRequest> Chat = ReadChatRequest(Request.body);
		if (!Chat)
		{
			SendRefusal(Response, Chat.Error());
			return;
		}
		if (!Chat->UserId.empty() && Chat->UserId != UserId)
		{
			SendRefusal(Response, {403, "\"user_id\" is not the user who is logged in."});
			return;
		}
		const std::shared_ptr<FChatTurn> Turn = Turns.Count() < MaxTurns ? Turns.Begin(Chat->ChatId, UserId) : nullptr;
		if (!Turn)
		{
			SendRefusal(Response, {503, "The service answers too many chats at once."});
			return;
		}
		const auto Shared = std::make_shared<const FChatRequest>(std::move(*Chat));
		Response.set_header("Cache-Control", "no-store");
		Response.set_chunked_content_provider(
			StreamType,
			[this, Shared, Turn](std::size_t, httplib::DataSink& Sink)
			{ return StreamTurn(*Shared, *Turn, Sink); },
			[this, Shared, Turn](bool)
			{ Turns.Finish(Shared->ChatId, Turn); });
	}

	bool StreamTurn(const FChatRequest& Request, FChatTurn& Turn, httplib::DataSink& Sink)
	{
		FStreamWriter Writer([&Sink](std::string_view Bytes)
			{ return Sink.write(Bytes.data(), Bytes.size()); },
			Config.PieceDelay);
		FTurnChannel Channel(
			Turn, Writer, Config.ToolTimeout, [&Sink]
			{ return Sink.is_writable(); },
			[this](std::string_view Base64)
			{ return KeepImage(Base64); });
		AnswerTurn(Request, Channel);
		Channel.Finish();
		// The client sees an ended turn as a broken stream, not as a complete answer.
		if (Turn.HasEnded())
		{
			return false;
		}
		Sink.done();
		return true;
	}

	std::optional<FKeptImage> KeepImage(std::string_view Base64)
	{
		const std::optional<std::string> Id = Images.Add(Base64);
		return Id ? std::optional<FKeptImage>({*Id, std::string("http://") + LoopbackAddress + ":" + std::to_string(Port) + ImagePath + *Id})
				  : std::nullopt;
	}

	void AnswerImage(const httplib::Request& Request, httplib::Response& Response)
	{
		const std::optional<std::string> Bytes = Images.Find(Request.matches[1].str());
		if (!Bytes)
		{
			SendRefusal(Response, {404, "This image is not kept any more, or never was."});
			return;
		}
		Response.set_content(*Bytes, "image/png");
	}

	void AnswerToolResult(const httplib::Request& Request, httplib::Response& Response, const std::string& UserId, bool bIsError)
	{
		TOrRefusal<FToolAnswer> Answer = ReadToolAnswer(Request, bIsError);
		if (!Answer)
		{
			SendRefusal(Response, Answer.Error());
			return;
		}
		if (!Turns.Answer(Answer->ChatId, UserId, Answer->ReplyId, std::move(Answer->Outcome)))
		{
			SendRefusal(Response, {404, "No tool call of this chat waits for this reply."});
			return;
		}
		SendJson(Response, 200, FOrderedJson::object());
	}

	const FServiceConfig Config;
	const std::unique_ptr<FTokenService> Tokens;
	FLoginRoutes Login;
	FChatTurns Turns;
	FReportStore Reports;
	FImageStore Images;
	httplib::Server Http;
	socket_t ListeningSocket = INVALID_SOCKET;
	std::thread Listener;
	int Port = -1;
};

TOrRefusal<std::unique_ptr<FAssistantServer>> FAssistantServer::Start(const FServerOptions& Options)
{
	TOrRefusal<std::unique_ptr<FTokenService>> Tokens = FTokenService::Open(Options.Config, FStateFile(Options.DataFolder), Options.Clock);
	if (!Tokens)
	{
		return Tokens.Error();
	}
	auto Implementation = std::make_unique<FImplementation>(Options, std::move(*Tokens));
	if (!Implementation->Listen(Options.Port))
	{
		return FRefusal{500, "cannot listen on port " + std::to_string(Options.Port) + " of " + LoopbackAddress};
	}
	return std::unique_ptr<FAssistantServer>(new FAssistantServer(std::move(Implementation)));
}

FAssistantServer::FAssistantServer(std::unique_ptr<FImplementation> InImplementation)
	: Implementation(std::move(InImplementation))
{
}

FAssistantServer::~FAssistantServer() = default;

int FAssistantServer::GetPort() const
{
	return Implementation->GetPort();
}

std::string FAssistantServer::GetUrl() const
{
	return std::string("http://") + LoopbackAddress + ":" + std::to_string(GetPort());
}

TOrRefusal<std::string> FAssistantServer::MintRefreshToken()
{
	return Implementation->GetTokens().MintRefreshToken();
}

std::size_t FAssistantServer::CountTurns() const
{
	return Implementation->CountTurns();
}

}
