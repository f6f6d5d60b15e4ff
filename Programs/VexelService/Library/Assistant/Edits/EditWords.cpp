#include "Assistant/Edits/EditWords.h"

#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxMessageBytes = 4000;
constexpr std::size_t MaxWords = 200;
constexpr std::size_t MaxMatchSteps = 50'000;

constexpr std::string_view Blanks = " \t\r";
constexpr std::string_view EndMarks = ",;:.!?";
// Marks around words that Markdown and brackets leave.
constexpr std::string_view Wrapping = "*#[]{}<>()\"`'";
// Words that a pattern need not name.
constexpr std::string_view Fillers = "the|a|an|please|then|also|just|now|too";
constexpr std::string_view Articles = "the|a|an";

bool IsBlank(char Character) { return Blanks.find(Character) != std::string_view::npos || Character == '\n'; }

bool IsNumber(std::string_view Text)
{
	Text.remove_prefix(!Text.empty() && (Text.front() == '-' || Text.front() == '+') ? 1 : 0);
	return !Text.empty() && Text.find_first_not_of("0123456789.") == std::string_view::npos;
}

class FWordSplitter
{
public:
	explicit FWordSplitter(std::string_view InText)
		: Text(InText)
	{
	}

	FEditWords Split()
	{
		while (At < Text.size() && Words.size() <= MaxWords)
		{
			const char Character = Text[At];
			if (Character == '\n')
			{
				AddMark("\n");
				++At;
			}
			else if (IsBlank(Character))
			{
				++At;
			}
			else if (!TakeQuoted() && !TakeTuple())
			{
				TakeWord();
			}
		}
		return std::move(Words);
	}

private:
	void AddMark(std::string Mark) { Words.push_back({.Text = std::move(Mark), .bMark = true}); }

	/** Takes a text in quotes; not when nothing closes it. */
	bool TakeQuoted()
	{
		const char Quote = Text[At];
		if (Quote != '"' && Quote != '`' && Quote != '\'')
		{
			return false;
		}
		std::string Inside;
		for (std::size_t Index = At + 1; Index < Text.size(); ++Index)
		{
			const bool bEscaped = Text[Index] == '\\' && Index + 1 < Text.size() && Text[Index + 1] == Quote;
			if (bEscaped)
			{
				Inside += Text[++Index];
				continue;
			}
			const char Next = Index + 1 < Text.size() ? Text[Index + 1] : ' ';
			const bool bEnds = Text[Index] == Quote && (Quote != '\'' || !IsLetter(Next));
			if (bEnds)
			{
				Words.push_back({.Text = std::move(Inside), .bQuoted = true});
				At = Index + 1;
				TakeEndMarks();
				return true;
			}
			Inside += Text[Index];
		}
		return false;
	}

	/** Takes "(0, 0, 100)", which is one value; no other brackets. */
	bool TakeTuple()
	{
		const std::size_t End = Text[At] == '(' ? Text.find(')', At) : std::string_view::npos;
		if (End == std::string_view::npos)
		{
			return false;
		}
		const std::string_view Inside = Text.substr(At + 1, End - At - 1);
		if (Inside.find_first_not_of("0123456789.,-+ XYZxyz=") != std::string_view::npos || Inside.find(',') == std::string_view::npos)
		{
			return false;
		}
		Words.push_back({.Text = std::string(Inside)});
		At = End + 1;
		TakeEndMarks();
		return true;
	}

	void TakeWord()
	{
		const std::size_t End = std::min(Text.find_first_of(" \t\r\n", At), Text.size());
		std::string_view Word = Text.substr(At, End - At);
		const std::size_t Last = Word.find_last_not_of(EndMarks);
		const std::string_view Marks = Last == std::string_view::npos ? Word : Word.substr(Last + 1);
		Word = Trimmed(Word.substr(0, Word.size() - Marks.size()));
		if (!Word.empty() && !JoinsNumber(Word))
		{
			Words.push_back({.Text = std::string(Word)});
		}
		At = End;
		AddMarks(Marks);
	}

