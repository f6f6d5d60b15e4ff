#include "Blueprint/VexelBlueprintMapping.h"

#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"
#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/VexelBlueprintNodeType.h"
#include "Blueprint/VexelComponentEventType.h"
#include "Blueprint/VexelNamedNodeType.h"
#include "Blueprint/VexelNodeTypeIndex.h"
#include "Blueprint/VexelPropTypeCatalogue.h"
#include "Blueprint/VexelVariableNodeType.h"
#include "VexelLog.h"

#include "Async/Async.h"
#include "BlueprintActionDatabase.h"
#include "BlueprintActionFilter.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/World.h"
#include "Internationalization/Text.h"
#include "K2Node.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UnrealType.h"

namespace
{
/** What a node's ids begin with: its menu title, in the language of the source, without spaces. */
FString MakeBaseName(const UEdGraphNode& Node)
{
	FString Base = Node.GetNodeTitle(ENodeTitleType::MenuTitle).BuildSourceString();
	if (Base.IsEmpty())
	{
		Base = Node.GetName();
	}
	Base.RemoveSpacesInline();
	return Base;
}

/** Where an id of a node type is looked up. */
struct FNodeTypePlace
{
	const UBlueprint& Blueprint;
	/** Null for the Blueprint as a whole. */
	const UEdGraph* Graph;
};

UBlueprintNodeSpawner* FindSpawner(const TVexelNodeTypeId& Id, const FNodeTypePlace& Place)
{
	const auto Find = [&Id, &Place]() -> UBlueprintNodeSpawner*
	{
		if (UBlueprintNodeSpawner* const Variable = VexelVariableNodeType::MakeSpawner(Id, Place.Blueprint, Place.Graph))
		{
			return Variable;
		}
		if (UBlueprintNodeSpawner* const Event = VexelComponentEventType::MakeSpawner(Id, Place.Blueprint))
		{
			return Event;
		}
		// The database knows locals of other functions too.
		if (VexelVariableNodeType::IsLocal(Id))
		{
			return nullptr;
		}
		UBlueprintNodeSpawner* const Action = FVexelNodeTypeIndex::Get().Find(Id);
		return Action ? Action : VexelNamedNodeType::MakeSpawner(Id, Place.Blueprint, Place.Graph);
	};
	return IsInGameThread() ? Find() : Async(EAsyncExecution::TaskGraphMainThread, Find).Get();
}

TArray<FVexelBlueprintNodeType> ListNodeTypes(const FNodeTypePlace& Place, FVexelBlueprintMapping& Mapping)
{
	FBlueprintActionFilter Filter;
	Filter.Context.Blueprints.Add(const_cast<UBlueprint*>(&Place.Blueprint));
	if (Place.Graph)
	{
		Filter.Context.Graphs.Add(const_cast<UEdGraph*>(Place.Graph));
	}
	TArray<FVexelBlueprintNodeType> Types;
	for (const auto& [Key, Actions] : FBlueprintActionDatabase::Get().GetAllActions())
	{
		for (const UBlueprintNodeSpawner* const Spawner : Actions)
		{
			FBlueprintActionInfo Action(Key.ResolveObjectPtr(), Spawner);
			const UEdGraphNode* const Template = Filter.IsFiltered(Action) ? nullptr : Spawner->GetTemplateNode();
			if (Template && Template->IsA<UK2Node>())
			{
				Types.Emplace(*Template, Mapping);
			}
		}
	}
	return Types;
}

UBlueprint* GetLevelScript(UObject* Asset)
{
	const UWorld* const World = Cast<UWorld>(Asset);
	return World && World->PersistentLevel ? World->PersistentLevel->GetLevelScriptBlueprint() : nullptr;
}
}

TVexelBlueprintId FVexelBlueprintMapping::MakeBlueprintReference(const UBlueprint& Blueprint)
{
	return TVexelBlueprintId(Blueprint.GetPathName());
}

bool FVexelBlueprintMapping::ResolveBlueprint(const TVexelBlueprintId& Id, UBlueprint*& OutBlueprint)
{
	UObject* const Asset = UEditorAssetLibrary::LoadAsset(Id.ToString());
	UBlueprint* Blueprint = Cast<UBlueprint>(Asset);
	if (!Blueprint)
	{
		Blueprint = GetLevelScript(Asset ? Asset : StaticLoadObject(UWorld::StaticClass(), nullptr, *Id));
	}
	if (!Blueprint)
	{
		VEXEL_LOG(Warning, "Failed to resolve blueprint at path: %s", *Id);
		return false;
	}
	OutBlueprint = Blueprint;
	return true;
}

