// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetRenderingLibrary.generated.h"

/** Pictures that are drawn into. */
UCLASS(MinimalAPI, meta = (ScriptName = "RenderingLibrary"))
class ENGINE_API UKismetRenderingLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Fills a picture with a colour. */
	UFUNCTION(BlueprintCallable, Category = "Rendering",
		meta = (WorldContext = "WorldContextObject", Keywords = "ClearRenderTarget", UnsafeDuringActorConstruction = "true"))
	static void ClearRenderTarget2D(
		UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, FLinearColor ClearColor = FLinearColor(0, 0, 0, 1));

	/** Makes a picture to draw into. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject"))
	static UTextureRenderTarget2D* CreateRenderTarget2D(UObject* WorldContextObject, int32 Width = 256, int32 Height = 256,
		ETextureRenderTargetFormat Format = RTF_RGBA16f, FLinearColor ClearColor = FLinearColor::Black, bool bAutoGenerateMipMaps = false,
		bool bSupportUAVs = false);

	/** Makes an array of pictures to draw into. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject"))
	static UTextureRenderTarget2DArray* CreateRenderTarget2DArray(UObject* WorldContextObject, int32 Width = 256, int32 Height = 256,
		int32 Slices = 1, ETextureRenderTargetFormat Format = RTF_RGBA16f, FLinearColor ClearColor = FLinearColor::Black,
		bool bAutoGenerateMipMaps = false, bool bSupportUAVs = false);

	/** Makes a volume to draw into. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject"))
	static UTextureRenderTargetVolume* CreateRenderTargetVolume(UObject* WorldContextObject, int32 Width = 16, int32 Height = 16,
		int32 Depth = 16, ETextureRenderTargetFormat Format = RTF_RGBA16f, FLinearColor ClearColor = FLinearColor::Black,
		bool bAutoGenerateMipMaps = false, bool bSupportUAVs = false);

	/** Frees a picture's memory. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	static void ReleaseRenderTarget2D(UTextureRenderTarget2D* TextureRenderTarget);

	/** Changes a picture's size. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	static void ResizeRenderTarget2D(UTextureRenderTarget2D* TextureRenderTarget, int32 Width = 256, int32 Height = 256);

	/** Fills a picture with a material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering",
		meta = (WorldContext = "WorldContextObject", Keywords = "DrawMaterialToRenderTarget", UnsafeDuringActorConstruction = "true"))
	static void DrawMaterialToRenderTarget(
		UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, UMaterialInterface* Material);

	/** Makes a texture asset of a picture, in the editor. */
	UFUNCTION(BlueprintCallable, Category = "Rendering",
		meta = (Keywords = "Create Static Texture from Render Target", UnsafeDuringActorConstruction = "true"))
	static UTexture2D* RenderTargetCreateStaticTexture2DEditorOnly(UTextureRenderTarget2D* RenderTarget, FString Name = "Texture",
		TextureCompressionSettings CompressionSettings = TC_Default, TextureMipGenSettings MipSettings = TMGS_FromTextureGroup);

	/** Copies a picture into a texture asset, in the editor. */
	UFUNCTION(BlueprintCallable, Category = "Rendering",
		meta = (WorldContext = "WorldContextObject", Keywords = "Convert Render Target", UnsafeDuringActorConstruction = "true"))
	static void ConvertRenderTargetToTexture2DEditorOnly(
		UObject* WorldContextObject, UTextureRenderTarget2D* RenderTarget, UTexture2D* Texture);

	/** Saves a picture as a file. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject", Keywords = "ExportRenderTarget"))
	static void ExportRenderTarget(
		UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, const FString& FilePath, const FString& FileName);

	/** Saves a texture as a file. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject", Keywords = "ExportTexture2D"))
	static void ExportTexture2D(UObject* WorldContextObject, UTexture2D* Texture, const FString& FilePath, const FString& FileName);

	/** Reads a picture file. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject"))
	static UTexture2D* ImportFileAsTexture2D(UObject* WorldContextObject, const FString& Filename);

	/** Reads the bytes of a picture file. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject"))
	static UTexture2D* ImportBufferAsTexture2D(UObject* WorldContextObject, const TArray<uint8>& Buffer);

	/** Colour of a point, which waits for the drawing. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject", Keywords = "ReadRenderTargetPixel"))
	static FColor ReadRenderTargetPixel(UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, int32 X, int32 Y);

	/** Colour of a point from 0 to 1, which waits for the drawing. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject", Keywords = "ReadRenderTargetUV"))
	static FColor ReadRenderTargetUV(UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, float U, float V);

	/** Colour of a point as it is stored. */
	UFUNCTION(
		BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject", Keywords = "ReadRenderTargetRawPixel"))
	static FLinearColor ReadRenderTargetRawPixel(
		UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, int32 X, int32 Y, bool bNormalize = true);

	/** Colour of a point from 0 to 1 as it is stored. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (WorldContext = "WorldContextObject", Keywords = "ReadRenderTargetRawUV"))
	static FLinearColor ReadRenderTargetRawUV(
		UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, float U, float V, bool bNormalize = true);

	/** Begins to draw into a picture. */
	UFUNCTION(BlueprintCallable, Category = "Rendering",
		meta = (WorldContext = "WorldContextObject", Keywords = "BeginDrawCanvasToRenderTarget", UnsafeDuringActorConstruction = "true"))
	static void BeginDrawCanvasToRenderTarget(UObject* WorldContextObject, UTextureRenderTarget2D* TextureRenderTarget, UCanvas*& Canvas,
		FVector2D& Size, FDrawToRenderTargetContext& Context);

	/** Ends to draw into a picture. */
	UFUNCTION(BlueprintCallable, Category = "Rendering",
		meta = (WorldContext = "WorldContextObject", Keywords = "EndDrawCanvasToRenderTarget", UnsafeDuringActorConstruction = "true"))
	static void EndDrawCanvasToRenderTarget(UObject* WorldContextObject, const FDrawToRenderTargetContext& Context);

	/** Weights of up to four bones. */
	UFUNCTION(BlueprintPure, Category = "Rendering", meta = (DisplayName = "Make Skin Weight Info", NativeMakeFunc))
	static FSkelMeshSkinWeightInfo MakeSkinWeightInfo(
		int32 Bone0, uint8 Weight0, int32 Bone1, uint8 Weight1, int32 Bone2, uint8 Weight2, int32 Bone3, uint8 Weight3);

	/** Weights of four bones. */
	UFUNCTION(BlueprintPure, Category = "Rendering", meta = (DisplayName = "Break Skin Weight Info", NativeBreakFunc))
	static void BreakSkinWeightInfo(FSkelMeshSkinWeightInfo InWeight, int32& Bone0, uint8& Weight0, int32& Bone1, uint8& Weight1,
		int32& Bone2, uint8& Weight2, int32& Bone3, uint8& Weight3);

	/** Sets finer shadows for a component and all that is attached to it. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (Keywords = "SetCastInsetShadowForAllAttachments"))
	static void SetCastInsetShadowForAllAttachments(
		UPrimitiveComponent* PrimitiveComponent, bool bCastInsetShadow, bool bLightAttachmentsAsGroup);

	/** Projection of a view. */
	UFUNCTION(BlueprintPure, Category = "Rendering")
	static FMatrix CalculateProjectionMatrix(const FMinimalViewInfo& MinimalViewInfo);

	/** Switches the path tracer. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	static void EnablePathTracing(bool bEnablePathTracer);

	/** Makes the path tracer begin anew. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	static void RefreshPathTracingOutput();
};
