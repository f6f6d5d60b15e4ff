#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphSchema.h"
#include "Engine/Blueprint.h"
#include "Templates/SubclassOf.h"
#include "UObject/UnrealType.h"

class UEdGraph;
class UEdGraphNode;
class UEdGraphSchema;
class UK2Node;

/** What is done with a graph besides removing it. */
namespace EGraphRemoveFlags
{
enum Type
{
	None = 0x00000000,
	Recompile = 0x00000001,
	MarkTransient = 0x00000002,
	Default = Recompile | MarkTransient
};
}

/** Edits of Blueprints as the Blueprint editor makes them. Every change is transactional; none opens a transaction of its own. */
class UNREALED_API FBlueprintEditorUtils
{
public:
	// Finding

	static UBlueprint* FindBlueprintForGraph(const UEdGraph* Graph);
	static UBlueprint* FindBlueprintForGraphChecked(const UEdGraph* Graph);
	static UBlueprint* FindBlueprintForNode(const UEdGraphNode* Node);
	static UBlueprint* FindBlueprintForNodeChecked(const UEdGraphNode* Node);
	static void GetAllGraphs(const UBlueprint* Blueprint, TArray<UEdGraph*>& Graphs);
	template <class T>
	static void GetAllNodesOfClass(const UBlueprint* Blueprint, TArray<T*>& OutNodes)
	{
		TArray<UEdGraph*> Graphs;
		Blueprint->GetAllGraphs(Graphs);
		for (const UEdGraph* const Graph : Graphs)
		{
			Graph->GetNodesOfClass<T>(OutNodes);
		}
	}
	/** The event graph that new events go to: the one named EventGraph, else the first. Null without one. */
	static UEdGraph* FindEventGraph(const UBlueprint* Blueprint);
	static UEdGraph* FindUserConstructionScript(const UBlueprint* Blueprint);
	static EGraphType GetGraphType(const UEdGraph* InGraph);
	/** The outermost graph that the graph is collapsed into. */
	static UEdGraph* GetTopLevelGraph(const UEdGraph* InGraph);
	static bool IsGraphReadOnly(UEdGraph* InGraph);
	static bool IsDelegateSignatureGraph(const UEdGraph* Graph);
	static bool IsInterfaceGraph(const UEdGraph* Graph, const UBlueprint* Blueprint);
	static bool IsInterfaceBlueprint(const UBlueprint* Blueprint) { return Blueprint->BlueprintType == BPTYPE_Interface; }
	static bool IsActorBased(const UBlueprint* Blueprint);
	static bool DoesSupportEventGraphs(const UBlueprint* Blueprint) { return Blueprint->SupportsEventGraphs(); }
	static bool IsLevelScriptBlueprint(const UBlueprint* Blueprint) { return Blueprint->BlueprintType == BPTYPE_LevelScript; }
	static UClass* GetMostUpToDateClass(UClass* FromClass);

	// Graphs

	/** Makes a graph of the classes; it stands in none of the Blueprint's lists yet. A name in use is replaced by a new one. */
	static UEdGraph* CreateNewGraph(UObject* ParentScope, const FName& GraphName, TSubclassOf<UEdGraph> GraphClass, TSubclassOf<UEdGraphSchema> SchemaClass);
	static void AddUbergraphPage(UBlueprint* Blueprint, UEdGraph* Graph);
	static void AddMacroGraph(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UClass* SignatureFromClass);
	/** SignatureFromObject is a UClass (whose function of the graph's name gives the signature), a UFunction, or null. */
	template <typename SignatureType>
	static void AddFunctionGraph(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, SignatureType* SignatureFromObject)
	{
		AddFunctionGraphFromSignature(Blueprint, Graph, bIsUserCreated, FindSignature(Graph, SignatureFromObject), IsClass(SignatureFromObject));
	}
	static void RemoveGraph(UBlueprint* Blueprint, UEdGraph* GraphToRemove, EGraphRemoveFlags::Type Flags = EGraphRemoveFlags::Default);
	static void RemoveNode(UBlueprint* Blueprint, UEdGraphNode* Node, bool bDontRecompile = false);
	/** False when the name is taken or is no name; the graph keeps its own then. */
	static bool RenameGraph(UEdGraph* Graph, const FString& NewNameStr);
	static bool RenameGraphWithSuggestion(UEdGraph* Graph, const TArray<FString>& NameCandidates, const FString& DesiredName);
	static bool IsGraphNameUnique(const UBlueprint* Blueprint, const FName& InName);
	static FName GenerateUniqueGraphName(const UBlueprint* Blueprint, const FString& ProposedName);

