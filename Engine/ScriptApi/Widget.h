// Package: /Script/UMG
#pragma once

#include "CoreMinimal.h"
#include "Widget.generated.h"

/** Whether a widget is seen and touched. */
UENUM(BlueprintType)
enum class ESlateVisibility : uint8
{
	Visible,
	Collapsed,
	Hidden,
	HitTestInvisible UMETA(DisplayName = "Not Hit-Testable (Self & All Children)"),
	SelfHitTestInvisible UMETA(DisplayName = "Not Hit-Testable (Self Only)")
};

/** How much place a widget takes. */
UENUM(BlueprintType)
namespace ESlateSizeRule
{
enum Type : int
{
	Automatic UMETA(DisplayName = "Auto"),
	Fill
};
}

/** Which way an animation plays. */
UENUM(BlueprintType)
namespace EUMGSequencePlayMode
{
enum Type : int
{
	Forward,
	Reverse,
	PingPong
};
}

/** What an animation did. */
UENUM(BlueprintType)
enum class EWidgetAnimationEvent : uint8
{
	Started,
	Finished
};

/** Where a widget component draws. */
UENUM(BlueprintType)
enum class EWidgetSpace : uint8
{
	World,
	Screen
};

/** Which time a widget component ticks in. */
UENUM(BlueprintType)
enum class EWidgetTimingPolicy : uint8
{
	RealTime,
	GameTime
};

/** How a widget component goes together with what is behind it. */
UENUM(BlueprintType)
enum class EWidgetBlendMode : uint8
{
	Opaque,
	Masked,
	Transparent
};

/** Shape of a widget component. */
UENUM(BlueprintType)
enum class EWidgetGeometryMode : uint8
{
	Plane,
	Cylinder
};

/** Where a dragged widget is held. */
UENUM(BlueprintType)
enum class EDragPivot : uint8
{
	MouseDown,
	TopLeft,
	TopCenter,
	TopRight,
	CenterLeft,
	CenterCenter,
	CenterRight,
	BottomLeft,
	BottomCenter,
	BottomRight
};

/** How a dynamic box lays out. */
UENUM(BlueprintType)
enum class EDynamicBoxType : uint8
{
	Horizontal,
	Vertical,
	Wrap,
	VerticalWrap,
	Radial,
	Overlay
};

/** Place that a widget takes. */
USTRUCT(BlueprintType)
struct FSlateChildSize
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Value = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	TEnumAsByte<ESlateSizeRule::Type> SizeRule;
};

/** Place, scale, shear and angle of a widget. */
USTRUCT(BlueprintType)
struct FWidgetTransform
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Translation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Scale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Shear;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	float Angle = 0.f;
};

/** Where a widget stands on a canvas. */
USTRUCT(BlueprintType)
struct FAnchorData
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AnchorData")
	FMargin Offsets;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AnchorData")
	FAnchors Anchors;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AnchorData")
	FVector2D Alignment;
};

/** Whether an event was taken. */
USTRUCT(BlueprintType)
struct FEventReply
{
	GENERATED_BODY()
};

/** What a widget is painted with. */
USTRUCT(BlueprintType)
struct FPaintContext
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FShapedTextOptions
{
	GENERATED_BODY()
};

DECLARE_DYNAMIC_DELEGATE_OneParam(FCustomWidgetNavigationDelegate, EUINavigation, Navigation);

UCLASS(abstract, BlueprintType)
class UMG_API UVisual : public UObject
{
	GENERATED_BODY()
};

