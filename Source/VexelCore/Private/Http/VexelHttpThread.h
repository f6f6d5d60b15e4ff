#pragma once

#include "CoreMinimal.h"
#include "HAL/Runnable.h"
#include "Http/VexelHttpTransfer.h"

#include <curl/curl.h>

class FRunnableThread;

/** The one network thread: drives every transfer over libcurl's multi interface. */
class FVexelHttpThread final : public FRunnable
{
public:
	FVexelHttpThread();
	/** Cancels what is in flight and waits for the thread. */
	virtual ~FVexelHttpThread() override;

	/** Any thread. */
	void Submit(const TSharedRef<FVexelHttpTransfer>& Transfer);
	/** Has the thread end the transfers that were cancelled. Any thread. */
	void EndCancelled();

	virtual uint32 Run() override;
	virtual void Stop() override;

private:
	void Wake();
	void StartSubmitted();
	/** Those of Running, where any was cancelled since the last call. */
	void EndCancelledNow();
	void EndFinished();
	void EndAll();
	TSharedPtr<FVexelHttpTransfer> Remove(FVexelHttpTransfer* Transfer);

	CURLM* Multi;
	std::atomic<bool> bStopping = false;
	std::atomic<bool> bAnyCancelled = false;

	FCriticalSection SubmittedLock;
	TArray<TSharedRef<FVexelHttpTransfer>> Submitted;

	/** The network thread's own. */
	TMap<FVexelHttpTransfer*, TSharedRef<FVexelHttpTransfer>> Running;

	TUniquePtr<FRunnableThread> Thread;
};
