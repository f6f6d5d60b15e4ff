#include "K2Node_AddPinInterface.h"

FName IK2Node_AddPinInterface::GetNameForAdditionalPin(int32 PinIndex)
{
	check(PinIndex >= 0 && PinIndex < GetMaxInputPinsNum());
	return FName(*FString::Chr(static_cast<TCHAR>(TEXT('A') + PinIndex)));
}
