#include "EditorFixture.h"
#include "Misc/FileHelper.h"
#include "UObject/Casts.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace
{
const std::filesystem::path Samples = std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples";

/** References to native types and functions in data that the real editor wrote, each with a file that has it. */
using FReferences = std::map<std::string, std::string>;

/** Modules whose types a Blueprint host does not have, and why. */
const std::pair<const char*, const char*> ForeignModules[] = {
	{"AirSim", "a plug-in that projects bring themselves"},
	{"CesiumRuntime", "a plug-in that projects bring themselves"},
	{"Schola", "a plug-in that projects bring themselves"},
	{"PCG", "graphs of their own kind, not Blueprints"},
	{"PCGEditor", "graphs of their own kind, not Blueprints"},
	{"NiagaraEditor", "graphs of their own kind, not Blueprints"},
	{"PhysXVehicles", "gone from the engine since 5.0"},
};

/** Single types that are missing for a reason. */
const std::pair<const char*, const char*> ForeignTypes[] = {
	{"/Script/UnrealEd.MaterialGraphNode", "a node of material graphs"},
	{"/Script/UnrealEd.PreviewMaterial", "an object of the material editor's window"},
};

bool IsAccepted(const std::string& Path)
{
	for (const auto& [Module, Why] : ForeignModules)
	{
		if (Path.starts_with(std::string("/Script/") + Module + "."))
		{
			return true;
		}
	}
	for (const auto& [Type, Why] : ForeignTypes)
	{
		if (Path == Type)
		{
			return true;
		}
	}
	// Fields have been no objects since 4.25.
	return std::regex_match(Path, std::regex(R"(/Script/CoreUObject\.\w+Property)"));
}

/** "/Script/Module.Class:Member" or a type's path; Default__Class stands for its class. */
bool IsKnown(const std::string& Path)
{
	const size_t Colon = Path.find(':');
	const std::string Type = std::regex_replace(Path.substr(0, Colon), std::regex("Default__"), "");
	const UObject* const Found = FindObject<UObject>(nullptr, UTF8_TO_TCHAR(Type.c_str()));
	if (!Found || UE::CoreUObject::IsPlaceholder(Found) || Colon == std::string::npos)
	{
		return Found && !UE::CoreUObject::IsPlaceholder(Found);
	}
	const UClass* const Class = Cast<UClass>(Found);
	const FName Member(UTF8_TO_TCHAR(Path.substr(Colon + 1).c_str()));
	return Class && (Class->FindFunctionByName(Member) || Class->FindPropertyByName(Member));
}

template <typename TVisitor>
void ForEachFile(const char* const Folder, const TVisitor& Visit)
{
	std::error_code Missing;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Samples / Folder, Missing))
	{
		if (Entry.is_regular_file())
		{
			Visit(Entry.path());
		}
	}
}

std::string ReadText(const std::filesystem::path& Path)
{
	FString Text;
	EXPECT_TRUE(FFileHelper::LoadFileToString(Text, UTF8_TO_TCHAR(Path.c_str()))) << Path;
	return reinterpret_cast<const char*>(FTCHARToUTF8(*Text).Get());
}

void CollectMatches(const std::string& Text, const std::regex& Pattern, const std::string& File, FReferences& References)
{
	for (std::sregex_iterator Match(Text.begin(), Text.end(), Pattern); Match != std::sregex_iterator(); ++Match)
	{
		const std::string Member = Match->size() > 2 ? ":" + (*Match)[2].str() : std::string();
		References.emplace((*Match)[1].str() + Member, File);
	}
}

/** Types and members that texts of copied nodes name. */
FReferences CollectFromTexts()
{
	// Class'"/Path"' before 5.1, "Class'/Path'" since.
	static const std::regex Type(R"rx((/Script/[A-Za-z0-9_]+\.[A-Za-z0-9_]+))rx");
	static const std::regex Member(R"rx(MemberParent="?[A-Za-z0-9_./]+'"?(/Script/[A-Za-z0-9_]+\.[A-Za-z0-9_]+)"?'"?,MemberName="([^"]+)")rx");
	FReferences References;
	ForEachFile("t3d", [&References](const std::filesystem::path& Path)
		{
		const std::string Text = ReadText(Path);
		CollectMatches(Text, Type, Path.filename().string(), References);
		CollectMatches(Text, Member, Path.filename().string(), References); });
	return References;
}

/** Native classes, structs, enumerations and functions that packages import. */
FReferences CollectFromPackages()
{
	static const std::set<std::string> Kinds = {"Class", "ScriptStruct", "Enum", "Function", "DelegateFunction"};
	FReferences References;
	ForEachFile("packages", [&References](const std::filesystem::path& Path)
		{
		if (Path.extension() != ".uasset" && Path.extension() != ".umap")
		{
			return;
		}
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(FString(UTF8_TO_TCHAR(Path.c_str())), nullptr, Error);
		ASSERT_TRUE(Linker) << Path << ": " << TCHAR_TO_UTF8(*Error);
		for (int32 Index = 0; Index < Linker->ImportMap.Num(); ++Index)
		{
			const std::string Name = reinterpret_cast<const char*>(FTCHARToUTF8(*Linker->GetImportPathName(Index)).Get());
			const std::string Kind = reinterpret_cast<const char*>(FTCHARToUTF8(*Linker->ImportMap[Index].ClassName.ToString()).Get());
			if (Name.starts_with("/Script/") && Kinds.contains(Kind))
			{
				References.emplace(Name, Path.filename().string());
			}
		} });
	return References;
}

class FSampleReferenceTest : public FEditorTest
{
protected:
	void SetUp() override
	{
		FEditorTest::SetUp();
		if (!std::filesystem::exists(Samples))
		{
			GTEST_SKIP() << "the sample files are missing: " << Samples;
		}
	}

	static void ExpectAllKnown(const FReferences& References)
	{
		for (const auto& [Path, File] : References)
		{
			EXPECT_TRUE(IsAccepted(Path) || IsKnown(Path)) << Path << " of " << File;
		}
	}
};

TEST_F(FSampleReferenceTest, EveryTypeAndFunctionOfTheTextsIsDeclared)
{
	const FReferences References = CollectFromTexts();
	EXPECT_GT(References.size(), 80u);
	ExpectAllKnown(References);
}

TEST_F(FSampleReferenceTest, EveryImportOfThePackagesIsDeclared)
{
	const FReferences References = CollectFromPackages();
	EXPECT_GT(References.size(), 100u);
	ExpectAllKnown(References);
}

/** A type that was declared since does not need a reason to be missing any more. */
TEST_F(FSampleReferenceTest, WhatIsAcceptedAsMissingIsMissing)
{
	for (const auto& [Type, Why] : ForeignTypes)
	{
		EXPECT_FALSE(IsKnown(Type)) << Type << ": " << Why;
	}
}
}
