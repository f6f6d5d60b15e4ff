// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetInputLibrary.generated.h"

/** Keys, touches and pointers. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "InputLibrary"))
class ENGINE_API UKismetInputLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Takes the way that the device is held now as level. */
	UFUNCTION(BlueprintCallable)
	static void CalibrateTilt();

	/** True if the keys are the same. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Equal (Key)", CompactNodeTitle = "=="))
	static bool EqualEqual_KeyKey(FKey A, FKey B);

	/** True if the keys with their modifiers are the same. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Equal (InputChord)", CompactNodeTitle = "=="))
	static bool EqualEqual_InputChordInputChord(FInputChord A, FInputChord B);

	/** True for Ctrl, Command, Alt and Shift. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Modifier Key"))
	static bool Key_IsModifierKey(const FKey& Key);

	/** True for keys of a gamepad. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Gamepad Key"))
	static bool Key_IsGamepadKey(const FKey& Key);

	/** True for buttons of a mouse. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Mouse Button"))
	static bool Key_IsMouseButton(const FKey& Key);

	/** True for keys of a keyboard. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Keyboard Key"))
	static bool Key_IsKeyboardKey(const FKey& Key);

	/** True for an axis of one dimension. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Axis 1D"))
	static bool Key_IsAxis1D(const FKey& Key);

	/** True for an axis of two dimensions. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Axis 2D"))
	static bool Key_IsAxis2D(const FKey& Key);

	/** True for an axis of three dimensions. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Axis 3D"))
	static bool Key_IsAxis3D(const FKey& Key);

	/** True for an axis that is a button too. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Button Axis"))
	static bool Key_IsButtonAxis(const FKey& Key);

	/** True for any axis. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Analog"))
	static bool Key_IsAnalog(const FKey& Key);

	/** True for a key that is pressed or not. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Digital"))
	static bool Key_IsDigital(const FKey& Key);

	/** True for an axis of several dimensions. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Vector Axis", DeprecatedFunction))
	static bool Key_IsVectorAxis(const FKey& Key);

	/** True if there is such a key. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Is Valid Key"))
	static bool Key_IsValid(const FKey& Key);

	/** Name of a key for people. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Get Key Display Name"))
	static FText Key_GetDisplayName(const FKey& Key, bool bLongDisplayName = true);

	/** What a key does in menus. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Get Navigation Action From Key"))
	static EUINavigationAction Key_GetNavigationActionFromKey(const FKeyEvent& InKeyEvent);

	/** Where a key leads in menus. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Get Navigation Direction From Key"))
	static EUINavigation Key_GetNavigationDirectionFromKey(const FKeyEvent& InKeyEvent);

	/** Where a stick leads in menus. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Get Navigation Direction From Analog"))
	static EUINavigation Key_GetNavigationDirectionFromAnalog(const FAnalogInputEvent& InAnalogEvent);

	/** Name of keys with their modifiers for people. */
	UFUNCTION(BlueprintPure, Category = "Input|Key", meta = (DisplayName = "Get InputChord Display Name"))
	static FText InputChord_GetDisplayName(const FInputChord& Key);

	/** True if the key is held and repeats. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Repeat"))
	static bool InputEvent_IsRepeat(const FInputEvent& Input);

	/** True while Shift is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Shift Down"))
	static bool InputEvent_IsShiftDown(const FInputEvent& Input);

	/** True while the left Shift is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Left Shift Down"))
	static bool InputEvent_IsLeftShiftDown(const FInputEvent& Input);

	/** True while the right Shift is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Right Shift Down"))
	static bool InputEvent_IsRightShiftDown(const FInputEvent& Input);

	/** True while Control is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Control Down"))
	static bool InputEvent_IsControlDown(const FInputEvent& Input);

	/** True while the left Control is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Left Control Down"))
	static bool InputEvent_IsLeftControlDown(const FInputEvent& Input);

	/** True while the right Control is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Right Control Down"))
	static bool InputEvent_IsRightControlDown(const FInputEvent& Input);

	/** True while Alt is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Alt Down"))
	static bool InputEvent_IsAltDown(const FInputEvent& Input);

	/** True while the left Alt is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Left Alt Down"))
	static bool InputEvent_IsLeftAltDown(const FInputEvent& Input);

	/** True while the right Alt is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Right Alt Down"))
	static bool InputEvent_IsRightAltDown(const FInputEvent& Input);

	/** True while Command is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Command Down"))
	static bool InputEvent_IsCommandDown(const FInputEvent& Input);

	/** True while the left Command is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Left Command Down"))
	static bool InputEvent_IsLeftCommandDown(const FInputEvent& Input);

	/** True while the right Command is held. */
	UFUNCTION(BlueprintPure, Category = "Input|InputEvent", meta = (DisplayName = "Is Right Command Down"))
	static bool InputEvent_IsRightCommandDown(const FInputEvent& Input);

	/** The key. */
	UFUNCTION(BlueprintPure, Category = "Input|KeyEvent")
	static FKey GetKey(const FKeyEvent& Input);

	/** Number of the user. */
	UFUNCTION(BlueprintPure, Category = "Input|KeyEvent")
	static int32 GetUserIndex(const FKeyEvent& Input);

	/** How far the axis is moved. */
	UFUNCTION(BlueprintPure, Category = "Input|AnalogEvent")
	static float GetAnalogValue(const FAnalogInputEvent& Input);

	/** Where the pointer is. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Screen Space Position"))
	static FVector2D PointerEvent_GetScreenSpacePosition(const FPointerEvent& Input);

	/** Where the pointer was. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Last Screen Space Position"))
	static FVector2D PointerEvent_GetLastScreenSpacePosition(const FPointerEvent& Input);

	/** How far the pointer moved. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Cursor Delta"))
	static FVector2D PointerEvent_GetCursorDelta(const FPointerEvent& Input);

	/** True while a button is held. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Is Mouse Button Down"))
	static bool PointerEvent_IsMouseButtonDown(const FPointerEvent& Input, FKey MouseButton);

	/** Button that caused the event. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Effecting Button"))
	static FKey PointerEvent_GetEffectingButton(const FPointerEvent& Input);

	/** How far the wheel turned. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Wheel Delta"))
	static float PointerEvent_GetWheelDelta(const FPointerEvent& Input);

	/** Number of the user. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get User Index"))
	static int32 PointerEvent_GetUserIndex(const FPointerEvent& Input);

	/** Number of the pointer. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Pointer Index"))
	static int32 PointerEvent_GetPointerIndex(const FPointerEvent& Input);

	/** Number of the touch pad. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Touchpad Index"))
	static int32 PointerEvent_GetTouchpadIndex(const FPointerEvent& Input);

	/** True if a finger is the pointer. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Is Touch Event"))
	static bool PointerEvent_IsTouchEvent(const FPointerEvent& Input);

	/** Gesture of the event. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Gesture Type"))
	static ESlateGesture PointerEvent_GetGestureType(const FPointerEvent& Input);

	/** How far the gesture moved. */
	UFUNCTION(BlueprintPure, Category = "Input|PointerEvent", meta = (DisplayName = "Get Gesture Delta"))
	static FVector2D PointerEvent_GetGestureDelta(const FPointerEvent& Input);
};
