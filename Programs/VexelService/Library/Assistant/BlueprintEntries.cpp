#include "Assistant/BlueprintEntries.h"

#include "Assistant/ExpressionWriter.h"
#include "Assistant/NodePhrases.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <set>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxEvents = 500;

std::vector<std::string> Segments(std::string_view Text, char Separator)
{
	std::vector<std::string> Parts;
	while (true)
	{
		const std::size_t End = Text.find(Separator);
		Parts.emplace_back(Text.substr(0, End));
		if (End == std::string_view::npos)
		{
			return Parts;
		}
		Text.remove_prefix(End + 1);
	}
}

std::string WithoutSignature(std::string Name)
{
	const std::size_t Suffix = Name.find("__DelegateSignature");
	return Name.substr(0, Suffix);
}

void NameEngineEvent(FBlueprintEntry& Entry)
{
	const std::vector<std::string> Parts = Segments(Entry.Node->Type, '.');
	const std::string Component = Parts.size() > 3 ? Parts.back() : std::string();
	const std::string Event = WithoutSignature(Parts.size() > 3 ? Parts[Parts.size() - 2] : Parts.back());
	if (const FEventPhrase* const Phrase = FindEventPhrase(Event))
	{
		Entry.Title = Phrase->When;
		Entry.Keywords = Phrase->Keywords;
		const std::size_t Slot = Entry.Title.find('%');
		if (Slot != std::string::npos)
		{
			Entry.Title.replace(Slot, 1, Component.empty() ? "it" : Component);
		}
		return;
	}
	Entry.Keywords = SpacedName(Event);
	Entry.Title = Component.empty() ? "on the event " + Event : "when " + SpacedName(Event) + " happens on " + Component;
}

void NameInputEvent(FBlueprintEntry& Entry)
{
	const std::vector<std::string> Parts = Segments(Entry.Node->Type, '.');
	const std::string Kind = Parts.size() > 1 ? Parts[1] : std::string();
	const std::string Name = Parts.size() > 2 ? Parts.back() : "an input without a name";
	const std::string Moment = LowerCase(PinTitle(*Entry.Output));
	if (Kind == "key" || Kind == "debug_key")
	{
		Entry.Title = "when the key " + Name + " is " + Moment;
	}
	else if (Kind == "axis")
	{
		Entry.Title = "every frame, with the input axis " + Name;
	}
	else
	{
		Entry.Title = "when the input " + (Kind == "touch" ? "touch" : Name) + " is " + Moment;
	}
	Entry.Keywords = "input key " + Name + " " + Moment;
}

void NameEvent(FBlueprintEntry& Entry)
{
	if (IsNodeType(*Entry.Node, "event.custom"))
	{
		const std::string Name = Entry.Node->Name.empty() ? NodeTitle(*Entry.Node) : Entry.Node->Name;
		Entry.Title = "the custom event " + Name;
		Entry.Keywords = SpacedName(Name) + " " + Name;
	}
	else if (IsNodeType(*Entry.Node, "event"))
	{
		NameEngineEvent(Entry);
	}
	else if (IsNodeType(*Entry.Node, "input"))
	{
		NameInputEvent(Entry);
	}
	else
	{
		Entry.Title = "from the node \"" + NodeTitle(*Entry.Node) + "\"";
	}
}

// Enough of a stem for the endings that verbs take in such questions.
std::string Stem(std::string Word)
{
	for (const std::string_view Ending : {"ing", "ed", "es", "s", "e"})
	{
		const bool bPartOfWord = Ending == "s" && Word.size() > 1 && Word[Word.size() - 2] == 's';
		if (Word.size() > Ending.size() + 1 && Word.ends_with(Ending) && !bPartOfWord)
		{
			Word.resize(Word.size() - Ending.size());
			break;
		}
	}
	// "stopped" and "overlapping" double the last letter of "stop" and "overlap"; "press" and "kill" have two of their own.
	const std::size_t Size = Word.size();
	const bool bDoubled =
		Size > 3 && Word[Size - 1] == Word[Size - 2] && std::string_view("aeiouls").find(Word.back()) == std::string_view::npos;
	return bDoubled ? Word.substr(0, Size - 1) : Word;
}

std::set<std::string> Stems(std::string_view Text)
{
	static constexpr std::string_view Empty[] = {"the", "a", "an", "it", "its", "is", "are", "of", "on", "in", "to", "when", "with", "i",
		"my", "another", "actor", "something", "someone", "that", "this", "by", "event", "custom", "input", "and", "for", "from", "at",
		"as", "then", "what", "happens", "does", "do", "gets", "get", "bp"};
	std::set<std::string> Words;
	std::string Word;
	for (const char Character : LowerCase(Text) + " ")
	{
		const bool bWord = (Character >= 'a' && Character <= 'z') || (Character >= '0' && Character <= '9');
		if (bWord)
		{
			Word += Character;
			continue;
		}
		if (!Word.empty() && std::find(std::begin(Empty), std::end(Empty), Word) == std::end(Empty))
		{
			Words.insert(Stem(Word));
		}
		Word.clear();
	}
	return Words;
}

}

