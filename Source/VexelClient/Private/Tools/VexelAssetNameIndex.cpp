#include "Tools/VexelAssetNameIndex.h"

#include "Containers/Set.h"
#include "Misc/Char.h"
#include "VexelFuzzySearch.h"

namespace
{
constexpr int32 MinNumGaps = 1024;
/** A wrong, missing or swapped letter spoils two or three pairs of a word; a third is left of most that are still the same word. */
constexpr int32 SharedPairsDivisor = 3;

TSet<uint32> GetPairs(const FString& Text)
{
	TSet<uint32> Pairs;
	for (int32 Index = 1; Index < Text.Len(); ++Index)
	{
		Pairs.Add(uint32(Text[Index - 1]) << 16 | uint32(Text[Index]));
	}
	return Pairs;
}

/** In lower case, each once. */
TArray<FString> SplitWords(const FString& Query)
{
	TArray<FString> Words;
	FString Word;
	for (const TCHAR Character : Query.ToLower() + TEXT(" "))
	{
		if (FChar::IsAlnum(Character))
		{
			Word.AppendChar(Character);
		}
		else if (!Word.IsEmpty())
		{
			Words.AddUnique(Word);
			Word.Reset();
		}
	}
	return Words;
}

/** A word of the query with its scorer. */
struct FRatedWord
{
	explicit FRatedWord(const FString& InWord)
		: Word(InWord)
		, Scorer(FVexelFuzzySearch::ScorerPartialRatio(InWord))
	{
	}

	double Rate(const FString& Name) const
	{
		if (Name.Contains(Word, ESearchCase::CaseSensitive))
		{
			return 100.0;
		}
		// A name that stands in the word rates high however short it is.
		return Scorer(Name) * FMath::Min(1.0, double(Name.Len()) / Word.Len());
	}

	FString Word;
	FVexelFuzzySearch::FScorer Scorer;
};
}

void FVexelAssetNameIndex::Add(const FTopLevelAssetPath& Path)
{
	if (Ids.Contains(Path))
	{
		return;
	}
	const int32 Id = Entries.Add({Path, Path.GetAssetName().ToString().ToLower()});
	Ids.Add(Path, Id);
	IdsByName.FindOrAdd(Path.GetAssetName()).Add(Id);
	for (const uint32 Pair : GetPairs(Entries[Id].Name))
	{
		IdsByPair.FindOrAdd(Pair).Add(Id);
	}
}

void FVexelAssetNameIndex::Remove(const FTopLevelAssetPath& Path)
{
	int32 Id = INDEX_NONE;
	if (!Ids.RemoveAndCopyValue(Path, Id))
	{
		return;
	}
	Entries[Id].Name.Reset();
	IdsByName.FindChecked(Path.GetAssetName()).Remove(Id);
	if (Entries.Num() - Ids.Num() > FMath::Max(MinNumGaps, Ids.Num()))
	{
		RemoveGaps();
	}
}

void FVexelAssetNameIndex::RemoveGaps()
{
	FVexelAssetNameIndex Whole;
	for (const FEntry& Entry : Entries)
	{
		if (!Entry.Name.IsEmpty())
		{
			Whole.Add(Entry.Path);
		}
	}
	*this = MoveTemp(Whole);
}

TArray<int32> FVexelAssetNameIndex::FindCandidates(const TArray<FString>& Words) const
{
	TArray<uint16> NumShared;
	NumShared.SetNumZeroed(Entries.Num());
	int32 NumPairs = 0;
	for (const FString& Word : Words)
	{
		for (const uint32 Pair : GetPairs(Word))
		{
			++NumPairs;
			const TArray<int32>* const Sharing = IdsByPair.Find(Pair);
			for (const int32 Id : Sharing ? *Sharing : TArray<int32>())
			{
				++NumShared[Id];
			}
		}
	}
	const int32 NumNeeded = (NumPairs + SharedPairsDivisor - 1) / SharedPairsDivisor;
	TArray<int32> Candidates;
	for (int32 Id = 0; Id < Entries.Num(); ++Id)
	{
		if (NumShared[Id] >= NumNeeded && !Entries[Id].Name.IsEmpty())
		{
			Candidates.Add(Id);
		}
	}
	return Candidates;
}

TArray<FVexelAssetNameIndex::FMatch> FVexelAssetNameIndex::Find(const FString& Query) const
{
	const TArray<FString> Words = SplitWords(Query);
	if (Words.IsEmpty())
	{
		return {};
	}
	TArray<FRatedWord> RatedWords;
	int32 NumLetters = 0;
	for (const FString& Word : Words)
	{
		RatedWords.Emplace(Word);
		NumLetters += Word.Len();
	}
	struct FRated
	{
		int32 Id;
		double Score;
	};
	TArray<FRated> Found;
	for (const int32 Id : FindCandidates(Words))
	{
		double Score = 0.0;
		for (const FRatedWord& Word : RatedWords)
		{
			Score += Word.Rate(Entries[Id].Name) * Word.Word.Len() / NumLetters;
		}
		if (Score >= MinScore)
		{
			Found.Add({Id, Score});
		}
	}
	Found.Sort([this](const FRated& A, const FRated& B)
		{
			const FEntry& EntryA = Entries[A.Id];
			const FEntry& EntryB = Entries[B.Id];
			if (A.Score != B.Score)
			{
				return A.Score > B.Score;
			}
			return EntryA.Name.Len() != EntryB.Name.Len() ? EntryA.Name.Len() < EntryB.Name.Len() : EntryA.Path.Compare(EntryB.Path) < 0; });
	TArray<FMatch> Matches;
	Matches.Reserve(Found.Num());
	for (const FRated& Rated : Found)
	{
		Matches.Add({Entries[Rated.Id].Path, Rated.Score});
	}
	return Matches;
}

TArray<FTopLevelAssetPath> FVexelAssetNameIndex::FindExact(FName Name) const
{
	TArray<FTopLevelAssetPath> Paths;
	const TArray<int32>* const Found = IdsByName.Find(Name);
	for (const int32 Id : Found ? *Found : TArray<int32>())
	{
		Paths.Add(Entries[Id].Path);
	}
	return Paths;
}