/** Something on the screen. */
UCLASS(Abstract, BlueprintType, Blueprintable)
class UMG_API UWidget : public UVisual
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, EditAnywhere, Category = "Layout (Slot)")
	TObjectPtr<UPanelSlot> Slot;

	/** Whether the Blueprint that holds the widget has it as a variable. */
	UPROPERTY()
	bool bIsVariable = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, BlueprintGetter = GetIsEnabled, BlueprintSetter = SetIsEnabled, Category = "Behavior")
	bool bIsEnabled = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior")
	FText ToolTipText;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Transform")
	FWidgetTransform RenderTransform;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Transform")
	FVector2D RenderTransformPivot;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior")
	ESlateVisibility Visibility;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	float RenderOpacity = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Clipping")
	EWidgetClipping Clipping;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior")
	TEnumAsByte<EMouseCursor::Type> Cursor;

	UPROPERTY(EditAnywhere, Category = "Performance")
	uint8 bIsVolatile : 1;

	/** Sets the render transform. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	void SetRenderTransform(FWidgetTransform InTransform);

	/** Sets the render scale. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	void SetRenderScale(FVector2D Scale);

	/** Sets the render shear. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	void SetRenderShear(FVector2D Shear);

	/** Sets the render transform angle. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	void SetRenderTransformAngle(float Angle);

	/** The render transform angle. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	float GetRenderTransformAngle() const;

	/** Sets the render translation. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	void SetRenderTranslation(FVector2D Translation);

	/** Sets the render transform pivot. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	void SetRenderTransformPivot(FVector2D Pivot);

	/** The is enabled. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool GetIsEnabled() const;

	/** Sets the is enabled. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsEnabled(bool bInIsEnabled);

	/** Sets the tool tip text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetToolTipText(const FText& InToolTipText);

	/** Sets the tool tip. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetToolTip(UWidget* Widget);

	/** Sets the cursor. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetCursor(EMouseCursor::Type InCursor);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ResetCursor();

	/** True if it is rendered. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool IsRendered() const;

	/** True if it is visible. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool IsVisible() const;

	/** The visibility. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	ESlateVisibility GetVisibility() const;

	/** Sets the visibility. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetVisibility(ESlateVisibility InVisibility);

	/** The render opacity. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	float GetRenderOpacity() const;

	/** Sets the render opacity. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetRenderOpacity(float InOpacity);

	/** The clipping. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	EWidgetClipping GetClipping() const;

	/** Sets the clipping. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetClipping(EWidgetClipping InClipping);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ForceVolatile(bool bForce);

	/** True if it is hovered. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool IsHovered() const;

	/** True if it has keyboard focus. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasKeyboardFocus() const;

	/** True if it has mouse capture. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasMouseCapture() const;

	/** True if it has mouse capture by user. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasMouseCaptureByUser(int32 UserIndex, int32 PointerIndex = -1) const;

	/** Sets the keyboard focus. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetKeyboardFocus();

	/** True if it has user focus. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasUserFocus(APlayerController* PlayerController) const;

	/** True if it has any user focus. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasAnyUserFocus() const;

	/** True if it has focused descendants. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasFocusedDescendants() const;

	/** True if it has user focused descendants. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasUserFocusedDescendants(APlayerController* PlayerController) const;

	/** Gives focus to the widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetFocus();

	/** Sets the user focus. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetUserFocus(APlayerController* PlayerController);

	/** Lays the widget out now. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ForceLayoutPrepass();

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void InvalidateLayoutAndVolatility();

	/** The desired size. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FVector2D GetDesiredSize() const;

	/** Sets the navigation rule base. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetNavigationRuleBase(EUINavigation Direction, EUINavigationRule Rule);

	/** Sets the navigation rule explicit. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetNavigationRuleExplicit(EUINavigation Direction, UWidget* InWidget);

	/** Sets the navigation rule custom. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetNavigationRuleCustom(EUINavigation Direction, FCustomWidgetNavigationDelegate InCustomDelegate);

	/** Sets the navigation rule custom boundary. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetNavigationRuleCustomBoundary(EUINavigation Direction, FCustomWidgetNavigationDelegate InCustomDelegate);

	/** Sets the all navigation rules. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetAllNavigationRules(EUINavigationRule Rule, FName WidgetToFocus);

	/** Panel that the widget is in. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UPanelWidget* GetParent() const;

	/** Takes the widget from its panel or the screen. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void RemoveFromParent();

	/** The cached geometry. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	const FGeometry& GetCachedGeometry() const;

	/** The tick space geometry. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	const FGeometry& GetTickSpaceGeometry() const;

	/** The paint space geometry. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	const FGeometry& GetPaintSpaceGeometry() const;

	/** The game instance. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UGameInstance* GetGameInstance() const;

	/** The owning player. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	APlayerController* GetOwningPlayer() const;

	/** The owning local player. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	ULocalPlayer* GetOwningLocalPlayer() const;

	/** The accessible text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetAccessibleText() const;

	/** The accessible summary text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetAccessibleSummaryText() const;
};
