// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "Textures.generated.h"

/** How a texture is packed. */
UENUM(BlueprintType)
enum TextureCompressionSettings : int
{
	TC_Default UMETA(DisplayName = "Default"),
	TC_Normalmap UMETA(DisplayName = "Normalmap"),
	TC_Masks UMETA(DisplayName = "Masks"),
	TC_Grayscale UMETA(DisplayName = "Grayscale"),
	TC_Displacementmap UMETA(DisplayName = "Displacementmap"),
	TC_VectorDisplacementmap UMETA(DisplayName = "VectorDisplacementmap"),
	TC_HDR UMETA(DisplayName = "HDR"),
	TC_EditorIcon UMETA(DisplayName = "UserInterface2D"),
	TC_Alpha UMETA(DisplayName = "Alpha"),
	TC_DistanceFieldFont UMETA(DisplayName = "DistanceFieldFont"),
	TC_HDR_Compressed UMETA(DisplayName = "HDR Compressed"),
	TC_BC7 UMETA(DisplayName = "BC7"),
	TC_HalfFloat UMETA(DisplayName = "Half Float"),
	TC_LQ UMETA(DisplayName = "Low Quality"),
	TC_EncodedReflectionCapture UMETA(DisplayName = "EncodedReflectionCapture"),
	TC_SingleFloat UMETA(DisplayName = "Single Float"),
	TC_HDR_F32 UMETA(DisplayName = "HDR High Precision")
};

/** How a texture is smoothed. */
UENUM(BlueprintType)
enum TextureFilter : int
{
	TF_Nearest UMETA(DisplayName = "Nearest"),
	TF_Bilinear UMETA(DisplayName = "Bi-linear"),
	TF_Trilinear UMETA(DisplayName = "Tri-linear"),
	TF_Default UMETA(DisplayName = "Default")
};

/** What is outside a texture. */
UENUM(BlueprintType)
enum TextureAddress : int
{
	TA_Wrap UMETA(DisplayName = "Wrap"),
	TA_Clamp UMETA(DisplayName = "Clamp"),
	TA_Mirror UMETA(DisplayName = "Mirror")
};

/** How smaller forms of a texture are made. */
UENUM(BlueprintType)
enum TextureMipGenSettings : int
{
	TMGS_FromTextureGroup UMETA(DisplayName = "FromTextureGroup"),
	TMGS_SimpleAverage UMETA(DisplayName = "SimpleAverage"),
	TMGS_Sharpen0,
	TMGS_Sharpen1,
	TMGS_Sharpen2,
	TMGS_Sharpen3,
	TMGS_Sharpen4,
	TMGS_Sharpen5,
	TMGS_Sharpen6,
	TMGS_Sharpen7,
	TMGS_Sharpen8,
	TMGS_Sharpen9,
	TMGS_Sharpen10,
	TMGS_NoMipmaps UMETA(DisplayName = "NoMipmaps"),
	TMGS_LeaveExistingMips UMETA(DisplayName = "LeaveExistingMips"),
	TMGS_Blur1,
	TMGS_Blur2,
	TMGS_Blur3,
	TMGS_Blur4,
	TMGS_Blur5,
	TMGS_Unfiltered UMETA(DisplayName = "Unfiltered")
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(FOnCanvasRenderTargetUpdate, UCanvas*, Canvas, int32, Width, int32, Height);

/** A picture. */
UCLASS(BlueprintType)
class ENGINE_API UTexture : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Compression")
	TEnumAsByte<TextureCompressionSettings> CompressionSettings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Texture")
	TEnumAsByte<TextureFilter> Filter;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Texture")
	uint8 SRGB : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "LevelOfDetail")
	int32 LODBias = 0;
};

/** A picture. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UTexture2D : public UTexture
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Texture")
	TEnumAsByte<TextureAddress> AddressX;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Texture")
	TEnumAsByte<TextureAddress> AddressY;

	UFUNCTION(BlueprintCallable, Category = "Rendering|Texture", meta = (DisplayName = "GetSizeX", ScriptName = "GetSizeX"))
	int32 Blueprint_GetSizeX() const;

	UFUNCTION(BlueprintCallable, Category = "Rendering|Texture", meta = (DisplayName = "GetSizeY", ScriptName = "GetSizeY"))
	int32 Blueprint_GetSizeY() const;
};

/** A picture that code makes. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UTexture2DDynamic : public UTexture
{
	GENERATED_BODY()
};

/** Pictures of one size. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UTexture2DArray : public UTexture
{
	GENERATED_BODY()
};

/** Pictures of six sides. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UTextureCube : public UTexture
{
	GENERATED_BODY()
};

/** A texture of three dimensions. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UVolumeTexture : public UTexture
{
	GENERATED_BODY()
};

/** How a lamp shines to its sides. */
UCLASS()
class ENGINE_API UTextureLightProfile : public UTexture2D
{
	GENERATED_BODY()
};

/** A texture that is drawn into. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UTextureRenderTarget : public UTexture
{
	GENERATED_BODY()
};

/** A picture that is drawn into. */
UCLASS(hidecategories = Object, hidecategories = Texture, BlueprintType)
class ENGINE_API UTextureRenderTarget2D : public UTextureRenderTarget
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "TextureRenderTarget2D")
	int32 SizeX;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "TextureRenderTarget2D")
	int32 SizeY;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "TextureRenderTarget2D")
	FLinearColor ClearColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "TextureRenderTarget2D")
	TEnumAsByte<TextureAddress> AddressX;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "TextureRenderTarget2D")
	TEnumAsByte<TextureAddress> AddressY;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "TextureRenderTarget2D")
	TEnumAsByte<ETextureRenderTargetFormat> RenderTargetFormat;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "TextureRenderTarget2D")
	uint8 bAutoGenerateMips : 1;
};

/** Pictures that are drawn into. */
UCLASS(hidecategories = Object, hidecategories = Texture, BlueprintType)
class ENGINE_API UTextureRenderTarget2DArray : public UTextureRenderTarget
{
	GENERATED_BODY()
};

/** Six sides that are drawn into. */
UCLASS(hidecategories = Object, hidecategories = Texture, BlueprintType)
class ENGINE_API UTextureRenderTargetCube : public UTextureRenderTarget
{
	GENERATED_BODY()
};

/** A volume that is drawn into. */
UCLASS(hidecategories = Object, hidecategories = Texture, BlueprintType)
class ENGINE_API UTextureRenderTargetVolume : public UTextureRenderTarget
{
	GENERATED_BODY()
};

/** A picture that Blueprints draw. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API UCanvasRenderTarget2D : public UTextureRenderTarget2D
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Canvas Render Target 2D")
	FOnCanvasRenderTargetUpdate OnCanvasRenderTargetUpdate;

	/** Draws the picture anew. */
	UFUNCTION(BlueprintCallable, Category = "Canvas Render Target 2D")
	void UpdateResource();

	/** Makes a picture that Blueprints draw. */
	UFUNCTION(BlueprintCallable, Category = "Canvas Render Target 2D", meta = (WorldContext = "WorldContextObject"))
	static UCanvasRenderTarget2D* CreateCanvasRenderTarget2D(
		UObject* WorldContextObject, TSubclassOf<UCanvasRenderTarget2D> CanvasRenderTarget2DClass, int32 Width = 1024, int32 Height = 1024);

	/** Draws the picture. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Canvas Render Target 2D")
	void ReceiveUpdate(UCanvas* Canvas, int32 Width, int32 Height);

	/** The size. */
	UFUNCTION(BlueprintCallable, Category = "Canvas Render Target 2D")
	void GetSize(int32& Width, int32& Height);
};
