// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "RenderingTypes.generated.h"

/** Format of a picture that is drawn into. */
UENUM(BlueprintType)
enum ETextureRenderTargetFormat : int
{
	RTF_R8,
	RTF_RG8,
	RTF_RGBA8,
	RTF_RGBA8_SRGB,
	RTF_R16f,
	RTF_RG16f,
	RTF_RGBA16f,
	RTF_R32f,
	RTF_RG32f,
	RTF_RGBA32f,
	RTF_RGB10A2
};

/** A picture that is being drawn into. */
USTRUCT(BlueprintType)
struct FDrawToRenderTargetContext
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly)
	TObjectPtr<UTextureRenderTarget2D> RenderTarget;
};

USTRUCT(BlueprintType)
struct FSkelMeshSkinWeightInfo
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Bones[12];

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	uint8 Weights[12];
};
