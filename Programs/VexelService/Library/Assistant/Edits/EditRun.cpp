#include "Assistant/Edits/EditRun.h"

#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <numeric>

namespace VexelService
{

namespace
{

// A node type without what it belongs to: "call.KismetSystemLibrary.Delay" is "Delay" of "call".
std::string TypeStem(std::string_view Type)
{
	const std::size_t Dot = Type.find('.');
	return std::string(Type.substr(0, Dot)) + " " + std::string(LastSegment(Type, '.'));
}

std::string TitleOf(const std::string& NodeId)
{
	FBlueprintNode Node;
	Node.Id = NodeId;
	return NodeTitle(Node);
}

// The pin of a direction that is called so, or nearly so.
const FBlueprintPin* FindLikePin(const FBlueprintNode& Node, const std::string& Wanted, bool bInput)
{
	if (const FBlueprintPin* const Exact = bInput ? Node.FindInput(Wanted) : Node.FindOutput(Wanted))
	{
		return Exact;
	}
	std::vector<std::string> Names;
	std::vector<const FBlueprintPin*> Pins;
	for (const FBlueprintPin& Pin : Node.Pins)
	{
		if (Pin.bInput == bInput)
		{
			Pins.push_back(&Pin);
			Names.push_back(Pin.Name.empty() ? Pin.Id : Pin.Name);
		}
	}
	if (const std::optional<FNameMatch> Match = FindName(Wanted, Names))
	{
		return Pins[Match->Index];
	}
	// The one way in or out is what a wire of execution means, whatever the node calls it.
	const bool bExec = SameName(Wanted, "execute") || SameName(Wanted, "then");
	const auto IsExec = [](const FBlueprintPin* Pin)
	{ return Pin->IsExec(); };
	const auto Only = std::find_if(Pins.begin(), Pins.end(), IsExec);
	return bExec && std::count_if(Pins.begin(), Pins.end(), IsExec) == 1 ? *Only : nullptr;
}

// The links that are made in one call, which lays out their nodes together: those of each chain of nodes. What binds an event to the
// node that calls it some time goes last, so that each chain has its own place by then.
std::vector<std::vector<FPlanLink>> SplitLinks(const FEditPlan& Plan)
{
	std::vector<FPlanIndex> Chain(Plan.Nodes.size());
	std::iota(Chain.begin(), Chain.end(), FPlanIndex(0));
	const auto IsBinding = [](const FPlanLink& Link)
	{ return Link.FromPin == "OutputDelegate"; };
	for (const FPlanLink& Link : Plan.Links)
	{
		const FPlanIndex From = Chain[Link.From];
		if (!IsBinding(Link))
		{
			std::replace(Chain.begin(), Chain.end(), From, FPlanIndex(Chain[Link.To]));
		}
	}
	std::vector<std::vector<FPlanLink>> Batches;
	std::map<std::pair<bool, FPlanIndex>, std::size_t> Places;
	for (const bool bBindings : {false, true})
	{
		for (const FPlanLink& Link : Plan.Links)
		{
			if (IsBinding(Link) != bBindings)
			{
				continue;
			}
			const auto [Place, bNew] = Places.try_emplace({bBindings, Chain[Link.From]}, Batches.size());
			if (bNew)
			{
				Batches.emplace_back();
			}
			Batches[Place->second].push_back(Link);
		}
	}
	return Batches;
}

}

FEditRun::FEditRun(FProjectEditor& InEditor)
	: Editor(InEditor)
{
	for (const FBlueprintGraph& Graph : Editor.Blueprint().Graphs)
	{
		std::set<std::string>& Ids = NodesBefore[Graph.Id];
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			Ids.insert(Node.Id);
		}
	}
	for (const FBlueprintVariable& Variable : Editor.Blueprint().Variables)
	{
		VariablesBefore.insert(LowerCase(Variable.Id));
	}
}

FRunOutcome FEditRun::Execute(const FEditPlan& Plan)
{
	FRunOutcome Outcome;
	Nodes.assign(Plan.Nodes.size(), {});
	Outcome.bDone = AddFunctions(Plan, Outcome) && AddVariables(Plan, Outcome) && Spawn(Plan, false, Outcome) &&
		NameEvents(Plan, Outcome) && Spawn(Plan, true, Outcome) && Link(Plan, Outcome);
	if (Outcome.bDone)
	{
		RemoveUnused(Plan);
		Outcome.bDone = Compile(Outcome);
	}
	if (Outcome.bDone)
	{
		SetProperties(Plan, Outcome);
	}
	if (!Outcome.bDone && !Editor.GetReader().IsOver())
	{
		Outcome.bTakenBack = TakeBack(Plan);
	}
	return Outcome;
}

