#pragma once

#include "CoreTypes.h"

struct CORE_API FPlatformTLS
{
	static uint32 GetCurrentThreadId();
	static uint32 AllocTlsSlot();
	static void FreeTlsSlot(uint32 SlotIndex);
	static void SetTlsValue(uint32 SlotIndex, void* Value);
	static void* GetTlsValue(uint32 SlotIndex);
};
