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

/**
 * Whether the file is written in the form in which it came: for an older engine, which could not read a newer one; with bytes
 * that only stand with their own tables; or because nothing in it has changed.
 */
bool BelongsInOwnForm(const FLinkerLoad& Origin, const TArray<UObject*>& Roots)
{
	if (Origin.HasKeptBytes() || Origin.UEVer() != GPackageFileUEVersion)
	{
		return true;
	}
	for (const UObject* const Root : Roots)
	{
		if (Origin.FindExportOf(Root) == INDEX_NONE)
		{
			return false;
		}
	}
	for (int32 Index = 0; Index < Origin.ExportMap.Num(); ++Index)
	{
		if (!Origin.IsUnchanged(Index))
		{
			return false;
		}
	}
	return Origin.IsMetaDataUnchanged();
}

bool WriteFile(FLinkerSave& Linker, const TArray<UObject*>& Roots, TArray<uint8>& OutFile, FString& OutError)
{
	for (UObject* const Root : Roots)
	{
		Linker.AddExport(Root);
	}
	if (Linker.ExportMap.IsEmpty())
	{
		OutError = TEXT("there is nothing in it to save");
		return false;
	}
	if (!Linker.WriteExports(OutError))
	{
		return false;
	}
	OutFile = Linker.MakeFile(OutError);
	return !OutFile.IsEmpty();
}
}

FSavePackageResultStruct UPackage::Save(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const FSavePackageArgs& SaveArgs)
{
	check(InOuter);
	const FString Prefix = FString::Printf(TEXT("Failed to save package %s to %s: "), *InOuter->GetName(), Filename);
	FLinkerLoad* const Origin = InOuter->GetLinker();
	PrepareObjects(InOuter, Filename, SaveArgs.SaveFlags);
	const TArray<UObject*> Roots = FindSaveRoots(InOuter, InAsset, SaveArgs.TopLevelFlags);
	TArray<uint8> File;
	FString Reason;
	bool bDone = false;
	if (Origin && BelongsInOwnForm(*Origin, Roots))
	{
		FLinkerSave Linker(InOuter, Filename);
		Linker.StartFromTablesOf(*Origin);
		bDone = WriteFile(Linker, Roots, File, Reason);
		if (!bDone && Origin->HasKeptBytes())
		{
			return FailSave(SaveArgs, Prefix + Reason);
		}
		if (!bDone)
		{
			UE_LOG(LogClass, Warning, TEXT("%s can no longer be written for the engine that it came from and becomes a package of version %d/%d: %s"), *InOuter->GetName(), GPackageFileUEVersion.FileVersionUE4, GPackageFileUEVersion.FileVersionUE5, *Reason);
		}
	}
	if (!bDone)
	{
		FLinkerSave Linker(InOuter, Filename);
		if (Origin)
		{
			Linker.CarrySectionsOf(*Origin);
		}
		if (!WriteFile(Linker, Roots, File, Reason))
		{
			return FailSave(SaveArgs, Prefix + Reason);
		}
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
