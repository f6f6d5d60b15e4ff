#include "MemberUses.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "Engine/MemberReference.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionTerminator.h"
#include "K2Node_Variable.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectHash.h"

namespace
{
template <class NodeType>
void Collect(
	FMemberReference NodeType::*Member, TFunctionRef<bool(const UK2Node&, const FMemberReference&)> IsUse, TArray<FMemberUse>& OutUses)
{
	FStandingNodes Standing;
	TArray<UObject*> Nodes;
	GetObjectsOfClass(NodeType::StaticClass(), Nodes, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	for (UObject* const Object : Nodes)
	{
		NodeType* const Node = CastChecked<NodeType>(Object);
		if (IsUse(*Node, Node->*Member) && Standing.Contains(*Node))
		{
			OutUses.Add({Node, &(Node->*Member)});
		}
	}
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
	TArray<UK2Node_CreateDelegate*> Found;
	FStandingNodes Standing;
	TArray<UObject*> Nodes;
	GetObjectsOfClass(UK2Node_CreateDelegate::StaticClass(), Nodes, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	for (UObject* const Object : Nodes)
	{
		UK2Node_CreateDelegate* const Node = CastChecked<UK2Node_CreateDelegate>(Object);
		if (Node->SelectedFunctionName == Name && Standing.Contains(*Node) && IsClassOf(Node->GetScopeClass(), Owner))
		{
			Found.Add(Node);
		}
	}
	return Found;
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
		UEdGraphPin* const Pin = Use.Node->IsA<UK2Node_Variable>() ? Use.Node->FindPin(OldName) : nullptr;
		if (Pin)
		{
			Pin->PinName = NewName;
		}
		Users.Add(Use.Node->GetBlueprint());
	}
	for (UBlueprint* const User : Users)
	{
		FBlueprintEditorUtils::MarkBlueprintAsModified(User);
	}
}

void FMemberUses::Reconstruct(const TArray<FMemberUse>& Uses)
{
	for (const FMemberUse& Use : Uses)
	{
		Use.Node->ReconstructNode();
	}
}
