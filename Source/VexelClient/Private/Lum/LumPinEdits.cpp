#include "Lum/LumHelper.h"

#include "Lum/LumErrors.h"
#include "Lum/LumLinkMending.h"
#include "Lum/LumParameterPins.h"
#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariable.h"
#include "Lum/LumVariableFlags.h"
#include "Lum/LumVariableRules.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
using FNodes = TArray<UK2Node_EditablePinBase*>;

TVexelExpected<UBlueprint*> FindBlueprint(const FNodes& Nodes)
{
	UBlueprint* const Blueprint = Nodes.IsEmpty() ? nullptr : FBlueprintEditorUtils::FindBlueprintForNode(Nodes[0]);
	if (!Blueprint || !Nodes[0]->GetGraph())
	{
		return VEXEL_ERROR(FLumError_Write, "Blueprint graph is not valid!");
	}
	return Blueprint;
}

/** Whether the function of the node has the name for something else: a parameter at its other end, or a local variable. */
bool IsNameTakenInFunction(const UK2Node_EditablePinBase& Node, FName Name)
{
	if (!Node.IsA<UK2Node_FunctionTerminator>())
	{
		return false;
	}
	TArray<UK2Node_FunctionTerminator*> Ends;
	Node.GetGraph()->GetNodesOfClass(Ends);
	return Ends.ContainsByPredicate([Name](const UK2Node_FunctionTerminator* End)
			   { return End->FindPin(Name) != nullptr; }) ||
		FBlueprintEditorUtils::FindLocalVariable(nullptr, Node.GetGraph(), Name) != nullptr;
}

bool IsNameTaken(const UK2Node_EditablePinBase& Node, FName Name)
{
	return Node.FindPin(Name) || Node.UserDefinedPinExists(Name) || IsNameTakenInFunction(Node, Name);
}

FLumError_Write MakeCreateError(const FName& Name, const FLumVarDesc& Desc, const FString& Reason)
{
	return VEXEL_ERROR(FLumError_Write, "Failed to create pin '%s' of type '%s'. %s", *Name.ToString(), *Desc.TypeId, *Reason);
}

/** The type of a pin that the nodes can have on that side. */
TVexelExpected<FEdGraphPinType> CheckType(const FNodes& Nodes, const FName& Name, EEdGraphPinDirection Direction, const FLumVarDesc& Desc)
{
	const TVexelExpected<FEdGraphPinType> Parsed = LumVariableRules::ParseType(Desc.TypeId, LumVariableRules::EUse::Pin);
	if (Parsed.HasError())
	{
		return MakeCreateError(Name, Desc, Parsed.GetError().GetMessage());
	}
	const FEdGraphPinType& Type = Parsed.GetValue();
	for (UK2Node_EditablePinBase* const Node : Nodes)
	{
		const bool bIsExec = Type.PinCategory == UEdGraphSchema_K2::PC_Exec;
		if (bIsExec && Node->IsEditable() && !Node->CanModifyExecutionWires())
		{
			return VEXEL_ERROR(FLumError_Write, "Cannot add more exec pins to this node.");
		}
		FText Reason;
		if (!Node->CanCreateUserDefinedPin(Type, Direction, Reason))
		{
			return MakeCreateError(Name, Desc, Reason.ToString());
		}
		const bool bIsWildcard = Type.PinCategory == UEdGraphSchema_K2::PC_Wildcard;
		if (bIsWildcard && !Node->CanModifyExecutionWires())
		{
			return MakeCreateError(Name, Desc, TEXT("Only macros have wildcard pins."));
		}
	}
	return Type;
}

struct FNewPin
{
	EEdGraphPinDirection Direction;
	FEdGraphPinType Type;
};

TVexelExpected<FNewPin> CheckNewPin(const UBlueprint& Blueprint, const FNodes& Nodes, const FName& Name, const FLumVarDesc& Desc)
{
	for (const UK2Node_EditablePinBase* const Node : Nodes)
	{
		if (IsNameTaken(*Node, Name))
		{
			return VEXEL_ERROR(FLumError_Write, "Pin '%s' already exists", *Name.ToString());
		}
	}
	const TVexelExpected<EEdGraphPinDirection> Direction = FLumHelper::CreatePinDirectionFromScopeId(Desc.ScopeId);
	if (Direction.HasError())
	{
		return VEXEL_ERROR(FLumError_Write, "Pin direction invalid");
	}
	VEXEL_TRY_VOID(LumVariableFlags::CheckNone(Desc));
	VEXEL_TRY(const FEdGraphPinType Type, CheckType(Nodes, Name, Direction.GetValue(), Desc));
	const TVexelExpected<void> Named = LumVariableRules::CheckPinName(Blueprint, Name.ToString());
	if (Named.HasError())
	{
		return MakeCreateError(Name, Desc, Named.GetError().GetMessage());
	}
	return FNewPin{Direction.GetValue(), Type};
}

