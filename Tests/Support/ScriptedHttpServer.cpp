#include "ScriptedHttpServer.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cstdlib>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
/** How soon a thread that waits for the other side notices that the server stops. */
constexpr int PollMilliseconds = 20;
constexpr std::chrono::seconds LongestWait{10};

bool SendAll(int Socket, const std::string& Bytes)
{
	for (size_t NumSent = 0; NumSent < Bytes.size();)
	{
		const ssize_t NumNow = send(Socket, Bytes.data() + NumSent, Bytes.size() - NumSent, MSG_NOSIGNAL);
		if (NumNow <= 0)
		{
			return false;
		}
		NumSent += size_t(NumNow);
	}
	return true;
}

std::string ToHex(size_t Number)
{
	char Text[20];
	std::snprintf(Text, sizeof(Text), "%zx", Number);
	return Text;
}

std::string TakeLine(std::string& Buffered, size_t LineEnd)
{
	std::string Line = Buffered.substr(0, LineEnd);
	Buffered.erase(0, LineEnd + 2);
	return Line;
}

void AddHeader(FScriptedRequest& Request, const std::string& Line)
{
	const size_t Colon = Line.find(':');
	if (Colon == std::string::npos)
	{
		return;
	}
	const size_t Start = Line.find_first_not_of(' ', Colon + 1);
	Request.Headers.emplace_back(Line.substr(0, Colon), Start == std::string::npos ? "" : Line.substr(Start));
}
}

std::optional<std::string> FScriptedRequest::GetHeader(const std::string& Name) const
{
	const auto Found = std::find_if(Headers.begin(), Headers.end(), [&](const auto& Header)
		{ return strcasecmp(Header.first.c_str(), Name.c_str()) == 0; });
	return Found == Headers.end() ? std::nullopt : std::optional(Found->second);
}

int32 FScriptedRequest::CountHeader(const std::string& Name) const
{
	return int32(std::count_if(Headers.begin(), Headers.end(), [&](const auto& Header)
		{ return strcasecmp(Header.first.c_str(), Name.c_str()) == 0; }));
}

void FScriptedGate::Open()
{
	const std::lock_guard Guard(Mutex);
	bOpen = true;
	Changed.notify_all();
}

bool FScriptedGate::Wait(const std::atomic<bool>& bStopping)
{
	std::unique_lock Guard(Mutex);
	while (!bOpen && !bStopping)
	{
		Changed.wait_for(Guard, std::chrono::milliseconds(PollMilliseconds));
	}
	return bOpen;
}

FScriptedAnswer FScriptedAnswer::Raw(std::string Bytes)
{
	FScriptedAnswer Answer;
	Answer.RawBytes = std::move(Bytes);
	return Answer;
}

FScriptedAnswer& FScriptedAnswer::Header(std::string Name, std::string Value)
{
	Headers.emplace_back(std::move(Name), std::move(Value));
	return *this;
}

FScriptedAnswer& FScriptedAnswer::Text(std::string Bytes)
{
	WholeBody = std::move(Bytes);
	return *this;
}

FScriptedAnswer& FScriptedAnswer::Chunk(std::string Bytes)
{
	Steps.push_back({EStep::Chunk, std::move(Bytes)});
	return *this;
}

FScriptedAnswer& FScriptedAnswer::Pause(std::chrono::milliseconds Time)
{
	Steps.push_back({EStep::Pause, {}, Time});
	return *this;
}

FScriptedAnswer& FScriptedAnswer::WaitFor(FScriptedGate& Gate)
{
	Steps.push_back({EStep::Wait, {}, {}, &Gate});
	return *this;
}

FScriptedAnswer& FScriptedAnswer::Stall()
{
	Steps.push_back({EStep::Stall, {}});
	return *this;
}

FScriptedAnswer& FScriptedAnswer::Close()
{
	Steps.push_back({EStep::Close, {}});
	return *this;
}

FScriptedHttpServer::FScriptedHttpServer()
{
	Listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
	sockaddr_in Address = {};
	Address.sin_family = AF_INET;
	Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
	socklen_t Length = sizeof(Address);
	const bool bBound = bind(Listener, reinterpret_cast<sockaddr*>(&Address), sizeof(Address)) == 0;
	const bool bListening = bBound && listen(Listener, SOMAXCONN) == 0;
	checkf(bListening, TEXT("The scripted server cannot listen"));
	getsockname(Listener, reinterpret_cast<sockaddr*>(&Address), &Length);
	Port = ntohs(Address.sin_port);
	Acceptor = std::thread([this]
		{ Accept(); });
}

