#include "FilesFixture.h"

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/AtomicFile.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace
{
/** No file of this process may grow past the limit while this lives, as on a full disk. */
class FFileSizeLimit
{
public:
	explicit FFileSizeLimit(rlim_t Bytes)
	{
		getrlimit(RLIMIT_FSIZE, &Old);
		OldHandler = std::signal(SIGXFSZ, SIG_IGN);
		const rlimit Limit{Bytes, Old.rlim_max};
		setrlimit(RLIMIT_FSIZE, &Limit);
	}
	~FFileSizeLimit()
	{
		setrlimit(RLIMIT_FSIZE, &Old);
		std::signal(SIGXFSZ, OldHandler);
	}

private:
	rlimit Old{};
	void (*OldHandler)(int) = SIG_DFL;
};
}

TEST_F(FFilesTest, AtomicSaveThatFindsNoRoomKeepsTheOldFile)
{
	const FString Path = Write(TEXT("Data.txt"), TEXT("old"));
	FString Error;
	TArray<uint8> Large;
	Large.SetNumZeroed(1024 * 1024);
	{
		const FFileSizeLimit Limit(64 * 1024);
		EXPECT_FALSE(UE::SaveFileAtomically(Path, Large, Error));
	}
	EXPECT_NE(Utf8(Error).find("File too large"), std::string::npos) << Utf8(Error);
	EXPECT_NE(Utf8(Error).find("Data.txt"), std::string::npos) << Utf8(Error);
	EXPECT_EQ(Read(Path), "old");
	EXPECT_EQ(CountEntries(), 1);

	EXPECT_TRUE(UE::SaveFileAtomically(Path, TEXT("new"), Error));
	EXPECT_EQ(Read(Path), "new");
	EXPECT_EQ(CountEntries(), 1);
}

TEST_F(FFilesTest, AtomicSaveSaysWhereItFailed)
{
	FString Error;
	EXPECT_FALSE(UE::SaveFileAtomically(In(TEXT("Missing/Data.txt")), TEXT("x"), Error));
	EXPECT_NE(Utf8(Error).find("No such file or directory"), std::string::npos) << Utf8(Error);
	IFileManager::Get().MakeDirectory(*In(TEXT("Sub/Below")), true);
	EXPECT_FALSE(UE::SaveFileAtomically(In(TEXT("Sub")), TEXT("x"), Error));
	EXPECT_EQ(CountEntries(), 1);
}

TEST_F(FFilesTest, WriterReportsAFullDevice)
{
	const TUniquePtr<FArchive> Writer(IFileManager::Get().CreateFileWriter(TEXT("/dev/full")));
	ASSERT_TRUE(Writer.IsValid());
	int64 Value = 5;
	*Writer << Value;
	EXPECT_FALSE(Writer->Close());
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("text"), TEXT("/dev/full")));
}

TEST_F(FFilesTest, ReaderStopsAtTheEnd)
{
	TArray<uint8> Bytes;
	for (int32 Index = 0; Index < 200000; ++Index)
	{
		Bytes.Add(static_cast<uint8>(Index % 251));
	}
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(Bytes, *In(TEXT("Bytes"))));
	const TUniquePtr<FArchive> Reader(IFileManager::Get().CreateFileReader(*In(TEXT("Bytes"))));
	Reader->Seek(65000);
	TArray<uint8> Part;
	Part.SetNumZeroed(70000);
	Reader->Serialize(Part.GetData(), Part.Num());
	EXPECT_EQ(Part[0], Bytes[65000]);
	EXPECT_EQ(Part.Last(), Bytes[134999]);
	Reader->Seek(199999);
	uint16 TooLong = 0xffff;
	*Reader << TooLong;
	EXPECT_TRUE(Reader->IsError());
	EXPECT_EQ(TooLong, 0);
}

