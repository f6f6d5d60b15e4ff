#pragma once

#include "K2Node.h"

#include "K2Node_Timeline.generated.h"

class UTimelineTemplate;

/** Gives values that change over time. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Timeline : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName TimelineName;

	UPROPERTY()
	uint32 bAutoPlay : 1 = false;

	UPROPERTY()
	uint32 bLoop : 1 = false;

	UPROPERTY()
	uint32 bReplicated : 1 = false;

	UPROPERTY()
	uint32 bIgnoreTimeDilation : 1 = false;

	UPROPERTY()
	FGuid TimelineGuid;

	UEdGraphPin* GetPlayPin() const { return FindPin(TEXT("Play")); }
	UEdGraphPin* GetUpdatePin() const { return FindPin(TEXT("Update")); }
	UEdGraphPin* GetFinishedPin() const { return FindPin(TEXT("Finished")); }
	/** The Blueprint's timeline of this node; null when it has lost it. */
	UTimelineTemplate* GetTemplate() const;
	virtual bool HasKnownDefinition() const override;
	virtual bool IsCompatibleWithGraph(const UEdGraph* TargetGraph) const override;
	virtual void AllocateDefaultPins() override;
	virtual void PostPlacedNewNode() override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};
