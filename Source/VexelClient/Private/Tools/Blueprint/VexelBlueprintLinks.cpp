#include "Tools/Blueprint/VexelBlueprintLinks.h"

#include "Blueprint/VexelBlueprintMapping.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
constexpr int32 MaxDescribed = 50;

/** Whether the one's values can go into the other. */
bool Fits(const UEdGraphPin& Output, const UEdGraphPin& Input)
{
	const UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForNode(Output.GetOwningNode());
	const UEdGraphSchema_K2* const Schema = Cast<UEdGraphSchema_K2>(Output.GetSchema());
	const UClass* const Class = Blueprint && Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : nullptr;
	return !Schema || Schema->ArePinsCompatible(&Output, &Input, Class);
}

/** Whether the values get there by way of one node, as an edit puts it into a link that needs a conversion. */
bool IsConverted(const UEdGraphPin& Output, const UEdGraphPin& Input)
{
	return Output.LinkedTo.ContainsByPredicate([&Input](const UEdGraphPin* Next)
		{ return Input.LinkedTo.ContainsByPredicate([Next](const UEdGraphPin* Last)
			  { return Last->GetOwningNode() == Next->GetOwningNode(); }); });
}
}

FVexelBlueprintLinks::FVexelBlueprintLinks(UBlueprint& Blueprint, FVexelBlueprintMapping& Mapping)
{
	TArray<UBlueprint*> Blueprints = {&Blueprint};
	FBlueprintEditorUtils::GetDependentBlueprints(&Blueprint, Blueprints);
	for (const UBlueprint* const User : Blueprints)
	{
		TArray<UEdGraph*> AllGraphs;
		User->GetAllGraphs(AllGraphs);
		for (UEdGraph* const Graph : AllGraphs)
		{
			if (Graph)
			{
				Add(*Graph, User == &Blueprint ? FString() : User->GetName(), Mapping);
			}
		}
	}
}

void FVexelBlueprintLinks::Add(UEdGraph& Graph, const FString& BlueprintName, FVexelBlueprintMapping& Mapping)
{
	const int32 GraphIndex = Graphs.Add({&Graph, Graph.GetName(), BlueprintName});
	TMap<const UEdGraphNode*, int32> Indices;
	for (UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node)
		{
			Indices.Add(Node, Nodes.Add({Node, Mapping.MakeNodeReference(*Node, true).ToString(), GraphIndex}));
		}
	}
	for (const TPair<const UEdGraphNode*, int32>& Node : Indices)
	{
		for (const UEdGraphPin* const Pin : Node.Key->Pins)
		{
			if (!Pin || Pin->Direction != EGPD_Output || Pin->bOrphanedPin)
			{
				continue;
			}
			for (const UEdGraphPin* const Other : Pin->LinkedTo)
			{
				const int32* const OtherNode = Other && !Other->bOrphanedPin ? Indices.Find(Other->GetOwningNode()) : nullptr;
				if (OtherNode)
				{
					Links.Add({{Node.Value, Pin->PinId, Pin->PinName}, {*OtherNode, Other->PinId, Other->PinName}, Fits(*Pin, *Other)});
				}
			}
		}
	}
}

const UEdGraphPin* FVexelBlueprintLinks::FindPin(const FEnd& End, const TSet<const UEdGraphNode*>& StandingNodes) const
{
	const UEdGraphNode* const Node = Nodes[End.Node].Node.Get();
	const UEdGraphPin* const Pin = Node && StandingNodes.Contains(Node) ? Node->FindPinById(End.PinId) : nullptr;
	return Pin && !Pin->bOrphanedPin ? Pin : nullptr;
}

TArray<FString> FVexelBlueprintLinks::DescribeLost() const
{
	TSet<const UEdGraphNode*> StandingNodes;
	for (const FGraph& Graph : Graphs)
	{
		for (int32 Index = 0; Graph.Graph.IsValid() && Index < Graph.Graph->Nodes.Num(); ++Index)
		{
			StandingNodes.Add(Graph.Graph->Nodes[Index]);
		}
	}
	TArray<FString> Texts;
	int32 NumLost = 0;
	for (const FLink& Link : Links)
	{
		const TCHAR* const Fault = FindFault(Link, StandingNodes);
		if (*Fault && ++NumLost <= MaxDescribed)
		{
			Texts.Add(Describe(Link, Fault));
		}
	}
	if (NumLost > MaxDescribed)
	{
		Texts.Add(FString::Printf(TEXT("%d more links are lost or do not fit any more"), NumLost - MaxDescribed));
	}
	return Texts;
}

const TCHAR* FVexelBlueprintLinks::FindFault(const FLink& Link, const TSet<const UEdGraphNode*>& StandingNodes) const
{
	const UEdGraphPin* const From = FindPin(Link.From, StandingNodes);
	const UEdGraphPin* const To = FindPin(Link.To, StandingNodes);
	if (!From || !To)
	{
		return TEXT("is lost");
	}
	if (!From->LinkedTo.Contains(To))
	{
		return IsConverted(*From, *To) ? TEXT("") : TEXT("is lost");
	}
	return Link.bFits && !Fits(*From, *To) ? TEXT("does not fit any more") : TEXT("");
}

FString FVexelBlueprintLinks::Describe(const FLink& Link, const TCHAR* Fault) const
{
	const FNode& From = Nodes[Link.From.Node];
	const FNode& To = Nodes[Link.To.Node];
	const FGraph& Graph = Graphs[From.Graph];
	const FString Place = Graph.BlueprintName.IsEmpty() ? FString() : FString::Printf(TEXT(" of '%s'"), *Graph.BlueprintName);
	return FString::Printf(TEXT("The link from '%s'.'%s' to '%s'.'%s' in graph '%s'%s %s"), *From.Id, *Link.From.PinName.ToString(), *To.Id,
		*Link.To.PinName.ToString(), *Graph.Name, *Place, Fault);
}
