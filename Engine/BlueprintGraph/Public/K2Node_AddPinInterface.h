#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "UObject/ObjectMacros.h"

#include "K2Node_AddPinInterface.generated.h"

class UEdGraphPin;

UINTERFACE(MinimalAPI, meta = (CannotImplementInterfaceInBlueprint))
class UK2Node_AddPinInterface : public UInterface
{
	GENERATED_BODY()
};

/** A node whose number of pins a user chooses. */
class BLUEPRINTGRAPH_API IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	/** Additional pins are named by the letters of the alphabet. */
	static constexpr int32 GetMaxInputPinsNum() { return 26; }
	/** "A" for the first. */
	static FName GetNameForAdditionalPin(int32 PinIndex);

	virtual void AddInputPin() {}
	virtual bool CanAddPin() const { return true; }
	virtual void RemoveInputPin(UEdGraphPin* Pin) {}
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const { return false; }
};
