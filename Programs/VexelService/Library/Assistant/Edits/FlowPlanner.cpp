#include "Assistant/Edits/FlowPlanner.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/MemberNames.h"
#include "Assistant/NameMatch.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

/** Words of a direction, and the vector with the amount in the place of "%". */
struct FDirection
{
	std::string_view Slot;
	std::string_view Before;
	std::string_view After;
};

constexpr FDirection Directions[] = {
	{"up", "0, 0, ", ""},
	{"down", "0, 0, -", ""},
	{"forward", "", ", 0, 0"},
	{"back", "-", ", 0, 0"},
	{"right", "0, ", ", 0"},
	{"left", "0, -", ", 0"},
};

std::string Shown(const FEditWords& Words) { return Quoted(Shortened(JoinWords(Words), 100)); }

bool Has(const FFlowStep& Step, std::string_view Slot) { return Step.Captures.find(Slot) != Step.Captures.end(); }

FEditWords Words(const FCaptures& Captures, std::string_view Slot)
{
	const auto Found = Captures.find(Slot);
	return Found == Captures.end() ? FEditWords() : Found->second;
}

std::string WithoutArticle(const FEditWords& Said)
{
	FEditWords Bare = Said;
	std::erase_if(Bare, [](const FEditWord& Word)
		{ return Word.bMark || IsWord(Word, "the|a|an|my|its|it|again"); });
	return JoinWords(Bare);
}

}

FFlowPlanner::FFlowPlanner(FProjectEditor& InEditor)
	: Editor(InEditor)
	, Values(InEditor, Result)
{
}

/** Which function plans the nodes of a step, by its kind. */
struct FStepBuilders
{
	EStepKind Kind;
	FFlowPlanner::FBuild Build;

	static FFlowPlanner::FBuild Find(EStepKind Kind)
	{
		static constexpr FStepBuilders Rows[] = {
			{EStepKind::Plain, &FFlowPlanner::BuildPlain},
			{EStepKind::SetVariable, &FFlowPlanner::BuildSet},
			{EStepKind::ChangeVariable, &FFlowPlanner::BuildChange},
			{EStepKind::ToggleVariable, &FFlowPlanner::BuildToggle},
			{EStepKind::Spawn, &FFlowPlanner::BuildSpawn},
			{EStepKind::Open, &FFlowPlanner::BuildOpen},
			{EStepKind::Call, &FFlowPlanner::BuildCall},
			{EStepKind::TimerByFunction, &FFlowPlanner::BuildTimer},
			{EStepKind::Loop, &FFlowPlanner::BuildLoop},
			{EStepKind::FlipFlop, &FFlowPlanner::BuildFlipFlop},
			{EStepKind::DoOnce, &FFlowPlanner::BuildDoOnce},
			{EStepKind::If, &FFlowPlanner::BuildIf},
		};
		return std::find_if(std::begin(Rows), std::end(Rows), [Kind](const FStepBuilders& Row)
			{ return Row.Kind == Kind; })
			->Build;
	}
};

/** Which function plans the beginning of a chain, by the kind of its event. */
struct FChainStarters
{
	EEventKind Kind;
	FFlowPlanner::FStart Start;

	static FFlowPlanner::FStart Find(EEventKind Kind)
	{
		static constexpr FChainStarters Rows[] = {
			{EEventKind::Actor, &FFlowPlanner::StartActorEvent},
			{EEventKind::Overlap, &FFlowPlanner::StartOverlap},
			{EEventKind::Key, &FFlowPlanner::StartKey},
			{EEventKind::Every, &FFlowPlanner::StartTimer},
			{EEventKind::Later, &FFlowPlanner::StartLater},
			{EEventKind::VariableChanges, &FFlowPlanner::StartChange},
			{EEventKind::Named, &FFlowPlanner::StartNamed},
		};
		return std::find_if(std::begin(Rows), std::end(Rows), [Kind](const FChainStarters& Row)
			{ return Row.Kind == Kind; })
			->Start;
	}
};

bool FFlowPlanner::Plan(const FFlowRequest& Request)
{
	for (const FFlowChain& Chain : Request.Chains)
	{
		WantVariables(Chain.Steps);
	}
	for (const FFlowChain& Chain : Request.Chains)
	{
		if (!PlanChain(Chain) || Editor.GetReader().IsOver())
		{
			return false;
		}
	}
	MakeComponents();
	return GetProblems().empty();
}

