#pragma once

#include "CoreMinimal.h"
#include "Math/Box2D.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/Vector2D.h"
#include "Templates/UniquePtr.h"

/** How a text is drawn. */
struct FCanvasTextStyle
{
	/** Height of the letters' font in the view's units. */
	double Size = 13.0;
	bool bBold = false;
	bool bItalic = false;
	FColor Color = FColor::White;
};

/**
 * A picture that widgets of a host without windows draw themselves on. Places are in the units of the view, which SetView puts over the
 * picture; without it they are pixels from the top left. Not shared between threads. Specific to the headless host.
 */
class SLATE_API FHeadlessCanvas
{
public:
	/** Width and height are from 1 to 8192. */
	FHeadlessCanvas(const FIntPoint& InSize, const FColor& Background);
	~FHeadlessCanvas();
	UE_NONCOPYABLE(FHeadlessCanvas)

	FIntPoint GetSize() const { return Size; }
	/** Pixels that one unit is long. */
	double GetScale() const { return Scale; }

	/** Puts Origin at the pixel Corner, and makes a unit Scale pixels long. */
	void SetView(const FVector2D& Origin, double Scale, const FVector2D& Corner = FVector2D::ZeroVector);
	/** Leaves what is drawn next nothing outside a rectangle of the view, until the view is set anew. */
	void Clip(const FBox2D& Box);

	void FillBox(const FBox2D& Box, const FColor& Color, double Radius = 0.0);
	/** From the one colour at the left to the other at the right. */
	void FillGradient(const FBox2D& Box, const FColor& Left, const FColor& Right, double UpperRadius, double LowerRadius);
	void DrawBox(const FBox2D& Box, const FColor& Color, double Width, double Radius = 0.0);
	void FillShape(TConstArrayView<FVector2D> Corners, const FColor& Color);
	void DrawShape(TConstArrayView<FVector2D> Corners, const FColor& Color, double Width);
	void FillCircle(const FVector2D& Center, double Radius, const FColor& Color);
	void DrawCircle(const FVector2D& Center, double Radius, const FColor& Color, double Width);
	void DrawLine(const FVector2D& From, const FVector2D& To, const FColor& Color, double Width);
	/** A curve from From to To that leaves and arrives in the directions of its two handles. */
	void DrawCurve(const FVector2D& From, const FVector2D& FromHandle, const FVector2D& ToHandle, const FVector2D& To, const FColor& Color, double Width);
	/** One line with its upper left corner there; one longer than MaxWidth ends in an ellipsis. */
	void DrawText(const FString& Text, const FVector2D& Corner, const FCanvasTextStyle& Style, double MaxWidth = 0.0);

	/** Width and height of a line, in the units in which the style is. */
	static FVector2D MeasureText(const FString& Text, const FCanvasTextStyle& Style);

	/** Row by row from the top, opaque. */
	TArray<FColor> ReadPixels() const;

private:
	struct FPens;

	FIntPoint Size;
	double Scale = 1.0;
	TUniquePtr<FPens> Pens;
};
