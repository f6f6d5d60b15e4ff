#pragma once

#include "Assistant/Edits/EditPlan.h"
#include "Assistant/Edits/FlowRequest.h"
#include "Assistant/Edits/ProjectEditor.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** An output of a node of the plan. */
struct FPlanPin
{
	FPlanIndex Node = 0;
	std::string Pin;
	/** The property-type id as far as it is known; may be empty. */
	std::string Type = {};
};

/** What flows into an input: a text for it, or another node's output; neither stands for what the input has by itself. */
struct FPlanValue
{
	std::string Literal = {};
	std::optional<FPlanPin> Pin = {};
	std::string Type = {};

	bool IsEmpty() const { return Literal.empty() && !Pin; }
	bool IsComponent() const;
};

/** What a chain's steps can read beside the Blueprint's own members: the outputs of its event, of loops around it. */
struct FValueScope
{
	std::string Graph;
	std::map<std::string, FPlanPin, std::less<>> Outputs = {};
};

/** Plans the nodes that give the values of which a request's words speak. What it cannot make out is told in Problems. */
class FValuePlanner
{
public:
	/** Both must outlive the planner. */
	FValuePlanner(FProjectEditor& InEditor, FEditPlan& InPlan);

	FPlanValue Read(const FEditWords& Words, EValueKind Kind, const FValueScope& Scope);

	/** A condition as a Boolean output: comparisons, "and", "or", "not". */
	FPlanValue ReadCondition(const FEditWords& Words, const FValueScope& Scope);

	/** The variable that is said, from the Blueprint or from the plan. */
	std::optional<FBlueprintVariable> FindVariable(std::string_view Said);

	/** The variable that is said, made by the plan where the Blueprint has none; nothing, with a problem, when the words are no name. */
	std::optional<FBlueprintVariable> WantVariable(std::string_view Said, std::string_view Type, std::string_view Default);

	/** A node that reads a variable, in the graph of the scope. */
	FPlanValue ReadVariable(const FBlueprintVariable& Variable, const FValueScope& Scope);

	/** Sets an input of a planned node. */
	void Fill(FPlanIndex Node, std::string_view Pin, const FPlanValue& Value);

	FPlanIndex AddNode(const FValueScope& Scope, std::string_view Type);

	/** Whether an output is the actor that a player controls, as a condition. */
	FPlanValue IsPlayer(const FPlanPin& Actor, const FValueScope& Scope);

	/** A component that the words speak of, that the Blueprint lacks, and that it can make for itself. */
	struct FMissingComponent
	{
		std::string Said;
		std::string Class;
		/** Keeps it. */
		FBlueprintVariable Variable;
	};
	const std::vector<FMissingComponent>& GetMissing() const { return Missing; }

	void AddProblem(std::string Problem);
	const std::vector<std::string>& GetProblems() const { return Problems; }

private:
	FPlanValue ReadLiteral(const FEditWords& Words, EValueKind Kind);
	FPlanValue ReadNamed(const std::string& Said, EValueKind Kind, const FValueScope& Scope);
	FPlanValue ReadOperation(const FEditWords& Words, EValueKind Kind, const FValueScope& Scope);
	FPlanValue ReadPhrase(const FEditWords& Words, const FValueScope& Scope);
	FPlanValue ReadText(const FEditWords& Words, const FValueScope& Scope);
	FPlanValue ReadObject(const std::string& Said, const FValueScope& Scope);
	FPlanValue ReadComponent(const std::string& Said, const FValueScope& Scope);
	FPlanValue ReadTruth(const FEditWords& Words, const FValueScope& Scope);
	FPlanValue ReadSides(const FComparison& Comparison, const FValueScope& Scope);
	FPlanValue Negated(const FPlanValue& Value, const FValueScope& Scope);
	std::string FindClass(const std::string& Said);
	std::string FindAsset(const std::string& Said);

	/** A component's node that the editor could make under one of several names; what it makes besides is removed. */
	FPlanValue WantComponent(const std::string& Said, const FValueScope& Scope);
	FPlanValue ProbeComponent(const std::string& Said, const FValueScope& Scope);

	const FBlueprintModel& Model() { return Editor.Blueprint(); }

	FProjectEditor& Editor;
	FEditPlan& Plan;
	std::vector<FBlueprintVariable> NewVariables;
	std::vector<FMissingComponent> Missing;
	std::map<std::string, FPlanValue> Components;
	std::vector<std::string> Problems;
	int Depth = 0;
};

/** The deepest nesting of values and conditions in a sentence. */
constexpr int MaxValueDepth = 8;

/** The node that gives the pawn of the first player. */
constexpr std::string_view PlayerPawnType = "call.GameplayStatics.GetPlayerPawn";

/** Whether a property-type id is of references to objects. */
bool IsObjectType(std::string_view Type);

/** A number by its digits or its word; nothing for any other word. */
std::optional<std::string> ReadNumber(std::string_view Word);

}
