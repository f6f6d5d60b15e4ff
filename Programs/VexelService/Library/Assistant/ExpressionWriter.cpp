#include "Assistant/ExpressionWriter.h"

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

bool IsDataInput(const FBlueprintPin& Pin)
{
	return Pin.bInput && !Pin.IsExec();
}

bool IsSelfPin(const FBlueprintPin& Pin)
{
	return EqualIgnoringCase(Pin.Id, "self");
}

// Inputs that the editor fills in by itself and that a reader never sees.
bool IsHiddenInput(const FBlueprintPin& Pin)
{
	return IsSelfPin(Pin) || StartsWith(Pin.Id, "WorldContext") || Pin.Id == "LatentInfo" || Pin.Id == "__WorldContext";
}

// "true" and "0" say something; the empty forms of the types do not.
bool IsTellingLiteral(const FBlueprintPin& Pin)
{
	static constexpr std::string_view Dull[] = {"", "0", "0.0", "0.000000", "false", "None", "ref|None", "()", "0, 0, 0", "0,0,0"};
	return std::find(std::begin(Dull), std::end(Dull), Pin.Value) == std::end(Dull);
}

std::string PossessiveOf(const std::string& Owner)
{
	return Owner == "itself" ? "its" : Owner + "'s";
}

std::string AsNoun(FExpression Expression)
{
	std::string Text = Expression.Form == EExpressionForm::Predicate ? "whether " + Expression.Text : std::move(Expression.Text);
	return Shortened(std::move(Text), MaxExpressionBytes);
}

struct FCallName
{
	std::string_view Owner;
	std::string_view Function;
};

FCallName SplitCall(std::string_view NodeType)
{
	const std::size_t FirstDot = NodeType.find('.');
	const std::string_view Rest = FirstDot == std::string_view::npos ? std::string_view() : NodeType.substr(FirstDot + 1);
	const std::size_t LastDot = Rest.rfind('.');
	return LastDot == std::string_view::npos ? FCallName{{}, Rest} : FCallName{Rest.substr(0, LastDot), Rest.substr(LastDot + 1)};
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

/** Which rule words the outputs of which node types; the first row that fits decides. */
struct FOutputTable
{
	struct FRow
	{
		std::string_view Prefix;
		FExpressionWriter::FOutputRule Rule;
	};

	static const FRow* Find(const FBlueprintNode& Node)
	{
		using W = FExpressionWriter;
		static constexpr FRow Rows[] = {
			{"var.self", &W::SelfOutput},
			{"var.get", &W::VariableOutput},
			{"var.set", &W::VariableOutput},
			{"var.local", &W::VariableOutput},
			{"graph.knot", &W::PassThroughOutput},
			{"graph.entry", &W::ParameterOutput},
			{"call.op", &W::OperatorOutput},
			{"call.spawn_actor", &W::SpawnOutput},
			{"call.create_widget", &W::SpawnOutput},
			{"call.create_object", &W::SpawnOutput},
			{"call.add_component", &W::SpawnOutput},
			{"call.add_component_by_class", &W::SpawnOutput},
			{"call.get_subsystem", &W::LiteralOutput},
			{"call", &W::CallOutput},
			{"cast", &W::CastOutput},
			{"event", &W::EventOutput},
			{"input", &W::EventOutput},
			{"macro", &W::MacroOutput},
			{"foreach", &W::MacroOutput},
			{"enum.foreach", &W::MacroOutput},
			{"timeline", &W::TimelineOutput},
			{"struct.break", &W::BreakOutput},
			{"struct.make", &W::MakeOutput},
			{"make", &W::MakeOutput},
			{"array.get", &W::ElementOutput},
			{"array.get_ref", &W::ElementOutput},
			{"flow.select", &W::SelectOutput},
			{"enum.equal", &W::EnumEqualOutput},
			{"enum.not_equal", &W::EnumEqualOutput},
			{"enum.literal", &W::LiteralOutput},
			{"literal", &W::LiteralOutput},
		};
		const FRow* const Found = std::find_if(std::begin(Rows), std::end(Rows), [&](const FRow& Row)
			{ return IsNodeType(Node, Row.Prefix); });
		return Found == std::end(Rows) ? nullptr : Found;
	}
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

FExpression FExpressionWriter::Output(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const FOutputTable::FRow* const Row = FOutputTable::Find(Node);
	return Row ? (this->*Row->Rule)(Node, Pin) : UnknownOutput(Node, Pin);
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
	const bool bOneClause = Verb != std::string::npos && Clause.Text.find(" is ", Verb + 1) == std::string::npos && Clause.Text.find('"') == std::string::npos;
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

FExpression FExpressionWriter::VariableOutput(const FBlueprintNode& Node, const FBlueprintPin&)
{
	const std::string Name(LastSegment(Node.Type, '.'));
	return {HasOtherTarget(Node) ? Possessive(Node) + " " + Name : Name};
}

FExpression FExpressionWriter::SelfOutput(const FBlueprintNode&, const FBlueprintPin&)
{
	return {"itself"};
}

FExpression FExpressionWriter::PassThroughOutput(const FBlueprintNode& Node, const FBlueprintPin&)
{
	const auto Inward = std::find_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
		{ return Pin.bInput; });
	return Inward == Node.Pins.end() ? FExpression{"nothing"} : Input(Node, *Inward);
}

FExpression FExpressionWriter::OperatorOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const FOperatorPhrase* const Phrase = FindOperatorPhrase(LastSegment(Node.Type, '.'));
	return Phrase ? Operator(Node, *Phrase) : UnknownOutput(Node, Pin);
}

FExpression FExpressionWriter::CastOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const auto Object = std::find_if(Node.Pins.begin(), Node.Pins.end(), IsDataInput);
	if (Object == Node.Pins.end())
	{
		return UnknownOutput(Node, Pin);
	}
	std::string Source = Value(Node, *Object);
	const std::string Class = ClassName(LastSegment(Node.Type, '.'));
	if (Pin.Type == "bool")
	{
		return {Source + " is " + WithArticle(Class), EExpressionForm::Predicate};
	}
	return {Source + " (as " + Class + ")"};
}

