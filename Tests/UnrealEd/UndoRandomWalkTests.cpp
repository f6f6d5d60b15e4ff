#include "BlueprintEditTest.h"
#include "BlueprintText.h"
#include "Components/ActorComponent.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphUtilities.h"
#include "Editor/Transactor.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_Knot.h"
#include "K2Node_MakeArray.h"
#include "K2Node_SwitchInteger.h"
#include "K2Node_Timeline.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "RandomChild.h"
#include "RandomMembers.h"
#include "UObject/Interface.h"
#include "UObject/NoExportTypes.h"

#include <random>

namespace
{
/** Makes edits that a user could make, chosen by a seed. */
class FRandomEditor
{
public:
	FRandomEditor(UBlueprint& InBlueprint, UBlueprint& Interface, UBlueprint& InChild, uint32 Seed)
		: Blueprint(InBlueprint)
		, Random(Seed)
		, Members(InBlueprint, Interface, Random)
		, Child(InBlueprint, InChild, Random)
	{
	}

	/** One or a few edits; answers their name. */
	const TCHAR* Edit()
	{
		struct FKind
		{
			int32 Weight;
			const TCHAR* Name;
			void (FRandomEditor::*Do)();
		};
		static const FKind Kinds[] = {
			{20, TEXT("spawn"), &FRandomEditor::Spawn},
			{5, TEXT("delete"), &FRandomEditor::Delete},
			{6, TEXT("move"), &FRandomEditor::Move},
			{25, TEXT("link"), &FRandomEditor::Link},
			{6, TEXT("break"), &FRandomEditor::Break},
			{10, TEXT("set default"), &FRandomEditor::SetDefault},
			{5, TEXT("split or recombine"), &FRandomEditor::SplitOrRecombine},
			{4, TEXT("add pin"), &FRandomEditor::AddPin},
			{3, TEXT("edit parameters"), &FRandomEditor::EditParameters},
			{5, TEXT("add variable"), &FRandomEditor::AddVariable},
			{3, TEXT("rename variable"), &FRandomEditor::RenameVariable},
			{3, TEXT("retype variable"), &FRandomEditor::RetypeVariable},
			{2, TEXT("remove variable"), &FRandomEditor::RemoveVariable},
			{3, TEXT("add function"), &FRandomEditor::AddFunction},
			{1, TEXT("rename function"), &FRandomEditor::RenameFunction},
			{1, TEXT("remove function"), &FRandomEditor::RemoveFunction},
			{3, TEXT("paste"), &FRandomEditor::Paste},
			{4, TEXT("reconstruct"), &FRandomEditor::Reconstruct},
			{2, TEXT("add component"), &FRandomEditor::AddComponent},
			{1, TEXT("remove component"), &FRandomEditor::RemoveComponent},
		};
		if (Pick(4) == 0)
		{
			return Members.Edit();
		}
		if (Pick(6) == 0)
		{
			return Child.Edit();
		}
		int32 Total = 0;
		for (const FKind& Kind : Kinds)
		{
			Total += Kind.Weight;
		}
		int32 Chosen = Pick(Total);
		for (const FKind& Kind : Kinds)
		{
			Chosen -= Kind.Weight;
			if (Chosen < 0)
			{
				(this->*Kind.Do)();
				return Kind.Name;
			}
		}
		return TEXT("");
	}

	int32 Pick(int32 Count) { return Count > 0 ? static_cast<int32>(Random() % static_cast<uint32>(Count)) : 0; }

private:
	UEdGraph* PickGraph()
	{
		TArray<UEdGraph*> Graphs;
		Blueprint.GetAllGraphs(Graphs);
		// The event graph is where most things happen.
		return Pick(3) > 0 ? FBlueprintEditorUtils::FindEventGraph(&Blueprint) : Graphs[Pick(Graphs.Num())];
	}

	UEdGraphNode* PickNode(const UEdGraph* Graph)
	{
		return Graph->Nodes.Num() > 0 ? Graph->Nodes[Pick(Graph->Nodes.Num())].Get() : nullptr;
	}

	UEdGraphPin* PickPin(const UEdGraph* Graph)
	{
		const UEdGraphNode* const Node = PickNode(Graph);
		return Node && Node->Pins.Num() > 0 ? Node->Pins[Pick(Node->Pins.Num())] : nullptr;
	}

