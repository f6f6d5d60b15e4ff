#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"

#include "K2Node.generated.h"

class UBlueprint;
class UEdGraph;
class UFunction;

/** A member of a struct or class that a node may show as a pin. */
USTRUCT()
struct BLUEPRINTGRAPH_API FOptionalPinFromProperty
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Hidden")
	FName PropertyName;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	FString PropertyFriendlyName;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	FText PropertyTooltip;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	FName CategoryName;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bShowPin : 1;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bCanToggleVisibility : 1;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bPropertyIsCustomized : 1;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bHasOverridePin : 1;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bIsMarkedForAdvancedDisplay : 1;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bIsOverrideEnabled : 1;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bIsSetValuePinVisible : 1;

	UPROPERTY(EditAnywhere, Category = "Hidden")
	uint8 bIsOverridePinVisible : 1;

	FOptionalPinFromProperty()
		: bShowPin(true)
		, bCanToggleVisibility(true)
		, bPropertyIsCustomized(false)
		, bHasOverridePin(false)
		, bIsMarkedForAdvancedDisplay(false)
		, bIsOverrideEnabled(true)
		, bIsSetValuePinVisible(true)
		, bIsOverridePinVisible(true)
	{
	}
};

/** Keeps a node's list of optional pins in step with a struct, and makes pins of those that are shown. */
struct BLUEPRINTGRAPH_API FOptionalPinManager
{
	virtual ~FOptionalPinManager() = default;

	virtual void GetRecordDefaults(FProperty* TestProperty, FOptionalPinFromProperty& Record) const;
	virtual bool CanTreatPropertyAsOptional(FProperty* TestProperty) const;
	virtual void CustomizePinData(UEdGraphPin* Pin, FName SourcePropertyName, int32 ArrayIndex, FProperty* Property) const {}
	virtual void PostInitNewPin(UEdGraphPin* Pin, FOptionalPinFromProperty& Record, int32 ArrayIndex, FProperty* Property,
		uint8* PropertyAddress, uint8* DefaultPropertyAddress) const;

	/** Lists the struct's members, keeping what the user chose of those that it listed before. */
	void RebuildPropertyList(TArray<FOptionalPinFromProperty>& Properties, UStruct* SourceStruct);
	/** StructBasePtr and DefaultsPtr are values of the struct whose members become the pins' values and defaults; each may be null. */
	void CreateVisiblePins(TArray<FOptionalPinFromProperty>& Properties, UStruct* SourceStruct, EEdGraphPinDirection Direction,
		class UK2Node* TargetNode, uint8* StructBasePtr = nullptr, uint8* DefaultsPtr = nullptr);
};

/** A node of a Blueprint graph. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node : public UEdGraphNode
{
	GENERATED_BODY()

public:
	UK2Node(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** How a pin of before a reconstruction corresponds to a new one. */
	enum ERedirectType
	{
		ERedirectType_None,
		ERedirectType_Name,
		ERedirectType_Value,
		ERedirectType_Custom
	};

	/** What became of the renaming of a pin. */
	enum ERenamePinResult
	{
		ERenamePinResult_Success,
		ERenamePinResult_NoSuchPin,
		ERenamePinResult_NameCollision
	};

	/** Renames the pin and its sub-pins; its links stay. bTest only says whether that could be done. */
	virtual ERenamePinResult RenameUserDefinedPin(const FName OldName, const FName NewName, bool bTest = false);

	// UEdGraphNode
	virtual void ReconstructNode() override;
	virtual void AutowireNewNode(UEdGraphPin* FromPin) override;
	virtual void PinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual bool CanCreateUnderSpecifiedSchema(const UEdGraphSchema* Schema) const override;
	virtual bool CanSplitPin(const UEdGraphPin* Pin) const override;
	virtual FString GetDocumentationLink() const override { return FString(); }
	/** Unless a class says otherwise, it offers a node as it is made. */
	virtual void GetMenuActions(class FBlueprintActionDatabaseRegistrar& ActionRegistrar) const override;

	virtual void PostLoad() override;
	/** Makes the pins anew; OldPins are those of before, still with their links. */
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins);
	virtual void PostReconstructNode() {}
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin);
	/** Former names under which a pin's links are still found. */
	virtual void GetRedirectPinNames(const UEdGraphPin& Pin, TArray<FString>& RedirectPinNames) const {}
	virtual ERedirectType DoPinsMatchForReconstruction(
		const UEdGraphPin* NewPin, int32 NewPinIndex, const UEdGraphPin* OldPin, int32 OldPinIndex) const;
	/** A node may refuse a link that the schema would allow, with its reason. */
	virtual bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const { return false; }
	/**
	 * False while the member or type that the node is about is not known to this host. A reconstruction then leaves the pins as
	 * they were pasted or loaded.
	 */
	virtual bool HasKnownDefinition() const { return true; }

	virtual bool IsNodePure() const override { return false; }
	virtual bool IsNodeSafeToIgnore() const { return false; }
	virtual bool NodeCausesStructuralBlueprintChange() const { return false; }
	virtual bool IsNodeRootSet() const { return false; }
	virtual bool DrawNodeAsEntry() const { return false; }
	virtual bool DrawNodeAsExit() const { return false; }
	virtual bool DrawNodeAsVariable() const { return false; }
	virtual bool ShouldShowNodeProperties() const { return false; }
	virtual bool ReferencesVariable(const FName& InVarName, const UStruct* InScope) const { return false; }
	/** Name of the small image in the node's corner; none when it has none. */
	virtual FName GetCornerIcon() const { return FName(); }

	/** The Blueprint that holds the node. */
	UBlueprint* GetBlueprint() const;
	bool HasValidBlueprint() const;
	/** The class that "self" is: the Blueprint's skeleton class while there is one. Null outside a Blueprint. */
	UClass* GetBlueprintClassFromNode() const;
	/** The only execution input or output; null when there is none. */
	UEdGraphPin* GetExecPin() const;
	UEdGraphPin* GetThenPin() const;
	const UEdGraphSchema_K2* GetK2Schema() const { return GetDefault<UEdGraphSchema_K2>(); }
	/** Shows the parameter's name, type and description when a user points at the pin. */
	static void GeneratePinTooltip(UEdGraphPin& Pin, const FText& Description);

