#pragma once

#include "BlueprintEditTest.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_VariableSet.h"

#include <random>

/** Edits of what a Blueprint declares besides nodes, variables and plain functions, chosen at random. */
class FRandomMembers
{
public:
	/** The interface is one that the Blueprint does not implement yet. */
	FRandomMembers(UBlueprint& InBlueprint, UBlueprint& InInterface, std::mt19937& InRandom)
		: Blueprint(InBlueprint)
		, Interface(InInterface)
		, Random(InRandom)
	{
	}

	/** One edit; answers its name. */
	const TCHAR* Edit()
	{
		static const struct
		{
			const TCHAR* Name;
			void (FRandomMembers::*Do)();
		} Kinds[] = {
			{TEXT("add macro"), &FRandomMembers::AddMacro},
			{TEXT("rename macro"), &FRandomMembers::RenameMacro},
			{TEXT("remove macro"), &FRandomMembers::RemoveMacro},
			{TEXT("use macro"), &FRandomMembers::UseMacro},
			{TEXT("edit macro's pins"), &FRandomMembers::EditMacro},
			{TEXT("edit macro's pins"), &FRandomMembers::EditMacro},
			{TEXT("add dispatcher"), &FRandomMembers::AddDispatcher},
			{TEXT("rename dispatcher"), &FRandomMembers::RenameDispatcher},
			{TEXT("remove dispatcher"), &FRandomMembers::RemoveDispatcher},
			{TEXT("implement or remove interface"), &FRandomMembers::ToggleInterface},
			{TEXT("add local"), &FRandomMembers::AddLocal},
			{TEXT("use local"), &FRandomMembers::UseLocal},
			{TEXT("rename local"), &FRandomMembers::RenameLocal},
			{TEXT("remove local"), &FRandomMembers::RemoveLocal},
			{TEXT("add timeline"), &FRandomMembers::AddTimeline},
			{TEXT("rename timeline"), &FRandomMembers::RenameTimeline},
			{TEXT("remove timeline"), &FRandomMembers::RemoveTimeline},
			{TEXT("rename component"), &FRandomMembers::RenameComponent},
			{TEXT("add event page"), &FRandomMembers::AddPage},
			{TEXT("flag variable"), &FRandomMembers::FlagVariable},
			{TEXT("call own function"), &FRandomMembers::CallOwn},
			{TEXT("call own function"), &FRandomMembers::CallOwn},
			{TEXT("edit own parameters"), &FRandomMembers::EditParameters},
			{TEXT("edit own parameters"), &FRandomMembers::EditParameters},
		};
		const auto& Kind = Kinds[Pick(std::size(Kinds))];
		(this->*Kind.Do)();
		return Kind.Name;
	}

private:
	int32 Pick(size_t Count) { return Count > 0 ? static_cast<int32>(Random() % Count) : 0; }

	template <class ElementType>
	ElementType* PickOf(const TArray<TObjectPtr<ElementType>>& Elements)
	{
		return Elements.Num() > 0 ? Elements[Pick(Elements.Num())].Get() : nullptr;
	}