FExpression FExpressionWriter::ParameterOutput(const FBlueprintNode&, const FBlueprintPin& Pin)
{
	return {Pin.Id};
}

FExpression FExpressionWriter::EventOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const FParameterPhrase* const Phrase = IsNodeType(Node, "event.custom") ? nullptr : FindParameterPhrase(Pin.Id);
	return {Phrase ? std::string(Phrase->Phrase) : Pin.Id};
}

FExpression FExpressionWriter::MacroOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const std::string Title = LowerCase(PinTitle(Pin));
	if (Title == "array element" || Title == "set element" || Title == "enum value")
	{
		return {"the current element"};
	}
	if (Title == "array index" || Title == "index" || Title == "map key" || Title == "map value" || Title == "counter")
	{
		return {"the current " + std::string(LastSegment(Title, ' '))};
	}
	return UnknownOutput(Node, Pin);
}

FExpression FExpressionWriter::TimelineOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const std::string Name(LastSegment(Node.Type, '.'));
	return {"the value " + PinTitle(Pin) + " of the timeline" + (Name == "timeline" ? "" : " " + Name)};
}

FExpression FExpressionWriter::SpawnOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	for (const char* const ClassPin : {"Class", "ClassToSpawn", "WidgetType"})
	{
		const FBlueprintPin* const Class = Node.FindInput(ClassPin);
		if (Class && (!Class->Links.empty() || IsTellingLiteral(*Class)))
		{
			return {"the new " + (Class->Links.empty() ? ShortName(Class->Value) : "object of " + Value(Node, *Class))};
		}
	}
	const std::string Name = ClassName(LastSegment(Node.Type, '.'));
	return {"the new " + (Name.find('_') == std::string::npos ? Name : std::string("object"))};
}

FExpression FExpressionWriter::BreakOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const auto Whole = std::find_if(Node.Pins.begin(), Node.Pins.end(), IsDataInput);
	return Whole == Node.Pins.end() ? UnknownOutput(Node, Pin) : FExpression{"the " + PinTitle(Pin) + " of " + Value(Node, *Whole)};
}

FExpression FExpressionWriter::MakeOutput(const FBlueprintNode& Node, const FBlueprintPin&)
{
	const std::string Parts = Arguments(Node);
	const std::string What(LastSegment(Node.Type, '.'));
	return {(IsNodeType(Node, "make") ? "a new " : "a ") + What + (Parts.empty() ? "" : " (" + Parts + ")")};
}

FExpression FExpressionWriter::ElementOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	std::vector<const FBlueprintPin*> Inputs;
	for (const FBlueprintPin& Candidate : Node.Pins)
	{
		if (IsDataInput(Candidate))
		{
			Inputs.push_back(&Candidate);
		}
	}
	return Inputs.size() < 2 ? UnknownOutput(Node, Pin) : FExpression{"element " + Value(Node, *Inputs[1]) + " of " + Value(Node, *Inputs[0])};
}

