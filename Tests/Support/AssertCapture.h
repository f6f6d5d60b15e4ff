#pragma once

#include "CoreMinimal.h"
#include "Containers/StringConv.h"
#include "Misc/ScopeLock.h"

#include <string>
#include <vector>

/**
 * Takes failed ensures while it lives, from any thread. A failed check still ends the program: for one use EXPECT_DEATH, outside
 * such a capture, so that its message reaches standard error.
 */
class FAssertCapture
{
public:
	struct FFailure
	{
		std::string Expression;
		std::string Message;
	};

	FAssertCapture() { FDebug::SetAssertHandler(&FAssertCapture::Take, this); }
	~FAssertCapture() { FDebug::SetAssertHandler(nullptr, nullptr); }

	UE_NONCOPYABLE(FAssertCapture)

	std::vector<FFailure> GetFailures() const
	{
		FScopeLock Guard(&Lock);
		return Failures;
	}

private:
	static bool Take(const FAssertionFailure& Failure, void* Capture)
	{
		FAssertCapture* const This = static_cast<FAssertCapture*>(Capture);
		FScopeLock Guard(&This->Lock);
		This->Failures.push_back({Failure.Expression, TCHAR_TO_UTF8(Failure.Message)});
		return !Failure.bIsFatal;
	}

	mutable FCriticalSection Lock;
	std::vector<FFailure> Failures;
};
