#include "Tools/VexelAssetNameIndex.h"

#include "Containers/StringConv.h"

#include <gmock/gmock.h>
#include <random>
#include <set>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

FTopLevelAssetPath MakePath(const std::string& Name)
{
	const FString Text = UTF8_TO_TCHAR(Name.c_str());
	return FTopLevelAssetPath(FName(*(TEXT("/Game/") + Text)), FName(*Text));
}

FVexelAssetNameIndex MakeIndex(const std::vector<std::string>& Names)
{
	FVexelAssetNameIndex Index;
	for (const std::string& Name : Names)
	{
		Index.Add(MakePath(Name));
	}
	return Index;
}

std::vector<std::string> Find(const FVexelAssetNameIndex& Index, const std::string& Query)
{
	std::vector<std::string> Names;
	for (const FVexelAssetNameIndex::FMatch& Match : Index.Find(UTF8_TO_TCHAR(Query.c_str())))
	{
		EXPECT_GE(Match.Score, FVexelAssetNameIndex::MinScore);
		EXPECT_LE(Match.Score, 100.0);
		Names.push_back(TCHAR_TO_UTF8(*Match.Path.GetAssetName().ToString()));
	}
	return Names;
}
}

TEST(AssetNameIndex, FindsWordsInAnyOrderAndSpelling)
{
	const FVexelAssetNameIndex Index =
		MakeIndex({"BP_EnemyGuard", "BP_Enemy", "BP_GuardHouse", "T_Door_01", "BP_OpenDoor", "M_Lighthouse", "Player", "ABP_Player_Anim"});
	EXPECT_THAT(Find(Index, "enemy"), ElementsAre("BP_Enemy", "BP_EnemyGuard"));
	EXPECT_THAT(Find(Index, "guard ENEMY"), ElementsAre("BP_EnemyGuard"));
	EXPECT_THAT(Find(Index, "door open"), ElementsAre("BP_OpenDoor"));
	EXPECT_THAT(Find(Index, "BP_Enemy"), ElementsAre("BP_Enemy", "BP_EnemyGuard"));
	EXPECT_THAT(Find(Index, "enmy"), ElementsAre("BP_Enemy", "BP_EnemyGuard")) << "a letter is missing";
	EXPECT_THAT(Find(Index, "palyer"), ElementsAre("Player", "ABP_Player_Anim")) << "two are swapped";
	EXPECT_THAT(Find(Index, "lighthous3"), ElementsAre("M_Lighthouse")) << "one is wrong";
	EXPECT_THAT(Find(Index, "elevator"), IsEmpty());
	EXPECT_THAT(Find(Index, ""), IsEmpty());
	EXPECT_THAT(Find(Index, "?! _"), IsEmpty());
}

TEST(AssetNameIndex, AShortNameIsNoMatchForALongWord)
{
	const FVexelAssetNameIndex Index = MakeIndex({"A", "Do", "Door", "BP_DoorFrame"});
	EXPECT_THAT(Find(Index, "DoorFrame"), ElementsAre("BP_DoorFrame"));
	EXPECT_THAT(Find(Index, "a"), ElementsAre("A", "BP_DoorFrame")) << "a single letter is looked for in all";
}

TEST(AssetNameIndex, ForgetsWhatIsRemovedAndTakesItAgain)
{
	FVexelAssetNameIndex Index;
	for (int32 Round = 0; Round < 3; ++Round)
	{
		for (int32 Number = 0; Number < 3000; ++Number)
		{
			Index.Add(MakePath("BP_Door" + std::to_string(Number)));
		}
		Index.Add(MakePath("BP_Door7"));
		EXPECT_EQ(Index.Num(), 3000) << "each once";
		EXPECT_EQ(Find(Index, "door").size(), 3000u);
		for (int32 Number = 0; Number < 3000; ++Number)
		{
			if (Number != 1234)
			{
				Index.Remove(MakePath("BP_Door" + std::to_string(Number)));
			}
		}
		Index.Remove(MakePath("BP_Nobody"));
		EXPECT_THAT(Find(Index, "door"), ElementsAre("BP_Door1234"));
	}
}

TEST(AssetNameIndex, FindsEveryNameThatHasTheQueryInIt)
{
	std::mt19937 Random(20260204);
	std::set<std::string> Names;
	while (Names.size() < 2000)
	{
		std::string Name;
		for (int32 Length = 2 + int32(Random() % 8); Length > 0; --Length)
		{
			Name += char('a' + Random() % 4);
		}
		Names.insert(Name);
	}
	const FVexelAssetNameIndex Index = MakeIndex({Names.begin(), Names.end()});
	for (const char* const Query : {"ab", "abc", "dd", "cab", "abcd", "adda", "bbbbb"})
	{
		const std::vector<std::string> Found = Find(Index, Query);
		const std::set<std::string> FoundSet(Found.begin(), Found.end());
		for (const std::string& Name : Names)
		{
			EXPECT_TRUE(Name.find(Query) == std::string::npos || FoundSet.contains(Name)) << Query << " in " << Name;
		}
	}
}
