#include "Kismet2/BlueprintEditorUtils.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "K2Node_FunctionTerminator.h"
#include "UObject/UObjectGlobals.h"

namespace
{
bool IsValidGraphName(const FString& Name)
{
	FText Reason;
	return FName(*Name).IsValidObjectName(Reason) && !Name.IsEmpty();
}

bool HasMemberNamed(const UBlueprint* Blueprint, const FName& Name)
{
	const UClass* const Class = Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : Blueprint->ParentClass.Get();
	return Class && (FindFProperty<FProperty>(Class, Name) || Class->FindFunctionByName(Name));
}
}

UEdGraph* FBlueprintEditorUtils::CreateNewGraph(UObject* ParentScope, const FName& GraphName, TSubclassOf<UEdGraph> GraphClass, TSubclassOf<UEdGraphSchema> SchemaClass)
{
	const bool bNameIsTaken = GraphName.IsNone() || StaticFindObjectFast(nullptr, ParentScope, GraphName);
	const FName Name = bNameIsTaken ? MakeUniqueObjectName(ParentScope, GraphClass.Get(), GraphName) : GraphName;
	UEdGraph* const NewGraph = NewObject<UEdGraph>(ParentScope, GraphClass.Get(), Name, RF_Transactional);
	NewGraph->Schema = SchemaClass;
	return NewGraph;
}

