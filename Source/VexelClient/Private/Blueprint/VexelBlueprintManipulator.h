#pragma once

#include "CoreMinimal.h"
#include "Templates/Tuple.h"
#include "UObject/WeakObjectPtr.h"
#include "VexelErrorKinds.h"
#include "VexelId.h"
#include "VexelTaskResult.h"

class FCompilerResultsLog;
class FVexelBlueprintMapping;
class UBlueprint;
class UEdGraph;
class UEdGraphNode;
class UEdGraphPin;

/**
 * The assistant's edits of a Blueprint's graphs. Each successful edit is one entry of undo, and leaves the Blueprint to be compiled; one
 * that is refused changes nothing and leaves no entry. Errors are FVexelError_BlueprintManipulationFailed: a fixed text, and behind it
 * what the caller may need to try again. Lives as long as one tool call. Game thread.
 */
class FVexelBlueprintManipulator
{
public:
	/** Both stay the caller's; the Blueprint may go meanwhile. */
	FVexelBlueprintManipulator(UBlueprint& InBlueprint, FVexelBlueprintMapping& InMapping);

	/**
	 * Held over many edits: what ends each of them, the refresh of all nodes and of the Blueprint's members, is done once, at the end of the
	 * scope. The manipulator must outlive it.
	 */
	class FBatch
	{
	public:
		explicit FBatch(const FVexelBlueprintManipulator& InManipulator)
			: Manipulator(InManipulator)
		{
			Manipulator.bFinishLater = true;
		}
		~FBatch();
		UE_NONCOPYABLE(FBatch)

	private:
		const FVexelBlueprintManipulator& Manipulator;
	};

	/** Places a node of the type at a free spot. Values for pins that it does not have are passed over. */
	TVexelExpected<TVexelNodeId> SpawnNode(
		const TVexelGraphId& GraphId, const TVexelNodeTypeId& TypeId, const TArray<TTuple<FName, FString>>& PinDefaults) const;

	/** Answers the id of the node that is gone. */
	TVexelExpected<TVexelNodeId> RemoveNode(const TVexelGraphId& GraphId, const TVexelNodeId& NodeId) const;

	/** Links two pins as a user's drag does, or breaks the one link between them. Answers the ids of both nodes. */
	TVexelExpected<TTuple<TVexelNodeId, TVexelNodeId>> EditConnection(const TVexelGraphId& GraphId, const TVexelNodeId& FromNode,
		const TVexelPinId& FromPin, const TVexelNodeId& ToNode, const TVexelPinId& ToPin, const bool bConnect) const;

	/**
	 * Lays the nodes out, and with them those linked to them that the conversation has placed; the others stay where they are. Moves
	 * nothing when one of them is not there.
	 */
	TVexelExpected<void> FormatSelectedNodes(const TVexelGraphId& GraphId, const TArray<TVexelNodeId>& NodeIds) const;

	/** Compiles at the next tick of the game thread. The task fails only when the Blueprint is gone; what the compiler finds is in the log. */
	TVexelTaskResult<TSharedRef<FCompilerResultsLog>> CompileBlueprint() const;

private:
	TVexelExpected<UEdGraph*> FindGraph(const FVexelErrorPlace& Place, const TVexelGraphId& GraphId) const;
	TVexelExpected<UEdGraphNode*> FindNode(const FVexelErrorPlace& Place, const UEdGraph& Graph, const TVexelNodeId& NodeId) const;
	TVexelExpected<UEdGraphPin*> FindPin(const FVexelErrorPlace& Place, const UEdGraphNode& Node, const TVexelPinId& PinId) const;
	/** Whether one more unknown id may be answered with those that look like it. */
	bool MayList() const { return NumListed++ < MaxListings; }
	FString ListNearestTypes(const TVexelNodeTypeId& TypeId) const;
	FString ListNearestNodes(const UEdGraph& Graph, const TVexelNodeId& NodeId) const;
	void FinishEdit() const;
	void Refresh() const;

	TWeakObjectPtr<UBlueprint> Blueprint;
	FVexelBlueprintMapping& Mapping;
	/** To look for what is like an id takes milliseconds, and a call may have thousands of items. */
	static constexpr int32 MaxListings = 20;
	mutable int32 NumListed = 0;
	/** A batch is open, and one of its edits has been made. */
	mutable bool bFinishLater = false;
	mutable bool bUnfinished = false;
};
