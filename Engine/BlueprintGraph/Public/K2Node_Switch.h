#pragma once

#include "K2Node.h"
#include "Templates/SubclassOf.h"

#include "K2Node_Switch.generated.h"

/** A choice of the way by a value. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_Switch : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	uint32 bHasDefaultPin : 1;

	/** The function that compares the selection with a case. */
	UPROPERTY()
	FName FunctionName;

	UPROPERTY()
	TSubclassOf<UObject> FunctionClass;

	UK2Node_Switch(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UEdGraphPin* GetSelectionPin() const { return FindPin(TEXT("Selection")); }
	UEdGraphPin* GetDefaultPin() const { return FindPin(TEXT("Default")); }
	UEdGraphPin* GetFunctionPin() const { return FindPin(FunctionName); }
	virtual void AddPinToSwitchNode();
	virtual void RemovePinFromSwitchNode(UEdGraphPin* TargetPin);
	virtual void AllocateDefaultPins() override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual void CreateSelectionPin() {}
	virtual void CreateCasePins();
	/** The names that a user gave the cases; null where the cases are not named. */
	virtual TArray<FName>* GetNamedCases() { return nullptr; }
	/** For cases that have values beside their names: there are as many values as names from now on. */
	virtual void SetNumCaseValues(int32 Num) {}
	virtual void RemoveCaseValue(int32 Index) {}
	void CreateFunctionPin();
	/** A library that has comparison functions. */
	void SetComparison(const TCHAR* ClassPath, FName InFunctionName);
};
