#pragma once

#include "K2Node_EvaluateLiveLinkFrame.h"

#include "K2Node_EvaluateLiveLinkFrameWithSpecificRole.generated.h"

/** Evaluates the current frame of a subject with a role. */
UCLASS()
class LIVELINKGRAPHNODE_API UK2Node_EvaluateLiveLinkFrameWithSpecificRole : public UK2Node_EvaluateLiveLinkFrame
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};
