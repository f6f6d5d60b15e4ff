#include "Assistant/Edits/FlowRequest.h"

#include "Assistant/Edits/FlowPhrases.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <map>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::string_view EventOpeners = "when|whenever|once|on|upon|every|each|if|after|pressing|releasing";
constexpr std::string_view MakeWords = "add|create|make|new|write|build|define|implement";
// Openers that belong to what they open.
constexpr std::string_view WholeOpeners = "every|each|pressing|releasing";
constexpr std::string_view ConditionOpeners = "if|when|once|unless|whenever";
constexpr std::string_view Separators = "then|and|afterwards|next|finally|but|also|that|which|to";
constexpr std::string_view Otherwise = "otherwise|else";
// Two chains are looked for in sentences of a length that people speak.
constexpr std::size_t MaxWordsOfTwoChains = 40;
constexpr std::size_t MaxWordCost = 1'000'000;
constexpr std::size_t MaxSteps = 64;
constexpr std::size_t MaxDepth = 6;
/** More words than that are no side of a comparison that is an event. */
constexpr std::size_t MaxOperandWords = 3;

/** Part of the message's words. */
struct FSpan
{
	std::size_t Begin = 0;
	std::size_t End = 0;

	bool IsEmpty() const { return Begin >= End; }
};

/** Steps, and how many clauses in them nobody knows: the fewer, the better they are read. */
struct FReadSteps
{
	FFlowSteps Steps;
	std::size_t Unknown = 0;
	std::size_t Count = 0;
};

/** A chain, and how many clauses in it nobody knows. */
struct FReadChain
{
	FFlowChain Chain;
	std::size_t Unknown = 0;

	bool IsSure() const { return Chain.Event && Unknown == 0 && !Chain.Steps.empty(); }
};

bool IsBetter(const FReadSteps& A, const FReadSteps& B) { return std::pair(A.Unknown, B.Count) < std::pair(B.Unknown, A.Count); }

FEditWords WordsOf(std::string_view Text) { return SplitEditWords(Text).value_or(FEditWords()); }

/** "slot=words", or several of them with ";" between. */
void AddImplied(std::string_view Implied, FCaptures& Captures)
{
	while (!Implied.empty())
	{
		const std::size_t End = std::min(Implied.find(';'), Implied.size());
		const std::size_t Equals = Implied.find('=');
		Captures[std::string(Implied.substr(0, Equals))] = WordsOf(Implied.substr(Equals + 1, End - Equals - 1));
		Implied.remove_prefix(std::min(End + 1, Implied.size()));
	}
}

class FFlowReader
{
public:
	explicit FFlowReader(const FEditWords& InWords)
		: Words(InWords)
	{
	}

	std::optional<FFlowRequest> Read()
	{
		FFlowRequest Request;
		for (const FSpan Sentence : SplitSentences())
		{
			for (FReadChain& Read : ReadSentence(Sentence, Request.Chains.empty()))
			{
				const bool bGoesOn = !Read.Chain.Event && !Request.Chains.empty();
				if (bGoesOn)
				{
					FFlowSteps& Steps = Request.Chains.back().Steps;
					Steps.insert(Steps.end(), Read.Chain.Steps.begin(), Read.Chain.Steps.end());
					continue;
				}
				Request.Chains.push_back(std::move(Read.Chain));
			}
		}
		for (FFlowChain& Chain : Request.Chains)
		{
			ResolvePronouns(Chain);
		}
		const bool bAny = std::any_of(Request.Chains.begin(), Request.Chains.end(),
			[](const FFlowChain& Chain)
			{ return !Chain.Steps.empty() && (Chain.Event || Chain.Steps.front().Action); });
		return bAny ? std::optional<FFlowRequest>(std::move(Request)) : std::nullopt;
	}

private:
	bool IsAt(std::size_t Index, std::string_view Alternatives) const { return Index < Words.size() && IsWord(Words[Index], Alternatives); }

	bool IsSentenceEnd(std::size_t Index) const
	{
		const FEditWord& Word = Words[Index];
		// "If ..., do this. Otherwise do that." is one sentence to the reader of a graph.
		return Word.bMark && Word.Text.find_first_of(".;!?\n") != std::string::npos && !IsAt(Index + 1, Otherwise);
	}

