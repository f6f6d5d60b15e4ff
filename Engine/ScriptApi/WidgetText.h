// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "WidgetText.generated.h"

/** A widget with lines of text. */
UCLASS(Abstract)
class UMG_API UTextLayoutWidget : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	TEnumAsByte<ETextJustify::Type> Justification;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool AutoWrapText = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float WrapTextAt = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin Margin;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float LineHeightPercentage = 1.f;

	/** Sets the justification. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetJustification(ETextJustify::Type InJustification);
};

/** A text. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UTextBlock : public UTextLayoutWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (MultiLine = "true"))
	FText Text;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ColorAndOpacity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateFontInfo Font;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FVector2D ShadowOffset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor ShadowColorAndOpacity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float MinDesiredWidth = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	ETextTransformPolicy TextTransformPolicy;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Clipping")
	ETextOverflowPolicy TextOverflowPolicy;

	/** Sets the color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetColorAndOpacity(FSlateColor InColorAndOpacity);

	/** Sets the opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetOpacity(float InOpacity);

	/** Sets the shadow color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetShadowColorAndOpacity(FLinearColor InShadowColorAndOpacity);

	/** Sets the shadow offset. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetShadowOffset(FVector2D InShadowOffset);

	/** Sets the font. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetFont(FSlateFontInfo InFontInfo);

	/** Sets the strike brush. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetStrikeBrush(FSlateBrush InStrikeBrush);

	/** Sets the min desired width. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetMinDesiredWidth(float InMinDesiredWidth);

	/** Sets the auto wrap text. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetAutoWrapText(bool InAutoTextWrap);

	/** Sets the text transform policy. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetTextTransformPolicy(ETextTransformPolicy InTransformPolicy);

	/** Sets the text overflow policy. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetTextOverflowPolicy(ETextOverflowPolicy InOverflowPolicy);

	/** Sets the font material. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetFontMaterial(UMaterialInterface* InMaterial);

	/** Sets the font outline material. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetFontOutlineMaterial(UMaterialInterface* InMaterial);

	/** The dynamic font material. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMaterialInstanceDynamic* GetDynamicFontMaterial();

	/** The dynamic outline material. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMaterialInstanceDynamic* GetDynamicOutlineMaterial();

	/** The text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const;

	/** Sets the text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetText(FText InText);
};

/** A text with several styles. */
UCLASS()
class UMG_API URichTextBlock : public UTextLayoutWidget
{
	GENERATED_BODY()

public:
	/** The text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const;

	/** Sets the text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetText(const FText& InText);

	/** Sets the text style set. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetTextStyleSet(UDataTable* NewTextStyleSet);

	/** Sets the default color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetDefaultColorAndOpacity(FSlateColor InColorAndOpacity);

	/** Sets the min desired width. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetMinDesiredWidth(float InMinDesiredWidth);

	/** Sets the auto wrap text. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetAutoWrapText(bool InAutoTextWrap);

	/** Sets the default font. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetDefaultFont(FSlateFontInfo InFontInfo);

	/** Sets the default text style. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetDefaultTextStyle(const FTextBlockStyle& InDefaultTextStyle);

	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void RefreshTextLayout();
};

/** A picture. */
UCLASS()
class UMG_API UImage : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Brush;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor ColorAndOpacity;

	/** Sets the color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetColorAndOpacity(FLinearColor InColorAndOpacity);

	/** Sets the opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetOpacity(float InOpacity);

	/** Sets the desired size override. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetDesiredSizeOverride(FVector2D DesiredSize);

	/** Sets the brush tint color. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushTintColor(FSlateColor TintColor);

	/** Sets the brush resource object. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushResourceObject(UObject* ResourceObject);

	/** Sets the brush. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrush(const FSlateBrush& InBrush);

	/** Sets the brush from asset. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushFromAsset(USlateBrushAsset* Asset);

	/** Sets the brush from texture. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushFromTexture(UTexture2D* Texture, bool bMatchSize = false);

	/** Sets the brush from texture dynamic. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushFromTextureDynamic(UTexture2DDynamic* Texture, bool bMatchSize = false);

	/** Sets the brush from material. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushFromMaterial(UMaterialInterface* Material);

	/** Sets the brush from soft texture. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushFromSoftTexture(TSoftObjectPtr<UTexture2D> SoftTexture, bool bMatchSize = false);

	/** Sets the brush from soft material. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetBrushFromSoftMaterial(TSoftObjectPtr<UMaterialInterface> SoftMaterial);

	/** The dynamic material. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMaterialInstanceDynamic* GetDynamicMaterial();
};

/** A bar that fills. */
UCLASS()
class UMG_API UProgressBar : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Style")
	FProgressBarStyle WidgetStyle;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress")
	float Percent = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress")
	TEnumAsByte<EProgressBarFillType::Type> BarFillType;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress")
	bool bIsMarquee = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor FillColorAndOpacity;

	/** Sets the percent. */
	UFUNCTION(BlueprintCallable, Category = "Progress")
	void SetPercent(float InPercent);

	/** Sets the is marquee. */
	UFUNCTION(BlueprintCallable, Category = "Progress")
	void SetIsMarquee(bool InbIsMarquee);

	/** Sets the fill color and opacity. */
	UFUNCTION(BlueprintCallable, Category = "Progress")
	void SetFillColorAndOpacity(FLinearColor InColor);
};
