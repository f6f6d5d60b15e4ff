#pragma once

#include "K2Node_ConvertAsset.h"

#include "NodeTestTypes.generated.h"

/** A node of a module that the plug-in does not know, of a class below one that it knows by name, with a member that its id is made of. */
UCLASS()
class UK2Node_ConvertAssetOfClass : public UK2Node_ConvertAsset
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UClass> TargetClass = nullptr;
};
