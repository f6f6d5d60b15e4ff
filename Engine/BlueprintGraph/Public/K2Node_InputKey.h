#pragma once

#include "InputCoreTypes.h"
#include "K2Node.h"

#include "K2Node_InputKey.generated.h"

/** Events of a key. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_InputKey : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FKey InputKey;

	UPROPERTY()
	uint32 bConsumeInput : 1 = true;

	UPROPERTY()
	uint32 bExecuteWhenPaused : 1 = false;

	UPROPERTY()
	uint32 bOverrideParentBinding : 1 = true;

	UPROPERTY()
	uint32 bControl : 1 = false;

	UPROPERTY()
	uint32 bAlt : 1 = false;

	UPROPERTY()
	uint32 bShift : 1 = false;

	UPROPERTY()
	uint32 bCommand : 1 = false;

	UEdGraphPin* GetPressedPin() const { return FindPin(TEXT("Pressed")); }
	UEdGraphPin* GetReleasedPin() const { return FindPin(TEXT("Released")); }
	/** The key with the modifiers that must be held: "Ctrl+Shift+A". */
	FText GetKeyText() const;
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};
