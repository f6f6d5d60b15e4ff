#include "Assistant/Edits/EditMessage.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <cstddef>

namespace VexelService
{

namespace
{

/** Where a message names its Blueprint: the words from Begin to End are taken out. */
struct FMention
{
	std::size_t Begin = 0;
	std::size_t End = 0;
	std::string Name;
	/** The higher, the surer it is that this is the Blueprint to edit. */
	int Rank = 0;
	/** What stands there instead; empty for nothing. */
	std::string Replacement = {};
};

class FMentionFinder
{
public:
	FMentionFinder(const FEditWords& InWords, const std::vector<std::string>& InOpenNames)
		: Words(InWords)
		, OpenNames(InOpenNames)
	{
	}

	std::optional<FMention> Find() const
	{
		std::optional<FMention> Best;
		for (std::size_t Index = 0; Index < Words.size(); ++Index)
		{
			const std::optional<FMention> Found = NamesAsset(Index) ? MentionAt(Index) : MentionInWords(Index);
			if (Found && (!Best || Found->Rank > Best->Rank))
			{
				Best = Found;
			}
		}
		return Best;
	}

private:
	bool NamesAsset(std::size_t Index) const
	{
		const std::string Name = Bare(Words[Index].Text);
		const bool bPath = StartsWith(Name, "/") && Name.find('/', 1) != std::string::npos;
		const bool bOpen = std::any_of(OpenNames.begin(), OpenNames.end(), [&Name](const std::string& Open)
			{ return EqualIgnoringCase(Open, Name); });
		return !Words[Index].bMark && (bPath || bOpen || IsPrefixedAssetName(Name));
	}

	bool IsAt(std::size_t Index, std::string_view Alternatives) const { return Index < Words.size() && IsWord(Words[Index], Alternatives); }

	bool IsMarkAt(std::size_t Index) const { return Index >= Words.size() || Words[Index].bMark; }

	static bool IsPossessive(const std::string& Word) { return Word.size() > 2 && EqualIgnoringCase(Word.substr(Word.size() - 2), "'s"); }

	static std::string Bare(const std::string& Word) { return IsPossessive(Word) ? Word.substr(0, Word.size() - 2) : Word; }

	/** A name that looks like an asset's is the Blueprint where the words around it say so; it may as well be a class to spawn. */
	std::optional<FMention> MentionAt(std::size_t Index) const
	{
		FMention Mention{.Begin = Index, .End = Index + 1, .Name = Bare(Words[Index].Text)};
		while (Mention.Begin > 0 && IsAt(Mention.Begin - 1, "the|blueprint|this"))
		{
			--Mention.Begin;
		}
		const bool bFirst = Mention.Begin == 0;
		const bool bIntroduces = bFirst && Mention.End < Words.size() && (Words[Mention.End].Text == ":" || Words[Mention.End].Text == ",");
		if (bIntroduces)
		{
			Mention.Rank = 5;
			++Mention.End;
			return Mention;
		}
		if (IsPossessive(Words[Index].Text))
		{
			Mention.Rank = 4;
			return Mention;
		}
		if (bFirst)
		{
			// "BP_Door should open ..." is about it; "BP_Coin spawns" may as well name a class.
			Mention.Rank = 4;
			return IsAt(Mention.End, "should|must|shall|ought") ? std::optional<FMention>(Mention) : std::nullopt;
		}
		if (const std::optional<FMention> Preposition = WithPreposition(Mention))
		{
			return Preposition;
		}
		// "Make BP_Door open ..." is "make it open ...".
		const bool bMade = IsAt(Mention.Begin - 1, "make|let|have|want|need|like|cause|get") && !IsMarkAt(Mention.End);
		Mention.Rank = 2;
		Mention.Replacement = "it";
		return bMade && IsBlueprintName(Mention.Name) ? std::optional<FMention>(Mention) : std::nullopt;
	}

	std::optional<FMention> WithPreposition(FMention Mention) const
	{
		const std::size_t Before = Mention.Begin - 1;
		const bool bOpens = Before == 0 && IsAt(Before, "in|inside|for|on|of");
		const bool bEnds = IsMarkAt(Mention.End);
		const bool bWithin = IsAt(Before, "in|inside|within");
		const bool bOfThing = Before > 0 &&
			IsAt(Before - 1, "instance|actor|copy|class|kind|type|array|list|set|map|reference|subclass|object|objects");
		const bool bOf = IsAt(Before, "of") && !bOfThing;
		const bool bEndsClause = bEnds || IsAt(Mention.End, "that|which");
		const bool bToward = bEndsClause && IsAt(Before, "to|from|on|for|by") && IsBlueprintName(Mention.Name) && !FollowsCast(Before);
		if (!bOpens && !bWithin && !bOf && !bToward)
		{
			return std::nullopt;
		}
		Mention.Rank = bOpens ? 5 : bWithin ? 3
			: bOf                           ? 2
											: 1;
		Mention.Begin = Before;
		Mention.End += bOpens && Mention.End < Words.size() && Words[Mention.End].bMark ? 1 : 0;
		return Mention;
	}

	/** "In the door blueprint" names it in plain words. */
	std::optional<FMention> MentionInWords(std::size_t Index) const
	{
		if (!IsAt(Index, "in|inside|of|to|for") || !IsAt(Index + 1, "the|my"))
		{
			return std::nullopt;
		}
		for (std::size_t End = Index + 3; End < std::min(Index + 6, Words.size()); ++End)
		{
			if (IsAt(End, "blueprint|actor's|bp") && !Words[End - 1].bMark)
			{
				const FEditWords Name(Words.begin() + static_cast<std::ptrdiff_t>(Index + 2), Words.begin() + static_cast<std::ptrdiff_t>(End));
				const std::size_t Behind = Index == 0 && IsMarkAt(End + 1) ? std::min(End + 2, Words.size()) : End + 1;
				return FMention{.Begin = Index, .End = Behind, .Name = JoinWords(Name), .Rank = 3};
			}
		}
		return std::nullopt;
	}

	bool FollowsCast(std::size_t Before) const
	{
		return Before > 0 && IsAt(Before - 1, "cast|casts|class|level|map|equal|set|reference|references|ref|pointer");
	}

	static bool IsBlueprintName(const std::string& Name)
	{
		const std::string Short = ShortName(Name);
		return LowerCase(Short.substr(0, Short.find('_'))).find("bp") != std::string::npos;
	}

	const FEditWords& Words;
	const std::vector<std::string>& OpenNames;
};

}

std::optional<FEditMessage> ReadEditMessage(std::string_view Message, const std::vector<std::string>& OpenNames)
{
	std::optional<FEditWords> Words = SplitEditWords(Message);
	if (!Words)
	{
		return std::nullopt;
	}
	FEditMessage Result{.Words = std::move(*Words), .Blueprint = {}};
	if (const std::optional<FMention> Mention = FMentionFinder(Result.Words, OpenNames).Find())
	{
		Result.Blueprint = Mention->Name;
		Result.Words.erase(Result.Words.begin() + static_cast<std::ptrdiff_t>(Mention->Begin),
			Result.Words.begin() + static_cast<std::ptrdiff_t>(Mention->End));
		if (!Mention->Replacement.empty())
		{
			Result.Words.insert(Result.Words.begin() + static_cast<std::ptrdiff_t>(Mention->Begin), {.Text = Mention->Replacement});
		}
	}
	return Result;
}

}
