// Package: /Script/UMG
#pragma once

#include "WidgetPanels.h"
#include "WidgetBlueprint.generated.h"

/** Widgets of a widget Blueprint. */
UCLASS()
class UMG_API UWidgetTree : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Instanced)
	TObjectPtr<UWidget> RootWidget;
};

/** Place of a widget in a size box. */
UCLASS()
class UMG_API USizeBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|SizeBox Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|SizeBox Slot")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|SizeBox Slot")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment;

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|SizeBox Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|SizeBox Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|SizeBox Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Place of a widget in a border. */
UCLASS()
class UMG_API UBorderSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Border Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Border Slot")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Border Slot")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment;

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Border Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Border Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Border Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Place of a widget in a scale box. */
UCLASS()
class UMG_API UScaleBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|ScaleBox Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|ScaleBox Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Class of a widget Blueprint. */
UCLASS()
class UMG_API UWidgetBlueprintGeneratedClass : public UBlueprintGeneratedClass
{
	GENERATED_BODY()
};
