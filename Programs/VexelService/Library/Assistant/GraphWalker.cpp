#include "Assistant/GraphWalker.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxStepsOfGraph = 400;
constexpr std::size_t MaxStraightPath = 100;
constexpr std::size_t MaxMergingWays = 32;
constexpr int MaxBranchDepth = 12;

bool HasLatentStep(const std::vector<FStep>& Steps)
{
	return std::any_of(Steps.begin(), Steps.end(), [](const FStep& Step)
		{ return Step.bLatent || std::any_of(Step.Branches.begin(), Step.Branches.end(), [](const FStepBranch& Branch)
									 { return HasLatentStep(Branch.Steps); }); });
}

}

FGraphWalker::FGraphWalker(const FBlueprintModel& Model, const FBlueprintGraph& InGraph)
	: Graph(InGraph)
	, Expressions(Model, InGraph)
	, StepsLeft(MaxStepsOfGraph)
{
}

std::vector<FStep> FGraphWalker::Follow(const FBlueprintPin& ExecOutput)
{
	return WalkFrom(&ExecOutput, nullptr);
}

std::vector<FStep> FGraphWalker::FollowNode(const FBlueprintNode& Node)
{
	const FPlace Place = MainPlace(Node);
	const FPlaceKey Key(Place.Node, Place.Entry);
	std::vector<FStep> Steps;
	const FBlueprintPin* Output = nullptr;
	OnPath.insert(Key);
	if (TellPlace(Place, nullptr, Steps, Output))
	{
		std::vector<FStep> Rest = WalkFrom(Output, nullptr);
		std::move(Rest.begin(), Rest.end(), std::back_inserter(Steps));
	}
	OnPath.erase(Key);
	if (Steps.empty())
	{
		Steps.push_back({"runs the node \"" + NodeTitle(Node) + "\", behind which nothing is connected"});
	}
	return Steps;
}

FGraphWalker::FPlace FGraphWalker::MainPlace(const FBlueprintNode& Node)
{
	const auto Entry = std::find_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
		{ return Pin.bInput && Pin.IsExec(); });
	return {&Node, Entry == Node.Pins.end() ? nullptr : &*Entry};
}

std::string FGraphWalker::Tell(const FBlueprintNode& Node)
{
	const FFlow& Flow = Describe(MainPlace(Node));
	if (!Flow.Text.empty())
	{
		return Flow.Text;
	}
	return Flow.Ways.empty() ? NodeTitle(Node) : Flow.Ways.front().Label;
}

std::vector<FStep> FGraphWalker::WalkFrom(const FBlueprintPin* Output, const FPlaceKey* StopAt)
{
	std::vector<FStep> Steps;
	std::vector<FPlaceKey> Entered;
	while (Output && !Output->Links.empty())
	{
		bool bLost = false;
		const FPlace Place = Follow(Output, bLost);
		if (bLost)
		{
			Steps.push_back({"goes on at a node that the export does not show"});
		}
		if (!Place.Node)
		{
			break;
		}
		const FPlaceKey Key(Place.Node, Place.Entry);
		if (StopAt && Key == *StopAt)
		{
			break;
		}
		if (OnPath.count(Key))
		{
			Steps.push_back({"goes back to the step \"" + Told[Key] + "\" and repeats from there"});
			break;
		}
		if (Told.count(Key))
		{
			Steps.push_back({"goes on as told above, from \"" + Told[Key] + "\""});
			break;
		}
		if (StepsLeft == 0 || Depth >= MaxBranchDepth)
		{
			Steps.push_back({"goes on with more steps, which are too many to tell here"});
			break;
		}
		--StepsLeft;
		OnPath.insert(Key);
		Entered.push_back(Key);
		if (!TellPlace(Place, StopAt, Steps, Output))
		{
			break;
		}
	}
	for (const FPlaceKey& Key : Entered)
	{
		OnPath.erase(Key);
	}
	return Steps;
}

