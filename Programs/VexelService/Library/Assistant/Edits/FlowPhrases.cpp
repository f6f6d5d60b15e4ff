#include "Assistant/Edits/FlowPhrases.h"

#include "Assistant/Edits/ValuePlanner.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxPhraseWords = 12;

struct FPhrase
{
	/** Words in a row: "a|b" for either, "[a|b]" for words that may be missing, "{n}" for a number, "$" where a clause must end. */
	std::string_view Said;
	/** With "{n}" for the number; empty where the words say nothing. */
	std::string_view Plain;
};

/** The longer ones before those that they begin with. */
constexpr FPhrase Phrases[] = {
	{"half a|an second|sec later|afterwards", "after 0.5 second"},
	{"{n} and a half second|seconds|sec|s", "{n}.5 second"},
	{"half a|an second|sec", "0.5 second"},
	{"half second", "0.5 second"},
	{"half a|an minute|min", "30 second"},
	{"a second|moment later|afterwards", "after 1 second"},
	{"{n} second|seconds|sec|secs|s later|afterwards", "after {n} second"},
	{"{n} second|seconds|sec|secs|s after|afterward $", "after {n} second"},
	{"{n} minute|minutes|min|mins later|afterwards", "after {n} minute"},
	{"once every", "every"},
	{"once a|per|each second", "every 1 second"},
	{"twice a|per|each second", "every 0.5 second"},
	{"once a|per|each minute", "every 60 second"},
	{"twice a|per|each minute", "every 30 second"},
	{"periodically|regularly|repeatedly every|each", "every"},
	{"every|each|any time [that|when]", "when"},
	{"as soon as", "when"},
	{"the moment [that|when]", "when"},
	{"at the moment when", "when"},
	{"starting|beginning on|at|with|from [event] begin play", ""},
	{"starting|beginning on|at|with|from beginplay|start|startup", ""},
	{"should|must|shall [also|then|always] be|get", "is"},
	{"has|have|needs|need|ought|supposed to be|get", "is"},
	{"should|must|shall [also|then|always]", ""},
	{"needs|ought|supposed to", ""},
	{"automatically|immediately|instantly", ""},
};

// What a request may begin with, and what comes behind it is meant.
constexpr std::string_view Leads[] = {
	"can|could|would|will you [please]",
	"i want|need you to",
	"i want|need it|this to",
	"i would|i'd like you|it to",
	"i want|need|like {subject} to",
	"i would|i'd like {subject} to",
	"i want|need|would|i'd [like]",
	"let's",
	"make it so that|so|:",
	"make sure that",
	"make sure",
	"have it",
	"build|write|create|add|implement logic|behavior|behaviour|code|flow|nodes|graph|something so that",
	"build|write|create|add|implement [some] [new] logic|behavior|behaviour|code|nodes|something that|which|:",
};

constexpr std::string_view Arrows = "->|=>|-->";
constexpr std::string_view Openers = "when|whenever|on|upon|every|each|if|after|in";

bool IsClauseEnd(const FEditWords& Words, std::size_t At)
{
	return At >= Words.size() || Words[At].bMark || IsWord(Words[At], "and|then|but");
}

/** How many words the phrase takes at a place; 0 where it does not stand there. */
std::size_t CountSaid(std::string_view Said, const FEditWords& Words, std::size_t Begin, std::string& OutNumber)
{
	std::size_t At = Begin;
	for (std::string_view Slot : SplitWords(Said, MaxPhraseWords))
	{
		const bool bOptional = Slot.front() == '[';
		Slot = bOptional ? Slot.substr(1, Slot.size() - 2) : Slot;
		if (Slot == "$")
		{
			return IsClauseEnd(Words, At) ? At - Begin : 0;
		}
		const std::optional<std::string> Number =
			Slot == "{n}" && At < Words.size() && !Words[At].bMark ? ReadNumber(Words[At].Text) : std::nullopt;
		const bool bFits = Slot == "{n}" ? Number.has_value() : At < Words.size() && IsWord(Words[At], Slot);
		if (!bFits && !bOptional)
		{
			return 0;
		}
		OutNumber = Number.value_or(OutNumber);
		At += bFits ? 1 : 0;
	}
	return At - Begin;
}

