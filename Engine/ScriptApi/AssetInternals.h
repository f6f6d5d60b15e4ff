// Package: /Script/Engine
#pragma once

#include "PrimitiveComponent.h"
#include "AssetInternals.generated.h"

/** Place of an event graph's variables. */
USTRUCT(BlueprintType)
struct FPointerToUberGraphFrame
{
	GENERATED_BODY()
};

/** Where an asset was imported from. */
UCLASS(EditInlineNew)
class ENGINE_API UAssetImportData : public UObject
{
	GENERATED_BODY()
};

/** Shapes that an asset collides with. */
UCLASS(collapseCategories, hidecategories = (Object))
class ENGINE_API UBodySetup : public UObject
{
	GENERATED_BODY()
};

/** How navigation sees a mesh. */
UCLASS(Abstract, config = Engine)
class ENGINE_API UNavCollisionBase : public UObject
{
	GENERATED_BODY()
};

/** How navigation sees a mesh. */
UCLASS(config = Engine)
class ENGINE_API UNavCollision : public UNavCollisionBase
{
	GENERATED_BODY()
};

/** Surfaces of a brush. */
UCLASS()
class ENGINE_API UModel : public UObject
{
	GENERATED_BODY()
};

/** Polygons of a brush. */
UCLASS()
class ENGINE_API UPolys : public UObject
{
	GENERATED_BODY()
};

/** Shape of a volume. */
UCLASS(editinlinenew, MinimalAPI,
	hidecategories = (Physics, Lighting, LOD, Rendering, TextureStreaming, Transform, Activation, "Components|Activation"),
	showcategories = (Mobility, "Rendering|Material"))
class ENGINE_API UBrushComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly)
	TObjectPtr<UModel> Brush;

	UPROPERTY(BlueprintReadOnly)
	TObjectPtr<UBodySetup> BrushBodySetup;
};

/** What a Blueprint binds when it is made. */
UCLASS(abstract)
class ENGINE_API UDynamicBlueprintBinding : public UObject
{
	GENERATED_BODY()
};

/** Events of components that a Blueprint binds. */
UCLASS()
class ENGINE_API UComponentDelegateBinding : public UDynamicBlueprintBinding
{
	GENERATED_BODY()
};

/** How an asset's picture is made. */
UCLASS(abstract, editinlinenew, collapsecategories, hidecategories = (Object))
class ENGINE_API UThumbnailInfo : public UObject
{
	GENERATED_BODY()
};

/** Settings of navigation of a world. */
UCLASS(config = Engine, defaultconfig, DontCollapseCategories)
class ENGINE_API UNavigationSystemConfig : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Navigation")
	FSoftClassPath NavigationSystemClass;
};
