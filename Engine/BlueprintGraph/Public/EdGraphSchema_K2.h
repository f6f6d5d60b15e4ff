#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphSchema.h"
#include "Misc/Optional.h"

#include "EdGraphSchema_K2.generated.h"

class FProperty;
class UBlueprint;
class UFunction;
class UK2Node;
class UK2Node_CallFunction;

/** Names of the metadata that Blueprint declarations carry. */
struct BLUEPRINTGRAPH_API FBlueprintMetadata
{
	static const FName MD_AllowableBlueprintVariableType;
	static const FName MD_NotAllowableBlueprintVariableType;
	static const FName MD_BlueprintSpawnableComponent;
	static const FName MD_IsBlueprintBase;
	static const FName MD_Protected;
	static const FName MD_Latent;
	static const FName MD_LatentInfo;
	static const FName MD_CallInEditor;
	static const FName MD_CustomThunk;
	static const FName MD_ExposeOnSpawn;
	static const FName MD_DefaultToSelf;
	static const FName MD_WorldContext;
	static const FName MD_CallableWithoutWorldContext;
	static const FName MD_AutoCreateRefTerm;
	static const FName MD_HidePin;
	static const FName MD_HideSelfPin;
	static const FName MD_InternalUseParam;
	static const FName MD_ExpandEnumAsExecs;
	static const FName MD_ExpandBoolAsExecs;
	static const FName MD_CommutativeAssociativeBinaryOperator;
	static const FName MD_ArrayParam;
	static const FName MD_ArrayDependentParam;
	static const FName MD_SetParam;
	static const FName MD_MapParam;
	static const FName MD_MapKeyParam;
	static const FName MD_MapValueParam;
	static const FName MD_CustomStructureParam;
	static const FName MD_DynamicOutputType;
	static const FName MD_DynamicOutputParam;
	static const FName MD_CompactNodeTitle;
	static const FName MD_DisplayName;
	static const FName MD_ReturnDisplayName;
	static const FName MD_FunctionKeywords;
	static const FName MD_FunctionCategory;
	static const FName MD_Tooltip;
	static const FName MD_AdvancedDisplay;
	static const FName MD_BlueprintInternalUseOnly;
	static const FName MD_BlueprintAutocast;
	static const FName MD_NativeMakeFunction;
	static const FName MD_NativeBreakFunction;
	static const FName MD_Bitmask;
	static const FName MD_BitmaskEnum;
	static const FName MD_ForceAsFunction;
	static const FName MD_DefaultGraphNode;
};

/** The rules of Blueprint graphs: which types there are, which pins may be linked, which defaults a pin may hold. */
UCLASS()
class BLUEPRINTGRAPH_API UEdGraphSchema_K2 : public UEdGraphSchema
{
	GENERATED_BODY()

public:
	// Pin categories

	static const FName PC_Exec;
	static const FName PC_Boolean;
	static const FName PC_Byte;
	/** SubCategoryObject is the class that values derive from. */
	static const FName PC_Class;
	static const FName PC_Int;
	static const FName PC_Int64;
	/** PinSubCategory is PC_Float or PC_Double. */
	static const FName PC_Real;
	static const FName PC_Float;
	static const FName PC_Double;
	static const FName PC_Name;
	static const FName PC_Delegate;
	static const FName PC_MCDelegate;
	static const FName PC_Object;
	static const FName PC_Interface;
	static const FName PC_SoftObject;
	static const FName PC_SoftClass;
	static const FName PC_String;
	static const FName PC_Text;
	static const FName PC_Struct;
	static const FName PC_Wildcard;
	static const FName PC_Enum;
	static const FName PC_FieldPath;

	// Pin sub-categories

	static const FName PSC_Self;
	static const FName PSC_Index;
	static const FName PSC_Bitmask;

	// Pin names

	static const FName PN_Execute;
	static const FName PN_Then;
	static const FName PN_Completed;
	static const FName PN_DelegateEntry;
	static const FName PN_EntryPoint;
	static const FName PN_Self;
	static const FName PN_Else;
	static const FName PN_Loop;
	static const FName PN_After;
	static const FName PN_ReturnValue;
	static const FName PN_ObjectToCast;
	static const FName PN_Condition;
	static const FName PN_Start;
	static const FName PN_Stop;
	static const FName PN_Delegate;
	static const FName PN_Count;
	static const FName PN_Index;
	static const FName PN_Item;
	static const FName PN_CastSucceeded;
	static const FName PN_CastFailed;
	static const FString PN_CastedValuePrefix;
	static const FName PN_MatineeFinished;

	// Functions and graphs with names of their own

	static const FName FN_UserConstructionScript;
	static const FName FN_ExecuteUbergraphBase;
	static const FName GN_EventGraph;
	static const FName GN_AnimGraph;
	/** Category of variables and functions that have none. */
	static const FText VR_DefaultCategory;

	// Functions that Blueprints use and override

