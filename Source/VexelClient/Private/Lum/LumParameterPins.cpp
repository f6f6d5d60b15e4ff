#include "Lum/LumParameterPins.h"

#include "Lum/LumLinkMending.h"
#include "Lum/LumNodeUses.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_ActorBoundEvent.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_Composite.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionTerminator.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Variable.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectIterator.h"

namespace
{
/** What a node with user-defined pins declares: one of the three. */
struct FDeclaration
{
	explicit FDeclaration(const UK2Node_EditablePinBase& Node)
		: Blueprint(FBlueprintEditorUtils::FindBlueprintForNode(&Node))
	{
		if (const UK2Node_CustomEvent* const Event = Cast<UK2Node_CustomEvent>(&Node))
		{
			Function = Event->CustomFunctionName;
		}
		else if (Node.IsA<UK2Node_FunctionTerminator>())
		{
			const bool bIsDispatcher = FBlueprintEditorUtils::IsDelegateSignatureGraph(Node.GetGraph());
			(bIsDispatcher ? Dispatcher : Function) = Node.GetGraph()->GetFName();
		}
		else
		{
			Expansion = Node.GetGraph();
		}
	}

	bool IsOwn(const UClass* Class) const { return Blueprint && LumNodeUses::IsClassOf(Class, *Blueprint); }

	bool IsReferredTo(const UK2Node& Node, const FMemberReference& Reference, FName Name) const
	{
		return !Name.IsNone() && Reference.GetMemberName() == Name && IsOwn(Reference.GetMemberParentClass(Node.GetBlueprintClassFromNode()));
	}

	bool IsUsedBy(const UK2Node& Node) const
	{
		if (const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(&Node))
		{
			return IsReferredTo(Node, Call->FunctionReference, Function);
		}
		if (const UK2Node_BaseMCDelegate* const Delegate = Cast<UK2Node_BaseMCDelegate>(&Node))
		{
			return IsReferredTo(Node, Delegate->DelegateReference, Dispatcher);
		}
		if (const UK2Node_ComponentBoundEvent* const Bound = Cast<UK2Node_ComponentBoundEvent>(&Node))
		{
			return !Dispatcher.IsNone() && Bound->DelegatePropertyName == Dispatcher && IsOwn(Bound->DelegateOwnerClass);
		}
		if (const UK2Node_ActorBoundEvent* const Bound = Cast<UK2Node_ActorBoundEvent>(&Node))
		{
			return !Dispatcher.IsNone() && Bound->DelegatePropertyName == Dispatcher && IsOwn(Bound->DelegateOwnerClass);
		}
		if (const UK2Node_Event* const Event = Cast<UK2Node_Event>(&Node))
		{
			return Event->bOverrideFunction && IsReferredTo(Node, Event->EventReference, Function);
		}
		if (const UK2Node_FunctionTerminator* const End = Cast<UK2Node_FunctionTerminator>(&Node))
		{
			return End->FunctionReference.GetMemberParentClass() && IsReferredTo(Node, End->FunctionReference, Function);
		}
		if (const UK2Node_MacroInstance* const Instance = Cast<UK2Node_MacroInstance>(&Node))
		{
			return Expansion && Instance->GetMacroGraph() == Expansion;
		}
		const UK2Node_Composite* const Composite = Cast<UK2Node_Composite>(&Node);
		return Composite && Expansion && Composite->BoundGraph == Expansion;
	}

	const UBlueprint* Blueprint;
	FName Function;
	FName Dispatcher;
	const UEdGraph* Expansion = nullptr;
};

EEdGraphPinDirection GetOpposite(EEdGraphPinDirection Direction)
{
	return Direction == EGPD_Input ? EGPD_Output : EGPD_Input;
}

/** The parts of a split pin have its name in front of theirs. */
void RenamePin(UEdGraphPin& Pin, FName NewName)
{
	const FString OldName = Pin.PinName.ToString();
	for (UEdGraphPin* const Part : Pin.SubPins)
	{
		FString PartName = Part->PinName.ToString();
		if (PartName.RemoveFromStart(OldName, ESearchCase::IgnoreCase))
		{
			RenamePin(*Part, FName(*(NewName.ToString() + PartName)));
		}
	}
	Pin.PinName = NewName;
}

void RenamePinOf(UK2Node& Node, FName OldName, EEdGraphPinDirection Direction, FName NewName)
{
	if (UEdGraphPin* const Pin = Node.FindPin(OldName, Direction))
	{
		Node.Modify();
		RenamePin(*Pin, NewName);
	}
}
}

FLumParameterPins::FLumParameterPins(const UK2Node_EditablePinBase& Declaring, FName InName, EEdGraphPinDirection NodeDirection)
	: Name(InName)
	, OuterDirection(GetOpposite(NodeDirection))
{
	const FDeclaration Declaration(Declaring);
	for (TObjectIterator<UK2Node> It; It; ++It)
	{
		if (*It != &Declaring && Declaration.IsUsedBy(**It) && LumNodeUses::StandsInBlueprint(**It))
		{
			Users.Add(*It);
		}
	}
	FindGetters(Declaring);
}

void FLumParameterPins::FindGetters(const UK2Node_EditablePinBase& Declaring)
{
	if (!Declaring.IsA<UK2Node_FunctionTerminator>())
	{
		return;
	}
	TArray<UEdGraph*> Graphs = {Declaring.GetGraph()};
	Declaring.GetGraph()->GetAllChildrenGraphs(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		TArray<UK2Node_Variable*> Nodes;
		Graph->GetNodesOfClass(Nodes);
		for (UK2Node_Variable* const Node : Nodes)
		{
			const FMemberReference& Reference = Node->VariableReference;
			if (Reference.IsLocalScope() && Reference.GetMemberName() == Name &&
				Reference.GetMemberScopeName() == Declaring.GetGraph()->GetName())
			{
				Getters.Add(Node);
			}
		}
	}
}

void FLumParameterPins::Rename(FName NewName)
{
	for (UK2Node* const User : Users)
	{
		// An override declares the parameter as the overridden one does; everything else faces it.
		const bool bDeclaresToo = User->IsA<UK2Node_EditablePinBase>() && !User->IsA<UK2Node_MacroInstance>() && !User->IsA<UK2Node_Composite>();
		RenamePinOf(*User, Name, bDeclaresToo ? GetOpposite(OuterDirection) : OuterDirection, NewName);
	}
	for (UK2Node_Variable* const Getter : Getters)
	{
		Getter->Modify();
		Getter->VariableReference.SetLocalMember(NewName, Getter->VariableReference.GetMemberScopeName(), Getter->VariableReference.GetMemberGuid());
		RenamePinOf(*Getter, Name, EGPD_Output, NewName);
		RenamePinOf(*Getter, Name, EGPD_Input, NewName);
	}
	Name = NewName;
}

void FLumParameterPins::FollowType() const
{
	TArray<UK2Node*> Nodes = Users;
	for (UK2Node_Variable* const Getter : Getters)
	{
		Getter->ReconstructNode();
		Nodes.Add(Getter);
	}
	LumLinkMending::Mend(Nodes);
}
