#include "FilesFixture.h"

#include "Internationalization/Text.h"
#include "Math/UnrealMath.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"

namespace
{
const TCHAR* const Section = TEXT("/Script/A");

/** A project and an engine of the test's own, with their configuration loaded. */
class FConfigTest : public FFilesTest
{
protected:
	FConfigTest()
		: OldCommandLine(FCommandLine::Get())
	{
		Write(TEXT("Project/Config/DefaultGame.ini"), TEXT("[/Script/A]\nName=project\n+List=one\n+List=two\nNumber=7\n"));
		FPaths::SetEngineDir(In(TEXT("Engine")));
		FPaths::SetProjectFilePath(In(TEXT("Project/P.uproject")));
	}
	~FConfigTest() override
	{
		FConfigCacheIni::ShutdownConfigSystem();
		FPaths::SetProjectFilePath(FString());
		FPaths::SetEngineDir(FString());
		FCommandLine::Set(*OldCommandLine);
	}

	static std::string GetString(const TCHAR* Key)
	{
		FString Value = TEXT("(none)");
		GConfig->GetString(Section, Key, Value, GGameIni);
		return Utf8(Value);
	}
	static std::string GetList()
	{
		TArray<FString> Values;
		GConfig->GetArray(Section, TEXT("List"), Values, GGameIni);
		return Utf8(FString::Join(Values, TEXT("|")));
	}
	std::string SavedText() const { return Read(In(TEXT("Project/Saved/Config/Game.ini"))); }

private:
	const FString OldCommandLine;
};
}

TEST_F(FConfigTest, CommandLineWinsOverEveryLayerAndIsNotSaved)
{
	Write(TEXT("Project/Saved/Config/Game.ini"), TEXT("[/Script/A]\nName=user\n"));
	FCommandLine::Set(TEXT(
		"-log -ini:Game:[/Script/A]:Name=line,[/Script/A]:List=a,b,[New]:Key=x=y -ini:Engine:[/Script/A]:Name=other -ini:Game:broken"));
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(GetString(TEXT("Name")), "line");
	EXPECT_EQ(GetList(), "a,b") << "a comma inside a value stays";
	FString Value;
	EXPECT_TRUE(GConfig->GetString(TEXT("New"), TEXT("Key"), Value, GGameIni));
	EXPECT_EQ(Utf8(Value), "x=y");

	GConfig->SetInt(Section, TEXT("Number"), 8, GGameIni);
	ASSERT_TRUE(GConfig->Flush(false));
	EXPECT_EQ(SavedText(), "[/Script/A]\nName=user\nNumber=8\n\n");
	EXPECT_EQ(GetString(TEXT("Name")), "line") << "saving does not change what is in force";

	GConfig->SetString(Section, TEXT("Name"), TEXT("changed"), GGameIni);
	ASSERT_TRUE(GConfig->Flush(false));
	EXPECT_NE(SavedText().find("Name=changed"), std::string::npos) << "a value that was set since is the user's";

	FCommandLine::Set(TEXT(""));
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(GetString(TEXT("Name")), "changed");
	EXPECT_EQ(GetList(), "one|two");
}

TEST_F(FConfigTest, OnlyWhatDiffersFromTheLayersBelowIsSaved)
{
	FConfigCacheIni::InitializeConfigSystem();
	GConfig->SetString(Section, TEXT("Name"), TEXT("project"), GGameIni);
	EXPECT_TRUE(GConfig->AddToSection(Section, TEXT("List"), TEXT("two"), GGameIni));
	EXPECT_FALSE(GConfig->AddUniqueToSection(Section, TEXT("List"), TEXT("one"), GGameIni));
	ASSERT_TRUE(GConfig->Flush(false));
	EXPECT_EQ(SavedText(), "[/Script/A]\n!List=ClearArray\n.List=one\n.List=two\n.List=two\n\n");
	EXPECT_TRUE(GConfig->RemoveFromSection(Section, TEXT("List"), TEXT("two"), GGameIni));
	EXPECT_FALSE(GConfig->RemoveFromSection(Section, TEXT("List"), TEXT("TWO"), GGameIni));
	EXPECT_TRUE(GConfig->AddUniqueToSection(Section, TEXT("List"), TEXT("two"), GGameIni));
	ASSERT_TRUE(GConfig->Flush(false));
	EXPECT_EQ(SavedText(), "");
}

