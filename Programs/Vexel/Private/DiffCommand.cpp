#include "BlueprintDiff.h"
#include "BlueprintLookup.h"
#include "Commands.h"
#include "Console.h"
#include "DiffDocument.h"
#include "DiffPicture.h"
#include "Dom/JsonObject.h"
#include "Engine/Blueprint.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Guid.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Session.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

namespace
{
/** What git writes for a file that is not there on one side. */
const TCHAR* const NoFile = TEXT("/dev/null");
/** PATH OLD-FILE OLD-HEX OLD-MODE NEW-FILE NEW-HEX NEW-MODE, as git calls a program that compares files. */
constexpr int32 NumGitWords = 7;

/** What is compared, by the words of the command line. */
struct FSides
{
	FString Before;
	FString After;
	/** The file's path in the repository when git asks; empty otherwise. */
	FString GitPath;
};

TOptional<FSides> ReadSides(const TArray<FString>& Words)
{
	if (Words.Num() == 2)
	{
		return FSides{Words[0], Words[1], FString()};
	}
	return Words.Num() == NumGitWords ? FSides{Words[1], Words[4], Words[0]} : TOptional<FSides>();
}

/** A file of a Blueprint as a package of its own, beside those of the project; its directory is gone with it. */
class FLooseFile
{
public:
	explicit FLooseFile(const TCHAR* InRoot)
		: Root(InRoot)
		, Directory(FPaths::Combine(FString(FPlatformProcess::UserTempDir()), TEXT("vexel-diff-") + FGuid::NewGuid().ToString()))
	{
	}

	~FLooseFile()
	{
		if (bMounted)
		{
			FPackageName::UnRegisterMountPoint(Root, Directory);
			IFileManager::Get().DeleteDirectory(*Directory, false, true);
		}
	}
	UE_NONCOPYABLE(FLooseFile)

	/** Null where the file cannot be read or holds no Blueprint. */
	UBlueprint* Load(const FString& File)
	{
		const FString Extension = FPaths::GetExtension(File) == TEXT("umap") ? TEXT(".umap") : TEXT(".uasset");
		bMounted = true;
		FPackageName::RegisterMountPoint(Root, Directory);
		if (IFileManager::Get().Copy(*(Directory / TEXT("File") + Extension), *File) != COPY_OK)
		{
			return nullptr;
		}
		UPackage* const Package = LoadPackage(nullptr, *GetPackageName(), LOAD_None);
		UBlueprint* Blueprint = nullptr;
		if (Package)
		{
			ForEachObjectWithPackage(Package, [&](UObject* Object)
				{
					Blueprint = Cast<UBlueprint>(Object);
					return !Blueprint; });
		}
		return Blueprint;
	}

	FString GetPackageName() const { return Root + TEXT("File"); }

private:
	const FString Root;
	const FString Directory;
	bool bMounted = false;
};

/** One side of the comparison. */
class FSide
{
public:
	explicit FSide(const TCHAR* Root)
		: File(Root)
	{
	}

	/** Answers why the side cannot be read, or nothing. */
	TOptional<FString> Read(const FString& Word)
	{
		if (Word == NoFile)
		{
			return NullOpt;
		}
		const bool bFile = FPaths::FileExists(Word);
		FString Reason = FString::Printf(TEXT("'%s' holds no Blueprint that can be loaded"), *Word);
		const UBlueprint* const Blueprint = bFile ? File.Load(Word) : BlueprintLookup::Load(Word, Reason);
		if (!Blueprint)
		{
			return Reason;
		}
		*Snapshot = FBlueprintSnapshot::Take(*Blueprint);
		OwnPackage = bFile ? File.GetPackageName() : FString();
		ProjectPackage = bFile ? FString() : Blueprint->GetOutermost()->GetName();
		return NullOpt;
	}

	/** Has what refers to the file's own package refer to where the Blueprint is at home. */
	void MoveHome(const FString& Home)
	{
		if (!OwnPackage.IsEmpty())
		{
			Snapshot->ReplaceInValues(OwnPackage, Home);
		}
	}

	const TSharedRef<FBlueprintSnapshot> Snapshot = MakeShared<FBlueprintSnapshot>();
	/** Of a Blueprint of the project. */
	FString ProjectPackage;

private:
	FLooseFile File;
	FString OwnPackage;
};

int32 Report(const FSides& Sides, const FBlueprintDiff& Diff, bool bJson)
{
	if (bJson)
	{
		const TSharedRef<FJsonObject> Document = MakeDiffDocument(Diff);
		Document->SetStringField(TEXT("before"), Sides.Before);
		Document->SetStringField(TEXT("after"), Sides.After);
		WriteJson(Document);
		return ExitStatus::Done;
	}
	if (!Sides.GitPath.IsEmpty())
	{
		FConsole::WriteLine(TEXT("vexel diff ") + Sides.GitPath);
	}
	FConsole::WriteLines(DrawDiff(Diff, FConsole::GetSize().X - 1));
	return ExitStatus::Done;
}
}

int32 RunDiffCommand(const FArguments& Arguments)
{
	const TOptional<FSides> Sides = ReadSides(Arguments.GetPositional());
	if (!Sides)
	{
		FConsole::WriteError(TEXT("diff: which two? Each is a file, or a Blueprint of the project"));
		return ExitStatus::WrongUsage;
	}
	FSession Session;
	if (const TOptional<FString> Failure = Session.Start(Arguments))
	{
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	FSide Before(TEXT("/VexelDiffBefore/"));
	FSide After(TEXT("/VexelDiffAfter/"));
	for (const TOptional<FString>& Failure : {Before.Read(Sides->Before), After.Read(Sides->After)})
	{
		if (!Failure)
		{
			continue;
		}
		if (!Sides->GitPath.IsEmpty())
		{
			// Git gives up the whole listing when a program fails on one file of it.
			FConsole::WriteLine(TEXT("vexel diff ") + Sides->GitPath);
			FConsole::WriteLine(TEXT("The files differ, and are no Blueprints that can be compared"));
			return ExitStatus::Done;
		}
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	const FString Home = After.ProjectPackage.IsEmpty() ? Before.ProjectPackage : After.ProjectPackage;
	Before.MoveHome(Home.IsEmpty() ? TEXT("/Game/File") : Home);
	After.MoveHome(Home.IsEmpty() ? TEXT("/Game/File") : Home);
	return Report(*Sides, FBlueprintDiff::Compare(Before.Snapshot, After.Snapshot), Arguments.Has(TEXT("--json")));
}