FScriptedHttpServer::~FScriptedHttpServer()
{
	bStopping = true;
	Acceptor.join();
	for (std::thread& Connection : Connections)
	{
		Connection.join();
	}
	close(Listener);
}

void FScriptedHttpServer::Answer(const std::string& Path, FScriptedAnswer NewAnswer)
{
	const std::lock_guard Guard(Mutex);
	Scripts[Path].Answers.push_back(std::move(NewAnswer));
}

void FScriptedHttpServer::AnswerWith(const std::string& Path, FAnswerFunction Function)
{
	const std::lock_guard Guard(Mutex);
	Scripts[Path].Function = std::move(Function);
}

std::vector<FScriptedRequest> FScriptedHttpServer::GetRequests() const
{
	const std::lock_guard Guard(Mutex);
	return Requests;
}

bool FScriptedHttpServer::WaitForRequests(size_t Num) const
{
	std::unique_lock Guard(Mutex);
	return Changed.wait_for(Guard, LongestWait, [&]
		{ return Requests.size() >= Num; });
}

bool FScriptedHttpServer::WaitForClosedConnections(size_t Num) const
{
	std::unique_lock Guard(Mutex);
	return Changed.wait_for(Guard, LongestWait, [&]
		{ return NumClosed >= Num; });
}

void FScriptedHttpServer::Accept()
{
	while (!bStopping)
	{
		pollfd Waited = {Listener, POLLIN, 0};
		if (poll(&Waited, 1, PollMilliseconds) <= 0)
		{
			continue;
		}
		const int Socket = accept4(Listener, nullptr, nullptr, SOCK_CLOEXEC);
		if (Socket < 0)
		{
			continue;
		}
		// Each step is to arrive on its own, at its own time.
		const int Yes = 1;
		setsockopt(Socket, IPPROTO_TCP, TCP_NODELAY, &Yes, sizeof(Yes));
		const std::lock_guard Guard(Mutex);
		Connections.emplace_back([this, Socket]
			{ Serve(Socket); });
	}
}

void FScriptedHttpServer::Serve(int Socket)
{
	std::string Buffered;
	while (!bStopping && ServeOne(Socket, Buffered))
	{
	}
	close(Socket);
	const std::lock_guard Guard(Mutex);
	++NumClosed;
	Changed.notify_all();
}

bool FScriptedHttpServer::ServeOne(int Socket, std::string& Buffered)
{
	FScriptedRequest Request;
	return ReadRequest(Socket, Buffered, Request) && Send(Socket, Choose(Request));
}

/** Waits for more bytes; false at the end of the connection and when the server stops. */
bool FScriptedHttpServer::Read(int Socket, std::string& Buffered) const
{
	while (!bStopping)
	{
		pollfd Waited = {Socket, POLLIN, 0};
		if (poll(&Waited, 1, PollMilliseconds) <= 0)
		{
			continue;
		}
		char Bytes[16384];
		const ssize_t NumRead = recv(Socket, Bytes, sizeof(Bytes), 0);
		if (NumRead <= 0)
		{
			return false;
		}
		Buffered.append(Bytes, size_t(NumRead));
		return true;
	}
	return false;
}

bool FScriptedHttpServer::ReadRequest(int Socket, std::string& Buffered, FScriptedRequest& OutRequest) const
{
	while (Buffered.find("\r\n\r\n") == std::string::npos)
	{
		if (!Read(Socket, Buffered))
		{
			return false;
		}
	}
	const std::string First = TakeLine(Buffered, Buffered.find("\r\n"));
	const size_t MethodEnd = First.find(' ');
	const size_t TargetEnd = First.rfind(' ');
	if (MethodEnd == std::string::npos || TargetEnd <= MethodEnd)
	{
		return false;
	}
	OutRequest.Method = First.substr(0, MethodEnd);
	OutRequest.Target = First.substr(MethodEnd + 1, TargetEnd - MethodEnd - 1);
	for (size_t LineEnd = Buffered.find("\r\n"); LineEnd != 0; LineEnd = Buffered.find("\r\n"))
	{
		AddHeader(OutRequest, TakeLine(Buffered, LineEnd));
	}
	Buffered.erase(0, 2);
	if (OutRequest.GetHeader("Transfer-Encoding"))
	{
		return ReadChunkedBody(Socket, Buffered, OutRequest.Body);
	}
	const size_t Length = size_t(std::strtoull(OutRequest.GetHeader("Content-Length").value_or("0").c_str(), nullptr, 10));
	while (Buffered.size() < Length)
	{
		if (!Read(Socket, Buffered))
		{
			return false;
		}
	}
	OutRequest.Body = Buffered.substr(0, Length);
	Buffered.erase(0, Length);
	return true;
}

