#include "BlueprintWriter.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Failure.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/PackageName.h"
#include "StableIds.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
constexpr int32 ResultPosX = 1280;

UK2Node_FunctionEntry& FindEntry(UEdGraph& Graph)
{
	TArray<UK2Node_FunctionEntry*> Entries;
	Graph.GetNodesOfClass(Entries);
	return Require(Entries.IsEmpty() ? nullptr : Entries[0], TEXT("entry node in ") + Graph.GetPathName());
}

UEdGraph* FindGraph(const UBlueprint& Blueprint, FName Name)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	UEdGraph* const* const Found = Graphs.FindByPredicate([Name](const UEdGraph* Graph)
		{ return Graph->GetFName() == Name; });
	return Found ? *Found : nullptr;
}

void AddParameters(UK2Node_EditablePinBase& Node, const TArray<FParameterRow>& Rows, EEdGraphPinDirection Direction)
{
	for (const FParameterRow& Row : Rows)
	{
		Require(Node.CreateUserDefinedPin(Row.Name, Row.Type, Direction, false), FString::Printf(TEXT("room for the parameter %s"), *Row.Name.ToString()));
	}
}

void AddResult(UEdGraph& Graph, UEdGraphNode& Entry, const TArray<FParameterRow>& Outputs, bool bPure)
{
	FGraphNodeCreator<UK2Node_FunctionResult> Creator(Graph);
	UK2Node_FunctionResult* const Result = Creator.CreateNode(false);
	Result->NodePosX = ResultPosX;
	Creator.Finalize();
	AddParameters(*Result, Outputs, EGPD_Input);
	if (bPure)
	{
		// A pure function's graph runs straight from its entry to its result.
		Entry.FindPin(UEdGraphSchema_K2::PN_Then, EGPD_Output)->MakeLinkTo(Result->FindPin(UEdGraphSchema_K2::PN_Execute, EGPD_Input));
	}
}
}

UBlueprint& FBlueprintWriter::Create(const TCHAR* Path, UClass& ParentClass, const TCHAR* Description)
{
	UPackage* const Package = CreatePackage(Path);
	const FName Name(*FPackageName::GetShortName(FString(Path)));
	UBlueprint* const Made = FKismetEditorUtilities::CreateBlueprint(&ParentClass, Package, Name, BPTYPE_Normal);
	UBlueprint& Blueprint = Require(Made, FString::Printf(TEXT("Blueprint %s"), Path));
	Blueprint.BlueprintDescription = Description;
	StableIds::Fix(Blueprint);
	return Blueprint;
}

USCS_Node& FBlueprintWriter::AddComponent(const TCHAR* ClassPath, FName Name, USCS_Node* Parent)
{
	UClass& Class = Require(FindObject<UClass>(nullptr, ClassPath), FString::Printf(TEXT("class %s"), ClassPath));
	USimpleConstructionScript& Script = Require(Blueprint.SimpleConstructionScript.Get(), TEXT("construction script in ") + Blueprint.GetName());
	USCS_Node& Node = *Script.CreateNode(&Class, Name);
	Node.VariableGuid = StableIds::MakeId(Blueprint, Name.ToString());
	if (Parent)
	{
		Parent->AddChildNode(&Node);
	}
	else
	{
		Script.AddNode(&Node);
	}
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
	return Node;
}

void FBlueprintWriter::AddVariable(const FVariableRow& Row)
{
	if (!FBlueprintEditorUtils::AddMemberVariable(&Blueprint, Row.Name, Row.Type, Row.DefaultValue))
	{
		Fail(FString::Printf(TEXT("%s does not take the variable %s"), *Blueprint.GetName(), *Row.Name.ToString()));
	}
	FBPVariableDescription& Variable = Blueprint.NewVariables[FBlueprintEditorUtils::FindNewVariableIndex(&Blueprint, Row.Name)];
	Variable.VarGuid = StableIds::MakeId(Blueprint, Row.Name.ToString());
	if (Row.bInstanceEditable)
	{
		Variable.PropertyFlags &= ~CPF_DisableEditOnInstance;
	}
	FBlueprintEditorUtils::SetBlueprintVariableMetaData(&Blueprint, Row.Name, nullptr, FBlueprintMetadata::MD_Tooltip, Row.Tooltip);
	if (Row.Category)
	{
		FBlueprintEditorUtils::SetBlueprintVariableCategory(&Blueprint, Row.Name, nullptr, FText::FromString(Row.Category));
	}
}

void FBlueprintWriter::AddFunction(const FFunctionRow& Row)
{
	UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(&Blueprint, Row.Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(&Blueprint, Graph, true, nullptr);
	UK2Node_FunctionEntry& Entry = FindEntry(*Graph);
	Entry.MetaData.ToolTip = FText::FromString(Row.Tooltip);
	if (Row.bPure)
	{
		Entry.AddExtraFlags(FUNC_BlueprintPure);
	}
	AddParameters(Entry, Row.Inputs, EGPD_Output);
	if (!Row.Outputs.IsEmpty())
	{
		AddResult(*Graph, Entry, Row.Outputs, Row.bPure);
	}
	// Calls refer to a function by its graph's id.
	StableIds::Fix(Blueprint);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
}

FGraphWriter FBlueprintWriter::Write(FName GraphName) const
{
	UEdGraph* const Graph = FindGraph(Blueprint, GraphName);
	return FGraphWriter(Require(Graph, FString::Printf(TEXT("graph %s in %s"), *GraphName.ToString(), *Blueprint.GetName())), Texts);
}

void FBlueprintWriter::PutSuggestionsBelow() const
{
	UEdGraph* const Events = FBlueprintEditorUtils::FindEventGraph(&Blueprint);
	TArray<UEdGraphNode*> Suggestions;
	int32 LastPosY = 0;
	for (UEdGraphNode* const Node : Events ? Events->Nodes : TArray<TObjectPtr<UEdGraphNode>>())
	{
		if (Node->IsAutomaticallyPlacedGhostNode())
		{
			Suggestions.Add(Node);
		}
		else
		{
			LastPosY = FMath::Max(LastPosY, Node->NodePosY);
		}
	}
	for (UEdGraphNode* const Node : Suggestions)
	{
		LastPosY += FGraphWriter::RowHeight * 2;
		Node->NodePosX = 0;
		Node->NodePosY = LastPosY;
	}
}

void FBlueprintWriter::Compile() const
{
	StableIds::Fix(Blueprint);
	FKismetEditorUtilities::CompileBlueprint(&Blueprint);
	if (Blueprint.Status != BS_UpToDate)
	{
		Fail(FString::Printf(TEXT("%s does not compile"), *Blueprint.GetName()));
	}
}
