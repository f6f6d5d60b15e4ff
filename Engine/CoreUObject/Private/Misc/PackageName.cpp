#include "Misc/PackageName.h"

#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
struct FMountPoint
{
	FString Root;
	/** Empty for a root whose folder follows the project or the engine. */
	FString Folder;
};

TArray<FMountPoint>& GetMountPoints()
{
	static TArray<FMountPoint> MountPoints;
	return MountPoints;
}

FString WithTrailingSlash(const FString& Path)
{
	return Path.EndsWith(TEXT("/")) ? Path : Path + TEXT("/");
}

FString NormalizeFolder(const FString& Folder)
{
	FString Full = FPaths::ConvertRelativePathToFull(Folder);
	FPaths::NormalizeDirectoryName(Full);
	return WithTrailingSlash(Full);
}

/** Registered roots, latest first, then the ones that are always there. */
TArray<FMountPoint> GetAllMountPoints()
{
	TArray<FMountPoint> Result;
	for (int32 Index = GetMountPoints().Num() - 1; Index >= 0; --Index)
	{
		Result.Add(GetMountPoints()[Index]);
	}
	Result.Add({TEXT("/Game/"), NormalizeFolder(FPaths::ProjectContentDir())});
	Result.Add({TEXT("/Engine/"), NormalizeFolder(FPaths::EngineDir() / TEXT("Content"))});
	Result.Add({TEXT("/Temp/"), NormalizeFolder(FPaths::ProjectSavedDir())});
	return Result;
}

constexpr const TCHAR* ReadOnlyRoots[] = {TEXT("/Script/"), TEXT("/Memory/"), TEXT("/Extra/")};

bool Refuse(FText* OutReason, const TCHAR* Reason)
{
	if (OutReason)
	{
		*OutReason = FText::FromString(Reason);
	}
	return false;
}
}

const FString& FPackageName::GetAssetPackageExtension()
{
	static const FString Extension(TEXT(".uasset"));
	return Extension;
}

const FString& FPackageName::GetMapPackageExtension()
{
	static const FString Extension(TEXT(".umap"));
	return Extension;
}

bool FPackageName::IsPackageExtension(const TCHAR* Ext)
{
	const FString Extension(Ext);
	const FString WithDot = Extension.StartsWith(TEXT(".")) ? Extension : TEXT(".") + Extension;
	return WithDot == GetAssetPackageExtension() || WithDot == GetMapPackageExtension();
}

bool FPackageName::IsPackageFilename(const FString& Filename)
{
	return Filename.EndsWith(GetAssetPackageExtension()) || Filename.EndsWith(GetMapPackageExtension());
}

bool FPackageName::TryConvertFilenameToLongPackageName(const FString& InFilename, FString& OutPackageName, FString* OutFailureReason)
{
	FString Path = FPaths::ConvertRelativePathToFull(InFilename);
	FPaths::NormalizeFilename(Path);
	const FString WithoutExtension = IsPackageFilename(Path) ? FPaths::GetBaseFilename(Path, false) : Path;
	// A root may be mounted below another's folder; the files there are the inner one's.
	int32 LongestFolder = 0;
	for (const FMountPoint& MountPoint : GetAllMountPoints())
	{
		if (MountPoint.Folder.Len() > LongestFolder && WithoutExtension.StartsWith(MountPoint.Folder, ESearchCase::CaseSensitive))
		{
			LongestFolder = MountPoint.Folder.Len();
			OutPackageName = MountPoint.Root + WithoutExtension.RightChop(LongestFolder);
		}
	}
	if (LongestFolder > 0)
	{
		return true;
	}
	if (OutFailureReason)
	{
		*OutFailureReason = FString::Printf(TEXT("FilenameToLongPackageName failed to convert '%s': no mount point holds it"), *InFilename);
	}
	return false;
}

FString FPackageName::FilenameToLongPackageName(const FString& InFilename)
{
	FString Result;
	FString Reason;
	if (!TryConvertFilenameToLongPackageName(InFilename, Result, &Reason))
	{
		UE_LOG(LogClass, Warning, TEXT("%s"), *Reason);
	}
	return Result;
}

bool FPackageName::TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension)
{
	// A name is no way out of the folder that its root stands for.
	if (InLongPackageName.Contains(TEXT("..")))
	{
		return false;
	}
	for (const FMountPoint& MountPoint : GetAllMountPoints())
	{
		if (InLongPackageName.StartsWith(MountPoint.Root))
		{
			OutFilename = MountPoint.Folder + InLongPackageName.RightChop(MountPoint.Root.Len()) + InExtension;
			return true;
		}
	}
	return false;
}

