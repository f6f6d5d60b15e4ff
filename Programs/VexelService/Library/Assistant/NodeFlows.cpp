#include "Assistant/GraphWalker.h"

#include "Assistant/NodePhrases.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <array>

namespace VexelService
{

namespace
{

bool IsExecOutput(const FBlueprintPin& Pin)
{
	return !Pin.bInput && Pin.IsExec();
}

const FBlueprintPin* FirstDataInput(const FBlueprintNode& Node)
{
	const auto Found = std::find_if(Node.Pins.begin(), Node.Pins.end(), [](const FBlueprintPin& Pin)
		{ return Pin.bInput && !Pin.IsExec() && !EqualIgnoringCase(Pin.Id, "self"); });
	return Found == Node.Pins.end() ? nullptr : &*Found;
}

bool EntersBy(const FBlueprintPin* Entry, std::string_view PinId)
{
	return Entry && EqualIgnoringCase(PinTitle(*Entry), PinId);
}

std::string WithArguments(std::string Text, const std::string& Arguments)
{
	return Arguments.empty() ? Text : Text + " with " + Arguments;
}

/** A macro of the engine's own library that has one body and, perhaps, something behind it. */
struct FMacroPhrase
{
	std::string_view Macro;
	/** The output that is told under Label; "{Pin}" stands for an input. */
	std::string_view Body;
	std::string_view Label;
	/** The output by which the story goes on; empty for none. */
	std::string_view Next;
};

constexpr FMacroPhrase LoopPhrases[] = {
	{"ForEachLoop", "LoopBody", "for each element of {Array}", "Completed"},
	{"ForEachLoopWithBreak", "LoopBody", "for each element of {Array}, until it breaks off", "Completed"},
	{"ReverseForEachLoop", "LoopBody", "for each element of {Array}, from the last to the first", "Completed"},
	{"ForLoop", "LoopBody", "for each index from {FirstIndex} to {LastIndex}", "Completed"},
	{"ForLoopWithBreak", "LoopBody", "for each index from {FirstIndex} to {LastIndex}, until it breaks off", "Completed"},
	{"DoOnce", "Completed", "only the first time", ""},
	{"Do Once", "Completed", "only the first time", ""},
	{"DoN", "Exit", "only the first {N} times", ""},
	{"Do N", "Exit", "only the first {N} times", ""},
	{"Gate", "Exit", "if the gate is open", ""},
};

/** What entering a macro or a timeline by another pin than its main one does. */
struct FEntryPhrase
{
	std::string_view Entry;
	std::string_view Text;
};

constexpr FEntryPhrase MacroEntries[] = {
	{"Reset", "lets \"%\" run again"},
	{"Break", "breaks off \"%\""},
	{"Open", "opens the gate"},
	{"Close", "closes the gate"},
	{"Toggle", "opens the gate if it is closed, and closes it if it is open"},
};

constexpr FEntryPhrase TimelineEntries[] = {
	{"Play", "plays the timeline%"},
	{"Play From Start", "plays the timeline% from its start"},
	{"Stop", "stops the timeline%"},
	{"Reverse", "plays the timeline% backwards"},
	{"Reverse From End", "plays the timeline% backwards from its end"},
	{"Set New Time", "sets the time of the timeline%"},
};

template <std::size_t Count>
std::string EntryText(const FEntryPhrase (&Table)[Count], const FBlueprintPin* Entry, const std::string& Name)
{
	const auto Row = std::find_if(std::begin(Table), std::end(Table), [Entry](const FEntryPhrase& Candidate)
		{ return EntersBy(Entry, Candidate.Entry); });
	if (Row == std::end(Table))
	{
		return {};
	}
	std::string Text(Row->Text);
	const std::size_t Slot = Text.find('%');
	return Slot == std::string::npos ? Text : Text.replace(Slot, 1, Name);
}

/** What a "delegate." node does; "%" is the dispatcher, "{Event}" what is bound. */
struct FDelegatePhrase
{
	std::string_view Kind;
	std::string_view Text;
};

constexpr FDelegatePhrase DelegatePhrases[] = {
	{"delegate.call", "calls the event dispatcher %"},
	{"delegate.add", "binds @ to %"},
	{"delegate.assign", "binds @ to %"},
	{"delegate.remove", "unbinds @ from %"},
	{"delegate.clear", "unbinds everything from %"},
};

}

/** Which rule tells which node types; the first row that fits decides. */
struct FGraphWalker::FRuleTable
{
	struct FRow
	{
		std::string_view Prefix;
		FFlowRule Rule;
	};

