#pragma once

#include "Assistant/BlueprintModel.h"
#include "Assistant/ExpressionWriter.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VexelService
{

struct FStep;

/** A way that execution may take out of a step. */
struct FStepBranch
{
	/** "if Health is 0", "otherwise", "for each element of Doors". */
	std::string Label;
	std::vector<FStep> Steps;
};

/** One thing that happens, in words that follow an unnamed subject: "prints "Hello"". A step without text only branches. */
struct FStep
{
	std::string Text;
	std::vector<FStepBranch> Branches = {};
	/** What follows runs later, while other things go on. */
	bool bLatent = false;
};

/** Follows execution wires and words what happens, each node once. A walker serves one graph and may start many times. */
class FGraphWalker
{
public:
	/** Both must outlive the walker. */
	FGraphWalker(const FBlueprintModel& Model, const FBlueprintGraph& InGraph);

	/** What happens behind an execution output. Never endless: a wire that leads back is told as such. */
	std::vector<FStep> Follow(const FBlueprintPin& ExecOutput);

	/** What would happen if something ran this node by its first execution input. Never empty. */
	std::vector<FStep> FollowNode(const FBlueprintNode& Node);

	/** One node's own words, without what follows it. */
	std::string Tell(const FBlueprintNode& Node);

private:
	struct FPlace
	{
		const FBlueprintNode* Node = nullptr;
		const FBlueprintPin* Entry = nullptr;
	};

	struct FWay
	{
		std::string Label;
		const FBlueprintPin* Output = nullptr;
	};

	/** What one node contributes: its words, the ways that are told as branches, and where the story goes on. */
	struct FFlow
	{
		std::string Text;
		std::vector<FWay> Ways;
		const FBlueprintPin* Next = nullptr;
		bool bLatent = false;
		/** The ways run one after the other, so they can be told as one list. */
		bool bInOrder = false;
	};

	using FFlowRule = void (FGraphWalker::*)(const FPlace&, FFlow&);
	struct FRuleTable;
	using FPlaceKey = std::pair<const FBlueprintNode*, const FBlueprintPin*>;

	std::vector<FStep> WalkFrom(const FBlueprintPin* Output, const FPlaceKey* StopAt);
	bool TellPlace(const FPlace& Place, const FPlaceKey* StopAt, std::vector<FStep>& Steps, const FBlueprintPin*& Output);
	void TellWays(const FFlow& Flow, FStep Step, const FPlaceKey* StopAt, std::vector<FStep>& Steps);
	const FFlow& Describe(const FPlace& Place);
	FPlace Follow(const FBlueprintPin* Output, bool& bLost) const;
	static FPlace MainPlace(const FBlueprintNode& Node);
	FPlaceKey FindMerge(const FFlow& Flow);
	std::vector<FPlaceKey> StraightPath(const FBlueprintPin* Output);

	void TellBranch(const FPlace& Place, FFlow& Flow);
	void TellCast(const FPlace& Place, FFlow& Flow);
	void TellSequence(const FPlace& Place, FFlow& Flow);
	void TellMultigate(const FPlace& Place, FFlow& Flow);
	void TellSwitch(const FPlace& Place, FFlow& Flow);
	void TellMacro(const FPlace& Place, FFlow& Flow);
	void TellForEach(const FPlace& Place, FFlow& Flow);
	void TellTimeline(const FPlace& Place, FFlow& Flow);
	void TellSet(const FPlace& Place, FFlow& Flow);
	void TellSetByReference(const FPlace& Place, FFlow& Flow);
	void TellSpawn(const FPlace& Place, FFlow& Flow);
	void TellAddComponent(const FPlace& Place, FFlow& Flow);
	void TellSuper(const FPlace& Place, FFlow& Flow);
	void TellMessage(const FPlace& Place, FFlow& Flow);
	void TellCall(const FPlace& Place, FFlow& Flow);
	void TellDelegate(const FPlace& Place, FFlow& Flow);
	void TellAsync(const FPlace& Place, FFlow& Flow);
	void TellReturn(const FPlace& Place, FFlow& Flow);
	void TellUnknown(const FPlace& Place, FFlow& Flow);

	/** The ways of a node that no rule knows better: one plain continuation, the other outputs by name. */
	void AddRemainingWays(const FPlace& Place, FFlow& Flow);

	const FBlueprintGraph& Graph;
	FExpressionWriter Expressions;
	/** Told places, with what they were told as. */
	std::map<FPlaceKey, std::string> Told;
	std::map<FPlaceKey, FFlow> Described;
	std::set<FPlaceKey> OnPath;
	std::size_t StepsLeft;
	int Depth = 0;
};

}
