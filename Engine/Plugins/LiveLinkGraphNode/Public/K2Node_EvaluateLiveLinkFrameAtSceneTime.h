#pragma once

#include "K2Node_EvaluateLiveLinkFrame.h"

#include "K2Node_EvaluateLiveLinkFrameAtSceneTime.generated.h"

/** Evaluates the frame that a subject had at a time code. */
UCLASS()
class LIVELINKGRAPHNODE_API UK2Node_EvaluateLiveLinkFrameAtSceneTime : public UK2Node_EvaluateLiveLinkFrame
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;

protected:
	virtual void CreateTimePins() override;
};
