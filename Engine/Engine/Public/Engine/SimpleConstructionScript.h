#pragma once

#include "CoreMinimal.h"
#include "Engine/SCS_Node.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "SimpleConstructionScript.generated.h"

class AActor;
class UBlueprint;

/** The components that a Blueprint adds, as a tree of nodes. Outered to the generated class. */
UCLASS()
class ENGINE_API USimpleConstructionScript : public UObject
{
	GENERATED_BODY()

public:
	/** Makes a node and its template; AddNode or AddChildNode puts it in the tree. */
	USCS_Node* CreateNode(UClass* NewComponentClass, FName NewComponentVariableName = NAME_None);
	void AddNode(USCS_Node* Node);
	void RemoveNode(USCS_Node* Node, const bool bValidateSceneRootNodes = true);
	/** Removes the node; its children take its place. */
	void RemoveNodeAndPromoteChildren(USCS_Node* Node);

	/** Has the default scene root be a root while actors would have no other scene component there, and only then. */
	void ValidateSceneRootNodes();

	/** Makes the actor's components, of which the first scene component becomes its root if it has none. */
	void ExecuteScriptOnActor(AActor* Actor);

	USCS_Node* FindSCSNode(const FName InName) const;
	USCS_Node* FindSCSNodeByGuid(const FGuid Guid) const;
	USCS_Node* FindParentNode(USCS_Node* InNode) const;
	const TArray<USCS_Node*>& GetRootNodes() const;
	const TArray<USCS_Node*>& GetAllNodes() const;
	TArray<const USCS_Node*> GetAllNodesConst() const;
	USCS_Node* GetDefaultSceneRootNode() const { return DefaultSceneRootNode; }
	UBlueprint* GetBlueprint() const;
	UClass* GetOwnerClass() const;
	UClass* GetParentClass() const;
	FName GenerateNewComponentName(const UClass* ComponentClass, FName DesiredName = NAME_None) const;

private:
	UPROPERTY()
	TArray<TObjectPtr<USCS_Node>> RootNodes;

	UPROPERTY()
	TArray<TObjectPtr<USCS_Node>> AllNodes;

	/** Root that actors get while no other scene component is a root. */
	UPROPERTY()
	TObjectPtr<USCS_Node> DefaultSceneRootNode = nullptr;

	void RemoveFromAllNodes(USCS_Node* Node);

	friend class USCS_Node;
};
