#include "Assistant/BlueprintDescriber.h"

#include "Assistant/BlueprintEntries.h"
#include "Assistant/ExpressionWriter.h"
#include "Assistant/GraphWalker.h"
#include "Assistant/Markdown.h"
#include "Assistant/StepMarkdown.h"
#include "Assistant/VariableUse.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <memory>
#include <vector>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxAnswerBytes = 12'000;
constexpr std::size_t MaxListed = 60;
constexpr std::size_t MaxLooseNodes = 8;

/** What kinds of Blueprint are called, by a word of the export's "bp_type". */
struct FKindPhrase
{
	std::string_view Word;
	const char* Phrase;
};

constexpr FKindPhrase KindPhrases[] = {
	{"interface", "a Blueprint interface"},
	{"function", "a Blueprint function library"},
	{"macro", "a Blueprint macro library"},
	{"level", "a level Blueprint"},
};

// Names of a list, with what is too much for a sentence counted.
std::string NameList(std::vector<std::string> Names, std::size_t MaxNames = 12)
{
	if (Names.size() > MaxNames)
	{
		const std::size_t Rest = Names.size() - MaxNames;
		Names.resize(MaxNames);
		Names.push_back(CountOf(Rest, "other"));
	}
	return JoinWithAnd(Names);
}

std::vector<const FBlueprintVariable*> VariablesOfScope(const FBlueprintGraph& Graph, std::string_view Scope)
{
	std::vector<const FBlueprintVariable*> Found;
	for (const FBlueprintVariable& Variable : Graph.Variables)
	{
		if (Variable.Scope == Scope)
		{
			Found.push_back(&Variable);
		}
	}
	return Found;
}

std::string VariableInWords(const FBlueprintVariable& Variable)
{
	const std::string Name = Variable.Id.empty() ? "a variable without a name" : Variable.Id;
	return Name + " (" + TypeInWords(Variable.Type) + ")";
}

// The parameters of a function: as its variables say, or else as its entry and return nodes show.
std::vector<std::string> ParameterList(const FBlueprintGraph& Graph, bool bInputs)
{
	std::vector<std::string> Parameters;
	for (const FBlueprintVariable* const Variable : VariablesOfScope(Graph, bInputs ? "in" : "out"))
	{
		Parameters.push_back(VariableInWords(*Variable));
	}
	if (!Parameters.empty())
	{
		return Parameters;
	}
	for (const FBlueprintNode& Node : Graph.Nodes)
	{
		if (!IsNodeType(Node, bInputs ? "graph.entry" : "graph.return"))
		{
			continue;
		}
		for (const FBlueprintPin& Pin : Node.Pins)
		{
			if (!Pin.IsExec() && Pin.bInput != bInputs)
			{
				Parameters.push_back(Pin.Id + " (" + TypeInWords(Pin.Type) + ")");
			}
		}
		break;
	}
	return Parameters;
}

std::string Signature(const FBlueprintGraph& Graph)
{
	const std::vector<std::string> Inputs = ParameterList(Graph, true);
	const std::vector<std::string> Outputs = ParameterList(Graph, false);
	std::string Text;
	if (!Inputs.empty())
	{
		Text += " takes " + NameList(Inputs);
	}
	if (!Outputs.empty())
	{
		Text += (Text.empty() ? " gives back " : " and gives back ") + NameList(Outputs);
	}
	return Text;
}

bool IsConstructionScript(const FBlueprintGraph& Graph)
{
	return EqualIgnoringCase(Graph.Id, ConstructionScript);
}

// A construction script that every Blueprint has and nobody filled is not worth a word.
bool IsEmptyConstructionScript(const FBlueprintGraph& Graph)
{
	return IsConstructionScript(Graph) && !FindGraphEntry(Graph).IsConnected();
}

constexpr const char* UseVerbs[] = {"read", "set", "called"};

// "read in 2 steps and set in 1 step".
std::string Counted(const std::vector<FVariableUse>& Uses)
{
	std::array<std::size_t, std::size(UseVerbs)> Counts = {};
	for (const FVariableUse& Use : Uses)
	{
		++Counts[static_cast<std::size_t>(Use.Kind)];
	}
	std::vector<std::string> Parts;
	for (std::size_t Kind = 0; Kind < Counts.size(); ++Kind)
	{
		if (Counts[Kind] > 0)
		{
			Parts.push_back(std::string(UseVerbs[Kind]) + " in " + CountOf(Counts[Kind], "step"));
		}
	}
	return JoinWithAnd(Parts);
}

