#include "EditClauses.h"

#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxSlots = 16;
constexpr std::size_t MaxNameWords = 4;
constexpr std::size_t MaxNameBytes = 100;
constexpr std::size_t MaxPostfixWords = 4;

struct FLeadingWords
{
	EClause Kind;
	/** Words in a row, "a|b" for either, "[a|b]" for words that may be missing; a part of a clause's own is never optional. */
	std::string_view Pattern;
};

constexpr FLeadingWords LeadingWords[] = {
	{EClause::Name, "[that|which] [is] called|named"},
	{EClause::Name, "[and] call|name it"},
	{EClause::Name, "with|by the name [of]"},
	{EClause::Type, "[with] [the|its] type [of]"},
	{EClause::Type, "of|with [the] type"},
	{EClause::Type, "that|which is"},
	{EClause::Type, "that|which holds|stores|contains"},
	{EClause::Type, "holding|storing|containing"},
	{EClause::Type, "as a|an"},
	{EClause::Type, "of class"},
	{EClause::Default, "[with|and|has|having] [a|an|the|its] default|initial|starting [value] [of|to|is|as|being]"},
	{EClause::Default, "[and] [that|which] defaults|defaulting [to]"},
	{EClause::Default, "initialized|initialised [to|with|at]"},
	{EClause::Default, "[that|which] starts|starting at|with|as|from"},
	{EClause::Default, "initially"},
	{EClause::Default, "[and] [is] set [it] to"},
	{EClause::Default, "with [a|the] value [of]"},
	{EClause::Default, "="},
	{EClause::Category, "[and] [put|place] [it] in|into|under|to|within [a|the] category [called|named]"},
	{EClause::Category, "[with] [the|its] category [called|named|of]"},
	{EClause::Inputs,
		"[that|which] [with|and|has|having|takes|taking|needs|get|gets] [a|an|the|one|two|three|four] [new] input|inputs [called|named]"},
	{EClause::Inputs,
		"[that|which] [with|and|has|having|takes|taking|needs|get|gets] [a|an|the|one|two|three|four] [new] [input] "
		"parameter|parameters|argument|arguments [called|named]"},
	{EClause::Inputs, "[and] [that|which] takes|taking|accepts|accepting"},
	{EClause::Outputs, "[that|which] [with|and|has|having] [a|an|the|one|two|three] [new] output|outputs|result|results [called|named]"},
	{EClause::Outputs, "[that|which] [with|and|has|having] [a|an|the] output parameter|parameters [called|named]"},
	{EClause::Outputs, "[that|which] [with|and|has|having] [a|an|the] return value|values|type [called|named|of]"},
	{EClause::Outputs, "[and] [that|which] returns|returning"},
	{EClause::Owner, "to|in|of|for|from|on|inside [the|my|its] [custom] function|event|macro [called|named]"},
	{EClause::Editable, "[and] [make|is] [it] [that|which] [is] [instance] editable|instance-editable|exposed|public"},
};

/** Clauses whose noun stands behind what they say: "in the Stats category", "of the Heal function". */
struct FPostfixWords
{
	EClause Kind;
	std::string_view Before;
	std::string_view Noun;
};

constexpr FPostfixWords PostfixWords[] = {
	{EClause::Category, "in|into|under|to|within", "category|section"},
	{EClause::Owner, "to|in|of|for|from|on|inside", "function|event|macro"},
};

constexpr std::string_view Nouns = "variable|variables|var|vars|property|properties|field|fields|attribute|attributes|member";
constexpr std::string_view Connectors = "and|with|that|which|also|then|a|an|the";

/** A pattern of leading words, split once: it is tried at every word of every message. */
struct FLeadingPattern
{
	EClause Kind;
	std::vector<std::string_view> Slots;
};

