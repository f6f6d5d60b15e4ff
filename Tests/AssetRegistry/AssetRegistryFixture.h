#pragma once

#include "AssetRegistry/AssetRegistryModule.h"
#include "Engine/Blueprint.h"
#include "LogCapture.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/** A content folder of its own, mounted as /RegistryTest/, which the registry has read while it was empty. */
class FAssetRegistryTest : public testing::Test
{
protected:
	static void SetUpTestSuite() { ProcessNewlyLoadedUObjects(); }

	virtual void SetUp() override
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-registry-test-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
		Content = FString(UTF8_TO_TCHAR(Directory.c_str())) + TEXT("/");
		FPackageName::RegisterMountPoint(TEXT("/RegistryTest/"), Content);
		Registry().SearchAllAssets(true);
	}

	virtual void TearDown() override
	{
		FPackageName::UnRegisterMountPoint(TEXT("/RegistryTest/"), Content);
		std::error_code Ignored;
		std::filesystem::remove_all(Directory, Ignored);
		CollectGarbage(RF_NoFlags);
	}

	static IAssetRegistry& Registry() { return IAssetRegistry::GetChecked(); }

	std::filesystem::path FileOf(const std::string& Name) const { return Directory / (Name + ".uasset"); }

	/** Saves a Blueprint asset as /RegistryTest/Name; the object is gone afterwards. */
	void SaveAsset(
		const std::string& Name, TFunctionRef<void(UBlueprint*)> Change = [](UBlueprint*) {}) const
	{
		const FString PackageName = TEXT("/RegistryTest/") + FString(UTF8_TO_TCHAR(Name.c_str()));
		UPackage* const Package = CreatePackage(*PackageName);
		UBlueprint* const Blueprint =
			NewObject<UBlueprint>(Package, FName(*FPackageName::GetShortName(PackageName)), RF_Public | RF_Standalone);
		Change(Blueprint);
		ASSERT_TRUE(UPackage::SavePackage(Package, Blueprint, *FString(UTF8_TO_TCHAR(FileOf(Name).c_str())), FSavePackageArgs()));
		Blueprint->ClearFlags(RF_Standalone);
		CollectGarbage(RF_NoFlags);
		ASSERT_EQ(FindPackage(nullptr, *PackageName), nullptr);
	}

	/** Paths of the assets below the folder, in the registry's order. */
	static std::vector<std::string> ListAssets(const TCHAR* Folder = TEXT("/RegistryTest"), bool bRecursive = true)
	{
		TArray<FAssetData> Assets;
		const bool bAny = Registry().GetAssetsByPath(FName(Folder), Assets, bRecursive);
		EXPECT_EQ(bAny, Assets.Num() > 0);
		std::vector<std::string> Paths;
		for (const FAssetData& Asset : Assets)
		{
			Paths.push_back(TCHAR_TO_UTF8(*Asset.GetObjectPathString()));
		}
		return Paths;
	}

	using FPathList = std::vector<std::string>;

	FLogCapture Log;
	std::filesystem::path Directory;
	FString Content;
};