	/** "0, 0, 100" is one value. */
	bool JoinsNumber(std::string_view Word)
	{
		const std::size_t Count = Words.size();
		const bool bAfterComma = Count >= 2 && Words.back().bMark && Words.back().Text == ",";
		if (!bAfterComma || !IsNumber(Word))
		{
			return false;
		}
		const std::string& Before = Words[Count - 2].Text;
		const std::size_t LastBlank = Before.rfind(' ');
		if (Words[Count - 2].bQuoted || !IsNumber(std::string_view(Before).substr(LastBlank == std::string::npos ? 0 : LastBlank + 1)))
		{
			return false;
		}
		Words.pop_back();
		Words.back().Text += ", " + std::string(Word);
		return true;
	}

	void TakeEndMarks()
	{
		const std::size_t End = std::min(Text.find_first_not_of(EndMarks, At), Text.size());
		AddMarks(Text.substr(At, End - At));
		At = End;
	}

	void AddMarks(std::string_view Marks)
	{
		if (!Marks.empty())
		{
			AddMark(std::string(1, Marks.front()));
		}
	}

	static bool IsLetter(char Character) { return (Character >= 'a' && Character <= 'z') || (Character >= 'A' && Character <= 'Z'); }

	static std::string_view Trimmed(std::string_view Word)
	{
		if (Word.find_first_not_of("<>=!+-*/") == std::string_view::npos)
		{
			return Word;
		}
		const std::size_t Begin = Word.find_first_not_of(Wrapping);
		return Begin == std::string_view::npos ? std::string_view() : Word.substr(Begin, Word.find_last_not_of(Wrapping) - Begin + 1);
	}

	const std::string_view Text;
	std::size_t At = 0;
	FEditWords Words;
};

/** A word of a pattern. */
struct FSlot
{
	/** The alternatives, or the slot's name. */
	std::string_view Text;
	bool bCaptures = false;
	bool bOneWord = false;
	bool bOptional = false;
};

FSlot ReadSlot(std::string_view Text)
{
	const bool bOptional = Text.front() == '[';
	if (bOptional)
	{
		Text = Text.substr(1, Text.size() - 2);
	}
	if (Text.front() != '{')
	{
		return {.Text = Text, .bOptional = bOptional};
	}
	Text = Text.substr(1, Text.size() - 2);
	const bool bOneWord = Text.size() > 2 && Text.substr(Text.size() - 2) == ":1";
	return {.Text = bOneWord ? Text.substr(0, Text.size() - 2) : Text, .bCaptures = true, .bOneWord = bOneWord, .bOptional = bOptional};
}

// Whether a word is a verb of the alternatives with "ing" behind: "opening", "toggling", "running".
bool IsGerund(std::string_view Text, std::string_view Alternatives)
{
	constexpr std::string_view Ending = "ing";
	if (Text.size() <= Ending.size() + 2 || Text.substr(Text.size() - Ending.size()) != Ending)
	{
		return false;
	}
	const std::string Stem(Text.substr(0, Text.size() - Ending.size()));
	const bool bDoubled = Stem.back() == Stem[Stem.size() - 2];
	return IsOneOf(Stem, Alternatives) || IsOneOf(Stem + "e", Alternatives) ||
		(bDoubled && IsOneOf(Stem.substr(0, Stem.size() - 1), Alternatives));
}

// Whether a word is one of the alternatives, maybe with the "s" of verbs and of several things: "prints", "seconds", "touches".
bool IsForm(const FEditWord& Word, std::string_view Alternatives)
{
	if (IsWord(Word, Alternatives))
	{
		return true;
	}
	const std::string_view Text = Word.Text;
	if (!Word.bQuoted && !Word.bMark && IsGerund(Text, Alternatives))
	{
		return true;
	}
	const bool bPlain = !Word.bQuoted && !Word.bMark && Text.size() > 3 && Text.back() == 's';
	return bPlain &&
		(IsOneOf(Text.substr(0, Text.size() - 1), Alternatives) ||
			(Text[Text.size() - 2] == 'e' && IsOneOf(Text.substr(0, Text.size() - 2), Alternatives)));
}

class FPatternMatcher
{
public:
	FPatternMatcher(std::string_view Pattern, const FEditWords& InWords)
		: Words(InWords)
	{
		for (const std::string_view Slot : SplitWords(Pattern, MaxWords))
		{
			Slots.push_back(ReadSlot(Slot));
		}
	}

