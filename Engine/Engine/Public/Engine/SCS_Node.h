#pragma once

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "SCS_Node.generated.h"

class AActor;
class UActorComponent;
class UBlueprintGeneratedClass;
class USceneComponent;
class USimpleConstructionScript;
struct FComponentKey;

/** A component that a Blueprint adds to its actors. */
UCLASS()
class ENGINE_API USCS_Node : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UClass> ComponentClass = nullptr;

	/** What each actor's component is made from. */
	UPROPERTY()
	TObjectPtr<UActorComponent> ComponentTemplate = nullptr;

	UPROPERTY()
	FText CategoryName;

	/** Socket of the parent component. */
	UPROPERTY()
	FName AttachToName;

	/** Component that a root node hangs below when it belongs to a parent class; None for a node with a parent node. */
	UPROPERTY()
	FName ParentComponentOrVariableName;

	UPROPERTY()
	FName ParentComponentOwnerClassName;

	UPROPERTY()
	bool bIsParentComponentNative = false;

	UPROPERTY()
	TArray<TObjectPtr<USCS_Node>> ChildNodes;

	UPROPERTY()
	TArray<FBPVariableMetaDataEntry> MetaDataArray;

	UPROPERTY()
	FGuid VariableGuid;

	FName GetVariableName() const { return InternalVariableName; }
	/** What the components of the class's actors are made from: this node's template, or the nearest override of it. */
	UActorComponent* GetActualComponentTemplate(UBlueprintGeneratedClass* ActualBPGC) const;
	/** Overrides of derived Blueprints take the new name too. */
	void SetVariableName(const FName& NewName, bool bRenameTemplate = true);
	USimpleConstructionScript* GetSCS() const;
	const TArray<USCS_Node*>& GetChildNodes() const;
	/** The node and all below it. */
	TArray<USCS_Node*> PreloadChain();
	void AddChildNode(USCS_Node* InNode, bool bAddToAllNodes = true);
	void RemoveChildNode(USCS_Node* InNode, bool bRemoveFromAllNodes = true);
	bool IsChildOf(const USCS_Node* TestParent) const;
	bool IsRootNode() const;
	/** Makes the node's component and those of its children; a scene component hangs below the parent, or becomes the actor's root. */
	UActorComponent* ExecuteNodeOnActor(AActor* Actor, USceneComponent* ParentComponent);
	void SetParent(USCS_Node* InParentNode);

	static FString ComponentTemplateNameSuffix;

private:
	void RenameOverrides(const FComponentKey& OldKey);

	UPROPERTY()
	FName InternalVariableName;
};
