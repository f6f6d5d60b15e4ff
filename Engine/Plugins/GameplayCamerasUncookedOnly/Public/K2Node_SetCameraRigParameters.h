#pragma once

#include "K2Node.h"

#include "K2Node_SetCameraRigParameters.generated.h"

/** Sets parameters of a camera rig. */
UCLASS()
class GAMEPLAYCAMERASUNCOOKEDONLY_API UK2Node_SetCameraRigParameters : public UK2Node
{
	GENERATED_BODY()

public:
	/** The camera rig, an asset whose parameters become inputs. */
	UPROPERTY()
	TObjectPtr<UObject> CameraRig = nullptr;

	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};
