#include "Blueprint/VexelBlueprintReader.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "VexelErrorKinds.h"
#include "VexelLog.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphUtilities.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Modules/ModuleManager.h"
#include "UObject/UnrealType.h"

namespace
{
const TCHAR* const GlobalScope = TEXT("Global");
const TCHAR* const LocalScope = TEXT("Local");

FVexelVariableData Describe(const FBPVariableDescription& Variable)
{
	FVexelVariableData Data;
	Data.Name = Variable.VarName.ToString();
	Data.Type = FVexelBlueprintPropTypeBuilder::MakeId(Variable.VarType);
	Data.Value = Variable.DefaultValue;
	return Data;
}
}

bool FVexelBlueprintReader::TryLoadBlueprint(const FString& Path)
{
	const IAssetRegistry& Registry = FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get();
	const FAssetData Asset = Registry.GetAssetByObjectPath(FSoftObjectPath(Path));
	if (!Asset.IsValid())
	{
		VEXEL_LOG(Warning, "Invalid asset data for blueprint at path: %s", *Path);
		return false;
	}
	return TryLoadBlueprint(Cast<UBlueprint>(Asset.GetAsset()));
}

bool FVexelBlueprintReader::TryLoadBlueprint(const UBlueprint* InBlueprint)
{
	if (!InBlueprint)
	{
		return false;
	}
	// To read a Blueprint may load what it refers to, but leaves it as it is.
	Blueprint = const_cast<UBlueprint*>(InBlueprint);
	TryLoadGraphs();
	return true;
}

void FVexelBlueprintReader::TryLoadGraphs()
{
	TArray<UEdGraph*> AllGraphs;
	Blueprint->GetAllGraphs(AllGraphs);
	Graphs.Reset();
	for (const UEdGraph* const Graph : AllGraphs)
	{
		Graphs.Emplace(Graph);
	}
}

FString FVexelBlueprintReader::GetBlueprintCode()
{
	if (!Blueprint.IsValid())
	{
		VEXEL_LOG(Warning, "GetBlueprintCode: Invalid Blueprint");
		return FString();
	}
	FBlueprintEditorUtils::PreloadMembers(Blueprint.Get());
	FString Code;
	for (const FVexelSerializedGraph& Graph : Graphs)
	{
		TSet<UObject*> Nodes;
		for (UEdGraphNode* const Node : Graph.GetNodes())
		{
			Nodes.Add(Node);
		}
		FString NodeText;
		FEdGraphUtilities::ExportNodesToText(MoveTemp(Nodes), NodeText);
		Code += FString::Printf(TEXT("SOURCE_GRAPH=%s,GRAPH_TYPE=%d\n"), *Graph.GetName(), static_cast<int32>(Graph.GetType()));
		Code += NodeText;
		Code += TEXT("\n");
	}
	return Code;
}

TVexelExpected<TArray<FVexelVariableData>> FVexelBlueprintReader::GetBlueprintVariableData() const
{
	const auto Fail = [](const TCHAR* Text)
	{ return FVexelError(VEXEL_HERE, FString(), FString(Text)); };
	if (!Blueprint.IsValid())
	{
		VEXEL_LOG(Warning, "GetBlueprintVariables: Invalid Blueprint");
		return Fail(TEXT("Invalid Blueprint"));
	}
	const UClass* const Class = Blueprint->GeneratedClass;
	if (!Class)
	{
		return Fail(TEXT("Generated class not found"));
	}
	const UObject* const DefaultObject = Class->GetDefaultObject(false);
	if (!DefaultObject)
	{
		return Fail(TEXT("Unable to get CDO"));
	}
	TArray<FVexelVariableData> Variables;
	for (const FBPVariableDescription& Variable : Blueprint->NewVariables)
	{
		const FProperty* const Property = Class->FindPropertyByName(Variable.VarName);
		if (!Property)
		{
			return Fail(TEXT("Property not found"));
		}
		FVexelVariableData& Data = Variables.Add_GetRef(Describe(Variable));
		Data.Scope = GlobalScope;
		Data.Value.Reset();
		Property->ExportTextItem_InContainer(Data.Value, DefaultObject, nullptr, nullptr, PPF_None);
	}
	Variables.Append(GetLocalVariableDatas());
	return Variables;
}

TArray<FVexelVariableData> FVexelBlueprintReader::GetLocalVariableDatas() const
{
	TArray<FVexelVariableData> Variables;
	for (const UEdGraph* const Graph : Blueprint->FunctionGraphs)
	{
		TArray<UK2Node_FunctionEntry*> Entries;
		if (Graph)
		{
			Graph->GetNodesOfClass(Entries);
		}
		for (const UK2Node_FunctionEntry* const Entry : Entries)
		{
			for (const FBPVariableDescription& Variable : Entry->LocalVariables)
			{
				FVexelVariableData& Data = Variables.Add_GetRef(Describe(Variable));
				Data.Scope = LocalScope;
				Data.Function = Graph->GetName();
			}
		}
	}
	return Variables;
}
