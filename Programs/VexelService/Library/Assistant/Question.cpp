#include "Assistant/Question.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxWords = 48;
constexpr std::size_t MaxWordBytes = 512;

/**
 * A pattern is words and slots. "a|b" is either word; {bp} takes one word that can be the Blueprint, {bp's} its possessive;
 * {subject} takes one or more words, as few as possible; {list} takes one of the words of ListWords. The first pattern that covers
 * the whole message decides. A Blueprint that stands elsewhere, as within the subject, is taken out of it.
 */
struct FPattern
{
	EQuestionKind Kind;
	std::string_view Text;
};

constexpr FPattern Patterns[] = {
	{EQuestionKind::WhenEvent, "what happens|happen in|with {bp} when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what happens|happen {bp} when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what happens|happen when|whenever|once|after|on|if|as {subject} in|of|with {bp}"},
	{EQuestionKind::WhenEvent, "what does|will {bp} do when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what does|will happen when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "what happens|happen when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "in {bp} what happens when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::WhenEvent, "when|whenever|once|after|on|if|as {subject} what happens in {bp}"},
	{EQuestionKind::WhenEvent, "when|whenever|once|after|on|if|as {subject} what does {bp} do"},
	{EQuestionKind::WhenEvent, "when|whenever|once|after|on|if|as {subject} what happens"},
	{EQuestionKind::WhenEvent, "how does {bp} react|respond|reacts|responds {subject}"},
	{EQuestionKind::WhenEvent, "how does {bp} handle|handles {subject}"},
	{EQuestionKind::WhenEvent, "explain|describe what happens when|whenever|once|after|on|if|as {subject}"},
	{EQuestionKind::Unknown, "which|what|list|show {list} does|do|are|of|in|has {bp} have|has|there"},
	{EQuestionKind::Unknown, "which|what {list} does|has|are|do in|of {bp}"},
	{EQuestionKind::Unknown, "which|what {list} are there in|of {bp}"},
	{EQuestionKind::Unknown, "which|what {list} does|has {bp}"},
	{EQuestionKind::Unknown, "which|what {list} does {bp} use|uses|contain|define"},
	{EQuestionKind::Unknown, "how many {list} does {bp} have"},
	{EQuestionKind::Unknown, "list|show {list} of|in {bp}"},
	{EQuestionKind::Unknown, "what are {list} of|in {bp}"},
	{EQuestionKind::Unknown, "what are {bp's} {list}"},
	{EQuestionKind::Unknown, "list|show|explain|describe {bp's} {list}"},
	{EQuestionKind::Unknown, "what are {bp} {list}"},
	{EQuestionKind::Unknown, "list|show {bp} {list}"},
	{EQuestionKind::Unknown, "{list} of|in {bp}"},
	{EQuestionKind::VariableUse, "where is|are variable {subject} used|set|changed|read|modified|called in|by|of {bp}"},
	{EQuestionKind::VariableUse, "where is|are {subject} used|set|changed|read|modified|called in|by|of {bp}"},
	{EQuestionKind::VariableUse, "where is|are variable {subject} used|set|changed|read|modified|called"},
	{EQuestionKind::VariableUse, "where is|are {subject} used|set|changed|read|modified|called"},
	{EQuestionKind::VariableUse, "where does {bp} use|set|change|read variable {subject}"},
	{EQuestionKind::VariableUse, "where does {bp} use|set|change|read {subject}"},
	{EQuestionKind::VariableUse, "who|what uses|sets|changes|reads {subject} in|of {bp}"},
	{EQuestionKind::VariableUse, "how is {subject} used|set|changed in {bp}"},
	{EQuestionKind::VariableUse, "where is|are {bp's} {subject} used|set|changed|read|modified|called"},
	{EQuestionKind::VariableUse, "who|what uses|sets|changes|reads {bp's} {subject}"},
	{EQuestionKind::Function, "what does function|macro|event {subject} of|in|on {bp} do"},
	{EQuestionKind::Function, "what does function|macro|event {subject} do in|on {bp}"},
	{EQuestionKind::Function, "what does {subject} function|macro|event of|in {bp} do"},
	{EQuestionKind::Function, "explain|describe function|macro|event {subject} of|in {bp}"},
	{EQuestionKind::Function, "explain|describe {subject} function|macro|event of|in {bp}"},
	{EQuestionKind::Function, "how does function|macro|event {subject} of|in {bp} work"},
	{EQuestionKind::Function, "what does function|macro|event {subject} do"},
	{EQuestionKind::Function, "explain|describe function|macro|event {subject}"},
	{EQuestionKind::Function, "what does {subject} of|in {bp} do"},
	{EQuestionKind::Function, "what does {subject} do in {bp}"},
	{EQuestionKind::Function, "explain|describe {subject} of|in {bp}"},
	{EQuestionKind::Function, "what does {bp's} function|macro|event {subject} do"},
	{EQuestionKind::Function, "what does {bp's} {subject} function|macro|event do"},
	{EQuestionKind::Function, "what does {bp's} {subject} do"},
	{EQuestionKind::Function, "how does {bp's} {subject} work"},
	{EQuestionKind::Function, "explain|describe {bp's} {subject} function|macro|event"},
	{EQuestionKind::Function, "explain|describe {bp's} {subject}"},
	{EQuestionKind::Function, "what is {bp's} {subject}"},
	{EQuestionKind::Function, "what is {subject} in|of {bp}"},
	{EQuestionKind::Overview, "what does {bp} do"},
	{EQuestionKind::Overview, "what is {bp} doing|for"},
	{EQuestionKind::Overview, "what is {bp}"},
	{EQuestionKind::Overview, "what {bp} does"},
	{EQuestionKind::Overview, "how does {bp} work"},
	{EQuestionKind::Overview, "explain|describe how {bp} works"},
	{EQuestionKind::Overview, "explain|describe what {bp} does"},
	{EQuestionKind::Overview, "explain|describe|summarize|summarise|read|inspect {bp}"},
	{EQuestionKind::Overview, "about {bp}"},
	{EQuestionKind::WhenEvent, "what happens {subject} in {bp}"},
	{EQuestionKind::WhenEvent, "what does {bp} do {subject}"},
	{EQuestionKind::Function, "how does {bp} {subject}"},
};

struct FListWord
{
	std::string_view Word;
	EQuestionKind Kind;
};

constexpr FListWord ListWords[] = {
	{"variables", EQuestionKind::Variables},
	{"variable", EQuestionKind::Variables},
	{"functions", EQuestionKind::Functions},
	{"function", EQuestionKind::Functions},
	{"macros", EQuestionKind::Macros},
	{"events", EQuestionKind::Events},
	{"graphs", EQuestionKind::Graphs},
};

// Words that change nothing about what is asked.
constexpr std::string_view Fillers[] = {"please", "the", "a", "an", "blueprint", "asset", "me", "exactly", "actually",
	"can", "could", "you", "tell", "hi", "hello", "so", "to", "all"};

constexpr std::string_view BackReferences[] = {"it", "its", "this", "that", "here", "there", "one"};

// Where a message that names a Blueprint begins when it asks something, rather than wants something done.
constexpr std::string_view Openers =
	"what|which|how|when|where|why|who|if|in|does|is|has|are|explain|describe|summarize|summarise|show|list|give|about|"
	"overview|summary|walk|read|inspect|understand";

constexpr std::string_view MomentWords = "when|whenever|once|after|on|upon|if";
constexpr std::string_view Prepositions = "in|of|on|with|for|inside|by";

bool IsOneOf(std::string_view Word, std::string_view Alternatives)
{
	while (true)
	{
		const std::size_t Bar = Alternatives.find('|');
		if (EqualIgnoringCase(Word, Alternatives.substr(0, Bar)))
		{
			return true;
		}
		if (Bar == std::string_view::npos)
		{
			return false;
		}
		Alternatives.remove_prefix(Bar + 1);
	}
}

EQuestionKind ListKind(std::string_view Word)
{
	const auto Row = std::find_if(std::begin(ListWords), std::end(ListWords), [Word](const FListWord& Candidate)
		{ return EqualIgnoringCase(Candidate.Word, Word); });
	return Row == std::end(ListWords) ? EQuestionKind::Unknown : Row->Kind;
}

std::vector<std::string_view> SplitWords(std::string_view Text, std::size_t MaxCount)
{
	std::vector<std::string_view> Words;
	while (Words.size() <= MaxCount)
	{
		const std::size_t Begin = Text.find_first_not_of(" \t\r\n");
		if (Begin == std::string_view::npos)
		{
			break;
		}
		Text.remove_prefix(Begin);
		const std::size_t End = std::min(Text.find_first_of(" \t\r\n"), Text.size());
		Words.push_back(Text.substr(0, End));
		Text.remove_prefix(End);
	}
	return Words;
}

// Quotation marks of typography, which word processors put in the place of the plain ones.
std::string WithPlainQuotes(std::string_view Message)
{
	static constexpr std::pair<std::string_view, char> Quotes[] = {
		{"\u2018", '\''},
		{"\u2019", '\''},
		{"\u201C", '"'},
		{"\u201D", '"'},
	};
	std::string Plain(Message);
	for (const auto& [Quote, Mark] : Quotes)
	{
		std::size_t Found = 0;
		while ((Found = Plain.find(Quote, Found)) != std::string::npos)
		{
			Plain.replace(Found, Quote.size(), 1, Mark);
		}
	}
	return Plain;
}

std::string_view WithoutPunctuation(std::string_view Word)
{
	constexpr std::string_view Marks = "?!.,;:\"'`()[]{}<>*@#";
	const std::size_t Begin = Word.find_first_not_of(Marks);
	if (Begin == std::string_view::npos)
	{
		return {};
	}
	return Word.substr(Begin, Word.find_last_not_of(Marks) - Begin + 1);
}

enum class EAssetWord
{
	No,
	/** An open asset has this name, which may be a word of the language. */
	Open,
	/** The word is written as only assets are. */
	Certain,
};

struct FWord
{
	std::string_view Text;
	EAssetWord Asset = EAssetWord::No;
	bool bPossessive = false;
};

using FWords = std::vector<FWord>;

bool LooksLikeAsset(std::string_view Word)
{
	return (StartsWith(Word, "/") && Word.find('/', 1) != std::string_view::npos) || IsPrefixedAssetName(Word);
}

// The path within "Blueprint'/Game/BP_Door.BP_Door'", as the editor copies references.
std::string_view WithoutReferenceClass(std::string_view Word)
{
	const std::size_t Quote = Word.find("'/");
	return Quote == std::string_view::npos ? Word : WithoutPunctuation(Word.substr(Quote + 1));
}

FWord ReadWord(std::string_view Raw, const std::vector<std::string>& OpenNames)
{
	// "`BP_Door`'s" has its marks on both sides of the possessive.
	FWord Word{.Text = WithoutReferenceClass(WithoutPunctuation(Raw))};
	if (Word.Text.size() > 2 && EqualIgnoringCase(Word.Text.substr(Word.Text.size() - 2), "'s"))
	{
		Word.Text = WithoutPunctuation(Word.Text.substr(0, Word.Text.size() - 2));
		Word.bPossessive = true;
	}
	Word.bPossessive |= EqualIgnoringCase(Word.Text, "its");
	const bool bOpen = std::any_of(OpenNames.begin(), OpenNames.end(), [&Word](const std::string& Name)
		{ return EqualIgnoringCase(Name, Word.Text); });
	Word.Asset = LooksLikeAsset(Word.Text) ? EAssetWord::Certain : bOpen ? EAssetWord::Open
																		 : EAssetWord::No;
	return Word;
}

FWords MeaningfulWords(std::string_view Message, const std::vector<std::string>& OpenNames)
{
	FWords Words;
	std::string_view Previous;
	for (const std::string_view Raw : SplitWords(Message, MaxWords))
	{
		const FWord Word = ReadWord(Raw, OpenNames);
		const bool bFiller = std::any_of(std::begin(Fillers), std::end(Fillers), [&Word](std::string_view Filler)
			{ return EqualIgnoringCase(Word.Text, Filler); });
		// "The function called Open", but not "where is Open called".
		const bool bIntroducesName = IsOneOf(Word.Text, "called|named") && IsOneOf(Previous, "blueprint|asset|variable|function|macro|event");
		Previous = Word.Text;
		if (Word.Text.empty() || bFiller || bIntroducesName)
		{
			continue;
		}
		Words.push_back(Word);
		if (Word.bPossessive && IsOneOf(Word.Text, "what|where|how"))
		{
			Words.push_back({.Text = "is"});
		}
	}
	return Words;
}

// The word that names the Blueprint: the last one that can only be an asset, or else the last that is an open one's name.
std::optional<std::size_t> FindAssetWord(const FWords& Words)
{
	std::optional<std::size_t> Found;
	for (std::size_t Index = 0; Index < Words.size(); ++Index)
	{
		if (Words[Index].Asset != EAssetWord::No && (!Found || Words[Index].Asset >= Words[*Found].Asset))
		{
			Found = Index;
		}
	}
	return Found;
}

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

	bool Match(const std::vector<std::string_view>& Pattern, FReading& Reading) const { return Match(Pattern, 0, 0, Reading); }

private:
	bool Match(const std::vector<std::string_view>& Pattern, std::size_t PatternAt, std::size_t WordAt, FReading& Reading) const
	{
		if (PatternAt == Pattern.size() || WordAt == Words.size())
		{
			return PatternAt == Pattern.size() && WordAt == Words.size();
		}
		const std::string_view Slot = Pattern[PatternAt];
		if (Slot == "{subject}")
		{
			return MatchSubject(Pattern, PatternAt, WordAt, Reading);
		}
		if (Slot == "{bp}" || Slot == "{bp's}")
		{
			Reading.Blueprint = WordAt;
			const bool bFits = CanBeBlueprint(Words[WordAt]) && (Slot == "{bp}" || Words[WordAt].bPossessive);
			return bFits && Match(Pattern, PatternAt + 1, WordAt + 1, Reading);
		}
		if (Slot == "{list}")
		{
			Reading.Kind = ListKind(Words[WordAt].Text);
			return Reading.Kind != EQuestionKind::Unknown && Match(Pattern, PatternAt + 1, WordAt + 1, Reading);
		}
		return IsOneOf(Words[WordAt].Text, Slot) && Match(Pattern, PatternAt + 1, WordAt + 1, Reading);
	}

	bool MatchSubject(const std::vector<std::string_view>& Pattern, std::size_t PatternAt, std::size_t WordAt, FReading& Reading) const
	{
		for (std::size_t End = WordAt + 1; End <= Words.size(); ++End)
		{
			if (Match(Pattern, PatternAt + 1, End, Reading))
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
		return !bNamesAsset || Word.Asset != EAssetWord::No || IsBackReference(Word.Text);
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

FQuestion ToQuestion(const FWords& Words, FReading Reading)
{
	Reading.Blueprint = Reading.Blueprint ? Reading.Blueprint : FindAssetWord(Words);
	FQuestion Question{.Kind = Reading.Kind, .Blueprint = {}, .Subject = SubjectWithout(Words, Reading)};
	Question.Blueprint = Reading.Blueprint ? std::string(Words[*Reading.Blueprint].Text) : std::string();
	// "What happens to BP_Door?" asks for no one thing about it.
	if (Reading.SubjectEnd > Reading.SubjectBegin && Question.Subject.empty())
	{
		Question.Kind = EQuestionKind::Overview;
	}
	return Question;
}

// A question in words that no pattern has, about a Blueprint that it names: by its telling words.
FReading ReadLoosely(const FWords& Words)
{
	FReading Reading;
	const bool bAboutTheAsker = std::any_of(Words.begin(), Words.end(), [](const FWord& Word)
		{ return IsOneOf(Word.Text, "i|we|my|our"); });
	const bool bAsks = Words.front().Asset != EAssetWord::No ? Words.size() == 1 : IsOneOf(Words.front().Text, Openers);
	if (!FindAssetWord(Words) || !bAsks || bAboutTheAsker)
	{
		return Reading;
	}
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

}

FQuestion ReadQuestion(std::string_view Message, const std::vector<std::string>& OpenNames)
{
	const std::string Text = WithPlainQuotes(Message);
	const FWords Words = MeaningfulWords(Text, OpenNames);
	const bool bTooLong = Words.size() > MaxWords || std::any_of(Words.begin(), Words.end(), [](const FWord& Word)
														 { return Word.Text.size() > MaxWordBytes; });
	if (Words.empty() || bTooLong)
	{
		return {};
	}
	const FMatcher Matcher(Words);
	for (const FPattern& Pattern : Patterns)
	{
		FReading Reading{.Kind = Pattern.Kind, .Blueprint = {}};
		if (Matcher.Match(SplitWords(Pattern.Text, MaxWords), Reading))
		{
			return ToQuestion(Words, Reading);
		}
	}
	return ToQuestion(Words, ReadLoosely(Words));
}

bool IsBackReference(std::string_view Blueprint)
{
	return Blueprint.empty() || std::any_of(std::begin(BackReferences), std::end(BackReferences), [Blueprint](std::string_view Word)
									{ return EqualIgnoringCase(Blueprint, Word); });
}

}
