#include "Kismet2/BlueprintEditorUtils.h"

#include "BlueprintDependencies.h"
#include "ClassMembers.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_Tunnel.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "MemberUses.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
void MarkAsModified(const TSet<UBlueprint*>& Blueprints)
{
	for (UBlueprint* const Blueprint : Blueprints)
	{
		FBlueprintEditorUtils::MarkBlueprintAsModified(Blueprint);
	}
}

/** Uses of a member that was added or changed. */
TArray<FMemberUse> FindUsesOfChanged(const UBlueprint& Blueprint, const FClassMembers& Before, const FClassMembers& Now)
{
	const auto ForEachChanged = [](const TMap<FName, FString>& Then, const TMap<FName, FString>& Members, TFunctionRef<void(FName)> Visit)
	{
		for (const TPair<FName, FString>& Member : Members)
		{
			const FString* const Text = Then.Find(Member.Key);
			if (!Text || !Text->Equals(Member.Value, ESearchCase::CaseSensitive))
			{
				Visit(Member.Key);
			}
		}
	};
	TArray<FMemberUse> Uses;
	ForEachChanged(Before.Functions, Now.Functions, [&Blueprint, &Uses](FName Name)
		{
			Uses.Append(FMemberUses::FindOfFunction(Blueprint, Name));
			FString Dispatcher = Name.ToString();
			if (Dispatcher.RemoveFromEnd(TEXT("__DelegateSignature"), ESearchCase::CaseSensitive))
			{
				// Its calls and bindings name the variable, events that are bound to it the signature.
				Uses.Append(FMemberUses::FindOfVariable(Blueprint, FName(*Dispatcher)));
			} });
	ForEachChanged(Before.Properties, Now.Properties, [&Blueprint, &Uses](FName Name)
		{ Uses.Append(FMemberUses::FindOfVariable(Blueprint, Name)); });
	return Uses;
}

/**
 * Nodes in all loaded Blueprints follow what they use within the edit that changed it, so that all are undone together, and a compile,
 * which is no edit, finds nothing left to change. In the Blueprint itself only calls are left to follow: its other edits see to the rest.
 */
void ReconstructUsesOfChanged(UBlueprint& Blueprint, const FClassMembers& Before)
{
	const FClassMembers Now = FClassMembers::Of(Blueprint.SkeletonGeneratedClass.Get());
	TSet<UBlueprint*> OtherUsers;
	/** Their overrides have other parameters now, which their own calls have to follow. */
	TSet<UBlueprint*> Overriders;
	TSet<UK2Node*> Done;
	for (const FMemberUse& Use : FindUsesOfChanged(Blueprint, Before, Now))
	{
		UBlueprint* const User = Use.Node->GetBlueprint();
		const bool bIsCall = Use.Node->IsA<UK2Node_CallFunction>() || Use.Node->IsA<UK2Node_BaseMCDelegate>();
		const bool bFollows = User == &Blueprint ? bIsCall : !User->HasAnyFlags(RF_Transient);
		bool bIsDone = false;
		if (!bFollows)
		{
			continue;
		}
		Done.Add(Use.Node, &bIsDone);
		if (!bIsDone)
		{
			Use.Node->ReconstructNode();
		}
		if (User != &Blueprint)
		{
			(Use.Node->IsA<UK2Node_EditablePinBase>() ? Overriders : OtherUsers).Add(User);
		}
	}
	MarkAsModified(OtherUsers);
	for (UBlueprint* const Overrider : Overriders)
	{
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Overrider);
	}
}

/**
 * Macro instances in all loaded Blueprints, and collapsed graphs' nodes, follow the ends of their graphs within the edit that changed
 * them.
 */
