#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "EdGraphSchema.generated.h"

class UBlueprint;
class UEdGraph;
class UEdGraphNode;

/** What a graph is for. */
UENUM()
enum EGraphType : int
{
	GT_Function,
	GT_Ubergraph,
	GT_Macro,
	GT_Animation,
	GT_StateMachine,
	GT_MAX
};

/** What would happen if two pins were linked. */
UENUM()
enum ECanCreateConnectionResponse : int
{
	CONNECT_RESPONSE_MAKE,
	CONNECT_RESPONSE_DISALLOW,
	CONNECT_RESPONSE_BREAK_OTHERS_A,
	CONNECT_RESPONSE_BREAK_OTHERS_B,
	CONNECT_RESPONSE_BREAK_OTHERS_AB,
	CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE,
	CONNECT_RESPONSE_MAKE_WITH_PROMOTION,
	CONNECT_RESPONSE_MAX
};

/** A schema's answer about a link, with the reason that a user is shown. */
USTRUCT()
struct FPinConnectionResponse
{
	GENERATED_BODY()

	UPROPERTY()
	FText Message;

	UPROPERTY()
	TEnumAsByte<enum ECanCreateConnectionResponse> Response;

	/** A mistake that the compiler refuses too, rather than one that only the editor does. */
	bool bFatal = false;

	FPinConnectionResponse()
		: Response(CONNECT_RESPONSE_MAKE)
	{
	}
	FPinConnectionResponse(const ECanCreateConnectionResponse InResponse, FText InMessage)
		: Message(MoveTemp(InMessage))
		, Response(InResponse)
	{
	}
	FPinConnectionResponse(const ECanCreateConnectionResponse InResponse, const TCHAR* InMessage)
		: Message(FText::FromString(InMessage))
		, Response(InResponse)
	{
	}

	void SetFatal() { bFatal = true; }
	bool IsFatal() const { return bFatal; }
	bool CanSafeConnect() const { return Response == CONNECT_RESPONSE_MAKE || Response == CONNECT_RESPONSE_MAKE_WITH_PROMOTION; }

	bool operator==(const FPinConnectionResponse& Other) const { return Message.EqualTo(Other.Message) && Response == Other.Response &&
		bFatal == Other.bFatal; }
};

/** How a graph is shown to the user. */
USTRUCT()
struct FGraphDisplayInfo
{
	GENERATED_BODY()

	/** The graph's name as a user reads it, with no decoration. */
	UPROPERTY()
	FText PlainName;

	/** The name with what the graph is for. */
	UPROPERTY()
	FText DisplayName;

	UPROPERTY()
	FText Tooltip;

	FString DocLink;
	FString DocExcerptName;
	/** Lines below the name, such as a macro's category. */
	TArray<FText> Notes;

	FString GetNotesAsString() const;
};

/** Something a user can do in a graph's context menu. */
USTRUCT()
struct ENGINE_API FEdGraphSchemaAction
{
	GENERATED_BODY()

	FEdGraphSchemaAction() = default;
	FEdGraphSchemaAction(
		FText InNodeCategory, FText InMenuDesc, FText InToolTip, const int32 InGrouping, FText InKeywords = FText(), int32 InSectionID = 0);
	virtual ~FEdGraphSchemaAction() = default;

	static FName StaticGetTypeId() { return FName(TEXT("FEdGraphSchemaAction")); }
	virtual FName GetTypeId() const { return StaticGetTypeId(); }

	/** Does it; answers the new node, or null when the action made none. */
	virtual UEdGraphNode* PerformAction(UEdGraph* ParentGraph, UEdGraphPin* FromPin, const FVector2D Location, bool bSelectNewNode = true)
	{
		return nullptr;
	}

	const FText& GetMenuDescription() const { return MenuDescription; }
	const FText& GetTooltipDescription() const { return TooltipDescription; }
	const FText& GetCategory() const { return Category; }
	const FText& GetKeywords() const { return Keywords; }
	int32 GetGrouping() const { return Grouping; }
	int32 GetSectionID() const { return SectionID; }

	int32 Grouping = 0;
	int32 SectionID = 0;

private:
	FText MenuDescription;
	FText TooltipDescription;
	FText Category;
	FText Keywords;
};

/** An action that places a copy of a template node. */
USTRUCT()
struct ENGINE_API FEdGraphSchemaAction_NewNode : public FEdGraphSchemaAction
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UEdGraphNode> NodeTemplate = nullptr;

	virtual UEdGraphNode* PerformAction(
		UEdGraph* ParentGraph, UEdGraphPin* FromPin, const FVector2D Location, bool bSelectNewNode = true) override;
};

/**
 * The rules of a kind of graph. The base allows everything that is not plainly wrong; schemas have no state of their own and are used
 * through their class default objects.
 */
UCLASS(abstract)
class ENGINE_API UEdGraphSchema : public UObject
{
	GENERATED_BODY()

public:
	// Links

