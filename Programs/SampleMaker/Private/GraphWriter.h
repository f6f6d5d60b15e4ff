#pragma once

#include "CoreMinimal.h"

class FNodeTexts;
class UBlueprint;
class UClass;
class UEdGraph;
class UEdGraphNode;
class UEdGraphPin;
class UFunction;
class UK2Node_CallFunction;
struct FKey;

/**
 * Writes nodes and links into one graph, as a user's clicks would. What the schema refuses, and what is missing, ends the
 * program with a line that names the graph, the node and the pin.
 */
class FGraphWriter
{
public:
	/** Of what At counts. */
	static constexpr int32 ColumnWidth = 320;
	static constexpr int32 RowHeight = 192;

	/** Both must outlive the writer. */
	FGraphWriter(UEdGraph& InGraph, const FNodeTexts& InTexts)
		: Graph(InGraph)
		, Texts(InTexts)
	{
	}

	/** The place of the next node, in columns and rows; each node that is added moves it on by a column. */
	FGraphWriter& At(int32 InColumn, int32 InRow);

	// Nodes

	UEdGraphNode& AddEvent(FName Function);
	UEdGraphNode& AddCustomEvent(FName Name);
	UEdGraphNode& AddInputKey(const FKey& Key);
	/** A call of a function of a native class, by the node class that its metadata asks for. */
	UEdGraphNode& AddCall(const TCHAR* ClassPath, FName Function);
	/** A call of one of the Blueprint's own functions, events included. */
	UEdGraphNode& AddOwnCall(FName Function);
	UEdGraphNode& AddCallOf(const UBlueprint& Other, FName Function);
	UEdGraphNode& AddPrint(const FString& Text);
	UEdGraphNode& AddGet(FName Variable);
	UEdGraphNode& AddSet(FName Variable);
	UEdGraphNode& AddBranch();
	UEdGraphNode& AddSequence();
	UEdGraphNode& AddCast(const UBlueprint& Target);
	/** An item of an array. */
	UEdGraphNode& AddGetItem();
	/** A macro of the engine's own library. */
	UEdGraphNode& AddMacro(const TCHAR* Macro, const TCHAR* TextFile);
	UEdGraphNode& AddSwitchOnName(const TArray<FName>& Cases);
	/** The graph's entry node, or its result node. */
	UEdGraphNode& FindTerminator(UClass& NodeClass);

	// Links and defaults

	/** Links the one execution output that is called "then", or has no sibling, to the execution input. */
	void Run(UEdGraphNode& From, UEdGraphNode& To);
	void Run(UEdGraphNode& From, FName Output, UEdGraphNode& To);
	/** Links the node's only visible value to an input. */
	void Feed(UEdGraphNode& From, UEdGraphNode& To, FName Input);
	void Feed(UEdGraphNode& From, FName Output, UEdGraphNode& To, FName Input);
	void SetDefault(UEdGraphNode& Node, FName Input, const FString& Value);
	/** The class as the value of a class pin. */
	void SetDefault(UEdGraphNode& Node, FName Input, UClass& Value);

private:
	template <typename NodeType>
	NodeType& Add(TFunctionRef<void(NodeType&)> Describe, const TCHAR* TextFile = nullptr, UClass* NodeClass = nullptr);
	void Place(UEdGraphNode& Node);
	UEdGraphNode& AddCallNode(UFunction& Function, const TCHAR* TextFile = nullptr);

	UBlueprint& GetBlueprint() const;
	/** The class that has the Blueprint's members as they now stand. */
	UClass& GetClass() const;
	void Link(UEdGraphPin& Output, UEdGraphPin& Input);

	UEdGraph& Graph;
	const FNodeTexts& Texts;
	int32 Column = 0;
	int32 Row = 0;
};