/** What a request changes it may as well make; what it only reads must be there, or be changed elsewhere in the request. */
void FFlowPlanner::WantVariables(const FFlowSteps& Steps)
{
	for (const FFlowStep& Step : Steps)
	{
		for (const FFlowSteps& Body : Step.Bodies)
		{
			WantVariables(Body);
		}
		const bool bChanges = Step.Action && Step.Action->Kind == EStepKind::ChangeVariable;
		const bool bSets = Step.Action && Step.Action->Kind == EStepKind::SetVariable;
		if (!bChanges && !bSets)
		{
			continue;
		}
		const std::string Name = CapturedText(Step.Captures, "variable");
		if (IsOneOf(Name, "it|that"))
		{
			continue;
		}
		if (bChanges)
		{
			Values.WantVariable(Name, "real", Step.Action->Start);
			continue;
		}
		const FEditWords Said = Words(Step.Captures, "value");
		const bool bText = Said.size() == 1 && Said.front().bQuoted;
		const bool bNumber = ReadNumber(JoinWords(Said)).has_value();
		const bool bVariable = Values.FindVariable(JoinWords(Said)).has_value();
		const bool bBoolean = Said.empty() || IsOneOf(JoinWords(Said), "true|false|on|off|yes|no");
		if (bText || bNumber || bBoolean)
		{
			Values.WantVariable(Name, bText ? "string" : bNumber ? "real"
																 : "bool",
				"");
		}
		else if (bVariable)
		{
			Values.WantVariable(Name, Values.FindVariable(JoinWords(Said))->Type, "");
		}
	}
}

bool FFlowPlanner::PlanChain(const FFlowChain& Chain)
{
	Ends.clear();
	Scope = {};
	Open.clear();
	if (!(this->*FChainStarters::Find(Chain.Event->Kind))(Chain))
	{
		return false;
	}
	BuildSteps(Chain.Steps);
	CloseStart();
	return true;
}

void FFlowPlanner::BuildSteps(const FFlowSteps& Steps)
{
	for (const FFlowStep& Step : Steps)
	{
		BuildStep(Step);
	}
}

void FFlowPlanner::BuildStep(const FFlowStep& Step)
{
	// A function of the Blueprint's own that is called exactly so is what was meant, whatever else the words could say.
	const std::optional<FCallable> Own = Step.Bodies.empty() ? FindCallable(Model(), WithoutArticle(Step.Words), true) : std::nullopt;
	if (Own)
	{
		AppendCall(*Own, Step);
		return;
	}
	if (!Step.Action)
	{
		const std::optional<FCallable> Near = FindCallable(Model(), WithoutArticle(Step.Words), false);
		Near ? AppendCall(*Near, Step) : Values.AddProblem("I do not know how to do " + Shown(Step.Words) + ".");
		return;
	}
	(this->*FStepBuilders::Find(Step.Action->Kind))(Step);
}

void FFlowPlanner::LinkEnds(FPlanIndex Node, std::string_view Input)
{
	for (const FPlanPin& End : Ends)
	{
		Result.AddLink(End.Node, End.Pin, Node, Input);
	}
	Ends.clear();
}

FPlanIndex FFlowPlanner::Append(std::string_view Type, std::string_view Input, std::string_view Output)
{
	const FPlanIndex Node = Values.AddNode(Scope, Type);
	LinkEnds(Node, Input);
	if (!Output.empty())
	{
		Ends = {{Node, std::string(Output)}};
	}
	return Node;
}

void FFlowPlanner::AddValues(FPlanNode& Node, std::string_view Text)
{
	while (!Text.empty())
	{
		const std::string_view Pair = Text.substr(0, Text.find(';'));
		const std::size_t Equals = Pair.find('=');
		Node.PinValues.emplace_back(Pair.substr(0, Equals), Pair.substr(Equals + 1));
		Text.remove_prefix(std::min(Text.size(), Pair.size() + 1));
	}
}

FPlanIndex FFlowPlanner::AppendFor(const FAction& Action, const FPlanValue& Target)
{
	const bool bComponent = Target.IsComponent() && !Action.ComponentType.empty();
	const FPlanIndex Node = Append(bComponent ? Action.ComponentType : Action.Type);
	AddValues(Result.Nodes[Node], bComponent ? Action.ComponentValues : Action.Values);
	return Node;
}

