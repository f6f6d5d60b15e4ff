#include "Tools/ToolFixture.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
namespace fs = std::filesystem;

class GetSource : public FToolTest
{
protected:
	std::string ReadFile(const std::string& Path) { return GetText(Answer("get_source", "{\"file\":\"" + Path + "\"}"), "text"); }
	std::string Refuse(const std::string& Path) { return Error("get_source", "{\"file\":\"" + Path + "\"}"); }
};

std::string Repeat(const std::string& Text, int32 Num)
{
	std::string Result;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Result += Text;
	}
	return Result;
}
}

TEST_F(GetSource, ReadsFilesOfTheProjectAndItsPlugins)
{
	Write("Source/Game/Door.h", "class ADoor;\r\n\r\n// end");
	Write("Plugins/Sea/Sea.uplugin", R"({"FileVersion":3})");
	Write("Plugins/Sea/Source/Sea/Wave.cpp", "int Wave;\n");
	Write("Shaders/Water.usf", "float4 Water;\n");
	EXPECT_EQ(ReadFile("Source/Game/Door.h"), "class ADoor;\n\n// end\n");
	EXPECT_EQ(ReadFile("Plugins/Sea/Source/Sea/Wave.cpp"), "int Wave;\n");
	EXPECT_EQ(ReadFile("Plugins/Sea/Sea.uplugin"), "{\"FileVersion\":3}\n");
	EXPECT_EQ(ReadFile("Shaders/Water.usf"), "float4 Water;\n");
	EXPECT_THAT(ReadFile("Lighthouse.uproject"), HasSubstr("\"EngineAssociation\": \"5.7\""));
}

TEST_F(GetSource, NeverLeavesTheProjectsSources)
{
	Write("Source/Game/Door.h", "class ADoor;\n");
	Write("Saved/Config/Secret.ini", "Token=1\n");
	Write("Source/.env", "Token=1\n");
	Write("Source/.git/config", "Token=1\n");
	Write("Plugins/Sea/Sea.uplugin", R"({"FileVersion":3})");
	Write("Plugins/Sea/Saved/Source/Log.txt", "x\n");
	const std::string Outside = (GetProjectFolder() / "Saved/Config/Secret.ini").string();
	const std::string Paths[] = {"", "/", ".", "..", "/etc/passwd", Outside, "Source", "Source/", "Source//Game/Door.h", "../Test/Source/Game/Door.h",
		"Source/../Saved/Config/Secret.ini", "Source/./Game/Door.h", "Source/Game/../../Saved/Config/Secret.ini", "Source\\\\Game\\\\Door.h",
		"source/Game/Door.h", "SOURCE/GAME/DOOR.H", "Saved/Config/Secret.ini", "Content/BP_Door.uasset", "Source/.env", "Source/.git/config",
		"Source/Game/Door.h/", "Source/Game/Door.h ", "Source/Game/Door.h.", "Source/Game/Door.h::$DATA", "Source/Game/Door.h\\u0000", "C:/Windows/win.ini",
		"//server/share/x.h", "~/x.h", "Plugins/Sea/Saved/Source/Log.txt", "Plugins/../Saved/Source/x", "Source/Game", "Source/Game/Window.h",
		"file:///etc/passwd", "Source/" + Repeat("a/", 5000) + "b.h"};
	for (const std::string& Path : Paths)
	{
		EXPECT_THAT(Refuse(Path), HasSubstr("Invalid input: ")) << Path;
	}
	EXPECT_EQ(ReadFile("Source/Game/Door.h"), "class ADoor;\n");
}

TEST_F(GetSource, FollowsNoSymbolicLinks)
{
	Write("Source/Game/Door.h", "class ADoor;\n");
	Write("Saved/Secret.ini", "Token=1\n");
	fs::create_directory_symlink(GetProjectFolder() / "Saved", GetProjectFolder() / "Source/Link");
	fs::create_symlink(GetProjectFolder() / "Saved/Secret.ini", GetProjectFolder() / "Source/Game/Secret.ini");
	EXPECT_EQ(Refuse("Source/Link/Secret.ini"),
		"Invalid input: 'Source/Link/Secret.ini' leads through a symbolic link, and links are not followed");
	EXPECT_THAT(Refuse("Source/Game/Secret.ini"), HasSubstr("leads through a symbolic link"));
	EXPECT_THAT(GetTexts(Answer("get_project", "{}"), "source_files"), ElementsAre("Source/Game/Door.h"));
}

