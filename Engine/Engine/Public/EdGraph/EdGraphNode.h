#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "EdGraphNode.generated.h"

class FReferenceCollector;
class UEdGraph;
class UEdGraphPin;
class UEdGraphSchema;
struct FLinearColor;
struct FSlateIcon;

/** Whether a node is compiled. */
UENUM()
enum class ENodeEnabledState : uint8
{
	Enabled,
	Disabled,
	DevelopmentOnly
};

/** Whether a node that has advanced pins shows them. */
UENUM()
namespace ENodeAdvancedPins
{
enum Type : int
{
	NoPins,
	Shown,
	Hidden
};
}

/** Which form of a node's title is wanted. */
UENUM()
namespace ENodeTitleType
{
enum Type : int
{
	/** As drawn on the node, several lines. */
	FullTitle,
	/** One line, for search results and lists. */
	ListView,
	/** What the user edits in place. */
	EditableTitle,
	/** As shown in the menu of actions. */
	MenuTitle,
	MAX_TitleTypes
};
}

/** How an orphaned pin is kept when a node is reconstructed. */
enum class ESaveOrphanPinMode : uint8
{
	SaveNone,
	SaveAll,
	SaveAllButExec
};

/** A node of a graph, with the pins it owns. */
UCLASS()
class ENGINE_API UEdGraphNode : public UObject
{
	GENERATED_BODY()

public:
	UEdGraphNode(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	TArray<UEdGraphPin*> Pins;

	UPROPERTY()
	int32 NodePosX = 0;

	UPROPERTY()
	int32 NodePosY = 0;

	UPROPERTY()
	int32 NodeWidth = 0;

	UPROPERTY()
	int32 NodeHeight = 0;

	UPROPERTY()
	TEnumAsByte<ENodeAdvancedPins::Type> AdvancedPinDisplay = ENodeAdvancedPins::NoPins;

private:
	UPROPERTY()
	ENodeEnabledState EnabledState = ENodeEnabledState::Enabled;

	UPROPERTY()
	uint8 bDisplayAsDisabled : 1;

	UPROPERTY()
	uint8 bUserSetEnabledState : 1;

public:
	UPROPERTY()
	uint8 bHasCompilerMessage : 1;

	UPROPERTY()
	uint8 bCommentBubblePinned : 1;

	UPROPERTY()
	uint8 bCommentBubbleVisible : 1;

	UPROPERTY(Transient)
	uint8 bCommentBubbleMakeVisible : 1;

	UPROPERTY()
	uint8 bCanRenameNode : 1;

	UPROPERTY()
	FText NodeUpgradeMessage;

	UPROPERTY()
	FString NodeComment;

	/** EMessageSeverity of ErrorMsg. */
	UPROPERTY()
	int32 ErrorType = 0;

	UPROPERTY()
	FString ErrorMsg;

	/** Unique in the Blueprint; what the debugger and the compiler's messages refer to. */
	UPROPERTY()
	FGuid NodeGuid;

	/** Orphans with links or values stay on the node when its definition loses them, unless this is off. */
	bool bDisableOrphanPinSaving = false;
	ESaveOrphanPinMode OrphanedPinSaveMode = ESaveOrphanPinMode::SaveNone;

	// Pins

	struct FCreatePinParams
	{
		FCreatePinParams()
			: ContainerType(EPinContainerType::None)
			, bIsReference(false)
			, bIsConst(false)
			, Index(INDEX_NONE)
		{
		}

		EPinContainerType ContainerType;
		bool bIsReference;
		bool bIsConst;
		/** Place in Pins, or INDEX_NONE for the end. */
		int32 Index;
		FEdGraphTerminalType ValueTerminalType;
	};

	struct FNameParameterHelper
	{
		FNameParameterHelper(const FName InNameParameter)
			: NameParameter(InNameParameter)
		{
		}
		FNameParameterHelper(const FString& InNameParameter)
			: NameParameter(*InNameParameter)
		{
		}
		FNameParameterHelper(const TCHAR* InNameParameter)
			: NameParameter(InNameParameter)
		{
		}
		FName operator*() const { return NameParameter; }

	private:
		FName NameParameter;
	};

	UEdGraphPin* CreatePin(
		EEdGraphPinDirection Dir, const FName PinCategory, const FName PinName, const FCreatePinParams& PinParams = FCreatePinParams());
	UEdGraphPin* CreatePin(EEdGraphPinDirection Dir, const FName PinCategory, const FName PinSubCategory, const FName PinName,
		const FCreatePinParams& PinParams = FCreatePinParams());
	UEdGraphPin* CreatePin(EEdGraphPinDirection Dir, const FName PinCategory, UObject* PinSubCategoryObject, const FName PinName,
		const FCreatePinParams& PinParams = FCreatePinParams());
	UEdGraphPin* CreatePin(EEdGraphPinDirection Dir, const FName PinCategory, const FName PinSubCategory, UObject* PinSubCategoryObject,
		const FName PinName, const FCreatePinParams& PinParams = FCreatePinParams());
	UEdGraphPin* CreatePin(EEdGraphPinDirection Dir, const FEdGraphPinType& InPinType, const FName PinName, int32 Index = INDEX_NONE);

	UEdGraphPin* FindPin(const FNameParameterHelper PinName, const EEdGraphPinDirection Direction = EGPD_MAX) const;
	UEdGraphPin* FindPinChecked(const FNameParameterHelper PinName, const EEdGraphPinDirection Direction = EGPD_MAX) const;
	UEdGraphPin* FindPinById(const FGuid PinId) const;
	UEdGraphPin* FindPinByIdChecked(const FGuid PinId) const;
	template <typename Predicate>
	UEdGraphPin* FindPinByPredicate(Predicate Function) const
	{
		UEdGraphPin* const* const Found = Pins.FindByPredicate(Function);
		return Found ? *Found : nullptr;
	}
	UEdGraphPin* GetPinAt(int32 Index) const { return Pins.IsValidIndex(Index) ? Pins[Index] : nullptr; }
	int32 GetPinIndex(const UEdGraphPin* Pin) const;
	TArray<UEdGraphPin*> GetAllPins() const { return Pins; }
	/** Takes the pin and its sub-pins off the node, breaking their links. False when the pin is not this node's. */
	bool RemovePin(UEdGraphPin* Pin);
	/** PinIndex counts the pins of that direction alone. */
	void RemovePinAt(const int32 PinIndex, const EEdGraphPinDirection PinDirection);
	virtual bool ShouldDrawCompact() const { return false; }
	void BreakAllNodeLinks();
	void DestroyPinList(TArray<UEdGraphPin*>& InPins);

	// What a kind of node says of itself

	virtual void AllocateDefaultPins() {}
	virtual void DestroyNode();
	virtual void ReconstructNode() {}
	virtual bool CanUserDeleteNode() const { return true; }
	virtual bool CanDuplicateNode() const { return true; }
	virtual bool CanPasteHere(const UEdGraph* TargetGraph) const;
	virtual bool CanCreateUnderSpecifiedSchema(const UEdGraphSchema* Schema) const { return true; }
	virtual bool IsCompatibleWithGraph(const UEdGraph* TargetGraph) const;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const;
	virtual FLinearColor GetNodeTitleColor() const;
	virtual FLinearColor GetNodeCommentColor() const;
	virtual FText GetTooltipText() const;
	/** Words by which a user may look for the node: the "Keywords" of its class. */
	virtual FText GetKeywords() const;
	virtual FText GetMenuCategory() const { return FText(); }
	virtual FText GetCompactNodeTitle() const { return GetNodeTitle(ENodeTitleType::FullTitle); }
	virtual FString GetDocumentationLink() const { return FString(); }
	virtual FString GetDocumentationExcerptName() const;
	virtual FString GetFindReferenceSearchString() const;
	virtual FString GetDescriptiveCompiledName() const { return FString(); }
	virtual FText GetPinDisplayName(const UEdGraphPin* Pin) const;
	virtual FText GetPinNameOverride(const UEdGraphPin& Pin) const { return FText::GetEmpty(); }
	virtual void GetPinHoverText(const UEdGraphPin& Pin, FString& HoverTextOut) const;
	virtual bool IsNodePure() const { return false; }
	virtual bool IsDeprecated() const;
	virtual bool HasDeprecatedReference() const { return false; }
	virtual bool GetCanRenameNode() const { return bCanRenameNode; }
	virtual void OnRenameNode(const FString& NewName) {}
	virtual TArray<UEdGraph*> GetSubGraphs() const { return TArray<UEdGraph*>(); }
	virtual bool CanSplitPin(const UEdGraphPin* Pin) const { return false; }
	virtual UObject* GetJumpTargetForDoubleClick() const { return nullptr; }
	virtual UEdGraphPin* GetPassThroughPin(const UEdGraphPin* FromPin) const { return nullptr; }

	// What happens to a node

	/** After a user or a spawner placed the node, before its pins are made. */
	virtual void PostPlacedNewNode() {}
	/** After the node was pasted, before it is reconstructed. */
	virtual void PostPasteNode() {}
	/** Before the node's text is taken for the clipboard. */
	virtual void PrepareForCopying() {}
	virtual void NodeConnectionListChanged() {}
	virtual void PinConnectionListChanged(UEdGraphPin* Pin) {}
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) {}
	virtual void PinTypeChanged(UEdGraphPin* Pin) {}
	/** Links the node to the pin that it was dragged from. */
	virtual void AutowireNewNode(UEdGraphPin* FromPin) {}
	virtual void OnUpdateCommentText(const FString& NewComment);
	virtual void ResizeNode(const FVector2D& NewSize) {}
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const {}
	/** The actions that the class offers, told by its default object. */
	virtual void GetMenuActions(class FBlueprintActionDatabaseRegistrar& ActionRegistrar) const {}
	virtual void AddSearchMetaDataInfo(TArray<struct FSearchTagDataPair>& OutTaggedMetaData) const {}

