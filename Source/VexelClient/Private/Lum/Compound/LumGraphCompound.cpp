#include "Lum/Compound/LumGraphCompound.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/VexelBlueprintEnums.h"
#include "Lum/Compound/LumNodeCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/LumVariableEdits.h"
#include "Lum/LumVariableRules.h"
#include "Lum/Property/LumNameProperty.h"
#include "Lum/Variable/LumGraphLocalVariable.h"
#include "Lum/Variable/LumPinVariable.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_EditablePinBase.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_Tunnel.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
/** The nodes where a function or a macro begins and ends; null where a graph has none. */
struct FGraphEnds
{
	explicit FGraphEnds(const UEdGraph& Graph)
	{
		for (UEdGraphNode* const Node : Graph.Nodes)
		{
			// Collapsed graphs and macro instances are tunnels too, but stand for graphs of their own.
			const UK2Node_Tunnel* const Tunnel = Node && Node->GetClass() == UK2Node_Tunnel::StaticClass() ? Cast<UK2Node_Tunnel>(Node) : nullptr;
			const bool bEntry = Tunnel ? Tunnel->DrawNodeAsEntry() : Cast<UK2Node_FunctionEntry>(Node) != nullptr;
			const bool bExit = Tunnel ? Tunnel->DrawNodeAsExit() : Cast<UK2Node_FunctionResult>(Node) != nullptr;
			Entry = bEntry && !Entry ? Node : Entry;
			Exit = bExit && !Exit ? Node : Exit;
		}
	}

	UEdGraphNode* Entry = nullptr;
	UEdGraphNode* Exit = nullptr;
};

/** A function runs by its call; execution pins are inputs and outputs of macros alone. */
bool IsParameter(const UEdGraphPin& Pin, EGraphType GraphType)
{
	return !Pin.ParentPin && (GraphType == GT_Macro || Pin.PinType.PinCategory != UEdGraphSchema_K2::PC_Exec);
}

/** The dispatcher's signature looks like a function to the schema. */
const TCHAR* GetGraphTypeWord(const UEdGraph& Graph, EGraphType GraphType)
{
	return FBlueprintEditorUtils::IsDelegateSignatureGraph(&Graph) ? TEXT("delegate_signature") : VexelBlueprintWords::GetWord(GraphType);
}

TArray<const UEdGraphPin*> GetParameterPins(const UEdGraphNode* Node, EEdGraphPinDirection Direction, EGraphType GraphType)
{
	TArray<const UEdGraphPin*> Pins;
	for (int32 Index = 0; Node && Index < Node->Pins.Num(); ++Index)
	{
		const UEdGraphPin* const Pin = Node->Pins[Index];
		if (Pin && Pin->Direction == Direction && IsParameter(*Pin, GraphType))
		{
			Pins.Add(Pin);
		}
	}
	return Pins;
}

TVexelExpected<void> CollectLocalVariables(ILumPropertyCollector& Collector, const UEdGraph& Graph, UEdGraphNode* EntryNode)
{
	UK2Node_FunctionEntry* const Entry = Cast<UK2Node_FunctionEntry>(EntryNode);
	UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
	if (!Entry || !Blueprint)
	{
		return {};
	}
	for (const FBPVariableDescription& Variable : Entry->LocalVariables)
	{
		VEXEL_TRY_VOID(Collector.Variable(MakeShared<FLumGraphLocalVariable>(*Blueprint, *Entry, Variable.VarName)),
			"while processing local variable '%s' in graph '%s'", *Variable.VarName.ToString(), *Graph.GetName());
	}
	return {};
}
}

FLumGraphCompound::FLumGraphCompound(UEdGraph& Graph)
	: WeakGraph(&Graph)
{
}

TVexelExpected<UEdGraph*> FLumGraphCompound::GetGraph() const
{
	VEXEL_TRY(UEdGraph* const Graph, FLumHelper::GetValid(WeakGraph, TEXT("Graph object is not valid")));
	if (!Graph->GetSchema())
	{
		return VEXEL_ERROR(FLumError_Read, "Graph object has no schema");
	}
	return Graph;
}

TVexelExpected<TVexelPropTypeId> FLumGraphCompound::GetCompoundType() const
{
	VEXEL_TRY(const UEdGraph* const Graph, GetGraph());
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Graph->GetClass());
}

TVexelExpected<TArray<TVexelVarScopeId>> FLumGraphCompound::GetVariableScopes() const
{
	return TArray<TVexelVarScopeId>{LumScope::In(), LumScope::Out(), LumScope::Local()};
}

