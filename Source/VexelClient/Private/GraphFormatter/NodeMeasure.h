#pragma once

#include "Math/MathFwd.h"

#include "CoreMinimal.h"

class UEdGraphNode;
class UEdGraphPin;

/**
 * How large a node is drawn, as far as the graph tells: the editor measures nodes only when it shows them. Counts on the safe side, so
 * that what is laid out by it does not overlap on the screen. Units of the graph.
 */
class FNodeMeasure
{
public:
	explicit FNodeMeasure(const UEdGraphNode& Node);

	const FVector2D& GetSize() const { return Size; }
	/** The pin's middle below the node's top edge. A pin that is not shown answers the middle of the title. */
	double GetPinY(const UEdGraphPin& Pin) const;

	/** Whether the node shows the pin. */
	static bool IsShown(const UEdGraphNode& Node, const UEdGraphPin& Pin);

private:
	TMap<const UEdGraphPin*, double> PinYs;
	FVector2D Size;
	double TitleY = 0;
};