	bool Match() { return Match(0, 0); }

	FCaptures Captures;

private:
	bool Match(std::size_t SlotAt, std::size_t WordAt)
	{
		if (++Steps > MaxMatchSteps)
		{
			return false;
		}
		if (SlotAt == Slots.size())
		{
			return std::all_of(Words.begin() + static_cast<std::ptrdiff_t>(WordAt), Words.end(),
				[](const FEditWord& Word)
				{ return Word.bMark || IsWord(Word, Fillers); });
		}
		const FSlot& Slot = Slots[SlotAt];
		if (Slot.bOptional && MatchWithout(SlotAt, WordAt))
		{
			return true;
		}
		if (WordAt == Words.size())
		{
			return false;
		}
		const FEditWord& Word = Words[WordAt];
		if (Slot.bCaptures ? Capture(SlotAt, WordAt) : IsForm(Word, Slot.Text) && Match(SlotAt + 1, WordAt + 1))
		{
			return true;
		}
		const bool bPassedOver = Word.bMark ? Word.Text == "," || Word.Text == ":" : IsWord(Word, Fillers);
		return bPassedOver && Match(SlotAt, WordAt + 1);
	}

	// An optional word is passed over only where the word does not stand there, so that no slot swallows it.
	bool MatchWithout(std::size_t SlotAt, std::size_t WordAt)
	{
		const FSlot& Slot = Slots[SlotAt];
		const bool bStandsThere = !Slot.bCaptures && WordAt < Words.size() && IsForm(Words[WordAt], Slot.Text);
		return !bStandsThere && Match(SlotAt + 1, WordAt);
	}

	bool Capture(std::size_t SlotAt, std::size_t WordAt)
	{
		const FSlot& Slot = Slots[SlotAt];
		const std::size_t Longest = Slot.bOneWord ? WordAt + 1 : Words.size();
		// An article belongs to a slot only when it is all that there is; "the A key" has one, and a name.
		const bool bName = WordAt > 0 && Words[WordAt].Text == "A";
		const bool bLeads = !bName && IsWord(Words[WordAt], Articles) && WordAt + 1 < Words.size() && !Words[WordAt + 1].bMark;
		if (bLeads && Capture(SlotAt, WordAt + 1))
		{
			return true;
		}
		for (std::size_t End = WordAt + 1; End <= Longest && !Words[End - 1].bMark; ++End)
		{
			if (Match(SlotAt + 1, End))
			{
				Captures[std::string(Slot.Text)] = PartOf(Words, WordAt, End);
				return true;
			}
		}
		return false;
	}

	const FEditWords& Words;
	std::vector<FSlot> Slots;
	std::size_t Steps = 0;
};

}

std::optional<FEditWords> SplitEditWords(std::string_view Text)
{
	if (Text.size() > MaxMessageBytes)
	{
		return std::nullopt;
	}
	const std::string Plain = WithPlainQuotes(Text);
	FEditWords Words = FWordSplitter(Plain).Split();
	return Words.size() > MaxWords ? std::nullopt : std::optional<FEditWords>(std::move(Words));
}

std::string JoinWords(const FEditWords& Words)
{
	std::string Text;
	for (const FEditWord& Word : Words)
	{
		Text += (Text.empty() || Word.bMark ? "" : " ") + Word.Text;
	}
	return Text;
}

FEditWords PartOf(const FEditWords& Words, std::size_t Begin, std::size_t End)
{
	return FEditWords(Words.begin() + static_cast<std::ptrdiff_t>(Begin), Words.begin() + static_cast<std::ptrdiff_t>(End));
}

bool IsWord(const FEditWord& Word, std::string_view Alternatives)
{
	return !Word.bQuoted && !Word.bMark && IsOneOf(Word.Text, Alternatives);
}

std::optional<FCaptures> MatchWords(std::string_view Pattern, const FEditWords& Words)
{
	FPatternMatcher Matcher(Pattern, Words);
	return Matcher.Match() ? std::optional<FCaptures>(std::move(Matcher.Captures)) : std::nullopt;
}

std::string CapturedText(const FCaptures& Captures, std::string_view Slot)
{
	const auto Found = Captures.find(Slot);
	return Found == Captures.end() ? std::string() : JoinWords(Found->second);
}

}