TSharedPtr<FUserPinInfo> FindUserPin(const UK2Node_EditablePinBase& Node, const FName& Name)
{
	const TSharedPtr<FUserPinInfo>* const Found = Node.UserDefinedPins.FindByPredicate([&Name](const TSharedPtr<FUserPinInfo>& Info)
		{ return Info->PinName == Name; });
	return Found ? *Found : nullptr;
}

TVexelExpected<void> CheckUserPin(const FNodes& Nodes, const FName& Name)
{
	for (const UK2Node_EditablePinBase* const Node : Nodes)
	{
		if (!Node->UserDefinedPinExists(Name))
		{
			return VEXEL_ERROR(FLumError_Write, "User defined pin '%s' not found in blueprint node.", *Name.ToString());
		}
		if (!Node->IsEditable())
		{
			return VEXEL_ERROR(FLumError_Write, "User defined pin '%s' cannot be changed: what the node overrides declares it.", *Name.ToString());
		}
	}
	return {};
}

/** The type's own default where the value is none of the type. */
FString KeepDefault(UK2Node_EditablePinBase& Node, const FUserPinInfo& Info, const FEdGraphPinType& Type)
{
	const UEdGraphSchema_K2* const Schema = GetDefault<UEdGraphSchema_K2>();
	FString Value;
	TObjectPtr<UObject> Object;
	FText Text;
	Schema->GetPinDefaultValuesFromString(Type, &Node, Info.PinDefaultValue, Value, Object, Text);
	// A type of references reads nothing from what names no object.
	const bool bIsRead = Object || !Value.IsEmpty() || !Text.IsEmpty();
	return bIsRead && Schema->DefaultValueSimpleValidation(Type, Info.PinName, Value, Object, Text) ? Info.PinDefaultValue : FString();
}

void SetType(UK2Node_EditablePinBase& Node, FUserPinInfo& Info, const FEdGraphPinType& Type)
{
	Node.Modify();
	Info.PinDefaultValue = KeepDefault(Node, Info, Type);
	Info.PinType = Type;
	Node.ReconstructNode();
}

/** What a change of a pin comes to, checked: a name and a type that are unset stay. */
struct FPinChange
{
	TOptional<FName> Name;
	TOptional<FEdGraphPinType> Type;
};

TVexelExpected<FPinChange> CheckChange(const UBlueprint& Blueprint, const FNodes& Nodes, const FName& Name, const FLumVarDesc& Desc)
{
	const FUserPinInfo& Info = *FindUserPin(*Nodes[0], Name);
	VEXEL_TRY_VOID(LumVariableFlags::CheckNone(Desc));
	FPinChange Change;
	if (!Desc.ScopeId.IsEmpty())
	{
		const TVexelExpected<EEdGraphPinDirection> Direction = FLumHelper::CreatePinDirectionFromScopeId(Desc.ScopeId);
		if (Direction.HasError() || Direction.GetValue() != Info.DesiredPinDirection)
		{
			return VEXEL_ERROR(FLumError_Write, "Pin direction invalid: an input stays an input, and an output an output");
		}
	}
	const FString& NewName = Desc.PropId.ToString();
	if (!NewName.IsEmpty() && !NewName.Equals(Name.ToString(), ESearchCase::CaseSensitive))
	{
		VEXEL_TRY_VOID(LumVariableRules::CheckPinName(Blueprint, NewName));
		Change.Name = FName(*NewName);
		const bool bOnlyCaseChanges = *Change.Name == Name;
		for (const UK2Node_EditablePinBase* const Node : Nodes)
		{
			if (!bOnlyCaseChanges && IsNameTaken(*Node, *Change.Name))
			{
				return VEXEL_ERROR(FLumError_Write, "Pin '%s' already exists", *NewName);
			}
		}
	}
	if (!Desc.TypeId.IsEmpty())
	{
		VEXEL_TRY(const FEdGraphPinType Type, CheckType(Nodes, Name, Info.DesiredPinDirection, Desc));
		if (Type != Info.PinType)
		{
			Change.Type = Type;
		}
	}
	return Change;
}

