#pragma once

#include "K2Node_Composite.h"

#include "K2Node_MathExpression.generated.h"

/** A collapsed graph that is made of an expression that a user types: "(x + 2) * sin(angle)". */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MathExpression : public UK2Node_Composite
{
	GENERATED_BODY()

public:
	/** What the user typed last, even when it could not be understood. */
	UPROPERTY()
	FString Expression;

	UPROPERTY()
	bool bMadeAfterRotChange = true;

	/**
	 * Makes the graph anew. A name in the expression is a variable of the Blueprint or else an input of the node, a number until
	 * the input has another type. What is wrong with the expression becomes the node's error.
	 */
	void RebuildExpression(const FString& NewExpression);
	virtual bool IsNodePure() const override { return true; }
	virtual void OnRenameNode(const FString& NewName) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;

private:
	void SetError(const FString& Message);
};