protected:
	UEdGraphPin* CreateExecPin() { return CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Execute); }
	UEdGraphPin* CreateThenPin() { return CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Then); }
	/** A pin that starts with the default of its type. */
	UEdGraphPin* CreatePinWithDefault(EEdGraphPinDirection PinDirection, const FEdGraphPinType& Type, FName Name);
	UEdGraphPin* CreatePinWithDefault(
		EEdGraphPinDirection PinDirection, FName Category, FName Name, FName SubCategory = NAME_None, UObject* SubCategoryObject = nullptr);
	/** The "Target" pin of a member of Class: "self" when the class is the Blueprint's own. */
	UEdGraphPin* CreateTargetPin(UClass* Class);

	/** True for a parameter that a caller gives; false for one that it gets back. */
	static bool IsFunctionInput(const FProperty& Parameter);
	/** Calls back for each parameter of a type that Blueprints have. False when some were of no such type. */
	static bool ForEachParameter(const UFunction* Function, TFunctionRef<void(FProperty&, const FEdGraphPinType&)> Visit);
	/** An enumeration that is only named somewhere, and not loaded, has no values. */
	static bool IsKnownEnum(const UEnum* Enum);
	/** False for a class that is only named somewhere: its properties are not known. */
	static bool IsKnownClassOrNone(const UClass* Class);
	/** Indices of the values that a user may choose: not the one that counts them, none that is hidden or a spacer. */
	static TArray<int32> GetVisibleEnumEntries(const UEnum* Enum);
	/** A pin of one of the enumeration's values, named as the enumeration names it. */
	UEdGraphPin* CreatePinOfEnumEntry(EEdGraphPinDirection PinDirection, const UEnum* Enum, int32 EntryIndex);
	/** Has a node with advanced pins hide them until the user asks for them. */
	void HideAdvancedPins();

	/** Wildcard pins that take one type together, that of the first link among them; none on a node whose pins keep their types. */
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const { return TArray<UEdGraphPin*>(); }
	/** Whether the pins of one type take the container of what is linked too. */
	virtual bool TakesLinkedContainer() const { return false; }

	/** The pin of before a reconstruction that has the name and the side; null when there was none. */
	static UEdGraphPin* FindOldPin(const TArray<UEdGraphPin*>& OldPins, FName Name, EEdGraphPinDirection Direction);
	/**
	 * Gives wildcard pins the types, and the defaults of those types, that they had before a reconstruction. A declared container stays.
	 */
	void KeepResolvedWildcards(const TArray<UEdGraphPin*>& OldPins);
	/** The type with values of another one; whether it is a container, a reference or constant stays its own. */
	static FEdGraphPinType WithValueType(const FEdGraphPinType& Own, const FEdGraphPinType& Type);
	/** Gives pins that share one type the type of the first link among them, or makes them wildcards when none is linked. */
	void FollowLinkedType(const TArray<UEdGraphPin*>& SharedPins, bool bFollowContainer = false);
	/** As FollowLinkedType, for a map, its keys and its values; pins that are null are passed over. */
	void FollowLinkedMapType(UEdGraphPin* MapPin, const TArray<UEdGraphPin*>& Keys, const TArray<UEdGraphPin*>& Values);
	/** Names the pins anew by their places, and their sub-pins with them. */
	static void RenamePins(const TArray<UEdGraphPin*>& InPins, TFunctionRef<FName(int32)> GetName);
	/** True while one of the pins has a link or a value that a user gave it. */
	static bool AreAnyInUse(const TArray<UEdGraphPin*>& InPins);
	/** The class that the pin's link is of, or that its default names; null when neither is known or there is no pin. */
	static UClass* GetClassOfPin(const UEdGraphPin* Pin);

	/** Takes over the names that members have got since the node was saved, as far as their ids tell. It edits nothing. */
	virtual void FollowRenames() {}

	void RewireOldPinsToNewPins(TArray<UEdGraphPin*>& InOldPins, TArray<UEdGraphPin*>& InNewPins);
	virtual void ReconstructSinglePin(UEdGraphPin* NewPin, UEdGraphPin* OldPin, ERedirectType RedirectType);

private:
	bool ShouldKeepAsOrphan(const UEdGraphPin& OldPin) const;
	/** Gives the sub-pins of a pin that is split again what the old ones had; those that correspond to none leave their parent. */
	void ReconstructSubPins(UEdGraphPin& NewPin, UEdGraphPin& OldPin);
	void KeepSubPins(TArray<UEdGraphPin*>& InOldPins, UEdGraphPin& NewPin);
};
