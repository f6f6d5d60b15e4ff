#include "Assistant/ExpressionWriter.h"

#include "Assistant/PinKinds.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace VexelService
{

namespace
{

constexpr int MaxDepth = 16;
// A pure node may be read by many others, so the tree of an expression can be far larger than the graph.
constexpr int MaxNodesOfExpression = 60;
constexpr std::size_t MaxExpressionBytes = 240;
constexpr const char* Ellipsis = "…";

std::string PossessiveOf(const std::string& Owner)
{
	return Owner == "itself" ? "its" : Owner + "'s";
}

std::string AsNoun(FExpression Expression)
{
	std::string Text = Expression.Form == EExpressionForm::Predicate ? "whether " + Expression.Text : std::move(Expression.Text);
	return Shortened(std::move(Text), MaxExpressionBytes);
}

}

/** Bounds one expression in depth and size. */
class FExpressionWriter::FBudget
{
public:
	explicit FBudget(FExpressionWriter& InWriter)
		: Writer(InWriter)
	{
		if (Writer.Depth++ == 0)
		{
			Writer.NodesLeft = MaxNodesOfExpression;
		}
		--Writer.NodesLeft;
	}

	~FBudget() { --Writer.Depth; }

	bool IsSpent() const { return Writer.Depth > MaxDepth || Writer.NodesLeft < 0; }

private:
	FExpressionWriter& Writer;
};

FExpressionWriter::FExpressionWriter(const FBlueprintModel& InModel, const FBlueprintGraph& InGraph)
	: Model(InModel)
	, Graph(InGraph)
{
}

std::string FExpressionWriter::Value(const FBlueprintNode& Node, std::string_view PinId)
{
	const FBlueprintPin* const Pin = Node.FindInput(PinId);
	return Pin ? Value(Node, *Pin) : "an unnamed " + LowerCase(SpacedName(PinId));
}

std::string FExpressionWriter::Value(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	return AsNoun(Input(Node, Pin));
}

std::string FExpressionWriter::Result(const FBlueprintNode& Node)
{
	const auto Pin = std::find_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Candidate)
		{ return !Candidate.bInput && !Candidate.IsExec(); });
	if (Pin == Node.Pins.end())
	{
		return {};
	}
	const FBudget Budget(*this);
	return AsNoun(Output(Node, *Pin));
}

std::string FExpressionWriter::Condition(const FBlueprintNode& Node, std::string_view PinId)
{
	const FBlueprintPin* const Pin = Node.FindInput(PinId);
	if (!Pin)
	{
		return "a condition that the export does not show holds";
	}
	if (Pin->Links.empty())
	{
		return "the condition, which is always " + LiteralInWords(Pin->Value, "bool") + ", holds";
	}
	return Shortened(AsClause(Input(Node, *Pin)).Text, MaxExpressionBytes);
}

std::string FExpressionWriter::Target(const FBlueprintNode& Node)
{
	const FBlueprintPin* const Self = Node.FindInput("self");
	return Self && !Self->Links.empty() ? Value(Node, *Self) : "itself";
}

std::string FExpressionWriter::Possessive(const FBlueprintNode& Node)
{
	return PossessiveOf(Target(Node));
}

bool FExpressionWriter::HasOtherTarget(const FBlueprintNode& Node) const
{
	const FBlueprintPin* const Self = Node.FindInput("self");
	return Self && !Self->Links.empty();
}

std::string FExpressionWriter::Fill(const FBlueprintNode& Node, std::string_view Template, EExpressionForm Around)
{
	std::string Text;
	std::string Reason;
	while (true)
	{
		const std::size_t Open = Template.find('{');
		const std::size_t Close = Template.find('}', Open);
		Text += Template.substr(0, Open);
		if (Close == std::string_view::npos)
		{
			return Text + Reason;
		}
		const std::string_view Field = Template.substr(Open + 1, Close - Open - 1);
		Template.remove_prefix(Close + 1);
		const std::size_t Question = Field.find('?');
		const std::size_t Optional = Field.find('&');
		if (Field == "self")
		{
			Text += Target(Node);
		}
		else if (Field == "it")
		{
			Text += HasOtherTarget(Node) ? Target(Node) : "it";
		}
		else if (Optional != std::string_view::npos)
		{
			Text += OptionalWords(Node, Field.substr(0, Optional), Field.substr(Optional + 1));
		}
		else if (Field == "self's")
		{
			Text += Possessive(Node);
		}
		else if (Question == std::string_view::npos)
		{
			const FBlueprintPin* const Pin = Node.FindInput(Field);
			const bool bInPhrase = Pin && Around == EExpressionForm::Operation;
			Text += bInPhrase ? Shortened(Operand(Node, *Pin, Around), MaxExpressionBytes) : Value(Node, Field);
		}
		else
		{
			const std::string_view Words = Field.substr(Question + 1);
			const std::string_view Yes = Words.substr(0, Words.find(':'));
			const std::string_view No = LastSegment(Words, ':');
			const FBlueprintPin* const Pin = Node.FindInput(Field.substr(0, Question));
			if (!Pin || Pin->Links.empty())
			{
				Text += Pin && EqualIgnoringCase(Pin->Value, "true") ? Yes : No;
				continue;
			}
			Text += std::string(Yes) + " or " + std::string(No);
			Reason = " depending on " + Value(Node, *Pin);
		}
	}
}

