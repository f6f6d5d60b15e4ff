#include "LogCapture.h"
#include "TaskFixture.h"
#include "VexelErrorKinds.h"
#include "VexelSecureStorage.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{
namespace fs = std::filesystem;

/** A store in a directory of its own. */
class FSecureStorageTest : public testing::Test
{
protected:
	FSecureStorageTest()
	{
		std::string Pattern = (fs::temp_directory_path() / "vexel-test-XXXXXX").string();
		Root = mkdtemp(Pattern.data());
		Directory = Root / "data" / "vexel";
		FVexelSecureStorage::SetDirectory(UTF8_TO_TCHAR(Directory.c_str()));
	}
	virtual ~FSecureStorageTest() override
	{
		FVexelSecureStorage::SetDirectory(FString());
		fs::remove_all(Root);
	}

	static std::string ReadFile(const fs::path& Path)
	{
		std::ifstream Stream(Path, std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}
	static void WriteFile(const fs::path& Path, const std::string& Bytes) { std::ofstream(Path, std::ios::binary) << Bytes; }
	static mode_t GetMode(const fs::path& Path)
	{
		struct stat Info = {};
		stat(Path.c_str(), &Info);
		return Info.st_mode & 07777;
	}
	static void ExpectRefused(const TVexelExpected<FString>& Loaded, const std::string& Why)
	{
		ASSERT_TRUE(Loaded.HasError()) << Why;
		EXPECT_TRUE(Loaded.GetError().IsA<FVexelError_SecureStorage>()) << Why;
		EXPECT_EQ(ToUtf8(Loaded.GetError().GetTitle()), "Secure Storage Error");
		EXPECT_THAT(ToUtf8(Loaded.GetError().ToString()), testing::Not(testing::HasSubstr("hunter2"))) << Why;
	}

	fs::path Root;
	fs::path Directory;
};
}

TEST_F(FSecureStorageTest, ValuesComeBackAndMayBeReplacedAndDeleted)
{
	const FString Unusual = TEXT("Tür 門 \U0001F6AA\n\"quoted\"");
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("hunter2")).HasValue());
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("RT"), Unusual).HasValue());
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("empty"), FString()).HasValue());
	EXPECT_EQ(ToUtf8(FVexelSecureStorage::LoadValueString(TEXT("rt")).GetValue()), "hunter2");
	EXPECT_EQ(ToUtf8(FVexelSecureStorage::LoadValueString(TEXT("RT")).GetValue()), ToUtf8(Unusual)) << "keys differ by case";
	EXPECT_EQ(ToUtf8(FVexelSecureStorage::LoadValueString(TEXT("empty")).GetValue()), "");
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("changed")).HasValue());
	EXPECT_EQ(ToUtf8(FVexelSecureStorage::LoadValueString(TEXT("rt")).GetValue()), "changed");
	EXPECT_TRUE(FVexelSecureStorage::DeleteValue(TEXT("rt")).HasValue());
	ExpectRefused(FVexelSecureStorage::LoadValueString(TEXT("rt")), "deleted");
	EXPECT_TRUE(FVexelSecureStorage::LoadValueString(TEXT("RT")).HasValue());
}

TEST_F(FSecureStorageTest, MissingKeyIsAnErrorAndNothingToDeleteIsNone)
{
	const TVexelExpected<FString> Before = FVexelSecureStorage::LoadValueString(TEXT("rt"));
	ExpectRefused(Before, "no store yet");
	EXPECT_EQ(ToUtf8(Before.GetError().GetMessage()), "No stored value for 'rt'");
	EXPECT_TRUE(FVexelSecureStorage::DeleteValue(TEXT("rt")).HasValue());
	EXPECT_FALSE(fs::exists(Directory)) << "a look leaves nothing behind";
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("other"), TEXT("1")).HasValue());
	EXPECT_EQ(ToUtf8(FVexelSecureStorage::LoadValueString(TEXT("rt")).GetError().GetMessage()), "No stored value for 'rt'");
}