	static FFlowRule Find(const FBlueprintNode& Node)
	{
		using W = FGraphWalker;
		static constexpr FRow Rows[] = {
			{"flow.if", &W::TellBranch},
			{"flow.sequence", &W::TellSequence},
			{"flow.multigate", &W::TellMultigate},
			{"cast", &W::TellCast},
			{"switch", &W::TellSwitch},
			{"enum.switch", &W::TellSwitch},
			{"gameplay_tags.switch_tag", &W::TellSwitch},
			{"macro", &W::TellMacro},
			{"foreach", &W::TellForEach},
			{"enum.foreach", &W::TellForEach},
			{"timeline", &W::TellTimeline},
			{"var.set_ref", &W::TellSetByReference},
			{"var.assign", &W::TellSetByReference},
			{"var.set", &W::TellSet},
			{"var.local.set", &W::TellSet},
			{"call.spawn_actor", &W::TellSpawn},
			{"call.create_widget", &W::TellSpawn},
			{"call.create_object", &W::TellSpawn},
			{"call.add_component", &W::TellAddComponent},
			{"call.add_component_by_class", &W::TellAddComponent},
			{"call.super", &W::TellSuper},
			{"call.interface", &W::TellMessage},
			{"call", &W::TellCall},
			{"delegate", &W::TellDelegate},
			{"async", &W::TellAsync},
			{"graph.return", &W::TellReturn},
		};
		const FRow* const Found = std::find_if(std::begin(Rows), std::end(Rows), [&](const FRow& Row)
			{ return IsNodeType(Node, Row.Prefix); });
		return Found == std::end(Rows) ? &W::TellUnknown : Found->Rule;
	}
};

const FGraphWalker::FFlow& FGraphWalker::Describe(const FPlace& Place)
{
	const auto [Known, bNew] = Described.try_emplace(FPlaceKey(Place.Node, Place.Entry));
	if (bNew)
	{
		(this->*FRuleTable::Find(*Place.Node))(Place, Known->second);
	}
	return Known->second;
}

void FGraphWalker::TellBranch(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintPin* const Then = Place.Node->FindOutput("then");
	const FBlueprintPin* const Else = Place.Node->FindOutput("else");
	const std::string Condition = Expressions.Condition(*Place.Node, "Condition");
	const bool bOnlyElse = Else && !Else->Links.empty() && (!Then || Then->Links.empty());
	if (bOnlyElse)
	{
		Flow.Ways.push_back({"unless " + Condition, Else});
		return;
	}
	if (!Then || Then->Links.empty())
	{
		Flow.Text = "checks if " + Condition + ", but does nothing with the answer";
		return;
	}
	Flow.Ways.push_back({"if " + Condition, Then});
	if (Else)
	{
		Flow.Ways.push_back({"otherwise", Else});
	}
}

void FGraphWalker::TellCast(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintPin* const Object = FirstDataInput(*Place.Node);
	const FBlueprintPin* const Then = Place.Node->FindOutput("then");
	const FBlueprintPin* const Failed = Place.Node->FindOutput("CastFailed");
	const std::string Subject = Object ? Expressions.Value(*Place.Node, *Object) : "the object";
	const std::string Condition = Subject + " is " + WithArticle(ClassName(LastSegment(Place.Node->Type, '.')));
	if (!Failed || Failed->Links.empty())
	{
		Flow.Text = "goes on only if " + Condition;
		Flow.Next = Then;
		return;
	}
	if (!Then || Then->Links.empty())
	{
		Flow.Ways.push_back({"unless " + Condition, Failed});
		return;
	}
	Flow.Ways = {{"if " + Condition, Then}, {"otherwise", Failed}};
}

void FGraphWalker::TellSequence(const FPlace& Place, FFlow& Flow)
{
	Flow.bInOrder = true;
	Flow.Text = "starts these one after the other, without waiting for delays";
	for (const FBlueprintPin& Pin : Place.Node->Pins)
	{
		if (IsExecOutput(Pin) && !Pin.Links.empty())
		{
			Flow.Ways.push_back({Flow.Ways.empty() ? "first" : "then", &Pin});
		}
	}
	if (Flow.Ways.empty())
	{
		Flow.Text.clear();
	}
}

void FGraphWalker::TellMultigate(const FPlace& Place, FFlow& Flow)
{
	if (EntersBy(Place.Entry, "Reset"))
	{
		Flow.Text = "starts the multi-gate anew";
		return;
	}
	const FBlueprintPin* const Random = Place.Node->FindInput("IsRandom");
	const bool bRandom = Random && EqualIgnoringCase(Random->Value, "true");
	const bool bAnyWay = std::any_of(Place.Node->Pins.begin(), Place.Node->Pins.end(), [](const FBlueprintPin& Pin)
		{ return IsExecOutput(Pin) && !Pin.Links.empty(); });
	if (!bAnyWay)
	{
		return;
	}
	Flow.Text = bRandom ? "takes one of these ways at random each time it gets here" : "takes the next of these ways each time it gets here";
	for (const FBlueprintPin& Pin : Place.Node->Pins)
	{
		if (IsExecOutput(Pin))
		{
			Flow.Ways.push_back({"way " + std::to_string(Flow.Ways.size() + 1), &Pin});
		}
	}
}

void FGraphWalker::TellSwitch(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintPin* const Selection = FirstDataInput(*Place.Node);
	const std::string Subject = Selection ? Expressions.Value(*Place.Node, *Selection) : "the selection";
	const FBlueprintPin* const Default = Place.Node->FindOutput("Default");
	for (const FBlueprintPin& Pin : Place.Node->Pins)
	{
		if (IsExecOutput(Pin) && &Pin != Default)
		{
			Flow.Ways.push_back({"if " + Subject + " is " + (Pin.Name.empty() ? Pin.Id : Pin.Name), &Pin});
		}
	}
	if (Default)
	{
		Flow.Ways.push_back({"otherwise", Default});
	}
	const bool bAnyWay = std::any_of(Flow.Ways.begin(), Flow.Ways.end(), [](const FWay& Way)
		{ return !Way.Output->Links.empty(); });
	Flow.Text = bAnyWay ? "" : "looks at " + Subject + ", but does nothing with it";
}

void FGraphWalker::TellMacro(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	const std::string Macro(LastSegment(Node.Type, '.'));
	Flow.Text = EntryText(MacroEntries, Place.Entry, SpacedName(Macro));
	if (!Flow.Text.empty())
	{
		return;
	}
	const auto Loop = std::find_if(std::begin(LoopPhrases), std::end(LoopPhrases), [&](const FMacroPhrase& Row)
		{ return EqualIgnoringCase(Row.Macro, Macro); });
	if (Loop != std::end(LoopPhrases) && Node.FindOutput(Loop->Body))
	{
		Flow.Ways.push_back({Expressions.Fill(Node, Loop->Label), Node.FindOutput(Loop->Body)});
		Flow.Next = Loop->Next.empty() ? nullptr : Node.FindOutput(Loop->Next);
		return;
	}
	if (EqualIgnoringCase(Macro, "WhileLoop") && Node.FindOutput("LoopBody"))
	{
		Flow.Ways.push_back({"as long as " + Expressions.Condition(Node, "Condition"), Node.FindOutput("LoopBody")});
		Flow.Next = Node.FindOutput("Completed");
		return;
	}
	if (EqualIgnoringCase(Macro, "FlipFlop") && Node.FindOutput("A") && Node.FindOutput("B"))
	{
		Flow.Ways = {{"the first time, and every second time after it", Node.FindOutput("A")}, {"the other times", Node.FindOutput("B")}};
		return;
	}
	if (EqualIgnoringCase(Macro, "IsValid") && Node.FindOutput("IsValid"))
	{
		const std::string Object = FirstDataInput(Node) ? Expressions.Value(Node, *FirstDataInput(Node)) : "the object";
		Flow.Ways.push_back({"if " + Object + " is valid", Node.FindOutput("IsValid")});
		if (const FBlueprintPin* const Invalid = Node.FindOutput("IsNotValid"))
		{
			Flow.Ways.push_back({Node.FindOutput("IsValid")->Links.empty() ? "if " + Object + " is not valid" : "otherwise", Invalid});
		}
		return;
	}
	Flow.Text = WithArguments("runs the macro " + Macro, Expressions.Arguments(Node));
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellForEach(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	const FBlueprintPin* const Body = Node.FindOutput("LoopBody");
	if (!Body)
	{
		TellUnknown(Place, Flow);
		return;
	}
	const FBlueprintPin* const Collection = FirstDataInput(Node);
	const std::string What = IsNodeType(Node, "enum.foreach") ? "for each value of " + std::string(LastSegment(Node.Type, '.'))
															  : "for each element of " + (Collection ? Expressions.Value(Node, *Collection) : std::string("the collection"));
	Flow.Ways.push_back({What, Body});
	const FBlueprintPin* const Completed = Node.FindOutput("Completed");
	Flow.Next = Completed ? Completed : Node.FindOutput("then");
}

void FGraphWalker::TellTimeline(const FPlace& Place, FFlow& Flow)
{
	const std::string_view Name = LastSegment(Place.Node->Type, '.');
	const std::string Shown = Name == "timeline" ? std::string() : " " + std::string(Name);
	Flow.Text = EntryText(TimelineEntries, Place.Entry, Shown);
	if (Flow.Text.empty())
	{
		Flow.Text = "runs the timeline" + Shown;
	}
	if (EntersBy(Place.Entry, "Stop"))
	{
		return;
	}
	Flow.bLatent = true;
	for (const FBlueprintPin& Pin : Place.Node->Pins)
	{
		if (!IsExecOutput(Pin))
		{
			continue;
		}
		const std::string Title = PinTitle(Pin);
		Flow.Ways.push_back({Title == "Update" ? "while it plays" : Title == "Finished" ? "when it has finished"
																						: "at " + Title,
			&Pin});
	}
}

void FGraphWalker::TellSet(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	const std::string Name(LastSegment(Node.Type, '.'));
	const FBlueprintPin* Pin = Node.FindInput(Name);
	Pin = Pin ? Pin : FirstDataInput(Node);
	const std::string Owner = Expressions.HasOtherTarget(Node) ? Expressions.Possessive(Node) + " " : "";
	Flow.Text = "sets " + Owner + Name + " to " + (Pin ? Expressions.Value(Node, *Pin) : "an unnamed value");
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellSetByReference(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	std::vector<std::string> Values;
	for (const FBlueprintPin& Pin : Node.Pins)
	{
		if (Pin.bInput && !Pin.IsExec())
		{
			Values.push_back(Expressions.Value(Node, Pin));
		}
	}
	Flow.Text = Values.size() >= 2 ? "sets " + Values[0] + " to " + Values[1] : "sets a variable by reference";
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellSpawn(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	std::string Class = ClassName(LastSegment(Node.Type, '.'));
	for (const char* const ClassPin : {"Class", "ClassToSpawn", "WidgetType"})
	{
		const FBlueprintPin* const Pin = Node.FindInput(ClassPin);
		if (Pin && (!Pin->Links.empty() || !Pin->Value.empty()))
		{
			Class = Pin->Links.empty() ? ShortName(Pin->Value) : "object of " + Expressions.Value(Node, *Pin);
		}
	}
	if (Class.find("spawn_actor") == 0 || Class.find("create_") == 0 || Class == "None")
	{
		Class = "object of no chosen class";
	}
	const bool bSpawns = IsNodeType(Node, "call.spawn_actor");
	Flow.Text = (bSpawns ? "spawns " : "creates ") + WithArticle(Class);
	const FBlueprintPin* const Transform = Node.FindInput("SpawnTransform");
	if (bSpawns && Transform && !Transform->Links.empty())
	{
		Flow.Text += " at " + Expressions.Value(Node, *Transform);
	}
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellAddComponent(const FPlace& Place, FFlow& Flow)
{
	const std::string Class = ClassName(LastSegment(Place.Node->Type, '.'));
	const FBlueprintPin* const ClassPin = Place.Node->FindInput("Class");
	const bool bNamed = !StartsWith(Class, "add_component");
	const std::string Known = WithArticle(bNamed ? Class : "component");
	Flow.Text = "adds " + (ClassPin ? "a component of the class " + Expressions.Value(*Place.Node, *ClassPin) : Known);
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellSuper(const FPlace& Place, FFlow& Flow)
{
	Flow.Text = WithArguments("does what its parent class does here", Expressions.Arguments(*Place.Node));
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellMessage(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	Flow.Text = WithArguments(
		"sends the message " + Expressions.FunctionTitle(Node) + " to " + Expressions.Target(Node), Expressions.Arguments(Node));
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellCall(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	const FActionPhrase* const Phrase = Expressions.CallsOwnFunction(Node) ? nullptr : FindActionPhrase(LastSegment(Node.Type, '.'));
	if (Phrase)
	{
		Flow.Text = Expressions.Fill(Node, Phrase->Template);
		Flow.bLatent = Phrase->bLatent;
	}
	else
	{
		const std::string OnTarget = Expressions.HasOtherTarget(Node) ? " on " + Expressions.Target(Node) : "";
		Flow.Text = WithArguments("calls " + Expressions.FunctionTitle(Node) + OnTarget, Expressions.Arguments(Node));
	}
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellDelegate(const FPlace& Place, FFlow& Flow)
{
	const FBlueprintNode& Node = *Place.Node;
	const auto Row = std::find_if(std::begin(DelegatePhrases), std::end(DelegatePhrases), [&](const FDelegatePhrase& Candidate)
		{ return IsNodeType(Node, Candidate.Kind); });
	if (Row == std::end(DelegatePhrases))
	{
		TellUnknown(Place, Flow);
		return;
	}
	const FBlueprintPin* const Delegate = Node.FindInput("Delegate");
	const std::string Bound = Delegate && !Delegate->Links.empty() ? Expressions.Value(Node, *Delegate) : "an event";
	const std::string Owner = Expressions.HasOtherTarget(Node) ? Expressions.Possessive(Node) + " " : "";
	Flow.Text = Row->Text;
	const std::array<std::pair<char, std::string>, 2> Slots = {{{'%', Owner + std::string(LastSegment(Node.Type, '.'))}, {'@', Bound}}};
	for (const auto& [Slot, Words] : Slots)
	{
		const std::size_t Position = Row->Text.find(Slot) == std::string_view::npos ? std::string::npos : Flow.Text.find(Slot);
		if (Position != std::string::npos)
		{
			Flow.Text.replace(Position, 1, Words);
		}
	}
	if (IsNodeType(Node, "delegate.call"))
	{
		Flow.Text = WithArguments(Flow.Text, Expressions.Arguments(Node));
	}
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellAsync(const FPlace& Place, FFlow& Flow)
{
	Flow.Text = WithArguments("starts " + SpacedName(LastSegment(Place.Node->Type, '.')), Expressions.Arguments(*Place.Node));
	Flow.bLatent = true;
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::TellReturn(const FPlace& Place, FFlow& Flow)
{
	std::string Values;
	for (const FBlueprintPin& Pin : Place.Node->Pins)
	{
		if (Pin.bInput && !Pin.IsExec())
		{
			Values += (Values.empty() ? "" : ", ") + Pin.Id + " = " + Expressions.Value(*Place.Node, Pin);
		}
	}
	Flow.Text = Values.empty() ? "returns" : "returns " + Values;
}

void FGraphWalker::TellUnknown(const FPlace& Place, FFlow& Flow)
{
	const std::string& Type = Place.Node->Type;
	const std::string Kind =
		Type.empty() ? "whose kind the export does not tell" : "of the kind `" + Shortened(Type, 80) + "`, which I cannot put into words";
	Flow.Text = WithArguments("runs the node \"" + NodeTitle(*Place.Node) + "\" (" + Kind + ")", Expressions.Arguments(*Place.Node));
	AddRemainingWays(Place, Flow);
}

void FGraphWalker::AddRemainingWays(const FPlace& Place, FFlow& Flow)
{
	std::vector<const FBlueprintPin*> Outputs;
	for (const FBlueprintPin& Pin : Place.Node->Pins)
	{
		if (IsExecOutput(Pin))
		{
			Outputs.push_back(&Pin);
		}
	}
	const FBlueprintPin* const Then = Place.Node->FindOutput("then");
	Flow.Next = Then && Then->IsExec() ? Then : Outputs.size() == 1 ? Outputs.front()
																	: nullptr;
	for (const FBlueprintPin* const Pin : Outputs)
	{
		if (Pin != Flow.Next)
		{
			Flow.Ways.push_back({"on " + PinTitle(*Pin), Pin});
		}
	}
}

}
