// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "WidgetPanels.h"
#include "WidgetContainers.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnUserScrolledEvent, float, CurrentOffset);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnExpandableAreaExpansionChanged, UExpandableArea*, Area, bool, bIsExpanded);

/** Widgets that can be scrolled. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UScrollBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "ScrollBox|Event")
	FOnUserScrolledEvent OnUserScrolled;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	TEnumAsByte<EOrientation> Orientation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	ESlateVisibility ScrollBarVisibility;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	EConsumeMouseWheel ConsumeMouseWheel;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	bool AlwaysShowScrollbar = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	bool AllowOverscroll = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	float WheelScrollMultiplier = 1.f;

	/** Sets the consume mouse wheel. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetConsumeMouseWheel(EConsumeMouseWheel NewConsumeMouseWheel);

	/** Sets the orientation. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetOrientation(EOrientation NewOrientation);

	/** Sets the scroll bar visibility. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetScrollBarVisibility(ESlateVisibility NewScrollBarVisibility);

	/** Sets the scrollbar thickness. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetScrollbarThickness(const FVector2D& NewScrollbarThickness);

	/** Sets the scrollbar padding. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetScrollbarPadding(const FMargin& NewScrollbarPadding);

	/** Sets the always show scrollbar. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetAlwaysShowScrollbar(bool NewAlwaysShowScrollbar);

	/** Sets the allow overscroll. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetAllowOverscroll(bool NewAllowOverscroll);

	/** Sets the animate wheel scrolling. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetAnimateWheelScrolling(bool bShouldAnimateWheelScrolling);

	/** Sets the wheel scroll multiplier. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetWheelScrollMultiplier(float NewWheelScrollMultiplier);

	/** Sets the scroll when focus changes. */
	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void SetScrollWhenFocusChanges(EScrollWhenFocusChanges NewScrollWhenFocusChanges);

	/** Sets the scroll offset. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetScrollOffset(float NewScrollOffset);

	/** The scroll offset. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	float GetScrollOffset() const;

	/** The scroll offset of end. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	float GetScrollOffsetOfEnd() const;

	/** The view fraction. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	float GetViewFraction() const;

	/** The view offset fraction. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	float GetViewOffsetFraction() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ScrollToStart();

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ScrollToEnd();

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ScrollWidgetIntoView(UWidget* WidgetToFind, bool AnimateScroll = true,
		EDescendantScrollDestination ScrollDestination = EDescendantScrollDestination::IntoView, float Padding = 0);

	UFUNCTION(BlueprintCallable, Category = "Scroll")
	void EndInertialScrolling();
};

/** Place of a widget in a scroll box. */
UCLASS()
class UMG_API UScrollBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|ScrollBox Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the size. */
	UFUNCTION(BlueprintCallable, Category = "Layout|ScrollBox Slot")
	void SetSize(FSlateChildSize InSize);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|ScrollBox Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|ScrollBox Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** A widget of a set size. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API USizeBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float WidthOverride = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float HeightOverride = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float MinDesiredWidth = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float MinDesiredHeight = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float MaxDesiredWidth = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float MaxDesiredHeight = 0.f;

	/** Sets the width override. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetWidthOverride(float InWidthOverride);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearWidthOverride();

	/** Sets the height override. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetHeightOverride(float InHeightOverride);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearHeightOverride();

	/** Sets the min desired width. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMinDesiredWidth(float InMinDesiredWidth);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearMinDesiredWidth();

	/** Sets the min desired height. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMinDesiredHeight(float InMinDesiredHeight);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearMinDesiredHeight();

	/** Sets the max desired width. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMaxDesiredWidth(float InMaxDesiredWidth);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearMaxDesiredWidth();

	/** Sets the max desired height. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMaxDesiredHeight(float InMaxDesiredHeight);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearMaxDesiredHeight();

	/** Sets the min aspect ratio. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMinAspectRatio(float InMinAspectRatio);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearMinAspectRatio();

	/** Sets the max aspect ratio. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMaxAspectRatio(float InMaxAspectRatio);

	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void ClearMaxAspectRatio();
};

/** A widget that is scaled to its place. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UScaleBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching")
	TEnumAsByte<EStretch::Type> Stretch;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching")
	TEnumAsByte<EStretchDirection::Type> StretchDirection;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching")
	float UserSpecifiedScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching")
	bool IgnoreInheritedScale = false;

	/** Sets the stretch. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetStretch(EStretch::Type InStretch);

	/** Sets the stretch direction. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetStretchDirection(EStretchDirection::Type InStretchDirection);

	/** Sets the user specified scale. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetUserSpecifiedScale(float InUserSpecifiedScale);

	/** Sets the ignore inherited scale. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetIgnoreInheritedScale(bool bInIgnoreInheritedScale);
};

/** A widget with a background. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UBorder : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FLinearColor ContentColorAndOpacity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Background;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor BrushColor;

	/** Sets the content color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetContentColorAndOpacity(FLinearColor InContentColorAndOpacity);

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetPadding(FMargin InPadding);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	/** Sets the brush color. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetBrushColor(FLinearColor InBrushColor);

	/** Sets the brush. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetBrush(const FSlateBrush& InBrush);

	/** Sets the brush from asset. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetBrushFromAsset(USlateBrushAsset* Asset);

	/** Sets the brush from texture. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetBrushFromTexture(UTexture2D* Texture);

	/** Sets the brush from material. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetBrushFromMaterial(UMaterialInterface* Material);

	/** Sets the desired size scale. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	void SetDesiredSizeScale(FVector2D InScale);

	/** The dynamic material. */
	UFUNCTION(BlueprintCallable, Category = "Content")
	UMaterialInstanceDynamic* GetDynamicMaterial();
};

