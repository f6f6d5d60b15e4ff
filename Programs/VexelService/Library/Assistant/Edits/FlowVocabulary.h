#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace VexelService
{

/** What the words of a slot are taken for. */
enum class EValueKind
{
	None,
	Text,
	Number,
	Integer,
	Boolean,
	Vector,
	Rotator,
	/** An actor or a component; the Blueprint's own actor where the words say so or there are none. */
	Object,
	/** A class of actors. */
	Class,
	/** An asset, such as a sound. */
	Asset,
	/** A name as it is said. */
	Name,
};

/** A value that a step takes from the user's words. */
struct FActionPin
{
	std::string_view Slot;
	std::string_view Pin;
	EValueKind Kind = EValueKind::None;
};

/** How the nodes of a step are planned; a plain one is one node of the action's type. */
enum class EStepKind
{
	Plain,
	SetVariable,
	ChangeVariable,
	ToggleVariable,
	Spawn,
	Turn,
	Open,
	Call,
	TimerByFunction,
	Loop,
	FlipFlop,
	DoOnce,
	If,
};

/** Something that a step of a graph can do. */
struct FAction
{
	std::string_view Id;
	EStepKind Kind = EStepKind::Plain;
	/** The node-type id. */
	std::string_view Type = {};
	/** "Pin=Value;Pin=Value": what holds whatever the user says. */
	std::string_view Values = {};
	std::array<FActionPin, 3> Pins = {};
	/** The node for a component as the target, where it is another than for the actor itself; its pins and values likewise. */
	std::string_view ComponentType = {};
	std::string_view ComponentValues = {};
	/** What a variable that the step changes begins with when it is made for it; empty for 0. */
	std::string_view Start = {};
};

/** A way to say an action. The pattern is one of MatchWords; its slots are those of the action's pins, beside "target" and others. */
struct FActionWording
{
	std::string_view Pattern;
	std::string_view Action;
	/** Values that this way of saying it implies, by slot: "value=1". */
	std::string_view Implied = {};
};

enum class EEventKind
{
	/** An event of the actor. */
	Actor,
	/** As Actor, but a component's own event where the words name a component. */
	Overlap,
	Key,
	/** A timer that repeats. */
	Every,
	/** Once, some time after play began. */
	Later,
	VariableChanges,
	/** A custom event or a function of the Blueprint, or one to make. */
	Named,
};

/** An event that starts a chain of steps. */
struct FEvent
{
	std::string_view Id;
	EEventKind Kind = EEventKind::Actor;
	/** The node-type id; of keys the beginning of it. */
	std::string_view Type = {};
	/** The pin where its steps begin. */
	std::string_view Pin = "then";
	/** The event of a component, before the component's name. */
	std::string_view ComponentType = {};
	/** The output that is the actor at the other end, as the words may say who it must be. */
	std::string_view OtherPin = {};
	std::string_view ComponentOtherPin = {};
};

/** A way to say an event, without the "when" or "on" in front. */
struct FEventWording
{
	std::string_view Pattern;
	std::string_view Event;
};

/** What an output of an event is called, beside its own name. */
struct FOutputName
{
	std::string_view Words;
	std::string_view Pin;
};

/** A sort of component that people call by a plain word. */
struct FComponentWord
{
	std::string_view Words;
	/** The class; its name without "Component" is what such a component is called when nobody named it. */
	std::string_view Class;
	/** Whether one says enough of it for a Blueprint to make it. */
	bool bCanBeMade = false;
};

std::span<const FAction> GetActions();
std::span<const FActionWording> GetActionWordings();
std::span<const FEvent> GetEvents();
std::span<const FEventWording> GetEventWordings();
std::span<const FOutputName> GetOutputNames();

/** Each returns null when its table has no row. */
const FAction* FindAction(std::string_view Id);
const FEvent* FindEvent(std::string_view Id);
const FComponentWord* FindComponentWord(std::string_view Words);

/** The engine's name of a key by the words for it: "space" is SpaceBar, "f" is F. */
std::optional<std::string> FindKey(std::string_view Words);

}
