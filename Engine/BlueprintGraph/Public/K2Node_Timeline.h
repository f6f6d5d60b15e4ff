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
	/** Gives the node a timeline of its own: a copy of the one that it was copied from, or one with tracks for its pins. */
	virtual void PostPasteNode() override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;

private:
	void MakeNameUnique(const UBlueprint& Blueprint);
	/** Adds this node's timeline to the Blueprint; Source is what it starts as, or null. */
	UTimelineTemplate* AddTemplate(UBlueprint& Blueprint, const UTimelineTemplate* Source);
	void AddTracksOfPins(UTimelineTemplate& Template) const;
};