TVexelGraphId FVexelBlueprintMapping::MakeGraphReference(const UEdGraph& Graph)
{
	return TVexelGraphId(Graph.GetName());
}

bool FVexelBlueprintMapping::ResolveGraphInBlueprint(const TVexelGraphId& Id, const UBlueprint& Blueprint, UEdGraph*& OutGraph)
{
	// A longer text is no engine name, so no graph has it.
	if (Id.ToString().Len() >= NAME_SIZE)
	{
		return false;
	}
	const FName Name(*Id);
	for (const TArray<TObjectPtr<UEdGraph>>* const Graphs :
		{&Blueprint.UbergraphPages, &Blueprint.FunctionGraphs, &Blueprint.DelegateSignatureGraphs, &Blueprint.MacroGraphs})
	{
		for (UEdGraph* const Graph : *Graphs)
		{
			if (Graph && Graph->GetFName() == Name)
			{
				OutGraph = Graph;
				return true;
			}
		}
	}
	return false;
}

TVexelNodeId FVexelBlueprintMapping::MakeNodeReference(const UEdGraphNode& Node, bool bRegister)
{
	if (const FString* const Name = NodeNames.FindName(Node.NodeGuid))
	{
		return TVexelNodeId(*Name);
	}
	FString Candidate = NodeNames.MakeFreeName(MakeBaseName(Node));
	if (bRegister)
	{
		NodeNames.Add(Node.NodeGuid, Candidate);
	}
	return TVexelNodeId(MoveTemp(Candidate));
}

bool FVexelBlueprintMapping::ResolveNodeInGraph(const TVexelNodeId& Id, const UEdGraph& Graph, UEdGraphNode*& OutNode)
{
	// Nobody is given a name that is in the table, so what has it there is the only node to look for.
	if (const FGuid* const NodeGuid = NodeNames.FindGuid(Id.ToString()))
	{
		UEdGraphNode* const Named = FindNamedNode(*NodeGuid, Graph);
		OutNode = Named ? Named : OutNode;
		return Named != nullptr;
	}
	// A node without a name would be given the first free one of its title, so any other is nobody's.
	FString Base;
	if (!Id.ToString().Split(TEXT("_"), &Base, nullptr, ESearchCase::CaseSensitive, ESearchDir::FromEnd) ||
		NodeNames.MakeFreeName(Base) != Id.ToString())
	{
		return false;
	}
	for (UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node && !NodeNames.FindName(Node->NodeGuid) && MakeBaseName(*Node) == Base)
		{
			OutNode = Node;
			return true;
		}
	}
	return false;
}

UEdGraphNode* FVexelBlueprintMapping::FindNamedNode(const FGuid& NodeGuid, const UEdGraph& Graph)
{
	FFoundNode* const Last = FoundNodes.Find(NodeGuid);
	const bool bFirstTime = !Last;
	UEdGraphNode* const LastNode = Last ? Last->Node.Get() : nullptr;
	if (LastNode && LastNode->NodeGuid == NodeGuid)
	{
		// A node that was removed keeps its graph as its outer, so only the graph's own list tells.
		const bool bIsThere = Graph.Nodes.IsValidIndex(Last->Index) && Graph.Nodes[Last->Index] == LastNode;
		Last->Index = bIsThere ? Last->Index : Graph.Nodes.Find(LastNode);
		if (Last->Index != INDEX_NONE)
		{
			return LastNode;
		}
	}
	// The first walk finds the nodes that are asked for next, too; from the end, so that of several with one GUID the first stays.
	UEdGraphNode* Found = nullptr;
	for (int32 Index = Graph.Nodes.Num() - 1; Index >= 0; --Index)
	{
		UEdGraphNode* const Node = Graph.Nodes[Index];
		const bool bIsIt = Node && Node->NodeGuid == NodeGuid;
		if (bIsIt || (Node && bFirstTime))
		{
			FoundNodes.Add(Node->NodeGuid, {Node, Index});
		}
		Found = bIsIt ? Node : Found;
	}
	if (!Found)
	{
		FoundNodes.FindOrAdd(NodeGuid);
	}
	return Found;
}