TEST_F(FFilesTest, LinesOfAFileEndWithTheirBreaks)
{
	const std::pair<const TCHAR*, const char*> Cases[] = {
		{TEXT(""), "0:"}, {TEXT("\n"), "1:"}, {TEXT("a"), "1:a"}, {TEXT("a\n"), "1:a"}, {TEXT("a\r\n\r\nb\n\n"), "4:a||b|"}};
	for (const auto& [Text, Expected] : Cases)
	{
		TArray<FString> Lines;
		ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *Write(TEXT("Lines.txt"), Text)));
		EXPECT_EQ(std::to_string(Lines.Num()) + ":" + Utf8(FString::Join(Lines, TEXT("|"))), Expected);
	}
	TArray<FString> Lines = {TEXT("a"), TEXT(""), TEXT("b")};
	ASSERT_TRUE(FFileHelper::SaveStringArrayToFile(Lines, *In(TEXT("Lines.txt"))));
	TArray<FString> Read;
	ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Read, *In(TEXT("Lines.txt"))));
	EXPECT_TRUE(Read == Lines);
}

TEST_F(FFilesTest, TextIsReadByItsByteOrderMark)
{
	using EEncodingOptions = FFileHelper::EEncodingOptions;
	const FString Text = TEXT("Gr\u00fc\u00dfe \U0001F600\r\n");
	for (const EEncodingOptions Encoding : {EEncodingOptions::AutoDetect, EEncodingOptions::ForceUnicode, EEncodingOptions::ForceUTF8,
			 EEncodingOptions::ForceUTF8WithoutBOM})
	{
		ASSERT_TRUE(FFileHelper::SaveStringToFile(Text, *In(TEXT("Text")), Encoding));
		EXPECT_EQ(Read(In(TEXT("Text"))), Utf8(Text)) << static_cast<int32>(Encoding);
	}
	const uint8 BigEndian[] = {0xFE, 0xFF, 0x00, 'A', 0x20, 0xAC, 0x00};
	FString Loaded;
	FFileHelper::BufferToString(Loaded, BigEndian, 7);
	EXPECT_EQ(Utf8(Loaded), "A\u20ac");
	const uint8 Broken[] = {'a', 0xC3, 0x28, 0xFF};
	FFileHelper::BufferToString(Loaded, Broken, 4);
	EXPECT_TRUE(Loaded.Contains(TEXT("\ufffd")));
}

TEST_F(FFilesTest, DeletingATreeLeavesWhatALinkPointsTo)
{
	Write(TEXT("Kept/File.txt"), TEXT("kept"));
	Write(TEXT("Tree/Deep/Other.txt"), TEXT("x"));
	ASSERT_EQ(symlink(Utf8(In(TEXT("Kept"))).c_str(), Utf8(In(TEXT("Tree/Link"))).c_str()), 0);
	TArray<FString> Found;
	IFileManager::Get().FindFilesRecursive(Found, *In(TEXT("Tree")), TEXT("*.txt"), true, false);
	EXPECT_EQ(Found.Num(), 1);
	EXPECT_TRUE(IFileManager::Get().DeleteDirectory(*In(TEXT("Tree")), true, true));
	EXPECT_FALSE(FPaths::DirectoryExists(In(TEXT("Tree"))));
	EXPECT_EQ(Read(In(TEXT("Kept/File.txt"))), "kept");
}

