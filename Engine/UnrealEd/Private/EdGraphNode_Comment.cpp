#include "EdGraphNode_Comment.h"

#define LOCTEXT_NAMESPACE "EdGraph"

UEdGraphNode_Comment::UEdGraphNode_Comment(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bCommentBubbleVisible_InDetailsPanel(true)
	, bColorCommentBubble(false)
{
	NodeWidth = 400;
	NodeHeight = 100;
	bCommentBubblePinned = true;
	bCommentBubbleVisible = true;
}

void UEdGraphNode_Comment::PostPlacedNewNode()
{
	if (NodeComment.IsEmpty())
	{
		NodeComment = LOCTEXT("CommentBlock_NewEmptyComment", "Comment").ToString();
	}
}

FText UEdGraphNode_Comment::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	if (TitleType == ENodeTitleType::MenuTitle)
	{
		return LOCTEXT("NewComment", "Add Comment...");
	}
	return FText::FromString(NodeComment);
}

FText UEdGraphNode_Comment::GetTooltipText() const
{
	return NodeComment.IsEmpty() ? LOCTEXT("CommentBlock_NewEmptyTooltip", "Comment block") : FText::FromString(NodeComment);
}

void UEdGraphNode_Comment::OnRenameNode(const FString& NewName)
{
	OnUpdateCommentText(NewName);
}

void UEdGraphNode_Comment::ResizeNode(const FVector2D& NewSize)
{
	NodeWidth = static_cast<int32>(NewSize.X);
	NodeHeight = static_cast<int32>(NewSize.Y);
}

void UEdGraphNode_Comment::SetBounds(const FVector2D& TopLeft, const FVector2D& Size)
{
	NodePosX = static_cast<int32>(TopLeft.X);
	NodePosY = static_cast<int32>(TopLeft.Y);
	ResizeNode(Size);
}

void UEdGraphNode_Comment::AddNodeUnderComment(UObject* Object)
{
	if (Object)
	{
		NodesUnderComment.AddUnique(Object);
	}
}

#undef LOCTEXT_NAMESPACE
