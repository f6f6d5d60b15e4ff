#pragma once

#include "CoreMinimal.h"
#include "Misc/Guid.h"

class UBlueprint;
class UEdGraph;

/** A value by name, both as text: what a variable, a component or a class says of itself. */
struct FValueSnapshot
{
	FString Name;
	FString Value;
	/** It is what the type is without anybody's doing: a missing value says the same. */
	bool bOfType = false;
};

/** The other end of a wire, by indices into the same graph snapshot. */
struct FPinLink
{
	int32 Node = INDEX_NONE;
	int32 Pin = INDEX_NONE;

	bool IsSet() const { return Node != INDEX_NONE; }
	bool operator==(const FPinLink&) const = default;
};

/** A pin as it was. */
struct FPinSnapshot
{
	FGuid Id;
	FName Name;
	/** As a user reads it. */
	FString Label;
	FName Category;
	/** The type as a user reads it, of pins that a user has declared; empty for others, whose type follows from their node. */
	FString DeclaredType;
	/** The default as one string. */
	FString Value;
	TArray<FPinLink> Links;
	/** Index of the pin that this one is split off; INDEX_NONE for one of the node's own. */
	int32 Parent = INDEX_NONE;
	bool bInput = false;
	bool bExec = false;
	bool bHidden = false;
	bool bOrphaned = false;
	/** Whether nobody has set another default than the node's. */
	bool bUsualValue = false;
};

/** Nodes that are written in a way of their own. */
enum class ENodeForm : uint8
{
	Usual,
	Reroute,
	Comment,
	Self,
	VariableGet,
	ArrayItem,
};

/** A node as it was. */
struct FNodeSnapshot
{
	FGuid Id;
	/** The object's name, which says nothing to a user and may change when a file is loaded. */
	FString Name;
	FString Class;
	/** On one line. */
	FString Title;
	/** What a small node shows in its middle, an operator's sign for one; empty for a usual node. */
	FString CompactTitle;
	FString Comment;
	/** What a user declares of an event or a function in the node where it begins. */
	TArray<FValueSnapshot> Values;
	TArray<FPinSnapshot> Pins;
	FIntPoint Position = FIntPoint(0, 0);
	FIntPoint Size = FIntPoint(0, 0);
	ENodeForm Form = ENodeForm::Usual;
	/** No execution wire runs through it. */
	bool bPure = true;
	/** Offered by the editor, and no part of the Blueprint until somebody links it. */
	bool bGhost = false;
	bool bEnabled = true;
	/** Declares what other nodes call: a custom event. */
	bool bDeclares = false;

	/** Whether it is a node of the flow, rather than a help for whoever looks at the graph. */
	bool IsDrawn() const { return Form != ENodeForm::Reroute && Form != ENodeForm::Comment; }
};

/** A variable, component or interface as it was. */
struct FMemberSnapshot
{
	FGuid Id;
	FString Name;
	/** What it is, in a word: "variable", "dispatcher", "component", "interface". */
	FString Kind;
	TArray<FValueSnapshot> Values;
};

/** A graph as it was. */
struct FGraphSnapshot
{
	FGuid Id;
	FString Name;
	FString BlueprintName;
	/** What it is, in words: "event graph", "function", "macro", "dispatcher", "graph". */
	FString Kind;
	TArray<FNodeSnapshot> Nodes;
	/** Local variables. */
	TArray<FMemberSnapshot> Members;

	static FGraphSnapshot Take(const UEdGraph& Graph);

	/** The pin that a wire really comes from or goes to, behind any reroute nodes; not set where it ends at one. */
	FPinLink FollowReroutes(FPinLink Link) const;
	const FPinSnapshot& GetPin(const FPinLink& Link) const { return Nodes[Link.Node].Pins[Link.Pin]; }
};

/**
 * What a Blueprint says, as it is when the snapshot is taken: values alone, which stay as they are whatever becomes of the objects.
 * Where its nodes stand is in it for drawing; nothing compares it.
 */
struct FBlueprintSnapshot
{
	/** /Game/Doors/BP_Door.BP_Door */
	FString Path;
	FString Name;
	/** Parent class and the like. */
	TArray<FValueSnapshot> Settings;
	/** Values of inherited properties that are not the parent's. */
	TArray<FValueSnapshot> ClassDefaults;
	TArray<FMemberSnapshot> Members;
	TArray<FGraphSnapshot> Graphs;

	static FBlueprintSnapshot Take(const UBlueprint& Blueprint);

	/** Replaces a text in every value: the name of a package that stands for another one. */
	void ReplaceInValues(const FString& From, const FString& To);
};

/** "90.000000" as "90"; any other text as it is. */
FString ShortenNumber(const FString& Value);
