#include "HAL/RunnableThread.h"

#include "Containers/StringConv.h"
#include "HAL/Event.h"
#include "HAL/PlatformTLS.h"
#include "HAL/Runnable.h"
#include "Misc/AssertionMacros.h"
#include "Misc/ScopeLock.h"
#include "Templates/UniquePtr.h"

#include <pthread.h>

namespace
{
class FPosixRunnableThread final : public FRunnableThread
{
public:
	FPosixRunnableThread(FRunnable* InRunnable, const TCHAR* InThreadName, EThreadPriority InPriority)
		: Runnable(InRunnable)
	{
		ThreadName = InThreadName;
		ThreadPriority = InPriority;
	}
	~FPosixRunnableThread() override { Kill(true); }

	bool Start(uint32 StackSize)
	{
		pthread_attr_t Attributes;
		pthread_attr_init(&Attributes);
		if (StackSize > 0)
		{
			// The engine's callers ask for stacks that are small for this system's C library.
			constexpr size_t SmallestStack = 256 * 1024;
			pthread_attr_setstacksize(&Attributes, StackSize < SmallestStack ? SmallestStack : StackSize);
		}
		bJoinable = pthread_create(&Thread, &Attributes, &FPosixRunnableThread::Main, this) == 0;
		pthread_attr_destroy(&Attributes);
		if (bJoinable)
		{
			Started->Wait();
		}
		return bJoinable;
	}

	bool Kill(bool bShouldWait) override
	{
		Runnable->Stop();
		if (bShouldWait)
		{
			WaitForCompletion();
		}
		return true;
	}

	void WaitForCompletion() override
	{
		const FScopeLock Lock(&JoinLock);
		if (bJoinable)
		{
			checkf(!pthread_equal(Thread, pthread_self()), TEXT("A thread cannot wait for its own end: %s"), *ThreadName);
			pthread_join(Thread, nullptr);
			bJoinable = false;
		}
	}

private:
	static void* Main(void* Self)
	{
		static_cast<FPosixRunnableThread*>(Self)->RunThread();
		return nullptr;
	}

	void RunThread()
	{
		ThreadID = FPlatformTLS::GetCurrentThreadId();
		// The system keeps 15 characters of a thread's name.
		pthread_setname_np(pthread_self(), TCHAR_TO_UTF8(*ThreadName.Left(15)));
		const bool bInitialized = Runnable->Init();
		Started->Trigger();
		if (bInitialized)
		{
			Runnable->Run();
			Runnable->Exit();
		}
	}

	FRunnable* Runnable;
	FEventRef Started{EEventMode::ManualReset};
	FCriticalSection JoinLock;
	pthread_t Thread{};
	bool bJoinable = false;
};
}

FRunnableThread* FRunnableThread::Create(
	FRunnable* Runnable, const TCHAR* ThreadName, uint32 StackSize, EThreadPriority Priority, uint64 AffinityMask)
{
	check(Runnable != nullptr);
	TUniquePtr<FPosixRunnableThread> Thread = MakeUnique<FPosixRunnableThread>(Runnable, ThreadName, Priority);
	return Thread->Start(StackSize) ? Thread.Release() : nullptr;
}