FPlanValue FFlowPlanner::ReadSlot(const FFlowStep& Step, const FActionPin& Pin)
{
	if (Pin.Slot == "offset")
	{
		for (const FDirection& Direction : Directions)
		{
			const std::optional<std::string> Amount = ReadNumber(CapturedText(Step.Captures, Direction.Slot));
			if (Has(Step, Direction.Slot) && Amount)
			{
				return {
					.Literal = std::string(Direction.Before) + *Amount + std::string(Direction.After), .Pin = {}, .Type = "struct.Vector"};
			}
		}
	}
	if (Pin.Slot == "seconds" && Has(Step, "minutes"))
	{
		const std::optional<std::string> Minutes = ReadNumber(CapturedText(Step.Captures, "minutes"));
		const std::string Seconds = Minutes ? TrimmedNumber(std::to_string(std::atof(Minutes->c_str()) * 60)) : std::string();
		return {.Literal = Seconds, .Pin = {}, .Type = "real"};
	}
	return Has(Step, Pin.Slot) ? Values.Read(Words(Step.Captures, Pin.Slot), Pin.Kind, Scope) : FPlanValue();
}

void FFlowPlanner::BuildPlain(const FFlowStep& Step)
{
	// Values stand in front of what they flow into.
	std::vector<std::pair<const FActionPin*, FPlanValue>> Read;
	FPlanValue Target;
	for (const FActionPin& Pin : Step.Action->Pins)
	{
		if (Pin.Kind != EValueKind::None)
		{
			Read.emplace_back(&Pin, ReadSlot(Step, Pin));
			Target = Pin.Pin == "self" ? Read.back().second : Target;
		}
	}
	const FPlanIndex Node = AppendFor(*Step.Action, Target);
	for (const auto& [Pin, Value] : Read)
	{
		Values.Fill(Node, Pin->Pin, Value);
	}
}

void FFlowPlanner::SetVariable(const FBlueprintVariable& Variable, const FPlanValue& Value)
{
	LastVariable = Variable.Id;
	const FPlanIndex Node = Append("var.set." + Variable.Id);
	Values.Fill(Node, Variable.Id, Value);
}

void FFlowPlanner::BuildSet(const FFlowStep& Step)
{
	std::string Said = CapturedText(Step.Captures, "variable");
	Said = IsOneOf(Said, "it|that") && !LastVariable.empty() ? LastVariable : Said;
	FEditWords Value = Words(Step.Captures, "value");
	if (Value.empty() && !Step.Words.empty())
	{
		Value = {Step.Words.back()};
	}
	const std::optional<FBlueprintVariable> Variable = Values.FindVariable(Said);
	if (!Variable)
	{
		Values.AddProblem("The Blueprint has no variable called " + Quoted(Shortened(Said, 100)) + ", and " + Shown(Value) +
			" does not tell what sort of variable it would be.");
		return;
	}
	struct FKindOfType
	{
		std::string_view Type;
		EValueKind Kind;
	};
	static constexpr FKindOfType Kinds[] = {{"bool", EValueKind::Boolean}, {"real", EValueKind::Number}, {"int", EValueKind::Integer},
		{"string", EValueKind::Text}, {"text", EValueKind::Text}, {"name", EValueKind::Name}, {"struct.Vector", EValueKind::Vector},
		{"struct.Rotator", EValueKind::Rotator}};
	const auto Kind =
		std::find_if(std::begin(Kinds), std::end(Kinds), [&Variable](const FKindOfType& Row)
			{ return Row.Type == Variable->Type; });
	const bool bObject = StartsWith(Variable->Type, "object.");
	const EValueKind ValueKind = Kind != std::end(Kinds) ? Kind->Kind : bObject ? EValueKind::Object
																				: EValueKind::None;
	SetVariable(*Variable, Values.Read(Value, ValueKind, Scope));
}

