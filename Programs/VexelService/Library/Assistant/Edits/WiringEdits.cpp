#include "Assistant/Edits/WiringEdits.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/FlowReport.h"
#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/Words.h"

#include <string_view>
#include <vector>

namespace VexelService
{

namespace
{

enum class EWiring
{
	Connect,
	Disconnect,
	DisconnectAll,
	RemoveNode,
};

struct FWiringWording
{
	std::string_view Pattern;
	EWiring Kind;
};

constexpr FWiringWording WiringWordings[] = {
	{"connect|link|wire|attach|plug [node|pin|up] {from} [up] to|with|into|and [node|pin] {to}", EWiring::Connect},
	{"disconnect|unlink|detach|unplug [node|pin] {from} from|and [node|pin] {to}", EWiring::Disconnect},
	{"break|remove|delete|cut wire|link|connection between|from {from} and|to {to}", EWiring::Disconnect},
	{"disconnect|unlink [node] {from}", EWiring::DisconnectAll},
	{"break|remove|delete all|every wires|links|connections of|from|to {from}", EWiring::DisconnectAll},
	{"remove|delete|erase node|nodes {from}", EWiring::RemoveNode},
	{"remove|delete|erase {from:1} node|nodes", EWiring::RemoveNode},
	{"remove|delete|erase {from} node|nodes", EWiring::RemoveNode},
};

/** A node and maybe one of its pins, as they stand in a graph. */
struct FEndpoint
{
	std::string Graph;
	std::string Node;
	std::string Title;
	/** Empty where the words name none. */
	std::string Pin;
};

class FWiringEdit final : public IEdit
{
public:
	FWiringEdit(EWiring InKind, const FCaptures& Captures)
		: Kind(InKind)
		, From(CapturedText(Captures, "from"))
		, To(CapturedText(Captures, "to"))
	{
	}

	void Run(FEditSession& Session) const override
	{
		std::string Problem;
		const std::optional<FEndpoint> Source = Find(Session.Editor.Blueprint(), From, {}, Problem);
		const bool bTwo = Kind == EWiring::Connect || Kind == EWiring::Disconnect;
		const std::optional<FEndpoint> Target =
			Source && bTwo ? Find(Session.Editor.Blueprint(), To, Source->Graph, Problem) : std::nullopt;
		if (!Source || (bTwo && !Target))
		{
			Session.Say(Problem + " I changed nothing.\n");
			return;
		}
		if (Kind == EWiring::RemoveNode)
		{
			Remove(Session, *Source);
			return;
		}
		const std::vector<FLinkToEdit> Links = Kind == EWiring::Connect ? ChoosePins(Session.Editor.Blueprint(), *Source, *Target)
																		: FindLinks(Session.Editor.Blueprint(), *Source, Target);
		if (Links.empty())
		{
			const std::string Between = Bold(Source->Title) + (Target ? " and " + Bold(Target->Title) : std::string());
			Session.Say((Kind == EWiring::Connect ? "I find no pins of " + Between +
									" that fit each other: name them, as in \"connect Delay.Completed to Print String.execute\"."
												  : "There is no wire " + std::string(Target ? "between " : "at ") + Between + ".") +
				" I changed nothing.\n");
			return;
		}
		Tell(Session, Source->Graph, Links);
	}

private:
	void Tell(FEditSession& Session, const std::string& Graph, const std::vector<FLinkToEdit>& Links) const
	{
		const FEditOutcome Outcome = Session.Editor.EditLinks(Graph, Links);
		if (Session.IsOver())
		{
			return;
		}
		if (!Outcome.IsComplete())
		{
			std::vector<std::string> Errors;
			for (const std::string& Error : Outcome.Errors)
			{
				Errors.push_back(PlainError(Error));
			}
			Session.Say("The editor refused:\n\n" + BulletList(Errors));
			return;
		}
		std::vector<std::string> Done;
		Done.reserve(Links.size());
		for (const FLinkToEdit& Link : Links)
		{
			Done.push_back((Link.bRemove ? "Broke the wire from `" : "Connected `") + Link.FromNode + "`." + Link.FromPin + " to `" +
				Link.ToNode + "`." + Link.ToPin + ".");
		}
		Finish(Session, Done);
	}

