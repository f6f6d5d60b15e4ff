#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectResource.h"
#include "UObject/PackageFileSummary.h"
#include "UObject/SoftObjectPath.h"

class FLinkerLoad;
class UPackage;

/** The tables of one package file. */
class COREUOBJECT_API FLinker
{
public:
	FPackageFileSummary Summary;
	TArray<FName> NameMap;
	TArray<FObjectImport> ImportMap;
	TArray<FObjectExport> ExportMap;
	/** For each export, what must be there before it. */
	TArray<TArray<FPackageIndex>> DependsMap;
	/** What exports name as their needs, in the order of FObjectExport::FirstExportDependency. Cooked packages have them. */
	TArray<FPackageIndex> PreloadDependencies;
	TArray<FName> SoftPackageReferenceList;
	TArray<FSoftObjectPath> SoftObjectPathList;
	/** The package in memory; null while a file is only inspected. */
	UPackage* LinkerRoot = nullptr;
	FString Filename;

	virtual ~FLinker() = default;

	/** Null when the index lies outside the tables or is null. */
	const FObjectResource* FindResource(FPackageIndex Index) const;
	/** "None" for null, the entry's own name otherwise. */
	FName GetObjectName(FPackageIndex Index) const;
	/** Objects within objects that any honest package has, and more. */
	static constexpr int32 MaxOuterDepth = 64;
	/** "/Game/Dir/Asset.Asset:Inner"; outers that form a circle end the path. */
	FString GetPathName(FPackageIndex Index) const;
	FString GetExportPathName(int32 ExportIndex) const { return GetPathName(FPackageIndex::FromExport(ExportIndex)); }
	FString GetImportPathName(int32 ImportIndex) const { return GetPathName(FPackageIndex::FromImport(ImportIndex)); }
	/** "BlueprintGeneratedClass"; "Class" for an export without a class. */
	FName GetExportClassName(int32 ExportIndex) const;
	FTopLevelAssetPath GetExportClassPath(int32 ExportIndex) const;
	FTopLevelAssetPath GetImportClassPath(int32 ImportIndex) const;

protected:
	FString GetRootName() const;
};

/** The linker of a loaded package, or null. */
COREUOBJECT_API FLinkerLoad* GetPackageLinker(UPackage* Package, const TCHAR* LongPackageName = nullptr, uint32 LoadFlags = 0);
/** Frees the package's linker: what it kept of the file for writing back goes with it. */
COREUOBJECT_API void ResetLoaders(UObject* Package);
