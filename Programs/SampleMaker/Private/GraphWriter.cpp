#include "GraphWriter.h"

#include "BlueprintFunctionNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Failure.h"
#include "GameFramework/Actor.h"
#include "InputCoreTypes.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_Event.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_GetArrayItem.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_InputKey.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_SwitchName.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "NodeTexts.h"
#include "StableIds.h"
#include "StandardMacros.h"
#include "UObject/UObjectGlobals.h"

namespace
{
FString FindFreeName(UEdGraph& Graph, const UEdGraphNode& Node)
{
	FString Name;
	const UObject* Holder = nullptr;
	int32 Number = 0;
	do
	{
		Name = FString::Printf(TEXT("%s_%d"), *Node.GetClass()->GetName(), Number++);
		Holder = StaticFindObjectFast(nullptr, &Graph, FName(*Name));
	} while (Holder && Holder != &Node);
	return Name;
}

UFunction& FindFunction(const UClass& Class, FName Name)
{
	return Require(Class.FindFunctionByName(Name), FString::Printf(TEXT("function %s in %s"), *Name.ToString(), *Class.GetName()));
}
}

FGraphWriter& FGraphWriter::At(int32 InColumn, int32 InRow)
{
	Column = InColumn;
	Row = InRow;
	return *this;
}

void FGraphWriter::Place(UEdGraphNode& Node)
{
	// The name would else tell how many nodes of the class came and went before.
	Node.Rename(*FindFreeName(Graph, Node), &Graph, REN_DontCreateRedirectors);
	Node.NodePosX = Column++ * ColumnWidth;
	Node.NodePosY = Row * RowHeight;
	StableIds::Fix(Node);
}

template <typename NodeType>
NodeType& FGraphWriter::Add(TFunctionRef<void(NodeType&)> Describe, const TCHAR* TextFile, UClass* NodeClass)
{
	UClass& Class = NodeClass ? *NodeClass : *NodeType::StaticClass();
	if (UEdGraphNode* const Pasted = TextFile ? Texts.Paste(Graph, Class, TextFile) : nullptr)
	{
		NodeType& Node = *CastChecked<NodeType>(Pasted);
		Describe(Node);
		Node.ReconstructNode();
		Place(Node);
		return Node;
	}
	FGraphNodeCreator<NodeType> Creator(Graph);
	NodeType* const Node = Creator.CreateNode(false, &Class);
	Describe(*Node);
	Creator.Finalize();
	Place(*Node);
	return *Node;
}

UBlueprint& FGraphWriter::GetBlueprint() const
{
	return *FBlueprintEditorUtils::FindBlueprintForGraphChecked(&Graph);
}

UClass& FGraphWriter::GetClass() const
{
	return Require(GetBlueprint().SkeletonGeneratedClass.Get(), TEXT("skeleton class of ") + GetBlueprint().GetName());
}

UEdGraphNode& FGraphWriter::AddEvent(FName Function)
{
	FindFunction(GetClass(), Function);
	// A new Blueprint suggests some events, which are disabled until they are used.
	if (UK2Node_Event* const Suggested = FBlueprintEditorUtils::FindOverrideForFunction(&GetBlueprint(), AActor::StaticClass(), Function))
	{
		Suggested->SetEnabledState(ENodeEnabledState::Enabled, false);
		Suggested->NodeComment.Empty();
		Suggested->bCommentBubbleVisible = false;
		Place(*Suggested);
		return *Suggested;
	}
	return Add<UK2Node_Event>([Function](UK2Node_Event& Node)
		{
			Node.EventReference.SetExternalMember(Function, AActor::StaticClass());
			Node.bOverrideFunction = true; });
}

UEdGraphNode& FGraphWriter::AddCustomEvent(FName Name)
{
	UEdGraphNode& Node = Add<UK2Node_CustomEvent>([Name](UK2Node_CustomEvent& Event)
		{ Event.CustomFunctionName = Name; });
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&GetBlueprint());
	return Node;
}

UEdGraphNode& FGraphWriter::AddInputKey(const FKey& Key)
{
	return Add<UK2Node_InputKey>([&Key](UK2Node_InputKey& Node)
		{ Node.InputKey = Key; },
		TEXT("nodeA.t3d"));
}