	std::vector<FSpan> SplitSentences() const
	{
		std::vector<FSpan> Sentences;
		FSpan Sentence;
		for (std::size_t Index = 0; Index <= Words.size(); ++Index)
		{
			if (Index < Words.size() && !IsSentenceEnd(Index))
			{
				continue;
			}
			Sentence.End = Index;
			Sentence = Trimmed(Sentence);
			if (!Sentence.IsEmpty())
			{
				Sentences.push_back(Sentence);
			}
			Sentence.Begin = Index + 1;
		}
		return Sentences;
	}

	bool IsSeparator(std::size_t Index) const { return Words[Index].bMark || IsWord(Words[Index], Separators); }

	/** Without the words between clauses at both ends. */
	FSpan Trimmed(FSpan Span) const
	{
		while (!Span.IsEmpty() && (IsSeparator(Span.Begin) || IsAt(Span.Begin, "please|just|so|ok|okay|now")))
		{
			++Span.Begin;
		}
		while (!Span.IsEmpty() && (IsSeparator(Span.End - 1) || IsAt(Span.End - 1, "please")))
		{
			--Span.End;
		}
		return Span;
	}

	FEditWords Cut(FSpan Span) const { return Span.IsEmpty() ? FEditWords() : PartOf(Words, Span.Begin, Span.End); }

	/** Chains that are told in one sentence: "open it when it is touched and close it when it is left" are two. */
	std::vector<FReadChain> ReadSentence(FSpan Sentence, bool bFirst)
	{
		const bool bMayBeTwo = Sentence.End - Sentence.Begin <= MaxWordsOfTwoChains && CountOpeners(Sentence) > 1;
		for (std::size_t At = Sentence.Begin + 2; bMayBeTwo && At + 2 < Sentence.End; ++At)
		{
			const FReadChain First = IsSeparator(At) ? ReadChain(Trimmed({Sentence.Begin, At}), bFirst) : FReadChain();
			FReadChain Second = First.IsSure() ? ReadChain(Trimmed({At, Sentence.End}), false) : FReadChain();
			if (Second.IsSure())
			{
				return {First, std::move(Second)};
			}
		}
		return {ReadChain(Sentence, bFirst)};
	}

	std::size_t CountOpeners(FSpan Sentence) const
	{
		std::size_t Count = 0;
		for (std::size_t At = Sentence.Begin; At < Sentence.End; ++At)
		{
			Count += IsAt(At, EventOpeners) && !IsAt(At, "if|after|once") ? 1 : 0;
		}
		return Count;
	}

	FReadChain ReadChain(FSpan Sentence, bool bFirst)
	{
		FReadChain Best;
		std::size_t BestCost = MaxWordCost;
		const auto Offer = [&](FFlowChain Chain, FSpan Before, FSpan Behind)
		{
			Before = Trimmed(Before);
			Behind = Trimmed(Behind);
			FReadSteps Steps = Chain.Event ? ReadSteps(Before, 0) : FReadSteps();
			FReadSteps Others = Chain.Event && !Behind.IsEmpty() ? ReadSteps(Behind, 0) : FReadSteps();
			const std::size_t Unknown = Steps.Unknown + Others.Unknown;
			// In "when it touches it the door opens" the second "it" belongs to the event rather than to the step.
			const FSpan First = Before.IsEmpty() ? Behind : Before;
			const std::size_t Cost = 2 * Unknown + (IsAt(First.Begin, "it|him|her|them|this|that") ? 1 : 0);
			if (Steps.Count + Others.Count > 0 && Cost < BestCost)
			{
				Best = {.Chain = std::move(Chain), .Unknown = Unknown};
				Best.Chain.Steps = std::move(Steps.Steps);
				Best.Chain.Steps.insert(Best.Chain.Steps.end(), Others.Steps.begin(), Others.Steps.end());
				BestCost = Cost;
			}
		};
		// "After 2 seconds ..." and "If ..." go on with what was said before them.
		const bool bGoesOn = !bFirst && IsAt(Sentence.Begin, "after|if");
		if (!bGoesOn && (IsAt(Sentence.Begin, EventOpeners) || IsAt(Sentence.Begin, MakeWords)))
		{
			for (std::size_t End = Sentence.Begin + 1; End < Sentence.End; ++End)
			{
				Offer(ReadOpening({Sentence.Begin, End}), {}, {End, Sentence.End});
			}
		}
		for (std::size_t Begin = Sentence.End; !Best.Chain.Event && Begin > Sentence.Begin + 1; --Begin)
		{
			const bool bOpens = IsAt(Begin - 1, EventOpeners) && !IsAt(Begin - 1, "if|after");
			// The event may end before what else happens: "open it when it is touched and close it after 2 seconds".
			for (std::size_t End = Begin + 1; bOpens && End <= Sentence.End; ++End)
			{
				if (End == Sentence.End || IsSeparator(End))
				{
					Offer(ReadOpening({Begin - 1, End}), {Sentence.Begin, Begin - 1}, {End, Sentence.End});
				}
			}
		}
		if (!Best.Chain.Event)
		{
			FReadSteps Steps = ReadSteps(Sentence, 0);
			Best = {.Chain = {.Steps = std::move(Steps.Steps)}, .Unknown = Steps.Unknown};
		}
		return Best;
	}

