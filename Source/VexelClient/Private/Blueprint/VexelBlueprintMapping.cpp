#include "Blueprint/VexelBlueprintMapping.h"

#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"
#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "VexelLog.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/World.h"
#include "Internationalization/Text.h"
#include "UObject/UnrealType.h"

namespace
{
const TCHAR* const NodeNamesKey = TEXT("node_agent_names");

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

UBlueprint* GetLevelScript(UObject* Asset)
{
	const UWorld* const World = Cast<UWorld>(Asset);
	return World && World->PersistentLevel ? World->PersistentLevel->GetLevelScriptBlueprint() : nullptr;
}
}

TSharedRef<FJsonObject> FVexelBlueprintMapping::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetObjectField(NodeNamesKey, NodeNames.ToJson());
	return Object;
}

void FVexelBlueprintMapping::FromJson(const TSharedRef<FJsonObject>& Object)
{
	const TSharedPtr<FJsonObject>* Names = nullptr;
	if (Object->TryGetObjectField(NodeNamesKey, Names) && Names->IsValid())
	{
		NodeNames.FromJson(Names->ToSharedRef());
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
	const FString Base = MakeBaseName(Node);
	int32 Number = 0;
	FString Candidate = FString::Printf(TEXT("%s_%d"), *Base, Number);
	while (NodeNames.HasName(Candidate))
	{
		Candidate = FString::Printf(TEXT("%s_%d"), *Base, ++Number);
	}
	if (bRegister)
	{
		NodeNames.Add(Node.NodeGuid, Candidate);
	}
	return TVexelNodeId(MoveTemp(Candidate));
}

bool FVexelBlueprintMapping::ResolveNodeInGraph(const TVexelNodeId& Id, const UEdGraph& Graph, UEdGraphNode*& OutNode)
{
	for (UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node && MakeNodeReference(*Node, false) == Id)
		{
			OutNode = Node;
			return true;
		}
	}
	return false;
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
