#include "EditorFixture.h"
#include "PackageSamples.h"
#include "StrictPackageReader.h"

#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "EdGraphSchema_K2.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <algorithm>
#include <fstream>
#include <map>

namespace
{
std::vector<uint8_t> ReadFile(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	return std::vector<uint8_t>(std::istreambuf_iterator<char>(Stream), {});
}

class FNewPackageTest : public FEditorTest
{
protected:
	/** A Blueprint with a variable, saved as a package that never was a file before. */
	static std::vector<uint8_t> SaveNewBlueprint(const FString& Name)
	{
		UPackage* const Package = CreatePackage(*(TEXT("/Game/Form/") + Name));
		UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, FName(*Name), BPTYPE_Normal);
		Blueprint->LastEditedDocuments.Add(FEditedDocumentInfo(Blueprint->UbergraphPages[0].Get()));
		FEdGraphPinType Type;
		Type.PinCategory = UEdGraphSchema_K2::PC_SoftClass;
		Type.PinSubCategoryObject = AActor::StaticClass();
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Kind_7"), Type);
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		EXPECT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
		return ReadFile(std::filesystem::path(TCHAR_TO_UTF8(*(GetProjectDir() / TEXT("Content/Form") / Name + TEXT(".uasset")))));
	}
};

TEST_F(FNewPackageTest, TheStrictReaderKnowsTheFormOfTheRealEditor)
{
	int32 NumRead = 0;
	for (const std::string& Sample : PackageSamples::List())
	{
		if (PackageSamples::GetGroup(Sample) != "UE56")
		{
			continue;
		}
		const std::vector<uint8_t> Bytes = ReadFile(PackageSamples::GetFolder() / Sample);
		EXPECT_EQ(FStrictPackageReader(Bytes).Read(), "") << Sample;
		++NumRead;
	}
	if (NumRead == 0)
	{
		GTEST_SKIP() << "the folder of sample packages is missing";
	}
}

TEST_F(FNewPackageTest, AnotherReaderTakesANewPackage)
{
	const std::vector<uint8_t> Bytes = SaveNewBlueprint(TEXT("BP_Form"));
	ASSERT_FALSE(Bytes.empty());
	FStrictPackageReader Reader(Bytes);
	ASSERT_EQ(Reader.Read(), "");
	EXPECT_EQ(Reader.PackageName, "/Game/Form/BP_Form");
	const auto HasExport = [&Reader](const std::string& Name)
	{
		return std::any_of(Reader.Exports.begin(), Reader.Exports.end(), [&Name](const FStrictPackageReader::FExport& Export)
			{ return Export.Name == Name; });
	};
	for (const char* const Name : {"BP_Form", "BP_Form_C", "Default__BP_Form_C", "EventGraph"})
	{
		EXPECT_TRUE(HasExport(Name)) << Name;
	}
	ASSERT_FALSE(Reader.Assets.empty());
	EXPECT_EQ(Reader.Assets[0].Path, "BP_Form");
	EXPECT_EQ(Reader.Assets[0].Class, "/Script/Engine.Blueprint");
	EXPECT_NE(std::find(Reader.Assets[0].Tags.begin(), Reader.Assets[0].Tags.end(), "GeneratedClass"), Reader.Assets[0].Tags.end());
	EXPECT_NE(std::find(Reader.Imports.begin(), Reader.Imports.end(), "Class Actor"), Reader.Imports.end());
	// A name's number is no part of the table's entry.
	EXPECT_NE(std::find(Reader.Names.begin(), Reader.Names.end(), "Kind"), Reader.Names.end());
}

TEST_F(FNewPackageTest, AnyTableInAnotherPlaceIsNoticedByTheStrictReader)
{
	std::vector<uint8_t> Bytes = SaveNewBlueprint(TEXT("BP_Longer"));
	ASSERT_FALSE(Bytes.empty());
	Bytes.insert(Bytes.end() - 4, 0);
	EXPECT_NE(FStrictPackageReader(Bytes).Read(), "");
}

TEST_F(FNewPackageTest, NamesHaveTheHashesThatTheRealEditorGivesThem)
{
	std::map<std::string, std::pair<uint16_t, uint16_t>> Known;
	for (const std::string& Sample : PackageSamples::List())
	{
		if (PackageSamples::GetGroup(Sample) == "UE56")
		{
			const std::vector<uint8_t> Bytes = ReadFile(PackageSamples::GetFolder() / Sample);
			FStrictPackageReader Reader(Bytes);
			ASSERT_EQ(Reader.Read(), "") << Sample;
			for (size_t Index = 0; Index < Reader.Names.size(); ++Index)
			{
				Known[Reader.Names[Index]] = Reader.NameHashes[Index];
			}
		}
	}
	if (Known.empty())
	{
		GTEST_SKIP() << "the folder of sample packages is missing";
	}
	const std::vector<uint8_t> Bytes = SaveNewBlueprint(TEXT("BP_Hashes"));
	FStrictPackageReader Reader(Bytes);
	ASSERT_EQ(Reader.Read(), "");
	int32 NumShared = 0;
	for (size_t Index = 0; Index < Reader.Names.size(); ++Index)
	{
		const auto Expected = Known.find(Reader.Names[Index]);
		if (Expected != Known.end())
		{
			EXPECT_EQ(Reader.NameHashes[Index], Expected->second) << Reader.Names[Index];
			++NumShared;
		}
	}
	EXPECT_GT(NumShared, 20);
}
}