/** Blurs what is behind a widget. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UBackgroundBlur : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float BlurStrength = 0.f;

	/** Sets the blur strength. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBlurStrength(float InStrength);

	/** Sets the blur radius. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBlurRadius(int32 InBlurRadius);

	/** Sets the apply alpha to blur. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetApplyAlphaToBlur(bool bInApplyAlphaToBlur);
};

/** Keeps a widget where every screen shows it. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API USafeZone : public UContentWidget
{
	GENERATED_BODY()
};

/** Draws a widget anew only when it changed. */
UCLASS()
class UMG_API UInvalidationBox : public UContentWidget
{
	GENERATED_BODY()

public:
	/** Sets the can cache. */
	UFUNCTION(BlueprintCallable, Category = "Caching")
	void SetCanCache(bool CanCache);

	/** The can cache. */
	UFUNCTION(BlueprintCallable, Category = "Caching")
	bool GetCanCache() const;
};

/** Draws a widget into a texture. */
UCLASS()
class UMG_API URetainerBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Retainer")
	void RequestRender();

	/** Sets the rendering phase. */
	UFUNCTION(BlueprintCallable, Category = "Retainer")
	void SetRenderingPhase(int32 RenderPhase, int32 TotalPhases);

	/** Sets the retain rendering. */
	UFUNCTION(BlueprintCallable, Category = "Retainer")
	void SetRetainRendering(bool bInRetainRendering);

	/** The effect material. */
	UFUNCTION(BlueprintCallable, Category = "Retainer")
	UMaterialInstanceDynamic* GetEffectMaterial() const;

	/** Sets the effect material. */
	UFUNCTION(BlueprintCallable, Category = "Retainer")
	void SetEffectMaterial(UMaterialInterface* EffectMaterial);

	/** Sets the texture parameter. */
	UFUNCTION(BlueprintCallable, Category = "Retainer")
	void SetTextureParameter(FName TextureParameter);
};

/** A place that users of a widget fill. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UNamedSlot : public UContentWidget
{
	GENERATED_BODY()
};

/** A widget that opens and closes. */
UCLASS()
class UMG_API UExpandableArea : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "ExpandableArea|Event")
	FOnExpandableAreaExpansionChanged OnExpansionChanged;

	/** The is expanded. */
	UFUNCTION(BlueprintCallable, Category = "Expansion")
	bool GetIsExpanded() const;

	/** Sets the is expanded. */
	UFUNCTION(BlueprintCallable, Category = "Expansion")
	void SetIsExpanded(bool IsExpanded);

	/** Sets the is expanded animated. */
	UFUNCTION(BlueprintCallable, Category = "Expansion")
	void SetIsExpanded_Animated(bool IsExpanded);
};

/** A brush. */
UCLASS(hidecategories = Object, BlueprintType)
class UMG_API USlateBrushAsset : public UObject
{
	GENERATED_BODY()
};
