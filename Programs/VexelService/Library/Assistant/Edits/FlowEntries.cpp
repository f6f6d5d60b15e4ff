#include "Assistant/Edits/FlowPlanner.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/MemberNames.h"
#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

// A chain that is longer goes round in a circle.
constexpr std::size_t MaxChain = 2000;

/** What events give, as node types that are yet to be made cannot be asked for it. */
struct FEventOutput
{
	std::string_view Event;
	std::string_view Pin;
	std::string_view Type;
};

constexpr FEventOutput EventOutputs[] = {
	{"event.Actor.ReceiveTick", "DeltaSeconds", "real"},
	{"event.Actor.ReceiveActorBeginOverlap", "OtherActor", "object.Actor"},
	{"event.Actor.ReceiveActorEndOverlap", "OtherActor", "object.Actor"},
	{"event.PrimitiveComponent.OnComponentBeginOverlap", "OtherActor", "object.Actor"},
	{"event.PrimitiveComponent.OnComponentBeginOverlap", "OtherComp", "object.PrimitiveComponent"},
	{"event.PrimitiveComponent.OnComponentEndOverlap", "OtherActor", "object.Actor"},
	{"event.PrimitiveComponent.OnComponentEndOverlap", "OtherComp", "object.PrimitiveComponent"},
	{"event.PrimitiveComponent.OnComponentHit", "OtherActor", "object.Actor"},
	{"event.Actor.ReceiveHit", "Other", "object.Actor"},
	{"event.Actor.ReceiveHit", "HitLocation", "struct.Vector"},
	{"event.Actor.ReceiveHit", "HitNormal", "struct.Vector"},
	{"event.Actor.ReceiveAnyDamage", "Damage", "real"},
	{"event.Actor.ReceiveAnyDamage", "DamageCauser", "object.Actor"},
};

/** "Spawns BP_Enemy" as "spawn BP_Enemy". */
FEditWords ToImperative(FEditWords Words)
{
	std::string& Verb = Words.front().Text;
	const bool bThirdPerson = !Words.front().bQuoted && Verb.size() > 3 && Verb.back() == 's' && Verb[Verb.size() - 2] != 's';
	Verb.resize(Verb.size() - (bThirdPerson ? 1 : 0));
	return Words;
}

std::string Name(const FFlowChain& Chain, std::string_view Slot) { return CapturedText(Chain.Captures, Slot); }

/** Where more can be put behind a chain of steps. */
struct FChainEnd
{
	const FBlueprintNode* Node = nullptr;
	const FBlueprintPin* Pin = nullptr;
	/** The pin leads to a node from which several ways lead on, so that nothing comes behind all of them. */
	bool bForks = false;
};

const FBlueprintPin* OnlyWayOn(const FBlueprintNode& Node, bool& bForks)
{
	const FBlueprintPin* Way = nullptr;
	for (const FBlueprintPin& Pin : Node.Pins)
	{
		if (Pin.IsExec() && !Pin.bInput)
		{
			// Behind a loop all goes on where it is completed, whatever its body does.
			const bool bCompleted = EqualIgnoringCase(Pin.Id, "Completed");
			bForks |= Way && !bCompleted && !EqualIgnoringCase(Way->Id, "Completed");
			Way = bCompleted || !Way ? &Pin : Way;
		}
	}
	return Way;
}

const FBlueprintPin* FindFreeWay(const FBlueprintNode& Sequence)
{
	const auto Free = std::find_if(Sequence.Pins.begin(), Sequence.Pins.end(),
		[](const FBlueprintPin& Pin)
		{ return Pin.IsExec() && !Pin.bInput && Pin.Links.empty(); });
	return Free == Sequence.Pins.end() ? nullptr : &*Free;
}

