#pragma once

#include "BlueprintEditTest.h"
#include "Components/SceneComponent.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "K2Node_Event.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"

#include <random>

/** Edits of a child Blueprint that use what its parent declares, chosen at random. */
class FRandomChild
{
public:
	FRandomChild(UBlueprint& InParent, UBlueprint& InChild, std::mt19937& InRandom)
		: Parent(InParent)
		, Child(InChild)
		, Random(InRandom)
	{
	}

	/** One edit; answers its name. */
	const TCHAR* Edit()
	{
		static const struct
		{
			const TCHAR* Name;
			void (FRandomChild::*Do)();
		} Kinds[] = {
			{TEXT("child calls"), &FRandomChild::Call},
			{TEXT("child calls"), &FRandomChild::Call},
			{TEXT("child gets or sets"), &FRandomChild::UseVariable},
			{TEXT("child uses macro"), &FRandomChild::UseMacro},
			{TEXT("child overrides"), &FRandomChild::Override},
			{TEXT("child sets default"), &FRandomChild::SetDefault},
			{TEXT("child adds variable"), &FRandomChild::AddVariable},
			{TEXT("child deletes"), &FRandomChild::Delete},
			{TEXT("child overrides component"), &FRandomChild::OverrideComponent},
			{TEXT("child overrides component"), &FRandomChild::OverrideComponent},
			{TEXT("child gives up component"), &FRandomChild::GiveUpComponent},
		};
		const auto& Kind = Kinds[Pick(std::size(Kinds))];
		(this->*Kind.Do)();
		return Kind.Name;
	}

private:
	int32 Pick(size_t Count) { return Count > 0 ? static_cast<int32>(Random() % Count) : 0; }
	UEdGraph* GetPage() const { return FBlueprintEditorUtils::FindEventGraph(&Child); }

	UFunction* PickFunction()
	{
		TArray<UFunction*> Functions;
		for (const UEdGraph* const Graph : Parent.FunctionGraphs)
		{
			UFunction* const Function = Graph->bAllowRenaming ? Parent.SkeletonGeneratedClass->FindFunctionByName(Graph->GetFName())
															  : nullptr;
			if (Function)
			{
				Functions.Add(Function);
			}
		}
		return Functions.Num() > 0 ? Functions[Pick(Functions.Num())] : nullptr;
	}

	template <class NodeType>
	NodeType* Place(UEdGraph* Graph, TFunctionRef<void(NodeType&)> Prepare)
	{
		FGraphNodeCreator<NodeType> Creator(*Graph);
		NodeType* const Node = Creator.CreateNode(false);
		Prepare(*Node);
		Node->NodePosX = Pick(1000);
		Creator.Finalize();
		return Node;
	}

	void Call()
	{
		const UFunction* const Function = PickFunction();
		if (!Function)
		{
			return;
		}
		UK2Node_CallFunction* const Node = Place<UK2Node_CallFunction>(GetPage(), [Function](UK2Node_CallFunction& New)
			{ New.SetFromFunction(Function); });
		// A link and a value of its own, for a parameter that goes to leave behind.
		for (UEdGraphPin* const Pin : TArray<UEdGraphPin*>(Node->Pins))
		{
			if (Pin->Direction == EGPD_Input && Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Int)
			{
				Pick(2) == 0 ? GetDefault<UEdGraphSchema_K2>()->TrySetDefaultValue(*Pin, TEXT("7")) : LinkNumber(*Pin);
			}
		}
	}

	void LinkNumber(UEdGraphPin& Pin)
	{
		const UFunction* const Function =
			FindObject<UClass>(nullptr, TEXT("/Script/Engine.KismetMathLibrary"))->FindFunctionByName(TEXT("RandomInteger"));
		const UK2Node_CallFunction* const Giver = Place<UK2Node_CallFunction>(GetPage(), [Function](UK2Node_CallFunction& New)
			{ New.SetFromFunction(Function); });
		GetPage()->GetSchema()->TryCreateConnection(Giver->GetReturnValuePin(), &Pin);
	}