void FFlowPlanner::BuildChange(const FFlowStep& Step)
{
	const std::optional<FBlueprintVariable> Variable = Values.FindVariable(CapturedText(Step.Captures, "variable"));
	if (!Variable)
	{
		Values.AddProblem("The Blueprint has no variable called " + Shown(Words(Step.Captures, "variable")) + ".");
		return;
	}
	const FPlanValue Before = Values.ReadVariable(*Variable, Scope);
	const FPlanValue Amount =
		Values.Read(Words(Step.Captures, "value"), Variable->Type == "int" ? EValueKind::Integer : EValueKind::Number, Scope);
	const FPlanIndex Operation = Values.AddNode(Scope, Step.Action->Type);
	Values.Fill(Operation, "A", Before);
	Values.Fill(Operation, "B", Amount);
	SetVariable(*Variable, {.Literal = {}, .Pin = FPlanPin{Operation, "ReturnValue"}});
}

void FFlowPlanner::BuildToggle(const FFlowStep& Step)
{
	const std::string Said = CapturedText(Step.Captures, "target");
	const std::optional<FBlueprintVariable> Variable = Values.FindVariable(Said);
	if (Variable && Variable->Type == "bool")
	{
		const FPlanIndex Not = Values.AddNode(Scope, "call.KismetMathLibrary.Not_PreBool");
		Values.Fill(Not, "A", Values.ReadVariable(*Variable, Scope));
		SetVariable(*Variable, {.Literal = {}, .Pin = FPlanPin{Not, "ReturnValue"}});
		return;
	}
	FPlanValue Target = Values.Read(Words(Step.Captures, "target"), EValueKind::Object, Scope);
	if (Target.IsEmpty())
	{
		// The actor itself is seen with all that hangs at its root.
		const FPlanIndex Root = Values.AddNode(Scope, "call.Actor.K2_GetRootComponent");
		Target = {.Literal = {}, .Pin = FPlanPin{Root, "ReturnValue"}, .Type = "object.SceneComponent"};
	}
	const FPlanIndex Node = AppendFor(*Step.Action, Target);
	Values.Fill(Node, "self", Target);
}

void FFlowPlanner::BuildSpawn(const FFlowStep& Step)
{
	const FPlanValue Class = ReadSlot(Step, Step.Action->Pins.front());
	const FEditWords Place = Words(Step.Captures, "place");
	const bool bHere = Place.empty() ||
		IsOneOf(JoinWords(Place),
			"here|its transform|own transform|its place|itself|its location|its position|this location|actor location|my location");
	FPlanValue Transform;
	if (bHere)
	{
		Transform = {.Literal = {}, .Pin = FPlanPin{Values.AddNode(Scope, "call.Actor.GetTransform"), "ReturnValue"}};
	}
	else
	{
		const FPlanValue Location = Values.Read(Place, EValueKind::Vector, Scope);
		const FPlanIndex Make = Values.AddNode(Scope, "call.KismetMathLibrary.MakeTransform");
		Values.Fill(Make, "Location", Location);
		Transform = {.Literal = {}, .Pin = FPlanPin{Make, "ReturnValue"}};
	}
	const FPlanIndex Node = AppendFor(*Step.Action, {});
	Values.Fill(Node, "Class", Class);
	Values.Fill(Node, "SpawnTransform", Transform);
}

void FFlowPlanner::BuildOpen(const FFlowStep& Step)
{
	const std::optional<FCallable> Own = FindCallableByVerb(Model(), Step.Action->Id);
	const std::string Said = CapturedText(Step.Captures, "target");
	if (Own && (MeansSelf(Model(), Said) || CompactName(Own->Name).find(CompactName(Said)) != std::string::npos))
	{
		AppendCall(*Own, Step);
		return;
	}
	Result.AddNote("The Blueprint has no function to " + std::string(Step.Action->Id) + ", so I turn " +
		(MeansSelf(Model(), Said) ? "the actor" : Quoted(Shortened(Said, 100))) + " by 90 degrees.");
	BuildPlain(Step);
}

void FFlowPlanner::AppendCall(const FCallable& Callable, const FFlowStep& Step)
{
	const std::string Prefix = Callable.Kind == ECallableKind::Dispatcher ? "delegate.call." : "call.";
	const FBlueprintGraph* const Graph = Model().FindGraph(Callable.Graph);
	std::string FirstInput;
	for (const FBlueprintVariable& Input :
		Graph&& Callable.Kind == ECallableKind::Function ? Graph->Variables : std::vector<FBlueprintVariable>())
	{
		FirstInput = FirstInput.empty() && Input.Scope == "in" ? Input.Id : FirstInput;
	}
	FPlanValue Argument;
	if (Has(Step, "argument") && !FirstInput.empty())
	{
		Argument = Values.Read(Words(Step.Captures, "argument"), EValueKind::None, Scope);
	}
	const FPlanIndex Node = Append(Prefix + Model().Name + "." + Callable.Name);
	Values.Fill(Node, FirstInput, Argument);
}

