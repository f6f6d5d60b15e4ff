#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"

class UEdGraph;
class UEdGraphPin;
class UFunction;
class UK2Node_MathExpression;
class UK2Node_Tunnel;
struct FMathExpressionPart;

/** Makes the nodes of a math expression's graph. */
class FMathExpressionGraph
{
public:
	explicit FMathExpressionGraph(UK2Node_MathExpression& InNode);

	/** Takes out all but the ends of the graph. */
	void Clear();
	/** Puts the nodes in, the inputs that the expression names, and the result. What went wrong, or an empty text. */
	FString Build(const FMathExpressionPart& Root);

private:
	/** A value on its way: a pin, or a literal's text. */
	struct FValue
	{
		UEdGraphPin* Pin = nullptr;
		FString Literal;
		FEdGraphPinType Type;
	};

	/** Rank counts the steps to the result: nodes of a rank stand in one column. False after an error. */
	bool MakeValue(const FMathExpressionPart& Part, int32 Rank, FValue& OutValue);
	bool MakeCall(const FMathExpressionPart& Part, int32 Rank, FValue& OutValue);
	FValue MakeLiteral(const FString& Text) const;
	FValue MakeName(const FString& Name, int32 Rank);
	bool Feed(const FValue& Value, UEdGraphPin* Pin);
	UFunction* FindFunction(const FMathExpressionPart& Part, const TArray<FEdGraphPinType>& Types) const;
	template <class NodeType>
	NodeType* AddNode(int32 Rank, TFunctionRef<void(NodeType&)> Prepare);

	UEdGraph& Graph;
	UK2Node_Tunnel& Entry;
	UK2Node_Tunnel& Exit;
	/** Inputs that the expression names. */
	TSet<FName> UsedInputs;
	/** How many nodes stand in the column of each rank. */
	TArray<int32> Rows;
	FString Error;
};
