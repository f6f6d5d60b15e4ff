#include "Misc/PackageName.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

namespace
{
void ReportLoadFailure(uint32 LoadFlags, const FString& Message)
{
	if (!(LoadFlags & (LOAD_NoWarn | LOAD_Quiet)))
	{
		UE_LOG(LogClass, Warning, TEXT("%s"), *Message);
	}
}

/**
 * Packages may load one another in circles, and an object is what its file tells only when those are there that it is compared
 * with. So what the objects look like is noted when the outermost package is done.
 */
class FLoadingScope
{
public:
	explicit FLoadingScope(UPackage* Package)
	{
		++Depth;
		GetLoaded().Add(Package);
	}
	~FLoadingScope()
	{
		if (--Depth > 0)
		{
			return;
		}
		const TArray<TWeakObjectPtr<UPackage>> Loaded = MoveTemp(GetLoaded());
		GetLoaded().Reset();
		for (const TWeakObjectPtr<UPackage>& Package : Loaded)
		{
			if (Package.IsValid() && Package->GetLinker())
			{
				Package->GetLinker()->TakeFingerprints();
			}
		}
	}
	FLoadingScope(const FLoadingScope&) = delete;
	FLoadingScope& operator=(const FLoadingScope&) = delete;

private:
	static TArray<TWeakObjectPtr<UPackage>>& GetLoaded()
	{
		static TArray<TWeakObjectPtr<UPackage>> Loaded;
		return Loaded;
	}

	static inline int32 Depth = 0;
};

/** Long package name and file of what a caller asked to load, which may be either. */
bool ResolvePackage(const FString& NameOrFile, FString& OutName, FString& OutFilename)
{
	if (FPackageName::IsPackageFilename(NameOrFile))
	{
		OutFilename = NameOrFile;
		return FPackageName::TryConvertFilenameToLongPackageName(NameOrFile, OutName);
	}
	OutName = FPackageName::ObjectPathToPackageName(NameOrFile);
	return FPackageName::DoesPackageExist(OutName, &OutFilename);
}
}

UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags, FArchive* InReaderOverride, const FLinkerInstancingContext* InstancingContext)
{
	const FString Wanted(InLongPackageName);
	if (FPackageName::IsScriptPackage(Wanted))
	{
		return FindObject<UPackage>(nullptr, InLongPackageName);
	}
	FString PackageName;
	FString Filename;
	const bool bHasFile = ResolvePackage(Wanted, PackageName, Filename);
	UPackage* Package = InOuter ? InOuter : FindObject<UPackage>(nullptr, *PackageName);
	const bool bIsStandIn = Package && IsInPlaceholderPackage(Package);
	if (Package && !bIsStandIn && (Package->GetLinker() || Package->IsFullyLoaded() || !bHasFile))
	{
		return Package;
	}
	if (!bHasFile)
	{
		ReportLoadFailure(LoadFlags, FString::Printf(TEXT("There is no package %s"), *Wanted));
		return nullptr;
	}
	if (!Package || bIsStandIn)
	{
		Package = CreatePackage(*PackageName);
	}
	FString Error;
	TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(Filename, Package, Error);
	if (!Linker)
	{
		ReportLoadFailure(LoadFlags, FString::Printf(TEXT("Failed to load package %s: %s"), *PackageName, *Error));
		return nullptr;
	}
	FLinkerLoad* const Loaded = Linker.Release();
	Package->SetLinker(Loaded);
	Package->SetLoadedPath(FName(*PackageName));
	Package->SetPackageFlagsTo(Loaded->Summary.PackageFlags);
	Package->SetPersistentGuid(Loaded->Summary.PersistentGuid);
	{
		const FLoadingScope Scope(Package);
		Loaded->LoadAllObjects();
	}
	Package->MarkAsFullyLoaded();
	Package->SetDirtyFlag(false);
	return Package;
}