FChainEnd FindChainEnd(const FBlueprintGraph& Graph, const FBlueprintNode& Start, std::string_view StartPin)
{
	FChainEnd End{.Node = &Start, .Pin = Start.FindOutput(StartPin)};
	for (std::size_t Step = 0; Step < MaxChain && End.Pin && !End.Pin->Links.empty(); ++Step)
	{
		const FBlueprintNode* const Next = Graph.FindNode(End.Pin->Links.front().Node);
		bool bForks = false;
		const FBlueprintPin* const Way = Next ? OnlyWayOn(*Next, bForks) : nullptr;
		const FBlueprintPin* const Free = Next && Next->Type == "flow.sequence" ? FindFreeWay(*Next) : nullptr;
		if (Free)
		{
			return {.Node = Next, .Pin = Free};
		}
		if (bForks || !Way)
		{
			break;
		}
		End = {.Node = Next, .Pin = Way};
	}
	End.bForks = !End.Pin || !End.Pin->Links.empty();
	return End;
}

}

void FFlowPlanner::NoteOutputs(FPlanIndex Node, std::string_view Type)
{
	for (const FEventOutput& Row : EventOutputs)
	{
		if (StartsWith(Type, Row.Event))
		{
			Scope.Outputs[std::string(Row.Pin)] = {Node, std::string(Row.Pin), std::string(Row.Type)};
		}
	}
}

void FFlowPlanner::GoOnBehind(const std::string& GraphId, const std::string& NodeId, std::string_view Pin)
{
	const FBlueprintGraph& Graph = *Model().FindGraph(GraphId);
	const FBlueprintNode& Node = *Graph.FindNode(NodeId);
	Scope.Graph = GraphId;
	const FPlanIndex Start = Result.AddNode({.Graph = GraphId, .Type = Node.Type, .Existing = NodeId});
	Entries.push_back({GraphId, Start, true});
	for (const FBlueprintPin& Output : Node.Pins)
	{
		if (!Output.bInput && !Output.IsExec() && Output.Type != "delegate")
		{
			Scope.Outputs[Output.Id] = {Start, Output.Id, Output.Type};
		}
	}
	const FChainEnd End = FindChainEnd(Graph, Node, Pin);
	if (!End.Pin)
	{
		Values.AddProblem("**" + NodeTitle(Node) + "** has no way on that I could follow.");
		return;
	}
	const FPlanIndex Last =
		End.Node == &Node ? Start : Result.AddNode({.Graph = GraphId, .Type = End.Node->Type, .Existing = End.Node->Id});
	if (!End.bForks)
	{
		Ends = {{Last, End.Pin->Id}};
		return;
	}
	// Where the ways part, a sequence in front of them does the new steps when the old ones are done.
	const FPlanIndex Sequence = Result.AddNode({.Graph = GraphId, .Type = "flow.sequence"});
	Result.AddLink(Last, End.Pin->Id, Sequence, "execute");
	for (const FPinLink& Old : End.Pin->Links)
	{
		const FPlanIndex Target = Result.AddNode({.Graph = GraphId, .Type = {}, .Existing = Old.Node});
		Result.AddLink(Sequence, "then_0", Target, Old.Pin);
		Result.Replaced.push_back({GraphId, {End.Node->Id, End.Pin->Id, Old.Node, Old.Pin}});
	}
	Ends = {{Sequence, "then_1"}};
}

