// Package: /Script/UMG
#pragma once

#include "WidgetPanels.h"
#include "WidgetControls.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonClickedEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonPressedEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonReleasedEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonHoverEvent);

/** A button. */
UCLASS()
class UMG_API UButton : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonClickedEvent OnClicked;

	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonPressedEvent OnPressed;

	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonReleasedEvent OnReleased;

	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonHoverEvent OnHovered;

	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonHoverEvent OnUnhovered;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FButtonStyle WidgetStyle;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor ColorAndOpacity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor BackgroundColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction")
	bool IsFocusable = true;

	/** Sets the style. */
	UFUNCTION(BlueprintCallable, Category = "Button|Appearance")
	void SetStyle(const FButtonStyle& InStyle);

	/** Sets the color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Button|Appearance")
	void SetColorAndOpacity(FLinearColor InColorAndOpacity);

	/** Sets the background color. */
	UFUNCTION(BlueprintCallable, Category = "Button|Appearance")
	void SetBackgroundColor(FLinearColor InBackgroundColor);

	/** True if it is pressed. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	bool IsPressed() const;

	/** Sets the click method. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	void SetClickMethod(EButtonClickMethod::Type InClickMethod);

	/** Sets the touch method. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	void SetTouchMethod(EButtonTouchMethod::Type InTouchMethod);

	/** Sets the press method. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	void SetPressMethod(EButtonPressMethod::Type InPressMethod);
};

/** Place of a widget in a button. */
UCLASS()
class UMG_API UButtonSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Button Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Button Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Button Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};
