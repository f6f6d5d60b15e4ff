#include "EditorFixture.h"
#include "PackageSamples.h"

#include "Misc/FileHelper.h"
#include "UObject/LinkerLoad.h"
#include "UObject/LinkerSave.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace
{
struct FComparison
{
	int32 Files = 0;
	int32 SameFiles = 0;
	int32 Exports = 0;
	int32 SameExports = 0;
	std::map<std::string, int32> OthersByClass;
};

class FPackageRoundTripTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		if (PackageSamples::List().empty())
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
		Written = GetProjectDir() / TEXT("Saved/Written.uasset");
	}

	/** Compares the written file with the sample, export by export and as a whole. */
	void Compare(const FLinkerLoad& Before, const std::string& Sample, FComparison& Comparison) const
	{
		FString Error;
		const TUniquePtr<FLinkerLoad> After = FLinkerLoad::Create(Written, nullptr, Error);
		ASSERT_TRUE(After) << Sample << ": " << TCHAR_TO_UTF8(*Error);
		ASSERT_GE(After->ExportMap.Num(), Before.ExportMap.Num()) << Sample;
		++Comparison.Files;
		for (int32 Index = 0; Index < Before.ExportMap.Num(); ++Index)
		{
			++Comparison.Exports;
			if (Before.GetExportBytes(Index) == After->GetExportBytes(Index))
			{
				++Comparison.SameExports;
			}
			else
			{
				++Comparison.OthersByClass[TCHAR_TO_UTF8(*Before.GetExportClassName(Index).ToString())];
			}
		}
		TArray<uint8> Original;
		TArray<uint8> Copy;
		const std::string File = (PackageSamples::GetFolder() / Sample).string();
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Original, UTF8_TO_TCHAR(File.c_str())));
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Copy, *Written));
		Comparison.SameFiles += Original == Copy ? 1 : 0;
		if (Original != Copy && Original.Num() == Copy.Num())
		{
			const auto Difference = std::mismatch(Original.begin(), Original.end(), Copy.begin());
			printf("%s differs first at %d\n", Sample.c_str(), int32(Difference.first - Original.begin()));
		}
	}

	static void Print(const char* Title, const std::map<std::string, FComparison>& Comparisons)
	{
		printf("%-14s %14s %18s\n", Title, "files equal", "exports equal");
		for (const auto& [Group, Comparison] : Comparisons)
		{
			printf("%-14s %9d / %2d %12d / %3d", Group.c_str(), Comparison.SameFiles, Comparison.Files, Comparison.SameExports, Comparison.Exports);
			for (const auto& [Class, Count] : Comparison.OthersByClass)
			{
				printf("  %s %d", Class.c_str(), Count);
			}
			printf("\n");
		}
	}

	FString Written;
};

TEST_F(FPackageRoundTripTest, AnUnchangedPackageIsWrittenBackAsTheSameFile)
{
	std::map<std::string, FComparison> Comparisons;
	for (const std::string& Sample : PackageSamples::List())
	{
		SCOPED_TRACE(Sample);
		const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample));
		ASSERT_TRUE(Loaded.GetLinker()) << TCHAR_TO_UTF8(*Loaded.GetError());
		ASSERT_TRUE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs()));
		FComparison& Comparison = Comparisons[PackageSamples::GetGroup(Sample)];
		Compare(*Loaded.GetLinker(), Sample, Comparison);
		EXPECT_EQ(Comparison.SameExports, Comparison.Exports);
		EXPECT_EQ(Comparison.SameFiles, Comparison.Files);
	}
	Print("written back", Comparisons);
}

TEST_F(FPackageRoundTripTest, ObjectsWrittenAnewInTheirOwnVersionHaveTheSameBytes)
{
	std::map<std::string, FComparison> Comparisons;
	for (const std::string& Sample : PackageSamples::List())
	{
		SCOPED_TRACE(Sample);
		const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample));
		ASSERT_TRUE(Loaded.GetLinker()) << TCHAR_TO_UTF8(*Loaded.GetError());
		FLinkerSave Saver(Loaded.GetPackage(), Written);
		Saver.StartFromTablesOf(*Loaded.GetLinker());
		Saver.WriteUnchangedObjectsAnew();
		FString Error;
		if (!Saver.WriteExports(Error))
		{
			printf("%s: %s\n", Sample.c_str(), TCHAR_TO_UTF8(*Error));
			continue;
		}
		const TArray<uint8> File = Saver.MakeFile(Error);
		ASSERT_FALSE(File.IsEmpty()) << TCHAR_TO_UTF8(*Error);
		ASSERT_TRUE(FFileHelper::SaveArrayToFile(File, *Written));
		Compare(*Loaded.GetLinker(), Sample, Comparisons[PackageSamples::GetGroup(Sample)]);
	}
	Print("written anew", Comparisons);
}
}