bool FEditRun::Fail(FRunOutcome& Outcome, const std::vector<std::string>& Errors)
{
	Outcome.Failures.insert(Outcome.Failures.end(), Errors.begin(), Errors.end());
	return false;
}

bool FEditRun::AddFunctions(const FEditPlan& Plan, FRunOutcome& Outcome)
{
	for (const std::string& Name : Plan.NewFunctions)
	{
		const FEditOutcome Added = Editor.AddFunction(Name);
		if (!Added.IsComplete())
		{
			return Fail(Outcome, Added.Errors);
		}
	}
	return true;
}

bool FEditRun::AddVariables(const FEditPlan& Plan, FRunOutcome& Outcome)
{
	for (const FPlanVariable& Planned : Plan.Variables)
	{
		FEditOutcome Edited = Editor.AddVariable(Planned.Variable);
		if (Edited.IsComplete() && !Planned.Default.empty())
		{
			Edited = Editor.SetVariableDefault(Planned.Variable.Name, Planned.Default, Planned.Variable.Scope);
		}
		if (!Edited.IsComplete())
		{
			return Fail(Outcome, Edited.Errors);
		}
	}
	return true;
}

bool FEditRun::Spawn(const FEditPlan& Plan, bool bAfterOthers, FRunOutcome& Outcome)
{
	std::map<std::string, std::vector<FPlanIndex>> ByGraph;
	for (FPlanIndex Index = 0; Index < Plan.Nodes.size(); ++Index)
	{
		const FPlanNode& Node = Plan.Nodes[Index];
		if (!Node.Existing.empty() || Node.Type == "graph.entry")
		{
			Nodes[Index] = Node.Existing.empty() ? FindEntry(Node.Graph) : Node.Existing;
		}
		else if (Node.bAfterOthers == bAfterOthers)
		{
			ByGraph[Node.Graph].push_back(Index);
		}
	}
	return std::all_of(
		ByGraph.begin(), ByGraph.end(), [&](const auto& Group)
		{ return SpawnIn(Group.first, Group.second, Plan, Outcome); });
}

// A function has its entry from the moment at which it is made.
std::string FEditRun::FindEntry(const std::string& GraphId)
{
	const FBlueprintGraph* const Graph = Editor.FindGraph(GraphId);
	const auto IsEntry = [](const FBlueprintNode& Node)
	{ return Node.Type == "graph.entry"; };
	const auto Entry =
		Graph ? std::find_if(Graph->Nodes.begin(), Graph->Nodes.end(), IsEntry) : std::vector<FBlueprintNode>::const_iterator();
	return Graph && Entry != Graph->Nodes.end() ? Entry->Id : std::string();
}

bool FEditRun::SpawnIn(const std::string& Graph, const std::vector<FPlanIndex>& Indices, const FEditPlan& Plan, FRunOutcome& Outcome)
{
	std::vector<FNodeToSpawn> Wanted;
	Wanted.reserve(Indices.size());
	for (const FPlanIndex Index : Indices)
	{
		Wanted.push_back({Plan.Nodes[Index].Type, Plan.Nodes[Index].PinValues});
	}
	const FSpawnOutcome Spawned = Editor.SpawnNodes(Graph, Wanted);
	if (!Spawned.bDone)
	{
		return Fail(Outcome, Spawned.Errors);
	}
	std::size_t ErrorAt = 0;
	for (std::size_t At = 0; At < Indices.size(); ++At)
	{
		Nodes[Indices[At]] = Spawned.Nodes[At];
		const std::string Error = Spawned.Nodes[At].empty() && ErrorAt < Spawned.Errors.size() ? Spawned.Errors[ErrorAt++] : std::string();
		if (Spawned.Nodes[At].empty() && !Repair(Graph, Indices[At], Error, Plan, Outcome))
		{
			return false;
		}
	}
	return true;
}