// "number, 100 by default (category Health)".
std::string TypeAndDefault(const FBlueprintVariable& Variable)
{
	const std::string Default = LiteralInWords(Variable.Value, Variable.Type);
	const bool bOwnCategory = !Variable.Category.empty() && Variable.Category != "Default";
	return TypeInWords(Variable.Type) + (Default.empty() || Default == "()" ? "" : ", " + Default + " by default") +
		(bOwnCategory ? " (category " + Variable.Category + ")" : "");
}

/** Sections of one answer until it is long enough; the others are counted. */
class FSections
{
public:
	void Add(const std::string& Section)
	{
		if (Text.size() > MaxAnswerBytes)
		{
			++LeftOut;
			return;
		}
		Text += (Text.empty() ? "" : "\n") + Section;
	}

	std::string Finish() const
	{
		if (LeftOut == 0)
		{
			return Text;
		}
		return Text + "\nThis answer leaves out " + CountOf(LeftOut, "section") +
			" for its length; ask for an event or a function by name to read more.\n";
	}

private:
	std::string Text;
	std::size_t LeftOut = 0;
};

/** One walker a graph, so that steps shared by several events are told once. */
class FWalkers
{
public:
	explicit FWalkers(const FBlueprintModel& InModel)
		: Model(InModel)
	{
	}

	std::string EventSection(const FBlueprintEntry& Event)
	{
		if (!Event.IsConnected())
		{
			return Bold(UpperFirst(Event.Title)) + ": nothing happens, since nothing is connected to it.\n";
		}
		std::unique_ptr<FGraphWalker>& Walker = ByGraph[Event.Graph];
		if (!Walker)
		{
			Walker = std::make_unique<FGraphWalker>(Model, *Event.Graph);
		}
		return Bold(UpperFirst(Event.Title)) + ":\n\n" + StepsToMarkdown(Walker->Follow(*Event.Output));
	}

private:
	const FBlueprintModel& Model;
	std::map<const FBlueprintGraph*, std::unique_ptr<FGraphWalker>> ByGraph;
};

// The chains of nodes that nothing starts, with what they would do.
std::string UnreachedNote(const FBlueprintModel& Model, const FBlueprintGraph& Graph)
{
	const std::vector<const FBlueprintNode*> Unreached = FindUnreachedNodes(Graph);
	if (Unreached.empty())
	{
		return {};
	}
	const bool bOne = Unreached.size() == 1;
	std::string Text = "In " + Graph.Title() + ", " + CountOf(Unreached.size(), "node");
	Text += bOne ? " is connected to no execution wire and never runs. It would do this:\n\n"
				 : " are connected to no execution wire and never run. They would do this:\n\n";
	FGraphWalker Walker(Model, Graph);
	std::vector<FStep> Steps;
	for (std::size_t Index = 0; Index < std::min(Unreached.size(), MaxLooseNodes); ++Index)
	{
		std::vector<FStep> Chain = Walker.FollowNode(*Unreached[Index]);
		if (bOne)
		{
			Steps = std::move(Chain);
			break;
		}
		// The number keeps chains that say the same from being told as one that repeats.
		const std::string Label = "chain " + std::to_string(Index + 1) + ", from \"" + NodeTitle(*Unreached[Index]) + "\"";
		Steps.push_back({.Text = {}, .Branches = {{Label, std::move(Chain)}}});
	}
	if (Unreached.size() > MaxLooseNodes)
	{
		Steps.push_back({"… and what " + CountOf(Unreached.size() - MaxLooseNodes, "other") + " would do"});
	}
	return Text + StepsToMarkdown(Steps);
}

std::string UnreadNote(const FBlueprintModel& Model, const FBlueprintGraph& Graph)
{
	FExpressionWriter Expressions(Model, Graph);
	std::vector<std::string> Names;
	for (const FBlueprintNode* const Node : FindUnreadNodes(Graph))
	{
		const std::string Result = Names.size() < MaxLooseNodes ? Expressions.Result(*Node) : std::string();
		Names.push_back("\"" + NodeTitle(*Node) + "\"" + (Result.empty() ? "" : " (" + Result + ")"));
	}
	if (Names.empty())
	{
		return {};
	}
	const char* const Verbs = Names.size() == 1 ? " gives a value that nothing uses: " : " give values that nothing uses: ";
	return "In " + Graph.Title() + ", " + CountOf(Names.size(), "node") + Verbs + NameList(Names, MaxLooseNodes) + ".\n";
}

