#pragma once

#include "ScriptedHttpServer.h"
#include "TaskFixture.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"

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

/** An error of transport, not one of a status and not a cancellation. */
inline void ExpectTransportError(const FResponse& Response)
{
	ASSERT_TRUE(Response.HasError());
	EXPECT_EQ(&Response.GetError().GetKind(), &FVexelError_Http::StaticKind()) << ToUtf8(Response.GetError().ToString());
}
