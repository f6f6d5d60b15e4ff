#pragma once

#include "Async/TaskGraphInterfaces.h"
#include "CoreMinimal.h"
#include "HAL/PlatformTime.h"
#include "LogCapture.h"
#include "VexelTaskResult.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

inline std::string ToUtf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

/** A test with the task graph running, its own thread as the game thread. */
class FTaskTest : public testing::Test
{
protected:
	FTaskTest() { FTaskGraphInterface::Startup(); }
	virtual ~FTaskTest() override { FTaskGraphInterface::Shutdown(); }

	static void Pump() { FTaskGraphInterface::Get().ProcessThreadUntilIdle(ENamedThreads::GameThread); }

	/** Pumps the game thread until the result is complete, and answers its value; after ten seconds, as it stands. */
	template <typename T>
	static TVexelExpected<T> Await(const TVexelTaskResult<T>& Result)
	{
		constexpr double LongestWait = 10.0;
		const double Deadline = FPlatformTime::Seconds() + LongestWait;
		Result.OnComplete([](const TVexelExpected<T>&)
			{ FTaskGraphInterface::Get().WakeGameThread(); });
		while (Result.IsValid() && !Result.IsComplete() && FPlatformTime::Seconds() < Deadline)
		{
			FTaskGraphInterface::Get().WaitForGameThreadWork(FTimespan::FromSeconds(0.1));
			Pump();
		}
		return Result.Value();
	}
};
