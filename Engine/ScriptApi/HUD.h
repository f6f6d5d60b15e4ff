// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "HUD.generated.h"

/** How a material goes together with what is behind it. */
UENUM(BlueprintType)
enum EBlendMode : int
{
	BLEND_Opaque UMETA(DisplayName = "Opaque"),
	BLEND_Masked UMETA(DisplayName = "Masked"),
	BLEND_Translucent UMETA(DisplayName = "Translucent"),
	BLEND_Additive UMETA(DisplayName = "Additive"),
	BLEND_Modulate UMETA(DisplayName = "Modulate"),
	BLEND_AlphaComposite UMETA(DisplayName = "AlphaComposite (Premultiplied Alpha)"),
	BLEND_AlphaHoldout UMETA(DisplayName = "AlphaHoldout"),
	BLEND_TranslucentColoredTransmittance UMETA(DisplayName = "TranslucentColoredTransmittance")
};

/** Draws on a player's screen. */
UCLASS()
class ENGINE_API AHUD : public AActor
{
	GENERATED_BODY()

public:
	/** Draws a text. */
	UFUNCTION(BlueprintCallable, Category = "HUD", meta = (TextColor = "(R=0,G=0,B=0,A=1)"))
	void DrawText(const FString& Text, FLinearColor TextColor, float ScreenX, float ScreenY, UFont* Font = nullptr, float Scale = 1.f,
		bool bScalePosition = false);

	/** Draws a filled rectangle. */
	UFUNCTION(BlueprintCallable, Category = "HUD", meta = (RectColor = "(R=0,G=0,B=0,A=1)"))
	void DrawRect(FLinearColor RectColor, float ScreenX, float ScreenY, float ScreenW, float ScreenH);

	UPROPERTY(BlueprintReadOnly, Category = "HUD")
	TObjectPtr<APlayerController> PlayerOwner;

	UPROPERTY(BlueprintReadWrite, Category = "HUD")
	uint8 bShowHUD : 1;

	/** Shows or hides the display. */
	UFUNCTION(BlueprintCallable, exec, Category = "HUD")
	void ShowHUD();

	/** Draws on the screen. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "HUD", meta = (DisplayName = "Receive Draw HUD"))
	void ReceiveDrawHUD(int32 SizeX, int32 SizeY);

	/** A box is clicked. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HUD", meta = (DisplayName = "HitBoxClicked"))
	void ReceiveHitBoxClick(const FName BoxName);

	/** A click on a box ends. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HUD", meta = (DisplayName = "HitBoxReleased"))
	void ReceiveHitBoxRelease(const FName BoxName);

	/** The pointer comes over a box. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HUD", meta = (DisplayName = "HitBoxBeginCursorOver"))
	void ReceiveHitBoxBeginCursorOver(const FName BoxName);

	/** The pointer leaves a box. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HUD", meta = (DisplayName = "HitBoxEndCursorOver"))
	void ReceiveHitBoxEndCursorOver(const FName BoxName);

	/** The text size. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	void GetTextSize(const FString& Text, float& OutWidth, float& OutHeight, UFont* Font = nullptr, float Scale = 1.f) const;

	/** Draws a line. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	void DrawLine(
		float StartScreenX, float StartScreenY, float EndScreenX, float EndScreenY, FLinearColor LineColor, float LineThickness = 0.f);

	/** Draws a texture. */
	UFUNCTION(BlueprintCallable, Category = "HUD", meta = (AdvancedDisplay = "9"))
	void DrawTexture(UTexture* Texture, float ScreenX, float ScreenY, float ScreenW, float ScreenH, float TextureU, float TextureV,
		float TextureUWidth, float TextureVHeight, FLinearColor TintColor = FLinearColor::White, EBlendMode BlendMode = BLEND_Translucent,
		float Scale = 1.f, bool bScalePosition = false, float Rotation = 0.f, FVector2D RotPivot = FVector2D::ZeroVector);

	/** Draws a texture in its own size. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	void DrawTextureSimple(UTexture* Texture, float ScreenX, float ScreenY, float Scale = 1.f, bool bScalePosition = false);

	/** Draws a material. */
	UFUNCTION(BlueprintCallable, Category = "HUD", meta = (AdvancedDisplay = "9"))
	void DrawMaterial(UMaterialInterface* Material, float ScreenX, float ScreenY, float ScreenW, float ScreenH, float MaterialU,
		float MaterialV, float MaterialUWidth, float MaterialVHeight, float Scale = 1.f, bool bScalePosition = false, float Rotation = 0.f,
		FVector2D RotPivot = FVector2D::ZeroVector);

