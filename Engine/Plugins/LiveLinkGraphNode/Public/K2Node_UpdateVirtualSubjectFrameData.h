#pragma once

#include "K2Node_UpdateVirtualSubjectDataBase.h"

#include "K2Node_UpdateVirtualSubjectFrameData.generated.h"

/** Gives a virtual subject the data of a frame. */
UCLASS()
class LIVELINKGRAPHNODE_API UK2Node_UpdateVirtualSubjectFrameData : public UK2Node_UpdateVirtualSubjectDataBase
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};
