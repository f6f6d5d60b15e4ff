#pragma once

#include "BlueprintSnapshot.h"
#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

/** How something of two snapshots differs. */
enum class EDifference : uint8
{
	Added,
	Removed,
	Changed,
};

/** A value that differs; an empty text where one side has none. */
struct FValueDifference
{
	FString Name;
	FString Before;
	FString After;
};

/** A variable, component or interface that differs. */
struct FMemberDifference
{
	EDifference Kind = EDifference::Changed;
	/** The member's kind as in its snapshot. */
	FString What;
	FString Name;
	/** Its earlier name; empty unless it was renamed. */
	FString OldName;
	/** Of a member that is new or gone, all that it has. */
	TArray<FValueDifference> Values;
};

/** What of a node can differ. */
enum class ENodeAspect : uint8
{
	Title,
	Comment,
	/** Whether the node is compiled. */
	Enabled,
	/** What an event or function declares beside its pins. */
	Declaration,
	PinValue,
	/** A pin that came, went or has another name. */
	Pin,
	PinType,
	/** A pin that the node's definition has lost, kept because it is linked or has a value, or that has it again. */
	Orphan,
};

/** The word for an aspect in documents. */
const TCHAR* ToWord(ENodeAspect Aspect);

struct FAspectDifference
{
	ENodeAspect Aspect = ENodeAspect::Title;
	/** The pin or the value that it is about; empty for the node itself. */
	FString Name;
	/** Whether Name is that of an input pin. */
	bool bInput = false;
	FString Before;
	FString After;
};

/** A node that differs. A node is the same one while its id is: where it stands and what its object is called do not matter. */
struct FNodeDifference
{
	EDifference Kind = EDifference::Changed;
	/** Indices into the nodes of the two graphs; INDEX_NONE on the side where it is not. */
	int32 Before = INDEX_NONE;
	int32 After = INDEX_NONE;
	TArray<FAspectDifference> Aspects = {};
	/** The node only goes by another name because what it uses was renamed in the same edit. */
	bool bFollows = false;
};

/** A wire that was made or cut, by indices into the graph that has it: the later one for Added, the earlier one for Removed. */
struct FWireDifference
{
	EDifference Kind = EDifference::Added;
	FPinLink From;
	FPinLink To;
};

/** A graph that differs. Graphs refer to the snapshots of the Blueprint's difference. */
struct FGraphDifference
{
	EDifference Kind = EDifference::Changed;
	/** Null on the side where the graph is not. */
	const FGraphSnapshot* Before = nullptr;
	const FGraphSnapshot* After = nullptr;
	/** Nodes of the later graph in their order, then those that are gone. */
	TArray<FNodeDifference> Nodes;
	TArray<FWireDifference> Wires;
	TArray<FMemberDifference> Members;

	const FGraphSnapshot& GetShown() const { return After ? *After : *Before; }
	bool IsRenamed() const { return Before && After && !Before->Name.Equals(After->Name); }
	int32 CountNodes(EDifference Wanted) const;
	int32 CountWires(EDifference Wanted) const;
	int32 CountFollowing() const;
};

/** All that differs between two snapshots of a Blueprint, or of two Blueprints. */
struct FBlueprintDiff
{
	/** The time for graphs of N nodes and wires is that of N; a graph that did not change is passed through quickly. */
	static FBlueprintDiff Compare(const TSharedRef<const FBlueprintSnapshot>& Before, const TSharedRef<const FBlueprintSnapshot>& After);

	/** Added or Removed where one side is an empty snapshot, that of no Blueprint. */
	EDifference GetKind() const;
	/** The Blueprint that there is, as it is in the end. */
	const FBlueprintSnapshot& GetShown() const { return GetKind() == EDifference::Removed ? *Before : *After; }
	bool IsEmpty() const { return Settings.IsEmpty() && ClassDefaults.IsEmpty() && Members.IsEmpty() && Graphs.IsEmpty(); }

	TSharedRef<const FBlueprintSnapshot> Before;
	TSharedRef<const FBlueprintSnapshot> After;
	TArray<FValueDifference> Settings;
	TArray<FValueDifference> ClassDefaults;
	TArray<FMemberDifference> Members;
	TArray<FGraphDifference> Graphs;
};

/** Which items of two lists are the same. */
struct FItemMatch
{
	/** Of each later item, the index of the earlier one; INDEX_NONE for one that is new. */
	TArray<int32> BeforeOf;
	/** Of each earlier item, the index of the later one; INDEX_NONE for one that is gone. */
	TArray<int32> AfterOf;
};

/** Nodes by their ids; by their names where a file has nodes without ids, or several with one. */
FItemMatch MatchNodes(const FGraphSnapshot& Before, const FGraphSnapshot& After);

/** Pins by their ids, then by name and direction. */
FItemMatch MatchPins(const FNodeSnapshot& Before, const FNodeSnapshot& After);
