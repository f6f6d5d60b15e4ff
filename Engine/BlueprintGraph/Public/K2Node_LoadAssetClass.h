#pragma once

#include "K2Node_LoadAsset.h"

#include "K2Node_LoadAssetClass.generated.h"

/** Asynchronously loads a Soft Class Reference and returns class of the correct type if the load succeeds. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_LoadAssetClass : public UK2Node_LoadAsset
{
	GENERATED_BODY()

protected:
	virtual FName GetInputCategory() const override { return UEdGraphSchema_K2::PC_SoftClass; }
	virtual FName GetOutputCategory() const override { return UEdGraphSchema_K2::PC_Class; }
	virtual FName GetInputPinName() const override { return FName(TEXT("AssetClass")); }
	virtual FName GetOutputPinName() const override { return FName(TEXT("Class")); }

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};
