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
	/** Makes the thread look at cancelled transfers. Any thread. */
	void Wake();

	virtual uint32 Run() override;
	virtual void Stop() override;

private:
	void StartSubmitted();
	void EndCancelled();
	void EndFinished();
	void EndAll();
	TSharedPtr<FVexelHttpTransfer> Remove(FVexelHttpTransfer* Transfer);

	CURLM* Multi;
	std::atomic<bool> bStopping = false;

	FCriticalSection SubmittedLock;
	TArray<TSharedRef<FVexelHttpTransfer>> Submitted;

	/** The network thread's own. */
	TArray<TSharedRef<FVexelHttpTransfer>> Running;

	TUniquePtr<FRunnableThread> Thread;
};