FText GetFunctionTitle(const TCHAR* Verb, EEdGraphPinDirection Direction)
{
	return FText::FromString(FString::Printf(TEXT("(Vexel) %s Function %s"), Verb, Direction == EGPD_Input ? TEXT("Input") : TEXT("Output")));
}

/** The edit under a title of its own; it leaves no entry when it fails. */
template <typename EditType>
TVexelExpected<void> Transact(const FText& Title, EditType Edit)
{
	FScopedTransaction Transaction(Title);
	TVexelExpected<void> Result = Edit();
	if (Result.HasError())
	{
		Transaction.Cancel();
	}
	return Result;
}

/** The end of the function or macro that has the inputs, or the outputs; null without one. */
UK2Node_EditablePinBase* FindEnd(const UEdGraph& Graph, EEdGraphPinDirection Direction)
{
	TWeakObjectPtr<UK2Node_EditablePinBase> Entry;
	TWeakObjectPtr<UK2Node_EditablePinBase> Result;
	FBlueprintEditorUtils::GetEntryAndResultNodes(&Graph, Entry, Result);
	return Direction == EGPD_Input ? Entry.Get() : Result.Get();
}

TVexelExpected<FNodes> FindEnds(const UEdGraph& Graph, EEdGraphPinDirection Direction)
{
	UK2Node_EditablePinBase* const End = FindEnd(Graph, Direction);
	if (!End)
	{
		return VEXEL_ERROR(FLumError_Write, "No function entry/result node found in graph");
	}
	FNodes Nodes;
	VEXEL_TRY_VOID(FLumHelper::GetAllNodesForUserPinEdit(*End, Nodes));
	return Nodes;
}

/** As the ends have it: what goes into a function comes out of its entry. */
FLumVarDesc FaceInside(const FLumVarDesc& Desc)
{
	FLumVarDesc Inside = Desc;
	Inside.ScopeId = Desc.ScopeId == LumScope::In() ? LumScope::Out() : Desc.ScopeId == LumScope::Out() ? LumScope::In()
																										: Desc.ScopeId;
	return Inside;
}

/** An output that is wanted where the function has no result yet is checked against the entry, which can do what a result can. */
TVexelExpected<void> CheckFirstOutput(UK2Node_EditablePinBase& Entry, const FName Name, const FLumVarDesc& Desc)
{
	UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForNode(&Entry);
	if (!Blueprint || !Entry.IsA<UK2Node_FunctionEntry>() || FBlueprintEditorUtils::IsDelegateSignatureGraph(Entry.GetGraph()))
	{
		return VEXEL_ERROR(FLumError_Write, "No function entry/result node found in graph");
	}
	FLumVarDesc OnEntry = Desc;
	OnEntry.ScopeId = LumScope::Out();
	VEXEL_TRY_VOID(CheckNewPin(*Blueprint, {&Entry}, Name, OnEntry));
	return {};
}
}

TVexelExpected<void> FLumHelper::GetAllNodesForUserPinEdit(UK2Node_EditablePinBase& Node, TArray<UK2Node_EditablePinBase*>& OutNodes)
{
	const UEdGraph* const Graph = Node.GetGraph();
	if (!Graph || !FBlueprintEditorUtils::FindBlueprintForGraph(Graph))
	{
		return VEXEL_ERROR(FLumError_Write, "Blueprint graph is not valid!");
	}
	if (!Node.IsA<UK2Node_FunctionResult>())
	{
		OutNodes.Add(&Node);
		return {};
	}
	TArray<UK2Node_FunctionResult*> Results;
	Graph->GetNodesOfClass(Results);
	OutNodes.Append(Results);
	return {};
}

TVexelExpected<void> FLumHelper::AddUserDefinedPin(const TArray<UK2Node_EditablePinBase*>& Nodes, const FName& Name, const FLumVarDesc& Desc)
{
	VEXEL_TRY(UBlueprint* const Blueprint, FindBlueprint(Nodes));
	VEXEL_TRY(const FNewPin NewPin, CheckNewPin(*Blueprint, Nodes, Name, Desc));
	const FLumStructureEdit Edit(INVTEXT("(Vexel) Add Pin"), *Blueprint, ELumSkeleton::AtOnce);
	for (UK2Node_EditablePinBase* const Node : Nodes)
	{
		Node->CreateUserDefinedPin(Name, NewPin.Type, NewPin.Direction, false);
	}
	return {};
}

