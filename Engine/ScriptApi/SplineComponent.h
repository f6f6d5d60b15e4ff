// Package: /Script/Engine
#pragma once

#include "PrimitiveComponent.h"
#include "SplineComponent.generated.h"

/** Space of a point of a curve. */
UENUM(BlueprintType)
namespace ESplineCoordinateSpace
{
enum Type : int
{
	Local,
	World
};
}

/** How a curve goes through a point. */
UENUM(BlueprintType)
namespace ESplinePointType
{
enum Type : int
{
	Linear,
	Curve,
	Constant,
	CurveClamped,
	CurveCustomTangent
};
}

/** A point of a curve. */
USTRUCT(BlueprintType)
struct FSplinePoint
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SplinePoint")
	float InputKey = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SplinePoint")
	FVector Position;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SplinePoint")
	FVector ArriveTangent;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SplinePoint")
	FVector LeaveTangent;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SplinePoint")
	FRotator Rotation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SplinePoint")
	FVector Scale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SplinePoint")
	TEnumAsByte<ESplinePointType::Type> Type;
};

/** A curve in the world. */
UCLASS(ClassGroup = Utility, ShowCategories = (Mobility), HideCategories = (Physics, Collision, Lighting, Rendering, Mobility),
	meta = (BlueprintSpawnableComponent))
