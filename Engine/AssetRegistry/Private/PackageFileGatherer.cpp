#include "PackageFileGatherer.h"

#include "Async/Async.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"

#include <atomic>

namespace
{
/** Few enough that the last thread does not go on alone for long, many enough that counting costs nothing. */
constexpr int32 FilesPerPortion = 32;

/** Folders of mounted roots, by their path on disk. */
TMap<FString, FString> GetRootsByFolder()
{
	TArray<FString> Roots;
	FPackageName::QueryRootContentPaths(Roots);
	TMap<FString, FString> Result;
	for (const FString& Root : Roots)
	{
		FString Folder;
		if (FPackageName::TryConvertLongPackageNameToFilename(Root, Folder))
		{
			Result.Add(Folder, Root);
		}
	}
	return Result;
}

/** A character that no package's name may have, or 0. */
TCHAR FindInvalidCharacter(const FString& PackageName)
{
	static const FString Invalid(INVALID_LONGPACKAGE_CHARACTERS);
	for (int32 Index = 0; Index < PackageName.Len(); ++Index)
	{
		int32 Ignored = INDEX_NONE;
		if (Invalid.FindChar(PackageName[Index], Ignored))
		{
			return PackageName[Index];
		}
	}
	return 0;
}

class FFileFinder
{
public:
	FFileFinder(TArray<FPackageFile>& OutFiles, TArray<FString>& OutProblems)
		: Files(OutFiles)
		, Problems(OutProblems)
	{
	}

	/** Both end with a slash. */
	void Visit(const FString& Folder, const FString& PackageFolder)
	{
		TArray<FString> SubFolders;
		IPlatformFile::GetPlatformPhysical().IterateDirectory(*Folder,
			[&](const TCHAR* Path, bool bIsDirectory)
			{
				const FString Name = FPaths::GetCleanFilename(Path);
				if (bIsDirectory)
				{
					SubFolders.Add(Name);
				}
				else if (FPackageName::IsPackageFilename(Name))
				{
					AddFile(Path, PackageFolder + FPaths::GetBaseFilename(Name));
				}
				return true;
			});
		for (const FString& Name : SubFolders)
		{
			const FString SubFolder = Folder / Name + TEXT("/");
			const FString* const Root = RootsByFolder.Find(SubFolder);
			const FString SubPackageFolder = PackageFolder + Name + TEXT("/");
			if (!Root || *Root == SubPackageFolder)
			{
				Visit(SubFolder, SubPackageFolder);
			}
		}
	}

private:
	void AddFile(const TCHAR* Path, const FString& PackageName)
	{
		// The mounted root is good; asking for the whole name's validity would look through all roots for each file.
		const TCHAR Invalid = FindInvalidCharacter(PackageName);
		if (Invalid != 0)
		{
			Problems.Add(FString::Printf(TEXT("%s is left out: a package's name cannot hold '%c'"), Path, Invalid));
			return;
		}
		if (PackageName.Len() >= NAME_SIZE)
		{
			Problems.Add(FString::Printf(TEXT("%s is left out: its name is too long"), Path));
			return;
		}
		const FName Name(*PackageName);
		bool bIsDouble = false;
		Names.Add(Name, &bIsDouble);
		if (bIsDouble)
		{
			Problems.Add(FString::Printf(TEXT("%s is left out: there is another file of package %s"), Path, *PackageName));
			return;
		}
		Files.Add({Path, Name});
	}

	TArray<FPackageFile>& Files;
	TArray<FString>& Problems;
	TSet<FName> Names;
	TMap<FString, FString> RootsByFolder = GetRootsByFolder();
};

/** The files of one search and what came of them. */
struct FGatherJob
{
	const TArray<FPackageFile>& Files;
	const FAssetRegistryState& State;
	FAssetRegistryCache& Cache;
	bool bForce;
	TArray<FGatheredPackage> Results;
	std::atomic<int32> Next{0};

