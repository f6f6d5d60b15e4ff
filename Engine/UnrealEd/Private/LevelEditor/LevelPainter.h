#pragma once

#include "CoreMinimal.h"
#include "Math/Box2D.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"

class AActor;
class FHeadlessCanvas;
class UWorld;

/** Draws a level from above, north (the X axis) up and east (the Y axis) to the right, with a scale. */
class FLevelPainter
{
public:
	explicit FLevelPainter(const UWorld& InWorld);

	FIntPoint GetSize() const;
	void Draw(FHeadlessCanvas& Canvas) const;

private:
	/** An actor's place on the picture: X to the right, Y down, in centimetres. */
	struct FPlace
	{
		FString Label;
		FString ClassName;
		FVector2D Location;
		double Height = 0.0;
		/** The direction that it looks in. */
		FVector2D Forward;
		/** Corners of its extent, in order; none for an actor without one. */
		TArray<FVector2D> Outline;
		/** Radius of a round extent; 0 for none. */
		double Radius = 0.0;
		FColor Color = FColor::White;
	};

	static FPlace MakePlace(const AActor& Actor);
	static void AddExtent(const AActor& Actor, FPlace& Place);
	void DrawGrid(FHeadlessCanvas& Canvas, double Step) const;
	void DrawPlace(FHeadlessCanvas& Canvas, const FPlace& Place) const;
	void DrawLabels(FHeadlessCanvas& Canvas) const;
	void DrawLegend(FHeadlessCanvas& Canvas, double Step) const;
	FVector2D ToPixels(const FVector2D& Point) const { return Corner + (Point - Bounds.Min) * Scale; }

	FString Name;
	TArray<FPlace> Places;
	/** Of all places, with room around them. */
	FBox2D Bounds;
	/** Pixels of a centimetre, and the pixel of the bounds' upper left corner. */
	double Scale = 1.0;
	FVector2D Corner;
};