FExpression FExpressionWriter::SelectOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const FBlueprintPin* const Index = Node.FindInput("Index");
	std::vector<std::string> Options;
	for (const FBlueprintPin& Option : Node.Pins)
	{
		if (IsDataInput(Option) && &Option != Index)
		{
			Options.push_back(Value(Node, Option));
		}
	}
	if (!Index || Options.empty())
	{
		return UnknownOutput(Node, Pin);
	}
	if (Index->Type == "bool" && Options.size() == 2)
	{
		return {Options[1] + " if " + Condition(Node, Index->Id) + ", otherwise " + Options[0], EExpressionForm::Operation};
	}
	return {"one of " + JoinWithAnd(Options) + ", chosen by " + Value(Node, *Index)};
}

FExpression FExpressionWriter::EnumEqualOutput(const FBlueprintNode& Node, const FBlueprintPin&)
{
	return Operator(Node, *FindOperatorPhrase(IsNodeType(Node, "enum.equal") ? "EqualEqual" : "NotEqual"));
}

FExpression FExpressionWriter::LiteralOutput(const FBlueprintNode& Node, const FBlueprintPin&)
{
	const auto Chosen = std::find_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
		{ return IsDataInput(Pin) && IsTellingLiteral(Pin) && !IsHiddenInput(Pin); });
	return {Chosen == Node.Pins.end() ? "the " + std::string(LastSegment(Node.Type, '.')) : Value(Node, *Chosen)};
}

FExpression FExpressionWriter::CallOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	if (CallsOwnFunction(Node))
	{
		return UnknownOutput(Node, Pin);
	}
	const std::string_view Function = SplitCall(Node.Type).Function;
	const bool bReturnValue = EqualIgnoringCase(Pin.Id, "ReturnValue");
	if (StartsWith(Function, "Conv_"))
	{
		const auto Converted = std::find_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Candidate)
			{ return IsDataInput(Candidate) && !IsHiddenInput(Candidate); });
		return Converted == Node.Pins.end() ? UnknownOutput(Node, Pin) : Input(Node, *Converted);
	}
	if (StartsWith(Function, "Break") && !bReturnValue)
	{
		return BreakOutput(Node, Pin);
	}
	if (bReturnValue && StartsWith(Function, "Not_") && Node.FindInput("A"))
	{
		return Negation(Input(Node, *Node.FindInput("A")));
	}
	const std::string_view Operation = Function.substr(0, Function.find('_'));
	const FOperatorPhrase* const OperatorPhrase = bReturnValue ? FindOperatorPhrase(Operation) : nullptr;
	if (OperatorPhrase)
	{
		return Operator(Node, *OperatorPhrase);
	}
	const FValuePhrase* const Phrase = FindValuePhrase(Function);
	if (Phrase && EqualIgnoringCase(Pin.Id, Phrase->Output))
	{
		return {Fill(Node, Phrase->Template, EExpressionForm::Operation), Phrase->Form};
	}
	return UnknownOutput(Node, Pin);
}

FExpression FExpressionWriter::UnknownOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const bool bPure = !Node.HasExecPin(true) && !Node.HasExecPin(false);
	const std::string Title = IsNodeType(Node, "call") ? FunctionTitle(Node) : IsNodeType(Node, "macro") ? std::string(LastSegment(Node.Type, '.'))
																										 : NodeTitle(Node);
	const auto DataOutputs = std::count_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Candidate)
		{ return !Candidate.bInput && !Candidate.IsExec(); });
	const bool bOnlyResult = EqualIgnoringCase(Pin.Id, "ReturnValue") || Pin.Id.empty() || (IsNodeType(Node, "call") && DataOutputs == 1);
	const std::string What = bOnlyResult ? "result" : PinTitle(Pin);
	std::string Text = "the " + What + " of " + Title;
	if (HasOtherTarget(Node))
	{
		Text += " on " + Target(Node);
	}
	// What ran before has its arguments told where it runs.
	const std::string Inputs = bPure ? Arguments(Node) : std::string();
	return {Text + (Inputs.empty() ? "" : " (" + Inputs + ")")};
}

std::string NodeTitle(const FBlueprintNode& Node)
{
	std::string_view Id = Node.Id;
	const std::size_t Underscore = Id.rfind('_');
	if (Underscore != std::string_view::npos && Underscore > 0 && Id.find_first_not_of("0123456789", Underscore + 1) == std::string_view::npos)
	{
		Id = Id.substr(0, Underscore);
	}
	return Id.empty() ? "a node without a name" : SpacedName(Id);
}

bool IsNodeType(const FBlueprintNode& Node, std::string_view Prefix)
{
	const std::string_view Type = Node.Type;
	return StartsWith(Type, Prefix) && (Type.size() == Prefix.size() || Type[Prefix.size()] == '.');
}

std::string PinTitle(const FBlueprintPin& Pin)
{
	return SpacedName(Pin.Name.empty() ? Pin.Id : Pin.Name);
}

}