UEdGraphNode& FGraphWriter::AddCallNode(UFunction& Function, const TCHAR* TextFile)
{
	return Add<UK2Node_CallFunction>([&Function](UK2Node_CallFunction& Node)
		{ Node.SetFromFunction(&Function); },
		TextFile, UBlueprintFunctionNodeSpawner::Create(&Function)->NodeClass.Get());
}

UEdGraphNode& FGraphWriter::AddCall(const TCHAR* ClassPath, FName Function)
{
	return AddCallNode(FindFunction(Require(FindObject<UClass>(nullptr, ClassPath), FString::Printf(TEXT("class %s"), ClassPath)), Function));
}

UEdGraphNode& FGraphWriter::AddOwnCall(FName Function)
{
	return AddCallNode(FindFunction(GetClass(), Function));
}

UEdGraphNode& FGraphWriter::AddCallOf(const UBlueprint& Other, FName Function)
{
	return AddCallNode(FindFunction(Require(Other.SkeletonGeneratedClass.Get(), TEXT("skeleton class of ") + Other.GetName()), Function));
}

UEdGraphNode& FGraphWriter::AddPrint(const FString& Text)
{
	const UClass& Library = Require(FindObject<UClass>(nullptr, TEXT("/Script/Engine.KismetSystemLibrary")), TEXT("class KismetSystemLibrary"));
	UEdGraphNode& Node = AddCallNode(FindFunction(Library, TEXT("PrintString")), TEXT("inputOutputKnots.t3d"));
	SetDefault(Node, TEXT("InString"), Text);
	return Node;
}

UEdGraphNode& FGraphWriter::AddGet(FName Variable)
{
	FGuid Id = FBlueprintEditorUtils::FindMemberVariableGuidByName(&GetBlueprint(), Variable);
	return Add<UK2Node_VariableGet>([Variable, &Id](UK2Node_VariableGet& Node)
		{ Node.VariableReference.SetSelfMember(Variable, Id); });
}

UEdGraphNode& FGraphWriter::AddSet(FName Variable)
{
	FGuid Id = FBlueprintEditorUtils::FindMemberVariableGuidByName(&GetBlueprint(), Variable);
	return Add<UK2Node_VariableSet>([Variable, &Id](UK2Node_VariableSet& Node)
		{ Node.VariableReference.SetSelfMember(Variable, Id); });
}

UEdGraphNode& FGraphWriter::AddBranch()
{
	return Add<UK2Node_IfThenElse>([](UK2Node_IfThenElse& Node) {}, TEXT("nodeBranch.t3d"));
}

UEdGraphNode& FGraphWriter::AddSequence()
{
	return Add<UK2Node_ExecutionSequence>([](UK2Node_ExecutionSequence& Node) {});
}

UEdGraphNode& FGraphWriter::AddCast(const UBlueprint& Target)
{
	return Add<UK2Node_DynamicCast>([&Target](UK2Node_DynamicCast& Node)
		{ Node.TargetType = Target.GeneratedClass; });
}

UEdGraphNode& FGraphWriter::AddGetItem()
{
	return Add<UK2Node_GetArrayItem>([](UK2Node_GetArrayItem& Node) {});
}

UEdGraphNode& FGraphWriter::AddMacro(const TCHAR* Macro, const TCHAR* TextFile)
{
	UEdGraph& MacroGraph = Require(FStandardMacros::Find(Macro), FString::Printf(TEXT("macro %s"), Macro));
	return Add<UK2Node_MacroInstance>([&MacroGraph](UK2Node_MacroInstance& Node)
		{ Node.SetMacroGraph(&MacroGraph); },
		TextFile);
}

UEdGraphNode& FGraphWriter::AddSwitchOnName(const TArray<FName>& Cases)
{
	return Add<UK2Node_SwitchName>([&Cases](UK2Node_SwitchName& Node)
		{ Node.PinNames = Cases; },
		TEXT("nodeSwitchonName.t3d"));
}

UEdGraphNode& FGraphWriter::FindTerminator(UClass& NodeClass)
{
	const TObjectPtr<UEdGraphNode>* const Found = Graph.Nodes.FindByPredicate([&NodeClass](const UEdGraphNode* Node)
		{ return Node->GetClass() == &NodeClass; });
	return Require(Found ? Found->Get() : nullptr, NodeClass.GetName() + TEXT(" in ") + Graph.GetName());
}
