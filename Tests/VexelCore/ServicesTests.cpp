#include "CoreGlobals.h"
#include "Dom/JsonObject.h"
#include "LogCapture.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "TaskFixture.h"
#include "VexelFile.h"
#include "VexelInternalConfig.h"
#include "VexelJson.h"
#include "VexelStorage.h"
#include "VexelStringUtil.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

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

FConfigValueBase TestUrlSetting(TEXT("TestServiceUrl"), TEXT("default"));
FConfigValueBase OverriddenSetting(TEXT("TestOverriddenUrl"), TEXT("default"));
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
	OverriddenSetting.ClearOverride();
	EXPECT_EQ(ToUtf8(OverriddenSetting.Get()), "argument");

	FCommandLine::Set(TEXT("-TestServiceUrl= -TestOverriddenUrl=argument"));
	FVexelInternalConfig::ReloadAll();
	EXPECT_EQ(ToUtf8(TestUrlSetting.Get()), "environment") << "an empty text is none";
	FCommandLine::Set(TEXT(""));
	unsetenv("VEXEL_TEST_SERVICE_URL");
	FVexelInternalConfig::ReloadAll();
}

TEST(InternalConfig, ASecretComesFromNoCommandLineAndGoesIntoNoLog)
{
	static FConfigValueBase Secret(TEXT("TestSecret"), TEXT("5"), EConfigValueFlags::Secret);
	FCommandLine::Set(TEXT("-TestSecret=everybody-sees-it"));
	EXPECT_EQ(ToUtf8(Secret.Get()), "5");
	FCommandLine::Set(TEXT(""));
	FLogCapture Log;
	Secret.SetOverride(TEXT("hidden"));
	EXPECT_EQ(Secret.GetNumber(0.0, 10.0), 5.0);
	EXPECT_TRUE(Log.Contains("TestSecret")) << Log.ToText();
	EXPECT_FALSE(Log.Contains("hidden"));
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

TEST(VexelConfig, NumbersStayInTheirBoundsAndTheDefaultStandsInForOthers)
{
	static FConfigValueBase Setting(TEXT("TestNumber"), TEXT("300"));
	FLogCapture Log;
	EXPECT_EQ(Setting.GetNumber(1.0, 1000.0), 300.0);
	Setting.SetOverride(TEXT("2.5"));
	EXPECT_EQ(Setting.GetNumber(1.0, 1000.0), 2.5);
	Setting.SetOverride(TEXT("-7"));
	EXPECT_EQ(Setting.GetNumber(1.0, 1000.0), 1.0);
	Setting.SetOverride(TEXT("123456789"));
	EXPECT_EQ(Setting.GetNumber(1.0, 1000.0), 1000.0);
	for (const TCHAR* const NoNumber : {TEXT("soon"), TEXT(""), TEXT("nan"), TEXT("5 minutes"), TEXT("0x10")})
	{
		Setting.SetOverride(NoNumber);
		EXPECT_EQ(Setting.GetNumber(1.0, 1000.0), 300.0) << ToUtf8(NoNumber);
	}
	EXPECT_EQ(Log.Count("which is no number; it counts as 300"), 5);
}

TEST(PrintableText, HoldsNothingThatATerminalWouldObey)
{
	EXPECT_EQ(ToUtf8(FVexelStringUtil::ToPrintable(u"T\u00FCr\t\u9580\n\U0001F6AA")), "Tür\t門\n🚪");
	EXPECT_EQ(ToUtf8(FVexelStringUtil::ToPrintable(u"a\r\nb\rc")), "a\nb\uFFFDc");
	EXPECT_EQ(ToUtf8(FVexelStringUtil::ToPrintable(u"\u001b[2J\u009b1m\u0007\u0008\u007f")), "\uFFFD[2J\uFFFD1m\uFFFD\uFFFD\uFFFD");
	EXPECT_EQ(ToUtf8(FVexelStringUtil::ToPrintable(FStringView(u"a\0b", 3))), "a\uFFFDb");
	EXPECT_EQ(ToUtf8(FVexelStringUtil::ToPrintableLine(u"\n one\r\n\t two  \u001bthree\n", 100)), "one two \uFFFDthree");
	EXPECT_EQ(ToUtf8(FVexelStringUtil::ToPrintableLine(u"one two three", 7)), "one two…");
}

TEST(JsonTraits, ValuesComeBackAndOthersAreRefused)
{
	FString Text = TEXT("kept");
	EXPECT_TRUE(TVexelJsonTraits<FString>::FromJson(TVexelJsonTraits<FString>::ToJson(TEXT("T\u00FCr")), Text));
	EXPECT_EQ(ToUtf8(Text), "Tür");
	EXPECT_FALSE(TVexelJsonTraits<FString>::FromJson(MakeShared<FJsonValueNumber>(1.0), Text));
	EXPECT_FALSE(TVexelJsonTraits<FString>::FromJson(nullptr, Text));
	EXPECT_EQ(ToUtf8(Text), "Tür");
	const FGuid Guid(0x01234567, 0x89abcdef, 0x01234567, 0x89abcdef);
	FGuid Read;
	EXPECT_EQ(ToUtf8(TVexelJsonTraits<FGuid>::ToJson(Guid)->AsString()), "01234567-89ab-cdef-0123-456789abcdef");
	EXPECT_TRUE(TVexelJsonTraits<FGuid>::FromJson(TVexelJsonTraits<FGuid>::ToJson(Guid), Read));
	EXPECT_EQ(Read, Guid);
	EXPECT_FALSE(TVexelJsonTraits<FGuid>::FromJson(MakeShared<FJsonValueString>(TEXT("no guid")), Read));
	EXPECT_FALSE(TVexelJsonTraits<FGuid>::FromJson(MakeShared<FJsonValueNumber>(1.0), Read));
}

TEST_F(FVexelFileTest, GeneratedModelsStayInTheirFolderWhateverTheyAreCalled)
{
	FPaths::SetProjectSavedDir(ToPath(Root / "Saved"));
	const uint8 Bytes[] = {'g', 'l', 'T', 'F'};
	const TOptional<FString> Model = FVexelStorage::StoreGeneratedModel(TEXT("task-1"), TEXT(".glb"), Bytes);
	ASSERT_TRUE(Model.IsSet());
	EXPECT_EQ(ToUtf8(*Model), (Root / "Saved/VexelStorage/Models/task-1/model.glb").string());
	EXPECT_EQ(ReadFile(ToUtf8(*Model)), "glTF");
	EXPECT_EQ(ToUtf8(*FVexelStorage::StoreGeneratedAssetForModel(TEXT("task-1"), TEXT("base_color.png"), Bytes)),
		(Root / "Saved/VexelStorage/Models/task-1/base_color.png").string());
	std::set<std::string> Paths;
	const TCHAR* const Hostile[] = {TEXT(".."), TEXT("../../../escape.png"), TEXT(".. /../escape.png"), TEXT("/etc/passwd"), TEXT(""),
		TEXT(".hidden"), TEXT("T\u00FCr.png"), TEXT("Tor.p/ng"), TEXT("a\nb")};
	for (const TCHAR* const Name : Hostile)
	{
		for (const TOptional<FString>& Path : {FVexelStorage::StoreGeneratedAssetForModel(TEXT("task-1"), Name, Bytes),
				 FVexelStorage::StoreGeneratedModel(Name, TEXT(".glb"), Bytes)})
		{
			ASSERT_TRUE(Path.IsSet()) << ToUtf8(Name);
			const fs::path Stored = ToUtf8(*Path);
			EXPECT_EQ(fs::weakly_canonical(Stored).parent_path().parent_path(), fs::weakly_canonical(Root / "Saved/VexelStorage/Models"));
			EXPECT_TRUE(fs::exists(Stored));
			EXPECT_TRUE(Paths.insert(Stored.string()).second) << "two names, one file: " << Stored;
		}
	}
	EXPECT_TRUE(FVexelStorage::StoreGeneratedAssetForModel(TEXT("task-1"), FString::ChrN(5000, TEXT('x')) + TEXT(".png"), Bytes)
					->EndsWith(TEXT(".png")));
	std::ofstream(Root / "Saved/VexelStorage/Models/blocked") << "a file where a folder should be";
	EXPECT_FALSE(FVexelStorage::StoreGeneratedModel(TEXT("blocked"), TEXT(".glb"), Bytes).IsSet());
	FPaths::SetProjectSavedDir(FString());
}
