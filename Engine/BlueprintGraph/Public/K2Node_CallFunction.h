#pragma once

#include "Engine/MemberReference.h"
#include "K2Node.h"
#include "UObject/Class.h"

#include "K2Node_CallFunction.generated.h"

/** A call of a function. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallFunction : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	uint32 bIsPureFunc : 1;

	UPROPERTY()
	uint32 bIsConstFunc : 1;

	UPROPERTY()
	uint32 bWantsEnumToExecExpansion : 1;

	UPROPERTY()
	uint32 bIsInterfaceCall : 1;

	UPROPERTY()
	uint32 bIsFinalFunction : 1;

	UPROPERTY()
	uint32 bIsBeadFunction : 1;

	UPROPERTY()
	FMemberReference FunctionReference;

	UK2Node_CallFunction(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Refers to the function and takes its purity. */
	virtual void SetFromFunction(const UFunction* Function);
	/** Null when the function is not known. */
	UFunction* GetTargetFunction() const
	{
		return FunctionReference.GetMemberName().IsNone() ? nullptr
														  : FunctionReference.ResolveMember<UFunction>(GetBlueprintClassFromNode());
	}
	FName GetFunctionName() const { return FunctionReference.GetMemberName(); }
	UEdGraphPin* GetReturnValuePin() const { return FindPin(UEdGraphSchema_K2::PN_ReturnValue, EGPD_Output); }
	/** An array of targets may be linked to "self": the call is made on each. */
	bool AllowMultipleSelfs(bool bInputAsArray) const;
	bool IsLatentFunction() const;
	static FText GetUserFacingFunctionName(const UFunction* Function, ENodeTitleType::Type NodeTitleType = ENodeTitleType::EditableTitle);
	static FString GetDefaultTooltipForFunction(const UFunction* Function);
	static FText GetDefaultCategoryForFunction(const UFunction* Function, const FText& BaseCategory);
	static FText GetKeywordsForFunction(const UFunction* Function);
	/** Names of the parameters that no user sees: latent information, world contexts, and what metadata hides. */
	static TSet<FName> GetHiddenParameters(const UFunction* Function, const UBlueprint* Blueprint);
	virtual bool IsNodePure() const override { return bIsPureFunc; }
	virtual bool ShouldDrawCompact() const override { return !GetCompactNodeTitle().IsEmpty(); }
	virtual FText GetCompactNodeTitle() const override;
	virtual FName GetCornerIcon() const override;
	virtual UObject* GetJumpTargetForDoubleClick() const override;
	virtual void AllocateDefaultPins() override;
	virtual void PostPlacedNewNode() override;
	virtual bool HasKnownDefinition() const override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetKeywords() const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual void FollowRenames() override;
	/** Gives the parameter the value that the node is about, and hides its pin. */
	void SetFixedParameter(FName ParameterName, const FString& Value);
	virtual void CreateExecPinsForFunctionCall(const UFunction* Function);
	virtual UEdGraphPin* CreateSelfPin(const UFunction* Function);
	/** Makes the target pin and one pin a parameter. False when Blueprints have no type for one of them. */
	virtual bool CreatePinsForFunctionCall(const UFunction* Function);
	virtual bool AllowsExecPins() const { return !bIsPureFunc; }
	/** Retypes the pins of any type that the changed one shares its type with. */
	void ConformWildcards(const UEdGraphPin* ChangedPin);
	/** The class that the output is of follows the class that an input names. */
	void ConformDynamicOutput();
};
