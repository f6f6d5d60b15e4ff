#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphNode.h"

#include "EdGraphNode_Comment.generated.h"

/** What a comment box moves with it. */
UENUM()
namespace ECommentBoxMode
{
enum Type : int
{
	GroupMovement UMETA(DisplayName = "Group Movement"),
	NoGroupMovement UMETA(DisplayName = "Comment")
};
}

/** A box with a text around nodes. It has no pins. */
UCLASS(MinimalAPI)
class UEdGraphNode_Comment : public UEdGraphNode
{
	GENERATED_BODY()

public:
	UNREALED_API UEdGraphNode_Comment(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The colour of the comment. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Comment)
	FLinearColor CommentColor = FLinearColor::White;

	UPROPERTY(EditAnywhere, Category = Comment, meta = (ClampMin = 1, ClampMax = 1000))
	int32 FontSize = 18;

	UPROPERTY(EditAnywhere, Category = Comment, meta = (DisplayName = "Show Bubble When Zoomed"))
	uint32 bCommentBubbleVisible_InDetailsPanel : 1;

	UPROPERTY(EditAnywhere, Category = Comment)
	uint32 bColorCommentBubble : 1;

	UPROPERTY(EditAnywhere, Category = Comment)
	TEnumAsByte<ECommentBoxMode::Type> MoveMode = ECommentBoxMode::GroupMovement;

	UPROPERTY()
	int32 CommentDepth = -1;

	/** Puts the box around a rectangle of the graph. */
	UNREALED_API void SetBounds(const FVector2D& TopLeft, const FVector2D& Size);
	UNREALED_API void AddNodeUnderComment(UObject* Object);
	const TArray<UObject*>& GetNodesUnderComment() const { return NodesUnderComment; }

	// UEdGraphNode
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FLinearColor GetNodeCommentColor() const override { return CommentColor; }
	virtual void OnRenameNode(const FString& NewName) override;
	virtual void ResizeNode(const FVector2D& NewSize) override;
	virtual void PostPlacedNewNode() override;
	virtual bool GetCanRenameNode() const override { return true; }

private:
	TArray<UObject*> NodesUnderComment;
};