bool FFlowPlanner::StartAt(const std::string& Type, std::string_view Pin)
{
	// Of custom events there may be any number, so a new one is meant.
	const bool bCustom = Type == "event.custom";
	const std::string Key = Type + " " + std::string(Pin);
	const auto Known = std::find_if(Started.begin(), Started.end(), [&](const FStarted& Start)
		{ return !bCustom && Start.Key == Key; });
	if (Known != Started.end())
	{
		Scope = Known->Scope;
		Ends = Known->Ends;
		Open = Key;
		return true;
	}
	Open = bCustom ? std::string() : Key;
	const FFoundNode Found = bCustom ? FFoundNode() : FindNodeOfType(Model(), Type);
	if (Found.Node)
	{
		GoOnBehind(Found.Graph->Id, Found.Node->Id, Pin);
		NoteOutputs(Entries.back().Node, Type);
		return true;
	}
	const FBlueprintGraph* const Graph = FindEventGraph(Model());
	if (!Graph)
	{
		Values.AddProblem("**" + Model().Name + "** has no event graph, so nothing can happen on an event there.");
		return false;
	}
	Scope.Graph = Graph->Id;
	// The other pin of a key, or the event of another chain: one node has both.
	const auto Planned = std::find_if(Entries.begin(), Entries.end(),
		[&](const FEntry& Entry)
		{ return !bCustom && EqualIgnoringCase(Result.Nodes[Entry.Node].Type, Type); });
	const FPlanIndex Node = Planned == Entries.end() ? Values.AddNode(Scope, Type) : Planned->Node;
	if (Planned == Entries.end())
	{
		Entries.push_back({Graph->Id, Node, false});
	}
	NoteOutputs(Node, Type);
	Ends = {{Node, std::string(Pin)}};
	return true;
}

void FFlowPlanner::CloseStart()
{
	if (Open.empty())
	{
		return;
	}
	const auto Known = std::find_if(Started.begin(), Started.end(), [this](const FStarted& Start)
		{ return Start.Key == Open; });
	if (Known == Started.end())
	{
		Started.push_back({Open, Scope, Ends});
	}
	else
	{
		Known->Ends = Ends;
	}
	Open.clear();
}

void FFlowPlanner::MakeComponents()
{
	for (const FValuePlanner::FMissingComponent& Missing : Values.GetMissing())
	{
		Scope = {};
		Ends.clear();
		if (!StartAt("event.Actor.ReceiveBeginPlay", "then"))
		{
			return;
		}
		const FPlanIndex Place = Values.AddNode(Scope, "call.KismetMathLibrary.MakeTransform");
		const FPlanIndex Add = Append("call.add_component." + Missing.Class);
		Result.AddLink(Place, "ReturnValue", Add, "RelativeTransform");
		SetVariable(Missing.Variable, {.Literal = {}, .Pin = FPlanPin{Add, "ReturnValue"}});
		Result.AddNote("**" + Model().Name + "** has no component called " + Quoted(Shortened(Missing.Said, 100)) + ", so it adds a " +
			SpacedName(Missing.Class) + " when play begins and keeps it in **" + Missing.Variable.Id + "**.");
		CloseStart();
	}
}

bool FFlowPlanner::StartActorEvent(const FFlowChain& Chain) { return StartAt(std::string(Chain.Event->Type), Chain.Event->Pin); }

bool FFlowPlanner::StartOverlap(const FFlowChain& Chain)
{
	const FBlueprintGraph* const Graph = FindEventGraph(Model());
	const std::string What = Name(Chain, "what");
	Scope.Graph = Graph ? Graph->Id : std::string();
	const bool bComponent = Graph && !MeansSelf(Model(), What) && !IsOneOf(What, "something|anything|someone|player|you|us");
	if (!bComponent)
	{
		if (!StartAt(std::string(Chain.Event->Type), Chain.Event->Pin))
		{
			return false;
		}
		FilterOther(Chain, Chain.Event->OtherPin);
		return true;
	}
	const FPlanValue Component = Values.Read(Chain.Captures.find("what")->second, EValueKind::Object, Scope);
	if (!Component.IsComponent())
	{
		Values.AddProblem("I do not know what " + Quoted(Shortened(What, 100)) + " is: it is no component whose overlaps I could follow.");
		return false;
	}
	const std::string ComponentName = Component.Pin->Pin;
	// The node that told of the component is not needed: its event knows it by name.
	if (!StartAt(std::string(Chain.Event->ComponentType) + "." + ComponentName, Chain.Event->Pin))
	{
		return false;
	}
	FilterOther(Chain, Chain.Event->ComponentOtherPin);
	return true;
}

