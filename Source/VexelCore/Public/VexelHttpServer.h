#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "VexelExpected.h"
#include "VexelHttp.h"

/** A request to the local server. */
struct FVexelHttpServerRequest
{
	EVexelHttpVerb Verb = EVexelHttpVerb::Get;
	FString Path;
	/** Of the query string, decoded; the first of a name counts. */
	TMap<FString, FString> QueryParams;
	TArray<uint8> Body;

	/** Unset for a parameter that is not there. Names differ by case. */
	TOptional<FString> FindParam(const FString& Name) const;
};

/** An answer of the local server. */
struct FVexelHttpServerResponse
{
	FVexelHttpServerResponse() = default;
	FVexelHttpServerResponse(int32 InStatus, FString InText)
		: Status(InStatus)
		, Text(MoveTemp(InText))
	{
	}

	int32 Status = 200;
	/** Sent as plain text in UTF-8. */
	FString Text;
	/** A header that could begin another one turns the answer into status 500. */
	TArray<TTuple<FString, FString>> Headers;
};

/**
 * A small HTTP server for this user of this machine alone: it listens on the loopback interface, at the addresses of both families,
 * and nowhere else, refuses programs of other users with status 403, takes only small requests, and gives up on clients that dawdle.
 * Handlers run on the server's own threads, several at a time; a HEAD request reaches none.
 */
class VEXELCORE_API FVexelHttpServer
{
public:
	using FHandler = TFunction<FVexelHttpServerResponse(const FVexelHttpServerRequest&)>;

	/** @param Port 0 for a free one. */
	explicit FVexelHttpServer(int32 Port);
	/** Stops. */
	~FVexelHttpServer();
	UE_NONCOPYABLE(FVexelHttpServer)

	/** A route for a path to the letter. Before Start(); an error for a path without "/" in front, and for one that has a handler. */
	TVexelExpected<void> AddRoute(EVexelHttpVerb Verb, const FString& Path, FHandler Handler);

	/** Listens; requests are answered when this returns. An error when the port is taken, at either address, or the server runs already. */
	TVexelExpected<void> Start();

	/**
	 * Listens no more, and returns when no handler runs and none will begin. Not to be called by a handler. Does nothing when the
	 * server does not run.
	 */
	void Stop();

	/** Has a background thread stop and destroy a server, or none, for a caller that may be its own handler or must not wait. */
	static void StopElsewhere(TSharedPtr<FVexelHttpServer>&& Server);

	/** The port that it listens on; the one that it was made with while it does not. */
	int32 GetPort() const;

private:
	class FEndpoint;
	class FListener;

	struct FRoute
	{
		EVexelHttpVerb Verb;
		FString Path;
		FHandler Handler;
	};

	int32 Port;
	TArray<FRoute> Routes;
	mutable FCriticalSection Lock;
	TSharedPtr<FListener> Listener;
};
