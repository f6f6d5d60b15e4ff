#pragma once

#include "Auth/VexelAuthSecret.h"
#include "VexelExpected.h"
#include "VexelHttpServer.h"

/**
 * A page of this machine that sends the browser on to an address, once, and only a browser of this user. What opens the browser is
 * given the page's address, because every user of the machine may read it there on a command line.
 */
class FVexelAuthStartPage
{
public:
	/** The page is there until this is destroyed. */
	static TVexelExpected<TUniquePtr<FVexelAuthStartPage>> Make(const FVexelAuthSecret& Target);
	/** Does not wait for a browser that is just being sent on. */
	~FVexelAuthStartPage();
	UE_NONCOPYABLE(FVexelAuthStartPage)

	const FString& GetUrl() const { return Url; }

private:
	struct FVisit;

	explicit FVexelAuthStartPage(const FVexelAuthSecret& Target);
	static FVexelHttpServerResponse Answer(FVisit& Visit);

	const TSharedRef<FVisit> Visit;
	TSharedPtr<FVexelHttpServer> Server;
	FString Url;
};