void FBlueprintEditorUtils::AddUbergraphPage(UBlueprint* Blueprint, UEdGraph* Graph)
{
	check(Blueprint->SupportsEventGraphs());
	Blueprint->Modify();
	Blueprint->UbergraphPages.Add(Graph);
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::AddMacroGraph(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UClass* SignatureFromClass)
{
	Graph->bAllowDeletion = Graph->bAllowRenaming = bIsUserCreated || Blueprint->BlueprintType == BPTYPE_MacroLibrary;
	Blueprint->Modify();
	Blueprint->MacroGraphs.Add(Graph);
	const UEdGraphSchema_K2* const Schema = Cast<UEdGraphSchema_K2>(Graph->GetSchema());
	if (Schema)
	{
		Schema->CreateMacroGraphTerminators(*Graph, SignatureFromClass);
		if (bIsUserCreated)
		{
			Schema->MarkFunctionEntryAsEditable(Graph, true);
		}
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}

UFunction* FBlueprintEditorUtils::FindSignature(const UEdGraph* Graph, UClass* Class)
{
	return Class ? Class->FindFunctionByName(Graph->GetFName()) : nullptr;
}

void FBlueprintEditorUtils::AddFunctionGraphFromSignature(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UFunction* Signature, bool bIsOverride)
{
	Blueprint->Modify();
	Graph->bAllowDeletion = bIsUserCreated || bIsOverride;
	Graph->bAllowRenaming = bIsUserCreated;
	Blueprint->FunctionGraphs.Add(Graph);
	const UEdGraphSchema_K2* const Schema = Cast<UEdGraphSchema_K2>(Graph->GetSchema());
	if (Schema)
	{
		Schema->CreateDefaultNodesForGraph(*Graph);
		if (bIsOverride && Signature)
		{
			Schema->CreateFunctionGraphTerminators(*Graph, Signature->GetOwnerClass());
		}
		else
		{
			Schema->CreateFunctionGraphTerminators(*Graph, Signature);
		}
		if (bIsUserCreated)
		{
			const int32 ExtraFunctionFlags = FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_Public |
				(Blueprint->BlueprintType == BPTYPE_FunctionLibrary ? FUNC_Static : FUNC_None);
			Schema->AddExtraFunctionFlags(Graph, ExtraFunctionFlags);
			Schema->MarkFunctionEntryAsEditable(Graph, true);
		}
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::RemoveGraph(UBlueprint* Blueprint, UEdGraph* GraphToRemove, EGraphRemoveFlags::Type Flags)
{
	check(GraphToRemove);
	if (!GraphToRemove->bAllowDeletion)
	{
		return;
	}
	GraphToRemove->Modify();
	Blueprint->Modify();
	for (UObject* Outer = GraphToRemove->GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (UBlueprint* const OuterBlueprint = Cast<UBlueprint>(Outer))
		{
			OuterBlueprint->DelegateSignatureGraphs.Remove(GraphToRemove);
			OuterBlueprint->FunctionGraphs.Remove(GraphToRemove);
			OuterBlueprint->UbergraphPages.Remove(GraphToRemove);
			OuterBlueprint->MacroGraphs.Remove(GraphToRemove);
			OuterBlueprint->EventGraphs.Remove(GraphToRemove);
			for (FBPInterfaceDescription& Interface : OuterBlueprint->ImplementedInterfaces)
			{
				Interface.Graphs.Remove(GraphToRemove);
			}
		}
		else if (UEdGraph* const OuterGraph = Cast<UEdGraph>(Outer))
		{
			OuterGraph->Modify();
			OuterGraph->SubGraphs.Remove(GraphToRemove);
		}
	}
	if (const UEdGraphSchema* const Schema = GraphToRemove->GetSchema())
	{
		Schema->HandleGraphBeingDeleted(*GraphToRemove);
	}
	// Under another name, so that a new graph may take this one's while an undo may still bring the graph back.
	GraphToRemove->Rename(nullptr, GetTransientPackageAsObject(), REN_DontCreateRedirectors);
	if ((Flags & EGraphRemoveFlags::MarkTransient) != 0)
	{
		GraphToRemove->SetFlags(RF_Transient);
	}
	if ((Flags & EGraphRemoveFlags::Recompile) != 0)
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
	else
	{
		MarkBlueprintAsModified(Blueprint);
	}
}

void FBlueprintEditorUtils::RemoveNode(UBlueprint* Blueprint, UEdGraphNode* Node, bool bDontRecompile)
{
	check(Node);
	UEdGraph* const Graph = Node->GetGraph();
	Graph->Modify();
	Node->Modify();
	for (UEdGraph* const SubGraph : Node->GetSubGraphs())
	{
		RemoveGraph(Blueprint, SubGraph, EGraphRemoveFlags::None);
	}
	Node->BreakAllNodeLinks();
	Node->DestroyNode();
	if (bDontRecompile)
	{
		MarkBlueprintAsModified(Blueprint);
	}
	else
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

bool FBlueprintEditorUtils::IsGraphNameUnique(const UBlueprint* Blueprint, const FName& InName)
{
	if (StaticFindObjectFast(nullptr, const_cast<UBlueprint*>(Blueprint), InName) || FindNewVariableIndex(Blueprint, InName) != INDEX_NONE)
	{
		return false;
	}
	TArray<UEdGraph*> Graphs;
	Blueprint->GetAllGraphs(Graphs);
	return !Graphs.ContainsByPredicate([InName](const UEdGraph* Graph)
			   { return Graph->GetFName() == InName; }) &&
		!HasMemberNamed(Blueprint, InName);
}

FName FBlueprintEditorUtils::GenerateUniqueGraphName(const UBlueprint* Blueprint, const FString& ProposedName)
{
	FName Name(*ProposedName);
	for (int32 Suffix = 0; !IsGraphNameUnique(Blueprint, Name); ++Suffix)
	{
		Name = FName(*FString::Printf(TEXT("%s_%d"), *ProposedName, Suffix));
	}
	return Name;
}

bool FBlueprintEditorUtils::RenameGraph(UEdGraph* Graph, const FString& NewNameStr)
{
	const FName NewName(*NewNameStr);
	UBlueprint* const Blueprint = FindBlueprintForGraph(Graph);
	const bool bOnlyCaseChanges = Graph->GetFName() == NewName;
	if (!Blueprint || !IsValidGraphName(NewNameStr) || (!bOnlyCaseChanges && !IsGraphNameUnique(Blueprint, NewName)))
	{
		return false;
	}
	Graph->Modify();
	Graph->Rename(*NewNameStr, Graph->GetOuter(), REN_DontCreateRedirectors);
	TArray<UK2Node_FunctionTerminator*> Terminators;
	Graph->GetNodesOfClass(Terminators);
	for (UK2Node_FunctionTerminator* const Terminator : Terminators)
	{
		if (Terminator->FunctionReference.GetMemberParentClass() == nullptr)
		{
			Terminator->Modify();
			Terminator->FunctionReference.SetSelfMember(NewName);
		}
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

bool FBlueprintEditorUtils::RenameGraphWithSuggestion(UEdGraph* Graph, const TArray<FString>& NameCandidates, const FString& DesiredName)
{
	if (!DesiredName.IsEmpty() && RenameGraph(Graph, DesiredName))
	{
		return true;
	}
	for (const FString& Candidate : NameCandidates)
	{
		if (RenameGraph(Graph, Candidate))
		{
			return true;
		}
	}
	return false;
}
