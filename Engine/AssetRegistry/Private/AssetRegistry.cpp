#include "AssetRegistry/AssetRegistryModule.h"

#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "PackageAssetReader.h"
#include "UObject/ObjectSaveContext.h"
#include "UObject/Package.h"

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)

DEFINE_LOG_CATEGORY_STATIC(LogAssetRegistry, Log, All);

namespace
{
const TCHAR* const ScriptRoot = TEXT("/Script/");

class FAssetRegistryImpl : public IAssetRegistry
{
public:
	FAssetRegistryImpl()
	{
		UPackage::PackageSavedWithContextEvent.AddLambda([this](const FString& Filename, UPackage*, FObjectPostSaveContext)
			{
				if (bHasScanned)
				{
					ReadFile(Filename);
				} });
	}

	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets) const override
	{
		ScanOnce();
		const FString Path = ObjectPath.ToString();
		const UObject* const InMemory = bIncludeOnlyOnDiskAssets ? nullptr : FindObject<UObject>(nullptr, *Path);
		if (InMemory && InMemory->IsAsset())
		{
			return FAssetData(InMemory);
		}
		for (const FAssetData& Asset : FindPackage(FName(*FPackageName::ObjectPathToPackageName(Path))))
		{
			if (Asset.GetObjectPathString() == Path)
			{
				return Asset;
			}
		}
		return FAssetData();
	}

	virtual bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override
	{
		return Collect(OutAssetData, bIncludeOnlyOnDiskAssets, [PackageName](const FAssetData& Asset)
			{ return Asset.PackageName == PackageName; });
	}

	virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const override
	{
		const FString Below = PackagePath.ToString() + TEXT("/");
		return Collect(OutAssetData, bIncludeOnlyOnDiskAssets,
			[&](const FAssetData& Asset)
			{ return Asset.PackagePath == PackagePath || (bRecursive && Asset.PackagePath.ToString().StartsWith(Below)); });
	}

	virtual bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const override
	{
		const UClass* const Class = FindObject<UClass>(ClassPathName);
		return Collect(OutAssetData, false,
			[&](const FAssetData& Asset)
			{ return Asset.AssetClassPath == ClassPathName || (bSearchSubClasses && Class && Asset.IsInstanceOf(Class)); });
	}

	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override
	{
		return Collect(OutAssetData, bIncludeOnlyOnDiskAssets, [](const FAssetData&)
			{ return true; });
	}

	virtual void SearchAllAssets(bool bSynchronousSearch) override
	{
		bHasScanned = false;
		Packages.Empty();
		ScanOnce();
	}

	virtual void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan) override
	{
		ScanOnce();
		for (const FString& Path : InPaths)
		{
			Scan(Path);
		}
	}

	virtual void AssetCreated(UObject* NewAsset) override
	{
		if (NewAsset && NewAsset->IsAsset())
		{
			CreatedPackages.Add(NewAsset->GetPackage()->GetFName());
			AssetAddedEvent.Broadcast(FAssetData(NewAsset));
		}
	}

	virtual void AssetDeleted(UObject* DeletedAsset) override
	{
		if (DeletedAsset)
		{
			const FAssetData Data(DeletedAsset);
			CreatedPackages.Remove(Data.PackageName);
			Packages.Remove(Data.PackageName);
			AssetRemovedEvent.Broadcast(Data);
		}
	}

private:
	const TArray<FAssetData>& FindPackage(FName PackageName) const
	{
		static const TArray<FAssetData> Nothing;
		const TArray<FAssetData>* const Found = Packages.Find(PackageName);
		return Found ? *Found : Nothing;
	}

	void ScanOnce() const
	{
		if (bHasScanned)
		{
			return;
		}
		bHasScanned = true;
		TArray<FString> Roots;
		FPackageName::QueryRootContentPaths(Roots);
		for (const FString& Root : Roots)
		{
			if (!Root.StartsWith(ScriptRoot))
			{
				Scan(Root);
			}
		}
	}

	/** Reads a package, or every package below a folder, and forgets those whose files are gone or can no longer be read. */
	void Scan(const FString& PackagePath) const
	{
		const FString WithSlash = PackagePath.EndsWith(TEXT("/")) ? PackagePath : PackagePath + TEXT("/");
		Forget(PackagePath, WithSlash);
		FString Filename;
		if (FPackageName::IsValidLongPackageName(PackagePath) && FPackageName::DoesPackageExist(PackagePath, &Filename))
		{
			ReadFile(Filename);
		}
		FString Folder;
		if (!FPackageName::TryConvertLongPackageNameToFilename(WithSlash, Folder))
		{
			return;
		}
		TArray<FString> Files;
		FPackageName::FindPackagesInDirectory(Files, Folder);
		for (const FString& File : Files)
		{
			ReadFile(File);
		}
	}

	void Forget(const FString& PackageName, const FString& Folder) const
	{
		for (auto It = Packages.CreateIterator(); It; ++It)
		{
			const FString Name = It.Key().ToString();
			if (Name == PackageName || Name.StartsWith(Folder))
			{
				It.RemoveCurrent();
			}
		}
	}

	void ReadFile(const FString& File) const
	{
		FString PackageName;
		FString Error;
		TArray<FAssetData> Assets;
		if (!FPackageName::TryConvertFilenameToLongPackageName(File, PackageName, &Error) || !ReadPackageAssets(File, PackageName, Assets, Error))
		{
			UE_LOG(LogAssetRegistry, Warning, TEXT("%s"), *Error);
			return;
		}
		Packages.Add(FName(*PackageName), MoveTemp(Assets));
	}

	template <typename PredicateType>
	bool Collect(TArray<FAssetData>& OutAssetData, bool bOnlyOnDisk, PredicateType Matches) const
	{
		ScanOnce();
		TArray<FName> Names;
		Packages.GetKeys(Names);
		if (!bOnlyOnDisk)
		{
			for (const FName Created : CreatedPackages)
			{
				Names.AddUnique(Created);
			}
		}
		Names.Sort(FNameLexicalLess());
		const int32 NumBefore = OutAssetData.Num();
		for (const FName Name : Names)
		{
			const UPackage* const Package = bOnlyOnDisk ? nullptr : ::FindPackage(nullptr, *Name.ToString());
			const UObject* const InMemory = Package ? Package->FindAssetInPackage() : nullptr;
			if (InMemory)
			{
				const FAssetData Data(InMemory);
				if (Matches(Data))
				{
					OutAssetData.Add(Data);
				}
				continue;
			}
			for (const FAssetData& Asset : FindPackage(Name))
			{
				if (Matches(Asset))
				{
					OutAssetData.Add(Asset);
				}
			}
		}
		return OutAssetData.Num() > NumBefore;
	}

	/** What the files said, by package. */
	mutable TMap<FName, TArray<FAssetData>> Packages;
	/** Packages that may have no file yet. */
	TSet<FName> CreatedPackages;
	mutable bool bHasScanned = false;
};
}

IAssetRegistry* IAssetRegistry::Get()
{
	static FAssetRegistryImpl Registry;
	return &Registry;
}
