#pragma once

#include "Assistant/BlueprintModel.h"
#include "Assistant/NodePhrases.h"
#include "Assistant/NodeTitles.h"

#include <string>
#include <string_view>

namespace VexelService
{

struct FExpression
{
	std::string Text;
	EExpressionForm Form = EExpressionForm::Atom;
};

/** Words the data that flows into a node, following wires back through pure nodes to variables, parameters and literals. */
class FExpressionWriter
{
public:
	/** Both must outlive the writer. */
	FExpressionWriter(const FBlueprintModel& InModel, const FBlueprintGraph& InGraph);

	/** An input's value as a noun: "Health - 10", "whether A is less than B". */
	std::string Value(const FBlueprintNode& Node, std::string_view PinId);
	std::string Value(const FBlueprintNode& Node, const FBlueprintPin& Pin);

	/** What a pure node gives, by its first data output, as a noun; empty when it has none. */
	std::string Result(const FBlueprintNode& Node);

	/** A Boolean input as a clause: "Health is less than or equal to 0", "IsOpen is false". */
	std::string Condition(const FBlueprintNode& Node, std::string_view PinId);

	/** The object that a node acts on; "itself" when nothing is connected. */
	std::string Target(const FBlueprintNode& Node);

	/** "its" or "the other actor's". */
	std::string Possessive(const FBlueprintNode& Node);

	/** True when a node acts on another object than the Blueprint's own. */
	bool HasOtherTarget(const FBlueprintNode& Node) const;

	/** Fills a phrase's template from the node's inputs, with parentheses around those that need them inside Around. */
	std::string Fill(const FBlueprintNode& Node, std::string_view Template, EExpressionForm Around = EExpressionForm::Atom);

	/** "A = x, B = y" for the data inputs that say something; empty when none does. */
	std::string Arguments(const FBlueprintNode& Node);

	/** Whether a "call." node calls a function of this or another Blueprint, whose name says nothing about the engine's. */
	bool CallsOwnFunction(const FBlueprintNode& Node) const;

	/** The function of a "call." node as people read it: own functions by name, the engine's as spaced words. */
	std::string FunctionTitle(const FBlueprintNode& Node) const;

	const FBlueprintGraph& GetGraph() const { return Graph; }

	using FOutputRule = FExpression (FExpressionWriter::*)(const FBlueprintNode&, const FBlueprintPin&);

private:
	class FBudget;

	FExpression Input(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression Output(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	std::string Operand(const FBlueprintNode& Node, const FBlueprintPin& Pin, EExpressionForm Around);
	std::string OptionalWords(const FBlueprintNode& Node, std::string_view PinId, std::string_view Words);
	FExpression Negation(FExpression Clause);
	FExpression AsClause(FExpression Expression);
	FExpression Operator(const FBlueprintNode& Node, const FOperatorPhrase& Phrase);

	FExpression VariableOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression SelfOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression PassThroughOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression OperatorOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression CastOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression ParameterOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression FunctionOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression EventOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression MacroOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression TimelineOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression SpawnOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression BreakOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression MakeOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression ElementOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression SelectOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression EnumEqualOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression LiteralOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression CallOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);
	FExpression UnknownOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin);

	friend struct FOutputTable;

	const FBlueprintModel& Model;
	const FBlueprintGraph& Graph;
	int Depth = 0;
	int NodesLeft = 0;
};

}
