#pragma once

#include "InputCoreTypes.h"
#include "K2Node.h"

#include "K2Node_InputDebugKey.generated.h"

/** Events of a key, for debugging alone: they are not in a shipped game. */
UCLASS()
class INPUTBLUEPRINTNODES_API UK2Node_InputDebugKey : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FKey InputKey;

	UPROPERTY()
	uint32 bExecuteWhenPaused : 1 = false;

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
	/** An action for each key. */
	virtual void GetMenuActions(class FBlueprintActionDatabaseRegistrar& ActionRegistrar) const override;
};