const std::vector<FLeadingPattern>& GetLeadingPatterns()
{
	static const std::vector<FLeadingPattern> Patterns = []
	{
		std::vector<FLeadingPattern> All;
		for (const FLeadingWords& Row : LeadingWords)
		{
			All.push_back({Row.Kind, SplitWords(Row.Pattern, MaxSlots)});
		}
		return All;
	}();
	return Patterns;
}

// How many of the words a pattern of leading words takes; 0 when it does not stand there.
std::size_t CountLeading(const std::vector<std::string_view>& Slots, FEditWordSpan Words)
{
	std::size_t At = 0;
	for (std::string_view Slot : Slots)
	{
		const bool bOptional = Slot.front() == '[';
		Slot = bOptional ? Slot.substr(1, Slot.size() - 2) : Slot;
		if (At < Words.size() && IsWord(Words[At], Slot))
		{
			++At;
		}
		else if (!bOptional)
		{
			return 0;
		}
	}
	return At;
}

/** Where a clause begins: how many words lead to it, and how many are its own when a noun behind them ends it. */
struct FOpening
{
	EClause Kind;
	std::size_t Leading = 0;
	std::optional<std::size_t> Own = {};
	/** Words of the noun behind. */
	std::size_t Trailing = 0;
};

std::optional<FOpening> FindPostfix(FEditWordSpan Words, const FPostfixWords& Row)
{
	if (!IsWord(Words.front(), Row.Before))
	{
		return std::nullopt;
	}
	const std::size_t Begin = Words.size() > 1 && IsWord(Words[1], "the|a|its|my") ? 2 : 1;
	for (std::size_t At = Begin + 1; At < std::min(Begin + 1 + MaxPostfixWords, Words.size()); ++At)
	{
		if (Words[At - 1].bMark || IsWord(Words[At - 1], "to|in|of|for|from|with"))
		{
			break;
		}
		if (IsWord(Words[At], Row.Noun))
		{
			const bool bCustom = At - Begin > 1 && IsWord(Words[At - 1], "custom");
			return FOpening{.Kind = Row.Kind, .Leading = Begin, .Own = At - Begin - (bCustom ? 1 : 0), .Trailing = bCustom ? 2u : 1u};
		}
	}
	return std::nullopt;
}

std::optional<FOpening> FindOpening(FEditWordSpan Words, std::initializer_list<EClause> Kinds)
{
	const auto IsWanted = [Kinds](EClause Kind)
	{ return std::find(Kinds.begin(), Kinds.end(), Kind) != Kinds.end(); };
	std::optional<FOpening> Longest;
	for (const FLeadingPattern& Row : GetLeadingPatterns())
	{
		const std::size_t Count = IsWanted(Row.Kind) ? CountLeading(Row.Slots, Words) : 0;
		if (Count > (Longest ? Longest->Leading : 0))
		{
			Longest = FOpening{.Kind = Row.Kind, .Leading = Count};
		}
	}
	const bool bColon = Words.front().bMark && Words.front().Text == ":" && Words.size() > 1;
	if (bColon && IsWanted(EClause::Type))
	{
		return FOpening{.Kind = EClause::Type, .Leading = 1};
	}
	for (const FPostfixWords& Row : PostfixWords)
	{
		const std::optional<FOpening> Postfix = !Longest && IsWanted(Row.Kind) ? FindPostfix(Words, Row) : std::nullopt;
		Longest = Postfix ? Postfix : Longest;
	}
	return Longest;
}

bool IsNameWord(const FEditWord& Word)
{
	return !Word.bMark && !Word.Text.empty() && Word.Text.size() <= MaxNameBytes &&
		std::all_of(Word.Text.begin(), Word.Text.end(), [](char Character)
			{ return std::isalnum(static_cast<unsigned char>(Character)) != 0 || Character == '_' || (Character & 0x80) != 0; });
}

bool IsCapitalised(const FEditWord& Word)
{
	const unsigned char First = static_cast<unsigned char>(Word.Text.front());
	return std::isupper(First) != 0 || std::isdigit(First) != 0;
}

