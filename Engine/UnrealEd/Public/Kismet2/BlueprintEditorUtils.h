#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphSchema.h"
#include "Engine/Blueprint.h"
#include "Templates/SubclassOf.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

class UEdGraph;
class UEdGraphNode;
class UEdGraphSchema;
class UK2Node;
class UK2Node_EditablePinBase;
class UK2Node_Event;
class UK2Node_FunctionEntry;
class UK2Node_FunctionResult;
class UTimelineTemplate;
class USCS_Node;

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
	static UEdGraphNode* GetNodeByGUID(const UBlueprint* Blueprint, const FGuid& NodeGuid);
	/** The node where the graph starts: a function's entry or a macro's tunnel. Null without one. */
	static UK2Node_EditablePinBase* GetEntryNode(const UEdGraph* InGraph);
	static void GetEntryAndResultNodes(const UEdGraph* InGraph, TWeakObjectPtr<UK2Node_EditablePinBase>& OutEntryNode,
		TWeakObjectPtr<UK2Node_EditablePinBase>& OutResultNode);
	/** The result node of the entry's function, made and linked to the entry when there is none; null in a graph that is no function. */
	static UK2Node_FunctionResult* FindOrCreateFunctionResultNode(UK2Node_EditablePinBase* InFunctionEntryNode);
	/** The event that overrides the function of the class. */
	static UK2Node_Event* FindOverrideForFunction(const UBlueprint* Blueprint, const UClass* SignatureClass, FName SignatureName);
	static UK2Node_Event* FindCustomEventNode(const UBlueprint* Blueprint, FName const CustomName);
	/** Other loaded Blueprints whose classes derive from this one's or whose nodes or variables use it. */
	static void GetDependentBlueprints(UBlueprint* Blueprint, TArray<UBlueprint*>& DependentBlueprints);

	// Graphs

	/** Makes a graph of the classes; it stands in none of the Blueprint's lists yet. A name in use is replaced by a new one. */
	static UEdGraph* CreateNewGraph(
		UObject* ParentScope, const FName& GraphName, TSubclassOf<UEdGraph> GraphClass, TSubclassOf<UEdGraphSchema> SchemaClass);
	static void AddUbergraphPage(UBlueprint* Blueprint, UEdGraph* Graph);
	static void AddMacroGraph(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UClass* SignatureFromClass);
	/** SignatureFromObject is a UClass (whose function of the graph's name gives the signature), a UFunction, or null. */
	template <typename SignatureType>
	static void AddFunctionGraph(UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, SignatureType* SignatureFromObject)
	{
		AddFunctionGraphFromSignature(
			Blueprint, Graph, bIsUserCreated, FindSignature(Graph, SignatureFromObject), IsClass(SignatureFromObject));
	}
	static void RemoveGraph(UBlueprint* Blueprint, UEdGraph* GraphToRemove, EGraphRemoveFlags::Type Flags = EGraphRemoveFlags::Default);
	static void RemoveGraphs(UBlueprint* Blueprint, const TArray<UEdGraph*>& GraphsToRemove);
	static void RemoveNode(UBlueprint* Blueprint, UEdGraphNode* Node, bool bDontRecompile = false);
	/**
	 * Renames the graph and, where it is a function or a dispatcher's signature, its uses in all loaded Blueprints. False when
	 * the name is taken or is no name; the graph keeps its own then.
	 */
	static bool RenameGraph(UEdGraph* Graph, const FString& NewNameStr);
	static bool RenameGraphWithSuggestion(UEdGraph* Graph, const TArray<FString>& NameCandidates, const FString& DesiredName);
	static bool IsGraphNameUnique(const UBlueprint* Blueprint, const FName& InName);
	static FName GenerateUniqueGraphName(const UBlueprint* Blueprint, const FString& ProposedName);

	// Variables

	/** False when the name is taken by a member of the Blueprint or of a parent. */
	static bool AddMemberVariable(
		UBlueprint* Blueprint, const FName& NewVarName, const FEdGraphPinType& NewVarType, const FString& DefaultValue = FString());
	/** Removes the variable, the nodes of the Blueprint that use it and, of a dispatcher, its signature. */
	static void RemoveMemberVariable(UBlueprint* Blueprint, const FName VarName);
	static void BulkRemoveMemberVariables(UBlueprint* Blueprint, const TArray<FName>& VarNames);
	/**
	 * Renames the variable with its uses in all loaded Blueprints and, of a dispatcher, its signature. Nothing happens when the name is
	 * taken.
	 */
	static void RenameMemberVariable(UBlueprint* Blueprint, const FName OldName, const FName NewName);
	/** A copy of the variable with an id and a unique name of its own; its name, or None. InScope is null or a function. */
	static FName DuplicateVariable(UBlueprint* InBlueprint, const UStruct* InScope, FName InVariableToDuplicate);
	/** Puts the one before the other in the user's order. False when either is not there. */
	static bool MoveVariableBeforeVariable(
		UBlueprint* Blueprint, UStruct* VariableScope, FName VarNameToMove, FName TargetVarName, bool bDontRecompile);
	/** Removes the Blueprint's nodes that use the variable: those of LocalGraphScope's local variable when that is given. */
	static void RemoveVariableNodes(
		UBlueprint* Blueprint, const FName& VarName, bool const bForSelfOnly = true, UEdGraph* LocalGraphScope = nullptr);
	static void ReplaceVariableReferences(UBlueprint* Blueprint, const FName OldName, const FName NewName);
	static void ReplaceFunctionReferences(UBlueprint* Blueprint, const FName OldName, const FName NewName);
	/** Whether a node of the Blueprint, or of LocalGraphScope alone, uses the variable. */
	static bool IsVariableUsed(const UBlueprint* Blueprint, const FName& VariableName, const UEdGraph* LocalGraphScope = nullptr);
	static void GetUsedAndUnusedVariables(
		UBlueprint* Blueprint, TArray<FProperty*>& OutUsedVariables, TArray<FProperty*>& OutUnusedVariables);
	/** The new type's nodes follow in all loaded Blueprints. */
	static void ChangeMemberVariableType(UBlueprint* Blueprint, const FName VariableName, const FEdGraphPinType& NewPinType);
	static int32 FindNewVariableIndex(const UBlueprint* Blueprint, const FName& InName);
	static FGuid FindMemberVariableGuidByName(UBlueprint* InBlueprint, const FName InVariableName);
	static FName FindMemberVariableNameByGuid(UBlueprint* InBlueprint, const FGuid& InVariableGuid);
	/** A pointer into the Blueprint's variable; null when there is none. */
	static uint64* GetBlueprintVariablePropertyFlags(UBlueprint* Blueprint, const FName& VarName);
	static void SetBlueprintVariableMetaData(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope,
		const FName& MetaDataKey, const FString& MetaDataValue);
	static bool GetBlueprintVariableMetaData(const UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope,
		const FName& MetaDataKey, FString& OutMetaDataValue);
	static void RemoveBlueprintVariableMetaData(
		UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey);
	static FText GetBlueprintVariableCategory(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope);
	/** Makes the variable replicated with notification; None takes the notification off and leaves the replication. */
	static void SetBlueprintVariableRepNotifyFunc(UBlueprint* Blueprint, const FName& VarName, const FName& RepNotifyFunc);
	static FName GetBlueprintVariableRepNotifyFunc(UBlueprint* Blueprint, const FName& VarName);
	static void SetBlueprintOnlyEditableFlag(UBlueprint* Blueprint, const FName& VarName, const bool bNewBlueprintOnly);
	static void SetBlueprintPropertyReadOnlyFlag(UBlueprint* Blueprint, const FName& VarName, const bool bVariableReadOnly);
	static void SetInterpFlag(UBlueprint* Blueprint, const FName& VarName, const bool bInterp);
	static void SetVariableTransientFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsTransient);
	static void SetVariableSaveGameFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsSaveGame);
	static void SetVariableAdvancedDisplayFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsAdvancedDisplay);
	static void SetVariableDeprecatedFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsDeprecated);
	static void SetBlueprintVariableCategory(
		UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FText& NewCategory, bool bDontRecompile = false);
	/** Every name of a property of the Blueprint's class, parents included, and of its timelines and components. */
	static void GetClassVariableList(const UBlueprint* Blueprint, TSet<FName>& VisibleVariables, bool bIncludePrivateVars = false);
	static TArray<FName> GetBlueprintVariablesNamesList(const UBlueprint* Blueprint);
	static FName FindUniqueKismetName(const UBlueprint* InBlueprint, const FString& InBaseName, UStruct* InScope = nullptr);

	static FName FindUniqueVariableName(const UBlueprint* InBlueprint, const FString& InBaseName)
	{
		return FindUniqueKismetName(InBlueprint, InBaseName);
	}
	static FName FindUniqueTimelineName(const UBlueprint* Blueprint);
	static FName FindUniqueCustomEventName(const UBlueprint* Blueprint);

	// Local variables

	/** Functions and the graphs that are collapsed into them. */
	static bool DoesSupportLocalVariables(const UEdGraph* InGraph);
	/** False when the name is taken in the function. */
	static bool AddLocalVariable(UBlueprint* Blueprint, UEdGraph* InTargetGraph, const FName InNewVarName,
		const FEdGraphPinType& InNewVarType, const FString& DefaultValue = FString());
	/** InScope is the function, as the Blueprint's skeleton or generated class has it. */
	static void RemoveLocalVariable(UBlueprint* InBlueprint, const UStruct* InScope, const FName InVarName);
	static void RenameLocalVariable(UBlueprint* InBlueprint, const UStruct* InScope, const FName InOldName, const FName InNewName);
	static void ChangeLocalVariableType(
		UBlueprint* InBlueprint, const UStruct* InScope, const FName InVariableName, const FEdGraphPinType& InNewPinType);
	/** Null when there is none. The entry node that holds it comes out with it. */
	static FBPVariableDescription* FindLocalVariable(
		UBlueprint* InBlueprint, const UStruct* InScope, const FName InVariableName, UK2Node_FunctionEntry** OutFunctionEntry = nullptr);
	static FBPVariableDescription* FindLocalVariable(const UBlueprint* InBlueprint, const UEdGraph* InScopeGraph,
		const FName InVariableName, UK2Node_FunctionEntry** OutFunctionEntry = nullptr);
	static FName FindLocalVariableNameByGuid(UBlueprint* InBlueprint, const FGuid& InVariableGuid);
	static FGuid FindLocalVariableGuidByName(UBlueprint* InBlueprint, const UStruct* InScope, const FName InVariableName);
	static UEdGraph* FindScopeGraph(const UBlueprint* InBlueprint, const UStruct* InScope);

	// Components and timelines

	/** The variable of a component; its uses follow in all loaded Blueprints. */
	static void RenameComponentMemberVariable(UBlueprint* Blueprint, USCS_Node* Node, const FName NewName);
	/** Null when the Blueprint can have no timeline or has one of the name. */
	static UTimelineTemplate* AddNewTimeline(UBlueprint* Blueprint, const FName& TimelineVarName);
	static void RemoveTimeline(UBlueprint* Blueprint, UTimelineTemplate* Timeline, bool bDontRecompile = false);
	/** False when the name is taken or no timeline has the old one. */
	static bool RenameTimeline(UBlueprint* Blueprint, const FName OldVarName, const FName NewVarName);
	static bool DoesSupportTimelines(const UBlueprint* Blueprint);
	static bool DoesSupportComponents(UBlueprint const* Blueprint);

	// State

	static void MarkBlueprintAsModified(UBlueprint* Blueprint, FPropertyChangedEvent PropertyChangedEvent = FPropertyChangedEvent(nullptr));
	/** As MarkBlueprintAsModified, and builds the skeleton class again: members were added, removed, renamed or retyped. */
	static void MarkBlueprintAsStructurallyModified(UBlueprint* Blueprint);
	static void RefreshAllNodes(UBlueprint* Blueprint);
	static void ReconstructAllNodes(UBlueprint* Blueprint);
	/**
	 * Gives a copy of a Blueprint, which names the classes of the original, classes, components and timelines of its own, and compiles
	 * it.
	 */
	static void PostDuplicateBlueprint(UBlueprint* Blueprint, bool bDuplicateForPIE);
	static void PreloadMembers(UObject* InObject);
	static void PreloadBlueprintSpecificData(UBlueprint* Blueprint);
	static bool IsBlueprintFreshlyLoaded(const UBlueprint* Blueprint) { return Blueprint->Status == BS_Unknown; }

	// Interfaces

	static bool ImplementNewInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName);
	/** Removes the interface with its functions, which become functions of the Blueprint's own with bPreserveFunctions, and its events. */
	static void RemoveInterface(UBlueprint* Blueprint, FTopLevelAssetPath InterfaceClassPathName, bool bPreserveFunctions = false);
	/** Gives the Blueprint the graphs that its interfaces have come to need since. */
	static void ConformImplementedInterfaces(UBlueprint* Blueprint);
	static void FindImplementedInterfaces(const UBlueprint* Blueprint, bool bGetAllInterfaces, TArray<UClass*>& ImplementedInterfaces);

private:
	static void AddInterfaceGraphs(UBlueprint& Blueprint, FBPInterfaceDescription& Description);
	static void AddFunctionGraphFromSignature(
		UBlueprint* Blueprint, UEdGraph* Graph, bool bIsUserCreated, UFunction* Signature, bool bIsOverride);
	static UFunction* FindSignature(const UEdGraph* Graph, UClass* Class);
	static UFunction* FindSignature(const UEdGraph* Graph, UFunction* Function) { return Function; }
	static constexpr bool IsClass(const UClass* Class) { return Class != nullptr; }
	static constexpr bool IsClass(const UFunction* Function) { return false; }
};