TEST_F(FFilesTest, ConfigurationLayersAndTheirOperators)
{
	Write(TEXT("Engine/Config/BaseEngine.ini"), TEXT("[/Script/A]\nName=base\n+List=one\n+List=two\n.List=two\nKeep=1\n"));
	Write(TEXT("Project/Config/DefaultEngine.ini"),
		TEXT("; a comment\n[/Script/A]\nname=project\n-List=one\n+List=two\n+List=\" three; \\\"x\\\"\"\n"));
	Write(TEXT("Project/P.uproject"), TEXT("{}"));
	FPaths::SetEngineDir(In(TEXT("Engine")));
	FPaths::SetProjectFilePath(In(TEXT("Project/P.uproject")));
	FConfigCacheIni::InitializeConfigSystem();
	const TCHAR* const Section = TEXT("/Script/A");

	FString Name;
	ASSERT_TRUE(GConfig->GetString(Section, TEXT("Name"), Name, GEngineIni));
	EXPECT_EQ(Utf8(Name), "project");
	TArray<FString> List;
	EXPECT_EQ(GConfig->GetArray(Section, TEXT("List"), List, GEngineIni), 3);
	EXPECT_EQ(Utf8(FString::Join(List, TEXT("|"))), "two|two| three; \"x\"");

	GConfig->SetString(Section, TEXT("Name"), TEXT("\"user\" \\ name\n"), GEngineIni);
	GConfig->SetArray(Section, TEXT("List"), {TEXT("z"), TEXT("z"), TEXT(" a")}, GEngineIni);
	GConfig->RemoveKey(Section, TEXT("Keep"), GEngineIni);
	GConfig->SetInt(TEXT("Other"), TEXT("Number"), -7, GEngineIni);
	EXPECT_TRUE(GConfig->Flush(false));
	EXPECT_EQ(Read(In(TEXT("Project/Config/DefaultEngine.ini"))).find("user"), std::string::npos);

	FConfigCacheIni::InitializeConfigSystem();
	ASSERT_TRUE(GConfig->GetString(Section, TEXT("Name"), Name, GEngineIni));
	EXPECT_EQ(Utf8(Name), "\"user\" \\ name\n");
	GConfig->GetArray(Section, TEXT("List"), List, GEngineIni);
	EXPECT_EQ(Utf8(FString::Join(List, TEXT("|"))), "z|z| a");
	EXPECT_FALSE(GConfig->GetString(Section, TEXT("Keep"), Name, GEngineIni));
	int32 Number = 0;
	EXPECT_TRUE(GConfig->GetInt(TEXT("Other"), TEXT("Number"), Number, GEngineIni));
	EXPECT_EQ(Number, -7);
	FConfigCacheIni::ShutdownConfigSystem();
	FPaths::SetProjectFilePath(FString());
}

TEST(Paths, PartsOfAPath)
{
	EXPECT_EQ(Utf8(FPaths::GetBaseFilename(TEXT("/A.b/C.d.uasset"))), "C.d");
	EXPECT_EQ(Utf8(FPaths::GetBaseFilename(TEXT("/A.b/C"), false)), "/A.b/C");
	EXPECT_EQ(Utf8(FPaths::GetExtension(TEXT("/A.b/C"))), "");
	EXPECT_EQ(Utf8(FPaths::GetExtension(TEXT("C.uasset"), true)), ".uasset");
	EXPECT_EQ(Utf8(FPaths::GetPath(TEXT("A/B\\C.x"))), "A/B");
	EXPECT_EQ(Utf8(FPaths::GetPath(TEXT("/A"))), "/");
	EXPECT_EQ(Utf8(FPaths::ChangeExtension(TEXT("A/B.x"), TEXT("y"))), "A/B.y");
	EXPECT_EQ(Utf8(FPaths::ChangeExtension(TEXT("A/B"), TEXT("y"))), "A/B");
	EXPECT_EQ(Utf8(FPaths::Combine(TEXT("A"), FString(TEXT("B/")), TEXT("/C"))), "A/B/C");
}

TEST(Paths, RelativePartsCollapse)
{
	struct FCase
	{
		const TCHAR* Path;
		bool bExpected;
		const char* Result;
	};
	const FCase Cases[] = {
		{TEXT("/A/./B/../C"), true, "/A/C"},
		{TEXT("/A/../../B"), false, "/A/../../B"},
		{TEXT("A/B/../../"), true, ""},
		{TEXT("../A/.."), false, ".."},
		{TEXT("/A/B/"), true, "/A/B/"},
	};
	for (const FCase& Case : Cases)
	{
		FString Path = Case.Path;
		EXPECT_EQ(FPaths::CollapseRelativeDirectories(Path), Case.bExpected) << Utf8(Case.Path);
		EXPECT_EQ(Utf8(Path), Case.Result);
	}
	FString Relative = TEXT("/A/B/C/D.x");
	EXPECT_TRUE(FPaths::MakePathRelativeTo(Relative, TEXT("/A/E/F.y")));
	EXPECT_EQ(Utf8(Relative), "../B/C/D.x");
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("/A/B/../C"), TEXT("/A")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/A/../B"), TEXT("/A")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/AB"), TEXT("/A")));
}