	static bool CanUserKismetCallFunction(const UFunction* Function);
	static bool CanKismetOverrideFunction(const UFunction* Function);
	/** An overridable function without results that is not latent: it becomes an event rather than a graph. */
	static bool FunctionCanBePlacedAsEvent(const UFunction* InFunction);
	static bool HasFunctionAnyOutputParameter(const UFunction* Function);
	static bool IsAllowableBlueprintVariableType(const UEnum* InEnum);
	static bool IsAllowableBlueprintVariableType(const UClass* InClass, bool bAssumeBlueprintType = false);
	static bool IsAllowableBlueprintVariableType(const UScriptStruct* InStruct, bool bForInternalUse = false);
	static FText GetFriendlySignatureName(const UFunction* Function);

	// Types

	/** The pin type of a property's values. False when Blueprints have no such type. */
	bool ConvertPropertyToPinType(const FProperty* Property, FEdGraphPinType& TypeOut) const;
	/** Category, sub-category and object of one value of the property, without its container. */
	static bool GetPropertyCategoryInfo(
		const FProperty* TestProperty, FName& OutCategory, FName& OutSubCategory, UObject*& OutSubCategoryObject, bool& bOutIsWeakPointer);
	/** "Array of Actor Object References". */
	static FText TypeToText(const FEdGraphPinType& Type);
	static FText TypeToText(const FProperty* const Property);
	static FText GetCategoryText(const FName Category, const FName SubCategory = NAME_None, const bool bForMenu = false);
	/** CallingContext resolves "self"; it may be null. */
	bool ArePinsCompatible(
		const UEdGraphPin* PinA, const UEdGraphPin* PinB, const UClass* CallingContext = nullptr, bool bIgnoreArray = false) const;
	bool ArePinTypesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext = nullptr,
		bool bIgnoreArray = false) const;
	struct FSearchForAutocastFunctionResults
	{
		FName TargetFunction;
		UClass* FunctionOwner = nullptr;
	};

	/** The library function that turns a value of one type into the other. */
	[[nodiscard]] virtual TOptional<FSearchForAutocastFunctionResults> SearchForAutocastFunction(
		const FEdGraphPinType& OutputPinType, const FEdGraphPinType& InputPinType) const;

	struct FFindSpecializedConversionNodeResults
	{
		/** A node without pins that stands in no graph; null when none was asked for. */
		UK2Node* TargetNode = nullptr;
	};

	/** The node that makes a value fit the pin where no function does: a cast, an array of one element, a member of the object. */
	[[nodiscard]] virtual TOptional<FFindSpecializedConversionNodeResults> FindSpecializedConversionNode(
		const FEdGraphPinType& OutputPinType, const UEdGraphPin& InputPin, bool bCreateNode) const;

	static bool IsExecPin(const UEdGraphPin& Pin) { return Pin.PinType.PinCategory == PC_Exec; }
	static bool IsMetaPin(const UEdGraphPin& Pin) { return IsExecPin(Pin); }

	// Defaults

	/** Splits a default's text form into the three members of a pin. */
	virtual void GetPinDefaultValuesFromString(const FEdGraphPinType& PinType, UObject* OwningObject, const FString& NewValue,
		FString& UseDefaultValue, TObjectPtr<UObject>& UseDefaultObject, FText& UseDefaultText) const;
	void SetPinDefaultValue(UEdGraphPin* Pin, const UFunction* Function, const FProperty* Param) const;
	/** Empty when the value is a good default of the type, else what is wrong with it. */
	FString IsPinDefaultValid(
		const UEdGraphPin* Pin, const FString& NewDefaultValue, TObjectPtr<UObject> NewDefaultObject, const FText& InNewDefaultText) const;
	bool DefaultValueSimpleValidation(const FEdGraphPinType& PinType, const FName PinName, const FString& NewDefaultValue,
		TObjectPtr<UObject> NewDefaultObject, const FText& InText, FString* OutMsg = nullptr) const;
	/** The default that a function declares for a parameter. False without one. */
	static bool FindFunctionParameterDefaultValue(const UFunction* Function, const FProperty* Param, FString& OutString);
	/** Parameters by reference that need no link: the call makes a temporary value of the pin's default. */
	static void GetAutoEmitTermParameters(const UFunction* Function, TArray<FString>& AutoEmitParameterNames);
	/** True for a pin of one of these parameters. */
	static bool IsAutoCreateRefTerm(const UEdGraphPin* Pin);

	// Graphs

	/** Makes the entry node, and the result node if the function needs one, of an override of Class's function of the graph's name. */
	void CreateFunctionGraphTerminators(UEdGraph& Graph, UClass* Class) const;
	/** As the other form, for a new function with the signature's parameters as its own; none when it is null. */
	void CreateFunctionGraphTerminators(UEdGraph& Graph, const UFunction* FunctionSignature) const;
	void CreateMacroGraphTerminators(UEdGraph& Graph, UClass* Class) const;
	void AddExtraFunctionFlags(const UEdGraph* CurrentGraph, int32 ExtraFlags) const;
	void MarkFunctionEntryAsEditable(const UEdGraph* CurrentGraph, bool bNewEditable) const;
	static bool IsConstructionScript(const UEdGraph* TestEdGraph);
	static bool IsGraphMarkedThreadSafe(const UEdGraph* TestEdGraph) { return false; }
	/** The function's graph in the Blueprint; null when it has none. */
	static UEdGraph* GetFunctionGraph(const UBlueprint* Blueprint, FName FunctionName);

	/** Makes sub-pins for a struct's members. */
	bool CanSplitStructPin(const UEdGraphPin& Pin) const;

	// UEdGraphSchema
	virtual void CreateDefaultNodesForGraph(UEdGraph& Graph) const override;
	/** A custom event with the parameters of an event that the Blueprint has already, or can not have. */
	virtual UEdGraphNode* CreateSubstituteNode(UEdGraphNode* Node, const UEdGraph* Graph, struct FObjectInstancingGraph* InstanceGraph,
		TSet<FName>& InOutExtraNames) const override;
	virtual const FPinConnectionResponse CanCreateConnection(const UEdGraphPin* A, const UEdGraphPin* B) const override;
	virtual bool TryCreateConnection(UEdGraphPin* A, UEdGraphPin* B) const override;
	virtual bool CreateAutomaticConversionNodeAndConnections(UEdGraphPin* A, UEdGraphPin* B) const override;
	virtual bool CreatePromotedConnection(UEdGraphPin* A, UEdGraphPin* B) const override;
	virtual void BreakNodeLinks(UEdGraphNode& TargetNode) const override;
	virtual void BreakPinLinks(UEdGraphPin& TargetPin, bool bSendsNodeNotifcation) const override;
	virtual void BreakSinglePinLink(UEdGraphPin* SourcePin, UEdGraphPin* TargetPin) const override;
	virtual void TrySetDefaultValue(UEdGraphPin& Pin, const FString& NewDefaultValue, bool bMarkAsModified = true) const override;
	virtual void TrySetDefaultObject(UEdGraphPin& Pin, UObject* NewDefaultObject, bool bMarkAsModified = true) const override;
	virtual void TrySetDefaultText(UEdGraphPin& InPin, const FText& InNewDefaultText, bool bMarkAsModified = true) const override;
	virtual bool DoesDefaultValueMatchAutogenerated(const UEdGraphPin& InPin) const override;
	virtual void ResetPinToAutogeneratedDefaultValue(UEdGraphPin* Pin, bool bCallModifyCallbacks = true) const override;
	virtual void SetPinAutogeneratedDefaultValue(UEdGraphPin* Pin, const FString& NewValue) const override;
	virtual void SetPinAutogeneratedDefaultValueBasedOnType(UEdGraphPin* Pin) const override;
	/** The value that an input of the type has when nothing gives it another one. */
	static FString GetInitialDefault(const FEdGraphPinType& Type);
	virtual FString IsCurrentPinDefaultValid(const UEdGraphPin* Pin) const override;
	virtual void SplitPin(UEdGraphPin* Pin, bool bNotify = true) const override;
	virtual void RecombinePin(UEdGraphPin* Pin) const override;
	virtual EGraphType GetGraphType(const UEdGraph* TestEdGraph) const override;
	virtual void GetGraphDisplayInformation(const UEdGraph& Graph, FGraphDisplayInfo& DisplayInfo) const override;
	virtual FText GetPinDisplayName(const UEdGraphPin* Pin) const override;
	virtual bool ShouldHidePinDefaultValue(UEdGraphPin* Pin) const override;
	virtual bool IsSelfPin(const UEdGraphPin& Pin) const override;
	virtual bool IsDelegateCategory(const FName Category) const override { return Category == PC_Delegate || Category == PC_MCDelegate; }

private:
	/** Takes the values if they are a good default of the pin. */
	bool TrySetDefaults(UEdGraphPin& Pin, const FString& Value, UObject* Object, const FText& Text, bool bMarkAsModified) const;
	/** The node's Blueprint differs from what was compiled. A Blueprint that is made anew changes its own nodes. */
	static void MarkBlueprintAsModified(const UEdGraphNode* Node);
	void CreateTerminators(UEdGraph& Graph, const UFunction* Function, UClass* Class) const;
	const FPinConnectionResponse DetermineConnectionResponse(
		const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin, bool bInputIsA) const;
	const FPinConnectionResponse ExplainMismatch(const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin) const;
	/** A node in no graph that turns the one's values into what the other takes; null when there is none. */
	UK2Node* MakeConversionTemplate(const UEdGraphPin& OutputPin, const UEdGraphPin& InputPin) const;
	/** Links the node between the pins. False when it does not fit there; then nothing is linked to InputPin that was not before. */
	bool AutowireConversionNode(UEdGraphPin& OutputPin, UEdGraphPin& InputPin, UK2Node& ConversionNode) const;
};
