#pragma once

#include "CoreMinimal.h"

class FCompilerResultsLog;
class FGraphFlow;
class UBlueprint;
class UEdGraph;
class UEdGraphPin;
class UK2Node;

/** Finds what is wrong with one graph of a Blueprint, whose skeleton class must be up to date. */
class FGraphValidator
{
public:
	FGraphValidator(const UBlueprint& InBlueprint, const UEdGraph& InGraph, FCompilerResultsLog& InLog);

	void Validate();

private:
	void ValidateNode(const UK2Node& Node);
	void ValidatePin(const UK2Node& Node, const UEdGraphPin& Pin);
	void ValidateLinks(const UK2Node& Node, const UEdGraphPin& Pin);
	void ValidateUnlinkedInput(const UK2Node& Node, const UEdGraphPin& Pin);
	void ValidateTarget(const UK2Node& Node, const UEdGraphPin& Pin);
	void ReportUnreached(const FGraphFlow& Flow);
	void ValidateFunction(const FGraphFlow& Flow);

	const UBlueprint& Blueprint;
	const UEdGraph& Graph;
	FCompilerResultsLog& Log;
	/** What "self" is in the graph. */
	const UClass* SelfClass;
	bool bIsFunction;
	bool bIsMacro;
};