	static FEdGraphPinType MakeType(FName Category)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Category;
		return Type;
	}

	UEdGraph* MakeGraph(const TCHAR* Name)
	{
		return FBlueprintEditorUtils::CreateNewGraph(&Blueprint, FBlueprintEditorUtils::GenerateUniqueGraphName(&Blueprint, Name),
			UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	}

	void RenameOneOf(const TArray<TObjectPtr<UEdGraph>>& Graphs)
	{
		if (UEdGraph* const Graph = PickOf(Graphs))
		{
			FBlueprintEditorUtils::RenameGraph(
				Graph, FBlueprintEditorUtils::GenerateUniqueGraphName(&Blueprint, TEXT("Changed")).ToString());
		}
	}

	void AddMacro() { FBlueprintEditorUtils::AddMacroGraph(&Blueprint, MakeGraph(TEXT("Macro")), true, nullptr); }
	void RenameMacro() { RenameOneOf(Blueprint.MacroGraphs); }

	void RemoveMacro()
	{
		if (UEdGraph* const Graph = PickOf(Blueprint.MacroGraphs))
		{
			FBlueprintEditorUtils::RemoveGraph(&Blueprint, Graph);
		}
	}

	void UseMacro()
	{
		UEdGraph* const Macro = PickOf(Blueprint.MacroGraphs);
		if (Macro)
		{
			FGraphNodeCreator<UK2Node_MacroInstance> Creator(*FBlueprintEditorUtils::FindEventGraph(&Blueprint));
			Creator.CreateNode(false)->SetMacroGraph(Macro);
			Creator.Finalize();
		}
	}

	void EditMacro()
	{
		const UEdGraph* const Macro = PickOf(Blueprint.MacroGraphs);
		UK2Node_Tunnel* const Entry = const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(Macro, true));
		if (Entry)
		{
			EditPins(*Entry);
		}
	}

	void AddDispatcher()
	{
		const FName Name = FBlueprintEditorUtils::FindUniqueKismetName(&Blueprint, TEXT("OnEvent"));
		FBlueprintEditorUtils::AddMemberVariable(&Blueprint, Name, MakeType(UEdGraphSchema_K2::PC_MCDelegate));
		UEdGraph* const Signature =
			FBlueprintEditorUtils::CreateNewGraph(&Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		GetDefault<UEdGraphSchema_K2>()->CreateFunctionGraphTerminators(*Signature, static_cast<UClass*>(nullptr));
		GetDefault<UEdGraphSchema_K2>()->MarkFunctionEntryAsEditable(Signature, true);
		Blueprint.DelegateSignatureGraphs.Add(Signature);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
	}

	void RenameDispatcher() { RenameOneOf(Blueprint.DelegateSignatureGraphs); }

	void RemoveDispatcher()
	{
		if (const UEdGraph* const Graph = PickOf(Blueprint.DelegateSignatureGraphs))
		{
			FBlueprintEditorUtils::RemoveMemberVariable(&Blueprint, Graph->GetFName());
		}
	}

	void ToggleInterface()
	{
		const FTopLevelAssetPath Path(Interface.GeneratedClass.Get());
		if (Blueprint.ImplementedInterfaces.IsEmpty())
		{
			FBlueprintEditorUtils::ImplementNewInterface(&Blueprint, Path);
		}
		else
		{
			FBlueprintEditorUtils::RemoveInterface(&Blueprint, Path, Pick(2) == 0);
		}
	}

	/** A function of the Blueprint's own with at least a local variable when one is wanted; null without one. */
	UK2Node_FunctionEntry* PickEntry(bool bWithLocal)
	{
		TArray<UK2Node_FunctionEntry*> Entries;
		for (const UEdGraph* const Graph : Blueprint.FunctionGraphs)
		{
			UK2Node_FunctionEntry* const Entry = Cast<UK2Node_FunctionEntry>(FBlueprintEditorUtils::GetEntryNode(Graph));
			if (Entry && (!bWithLocal || Entry->LocalVariables.Num() > 0))
			{
				Entries.Add(Entry);
			}
		}
		return Entries.Num() > 0 ? Entries[Pick(Entries.Num())] : nullptr;
	}

	const UStruct* GetScope(const UK2Node_FunctionEntry& Entry) const
	{
		return Blueprint.SkeletonGeneratedClass->FindFunctionByName(Entry.GetGraph()->GetFName());
	}

	void AddLocal()
	{
		UK2Node_FunctionEntry* const Entry = PickEntry(false);
		if (Entry)
		{
			const FName Name = FBlueprintEditorUtils::FindUniqueKismetName(&Blueprint, TEXT("Local"));
			FBlueprintEditorUtils::AddLocalVariable(&Blueprint, Entry->GetGraph(), Name, MakeType(UEdGraphSchema_K2::PC_Int), TEXT("3"));
		}
	}

	void UseLocal()
	{
		const UK2Node_FunctionEntry* const Entry = PickEntry(true);
		if (Entry)
		{
			UEdGraph* const Graph = Entry->GetGraph();
			const FBPVariableDescription& Local = Entry->LocalVariables[Pick(Entry->LocalVariables.Num())];
			FGraphNodeCreator<UK2Node_VariableSet> Creator(*Graph);
			Creator.CreateNode(false)->VariableReference.SetLocalMember(Local.VarName, Graph->GetName(), Local.VarGuid);
			Creator.Finalize();
		}
	}

	void RenameLocal()
	{
		const UK2Node_FunctionEntry* const Entry = PickEntry(true);
		if (Entry)
		{
			FBlueprintEditorUtils::RenameLocalVariable(&Blueprint, GetScope(*Entry), Entry->LocalVariables[0].VarName,
				FBlueprintEditorUtils::FindUniqueKismetName(&Blueprint, TEXT("Own")));
		}
	}

	void RemoveLocal()
	{
		const UK2Node_FunctionEntry* const Entry = PickEntry(true);
		if (Entry)
		{
			FBlueprintEditorUtils::RemoveLocalVariable(&Blueprint, GetScope(*Entry), Entry->LocalVariables.Last().VarName);
		}
	}

	void AddTimeline() { FBlueprintEditorUtils::AddNewTimeline(&Blueprint, FBlueprintEditorUtils::FindUniqueTimelineName(&Blueprint)); }

	void RenameTimeline()
	{
		if (const UTimelineTemplate* const Timeline = PickOf(Blueprint.Timelines))
		{
			FBlueprintEditorUtils::RenameTimeline(
				&Blueprint, Timeline->GetVariableName(), FBlueprintEditorUtils::FindUniqueKismetName(&Blueprint, TEXT("Line")));
		}
	}

	void RemoveTimeline()
	{
		if (UTimelineTemplate* const Timeline = PickOf(Blueprint.Timelines))
		{
			FBlueprintEditorUtils::RemoveTimeline(&Blueprint, Timeline);
		}
	}

	void RenameComponent()
	{
		const TArray<USCS_Node*> Nodes = Blueprint.SimpleConstructionScript->GetAllNodes();
		if (Nodes.Num() > 0)
		{
			FBlueprintEditorUtils::RenameComponentMemberVariable(
				&Blueprint, Nodes[Pick(Nodes.Num())], FBlueprintEditorUtils::FindUniqueKismetName(&Blueprint, TEXT("Part")));
		}
	}

	void AddPage() { FBlueprintEditorUtils::AddUbergraphPage(&Blueprint, MakeGraph(TEXT("Page"))); }

	void CallOwn()
	{
		const UK2Node_FunctionEntry* const Entry = PickEntry(false);
		const UFunction* const Function =
			Entry ? Blueprint.SkeletonGeneratedClass->FindFunctionByName(Entry->GetGraph()->GetFName()) : nullptr;
		if (Function)
		{
			UEdGraph* const Graph = FBlueprintEditorUtils::FindEventGraph(&Blueprint);
			FGraphNodeCreator<UK2Node_CallFunction> Creator(*Graph);
			UK2Node_CallFunction* const Call = Creator.CreateNode(false);
			Call->SetFromFunction(Function);
			Creator.Finalize();
			// Something that is linked, so that a parameter which goes leaves a link behind.
			for (UEdGraphPin* const Pin : TArray<UEdGraphPin*>(Call->Pins))
			{
				const bool bIsNumber = Pin->Direction == EGPD_Input && Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Int;
				const UEdGraphNode* const Giver = bIsNumber ? FindGiver(*Graph) : nullptr;
				if (Giver)
				{
					Graph->GetSchema()->TryCreateConnection(Giver->FindPin(UEdGraphSchema_K2::PN_ReturnValue), Pin);
				}
			}
		}
	}

	/** A node that gives a whole number; null without one. */
	static const UEdGraphNode* FindGiver(const UEdGraph& Graph)
	{
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			const UEdGraphPin* const Result = Node->FindPin(UEdGraphSchema_K2::PN_ReturnValue);
			if (Result && Result->PinType.PinCategory == UEdGraphSchema_K2::PC_Int)
			{
				return Node;
			}
		}
		return nullptr;
	}

	void EditParameters()
	{
		UK2Node_FunctionEntry* const Entry = PickEntry(false);
		if (Entry && Entry->bIsEditable)
		{
			EditPins(*Entry);
		}
	}

	void EditPins(UK2Node_EditablePinBase& Entry)
	{
		Entry.Modify();
		if (Entry.UserDefinedPins.Num() > 0 && Pick(3) == 0)
		{
			Entry.RemoveUserDefinedPin(Entry.UserDefinedPins[Pick(Entry.UserDefinedPins.Num())]);
		}
		else
		{
			Entry.CreateUserDefinedPin(TEXT("Number"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
		}
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(&Blueprint);
	}

	void FlagVariable()
	{
		if (Blueprint.NewVariables.IsEmpty())
		{
			return;
		}
		const FName Name = Blueprint.NewVariables[Pick(Blueprint.NewVariables.Num())].VarName;
		switch (Pick(4))
		{
			case 0:
				return FBlueprintEditorUtils::SetBlueprintOnlyEditableFlag(&Blueprint, Name, Pick(2) == 0);
			case 1:
				return FBlueprintEditorUtils::SetBlueprintVariableCategory(&Blueprint, Name, nullptr, FText::FromString(TEXT("Set|Apart")));
			case 2:
				return FBlueprintEditorUtils::SetBlueprintVariableMetaData(&Blueprint, Name, nullptr, TEXT("ExposeOnSpawn"), TEXT("true"));
			default:
				return FBlueprintEditorUtils::RemoveBlueprintVariableMetaData(&Blueprint, Name, nullptr, TEXT("tooltip"));
		}
	}

	UBlueprint& Blueprint;
	UBlueprint& Interface;
	std::mt19937& Random;
};
