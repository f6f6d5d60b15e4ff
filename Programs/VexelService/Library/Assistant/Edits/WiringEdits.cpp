#include "Assistant/Edits/WiringEdits.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/FlowReport.h"
#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/Words.h"

#include <algorithm>
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

/** What may as well be a member of the Blueprint, unless it has none of the name. */
constexpr std::string_view RemoveWordings[] = {
	"remove|delete|erase|drop {from}",
	"get rid of {from}",
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
		const FBlueprintModel& Model = Session.Editor.Blueprint();
		const bool bTwo = Kind == EWiring::Connect || Kind == EWiring::Disconnect;
		const std::vector<FEndpoint> Sources = FindAll(Model, From);
		const std::vector<FEndpoint> Targets = bTwo ? FindAll(Model, To) : std::vector<FEndpoint>();
		if (Sources.empty() || (bTwo && Targets.empty()))
		{
			Session.Say("**" + Model.Name + "** has no node called " + Quoted(Shortened(Sources.empty() ? From : To, 100)) + ". I changed nothing.\n");
			return;
		}
		if (!bTwo)
		{
			EditOne(Session, Sources);
			return;
		}
		// Of several nodes of a name, those are meant that the wire can be between.
		std::vector<FPair> Pairs;
		for (const FEndpoint& Source : Sources)
		{
			for (const FEndpoint& Target : Targets)
			{
				std::vector<FLinkToEdit> Links = Source.Graph != Target.Graph ? std::vector<FLinkToEdit>()
					: Kind == EWiring::Connect                                ? ChoosePins(Model, Source, Target)
																			  : FindLinks(Model, Source, Target);
				if (!Links.empty())
				{
					Pairs.push_back({Source, Target, std::move(Links)});
				}
			}
		}
		if (Pairs.size() == 1)
		{
			Tell(Session, Pairs.front().Source.Graph, Pairs.front().Links);
			return;
		}
		Session.Say((Pairs.empty() ? TellNone(Sources.front(), &Targets.front()) : TellSeveral(Pairs)) + " I changed nothing.\n");
	}

	/** The nodes, and their pin behind a point or "'s" or before "of", that words mean; "Print String after BeginPlay" is the one that follows. */
	static std::vector<FEndpoint> FindAll(const FBlueprintModel& Model, const std::string& Said)
	{
		std::vector<FEndpoint> Found = FindNodes(Model, Said);
		for (const std::string_view Separator : {".", "'s ", " pin "})
		{
			const std::size_t At = Said.rfind(Separator);
			if (Found.empty() && At != std::string::npos)
			{
				Found = FindNodes(Model, Said.substr(0, At), WithoutNoun(Said.substr(At + Separator.size())));
			}
		}
		for (const std::string_view Separator : {" pin of ", " output of ", " input of ", " of ", " pin on "})
		{
			const std::size_t At = Said.find(Separator);
			if (Found.empty() && At != std::string::npos)
			{
				Found = FindNodes(Model, WithoutArticle(Said.substr(At + Separator.size())), WithoutNoun(Said.substr(0, At)));
			}
		}
		for (const std::string_view Separator : {" after ", " behind ", " following ", " on "})
		{
			const std::size_t At = Said.find(Separator);
			if (Found.empty() && At != std::string::npos)
			{
				Found = FindFollowing(Model, Said.substr(0, At), WithoutArticle(Said.substr(At + Separator.size())));
			}
		}
		return Found;
	}