TEST(DateTime, Iso8601RoundTripsAndRefusesWhatIsNoDate)
{
	const FDateTime Leap(2024, 2, 29, 13, 5, 9, 250);
	EXPECT_EQ(Utf8(Leap.ToIso8601()), "2024-02-29T13:05:09.250Z");
	EXPECT_EQ(Leap.GetDayOfWeek(), EDayOfWeek::Thursday);
	EXPECT_EQ(Leap.GetDayOfYear(), 60);
	FDateTime Parsed;
	ASSERT_TRUE(FDateTime::ParseIso8601(TEXT("2024-02-29T15:05:09.2500000+02:00"), Parsed));
	EXPECT_EQ(Parsed, Leap);
	ASSERT_TRUE(FDateTime::ParseIso8601(TEXT("1969-12-31T23:59:59Z"), Parsed));
	EXPECT_EQ(Parsed.ToUnixTimestamp(), -1);
	EXPECT_EQ(Parsed.GetYear(), 1969);
	ASSERT_TRUE(FDateTime::ParseIso8601(TEXT("2024-02-29"), Parsed));
	EXPECT_EQ(Parsed, FDateTime(2024, 2, 29));
	for (const TCHAR* Text : {TEXT("2023-02-29T00:00:00Z"), TEXT("2024-13-01"), TEXT("2024-01-01T24:00:00Z"), TEXT("2024-01-01T00:00:00Zx"),
			 TEXT("2024-1-1"), TEXT(""), TEXT("2024-01-01T00:00:00."), TEXT("0001-01-01T00:00:00+01:00")})
	{
		EXPECT_FALSE(FDateTime::ParseIso8601(Text, Parsed)) << Utf8(Text);
	}
	ASSERT_TRUE(FDateTime::ParseHttpDate(TEXT("Thu, 29 Feb 2024 13:05:09 GMT"), Parsed));
	EXPECT_EQ(Utf8(Parsed.ToHttpDate()), "Thu, 29 Feb 2024 13:05:09 GMT");
	EXPECT_EQ(FDateTime::FromUnixTimestamp(1709211909), Parsed);
}

TEST(Timespan, TextRoundTrips)
{
	FTimespan Parsed;
	const FTimespan Negative = -FTimespan(5, 1, 2, 3, 4000000);
	EXPECT_EQ(Utf8(Negative.ToString()), "-5.01:02:03.004");
	ASSERT_TRUE(FTimespan::Parse(Negative.ToString(), Parsed));
	EXPECT_EQ(Parsed, Negative);
	EXPECT_FALSE(FTimespan::Parse(TEXT("25:00:00"), Parsed));
	EXPECT_EQ(FTimespan::FromSeconds(1e300), FTimespan::MaxValue());
}

