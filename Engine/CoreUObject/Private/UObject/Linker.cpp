#include "UObject/Linker.h"

#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

const FObjectResource* FLinker::FindResource(FPackageIndex Index) const
{
	if (Index.IsExport() && ExportMap.IsValidIndex(Index.ToExport()))
	{
		return &ExportMap[Index.ToExport()];
	}
	return Index.IsImport() && ImportMap.IsValidIndex(Index.ToImport()) ? &ImportMap[Index.ToImport()] : nullptr;
}

FName FLinker::GetObjectName(FPackageIndex Index) const
{
	const FObjectResource* const Resource = FindResource(Index);
	return Resource ? Resource->ObjectName : FName();
}

FString FLinker::GetRootName() const
{
	return LinkerRoot ? LinkerRoot->GetName() : Summary.PackageName;
}

FString FLinker::GetPathName(FPackageIndex Index) const
{
	// Of a chain that is longer than any honest one, or a circle, the path has the inner end.
	constexpr int32 MaxPathLength = 4096;
	TArray<FString> Parts;
	int32 Length = 0;
	const FObjectResource* Resource = FindResource(Index);
	for (; Resource && Parts.Num() < MaxOuterDepth && Length < MaxPathLength; Resource = FindResource(Resource->OuterIndex))
	{
		Parts.Add(Resource->ObjectName.ToString());
		Length += Parts.Last().Len();
	}
	if (Index.IsExport())
	{
		Parts.Add(GetRootName());
	}
	// Package.Asset:Inner.Inner
	FString Path;
	Path.Reserve(Length + Parts.Num());
	for (int32 Part = 0; Part < Parts.Num(); ++Part)
	{
		Path += Part == 0 ? TEXT("") : Part == 2 ? TEXT(":")
												 : TEXT(".");
		Path += Parts[Parts.Num() - 1 - Part];
	}
	return Path;
}

FName FLinker::GetExportClassName(int32 ExportIndex) const
{
	const FPackageIndex ClassIndex = ExportMap[ExportIndex].ClassIndex;
	return ClassIndex.IsNull() ? FName(TEXT("Class")) : GetObjectName(ClassIndex);
}

FTopLevelAssetPath FLinker::GetExportClassPath(int32 ExportIndex) const
{
	const FPackageIndex ClassIndex = ExportMap[ExportIndex].ClassIndex;
	return ClassIndex.IsNull() ? FTopLevelAssetPath(TEXT("/Script/CoreUObject"), TEXT("Class")) : FTopLevelAssetPath(GetPathName(ClassIndex));
}

FTopLevelAssetPath FLinker::GetImportClassPath(int32 ImportIndex) const
{
	return FTopLevelAssetPath(ImportMap[ImportIndex].ClassPackage, ImportMap[ImportIndex].ClassName);
}

FLinkerLoad* GetPackageLinker(UPackage* Package, const TCHAR* LongPackageName, uint32 LoadFlags)
{
	UPackage* const Loaded = Package || !LongPackageName ? Package : LoadPackage(nullptr, LongPackageName, LoadFlags);
	return Loaded ? Loaded->GetLinker() : nullptr;
}

void ResetLoaders(UObject* Object)
{
	UPackage* const Package = Object ? Object->GetOutermost() : nullptr;
	if (FLinkerLoad* const Linker = Package ? Package->GetLinker() : nullptr)
	{
		Package->SetLinker(nullptr);
		delete Linker;
	}
}
