// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "PrimitiveComponent.h"
#include "SceneComponent.h"
#include "TextRenderComponent.generated.h"

/** Place of lines of text. */
UENUM(BlueprintType)
enum EHorizTextAligment : int
{
	EHTA_Left UMETA(DisplayName = "Left"),
	EHTA_Center UMETA(DisplayName = "Center"),
	EHTA_Right UMETA(DisplayName = "Right")
};

/** Place of text above or below. */
UENUM(BlueprintType)
enum EVerticalTextAligment : int
{
	EVRTA_TextTop UMETA(DisplayName = "Text Top"),
	EVRTA_TextCenter UMETA(DisplayName = "Text Center"),
	EVRTA_TextBottom UMETA(DisplayName = "Text Bottom"),
	EVRTA_QuadTop UMETA(DisplayName = "Quad Top")
};

/** A text in the world. */
UCLASS(ClassGroup = Rendering, hidecategories = (Object, LOD, Physics, TextureStreaming, Activation, "Components|Activation", Collision),
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UTextRenderComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text", meta = (MultiLine = "true"))
	FText Text;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	TObjectPtr<UMaterialInterface> TextMaterial;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	TObjectPtr<UFont> Font;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	TEnumAsByte<EHorizTextAligment> HorizontalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	TEnumAsByte<EVerticalTextAligment> VerticalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	FColor TextRenderColor;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	float XScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	float YScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	float WorldSize = 26.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	float HorizSpacingAdjust = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Text")
	float VertSpacingAdjust = 0.f;

	/** Sets the text. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender", meta = (DisplayName = "Set Text", ScriptName = "SetText"))
	void K2_SetText(const FText& Value);

	/** Sets the text material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetTextMaterial(UMaterialInterface* Material);

	/** Sets the font. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetFont(UFont* Value);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetHorizontalAlignment(EHorizTextAligment Value);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetVerticalAlignment(EVerticalTextAligment Value);

	/** Sets the text render color. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetTextRenderColor(FColor Value);

	/** Sets the x scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetXScale(float Value);

	/** Sets the y scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetYScale(float Value);

	/** Sets the horiz spacing adjust. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetHorizSpacingAdjust(float Value);

	/** Sets the vert spacing adjust. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetVertSpacingAdjust(float Value);

	/** Sets the world size. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	void SetWorldSize(float Value);

	/** The text local size. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	FVector GetTextLocalSize() const;

	/** The text world size. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|TextRender")
	FVector GetTextWorldSize() const;
};

/** A text in the world. */
UCLASS(ComponentWrapperClass, hideCategories = (Collision, Attachment, Actor))
class ENGINE_API ATextRenderActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "TextRenderActor")
	TObjectPtr<UTextRenderComponent> TextRender;

	UPROPERTY()
	TObjectPtr<UBillboardComponent> SpriteComponent;
};

/** A picture that always faces the camera. */
UCLASS(ClassGroup = Rendering, collapsecategories,
	hidecategories = (Object, Activation, "Components|Activation", Physics, Collision, Lighting, Mesh, PhysicsVolume), editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UBillboardComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Sprite")
	TObjectPtr<UTexture2D> Sprite;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sprite")
	uint8 bIsScreenSizeScaled : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sprite")
	float ScreenSize = 0.0025f;

	/** Sets the sprite. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Sprite")
	void SetSprite(UTexture2D* NewSprite);

	/** Sets the UV. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Sprite")
	void SetUV(int32 NewU, int32 NewUL, int32 NewV, int32 NewVL);

	/** Sets the sprite and UV. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Sprite")
	void SetSpriteAndUV(UTexture2D* NewSprite, int32 NewU, int32 NewUL, int32 NewV, int32 NewVL);

	/** Sets the opacity mask ref val. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Sprite")
	void SetOpacityMaskRefVal(float RefVal);
};

/** Materials that always face the camera. */
UCLASS(hidecategories = (Object, Activation, "Components|Activation", Physics, Collision, Lighting, Mesh, PhysicsVolume), editinlinenew,
	ClassGroup = Rendering, meta = (BlueprintSpawnableComponent))
class ENGINE_API UMaterialBillboardComponent : public UPrimitiveComponent
{
	GENERATED_BODY()
};

/** An arrow for the editor. */
UCLASS(ClassGroup = Utility,
	hidecategories = (Object, LOD, Physics, Lighting, TextureStreaming, Activation, "Components|Activation", Collision, Rendering),
	editinlinenew, meta = (BlueprintSpawnableComponent))
class ENGINE_API UArrowComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ArrowComponent")
	FColor ArrowColor = FColor(255, 0, 0);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArrowComponent")
	float ArrowSize = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArrowComponent")
	float ArrowLength = 80.f;

	/** Sets the arrow color. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetArrowColor(FLinearColor NewColor);

	/** Sets the arrow f color. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetArrowFColor(FColor NewColor);

	/** Sets the arrow size. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetArrowSize(float NewSize);

	/** Sets the arrow length. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetArrowLength(float NewLength);

	/** Sets the screen size. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetScreenSize(float NewScreenSize);

	/** Sets the is screen size scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetIsScreenSizeScaled(bool bNewValue);

	/** Sets the treat as a sprite. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetTreatAsASprite(bool bNewValue);

	/** Sets the use in editor scaling. */
	UFUNCTION(BlueprintCallable, Category = "Components|Arrow")
	void SetUseInEditorScaling(bool bNewValue);
};

