#include "CoreGlobals.h"
#include "Dom/JsonObject.h"
#include "LogCapture.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "TaskFixture.h"
#include "VexelFile.h"
#include "VexelInternalConfig.h"
#include "VexelJson.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{
namespace fs = std::filesystem;

class FVexelFileTest : public testing::Test
{
protected:
	FVexelFileTest()
	{
		std::string Pattern = (fs::temp_directory_path() / "vexel-test-XXXXXX").string();
		Root = mkdtemp(Pattern.data());
	}
	virtual ~FVexelFileTest() override { fs::remove_all(Root); }

	static FString ToPath(const fs::path& Path) { return UTF8_TO_TCHAR(Path.c_str()); }
	static std::string ReadFile(const fs::path& Path)
	{
		std::ifstream Stream(Path, std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}
	static std::ptrdiff_t CountFiles(const fs::path& Directory)
	{
		return std::distance(fs::directory_iterator(Directory), fs::directory_iterator());
	}

	fs::path Root;
};

struct FPerson final : public IVexelJsonable
{
	virtual TSharedRef<FJsonObject> ToJson() const override
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetStringField(TEXT("name"), Name);
		return Object;
	}
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override { return Object->TryGetStringField(TEXT("name"), Name); }

	FString Name;
};

FVexelConfigValue TestUrlSetting(TEXT("TestServiceUrl"), TEXT("default"));
FVexelConfigValue OverriddenSetting(TEXT("TestOverriddenUrl"), TEXT("default"));
}

TEST_F(FVexelFileTest, IsReplacedWholeAndLeavesNoTemporaryFile)
{
	const fs::path Path = Root / "a" / "b" / "chat.json";
	EXPECT_TRUE(FVexelFile::SaveWhole(ToPath(Path), FString(TEXT("a long first text"))).HasValue());
	EXPECT_EQ(ReadFile(Path), "a long first text");
	EXPECT_TRUE(FVexelFile::SaveWhole(ToPath(Path), FString(TEXT("Tür"))).HasValue());
	EXPECT_EQ(ReadFile(Path), "Tür");
	EXPECT_TRUE(FVexelFile::SaveWhole(ToPath(Path), TConstArrayView<uint8>()).HasValue());
	EXPECT_EQ(ReadFile(Path), "");
	EXPECT_EQ(CountFiles(Path.parent_path()), 1);
}

TEST_F(FVexelFileTest, FailureSaysWhichPathAndLeavesWhatWasThere)
{
	std::ofstream(Root / "file") << "in the way";
	const TVexelExpected<void> BelowAFile = FVexelFile::SaveWhole(ToPath(Root / "file" / "x"), FString(TEXT("t")));
	ASSERT_TRUE(BelowAFile.HasError());
	EXPECT_EQ(ToUtf8(BelowAFile.GetError().GetMessage()), "The directory '" + (Root / "file").string() + "' cannot be made");
	EXPECT_EQ(ReadFile(Root / "file"), "in the way");
	fs::create_directories(Root / "directory" / "inner");
	const TVexelExpected<void> OverADirectory = FVexelFile::SaveWhole(ToPath(Root / "directory"), FString(TEXT("t")));
	ASSERT_TRUE(OverADirectory.HasError());
	EXPECT_TRUE(fs::is_directory(Root / "directory" / "inner"));
	EXPECT_EQ(CountFiles(Root), 2) << "the temporary file is gone";
}

TEST(InternalConfig, EachSourceStandsAboveTheOneBefore)
{
	EXPECT_EQ(FVexelInternalConfig::Find(TEXT("TestServiceUrl")), &TestUrlSetting);
	EXPECT_EQ(FVexelInternalConfig::Find(TEXT("NoSuchSetting")), nullptr);
	TestUrlSetting.Reload();
	EXPECT_EQ(ToUtf8(TestUrlSetting.Get()), "default");

	setenv("VEXEL_TEST_SERVICE_URL", "environment", 1);
	EXPECT_EQ(ToUtf8(TestUrlSetting.Get()), "default") << "it is read once";
	TestUrlSetting.Reload();
	EXPECT_EQ(ToUtf8(TestUrlSetting.Get()), "environment");

	FCommandLine::Set(TEXT("-TestServiceUrl=argument -TestOverriddenUrl=argument"));
	TestUrlSetting.Reload();
	EXPECT_EQ(ToUtf8(TestUrlSetting.Get()), "argument");

	OverriddenSetting.SetOverride(TEXT("override"));
	OverriddenSetting.Reload();
	EXPECT_EQ(ToUtf8(OverriddenSetting.Get()), "override");
	FCommandLine::Set(TEXT(""));
	unsetenv("VEXEL_TEST_SERVICE_URL");
}

TEST(JsonConversions, TextToObjectAndBack)
{
	TSharedPtr<FJsonObject> Object;
	FString Error;
	ASSERT_TRUE(FVexelJsonConversions::StringToJson(TEXT("{ \"a\" : [1] }"), Object, &Error));
	FString Text;
	EXPECT_TRUE(FVexelJsonConversions::JsonToString(Object.ToSharedRef(), Text));
	EXPECT_EQ(ToUtf8(Text), "{\"a\":[1]}");
	EXPECT_TRUE(FVexelJsonConversions::JsonToPrettyString(Object.ToSharedRef(), Text));
	EXPECT_THAT(ToUtf8(Text), testing::HasSubstr("\n\t\"a\": ["));
	EXPECT_FALSE(FVexelJsonConversions::StringToJson(TEXT("{\n]"), Object, &Error));
	EXPECT_FALSE(Object.IsValid());
	EXPECT_EQ(ToUtf8(Error), "Missing a name for object member. Line: 2 Ch: 1");
}

TEST(JsonConversions, RecordsDescribeThemselves)
{
	const FLogCapture Log;
	FPerson Person;
	EXPECT_TRUE(Person.FromJsonString(TEXT("{\"name\":\"Ada\"}")));
	EXPECT_EQ(ToUtf8(Person.ToJsonString()), "{\"name\":\"Ada\"}");
	EXPECT_FALSE(Person.FromJsonString(TEXT("{}")));
	EXPECT_FALSE(Log.Contains("not a JSON object"));
	EXPECT_FALSE(Person.FromJsonString(TEXT("[]")));
	EXPECT_TRUE(Log.Contains("The text is not a JSON object: An object is expected. Line: 1 Ch: 1"));
}
