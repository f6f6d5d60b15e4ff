#include "InputCoreTypes.h"

#include "Misc/Char.h"

namespace
{
/** Keys whose sign a user reads instead of their name. */
const TMap<FName, FString>& GetKeySigns()
{
	static const TMap<FName, FString> Signs = {
		{TEXT("Zero"), TEXT("0")},
		{TEXT("One"), TEXT("1")},
		{TEXT("Two"), TEXT("2")},
		{TEXT("Three"), TEXT("3")},
		{TEXT("Four"), TEXT("4")},
		{TEXT("Five"), TEXT("5")},
		{TEXT("Six"), TEXT("6")},
		{TEXT("Seven"), TEXT("7")},
		{TEXT("Eight"), TEXT("8")},
		{TEXT("Nine"), TEXT("9")},
		{TEXT("Multiply"), TEXT("Num *")},
		{TEXT("Add"), TEXT("Num +")},
		{TEXT("Subtract"), TEXT("Num -")},
		{TEXT("Decimal"), TEXT("Num .")},
		{TEXT("Divide"), TEXT("Num /")},
		{TEXT("A_AccentGrave"), TEXT("\u00E0")},
		{TEXT("E_AccentGrave"), TEXT("\u00E8")},
		{TEXT("E_AccentAigu"), TEXT("\u00E9")},
		{TEXT("C_Cedille"), TEXT("\u00E7")},
		{TEXT("MouseX"), TEXT("Mouse X")},
		{TEXT("MouseY"), TEXT("Mouse Y")},
		{TEXT("Mouse2D"), TEXT("Mouse XY 2D-Axis")},
	};
	return Signs;
}

bool IsKeyNameCharacter(const TCHAR Character)
{
	return FChar::IsAlnum(Character) || Character == TEXT('_');
}

/** Names that stand with a space between. */
TArray<FKey> ReadKeys(const TCHAR* Names)
{
	TArray<FString> Parts;
	FString(Names).ParseIntoArrayWS(Parts);
	TArray<FKey> Keys;
	for (const FString& Part : Parts)
	{
		Keys.Add(FKey(*Part));
	}
	return Keys;
}

const TArray<FKey>& GetButtons()
{
	static const TArray<FKey> Keys = ReadKeys(
		TEXT("AnyKey MouseScrollUp MouseScrollDown LeftMouseButton RightMouseButton MiddleMouseButton ThumbMouseButton ThumbMouseButton2 ")
			TEXT("BackSpace Tab Enter Pause CapsLock Escape SpaceBar PageUp PageDown End Home Left Up Right Down Insert Delete ") TEXT(
				"Zero One Two Three Four Five Six Seven Eight Nine ") TEXT("A B C D E F G H I J K L M N O P Q R S T U V W X Y Z ")
				TEXT("NumPadZero NumPadOne NumPadTwo NumPadThree NumPadFour NumPadFive NumPadSix NumPadSeven NumPadEight NumPadNine ") TEXT(
					"Multiply Add Subtract Decimal Divide F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 NumLock ScrollLock ")
					TEXT("LeftShift RightShift LeftControl RightControl LeftAlt RightAlt LeftCommand RightCommand ") TEXT(
						"Semicolon Equals Comma Underscore Hyphen Period Slash Tilde LeftBracket Backslash RightBracket Apostrophe Quote ")
						TEXT("Ampersand Asterix Caret Colon Dollar Exclamation LeftParantheses RightParantheses ")
							TEXT("A_AccentGrave E_AccentGrave E_AccentAigu C_Cedille Section ")
								TEXT("Gamepad_LeftThumbstick Gamepad_RightThumbstick Gamepad_Special_Left Gamepad_Special_Right ") TEXT(
									"Gamepad_FaceButton_Bottom Gamepad_FaceButton_Right Gamepad_FaceButton_Left Gamepad_FaceButton_Top ")
									TEXT("Gamepad_LeftShoulder Gamepad_RightShoulder Gamepad_LeftTrigger Gamepad_RightTrigger ")
										TEXT("Gamepad_DPad_Up Gamepad_DPad_Down Gamepad_DPad_Right Gamepad_DPad_Left ") TEXT(
											"Gamepad_LeftStick_Up Gamepad_LeftStick_Down Gamepad_LeftStick_Right Gamepad_LeftStick_Left ")
											TEXT("Gamepad_RightStick_Up Gamepad_RightStick_Down Gamepad_RightStick_Right "
												 "Gamepad_RightStick_Left"));
	return Keys;
}

const TArray<FKey>& GetAxes()
{
	static const TArray<FKey> Keys = ReadKeys(
		TEXT("MouseX MouseY MouseWheelAxis Gamepad_LeftX Gamepad_LeftY Gamepad_RightX Gamepad_RightY ")
			TEXT("Gamepad_LeftTriggerAxis Gamepad_RightTriggerAxis Gesture_Pinch Gesture_Rotate"));
	return Keys;
}

const TArray<FKey>& GetVectors()
{
	static const TArray<FKey> Keys = ReadKeys(
		TEXT("Mouse2D Gamepad_Left2D Gamepad_Right2D Gesture_Flick Tilt RotationRate Gravity Acceleration"));
	return Keys;
}
}

bool FKey::IsAxis1D() const
{
	return GetAxes().Contains(*this);
}

bool FKey::IsVector() const
{
	return GetVectors().Contains(*this);
}

bool FKey::IsGamepadKey() const
{
	return KeyName.ToString().StartsWith(TEXT("Gamepad_"));
}

void EKeys::GetAllKeys(TArray<FKey>& OutKeys)
{
	OutKeys.Append(GetButtons());
	OutKeys.Append(GetAxes());
	OutKeys.Append(GetVectors());
}

FText FKey::GetDisplayName(bool bLongDisplayName) const
{
	const FString* const Sign = GetKeySigns().Find(KeyName);
	return FText::FromString(Sign ? *Sign : FName::NameToDisplayString(KeyName.ToString(), false));
}

bool FKey::ExportTextItem(FString& ValueStr, const FKey& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += KeyName.ToString();
	return true;
}

bool FKey::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	// The form of a struct with members is read by the struct's own reader.
	if (*Buffer == TEXT('('))
	{
		return false;
	}
	const bool bQuoted = *Buffer == TEXT('"');
	const TCHAR* const Start = Buffer + (bQuoted ? 1 : 0);
	const TCHAR* End = Start;
	while (IsKeyNameCharacter(*End))
	{
		++End;
	}
	if (bQuoted && *End != TEXT('"'))
	{
		return false;
	}
	KeyName = FName(*FString::ConstructFromPtrSize(Start, static_cast<int32>(End - Start)));
	Buffer = End + (bQuoted ? 1 : 0);
	return true;
}