TEST_F(FConfigTest, ValuesOfEveryTypeComeBack)
{
	FConfigCacheIni::InitializeConfigSystem();
	GConfig->SetVector(Section, TEXT("Vector"), FVector(1, -2.5, 3), GGameIni);
	GConfig->SetRotator(Section, TEXT("Rotator"), FRotator(10, 20, 30), GGameIni);
	GConfig->SetColor(Section, TEXT("Color"), FColor(1, 2, 3, 4), GGameIni);
	GConfig->SetText(Section, TEXT("Text"), NSLOCTEXT("N", "K", "say \"hi\"\n"), GGameIni);
	GConfig->SetSingleLineArray(Section, TEXT("Line"), {TEXT("a"), TEXT("b c")}, GGameIni);
	GConfig->SetBool(Section, TEXT("Bool"), true, GGameIni);
	ASSERT_TRUE(GConfig->Flush(true));

	FString File;
	ASSERT_TRUE(FConfigCacheIni::LoadGlobalIniFile(File, TEXT("Game")));
	EXPECT_EQ(File, GGameIni);
	FVector Vector(9);
	EXPECT_TRUE(GConfig->GetVector(Section, TEXT("Vector"), Vector, GGameIni));
	EXPECT_EQ(Vector, FVector(1, -2.5, 3));
	EXPECT_FALSE(GConfig->GetVector(Section, TEXT("Name"), Vector, GGameIni));
	EXPECT_EQ(Vector, FVector(1, -2.5, 3)) << "a text that is no vector changes nothing";
	FRotator Rotator;
	EXPECT_TRUE(GConfig->GetRotator(Section, TEXT("Rotator"), Rotator, GGameIni));
	EXPECT_EQ(Rotator, FRotator(10, 20, 30));
	FColor Color;
	EXPECT_TRUE(GConfig->GetColor(Section, TEXT("Color"), Color, GGameIni));
	EXPECT_EQ(Color, FColor(1, 2, 3, 4));
	FText Text;
	EXPECT_TRUE(GConfig->GetText(Section, TEXT("Text"), Text, GGameIni));
	EXPECT_TRUE(Text.IdenticalTo(NSLOCTEXT("N", "K", "say \"hi\"\n")));
	TArray<FString> Line;
	EXPECT_EQ(GConfig->GetSingleLineArray(Section, TEXT("Line"), Line, GGameIni), 2);
	EXPECT_EQ(Utf8(FString::Join(Line, TEXT("|"))), "a|b c");
	EXPECT_TRUE(GConfig->GetBoolOrDefault(Section, TEXT("Bool"), false, GGameIni));
	EXPECT_EQ(GConfig->GetIntOrDefault(Section, TEXT("Number"), 3, GGameIni), 7);
	EXPECT_EQ(GConfig->GetIntOrDefault(Section, TEXT("Missing"), 3, GGameIni), 3);
	EXPECT_EQ(GConfig->GetDoubleOrDefault(TEXT("NoSection"), TEXT("Number"), 0.5, GGameIni), 0.5);
}

TEST_F(FConfigTest, ReloadingForgetsWhatWasNotSaved)
{
	FConfigCacheIni::InitializeConfigSystem();
	GConfig->SetString(Section, TEXT("Name"), TEXT("unsaved"), GGameIni);
	FString File;
	FConfigCacheIni::LoadGlobalIniFile(File, TEXT("Game"));
	EXPECT_EQ(GetString(TEXT("Name")), "unsaved");
	FConfigCacheIni::LoadGlobalIniFile(File, TEXT("Game"), nullptr, true);
	EXPECT_EQ(GetString(TEXT("Name")), "project");
}

TEST_F(FConfigTest, AFileOfItsOwnIsReadAndWritten)
{
	FConfigFile File;
	File.SetString(TEXT("S"), TEXT("K"), TEXT("1.5"));
	File.SetArray(TEXT("S"), TEXT("A"), {TEXT("x"), TEXT("x")});
	ASSERT_TRUE(File.Write(In(TEXT("Own.ini"))));
	EXPECT_FALSE(File.Write(In(TEXT("NoFolder/Own.ini"))));
	FConfigFile Read;
	Read.SetString(TEXT("Old"), TEXT("K"), TEXT("gone"));
	Read.Read(In(TEXT("Own.ini")));
	EXPECT_EQ(Read.Num(), 1);
	double Number = 0;
	EXPECT_TRUE(Read.GetDouble(TEXT("s"), TEXT("k"), Number));
	EXPECT_EQ(Number, 1.5);
	TArray<FString> Values;
	EXPECT_EQ(Read.GetArray(TEXT("S"), TEXT("A"), Values), 2);
	int32 Missing = 4;
	EXPECT_FALSE(Read.GetInt(TEXT("S"), TEXT("Missing"), Missing));
	EXPECT_EQ(Missing, 4);
	Read.Read(In(TEXT("Missing.ini")));
	EXPECT_TRUE(Read.IsEmpty());
}
