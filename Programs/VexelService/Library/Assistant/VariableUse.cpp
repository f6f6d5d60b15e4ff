#include "Assistant/VariableUse.h"

#include "Assistant/GraphWalker.h"
#include "Assistant/NameMatch.h"
#include "Assistant/Words.h"

#include <set>

namespace VexelService
{

namespace
{

bool TouchesVariable(const FBlueprintNode& Node, std::string_view Variable, const char* Verb)
{
	const bool bVerb = IsNodeType(Node, std::string("var.") + Verb) || IsNodeType(Node, std::string("var.local.") + Verb);
	return bVerb && SameName(LastSegment(Node.Type, '.'), Variable);
}

bool CallsFunction(const FBlueprintNode& Node, std::string_view Function)
{
	return IsNodeType(Node, "call") && SameName(LastSegment(Node.Type, '.'), Function);
}

bool RunsByItself(const FBlueprintNode& Node)
{
	return Node.HasExecPin(true) || Node.HasExecPin(false);
}

// Whether a data input of a node gets its value, through any number of pure nodes, from a read of the variable or a call of the function.
bool Reads(const FBlueprintGraph& Graph, const FBlueprintNode& Node, std::string_view Name)
{
	std::set<const FBlueprintNode*> Seen = {&Node};
	std::vector<const FBlueprintNode*> Waiting = {&Node};
	while (!Waiting.empty())
	{
		const FBlueprintNode* const Current = Waiting.back();
		Waiting.pop_back();
		for (const FBlueprintPin& Pin : Current->Pins)
		{
			if (!Pin.bInput || Pin.IsExec())
			{
				continue;
			}
			for (const FPinLink& Link : Pin.Links)
			{
				const FBlueprintNode* const Source = Graph.FindNode(Link.Node);
				if (!Source || RunsByItself(*Source) || !Seen.insert(Source).second)
				{
					continue;
				}
				if (CallsFunction(*Source, Name) || TouchesVariable(*Source, Name, "get"))
				{
					return true;
				}
				Waiting.push_back(Source);
			}
		}
	}
	return false;
}

}

std::vector<FVariableUse> FindVariableUses(const FBlueprintModel& Model, std::string_view Name)
{
	std::vector<FVariableUse> Uses;
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		FGraphWalker Walker(Model, Graph);
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			if (!RunsByItself(Node))
			{
				continue;
			}
			const bool bSets = TouchesVariable(Node, Name, "set");
			const bool bCalls = CallsFunction(Node, Name);
			if (bSets || bCalls || Reads(Graph, Node, Name))
			{
				const EUseKind Kind = bSets ? EUseKind::Set : bCalls ? EUseKind::Call
																	 : EUseKind::Read;
				Uses.push_back({&Graph, Kind, Walker.Tell(Node)});
			}
		}
	}
	return Uses;
}

}