// Words of the language that no one gives to a variable as a name without quotes.
bool IsPlainWord(const FEditWord& Word)
{
	return IsWord(Word,
		"a|an|the|to|in|of|for|from|with|and|or|that|which|it|is|as|on|at|by|new|variable|variables|function|event|called|named|"
		"this|says|node|nodes|component|print|some|more");
}

/** A type and names that stand side by side. */
struct FTypeAndNames
{
	std::optional<FSaidType> Type;
	std::vector<std::string> Names;
};

// "float Health", "array of strings Tags", "Health float"; the longest type that leaves names, or none where bNamed says that the name
// stands elsewhere.
std::optional<FTypeAndNames> SplitTypeAndNames(FEditWordSpan Words, ETypeNames Kind, bool bNamed)
{
	const std::optional<FSaidType> Whole = ReadType(Words, Kind);
	if (Whole && bNamed)
	{
		return FTypeAndNames{Whole, {}};
	}
	for (std::size_t Count = Words.size() - 1; Count > 0; --Count)
	{
		const std::optional<FSaidType> Type = ReadType(Words.first(Count), Kind);
		const std::optional<std::vector<std::string>> Names = Type ? ReadNewNames(Words.subspan(Count)) : std::nullopt;
		if (Names)
		{
			return FTypeAndNames{Type, *Names};
		}
	}
	for (std::size_t Count = Words.size() - 1; Count > 0; --Count)
	{
		const std::optional<FSaidType> Type = ReadType(Words.last(Count), ETypeNames::Telling);
		const std::optional<std::string> Name = Type ? ReadNewName(Words.first(Words.size() - Count)) : std::nullopt;
		if (Name)
		{
			return FTypeAndNames{Type, {*Name}};
		}
	}
	return Whole ? std::optional<FTypeAndNames>({Whole, {}}) : std::nullopt;
}

// The head of a description: "a new local float variable Health".
std::optional<FSaidVariable> ReadHead(FEditWordSpan Words, const FClauses& Clauses)
{
	FSaidVariable Said;
	while (!Words.empty() && IsWord(Words.front(), "a|an|the|new|another|two|three|four|local|editable|instance|public|private|member|some"))
	{
		Said.bLocal |= IsWord(Words.front(), "local");
		Said.bEditable |= IsWord(Words.front(), "editable|public");
		Words = Words.subspan(1);
	}
	const bool bNamed = Clauses.Find(EClause::Name) != nullptr;
	const bool bTyped = Clauses.Find(EClause::Type) != nullptr;
	const auto Noun = std::find_if(Words.begin(), Words.end(), [](const FEditWord& Word)
		{ return IsWord(Word, Nouns); });
	Said.bNoun = Noun != Words.end();
	const std::size_t NounAt = static_cast<std::size_t>(Noun - Words.begin());
	const FEditWordSpan Before = Said.bNoun ? Words.first(NounAt) : FEditWordSpan();
	const FEditWords Behind = Trimmed(Said.bNoun ? Words.subspan(NounAt + 1) : Words);
	if (!Before.empty())
	{
		// "A Health variable" says its name, "a float variable" its type.
		Said.Type = ReadType(Before, Behind.empty() && !bNamed ? ETypeNames::Telling : ETypeNames::Any);
		const std::optional<std::string> Name = Said.Type ? std::nullopt : ReadNewName(Before);
		if (!Said.Type && !Name)
		{
			return std::nullopt;
		}
		if (Name)
		{
			Said.Names = {*Name};
		}
	}
	if (Behind.empty())
	{
		return Said;
	}
	const std::optional<std::vector<std::string>> Names = ReadNewNames(Behind);
	const std::optional<FTypeAndNames> Parts =
		Said.Type || bTyped ? std::nullopt : SplitTypeAndNames(Behind, bNamed && Said.bNoun ? ETypeNames::Any : ETypeNames::Telling, bNamed);
	if (Parts && (Parts->Names.empty() ? bNamed || !Said.bNoun : true))
	{
		Said.Type = Parts->Type;
		Said.Names.insert(Said.Names.end(), Parts->Names.begin(), Parts->Names.end());
		return Said;
	}
	if (!Names)
	{
		return std::nullopt;
	}
	Said.Names.insert(Said.Names.end(), Names->begin(), Names->end());
	return Said;
}

}

