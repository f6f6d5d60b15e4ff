#include "StableIds.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "Engine/Blueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"

namespace
{
FString DescribePin(const UEdGraphPin& Pin)
{
	return FString::Printf(TEXT("%s:%s"), Pin.Direction == EGPD_Input ? TEXT("in") : TEXT("out"), *Pin.PinName.ToString());
}
}

FGuid StableIds::MakeId(const UObject& Owner, const FString& Part)
{
	return FGuid::NewDeterministicGuid(Owner.GetPathName() + TEXT(":") + Part);
}

void StableIds::Fix(UEdGraphNode& Node)
{
	Node.NodeGuid = MakeId(Node);
}

void StableIds::Fix(UBlueprint& Blueprint)
{
	Blueprint.GenerateDeterministicGuid();
	if (Blueprint.SimpleConstructionScript)
	{
		for (USCS_Node* const Node : Blueprint.SimpleConstructionScript->GetAllNodes())
		{
			Node->VariableGuid = MakeId(Blueprint, Node->GetVariableName().ToString());
		}
	}
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	for (UEdGraph* const Graph : Graphs)
	{
		Graph->GraphGuid = MakeId(*Graph);
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			Fix(*Node);
			for (UEdGraphPin* const Pin : Node->Pins)
			{
				Pin->PinId = MakeId(*Node, DescribePin(*Pin));
			}
		}
	}
}