	/** "Print Health when it changes", "when Health changes print it": one of the two says what the other means. */
	static void ResolvePronouns(FFlowChain& Chain)
	{
		const auto IsPronoun = [](const FCaptures& Captures, std::string_view Slot)
		{
			const auto Found = Captures.find(Slot);
			return Found != Captures.end() && IsOneOf(JoinWords(Found->second), "it|its value|that|this|the value");
		};
		if (!Chain.Event || Chain.Event->Kind != EEventKind::VariableChanges)
		{
			return;
		}
		for (FFlowStep& Step : Chain.Steps)
		{
			for (const std::string_view Slot : {"value", "variable"})
			{
				const auto Said = Step.Captures.find(Slot);
				if (Said != Step.Captures.end() && IsPronoun(Chain.Captures, "variable") && !IsPronoun(Step.Captures, Slot))
				{
					Chain.Captures["variable"] = Said->second;
				}
				else if (Said != Step.Captures.end() && IsPronoun(Step.Captures, Slot))
				{
					Said->second = Chain.Captures["variable"];
				}
			}
		}
	}

	/** "When it is hit" and "add a function Open that"; the words behind are steps. */
	FFlowChain ReadOpening(FSpan Span) const
	{
		const FEditWords Said = Cut(Span);
		if (IsWord(Said.front(), MakeWords))
		{
			return ReadNewEntry(Said);
		}
		const bool bWhole = IsWord(Said.front(), WholeOpeners);
		const FSpan Phrase = Trimmed({Span.Begin + (bWhole ? 0 : 1), Span.End});
		return Phrase.IsEmpty() ? FFlowChain() : ReadEvent(Cut(Phrase));
	}

	static FFlowChain ReadNewEntry(const FEditWords& Said)
	{
		static constexpr std::pair<std::string_view, std::string_view> Wordings[] = {
			{"add|create|make|write|build|define|implement [new] function [named|called] {name:1} that|which|to|,", NewFunctionSlot},
			{"add|create|make|write|build|define|implement [new] custom event [named|called] {name:1} that|which|to|,", "name"},
		};
		for (const auto& [Pattern, Slot] : Wordings)
		{
			if (std::optional<FCaptures> Captures = MatchWords(Pattern, Said))
			{
				FCaptures Name = {{std::string(Slot), (*Captures)["name"]}};
				return {.Event = FindEvent("named"), .Captures = std::move(Name), .EventWords = Said};
			}
		}
		return {};
	}

	/** The best reading of a list of steps; each place is read once. */
	FReadSteps ReadSteps(FSpan Span, std::size_t Depth)
	{
		if (Span.IsEmpty() || Depth > MaxDepth)
		{
			return {.Steps = {}, .Unknown = Span.IsEmpty() ? 0u : 1000u};
		}
		const std::pair Key(Span.Begin, Span.End);
		if (const auto Found = Known.find(Key); Found != Known.end())
		{
			return Found->second;
		}
		FReadSteps Best = ReadBlock(Span, Depth).value_or(ReadList(Span, Depth));
		return Known[Key] = std::move(Best);
	}

	/** Steps that hold all that follows: "if ... otherwise ...", "for each ...". */
	std::optional<FReadSteps> ReadBlock(FSpan Span, std::size_t Depth)
	{
		if (IsAt(Span.Begin, ConditionOpeners))
		{
			return ReadIf(Span, Depth);
		}
		return IsAt(Span.Begin, "after") ? ReadDelayed(Span, Depth) : ReadPrefixedBlock(Span, Depth);
	}

