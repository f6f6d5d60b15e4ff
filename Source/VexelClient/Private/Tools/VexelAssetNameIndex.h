#pragma once

#include "CoreMinimal.h"
#include "UObject/TopLevelAssetPath.h"

/**
 * The names of all assets, by the pairs of letters in them: a search looks at the names that share enough of them with the query
 * instead of at all. Not shared between threads.
 */
class FVexelAssetNameIndex
{
public:
	struct FMatch
	{
		FTopLevelAssetPath Path;
		/** From MinScore to 100, which is a name that has every word of the query. A word counts as much as it has letters. */
		double Score = 0.0;
	};
	static constexpr double MinScore = 70.0;

	/** An asset that is there already is left as it is. */
	void Add(const FTopLevelAssetPath& Path);
	void Remove(const FTopLevelAssetPath& Path);
	int32 Num() const { return Ids.Num(); }

	/**
	 * The assets whose names are like the query's words, in any order and spelling, best first; of equals the shorter name, then the
	 * order of the paths. A query without a letter or digit finds nothing.
	 */
	TArray<FMatch> Find(const FString& Query) const;
	/** The assets that have the name, in any letter case. */
	TArray<FTopLevelAssetPath> FindExact(FName Name) const;

private:
	struct FEntry
	{
		FTopLevelAssetPath Path;
		/** In lower case; empty for an asset that is gone. */
		FString Name;
	};

	/** The entries that share at least a third of the words' pairs; all that are alive when the words have none. */
	TArray<int32> FindCandidates(const TArray<FString>& Words) const;
	void RemoveGaps();

	TArray<FEntry> Entries;
	TMap<FTopLevelAssetPath, int32> Ids;
	TMap<FName, TArray<int32>> IdsByName;
	/** Entries by two following letters of their names. Entries that are gone stay in until there are too many of them. */
	TMap<uint32, TArray<int32>> IdsByPair;
};