TEST_F(GetSource, AnswersTheLinesThatAreAskedFor)
{
	Write("Source/Five.cpp", "1\n2\n3\n4\n5");
	const TSharedRef<FJsonObject> Middle = Answer("get_source", R"({"file":"Source/Five.cpp","first_line":2,"last_line":3})");
	EXPECT_EQ(GetText(Middle, "text"), "2\n3\n");
	EXPECT_EQ(GetNumber(Middle, "first_line"), 2);
	EXPECT_EQ(GetNumber(Middle, "last_line"), 3);
	EXPECT_EQ(GetNumber(Middle, "total_lines"), 5);
	const TSharedRef<FJsonObject> End = Answer("get_source", R"({"file":"Source/Five.cpp","first_line":5,"last_line":9000})");
	EXPECT_EQ(GetText(End, "text"), "5\n");
	EXPECT_EQ(GetNumber(End, "last_line"), 5);
	EXPECT_EQ(Error("get_source", R"({"file":"Source/Five.cpp","first_line":6})"),
		"Invalid input: `first_line` is 6, but 'Source/Five.cpp' has 5 lines");
	EXPECT_EQ(Error("get_source", R"({"file":"Source/Five.cpp","first_line":3,"last_line":2})"),
		"Invalid input: `last_line` must not be before `first_line`, and 2 is before 3");
}