class ENGINE_API USplineComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spline")
	float Duration = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spline")
	bool bStationaryEndpoints = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spline")
	bool bInputSplinePointsToConstructionScript = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spline")
	bool bDrawDebug = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spline")
	FVector DefaultUpVector;

	/** Brings the curve up to date. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void UpdateSpline();

	/** Adds a point at the end. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void AddSplinePoint(const FVector& Position, ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Adds a point before another. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void AddSplinePointAtIndex(
		const FVector& Position, int32 Index, ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Takes out a point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void RemoveSplinePoint(int32 Index, bool bUpdateSpline = true);

	/** Adds a point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void AddPoint(const FSplinePoint& Point, bool bUpdateSpline = true);

	/** Adds points. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void AddPoints(const TArray<FSplinePoint>& Points, bool bUpdateSpline = true);

	/** Takes out all points. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void ClearSplinePoints(bool bUpdateSpline = true);

	/** Replaces all points. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetSplinePoints(const TArray<FVector>& Points, ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Sets the location at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetLocationAtSplinePoint(
		int32 PointIndex, const FVector& InLocation, ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Sets the tangent at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetTangentAtSplinePoint(
		int32 PointIndex, const FVector& InTangent, ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Sets the tangents at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetTangentsAtSplinePoint(int32 PointIndex, const FVector& InArriveTangent, const FVector& InLeaveTangent,
		ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Sets the up vector at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetUpVectorAtSplinePoint(
		int32 PointIndex, const FVector& InUpVector, ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Sets the rotation at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetRotationAtSplinePoint(
		int32 PointIndex, const FRotator& InRotation, ESplineCoordinateSpace::Type CoordinateSpace, bool bUpdateSpline = true);

	/** Sets the scale at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetScaleAtSplinePoint(int32 PointIndex, const FVector& InScaleVector, bool bUpdateSpline = true);

	/** The spline point type. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	ESplinePointType::Type GetSplinePointType(int32 PointIndex) const;

	/** Sets the spline point type. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetSplinePointType(int32 PointIndex, ESplinePointType::Type Type, bool bUpdateSpline = true);

	/** The number of spline points. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	int32 GetNumberOfSplinePoints() const;

	/** The number of spline segments. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	int32 GetNumberOfSplineSegments() const;

	/** The spline length. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float GetSplineLength() const;

	/** Whether the end meets the start. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetClosedLoop(bool bInClosedLoop, bool bUpdateSpline = true);

	/** Sets the closed loop at position. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetClosedLoopAtPosition(bool bInClosedLoop, float Key, bool bUpdateSpline = true);

	/** True if it is closed loop. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	bool IsClosedLoop() const;

	/** Sets the unselected spline segment color. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetUnselectedSplineSegmentColor(const FLinearColor& SegmentColor);

	/** Sets the selected spline segment color. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetSelectedSplineSegmentColor(const FLinearColor& SegmentColor);

	/** Sets the draw debug. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetDrawDebug(bool bShow);

	/** Sets the default up vector. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void SetDefaultUpVector(const FVector& UpVector, ESplineCoordinateSpace::Type CoordinateSpace);

	/** The default up vector. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetDefaultUpVector(ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The location at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetLocationAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The tangent at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetTangentAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The direction at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetDirectionAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The rotation at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FRotator GetRotationAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The up vector at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetUpVectorAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The right vector at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetRightVectorAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The transform at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FTransform GetTransformAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseScale = false) const;

	/** The roll at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float GetRollAtSplineInputKey(float InKey, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The scale at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetScaleAtSplineInputKey(float InKey) const;

	/** The distance along spline at spline input key. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float GetDistanceAlongSplineAtSplineInputKey(float InKey) const;

	/** The input key value at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float GetInputKeyValueAtDistanceAlongSpline(float Distance) const;

	/** The location at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetLocationAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The tangent at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetTangentAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The direction at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetDirectionAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The rotation at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FRotator GetRotationAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The up vector at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetUpVectorAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The right vector at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetRightVectorAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The arrive tangent at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetArriveTangentAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The leave tangent at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetLeaveTangentAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The transform at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FTransform GetTransformAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseScale = false) const;

	/** The roll at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float GetRollAtSplinePoint(int32 PointIndex, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The scale at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetScaleAtSplinePoint(int32 PointIndex) const;

	/** The location and tangent at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	void GetLocationAndTangentAtSplinePoint(
		int32 PointIndex, FVector& Location, FVector& Tangent, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The distance along spline at spline point. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float GetDistanceAlongSplineAtSplinePoint(int32 PointIndex) const;

	/** The location at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetLocationAtDistanceAlongSpline(float Distance, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The tangent at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetTangentAtDistanceAlongSpline(float Distance, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The direction at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetDirectionAtDistanceAlongSpline(float Distance, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The rotation at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FRotator GetRotationAtDistanceAlongSpline(float Distance, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The up vector at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetUpVectorAtDistanceAlongSpline(float Distance, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The right vector at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetRightVectorAtDistanceAlongSpline(float Distance, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The transform at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FTransform GetTransformAtDistanceAlongSpline(
		float Distance, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseScale = false) const;

	/** The roll at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float GetRollAtDistanceAlongSpline(float Distance, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** The scale at distance along spline. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetScaleAtDistanceAlongSpline(float Distance) const;

	/** The location at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetLocationAtTime(float Time, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseConstantVelocity = false) const;

	/** The tangent at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetTangentAtTime(float Time, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseConstantVelocity = false) const;

	/** The direction at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetDirectionAtTime(float Time, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseConstantVelocity = false) const;

	/** The rotation at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FRotator GetRotationAtTime(float Time, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseConstantVelocity = false) const;

	/** The up vector at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetUpVectorAtTime(float Time, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseConstantVelocity = false) const;

	/** The right vector at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetRightVectorAtTime(float Time, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseConstantVelocity = false) const;

	/** The transform at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FTransform GetTransformAtTime(
		float Time, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseConstantVelocity = false, bool bUseScale = false) const;

	/** The scale at time. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector GetScaleAtTime(float Time, bool bUseConstantVelocity = false) const;

	/** Input key that is nearest to a place. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	float FindInputKeyClosestToWorldLocation(const FVector& WorldLocation) const;

	/** Place on the curve that is nearest. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector FindLocationClosestToWorldLocation(const FVector& WorldLocation, ESplineCoordinateSpace::Type CoordinateSpace) const;

	/** Direction of the curve where it is nearest. */
	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector FindDirectionClosestToWorldLocation(const FVector& WorldLocation, ESplineCoordinateSpace::Type CoordinateSpace) const;

	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector FindTangentClosestToWorldLocation(const FVector& WorldLocation, ESplineCoordinateSpace::Type CoordinateSpace) const;

	UFUNCTION(BlueprintCallable, Category = "Spline")
	FRotator FindRotationClosestToWorldLocation(const FVector& WorldLocation, ESplineCoordinateSpace::Type CoordinateSpace) const;

	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector FindUpVectorClosestToWorldLocation(const FVector& WorldLocation, ESplineCoordinateSpace::Type CoordinateSpace) const;

	UFUNCTION(BlueprintCallable, Category = "Spline")
	FVector FindRightVectorClosestToWorldLocation(const FVector& WorldLocation, ESplineCoordinateSpace::Type CoordinateSpace) const;

	UFUNCTION(BlueprintCallable, Category = "Spline")
	FTransform FindTransformClosestToWorldLocation(
		const FVector& WorldLocation, ESplineCoordinateSpace::Type CoordinateSpace, bool bUseScale = false) const;
};
