#pragma once

#include "CoreMinimal.h"

/** Names of packages ("/Game/Dir/Asset") and of their files. The roots are mount points; "/Game/", "/Engine/", "/Temp/" stand ready. */
class COREUOBJECT_API FPackageName
{
public:
	static const FString& GetAssetPackageExtension();
	static const FString& GetMapPackageExtension();
	static bool IsPackageExtension(const TCHAR* Ext);
	static bool IsPackageFilename(const FString& Filename);

	static bool TryConvertFilenameToLongPackageName(
		const FString& InFilename, FString& OutPackageName, FString* OutFailureReason = nullptr);
	/** Empty when the file is below no mount point, which is logged. */
	static FString FilenameToLongPackageName(const FString& InFilename);
	static bool TryConvertLongPackageNameToFilename(
		const FString& InLongPackageName, FString& OutFilename, const FString& InExtension = TEXT(""));
	/** The file's path without an extension unless one is given; empty when no mount point fits. */
	static FString LongPackageNameToFilename(const FString& InLongPackageName, const FString& InExtension = TEXT(""));

	/** Begins with a known root, has no invalid characters and no empty part. */
	static bool IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots = false, FText* OutReason = nullptr);
	static bool IsValidObjectPath(const FString& InObjectPath, FText* OutReason = nullptr);
	static bool IsShortPackageName(const FString& PossiblyLongName);
	static FString GetShortName(const FString& LongName);
	static FString GetShortName(const class UPackage* Package);
	static FString GetShortName(const FName& LongName);
	static FName GetShortFName(const FName& LongName);
	static FString GetLongPackagePath(const FString& InLongPackageName);
	static FString GetLongPackageAssetName(const FString& InLongPackageName);
	/** "Game" of "/Game/Dir/Asset". */
	static FName GetPackageMountPoint(const FString& InPackagePath, bool InWithoutSlashes = true);
	static FString ObjectPathToPackageName(const FString& InObjectPath);
	static FString ObjectPathToObjectName(const FString& InObjectPath);
	static FString ObjectPathToPathWithinPackage(const FString& InObjectPath);
	/** "/Game/Dir/Asset.Asset" of "Class'/Game/Dir/Asset.Asset'". */
	static FString ExportTextPathToObjectPath(const FString& InExportTextPath);
	static bool ParseExportTextPath(const FString& InExportTextPath, FString* OutClassName, FString* OutObjectPath);
	static bool IsScriptPackage(FStringView InPackageName);
	static bool IsTempPackage(FStringView InPackageName);
	static bool IsMemoryPackage(FStringView InPackageName);

	/** A script package never exists on disk. */
	static bool DoesPackageExist(const FString& LongPackageName, FString* OutFilename = nullptr);
	static bool FindPackageFileWithoutExtension(const FString& InPackageFilename, FString& OutFilename);
	static bool FindPackagesInDirectory(TArray<FString>& OutPackages, const FString& RootDir);

	/** Root "/Plugin/" to a folder; both end with a slash or get one. The latest mount of a root wins. */
	static void RegisterMountPoint(const FString& RootPath, const FString& ContentPath);
	static void UnRegisterMountPoint(const FString& RootPath, const FString& ContentPath);
	static bool MountPointExists(const FString& RootPath);
	static void QueryRootContentPaths(TArray<FString>& OutRootContentPaths, bool bIncludeReadOnlyRoots = false,
		bool bWithoutLeadingSlashes = false, bool bWithoutTrailingSlashes = false);
};
