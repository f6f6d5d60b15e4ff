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