private:
	/** Two nodes, and the wires that are meant between them. */
	struct FPair
	{
		FEndpoint Source;
		FEndpoint Target;
		std::vector<FLinkToEdit> Links;
	};

	void EditOne(FEditSession& Session, const std::vector<FEndpoint>& Nodes) const
	{
		const std::vector<FLinkToEdit> Links = FindLinks(Session.Editor.Blueprint(), Nodes.front(), std::nullopt);
		if (Nodes.size() > 1)
		{
			Session.Say(TellAmbiguous(From, Nodes) + " I changed nothing.\n");
		}
		else if (Kind == EWiring::RemoveNode)
		{
			Remove(Session, Nodes.front());
		}
		else if (Links.empty())
		{
			Session.Say(TellNone(Nodes.front(), nullptr) + " I changed nothing.\n");
		}
		else
		{
			Tell(Session, Nodes.front().Graph, Links);
		}
	}

	std::string TellNone(const FEndpoint& Source, const FEndpoint* Target) const
	{
		const std::string Between = Bold(Source.Title) + (Target ? " and " + Bold(Target->Title) : std::string());
		return Kind == EWiring::Connect ? "I find no pins of " + Between +
				" that fit each other: name them, as in \"connect Delay.Completed to Print String.execute\"."
										: "There is no wire " + std::string(Target ? "between " : "at ") + Between + ".";
	}

	/** Asks about the end of which there are several. */
	std::string TellSeveral(const std::vector<FPair>& Pairs) const
	{
		std::vector<FEndpoint> Sources;
		std::vector<FEndpoint> Targets;
		for (const FPair& Pair : Pairs)
		{
			AddOnce(Pair.Source, Sources);
			AddOnce(Pair.Target, Targets);
		}
		return Sources.size() > 1 ? TellAmbiguous(From, Sources) : TellAmbiguous(To, Targets);
	}

	static void AddOnce(const FEndpoint& Node, std::vector<FEndpoint>& Nodes)
	{
		const bool bKnown = std::any_of(Nodes.begin(), Nodes.end(), [&Node](const FEndpoint& Other)
			{ return Other.Graph == Node.Graph && Other.Node == Node.Node; });
		if (!bKnown)
		{
			Nodes.push_back(Node);
		}
	}

	static std::string TellAmbiguous(const std::string& Said, const std::vector<FEndpoint>& Nodes)
	{
		std::vector<std::string> Ids;
		Ids.reserve(Nodes.size());
		for (const FEndpoint& Node : Nodes)
		{
			Ids.push_back("`" + Node.Node + "` in " + Node.Graph);
		}
		return "There are " + CountOf(Nodes.size(), "node") + " called " + Quoted(Shortened(Said, 100)) + ": say which by its id, " +
			JoinWithAnd(Ids) + ".";
	}

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

	/** The nodes of a name to which a wire of execution leads from those of another. */
	static std::vector<FEndpoint> FindFollowing(const FBlueprintModel& Model, const std::string& Said, const std::string& Before)
	{
		std::vector<FEndpoint> Found;
		const std::vector<FEndpoint> Starts = FindNodes(Model, Before);
		for (const FEndpoint& Node : FindNodes(Model, Said))
		{
			for (const FEndpoint& Start : Starts)
			{
				const std::vector<FLinkToEdit> Links =
					Start.Graph == Node.Graph ? FindLinks(Model, Start, Node) : std::vector<FLinkToEdit>();
				if (!Links.empty() && Links.front().FromNode == Start.Node)
				{
					AddOnce(Node, Found);
				}
			}
		}
		return Found;
	}

	static std::string WithoutArticle(const std::string& Said) { return StartsWith(LowerCase(Said), "the ") ? Said.substr(4) : Said; }

	static std::string WithoutNoun(const std::string& Said)
	{
		for (const std::string_view Noun : {" pin", " output", " input"})
		{
			if (Said.size() > Noun.size() && EqualIgnoringCase(std::string_view(Said).substr(Said.size() - Noun.size()), Noun))
			{
				return Said.substr(0, Said.size() - Noun.size());
			}
		}
		return Said;
	}

	static std::vector<FEndpoint> FindNodes(const FBlueprintModel& Model, const std::string& Said, const std::string& Pin = {})
	{
		std::vector<FEndpoint> Found;
		std::vector<FEndpoint> Begun;
		for (const FBlueprintGraph& Graph : Model.Graphs)
		{
			for (const FBlueprintNode& Node : Graph.Nodes)
			{
				const std::string Title = NodeTitle(Node);
				const FEndpoint Endpoint{Graph.Id, Node.Id, Title, Pin.empty() ? std::string() : PinOf(Node, Pin)};
				if (EqualIgnoringCase(Node.Id, Said))
				{
					return {Endpoint};
				}
				const bool bNamed = SameName(Title, Said) || (!Node.Name.empty() && SameName(Node.Name, Said)) ||
					(StartsWith(Title, "Event ") && SameName(Title.substr(6), Said));
				// "The print" is a Print String, where no node is called just that.
				const bool bBegun = Title.size() > Said.size() && Title[Said.size()] == ' ' && SameName(Title.substr(0, Said.size()), Said);
				if ((bNamed || bBegun) && (Pin.empty() || !Endpoint.Pin.empty()))
				{
					(bNamed ? Found : Begun).push_back(Endpoint);
				}
			}
		}
		return Found.empty() ? Begun : Found;
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

bool RemoveNodeCalled(FEditSession& Session, const std::string& Said)
{
	if (FWiringEdit::FindAll(Session.Editor.Blueprint(), Said).empty())
	{
		return false;
	}
	FWiringEdit(EWiring::RemoveNode, {{"from", {{.Text = Said}}}}).Run(Session);
	return true;
}

std::optional<FEditRequest> ReadRemoveNode(const FEditMessage& Message)
{
	for (const std::string_view Wording : RemoveWordings)
	{
		const std::optional<FCaptures> Captures = MatchWords(Wording, Message.Words);
		if (Captures && !CapturedText(*Captures, "from").empty())
		{
			return FEditRequest{.Blueprint = {}, .Edit = std::make_shared<FWiringEdit>(EWiring::RemoveNode, *Captures), .Question = {}};
		}
	}
	return std::nullopt;
}

}
