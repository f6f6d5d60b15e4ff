#include "Kismet2/BlueprintEditorUtils.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_FunctionTerminator.h"
#include "K2Node_Timeline.h"
#include "K2Node_Variable.h"
#include "MemberUses.h"
#include "UObject/Interface.h"
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

namespace
{
/** A timeline lives as long as its node. */
void RemoveTimelineOf(UBlueprint* Blueprint, const UEdGraphNode* Node)
{
	const UK2Node_Timeline* const TimelineNode = Cast<UK2Node_Timeline>(Node);
	if (UTimelineTemplate* const Template = TimelineNode ? TimelineNode->GetTemplate() : nullptr)
	{
		FBlueprintEditorUtils::RemoveTimeline(Blueprint, Template, true);
	}
}

void RemoveTimelinesOf(UBlueprint* Blueprint, const UEdGraph& Graph)
{
	for (const UEdGraphNode* const Node : Graph.Nodes)
	{
		RemoveTimelineOf(Blueprint, Node);
	}
}
}

UEdGraph* FBlueprintEditorUtils::CreateNewGraph(
	UObject* ParentScope, const FName& GraphName, TSubclassOf<UEdGraph> GraphClass, TSubclassOf<UEdGraphSchema> SchemaClass)
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

void FBlueprintEditorUtils::AddFunctionGraphFromSignature(
	UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UFunction* Signature, bool bIsOverride)
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
	RemoveTimelinesOf(Blueprint, *GraphToRemove);
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

void FBlueprintEditorUtils::RemoveGraphs(UBlueprint* Blueprint, const TArray<UEdGraph*>& GraphsToRemove)
{
	for (UEdGraph* const Graph : GraphsToRemove)
	{
		RemoveGraph(Blueprint, Graph, EGraphRemoveFlags::MarkTransient);
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
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
	RemoveTimelineOf(Blueprint, Node);
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

namespace
{
/** The uses of the function's own local variables, which know it by its name. */
TArray<FMemberUse> FindLocalUses(const UEdGraph& Graph)
{
	TArray<FMemberUse> Uses;
	TArray<UEdGraph*> Graphs = {const_cast<UEdGraph*>(&Graph)};
	Graph.GetAllChildrenGraphs(Graphs);
	for (const UEdGraph* const Inner : Graphs)
	{
		TArray<UK2Node_Variable*> Nodes;
		Inner->GetNodesOfClass(Nodes);
		for (UK2Node_Variable* const Node : Nodes)
		{
			if (Node->VariableReference.IsLocalScope() && Node->VariableReference.GetMemberScopeName() == Graph.GetName())
			{
				Uses.Add({Node, &Node->VariableReference});
			}
		}
	}
	return Uses;
}

void RenameTerminators(const UEdGraph& Graph, FName OldName, FName NewName)
{
	TArray<UK2Node_FunctionTerminator*> Terminators;
	Graph.GetNodesOfClass(Terminators);
	for (UK2Node_FunctionTerminator* const Terminator : Terminators)
	{
		const bool bIsOwn = !Terminator->FunctionReference.GetMemberParentClass() &&
			Terminator->FunctionReference.GetMemberName() == OldName;
		if (bIsOwn)
		{
			Terminator->Modify();
			Terminator->FunctionReference.SetSelfMember(NewName);
		}
	}
}

/** Variables that call the function when they are replicated know it by its name. */
void RenameNotifications(UBlueprint& Blueprint, FName OldName, FName NewName)
{
	for (FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		if (Variable.RepNotifyFunc == OldName)
		{
			Blueprint.Modify();
			Variable.RepNotifyFunc = NewName;
		}
	}
}

void RenameGraphIn(UBlueprint& Owner, const TArray<TObjectPtr<UEdGraph>>& Graphs, FName OldName, const FString& NewName)
{
	const TObjectPtr<UEdGraph>* const Found = Graphs.FindByPredicate([OldName](const UEdGraph* Graph)
		{ return Graph && Graph->GetFName() == OldName; });
	if (Found)
	{
		Found->Get()->Modify();
		Found->Get()->Rename(*NewName, &Owner, REN_DontCreateRedirectors);
		FBlueprintEditorUtils::MarkBlueprintAsModified(&Owner);
	}
}

/** Graphs of derived Blueprints that override the function, and of those that implement it for an interface, go on doing so. */
void RenameOverridingGraphs(const UBlueprint& Blueprint, FName OldName, const FString& NewName)
{
	TArray<UBlueprint*> Dependents;
	FBlueprintEditorUtils::GetDependentBlueprints(const_cast<UBlueprint*>(&Blueprint), Dependents);
	for (UBlueprint* const Dependent : Dependents)
	{
		if (FMemberUses::IsClassOf(Dependent->ParentClass.Get(), Blueprint))
		{
			RenameGraphIn(*Dependent, Dependent->FunctionGraphs, OldName, NewName);
		}
		for (const FBPInterfaceDescription& Interface : Dependent->ImplementedInterfaces)
		{
			if (FMemberUses::IsClassOf(Interface.Interface.Get(), Blueprint))
			{
				RenameGraphIn(*Dependent, Interface.Graphs, OldName, NewName);
			}
		}
	}
}
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
	const FName OldName = Graph->GetFName();
	if (Blueprint->DelegateSignatureGraphs.Contains(Graph))
	{
		// The dispatcher's variable and its signature have one name; the variable's renaming renames both.
		RenameMemberVariable(Blueprint, OldName, NewName);
		return Graph->GetFName() == NewName;
	}
	const bool bIsFunction = Blueprint->FunctionGraphs.Contains(Graph);
	const TArray<FMemberUse> Uses = bIsFunction ? FMemberUses::FindOfFunction(*Blueprint, OldName) : TArray<FMemberUse>();
	const TArray<FMemberUse> LocalUses = bIsFunction ? FindLocalUses(*Graph) : TArray<FMemberUse>();
	const TArray<UK2Node_CreateDelegate*> Delegates = bIsFunction ? FMemberUses::FindDelegatesOfFunction(*Blueprint, OldName)
																  : TArray<UK2Node_CreateDelegate*>();
	Graph->Modify();
	Graph->Rename(*NewNameStr, Graph->GetOuter(), REN_DontCreateRedirectors);
	RenameTerminators(*Graph, OldName, NewName);
	FMemberUses::Rename(Uses, OldName, NewName);
	for (const FMemberUse& Use : LocalUses)
	{
		Use.Node->Modify();
		Use.Reference->SetLocalMember(Use.Reference->GetMemberName(), NewNameStr, Use.Reference->GetMemberGuid());
	}
	for (UK2Node_CreateDelegate* const Delegate : Delegates)
	{
		Delegate->Modify();
		Delegate->SetFunction(NewName);
	}
	if (bIsFunction)
	{
		RenameOverridingGraphs(*Blueprint, OldName, NewNameStr);
		RenameNotifications(*Blueprint, OldName, NewName);
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
