#pragma once

#include "Misc/Guid.h"
#include "UObject/Class.h"
#include "UObject/MetaData.h"
#include "UObject/ObjectMacros.h"

class FLinkerLoad;

/** The outermost object: a file on disk ("/Game/Dir/Asset"), a module's types ("/Script/Engine"), or the transient package. */
class COREUOBJECT_API UPackage : public UObject
{
	DECLARE_CASTED_CLASS_INTRINSIC(UPackage, UObject, CLASS_None, "/Script/CoreUObject", CASTCLASS_UPackage)

public:
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPackageMarkedDirty, UPackage*, bool);
	static FOnPackageMarkedDirty PackageMarkedDirtyEvent;
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPackageDirtyStateChanged, UPackage*, bool);
	static FOnPackageDirtyStateChanged PackageDirtyStateChangedEvent;
	DECLARE_MULTICAST_DELEGATE_ThreeParams(FOnPackageSavedWithContext, const FString&, UPackage*, class FObjectPostSaveContext);
	static FOnPackageSavedWithContext PackageSavedWithContextEvent;

	UPackage() = default;
	explicit UPackage(const FObjectInitializer& ObjectInitializer);
	~UPackage() override;

	void Serialize(FArchive& Ar) override;
	bool IsAsset() const override { return false; }

	bool IsDirty() const { return bDirty; }
	/** Ignored for packages that are never saved. */
	void SetDirtyFlag(bool bInIsDirty);
	bool IsFullyLoaded() const { return bHasBeenFullyLoaded; }
	void MarkAsFullyLoaded() { bHasBeenFullyLoaded = true; }
	/** Loads the rest of the package's file. */
	void FullyLoad() { MarkAsFullyLoaded(); }

	bool HasAnyPackageFlags(uint32 FlagsToCheck) const { return (PackageFlags & FlagsToCheck) != 0; }
	bool HasAllPackagesFlags(uint32 FlagsToCheck) const { return (PackageFlags & FlagsToCheck) == FlagsToCheck; }
	void SetPackageFlags(uint32 NewFlags) { PackageFlags |= NewFlags; }
	void ClearPackageFlags(uint32 NewFlags) { PackageFlags &= ~NewFlags; }
	uint32 GetPackageFlags() const { return PackageFlags; }
	void SetPackageFlagsTo(uint32 NewFlags) { PackageFlags = NewFlags; }
	bool ContainsMap() const { return HasAnyPackageFlags(PKG_ContainsMap); }
	void ThisContainsMap() { SetPackageFlags(PKG_ContainsMap); }

	/** The long package name of the file that the package was loaded from; its own name unless it was loaded as another. */
	FName GetLoadedPath() const { return FileName; }
	void SetLoadedPath(FName InFileName) { FileName = InFileName; }
	FName FileName;
	/** The linker that loaded the package, while it has one. Owned by the package loader. */
	FLinkerLoad* LinkerLoad = nullptr;
	FLinkerLoad* GetLinker() const { return LinkerLoad; }
	void SetLinker(FLinkerLoad* InLinker) { LinkerLoad = InLinker; }

	FGuid GetPersistentGuid() const { return PersistentGuid; }
	void SetPersistentGuid(FGuid NewPersistentGuid) { PersistentGuid = NewPersistentGuid; }
	FGuid GetSavedHash() const { return SavedHash; }
	void SetSavedHash(const FGuid& InSavedHash) { SavedHash = InSavedHash; }

	/** Metadata of the types and objects in the package. */
	FMetaData& GetMetaData() { return MetaData; }
	const FMetaData& GetMetaData() const { return MetaData; }
	bool HasMetaData() const { return !MetaData.ObjectMetaDataMap.IsEmpty() || !MetaData.RootMetaDataMap.IsEmpty(); }

	/** The object that the package's name names, or that says that it is an asset. */
	UObject* FindAssetInPackage(EObjectFlags RequiredTopLevelFlags = RF_NoFlags) const;
	static bool IsEmptyPackage(UPackage* Package, const UObject* LastReferencer = nullptr);

	/** Writes the file whole or not at all. Null Base saves what has one of TopLevelFlags. */
	static bool SavePackage(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const struct FSavePackageArgs& SaveArgs);
	static struct FSavePackageResultStruct Save(
		UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const struct FSavePackageArgs& SaveArgs);

private:
	uint32 PackageFlags = PKG_None;
	bool bDirty = false;
	bool bHasBeenFullyLoaded = false;
	FGuid PersistentGuid;
	FGuid SavedHash;
	FMetaData MetaData;
};

/** Whether a package is never saved because it only stands for things that are missing here. See UObject/PlaceholderObject.h. */
COREUOBJECT_API bool IsInPlaceholderPackage(const UObject* Object);