bool FEditRun::Repair(const std::string& Graph, FPlanIndex Index, const std::string& Error, const FEditPlan& Plan, FRunOutcome& Outcome)
{
	const FPlanNode& Node = Plan.Nodes[Index];
	for (const std::string& Nearest : ReadNearestTypes(Error))
	{
		// Another node of the same name is what was meant; one that is merely spelt alike may do anything.
		if (!SameName(TypeStem(Nearest), TypeStem(Node.Type)))
		{
			continue;
		}
		const FSpawnOutcome Spawned = Editor.SpawnNodes(Graph, {{Nearest, Node.PinValues}});
		Nodes[Index] = Spawned.Nodes.empty() ? std::string() : Spawned.Nodes.front();
		if (!Nodes[Index].empty())
		{
			Outcome.Notes.push_back("The editor has no node `" + Node.Type + "`, so I took `" + Nearest + "`.");
			return true;
		}
		break;
	}
	return Fail(Outcome, {Error});
}

bool FEditRun::NameEvents(const FEditPlan& Plan, FRunOutcome& Outcome)
{
	for (FPlanIndex Index = 0; Index < Plan.Nodes.size(); ++Index)
	{
		const FPlanNode& Node = Plan.Nodes[Index];
		if (Node.EventName.empty() || !Node.Existing.empty())
		{
			continue;
		}
		const FEditOutcome Named = Editor.SetProperty("name", Node.EventName, {.Graph = Node.Graph, .Node = Nodes[Index]});
		if (!Named.IsComplete())
		{
			return Fail(Outcome, Named.Errors);
		}
	}
	return true;
}

bool FEditRun::Link(const FEditPlan& Plan, FRunOutcome& Outcome)
{
	for (const std::vector<FPlanLink>& Batch : SplitLinks(Plan))
	{
		const std::string& Graph = Plan.Nodes[Batch.front().From].Graph;
		std::vector<FLinkToEdit> Links;
		Links.reserve(Batch.size());
		for (const FPlanLink& Planned : Batch)
		{
			Links.push_back(WithRealPins(Graph, {Nodes[Planned.From], Planned.FromPin, Nodes[Planned.To], Planned.ToPin}));
		}
		if (!LinkIn(Graph, Links, Outcome))
		{
			return false;
		}
	}
	return true;
}

bool FEditRun::LinkIn(const std::string& Graph, const std::vector<FLinkToEdit>& Links, FRunOutcome& Outcome)
{
	const FEditOutcome First = Editor.EditLinks(Graph, Links);
	if (First.IsComplete())
	{
		return true;
	}
	if (!First.bDone)
	{
		return Fail(Outcome, First.Errors);
	}
	// A link may be refused because of another that came behind it, and a pin may have got its name from one.
	std::vector<FLinkToEdit> Missing;
	for (const FLinkToEdit& Wanted : Links)
	{
		const FLinkToEdit Real = WithRealPins(Graph, Wanted);
		if (!IsLinked(Graph, Real))
		{
			Missing.push_back(Real);
		}
	}
	if (Missing.empty())
	{
		return true;
	}
	const FEditOutcome Second = Editor.EditLinks(Graph, Missing);
	return Second.IsComplete() || Fail(Outcome, Second.Errors);
}

FLinkToEdit FEditRun::WithRealPins(const std::string& Graph, FLinkToEdit Link)
{
	const FBlueprintGraph* const Found = Editor.FindGraph(Graph);
	const FBlueprintNode* const From = Found ? Found->FindNode(Link.FromNode) : nullptr;
	const FBlueprintNode* const To = Found ? Found->FindNode(Link.ToNode) : nullptr;
	const FBlueprintPin* const Output = From ? FindLikePin(*From, Link.FromPin, false) : nullptr;
	const FBlueprintPin* const Input = To ? FindLikePin(*To, Link.ToPin, true) : nullptr;
	Link.FromPin = Output ? Output->Id : Link.FromPin;
	Link.ToPin = Input ? Input->Id : Link.ToPin;
	return Link;
}

