#include "UObject/SavePackage.h"

#include "HAL/FileManager.h"
#include "Misc/AtomicFile.h"
#include "Misc/OutputDevice.h"
#include "Misc/Paths.h"
#include "UObject/Class.h"
#include "UObject/LinkerLoad.h"
#include "UObject/LinkerSave.h"
#include "UObject/ObjectSaveContext.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

namespace
{
FSavePackageResultStruct FailSave(const FSavePackageArgs& Args, const FString& Message)
{
	UE_LOG(LogClass, Error, TEXT("%s"), *Message);
	if (Args.Error)
	{
		Args.Error->Log(ELogVerbosity::Error, *Message);
	}
	return FSavePackageResultStruct(ESavePackageResult::Error);
}

TArray<UObject*> FindSaveRoots(UPackage* Package, UObject* Asset, EObjectFlags TopLevelFlags)
{
	TArray<UObject*> Roots;
	if (Asset)
	{
		Roots.Add(Asset);
	}
	ForEachObjectWithOuter(Package, [&Roots, TopLevelFlags](UObject* Object)
		{
			if (Object->HasAnyFlags(TopLevelFlags) && !Object->HasAnyFlags(RF_Transient))
			{
				Roots.AddUnique(Object);
			} });
	return Roots;
}

/** Objects may make others ready while they get ready themselves, so the list is taken first. */
void PrepareObjects(UPackage* Package, const FString& Filename, uint32 SaveFlags)
{
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Package, Objects);
	for (UObject* const Object : Objects)
	{
		if (!Object->HasAnyFlags(RF_Transient | RF_ClassDefaultObject))
		{
			Object->PreSave(FObjectPreSaveContext(Filename, SaveFlags));
		}
	}
}
}

FSavePackageResultStruct UPackage::Save(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const FSavePackageArgs& SaveArgs)
{
	check(InOuter);
	const FString Prefix = FString::Printf(TEXT("Failed to save package %s to %s: "), *InOuter->GetName(), Filename);
	const FLinkerLoad* const Origin = InOuter->GetLinker();
	if (Origin && Origin->HasKeptBytes() && Origin->UEVer() != GPackageFileUEVersion)
	{
		return FailSave(SaveArgs, Prefix + FString::Printf(TEXT("it has data of package version %d/%d that this host can neither read nor convert to version %d/%d"), Origin->UEVer().FileVersionUE4, Origin->UEVer().FileVersionUE5, GPackageFileUEVersion.FileVersionUE4, GPackageFileUEVersion.FileVersionUE5));
	}
	PrepareObjects(InOuter, Filename, SaveArgs.SaveFlags);
	FLinkerSave Linker(InOuter, Filename);
	if (Origin && Origin->HasKeptBytes())
	{
		Linker.StartFromTablesOf(*Origin);
	}
	for (UObject* const Root : FindSaveRoots(InOuter, InAsset, SaveArgs.TopLevelFlags))
	{
		Linker.AddExport(Root);
	}
	if (Linker.ExportMap.IsEmpty())
	{
		return FailSave(SaveArgs, Prefix + TEXT("there is nothing in it to save"));
	}
	FString Reason;
	if (!Linker.WriteExports(Reason))
	{
		return FailSave(SaveArgs, Prefix + Reason);
	}
	const TArray<uint8> File = Linker.MakeFile();
	if (Linker.IsError() || File.IsEmpty())
	{
		return FailSave(SaveArgs, Prefix + TEXT("it is larger than a package can be"));
	}
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(FString(Filename)), true);
	if (!UE::SaveFileAtomically(Filename, TArrayView<const uint8>(File), Reason))
	{
		return FailSave(SaveArgs, Prefix + Reason);
	}
	InOuter->SetDirtyFlag(false);
	PackageSavedWithContextEvent.Broadcast(Filename, InOuter, FObjectPostSaveContext(Filename, true));
	return FSavePackageResultStruct(ESavePackageResult::Success, File.Num());
}

bool UPackage::SavePackage(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const FSavePackageArgs& SaveArgs)
{
	return Save(InOuter, InAsset, Filename, SaveArgs).IsSuccessful();
}
