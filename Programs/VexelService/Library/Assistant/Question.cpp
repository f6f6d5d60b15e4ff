#include "Assistant/Question.h"

#include "Assistant/NameMatch.h"
#include "Assistant/Words.h"
#include "QuestionPatterns.h"
#include "QuestionWords.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace VexelService
{

namespace
{

using FWords = std::vector<FWord>;

constexpr std::string_view BackReferences = "it|its|this|that|here|there|one|they|them|these|those";

// Where a message that names a Blueprint begins when it asks something, rather than wants something done.
constexpr std::string_view Openers =
	"what|which|how|when|where|why|who|if|in|does|is|has|are|explain|describe|summarize|summarise|show|list|give|about|"
	"overview|summary|walk|read|inspect|understand";

constexpr std::string_view MomentWords = "when|whenever|once|after|on|upon|if";
constexpr std::string_view Prepositions = "in|of|on|with|for|inside|by|from";
constexpr std::size_t MinMistypedLetters = 4;

/** What a pattern's slots took, as places in the message. */
struct FReading
{
	EQuestionKind Kind = EQuestionKind::Unknown;
	std::optional<std::size_t> Blueprint;
	std::size_t SubjectBegin = 0;
	std::size_t SubjectEnd = 0;
};

class FMatcher
{
public:
	explicit FMatcher(const FWords& InWords)
		: Words(InWords)
		, bNamesAsset(FindAssetWord(InWords).has_value())
	{
	}

	bool Match(const FPattern& Pattern, FReading& Reading) const { return Match(Pattern.Slots, 0, 0, Reading); }

private:
	bool Match(const std::vector<std::string_view>& Slots, std::size_t SlotAt, std::size_t WordAt, FReading& Reading) const
	{
		if (SlotAt == Slots.size() || WordAt == Words.size())
		{
			return SlotAt == Slots.size() && WordAt == Words.size();
		}
		if (Slots[SlotAt] == "{subject}")
		{
			return MatchSubject(Slots, SlotAt, WordAt, Reading);
		}
		return MatchWord(Slots[SlotAt], WordAt, Reading) && Match(Slots, SlotAt + 1, WordAt + 1, Reading);
	}

	bool MatchWord(std::string_view Slot, std::size_t WordAt, FReading& Reading) const
	{
		const FWord& Word = Words[WordAt];
		if (Slot == "{bp}" || Slot == "{bp's}" || Slot == "{asset}")
		{
			Reading.Blueprint = WordAt;
			const bool bAsset = Slot != "{asset}" || Word.Asset != EAssetWord::No;
			return CanBeBlueprint(Word) && bAsset && (Slot != "{bp's}" || Word.bPossessive);
		}
		if (Slot == "{list}")
		{
			Reading.Kind = ListKind(Word.Text);
			return Reading.Kind != EQuestionKind::Unknown;
		}
		if (Slot == "{assets}" || Slot == "{file}")
		{
			// What it is asked about is its subject, as long as none stands elsewhere.
			Reading.SubjectBegin = WordAt;
			Reading.SubjectEnd = WordAt + 1;
			return Slot == "{file}" ? Word.bFile : FindAssetClass(Word.Text) != nullptr;
		}
		return IsOneOf(Word.Text, Slot);
	}

	bool MatchSubject(const std::vector<std::string_view>& Slots, std::size_t SlotAt, std::size_t WordAt, FReading& Reading) const
	{
		for (std::size_t End = WordAt + 1; End <= Words.size(); ++End)
		{
			if (Match(Slots, SlotAt + 1, End, Reading))
			{
				Reading.SubjectBegin = WordAt;
				Reading.SubjectEnd = End;
				return true;
			}
		}
		return false;
	}

	// Where the message has a word that looks like an asset, no other word is taken for one.
	bool CanBeBlueprint(const FWord& Word) const
	{
		return !bNamesAsset || Word.Asset != EAssetWord::No || IsOneOf(Word.Text, BackReferences);
	}

	const FWords& Words;
	const bool bNamesAsset;
};

// The words of the subject, without the Blueprint's own name and the preposition before it.
std::string SubjectWithout(const FWords& Words, const FReading& Reading)
{
	std::string Subject;
	for (std::size_t Index = Reading.SubjectBegin; Index < Reading.SubjectEnd; ++Index)
	{
		const bool bBeforeName = Reading.Blueprint == Index + 1 && IsOneOf(Words[Index].Text, Prepositions);
		if (Reading.Blueprint != Index && !bBeforeName)
		{
			Subject += (Subject.empty() ? "" : " ") + std::string(Words[Index].Text);
		}
	}
	return Subject;
}

// Other assets that a question about a whole Blueprint names.
std::vector<std::string> OtherAssets(const FWords& Words, std::size_t Named)
{
	std::vector<std::string> Others;
	for (std::size_t Index = 0; Index < Words.size(); ++Index)
	{
		const bool bNew = Index != Named && Words[Index].Asset == EAssetWord::Certain && !EqualIgnoringCase(Words[Index].Text, Words[Named].Text);
		if (bNew)
		{
			Others.emplace_back(Words[Index].Text);
		}
	}
	return Others;
}

// Kinds whose subject may be an asset, which then is not the Blueprint that is asked about.
bool TakesAnySubject(EQuestionKind Kind)
{
	return Kind == EQuestionKind::Assets || Kind == EQuestionKind::AllOverviews || Kind == EQuestionKind::Source ||
		Kind == EQuestionKind::Declaration;
}

FQuestion ToQuestion(const FWords& Words, FReading Reading)
{
	Reading.Blueprint = Reading.Blueprint ? Reading.Blueprint : FindAssetWord(Words);
	FQuestion Question{.Kind = Reading.Kind};
	const bool bUse = Question.Kind == EQuestionKind::ProjectUse || Question.Kind == EQuestionKind::VariableUse;
	const bool bUseOfAsset = bUse && SubjectWithout(Words, Reading).empty();
	if (bUseOfAsset || TakesAnySubject(Question.Kind))
	{
		Question.Kind = bUse ? EQuestionKind::ProjectUse : Question.Kind;
		const std::optional<std::size_t> Asset = std::exchange(Reading.Blueprint, std::nullopt);
		Question.Subject = SubjectWithout(Words, Reading);
		Question.Subject = Question.Subject.empty() && Asset ? std::string(Words[*Asset].Text) : Question.Subject;
		return Question;
	}
	Question.Subject = SubjectWithout(Words, Reading);
	if (!Reading.Blueprint)
	{
		// A name in several words: "what does the level load button do?".
		const bool bNameInWords = Question.Kind == EQuestionKind::Overview && !Question.Subject.empty();
		Question.Blueprint = bNameInWords ? std::exchange(Question.Subject, std::string()) : std::string();
		return Question;
	}
	Question.Blueprint = Words[*Reading.Blueprint].Text;
	// "What happens to BP_Door?" asks for no one thing about it.
	if (Reading.SubjectEnd > Reading.SubjectBegin && Question.Subject.empty() && Question.Kind == EQuestionKind::WhenEvent)
	{
		Question.Kind = EQuestionKind::Overview;
	}
	if (Question.Kind == EQuestionKind::Overview)
	{
		Question.MoreBlueprints = OtherAssets(Words, *Reading.Blueprint);
	}
	return Question;
}

template <typename FPredicate>
std::optional<std::size_t> FindWordIf(const FWords& Words, FPredicate Predicate)
{
	const auto Found = std::find_if(Words.begin(), Words.end(), Predicate);
	return Found == Words.end() ? std::nullopt : std::optional<std::size_t>(Found - Words.begin());
}

// A question in words that no pattern has, by its telling words.
FReading ReadLoosely(const FWords& Words)
{
	const bool bNamesAsset = FindAssetWord(Words).has_value();
	const bool bOneAsset = Words.size() == 1 && bNamesAsset;
	const bool bAsks = bOneAsset || (Words.front().Asset == EAssetWord::No && IsOneOf(Words.front().Text, Openers));
	if (!bAsks)
	{
		return {};
	}
	if (const auto File = FindWordIf(Words, [](const FWord& Word)
			{ return Word.bFile; }))
	{
		return {.Kind = EQuestionKind::Source, .Blueprint = {}, .SubjectBegin = *File, .SubjectEnd = *File + 1};
	}
	const auto Assets = FindWordIf(Words, [](const FWord& Word)
		{ return FindAssetClass(Word.Text) != nullptr; });
	if (Assets && !bNamesAsset)
	{
		return {.Kind = EQuestionKind::Assets, .Blueprint = {}, .SubjectBegin = *Assets, .SubjectEnd = *Assets + 1};
	}
	const bool bAboutTheAsker = FindWordIf(Words, [](const FWord& Word)
		{ return IsOneOf(Word.Text, "i|we|my|our"); })
									.has_value();
	if (!bNamesAsset || bAboutTheAsker)
	{
		return {};
	}
	FReading Reading;
	Reading.Kind = EQuestionKind::Overview;
	for (std::size_t Index = 0; Index < Words.size(); ++Index)
	{
		if (IsOneOf(Words[Index].Text, MomentWords) && Index + 1 < Words.size())
		{
			return {.Kind = EQuestionKind::WhenEvent, .Blueprint = {}, .SubjectBegin = Index + 1, .SubjectEnd = Words.size()};
		}
		if (Reading.Kind == EQuestionKind::Overview && ListKind(Words[Index].Text) != EQuestionKind::Unknown)
		{
			Reading.Kind = ListKind(Words[Index].Text);
		}
	}
	return Reading;
}

std::optional<FQuestion> ReadByPatterns(const FWords& Words)
{
	const FMatcher Matcher(Words);
	for (const FPattern& Pattern : GetPatterns())
	{
		FReading Reading{.Kind = Pattern.Kind, .Blueprint = {}};
		if (Matcher.Match(Pattern, Reading))
		{
			return ToQuestion(Words, Reading);
		}
	}
	return std::nullopt;
}

// The words with those of questions in the place of what is nearly one: "waht", "vairables".
FWords WithoutMistakes(FWords Words)
{
	static const std::vector<std::string_view> Known = []
	{
		std::vector<std::string_view> List;
		for (std::string_view Rest = GetQuestionWords(); !Rest.empty();)
		{
			const std::size_t Bar = std::min(Rest.find('|'), Rest.size());
			List.push_back(Rest.substr(0, Bar));
			Rest.remove_prefix(std::min(Bar + 1, Rest.size()));
		}
		return List;
	}();
	for (FWord& Word : Words)
	{
		const bool bPlain = Word.Asset == EAssetWord::No && !Word.bFile && Word.Text.size() >= MinMistypedLetters;
		const auto Nearest = std::find_if(Known.begin(), Known.end(), [&Word, bPlain](std::string_view Candidate)
			{ return bPlain && Candidate.size() >= MinMistypedLetters && EditDistance(LowerCase(Word.Text), Candidate) == 1; });
		Word.Text = Nearest == Known.end() ? Word.Text : *Nearest;
	}
	return Words;
}

}

FQuestion ReadQuestion(std::string_view Message, const std::vector<std::string>& OpenNames)
{
	const std::string Text = WithPlainQuotes(Message);
	const FMessageWords Read = ReadMessageWords(Text, OpenNames);
	if (Read.bTooLong)
	{
		return {};
	}
	if (Read.Words.empty())
	{
		return {.Kind = Read.bGreets ? EQuestionKind::Greeting : EQuestionKind::Unknown};
	}
	if (Read.bFollowsOn && Read.Words.size() == 1 && Read.Words.front().Asset != EAssetWord::No)
	{
		return {.Kind = EQuestionKind::Again, .Blueprint = std::string(Read.Words.front().Text)};
	}
	std::optional<FQuestion> Question = ReadByPatterns(Read.Words);
	if (!Question)
	{
		Question = ReadByPatterns(WithoutMistakes(Read.Words));
	}
	return Question ? *Question : ToQuestion(Read.Words, ReadLoosely(Read.Words));
}

bool IsBackReference(std::string_view Reference)
{
	return Reference.empty() || IsOneOf(Reference, BackReferences);
}

}
