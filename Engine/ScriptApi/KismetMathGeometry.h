// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathGeometry.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Select Color"))
	static FLinearColor SelectColor(FLinearColor A, FLinearColor B, bool bPickA);

	/** A colour of its parts, each from 0 to 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (Keywords = "construct build", NativeMakeFunc))
	static FLinearColor MakeColor(float R, float G, float B, float A = 1.0f);

	/** The parts of a colour */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (NativeBreakFunc))
	static void BreakColor(FLinearColor InColor, float& R, float& G, float& B, float& A);

	/** A colour of hue in degrees, saturation and value */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "HSV to RGB"))
	static FLinearColor HSVToRGB(float H, float S, float V, float A = 1.0f);

	/** A at Alpha 0, B at Alpha 1, and straight between them */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Lerp (LinearColor)"))
	static FLinearColor LinearColorLerp(FLinearColor A, FLinearColor B, float Alpha);

	/** Each part times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "LinearColor * Float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FLinearColor Multiply_LinearColorFloat(FLinearColor A, float B);

	/** A frame rate of its fraction. */
	UFUNCTION(BlueprintPure, Category = "Math|Frame Rate", meta = (NativeMakeFunc))
	static FFrameRate MakeFrameRate(int32 Numerator, int32 Denominator = 1);

	/** The fraction of a frame rate. */
	UFUNCTION(BlueprintPure, Category = "Math|Frame Rate", meta = (NativeBreakFunc))
	static void BreakFrameRate(const FFrameRate& InFrameRate, int32& Numerator, int32& Denominator);

	/** A time of a frame and its rate. */
	UFUNCTION(BlueprintPure, Category = "Math|Frame Rate", meta = (NativeMakeFunc))
	static FQualifiedFrameTime MakeQualifiedFrameTime(FFrameNumber Frame, FFrameRate FrameRate, float SubFrame = 0.0f);

	/** The parts of a time of frames. */
	UFUNCTION(BlueprintPure, Category = "Math|Frame Rate", meta = (NativeBreakFunc))
	static void BreakQualifiedFrameTime(
		const FQualifiedFrameTime& InFrameTime, FFrameNumber& Frame, FFrameRate& FrameRate, float& SubFrame);

	/** Seconds of a time of frames. */
	UFUNCTION(BlueprintPure, Category = "Math|Frame Rate", meta = (DisplayName = "Qualified Frame Time To Seconds", BlueprintAutocast))
	static float Conv_QualifiedFrameTimeToSeconds(const FQualifiedFrameTime& InFrameTime);

	/** Seconds of one frame. */
	UFUNCTION(BlueprintPure, Category = "Math|Frame Rate", meta = (DisplayName = "Frame Rate To Seconds", BlueprintAutocast))
	static float Conv_FrameRateToSeconds(const FFrameRate& InFrameRate);

	/** A rectangle of its corners. */
	UFUNCTION(BlueprintPure, Category = "Math|Frame Rate", meta = (Keywords = "construct build", NativeMakeFunc))
	static FBox2D MakeBox2D(FVector2D Min, FVector2D Max);

	/** White. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "White (LinearColor)"))
	static FLinearColor LinearColor_White();

	/** Grey. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Gray (LinearColor)"))
	static FLinearColor LinearColor_Gray();

	/** Black. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Black (LinearColor)"))
	static FLinearColor LinearColor_Black();

	/** Red. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Red (LinearColor)"))
	static FLinearColor LinearColor_Red();

	/** Green. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Green (LinearColor)"))
	static FLinearColor LinearColor_Green();

	/** Blue. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Blue (LinearColor)"))
	static FLinearColor LinearColor_Blue();

	/** Yellow. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Yellow (LinearColor)"))
	static FLinearColor LinearColor_Yellow();

	/** Black that lets all light through. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Transparent (LinearColor)"))
	static FLinearColor LinearColor_Transparent();

	/** Copies a colour. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "Set (LinearColor)"))
	static void LinearColor_Set(UPARAM(ref) FLinearColor& InOutColor, FLinearColor InColor);

	/** Sets the parts of a colour. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "Set RGBA (LinearColor)"))
	static void LinearColor_SetRGBA(UPARAM(ref) FLinearColor& InOutColor, float R, float G, float B, float A = 1.0f);

	/** Sets a colour of hue, saturation and value. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "Set from HSV (LinearColor)"))
	static void LinearColor_SetFromHSV(UPARAM(ref) FLinearColor& InOutColor, float H, float S, float V, float A = 1.0f);

	/** Sets a colour of an sRGB one. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "Set from SRGB (LinearColor)"))
	static void LinearColor_SetFromSRGB(UPARAM(ref) FLinearColor& InOutColor, const FColor& InSRGB);

	/** Sets a colour of one with a gamma of 2.2. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "Set from Pow22 (LinearColor)"))
	static void LinearColor_SetFromPow22(UPARAM(ref) FLinearColor& InOutColor, const FColor& InColor);

	/** Sets the colour of a glowing body, in kelvin. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "Set Temperature (LinearColor)"))
	static void LinearColor_SetTemperature(UPARAM(ref) FLinearColor& InOutColor, float InTemperature);

	/** Sets a colour of a random hue. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "Set Random Hue (LinearColor)"))
	static void LinearColor_SetRandomHue(UPARAM(ref) FLinearColor& InOutColor);

	/** Colour of hue, saturation and value. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "HSV to RGB (vector)"))
	static FLinearColor HSVToRGBLinear(FLinearColor HSV);

	/** Colour of hue, saturation and value. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "HSV To RGB (Vector)"))
	static void HSVToRGB_Vector(const FLinearColor HSV, FLinearColor& RGB);

	/** Hue, saturation and value of a colour. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "RGB To HSV"))
	static void RGBToHSV(const FLinearColor InColor, float& H, float& S, float& V, float& A);

	/** Hue, saturation and value of a colour. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (DisplayName = "RGB To HSV (Vector)"))
	static void RGBToHSV_Vector(const FLinearColor RGB, FLinearColor& HSV);

	/** Hue, saturation and value of a colour. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "RGB to HSV (vector)"))
	static FLinearColor RGBLinearToHSV(FLinearColor RGB);

	/** A colour between two, by hue. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Lerp Using HSV (LinearColor)"))
	static FLinearColor LinearColorLerpUsingHSV(FLinearColor A, FLinearColor B, float Alpha);

	/** True if the colours are nearly the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Near Equal (LinearColor)"))
	static bool LinearColor_IsNearEqual(FLinearColor A, FLinearColor B, float Tolerance = 1.e-4f);

	/** The colour nearer to grey. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Desaturate (LinearColor)"))
	static FLinearColor LinearColor_Desaturated(FLinearColor InColor, float InDesaturation);

	/** How far two colours lie apart. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Distance (LinearColor)"))
	static float LinearColor_Distance(FLinearColor C1, FLinearColor C2);

	/** The colour with another opacity. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "To New Opacity (LinearColor)"))
	static FLinearColor LinearColor_ToNewOpacity(FLinearColor InColor, float InOpacity);

	/** How bright a colour is to the eye. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Get Luminance (LinearColor)"))
	static float LinearColor_GetLuminance(FLinearColor InColor);

	/** The largest part. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Get Max (LinearColor)"))
	static float LinearColor_GetMax(FLinearColor InColor);

	/** The smallest part. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Get Min (LinearColor)"))
	static float LinearColor_GetMin(FLinearColor InColor);

	/** The colour with a shared exponent. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "To RGBE (LinearColor)"))
	static FColor LinearColor_ToRGBE(FLinearColor InLinearColor);

	/** Colour of 8 bits a part, rounded, without sRGB. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "Quantize with rounding (LinearColor)", CompactNodeTitle = "->", Keywords = "cast convert"))
	static FColor LinearColor_QuantizeRound(FLinearColor InColor);

	/** Colour of 8 bits a part, cut, without sRGB. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "Quantize (LinearColor)", CompactNodeTitle = "->", Keywords = "cast convert"))
	static FColor LinearColor_Quantize(FLinearColor InColor);

	/** The plane through a point that faces a direction. */
	UFUNCTION(BlueprintPure, Category = "Math|Plane")
	static FPlane MakePlaneFromPointAndNormal(FVector Point, FVector Normal);

	/** Where a segment meets a plane. */
	UFUNCTION(BlueprintPure, Category = "Math|Intersection", meta = (DisplayName = "Line Plane Intersection"))
	static bool LinePlaneIntersection(
		const FVector& LineStart, const FVector& LineEnd, const FPlane& APlane, float& T, FVector& Intersection);

	/** Where a segment meets a plane. */
	UFUNCTION(BlueprintPure, Category = "Math|Intersection", meta = (DisplayName = "Line Plane Intersection (Origin & Normal)"))
	static bool LinePlaneIntersection_OriginNormal(
		const FVector& LineStart, const FVector& LineEnd, FVector PlaneOrigin, FVector PlaneNormal, float& T, FVector& Intersection);

	/** The smallest rectangle around points on a surface. */
	UFUNCTION(BlueprintCallable, Category = "Math|Geometry", meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext))
	static void MinimumAreaRectangle(UObject* WorldContextObject, const TArray<FVector>& InVerts, const FVector& SampleSurfaceNormal,
		FVector& OutRectCenter, FRotator& OutRectRotation, float& OutSideLengthX, float& OutSideLengthY, bool bDebugDraw = false);

	/** True if all points lie in one plane. */
	UFUNCTION(BlueprintPure, Category = "Math|Geometry")
	static bool PointsAreCoplanar(const TArray<FVector>& Points, float Tolerance = 0.1f);

	/** A box of its corners. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (Keywords = "construct build", NativeMakeFunc))
	static FBox MakeBox(FVector Min, FVector Max);

	/** A box of its middle and half size. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Make Box with Origin", Keywords = "construct build"))
	static FBox MakeBoxWithOrigin(const FVector& Origin, const FVector& Extent);

	/** True if the box holds a point. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Is Point Inside (Box)"))
	static bool Box_IsPointInside(const FBox& Box, const FVector& Point);

	/** True if one box holds another. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Is Inside (Box)"))
	static bool Box_IsInside(const FBox& InnerTest, const FBox& OuterTest);

	/** True if two boxes share space. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Intersects (Box)"))
	static bool Box_Intersects(const FBox& A, const FBox& B);

	/** The space that two boxes share. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Overlap (Box)"))
	static FBox Box_Overlap(const FBox& A, const FBox& B);

	/** A larger box. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Expand By (Box)"))
	static FBox Box_ExpandBy(const FBox& Box, const FVector& Negative, const FVector& Positive);

	/** The box moved. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Shift (Box)"))
	static FBox Box_Shift(const FBox& Box, const FVector& Shift);

	/** Middle of a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Get Center (Box)"))
	static FVector Box_GetCenter(const FBox& Box);

	/** Half size of a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Get Extent (Box)"))
	static FVector Box_GetExtent(const FBox& Box);

	/** Size of a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Get Size (Box)"))
	static FVector Box_GetSize(const FBox& Box);

	/** Volume of a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Get Volume (Box)"))
	static double Box_GetVolume(const FBox& Box);

	/** The point of a box that is nearest. */
	UFUNCTION(BlueprintPure, Category = "Math|Box", meta = (DisplayName = "Get Closest Point To (Box)"))
	static FVector Box_GetClosestPointTo(const FBox& Box, const FVector& Point);

	/** Addition (A + B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "LinearColor + LinearColor", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FLinearColor Add_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** Subtraction (A - B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "LinearColor - LinearColor", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FLinearColor Subtract_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** Multiplication (A * B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "LinearColor * LinearColor", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FLinearColor Multiply_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** Division (A / B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "LinearColor / LinearColor", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FLinearColor Divide_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** True if the colours are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "Equal (LinearColor)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** True if the colours differ. */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (DisplayName = "Not Equal (LinearColor)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_LinearColorLinearColor(FLinearColor A, FLinearColor B);
};
