#include "Companion.h"
#include "TaskFixture.h"
#include "VexelErrorKinds.h"
#include "VexelSecureStorage.h"

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
namespace fs = std::filesystem;

/** Runs a check in a process of its own, whose session bus, keyring and home are its own too. */
void RunInPrivateSession(const std::function<void(const fs::path& Home)>& Check, bool bUnlocked = true)
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
			std::vector<std::string> KeyringWords = {"gnome-keyring-daemon", "--foreground", "--components=secrets"};
			if (bUnlocked)
			{
				KeyringWords.insert(KeyringWords.begin() + 2, "--unlock");
			}
			const FCompanion Keyring(KeyringWords, "password");
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

TEST(Keyring, WithALockedKeyringTheFileServesAndNothingHangs)
{
	// Nobody is there who could unlock it: the prompt that it asks for cannot be shown.
	RunInPrivateSession([](const fs::path& Home)
		{
			alarm(30);
			FLogCapture Log;
			EXPECT_THAT(Load(TEXT("rt")), testing::StartsWith("error"));
			EXPECT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("hunter2")).HasValue());
			EXPECT_TRUE(Log.Contains("Cannot write to the keyring")) << Log.ToText();
			EXPECT_FALSE(Log.Contains("hunter2"));
			EXPECT_TRUE(HasSecretFile(Home));
			EXPECT_EQ(Load(TEXT("rt")), "hunter2");
			EXPECT_TRUE(FVexelSecureStorage::DeleteValue(TEXT("rt")).HasValue());
			EXPECT_THAT(Load(TEXT("rt")), testing::StartsWith("error")); },
		false);
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