	static void Finish(FEditSession& Session, const std::vector<std::string>& Done)
	{
		const FCompileOutcome Compiled = Session.Editor.Compile();
		if (!Session.IsOver())
		{
			const std::string Name = Session.Editor.Blueprint().Name;
			Session.Say("Done in **" + Name + "**:\n\n" + BulletList(Done) + "\n" + DescribeCompile(Compiled, Name));
		}
	}

	static void Remove(FEditSession& Session, const FEndpoint& Node)
	{
		const FEditOutcome Outcome = Session.Editor.RemoveNodes(Node.Graph, {Node.Node});
		if (Session.IsOver())
		{
			return;
		}
		if (!Outcome.IsComplete())
		{
			Session.Say("The editor refused:\n\n" + BulletList({PlainError(Outcome.Errors.front())}));
			return;
		}
		Finish(Session, {"Removed the node **" + Node.Title + "** from **" + Node.Graph + "**."});
	}

	/** The node, and the pin behind a point or "'s" or "of", that words mean; a question in Problem when they mean none or several. */
	static std::optional<FEndpoint> Find(
		const FBlueprintModel& Model, const std::string& Said, const std::string& InGraph, std::string& Problem)
	{
		std::vector<FEndpoint> Found = FindNodes(Model, Said, InGraph, {});
		for (const std::string_view Separator : {".", "'s ", " pin "})
		{
			const std::size_t At = Said.rfind(Separator);
			if (Found.empty() && At != std::string::npos)
			{
				Found = FindNodes(Model, Said.substr(0, At), InGraph, Said.substr(At + Separator.size()));
			}
		}
		const std::size_t Of = Said.find(" of ");
		if (Found.empty() && Of != std::string::npos)
		{
			Found = FindNodes(Model, Said.substr(Of + 4), InGraph, Said.substr(0, Of));
		}
		if (Found.size() == 1)
		{
			return Found.front();
		}
		std::vector<std::string> Ids;
		Ids.reserve(Found.size());
		for (const FEndpoint& Node : Found)
		{
			Ids.push_back("`" + Node.Node + "` in " + Node.Graph);
		}
		Problem = Found.empty() ? "**" + Model.Name + "** has no node called " + Quoted(Shortened(Said, 100)) + "."
								: "There are " + CountOf(Found.size(), "node") + " called " + Quoted(Shortened(Said, 100)) +
				": say which by its id, " + JoinWithAnd(Ids) + ".";
		return std::nullopt;
	}

	static std::vector<FEndpoint> FindNodes(
		const FBlueprintModel& Model, const std::string& Said, const std::string& InGraph, const std::string& Pin)
	{
		std::vector<FEndpoint> Found;
		for (const FBlueprintGraph& Graph : Model.Graphs)
		{
			for (const FBlueprintNode& Node : Graph.Nodes)
			{
				const std::string Title = NodeTitle(Node);
				const bool bId = EqualIgnoringCase(Node.Id, Said);
				const bool bNamed = bId || SameName(Title, Said) || (!Node.Name.empty() && SameName(Node.Name, Said)) ||
					(StartsWith(Title, "Event ") && SameName(Title.substr(6), Said));
				if (!bNamed || (!InGraph.empty() && Graph.Id != InGraph))
				{
					continue;
				}
				const FEndpoint Endpoint{Graph.Id, Node.Id, Title, Pin.empty() ? std::string() : PinOf(Node, Pin)};
				if (bId)
				{
					return {Endpoint};
				}
				if (Pin.empty() || !Endpoint.Pin.empty())
				{
					Found.push_back(Endpoint);
				}
			}
		}
		return Found;
	}