void FFlowPlanner::BuildCall(const FFlowStep& Step)
{
	const std::string Said = CapturedText(Step.Captures, "name");
	const std::optional<FCallable> Callable = FindCallable(Model(), Said, false);
	if (!Callable)
	{
		Values.AddProblem(
			"**" + Model().Name + "** has no function, custom event or dispatcher called " + Quoted(Shortened(Said, 100)) + ".");
		return;
	}
	if (!SameName(Said, Callable->Name))
	{
		Result.AddNote("I take " + Quoted(Shortened(Said, 100)) + " to mean **" + Callable->Name + "**.");
	}
	AppendCall(*Callable, Step);
}

void FFlowPlanner::BuildTimer(const FFlowStep& Step)
{
	const std::string Said = CapturedText(Step.Captures, "name");
	const std::optional<FCallable> Callable = FindCallable(Model(), Said, false);
	if (!Callable || Callable->Kind == ECallableKind::Dispatcher)
	{
		Values.AddProblem(
			"**" + Model().Name + "** has no function or custom event called " + Quoted(Shortened(Said, 100)) + " for a timer to call.");
		return;
	}
	const FPlanValue Seconds = ReadSlot(Step, Step.Action->Pins.front());
	const FPlanIndex Self = Values.AddNode(Scope, "var.self");
	const FPlanIndex Node = AppendFor(*Step.Action, {});
	Values.Fill(Node, "FunctionName", {.Literal = Callable->Name, .Pin = {}});
	Values.Fill(Node, "Time", Seconds);
	Result.AddLink(Self, "self", Node, "Object");
}

void FFlowPlanner::BuildLoop(const FFlowStep& Step)
{
	const FPlanValue First = ReadSlot(Step, Step.Action->Pins[0]);
	const FPlanValue Last = ReadSlot(Step, Step.Action->Pins[1]);
	const FPlanIndex Node = Append(Step.Action->Type, "execute", "LoopBody");
	Values.Fill(Node, "FirstIndex", First);
	Values.Fill(Node, "LastIndex", Last);
	Scope.Outputs["Index"] = {Node, "Index", "int"};
	BuildSteps(Step.Bodies.front());
	Scope.Outputs.erase("Index");
	Ends = {{Node, "Completed"}};
}

void FFlowPlanner::BuildFlipFlop(const FFlowStep& Step)
{
	const FPlanIndex Node = Append(Step.Action->Type, "None", "A");
	BuildSteps(Step.Bodies[0]);
	FEnds Both = std::move(Ends);
	Ends = {{Node, "B"}};
	BuildSteps(Step.Bodies[1]);
	Ends.insert(Ends.end(), Both.begin(), Both.end());
}

void FFlowPlanner::BuildDoOnce(const FFlowStep& Step)
{
	Append(Step.Action->Type, "execute", "Completed");
	BuildSteps(Step.Bodies.front());
}

void FFlowPlanner::BuildIf(const FFlowStep& Step)
{
	const FPlanValue Condition = Values.ReadCondition(Words(Step.Captures, "condition"), Scope);
	const FPlanIndex Node = Append(Step.Action->Type);
	Values.Fill(Node, "Condition", Condition);
	const bool bUnless = Has(Step, "unless");
	Ends = {{Node, bUnless ? "else" : "then"}};
	BuildSteps(Step.Bodies[0]);
	FEnds Both = std::move(Ends);
	Ends = {{Node, bUnless ? "then" : "else"}};
	BuildSteps(Step.Bodies[1]);
	Ends.insert(Ends.end(), Both.begin(), Both.end());
}

bool FFlowPlanner::HasParent(std::string_view Class)
{
	const std::vector<std::string>& Chain = Model().ParentChain;
	return std::any_of(Chain.begin(), Chain.end(), [Class](const std::string& Parent)
		{ return EqualIgnoringCase(Parent, Class); });
}

}
