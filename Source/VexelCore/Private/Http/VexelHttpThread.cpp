#include "Http/VexelHttpThread.h"

#include "HAL/RunnableThread.h"
#include "Http/CurlLibrary.h"
#include "Misc/ScopeLock.h"

namespace
{
/** Longest sleep of the thread when nothing happens. It is woken for all that matters, so the value is only a safety net. */
constexpr int PollMilliseconds = 1000;
constexpr long MaxIdleConnections = 16;
/** Requests beyond it wait for a connection, so that a burst of them does not use up the process's descriptors. */
constexpr long MaxConnections = 128;
}

FVexelHttpThread::FVexelHttpThread()
{
	CurlLibrary::Start();
	Multi = curl_multi_init();
	check(Multi);
	curl_multi_setopt(Multi, CURLMOPT_MAXCONNECTS, MaxIdleConnections);
	curl_multi_setopt(Multi, CURLMOPT_MAX_TOTAL_CONNECTIONS, MaxConnections);
	Thread.Reset(FRunnableThread::Create(this, TEXT("VexelHttpThread")));
	checkf(Thread, TEXT("The network thread cannot be started"));
}

FVexelHttpThread::~FVexelHttpThread()
{
	Thread->Kill(true);
	Thread.Reset();
	curl_multi_cleanup(Multi);
}

void FVexelHttpThread::Submit(const TSharedRef<FVexelHttpTransfer>& Transfer)
{
	{
		FScopeLock Guard(&SubmittedLock);
		Submitted.Add(Transfer);
	}
	Wake();
}

void FVexelHttpThread::EndCancelled()
{
	bAnyCancelled = true;
	Wake();
}

void FVexelHttpThread::Wake()
{
	curl_multi_wakeup(Multi);
}

uint32 FVexelHttpThread::Run()
{
	while (!bStopping)
	{
		StartSubmitted();
		EndCancelledNow();
		int NumRunning = 0;
		curl_multi_perform(Multi, &NumRunning);
		EndFinished();
		curl_multi_poll(Multi, nullptr, 0, PollMilliseconds, nullptr);
	}
	EndAll();
	return 0;
}

void FVexelHttpThread::Stop()
{
	bStopping = true;
	Wake();
}

void FVexelHttpThread::StartSubmitted()
{
	TArray<TSharedRef<FVexelHttpTransfer>> Starting;
	{
		FScopeLock Guard(&SubmittedLock);
		Swap(Starting, Submitted);
	}
	for (const TSharedRef<FVexelHttpTransfer>& Transfer : Starting)
	{
		if (Transfer->IsCancelled())
		{
			Transfer->FinishCancelled();
		}
		else if (Transfer->Prepare())
		{
			curl_multi_add_handle(Multi, Transfer->GetHandle());
			Running.Add(&*Transfer, Transfer);
		}
	}
}

void FVexelHttpThread::EndCancelledNow()
{
	if (!bAnyCancelled.exchange(false))
	{
		return;
	}
	TArray<TSharedRef<FVexelHttpTransfer>> Cancelled;
	for (const auto& [Key, Transfer] : Running)
	{
		if (Transfer->IsCancelled())
		{
			Cancelled.Add(Transfer);
		}
	}
	for (const TSharedRef<FVexelHttpTransfer>& Transfer : Cancelled)
	{
		Remove(&*Transfer);
		Transfer->FinishCancelled();
	}
}

void FVexelHttpThread::EndFinished()
{
	int NumLeft = 0;
	while (CURLMsg* const Message = curl_multi_info_read(Multi, &NumLeft))
	{
		if (Message->msg != CURLMSG_DONE)
		{
			continue;
		}
		// Removing the handle frees the message.
		const CURLcode Code = Message->data.result;
		FVexelHttpTransfer* Finished = nullptr;
		curl_easy_getinfo(Message->easy_handle, CURLINFO_PRIVATE, &Finished);
		if (const TSharedPtr<FVexelHttpTransfer> Transfer = Remove(Finished))
		{
			Transfer->Finish(Code);
		}
	}
}

void FVexelHttpThread::EndAll()
{
	StartSubmitted();
	TArray<TSharedRef<FVexelHttpTransfer>> Ending;
	Running.GenerateValueArray(Ending);
	for (const TSharedRef<FVexelHttpTransfer>& Transfer : Ending)
	{
		Remove(&*Transfer);
		Transfer->FinishCancelled();
	}
}

TSharedPtr<FVexelHttpTransfer> FVexelHttpThread::Remove(FVexelHttpTransfer* Transfer)
{
	const TSharedRef<FVexelHttpTransfer>* const Found = Running.Find(Transfer);
	if (!Found)
	{
		return nullptr;
	}
	const TSharedRef<FVexelHttpTransfer> Removed = *Found;
	curl_multi_remove_handle(Multi, Removed->GetHandle());
	Running.Remove(Transfer);
	return Removed;
}