const FEditWords* FClauses::Find(EClause Kind) const
{
	const auto Found = std::find_if(Rest.begin(), Rest.end(), [Kind](const FClause& Clause)
		{ return Clause.Kind == Kind; });
	return Found == Rest.end() ? nullptr : &Found->Words;
}

FClauses SplitClauses(FEditWordSpan Words, std::initializer_list<EClause> Kinds)
{
	FClauses Clauses;
	FEditWords* Current = &Clauses.Head;
	const auto Close = [&Current]
	{
		*Current = Trimmed(*Current);
	};
	for (std::size_t At = 0; At < Words.size();)
	{
		const std::optional<FOpening> Opening = FindOpening(Words.subspan(At), Kinds);
		// A default may have such words of its own: "with default Apple = 3".
		const bool bWasDefault = !Clauses.Rest.empty() && Clauses.Rest.back().Kind == EClause::Default;
		const bool bInDefault = bWasDefault && Opening && Opening->Kind == EClause::Default;
		if (!Opening || bInDefault)
		{
			Current->push_back(Words[At++]);
			continue;
		}
		Close();
		At += Opening->Leading;
		Clauses.Rest.push_back({.Kind = Opening->Kind, .Words = {}});
		Current = &Clauses.Rest.back().Words;
		if (Opening->Own)
		{
			Current->assign(Words.begin() + static_cast<std::ptrdiff_t>(At),
				Words.begin() + static_cast<std::ptrdiff_t>(At + *Opening->Own));
			At += *Opening->Own + Opening->Trailing;
		}
	}
	Close();
	return Clauses;
}

FEditWords WithoutPoliteness(const FEditWords& Words)
{
	static constexpr std::string_view Openings[] = {
		"please|ok|okay|hi|hello|hey|now|then|and|so|also|well|but",
		"can|could|would|will you|we [please]",
		"i|we want|need|like [you] to",
		"i|we would like [you] to",
		"i'd like [you] to",
		"let's|lets",
		"let us",
	};
	FEditWordSpan Rest = Words;
	for (bool bFound = true; bFound && !Rest.empty();)
	{
		bFound = Rest.front().bMark;
		Rest = bFound ? Rest.subspan(1) : Rest;
		for (const std::string_view Opening : Openings)
		{
			const std::size_t Count = Rest.empty() ? 0 : CountLeading(SplitWords(Opening, MaxSlots), Rest);
			Rest = Rest.subspan(Count);
			bFound |= Count > 0;
		}
	}
	while (!Rest.empty() && (Rest.back().bMark || IsWord(Rest.back(), "please|thanks|now|too")))
	{
		Rest = Rest.first(Rest.size() - 1);
	}
	return FEditWords(Rest.begin(), Rest.end());
}

FEditWords Trimmed(FEditWordSpan Words)
{
	while (!Words.empty() && (Words.front().bMark || IsWord(Words.front(), Connectors)) && Words.size() > 1)
	{
		Words = Words.subspan(1);
	}
	while (!Words.empty() && (Words.back().bMark || IsWord(Words.back(), "and|with|that|which|also")))
	{
		Words = Words.first(Words.size() - 1);
	}
	return FEditWords(Words.begin(), Words.end());
}