void FFlowPlanner::FilterOther(const FFlowChain& Chain, std::string_view OtherPin)
{
	const auto Other = Scope.Outputs.find(OtherPin);
	const std::string Who = Name(Chain, "who");
	const bool bAnyone = Who.empty() ||
		IsOneOf(Who, "something|anything|someone|anyone|it|actor|other actor|another actor|anybody|somebody|object|an actor|any actor");
	if (bAnyone || Other == Scope.Outputs.end() || MeansSelf(Model(), Who))
	{
		return;
	}
	const FPlanPin Actor = Other->second;
	if (IsOneOf(Who, "player|player's|player character|player pawn|i|you|we|user"))
	{
		const FPlanValue Condition = Values.IsPlayer(Actor, Scope);
		const FPlanIndex Branch = Append("flow.if");
		Values.Fill(Branch, "Condition", Condition);
		return;
	}
	const FPlanValue Class = Values.Read({{.Text = Who}}, EValueKind::Class, Scope);
	const FPlanIndex Cast = Append("cast." + ShortName(Class.Literal) + (StartsWith(Class.Literal, "/Script/") ? "" : "_C"));
	Values.Fill(Cast, "Object", {.Literal = {}, .Pin = Actor});
}

bool FFlowPlanner::StartKey(const FFlowChain& Chain)
{
	const std::string Said = Chain.Captures.contains("key") ? Name(Chain, "key") : JoinWords(Chain.EventWords);
	const std::optional<std::string> Key = FindKey(Said);
	if (!Key)
	{
		Values.AddProblem("I know no key called " + Quoted(Shortened(Said, 100)) + ".");
		return false;
	}
	if (!StartAt(std::string(Chain.Event->Type) + "." + *Key, Chain.Event->Pin))
	{
		return false;
	}
	EnableInput();
	return true;
}

/** Keys reach pawns and controllers by themselves, any other actor only when it asks for them. */
void FFlowPlanner::EnableInput()
{
	if (HasParent("Pawn") || HasParent("Controller") || HasParent("LevelScriptActor"))
	{
		return;
	}
	const bool bPlanned = std::any_of(Result.Properties.begin(), Result.Properties.end(),
		[](const FPlanProperty& Property)
		{ return Property.Path == "$ClassDefaultObject.AutoReceiveInput"; });
	if (!bPlanned)
	{
		Result.Properties.push_back({"$ClassDefaultObject.AutoReceiveInput", "Player0",
			"Set **Auto Receive Input** to Player 0: an actor that is no pawn hears no keys without it.",
			"Set **Auto Receive Input** of **" + Model().Name +
				"** to Player 0 in its class defaults: without it, it hears no keys. I could not do that."});
	}
}

bool FFlowPlanner::StartTimer(const FFlowChain& Chain)
{
	FFlowStep Times{.Captures = Chain.Captures};
	if (!Times.Captures.contains("seconds") && !Times.Captures.contains("minutes"))
	{
		Times.Captures[IsOneOf(JoinWords(Chain.EventWords), "every minute|each minute") ? "minutes" : "seconds"] = {{.Text = "1"}};
	}
	if (!StartAt("event.Actor.ReceiveBeginPlay", "then"))
	{
		return false;
	}
	const FPlanValue Seconds = ReadSlot(Times, {"seconds", "Time", EValueKind::Number});
	const FPlanIndex Timer = Append("call.KismetSystemLibrary.K2_SetTimerDelegate");
	Values.Fill(Timer, "Time", Seconds);
	Values.Fill(Timer, "bLooping", {.Literal = "true", .Pin = {}});
	std::string EventName = Chain.Steps.empty() ? std::string() : ToMemberName(JoinWords(ToImperative(Chain.Steps.front().Words)).substr(0, 30));
	EventName = UniqueMemberName(Model(), EventName.empty() ? "OnTimer" : EventName);
	const FPlanIndex Event = Result.AddNode({.Graph = Scope.Graph, .Type = "event.custom", .EventName = EventName});
	Result.AddLink(Event, "OutputDelegate", Timer, "Delegate");
	CloseStart();
	Entries.push_back({Scope.Graph, Event, false});
	Scope.Outputs.clear();
	Ends = {{Event, "then"}};
	return true;
}