void ReconstructUsesOfChangedGraphs(const UBlueprint& Blueprint)
{
	TArray<UObject*> Tunnels;
	GetObjectsOfClass(UK2Node_Tunnel::StaticClass(), Tunnels, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	FStandingNodes Standing;
	TSet<UBlueprint*> OtherUsers;
	for (UObject* const Object : Tunnels)
	{
		UK2Node_Tunnel* const Tunnel = CastChecked<UK2Node_Tunnel>(Object);
		const UEdGraph* const Expansion = Tunnel->GetExpansion();
		const bool bIsOfBlueprint = Expansion && Expansion->GetTypedOuter<UBlueprint>() == &Blueprint;
		UBlueprint* const User = bIsOfBlueprint && !Tunnel->HasPinsOfExpansion() ? Tunnel->GetBlueprint() : nullptr;
		// What a menu shows is made anew when it is asked for.
		if (!User || User->HasAnyFlags(RF_Transient) || !Standing.Contains(*Tunnel))
		{
			continue;
		}
		Tunnel->ReconstructNode();
		if (User != &Blueprint)
		{
			OtherUsers.Add(User);
		}
	}
	MarkAsModified(OtherUsers);
}
}

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

UEdGraphNode* FBlueprintEditorUtils::GetNodeByGUID(const UBlueprint* Blueprint, const FGuid& NodeGuid)
{
	TArray<UEdGraphNode*> Nodes;
	GetAllNodesOfClass(Blueprint, Nodes);
	UEdGraphNode* const* const Found = Nodes.FindByPredicate([&NodeGuid](const UEdGraphNode* Node)
		{ return Node->NodeGuid == NodeGuid; });
	return Found ? *Found : nullptr;
}

UK2Node_EditablePinBase* FBlueprintEditorUtils::GetEntryNode(const UEdGraph* InGraph)
{
	TWeakObjectPtr<UK2Node_EditablePinBase> Entry;
	TWeakObjectPtr<UK2Node_EditablePinBase> Result;
	GetEntryAndResultNodes(InGraph, Entry, Result);
	return Entry.Get();
}

void FBlueprintEditorUtils::GetEntryAndResultNodes(
	const UEdGraph* InGraph, TWeakObjectPtr<UK2Node_EditablePinBase>& OutEntryNode, TWeakObjectPtr<UK2Node_EditablePinBase>& OutResultNode)
{
	OutEntryNode = nullptr;
	OutResultNode = nullptr;
	if (!InGraph)
	{
		return;
	}
	for (UEdGraphNode* const Node : InGraph->Nodes)
	{
		const UK2Node_Tunnel* const Tunnel = Cast<UK2Node_Tunnel>(Node);
		// Other tunnels, such as macros, stand between the ends.
		const bool bIsEndOfMacro = Tunnel && Tunnel->GetClass() == UK2Node_Tunnel::StaticClass();
		const bool bIsEntry = Node && (Node->IsA<UK2Node_FunctionEntry>() || (bIsEndOfMacro && Tunnel->bCanHaveOutputs));
		const bool bIsResult = Node && (Node->IsA<UK2Node_FunctionResult>() || (bIsEndOfMacro && Tunnel->bCanHaveInputs));
		if (bIsEntry && !OutEntryNode.IsValid())
		{
			OutEntryNode = CastChecked<UK2Node_EditablePinBase>(Node);
		}
		else if (bIsResult && !OutResultNode.IsValid())
		{
			OutResultNode = CastChecked<UK2Node_EditablePinBase>(Node);
		}
	}
}

