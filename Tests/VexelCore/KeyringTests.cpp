#include "TaskFixture.h"
#include "VexelErrorKinds.h"
#include "VexelSecureStorage.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fcntl.h>
#include <functional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace
{
namespace fs = std::filesystem;

bool IsInstalled(const char* Program)
{
	return fs::exists(fs::path("/usr/bin") / Program);
}

/** A program that runs beside the test, and the first line that it writes. */
class FCompanion
{
public:
	FCompanion(std::vector<std::string> Words, const std::string& Input)
	{
		int In[2] = {};
		int Out[2] = {};
		if (pipe2(In, O_CLOEXEC) != 0 || pipe2(Out, O_CLOEXEC) != 0)
		{
			return;
		}
		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		posix_spawn_file_actions_adddup2(&Actions, In[0], STDIN_FILENO);
		posix_spawn_file_actions_adddup2(&Actions, Out[1], STDOUT_FILENO);
		posix_spawn_file_actions_addopen(&Actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
		std::vector<char*> RawWords;
		for (std::string& Word : Words)
		{
			RawWords.push_back(Word.data());
		}
		RawWords.push_back(nullptr);
		posix_spawnp(&Process, RawWords[0], &Actions, nullptr, RawWords.data(), environ);
		posix_spawn_file_actions_destroy(&Actions);
		close(In[0]);
		close(Out[1]);
		const ssize_t NumWritten = write(In[1], Input.data(), Input.size());
		EXPECT_EQ(NumWritten, ssize_t(Input.size()));
		close(In[1]);
		for (char Character = 0; read(Out[0], &Character, 1) == 1 && Character != '\n';)
		{
			FirstLine += Character;
		}
		close(Out[0]);
	}
	~FCompanion()
	{
		if (Process > 0)
		{
			kill(Process, SIGTERM);
			waitpid(Process, nullptr, 0);
		}
	}

	std::string FirstLine;

private:
	pid_t Process = 0;
};

/** Runs a check in a process of its own, whose session bus, keyring and home are its own too. */
void RunInPrivateSession(const std::function<void(const fs::path& Home)>& Check)
{
	if (!IsInstalled("dbus-daemon") || !IsInstalled("gnome-keyring-daemon"))
	{
		GTEST_SKIP() << "the packages dbus and gnome-keyring are needed for this test";
	}
	const pid_t Child = fork();
	ASSERT_GE(Child, 0);
	if (Child == 0)
	{
		std::string Pattern = (fs::temp_directory_path() / "vexel-keyring-XXXXXX").string();
		const fs::path Home = mkdtemp(Pattern.data());
		for (const char* const Name : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
		{
			setenv(Name, Home.c_str(), 1);
		}
		unsetenv("VEXEL_SECRET_STORE");
		{
			const FCompanion Bus({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"}, "");
			setenv("DBUS_SESSION_BUS_ADDRESS", Bus.FirstLine.c_str(), 1);
			const FCompanion Keyring({"gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"}, "password");
			EXPECT_NE(Bus.FirstLine, "");
			Check(Home);
		}
		std::error_code Ignored;
		fs::remove_all(Home, Ignored);
		fflush(nullptr);
		_exit(testing::Test::HasFailure() ? 1 : 0);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_TRUE(WIFEXITED(Status) && WEXITSTATUS(Status) == 0) << "status " << Status << "; the reasons are above";
}

bool HasSecretFile(const fs::path& Home)
{
	for (const auto& Entry : fs::recursive_directory_iterator(Home))
	{
		if (Entry.path().filename() == "secrets.bin")
		{
			return true;
		}
	}
	return false;
}

std::string Load(const TCHAR* Key)
{
	const TVexelExpected<FString> Loaded = FVexelSecureStorage::LoadValueString(Key);
	return Loaded ? ToUtf8(Loaded.GetValue()) : "error: " + ToUtf8(Loaded.GetError().GetMessage());
}
}

TEST(Keyring, ValuesStandInTheSessionsKeyringAndInNoFile)
{
	RunInPrivateSession([](const fs::path& Home)
		{
			const FString Unusual = TEXT("T\u00FCr \u9580 \U0001F6AA\n\"quoted\"");
			EXPECT_THAT(Load(TEXT("rt")), testing::StartsWith("error: No stored value for 'rt'"));
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("hunter2")).HasValue());
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("RT"), Unusual).HasValue());
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("empty"), FString()).HasValue());
			EXPECT_EQ(Load(TEXT("rt")), "hunter2");
			EXPECT_EQ(Load(TEXT("RT")), ToUtf8(Unusual));
			EXPECT_EQ(Load(TEXT("empty")), "");
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("changed")).HasValue());
			EXPECT_EQ(Load(TEXT("rt")), "changed");
			EXPECT_FALSE(HasSecretFile(Home));
			EXPECT_TRUE(FVexelSecureStorage::DeleteValue(TEXT("rt")).HasValue());
			EXPECT_TRUE(FVexelSecureStorage::DeleteValue(TEXT("rt")).HasValue());
			EXPECT_THAT(Load(TEXT("rt")), testing::StartsWith("error"));
			EXPECT_EQ(Load(TEXT("RT")), ToUtf8(Unusual)); });
}

