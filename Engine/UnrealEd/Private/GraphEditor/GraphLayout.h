#pragma once

#include "CoreMinimal.h"
#include "GraphEditor/NodeLook.h"
#include "Math/Box2D.h"
#include "Rendering/HeadlessCanvas.h"

class UEdGraph;
class UEdGraphNode;
class UEdGraphPin;

/** Sizes in graph units, which are pixels at a zoom of 1. */
namespace GraphSizes
{
inline constexpr double TitleText = 13.0;
inline constexpr double SubtitleText = 10.5;
inline constexpr double PinText = 11.0;
inline constexpr double CompactText = 17.0;
inline constexpr double CommentText = 18.0;
inline constexpr double Pin = 5.0;
inline constexpr double PinRow = 24.0;
inline constexpr double Padding = 8.0;
/** From a node's side to the middle of its pins. */
inline constexpr double PinInset = 14.0;
inline constexpr double Corner = 6.0;
/** Of nodes without a header. */
inline constexpr double RoundCorner = 15.0;
inline constexpr double CommentHeader = 32.0;
}

/** A pin as it is drawn. */
struct FPinLayout
{
	const UEdGraphPin* Pin = nullptr;
	FVector2D Center;
	FColor Color = FColor::White;
	FString Label;
	double LabelWidth = 0.0;
	/** Value of an input that nothing is linked to; empty for none. */
	FString Value;
	double ValueWidth = 0.0;
};

/** A node as it is drawn. */
struct FNodeLayout
{
	const UEdGraphNode* Node = nullptr;
	ENodeForm Form = ENodeForm::Full;
	FBox2D Box;
	double HeaderHeight = 0.0;
	FColor TitleColor = FColor::White;
	/** Between the inputs and the outputs of a node without a header. */
	double TitleCenter = 0.0;
	/** The title's lines. */
	TArray<FString> Title;
	TArray<FPinLayout> Pins;
};

/** Where everything of a graph is drawn. Valid until the graph changes. */
class FGraphLayout
{
public:
	explicit FGraphLayout(const UEdGraph& Graph);

	/** Comments first, the largest before those within it; then the others in the graph's order. */
	const TArray<FNodeLayout>& GetNodes() const { return Nodes; }
	const FBox2D& GetBounds() const { return Bounds; }
	/** Null for a pin that is not drawn. */
	const FPinLayout* FindPin(const UEdGraphPin* Pin) const;
	const FNodeLayout* FindNode(const UEdGraphNode* Node) const;

private:
	FNodeLayout LayOut(const UEdGraphNode& Node);
	void LayOutPins(FNodeLayout& Layout);
	void LayOutKnot(FNodeLayout& Layout);
	FPinLayout MakePin(const UEdGraphPin& Pin);
	double Measure(const FString& Text, double Size, bool bBold = false);

	TArray<FNodeLayout> Nodes;
	FBox2D Bounds;
	/** A pin's node and place in it. */
	TMap<const UEdGraphPin*, TPair<int32, int32>> Places;
	/** Widths of texts of size 1, plain and bold; most stand on many nodes. */
	TMap<FString, double> PlainWidths;
	TMap<FString, double> BoldWidths;
};
