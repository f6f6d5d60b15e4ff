#include "GraphFormatter/NodeMeasure.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "K2Node.h"
#include "K2Node_Event.h"
#include "K2Node_Knot.h"

namespace
{
constexpr double TitleCharacterWidth = 8.5;
constexpr double TitleMargin = 56;
constexpr double TitleLineHeight = 24;
/** What stands below the title is written smaller. */
constexpr double SubtitleLineHeight = 14;
constexpr double LabelCharacterWidth = 7;
/** A pin's arrow or circle with its margins. */
constexpr double PinWidth = 40;
/** The box in which a default value is typed. */
constexpr double ValueBoxWidth = 72;
constexpr double PinHeight = 26;
constexpr double Margin = 8;
constexpr double LeastWidth = 96;
const FVector2D KnotSize(42, 24);

double GetLabelWidth(const UEdGraphNode& Node, const UEdGraphPin& Pin)
{
	const double Label = LabelCharacterWidth * Node.GetPinDisplayName(&Pin).ToString().Len() + PinWidth;
	const bool bHasBox = Pin.Direction == EGPD_Input && Pin.LinkedTo.IsEmpty() && !Pin.GetDefaultAsString().IsEmpty();
	return bHasBox ? Label + ValueBoxWidth : Label;
}

/** The lines of the title; none where the node shows its pins alone. */
TArray<FString> GetTitleLines(const UEdGraphNode& Node)
{
	const UK2Node* const K2Node = Cast<UK2Node>(&Node);
	TArray<FString> Lines;
	if (!K2Node || !K2Node->ShouldDrawCompact())
	{
		Node.GetNodeTitle(ENodeTitleType::FullTitle).ToString().ParseIntoArrayLines(Lines);
	}
	return Lines;
}
}

bool FNodeMeasure::IsShown(const UEdGraphNode& Node, const UEdGraphPin& Pin)
{
	// An event's own delegate is shown in its title.
	if (Node.IsA<UK2Node_Event>() && Pin.PinName == UK2Node_Event::DelegateOutputName)
	{
		return false;
	}
	const bool bFoldedAway = Pin.bAdvancedView && Node.AdvancedPinDisplay == ENodeAdvancedPins::Hidden && Pin.LinkedTo.IsEmpty();
	return !Pin.bHidden && !bFoldedAway;
}

FNodeMeasure::FNodeMeasure(const UEdGraphNode& Node)
{
	const TArray<FString> Lines = GetTitleLines(Node);
	double TitleWidth = 0;
	for (const FString& Line : Lines)
	{
		TitleWidth = FMath::Max(TitleWidth, TitleCharacterWidth * Line.Len() + TitleMargin);
	}
	const double TitleHeight = Lines.IsEmpty() ? 0 : TitleLineHeight + SubtitleLineHeight * (Lines.Num() - 1);
	TitleY = TitleHeight / 2;

	// Inputs stand on the left, outputs on the right.
	double Widths[2] = {};
	int32 Counts[2] = {};
	for (const UEdGraphPin* const Pin : Node.Pins)
	{
		if (Pin && IsShown(Node, *Pin))
		{
			const int32 Side = Pin->Direction == EGPD_Input ? 0 : 1;
			PinYs.Add(Pin, TitleHeight + Margin + PinHeight * (Counts[Side]++ + 0.5));
			Widths[Side] = FMath::Max(Widths[Side], GetLabelWidth(Node, *Pin));
		}
	}
	Size.X = FMath::Max3(TitleWidth, Widths[0] + Widths[1], LeastWidth);
	Size.Y = TitleHeight + 2 * Margin + PinHeight * FMath::Max3(Counts[0], Counts[1], 1);

	if (Node.IsA<UK2Node_Knot>())
	{
		Size = KnotSize;
		for (auto& [Pin, Y] : PinYs)
		{
			Y = KnotSize.Y / 2;
		}
	}
	// A node that a user has sized says so itself.
	Size.X = Node.NodeWidth > 0 ? Node.NodeWidth : Size.X;
	Size.Y = FMath::Max(Size.Y, static_cast<double>(Node.NodeHeight));
}

double FNodeMeasure::GetPinY(const UEdGraphPin& Pin) const
{
	const double* const Y = PinYs.Find(&Pin);
	return Y ? *Y : TitleY;
}
