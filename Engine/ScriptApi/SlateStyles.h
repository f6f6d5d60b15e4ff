// Package: /Script/SlateCore
#pragma once

#include "CoreMinimal.h"
#include "SlateStyles.generated.h"

USTRUCT(BlueprintType)
struct FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a button is drawn. */
USTRUCT(BlueprintType)
struct FButtonStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Normal;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Hovered;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Pressed;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Disabled;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor NormalForeground;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor HoveredForeground;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor PressedForeground;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor DisabledForeground;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin NormalPadding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin PressedPadding;
};

/** How a text is drawn. */
USTRUCT(BlueprintType)
struct FTextBlockStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateFontInfo Font;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ColorAndOpacity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FVector2D ShadowOffset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor ShadowColorAndOpacity;
};

/** How a progress bar is drawn. */
USTRUCT(BlueprintType)
struct FProgressBarStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush FillImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush MarqueeImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool EnableFillAnimation = false;
};

/** How a slider is drawn. */
USTRUCT(BlueprintType)
struct FSliderStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush NormalBarImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HoveredBarImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush DisabledBarImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush NormalThumbImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HoveredThumbImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush DisabledThumbImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float BarThickness = 2.f;
};

/** How a check box is drawn. */
USTRUCT(BlueprintType)
struct FCheckBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UncheckedImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UncheckedHoveredImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UncheckedPressedImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush CheckedImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush CheckedHoveredImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush CheckedPressedImage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin Padding;
};

/** How a combo box is drawn. */
USTRUCT(BlueprintType)
struct FComboBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a row of a list is drawn. */
USTRUCT(BlueprintType)
struct FTableRowStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a list is drawn. */
USTRUCT(BlueprintType)
struct FTableViewStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a scroll box is drawn. */
USTRUCT(BlueprintType)
struct FScrollBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a scroll bar is drawn. */
USTRUCT(BlueprintType)
struct FScrollBarStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a text field is drawn. */
USTRUCT(BlueprintType)
struct FEditableTextStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a text box is drawn. */
USTRUCT(BlueprintType)
struct FEditableTextBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};

/** How a spin box is drawn. */
USTRUCT(BlueprintType)
struct FSpinBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()
};
