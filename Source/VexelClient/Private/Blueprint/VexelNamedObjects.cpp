#include "Blueprint/VexelNamedObjects.h"

#include "Tools/VexelAssetIndexSubsystem.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Engine/Blueprint.h"
#include "Engine/UserDefinedEnum.h"
#include "Engine/UserDefinedStruct.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const TCHAR* const GeneratedClassSuffix = TEXT("_C");

/** The class of the assets that make types of the kind; null for what is no kind of type. */
const UClass* FindAssetClass(const UClass& KindOfType)
{
	if (&KindOfType == UClass::StaticClass())
	{
		return UBlueprint::StaticClass();
	}
	if (&KindOfType == UScriptStruct::StaticClass())
	{
		return UUserDefinedStruct::StaticClass();
	}
	return &KindOfType == UEnum::StaticClass() ? UUserDefinedEnum::StaticClass() : nullptr;
}

/** The project's assets of exactly the name, then the engine's. */
TArray<FAssetData> FindAssets(const FString& Name)
{
	TArray<FAssetData> Assets;
	for (const bool bOfEngine : {false, true})
	{
		for (const FTopLevelAssetPath& Path : UVexelAssetIndexSubsystem::Get().GetNames(bOfEngine).FindExact(FName(*Name)))
		{
			Assets.Add(IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(Path)));
		}
	}
	return Assets;
}

UObject* FindInMemory(const UClass& Class, const FString& Name)
{
	// The lookup changes nothing of the class.
	UClass* const Kind = const_cast<UClass*>(&Class);
	UObject* const Found = StaticFindFirstObject(Kind, *Name, EFindFirstObjectOptions::NativeFirst);
	const bool bMayBeGenerated = !Found && Kind == UClass::StaticClass();
	return bMayBeGenerated ? StaticFindFirstObject(Kind, *(Name + GeneratedClassSuffix), EFindFirstObjectOptions::None) : Found;
}

UObject* LoadType(const FAssetData& Asset, const UClass& KindOfType)
{
	UObject* Type = Asset.GetAsset();
	if (const UBlueprint* const Blueprint = Cast<UBlueprint>(Type))
	{
		Type = Blueprint->GeneratedClass;
	}
	return Type && Type->IsA(&KindOfType) ? Type : nullptr;
}
}

bool VexelNamedObjects::IsKindOfType(const UClass& Class)
{
	return FindAssetClass(Class) != nullptr;
}

TArray<FAssetData> VexelNamedObjects::ListTypeAssets(const UClass& KindOfType)
{
	check(IsKindOfType(KindOfType));
	TArray<FAssetData> Assets;
	IAssetRegistry::GetChecked().GetAssetsByClass(FindAssetClass(KindOfType)->GetClassPathName(), Assets, true);
	return Assets;
}

UObject* VexelNamedObjects::Find(const UClass& Class, const FString& Name)
{
	// A longer text is no engine name, so nothing has it.
	if (Name.IsEmpty() || Name.Len() >= NAME_SIZE - 2)
	{
		return nullptr;
	}
	const UClass* const AssetClass = FindAssetClass(Class);
	if (UObject* const Found = AssetClass ? FindInMemory(Class, Name) : nullptr)
	{
		return Found;
	}
	FString AssetName = Name;
	if (AssetClass == UBlueprint::StaticClass())
	{
		AssetName.RemoveFromEnd(GeneratedClassSuffix, ESearchCase::IgnoreCase);
	}
	for (const FAssetData& Asset : FindAssets(AssetName))
	{
		UObject* Found = nullptr;
		if (Asset.IsInstanceOf(AssetClass ? AssetClass : &Class))
		{
			Found = AssetClass ? LoadType(Asset, Class) : Asset.GetAsset();
		}
		if (Found)
		{
			return Found;
		}
	}
	return nullptr;
}

void VexelNamedObjects::LoadTypes(const FString& Name)
{
	FString AssetName = Name;
	AssetName.RemoveFromEnd(GeneratedClassSuffix, ESearchCase::IgnoreCase);
	for (const FAssetData& Asset : AssetName.Len() < NAME_SIZE ? FindAssets(AssetName) : TArray<FAssetData>())
	{
		for (const UClass* const Kind : {UClass::StaticClass(), UScriptStruct::StaticClass(), UEnum::StaticClass()})
		{
			if (Asset.IsInstanceOf(FindAssetClass(*Kind)))
			{
				Asset.GetAsset();
			}
		}
	}
}
