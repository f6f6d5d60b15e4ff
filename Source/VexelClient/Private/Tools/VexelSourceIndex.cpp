#include "Tools/VexelSourceIndex.h"

#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "Tools/VexelProjectFiles.h"
#include "Tools/VexelSourceText.h"
#include "VexelFuzzySearch.h"

namespace
{
constexpr double MinLikeness = 70.0;

bool IsCppFile(const FString& Path)
{
	const FString Extension = FPaths::GetExtension(Path);
	for (const TCHAR* const Each : {TEXT("h"), TEXT("hpp"), TEXT("inl"), TEXT("cpp"), TEXT("cc"), TEXT("c")})
	{
		if (Extension == Each)
		{
			return true;
		}
	}
	return false;
}

/** "Open" of "Game::ADoor::Open". */
FString GetLastPart(const FString& Name)
{
	const int32 Place = Name.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return Place == INDEX_NONE ? Name : Name.Mid(Place + 2);
}

bool EndsWithParts(const FString& Name, const FString& Parts)
{
	return Name.Equals(Parts, ESearchCase::CaseSensitive) || Name.EndsWith(TEXT("::") + Parts, ESearchCase::CaseSensitive);
}
}

FVexelSourceIndex& FVexelSourceIndex::Get()
{
	static FVexelSourceIndex Index;
	return Index;
}

void FVexelSourceIndex::Refresh(const FVexelProjectFiles& Files)
{
	TMap<FString, FFile> Fresh;
	bool bChanged = false;
	for (const FString& Path : Files.List(TEXT("Source")))
	{
		const TVexelExpected<FString> Resolved = IsCppFile(Path) ? Files.Resolve(Path) : TVexelExpected<FString>(FString());
		if (!Resolved || Resolved.GetValue().IsEmpty())
		{
			continue;
		}
		const FFileStatData Stat = IFileManager::Get().GetStatData(*Resolved.GetValue());
		FFile& File = Fresh.Add(Path);
		FFile* const Known = FilesByPath.Find(Path);
		if (Known && Known->Size == Stat.FileSize && Known->Time == Stat.ModificationTime)
		{
			File = MoveTemp(*Known);
			continue;
		}
		bChanged = true;
		File.Size = Stat.FileSize;
		File.Time = Stat.ModificationTime;
		const TVexelExpected<FVexelSourceText> Text = FVexelSourceText::Load(Resolved.GetValue());
		if (Text)
		{
			File.Declarations = ReadVexelSourceDeclarations(Text.GetValue().Join(1, Text.GetValue().Lines.Num()));
		}
	}
	bChanged |= Fresh.Num() != FilesByPath.Num();
	FilesByPath = MoveTemp(Fresh);
	if (!bChanged)
	{
		return;
	}
	PathsByName.Reset();
	for (const TPair<FString, FFile>& Pair : FilesByPath)
	{
		for (const FVexelSourceDeclaration& Declaration : Pair.Value.Declarations)
		{
			TArray<FString>& Paths = PathsByName.FindOrAdd(GetLastPart(Declaration.Name));
			if (Paths.IsEmpty() || Paths.Last() != Pair.Key)
			{
				Paths.Add(Pair.Key);
			}
		}
	}
}

TArray<FVexelSourceIndex::FMatch> FVexelSourceIndex::Find(const FVexelProjectFiles& Files, const FString& Name)
{
	FScopeLock Guard(&Lock);
	Refresh(Files);
	TArray<FMatch> Matches;
	const TArray<FString>* const Paths = PathsByName.Find(GetLastPart(Name));
	for (const FString& Path : Paths ? *Paths : TArray<FString>())
	{
		for (const FVexelSourceDeclaration& Declaration : FilesByPath[Path].Declarations)
		{
			if (EndsWithParts(Declaration.Name, Name))
			{
				Matches.Add({Path, Declaration});
			}
		}
	}
	Matches.StableSort([](const FMatch& A, const FMatch& B)
		{ return A.Declaration.bDefinition && !B.Declaration.bDefinition; });
	return Matches;
}

TArray<FString> FVexelSourceIndex::FindLike(const FString& Name, int32 Max)
{
	FScopeLock Guard(&Lock);
	const FVexelFuzzySearch::FScorer Scorer = FVexelFuzzySearch::ScorerPartialRatio(Name);
	TArray<TPair<double, FString>> Rated;
	for (const TPair<FString, TArray<FString>>& Pair : PathsByName)
	{
		const double Score = Scorer(Pair.Key) * FMath::Min(1.0, double(Pair.Key.Len()) / FMath::Max(Name.Len(), 1));
		if (Score >= MinLikeness)
		{
			Rated.Add({Score, Pair.Key});
		}
	}
	Rated.Sort([](const TPair<double, FString>& A, const TPair<double, FString>& B)
		{ return A.Key != B.Key ? A.Key > B.Key : A.Value < B.Value; });
	TArray<FString> Names;
	for (int32 Index = 0; Index < FMath::Min(Rated.Num(), Max); ++Index)
	{
		Names.Add(Rated[Index].Value);
	}
	return Names;
}