FString FPackageName::LongPackageNameToFilename(const FString& InLongPackageName, const FString& InExtension)
{
	FString Result;
	if (!TryConvertLongPackageNameToFilename(InLongPackageName, Result, InExtension))
	{
		UE_LOG(LogClass, Warning, TEXT("LongPackageNameToFilename failed to convert '%s'. Path does not map to any roots."),
			*InLongPackageName);
	}
	return Result;
}

bool FPackageName::IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots, FText* OutReason)
{
	const FString Name(InLongPackageName);
	if (Name.Len() < 4 || !Name.StartsWith(TEXT("/")) || Name.EndsWith(TEXT("/")) || Name.Contains(TEXT("//")))
	{
		return Refuse(OutReason, TEXT("A package's name begins with '/' and a root, and no part of it is empty"));
	}
	for (const TCHAR* Invalid = INVALID_LONGPACKAGE_CHARACTERS; *Invalid; ++Invalid)
	{
		int32 Position = INDEX_NONE;
		if (Name.FindChar(*Invalid, Position))
		{
			return Refuse(OutReason, *FString::Printf(TEXT("A package's name cannot hold '%c'"), *Invalid));
		}
	}
	for (const FMountPoint& MountPoint : GetAllMountPoints())
	{
		if (Name.StartsWith(MountPoint.Root))
		{
			return true;
		}
	}
	for (const TCHAR* const Root : ReadOnlyRoots)
	{
		if (bIncludeReadOnlyRoots && Name.StartsWith(Root))
		{
			return true;
		}
	}
	return Refuse(OutReason, TEXT("A package's name begins with a root that is mounted"));
}

bool FPackageName::IsValidObjectPath(const FString& InObjectPath, FText* OutReason)
{
	const FString PackageName = ObjectPathToPackageName(InObjectPath);
	if (!IsValidLongPackageName(PackageName, true, OutReason))
	{
		return false;
	}
	const FString Within = ObjectPathToPathWithinPackage(InObjectPath);
	return !Within.IsEmpty() || Refuse(OutReason, TEXT("An object's path has its name after its package's and a dot"));
}

bool FPackageName::IsShortPackageName(const FString& PossiblyLongName)
{
	return !PossiblyLongName.Contains(TEXT("/"));
}

FString FPackageName::GetShortName(const FString& LongName)
{
	int32 Slash = INDEX_NONE;
	return LongName.FindLastChar(TEXT('/'), Slash) ? LongName.RightChop(Slash + 1) : LongName;
}

FString FPackageName::GetShortName(const UPackage* Package)
{
	return GetShortName(Package->GetName());
}

FString FPackageName::GetShortName(const FName& LongName)
{
	return GetShortName(LongName.ToString());
}

FName FPackageName::GetShortFName(const FName& LongName)
{
	return FName(*GetShortName(LongName));
}

FString FPackageName::GetLongPackagePath(const FString& InLongPackageName)
{
	int32 Slash = INDEX_NONE;
	return InLongPackageName.FindLastChar(TEXT('/'), Slash) ? InLongPackageName.Left(Slash) : InLongPackageName;
}

FString FPackageName::GetLongPackageAssetName(const FString& InLongPackageName)
{
	return GetShortName(InLongPackageName);
}

FName FPackageName::GetPackageMountPoint(const FString& InPackagePath, bool InWithoutSlashes)
{
	const int32 End = InPackagePath.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromStart, 1);
	if (!InPackagePath.StartsWith(TEXT("/")) || End == INDEX_NONE)
	{
		return NAME_None;
	}
	return FName(*(InWithoutSlashes ? InPackagePath.Mid(1, End - 1) : InPackagePath.Left(End + 1)));
}

FString FPackageName::ObjectPathToPackageName(const FString& InObjectPath)
{
	int32 Dot = INDEX_NONE;
	return InObjectPath.FindChar(TEXT('.'), Dot) ? InObjectPath.Left(Dot) : InObjectPath;
}

FString FPackageName::ObjectPathToPathWithinPackage(const FString& InObjectPath)
{
	int32 Dot = INDEX_NONE;
	return InObjectPath.FindChar(TEXT('.'), Dot) ? InObjectPath.RightChop(Dot + 1) : FString();
}

FString FPackageName::ObjectPathToObjectName(const FString& InObjectPath)
{
	int32 Last = INDEX_NONE;
	for (const TCHAR Delimiter : {TEXT('.'), TEXT(':')})
	{
		int32 Position = INDEX_NONE;
		if (InObjectPath.FindLastChar(Delimiter, Position))
		{
			Last = FMath::Max(Last, Position);
		}
	}
	return InObjectPath.RightChop(Last + 1);
}

