#include "Tools/VexelAssetIndexSubsystem.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Editor.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

namespace
{
FTopLevelAssetPath GetPath(const FAssetData& Asset)
{
	return FTopLevelAssetPath(Asset.PackageName, Asset.AssetName);
}
}

UVexelAssetIndexSubsystem& UVexelAssetIndexSubsystem::Get()
{
	return *GEditor->GetEditorSubsystem<UVexelAssetIndexSubsystem>();
}

const FVexelAssetNameIndex& UVexelAssetIndexSubsystem::GetNames(bool bOfEngine)
{
	ReadOnce();
	return bOfEngine ? EngineNames : ProjectNames;
}

const TMap<FTopLevelAssetPath, int32>& UVexelAssetIndexSubsystem::GetNumOfClass()
{
	ReadOnce();
	return NumOfClass;
}

TArray<FTopLevelAssetPath> UVexelAssetIndexSubsystem::FindClasses(const FString& Name)
{
	if (Name.StartsWith(TEXT("/")))
	{
		const FTopLevelAssetPath Path(Name);
		return Path.IsValid() ? TArray<FTopLevelAssetPath>{Path} : TArray<FTopLevelAssetPath>();
	}
	TArray<FTopLevelAssetPath> Found;
	for (const TPair<FTopLevelAssetPath, int32>& Pair : GetNumOfClass())
	{
		if (Pair.Key.GetAssetName().ToString() == Name)
		{
			Found.Add(Pair.Key);
		}
	}
	if (const UClass* const Loaded = FindFirstObject<UClass>(*Name, EFindFirstObjectOptions::None))
	{
		Found.AddUnique(Loaded->GetClassPathName());
	}
	return Found;
}

bool UVexelAssetIndexSubsystem::IsEngineContent(FName PackageName)
{
	const FName Root = FPackageName::GetPackageMountPoint(PackageName.ToString() + TEXT("/"));
	const bool* const Known = EngineRoots.Find(Root);
	if (Known)
	{
		return *Known;
	}
	const FString Folder = FPackageName::LongPackageNameToFilename(FString::Printf(TEXT("/%s/"), *Root.ToString()));
	return EngineRoots.Add(Root, !Folder.IsEmpty() && FPaths::IsUnderDirectory(Folder, FPaths::EngineDir()));
}

void UVexelAssetIndexSubsystem::Deinitialize()
{
	if (bRead)
	{
		IAssetRegistry& Registry = IAssetRegistry::GetChecked();
		Registry.OnAssetAdded().RemoveAll(this);
		Registry.OnAssetRemoved().RemoveAll(this);
		Registry.OnAssetRenamed().RemoveAll(this);
	}
	Super::Deinitialize();
}

void UVexelAssetIndexSubsystem::ReadOnce()
{
	if (bRead)
	{
		return;
	}
	bRead = true;
	IAssetRegistry& Registry = IAssetRegistry::GetChecked();
	Registry.EnumerateAllAssets([this](const FAssetData& Asset)
		{
			Add(Asset);
			return true; });
	Registry.OnAssetAdded().AddUObject(this, &UVexelAssetIndexSubsystem::HandleAdded);
	Registry.OnAssetRemoved().AddUObject(this, &UVexelAssetIndexSubsystem::HandleRemoved);
	Registry.OnAssetRenamed().AddUObject(this, &UVexelAssetIndexSubsystem::HandleRenamed);
}

void UVexelAssetIndexSubsystem::HandleAdded(const FAssetData& Asset)
{
	Add(Asset);
}

void UVexelAssetIndexSubsystem::HandleRemoved(const FAssetData& Asset)
{
	Remove(GetPath(Asset));
}

void UVexelAssetIndexSubsystem::HandleRenamed(const FAssetData& Asset, const FString& OldObjectPath)
{
	Remove(FTopLevelAssetPath(OldObjectPath));
	Add(Asset);
}

void UVexelAssetIndexSubsystem::Add(const FAssetData& Asset)
{
	const FTopLevelAssetPath Path = GetPath(Asset);
	if (!Path.IsValid() || Classes.Contains(Path))
	{
		return;
	}
	Classes.Add(Path, Asset.AssetClassPath);
	if (IsEngineContent(Asset.PackageName))
	{
		EngineNames.Add(Path);
		return;
	}
	ProjectNames.Add(Path);
	++NumOfClass.FindOrAdd(Asset.AssetClassPath);
}

void UVexelAssetIndexSubsystem::Remove(const FTopLevelAssetPath& Path)
{
	FTopLevelAssetPath Class;
	if (!Classes.RemoveAndCopyValue(Path, Class))
	{
		return;
	}
	if (IsEngineContent(Path.GetPackageName()))
	{
		EngineNames.Remove(Path);
		return;
	}
	ProjectNames.Remove(Path);
	--NumOfClass[Class];
}