	/** "After 2 seconds close it", with or without a mark between. */
	std::optional<FReadSteps> ReadDelayed(FSpan Span, std::size_t Depth)
	{
		std::optional<FReadSteps> Best;
		for (std::size_t End = Span.Begin + 2; End < Span.End; ++End)
		{
			FReadSteps Delay = ReadClause({Span.Begin, End}, Depth);
			FReadSteps Behind = Delay.Unknown == 0 ? ReadSteps(Trimmed({End, Span.End}), Depth + 1) : FReadSteps();
			if (Delay.Unknown > 0 || Behind.Count == 0 || (Best && Best->Unknown <= Behind.Unknown))
			{
				continue;
			}
			Delay.Steps.insert(Delay.Steps.end(), Behind.Steps.begin(), Behind.Steps.end());
			Best = FReadSteps{.Steps = std::move(Delay.Steps), .Unknown = Behind.Unknown, .Count = 1 + Behind.Count};
		}
		return Best;
	}

	std::optional<FReadSteps> ReadIf(FSpan Span, std::size_t Depth)
	{
		std::size_t Else = Span.Begin;
		while (Else < Span.End && !IsAt(Else, Otherwise))
		{
			++Else;
		}
		FReadSteps Other = Else < Span.End ? ReadSteps(Trimmed({Else + 1, Span.End}), Depth + 1) : FReadSteps();
		std::optional<FReadSteps> Best;
		for (std::size_t End = Span.Begin + 2; End < Else; ++End)
		{
			FReadSteps Then = ReadSteps(Trimmed({End, Else}), Depth + 1);
			// A comma or "then" ends the condition surely; elsewhere it ends where the fewest words are left over.
			const bool bSure = Words[End].bMark || IsAt(End, "then");
			const bool bKnown =
				Then.Count > 0 && (!Best || Then.Unknown < Best->Unknown || (bSure && Then.Unknown == Best->Unknown && Then.Unknown == 0));
			if (!bKnown)
			{
				continue;
			}
			FFlowStep Step{.Action = FindAction("if"), .Words = Cut(Span)};
			Step.Captures["condition"] = Cut(Trimmed({Span.Begin + 1, End}));
			Step.Captures[IsAt(Span.Begin, "unless") ? "unless" : "if"] = {};
			Step.Bodies = {Then.Steps, Other.Steps};
			Best = FReadSteps{.Steps = {std::move(Step)}, .Unknown = Then.Unknown + Other.Unknown, .Count = 1 + Then.Count + Other.Count};
			if (bSure && Then.Unknown == 0)
			{
				break;
			}
		}
		return Best;
	}

	std::optional<FReadSteps> ReadPrefixedBlock(FSpan Span, std::size_t Depth)
	{
		struct FBlockWording
		{
			std::string_view Pattern;
			std::string_view Action;
			std::string_view Implied = {};
		};
		static constexpr FBlockWording Wordings[] = {
			{"for [each] [index|number|i] from {first} to {last:1} [and] [do] {body}", "loop"},
			{"loop [from] {first} to {last:1} [and] [do] {body}", "loop"},
			{"repeat {last:1} times and {body}", "loop", "first=1"},
			{"repeat {body} {last:1} times", "loop", "first=1"},
			{"{last:1} times [and] {body}", "loop", "first=1"},
			{"[do] {body} {last:1} times", "loop", "first=1"},
			{"do once [and] {body}", "do_once"},
			{"only|just once [and] {body}", "do_once"},
			{"once only [and] {body}", "do_once"},
			{"[do] {body} only once", "do_once"},
			{"[do] {body} once only", "do_once"},
			{"[do] {body} once", "do_once"},
			{"alternate|switch|toggle|flip between {body} and {second}", "flip_flop"},
			{"flip flop [and] [between] {body} and {second}", "flip_flop"},
			{"alternately {body} and {second}", "flip_flop"},
		};
		for (const FBlockWording& Wording : Wordings)
		{
			std::optional<FCaptures> Captures = MatchWords(Wording.Pattern, Unmarked(Span));
			if (!Captures)
			{
				continue;
			}
			FReadSteps Body = FFlowReader((*Captures)["body"]).ReadWhole(Depth + 1);
			FReadSteps Second = FFlowReader((*Captures)["second"]).ReadWhole(Depth + 1);
			if (Body.Count == 0 || Body.Unknown + Second.Unknown > 0)
			{
				continue;
			}
			AddImplied(Wording.Implied, *Captures);
			FFlowStep Step{
				.Action = FindAction(Wording.Action), .Captures = *Captures, .Words = Cut(Span), .Bodies = {Body.Steps, Second.Steps}};
			return FReadSteps{.Steps = {std::move(Step)}, .Unknown = 0, .Count = 1 + Body.Count + Second.Count};
		}
		return std::nullopt;
	}