	void Look(int32 Index)
	{
		const FPackageFile& File = Files[Index];
		FGatheredPackage& Result = Results[Index];
		Result.PackageName = File.PackageName;
		const FFileStatData Stat = IPlatformFile::GetPlatformPhysical().GetStatData(*File.Filename);
		if (!Stat.bIsValid || Stat.bIsDirectory)
		{
			return;
		}
		Result.Stamp = {Stat.ModificationTime, Stat.FileSize};
		const FPackageRecord* const Record = State.FindPackage(File.PackageName);
		if (Record && !bForce && Record->Stamp == Result.Stamp)
		{
			Result.Outcome = FGatheredPackage::EOutcome::Unchanged;
			return;
		}
		if (FAssetRegistryCache::FEntry* const Entry = bForce ? nullptr : Cache.Find(File.PackageName, Result.Stamp))
		{
			Result.Header = MoveTemp(Entry->Header);
			Result.Outcome = FGatheredPackage::EOutcome::Cached;
			return;
		}
		const bool bRead = ReadPackageHeader(File.Filename, File.PackageName, Result.Header, Result.Error);
		Result.Outcome = bRead ? FGatheredPackage::EOutcome::Read : FGatheredPackage::EOutcome::Broken;
	}

	void Work()
	{
		for (int32 First = Next.fetch_add(FilesPerPortion); First < Files.Num(); First = Next.fetch_add(FilesPerPortion))
		{
			const int32 End = FMath::Min(First + FilesPerPortion, Files.Num());
			for (int32 Index = First; Index < End; ++Index)
			{
				Look(Index);
			}
		}
	}
};

/** A helper of a job, which need not come to run: a pool that is busy must not hold up the search. */
class FGatherWork final : public IQueuedWork
{
public:
	explicit FGatherWork(FGatherJob& InJob)
		: Job(InJob)
	{
	}
	void DoThreadedWork() override
	{
		Job.Work();
		Done.SetValue();
	}
	void Abandon() override { Done.SetValue(); }
	/** Returns when no thread is in the work nor will be. */
	void Finish()
	{
		if (!GThreadPool || !GThreadPool->RetractQueuedWork(this))
		{
			Done.GetFuture().Wait();
		}
	}

private:
	FGatherJob& Job;
	TPromise<void> Done;
};
}

void PackageFileGatherer::FindFiles(const FString& PackagePath, TArray<FPackageFile>& OutFiles, TArray<FString>& OutProblems)
{
	const FString WithSlash = PackagePath.EndsWith(TEXT("/")) ? PackagePath : PackagePath + TEXT("/");
	FString Folder;
	if (FPackageName::TryConvertLongPackageNameToFilename(WithSlash, Folder))
	{
		FFileFinder(OutFiles, OutProblems).Visit(Folder, WithSlash);
	}
}

TArray<FGatheredPackage> PackageFileGatherer::Gather(
	const TArray<FPackageFile>& Files, const FAssetRegistryState& State, FAssetRegistryCache& Cache, bool bForce)
{
	FGatherJob Job{Files, State, Cache, bForce, {}};
	Job.Results.SetNum(Files.Num());
	TArray<TUniquePtr<FGatherWork>> Helpers;
	const int32 NumPortions = (Files.Num() + FilesPerPortion - 1) / FilesPerPortion;
	const int32 NumHelpers = GThreadPool ? FMath::Min(GThreadPool->GetNumThreads(), NumPortions - 1) : 0;
	for (int32 Index = 0; Index < NumHelpers; ++Index)
	{
		GThreadPool->AddQueuedWork(Helpers.Add_GetRef(MakeUnique<FGatherWork>(Job)).Get());
	}
	Job.Work();
	for (const TUniquePtr<FGatherWork>& Helper : Helpers)
	{
		Helper->Finish();
	}
	return MoveTemp(Job.Results);
}
