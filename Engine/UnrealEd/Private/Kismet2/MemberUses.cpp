#include "MemberUses.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "Engine/MemberReference.h"
#include "K2Node_ActorBoundEvent.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_ConstructObjectFromClass.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionTerminator.h"
#include "K2Node_GetClassDefaults.h"
#include "K2Node_Variable.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectHash.h"

namespace
{
/** The nodes of a class that the predicate takes and that stand in their graphs. */
template <class NodeType>
TArray<NodeType*> FindStanding(TFunctionRef<bool(NodeType&)> IsWanted)
{
	FStandingNodes Standing;
	TArray<UObject*> Nodes;
	GetObjectsOfClass(NodeType::StaticClass(), Nodes, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	TArray<NodeType*> Found;
	for (UObject* const Object : Nodes)
	{
		NodeType* const Node = CastChecked<NodeType>(Object);
		if (IsWanted(*Node) && Standing.Contains(*Node))
		{
			Found.Add(Node);
		}
	}
	return Found;
}

template <class NodeType>
void Collect(
	FMemberReference NodeType::*Member, TFunctionRef<bool(const UK2Node&, const FMemberReference&)> IsUse, TArray<FMemberUse>& OutUses)
{
	const auto IsWanted = [Member, &IsUse](const NodeType& Node)
	{ return IsUse(Node, Node.*Member); };
	for (NodeType* const Node : FindStanding<NodeType>(IsWanted))
	{
		OutUses.Add({Node, &(Node->*Member)});
	}
}

template <class EventType>
void CollectBoundEvents(const UBlueprint& Owner, FName Dispatcher, TArray<FVariableNameUse>& OutUses)
{
	const auto IsOfDispatcher = [&Owner, Dispatcher](const EventType& Event)
	{ return Event.DelegatePropertyName == Dispatcher && FMemberUses::IsClassOf(Event.DelegateOwnerClass, Owner); };
	for (EventType* const Event : FindStanding<EventType>(IsOfDispatcher))
	{
		OutUses.Add({Event, &Event->DelegatePropertyName});
	}
}

FOptionalPinFromProperty* FindShown(UK2Node_GetClassDefaults& Node, FName Name)
{
	return Node.ShowPinForProperties.FindByPredicate([Name](const FOptionalPinFromProperty& Record)
		{ return Record.PropertyName == Name; });
}

/** Whether the reference names the owner's member, seen from the class that the node's Blueprint makes. */
bool RefersTo(const UBlueprint& Owner, FName Name, const UK2Node& Node, const FMemberReference& Reference)
{
	return Reference.GetMemberName() == Name && !Reference.IsLocalScope() &&
		FMemberUses::IsClassOf(Reference.GetScope(Node.GetBlueprintClassFromNode()), Owner);
}
}

bool FMemberUses::IsClassOf(const UClass* Class, const UBlueprint& Blueprint)
{
	for (; Class; Class = Class->GetSuperClass())
	{
		if (Class->ClassGeneratedBy == &Blueprint)
		{
			return true;
		}
	}
	return false;
}

bool FStandingNodes::Contains(const UK2Node& Node)
{
	const UEdGraph* const Graph = Node.GetGraph();
	if (!Graph || !Node.GetBlueprint())
	{
		return false;
	}
	TSet<const UEdGraphNode*>* Nodes = ByGraph.Find(Graph);
	if (!Nodes)
	{
		Nodes = &ByGraph.Add(Graph);
		for (const UEdGraphNode* const Standing : Graph->Nodes)
		{
			Nodes->Add(Standing);
		}
	}
	return Nodes->Contains(&Node);
}

TArray<FMemberUse> FMemberUses::FindOfVariable(const UBlueprint& Owner, FName Name)
{
	TArray<FMemberUse> Uses;
	const auto IsUse = [&Owner, Name](const UK2Node& Node, const FMemberReference& Reference)
	{ return RefersTo(Owner, Name, Node, Reference); };
	Collect<UK2Node_Variable>(&UK2Node_Variable::VariableReference, IsUse, Uses);
	Collect<UK2Node_BaseMCDelegate>(&UK2Node_BaseMCDelegate::DelegateReference, IsUse, Uses);
	return Uses;
}

TSet<FName> FMemberUses::FindVariablesUsedIn(const UBlueprint& Blueprint)
{
	TSet<FName> Names;
	const auto Note = [&Blueprint, &Names](const UK2Node& Node, const FMemberReference& Reference)
	{
		if (RefersTo(Blueprint, Reference.GetMemberName(), Node, Reference))
		{
			Names.Add(Reference.GetMemberName());
		}
	};
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		for (const UEdGraphNode* const Node : Graph->Nodes)
		{
			if (const UK2Node_Variable* const Variable = Cast<UK2Node_Variable>(Node))
			{
				Note(*Variable, Variable->VariableReference);
			}
			else if (const UK2Node_BaseMCDelegate* const Delegate = Cast<UK2Node_BaseMCDelegate>(Node))
			{
				Note(*Delegate, Delegate->DelegateReference);
			}
		}
	}
	return Names;
}

