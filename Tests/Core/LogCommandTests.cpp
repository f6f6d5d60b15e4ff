#include "FilesFixture.h"

#include "LogCapture.h"
#include "Logging/LogSuppressionInterface.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreMisc.h"
#include "Misc/OutputDeviceFile.h"

#include <thread>
#include <vector>

DEFINE_LOG_CATEGORY_STATIC(LogCommandsA, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogCommandsB, Warning, Warning);

namespace
{
/** Puts the verbosities back. */
class FLogCommandTest : public FFilesTest
{
protected:
	~FLogCommandTest() override { FLogSuppressionInterface::Get().ProcessCommands(TEXT("reset"), *GLog); }

	/** What the commands said. */
	static std::string Run(const TCHAR* Commands)
	{
		FStringOutputDevice Said;
		Said.SetAutoEmitLineTerminator(true);
		FLogSuppressionInterface::Get().ProcessCommands(Commands, Said);
		return Utf8(Said);
	}
};
}

TEST_F(FLogCommandTest, CommandsSetVerbosities)
{
	struct FCase
	{
		const TCHAR* Commands;
		ELogVerbosity::Type A;
		ELogVerbosity::Type B;
	};
	const FCase Cases[] = {
		{TEXT("LogCommandsA Verbose"), ELogVerbosity::Verbose, ELogVerbosity::Warning},
		{TEXT("logcommandsa off, LogCommandsB Error"), ELogVerbosity::NoLogging, ELogVerbosity::Error},
		{TEXT("Log LogCommandsA on"), ELogVerbosity::Log, ELogVerbosity::Error},
		{TEXT("LogCommandsA"), ELogVerbosity::NoLogging, ELogVerbosity::Error},
		{TEXT("LogCommandsA toggle"), ELogVerbosity::Log, ELogVerbosity::Error},
		{TEXT("global VeryVerbose"), ELogVerbosity::VeryVerbose, ELogVerbosity::Warning},
		{TEXT("reset"), ELogVerbosity::Log, ELogVerbosity::Warning},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(Run(Case.Commands), "") << TCHAR_TO_UTF8(Case.Commands);
		EXPECT_EQ(LogCommandsA.GetVerbosity(), Case.A) << TCHAR_TO_UTF8(Case.Commands);
		EXPECT_EQ(LogCommandsB.GetVerbosity(), Case.B) << TCHAR_TO_UTF8(Case.Commands);
	}
}

TEST_F(FLogCommandTest, WhatIsNotUnderstoodIsSaidAndChangesNothing)
{
	EXPECT_EQ(Run(TEXT("LogNoSuchThing Error")), "Log command \"LogNoSuchThing Error\" was not understood\n");
	EXPECT_EQ(Run(TEXT("LogCommandsA Loud, LogCommandsB Error")), "Log command \"LogCommandsA Loud\" was not understood\n");
	EXPECT_EQ(LogCommandsA.GetVerbosity(), ELogVerbosity::Log);
	EXPECT_EQ(LogCommandsB.GetVerbosity(), ELogVerbosity::Error);
	EXPECT_EQ(Run(TEXT("list LogCommands")), "LogCommandsA Log\nLogCommandsB Error\n");
}

TEST_F(FLogCommandTest, ConfigurationComesBeforeTheCommandLine)
{
	Write(TEXT("Project/Config/DefaultEngine.ini"), TEXT("[Core.Log]\nLogCommandsA=Error\nLogCommandsB=Error\n"));
	FPaths::SetProjectFilePath(In(TEXT("Project/P.uproject")));
	FPaths::SetEngineDir(In(TEXT("Engine")));
	const FString OldCommandLine = FCommandLine::Get();
	FCommandLine::Set(TEXT("Game -LogCmds=\"LogCommandsA Verbose\""));
	FConfigCacheIni::InitializeConfigSystem();
	FLogSuppressionInterface::Get().ProcessConfigAndCommandLine();
	EXPECT_EQ(LogCommandsA.GetVerbosity(), ELogVerbosity::Verbose);
	EXPECT_EQ(LogCommandsB.GetVerbosity(), ELogVerbosity::Error);
	FConfigCacheIni::ShutdownConfigSystem();
	FCommandLine::Set(*OldCommandLine);
	FPaths::SetProjectFilePath(FString());
	FPaths::SetEngineDir(FString());
}

