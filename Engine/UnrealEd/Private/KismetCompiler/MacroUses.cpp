#include "MacroUses.h"

#include "EdGraph/EdGraph.h"
#include "K2Node_BaseAsyncTask.h"
#include "K2Node_CallFunction.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Timeline.h"

namespace
{
/** The graph that stands for the node in a compile: of a macro, or collapsed in it. */
const UEdGraph* GetExpansion(const UEdGraphNode& Node)
{
	const UK2Node_Tunnel* const Tunnel = Cast<UK2Node_Tunnel>(&Node);
	return Tunnel ? Tunnel->GetExpansion() : nullptr;
}

bool IsLatentItself(const UEdGraphNode& Node)
{
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(&Node);
	return (Call && Call->IsLatentFunction()) || Node.IsA<UK2Node_Timeline>() || Node.IsA<UK2Node_BaseAsyncTask>();
}

/** Visits every node that the graph's expansion has, each graph once, until one is what was looked for. */
bool AnyNode(const UEdGraph& Graph, TFunctionRef<bool(const UEdGraphNode&)> IsWanted)
{
	TArray<const UEdGraph*> Graphs = {&Graph};
	TSet<const UEdGraph*> Seen = {&Graph};
	while (!Graphs.IsEmpty())
	{
		const UEdGraph* const Current = Graphs.Pop();
		for (const UEdGraphNode* const Node : Current->Nodes)
		{
			if (!Node || !Node->IsNodeEnabled())
			{
				continue;
			}
			if (IsWanted(*Node))
			{
				return true;
			}
			const UEdGraph* const Expansion = GetExpansion(*Node);
			if (Expansion && !Seen.Contains(Expansion))
			{
				Seen.Add(Expansion);
				Graphs.Push(Expansion);
			}
		}
	}
	return false;
}
}

bool MacroUses::IsLatent(const UK2Node& Node)
{
	const UK2Node_MacroInstance* const Instance = Cast<UK2Node_MacroInstance>(&Node);
	const UEdGraph* const Macro = Instance ? Instance->GetMacroGraph() : nullptr;
	return IsLatentItself(Node) || (Macro && AnyNode(*Macro, IsLatentItself));
}

bool MacroUses::UsesItself(const UEdGraph& Macro)
{
	return AnyNode(Macro, [&Macro](const UEdGraphNode& Node)
		{ return GetExpansion(Node) == &Macro; });
}