	static std::string PinOf(const FBlueprintNode& Node, const std::string& Said)
	{
		std::vector<std::string> Names;
		for (const FBlueprintPin& Pin : Node.Pins)
		{
			if (SameName(Pin.Id, Said))
			{
				return Pin.Id;
			}
			Names.push_back(PinTitle(Pin));
		}
		const std::optional<FNameMatch> Match = FindName(Said, Names);
		return Match ? Node.Pins[Match->Index].Id : std::string();
	}

	static std::vector<const FBlueprintPin*> Candidates(const FBlueprintNode& Node, const std::string& Named, bool bInput)
	{
		std::vector<const FBlueprintPin*> Pins;
		for (const FBlueprintPin& Pin : Node.Pins)
		{
			const bool bWanted = Named.empty() ? Pin.Type != "delegate" : EqualIgnoringCase(Pin.Id, Named);
			if (Pin.bInput == bInput && bWanted)
			{
				Pins.push_back(&Pin);
			}
		}
		return Pins;
	}

	/** The pins that are named, or the first two of one type: those of execution before those of values. */
	static std::vector<FLinkToEdit> ChoosePins(const FBlueprintModel& Model, const FEndpoint& Source, const FEndpoint& Target)
	{
		const FBlueprintGraph* const Graph = Model.FindGraph(Source.Graph);
		const FBlueprintNode& A = *Graph->FindNode(Source.Node);
		const FBlueprintNode& B = *Graph->FindNode(Target.Node);
		const bool bBothNamed = !Source.Pin.empty() && !Target.Pin.empty();
		for (const bool bExec : {true, false})
		{
			for (const FBlueprintPin* const Output : Candidates(A, Source.Pin, false))
			{
				for (const FBlueprintPin* const Input : Candidates(B, Target.Pin, true))
				{
					const bool bFits = bBothNamed || Output->Type == Input->Type || (!bExec && Input->Type == "wildcard");
					if (bFits && (bBothNamed || Output->IsExec() == bExec))
					{
						return {{A.Id, Output->Id, B.Id, Input->Id}};
					}
				}
			}
		}
		return {};
	}

	static std::vector<FLinkToEdit> FindLinks(const FBlueprintModel& Model, const FEndpoint& Source, const std::optional<FEndpoint>& Target)
	{
		std::vector<FLinkToEdit> Links;
		const FBlueprintNode& Node = *Model.FindGraph(Source.Graph)->FindNode(Source.Node);
		for (const FBlueprintPin& Pin : Node.Pins)
		{
			for (const FPinLink& Link : Pin.Links)
			{
				const bool bWanted = (Source.Pin.empty() || EqualIgnoringCase(Pin.Id, Source.Pin)) &&
					(!Target ||
						(EqualIgnoringCase(Link.Node, Target->Node) && (Target->Pin.empty() || EqualIgnoringCase(Link.Pin, Target->Pin))));
				if (bWanted)
				{
					Links.push_back(Pin.bInput ? FLinkToEdit{Link.Node, Link.Pin, Node.Id, Pin.Id, true}
											   : FLinkToEdit{Node.Id, Pin.Id, Link.Node, Link.Pin, true});
				}
			}
		}
		return Links;
	}

	const EWiring Kind;
	const std::string From;
	const std::string To;
};

}

std::optional<FEditRequest> ReadWiringRequest(const FEditMessage& Message)
{
	for (const FWiringWording& Wording : WiringWordings)
	{
		if (const std::optional<FCaptures> Captures = MatchWords(Wording.Pattern, Message.Words))
		{
			return FEditRequest{.Blueprint = {}, .Edit = std::make_shared<FWiringEdit>(Wording.Kind, *Captures), .Question = {}};
		}
	}
	return std::nullopt;
}

}
