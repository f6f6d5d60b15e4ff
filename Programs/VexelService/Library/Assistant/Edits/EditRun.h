#pragma once

#include "Assistant/Edits/EditPlan.h"
#include "Assistant/Edits/ProjectEditor.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace VexelService
{

/** How carrying out a plan ended. */
struct FRunOutcome
{
	bool bDone = false;
	/** What the editor said to what could not be done, in its words. */
	std::vector<std::string> Failures = {};
	/** What was done otherwise than planned, and properties, in words for the user. */
	std::vector<std::string> Notes = {};
	/** What the compiler said of the Blueprint as it then was. */
	FCompileOutcome Compiled = {};
	/** Of a plan that failed: whether nothing of it is left. */
	bool bTakenBack = false;
};

/**
 * One edit of a Blueprint, from the moment at which it is created: knows what was there before, so that it can take back all that it
 * began.
 */
class FEditRun
{
public:
	/** Editor must outlive the run, and can read the Blueprint. */
	explicit FEditRun(FProjectEditor& InEditor);

	/** Makes what the plan has, repairs once what the editor refuses, compiles, and takes all of it back when that fails. */
	FRunOutcome Execute(const FEditPlan& Plan);

	/** Removes what was made since the run began; what is left in the way is told in Failures. */
	bool TakeBack(const FEditPlan& Plan);

	/** The ids of the plan's nodes, once they are made. */
	const std::vector<std::string>& GetNodes() const { return Nodes; }

private:
	bool AddFunctions(const FEditPlan& Plan, FRunOutcome& Outcome);
	bool AddVariables(const FEditPlan& Plan, FRunOutcome& Outcome);
	bool Spawn(const FEditPlan& Plan, bool bAfterOthers, FRunOutcome& Outcome);
	bool SpawnIn(const std::string& Graph, const std::vector<FPlanIndex>& Indices, const FEditPlan& Plan, FRunOutcome& Outcome);
	bool Repair(const std::string& Graph, FPlanIndex Index, const std::string& Error, const FEditPlan& Plan, FRunOutcome& Outcome);
	bool NameEvents(const FEditPlan& Plan, FRunOutcome& Outcome);
	bool Link(const FEditPlan& Plan, FRunOutcome& Outcome);
	bool LinkIn(const std::string& Graph, const std::vector<FLinkToEdit>& Links, FRunOutcome& Outcome);
	void RemoveUnused(const FEditPlan& Plan);
	std::string FindEntry(const std::string& GraphId);
	void SetProperties(const FEditPlan& Plan, FRunOutcome& Outcome);
	bool Compile(FRunOutcome& Outcome);

	/** The link with pins that the nodes really have, by the names that the wanted ones are like. */
	FLinkToEdit WithRealPins(const std::string& Graph, FLinkToEdit Link);
	bool IsLinked(const std::string& Graph, const FLinkToEdit& Link);
	static bool Fail(FRunOutcome& Outcome, const std::vector<std::string>& Errors);

	FProjectEditor& Editor;
	std::map<std::string, std::set<std::string>> NodesBefore;
	std::set<std::string> VariablesBefore;
	std::vector<std::string> Nodes;
};

}
