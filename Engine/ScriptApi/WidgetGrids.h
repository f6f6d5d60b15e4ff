// Package: /Script/UMG
#pragma once

#include "WidgetPanels.h"
#include "WidgetGrids.generated.h"

/** Widgets in rows and columns of their own sizes. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UGridPanel : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UGridSlot* AddChildToGrid(UWidget* Content, int32 InRow = 0, int32 InColumn = 0);

	/** Sets the column fill. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetColumnFill(int32 ColumnIndex, float Coefficient);

	/** Sets the row fill. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetRowFill(int32 RowIndex, float Coefficient);
};

/** Place of a widget in a grid. */
UCLASS()
class UMG_API UGridSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot")
	int32 Row = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot")
	int32 RowSpan = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot")
	int32 Column = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot")
	int32 ColumnSpan = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot")
	int32 Layer = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot")
	FVector2D Nudge;

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the row. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetRow(int32 InRow);

	/** Sets the row span. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetRowSpan(int32 InRowSpan);

	/** Sets the column. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetColumn(int32 InColumn);

	/** Sets the column span. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetColumnSpan(int32 InColumnSpan);

	/** Sets the layer. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetLayer(int32 InLayer);

	/** Sets the nudge. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetNudge(FVector2D InNudge);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Widgets in rows and columns of one size. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UUniformGridPanel : public UPanelWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	FMargin SlotPadding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float MinDesiredSlotWidth = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout")
	float MinDesiredSlotHeight = 0.f;

	/** Sets the slot padding. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetSlotPadding(FMargin InSlotPadding);

	/** Sets the min desired slot width. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMinDesiredSlotWidth(float InMinDesiredSlotWidth);

	/** Sets the min desired slot height. */
	UFUNCTION(BlueprintCallable, Category = "Child Layout")
	void SetMinDesiredSlotHeight(float InMinDesiredSlotHeight);

	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UUniformGridSlot* AddChildToUniformGrid(UWidget* Content, int32 InRow = 0, int32 InColumn = 0);
};

/** Place of a widget in a uniform grid. */
UCLASS()
class UMG_API UUniformGridSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Uniform Grid Slot")
	int32 Row = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Uniform Grid Slot")
	int32 Column = 0;

	/** Sets the row. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Uniform Grid Slot")
	void SetRow(int32 InRow);

	/** Sets the column. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Uniform Grid Slot")
	void SetColumn(int32 InColumn);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Uniform Grid Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Uniform Grid Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Widgets in lines that break. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UWrapBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout")
	FVector2D InnerSlotPadding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout")
	float WrapSize = 500.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout")
	bool bExplicitWrapSize = false;

	/** Sets the inner slot padding. */
	UFUNCTION(BlueprintCallable, Category = "Content Layout")
	void SetInnerSlotPadding(FVector2D InPadding);

	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UWrapBoxSlot* AddChildToWrapBox(UWidget* Content);
};

/** Place of a widget in a wrap box. */
UCLASS()
class UMG_API UWrapBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot")
	bool bFillEmptySpace = false;

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the fill empty space. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	void SetFillEmptySpace(bool InbFillEmptySpace);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Shows one of its widgets. */
UCLASS()
class UMG_API UWidgetSwitcher : public UPanelWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Switcher")
	int32 ActiveWidgetIndex = 0;

	/** The num widgets. */
	UFUNCTION(BlueprintCallable, Category = "Switcher")
	int32 GetNumWidgets() const;

	/** The active widget index. */
	UFUNCTION(BlueprintCallable, Category = "Switcher")
	int32 GetActiveWidgetIndex() const;

	/** Sets the active widget index. */
	UFUNCTION(BlueprintCallable, Category = "Switcher")
	void SetActiveWidgetIndex(int32 Index);

	/** Sets the active widget. */
	UFUNCTION(BlueprintCallable, Category = "Switcher")
	void SetActiveWidget(UWidget* Widget);

	/** The widget at index. */
	UFUNCTION(BlueprintCallable, Category = "Switcher")
	UWidget* GetWidgetAtIndex(int32 Index) const;

	/** The active widget. */
	UFUNCTION(BlueprintCallable, Category = "Switcher")
	UWidget* GetActiveWidget() const;
};

/** Place of a widget in a switcher. */
UCLASS()
class UMG_API UWidgetSwitcherSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Widget Switcher Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Widget Switcher Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Widget Switcher Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};