/** A material that is laid on surfaces. */
UCLASS(Blueprintable, ClassGroup = (Rendering, Common),
	hidecategories = (Collision, Object, Physics, SceneComponent, Activation, "Components|Activation", Mobility),
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UDecalComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Decal")
	TObjectPtr<UMaterialInterface> DecalMaterial;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Decal")
	int32 SortOrder = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Decal")
	float FadeScreenSize = 0.01f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Decal")
	FVector DecalSize;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Decal")
	float FadeStartDelay = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Decal")
	float FadeDuration = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Decal")
	float FadeInDuration = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Decal")
	uint8 bDestroyOwnerAfterFade : 1;

	/** The fade start delay. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	float GetFadeStartDelay() const;

	/** The fade duration. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	float GetFadeDuration() const;

	/** The fade in start delay. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	float GetFadeInStartDelay() const;

	/** The fade in duration. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	float GetFadeInDuration() const;

	/** Lets the decal fade. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	void SetFadeOut(float StartDelay, float Duration, bool DestroyOwnerAfterFade = true);

	/** Lets the decal appear. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	void SetFadeIn(float StartDelay, float Duration);

	/** Sets the fade screen size. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	void SetFadeScreenSize(float NewFadeScreenSize);

	/** Sets the sort order. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	void SetSortOrder(int32 Value);

	/** Sets the decal color. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	void SetDecalColor(const FLinearColor& Color);

	/** Sets the decal material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	void SetDecalMaterial(UMaterialInterface* NewDecalMaterial);

	/** The decal material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	UMaterialInterface* GetDecalMaterial() const;

	/** Gives the decal a material whose parameters can change. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	UMaterialInstanceDynamic* CreateDynamicMaterialInstance();
};

/** A decal in the world. */
UCLASS(hideCategories = (Collision, Attachment, Actor, Input, Replication))
class ENGINE_API ADecalActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Decal")
	TObjectPtr<UDecalComponent> Decal;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;

	UPROPERTY()
	TObjectPtr<UBillboardComponent> SpriteComponent;

	/** Sets the decal material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	void SetDecalMaterial(UMaterialInterface* NewDecalMaterial);

	/** The decal material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	UMaterialInterface* GetDecalMaterial() const;

	/** Gives the decal a material whose parameters can change. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Decal")
	UMaterialInstanceDynamic* CreateDynamicMaterialInstance();
};

/** An actor within an actor. */
UCLASS(ClassGroup = Utility,
	hidecategories = (Object, LOD, Physics, Lighting, TextureStreaming, Activation, "Components|Activation", Collision),
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UChildActorComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	/** Sets the class of the child actor. */
	UFUNCTION(BlueprintCallable, Category = "ChildActorComponent", meta = (DisplayName = "Set Child Actor Class"))
	void SetChildActorClass(TSubclassOf<AActor> InClass);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ChildActorComponent")
	TSubclassOf<AActor> ChildActorClass;

	UPROPERTY(BlueprintReadOnly, Category = "ChildActorComponent")
	TObjectPtr<AActor> ChildActor;
};
