#pragma once

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "TimelineTemplate.generated.h"

class UCurveFloat;
class UCurveLinearColor;
class UCurveVector;

/** Where a timeline ends. */
UENUM(BlueprintType)
enum ETimelineLengthMode : int
{
	TL_TimelineLength UMETA(DisplayName = "Use Timeline Length"),
	TL_LastKeyFrame UMETA(DisplayName = "Use Last Keyframe")
};

/** Which way a timeline runs. */
UENUM()
namespace ETimelineDirection
{
enum Type : int
{
	Forward,
	Backward
};
}

/** What every kind of track has. */
USTRUCT()
struct FTTTrackBase
{
	GENERATED_BODY()

	virtual ~FTTTrackBase() = default;

	/** The curve is an asset of its own rather than the track's. */
	UPROPERTY()
	bool bIsExternalCurve = false;

	FName GetTrackName() const { return TrackName; }
	virtual void SetTrackName(FName NewTrackName, class UTimelineTemplate* OwningTimeline) { TrackName = NewTrackName; }

private:
	UPROPERTY()
	FName TrackName;
};

/** A track that calls an event at each key. */
USTRUCT()
struct FTTEventTrack : public FTTTrackBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveFloat> CurveKeys = nullptr;

	FName GetFunctionName() const { return FunctionName; }

private:
	UPROPERTY()
	FName FunctionName;
};

/** A track whose value is a variable of the Blueprint. */
USTRUCT()
struct FTTPropertyTrack : public FTTTrackBase
{
	GENERATED_BODY()

	FName GetPropertyName() const { return PropertyName; }

private:
	UPROPERTY()
	FName PropertyName;
};

USTRUCT()
struct FTTFloatTrack : public FTTPropertyTrack
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveFloat> CurveFloat = nullptr;
};

USTRUCT()
struct FTTVectorTrack : public FTTPropertyTrack
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveVector> CurveVector = nullptr;
};

USTRUCT()
struct FTTLinearColorTrack : public FTTPropertyTrack
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveLinearColor> CurveLinearColor = nullptr;
};

/** A timeline of a Blueprint, from which each instance's timeline is made. */
UCLASS()
class ENGINE_API UTimelineTemplate : public UObject
{
	GENERATED_BODY()

public:
	/** Seconds. */
	UPROPERTY()
	float TimelineLength = 5.0f;

	UPROPERTY()
	TEnumAsByte<ETimelineLengthMode> LengthMode = TL_TimelineLength;

	UPROPERTY()
	uint8 bAutoPlay : 1 = false;

	UPROPERTY()
	uint8 bLoop : 1 = false;

	UPROPERTY()
	uint8 bReplicated : 1 = false;

	UPROPERTY()
	uint8 bIgnoreTimeDilation : 1 = false;

	UPROPERTY()
	TArray<FTTEventTrack> EventTracks;

	UPROPERTY()
	TArray<FTTFloatTrack> FloatTracks;

	UPROPERTY()
	TArray<FTTVectorTrack> VectorTracks;

	UPROPERTY()
	TArray<FTTLinearColorTrack> LinearColorTracks;

	UPROPERTY()
	TArray<FBPVariableMetaDataEntry> MetaDataArray;

	UPROPERTY()
	FGuid TimelineGuid;

	FName GetVariableName() const { return VariableName; }
	FName GetDirectionPropertyName() const { return DirectionPropertyName; }
	FName GetUpdateFunctionName() const { return UpdateFunctionName; }
	FName GetFinishedFunctionName() const { return FinishedFunctionName; }
	/** The template's object name for a timeline variable: "Door" is "Door_Template". */
	static FString TimelineVariableNameToTemplateName(FName Name);
	/** Sets the names that the timeline's members have, from the template's own. */
	void UpdateCachedNames();

	virtual void PostLoad() override;

private:
	UPROPERTY()
	FName VariableName;

	UPROPERTY()
	FName DirectionPropertyName;

	UPROPERTY()
	FName UpdateFunctionName;

	UPROPERTY()
	FName FinishedFunctionName;
};