TEST(Keyring, EachServiceHasItsOwnSecrets)
{
	RunInPrivateSession([](const fs::path&)
		{
			FVexelSecureStorage::SetScope(TEXT("https://one.example"));
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
			FVexelSecureStorage::SetScope(TEXT("https://two.example"));
			EXPECT_THAT(Load(TEXT("rt")), testing::StartsWith("error"));
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("second")).HasValue());
			FVexelSecureStorage::SetScope(TEXT("https://one.example"));
			EXPECT_EQ(Load(TEXT("rt")), "first"); });
}

TEST(Keyring, WhatStoodInTheFileIsFoundAndMovesWhenItIsStoredAgain)
{
	RunInPrivateSession([](const fs::path& Home)
		{
			const FString Default = FString(UTF8_TO_TCHAR((Home / "vexel").c_str()));
			FVexelSecureStorage::SetDirectory(Default);
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("from the file")).HasValue());
			FVexelSecureStorage::SetDirectory(FString());
			EXPECT_EQ(Load(TEXT("rt")), "from the file");
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("newer")).HasValue());
			EXPECT_EQ(Load(TEXT("rt")), "newer");
			FVexelSecureStorage::SetDirectory(Default);
			EXPECT_THAT(Load(TEXT("rt")), testing::StartsWith("error")) << "no old value is left behind"; });
}

TEST(Keyring, WithoutASessionTheFileServesAndScopesAreKeptApart)
{
	std::string Pattern = (fs::temp_directory_path() / "vexel-keyring-XXXXXX").string();
	const fs::path Home = mkdtemp(Pattern.data());
	const pid_t Child = fork();
	ASSERT_GE(Child, 0);
	if (Child == 0)
	{
		setenv("XDG_DATA_HOME", Home.c_str(), 1);
		setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + (Home / "none").string()).c_str(), 1);
		for (const TCHAR* const Scope : {TEXT("https://host"), TEXT("https_//host"), TEXT("../../up"), TEXT("")})
		{
			FVexelSecureStorage::SetScope(Scope);
			EXPECT_THAT(Load(TEXT("rt")), testing::StartsWith("error")) << ToUtf8(Scope);
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), Scope).HasValue());
			EXPECT_EQ(Load(TEXT("rt")), ToUtf8(Scope));
		}
		EXPECT_TRUE(HasSecretFile(Home));
		fflush(nullptr);
		_exit(testing::Test::HasFailure() ? 1 : 0);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_TRUE(WIFEXITED(Status) && WEXITSTATUS(Status) == 0) << "status " << Status << "; the reasons are above";
	fs::remove_all(Home);
}
