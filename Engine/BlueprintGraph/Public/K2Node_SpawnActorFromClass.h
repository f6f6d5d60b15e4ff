#pragma once

#include "K2Node_ConstructObjectFromClass.h"

#include "K2Node_SpawnActorFromClass.generated.h"

/** Attempts to spawn a new Actor with the specified transform */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SpawnActorFromClass : public UK2Node_ConstructObjectFromClass
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetSpawnTransformPin() const { return FindPin(TEXT("SpawnTransform")); }
	UEdGraphPin* GetCollisionHandlingOverridePin() const { return FindPin(TEXT("CollisionHandlingOverride")); }
	UEdGraphPin* GetOwnerPin() const { return FindPin(TEXT("Owner")); }

protected:
	virtual UClass* GetClassPinBaseClass() const override;
	virtual void CreateOwnPins() override;
	virtual FText GetBaseNodeTitle() const override;
	virtual FText GetNodeTitleFormat() const override;
	virtual FText GetNothingSelectedTitle() const override;
};