TEST_F(GetSource, LongFilesAreReadInSeveralCalls)
{
	Write("Source/Long.cpp", Repeat("x\n", 4500));
	Write("Source/Wide.cpp", std::string(250'000, 'w') + "\nend\n");
	int32 Line = 1;
	int32 NumCalls = 0;
	std::string All;
	while (Line <= 4500)
	{
		const TSharedRef<FJsonObject> Part = Answer("get_source", "{\"file\":\"Source/Long.cpp\",\"first_line\":" + std::to_string(Line) + "}");
		ASSERT_GE(GetNumber(Part, "last_line"), Line);
		All += GetText(Part, "text");
		Line = GetNumber(Part, "last_line") + 1;
		++NumCalls;
	}
	EXPECT_EQ(NumCalls, 3);
	EXPECT_EQ(All, Repeat("x\n", 4500));
	const TSharedRef<FJsonObject> Wide = Answer("get_source", R"({"file":"Source/Wide.cpp"})");
	EXPECT_EQ(GetNumber(Wide, "last_line"), 1);
	EXPECT_EQ(GetText(Wide, "text").size(), 100'000u);
	EXPECT_EQ(GetText(Answer("get_source", R"({"file":"Source/Wide.cpp","first_line":2})"), "text"), "end\n");
}

TEST_F(GetSource, TellsHowAFileIsWritten)
{
	Write("Config/Empty.ini", "");
	Write("Config/Utf8.ini", "\xEF\xBB\xBFK\xC3\xA4se \xEF\xBF\xBD");
	Write("Config/Utf16.ini", std::string("\xFF\xFEK\0\xE4\0\n\0", 8));
	Write("Config/Ansi.ini", "K\xE4se \x80\x93");
	Write("Source/Binary.cpp", std::string("MZ\0\1", 4));
	Write("Source/Huge.cpp", std::string(9 << 20, 'x'));
	const TSharedRef<FJsonObject> Empty = Answer("get_source", R"({"file":"Config/Empty.ini"})");
	EXPECT_EQ(GetText(Empty, "text"), "");
	EXPECT_EQ(GetNumber(Empty, "total_lines"), 0);
	const TSharedRef<FJsonObject> Utf8 = Answer("get_source", R"({"file":"Config/Utf8.ini"})");
	EXPECT_EQ(GetText(Utf8, "encoding"), "utf-8");
	EXPECT_EQ(GetText(Utf8, "text"), "K\xC3\xA4se \xEF\xBF\xBD\n");
	const TSharedRef<FJsonObject> Utf16 = Answer("get_source", R"({"file":"Config/Utf16.ini"})");
	EXPECT_EQ(GetText(Utf16, "encoding"), "utf-16");
	EXPECT_EQ(GetText(Utf16, "text"), "K\xC3\xA4\n");
	const TSharedRef<FJsonObject> Ansi = Answer("get_source", R"({"file":"Config/Ansi.ini"})");
	EXPECT_EQ(GetText(Ansi, "encoding"), "windows-1252");
	EXPECT_EQ(GetText(Ansi, "text"), "K\xC3\xA4se \xE2\x82\xAC\xE2\x80\x9C\n");
	EXPECT_EQ(Refuse("Source/Binary.cpp"), "Invalid input: The file 'Binary.cpp' is no text");
	EXPECT_THAT(Refuse("Source/Huge.cpp"), HasSubstr("too large to be read: it has 9437184 bytes"));
}

TEST_F(GetSource, APipeIsNotWaitedFor)
{
	Write("Source/Door.h", "class ADoor {};\n");
	ASSERT_EQ(mkfifo((GetProjectFolder() / "Source/Pipe.h").c_str(), 0600), 0);
	EXPECT_EQ(ReadFile("Source/Pipe.h"), "");
	EXPECT_THAT(GetTexts(Answer("get_source", R"({"symbol":"ADoor"})"), "declarations", "file"), ElementsAre("Source/Door.h"));
}

TEST_F(GetSource, FindsWhatANameDeclares)
{
	Write("Source/Game/Door.h", "#pragma once\n\n/** A door. */\nclass ADoor : public AActor\n{\npublic:\n\tvoid Open();\n};\n");
	Write("Source/Game/Door.cpp", "#include \"Door.h\"\n\nvoid ADoor::Open()\n{\n\tbOpen = true;\n}\n");
	Write("Source/Game/Gate.h", "class AGate\n{\n\tvoid Open();\n};\n");
	Write("Source/Game/Notes.txt", "class ADoor {};\n");
	const TSharedRef<FJsonObject> Class = Answer("get_source", R"({"symbol":"ADoor"})");
	EXPECT_THAT(GetTexts(Class, "declarations", "text"),
		ElementsAre("/** A door. */\nclass ADoor : public AActor\n{\npublic:\n\tvoid Open();\n};\n"));
	const TSharedRef<FJsonObject> Function = Answer("get_source", R"({"symbol":"ADoor::Open"})");
	EXPECT_THAT(GetTexts(Function, "declarations", "file"), ElementsAre("Source/Game/Door.cpp", "Source/Game/Door.h")) << "the body first";
	EXPECT_THAT(GetTexts(Function, "declarations", "text"), ElementsAre("void ADoor::Open()\n{\n\tbOpen = true;\n}\n", "\tvoid Open();\n"));
	EXPECT_EQ(GetTexts(Answer("get_source", R"({"symbol":"Open"})"), "declarations", "name").size(), 3u);
	EXPECT_EQ(Error("get_source", R"({"symbol":"ADor"})"), "Invalid input: The project's sources do not declare 'ADor'; they do declare ADoor");
	EXPECT_EQ(Error("get_source", R"({"symbol":"adoor"})"), "Invalid input: The project's sources do not declare 'adoor'; they do declare ADoor");
}

TEST_F(GetSource, SeesThatASourceHasChanged)
{
	Write("Source/Door.h", "class ADoor {};\n");
	EXPECT_EQ(GetTexts(Answer("get_source", R"({"symbol":"ADoor"})"), "declarations", "text").size(), 1u);
	Write("Source/Door.h", "\n\nclass AGate {};\n");
	EXPECT_THAT(Error("get_source", R"({"symbol":"ADoor"})"), HasSubstr("do not declare 'ADoor'"));
	EXPECT_THAT(GetTexts(Answer("get_source", R"({"symbol":"AGate"})"), "declarations", "text"), ElementsAre("class AGate {};\n"));
	fs::remove(GetProjectFolder() / "Source/Door.h");
	EXPECT_EQ(Error("get_source", R"({"symbol":"AGate"})"), "Invalid input: The project's sources do not declare 'AGate'");
}

TEST_F(GetSource, AProjectWithoutSourcesDeclaresNothing)
{
	EXPECT_EQ(Error("get_source", R"({"symbol":"ADoor"})"), "Invalid input: The project's sources do not declare 'ADoor'");
	EXPECT_EQ(Refuse("Source/Game/Door.h"), "Invalid input: There is no file 'Source/Game/Door.h' in the project");
}

TEST_F(GetSource, ManyDeclarationsOfANameAreCut)
{
	for (int32 Index = 0; Index < 30; ++Index)
	{
		Write("Source/File" + std::to_string(Index) + ".h", "class AMany\n{\n" + Repeat("\tint Member;\n", 500) + "};\n");
	}
	const TSharedRef<FJsonObject> Many = Answer("get_source", R"({"symbol":"AMany"})");
	EXPECT_EQ(GetNumber(Many, "declarations_total"), 30);
	const std::vector<std::string> Texts = GetTexts(Many, "declarations", "text");
	EXPECT_LE(Texts.size(), 20u);
	EXPECT_GE(Texts.size(), 10u);
	EXPECT_EQ(std::count(Texts[0].begin(), Texts[0].end(), '\n'), 400);
	EXPECT_EQ(GetNumber(Many->GetArrayField(TEXT("declarations"))[0]->AsObject().ToSharedRef(), "last_line"), 503);
}

TEST_F(GetSource, RefusesArgumentsThatDoNotFit)
{
	EXPECT_EQ(Error("get_source", "{}"), "Invalid input: One of `file` and `symbol` must be given");
	EXPECT_EQ(Error("get_source", R"({"file":"Config/DefaultEngine.ini","symbol":"A"})"), "Invalid input: One of `file` and `symbol` must be given");
	EXPECT_EQ(Error("get_source", R"({"file":7})"), "Invalid input: `file` must be a string that is not empty, not 7");
	EXPECT_EQ(Error("get_source", R"({"file":"Config/DefaultEngine.ini","first_line":0})"),
		"Invalid input: `first_line` must be an integer of at least 1, not 0");
	EXPECT_THAT(Error("get_source", "{\"symbol\":\"" + std::string(300, 'A') + "\"}"), HasSubstr("`symbol` must be a string of at most 256 characters"));
}