	virtual const FPinConnectionResponse CanCreateConnection(const UEdGraphPin* A, const UEdGraphPin* B) const;
	virtual const FPinConnectionResponse CanMergeNodes(const UEdGraphNode* A, const UEdGraphNode* B) const;
	/** Links as a user's drag does: asks, breaks what must go, converts or promotes, links, tells. False when refused. */
	virtual bool TryCreateConnection(UEdGraphPin* A, UEdGraphPin* B) const;
	virtual bool CreateAutomaticConversionNodeAndConnections(UEdGraphPin* A, UEdGraphPin* B) const { return false; }
	virtual bool CreatePromotedConnection(UEdGraphPin* A, UEdGraphPin* B) const { return false; }
	/** Breaks the node's links. The graph is told. */
	virtual void BreakNodeLinks(UEdGraphNode& TargetNode) const;
	virtual void BreakPinLinks(UEdGraphPin& TargetPin, bool bSendsNodeNotifcation) const;
	virtual void BreakSinglePinLink(UEdGraphPin* SourcePin, UEdGraphPin* TargetPin) const;
	virtual FPinConnectionResponse MovePinLinks(
		UEdGraphPin& MoveFromPin, UEdGraphPin& MoveToPin, bool bIsIntermediateMove = false, bool bNotifyLinkedNodes = false) const;
	virtual FPinConnectionResponse CopyPinLinks(UEdGraphPin& CopyFromPin, UEdGraphPin& CopyToPin, bool bIsIntermediateCopy = false) const;
	/** Sorts two pins into input and output; false when both stand on the same side. */
	static bool CategorizePinsByDirection(UEdGraphPin* A, UEdGraphPin* B, UEdGraphPin*& OutInputPin, UEdGraphPin*& OutOutputPin);

	// Defaults

	/** Sets a default from its string form. Does nothing to a value that the pin cannot hold. */
	virtual void TrySetDefaultValue(UEdGraphPin& InPin, const FString& InNewDefaultValue, bool bMarkAsModified = true) const;
	virtual void TrySetDefaultObject(UEdGraphPin& InPin, UObject* InNewDefaultObject, bool bMarkAsModified = true) const;
	virtual void TrySetDefaultText(UEdGraphPin& InPin, const FText& InNewDefaultText, bool bMarkAsModified = true) const;
	virtual bool DoesDefaultValueMatch(const UEdGraphPin& InPin, const FString& InValue) const { return InPin.DefaultValue == InValue; }
	virtual bool DoesDefaultValueMatchAutogenerated(const UEdGraphPin& InPin) const;
	virtual void ResetPinToAutogeneratedDefaultValue(UEdGraphPin* Pin, bool bCallModifyCallbacks = true) const {}
	virtual void SetPinAutogeneratedDefaultValue(UEdGraphPin* Pin, const FString& NewValue) const {}
	virtual void SetPinAutogeneratedDefaultValueBasedOnType(UEdGraphPin* Pin) const {}
	/** Empty when the pin's default is good, else what is wrong with it. */
	virtual FString IsCurrentPinDefaultValid(const UEdGraphPin* Pin) const { return FString(); }
	virtual bool ShouldShowAssetPickerForPin(UEdGraphPin* Pin) const { return true; }
	virtual bool DoesSupportPinWatching() const { return false; }

	// Split pins

	virtual void SplitPin(UEdGraphPin* Pin, bool bNotify = true) const {}
	virtual void RecombinePin(UEdGraphPin* Pin) const {}

	// Graphs

	virtual EGraphType GetGraphType(const UEdGraph* TestEdGraph) const { return GT_Function; }
	virtual void CreateDefaultNodesForGraph(UEdGraph& Graph) const {}
	virtual void GetGraphDisplayInformation(const UEdGraph& Graph, FGraphDisplayInfo& DisplayInfo) const;
	virtual bool CanDuplicateGraph(UEdGraph* InSourceGraph) const { return true; }
	virtual UEdGraph* DuplicateGraph(UEdGraph* GraphToDuplicate) const { return nullptr; }
	virtual void HandleGraphBeingDeleted(UEdGraph& GraphBeingRemoved) const {}
	/**
	 * What is pasted in place of a node that the graph cannot hold, in the graph that the node stands in, with its links; null where
	 * nothing takes its place. Names in InOutExtraNames are taken beside those of the graph's Blueprint; one that is given is added.
	 */
	virtual UEdGraphNode* CreateSubstituteNode(
		UEdGraphNode* Node, const UEdGraph* Graph, struct FObjectInstancingGraph* InstanceGraph, TSet<FName>& InOutExtraNames) const
	{
		return nullptr;
	}
	virtual void BackwardCompatibilityNodeConversion(UEdGraph* Graph, bool bOnlySafeChanges) const {}
	virtual bool CanEncapuslateNode(UEdGraphNode const& TestNode) const { return true; }
	virtual FText GetContextMenuTitle(const UEdGraph*) const { return FText(); }
	virtual void ForceVisualizationCacheClear() const {}
	virtual bool SafeDeleteNodeFromGraph(UEdGraph* Graph, UEdGraphNode* NodeToDelete) const { return false; }

	// Names

	virtual FText GetPinDisplayName(const UEdGraphPin* Pin) const;
	virtual FLinearColor GetPinTypeColor(const FEdGraphPinType& PinType) const { return FLinearColor::Black; }
	virtual bool ShouldHidePinDefaultValue(UEdGraphPin* Pin) const { return false; }
	virtual bool IsSelfPin(const UEdGraphPin& Pin) const { return false; }
	virtual bool IsDelegateCategory(const FName Category) const { return false; }

	/** Makes the node's pins again. Schemas that keep something beside their nodes override it. */
	virtual void ReconstructNode(UEdGraphNode& TargetNode, bool bIsBatchRequest = false) const;
};