	FReadSteps ReadWhole(std::size_t Depth) { return ReadSteps({0, Words.size()}, Depth); }

	/** The words with "and" in the place of the marks between clauses. */
	FEditWords Unmarked(FSpan Span) const
	{
		FEditWords Result = Cut(Span);
		for (FEditWord& Word : Result)
		{
			Word = Word.bMark ? FEditWord{.Text = "and"} : Word;
		}
		return Result;
	}

	/** A first clause and what comes behind it, for each place where a clause may end. */
	FReadSteps ReadList(FSpan Span, std::size_t Depth)
	{
		FReadSteps Best = ReadClause(Span, Depth);
		for (std::size_t End = Span.Begin + 1; End < Span.End; ++End)
		{
			const bool bMayEnd = IsSeparator(End) || IsAt(End, "after") || IsAt(End, "if|unless");
			if (!bMayEnd)
			{
				continue;
			}
			const FSpan Rest = IsSeparator(End) ? Trimmed({End, Span.End}) : FSpan{End, Span.End};
			FReadSteps First = ReadClause(Trimmed({Span.Begin, End}), Depth);
			FReadSteps Behind = ReadSteps(Rest, Depth);
			if (First.Count == 0 || Behind.Count == 0)
			{
				continue;
			}
			FReadSteps Both{
				.Steps = std::move(First.Steps), .Unknown = First.Unknown + Behind.Unknown, .Count = First.Count + Behind.Count};
			Both.Steps.insert(Both.Steps.end(), Behind.Steps.begin(), Behind.Steps.end());
			if (IsBetter(Both, Best) && Both.Steps.size() <= MaxSteps)
			{
				Best = std::move(Both);
			}
		}
		return Best;
	}

	/** One clause; its condition or its delay may stand behind it. */
	FReadSteps ReadClause(FSpan Span, std::size_t Depth)
	{
		if (Span.IsEmpty())
		{
			return {};
		}
		const FEditWords Said = Cut(Span);
		const bool bOneClause =
			std::none_of(Said.begin(), Said.end(), [](const FEditWord& Word)
				{ return Word.bMark || IsWord(Word, "then"); });
		for (std::size_t At = Span.Begin + 1; bOneClause && At + 1 < Span.End; ++At)
		{
			const bool bWhen = IsAt(At, "when|once") && !ReadComparison(Cut({At + 1, Span.End})).Operator.empty();
			const bool bAfter =
				IsAt(At, "after") && std::none_of(Said.begin(), Said.end(), [](const FEditWord& Word)
										 { return IsWord(Word, Separators); });
			if (bAfter || bWhen || IsAt(At, "if|unless"))
			{
				return ReadWithTail(Span, At, Depth);
			}
		}
		if (!bOneClause)
		{
			return {.Steps = {{.Words = Said}}, .Unknown = 1, .Count = 1};
		}
		for (const FActionWording& Wording : GetActionWordings())
		{
			std::optional<FCaptures> Captures = MatchWords(Wording.Pattern, Said);
			if (Captures)
			{
				AddImplied(Wording.Implied, *Captures);
				return {.Steps = {{.Action = FindAction(Wording.Action), .Captures = std::move(*Captures), .Words = Said}},
					.Unknown = 0,
					.Count = 1};
			}
		}
		return {.Steps = {{.Words = Said}}, .Unknown = 1, .Count = 1};
	}

