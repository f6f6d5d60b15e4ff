#include "UObject/Package.h"

#include "UObject/LinkerLoad.h"
#include "UObject/ObjectRedirector.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

UPackage::FOnPackageMarkedDirty UPackage::PackageMarkedDirtyEvent;
UPackage::FOnPackageDirtyStateChanged UPackage::PackageDirtyStateChangedEvent;
UPackage::FOnPackageSavedWithContext UPackage::PackageSavedWithContextEvent;

UPackage::UPackage(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{
}

UPackage::~UPackage()
{
	delete LinkerLoad;
}

void UPackage::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsTransacting())
	{
		bool bIsDirty = bDirty;
		Ar << bIsDirty;
		SetDirtyFlag(bIsDirty);
	}
}

void UPackage::SetDirtyFlag(bool bInIsDirty)
{
	if (GetOutermost() == GetTransientPackage() || HasAnyPackageFlags(PKG_CompiledIn | PKG_PlayInEditor | PKG_ContainsScript) ||
		IsInPlaceholderPackage(this))
	{
		return;
	}
	const bool bChanged = bDirty != bInIsDirty;
	bDirty = bInIsDirty;
	if (bChanged)
	{
		PackageDirtyStateChangedEvent.Broadcast(this, bDirty);
	}
}

UObject* UPackage::FindAssetInPackage(EObjectFlags RequiredTopLevelFlags) const
{
	TArray<UObject*> TopLevel;
	GetObjectsWithOuter(this, TopLevel, false);
	UObject* Asset = nullptr;
	for (UObject* const Object : TopLevel)
	{
		if (Object->IsAsset() && Object->HasAllFlags(RequiredTopLevelFlags) &&
			(!Asset ||
				Object->GetFName() ==
					FName(*FString(GetName()).RightChop(GetName().Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd) + 1))))
		{
			Asset = Object;
		}
	}
	return Asset;
}

bool UPackage::IsEmptyPackage(UPackage* Package, const UObject* LastReferencer)
{
	TArray<UObject*> Objects;
	GetObjectsWithPackage(Package, Objects);
	for (const UObject* const Object : Objects)
	{
		if (Object != LastReferencer && Object->IsAsset() && !Object->IsA<UObjectRedirector>())
		{
			return false;
		}
	}
	return true;
}

UPackage* GetTransientPackage()
{
	static UPackage* const Package = []()
	{
		UPackage* const Result = CreatePackage(TEXT("/Engine/Transient"));
		Result->AddToRoot();
		return Result;
	}();
	return Package;
}

UObject* GetTransientPackageAsObject()
{
	return GetTransientPackage();
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	const FName Name(PackageName, FNAME_Find);
	return Name == NAME_None ? nullptr : static_cast<UPackage*>(StaticFindObjectFast(UPackage::StaticClass(), nullptr, Name));
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	FString Name(PackageName);
	while (Name.EndsWith(TEXT(".")))
	{
		Name.LeftChopInline(1);
	}
	if (Name.IsEmpty() || Name.Equals(TEXT("None"), ESearchCase::IgnoreCase) || Name.Contains(TEXT("//")))
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("'%s' cannot be the name of a package"), PackageName);
		return nullptr;
	}
	if (UPackage* const Existing = FindPackage(nullptr, *Name))
	{
		return Existing;
	}
	// Not through NewObject: packages come before any class has a default object.
	void* const Memory = StaticAllocateObject(UPackage::StaticClass(), nullptr, FName(*Name), RF_Public);
	return ::new (Memory) UPackage();
}