TEST_F(FSecureStorageTest, FilesAreTheOwnersAloneAndHoldNoPlainText)
{
	fs::create_directories(Directory);
	fs::permissions(Directory, fs::perms(0755));
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("RefreshToken"), TEXT("hunter2")).HasValue());
	EXPECT_EQ(GetMode(Directory), 0700u);
	int32 NumFiles = 0;
	for (const fs::directory_entry& Entry : fs::directory_iterator(Directory))
	{
		++NumFiles;
		EXPECT_EQ(GetMode(Entry.path()), 0600u) << Entry.path();
		EXPECT_THAT(ReadFile(Entry.path()), testing::Not(testing::AnyOf(testing::HasSubstr("hunter2"), testing::HasSubstr("RefreshToken"))));
	}
	EXPECT_EQ(NumFiles, 3) << "store, key and lock, and no temporary file";
	const std::string First = ReadFile(Directory / "secrets.bin");
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("RefreshToken"), TEXT("hunter2")).HasValue());
	EXPECT_NE(ReadFile(Directory / "secrets.bin").substr(8, 12), First.substr(8, 12)) << "a nonce is never used twice";
}

TEST_F(FSecureStorageTest, EveryChangedByteOfTheStoreIsNoticed)
{
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("hunter2")).HasValue());
	const std::string Good = ReadFile(Directory / "secrets.bin");
	for (size_t Index = 0; Index < Good.size(); ++Index)
	{
		std::string Changed = Good;
		Changed[Index] = char(Changed[Index] ^ 1);
		WriteFile(Directory / "secrets.bin", Changed);
		ExpectRefused(FVexelSecureStorage::LoadValueString(TEXT("rt")), "byte " + std::to_string(Index));
	}
	for (size_t Length = 0; Length < Good.size(); ++Length)
	{
		WriteFile(Directory / "secrets.bin", Good.substr(0, Length));
		ExpectRefused(FVexelSecureStorage::LoadValueString(TEXT("rt")), "cut to " + std::to_string(Length));
	}
	WriteFile(Directory / "secrets.bin", Good.substr(0, 20));
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("new"), TEXT("1")).HasError()) << "what cannot be read is not written over";
	EXPECT_EQ(ReadFile(Directory / "secrets.bin"), Good.substr(0, 20));
	WriteFile(Directory / "secrets.bin", Good);
	EXPECT_TRUE(FVexelSecureStorage::LoadValueString(TEXT("rt")).HasValue());
}

TEST_F(FSecureStorageTest, WrongKeyMissingKeyAndKeyThatOthersCanReadAreRefused)
{
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("hunter2")).HasValue());
	const fs::path KeyPath = Directory / "secrets.key";
	const std::string Key = ReadFile(KeyPath);
	EXPECT_EQ(Key.size(), 32u);
	WriteFile(KeyPath, std::string(32, 'k'));
	ExpectRefused(FVexelSecureStorage::LoadValueString(TEXT("rt")), "another key");
	WriteFile(KeyPath, Key.substr(1));
	ExpectRefused(FVexelSecureStorage::LoadValueString(TEXT("rt")), "a short key");
	WriteFile(KeyPath, Key);
	fs::permissions(KeyPath, fs::perms(0640));
	ExpectRefused(FVexelSecureStorage::LoadValueString(TEXT("rt")), "a key for the group");
	fs::permissions(KeyPath, fs::perms(0600));
	EXPECT_TRUE(FVexelSecureStorage::LoadValueString(TEXT("rt")).HasValue());
	fs::remove(KeyPath);
	ExpectRefused(FVexelSecureStorage::LoadValueString(TEXT("rt")), "no key");
	EXPECT_FALSE(fs::exists(KeyPath));
}