	FEdGraphPinType PickType()
	{
		static const FName Categories[] = {UEdGraphSchema_K2::PC_Boolean, UEdGraphSchema_K2::PC_Int, UEdGraphSchema_K2::PC_Real,
			UEdGraphSchema_K2::PC_String, UEdGraphSchema_K2::PC_Name, UEdGraphSchema_K2::PC_Struct, UEdGraphSchema_K2::PC_Object};
		FEdGraphPinType Type;
		Type.PinCategory = Categories[Pick(7)];
		Type.PinSubCategory = Type.PinCategory == UEdGraphSchema_K2::PC_Real ? UEdGraphSchema_K2::PC_Double : FName();
		if (Type.PinCategory == UEdGraphSchema_K2::PC_Struct)
		{
			Type.PinSubCategoryObject = TBaseStructure<FVector>::Get();
		}
		else if (Type.PinCategory == UEdGraphSchema_K2::PC_Object)
		{
			Type.PinSubCategoryObject = AActor::StaticClass();
		}
		Type.ContainerType = Pick(4) == 0 ? EPinContainerType::Array : EPinContainerType::None;
		return Type;
	}

	FName PickVariable()
	{
		return Blueprint.NewVariables.Num() > 0 ? Blueprint.NewVariables[Pick(Blueprint.NewVariables.Num())].VarName : FName();
	}

	UEdGraph* PickFunction()
	{
		TArray<UEdGraph*> Functions;
		for (UEdGraph* const Graph : Blueprint.FunctionGraphs)
		{
			if (Graph->bAllowRenaming)
			{
				Functions.Add(Graph);
			}
		}
		return Functions.Num() > 0 ? Functions[Pick(Functions.Num())] : nullptr;
	}

	template <class NodeType>
	NodeType* Place(
		UEdGraph* Graph, TFunctionRef<void(NodeType&)> Prepare = [](NodeType&) {})
	{
		FGraphNodeCreator<NodeType> Creator(*Graph);
		NodeType* const Node = Creator.CreateNode(false);
		Prepare(*Node);
		Node->NodePosX = Pick(1000);
		Node->NodePosY = Pick(1000);
		Creator.Finalize();
		return Node;
	}

	void Call(UEdGraph* Graph, const TCHAR* ClassPath, const TCHAR* Name)
	{
		const UFunction* const Function = FindObject<UClass>(nullptr, ClassPath)->FindFunctionByName(Name);
		Place<UK2Node_CallFunction>(Graph, [Function](UK2Node_CallFunction& Node)
			{ Node.SetFromFunction(Function); });
	}