std::vector<FBlueprintEntry> FindEvents(const FBlueprintModel& Model)
{
	std::vector<FBlueprintEntry> Events;
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		if (Graph.Kind == EGraphKind::Function || Graph.Kind == EGraphKind::Macro)
		{
			continue;
		}
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			if (Node.HasExecPin(true))
			{
				continue;
			}
			for (const FBlueprintPin& Pin : Node.Pins)
			{
				if (!Pin.IsExec() || Pin.bInput || Events.size() == MaxEvents || IsNodeType(Node, "graph.knot"))
				{
					continue;
				}
				FBlueprintEntry Entry{.Graph = &Graph, .Node = &Node, .Output = &Pin, .Title = {}, .Keywords = {}};
				NameEvent(Entry);
				Events.push_back(std::move(Entry));
			}
		}
	}
	return Events;
}

FBlueprintEntry FindGraphEntry(const FBlueprintGraph& Graph)
{
	FBlueprintEntry Entry{.Graph = &Graph, .Title = Graph.Title(), .Keywords = SpacedName(Graph.Title()) + " " + Graph.Title()};
	for (const FBlueprintNode& Node : Graph.Nodes)
	{
		const auto Output = std::find_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
			{ return Pin.IsExec() && !Pin.bInput; });
		// A macro's entry is a tunnel, which has no type of its own, so the lack of inputs tells it.
		if (IsNodeType(Node, "graph.entry") || (Output != Node.Pins.end() && !Node.HasExecPin(true)))
		{
			Entry.Node = &Node;
			Entry.Output = Output == Node.Pins.end() ? nullptr : &*Output;
			return Entry;
		}
	}
	return Entry;
}

std::vector<FBlueprintEntry> FindFunctions(const FBlueprintModel& Model)
{
	std::vector<FBlueprintEntry> Functions;
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		const bool bOwnGraph = Graph.Kind == EGraphKind::Function || Graph.Kind == EGraphKind::Macro;
		if (bOwnGraph && !EqualIgnoringCase(Graph.Id, ConstructionScript))
		{
			Functions.push_back(FindGraphEntry(Graph));
		}
	}
	return Functions;
}

namespace
{

// How well an entry fits: the words that people ask for it by count more than those that merely occur in its title.
std::size_t Score(const FBlueprintEntry& Entry, const std::set<std::string>& Asked)
{
	const std::string_view Type = Entry.Node ? LastSegment(Entry.Node->Type, '.') : std::string_view();
	const std::set<std::string> Strong = Stems(Entry.Keywords);
	const std::set<std::string> Weak = Stems(Entry.Title + " " + SpacedName(Type) + " " + std::string(Type));
	std::size_t Sum = 0;
	for (const std::string& Word : Asked)
	{
		Sum += Strong.count(Word) > 0 ? 2 : Weak.count(Word);
	}
	return Sum;
}

}

std::vector<FBlueprintEntry> MatchEntries(const std::vector<FBlueprintEntry>& Entries, std::string_view Description)
{
	const std::set<std::string> Asked = Stems(Description);
	std::vector<FBlueprintEntry> Best;
	std::size_t BestScore = 0;
	for (const FBlueprintEntry& Entry : Entries)
	{
		const std::size_t EntryScore = Score(Entry, Asked);
		if (EntryScore > BestScore)
		{
			BestScore = EntryScore;
			Best.clear();
		}
		if (EntryScore > 0 && EntryScore == BestScore)
		{
			Best.push_back(Entry);
		}
	}
	return Best;
}

std::vector<const FBlueprintNode*> FindUnreachedNodes(const FBlueprintGraph& Graph)
{
	std::vector<const FBlueprintNode*> Unreached;
	for (const FBlueprintNode& Node : Graph.Nodes)
	{
		const bool bEntered = std::any_of(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
			{ return Pin.IsExec() && Pin.bInput && !Pin.Links.empty(); });
		if (Node.HasExecPin(true) && !bEntered && !IsNodeType(Node, "graph.knot"))
		{
			Unreached.push_back(&Node);
		}
	}
	return Unreached;
}

std::vector<const FBlueprintNode*> FindUnreadNodes(const FBlueprintGraph& Graph)
{
	std::vector<const FBlueprintNode*> Unread;
	for (const FBlueprintNode& Node : Graph.Nodes)
	{
		const bool bComputes = std::any_of(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
			{ return !Pin.bInput; });
		const bool bRead = std::any_of(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
			{ return !Pin.bInput && !Pin.Links.empty(); });
		if (bComputes && !bRead && !Node.HasExecPin(true) && !Node.HasExecPin(false) && !IsNodeType(Node, "graph"))
		{
			Unread.push_back(&Node);
		}
	}
	return Unread;
}

}
