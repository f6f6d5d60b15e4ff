#pragma once

#include "CoreMinimal.h"
#include "Tools/VexelTool.h"
#include "VexelHttp.h"

/**
 * The way of one tool's result, or of its error, to the service. A moment in which the service is slow, busy or away does not lose
 * the tool's work: what may pass by itself is tried again a few times, with growing pauses on the editor's clock. Made and sent on
 * the game thread; keeps itself alive until it is through.
 */
class FVexelToolReply : public TSharedFromThis<FVexelToolReply>
{
public:
	/** @param IsWanted Asked on the game thread before each attempt; nothing more is sent once it answers false. */
	FVexelToolReply(const TSharedRef<FVexelHttp>& ApiClient, const FVexelToolContext& Context, TFunction<bool()> IsWanted);

	/** Once. What fails for good is reported. */
	void Send(const TVexelExpected<TSharedRef<FJsonObject>>& Result);

private:
	void SetBody(const TVexelExpected<TSharedRef<FJsonObject>>& Result);
	void Post();
	void OnAnswer(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Answer);
	void PostLater(float PauseSeconds);
	/** Seconds after which to try again; unset where that is no use. */
	TOptional<float> FindPause(const FVexelError& Error, const TSharedPtr<FVexelHttpResponse>& Response) const;

	TSharedRef<FVexelHttp> ApiClient;
	FVexelToolContext Context;
	TFunction<bool()> IsWanted;
	FString Path;
	TSharedPtr<FJsonObject> Body;
	TSharedPtr<FVexelHttpRequest> HttpRequest;
	int32 NumAttempts = 0;
	bool bIsResult = false;
};