TVexelExpected<void> FLumHelper::ChangeUserDefinedPin(
	const TArray<UK2Node_EditablePinBase*>& Nodes, const FName& Name, const FLumVarDesc& Desc)
{
	VEXEL_TRY(UBlueprint* const Blueprint, FindBlueprint(Nodes));
	for (const UK2Node_EditablePinBase* const Node : Nodes)
	{
		if (!Node->FindPin(Name))
		{
			return VEXEL_ERROR(FLumError_Write, "Pin '%s' not found in blueprint node.", *Name.ToString());
		}
	}
	VEXEL_TRY_VOID(CheckUserPin(Nodes, Name));
	VEXEL_TRY(const FPinChange Change, CheckChange(*Blueprint, Nodes, Name, Desc));
	if (!Change.Name && !Change.Type)
	{
		return {};
	}

	FLumEditBatch::BringUpToDate(*Blueprint);
	FLumParameterPins Users(*Nodes[0], Name, FindUserPin(*Nodes[0], Name)->DesiredPinDirection);
	FLumStructureEdit Edit(INVTEXT("(Vexel) Edit Pin"), *Blueprint, ELumSkeleton::AtOnce);
	const FName FinalName = Change.Name.Get(Name);
	for (UK2Node_EditablePinBase* const Node : Nodes)
	{
		Node->Modify();
		if (Change.Name)
		{
			Node->RenameUserDefinedPin(Name, FinalName);
		}
		if (Change.Type)
		{
			SetType(*Node, *FindUserPin(*Node, FinalName), *Change.Type);
		}
	}
	if (Change.Name)
	{
		Users.Rename(FinalName);
	}
	if (Change.Type)
	{
		Edit.Mark();
		Users.FollowType();
		LumLinkMending::Mend(TArray<UK2Node*>(Nodes));
	}
	return {};
}

TVexelExpected<void> FLumHelper::RemoveUserDefinedPin(const TArray<UK2Node_EditablePinBase*>& Nodes, const FName& Name)
{
	VEXEL_TRY(UBlueprint* const Blueprint, FindBlueprint(Nodes));
	VEXEL_TRY_VOID(CheckUserPin(Nodes, Name));
	const FLumStructureEdit Edit(INVTEXT("(Vexel) Remove Pin"), *Blueprint, ELumSkeleton::AtOnce);
	for (UK2Node_EditablePinBase* const Node : Nodes)
	{
		Node->RemoveUserDefinedPinByName(Name);
	}
	return {};
}

TVexelExpected<void> FLumHelper::AddFunctionInputOutput(const UEdGraph& Graph, const FName Name, const FLumVarDesc& Desc)
{
	VEXEL_TRY(const EEdGraphPinDirection Direction, CreatePinDirectionFromScopeId(Desc.ScopeId));
	UK2Node_EditablePinBase* const Entry = FindEnd(Graph, EGPD_Input);
	UK2Node_EditablePinBase* const End = FindEnd(Graph, Direction);
	if (!Entry || (!End && Direction == EGPD_Input))
	{
		return VEXEL_ERROR(FLumError_Write, "No function entry/result node found in graph");
	}
	if (End)
	{
		FNodes Nodes;
		VEXEL_TRY_VOID(GetAllNodesForUserPinEdit(*End, Nodes));
		return Transact(GetFunctionTitle(TEXT("Add"), Direction), [&]
			{ return AddUserDefinedPin(Nodes, Name, FaceInside(Desc)); });
	}
	VEXEL_TRY_VOID(CheckFirstOutput(*Entry, Name, Desc));
	const FLumStructureEdit Edit(
		GetFunctionTitle(TEXT("Add"), Direction), *FBlueprintEditorUtils::FindBlueprintForNode(Entry), ELumSkeleton::AtOnce);
	return AddUserDefinedPin({FBlueprintEditorUtils::FindOrCreateFunctionResultNode(Entry)}, Name, FaceInside(Desc));
}

TVexelExpected<void> FLumHelper::ChangeFunctionInputOutput(
	const UEdGraph& Graph, EEdGraphPinDirection Direction, FName Name, const FLumVarDesc& Desc)
{
	VEXEL_TRY(const FNodes Nodes, FindEnds(Graph, Direction));
	return Transact(GetFunctionTitle(TEXT("Edit"), Direction), [&]
		{ return ChangeUserDefinedPin(Nodes, Name, FaceInside(Desc)); });
}

TVexelExpected<void> FLumHelper::RemoveFunctionInputOutput(const UEdGraph& Graph, EEdGraphPinDirection Direction, FName Name)
{
	VEXEL_TRY(const FNodes Nodes, FindEnds(Graph, Direction));
	return Transact(GetFunctionTitle(TEXT("Remove"), Direction), [&]
		{ return RemoveUserDefinedPin(Nodes, Name); });
}
