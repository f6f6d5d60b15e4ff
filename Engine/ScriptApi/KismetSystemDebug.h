// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetSystemDebug.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Draws a line for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugLine(const UObject* WorldContextObject, const FVector LineStart, const FVector LineEnd, FLinearColor LineColor,
		float Duration = 0.f, float Thickness = 0.f);

	/** Draws a sphere for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugSphere(const UObject* WorldContextObject, const FVector Center, float Radius = 100.f, int32 Segments = 12,
		FLinearColor LineColor = FLinearColor::White, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a box for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugBox(const UObject* WorldContextObject, const FVector Center, FVector Extent, FLinearColor LineColor,
		const FRotator Rotation = FRotator::ZeroRotator, float Duration = 0.f, float Thickness = 0.f);

	/** Draws an arrow for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugArrow(const UObject* WorldContextObject, const FVector LineStart, const FVector LineEnd, float ArrowSize,
		FLinearColor LineColor, float Duration = 0.f, float Thickness = 0.f);

	/** Draws three axes for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugCoordinateSystem(const UObject* WorldContextObject, const FVector AxisLoc, const FRotator AxisRot,
		float Scale = 1.f, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a circle for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugCircle(const UObject* WorldContextObject, FVector Center, float Radius, int32 NumSegments = 12,
		FLinearColor LineColor = FLinearColor::White, float Duration = 0.f, float Thickness = 0.f, FVector YAxis = FVector(0.f, 1.f, 0.f),
		FVector ZAxis = FVector(0.f, 0.f, 1.f), bool bDrawAxis = false);

	/** Draws a cylinder for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugCylinder(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius = 100.f,
		int32 Segments = 12, FLinearColor LineColor = FLinearColor::White, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a cone for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Draw Debug Cone", DeprecatedFunction))
	static void DrawDebugCone(const UObject* WorldContextObject, const FVector Origin, const FVector Direction, float Length,
		float AngleWidth, float AngleHeight, int32 NumSides = 12, FLinearColor LineColor = FLinearColor::White, float Duration = 0.f,
		float Thickness = 0.f);

	/** Draws a cone for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Draw Debug Cone", DevelopmentOnly))
	static void DrawDebugConeInDegrees(const UObject* WorldContextObject, const FVector Origin, const FVector Direction,
		float Length = 100.f, float AngleWidth = 45.f, float AngleHeight = 45.f, int32 NumSides = 12,
		FLinearColor LineColor = FLinearColor::White, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a capsule for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugCapsule(const UObject* WorldContextObject, const FVector Center, float HalfHeight, float Radius,
		const FRotator Rotation, FLinearColor LineColor = FLinearColor::White, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a text for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugString(const UObject* WorldContextObject, const FVector TextLocation, const FString& Text,
		AActor* TestBaseActor = nullptr, FLinearColor TextColor = FLinearColor::White, float Duration = 0.f);

	/** Takes away all texts drawn for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void FlushDebugStrings(const UObject* WorldContextObject);

	/** Draws a plane for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugPlane(const UObject* WorldContextObject, const FPlane& PlaneCoordinates, const FVector Location, float Size,
		FLinearColor PlaneColor = FLinearColor::White, float Duration = 0.f);

	/** Takes away all shapes drawn for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void FlushPersistentDebugLines(const UObject* WorldContextObject);

	/** Draws a field of view for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugFrustum(const UObject* WorldContextObject, const FTransform& FrustumTransform,
		FLinearColor FrustumColor = FLinearColor::White, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a camera for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (DevelopmentOnly))
	static void DrawDebugCamera(const ACameraActor* CameraActor, FLinearColor CameraColor = FLinearColor::White, float Duration = 0.f);

	/** Draws a graph for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugFloatHistoryTransform(const UObject* WorldContextObject, const FDebugFloatHistory& FloatHistory,
		const FTransform& DrawTransform, FVector2D DrawSize, FLinearColor DrawColor = FLinearColor::White, float Duration = 0.f);

	/** Draws a graph for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugFloatHistoryLocation(const UObject* WorldContextObject, const FDebugFloatHistory& FloatHistory,
		FVector DrawLocation, FVector2D DrawSize, FLinearColor DrawColor = FLinearColor::White, float Duration = 0.f);

	/** Adds a number to a graph. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (DevelopmentOnly))
	static FDebugFloatHistory AddFloatHistorySample(float Value, const FDebugFloatHistory& FloatHistory);

	/** Draws a point for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugPoint(
		const UObject* WorldContextObject, const FVector Position, float Size, FLinearColor PointColor, float Duration = 0.f);
};