	void Spawn()
	{
		UEdGraph* const Graph = PickGraph();
		const FName Variable = PickVariable();
		switch (Pick(14))
		{
			case 0:
				return Call(Graph, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
			case 1:
				return Call(Graph, TEXT("/Script/Engine.KismetMathLibrary"), TEXT("Add_IntInt"));
			case 2:
				return Call(Graph, TEXT("/Script/Engine.Actor"), TEXT("K2_SetActorLocation"));
			case 3:
				return Call(Graph, TEXT("/Script/Engine.Actor"), TEXT("K2_GetActorLocation"));
			case 4:
				Place<UK2Node_IfThenElse>(Graph);
				return;
			case 5:
				Place<UK2Node_ExecutionSequence>(Graph);
				return;
			case 6:
				Place<UK2Node_Knot>(Graph);
				return;
			case 7:
				Place<UK2Node_MakeArray>(Graph);
				return;
			case 8:
				Place<UK2Node_SwitchInteger>(Graph);
				return;
			case 9:
				Place<UK2Node_CustomEvent>(FBlueprintEditorUtils::FindEventGraph(&Blueprint));
				return;
			case 10:
				Place<UK2Node_Timeline>(FBlueprintEditorUtils::FindEventGraph(&Blueprint));
				return;
			default:
				break;
		}
		if (Variable.IsNone())
		{
			return;
		}
		if (Pick(2) == 0)
		{
			Place<UK2Node_VariableGet>(Graph, [Variable](UK2Node_VariableGet& Node)
				{ Node.VariableReference.SetSelfMember(Variable); });
		}
		else
		{
			Place<UK2Node_VariableSet>(Graph, [Variable](UK2Node_VariableSet& Node)
				{ Node.VariableReference.SetSelfMember(Variable); });
		}
	}

	void Delete()
	{
		UEdGraph* const Graph = PickGraph();
		for (int32 Left = 1 + Pick(3); Left > 0; --Left)
		{
			UEdGraphNode* const Node = PickNode(Graph);
			if (Node && Node->CanUserDeleteNode())
			{
				FBlueprintEditorUtils::RemoveNode(&Blueprint, Node);
			}
		}
	}

	void Move()
	{
		if (UEdGraphNode* const Node = PickNode(PickGraph()))
		{
			Node->Modify();
			Node->NodePosX += 16;
			Node->NodePosY -= Pick(50);
		}
	}

	void Link()
	{
		const UEdGraph* const Graph = PickGraph();
		for (int32 Try = 0; Try < 200; ++Try)
		{
			UEdGraphPin* const From = PickPin(Graph);
			UEdGraphPin* const To = PickPin(Graph);
			const bool bCouldLink =
				From && To && From->Direction == EGPD_Output && To->Direction == EGPD_Input && !From->bHidden && !To->bHidden;
			if (bCouldLink && Graph->GetSchema()->TryCreateConnection(From, To))
			{
				return;
			}
		}
	}

	void Break()
	{
		const UEdGraph* const Graph = PickGraph();
		for (int32 Try = 0; Try < 20; ++Try)
		{
			UEdGraphPin* const Pin = PickPin(Graph);
			if (!Pin || Pin->LinkedTo.Num() == 0)
			{
				continue;
			}
			switch (Pick(3))
			{
				case 0:
					Graph->GetSchema()->BreakSinglePinLink(Pin, Pin->LinkedTo[Pick(Pin->LinkedTo.Num())]);
					return;
				case 1:
					Graph->GetSchema()->BreakPinLinks(*Pin, true);
					return;
				default:
					Graph->GetSchema()->BreakNodeLinks(*Pin->GetOwningNode());
					return;
			}
		}
	}

	void SetDefault()
	{
		static const TCHAR* const Values[] = {
			TEXT("1"), TEXT("true"), TEXT("0.5"), TEXT("text \"quoted\""), TEXT("1, 2, 3"), TEXT(""), TEXT("42")};
		const UEdGraph* const Graph = PickGraph();
		for (int32 Try = 0; Try < 5; ++Try)
		{
			UEdGraphPin* const Pin = PickPin(Graph);
			if (Pin && Pin->Direction == EGPD_Input && !UEdGraphSchema_K2::IsExecPin(*Pin))
			{
				Graph->GetSchema()->TrySetDefaultValue(*Pin, Values[Pick(7)]);
			}
		}
	}

	void SplitOrRecombine()
	{
		const UEdGraph* const Graph = PickGraph();
		for (int32 Try = 0; Try < 50; ++Try)
		{
			UEdGraphPin* const Pin = PickPin(Graph);
			if (!Pin)
			{
				continue;
			}
			if (Pin->ParentPin)
			{
				return Graph->GetSchema()->RecombinePin(Pin);
			}
			if (Pin->GetOwningNode()->CanSplitPin(Pin))
			{
				return Graph->GetSchema()->SplitPin(Pin);
			}
		}
	}

	void AddPin()
	{
		for (UEdGraphNode* const Node : TArray<TObjectPtr<UEdGraphNode>>(PickGraph()->Nodes))
		{
			if (UK2Node_ExecutionSequence* const Sequence = Cast<UK2Node_ExecutionSequence>(Node); Sequence && Pick(2) == 0)
			{
				Pick(3) > 0 ? Sequence->AddInputPin() : Sequence->RemovePinFromExecutionNode(Sequence->Pins.Last());
			}
			else if (UK2Node_MakeArray* const Array = Cast<UK2Node_MakeArray>(Node); Array && Pick(2) == 0)
			{
				Array->AddInputPin();
			}
			else if (UK2Node_SwitchInteger* const Switch = Cast<UK2Node_SwitchInteger>(Node); Switch && Pick(2) == 0)
			{
				Switch->AddPinToSwitchNode();
			}
		}
	}

	void EditParameters()
	{
		TArray<UK2Node_EditablePinBase*> Nodes;
		FBlueprintEditorUtils::GetAllNodesOfClass(&Blueprint, Nodes);
		if (Nodes.Num() == 0)
		{
			return;
		}
		UK2Node_EditablePinBase* const Node = Nodes[Pick(Nodes.Num())];
		const FEdGraphPinType Type = PickType();
		FText Reason;
		if (Node->UserDefinedPins.Num() > 0 && Pick(2) == 0)
		{
			Node->RemoveUserDefinedPin(Node->UserDefinedPins[Pick(Node->UserDefinedPins.Num())]);
		}
		else if (Node->CanCreateUserDefinedPin(Type, EGPD_Output, Reason))
		{
			Node->CreateUserDefinedPin(TEXT("Parameter"), Type, EGPD_Output);
		}
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
	}

	void AddVariable()
	{
		const FName Name = FBlueprintEditorUtils::FindUniqueKismetName(&Blueprint, TEXT("Variable"));
		FBlueprintEditorUtils::AddMemberVariable(&Blueprint, Name, PickType());
		FBlueprintEditorUtils::SetBlueprintVariableMetaData(&Blueprint, Name, nullptr, TEXT("tooltip"), TEXT("What it is"));
	}

	void RenameVariable()
	{
		FBlueprintEditorUtils::RenameMemberVariable(
			&Blueprint, PickVariable(), FBlueprintEditorUtils::FindUniqueKismetName(&Blueprint, TEXT("Renamed")));
	}

	void RetypeVariable()
	{
		const FName Variable = PickVariable();
		if (!Variable.IsNone())
		{
			FBlueprintEditorUtils::ChangeMemberVariableType(&Blueprint, Variable, PickType());
		}
	}

	void RemoveVariable() { FBlueprintEditorUtils::RemoveMemberVariable(&Blueprint, PickVariable()); }

	void AddFunction()
	{
		const FName Name = FBlueprintEditorUtils::GenerateUniqueGraphName(&Blueprint, TEXT("Function"));
		UEdGraph* const Graph =
			FBlueprintEditorUtils::CreateNewGraph(&Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(&Blueprint, Graph, true, nullptr);
	}

	void RenameFunction()
	{
		if (UEdGraph* const Graph = PickFunction())
		{
			FBlueprintEditorUtils::RenameGraph(Graph, FBlueprintEditorUtils::GenerateUniqueGraphName(&Blueprint, TEXT("Other")).ToString());
		}
	}

	void RemoveFunction()
	{
		if (UEdGraph* const Graph = PickFunction())
		{
			FBlueprintEditorUtils::RemoveGraph(&Blueprint, Graph);
		}
	}

	void Paste()
	{
		UEdGraph* const Graph = PickGraph();
		TSet<UObject*> Copied;
		for (int32 Left = 1 + Pick(5); Left > 0; --Left)
		{
			UEdGraphNode* const Node = PickNode(Graph);
			if (Node && Node->CanDuplicateNode() && !Node->IsA<UK2Node_Timeline>())
			{
				Copied.Add(Node);
			}
		}
		FString Text;
		FEdGraphUtilities::ExportNodesToText(Copied, Text);
		if (Copied.Num() > 0)
		{
			TSet<UEdGraphNode*> Pasted;
			FEdGraphUtilities::ImportNodesFromText(Graph, Text, Pasted);
			FEdGraphUtilities::PostProcessPastedNodes(Pasted);
		}
	}

	void Reconstruct()
	{
		if (Pick(4) == 0)
		{
			FBlueprintEditorUtils::RefreshAllNodes(&Blueprint);
		}
		else if (UEdGraphNode* const Node = PickNode(PickGraph()))
		{
			Node->ReconstructNode();
		}
	}

	void AddComponent()
	{
		USimpleConstructionScript* const Script = Blueprint.SimpleConstructionScript;
		USCS_Node* const Node = Script->CreateNode(FindObject<UClass>(nullptr, TEXT("/Script/Engine.SceneComponent")));
		const TArray<USCS_Node*> Existing = Script->GetAllNodes();
		if (Existing.Num() > 0 && Pick(2) == 0)
		{
			Existing[Pick(Existing.Num())]->AddChildNode(Node);
		}
		else
		{
			Script->AddNode(Node);
		}
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
	}

	void RemoveComponent()
	{
		const TArray<USCS_Node*> Existing = Blueprint.SimpleConstructionScript->GetAllNodes();
		if (Existing.Num() > 0)
		{
			Blueprint.SimpleConstructionScript->RemoveNodeAndPromoteChildren(Existing[Pick(Existing.Num())]);
			FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
		}
	}

	UBlueprint& Blueprint;
	std::mt19937 Random;
	FRandomMembers Members;
	FRandomChild Child;
};

class FUndoRandomWalkTest : public FBlueprintEditTest, public testing::WithParamInterface<uint32>
{
protected:
	void Expect(const FString& Expected, const FString& Where)
	{
		const FString Actual = TakeText();
		ASSERT_TRUE(Actual.Equals(Expected, ESearchCase::CaseSensitive))
			<< TCHAR_TO_UTF8(*Where) << ": " << TCHAR_TO_UTF8(*DescribeDifference(Expected, Actual));
	}

	FString TakeText() const { return FBlueprintText::Take(*Blueprint) + TEXT("Child\n") + FBlueprintText::Take(*Child); }

	/** Edits, and notes the text after each that left an entry. */
	void Edit(FRandomEditor& Editor, int32 Count)
	{
		for (int32 Number = 0; Number < Count; ++Number)
		{
			const int32 Before = GetPosition();
			const TCHAR* Name = TEXT("");
			{
				const FScopedTransaction Transaction(Title(TEXT("Random edit")));
				Name = Editor.Edit();
			}
			if (GetPosition() == Before)
			{
				Expect(Snapshots[Before], FString::Printf(TEXT("edit %d (%s) changed something and left no entry"), Number, Name));
			}
			else
			{
				Snapshots.SetNum(Before + 1);
				Names.SetNum(Before + 1);
				Snapshots.Add(TakeText());
				Names.Add(Name);
				++NumByKind.FindOrAdd(Name);
			}
			if (HasFatalFailure())
			{
				return;
			}
			Disturb(Editor);
		}
	}

	/** What happens between edits and is no edit. */
	void Disturb(FRandomEditor& Editor)
	{
		if (Editor.Pick(12) == 0)
		{
			FKismetEditorUtilities::CompileBlueprint(Blueprint);
		}
		if (Editor.Pick(12) == 0)
		{
			Collect();
		}
	}

	void GoTo(FRandomEditor& Editor, int32 Position)
	{
		while (GetPosition() != Position && !HasFatalFailure())
		{
			const bool bBack = GetPosition() > Position;
			const FString Name = Names[bBack ? GetPosition() : GetPosition() + 1];
			ASSERT_TRUE(bBack ? Undo() : Redo());
			Expect(Snapshots[GetPosition()],
				FString::Printf(TEXT("%s of '%s', now at %d"), bBack ? TEXT("undo") : TEXT("redo"), *Name, GetPosition()));
			Disturb(Editor);
		}
	}

	static int32 GetPosition() { return GEditor->Trans->GetQueueLength() - GEditor->Trans->GetUndoCount(); }

	UBlueprint* Child = nullptr;
	TArray<FString> Snapshots;
	TArray<FString> Names;
	/** How often each kind of edit left an entry. */
	TMap<FString, int32> NumByKind;
};

TEST_P(FUndoRandomWalkTest, EveryStateComesBackExactly)
{
	constexpr int32 NumEdits = 150;
	UBlueprint* const Interface = MakeBlueprint(TEXT("BPI_Openable"), UInterface::StaticClass(), BPTYPE_Interface);
	UK2Node_EditablePinBase* const Entry = FBlueprintEditorUtils::GetEntryNode(AddFunction(Interface, TEXT("CanOpen")));
	FBlueprintEditorUtils::FindOrCreateFunctionResultNode(Entry)->CreateUserDefinedPin(
		TEXT("bCan"), MakeType(UEdGraphSchema_K2::PC_Boolean), EGPD_Input);
	AddFunction(Interface, TEXT("Opened"));
	FKismetEditorUtilities::CompileBlueprint(Interface);
	Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	GEditor->ResetTransaction(Title(TEXT("Test")));
	FRandomEditor Editor(*Blueprint, *Interface, *Child, GetParam());
	Snapshots = {TakeText()};
	Names = {TEXT("start")};
	Edit(Editor, NumEdits);
	EXPECT_GT(Snapshots.Num(), NumEdits / 2);
	GoTo(Editor, 0);
	GoTo(Editor, Snapshots.Num() - 1);
	for (int32 Leg = 0; Leg < 6 && !HasFatalFailure(); ++Leg)
	{
		GoTo(Editor, Editor.Pick(Snapshots.Num()));
		Edit(Editor, 8);
	}
	GoTo(Editor, 0);
	EXPECT_GT(NumByKind.Num(), 20) << "kinds of edits that were made";
}

INSTANTIATE_TEST_SUITE_P(Seeds, FUndoRandomWalkTest, testing::Values(1u, 2u, 3u, 5u, 8u, 13u, 21u, 34u));
}
