#include "HAL/PlatformTLS.h"

#include "Misc/AssertionMacros.h"

#include <pthread.h>
#include <unistd.h>

uint32 FPlatformTLS::GetCurrentThreadId()
{
	static thread_local const uint32 ThreadId = static_cast<uint32>(gettid());
	return ThreadId;
}

uint32 FPlatformTLS::AllocTlsSlot()
{
	pthread_key_t Key = 0;
	const int Error = pthread_key_create(&Key, nullptr);
	checkf(Error == 0, TEXT("No thread-local slot is left"));
	return static_cast<uint32>(Key);
}

void FPlatformTLS::FreeTlsSlot(uint32 SlotIndex)
{
	pthread_key_delete(static_cast<pthread_key_t>(SlotIndex));
}

void FPlatformTLS::SetTlsValue(uint32 SlotIndex, void* Value)
{
	pthread_setspecific(static_cast<pthread_key_t>(SlotIndex), Value);
}

void* FPlatformTLS::GetTlsValue(uint32 SlotIndex)
{
	return pthread_getspecific(static_cast<pthread_key_t>(SlotIndex));
}
