#include "Auth/VexelAuthMonitor.h"

#include "Auth/VexelAuth.h"
#include "HAL/PlatformTLS.h"
#include "VexelLog.h"

FVexelAuthMonitor::FVexelAuthMonitor()
	: Thread(FRunnableThread::Create(this, TEXT("VexelAuthMonitoringThread")))
{
}

FVexelAuthMonitor::~FVexelAuthMonitor()
{
	if (Thread)
	{
		Thread->Kill(true);
	}
}

void FVexelAuthMonitor::Wake()
{
	Woken->Trigger();
}

void FVexelAuthMonitor::Stop()
{
	bStopping = true;
	Woken->Trigger();
}

uint32 FVexelAuthMonitor::Run()
{
	const uint32 ThreadId = FPlatformTLS::GetCurrentThreadId();
	VEXEL_LOG(Log, "Auth monitoring thread started: %u", ThreadId);
	while (!bStopping)
	{
		if (WaitUntilDue() && !bStopping)
		{
			VEXEL_LOG(Log, "Auth monitoring thread refreshing access token");
			FVexelAuth::RefreshDueToken();
		}
	}
	VEXEL_LOG(Log, "Auth monitoring thread exiting: %u", ThreadId);
	return 0;
}

bool FVexelAuthMonitor::WaitUntilDue()
{
	const TOptional<FDateTime> Due = FVexelAuth::GetRefreshTime();
	if (!Due)
	{
		Woken->Wait();
		return false;
	}
	const FTimespan Wait = *Due - FDateTime::UtcNow();
	if (Wait <= FTimespan::Zero())
	{
		return true;
	}
	VEXEL_LOG(Log, "Auth monitoring thread sleeping for %f seconds", Wait.GetTotalSeconds());
	return !Woken->Wait(Wait);
}
