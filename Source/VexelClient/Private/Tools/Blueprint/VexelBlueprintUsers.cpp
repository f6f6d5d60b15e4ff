#include "Tools/Blueprint/VexelBlueprintUsers.h"

#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Engine/Blueprint.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/TopLevelAssetPath.h"

namespace
{
constexpr int32 MaxLoaded = 100;
constexpr int32 MaxNamed = 20;

/** The packages of the Blueprint and of those that derive from it, itself first. */
TArray<FName> FindHierarchy(const UBlueprint& Blueprint, const IAssetRegistry& Registry)
{
	TArray<FName> Packages = {Blueprint.GetPackage()->GetFName()};
	if (Blueprint.GeneratedClass)
	{
		TSet<FTopLevelAssetPath> Derived;
		Registry.GetDerivedClassNames({Blueprint.GeneratedClass->GetClassPathName()}, {}, Derived);
		for (const FTopLevelAssetPath& Class : Derived)
		{
			Packages.AddUnique(Class.GetPackageName());
		}
	}
	return Packages;
}

/** Derived ones first: they use the Blueprint without having to say so. */
TArray<FAssetData> FindUnloaded(const UBlueprint& Blueprint)
{
	const IAssetRegistry& Registry = IAssetRegistry::GetChecked();
	TArray<FName> Packages = FindHierarchy(Blueprint, Registry);
	TSet<FName> Known(Packages);
	for (const FName Base : TArray<FName>(Packages))
	{
		TArray<FName> Referencers;
		Registry.GetReferencers(Base, Referencers, UE::AssetRegistry::EDependencyCategory::Package);
		for (const FName Referencer : Referencers)
		{
			bool bIsKnown = false;
			Known.Add(Referencer, &bIsKnown);
			if (!bIsKnown)
			{
				Packages.Add(Referencer);
			}
		}
	}
	TArray<FAssetData> Unloaded;
	for (const FName Package : Packages)
	{
		TArray<FAssetData> Assets;
		Registry.GetAssetsByPackageName(Package, Assets);
		Unloaded.Append(Assets.FilterByPredicate([](const FAssetData& Asset)
			{ return Asset.IsInstanceOf(UBlueprint::StaticClass()) && !Asset.IsAssetLoaded(); }));
	}
	return Unloaded;
}
}

TArray<FString> VexelBlueprintUsers::Load(const UBlueprint& Blueprint)
{
	TArray<FString> Left;
	int32 NumLoaded = 0;
	for (const FAssetData& Asset : FindUnloaded(Blueprint))
	{
		if (++NumLoaded > MaxLoaded || !Asset.GetAsset())
		{
			Left.Add(FString::Printf(TEXT("'%s'"), *Asset.AssetName.ToString()));
		}
	}
	if (Left.IsEmpty())
	{
		return {};
	}
	const int32 NumMore = Left.Num() - MaxNamed;
	Left.SetNum(FMath::Min(Left.Num(), MaxNamed));
	FString Names = FString::Join(Left, TEXT(", "));
	if (NumMore > 0)
	{
		Names += FString::Printf(TEXT(" and %d more"), NumMore);
	}
	return {FString::Printf(TEXT("Blueprints that use '%s' and were not loaded may not have followed: %s"), *Blueprint.GetName(), *Names)};
}
