#pragma once

#include "CoreMinimal.h"
#include "LogCapture.h"

#include <gtest/gtest.h>

/**
 * A test with the headless editor running on a temporary project. The editor is booted once a process, by the first such test,
 * and its project is removed at the end. Log lines of the test are captured.
 */
class FEditorTest : public testing::Test
{
public:
	/** Has the editor load a module when it boots. A test program says so before its first test. */
	static void WantModule(FName Module);

protected:
	virtual void SetUp() override;

	/** The temporary project's directory. */
	static const FString& GetProjectDir();

	/** Runs what is due on the game thread, without advancing time. */
	static void Pump();
	/** Advances the editor's clock, tickers and timers in steps of a frame, pumping at each. */
	static void AdvanceTime(float Seconds);
	/** Pumps until the condition holds, waiting for other threads in between; false when real time runs out first. */
	static bool PumpUntil(TFunctionRef<bool()> Condition, double TimeoutSeconds = 10.0);

	FLogCapture Log;
};