std::optional<std::string> ReadNewName(FEditWordSpan Words)
{
	if (Words.size() == 1 && Words.front().bQuoted)
	{
		const std::string& Text = Words.front().Text;
		return Text.empty() || Text.size() > MaxNameBytes ? std::nullopt : std::optional<std::string>(Text);
	}
	const bool bWords = !Words.empty() && Words.size() <= MaxNameWords && std::all_of(Words.begin(), Words.end(), [](const FEditWord& Word)
																			  { return IsNameWord(Word) && !IsPlainWord(Word); });
	if (!bWords || (Words.size() > 1 && !std::all_of(Words.begin(), Words.end(), IsCapitalised)))
	{
		return std::nullopt;
	}
	std::string Name;
	for (const FEditWord& Word : Words)
	{
		Name += Word.Text;
	}
	return Name;
}

std::optional<std::vector<std::string>> ReadNewNames(FEditWordSpan Words)
{
	std::vector<std::string> Names;
	for (std::size_t Begin = 0; Begin <= Words.size();)
	{
		std::size_t End = Begin;
		while (End < Words.size() && !Words[End].bMark && !IsWord(Words[End], "and"))
		{
			++End;
		}
		// Of ", and" both part the same two names.
		const std::optional<std::string> Name = ReadNewName(Words.subspan(Begin, End - Begin));
		const bool bBetween = End == Begin && End > 0 && End < Words.size() && Words[End - 1].bMark;
		if (!Name && !bBetween)
		{
			return std::nullopt;
		}
		if (Name)
		{
			Names.push_back(*Name);
		}
		Begin = End + 1;
	}
	return Names;
}

std::optional<FSaidVariable> ReadSaidVariable(FEditWordSpan Words)
{
	return ReadSaidVariable(SplitClauses(Words, {EClause::Name, EClause::Type, EClause::Default, EClause::Category, EClause::Editable}));
}

std::optional<FSaidVariable> ReadSaidVariable(const FClauses& Clauses)
{
	std::optional<FSaidVariable> Said = ReadHead(Clauses.Head, Clauses);
	if (!Said)
	{
		return std::nullopt;
	}
	for (const FClause& Clause : Clauses.Rest)
	{
		if (Clause.Kind == EClause::Name)
		{
			const std::optional<std::vector<std::string>> Names = ReadNewNames(Clause.Words);
			if (!Names || !Said->Names.empty())
			{
				return std::nullopt;
			}
			Said->Names = *Names;
		}
		else if (Clause.Kind == EClause::Type)
		{
			const std::optional<FSaidType> Type = ReadType(Clause.Words, ETypeNames::Any);
			if (!Type || Said->Type)
			{
				return std::nullopt;
			}
			Said->Type = Type;
		}
		else if (Clause.Kind == EClause::Default)
		{
			Said->Default = Clause.Words;
		}
		else if (Clause.Kind == EClause::Category)
		{
			Said->Category = JoinWords(Clause.Words);
		}
		Said->bEditable |= Clause.Kind == EClause::Editable;
	}
	return Said;
}

std::optional<std::vector<FSaidVariable>> ReadSaidVariables(FEditWordSpan Words)
{
	std::vector<FSaidVariable> All;
	FEditWordSpan Rest = Words;
	while (!Rest.empty())
	{
		// Each is as long as can be read, so that "and" within one does not end it.
		std::size_t End = Rest.size();
		std::optional<FSaidVariable> Said;
		for (; End > 0 && !Said; --End)
		{
			const bool bEnds = End == Rest.size() || Rest[End].bMark || IsWord(Rest[End], "and");
			Said = bEnds ? ReadSaidVariable(Rest.first(End)) : std::nullopt;
			Said = Said && !Said->Names.empty() && (Said->Type || End == Rest.size()) ? Said : std::nullopt;
		}
		if (!Said)
		{
			return std::nullopt;
		}
		All.push_back(*Said);
		Rest = Rest.subspan(End + 1);
		while (!Rest.empty() && (Rest.front().bMark || IsWord(Rest.front(), "and")))
		{
			Rest = Rest.subspan(1);
		}
	}
	return All;
}

}