TVexelExpected<void> FLumGraphCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY(UEdGraph* const Graph, GetGraph());
	const EGraphType GraphType = Graph->GetSchema()->GetGraphType(Graph);
	if (GraphType != GT_Function && GraphType != GT_Macro)
	{
		return {};
	}
	VEXEL_TRY(const TVexelPropTypeId Type, GetCompoundType());
	const auto Read = [WeakGraph = WeakGraph]() -> TVexelExpected<FString>
	{
		VEXEL_TRY(const UEdGraph* const Named, FLumHelper::GetValid(WeakGraph, TEXT("Graph object is not valid")));
		return Named->GetName();
	};
	const auto Rename = [WeakGraph = WeakGraph](const FString& NewName) -> TVexelExpected<void>
	{
		VEXEL_TRY(UEdGraph* const Renamed, FLumHelper::GetValid(WeakGraph, TEXT("Graph object is not valid")));
		return FLumHelper::RenameGraph(*Renamed, NewName);
	};
	VEXEL_TRY_VOID(Collector.Property(MakeShared<FLumNameProperty>(Type, TEXT("Expected string for graph name"), Read, Rename)),
		"while registering editable graph name property");

	const FGraphEnds Ends(*Graph);
	for (const UEdGraphPin* const Pin : GetParameterPins(Ends.Entry, EGPD_Output, GraphType))
	{
		VEXEL_TRY_VOID(Collector.Variable(MakeShared<FLumGraphInputOutputVariable>(*Pin)), "while processing function input '%s' in graph '%s'",
			*Pin->PinName.ToString(), *Graph->GetName());
	}
	for (const UEdGraphPin* const Pin : GetParameterPins(Ends.Exit, EGPD_Input, GraphType))
	{
		VEXEL_TRY_VOID(Collector.Variable(MakeShared<FLumGraphInputOutputVariable>(*Pin)), "while processing function output '%s' in graph '%s'",
			*Pin->PinName.ToString(), *Graph->GetName());
	}
	return CollectLocalVariables(Collector, *Graph, Ends.Entry);
}

TVexelExpected<FLumGraphCompound::EGraphScope> FLumGraphCompound::CheckScope(const TVexelVarScopeId& ScopeId) const
{
	const bool bIsLocal = ScopeId == LumScope::Local();
	if (!bIsLocal && ScopeId != LumScope::In() && ScopeId != LumScope::Out())
	{
		return VEXEL_ERROR(FLumError_Write, "Variable scope is invalid. Valid scopes are: in, out, local");
	}
	VEXEL_TRY(const UEdGraph* const Graph, GetGraph());
	if (!FBlueprintEditorUtils::FindBlueprintForGraph(Graph))
	{
		return VEXEL_ERROR(FLumError_Write, "Graph is not part of a blueprint");
	}
	return bIsLocal ? EGraphScope::Local : EGraphScope::Parameter;
}

TVexelExpected<void> FLumGraphCompound::AddVariable(const FLumVarDesc& Desc)
{
	VEXEL_TRY(const EGraphScope Scope, CheckScope(Desc.ScopeId));
	VEXEL_TRY_VOID(LumVariableRules::CheckComplete(Desc));
	VEXEL_TRY(UEdGraph* const Graph, GetGraph());
	if (Scope == EGraphScope::Local)
	{
		return LumVariableEdits::AddLocal(*Graph, Desc);
	}
	VEXEL_TRY(const FName Name, LumVariableRules::MakeName(Desc.PropId));
	return FLumHelper::AddFunctionInputOutput(*Graph, Name, Desc);
}

TVexelExpected<void> FLumGraphCompound::RemoveVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId)
{
	VEXEL_TRY(const EGraphScope Scope, CheckScope(ScopeId));
	VEXEL_TRY(UEdGraph* const Graph, GetGraph());
	VEXEL_TRY(const FName Name, LumVariableRules::MakeName(PropId));
	if (Scope == EGraphScope::Local)
	{
		return LumVariableEdits::RemoveLocal(*Graph, Name);
	}
	VEXEL_TRY(const EEdGraphPinDirection Direction, FLumHelper::CreatePinDirectionFromScopeId(ScopeId));
	return FLumHelper::RemoveFunctionInputOutput(*Graph, Direction, Name);
}

TVexelExpected<TSharedRef<FJsonObject>> FLumGraphCompound::JsonExportObject(const FLumContext& Context) const
{
	VEXEL_TRY(UEdGraph* const Graph, GetGraph());
	VEXEL_TRY(const TVexelPropTypeId Type, GetCompoundType(), "while getting compound type");

	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("type"), Type.ToString());
	Object->SetStringField(TEXT("graph_type"), GetGraphTypeWord(*Graph, Graph->GetSchema()->GetGraphType(Graph)));
	Object->SetStringField(TEXT("id"), Context.GetMapping().MakeGraphReference(*Graph).ToString());
	Object->SetStringField(TEXT("name"), Graph->GetName());

	// All nodes are named before the first link is, so that the numbers behind their names follow the graph's order.
	for (const UEdGraphNode* const Node : Graph->Nodes)
	{
		if (Node)
		{
			Context.GetMapping().MakeNodeReference(*Node, true);
		}
	}
	TArray<TSharedPtr<FJsonValue>> NodeValues;
	NodeValues.Reserve(Graph->Nodes.Num());
	for (UEdGraphNode* const Node : Graph->Nodes)
	{
		if (Node)
		{
			VEXEL_TRY(const TSharedRef<FJsonObject> NodeObject, FLumNodeCompound::Create(*Node)->JsonExportObject(Context),
				"while exporting node '%s' in graph '%s'", *Node->GetName(), *Graph->GetName());
			NodeValues.Add(MakeShared<FJsonValueObject>(NodeObject));
		}
	}
	if (!NodeValues.IsEmpty())
	{
		Object->SetArrayField(TEXT("nodes"), MoveTemp(NodeValues));
	}
	VEXEL_TRY_VOID(JsonExportPropertiesAndVariables(Context, Object), "while exporting properties and variables to JSON");
	return Object;
}
