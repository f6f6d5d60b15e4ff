#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "BlueprintEditorSettings.generated.h"

/** What a user chooses about editing Blueprints; read through its class default object. */
UCLASS(config = EditorPerProjectUserSettings)
class BLUEPRINTGRAPH_API UBlueprintEditorSettings : public UObject
{
	GENERATED_BODY()

public:
	/** A link from an object to a pin of a class below the object's puts a cast between, instead of being refused. */
	UPROPERTY(EditAnywhere, config, Category = Workflow)
	uint8 bAutoCastObjectConnections : 1 = false;
};
