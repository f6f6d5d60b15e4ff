#include "CoreMinimal.h"

#include "Misc/OutputDeviceRedirector.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

DEFINE_LOG_CATEGORY_STATIC(LogTestsCategory, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogTestsQuiet, Verbose, Warning);

namespace
{
/** Collects lines while it lives, and keeps the console silent. */
class FLineCatcher : public FOutputDevice
{
public:
	FLineCatcher()
		: OldVerbosity(GLog->GetConsoleVerbosity())
	{
		GLog->SetConsoleVerbosity(ELogVerbosity::NoLogging);
		GLog->AddOutputDevice(this);
	}
	~FLineCatcher() override
	{
		GLog->RemoveOutputDevice(this);
		GLog->SetConsoleVerbosity(OldVerbosity);
	}
	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Lines.push_back(TCHAR_TO_UTF8(*FString::Printf(TEXT("%s/%s/%s"), *Category.ToString(), ToString(Verbosity), V)));
	}

	std::vector<std::string> Lines;

private:
	ELogVerbosity::Type OldVerbosity;
};

struct FCaughtFailure
{
	std::string Expression;
	std::string Message;
	bool bIsFatal = false;
	int32 Count = 0;
};

bool CatchFailure(const FAssertionFailure& Failure, void* Context)
{
	FCaughtFailure& Caught = *static_cast<FCaughtFailure*>(Context);
	Caught = {Failure.Expression, TCHAR_TO_UTF8(Failure.Message), Failure.bIsFatal, Caught.Count + 1};
	return true;
}

struct FCatcherScope
{
	explicit FCatcherScope(FCaughtFailure& Caught) { FDebug::SetAssertHandler(&CatchFailure, &Caught); }
	~FCatcherScope() { FDebug::SetAssertHandler(nullptr, nullptr); }
};
}

TEST(Log, LinesReachDevicesByVerbosityOfTheirCategory)
{
	FLineCatcher Catcher;
	int32 NumEvaluated = 0;
	UE_LOG(LogTestsCategory, Warning, TEXT("number %d"), ++NumEvaluated);
	UE_LOG(LogTestsCategory, Verbose, TEXT("number %d"), ++NumEvaluated);
	EXPECT_TRUE(FLogCategoryBase::SetVerbosityByName(TEXT("LogTestsCategory"), ELogVerbosity::Verbose));
	UE_LOG(LogTestsCategory, Verbose, TEXT("number %d"), ++NumEvaluated);
	LogTestsCategory.SetVerbosity(ELogVerbosity::Error);
	UE_LOG(LogTestsCategory, Warning, TEXT("number %d"), ++NumEvaluated);
	UE_CLOG(NumEvaluated == 99, LogTestsCategory, Error, TEXT("never"));
	LogTestsCategory.SetVerbosity(ELogVerbosity::Log);
	const std::vector<std::string> Expected = {"LogTestsCategory/Warning/number 1", "LogTestsCategory/Verbose/number 2"};
	EXPECT_EQ(Catcher.Lines, Expected);
	EXPECT_EQ(NumEvaluated, 2) << "arguments of lines that nobody writes are not evaluated";
}

TEST(Log, CategoryNeverLogsMoreThanItWasCompiledWith)
{
	FLineCatcher Catcher;
	LogTestsQuiet.SetVerbosity(ELogVerbosity::VeryVerbose);
	UE_LOG(LogTestsQuiet, Log, TEXT("compiled out"));
	UE_LOG(LogTestsQuiet, Warning, TEXT("kept"));
	EXPECT_EQ(Catcher.Lines, std::vector<std::string>{"LogTestsQuiet/Warning/kept"});
}

TEST(Assertions, EnsureReportsOnceAndGoesOn)
{
	FCaughtFailure Caught;
	const FCatcherScope Scope(Caught);
	for (int32 Round = 0; Round < 3; ++Round)
	{
		EXPECT_FALSE(ensureMsgf(Round < 0, TEXT("round %d"), Round));
	}
	EXPECT_EQ(Caught.Count, 1);
	EXPECT_EQ(Caught.Expression, "Round < 0");
	EXPECT_EQ(Caught.Message, "round 0");
	EXPECT_FALSE(Caught.bIsFatal);
	for (int32 Round = 0; Round < 3; ++Round)
	{
		EXPECT_FALSE(ensureAlways(Round < 0));
	}
	EXPECT_EQ(Caught.Count, 4);
	EXPECT_TRUE(ensure(Caught.Count == 4));
}

TEST(AssertionsDeathTest, CheckEndsTheProgramWithItsMessage)
{
	EXPECT_DEATH(checkf(1 + 1 == 3, TEXT("sum is %d"), 1 + 1), "Assertion failed: 1 \\+ 1 == 3 .*LogTests.cpp.*sum is 2");
	EXPECT_DEATH(UE_LOG(LogTestsCategory, Fatal, TEXT("the end of %s"), TEXT("it")), "the end of it");
}
