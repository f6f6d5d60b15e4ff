#include "Assistant/NameMatch.h"

#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxNameBytes = 128;
/** One mistake in so many letters still tells what was meant. */
constexpr std::size_t LettersPerMistake = 4;

// "BP_Door" without the tag.
std::string_view WithoutTag(std::string_view Name)
{
	return IsPrefixedAssetName(Name) ? Name.substr(Name.find('_') + 1) : Name;
}

std::string Singular(std::string Name)
{
	const bool bPlural = Name.size() > 3 && Name.back() == 's' && Name[Name.size() - 2] != 's';
	return bPlural ? Name.substr(0, Name.size() - 1) : Name;
}

// How far a name is from what was said; lower is nearer, nothing is too far. Exact names are 0, those without their tag 1.
std::optional<std::size_t> Distance(const std::string& Said, std::string_view Name)
{
	const std::string Whole = CompactName(Name);
	const std::string Bare = CompactName(WithoutTag(Name));
	if (Said == Whole)
	{
		return 0;
	}
	if (Said == Bare || Singular(Said) == Bare || Singular(Said) == Whole)
	{
		return 1;
	}
	const std::string SaidBare = CompactName(WithoutTag(Said));
	const std::size_t Mistakes = std::min({EditDistance(Said, Whole), EditDistance(Said, Bare), EditDistance(SaidBare, Bare)});
	const std::size_t Allowed = std::max<std::size_t>(1, std::min(Said.size(), Bare.size()) / LettersPerMistake);
	return Said.size() < 3 || Mistakes > Allowed ? std::nullopt : std::optional<std::size_t>(1 + Mistakes);
}

}

std::string CompactName(std::string_view Name)
{
	std::string Compact;
	for (const char Character : LowerCase(Name))
	{
		if (Character != ' ' && Character != '_' && Character != '-')
		{
			Compact += Character;
		}
	}
	return Compact;
}

bool SameName(std::string_view A, std::string_view B)
{
	return CompactName(A) == CompactName(B);
}

std::size_t EditDistance(std::string_view A, std::string_view B)
{
	A = A.substr(0, MaxNameBytes);
	B = B.substr(0, MaxNameBytes);
	std::vector<std::size_t> BeforeLast;
	std::vector<std::size_t> Last(B.size() + 1);
	for (std::size_t Column = 0; Column <= B.size(); ++Column)
	{
		Last[Column] = Column;
	}
	for (std::size_t Row = 1; Row <= A.size(); ++Row)
	{
		std::vector<std::size_t> Current(B.size() + 1, Row);
		for (std::size_t Column = 1; Column <= B.size(); ++Column)
		{
			const std::size_t Changed = Last[Column - 1] + (A[Row - 1] == B[Column - 1] ? 0 : 1);
			Current[Column] = std::min({Last[Column] + 1, Current[Column - 1] + 1, Changed});
			const bool bSwapped = Row > 1 && Column > 1 && A[Row - 1] == B[Column - 2] && A[Row - 2] == B[Column - 1];
			if (bSwapped)
			{
				Current[Column] = std::min(Current[Column], BeforeLast[Column - 2] + 1);
			}
		}
		BeforeLast = std::move(Last);
		Last = std::move(Current);
	}
	return Last[B.size()];
}

std::optional<FNameMatch> FindName(std::string_view Said, const std::vector<std::string>& Names)
{
	const std::string Compact = CompactName(Said.substr(0, MaxNameBytes));
	std::optional<std::size_t> BestDistance;
	std::optional<FNameMatch> Best;
	for (std::size_t Index = 0; Index < Names.size(); ++Index)
	{
		const std::optional<std::size_t> NameDistance = Distance(Compact, Names[Index]);
		if (!NameDistance || (BestDistance && *NameDistance > *BestDistance))
		{
			continue;
		}
		const bool bTie = BestDistance == NameDistance;
		if (bTie && *NameDistance == 0)
		{
			continue;
		}
		Best = bTie ? std::nullopt : std::optional<FNameMatch>({Index, *NameDistance == 0});
		BestDistance = NameDistance;
	}
	return Best;
}

}