bool FFlowPlanner::StartLater(const FFlowChain& Chain)
{
	if (!StartAt(std::string(Chain.Event->Type), Chain.Event->Pin))
	{
		return false;
	}
	const FPlanValue Seconds = ReadSlot({.Captures = Chain.Captures}, {"seconds", "Duration", EValueKind::Number});
	Values.Fill(Append("call.KismetSystemLibrary.Delay"), "Duration", Seconds);
	return true;
}

bool FFlowPlanner::StartNamed(const FFlowChain& Chain)
{
	if (const std::string NewFunction = Name(Chain, NewFunctionSlot); !NewFunction.empty())
	{
		const std::string Function = ToMemberName(NewFunction);
		if (Function.empty() || FindCallable(Model(), NewFunction, true))
		{
			Values.AddProblem(Function.empty() ? Quoted(Shortened(NewFunction, 100)) + " is no name for a function."
											   : "**" + Model().Name + "** has a function or event called **" + Function + "** already.");
			return false;
		}
		Result.NewFunctions.push_back(Function);
		return StartFunction(Function, true);
	}
	const std::string Said = Name(Chain, "name");
	if (const std::optional<FCallable> Callable = FindCallable(Model(), Said, true);
		Callable && Callable->Kind != ECallableKind::Dispatcher)
	{
		const bool bFunction = Callable->Kind == ECallableKind::Function;
		if (!bFunction)
		{
			GoOnBehind(Callable->Graph, Callable->Node, "then");
		}
		return !bFunction || StartFunction(Callable->Graph, false);
	}
	const bool bCustom = LowerCase(JoinWords(Chain.EventWords)).find("event") != std::string::npos;
	const std::string EventName = ToMemberName(Said);
	if (!bCustom || EventName.empty())
	{
		Values.AddProblem("**" + Model().Name + "** has no custom event or function called " + Quoted(Shortened(Said, 100)) + ".");
		return false;
	}
	return StartEventNamed(EventName);
}

bool FFlowPlanner::StartEventNamed(const std::string& EventName)
{
	if (!StartAt("event.custom", "then"))
	{
		return false;
	}
	Result.Nodes[Entries.back().Node].EventName = EventName;
	return true;
}

bool FFlowPlanner::StartFunction(const std::string& GraphId, bool bNew)
{
	Scope.Graph = GraphId;
	if (bNew)
	{
		const FPlanIndex Entry = Result.AddNode({.Graph = GraphId, .Type = "graph.entry"});
		Entries.push_back({GraphId, Entry, false});
		Ends = {{Entry, "then"}};
		return true;
	}
	const FBlueprintGraph* const Graph = Model().FindGraph(GraphId);
	const auto Entry =
		std::find_if(Graph->Nodes.begin(), Graph->Nodes.end(), [](const FBlueprintNode& Node)
			{ return Node.Type == "graph.entry"; });
	if (Entry == Graph->Nodes.end())
	{
		Values.AddProblem("The function **" + GraphId + "** has no entry that I could go on from.");
		return false;
	}
	GoOnBehind(GraphId, std::string(Entry->Id), "then");
	return true;
}

