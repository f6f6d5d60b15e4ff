#pragma once

#include "K2Node.h"
#include "K2Node_AddPinInterface.h"

#include "K2Node_FormatText.generated.h"

/** Builds a formatted string from available format argument values. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_FormatText : public UK2Node, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FName> PinNames;

	UEdGraphPin* GetFormatPin() const { return FindPin(TEXT("Format")); }
	UEdGraphPin* FindArgumentPin(const FName InPinName) const { return FindPin(InPinName, EGPD_Input); }
	int32 GetArgumentCount() const { return PinNames.Num(); }
	/** None for an index that there is not. */
	FName GetArgumentName(int32 Index) const { return PinNames.IsValidIndex(Index) ? PinNames[Index] : FName(); }
	/** Only where the format is linked: else its own text names the arguments. */
	bool CanEditArguments() const;
	/** Names the argument anew; its link stays. Nothing happens for a name that another pin has. */
	void SetArgumentName(int32 Index, FName InName);
	void RemoveArgument(int32 Index);
	void SwapArguments(int32 IndexA, int32 IndexB);
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

	// IK2Node_AddPinInterface
	virtual void AddInputPin() override;
	virtual bool CanAddPin() const override { return CanEditArguments(); }
	virtual void RemoveInputPin(UEdGraphPin* Pin) override;
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;
};