TEST(PlatformProcess, ArgumentsReachTheChildWithoutAShell)
{
	FString Output;
	int32 ReturnCode = -1;
	ASSERT_TRUE(FPlatformProcess::ExecProcess(TEXT("printf"), TEXT("%s, \"a  b\" \\\"q\\\" $HOME;ls"), &ReturnCode, &Output, nullptr));
	EXPECT_EQ(Utf8(Output), "a  b,\"q\",$HOME;ls,");
	EXPECT_EQ(ReturnCode, 0);
	EXPECT_FALSE(FPlatformProcess::ExecProcess(TEXT("no-such-program-here"), TEXT(""), &ReturnCode, &Output, nullptr));
	EXPECT_FALSE(FPlatformProcess::CanLaunchURL(TEXT("file:///etc/passwd")));

	FProcHandle Sleeper = FPlatformProcess::CreateProc(TEXT("sleep"), TEXT("60"), false, true, true, nullptr, 0, nullptr, nullptr);
	ASSERT_TRUE(FPlatformProcess::IsProcRunning(Sleeper));
	FPlatformProcess::TerminateProc(Sleeper);
	FPlatformProcess::WaitForProc(Sleeper);
	EXPECT_TRUE(FPlatformProcess::GetProcReturnCode(Sleeper, &ReturnCode));
	EXPECT_EQ(ReturnCode, 128 + SIGTERM);
}

namespace
{
std::vector<std::string> ModuleEvents;

struct FLowModule : IModuleInterface
{
	void StartupModule() override { ModuleEvents.push_back("low up"); }
	void ShutdownModule() override { ModuleEvents.push_back("low down"); }
};

struct FHighModule : IModuleInterface
{
	void StartupModule() override
	{
		FModuleManager::Get().LoadModuleChecked(TEXT("TestLow"));
		ModuleEvents.push_back("high up");
	}
	void ShutdownModule() override { ModuleEvents.push_back("high down"); }
};
}
IMPLEMENT_MODULE(FLowModule, TestLow)
IMPLEMENT_MODULE(FHighModule, TestHigh)

TEST(ModuleManager, ModulesEndBeforeTheirDependencies)
{
	ModuleEvents.clear();
	EXPECT_EQ(FModuleManager::Get().LoadModule(TEXT("TestMissing")), nullptr);
	FHighModule& High = FModuleManager::LoadModuleChecked<FHighModule>(TEXT("TestHigh"));
	EXPECT_EQ(FModuleManager::Get().GetModule(TEXT("TestHigh")), &High);
	FModuleManager::Get().UnloadModulesAtShutdown();
	EXPECT_EQ(ModuleEvents, (std::vector<std::string>{"low up", "high up", "high down", "low down"}));
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("TestLow")));
}

TEST(CommandLine, ArgumentsWithBlanksAreQuoted)
{
	const TCHAR* const Arguments[] = {TEXT("vexel"), TEXT("chat"), TEXT("-Message=What is it?"), TEXT("two words")};
	const FString Line = FCommandLine::BuildFromArgV(nullptr, 4, Arguments, TEXT("-Last"));
	EXPECT_EQ(Utf8(Line), "chat -Message=\"What is it?\" \"two words\" -Last");
	TArray<FString> Tokens;
	TArray<FString> Switches;
	FCommandLine::Parse(*Line, Tokens, Switches);
	EXPECT_EQ(Tokens.Num(), 2);
	EXPECT_EQ(Switches.Num(), 2);
}

TEST_F(FFilesTest, ALinkIsToldFromWhatItLeadsTo)
{
	IPlatformFile& Files = IPlatformFile::GetPlatformPhysical();
	const FString File = Write(TEXT("File"), TEXT("x"));
	ASSERT_EQ(symlink(Utf8(File).c_str(), Utf8(In(TEXT("Link"))).c_str()), 0);
	ASSERT_EQ(symlink("nowhere", Utf8(In(TEXT("Dangling"))).c_str()), 0);
	EXPECT_EQ(Files.IsSymlink(*In(TEXT("Link"))), ESymlinkResult::Symlink);
	EXPECT_EQ(Files.IsSymlink(*In(TEXT("Dangling"))), ESymlinkResult::Symlink);
	EXPECT_EQ(Files.IsSymlink(*File), ESymlinkResult::NonSymlink);
	EXPECT_EQ(Files.IsSymlink(*Folder), ESymlinkResult::NonSymlink);
	EXPECT_EQ(Files.IsSymlink(*In(TEXT("Nothing"))), ESymlinkResult::NonSymlink);
}
