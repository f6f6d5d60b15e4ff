#pragma once

#include "Engine/Blueprint.h"
#include "K2Node_FunctionTerminator.h"

#include "K2Node_FunctionEntry.generated.h"

/** What a user declares of a function beside its pins. */
USTRUCT()
struct FKismetUserDeclaredFunctionMetadata
{
	GENERATED_BODY()

	UPROPERTY()
	FText ToolTip;

	UPROPERTY()
	FText Category;

	UPROPERTY()
	FText Keywords;

	UPROPERTY()
	FText CompactNodeTitle;

	UPROPERTY()
	FLinearColor InstanceTitleColor = FLinearColor::White;

	UPROPERTY()
	FString DeprecationMessage;

	UPROPERTY()
	bool bIsDeprecated = false;

	UPROPERTY()
	bool bCallInEditor = false;

	UPROPERTY()
	bool bThreadSafe = false;

	UPROPERTY()
	bool bIsUnsafeDuringActorConstruction = false;
};

/** Where a function starts. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_FunctionEntry : public UK2Node_FunctionTerminator
{
	GENERATED_BODY()

public:
	/** Name of a function that the compiler makes rather than the user. */
	UPROPERTY()
	FName CustomGeneratedFunctionName;

	UPROPERTY()
	FKismetUserDeclaredFunctionMetadata MetaData;

	UPROPERTY()
	TArray<FBPVariableDescription> LocalVariables;

	UPROPERTY()
	bool bEnforceConstCorrectness = false;

	/** EFunctionFlags of the function, those of an overridden one included. */
	int32 GetFunctionFlags() const;
	int32 GetExtraFlags() const { return ExtraFlags; }
	void SetExtraFlags(int32 NewFlags) { ExtraFlags = NewFlags; }
	void AddExtraFlags(int32 NewFlags) { ExtraFlags |= NewFlags; }
	void ClearExtraFlags(int32 FlagsToClear) { ExtraFlags &= ~FlagsToClear; }
	/** A function of a parent that gives this one its parameters. */
	virtual bool DrawNodeAsEntry() const override { return true; }
	virtual bool CanUserDeleteNode() const override { return false; }
	virtual bool CanDuplicateNode() const override { return false; }
	virtual bool IsNodeRootSet() const override { return true; }
	virtual bool CanCreateUserDefinedPin(
		const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage) override;
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

private:
	UPROPERTY()
	int32 ExtraFlags = 0;
};
