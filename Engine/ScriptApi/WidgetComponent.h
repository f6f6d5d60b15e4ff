// Package: /Script/UMG
#pragma once

#include "MeshComponents.h"
#include "SceneComponent.h"
#include "WidgetComponent.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(
	FOnHoveredWidgetChanged, UWidgetComponent*, WidgetComponent, UWidgetComponent*, PreviousWidgetComponent);

/** A widget in the world. */
UCLASS(Blueprintable, ClassGroup = UserInterface,
	hidecategories = (Object, Activation, "Components|Activation", Sockets, Base, Lighting, LOD, Mesh), editinlinenew,
	meta = (BlueprintSpawnableComponent))
class UMG_API UWidgetComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "User Interface")
	EWidgetSpace Space;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "User Interface")
	TSubclassOf<UUserWidget> WidgetClass;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "User Interface")
	FIntPoint DrawSize;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "User Interface")
	bool bDrawAtDesiredSize = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "User Interface")
	FVector2D Pivot;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "User Interface")
	bool bManuallyRedraw = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "User Interface")
	float RedrawTime = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction")
	bool bReceiveHardwareInput = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	FLinearColor BackgroundColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	FLinearColor TintColorAndOpacity;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	bool bIsTwoSided = true;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	EWidgetBlendMode BlendMode;

	/** The user widget object. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	UUserWidget* GetUserWidgetObject() const;

	/** The render target. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	UTextureRenderTarget2D* GetRenderTarget() const;

	/** The material instance. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	UMaterialInstanceDynamic* GetMaterialInstance() const;

	/** The widget. */
	UFUNCTION(BlueprintCallable, Category = "User Interface", meta = (UnsafeDuringActorConstruction = "true"))
	UUserWidget* GetWidget() const;

	/** Sets the widget. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetWidget(UUserWidget* Widget);

	/** Sets the widget class. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetWidgetClass(TSubclassOf<UUserWidget> InWidgetClass);

	/** The widget class. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	TSubclassOf<UUserWidget> GetWidgetClass() const;

	/** Sets the owner player. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetOwnerPlayer(ULocalPlayer* LocalPlayer);

	/** The owner player. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	ULocalPlayer* GetOwnerPlayer() const;

	/** The manually redraw. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	bool GetManuallyRedraw() const;

	/** Sets the manually redraw. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetManuallyRedraw(bool bUseManualRedraw);

	/** The draw size. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	FVector2D GetDrawSize() const;

	/** Sets the draw size. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetDrawSize(FVector2D Size);

	/** The current draw size. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	FVector2D GetCurrentDrawSize() const;

	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void RequestRedraw();

	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void RequestRenderUpdate();

	/** The widget space. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	EWidgetSpace GetWidgetSpace() const;

	/** Sets the widget space. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetWidgetSpace(EWidgetSpace NewSpace);

	/** The pivot. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	FVector2D GetPivot() const;

	/** Sets the pivot. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetPivot(const FVector2D& InPivot);

	/** The draw at desired size. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	bool GetDrawAtDesiredSize() const;

	/** Sets the draw at desired size. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetDrawAtDesiredSize(bool bInDrawAtDesiredSize);

	/** The redraw time. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	float GetRedrawTime() const;

	/** Sets the redraw time. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetRedrawTime(float InRedrawTime);

	/** The window focusable. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	bool GetWindowFocusable() const;

	/** Sets the window focusable. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetWindowFocusable(bool bInWindowFocusable);

	/** The window visiblility. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	ESlateVisibility GetWindowVisiblility() const;

	/** Sets the window visibility. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetWindowVisibility(ESlateVisibility InVisibility);

	/** The tick when offscreen. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	bool GetTickWhenOffscreen() const;

	/** Sets the tick when offscreen. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetTickWhenOffscreen(const bool bWantTickWhenOffscreen);

	/** Sets the two sided. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetTwoSided(const bool bWantTwoSided);

	/** The two sided. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	bool GetTwoSided() const;

	/** Sets the background color. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetBackgroundColor(const FLinearColor NewBackgroundColor);

	/** Sets the tint color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetTintColorAndOpacity(const FLinearColor NewTintColorAndOpacity);

	/** The cylinder arc angle. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	float GetCylinderArcAngle() const;

	/** Sets the cylinder arc angle. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetCylinderArcAngle(const float InCylinderArcAngle);

	/** The geometry mode. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	EWidgetGeometryMode GetGeometryMode() const;

	/** Sets the geometry mode. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	void SetGeometryMode(EWidgetGeometryMode InGeometryMode);

	/** True if it is widget visible. */
	UFUNCTION(BlueprintCallable, Category = "User Interface")
	bool IsWidgetVisible() const;
};

/** A pointer for widgets in the world. */
UCLASS(ClassGroup = UserInterface, meta = (BlueprintSpawnableComponent))
class UMG_API UWidgetInteractionComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Interaction")
	FOnHoveredWidgetChanged OnHoveredWidgetChanged;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction")
	float InteractionDistance = 500.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Debugging")
	bool bShowDebug = false;

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	void PressPointerKey(FKey Key);

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	void ReleasePointerKey(FKey Key);

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	bool PressKey(FKey Key, bool bRepeat = false);

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	bool ReleaseKey(FKey Key);

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	bool PressAndReleaseKey(FKey Key);

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	bool SendKeyChar(FString Characters, bool bRepeat = false);

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	void ScrollWheel(float ScrollDelta);

	/** The hovered widget component. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	UWidgetComponent* GetHoveredWidgetComponent() const;

	/** True if it is over interactable widget. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	bool IsOverInteractableWidget() const;

	/** True if it is over focusable widget. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	bool IsOverFocusableWidget() const;

	/** True if it is over hit test visible widget. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	bool IsOverHitTestVisibleWidget() const;

	/** The last hit result. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	const FHitResult& GetLastHitResult() const;

	UFUNCTION(BlueprintCallable, Category = "Interaction")
	FVector2D Get2DHitLocation() const;

	/** Sets the custom hit result. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	void SetCustomHitResult(const FHitResult& HitResult);

	/** Sets the focus. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	void SetFocus(UWidget* FocusWidget);
};
