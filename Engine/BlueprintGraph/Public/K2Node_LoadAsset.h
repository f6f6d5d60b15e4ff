#pragma once

#include "K2Node.h"

#include "K2Node_LoadAsset.generated.h"

/** Asynchronously loads a Soft Object Reference and returns object of the correct type if the load succeeds. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_LoadAsset : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual FName GetInputCategory() const { return UEdGraphSchema_K2::PC_SoftObject; }
	virtual FName GetOutputCategory() const { return UEdGraphSchema_K2::PC_Object; }
	virtual FName GetInputPinName() const { return FName(TEXT("Asset")); }
	virtual FName GetOutputPinName() const { return FName(TEXT("Object")); }
	virtual FText GetMenuCategory() const override;
};