TEST_F(FSecureStorageTest, ProcessesAndThreadsThatWriteAtOnceLoseNothing)
{
	constexpr int32 NumWriters = 4;
	constexpr int32 NumKeys = 10;
	const auto WriteKeys = [](int32 Writer)
	{
		bool bStored = true;
		for (int32 Index = 0; Index < NumKeys; ++Index)
		{
			bStored =
				FVexelSecureStorage::StoreValueString(FString::Printf(TEXT("%d.%d"), Writer, Index), FString::FromInt(Index)).HasValue() &&
				bStored;
		}
		return bStored;
	};
	const pid_t Child = fork();
	ASSERT_GE(Child, 0);
	if (Child == 0)
	{
		_exit(WriteKeys(0) ? 0 : 1);
	}
	std::vector<std::thread> Threads;
	for (int32 Writer = 1; Writer < NumWriters; ++Writer)
	{
		Threads.emplace_back([&, Writer]
			{ EXPECT_TRUE(WriteKeys(Writer)); });
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_EQ(Status, 0);
	for (int32 Writer = 0; Writer < NumWriters; ++Writer)
	{
		for (int32 Index = 0; Index < NumKeys; ++Index)
		{
			EXPECT_TRUE(FVexelSecureStorage::LoadValueString(FString::Printf(TEXT("%d.%d"), Writer, Index)).HasValue()) << Writer << "." << Index;
		}
	}
}

TEST_F(FSecureStorageTest, ProcessesAndThreadsThatReplaceAValueInTurnLoseNoStep)
{
	constexpr int32 NumSteps = 25;
	const auto Count = [](int32 Steps)
	{
		while (Steps > 0)
		{
			const TVexelExpected<TOptional<FVexelFileLock>> Turn = FVexelSecureStorage::TryTakeTurn();
			if (Turn.HasError())
			{
				return false;
			}
			if (Turn.GetValue())
			{
				const int32 Next = FCString::Atoi(*FVexelSecureStorage::LoadValueString(TEXT("n")).GetValue()) + 1;
				(void)FVexelSecureStorage::StoreValueString(TEXT("n"), FString::FromInt(Next));
				--Steps;
			}
		}
		return true;
	};
	ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("n"), TEXT("0")).HasValue());
	const pid_t Child = fork();
	ASSERT_GE(Child, 0);
	if (Child == 0)
	{
		_exit(Count(NumSteps) ? 0 : 1);
	}
	std::thread Other([&]
		{ EXPECT_TRUE(Count(NumSteps)); });
	EXPECT_TRUE(Count(NumSteps));
	Other.join();
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_EQ(Status, 0);
	EXPECT_EQ(ToUtf8(FVexelSecureStorage::LoadValueString(TEXT("n")).GetValue()), std::to_string(3 * NumSteps));
	EXPECT_EQ(GetMode(Directory / "turn.lock"), 0600u);
}

TEST_F(FSecureStorageTest, TheTurnOfAProcessThatIsKilledIsFreeAgain)
{
	int Ready[2] = {};
	ASSERT_EQ(pipe(Ready), 0);
	const pid_t Child = fork();
	ASSERT_GE(Child, 0);
	if (Child == 0)
	{
		const TVexelExpected<TOptional<FVexelFileLock>> Turn = FVexelSecureStorage::TryTakeTurn();
		const char Taken = Turn.HasValue() && Turn.GetValue() ? 'y' : 'n';
		(void)!write(Ready[1], &Taken, 1);
		pause();
	}
	char Taken = 0;
	ASSERT_EQ(read(Ready[0], &Taken, 1), 1);
	EXPECT_EQ(Taken, 'y');
	EXPECT_FALSE(FVexelSecureStorage::TryTakeTurn().GetValue().IsSet());
	kill(Child, SIGKILL);
	waitpid(Child, nullptr, 0);
	EXPECT_TRUE(FVexelSecureStorage::TryTakeTurn().GetValue().IsSet());
	close(Ready[0]);
	close(Ready[1]);
}

TEST_F(FSecureStorageTest, StandsInTheUsersDataDirectoryUnlessToldOtherwise)
{
	FVexelSecureStorage::SetDirectory(FString());
	setenv("XDG_DATA_HOME", (Root / "xdg").c_str(), 1);
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("1")).HasValue());
	EXPECT_TRUE(fs::exists(Root / "xdg" / "vexel" / "secrets.bin"));
	setenv("XDG_DATA_HOME", "not/absolute", 1);
	const std::string Home = std::getenv("HOME") ? std::getenv("HOME") : "";
	setenv("HOME", (Root / "home").c_str(), 1);
	EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("1")).HasValue());
	EXPECT_TRUE(fs::exists(Root / "home" / ".local" / "share" / "vexel" / "secrets.bin"));
	setenv("HOME", Home.c_str(), 1);
	unsetenv("XDG_DATA_HOME");
}

TEST_F(FSecureStorageTest, DirectoryThatCannotBeMadeIsAnError)
{
	WriteFile(Root / "data", "in the way");
	const TVexelExpected<void> Stored = FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("hunter2"));
	ASSERT_TRUE(Stored.HasError());
	EXPECT_TRUE(Stored.GetError().IsA<FVexelError_SecureStorage>());
	EXPECT_THAT(ToUtf8(Stored.GetError().GetMessage()), testing::EndsWith("\nwhile storing value 'rt'"));
	EXPECT_TRUE(FVexelSecureStorage::TryTakeTurn().HasError());
}
