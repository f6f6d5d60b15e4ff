#include "Blueprint/VexelPlacedNodes.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"

namespace
{
FIntPoint GetPlace(const UEdGraphNode& Node)
{
	return FIntPoint(Node.NodePosX, Node.NodePosY);
}
}

void FVexelPlacedNodes::Remember(const UEdGraphNode& Node)
{
	Places.Add(Node.NodeGuid, GetPlace(Node));
}

bool FVexelPlacedNodes::Contains(const UEdGraphNode& Node) const
{
	const FIntPoint* const Place = Places.Find(Node.NodeGuid);
	return Place && *Place == GetPlace(Node);
}

TArray<UEdGraphNode*> FVexelPlacedNodes::WithLinked(const TArray<UEdGraphNode*>& Nodes) const
{
	TArray<UEdGraphNode*> All = Nodes;
	TSet<const UEdGraphNode*> Known;
	for (const UEdGraphNode* const Node : Nodes)
	{
		Known.Add(Node);
	}
	for (int32 Next = 0; Next < All.Num(); ++Next)
	{
		for (const UEdGraphPin* const Pin : All[Next]->Pins)
		{
			for (const UEdGraphPin* const Linked : Pin->LinkedTo)
			{
				UEdGraphNode* const Node = Linked->GetOwningNode();
				if (!Known.Contains(Node) && Contains(*Node))
				{
					Known.Add(Node);
					All.Add(Node);
				}
			}
		}
	}
	return All;
}
