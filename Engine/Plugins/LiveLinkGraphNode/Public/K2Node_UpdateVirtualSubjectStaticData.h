#pragma once

#include "K2Node_UpdateVirtualSubjectDataBase.h"

#include "K2Node_UpdateVirtualSubjectStaticData.generated.h"

/** Gives a virtual subject the data that stay the same from frame to frame. */
UCLASS()
class LIVELINKGRAPHNODE_API UK2Node_UpdateVirtualSubjectStaticData : public UK2Node_UpdateVirtualSubjectDataBase
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};
