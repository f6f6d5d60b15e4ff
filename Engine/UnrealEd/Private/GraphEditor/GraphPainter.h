#pragma once

#include "CoreMinimal.h"
#include "GraphEditor/GraphLayout.h"

class FHeadlessCanvas;

/** Draws a graph that is laid out. The canvas's view must be set, and its scale decides how much is worth drawing. */
class FGraphPainter
{
public:
	FGraphPainter(const FGraphLayout& InLayout, FHeadlessCanvas& InCanvas)
		: Layout(InLayout)
		, Canvas(InCanvas)
	{
	}

	/** All that touches the rectangle, which is in graph units. */
	void Draw(const FBox2D& Visible);

private:
	void DrawGrid(const FBox2D& Visible);
	void DrawWires(const FBox2D& Visible);
	void DrawNode(const FNodeLayout& Node);
	void DrawComment(const FNodeLayout& Node);
	void DrawTitle(const FNodeLayout& Node);
	void DrawMarks(const FNodeLayout& Node);
	void DrawPin(const FNodeLayout& Node, const FPinLayout& Pin);
	void DrawPinShape(const FPinLayout& Pin);
	void DrawValue(const FPinLayout& Pin, double Left);
	/** Whether text of that size can be read. */
	bool IsLegible(double TextSize) const;

	const FGraphLayout& Layout;
	FHeadlessCanvas& Canvas;
};
