#include "Kismet2/BlueprintEditorUtils.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "GameFramework/Actor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

// Finding

UBlueprint* FBlueprintEditorUtils::FindBlueprintForGraph(const UEdGraph* Graph)
{
	return Graph ? Graph->GetTypedOuter<UBlueprint>() : nullptr;
}

UBlueprint* FBlueprintEditorUtils::FindBlueprintForGraphChecked(const UEdGraph* Graph)
{
	UBlueprint* const Result = FindBlueprintForGraph(Graph);
	check(Result);
	return Result;
}

UBlueprint* FBlueprintEditorUtils::FindBlueprintForNode(const UEdGraphNode* Node)
{
	return Node ? Node->GetTypedOuter<UBlueprint>() : nullptr;
}

UBlueprint* FBlueprintEditorUtils::FindBlueprintForNodeChecked(const UEdGraphNode* Node)
{
	UBlueprint* const Result = FindBlueprintForNode(Node);
	check(Result);
	return Result;
}

void FBlueprintEditorUtils::GetAllGraphs(const UBlueprint* Blueprint, TArray<UEdGraph*>& Graphs)
{
	Blueprint->GetAllGraphs(Graphs);
}

UEdGraph* FBlueprintEditorUtils::FindEventGraph(const UBlueprint* Blueprint)
{
	for (UEdGraph* const Graph : Blueprint->UbergraphPages)
	{
		if (Graph && Graph->GetFName() == UEdGraphSchema_K2::GN_EventGraph)
		{
			return Graph;
		}
	}
	return Blueprint->UbergraphPages.Num() > 0 ? Blueprint->UbergraphPages[0].Get() : nullptr;
}

UEdGraph* FBlueprintEditorUtils::FindUserConstructionScript(const UBlueprint* Blueprint)
{
	for (UEdGraph* const Graph : Blueprint->FunctionGraphs)
	{
		if (Graph && Graph->GetFName() == UEdGraphSchema_K2::FN_UserConstructionScript)
		{
			return Graph;
		}
	}
	return nullptr;
}

EGraphType FBlueprintEditorUtils::GetGraphType(const UEdGraph* InGraph)
{
	const UEdGraphSchema* const Schema = InGraph ? InGraph->GetSchema() : nullptr;
	return Schema ? Schema->GetGraphType(InGraph) : GT_MAX;
}

UEdGraph* FBlueprintEditorUtils::GetTopLevelGraph(const UEdGraph* InGraph)
{
	UEdGraph* Top = const_cast<UEdGraph*>(InGraph);
	while (UEdGraph* const Outer = UEdGraph::GetOuterGraph(Top))
	{
		Top = Outer;
	}
	return Top;
}

bool FBlueprintEditorUtils::IsGraphReadOnly(UEdGraph* InGraph)
{
	if (!InGraph || !InGraph->bEditable)
	{
		return true;
	}
	const UBlueprint* const Blueprint = FindBlueprintForGraph(InGraph);
	return Blueprint && (IsInterfaceBlueprint(Blueprint) || Blueprint->DelegateSignatureGraphs.Contains(InGraph));
}

bool FBlueprintEditorUtils::IsDelegateSignatureGraph(const UEdGraph* Graph)
{
	const UBlueprint* const Blueprint = FindBlueprintForGraph(Graph);
	return Blueprint && Blueprint->DelegateSignatureGraphs.Contains(const_cast<UEdGraph*>(Graph));
}

bool FBlueprintEditorUtils::IsInterfaceGraph(const UEdGraph* Graph, const UBlueprint* Blueprint)
{
	return Blueprint->ImplementedInterfaces.ContainsByPredicate([Graph](const FBPInterfaceDescription& Interface)
		{ return Interface.Graphs.Contains(const_cast<UEdGraph*>(Graph)); });
}

bool FBlueprintEditorUtils::IsActorBased(const UBlueprint* Blueprint)
{
	return Blueprint && Blueprint->ParentClass && Blueprint->ParentClass->IsChildOf(AActor::StaticClass());
}

UClass* FBlueprintEditorUtils::GetMostUpToDateClass(UClass* FromClass)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(FromClass);
	return Blueprint && Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : FromClass;
}