TArray<FMemberUse> FMemberUses::FindOfFunction(const UBlueprint& Owner, FName Name)
{
	TArray<FMemberUse> Uses;
	const auto IsUse = [&Owner, Name](const UK2Node& Node, const FMemberReference& Reference)
	{ return RefersTo(Owner, Name, Node, Reference); };
	Collect<UK2Node_CallFunction>(&UK2Node_CallFunction::FunctionReference, IsUse, Uses);
	Collect<UK2Node_Event>(&UK2Node_Event::EventReference, IsUse, Uses);
	Collect<UK2Node_FunctionTerminator>(&UK2Node_FunctionTerminator::FunctionReference, IsUse, Uses);
	return Uses;
}

TArray<FMemberUse> FMemberUses::FindOfLocalVariable(const UBlueprint& Owner, const FString& Scope, FName Name)
{
	TArray<FMemberUse> Uses;
	const auto IsUse = [&Owner, &Scope, Name](const UK2Node& Node, const FMemberReference& Reference)
	{ return Reference.GetMemberName() == Name && Reference.GetMemberScopeName() == Scope && Node.GetBlueprint() == &Owner; };
	Collect<UK2Node_Variable>(&UK2Node_Variable::VariableReference, IsUse, Uses);
	return Uses;
}

TArray<UK2Node_CreateDelegate*> FMemberUses::FindDelegatesOfFunction(const UBlueprint& Owner, FName Name)
{
	return FindStanding<UK2Node_CreateDelegate>([&Owner, Name](const UK2Node_CreateDelegate& Node)
		{ return Node.SelectedFunctionName == Name && IsClassOf(Node.GetScopeClass(), Owner); });
}

void FMemberUses::Rename(const TArray<FMemberUse>& Uses, FName OldName, FName NewName)
{
	TSet<UBlueprint*> Users;
	for (const FMemberUse& Use : Uses)
	{
		Use.Node->Modify();
		if (Use.Reference->IsLocalScope())
		{
			Use.Reference->SetLocalMember(NewName, Use.Reference->GetMemberScopeName(), Use.Reference->GetMemberGuid());
		}
		else
		{
			Use.Reference->SetDirect(
				NewName, Use.Reference->GetMemberGuid(), Use.Reference->GetMemberParentClass(), Use.Reference->IsSelfContext());
		}
		if (Use.Node->IsA<UK2Node_Variable>())
		{
			Use.Node->RenameUserDefinedPin(OldName, NewName);
		}
		Users.Add(Use.Node->GetBlueprint());
	}
	for (UBlueprint* const User : Users)
	{
		FBlueprintEditorUtils::MarkBlueprintAsModified(User);
	}
}

TArray<FVariableNameUse> FMemberUses::FindNamesOfVariable(const UBlueprint& Owner, FName Name)
{
	TArray<FVariableNameUse> Uses;
	CollectBoundEvents<UK2Node_ComponentBoundEvent>(Owner, Name, Uses);
	CollectBoundEvents<UK2Node_ActorBoundEvent>(Owner, Name, Uses);
	const auto Sets = [&Owner, Name](const UK2Node_ConstructObjectFromClass& Node)
	{
		UEdGraphPin* const Pin = Node.FindPin(Name, EGPD_Input);
		return Pin && Node.IsSpawnVarPin(Pin) && IsClassOf(Node.GetClassToSpawn(), Owner);
	};
	for (UK2Node_ConstructObjectFromClass* const Node : FindStanding<UK2Node_ConstructObjectFromClass>(Sets))
	{
		Uses.Add({Node, nullptr});
	}
	const auto Shows = [&Owner, Name](UK2Node_GetClassDefaults& Node)
	{ return FindShown(Node, Name) && IsClassOf(Node.GetInputClass(), Owner); };
	for (UK2Node_GetClassDefaults* const Node : FindStanding<UK2Node_GetClassDefaults>(Shows))
	{
		Uses.Add({Node, &FindShown(*Node, Name)->PropertyName});
	}
	return Uses;
}

void FMemberUses::RenameNames(const TArray<FVariableNameUse>& Uses, FName OldName, FName NewName)
{
	for (const FVariableNameUse& Use : Uses)
	{
		Use.Node->Modify();
		if (Use.Name)
		{
			*Use.Name = NewName;
		}
		if (!Use.Node->IsA<UK2Node_Event>())
		{
			Use.Node->RenameUserDefinedPin(OldName, NewName);
		}
		FBlueprintEditorUtils::MarkBlueprintAsModified(Use.Node->GetBlueprint());
	}
}

void FMemberUses::Reconstruct(const TArray<FMemberUse>& Uses)
{
	for (const FMemberUse& Use : Uses)
	{
		Use.Node->ReconstructNode();
	}
}