// What stands in a graph without taking part in anything.
std::string LooseNodes(const FBlueprintModel& Model, const FBlueprintGraph& Graph)
{
	const std::string Unreached = UnreachedNote(Model, Graph);
	const std::string Unread = UnreadNote(Model, Graph);
	return Unreached + (Unreached.empty() || Unread.empty() ? "" : "\n") + Unread;
}

// Where anything starts that somebody may ask for: events, functions and macros.
std::vector<FBlueprintEntry> FindEntries(const FBlueprintModel& Model)
{
	std::vector<FBlueprintEntry> Entries = FindEvents(Model);
	const std::vector<FBlueprintEntry> OwnFunctions = FindFunctions(Model);
	Entries.insert(Entries.end(), OwnFunctions.begin(), OwnFunctions.end());
	return Entries;
}

std::string NotConnectedNote(const std::vector<FBlueprintEntry>& Events)
{
	std::vector<std::string> Names;
	for (const FBlueprintEntry& Event : Events)
	{
		// A key that does something when it is pressed needs no word about its release.
		const bool bNodeDoesSomething = std::any_of(Events.begin(), Events.end(), [&Event](const FBlueprintEntry& Other)
			{ return Other.Node == Event.Node && Other.IsConnected(); });
		if (!bNodeDoesSomething)
		{
			Names.push_back("\"" + Event.Title + "\"");
		}
	}
	return Names.empty() ? std::string() : "Nothing is connected to " + NameList(Names, 6) + ".\n";
}

}

FBlueprintDescriber::FBlueprintDescriber(const FBlueprintModel& InModel)
	: Model(InModel)
{
}

std::string FBlueprintDescriber::Overview() const
{
	FSections Sections;
	FWalkers Walkers(Model);
	Sections.Add(Summary());
	const std::vector<FBlueprintEntry> AllEvents = FindEvents(Model);
	for (const FBlueprintEntry& Event : AllEvents)
	{
		if (Event.IsConnected())
		{
			Sections.Add(Walkers.EventSection(Event));
		}
	}
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		const bool bOwnGraph = Graph.Kind == EGraphKind::Function || Graph.Kind == EGraphKind::Macro;
		if (bOwnGraph && !IsEmptyConstructionScript(Graph))
		{
			Sections.Add(GraphSection(Graph));
		}
	}
	const std::string NotConnected = NotConnectedNote(AllEvents);
	if (!NotConnected.empty())
	{
		Sections.Add(NotConnected);
	}
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		const std::string Loose = LooseNodes(Model, Graph);
		if (!Loose.empty())
		{
			Sections.Add(Loose);
		}
	}
	if (!Model.Variables.empty())
	{
		Sections.Add(Variables());
	}
	if (!Model.bComplete)
	{
		Sections.Add("The Blueprint is so large that I read only a part of it.\n");
	}
	return Sections.Finish();
}

bool FBlueprintDescriber::HasEvent(std::string_view Description) const
{
	return !MatchEntries(FindEntries(Model), Description).empty();
}

std::string FBlueprintDescriber::WhenEvent(std::string_view Description) const
{
	const std::vector<FBlueprintEntry> Matches = MatchEntries(FindEntries(Model), Description);
	if (Matches.empty())
	{
		return "I find no event of " + Bold(Model.Name) + " for \"" + Shortened(std::string(Description), 100) + "\".\n\n" + Events();
	}
	FSections Sections;
	FWalkers Walkers(Model);
	Sections.Add("In " + Bold(Model.Name) + ":\n");
	const bool bAnyConnected = std::any_of(Matches.begin(), Matches.end(), [](const FBlueprintEntry& Match)
		{ return Match.IsConnected(); });
	for (const FBlueprintEntry& Match : Matches)
	{
		if (bAnyConnected && !Match.IsConnected())
		{
			continue;
		}
		const bool bFunction = Match.Graph->Kind == EGraphKind::Function || Match.Graph->Kind == EGraphKind::Macro;
		Sections.Add(bFunction ? GraphSection(*Match.Graph) : Walkers.EventSection(Match));
	}
	return Sections.Finish();
}