std::string FExpressionWriter::OptionalWords(const FBlueprintNode& Node, std::string_view PinId, std::string_view Words)
{
	const FBlueprintPin* const Pin = Node.FindInput(PinId);
	if (!Pin || (Pin->Links.empty() && !IsTellingLiteral(*Pin)))
	{
		return {};
	}
	std::string Text(Words);
	const std::size_t Slot = Text.find('%');
	return Slot == std::string::npos ? Text : Text.replace(Slot, 1, Value(Node, *Pin));
}

std::string FExpressionWriter::Arguments(const FBlueprintNode& Node)
{
	constexpr std::size_t MaxArguments = 5;
	// A function of a Blueprint is told with its parameters' own names wherever it is spoken of.
	const bool bOwnNames = IsNodeType(Node, "call") && CallsOwnFunction(Node);
	std::vector<std::string> Parts;
	for (const FBlueprintPin& Pin : Node.Pins)
	{
		if (!IsDataInput(Pin) || IsHiddenInput(Pin) || (Pin.Links.empty() && !IsTellingLiteral(Pin)))
		{
			continue;
		}
		if (Parts.size() == MaxArguments)
		{
			Parts.push_back(Ellipsis);
			break;
		}
		Parts.push_back((bOwnNames ? Pin.Id : PinTitle(Pin)) + " = " + Value(Node, Pin));
	}
	std::string Text;
	for (const std::string& Part : Parts)
	{
		Text += (Text.empty() ? "" : ", ") + Part;
	}
	return Text;
}

bool FExpressionWriter::CallsOwnFunction(const FBlueprintNode& Node) const
{
	const std::string_view Owner = SplitCall(Node.Type).Owner;
	return EqualIgnoringCase(ClassName(Owner), Model.Name) || IsPrefixedAssetName(Owner);
}

std::string FExpressionWriter::FunctionTitle(const FBlueprintNode& Node) const
{
	const std::string_view Function = SplitCall(Node.Type).Function;
	if (Function.empty())
	{
		return NodeTitle(Node);
	}
	return CallsOwnFunction(Node) ? std::string(Function) : SpacedName(Function);
}

FExpression FExpressionWriter::Input(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const FBudget Budget(*this);
	if (Budget.IsSpent())
	{
		return {Ellipsis};
	}
	if (Pin.Links.empty())
	{
		if (IsSelfPin(Pin))
		{
			return {"itself"};
		}
		std::string Literal = LiteralInWords(Pin.Value, Pin.Type);
		return {Literal.empty() ? "nothing" : std::move(Literal)};
	}
	// Data has one source; an export with more is read by its first.
	const FPinLink& Link = Pin.Links.front();
	const FBlueprintNode* const Source = Graph.FindNode(Link.Node);
	const FBlueprintPin* const SourcePin = Source ? Source->FindOutput(Link.Pin) : nullptr;
	if (!SourcePin)
	{
		return {"a value from a node that the export does not show"};
	}
	return Output(*Source, *SourcePin);
}

std::string FExpressionWriter::Operand(const FBlueprintNode& Node, const FBlueprintPin& Pin, EExpressionForm Around)
{
	FExpression Expression = Input(Node, Pin);
	if (Expression.Form == EExpressionForm::Predicate)
	{
		return "(" + Expression.Text + ")";
	}
	const bool bNested = Expression.Form == EExpressionForm::Operation && Around == EExpressionForm::Operation;
	return bNested ? "(" + Expression.Text + ")" : std::move(Expression.Text);
}

FExpression FExpressionWriter::AsClause(FExpression Expression)
{
	if (Expression.Form != EExpressionForm::Predicate)
	{
		Expression = {Expression.Text + " is true", EExpressionForm::Predicate};
	}
	return Expression;
}

FExpression FExpressionWriter::Negation(FExpression Clause)
{
	Clause = AsClause(std::move(Clause));
	const std::string_view True = " is true";
	if (Clause.Text.size() > True.size() && Clause.Text.compare(Clause.Text.size() - True.size(), True.size(), True) == 0)
	{
		return {Clause.Text.substr(0, Clause.Text.size() - True.size()) + " is false", EExpressionForm::Predicate};
	}
	const std::size_t Verb = Clause.Text.find(" is ");
	const bool bOneClause =
		Verb != std::string::npos && Clause.Text.find(" is ", Verb + 1) == std::string::npos && Clause.Text.find('"') == std::string::npos;
	if (bOneClause && Clause.Text.find(" is not ") == std::string::npos)
	{
		return {Clause.Text.insert(Verb + 3, " not"), EExpressionForm::Predicate};
	}
	return {"it is not so that " + Clause.Text, EExpressionForm::Predicate};
}

FExpression FExpressionWriter::Operator(const FBlueprintNode& Node, const FOperatorPhrase& Phrase)
{
	const bool bJoinsClauses = StartsWith(Phrase.Operation, "Boolean");
	std::vector<const FBlueprintPin*> Operands;
	for (const FBlueprintPin& Pin : Node.Pins)
	{
		// Tolerances and the like follow the operands, which have names of one letter.
		if (IsDataInput(Pin) && !IsHiddenInput(Pin) && Pin.Id.size() == 1)
		{
			Operands.push_back(&Pin);
		}
	}
	if (Operands.empty())
	{
		return UnknownOutput(Node, Node.Pins.front());
	}
	std::string Text;
	for (const FBlueprintPin* const Pin : Operands)
	{
		Text += Text.empty() ? "" : std::string(Phrase.Between);
		Text += bJoinsClauses ? AsClause(Input(Node, *Pin)).Text : Operand(Node, *Pin, Phrase.Form);
	}
	return {std::move(Text), Phrase.Form};
}

}