bool FScriptedHttpServer::ReadChunkedBody(int Socket, std::string& Buffered, std::string& OutBody) const
{
	while (true)
	{
		while (Buffered.find("\r\n") == std::string::npos)
		{
			if (!Read(Socket, Buffered))
			{
				return false;
			}
		}
		const size_t Length = size_t(std::strtoull(TakeLine(Buffered, Buffered.find("\r\n")).c_str(), nullptr, 16));
		while (Buffered.size() < Length + 2)
		{
			if (!Read(Socket, Buffered))
			{
				return false;
			}
		}
		OutBody += Buffered.substr(0, Length);
		Buffered.erase(0, Length + 2);
		if (Length == 0)
		{
			return true;
		}
	}
}

FScriptedAnswer FScriptedHttpServer::Choose(const FScriptedRequest& Request)
{
	FAnswerFunction Function;
	{
		const std::lock_guard Guard(Mutex);
		Requests.push_back(Request);
		Changed.notify_all();
		const auto Found = Scripts.find(Request.GetPath());
		if (Found == Scripts.end())
		{
			return FScriptedAnswer(404).Text("no such path");
		}
		FScript& Script = Found->second;
		if (!Script.Answers.empty())
		{
			const size_t Index = std::min(Script.NumGiven, Script.Answers.size() - 1);
			++Script.NumGiven;
			return Script.Answers[Index];
		}
		Function = Script.Function;
	}
	return Function(Request);
}

bool FScriptedHttpServer::Send(int Socket, const FScriptedAnswer& Answer)
{
	if (Answer.RawBytes)
	{
		SendAll(Socket, *Answer.RawBytes);
		return false;
	}
	const bool bChunked = std::any_of(Answer.Steps.begin(), Answer.Steps.end(), [](const auto& Step)
		{ return Step.Kind == FScriptedAnswer::EStep::Chunk || Step.Kind == FScriptedAnswer::EStep::Close; });
	std::string Head = "HTTP/1.1 " + std::to_string(Answer.Status) + " Scripted\r\n";
	for (const auto& [Name, Value] : Answer.Headers)
	{
		Head += Name + ": " + Value + "\r\n";
	}
	Head += bChunked ? "Transfer-Encoding: chunked\r\n\r\n" : "Content-Length: " + std::to_string(Answer.WholeBody.value_or("").size()) + "\r\n\r\n";

	// What stands before the first chunk happens before the headers too, so that a silent server can be had.
	const auto FirstChunk = std::find_if(
		Answer.Steps.begin(), Answer.Steps.end(), [](const auto& Step)
		{ return Step.Kind == FScriptedAnswer::EStep::Chunk; });
	FScriptedAnswer Before;
	Before.Steps.assign(Answer.Steps.begin(), FirstChunk);
	FScriptedAnswer After;
	After.Steps.assign(FirstChunk, Answer.Steps.end());
	if (!SendSteps(Socket, Before) || !SendAll(Socket, Head + Answer.WholeBody.value_or("")) || !SendSteps(Socket, After))
	{
		return false;
	}
	return !bChunked || SendAll(Socket, "0\r\n\r\n");
}

bool FScriptedHttpServer::SendSteps(int Socket, const FScriptedAnswer& Answer)
{
	for (const FScriptedAnswer::FStep& Step : Answer.Steps)
	{
		switch (Step.Kind)
		{
			case FScriptedAnswer::EStep::Chunk:
				if (!SendAll(Socket, ToHex(Step.Bytes.size()) + "\r\n" + Step.Bytes + "\r\n"))
				{
					return false;
				}
				break;
			case FScriptedAnswer::EStep::Pause:
				std::this_thread::sleep_for(Step.Time);
				break;
			case FScriptedAnswer::EStep::Wait:
				if (!Step.Gate->Wait(bStopping))
				{
					return false;
				}
				break;
			case FScriptedAnswer::EStep::Stall:
				WaitForClose(Socket);
				return false;
			case FScriptedAnswer::EStep::Close:
				return false;
		}
	}
	return true;
}

void FScriptedHttpServer::WaitForClose(int Socket) const
{
	std::string Ignored;
	while (Read(Socket, Ignored))
	{
	}
}