TEST_F(FLogCommandTest, ConsoleCommandsReachTheirExecs)
{
	FStringOutputDevice Said;
	EXPECT_TRUE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("log LogCommandsA Error"), Said));
	EXPECT_EQ(LogCommandsA.GetVerbosity(), ELogVerbosity::Error);
	EXPECT_FALSE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("logarithm 2"), Said));

	struct FCountingExec final : FSelfRegisteringExec
	{
		virtual bool Exec(UWorld*, const TCHAR* Command, FOutputDevice& Ar) override
		{
			++NumAsked;
			return FParse::Command(&Command, TEXT("COUNT"));
		}
		int32 NumAsked = 0;
	};
	{
		FCountingExec First;
		EXPECT_TRUE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("Count"), Said));
		EXPECT_FALSE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("Counter"), Said));
		EXPECT_EQ(First.NumAsked, 2);
	}
	EXPECT_FALSE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("Count"), Said));
}

TEST_F(FLogCommandTest, FileTakesEveryLineOfEveryThreadWhole)
{
	const FString Path = In(TEXT("Logs/Test.log"));
	{
		FOutputDeviceFile File(*Path);
		const FLogCapture Silence;
		GLog->AddOutputDevice(&File);
		std::vector<std::thread> Threads;
		for (int32 Thread = 0; Thread < 4; ++Thread)
		{
			Threads.emplace_back([Thread]
				{
					for (int32 Line = 0; Line < 100; ++Line)
					{
						UE_LOG(LogCommandsA, Display, TEXT("line %d of %d \u00fc"), Line, Thread);
					} });
		}
		for (std::thread& Thread : Threads)
		{
			Thread.join();
		}
		GLog->RemoveOutputDevice(&File);
	}
	TArray<FString> Lines;
	ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *Path));
	EXPECT_EQ(Lines.Num(), 400);
	for (const FString& Line : Lines)
	{
		EXPECT_TRUE(Line.MatchesWildcard(TEXT("[2*.*.*-*.*.*:*]LogCommandsA: Display: line * of ? \u00fc"))) << Utf8(Line);
	}
}

TEST_F(FLogCommandTest, OlderFileIsKeptOrContinued)
{
	const FString Path = Write(TEXT("Test.log"), TEXT("old\n"));
	{
		FOutputDeviceFile Continued(*Path, false, true);
		Continued.SetSuppressEventTag(true);
		Continued.Log(TEXT("more"));
	}
	EXPECT_EQ(Read(Path), "old\nmore\n");
	{
		FOutputDeviceFile Fresh(*Path);
		Fresh.SetSuppressEventTag(true);
		EXPECT_EQ(Read(Path), "old\nmore\n") << "nothing is touched before the first line";
		Fresh.Log(ELogVerbosity::Error, TEXT("new"));
		EXPECT_EQ(Read(Path), "new\n") << "an error is on the disk at once";
	}
	TArray<FString> Backups;
	IFileManager::Get().FindFiles(Backups, *In(TEXT("Test-backup-*.log")), true, false);
	ASSERT_EQ(Backups.Num(), 1);
	EXPECT_EQ(Read(In(*Backups[0])), "old\nmore\n");
	FOutputDeviceFile Nowhere(*(Path + TEXT("/cannot/be.log")));
	Nowhere.Log(TEXT("lost"));
	EXPECT_EQ(Read(Path), "new\n");
}

TEST_F(FLogCommandTest, AFullDiskIsToldOnceAndEndsTheFileAlone)
{
	// The device of which every write fails with "no space left".
	const TCHAR* const Full = TEXT("/dev/full");
	if (!FPaths::FileExists(Full))
	{
		GTEST_SKIP() << "this system has no /dev/full";
	}
	FOutputDeviceFile File(Full, true, true);
	const FLogCapture Capture;
	GLog->AddOutputDevice(&File);
	UE_LOG(LogCommandsA, Error, TEXT("first"));
	UE_LOG(LogCommandsA, Error, TEXT("second"));
	GLog->Flush();
	GLog->RemoveOutputDevice(&File);
	int32 NumFailures = 0;
	int32 NumOwn = 0;
	for (const FLogCapture::FLine& Line : Capture.GetLines())
	{
		NumFailures += Line.Text.starts_with("Writing /dev/full failed: ");
		NumOwn += Line.Category == "LogCommandsA";
	}
	EXPECT_EQ(NumFailures, 1);
	EXPECT_EQ(NumOwn, 2);
}