	/** Draws a material. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	void DrawMaterialSimple(UMaterialInterface* Material, float ScreenX, float ScreenY, float ScreenW, float ScreenH, float Scale = 1.f,
		bool bScalePosition = false);

	/** Screen place of a point of the world. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	FVector Project(FVector Location, bool bClampToZeroPlane = true) const;

	/** Point and direction of a place on the screen. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	void Deproject(float ScreenX, float ScreenY, FVector& WorldPosition, FVector& WorldDirection) const;

	/** Adds a box that can be clicked. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	void AddHitBox(FVector2D Position, FVector2D Size, FName InName, bool bConsumesInput, int32 Priority = 0);

	/** Actors in a rectangle of the screen. */
	UFUNCTION(BlueprintPure, Category = "HUD", meta = (DeterminesOutputType = "ClassFilter", DynamicOutputParam = "OutActors"))
	void GetActorsInSelectionRectangle(TSubclassOf<AActor> ClassFilter, const FVector2D& FirstPoint, const FVector2D& SecondPoint,
		TArray<AActor*>& OutActors, bool bIncludeNonCollidingComponents = true, bool bActorMustBeFullyEnclosed = false);

	/** The owning pawn. */
	UFUNCTION(BlueprintPure, Category = "HUD")
	APawn* GetOwningPawn() const;

	/** The owning player controller. */
	UFUNCTION(BlueprintPure, Category = "HUD")
	APlayerController* GetOwningPlayerController() const;
};

/** What is drawn on. */
UCLASS(transient, BlueprintType)
class ENGINE_API UCanvas : public UObject
{
	GENERATED_BODY()

public:
	/** Draws a line. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Draw Line", ScriptName = "DrawLine"))
	void K2_DrawLine(FVector2D ScreenPositionA = FVector2D::ZeroVector, FVector2D ScreenPositionB = FVector2D::ZeroVector,
		float Thickness = 1.0f, FLinearColor RenderColor = FLinearColor::White);

	/** Draws a texture. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Draw Texture", ScriptName = "DrawTexture"))
	void K2_DrawTexture(UTexture* RenderTexture, FVector2D ScreenPosition, FVector2D ScreenSize, FVector2D CoordinatePosition,
		FVector2D CoordinateSize = FVector2D(1, 1), FLinearColor RenderColor = FLinearColor::White,
		EBlendMode BlendMode = BLEND_Translucent, float Rotation = 0.f, FVector2D PivotPoint = FVector2D(0.5, 0.5));

	/** Draws a material. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Draw Material", ScriptName = "DrawMaterial"))
	void K2_DrawMaterial(UMaterialInterface* RenderMaterial, FVector2D ScreenPosition, FVector2D ScreenSize, FVector2D CoordinatePosition,
		FVector2D CoordinateSize = FVector2D(1, 1), float Rotation = 0.f, FVector2D PivotPoint = FVector2D(0.5, 0.5));

	/** Draws a text. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Draw Text", ScriptName = "DrawText"))
	void K2_DrawText(UFont* RenderFont, const FString& RenderText, FVector2D ScreenPosition = FVector2D::ZeroVector,
		FVector2D Scale = FVector2D(1, 1), FLinearColor RenderColor = FLinearColor::White, float Kerning = 0.f,
		FLinearColor ShadowColor = FLinearColor::Black, FVector2D ShadowOffset = FVector2D(1, 1), bool bCentreX = false,
		bool bCentreY = false, bool bOutlined = false, FLinearColor OutlineColor = FLinearColor::Black);

	/** Draws a rectangle. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Draw Box", ScriptName = "DrawBox"))
	void K2_DrawBox(FVector2D ScreenPosition, FVector2D ScreenSize, float Thickness = 1.0f, FLinearColor RenderColor = FLinearColor::White);

	/** Draws a polygon. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Draw Polygon", ScriptName = "DrawPolygon"))
	void K2_DrawPolygon(UTexture* RenderTexture, FVector2D ScreenPosition, FVector2D Radius = FVector2D(1, 1), int32 NumberOfSides = 3,
		FLinearColor RenderColor = FLinearColor::White);

	/** Screen place of a point of the world. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Project", ScriptName = "Project"))
	FVector K2_Project(FVector WorldLocation);

	/** Point and direction of a place on the screen. */
	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Deproject", ScriptName = "Deproject"))
	void K2_Deproject(FVector2D ScreenPosition, FVector& WorldOrigin, FVector& WorldDirection);

	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Wrapped Text Size", ScriptName = "StrLen"))
	FVector2D K2_StrLen(UFont* RenderFont, const FString& RenderText);

	UFUNCTION(BlueprintCallable, Category = "Canvas", meta = (DisplayName = "Clipped Text Size", ScriptName = "TextSize"))
	FVector2D K2_TextSize(UFont* RenderFont, const FString& RenderText, FVector2D Scale = FVector2D(1, 1));
};
