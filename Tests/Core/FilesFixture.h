#pragma once

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

#include <gtest/gtest.h>

#include <string>

inline std::string Utf8(const FString& Text)
{
	return reinterpret_cast<const char*>(TCHAR_TO_UTF8(*Text));
}

/** A folder of the test's own, gone with it. */
class FFilesTest : public testing::Test
{
protected:
	FFilesTest()
		: Folder(FPaths::CreateTempFilename(FPlatformProcess::UserTempDir(), TEXT("VexelFiles"), TEXT("")))
	{
		IFileManager::Get().MakeDirectory(*Folder, true);
	}
	~FFilesTest() override { IFileManager::Get().DeleteDirectory(*Folder, false, true); }

	FString In(const TCHAR* Name) const { return FPaths::Combine(Folder, Name); }
	FString Write(const TCHAR* Name, const TCHAR* Text) const
	{
		EXPECT_TRUE(FFileHelper::SaveStringToFile(Text, *In(Name), FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
		return In(Name);
	}
	static std::string Read(const FString& Path)
	{
		FString Text;
		return FFileHelper::LoadFileToString(Text, *Path) ? Utf8(Text) : "(unreadable)";
	}
	int32 CountEntries() const
	{
		TArray<FString> Names;
		IFileManager::Get().FindFiles(Names, *(Folder / TEXT("*")), true, true);
		return Names.Num();
	}

	const FString Folder;
};
