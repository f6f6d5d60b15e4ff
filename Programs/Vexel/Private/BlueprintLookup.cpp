#include "BlueprintLookup.h"

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "EdGraph/EdGraph.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Misc/PackageName.h"

namespace
{
constexpr int32 MaxNamedCandidates = 5;

/** Blueprints below a folder, subclasses such as widget Blueprints among them. */
TArray<FAssetData> FindBlueprints(FName Folder, bool bRecursive)
{
	FARFilter Filter;
	Filter.ClassPaths.Add(UBlueprint::StaticClass()->GetClassPathName());
	Filter.bRecursiveClasses = true;
	Filter.PackagePaths.Add(Folder);
	Filter.bRecursivePaths = bRecursive;
	TArray<FAssetData> Assets;
	IAssetRegistry::GetChecked().GetAssets(Filter, Assets);
	return Assets;
}

/** The package of a path or of a name; empty, with the reason, where none can be told. */
FString FindPackage(const FString& PathOrName, FString& OutReason)
{
	if (PathOrName.StartsWith(TEXT("/")))
	{
		const FString Package = FPackageName::ObjectPathToPackageName(PathOrName);
		if (!FPackageName::IsValidLongPackageName(Package))
		{
			OutReason = FString::Printf(TEXT("'%s' is not an asset path such as /Game/BP_Door"), *PathOrName);
			return FString();
		}
		return Package;
	}
	TArray<FString> Packages;
	for (const FAssetData& Asset : FindBlueprints(TEXT("/Game"), true))
	{
		if (Asset.AssetName == FName(*PathOrName))
		{
			Packages.Add(Asset.PackageName.ToString());
		}
	}
	if (Packages.Num() == 1)
	{
		return Packages[0];
	}
	if (Packages.IsEmpty())
	{
		OutReason = FString::Printf(TEXT("there is no Blueprint '%s'"), *PathOrName);
		return FString();
	}
	const bool bMore = Packages.Num() > MaxNamedCandidates;
	Packages.Sort();
	Packages.SetNum(FMath::Min(Packages.Num(), MaxNamedCandidates));
	OutReason = FString::Printf(TEXT("there are several Blueprints '%s': %s%s"), *PathOrName, *FString::Join(Packages, TEXT(", ")),
		bMore ? TEXT(", ...") : TEXT(""));
	return FString();
}
}

UBlueprint* BlueprintLookup::Load(const FString& PathOrName, FString& OutReason)
{
	const FString Package = FindPackage(PathOrName, OutReason);
	if (Package.IsEmpty())
	{
		return nullptr;
	}
	const bool bExists = UEditorAssetLibrary::DoesAssetExist(Package);
	UBlueprint* const Blueprint = bExists ? Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(Package)) : nullptr;
	if (!Blueprint)
	{
		OutReason = bExists ? FString::Printf(TEXT("'%s' is not a Blueprint that can be loaded"), *PathOrName)
							: FString::Printf(TEXT("there is no Blueprint '%s'"), *PathOrName);
	}
	return Blueprint;
}

UEdGraph* BlueprintLookup::FindGraph(UBlueprint& Blueprint, const FString& Name, FString& OutReason)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	UEdGraph* Found = nullptr;
	if (Name.IsEmpty())
	{
		Found = FBlueprintEditorUtils::FindEventGraph(&Blueprint);
		// A library of functions or macros has no event graph.
		Found = !Found && Graphs.Num() == 1 ? Graphs[0] : Found;
	}
	else if (UEdGraph* const* const Graph = Graphs.FindByPredicate([&](const UEdGraph* Candidate)
				 { return Candidate->GetFName() == FName(*Name); }))
	{
		Found = *Graph;
	}
	if (!Found)
	{
		OutReason = FString::Printf(TEXT("'%s' has no graph '%s'; it has: %s"), *Blueprint.GetName(), *Name,
			*FString::Join(GetGraphNames(Blueprint), TEXT(", ")));
	}
	return Found;
}

TArray<FString> BlueprintLookup::Complete(const FString& Beginning)
{
	TArray<FString> Texts;
	if (!Beginning.StartsWith(TEXT("/")))
	{
		for (const FAssetData& Asset : FindBlueprints(TEXT("/Game"), true))
		{
			const FString Name = Asset.AssetName.ToString();
			if (Name.StartsWith(Beginning, ESearchCase::IgnoreCase))
			{
				Texts.AddUnique(Name);
			}
		}
		Texts.Sort();
		return Texts;
	}
	int32 LastSlash = 0;
	Beginning.FindLastChar(TEXT('/'), LastSlash);
	const FString Folder = Beginning.Left(LastSlash);
	if (Folder.IsEmpty())
	{
		return {TEXT("/Game/")};
	}
	TArray<FString> Folders;
	IAssetRegistry::GetChecked().GetSubPaths(Folder, Folders, false);
	for (const FString& SubFolder : Folders)
	{
		Texts.Add(SubFolder + TEXT("/"));
	}
	for (const FAssetData& Asset : FindBlueprints(FName(*Folder), false))
	{
		Texts.Add(Asset.PackageName.ToString());
	}
	Texts.RemoveAll([&](const FString& Text)
		{ return !Text.StartsWith(Beginning, ESearchCase::IgnoreCase); });
	Texts.Sort();
	return Texts;
}

TArray<FString> BlueprintLookup::GetGraphNames(const UBlueprint& Blueprint)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	TArray<FString> Names;
	for (const UEdGraph* const Graph : Graphs)
	{
		Names.Add(Graph->GetName());
	}
	return Names;
}
