#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/MemberReference.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionTerminator.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "MemberUses.h"
#include "UObject/Interface.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
bool NeedsGraph(const UFunction* Function)
{
	return UEdGraphSchema_K2::CanKismetOverrideFunction(Function) && !UEdGraphSchema_K2::FunctionCanBePlacedAsEvent(Function);
}

bool HasGraphNamed(const TArray<TObjectPtr<UEdGraph>>& Graphs, FName Name)
{
	return Graphs.ContainsByPredicate([Name](const UEdGraph* Graph)
		{ return Graph && Graph->GetFName() == Name; });
}

/** Whether the interface still has the function: since it was compiled, it may have got another name. */
bool IsDeclared(const UClass& Interface, FName Function)
{
	return FMemberReference::GetNewestClass(const_cast<UClass*>(&Interface))->FindFunctionByName(Function) != nullptr;
}

/** A variable that has the name stands in the way of a graph; a function of the Blueprint's own becomes the graph. */
bool WantsGraph(const UBlueprint& Blueprint, const FBPInterfaceDescription& Description, const UFunction* Function)
{
	return NeedsGraph(Function) && IsDeclared(*Description.Interface.Get(), Function->GetFName()) &&
		!HasGraphNamed(Description.Graphs, Function->GetFName()) &&
		FBlueprintEditorUtils::FindNewVariableIndex(&Blueprint, Function->GetFName()) == INDEX_NONE;
}

bool LacksGraph(const UBlueprint& Blueprint, const FBPInterfaceDescription& Description, const UClass& Interface)
{
	const UClass* const Parent = Blueprint.ParentClass.Get();
	if (Parent && Parent->ImplementsInterface(&Interface))
	{
		return false;
	}
	for (TFieldIterator<UFunction> Function(&Interface, EFieldIteratorFlags::IncludeSuper); Function; ++Function)
	{
		if (WantsGraph(Blueprint, Description, *Function))
		{
			return true;
		}
	}
	return false;
}

TArray<UEdGraph*> FindGraphsWithoutFunction(const FBPInterfaceDescription& Description, const UClass& Interface)
{
	TArray<UEdGraph*> Stale;
	for (UEdGraph* const Graph : Description.Graphs)
	{
		if (Graph && !IsDeclared(Interface, Graph->GetFName()))
		{
			Stale.Add(Graph);
		}
	}
	return Stale;
}

/** Makes a function of the Blueprint's own of one that an interface gave. */
void DetachFromInterface(UEdGraph& Graph)
{
	Graph.Modify();
	Graph.bAllowDeletion = true;
	Graph.bAllowRenaming = true;
	Graph.bEditable = true;
	Graph.InterfaceGuid.Invalidate();
	TArray<UK2Node_FunctionTerminator*> Terminators;
	Graph.GetNodesOfClass(Terminators);
	for (UK2Node_FunctionTerminator* const Terminator : Terminators)
	{
		Terminator->Modify();
		const UFunction* const Signature = Terminator->FindSignatureFunction();
		const bool bIsEntry = Terminator->DrawNodeAsEntry();
		Terminator->bIsEditable = true;
		if (Signature && Terminator->UserDefinedPins.Num() == 0)
		{
			// What the interface's function gave becomes the node's own; the links go over to pins of the same names.
			Terminator->FunctionReference.SetSelfMember(Graph.GetFName());
			for (TFieldIterator<FProperty> Parameter(Signature); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
			{
				const bool bIsInput =
					Parameter->HasAnyPropertyFlags(CPF_ReferenceParm) || !Parameter->HasAnyPropertyFlags(CPF_OutParm | CPF_ReturnParm);
				FEdGraphPinType Type;
				if (bIsInput == bIsEntry && GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(*Parameter, Type))
				{
					const TSharedPtr<FUserPinInfo> Info = MakeShared<FUserPinInfo>();
					Info->PinName = Parameter->GetFName();
					Info->PinType = Type;
					Info->DesiredPinDirection = bIsEntry ? EGPD_Output : EGPD_Input;
					Terminator->UserDefinedPins.Add(Info);
				}
			}
			Terminator->ReconstructNode();
		}
		Terminator->FunctionReference.SetSelfMember(Graph.GetFName());
	}
	GetDefault<UEdGraphSchema_K2>()->AddExtraFunctionFlags(&Graph, FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_Public);
}

/** Makes what an interface asks for of a function of the Blueprint's own. One with other parameters keeps them, for a compile to report. */
void AttachToInterface(const UBlueprint& Blueprint, UEdGraph& Graph, const UFunction& Function)
{
	Graph.Modify();
	Graph.bAllowDeletion = false;
	Graph.bAllowRenaming = false;
	Graph.InterfaceGuid = FGuid::NewDeterministicGuid(Function.GetPathName());
	const UFunction* const Own =
		Blueprint.SkeletonGeneratedClass ? Blueprint.SkeletonGeneratedClass->FindFunctionByName(Function.GetFName()) : nullptr;
	if (!Own || !Function.IsSignatureCompatibleWith(Own))
	{
		return;
	}
	TArray<UK2Node_FunctionTerminator*> Terminators;
	Graph.GetNodesOfClass(Terminators);
	for (UK2Node_FunctionTerminator* const Terminator : Terminators)
	{
		Terminator->Modify();
		Terminator->bIsEditable = false;
		Terminator->UserDefinedPins.Empty();
		Terminator->FunctionReference.SetExternalMember(Function.GetFName(), Function.GetOwnerClass());
		Terminator->ReconstructNode();
	}
}

void RemoveEventsOf(UBlueprint& Blueprint, const UClass& Interface)
{
	TArray<UK2Node_Event*> Events;
	FBlueprintEditorUtils::GetAllNodesOfClass(&Blueprint, Events);
	for (UK2Node_Event* const Event : Events)
	{
		const UClass* const Class = Event->EventReference.GetMemberParentClass();
		if (Class && (Class == &Interface || (Interface.ClassGeneratedBy && Class->ClassGeneratedBy == Interface.ClassGeneratedBy)))
		{
			FBlueprintEditorUtils::RemoveNode(&Blueprint, Event, true);
		}
	}
}
}