// Tells one node, and moves Output on to where the story continues. False when it ends here.
bool FGraphWalker::TellPlace(const FPlace& Place, const FPlaceKey* StopAt, std::vector<FStep>& Steps, const FBlueprintPin*& Output)
{
	FFlow Flow = Describe(Place);
	const FPlaceKey Key(Place.Node, Place.Entry);
	Told[Key] = Tell(*Place.Node);

	FStep Step{.Text = Flow.Text, .bLatent = Flow.bLatent};
	std::erase_if(Flow.Ways, [](const FWay& Way)
		{ return Way.Output->Links.empty(); });
	if (Flow.Ways.empty())
	{
		if (!Step.Text.empty())
		{
			Steps.push_back(std::move(Step));
		}
		Output = Flow.Next;
		return Output != nullptr;
	}
	const FPlaceKey Merge = Flow.Next ? FPlaceKey() : FindMerge(Flow);
	TellWays(Flow, std::move(Step), Merge.first ? &Merge : StopAt, Steps);
	if (!Merge.first)
	{
		Output = Flow.Next;
		return Output != nullptr;
	}
	if (StopAt && Merge == *StopAt)
	{
		return false;
	}
	// The ways meet again: the story goes on from there, at this level, by the wire of the first way.
	for (const FBlueprintPin* Way = Flow.Ways.front().Output; Way;)
	{
		bool bLost = false;
		const FPlace Next = Follow(Way, bLost);
		if (!Next.Node || FPlaceKey(Next.Node, Next.Entry) == Merge)
		{
			Output = Way;
			return true;
		}
		Way = Describe(Next).Next;
	}
	return false;
}

void FGraphWalker::TellWays(const FFlow& Flow, FStep Step, const FPlaceKey* StopAt, std::vector<FStep>& Steps)
{
	++Depth;
	for (const FWay& Way : Flow.Ways)
	{
		Step.Branches.push_back({Way.Label, WalkFrom(Way.Output, StopAt)});
	}
	--Depth;
	const bool bWaits = std::any_of(Step.Branches.begin(), Step.Branches.end() - 1, [](const FStepBranch& Branch)
		{ return HasLatentStep(Branch.Steps); });
	if (!Flow.bInOrder || bWaits)
	{
		Steps.push_back(std::move(Step));
		return;
	}
	for (FStepBranch& Branch : Step.Branches)
	{
		std::move(Branch.Steps.begin(), Branch.Steps.end(), std::back_inserter(Steps));
	}
}

FGraphWalker::FPlace FGraphWalker::Follow(const FBlueprintPin* Output, bool& bLost) const
{
	// As many knots as there are nodes: more would be a ring of knots.
	for (std::size_t Hops = 0; Output && !Output->Links.empty() && Hops <= Graph.Nodes.size(); ++Hops)
	{
		const FPinLink& Link = Output->Links.front();
		const FBlueprintNode* const Node = Graph.FindNode(Link.Node);
		if (!Node)
		{
			bLost = true;
			return {};
		}
		if (!IsNodeType(*Node, "graph.knot"))
		{
			return {Node, Node->FindInput(Link.Pin)};
		}
		const auto Outward = std::find_if(Node->Pins.begin(), Node->Pins.end(), [](const FBlueprintPin& Pin)
			{ return !Pin.bInput; });
		Output = Outward == Node->Pins.end() ? nullptr : &*Outward;
	}
	return {};
}

// The places that lie behind an output as long as the story does not branch, the first branching one included.
std::vector<FGraphWalker::FPlaceKey> FGraphWalker::StraightPath(const FBlueprintPin* Output)
{
	std::vector<FPlaceKey> Path;
	while (Output && Path.size() < MaxStraightPath)
	{
		bool bLost = false;
		const FPlace Place = Follow(Output, bLost);
		const FPlaceKey Key(Place.Node, Place.Entry);
		if (!Place.Node || std::find(Path.begin(), Path.end(), Key) != Path.end())
		{
			break;
		}
		Path.push_back(Key);
		Output = Describe(Place).Next;
	}
	return Path;
}

// The first place that every way comes to, or none.
FGraphWalker::FPlaceKey FGraphWalker::FindMerge(const FFlow& Flow)
{
	if (Flow.Ways.size() < 2 || Flow.Ways.size() > MaxMergingWays || Flow.bInOrder)
	{
		return {};
	}
	std::vector<std::vector<FPlaceKey>> Paths;
	for (const FWay& Way : Flow.Ways)
	{
		Paths.push_back(StraightPath(Way.Output));
	}
	for (const FPlaceKey& Candidate : Paths.front())
	{
		const bool bOnAll = std::all_of(Paths.begin(), Paths.end(), [&](const std::vector<FPlaceKey>& Path)
			{ return std::find(Path.begin(), Path.end(), Candidate) != Path.end(); });
		if (bOnAll && !Told.count(Candidate))
		{
			return Candidate;
		}
	}
	return {};
}

}
