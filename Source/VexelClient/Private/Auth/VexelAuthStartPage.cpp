#include "Auth/VexelAuthStartPage.h"

#include "Misc/ScopeLock.h"
#include "VexelErrorKinds.h"
#include "VexelTry.h"

namespace
{
constexpr int32 NameBytes = 16;
const FString UsedUpText =
	TEXT("This page leads to a login once, and has done so. Go on where it was opened, or start the login again.");
}

/** The one visit that the page is there for; the server's handler shares it. */
struct FVexelAuthStartPage::FVisit
{
	/** Empties what is left, so that no later visit finds it. */
	FVexelAuthSecret TakeTarget()
	{
		FScopeLock Guard(&Lock);
		return MoveTemp(Target);
	}

	FCriticalSection Lock;
	FVexelAuthSecret Target;
};

TVexelExpected<TUniquePtr<FVexelAuthStartPage>> FVexelAuthStartPage::Make(const FVexelAuthSecret& Target)
{
	TArray<uint8> Name;
	if (!FVexelCrypto::SecureRandomBytes(Name, NameBytes))
	{
		return VEXEL_ERROR(FVexelError_Auth_HttpServer, "There are no random bytes for the start page");
	}
	const FString Path = TEXT("/auth-start/") + FVexelCrypto::Base64UrlEncode(Name);
	TUniquePtr<FVexelAuthStartPage> Page(new FVexelAuthStartPage(Target));
	VEXEL_TRY_VOID(Page->Server->AddRoute(EVexelHttpVerb::Get, Path, [Visit = Page->Visit](const FVexelHttpServerRequest&)
		{ return Answer(*Visit); }));
	VEXEL_TRY_VOID(Page->Server->Start());
	Page->Url = FString::Printf(TEXT("http://127.0.0.1:%d%s"), Page->Server->GetPort(), *Path);
	return Page;
}

FVexelAuthStartPage::FVexelAuthStartPage(const FVexelAuthSecret& Target)
	: Visit(MakeShared<FVisit>())
	, Server(MakeShared<FVexelHttpServer>(0))
{
	Visit->Target = Target;
}

FVexelAuthStartPage::~FVexelAuthStartPage()
{
	Visit->TakeTarget();
	FVexelHttpServer::StopElsewhere(MoveTemp(Server));
}

FVexelHttpServerResponse FVexelAuthStartPage::Answer(FVisit& Visit)
{
	const FVexelAuthSecret Target = Visit.TakeTarget();
	FVexelHttpServerResponse Answer(410, UsedUpText);
	if (!Target.IsEmpty())
	{
		Answer = FVexelHttpServerResponse(302, FString());
		Answer.Headers.Emplace(TEXT("Location"), Target.Get());
	}
	Answer.Headers.Emplace(TEXT("Cache-Control"), TEXT("no-store"));
	Answer.Headers.Emplace(TEXT("Referrer-Policy"), TEXT("no-referrer"));
	return Answer;
}