	FReadSteps ReadWithTail(FSpan Span, std::size_t At, std::size_t Depth)
	{
		FReadSteps Steps = ReadSteps(Trimmed({Span.Begin, At}), Depth + 1);
		if (IsAt(At, "after"))
		{
			FReadSteps Delay = ReadClause({At, Span.End}, Depth + 1);
			Delay.Steps.insert(Delay.Steps.end(), Steps.Steps.begin(), Steps.Steps.end());
			return {.Steps = std::move(Delay.Steps), .Unknown = Delay.Unknown + Steps.Unknown, .Count = Delay.Count + Steps.Count};
		}
		std::size_t Else = At;
		while (Else < Span.End && !IsAt(Else, Otherwise))
		{
			++Else;
		}
		const FReadSteps Other = ReadSteps(Trimmed({Else + 1, Span.End}), Depth + 1);
		FFlowStep Step{.Action = FindAction("if"), .Words = Cut(Span)};
		Step.Captures["condition"] = Cut({At + 1, Else});
		Step.Captures[IsAt(At, "unless") ? "unless" : "if"] = {};
		Step.Bodies = {Steps.Steps, Other.Steps};
		return {.Steps = {std::move(Step)}, .Unknown = Steps.Unknown + Other.Unknown, .Count = 1 + Steps.Count + Other.Count};
	}

	const FEditWords& Words;
	std::map<std::pair<std::size_t, std::size_t>, FReadSteps> Known;
};

}

FFlowChain ReadEvent(const FEditWords& Said)
{
	// Whose health it is, the Blueprint says.
	const FEditWords Words = Said.size() > 1 && IsWord(Said.front(), "its|his|her|their") ? PartOf(Said, 1, Said.size()) : Said;
	for (const FEventWording& Wording : GetEventWordings())
	{
		std::optional<FCaptures> Captures = MatchWords(Wording.Pattern, Words);
		const bool bKey = Captures && FindEvent(Wording.Event)->Kind == EEventKind::Key;
		if (Captures && (!bKey || FindKey(Captures->contains("key") ? CapturedText(*Captures, "key") : JoinWords(Words))))
		{
			return {.Event = FindEvent(Wording.Event), .Captures = std::move(*Captures), .EventWords = Words};
		}
	}
	// "When Health reaches zero" is a change with a condition.
	const FComparison Comparison = ReadComparison(Words);
	const bool bShort = Comparison.Left.size() <= MaxOperandWords && Comparison.Right.size() <= MaxOperandWords;
	const bool bIs = Comparison.Operator == "call.op.EqualEqual" || Comparison.Operator == "call.op.NotEqual";
	if (bShort && Comparison.Left.size() < Words.size() && (!bIs || Comparison.Right.size() == 1))
	{
		return {.Event = FindEvent("changes"), .Captures = {{"variable", Comparison.Left}, {"condition", Words}}, .EventWords = Words};
	}
	return {};
}

bool IsWhole(const FFlowRequest& Request)
{
	return std::all_of(Request.Chains.begin(), Request.Chains.end(), [](const FFlowChain& Chain)
		{ return Chain.Event && !Chain.Steps.empty() && UnknownSteps(Chain.Steps).empty(); });
}

std::optional<FFlowRequest> ReadFlow(const FEditWords& Words)
{
	const FEditWords Plain = WithoutLead(Words);
	// "Make it print ..." and "it prints ..." are "print ..."; but "make it visible" is a step.
	const std::optional<FEditWords> Made = WithoutLead("[make|let|have|get|cause] it|actor [to]", Plain);
	std::optional<FFlowRequest> Inner = Made ? FFlowReader(*Made).Read() : std::nullopt;
	return Inner && IsWhole(*Inner) ? Inner : FFlowReader(Plain).Read();
}

std::string DescribeSteps(const FFlowSteps& Steps)
{
	std::vector<std::string> Said;
	for (const FFlowStep& Step : Steps)
	{
		Said.push_back("\"" + Shortened(JoinWords(Step.Words), 100) + "\"");
	}
	return JoinWithAnd(Said);
}

std::vector<std::string> UnknownSteps(const FFlowSteps& Steps)
{
	std::vector<std::string> Unknown;
	for (const FFlowStep& Step : Steps)
	{
		if (!Step.Action)
		{
			Unknown.push_back(JoinWords(Step.Words));
		}
		for (const FFlowSteps& Body : Step.Bodies)
		{
			const std::vector<std::string> Inner = UnknownSteps(Body);
			Unknown.insert(Unknown.end(), Inner.begin(), Inner.end());
		}
	}
	return Unknown;
}

}