void FBlueprintEditorUtils::AddInterfaceGraphs(UBlueprint& Blueprint, FBPInterfaceDescription& Description)
{
	for (TFieldIterator<UFunction> It(Description.Interface.Get(), EFieldIteratorFlags::IncludeSuper); It; ++It)
	{
		UFunction* const Function = *It;
		if (!WantsGraph(Blueprint, Description, Function))
		{
			continue;
		}
		const TObjectPtr<UEdGraph>* const Own = Blueprint.FunctionGraphs.FindByPredicate([Function](const UEdGraph* Graph)
			{ return Graph && Graph->GetFName() == Function->GetFName(); });
		if (Own)
		{
			Description.Graphs.Add(*Own);
			Blueprint.FunctionGraphs.Remove(Description.Graphs.Last());
			AttachToInterface(Blueprint, *Description.Graphs.Last(), *Function);
			continue;
		}
		UEdGraph* const Graph = CreateNewGraph(&Blueprint, Function->GetFName(), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		Graph->InterfaceGuid = FGuid::NewDeterministicGuid(Function->GetPathName());
		AddFunctionGraphFromSignature(&Blueprint, Graph, false, Function, true);
		Graph->bAllowDeletion = false;
		Blueprint.FunctionGraphs.Remove(Graph);
		Description.Graphs.Add(Graph);
	}
}

bool FBlueprintEditorUtils::ImplementNewInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName)
{
	UClass* const Interface = FindObject<UClass>(InterfaceClassPathName);
	TArray<UClass*> Implemented;
	FindImplementedInterfaces(Blueprint, true, Implemented);
	if (!Interface || !Interface->HasAnyClassFlags(CLASS_Interface) || Implemented.Contains(Interface))
	{
		return false;
	}
	Blueprint->Modify();
	FBPInterfaceDescription Description;
	Description.Interface = Interface;
	AddInterfaceGraphs(*Blueprint, Description);
	Blueprint->ImplementedInterfaces.Add(Description);
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

void FBlueprintEditorUtils::RemoveInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName, bool bPreserveFunctions)
{
	UClass* const Interface = FindObject<UClass>(InterfaceClassPathName);
	const int32 Index = Blueprint->ImplementedInterfaces.IndexOfByPredicate(
		[Interface](const FBPInterfaceDescription& Description)
		{ return Interface && Description.Interface.Get() == Interface; });
	if (Index == INDEX_NONE)
	{
		return;
	}
	Blueprint->Modify();
	const TArray<TObjectPtr<UEdGraph>> Graphs = Blueprint->ImplementedInterfaces[Index].Graphs;
	for (UEdGraph* const Graph : Graphs)
	{
		if (Graph && bPreserveFunctions)
		{
			DetachFromInterface(*Graph);
			Blueprint->FunctionGraphs.Add(Graph);
		}
		else if (Graph)
		{
			Graph->Modify();
			Graph->bAllowDeletion = true;
			RemoveGraph(Blueprint, Graph, EGraphRemoveFlags::MarkTransient);
		}
	}
	Blueprint->ImplementedInterfaces.RemoveAt(Index);
	RemoveEventsOf(*Blueprint, *Interface);
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::ConformImplementedInterfaces(UBlueprint* Blueprint)
{
	bool bHasChanged = false;
	for (int32 Index = 0; Index < Blueprint->ImplementedInterfaces.Num(); ++Index)
	{
		FBPInterfaceDescription Description = Blueprint->ImplementedInterfaces[Index];
		const UClass* const Interface = Description.Interface.Get();
		// One that is missing keeps its graphs: it may only not be here.
		if (!Interface || UE::CoreUObject::IsPlaceholder(Interface))
		{
			continue;
		}
		const TArray<UEdGraph*> Stale = FindGraphsWithoutFunction(Description, *Interface);
		if (Stale.IsEmpty() && !LacksGraph(*Blueprint, Description, *Interface))
		{
			continue;
		}
		Blueprint->Modify();
		bHasChanged = true;
		for (UEdGraph* const Graph : Stale)
		{
			Description.Graphs.Remove(Graph);
			DetachFromInterface(*Graph);
			Blueprint->FunctionGraphs.Add(Graph);
		}
		AddInterfaceGraphs(*Blueprint, Description);
		Blueprint->ImplementedInterfaces[Index] = Description;
	}
	if (bHasChanged)
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

void FBlueprintEditorUtils::FindImplementedInterfaces(
	const UBlueprint* Blueprint, bool bGetAllInterfaces, TArray<UClass*>& ImplementedInterfaces)
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
