#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/Guid.h"

/** Facts of the running program. Game thread only. */
struct CORE_API FApp
{
	/** Seconds of the tick's own clock, which the main loop or a test sets. */
	static double GetCurrentTime() { return CurrentTime; }
	static void SetCurrentTime(double Seconds) { CurrentTime = Seconds; }
	static double GetLastTime() { return LastTime; }
	static void UpdateLastTime() { LastTime = CurrentTime; }
	static double GetDeltaTime() { return DeltaTime; }
	static void SetDeltaTime(double Seconds) { DeltaTime = Seconds; }

	/** Without the ".uproject"; empty when no project is open. */
	static const TCHAR* GetProjectName();
	static void SetProjectName(const TCHAR* InProjectName);
	static bool HasProjectName();
	static FString GetName() { return GetProjectName(); }

	/** Whether nobody is there to answer questions. */
	static bool IsUnattended() { return bUnattended; }
	static void SetUnattended(bool bInUnattended) { bUnattended = bInUnattended; }
	static bool CanEverRender() { return false; }
	static bool IsGame() { return false; }

	/** A new one each time the program runs. */
	static FGuid GetInstanceId();
	static FGuid GetSessionId() { return GetInstanceId(); }

private:
	static double CurrentTime;
	static double LastTime;
	static double DeltaTime;
	static bool bUnattended;
};
