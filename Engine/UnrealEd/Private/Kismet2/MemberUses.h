#pragma once

#include "CoreMinimal.h"

class UBlueprint;
class UClass;
class UEdGraph;
class UEdGraphNode;
class UK2Node;
class UK2Node_CreateDelegate;
struct FMemberReference;

/** A node that refers to a member, with the reference. */
struct FMemberUse
{
	UK2Node* Node = nullptr;
	FMemberReference* Reference = nullptr;
};

/** A node that names a variable without a reference by id: an event of a dispatcher, or a node with a pin for each of some variables. */
struct FVariableNameUse
{
	UK2Node* Node = nullptr;
	/** Where the node has the name beside its pin's; null for none. */
	FName* Name = nullptr;
};

/**
 * Which nodes stand in their graph, and not merely in what an undo could bring back. Reads each graph once: for a question about many
 * nodes between which no graph changes.
 */
class FStandingNodes
{
public:
	bool Contains(const UK2Node& Node);

private:
	TMap<const UEdGraph*, TSet<const UEdGraphNode*>> ByGraph;
};

/**
 * Nodes of all loaded Blueprints that use a member of a Blueprint. Looked for among the nodes of the kinds that can, by the
 * index of objects by class; a node that stands in no graph, such as one that only an undo could bring back, is no use.
 */
class FMemberUses
{
public:
	/** Of a variable, a component, a timeline or a dispatcher. */
	static TArray<FMemberUse> FindOfVariable(const UBlueprint& Owner, FName Name);
	/** Names of the Blueprint's variables that a node of the Blueprint itself uses. */
	static TSet<FName> FindVariablesUsedIn(const UBlueprint& Blueprint);
	/** Of a function or an event: calls, overrides and the ends of overriding graphs. */
	static TArray<FMemberUse> FindOfFunction(const UBlueprint& Owner, FName Name);
	static TArray<FMemberUse> FindOfLocalVariable(const UBlueprint& Owner, const FString& Scope, FName Name);
	/** Nodes that make an event of a function by its name. */
	static TArray<UK2Node_CreateDelegate*> FindDelegatesOfFunction(const UBlueprint& Owner, FName Name);

	/** Has the nodes refer to the new name, pins of that name included, and their Blueprints know that they were modified. */
	static void Rename(const TArray<FMemberUse>& Uses, FName OldName, FName NewName);
	/** What names a variable or a dispatcher otherwise than by a member reference: events of dispatchers, pins of what spawns its class. */
	static TArray<FVariableNameUse> FindNamesOfVariable(const UBlueprint& Owner, FName Name);
	static void RenameNames(const TArray<FVariableNameUse>& Uses, FName OldName, FName NewName);

	/** Makes the nodes' pins again. */
	static void Reconstruct(const TArray<FMemberUse>& Uses);

	/** Whether the class is the Blueprint's or derives from it. */
	static bool IsClassOf(const UClass* Class, const UBlueprint& Blueprint);
};