	void UseVariable()
	{
		if (Parent.NewVariables.IsEmpty())
		{
			return;
		}
		const FName Name = Parent.NewVariables[Pick(Parent.NewVariables.Num())].VarName;
		const auto Prepare = [Name](UK2Node_Variable& Node)
		{ Node.VariableReference.SetSelfMember(Name); };
		if (Pick(2) == 0)
		{
			Place<UK2Node_VariableGet>(GetPage(), Prepare);
		}
		else
		{
			Place<UK2Node_VariableSet>(GetPage(), Prepare);
		}
	}

	void UseMacro()
	{
		if (Parent.MacroGraphs.Num() > 0)
		{
			UEdGraph* const Macro = Parent.MacroGraphs[Pick(Parent.MacroGraphs.Num())];
			Place<UK2Node_MacroInstance>(GetPage(), [Macro](UK2Node_MacroInstance& Node)
				{ Node.SetMacroGraph(Macro); });
		}
	}

	void Override()
	{
		const UFunction* const Function = PickFunction();
		const bool bIsThere = Function && Child.FunctionGraphs.ContainsByPredicate([Function](const UEdGraph* Graph)
											  { return Graph->GetFName() == Function->GetFName(); });
		if (Function && !bIsThere)
		{
			UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
				&Child, Function->GetFName(), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
			FBlueprintEditorUtils::AddFunctionGraph(&Child, Graph, false, Function->GetOwnerClass()->GetAuthoritativeClass());
		}
	}

	void SetDefault()
	{
		const UEdGraph* const Page = GetPage();
		const UEdGraphNode* const Node = Page->Nodes[Pick(Page->Nodes.Num())];
		for (UEdGraphPin* const Pin : Node->Pins)
		{
			if (Pin->Direction == EGPD_Input && Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Int && Pin->LinkedTo.IsEmpty())
			{
				Page->GetSchema()->TrySetDefaultValue(*Pin, TEXT("12"));
			}
		}
	}

	void AddVariable()
	{
		FEdGraphPinType Type;
		Type.PinCategory = UEdGraphSchema_K2::PC_Int;
		FBlueprintEditorUtils::AddMemberVariable(&Child, FBlueprintEditorUtils::FindUniqueKismetName(&Child, TEXT("OfChild")), Type);
	}

	void Delete()
	{
		UEdGraphNode* const Node = GetPage()->Nodes[Pick(GetPage()->Nodes.Num())];
		if (Node->CanUserDeleteNode())
		{
			FBlueprintEditorUtils::RemoveNode(&Child, Node);
		}
	}

	const USCS_Node* PickComponent()
	{
		const TArray<USCS_Node*>& Nodes = Parent.SimpleConstructionScript->GetAllNodes();
		return Nodes.Num() > 0 ? Nodes[Pick(Nodes.Num())] : nullptr;
	}

	void OverrideComponent()
	{
		const USCS_Node* const Node = PickComponent();
		UActorComponent* const Template =
			Node ? Child.GetInheritableComponentHandler(true)->CreateOverridenComponentTemplate(FComponentKey(Node)) : nullptr;
		if (Template)
		{
			Template->Modify();
			CastChecked<USceneComponent>(Template)->SetRelativeLocation(FVector(1.0 + Pick(9), 0, 0));
			FBlueprintEditorUtils::MarkBlueprintAsModified(&Child);
		}
	}

	void GiveUpComponent()
	{
		const USCS_Node* const Node = PickComponent();
		if (Node && Child.InheritableComponentHandler)
		{
			Child.InheritableComponentHandler->RemoveOverridenComponentTemplate(FComponentKey(Node));
			FBlueprintEditorUtils::MarkBlueprintAsModified(&Child);
		}
	}

	UBlueprint& Parent;
	UBlueprint& Child;
	std::mt19937& Random;
};
