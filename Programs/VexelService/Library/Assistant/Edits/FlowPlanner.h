#pragma once

#include "Assistant/Edits/EditPlan.h"
#include "Assistant/Edits/FlowRequest.h"
#include "Assistant/Edits/MemberNames.h"
#include "Assistant/Edits/ValuePlanner.h"

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** Turns what was said into nodes and wires of the Blueprint as it is: uses the events, variables and functions that are there. */
class FFlowPlanner
{
public:
	/** Editor must outlive the planner and can read the Blueprint. */
	explicit FFlowPlanner(FProjectEditor& InEditor);

	/** Plans all chains; false when something stands in the way, told in GetProblems. */
	bool Plan(const FFlowRequest& Request);

	const FEditPlan& GetPlan() const { return Result; }
	const std::vector<std::string>& GetProblems() const { return Values.GetProblems(); }

	/** The graphs with the events or functions that were begun or gone on with: what happens there now, for the report. */
	struct FEntry
	{
		std::string Graph;
		FPlanIndex Node = 0;
		/** Whether the event stood there before. */
		bool bExtended = false;
	};
	const std::vector<FEntry>& GetEntries() const { return Entries; }

private:
	/** Where execution may go on: outputs that lead nowhere yet. */
	using FEnds = std::vector<FPlanPin>;
	using FBuild = void (FFlowPlanner::*)(const FFlowStep&);
	using FStart = bool (FFlowPlanner::*)(const FFlowChain&);
	friend struct FStepBuilders;
	friend struct FChainStarters;

	bool PlanChain(const FFlowChain& Chain);
	bool StartActorEvent(const FFlowChain& Chain);
	bool StartOverlap(const FFlowChain& Chain);
	bool StartKey(const FFlowChain& Chain);
	bool StartTimer(const FFlowChain& Chain);
	bool StartLater(const FFlowChain& Chain);
	bool StartChange(const FFlowChain& Chain);
	bool StartNamed(const FFlowChain& Chain);
	bool StartFunction(const std::string& Graph, bool bNew);
	bool StartAt(const std::string& Type, std::string_view Pin);
	/** Remembers where the steps of the event end. */
	void CloseStart();
	bool StartEventNamed(const std::string& Name);
	/** Goes on behind what an event does already. */
	void GoOnBehind(const std::string& Graph, const std::string& Node, std::string_view Pin);
	void FilterOther(const FFlowChain& Chain, std::string_view OtherPin);
	void CallAtEachChange(const FBlueprintVariable& Variable, const std::string& Event);
	std::size_t CallBehindPlanned(const FBlueprintVariable& Variable, const std::string& Event);
	void EnableInput();
	void NoteOutputs(FPlanIndex Node, std::string_view Type);
	/** Makes the components that the chains use and the Blueprint lacks, when play begins. */
	void MakeComponents();

	void WantVariables(const FFlowSteps& Steps);
	void BuildSteps(const FFlowSteps& Steps);
	void BuildStep(const FFlowStep& Step);
	void BuildPlain(const FFlowStep& Step);
	void BuildSet(const FFlowStep& Step);
	void BuildChange(const FFlowStep& Step);
	void BuildToggle(const FFlowStep& Step);
	void BuildSpawn(const FFlowStep& Step);
	void BuildOpen(const FFlowStep& Step);
	void BuildCall(const FFlowStep& Step);
	void BuildTimer(const FFlowStep& Step);
	void BuildLoop(const FFlowStep& Step);
	void BuildFlipFlop(const FFlowStep& Step);
	void BuildDoOnce(const FFlowStep& Step);
	void BuildIf(const FFlowStep& Step);

	/** Adds a node of execution behind the ends and makes it the end. */
	FPlanIndex Append(std::string_view Type, std::string_view Input = "execute", std::string_view Output = "then");
	void LinkEnds(FPlanIndex Node, std::string_view Input);
	void AppendCall(const FCallable& Callable, const FFlowStep& Step);
	void SetVariable(const FBlueprintVariable& Variable, const FPlanValue& Value);
	/** Makes the node of an action for its target, with the values that hold whatever is said. */
	FPlanIndex AppendFor(const FAction& Action, const FPlanValue& Target);
	FPlanValue ReadSlot(const FFlowStep& Step, const FActionPin& Pin);
	static void AddValues(FPlanNode& Node, std::string_view Values);
	bool HasParent(std::string_view Class);

	const FBlueprintModel& Model() { return Editor.Blueprint(); }

	FProjectEditor& Editor;
	FEditPlan Result;
	FValuePlanner Values;
	FValueScope Scope;
	FEnds Ends;
	/** Where a planned event's steps end so far, for when the request comes back to it. */
	struct FStarted
	{
		std::string Key;
		FValueScope Scope;
		FEnds Ends;
	};
	std::vector<FStarted> Started;
	/** The key of the event whose chain is being planned; empty for those that nothing comes back to. */
	std::string Open;
	/** The variable that was set last: "set it to false". */
	std::string LastVariable;
	std::vector<FEntry> Entries;
};

}