	// Variables

	/** False when the name is taken by a member of the Blueprint or of a parent. */
	static bool AddMemberVariable(UBlueprint* Blueprint, const FName& NewVarName, const FEdGraphPinType& NewVarType, const FString& DefaultValue = FString());
	static void RemoveMemberVariable(UBlueprint* Blueprint, const FName VarName);
	/** Nodes follow by the variable's id. */
	static void RenameMemberVariable(UBlueprint* Blueprint, const FName OldName, const FName NewName);
	static void ChangeMemberVariableType(UBlueprint* Blueprint, const FName VariableName, const FEdGraphPinType& NewPinType);
	static int32 FindNewVariableIndex(const UBlueprint* Blueprint, const FName& InName);
	static FGuid FindMemberVariableGuidByName(UBlueprint* InBlueprint, const FName InVariableName);
	static FName FindMemberVariableNameByGuid(UBlueprint* InBlueprint, const FGuid& InVariableGuid);
	/** A pointer into the Blueprint's variable; null when there is none. */
	static uint64* GetBlueprintVariablePropertyFlags(UBlueprint* Blueprint, const FName& VarName);
	static void SetBlueprintVariableMetaData(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, const FString& MetaDataValue);
	static bool GetBlueprintVariableMetaData(const UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, FString& OutMetaDataValue);
	static void RemoveBlueprintVariableMetaData(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey);
	static void SetBlueprintVariableCategory(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FText& NewCategory, bool bDontRecompile = false);
	/** Every name of a property of the Blueprint's class, parents included, and of its timelines and components. */
	static void GetClassVariableList(const UBlueprint* Blueprint, TSet<FName>& VisibleVariables, bool bIncludePrivateVars = false);
	static TArray<FName> GetBlueprintVariablesNamesList(const UBlueprint* Blueprint);
	static FName FindUniqueKismetName(const UBlueprint* InBlueprint, const FString& InBaseName, UStruct* InScope = nullptr);

	// State

	static void MarkBlueprintAsModified(UBlueprint* Blueprint, FPropertyChangedEvent PropertyChangedEvent = FPropertyChangedEvent(nullptr));
	/** As MarkBlueprintAsModified, and builds the skeleton class again: members were added, removed, renamed or retyped. */
	static void MarkBlueprintAsStructurallyModified(UBlueprint* Blueprint);
	static void RefreshAllNodes(UBlueprint* Blueprint);
	static void ReconstructAllNodes(UBlueprint* Blueprint);
	static void PreloadMembers(UObject* InObject);
	static void PreloadBlueprintSpecificData(UBlueprint* Blueprint);
	static bool IsBlueprintFreshlyLoaded(const UBlueprint* Blueprint) { return Blueprint->Status == BS_Unknown; }

	// Interfaces

	static bool ImplementNewInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName);
	static void FindImplementedInterfaces(const UBlueprint* Blueprint, bool bGetAllInterfaces, TArray<UClass*>& ImplementedInterfaces);

private:
	static void AddFunctionGraphFromSignature(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UFunction* Signature, bool bIsOverride);
	static UFunction* FindSignature(const UEdGraph* Graph, UClass* Class);
	static UFunction* FindSignature(const UEdGraph* Graph, UFunction* Function) { return Function; }
	static constexpr bool IsClass(const UClass* Class) { return Class != nullptr; }
	static constexpr bool IsClass(const UFunction* Function) { return false; }
};