bool FPackageName::ParseExportTextPath(const FString& InExportTextPath, FString* OutClassName, FString* OutObjectPath)
{
	int32 Apostrophe = INDEX_NONE;
	if (!InExportTextPath.FindChar(TEXT('\''), Apostrophe) || !InExportTextPath.EndsWith(TEXT("'")) ||
		Apostrophe + 1 == InExportTextPath.Len())
	{
		return false;
	}
	if (OutClassName)
	{
		*OutClassName = InExportTextPath.Left(Apostrophe);
	}
	if (OutObjectPath)
	{
		*OutObjectPath = InExportTextPath.Mid(Apostrophe + 1, InExportTextPath.Len() - Apostrophe - 2).TrimQuotes();
	}
	return true;
}

FString FPackageName::ExportTextPathToObjectPath(const FString& InExportTextPath)
{
	FString Result;
	return ParseExportTextPath(InExportTextPath, nullptr, &Result) ? Result : InExportTextPath;
}

bool FPackageName::IsScriptPackage(FStringView InPackageName)
{
	return FString(InPackageName).StartsWith(TEXT("/Script/"));
}

bool FPackageName::IsTempPackage(FStringView InPackageName)
{
	return FString(InPackageName).StartsWith(TEXT("/Temp/"));
}

bool FPackageName::IsMemoryPackage(FStringView InPackageName)
{
	return FString(InPackageName).StartsWith(TEXT("/Memory/"));
}

bool FPackageName::DoesPackageExist(const FString& LongPackageName, FString* OutFilename)
{
	const FString PackageName = ObjectPathToPackageName(LongPackageName);
	FString Filename;
	return !IsScriptPackage(PackageName) && TryConvertLongPackageNameToFilename(PackageName, Filename) &&
		FindPackageFileWithoutExtension(Filename, OutFilename ? *OutFilename : Filename);
}

bool FPackageName::FindPackageFileWithoutExtension(const FString& InPackageFilename, FString& OutFilename)
{
	for (const FString& Extension : {GetAssetPackageExtension(), GetMapPackageExtension()})
	{
		const FString Candidate = InPackageFilename + Extension;
		if (IFileManager::Get().FileExists(*Candidate))
		{
			OutFilename = Candidate;
			return true;
		}
	}
	return false;
}

bool FPackageName::FindPackagesInDirectory(TArray<FString>& OutPackages, const FString& RootDir)
{
	const int32 OldNum = OutPackages.Num();
	TArray<FString> Files;
	for (const FString& Extension : {GetAssetPackageExtension(), GetMapPackageExtension()})
	{
		IFileManager::Get().FindFilesRecursive(Files, *RootDir, *(TEXT("*") + Extension), true, false, false);
	}
	OutPackages.Append(Files);
	return OutPackages.Num() > OldNum;
}

void FPackageName::RegisterMountPoint(const FString& RootPath, const FString& ContentPath)
{
	GetMountPoints().Add({WithTrailingSlash(RootPath), NormalizeFolder(ContentPath)});
}

void FPackageName::UnRegisterMountPoint(const FString& RootPath, const FString& ContentPath)
{
	const FString Root = WithTrailingSlash(RootPath);
	const FString Folder = NormalizeFolder(ContentPath);
	GetMountPoints().RemoveAll([&Root, &Folder](const FMountPoint& MountPoint)
		{ return MountPoint.Root == Root && MountPoint.Folder == Folder; });
}

bool FPackageName::MountPointExists(const FString& RootPath)
{
	const FString Root = WithTrailingSlash(RootPath);
	return GetAllMountPoints().ContainsByPredicate([&Root](const FMountPoint& MountPoint)
		{ return MountPoint.Root == Root; });
}

void FPackageName::QueryRootContentPaths(
	TArray<FString>& OutRootContentPaths, bool bIncludeReadOnlyRoots, bool bWithoutLeadingSlashes, bool bWithoutTrailingSlashes)
{
	TArray<FString> Roots;
	for (const FMountPoint& MountPoint : GetAllMountPoints())
	{
		Roots.AddUnique(MountPoint.Root);
	}
	for (const TCHAR* const Root : ReadOnlyRoots)
	{
		if (bIncludeReadOnlyRoots)
		{
			Roots.AddUnique(Root);
		}
	}
	for (FString& Root : Roots)
	{
		Root = bWithoutLeadingSlashes ? Root.RightChop(1) : Root;
		Root = bWithoutTrailingSlashes ? Root.LeftChop(1) : Root;
		OutRootContentPaths.Add(Root);
	}
}
