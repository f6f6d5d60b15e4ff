#include "PropertyTestTypes.h"

#include "Misc/PackageName.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

#include <gtest/gtest.h>

namespace
{
std::string Utf8(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}

struct FSoftPathCase
{
	const TCHAR* Text;
	const TCHAR* Package;
	const TCHAR* Asset;
	const TCHAR* SubPath;
};

const FSoftPathCase SoftPathCases[] = {
	{TEXT(""), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("None"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("none"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("Relative.Asset"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("/"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("/Game/A"), TEXT("/Game/A"), TEXT(""), TEXT("")},
	{TEXT("/Game/A.A"), TEXT("/Game/A"), TEXT("A"), TEXT("")},
	{TEXT("/Game/A.A:B"), TEXT("/Game/A"), TEXT("A"), TEXT("B")},
	{TEXT("/Game/A.A:B.C"), TEXT("/Game/A"), TEXT("A"), TEXT("B.C")},
	{TEXT("/Game/A.A.B"), TEXT("/Game/A"), TEXT("A"), TEXT("B")},
	{TEXT("/Game/A.A:"), TEXT("/Game/A"), TEXT("A"), TEXT("")},
	{TEXT("/Game/A."), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("/Game/A.:B"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("/Script/Engine.Actor"), TEXT("/Script/Engine"), TEXT("Actor"), TEXT("")},
	{TEXT("/Script/Engine.Texture2D'/Game/T.T'"), TEXT("/Game/T"), TEXT("T"), TEXT("")},
	{TEXT("Texture2D'\"/Game/T.T\"'"), TEXT("/Game/T"), TEXT("T"), TEXT("")},
	{TEXT("\"/Game/T.T\""), TEXT("/Game/T"), TEXT("T"), TEXT("")},
	{TEXT("/Game/With Blank/A.A_C"), TEXT("/Game/With Blank/A"), TEXT("A_C"), TEXT("")},
	{TEXT("/Game/A_7.A_7"), TEXT("/Game/A_7"), TEXT("A_7"), TEXT("")},
	{TEXT("/Game/A_007.A_007"), TEXT("/Game/A_007"), TEXT("A_007"), TEXT("")},
	{TEXT("Class'/Game/A.A"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("''"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("'"), TEXT(""), TEXT(""), TEXT("")},
	{TEXT("\""), TEXT(""), TEXT(""), TEXT("")},
};
}

TEST(SoftObjectPath, TextsAreTakenApart)
{
	for (const FSoftPathCase& Case : SoftPathCases)
	{
		const FSoftObjectPath Path{FStringView(Case.Text)};
		const std::string Text = Utf8(Case.Text);
		EXPECT_EQ(Utf8(Path.GetLongPackageName()), Utf8(Case.Package)) << Text;
		EXPECT_EQ(Path.GetAssetFName(), FName(Case.Asset)) << Text;
		EXPECT_EQ(Utf8(Path.GetSubPathString()), Utf8(Case.SubPath)) << Text;
		EXPECT_EQ(FSoftObjectPath(Path.ToString()), Path) << Text;
		EXPECT_EQ(Path.IsNull(), *Case.Package == 0) << Text;
	}
}

TEST(SoftObjectPath, SubPathMakesADifferentPathButPackageCaseDoesNot)
{
	const FSoftObjectPath Asset(TEXT("/Game/A.A"));
	const FSoftObjectPath Inner(TEXT("/Game/A.A:X"));
	EXPECT_FALSE(Asset == Inner);
	EXPECT_TRUE(Inner.GetWithoutSubPath() == Asset);
	EXPECT_TRUE(Inner.IsSubobject());
	EXPECT_FALSE(Inner.IsAsset());
	const FSoftObjectPath Other(TEXT("/game/a.a"));
	EXPECT_TRUE(Other == Asset);
	EXPECT_EQ(GetTypeHash(Other), GetTypeHash(Asset));
}

TEST(SoftObjectPath, EveryPrefixOfExportTextIsAPathOrNone)
{
	const FString Whole = TEXT("\"/Script/Engine.Texture2D'/Game/T.T:Inner'\"");
	for (int32 Length = 0; Length <= Whole.Len(); ++Length)
	{
		const FSoftObjectPath Path{Whole.Left(Length)};
		EXPECT_EQ(FSoftObjectPath(Path.ToString()), Path) << Length;
		const TCHAR* Buffer = *Whole + Whole.Len() - Length;
		FSoftObjectPath FromTail;
		FromTail.ImportTextItem(Buffer, PPF_Delimited, nullptr, nullptr);
		EXPECT_LE(Buffer, *Whole + Whole.Len());
	}
}

TEST(TopLevelAssetPath, SubObjectsAndRelativePathsAreRefused)
{
	for (const TCHAR* const Bad : {TEXT(""), TEXT("/"), TEXT("Actor"), TEXT("Engine.Actor"), TEXT("/Game/A.A:B"), TEXT("/Game/A.A.B"),
			 TEXT("/Game/A."), TEXT("Class'/Game/A.A:B'")})
	{
		FTopLevelAssetPath Path(TEXT("/Game/Old"), TEXT("Old"));
		EXPECT_FALSE(Path.TrySetPath(FStringView(Bad))) << Utf8(Bad);
		EXPECT_TRUE(Path.IsNull()) << Utf8(Bad);
		EXPECT_EQ(Path.ToString(), FString()) << Utf8(Bad);
	}
	const TCHAR* const Good[][2] = {{TEXT("/Game/A"), TEXT("/Game/A")}, {TEXT("/Game/A.B"), TEXT("/Game/A.B")},
		{TEXT("/Script/CoreUObject.Class'/Script/Engine.Actor'"), TEXT("/Script/Engine.Actor")}};
	for (const auto& Row : Good)
	{
		EXPECT_EQ(Utf8(FTopLevelAssetPath(FStringView(Row[0])).ToString()), Utf8(Row[1]));
	}
}

TEST(TopLevelAssetPath, OfAnObjectIsThatOfAnAssetOrPackageOnly)
{
	UPackage* const Package = MakeTestPackage(TEXT("/Script/PropertyTests"));
	UObject* const Asset = GetItemStruct();
	UObject* const Inner = NewObject<UScriptStruct>(Asset, TEXT("InnerOfItem"));
	EXPECT_EQ(FTopLevelAssetPath(Package).ToString(), TEXT("/Script/PropertyTests"));
	EXPECT_EQ(FTopLevelAssetPath(Asset).ToString(), TEXT("/Script/PropertyTests.Item"));
	EXPECT_TRUE(FTopLevelAssetPath(Inner).IsNull());
	EXPECT_EQ(FSoftObjectPath(Inner).ToString(), TEXT("/Script/PropertyTests.Item:InnerOfItem"));
	EXPECT_EQ(FSoftObjectPath(Inner).ResolveObject(), Inner);
}

namespace
{
struct FPackageNameCase
{
	const TCHAR* Name;
	bool bValid;
	bool bValidWithReadOnlyRoots;
};

const FPackageNameCase PackageNameCases[] = {
	{TEXT("/Game/A"), true, true},
	{TEXT("/game/a"), true, true},
	{TEXT("/Game/Dir/A_1-b"), true, true},
	{TEXT("/Engine/A"), true, true},
	{TEXT("/Temp/A"), true, true},
	{TEXT("/Script/Engine"), false, true},
	{TEXT("/Memory/A"), false, true},
	{TEXT("/Unmounted/A"), false, false},
	{TEXT(""), false, false},
	{TEXT("/"), false, false},
	{TEXT("/Game"), false, false},
	{TEXT("/Game/"), false, false},
	{TEXT("Game/A"), false, false},
	{TEXT("A"), false, false},
	{TEXT("/Game//A"), false, false},
	{TEXT("//Game/A"), false, false},
	{TEXT("/Game/A/"), false, false},
	{TEXT("/Game/../A"), false, false},
	{TEXT("/Game/./A"), false, false},
	{TEXT("/Game/A.A"), false, false},
	{TEXT("/Game/A B"), false, false},
	{TEXT("/Game/A\\B"), false, false},
	{TEXT("/Game/A:B"), false, false},
	{TEXT("/Game/A*"), false, false},
	{TEXT("/Game/A?"), false, false},
	{TEXT("/Game/A\n"), false, false},
	{TEXT("/Game/A\t"), false, false},
	{TEXT("/Game/A'"), false, false},
	{TEXT("/Game/A\""), false, false},
	{TEXT("/Game/A,B"), false, false},
	{TEXT("/Game/A#B"), false, false},
	{TEXT("/Game/A@B"), false, false},
	{TEXT("/Game/A~B"), false, false},
	{TEXT("/GameX/A"), false, false},
};
}

TEST(PackageNames, ValidNamesAreKnownFromBadOnesWithAReason)
{
	for (const FPackageNameCase& Case : PackageNameCases)
	{
		FText Reason;
		EXPECT_EQ(FPackageName::IsValidLongPackageName(Case.Name, false, &Reason), Case.bValid) << Utf8(Case.Name);
		EXPECT_EQ(Reason.IsEmpty(), Case.bValid) << Utf8(Case.Name);
		EXPECT_EQ(FPackageName::IsValidLongPackageName(Case.Name, true), Case.bValidWithReadOnlyRoots) << Utf8(Case.Name);
	}
}

TEST(PackageNames, NoNameLeadsOutOfItsMountedFolder)
{
	FPackageName::RegisterMountPoint(TEXT("/Trap/"), TEXT("/trap/content"));
	for (const TCHAR* const Name :
		{TEXT("/Trap/../secret"), TEXT("/Trap/A/../../secret"), TEXT("/Trap/.."), TEXT("/Trap/A/..\\..\\secret"),
			TEXT("/Trap\\..\\secret"), TEXT("/Trap/A\\../../b"), TEXT("/etc/passwd"), TEXT("Trap/A"), TEXT("")})
	{
		FString Filename;
		EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(Name, Filename)) << Utf8(Name) << " gave " << Utf8(Filename);
		EXPECT_FALSE(FPackageName::DoesPackageExist(Name)) << Utf8(Name);
	}
	// A file that is reached through "..", and one in a folder whose name only begins like the mounted one.
	for (const TCHAR* const File : {TEXT("/trap/content/../secret.uasset"), TEXT("/trap/contents/A.uasset"), TEXT("/trap/A.uasset")})
	{
		FString Name;
		FString Reason;
		EXPECT_FALSE(FPackageName::TryConvertFilenameToLongPackageName(File, Name, &Reason)) << Utf8(File) << " gave " << Utf8(Name);
		EXPECT_FALSE(Reason.IsEmpty());
	}
	FString Name;
	EXPECT_TRUE(FPackageName::TryConvertFilenameToLongPackageName(TEXT("/trap/content/x/../A.uasset"), Name));
	EXPECT_EQ(Name, TEXT("/Trap/A"));
	FPackageName::UnRegisterMountPoint(TEXT("/Trap/"), TEXT("/trap/content"));
}

TEST(PackageNames, TheLatestMountOfARootWinsUntilItIsTakenAway)
{
	FPackageName::RegisterMountPoint(TEXT("/Twice/"), TEXT("/first"));
	FPackageName::RegisterMountPoint(TEXT("/Twice"), TEXT("/second/"));
	EXPECT_EQ(FPackageName::LongPackageNameToFilename(TEXT("/Twice/A"), TEXT(".umap")), TEXT("/second/A.umap"));
	EXPECT_EQ(FPackageName::FilenameToLongPackageName(TEXT("/first/A.umap")), TEXT("/Twice/A"));
	FPackageName::UnRegisterMountPoint(TEXT("/Twice/"), TEXT("/second"));
	EXPECT_EQ(FPackageName::LongPackageNameToFilename(TEXT("/Twice/A")), TEXT("/first/A"));
	FPackageName::UnRegisterMountPoint(TEXT("/Twice/"), TEXT("/first"));
	EXPECT_FALSE(FPackageName::MountPointExists(TEXT("/Twice/")));
	FString Filename;
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Twice/A"), Filename));
}

TEST(PackageNames, APluginMountedBelowAnotherFolderGetsItsFiles)
{
	FPackageName::RegisterMountPoint(TEXT("/Inside/"), TEXT("/outside/content/inside"));
	FPackageName::RegisterMountPoint(TEXT("/Outside/"), TEXT("/outside/content"));
	EXPECT_EQ(FPackageName::FilenameToLongPackageName(TEXT("/outside/content/inside/A.uasset")), TEXT("/Inside/A"));
	EXPECT_EQ(FPackageName::FilenameToLongPackageName(TEXT("/outside/content/B.uasset")), TEXT("/Outside/B"));
	FPackageName::UnRegisterMountPoint(TEXT("/Inside/"), TEXT("/outside/content/inside"));
	FPackageName::UnRegisterMountPoint(TEXT("/Outside/"), TEXT("/outside/content"));
}

TEST(PackageNames, PartsOfPathsAreTakenOut)
{
	const TCHAR* const Path = TEXT("/Game/Dir/A.A:B.C");
	EXPECT_EQ(FPackageName::ObjectPathToPackageName(Path), TEXT("/Game/Dir/A"));
	EXPECT_EQ(FPackageName::ObjectPathToPathWithinPackage(Path), TEXT("A:B.C"));
	EXPECT_EQ(FPackageName::ObjectPathToObjectName(Path), TEXT("C"));
	EXPECT_EQ(FPackageName::ObjectPathToObjectName(TEXT("/Game/Dir/A.A:B")), TEXT("B"));
	EXPECT_EQ(FPackageName::GetLongPackagePath(TEXT("/Game/Dir/A")), TEXT("/Game/Dir"));
	EXPECT_EQ(FPackageName::GetPackageMountPoint(TEXT("/Game/Dir/A")), FName(TEXT("Game")));
	EXPECT_EQ(FPackageName::GetPackageMountPoint(TEXT("/Game/Dir/A"), false), FName(TEXT("/Game/")));
	EXPECT_EQ(FPackageName::GetPackageMountPoint(TEXT("Game")), FName());
	EXPECT_TRUE(FPackageName::IsValidObjectPath(TEXT("/Game/A.A")));
	EXPECT_FALSE(FPackageName::IsValidObjectPath(TEXT("/Game/A")));
	EXPECT_FALSE(FPackageName::IsValidObjectPath(TEXT("/Game/A.")));
}

TEST(PackageNames, ExportTextIsTakenApartOrLeftAlone)
{
	FString Class;
	FString Path;
	EXPECT_TRUE(FPackageName::ParseExportTextPath(TEXT("/Script/Engine.Texture2D'/Game/T.T'"), &Class, &Path));
	EXPECT_EQ(Class, TEXT("/Script/Engine.Texture2D"));
	EXPECT_EQ(Path, TEXT("/Game/T.T"));
	EXPECT_EQ(FPackageName::ExportTextPathToObjectPath(TEXT("Texture2D'\"/Game/T.T\"'")), TEXT("/Game/T.T"));
	for (const TCHAR* const Bad : {TEXT(""), TEXT("'"), TEXT("Class'"), TEXT("/Game/T.T"), TEXT("Class'/Game/T.T")})
	{
		EXPECT_FALSE(FPackageName::ParseExportTextPath(Bad, &Class, &Path)) << Utf8(Bad);
		EXPECT_EQ(Utf8(FPackageName::ExportTextPathToObjectPath(Bad)), Utf8(Bad));
	}
}
