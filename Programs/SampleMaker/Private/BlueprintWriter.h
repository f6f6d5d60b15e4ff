#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "GraphWriter.h"

class FNodeTexts;
class UBlueprint;
class UEdGraph;
class USCS_Node;

/** A member variable as a user sets it up in the editor's details. */
struct FVariableRow
{
	FName Name;
	FEdGraphPinType Type;
	const TCHAR* DefaultValue = TEXT("");
	const TCHAR* Tooltip = TEXT("");
	/** Null for the default category. */
	const TCHAR* Category = nullptr;
	bool bInstanceEditable = false;
};

struct FParameterRow
{
	FName Name;
	FEdGraphPinType Type;
};

struct FFunctionRow
{
	FName Name;
	const TCHAR* Tooltip;
	TArray<FParameterRow> Inputs;
	TArray<FParameterRow> Outputs;
	bool bPure = false;
};

/** Sets up one Blueprint. Its packages are saved by FSampleProject. */
class FBlueprintWriter
{
public:
	/** Both must outlive the writer. */
	FBlueprintWriter(UBlueprint& InBlueprint, const FNodeTexts& InTexts)
		: Blueprint(InBlueprint)
		, Texts(InTexts)
	{
	}

	/** An empty Blueprint in a package of its own; Path is "/Game/Name". */
	static UBlueprint& Create(const TCHAR* Path, UClass& ParentClass, const TCHAR* Description);

	/** A component below Parent, or at the root. */
	USCS_Node& AddComponent(const TCHAR* ClassPath, FName Name, USCS_Node* Parent = nullptr);
	void AddVariable(const FVariableRow& Row);
	/** A function without a body: its entry node, and its result node if it has outputs. */
	void AddFunction(const FFunctionRow& Row);
	/** A writer of the function's graph, or of the event graph. */
	FGraphWriter Write(FName GraphName) const;
	/** Events that a new Blueprint suggests stand where its nodes go; those that are not used go below what was written. */
	void PutSuggestionsBelow() const;
	/** Brings the classes up to date; a Blueprint that does not compile ends the program. */
	void Compile() const;

private:
	UBlueprint& Blueprint;
	const FNodeTexts& Texts;
};
