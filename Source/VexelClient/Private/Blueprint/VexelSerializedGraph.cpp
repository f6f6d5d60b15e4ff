#include "Blueprint/VexelSerializedGraph.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Kismet2/BlueprintEditorUtils.h"

FVexelSerializedGraph::FVexelSerializedGraph(const UEdGraph* Graph)
{
	check(Graph);
	Name = Graph->GetName();
	Type = FBlueprintEditorUtils::GetGraphType(Graph);
	bSubGraph = UEdGraph::GetOuterGraph(const_cast<UEdGraph*>(Graph)) != nullptr;
	for (UEdGraphNode* const Node : Graph->Nodes)
	{
		if (Node)
		{
			Nodes.Add(Node);
		}
	}
}

TSet<UEdGraphNode*> FVexelSerializedGraph::GetNodes() const
{
	TSet<UEdGraphNode*> Present;
	for (const TWeakObjectPtr<UEdGraphNode>& Node : Nodes)
	{
		if (Node.IsValid())
		{
			Present.Add(Node.Get());
		}
	}
	return Present;
}