TVexelPinId FVexelBlueprintMapping::MakePinReference(const UEdGraphPin& Pin)
{
	return TVexelPinId(Pin.PinName.ToString());
}

bool FVexelBlueprintMapping::ResolvePinInNode(const TVexelPinId& Id, const UEdGraphNode& Node, UEdGraphPin*& OutPin)
{
	for (UEdGraphPin* const Pin : Node.Pins)
	{
		if (Pin && MakePinReference(*Pin) == Id)
		{
			OutPin = Pin;
			return true;
		}
	}
	return false;
}

TVexelNodeTypeId FVexelBlueprintMapping::MakeNodeTypeReference(const UEdGraphNode& Node)
{
	return FVexelBlueprintNodeTypeIdBuilder::Create(&Node, *this);
}

bool FVexelBlueprintMapping::ResolveNodeTypeForGraph(const TVexelNodeTypeId& Id, const UEdGraph& Graph, UBlueprintNodeSpawner*& OutSpawner)
{
	const UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
	UBlueprintNodeSpawner* const Found = Blueprint ? FindSpawner(Id, {*Blueprint, &Graph}) : nullptr;
	OutSpawner = Found ? Found : OutSpawner;
	return Found != nullptr;
}

bool FVexelBlueprintMapping::ResolveNodeTypeForBlueprint(
	const TVexelNodeTypeId& Id, const UBlueprint& Blueprint, UBlueprintNodeSpawner*& OutSpawner)
{
	UBlueprintNodeSpawner* const Found = FindSpawner(Id, {Blueprint, nullptr});
	OutSpawner = Found ? Found : OutSpawner;
	return Found != nullptr;
}

TArray<FVexelBlueprintNodeType> FVexelBlueprintMapping::IterateNodeTypesForBlueprint(const UBlueprint& Blueprint)
{
	return ListNodeTypes({Blueprint, FBlueprintEditorUtils::FindEventGraph(&Blueprint)}, *this);
}

TArray<FVexelBlueprintNodeType> FVexelBlueprintMapping::IterateNodeTypesForGraph(const UEdGraph& Graph)
{
	const UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
	return Blueprint ? ListNodeTypes({*Blueprint, &Graph}, *this) : TArray<FVexelBlueprintNodeType>();
}

TVexelPropTypeId FVexelBlueprintMapping::MakePropTypeReference(const FEdGraphPinType& PinType, const FAssetData* SubCategoryAsset)
{
	return FVexelBlueprintPropTypeBuilder::MakeId(PinType, SubCategoryAsset);
}

bool FVexelBlueprintMapping::ResolvePropType(const TVexelPropTypeId& Id, FEdGraphPinType& OutPinType)
{
	TVexelExpected<FEdGraphPinType> PinType = FVexelBlueprintPropTypeBuilder::ParseId(Id, FVexelBlueprintPropTypeBuilder::ECaller::Mapping);
	if (PinType.HasError())
	{
		return false;
	}
	OutPinType = MoveTemp(PinType).GetValue();
	return true;
}

TArray<TSharedRef<FVexelBlueprintPropType>> FVexelBlueprintMapping::IteratePropTypes()
{
	return VexelPropTypeCatalogue::List();
}

FGuid FVexelBlueprintMapping::MakePropGuid(const FProperty* Property)
{
	if (!Property)
	{
		VEXEL_LOG(Warning, "Property is null! Cannot create property GUID.");
		return FGuid();
	}
	return MakePropGuidDirect(Property->GetOwnerUObject(), TVexelPropId(Property->GetName()));
}

FGuid FVexelBlueprintMapping::MakePropGuid(const UObject* OwnerObject, const FBPVariableDescription& Variable)
{
	return MakePropGuidDirect(OwnerObject, TVexelPropId(Variable.VarName.ToString()));
}

FGuid FVexelBlueprintMapping::MakePropGuidDirect(const UObject* OwnerObject, const TVexelPropId& PropId)
{
	if (!OwnerObject)
	{
		VEXEL_LOG(Warning, "OwnerObject is null! Cannot create property GUID.");
		return FGuid();
	}
	FGuid& Guid = PropGuids.FindOrAdd(FString::Printf(TEXT("%s.%s"), *OwnerObject->GetPathName(), *PropId));
	if (!Guid.IsValid())
	{
		Guid = FGuid::NewGuid();
	}
	return Guid;
}