void AppendPlain(std::string_view Plain, const std::string& Number, FEditWords& Result)
{
	for (const std::string_view Word : SplitWords(Plain, MaxPhraseWords))
	{
		const bool bNumber = StartsWith(Word, "{n}");
		Result.push_back({.Text = bNumber ? Number + std::string(Word.substr(3)) : std::string(Word)});
	}
}

/** "2s" is "2 s". */
void SplitUnits(FEditWords& Words)
{
	for (std::size_t At = 0; At < Words.size(); ++At)
	{
		const std::string Text = Words[At].Text;
		const std::size_t Unit = Text.find_first_not_of("0123456789.");
		const bool bIsTime = !Words[At].bQuoted && Unit != std::string::npos && Unit > 0 && IsOneOf(Text.substr(Unit), "s|sec|secs|min|mins");
		if (bIsTime)
		{
			Words[At].Text = Text.substr(0, Unit);
			Words.insert(Words.begin() + static_cast<std::ptrdiff_t>(At + 1), {.Text = Text.substr(Unit)});
		}
	}
}

/** "Overlap -> open, close": what stands before the first arrow is when the rest happens. */
void ReplaceArrows(FEditWords& Words)
{
	const auto IsArrow = [](const FEditWord& Word)
	{ return IsWord(Word, Arrows); };
	const bool bAny = std::any_of(Words.begin(), Words.end(), IsArrow);
	for (FEditWord& Word : Words)
	{
		Word = IsArrow(Word) ? FEditWord{.Text = ",", .bMark = true} : Word;
	}
	if (bAny && !IsWord(Words.front(), Openers))
	{
		Words.insert(Words.begin(), {.Text = "on"});
	}
}

}

FEditWords ToPlainPhrases(const FEditWords& Said)
{
	FEditWords Words = Said;
	SplitUnits(Words);
	ReplaceArrows(Words);
	FEditWords Result;
	for (std::size_t At = 0; At < Words.size();)
	{
		std::size_t Taken = 0;
		for (const FPhrase& Phrase : Phrases)
		{
			std::string Number;
			Taken = CountSaid(Phrase.Said, Words, At, Number);
			if (Taken > 0)
			{
				AppendPlain(Phrase.Plain, Number, Result);
				break;
			}
		}
		if (Taken == 0)
		{
			Result.push_back(Words[At]);
		}
		At += std::max<std::size_t>(Taken, 1);
	}
	return Result;
}

std::optional<FEditWords> WithoutLead(std::string_view Pattern, const FEditWords& Words)
{
	constexpr std::size_t MaxLeadWords = 8;
	const std::size_t Most = std::min(Words.size(), MaxLeadWords);
	const bool bHasSubject = Pattern.find('{') != std::string_view::npos;
	for (std::size_t Step = 0; Step < Most; ++Step)
	{
		// As many words as can lead, but the shortest subject.
		const std::size_t Count = bHasSubject ? Step + 1 : Most - Step;
		const FEditWords Begin = PartOf(Words, 0, Count);
		std::optional<FCaptures> Captures = Begin.back().bMark ? std::nullopt : MatchWords(Pattern, Begin);
		if (Captures)
		{
			FEditWords Rest = (*Captures)["subject"];
			Rest.insert(Rest.end(), Words.begin() + static_cast<std::ptrdiff_t>(Count), Words.end());
			return Rest;
		}
	}
	return std::nullopt;
}

FEditWords WithoutLead(const FEditWords& Words)
{
	for (const std::string_view Lead : Leads)
	{
		if (const std::optional<FEditWords> Rest = WithoutLead(Lead, Words))
		{
			return WithoutLead(*Rest);
		}
	}
	return Words;
}

}
