#include "Containers/StringConv.h"
#include "VexelFileLock.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace
{
class FileLock : public testing::Test
{
protected:
	FileLock()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-lock-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
	}
	~FileLock() override { std::filesystem::remove_all(Directory); }

	FString GetPath(const char* Name) const { return FString(UTF8_TO_TCHAR((Directory / Name).c_str())); }

	std::filesystem::path Directory;
};
}

TEST_F(FileLock, HasOneHolderAtATimeAndIsFreeAfterIt)
{
	{
		const TVexelExpected<FVexelFileLock> First = FVexelFileLock::Take(GetPath("lock"));
		ASSERT_TRUE(First.HasValue());
		const TVexelExpected<FVexelFileLock> Second = FVexelFileLock::Take(GetPath("lock"), 0.01);
		ASSERT_TRUE(Second.HasError());
		EXPECT_THAT(TCHAR_TO_UTF8(*Second.GetError().ToShortString()), testing::HasSubstr("Another process has held"));
		EXPECT_TRUE(FVexelFileLock::Take(GetPath("other"), 0.01).HasValue());
		const TVexelExpected<TOptional<FVexelFileLock>> Tried = FVexelFileLock::TryTake(GetPath("lock"));
		ASSERT_TRUE(Tried.HasValue()) << "another holder is no failure";
		EXPECT_FALSE(Tried.GetValue().IsSet());
	}
	{
		const TVexelExpected<TOptional<FVexelFileLock>> Tried = FVexelFileLock::TryTake(GetPath("lock"));
		ASSERT_TRUE(Tried.HasValue() && Tried.GetValue().IsSet());
		EXPECT_TRUE(FVexelFileLock::Take(GetPath("lock"), 0.01).HasError());
	}
	EXPECT_TRUE(FVexelFileLock::Take(GetPath("lock"), 0.01).HasValue());
}

TEST_F(FileLock, AMoveKeepsItHeld)
{
	TVexelExpected<FVexelFileLock> Taken = FVexelFileLock::Take(GetPath("lock"));
	ASSERT_TRUE(Taken.HasValue());
	const FVexelFileLock Moved = MoveTemp(Taken).GetValue();
	EXPECT_TRUE(FVexelFileLock::Take(GetPath("lock"), 0.01).HasError());
}

TEST_F(FileLock, SaysWhichFileCannotBeMade)
{
	const TVexelExpected<FVexelFileLock> Lock = FVexelFileLock::Take(GetPath("no directory/lock"));
	ASSERT_TRUE(Lock.HasError());
	EXPECT_THAT(TCHAR_TO_UTF8(*Lock.GetError().ToShortString()), testing::HasSubstr("no directory/lock"));
	EXPECT_TRUE(FVexelFileLock::TryTake(GetPath("no directory/lock")).HasError());
}
