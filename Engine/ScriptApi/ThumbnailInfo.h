// Package: /Script/UnrealEd
#pragma once

#include "AssetInternals.h"
#include "ThumbnailInfo.generated.h"

/** How a picture in three dimensions is made. */
UCLASS(MinimalAPI)
class UNREALED_API USceneThumbnailInfo : public UThumbnailInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Thumbnail")
	float OrbitPitch = -11.25f;

	UPROPERTY(EditAnywhere, Category = "Thumbnail")
	float OrbitYaw = -157.5f;

	UPROPERTY(EditAnywhere, Category = "Thumbnail")
	float OrbitZoom = 0.f;
};

/** How a picture of a shape is made. */
UCLASS()
class UNREALED_API USceneThumbnailInfoWithPrimitive : public USceneThumbnailInfo
{
	GENERATED_BODY()
};

/** How a picture of a level is made. */
UCLASS()
class UNREALED_API UWorldThumbnailInfo : public USceneThumbnailInfo
{
	GENERATED_BODY()
};

/** How a model was imported. */
UCLASS(BlueprintType, config = EditorPerProjectUserSettings, HideCategories = Object, abstract, MinimalAPI)
class UNREALED_API UFbxAssetImportData : public UAssetImportData
{
	GENERATED_BODY()
};

/** How a mesh was imported. */
UCLASS(BlueprintType, config = EditorPerProjectUserSettings, configdonotcheckdefaults, abstract, MinimalAPI)
class UNREALED_API UFbxMeshImportData : public UFbxAssetImportData
{
	GENERATED_BODY()
};

/** How a static mesh was imported. */
UCLASS(BlueprintType, config = EditorPerProjectUserSettings, AutoCollapseCategories = (Transform), MinimalAPI)
class UNREALED_API UFbxStaticMeshImportData : public UFbxMeshImportData
{
	GENERATED_BODY()
};
