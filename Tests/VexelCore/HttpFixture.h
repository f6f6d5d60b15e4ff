#pragma once

#include "ScriptedHttpServer.h"
#include "TaskFixture.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using FResponse = TVexelExpected<TSharedRef<FVexelHttpResponse>>;
using testing::HasSubstr;

/** A scripted server and a client of it. */
class FHttpTest : public FTaskTest
{
protected:
	FHttpTest() { Client = MakeShared<FVexelHttp>(FVexelHttpClientConfig(Server.GetUrl())); }
	virtual ~FHttpTest() override
	{
		FVexelHttpManager::SetAuthProvider(nullptr);
		FVexelHttpManager::Shutdown();
	}

	FResponse Get(const TCHAR* Path) { return Await(Client->Request(EVexelHttpVerb::Get, Path).SendAndAwait()); }

	FScriptedHttpServer Server;
	TSharedPtr<FVexelHttp> Client;
};

/** A provider that answers what the test says. */
struct FFixedAuth final : FVexelHttp::IAuthProvider
{
	virtual EAuthResult GetAuthState(FString& OutToken) override
	{
		OutToken = TEXT("token-1");
		return Result;
	}

	EAuthResult Result = EAuthResult::Authenticated;
};

/** A port of the loopback interface that nobody listens on. */
inline int32 FindClosedPort()
{
	const int Socket = socket(AF_INET, SOCK_STREAM, 0);
	sockaddr_in Address = {};
	Address.sin_family = AF_INET;
	Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
	socklen_t Length = sizeof(Address);
	bind(Socket, reinterpret_cast<sockaddr*>(&Address), sizeof(Address));
	getsockname(Socket, reinterpret_cast<sockaddr*>(&Address), &Length);
	close(Socket);
	return ntohs(Address.sin_port);
}

/** An error of transport, not one of a status and not a cancellation. */
inline void ExpectTransportError(const FResponse& Response)
{
	ASSERT_TRUE(Response.HasError());
	EXPECT_EQ(&Response.GetError().GetKind(), &FVexelError_Http::StaticKind()) << ToUtf8(Response.GetError().ToString());
}
