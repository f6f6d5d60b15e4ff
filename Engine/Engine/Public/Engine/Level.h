#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "Level.generated.h"

class AActor;
class ALevelScriptActor;
class AWorldSettings;
class UBlueprint;
class ULevelScriptBlueprint;
class UWorld;

/** Cells of a level from which it is known what is visible. Only a level without cells is understood. */
struct FPrecomputedVisibilityHandler
{
	FVector2D PrecomputedVisibilityCellBucketOriginXY = FVector2D::ZeroVector;
	float PrecomputedVisibilityCellSizeXY = 0.0f;
	float PrecomputedVisibilityCellSizeZ = 0.0f;
	int32 PrecomputedVisibilityCellBucketSizeXY = 0;
	int32 PrecomputedVisibilityNumCellBuckets = 0;
};

/** Distances to the level's surfaces. Only a field without samples is understood. */
struct FPrecomputedVolumeDistanceField
{
	float VolumeMaxDistance = 0.0f;
	FBox VolumeBox = FBox(ForceInit);
	int32 VolumeSizeX = 0;
	int32 VolumeSizeY = 0;
	int32 VolumeSizeZ = 0;
};

/** The actors of a world, or of a part of it. */
UCLASS(MinimalAPI)
class ENGINE_API ULevel : public UObject
{
	GENERATED_BODY()

public:
	/** What the level was opened with when it was made. */
	FURL URL;

	/** World that the level belongs to while it is loaded. */
	UPROPERTY(Transient)
	TObjectPtr<UWorld> OwningWorld = nullptr;

	/** Has null entries where actors were destroyed, and where the file has one whose class this host lacks. */
	TArray<TObjectPtr<AActor>> Actors;

	UPROPERTY(NonTransactional)
	TObjectPtr<ULevelScriptBlueprint> LevelScriptBlueprint = nullptr;

	UPROPERTY(NonTransactional)
	TObjectPtr<ALevelScriptActor> LevelScriptActor = nullptr;

	/** The level's Blueprint; made at the first call unless bDontCreate. */
	ULevelScriptBlueprint* GetLevelScriptBlueprint(bool bDontCreate = false);
	ALevelScriptActor* GetLevelScriptActor() const { return LevelScriptActor; }
	/** The level's own Blueprint, or none. */
	TArray<UBlueprint*> GetLevelBlueprints() const;
	/** Null in a level whose settings are of a class that this host lacks. */
	AWorldSettings* GetWorldSettings() const;
	void SetWorldSettings(AWorldSettings* NewWorldSettings);
	virtual UWorld* GetWorld() const override;
	virtual void Serialize(FArchive& Ar) override;
	virtual void PostLoad() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	/** Makes a level's Blueprint with its classes and first graphs. The editor binds it; without it the Blueprint is bare. */
	DECLARE_DELEGATE_RetVal_TwoParams(ULevelScriptBlueprint*, FMakeLevelScriptBlueprint, ULevel*, FName);
	static FMakeLevelScriptBlueprint MakeLevelScriptBlueprint;

private:
	/** Null in a level whose settings are of a class that this host lacks. */
	UPROPERTY()
	TObjectPtr<AWorldSettings> WorldSettings = nullptr;

	/** Of the file: the geometry of the level's brushes and what navigation begins and ends with. Written back as they are. */
	TObjectPtr<UObject> Model = nullptr;
	TArray<TObjectPtr<UObject>> ModelComponents;
	TObjectPtr<UObject> NavListStart = nullptr;
	TObjectPtr<UObject> NavListEnd = nullptr;
	/** What the file has in place of actors, and of the two script objects, when their classes are not known; null elsewhere. */
	TArray<TObjectPtr<UObject>> UnknownActors;
	TObjectPtr<UObject> UnknownScriptBlueprint = nullptr;
	TObjectPtr<UObject> UnknownScriptActor = nullptr;

	FPrecomputedVisibilityHandler PrecomputedVisibilityHandler;
	FPrecomputedVolumeDistanceField PrecomputedVolumeDistanceField;
	/** The package keeps the built data as bytes, and writes them behind the level's own. */
	bool bBuiltDataIsUnread = false;

	void SerializeActors(FArchive& Ar);
	void SerializeBuiltData(FArchive& Ar);
};