// State

void FBlueprintEditorUtils::MarkBlueprintAsModified(UBlueprint* Blueprint, FPropertyChangedEvent PropertyChangedEvent)
{
	if (Blueprint->bBeingCompiled)
	{
		return;
	}
	Blueprint->Status = BS_Dirty;
	Blueprint->MarkPackageDirty();
	Blueprint->BroadcastChanged();
}

void FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(UBlueprint* Blueprint)
{
	if (Blueprint->bBeingCompiled)
	{
		return;
	}
	FKismetEditorUtilities::GenerateBlueprintSkeleton(Blueprint, true);
	MarkBlueprintAsModified(Blueprint);
}

void FBlueprintEditorUtils::ReconstructAllNodes(UBlueprint* Blueprint)
{
	TArray<UEdGraphNode*> Nodes;
	GetAllNodesOfClass(Blueprint, Nodes);
	for (UEdGraphNode* const Node : Nodes)
	{
		Node->ReconstructNode();
	}
}

void FBlueprintEditorUtils::RefreshAllNodes(UBlueprint* Blueprint)
{
	if (!Blueprint)
	{
		return;
	}
	ReconstructAllNodes(Blueprint);
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::PreloadMembers(UObject* InObject)
{
	// The loader has read everything below an object by the time that the object is handed out; what remains is its last step.
	TArray<UObject*> Inners;
	GetObjectsWithOuter(InObject, Inners, true);
	for (UObject* const Inner : Inners)
	{
		Inner->ConditionalPostLoad();
	}
}

void FBlueprintEditorUtils::PreloadBlueprintSpecificData(UBlueprint* Blueprint)
{
	PreloadMembers(Blueprint);
}

// Interfaces

bool FBlueprintEditorUtils::ImplementNewInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName)
{
	UClass* const Interface = FindObject<UClass>(InterfaceClassPathName);
	const bool bImplementsAlready = Blueprint->ImplementedInterfaces.ContainsByPredicate([Interface](const FBPInterfaceDescription& Description)
		{ return Description.Interface.Get() == Interface; });
	if (!Interface || !Interface->HasAnyClassFlags(CLASS_Interface) || bImplementsAlready)
	{
		return false;
	}
	Blueprint->Modify();
	FBPInterfaceDescription Description;
	Description.Interface = Interface;
	for (TFieldIterator<UFunction> It(Interface, EFieldIteratorFlags::IncludeSuper); It; ++It)
	{
		UFunction* const Function = *It;
		const bool bNeedsGraph = UEdGraphSchema_K2::CanKismetOverrideFunction(Function) &&
			!UEdGraphSchema_K2::FunctionCanBePlacedAsEvent(Function);
		if (!bNeedsGraph)
		{
			continue;
		}
		UEdGraph* const Graph = CreateNewGraph(Blueprint, Function->GetFName(), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		Graph->bAllowDeletion = false;
		Graph->InterfaceGuid = FGuid::NewDeterministicGuid(Function->GetPathName());
		Description.Graphs.Add(Graph);
		AddFunctionGraphFromSignature(Blueprint, Graph, false, Function, true);
		Blueprint->FunctionGraphs.Remove(Graph);
	}
	Blueprint->ImplementedInterfaces.Add(Description);
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

void FBlueprintEditorUtils::FindImplementedInterfaces(const UBlueprint* Blueprint, bool bGetAllInterfaces, TArray<UClass*>& ImplementedInterfaces)
{
	for (const FBPInterfaceDescription& Description : Blueprint->ImplementedInterfaces)
	{
		if (Description.Interface)
		{
			ImplementedInterfaces.AddUnique(Description.Interface.Get());
		}
	}
	if (!bGetAllInterfaces)
	{
		return;
	}
	for (const UClass* Class = Blueprint->ParentClass.Get(); Class; Class = Class->GetSuperClass())
	{
		for (const FImplementedInterface& Interface : Class->Interfaces)
		{
			if (Interface.Class)
			{
				ImplementedInterfaces.AddUnique(Interface.Class.Get());
			}
		}
	}
}
