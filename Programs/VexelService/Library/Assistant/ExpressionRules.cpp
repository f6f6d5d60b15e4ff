// How ExpressionWriter.h words what comes out of each type of node: the table of the rules, and the rules.
#include "Assistant/ExpressionWriter.h"
#include "Assistant/PinKinds.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace VexelService
{

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
			{"delegate.create", &W::FunctionOutput},
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

FExpression FExpressionWriter::Output(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	const FOutputTable::FRow* const Row = FOutputTable::Find(Node);
	return Row ? (this->*Row->Rule)(Node, Pin) : UnknownOutput(Node, Pin);
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

FExpression FExpressionWriter::FunctionOutput(const FBlueprintNode& Node, const FBlueprintPin&)
{
	return {"the function " + std::string(LastSegment(Node.Type, '.'))};
}

FExpression FExpressionWriter::EventOutput(const FBlueprintNode& Node, const FBlueprintPin& Pin)
{
	if (Pin.Type == "delegate")
	{
		return {"the event " + (Node.Name.empty() ? NodeTitle(Node) : Node.Name)};
	}
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
	const std::string Title = IsNodeType(Node, "call") ? FunctionTitle(Node)
		: IsNodeType(Node, "macro")                    ? std::string(LastSegment(Node.Type, '.'))
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

}