std::string FBlueprintDescriber::Entry(std::string_view GraphId, std::string_view NodeId) const
{
	FSections Sections;
	FWalkers Walkers(Model);
	for (const FBlueprintEntry& Entry : FindEntries(Model))
	{
		if (!Entry.Node || !Entry.IsConnected() || !EqualIgnoringCase(Entry.Graph->Id, GraphId) || !EqualIgnoringCase(Entry.Node->Id, NodeId))
		{
			continue;
		}
		Sections.Add(Entry.Graph->Kind == EGraphKind::Event ? Walkers.EventSection(Entry) : GraphSection(*Entry.Graph));
	}
	return Sections.Finish();
}

std::string FBlueprintDescriber::Variables() const
{
	if (Model.Variables.empty())
	{
		return Bold(Model.Name) + " has no variables of its own.\n";
	}
	std::string Text = Bold(Model.Name) + " has " + CountOf(Model.Variables.size(), "variable") + ":\n\n";
	for (std::size_t Index = 0; Index < std::min(Model.Variables.size(), MaxListed); ++Index)
	{
		const FBlueprintVariable& Variable = Model.Variables[Index];
		Text += "- " + Bold(Variable.Id.empty() ? "(without a name)" : Variable.Id) + ": " + TypeAndDefault(Variable) + "\n";
	}
	if (Model.Variables.size() > MaxListed)
	{
		Text += "- and " + CountOf(Model.Variables.size() - MaxListed, "other") + "\n";
	}
	return Text;
}

std::string FBlueprintDescriber::Functions() const
{
	return ListOfGraphs(EGraphKind::Function, "function");
}

std::string FBlueprintDescriber::Macros() const
{
	return ListOfGraphs(EGraphKind::Macro, "macro");
}

std::string FBlueprintDescriber::Events() const
{
	const std::vector<FBlueprintEntry> All = FindEvents(Model);
	if (All.empty())
	{
		return Bold(Model.Name) + " has no events.\n";
	}
	std::string Text = Bold(Model.Name) + " has " + CountOf(All.size(), "event") + ":\n\n";
	for (std::size_t Index = 0; Index < std::min(All.size(), MaxListed); ++Index)
	{
		Text += "- " + UpperFirst(All[Index].Title) + (All[Index].IsConnected() ? "\n" : " (nothing is connected to it)\n");
	}
	if (All.size() > MaxListed)
	{
		Text += "- and " + CountOf(All.size() - MaxListed, "other") + "\n";
	}
	return Text;
}

std::string FBlueprintDescriber::Graphs() const
{
	if (Model.Graphs.empty())
	{
		return Bold(Model.Name) + " has no graphs.\n";
	}
	static constexpr const char* KindWords[] = {"event graph", "function", "macro", "graph"};
	std::string Text = Bold(Model.Name) + " has " + CountOf(Model.Graphs.size(), "graph") + ":\n\n";
	for (std::size_t Index = 0; Index < std::min(Model.Graphs.size(), MaxListed); ++Index)
	{
		const FBlueprintGraph& Graph = Model.Graphs[Index];
		Text += "- " + Bold(Graph.Title()) + ": " + KindWords[static_cast<int>(Graph.Kind)] + " with " +
			CountOf(Graph.Nodes.size(), "node") + "\n";
	}
	return Text;
}

std::string FBlueprintDescriber::Components() const
{
	std::vector<const FBlueprintProperty*> Found;
	for (const FBlueprintProperty& Property : Model.Defaults.Parts)
	{
		if (StartsWith(Property.Type, "object.") && Property.Type.find("Component") != std::string::npos)
		{
			Found.push_back(&Property);
		}
	}
	std::string Text = Bold(Model.Name) + " has " + CountOf(Found.size(), "component") + (Found.empty() ? ".\n" : ":\n\n");
	for (std::size_t Index = 0; Index < std::min(Found.size(), MaxListed); ++Index)
	{
		std::vector<std::string> Changes;
		for (const FBlueprintProperty& Part : Found[Index]->Parts)
		{
			const std::string Value = LiteralInWords(Part.Value, Part.Type);
			Changes.push_back(Part.Id + (Value.empty() ? "" : " = " + Value));
		}
		Text += "- " + Bold(Found[Index]->Id) + ": " + std::string(LastSegment(Found[Index]->Type, '.')) +
			(Changes.empty() ? "" : ", with " + NameList(Changes)) + "\n";
	}
	if (Found.size() > MaxListed)
	{
		Text += "- and " + CountOf(Found.size() - MaxListed, "other") + "\n";
	}
	return Text;
}

