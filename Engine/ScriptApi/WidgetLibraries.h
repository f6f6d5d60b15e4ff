// Package: /Script/UMG
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "WidgetLibraries.generated.h"

/** Widgets and their events. */
UCLASS()
class UMG_API UWidgetBlueprintLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Makes a widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true"))
	static UUserWidget* Create(UObject* WorldContextObject, TSubclassOf<UUserWidget> WidgetType, APlayerController* OwningPlayer);

	/** Makes what is dragged. */
	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (BlueprintInternalUseOnly = "true"))
	static UDragDropOperation* CreateDragDropOperation(TSubclassOf<UDragDropOperation> OperationClass);

	/** Only widgets get input. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (DisplayName = "Set Input Mode UI Only"))
	static void SetInputMode_UIOnlyEx(APlayerController* PlayerController, UWidget* InWidgetToFocus = nullptr,
		EMouseLockMode InMouseLockMode = EMouseLockMode::DoNotLock, const bool bFlushInput = false);

	/** Widgets get input, then the game. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (DisplayName = "Set Input Mode Game And UI"))
	static void SetInputMode_GameAndUIEx(APlayerController* PlayerController, UWidget* InWidgetToFocus = nullptr,
		EMouseLockMode InMouseLockMode = EMouseLockMode::DoNotLock, bool bHideCursorDuringCapture = true, const bool bFlushInput = false);

	/** Only the game gets input. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (DisplayName = "Set Input Mode Game Only"))
	static void SetInputMode_GameOnly(APlayerController* PlayerController, const bool bFlushInput = false);

	/** Gives focus to the game. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	static void SetFocusToGameViewport();

	/** Draws a rectangle. */
	UFUNCTION(BlueprintCallable, Category = "Painting")
	static void DrawBox(
		FPaintContext& Context, FVector2D Position, FVector2D Size, USlateBrushAsset* Brush, FLinearColor Tint = FLinearColor::White);

	/** Draws a line. */
	UFUNCTION(BlueprintCallable, Category = "Painting")
	static void DrawLine(FPaintContext& Context, FVector2D PositionA, FVector2D PositionB, FLinearColor Tint = FLinearColor::White,
		bool bAntiAlias = true, float Thickness = 1.0f);

	/** Draws lines. */
	UFUNCTION(BlueprintCallable, Category = "Painting")
	static void DrawLines(FPaintContext& Context, const TArray<FVector2D>& Points, FLinearColor Tint = FLinearColor::White,
		bool bAntiAlias = true, float Thickness = 1.0f);

	/** Draws a text. */
	UFUNCTION(BlueprintCallable, Category = "Painting", meta = (DeprecatedFunction))
	static void DrawText(FPaintContext& Context, const FString& InString, FVector2D Position, FLinearColor Tint = FLinearColor::White);

	/** Draws a text. */
	UFUNCTION(BlueprintCallable, Category = "Painting", meta = (DisplayName = "Draw Text"))
	static void DrawTextFormatted(FPaintContext& Context, const FText& Text, FVector2D Position, UFont* Font, float FontSize = 16.0f,
		FName FontTypeFace = FName(TEXT("Regular")), FLinearColor Tint = FLinearColor::White);

	/** The event was taken. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply")
	static FEventReply Handled();

	/** The event was not taken. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply")
	static FEventReply Unhandled();

	/** Has the widget get all that the mouse does, until it lets go. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply", meta = (DefaultToSelf = "CapturingWidget"))
	static FEventReply CaptureMouse(UPARAM(ref) FEventReply& Reply, UWidget* CapturingWidget);

	/** Lets go of the mouse. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply")
	static FEventReply ReleaseMouseCapture(UPARAM(ref) FEventReply& Reply);

	/** Keeps the mouse within the widget. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply", meta = (DefaultToSelf = "CapturingWidget"))
	static FEventReply LockMouse(UPARAM(ref) FEventReply& Reply, UWidget* CapturingWidget);

	/** Lets the mouse leave the widget again. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply")
	static FEventReply UnlockMouse(UPARAM(ref) FEventReply& Reply);

	/** Sets the user focus. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply", meta = (DefaultToSelf = "FocusWidget"))
	static FEventReply SetUserFocus(UPARAM(ref) FEventReply& Reply, UWidget* FocusWidget, bool bInAllUsers = false);

	/** Takes the focus from the widget that has it. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply")
	static FEventReply ClearUserFocus(UPARAM(ref) FEventReply& Reply, bool bInAllUsers = false);

	/** Sets the mouse position. */
	UFUNCTION(BlueprintPure, Category = "Widget|Event Reply")
	static FEventReply SetMousePosition(UPARAM(ref) FEventReply& Reply, FVector2D NewMousePosition);

	/** Waits for a drag. */
	UFUNCTION(BlueprintPure, Category = "Widget|Drag and Drop|Event Reply", meta = (DefaultToSelf = "WidgetDetectingDrag"))
	static FEventReply DetectDrag(UPARAM(ref) FEventReply& Reply, UWidget* WidgetDetectingDrag, FKey DragKey);

	/** Waits for a drag, if a key is pressed. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Drag and Drop|Event Reply", meta = (DefaultToSelf = "WidgetDetectingDrag"))
	static FEventReply DetectDragIfPressed(const FPointerEvent& PointerEvent, UWidget* WidgetDetectingDrag, FKey DragKey);

	/** Ends what is being dragged. */
	UFUNCTION(BlueprintPure, Category = "Widget|Drag and Drop|Event Reply")
	static FEventReply EndDragDrop(UPARAM(ref) FEventReply& Reply);

	/** True if it is drag dropping. */
	UFUNCTION(BlueprintPure, Category = "Widget|Drag and Drop")
	static bool IsDragDropping();

	/** The drag dropping content. */
	UFUNCTION(BlueprintPure, Category = "Widget|Drag and Drop")
	static UDragDropOperation* GetDragDroppingContent();

	/** Ends a drag nowhere. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Drag and Drop")
	static void CancelDragDrop();

	UFUNCTION(BlueprintPure, Category = "Widget|Brush")
	static FSlateBrush MakeBrushFromAsset(USlateBrushAsset* BrushAsset);

	UFUNCTION(BlueprintPure, Category = "Widget|Brush")
	static FSlateBrush MakeBrushFromTexture(UTexture2D* Texture, int32 Width = 0, int32 Height = 0);

	UFUNCTION(BlueprintPure, Category = "Widget|Brush")
	static FSlateBrush MakeBrushFromMaterial(UMaterialInterface* Material, int32 Width = 32, int32 Height = 32);

	/** The brush resource. */
	UFUNCTION(BlueprintPure, Category = "Widget|Brush")
	static UObject* GetBrushResource(const FSlateBrush& Brush);

	/** The brush resource as texture2 d. */
	UFUNCTION(BlueprintPure, Category = "Widget|Brush")
	static UTexture2D* GetBrushResourceAsTexture2D(const FSlateBrush& Brush);

	/** The brush resource as material. */
	UFUNCTION(BlueprintPure, Category = "Widget|Brush")
	static UMaterialInterface* GetBrushResourceAsMaterial(const FSlateBrush& Brush);

	/** Sets the brush resource to texture. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Brush")
	static void SetBrushResourceToTexture(UPARAM(ref) FSlateBrush& Brush, UTexture2D* Texture);

	/** Sets the brush resource to material. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Brush")
	static void SetBrushResourceToMaterial(UPARAM(ref) FSlateBrush& Brush, UMaterialInterface* Material);

	UFUNCTION(BlueprintPure, Category = "Widget|Brush")
	static FSlateBrush NoResourceBrush();

	/** The dynamic material. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Brush")
	static UMaterialInstanceDynamic* GetDynamicMaterial(UPARAM(ref) FSlateBrush& Brush);

	/** Closes all menus. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Menu")
	static void DismissAllMenus();

	/** All widgets of a class. */
	UFUNCTION(BlueprintCallable, Category = "Widget",
		meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "WidgetClass", DynamicOutputParam = "FoundWidgets"))
	static void GetAllWidgetsOfClass(
		UObject* WorldContextObject, TArray<UUserWidget*>& FoundWidgets, TSubclassOf<UUserWidget> WidgetClass, bool TopLevelOnly = true);

	/** All widgets that have an interface. */
	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (WorldContext = "WorldContextObject"))
	static void GetAllWidgetsWithInterface(
		UObject* WorldContextObject, TArray<UUserWidget*>& FoundWidgets, TSubclassOf<UInterface> Interface, bool TopLevelOnly);

	/** The input event from key event. */
	UFUNCTION(
		BlueprintPure, Category = "Widget", meta = (DisplayName = "To Input Event (KeyEvent)", CompactNodeTitle = "->", BlueprintAutocast))
	static FInputEvent GetInputEventFromKeyEvent(const FKeyEvent& Event);

	/** The key event from analog input event. */
	UFUNCTION(BlueprintPure, Category = "Widget",
		meta = (DisplayName = "To Key Event (Analog Input Event)", CompactNodeTitle = "->", BlueprintAutocast))
	static FKeyEvent GetKeyEventFromAnalogInputEvent(const FAnalogInputEvent& Event);

	/** The input event from character event. */
	UFUNCTION(BlueprintPure, Category = "Widget",
		meta = (DisplayName = "To Input Event (Character Event)", CompactNodeTitle = "->", BlueprintAutocast))
	static FInputEvent GetInputEventFromCharacterEvent(const FCharacterEvent& Event);

	/** The input event from pointer event. */
	UFUNCTION(BlueprintPure, Category = "Widget",
		meta = (DisplayName = "To Input Event (Pointer Event)", CompactNodeTitle = "->", BlueprintAutocast))
	static FInputEvent GetInputEventFromPointerEvent(const FPointerEvent& Event);

	/** The input event from navigation event. */
	UFUNCTION(BlueprintPure, Category = "Widget",
		meta = (DisplayName = "To Input Event (Navigation Event)", CompactNodeTitle = "->", BlueprintAutocast))
	static FInputEvent GetInputEventFromNavigationEvent(const FNavigationEvent& Event);

	/** The safe zone padding. */
	UFUNCTION(BlueprintPure, Category = "Widget|Safe Zone", meta = (WorldContext = "WorldContextObject"))
	static void GetSafeZonePadding(
		UObject* WorldContextObject, FVector4& SafePadding, FVector2D& SafePaddingScale, FVector4& SpillOverPadding);

	/** Sets the hardware cursor. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Hardware Cursor", meta = (WorldContext = "WorldContextObject"))
	static bool SetHardwareCursor(UObject* WorldContextObject, EMouseCursor::Type CursorShape, FName CursorName, FVector2D HotSpot);

	/** Sets the color vision deficiency type. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Accessibility")
	static void SetColorVisionDeficiencyType(
		EColorVisionDeficiency Type, float Severity, bool CorrectDeficiency, bool ShowCorrectionWithDeficiency);
};

/** Places and sizes of widgets. */
UCLASS()
class UMG_API UWidgetLayoutLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Place on the screen, for widgets, of a point of the world. */
	UFUNCTION(BlueprintPure, Category = "Viewport")
	static bool ProjectWorldLocationToWidgetPosition(
		APlayerController* PlayerController, FVector WorldLocation, FVector2D& ScreenPosition, bool bPlayerViewportRelative);

	/** The viewport scale. */
	UFUNCTION(BlueprintPure, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	static float GetViewportScale(const UObject* WorldContextObject);

	/** The viewport size. */
	UFUNCTION(BlueprintPure, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	static FVector2D GetViewportSize(UObject* WorldContextObject);

	/** The viewport widget geometry. */
	UFUNCTION(BlueprintPure, Category = "Geometry", meta = (WorldContext = "WorldContextObject"))
	static FGeometry GetViewportWidgetGeometry(UObject* WorldContextObject);

	/** The player screen widget geometry. */
	UFUNCTION(BlueprintPure, Category = "Geometry")
	static FGeometry GetPlayerScreenWidgetGeometry(APlayerController* PlayerController);

	/** The mouse position on platform. */
	UFUNCTION(BlueprintPure, Category = "Viewport")
	static FVector2D GetMousePositionOnPlatform();

	/** The mouse position on viewport. */
	UFUNCTION(BlueprintPure, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	static FVector2D GetMousePositionOnViewport(UObject* WorldContextObject);

	/** The mouse position scaled by DPI. */
	UFUNCTION(BlueprintPure, Category = "Viewport")
	static bool GetMousePositionScaledByDPI(APlayerController* Player, float& LocationX, float& LocationY);

	/** Place of a widget, if it is on a canvas. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UCanvasPanelSlot* SlotAsCanvasSlot(UWidget* Widget);

	/** Place of a widget, if it is in a grid. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UGridSlot* SlotAsGridSlot(UWidget* Widget);

	/** Place of a widget, if it is in a row. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UHorizontalBoxSlot* SlotAsHorizontalBoxSlot(UWidget* Widget);

	/** Place of a widget, if it is in an overlay. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UOverlaySlot* SlotAsOverlaySlot(UWidget* Widget);

	/** Place of a widget, if it is in a uniform grid. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UUniformGridSlot* SlotAsUniformGridSlot(UWidget* Widget);

	/** Place of a widget, if it is in a column. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UVerticalBoxSlot* SlotAsVerticalBoxSlot(UWidget* Widget);

	/** Place of a widget, if it is in a scroll box. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UScrollBoxSlot* SlotAsScrollBoxSlot(UWidget* Widget);

	/** Place of a widget, if it is in a switcher. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UWidgetSwitcherSlot* SlotAsWidgetSwitcherSlot(UWidget* Widget);

	/** Place of a widget, if it is in a wrap box. */
	UFUNCTION(BlueprintPure, Category = "Slot", meta = (DefaultToSelf = "Widget"))
	static UWrapBoxSlot* SlotAsWrapBoxSlot(UWidget* Widget);

	/** Takes all widgets off the screen. */
	UFUNCTION(BlueprintCallable, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	static void RemoveAllWidgets(UObject* WorldContextObject);
};

/** Geometry of widgets. */
UCLASS()
class UMG_API USlateBlueprintLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** True if a place of the desktop is on a widget. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static bool IsUnderLocation(const FGeometry& Geometry, const FVector2D& AbsoluteCoordinate);

	/** Place on a widget of one of the desktop. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static FVector2D AbsoluteToLocal(const FGeometry& Geometry, FVector2D AbsoluteCoordinate);

	/** Place of the desktop of one on a widget. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static FVector2D LocalToAbsolute(const FGeometry& Geometry, FVector2D LocalCoordinate);

	/** The local top left. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static FVector2D GetLocalTopLeft(const FGeometry& Geometry);

	/** The local size. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static FVector2D GetLocalSize(const FGeometry& Geometry);

	/** The absolute size. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static FVector2D GetAbsoluteSize(const FGeometry& Geometry);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static FVector2D TransformVectorAbsoluteToLocal(const FGeometry& Geometry, FVector2D AbsoluteVector);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static FVector2D TransformVectorLocalToAbsolute(const FGeometry& Geometry, FVector2D LocalVector);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static float TransformScalarAbsoluteToLocal(const FGeometry& Geometry, float AbsoluteScalar);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	static float TransformScalarLocalToAbsolute(const FGeometry& Geometry, float LocalScalar);

	/** Place on the screen of one on a widget. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry", meta = (WorldContext = "WorldContextObject"))
	static void LocalToViewport(UObject* WorldContextObject, const FGeometry& Geometry, FVector2D LocalCoordinate, FVector2D& PixelPosition,
		FVector2D& ViewportPosition);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry", meta = (WorldContext = "WorldContextObject"))
	static void AbsoluteToViewport(
		UObject* WorldContextObject, FVector2D AbsoluteDesktopCoordinate, FVector2D& PixelPosition, FVector2D& ViewportPosition);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry", meta = (WorldContext = "WorldContextObject"))
	static void ScreenToWidgetLocal(UObject* WorldContextObject, const FGeometry& Geometry, FVector2D ScreenPosition,
		FVector2D& LocalCoordinate, bool bIncludeWindowPosition = false);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry", meta = (WorldContext = "WorldContextObject"))
	static void ScreenToWidgetAbsolute(
		UObject* WorldContextObject, FVector2D ScreenPosition, FVector2D& AbsoluteCoordinate, bool bIncludeWindowPosition = false);

	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry", meta = (WorldContext = "WorldContextObject"))
	static void ScreenToViewport(UObject* WorldContextObject, FVector2D ScreenPosition, FVector2D& ViewportPosition);

	UFUNCTION(
		BlueprintPure, Category = "SlateBrush", meta = (DisplayName = "Equal (SlateBrush)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_SlateBrush(const FSlateBrush& A, const FSlateBrush& B);
};
