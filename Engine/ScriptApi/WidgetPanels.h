// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "WidgetPanels.generated.h"

/** Place of a widget in a panel. */
UCLASS(BlueprintType)
class UMG_API UPanelSlot : public UVisual
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, Category = "Slot")
	TObjectPtr<UPanelWidget> Parent;

	UPROPERTY(BlueprintReadOnly, Category = "Slot")
	TObjectPtr<UWidget> Content;
};

/** A widget that holds others. */
UCLASS(Abstract)
class UMG_API UPanelWidget : public UWidget
{
	GENERATED_BODY()

public:
	/** The children count. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	int32 GetChildrenCount() const;

	/** The child at. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UWidget* GetChildAt(int32 Index) const;

	/** The all children. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	TArray<UWidget*> GetAllChildren() const;

	/** The child index. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	int32 GetChildIndex(const UWidget* Content) const;

	/** True if it has child. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	bool HasChild(UWidget* Content) const;

	/** Takes a widget out by its place. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	bool RemoveChildAt(int32 Index);

	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UPanelSlot* AddChild(UWidget* Content);

	/** Takes a widget out. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	bool RemoveChild(UWidget* Content);

	/** True if it has any children. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	bool HasAnyChildren() const;

	/** Takes all widgets out. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	void ClearChildren();
};

/** A widget that holds one other. */
UCLASS(Abstract)
class UMG_API UContentWidget : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** The content slot. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UPanelSlot* GetContentSlot() const;

	/** Sets the content. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UPanelSlot* SetContent(UWidget* Content);

	/** The content. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UWidget* GetContent() const;
};

/** Widgets at any places. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UCanvasPanel : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Canvas")
	UCanvasPanelSlot* AddChildToCanvas(UWidget* Content);
};

/** Place of a widget on a canvas. */
UCLASS()
class UMG_API UCanvasPanelSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Canvas Slot")
	FAnchorData LayoutData;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Canvas Slot")
	bool bAutoSize = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Canvas Slot")
	int32 ZOrder = 0;

	/** Sets the position. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetPosition(FVector2D InPosition);

	/** The position. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	FVector2D GetPosition() const;

	/** Sets the size. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetSize(FVector2D InSize);

	/** The size. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	FVector2D GetSize() const;

	/** Sets the offsets. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetOffsets(FMargin InOffset);

	/** The offsets. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	FMargin GetOffsets() const;

	/** Sets the anchors. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetAnchors(FAnchors InAnchors);

	/** The anchors. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	FAnchors GetAnchors() const;

	/** Sets the alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetAlignment(FVector2D InAlignment);

	/** The alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	FVector2D GetAlignment() const;

	/** Sets the auto size. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetAutoSize(bool InbAutoSize);

	/** The auto size. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	bool GetAutoSize() const;

	/** Sets the z order. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetZOrder(int32 InZOrder);

	/** The z order. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	int32 GetZOrder() const;

	/** Sets the layout. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetLayout(const FAnchorData& InLayoutData);

	/** The layout. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	FAnchorData GetLayout() const;

	/** Sets the minimum. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetMinimum(FVector2D InMinimumAnchors);

	/** Sets the maximum. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	void SetMaximum(FVector2D InMaximumAnchors);
};

/** Widgets one over the other. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UOverlay : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UOverlaySlot* AddChildToOverlay(UWidget* Content);
};

/** Widgets in a row. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UHorizontalBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UHorizontalBoxSlot* AddChildToHorizontalBox(UWidget* Content);
};

/** Widgets in a column. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API UVerticalBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Adds a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UVerticalBoxSlot* AddChildToVerticalBox(UWidget* Content);
};

/** Place of a widget in a row. */
UCLASS()
class UMG_API UHorizontalBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot")
	FSlateChildSize Size;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment;

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the size. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	void SetSize(FSlateChildSize InSize);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Place of a widget in a column. */
UCLASS()
class UMG_API UVerticalBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Vertical Box Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Vertical Box Slot")
	FSlateChildSize Size;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Vertical Box Slot")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Vertical Box Slot")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment;

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Vertical Box Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the size. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Vertical Box Slot")
	void SetSize(FSlateChildSize InSize);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Vertical Box Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Vertical Box Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};

/** Place of a widget in an overlay. */
UCLASS()
class UMG_API UOverlaySlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Overlay Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Overlay Slot")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Overlay Slot")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment;

	/** Sets the padding. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Overlay Slot")
	void SetPadding(FMargin InPadding);

	/** Sets the horizontal alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Overlay Slot")
	void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	/** Sets the vertical alignment. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Overlay Slot")
	void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);
};