std::string FBlueprintDescriber::VariableUse(std::string_view Variable) const
{
	const std::string Name(Variable);
	const auto Member = std::find_if(Model.Variables.begin(), Model.Variables.end(), [&](const FBlueprintVariable& Candidate)
		{ return EqualIgnoringCase(Candidate.Id, Variable); });
	const std::vector<FVariableUse> Uses = FindVariableUses(Model, Variable);
	if (Uses.empty() && Member != Model.Variables.end())
	{
		return Bold(Member->Id) + " is " + WithArticle(TypeAndDefault(*Member)) + ", but no step of " + Bold(Model.Name) + " reads or sets it.\n";
	}
	if (Uses.empty() && FindGraph(Variable))
	{
		const FBlueprintGraph& Graph = *FindGraph(Variable);
		const char* const Noun = Graph.Kind == EGraphKind::Macro ? "macro" : "function";
		return Bold(Graph.Title()) + " is a " + Noun + " of " + Bold(Model.Name) + ", but no step of it calls it.\n";
	}
	if (Uses.empty())
	{
		return Bold(Model.Name) + " has no variable \"" + Shortened(Name, 100) + "\", and no step reads or sets one of that name.\n\n" +
			Variables();
	}
	std::string Text = Bold(Member == Model.Variables.end() ? Name : Member->Id);
	Text += " is " + Counted(Uses) + " of " + Bold(Model.Name) + ":\n\n";
	for (std::size_t Index = 0; Index < std::min(Uses.size(), MaxListed); ++Index)
	{
		const FVariableUse& Use = Uses[Index];
		Text += "- In " + Use.Graph->Title() + ", " + UseVerbs[static_cast<std::size_t>(Use.Kind)] + " by the step \"" + Use.Step + "\"\n";
	}
	if (Uses.size() > MaxListed)
	{
		Text += "- and in " + CountOf(Uses.size() - MaxListed, "other step") + "\n";
	}
	if (Member != Model.Variables.end())
	{
		Text += "\nIt is " + WithArticle(TypeAndDefault(*Member)) + ".\n";
	}
	return Text;
}

std::string FBlueprintDescriber::Function(std::string_view Name) const
{
	if (const FBlueprintGraph* const Graph = FindGraph(Name))
	{
		const std::string Loose = LooseNodes(Model, *Graph);
		return "In " + Bold(Model.Name) + ":\n\n" + GraphSection(*Graph) + (Loose.empty() ? "" : "\n" + Loose);
	}
	for (const FBlueprintEntry& Event : FindEvents(Model))
	{
		const std::string EventName = Event.Node->Name.empty() ? NodeTitle(*Event.Node) : Event.Node->Name;
		const bool bCustom = IsNodeType(*Event.Node, "event.custom") && EqualIgnoringCase(EventName, Name);
		if (bCustom || EqualIgnoringCase(LastSegment(Event.Node->Type, '.'), Name))
		{
			FWalkers Walkers(Model);
			return "In " + Bold(Model.Name) + ":\n\n" + Walkers.EventSection(Event);
		}
	}
	const bool bVariable = std::any_of(Model.Variables.begin(), Model.Variables.end(), [Name](const FBlueprintVariable& Variable)
		{ return EqualIgnoringCase(Variable.Id, Name); });
	if (bVariable)
	{
		return VariableUse(Name);
	}
	if (!MatchEntries(FindFunctions(Model), Name).empty())
	{
		return WhenEvent(Name);
	}
	return Bold(Model.Name) + " has no function, macro or event called \"" + Shortened(std::string(Name), 100) + "\".\n\n" + Functions();
}

