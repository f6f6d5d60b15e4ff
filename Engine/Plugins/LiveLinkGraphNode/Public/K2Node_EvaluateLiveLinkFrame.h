#pragma once

#include "K2Node.h"

#include "K2Node_EvaluateLiveLinkFrame.generated.h"

/** Asks for a frame of a live link subject, in the form that a role gives it. */
UCLASS(abstract)
class LIVELINKGRAPHNODE_API UK2Node_EvaluateLiveLinkFrame : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetLiveLinkRolePin() const { return FindPin(TEXT("LiveLinkRole"), EGPD_Input); }
	UEdGraphPin* GetLiveLinkSubjectPin() const { return FindPin(TEXT("LiveLinkSubject"), EGPD_Input); }
	UEdGraphPin* GetResultingDataPin() const { return FindPin(TEXT("DataResult"), EGPD_Output); }
	UEdGraphPin* GetFrameNotAvailablePin() const { return FindPin(TEXT("FrameNotAvailable"), EGPD_Output); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetMenuCategory() const override;

protected:
	/** Pins that say which frame is asked for. */
	virtual void CreateTimePins() {}
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};