UK2Node_FunctionResult* FBlueprintEditorUtils::FindOrCreateFunctionResultNode(UK2Node_EditablePinBase* InFunctionEntryNode)
{
	constexpr int32 Distance = 256;
	UK2Node_FunctionEntry* const Entry = Cast<UK2Node_FunctionEntry>(InFunctionEntryNode);
	UEdGraph* const Graph = Entry ? Entry->GetGraph() : nullptr;
	if (!Graph || IsDelegateSignatureGraph(Graph))
	{
		return nullptr;
	}
	TArray<UK2Node_FunctionResult*> Results;
	Graph->GetNodesOfClass(Results);
	if (Results.Num() > 0)
	{
		return Results[0];
	}
	FGraphNodeCreator<UK2Node_FunctionResult> Creator(*Graph);
	UK2Node_FunctionResult* const Result = Creator.CreateNode(false);
	Result->FunctionReference = Entry->FunctionReference;
	Result->bIsEditable = Entry->bIsEditable;
	const FVector2D Place = Graph->GetGoodPlaceForNewNode();
	Result->NodePosX = Entry->NodePosX + Entry->NodeWidth + Distance;
	Result->NodePosY = Graph->Nodes.Num() > 2 ? static_cast<int32>(Place.Y) : Entry->NodePosY;
	Creator.Finalize();
	// The entry's execution goes straight to a result that nothing stands before.
	UEdGraphPin* const Then = Entry->GetThenPin();
	if (Then && Then->LinkedTo.Num() == 0 && Result->GetExecPin())
	{
		Then->MakeLinkTo(Result->GetExecPin());
	}
	return Result;
}

UK2Node_Event* FBlueprintEditorUtils::FindOverrideForFunction(
	const UBlueprint* Blueprint, const UClass* SignatureClass, FName SignatureName)
{
	TArray<UK2Node_Event*> Events;
	GetAllNodesOfClass(Blueprint, Events);
	const UClass* const Authoritative = SignatureClass ? const_cast<UClass*>(SignatureClass)->GetAuthoritativeClass() : nullptr;
	UK2Node_Event* const* const Found = Events.FindByPredicate(
		[Blueprint, Authoritative, SignatureName](const UK2Node_Event* Event)
		{
			const UClass* const Class = Event->EventReference.GetMemberParentClass(Blueprint->GeneratedClass.Get());
			return Event->bOverrideFunction && Event->EventReference.GetMemberName() == SignatureName && Authoritative && Class &&
				Authoritative->IsChildOf(Class);
		});
	return Found ? *Found : nullptr;
}

UK2Node_Event* FBlueprintEditorUtils::FindCustomEventNode(const UBlueprint* Blueprint, FName const CustomName)
{
	TArray<UK2Node_CustomEvent*> Events;
	GetAllNodesOfClass(Blueprint, Events);
	UK2Node_CustomEvent* const* const Found = Events.FindByPredicate([CustomName](const UK2Node_CustomEvent* Event)
		{ return Event->CustomFunctionName == CustomName; });
	return Found ? *Found : nullptr;
}

void FBlueprintEditorUtils::GetDependentBlueprints(UBlueprint* Blueprint, TArray<UBlueprint*>& DependentBlueprints)
{
	for (UBlueprint* const User : FBlueprintDependencies::Get().FindUsers(*Blueprint))
	{
		DependentBlueprints.AddUnique(User);
	}
}

// State

void FBlueprintEditorUtils::MarkBlueprintAsModified(UBlueprint* Blueprint, FPropertyChangedEvent PropertyChangedEvent)
{
	if (Blueprint->bBeingCompiled)
	{
		return;
	}
	FBlueprintDependencies::Get().Forget(*Blueprint);
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
	const bool bHadSkeleton = Blueprint->SkeletonGeneratedClass != nullptr;
	const FClassMembers Before = FClassMembers::Of(Blueprint->SkeletonGeneratedClass.Get());
	FKismetEditorUtilities::GenerateBlueprintSkeleton(Blueprint, true);
	// With its first skeleton nothing has changed: the nodes know what the Blueprint was saved with.
	if (bHadSkeleton)
	{
		ReconstructUsesOfChanged(*Blueprint, Before);
	}
	ReconstructUsesOfChangedGraphs(*Blueprint);
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
	// Calls are rebuilt to what the Blueprint declares now; entries and events that are rebuilt may declare something else.
	FKismetEditorUtilities::GenerateBlueprintSkeleton(Blueprint, true);
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