bool FFlowPlanner::StartChange(const FFlowChain& Chain)
{
	std::optional<FBlueprintVariable> Variable = Values.FindVariable(Name(Chain, "variable"));
	if (!Variable && MeansSelf(Model(), Name(Chain, "variable")))
	{
		// "When the door is locked" is about the variable Locked.
		Variable = Values.FindVariable(JoinWords(ReadComparison(Chain.EventWords).Right));
	}
	if (!Variable)
	{
		Values.AddProblem("I know no event " + Quoted(Shortened(JoinWords(Chain.EventWords), 100)) + ", and **" + Model().Name +
			"** has no variable of that name that could change.");
		return false;
	}
	const std::string Event = UniqueMemberName(Model(), "On" + ToMemberName(SpacedName(Variable->Id)) + "Changed");
	if (!StartEventNamed(Event))
	{
		return false;
	}
	CallAtEachChange(*Variable, Event);
	if (Chain.Captures.contains("condition"))
	{
		const FPlanValue Condition = Values.ReadCondition(Chain.Captures.find("condition")->second, Scope);
		Values.Fill(Append("flow.if"), "Condition", Condition);
	}
	return true;
}

/** The same of steps that this request makes; answers how many there are. */
std::size_t FFlowPlanner::CallBehindPlanned(const FBlueprintVariable& Variable, const std::string& Event)
{
	std::size_t Count = 0;
	const std::size_t NumNodes = Result.Nodes.size();
	for (FPlanIndex Setter = 0; Setter < NumNodes; ++Setter)
	{
		const FPlanNode& Node = Result.Nodes[Setter];
		if (!Node.Existing.empty() || !EqualIgnoringCase(Node.Type, "var.set." + Variable.Id))
		{
			continue;
		}
		const FPlanIndex Call =
			Result.AddNode({.Graph = Result.Nodes[Setter].Graph, .Type = "call." + Model().Name + "." + Event, .bAfterOthers = true});
		for (FPlanLink& Link : Result.Links)
		{
			Link.From = Link.From == Setter && Link.FromPin == "then" ? Call : Link.From;
		}
		for (FStarted& Start : Started)
		{
			for (auto& End : Start.Ends)
			{
				End.Node = End.Node == Setter && End.Pin == "then" ? Call : End.Node;
			}
		}
		Result.AddLink(Setter, "then", Call, "execute");
		++Count;
	}
	return Count;
}

/** A Blueprint tells nobody that a variable changes, so each step that sets it calls the event behind itself. */
void FFlowPlanner::CallAtEachChange(const FBlueprintVariable& Variable, const std::string& Event)
{
	std::size_t Count = 0;
	for (const FBlueprintGraph& Graph : Model().Graphs)
	{
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			if (!EqualIgnoringCase(Node.Type, "var.set." + Variable.Id))
			{
				continue;
			}
			const FPlanIndex Setter = Result.AddNode({.Graph = Graph.Id, .Type = Node.Type, .Existing = Node.Id});
			const FPlanIndex Call = Result.AddNode({.Graph = Graph.Id, .Type = "call." + Model().Name + "." + Event, .bAfterOthers = true});
			Result.AddLink(Setter, "then", Call, "execute");
			const FBlueprintPin* const Then = Node.FindOutput("then");
			for (const FPinLink& Next : Then ? Then->Links : std::vector<FPinLink>())
			{
				const FPlanIndex Behind = Result.AddNode({.Graph = Graph.Id, .Type = {}, .Existing = Next.Node});
				Result.AddLink(Call, "then", Behind, Next.Pin);
				Result.Replaced.push_back({Graph.Id, {Node.Id, "then", Next.Node, Next.Pin}});
			}
			++Count;
		}
	}
	Count += CallBehindPlanned(Variable, Event);
	Result.AddNote(Count == 0
			? "No step of **" + Model().Name + "** sets **" + Variable.Id + "** yet: call **" + Event + "** wherever you set it."
			: "A variable tells nobody that it changes, so **" + Event + "** is called behind " + CountOf(Count, "step") + " that " +
				(Count == 1 ? "sets" : "set") + " it.");
}

}
