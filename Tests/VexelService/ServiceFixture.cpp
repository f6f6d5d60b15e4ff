#include "ServiceFixture.h"

#include <utility>

namespace VexelService
{

void FServiceTest::StartService()
{
	Options.Clock = [Time = Now]
	{ return Time->load(); };
	TOrRefusal<std::unique_ptr<FAssistantServer>> Started = FAssistantServer::Start(Options);
	ASSERT_TRUE(Started) << Started.Error().Detail;
	Server = std::move(*Started);
}

httplib::Client FServiceTest::MakeClient() const
{
	httplib::Client Client("127.0.0.1", Server->GetPort());
	Client.set_read_timeout(20);
	return Client;
}

FJson FServiceTest::GetClientId() const
{
	const httplib::Result Result = MakeClient().Get("/api/auth/plugin-client-id");
	return Result ? FJson::parse(Result->body)["clientId"] : FJson();
}

httplib::Result FServiceTest::PostForm(const std::string& Path, const httplib::Params& Params) const
{
	return MakeClient().Post(Path, Params);
}

httplib::Result FServiceTest::RefreshWith(const std::string& RefreshToken) const
{
	return PostForm("/oauth/token", {{"grant_type", "refresh_token"}, {"refresh_token", RefreshToken}, {"client_id", GetClientId()}});
}

std::string FServiceTest::LogIn()
{
	const TOrRefusal<std::string> First = Server->MintRefreshToken();
	const httplib::Result Result = RefreshWith(*First);
	EXPECT_EQ(Result->status, 200) << Result->body;
	const FJson Tokens = FJson::parse(Result->body);
	AccessToken = Tokens["access_token"];
	return Tokens["refresh_token"];
}

httplib::Headers FServiceTest::Bearer() const
{
	return {{"Authorization", "Bearer " + AccessToken}};
}

httplib::Result FServiceTest::PostJson(const std::string& Path, const FJson& Body) const
{
	return MakeClient().Post(Path, Bearer(), Body.dump(), "application/json");
}

FJson FServiceTest::ChatBody(const std::string& ChatId, const std::string& Question)
{
	return {
		{"chat_id", ChatId},
		{"user_id", ""},
		{"checkpoint_id", ""},
		{"conversation_title", "Chat"},
		{"chat_mode", "vexel_agent"},
		{"engine_version", "5.7"},
		{"messages", {{{"role", "user"}, {"content", Question}}}},
		{"context", {{"editor_window_name", "Editor"}, {"current_world", "/Game/Map"}, {"open_assets", {"/Game/Doors/BP_Door.BP_Door"}}}},
	};
}

FStreamReader::FStreamReader(httplib::Client InClient, httplib::Headers Headers, const FJson& Body)
	: Client(std::move(InClient))
{
	Thread = std::thread([this, Headers = std::move(Headers), Text = Body.dump()]
		{
			httplib::Request Request;
			Request.method = "POST";
			Request.path = "/api/chat";
			Request.headers = Headers;
			Request.set_header("Content-Type", "application/json");
			Request.body = Text;
			Request.response_handler = [this](const httplib::Response& Response) { Status = Response.status; return true; };
			Request.content_receiver = [this](const char* Data, std::size_t Size, std::uint64_t, std::uint64_t)
			{
				const std::lock_guard Lock(Mutex);
				Received.append(Data, Size);
				Arrived.notify_all();
				return true;
			};
			const httplib::Result Result = Client.send(Request);
			bEndedWell = static_cast<bool>(Result);
			const std::lock_guard Lock(Mutex);
			bFinished = true;
			Arrived.notify_all(); });
}

FStreamReader::~FStreamReader()
{
	if (Thread.joinable())
	{
		HangUp();
		Thread.join();
	}
}

std::string FStreamReader::WaitFor(const std::string& Text)
{
	std::unique_lock Lock(Mutex);
	Arrived.wait_for(Lock, std::chrono::seconds(20), [&]
		{ return bFinished || Received.find(Text) != std::string::npos; });
	return Received;
}

std::string FStreamReader::Finish()
{
	Thread.join();
	return Received;
}

void FStreamReader::HangUp()
{
	Client.stop();
}

FJson TagInfo(const std::string& Stream, const std::string& Name)
{
	const std::string Opening = "<" + Name + " info=";
	const std::size_t Begin = Stream.find(Opening);
	const std::size_t End = Stream.find("/>", Begin);
	if (Begin == std::string::npos || End == std::string::npos)
	{
		return {};
	}
	return FJson::parse(Stream.substr(Begin + Opening.size(), End - Begin - Opening.size()), nullptr, false);
}

}