// Whether a wire leads from the one pin to the other, maybe through a node that converts the value.
bool FEditRun::IsLinked(const std::string& Graph, const FLinkToEdit& Link)
{
	const FBlueprintGraph* const Found = Editor.FindGraph(Graph);
	const FBlueprintNode* const From = Found ? Found->FindNode(Link.FromNode) : nullptr;
	const FBlueprintPin* const Output = From ? From->FindOutput(Link.FromPin) : nullptr;
	return Output &&
		std::any_of(Output->Links.begin(), Output->Links.end(),
			[&](const FPinLink& Wire)
			{
				const bool bDirect = EqualIgnoringCase(Wire.Node, Link.ToNode) && EqualIgnoringCase(Wire.Pin, Link.ToPin);
				const FBlueprintNode* const Between = Found->FindNode(Wire.Node);
				return bDirect ||
					(Between &&
						std::any_of(Between->Pins.begin(), Between->Pins.end(),
							[&](const FBlueprintPin& Pin)
							{
								return !Pin.bInput &&
									std::any_of(Pin.Links.begin(), Pin.Links.end(),
										[&](const FPinLink& Next)
										{
											return !Pin.IsExec() && EqualIgnoringCase(Next.Node, Link.ToNode) &&
												EqualIgnoringCase(Next.Pin, Link.ToPin);
										});
							}));
			});
}

// Nodes that were made to see whether the Blueprint has what they read, and that nothing then needed.
void FEditRun::RemoveUnused(const FEditPlan& Plan)
{
	for (FPlanIndex Index = 0; Index < Plan.Nodes.size(); ++Index)
	{
		const FPlanNode& Node = Plan.Nodes[Index];
		const auto Before = NodesBefore.find(Node.Graph);
		const bool bMade = !Node.Existing.empty() && Before != NodesBefore.end() && !Before->second.contains(Node.Existing);
		const bool bUsed = std::any_of(
			Plan.Links.begin(), Plan.Links.end(), [Index](const FPlanLink& Link)
			{ return Link.From == Index || Link.To == Index; });
		if (bMade && !bUsed)
		{
			Editor.RemoveNodes(Node.Graph, {Node.Existing});
		}
	}
}

void FEditRun::SetProperties(const FEditPlan& Plan, FRunOutcome& Outcome)
{
	for (const FPlanProperty& Property : Plan.Properties)
	{
		Outcome.Notes.push_back(Editor.SetProperty(Property.Path, Property.Value).IsComplete() ? Property.Done : Property.Refused);
	}
}

bool FEditRun::Compile(FRunOutcome& Outcome)
{
	Outcome.Compiled = Editor.Compile();
	if (!Outcome.Compiled.bDone)
	{
		return Fail(Outcome, Outcome.Compiled.Errors);
	}
	if (Outcome.Compiled.bSuccess)
	{
		return true;
	}
	std::vector<std::string> Ours;
	for (const FCompilerMessage& Message : Outcome.Compiled.Messages)
	{
		const bool bOurs = Message.IsError() &&
			std::any_of(Nodes.begin(), Nodes.end(),
				[&](const std::string& Id)
				{ return CompactName(Message.Text).find(CompactName(TitleOf(Id))) != std::string::npos; });
		if (bOurs)
		{
			Ours.push_back(Message.Text);
		}
	}
	// Errors that name none of the nodes were there before, and are no reason to do nothing.
	return Ours.empty() || Fail(Outcome, Ours);
}

bool FEditRun::TakeBack(const FEditPlan& Plan)
{
	bool bAll = true;
	std::map<std::string, std::vector<std::string>> Made;
	for (const FBlueprintGraph& Graph : Editor.Blueprint().Graphs)
	{
		const auto Before = NodesBefore.find(Graph.Id);
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			if (Before != NodesBefore.end() && !Before->second.contains(Node.Id))
			{
				Made[Graph.Id].push_back(Node.Id);
			}
		}
	}
	for (const auto& [Graph, Ids] : Made)
	{
		bAll = Editor.RemoveNodes(Graph, Ids).IsComplete() && bAll;
	}
	for (const auto& [Graph, Replaced] : Plan.Replaced)
	{
		bAll = (IsLinked(Graph, Replaced) || Editor.EditLinks(Graph, {Replaced}).IsComplete()) && bAll;
	}
	for (const std::string& Name : Plan.NewFunctions)
	{
		bAll = (NodesBefore.contains(Name) || !Editor.FindGraph(Name) || Editor.RemoveFunction(Name).IsComplete()) && bAll;
	}
	std::vector<std::string> NewVariables;
	for (const FBlueprintVariable& Variable : Editor.Blueprint().Variables)
	{
		if (!VariablesBefore.contains(LowerCase(Variable.Id)))
		{
			NewVariables.push_back(Variable.Id);
		}
	}
	for (const std::string& Name : NewVariables)
	{
		bAll = Editor.RemoveVariable(Name, "member").IsComplete() && bAll;
	}
	return bAll && Editor.Model();
}

}
