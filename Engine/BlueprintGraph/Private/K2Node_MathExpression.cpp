#include "K2Node_MathExpression.h"

#include "EdGraph/EdGraph.h"
#include "Logging/TokenizedMessage.h"
#include "MathExpressionGraph.h"
#include "MathExpressionParser.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_MathExpression::SetError(const FString& Message)
{
	bHasCompilerMessage = !Message.IsEmpty();
	ErrorType = Message.IsEmpty() ? 0 : static_cast<int32>(EMessageSeverity::Error);
	ErrorMsg = Message;
}

void UK2Node_MathExpression::OnRenameNode(const FString& NewName)
{
	RebuildExpression(NewName);
}

void UK2Node_MathExpression::RebuildExpression(const FString& NewExpression)
{
	if (!BoundGraph || !GetEntryNode() || !GetExitNode())
	{
		return;
	}
	Modify();
	BoundGraph->Modify();
	Expression = NewExpression;
	FString Error;
	const TUniquePtr<FMathExpressionPart> Root = ParseMathExpression(NewExpression, Error);
	FMathExpressionGraph Graph(*this);
	Graph.Clear();
	if (Root)
	{
		Error = Graph.Build(*Root);
	}
	SetError(Error);
	ReconstructNode();
}

FText UK2Node_MathExpression::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	if (TitleType == ENodeTitleType::MenuTitle)
	{
		return LOCTEXT("MathExpression_MenuTitle", "Add Math Expression...");
	}
	if (TitleType == ENodeTitleType::EditableTitle || !Expression.IsEmpty())
	{
		return FText::FromString(Expression);
	}
	return LOCTEXT("MathExpression_Title", "Math Expression");
}

FText UK2Node_MathExpression::GetTooltipText() const
{
	return Expression.IsEmpty() ? LOCTEXT("MathExpression_Tooltip", "Create a new mathematical expression") : FText::FromString(Expression);
}

FText UK2Node_MathExpression::GetMenuCategory() const
{
	return LOCTEXT("MathExpression_Category", "Math");
}

#undef LOCTEXT_NAMESPACE