std::string FBlueprintDescriber::Summary() const
{
	const std::string Kind = LowerCase(Model.Kind);
	const auto Row = std::find_if(std::begin(KindPhrases), std::end(KindPhrases), [&Kind](const FKindPhrase& Candidate)
		{ return Kind.find(Candidate.Word) != std::string::npos; });
	const std::string What = Row == std::end(KindPhrases) ? "a Blueprint" : Row->Phrase;
	std::string Text = Bold(Model.Name.empty() ? "The Blueprint" : Model.Name) + " is " + What;
	if (!Model.ParentChain.empty())
	{
		Text += " with the parent class " + Model.ParentChain.front();
	}
	std::size_t FunctionCount = 0;
	std::size_t MacroCount = 0;
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		FunctionCount += Graph.Kind == EGraphKind::Function && !IsEmptyConstructionScript(Graph);
		MacroCount += Graph.Kind == EGraphKind::Macro;
	}
	const std::vector<FBlueprintEntry> All = FindEvents(Model);
	const std::size_t EventCount = static_cast<std::size_t>(std::count_if(All.begin(), All.end(), [](const FBlueprintEntry& Event)
		{ return Event.IsConnected(); }));
	std::vector<std::string> Parts = {
		CountOf(Model.Variables.size(), "variable"),
		CountOf(EventCount, "event") + (EventCount == 1 ? " that does something" : " that do something"),
		CountOf(FunctionCount, "function"),
	};
	if (MacroCount > 0)
	{
		Parts.push_back(CountOf(MacroCount, "macro"));
	}
	return Text + ". It has " + JoinWithAnd(Parts) + ".\n";
}

std::string FBlueprintDescriber::GraphSection(const FBlueprintGraph& Graph) const
{
	const FEventPhrase* const Phrase = IsConstructionScript(Graph) ? FindEventPhrase(Graph.Id) : nullptr;
	const char* const Noun = Graph.Kind == EGraphKind::Macro ? "Macro " : "Function ";
	std::string Text = Bold(Phrase ? UpperFirst(std::string(Phrase->When)) : Noun + Graph.Title());
	Text += Signature(Graph);
	const FBlueprintEntry Entry = FindGraphEntry(Graph);
	std::vector<std::string> Locals;
	for (const FBlueprintVariable* const Variable : VariablesOfScope(Graph, "local"))
	{
		Locals.push_back(VariableInWords(*Variable));
	}
	const std::string LocalText = Locals.empty() ? "" : "Local variables: " + NameList(Locals) + ".\n";
	FGraphWalker Walker(Model, Graph);
	if (Entry.IsConnected())
	{
		return Text + ":\n\n" + StepsToMarkdown(Walker.Follow(*Entry.Output)) + (LocalText.empty() ? "" : "\n" + LocalText);
	}
	// A function without execution wires may still compute what it returns.
	const auto Return = std::find_if(Graph.Nodes.begin(), Graph.Nodes.end(), [](const FBlueprintNode& Node)
		{ return IsNodeType(Node, "graph.return") && !Node.HasExecPin(true); });
	if (Return != Graph.Nodes.end())
	{
		return Text + ":\n\n- " + UpperFirst(Walker.Tell(*Return)) + "\n";
	}
	return Text +
		(Entry.Node ? ": it does nothing, since nothing is connected to its start.\n"
					: ": it has no entry from which I could follow it.\n");
}

std::string FBlueprintDescriber::ListOfGraphs(EGraphKind Kind, const char* Noun) const
{
	std::vector<const FBlueprintGraph*> Found;
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		if (Graph.Kind == Kind && !IsEmptyConstructionScript(Graph))
		{
			Found.push_back(&Graph);
		}
	}
	std::string Text = Bold(Model.Name) + " has " + CountOf(Found.size(), Noun) + (Found.empty() ? ".\n" : ":\n\n");
	for (std::size_t Index = 0; Index < std::min(Found.size(), MaxListed); ++Index)
	{
		Text += "- " + Bold(Found[Index]->Title()) + Signature(*Found[Index]) + "\n";
	}
	if (Found.size() > MaxListed)
	{
		Text += "- and " + CountOf(Found.size() - MaxListed, "other") + "\n";
	}
	return Text;
}

const FBlueprintGraph* FBlueprintDescriber::FindGraph(std::string_view Name) const
{
	const auto Found = std::find_if(Model.Graphs.begin(), Model.Graphs.end(), [&](const FBlueprintGraph& Graph)
		{ return EqualIgnoringCase(Graph.Id, Name) || EqualIgnoringCase(Graph.Name, Name) || EqualIgnoringCase(SpacedName(Graph.Id), Name); });
	return Found == Model.Graphs.end() || Found->Kind == EGraphKind::Event ? nullptr : &*Found;
}

}