	// State

	UEdGraph* GetGraph() const;
	const UEdGraphSchema* GetSchema() const;
	/** Gives the node an id of its own. Called for every node that is made rather than loaded. */
	void CreateNewGuid();
	void ClearCompilerMessage();

	bool IsNodeEnabled() const { return EnabledState == ENodeEnabledState::Enabled || EnabledState == ENodeEnabledState::DevelopmentOnly; }
	ENodeEnabledState GetDesiredEnabledState() const { return EnabledState; }
	void SetEnabledState(const ENodeEnabledState NewEnabledState, const bool bUserAction = true);
	void SetForceDisplayAsDisabled(const bool bInDisplayAsDisabled) { bDisplayAsDisabled = bInDisplayAsDisabled; }
	bool IsDisplayAsDisabledForced() const { return bDisplayAsDisabled; }
	bool HasUserSetTheEnabledState() const { return bUserSetEnabledState; }
	void DisableNode() { SetEnabledState(ENodeEnabledState::Disabled); }
	void EnableNode() { SetEnabledState(ENodeEnabledState::Enabled); }
	/** A ghost: made by the editor, disabled until the user links it. */
	bool IsAutomaticallyPlacedGhostNode() const;
	void MakeAutomaticallyPlacedGhostNode();

	int32 EstimateNodeWidth() const;
	void SnapToGrid(uint32 GridSnapSize);
	FString GetPropertyNameAndValueForDiff(const FProperty* Prop, const uint8* PropertyAddr) const;

	// UObject
	virtual void Serialize(FArchive& Ar) override;
	virtual void PostLoad() override;
	using UObject::PostDuplicate;
	virtual void PostDuplicate(bool bDuplicateForPIE) override;
	virtual void PreEditUndo() override;
	virtual void PostEditUndo() override;
	virtual void PostEditImport() override;
	virtual void BeginDestroy() override;
	virtual void ExportCustomProperties(FOutputDevice& Out, uint32 Indent) override;
	virtual void ImportCustomProperties(const TCHAR* SourceText, FFeedbackContext* Warn) override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	/** For readers of old texts: the pin object turns into a pin at PostEditImport. */
	void AddDeprecatedPin(class UEdGraphPin_Deprecated* Pin) { DeprecatedPins.AddUnique(Pin); }

private:
	/** Pins of packages older than EdGraphPinOptimized, which were objects. Old packages and texts call them Pins. */
	UPROPERTY()
	TArray<TObjectPtr<class UEdGraphPin_Deprecated>> DeprecatedPins;

	void ConvertDeprecatedPins();
};
