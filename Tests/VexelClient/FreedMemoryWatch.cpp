#include "FreedMemoryWatch.h"

#include "Sanitized.h"

#include <atomic>
#include <cstring>
#include <malloc.h>

namespace
{
constexpr size_t MaxNeedleBytes = 256;

/** Fixed memory: what is called when memory is freed must neither take nor free any. */
char Needle[MaxNeedleBytes];
std::atomic<size_t> NumNeedleBytes = 0;
std::atomic<const void*> OnlyBlock = nullptr;
std::atomic<int32> NumFreed = 0;
std::atomic<int32> NumFound = 0;
}

#if !VEXEL_SANITIZED
extern "C" void __libc_free(void* Block);

/** Takes the place of the C library's in the whole process. */
extern "C" void free(void* Block)
{
	const size_t Num = NumNeedleBytes.load(std::memory_order_acquire);
	if (Block && Num > 0 && (!OnlyBlock || OnlyBlock == Block))
	{
		++NumFreed;
		NumFound += memmem(Block, malloc_usable_size(Block), Needle, Num) ? 1 : 0;
	}
	__libc_free(Block);
}
#endif

FFreedMemoryWatch::FFreedMemoryWatch(const FString& InNeedle, const void* Block)
{
	const size_t Num = sizeof(TCHAR) * size_t(InNeedle.Len());
	check(Num > 0 && Num <= MaxNeedleBytes);
	std::memcpy(Needle, *InNeedle, Num);
	OnlyBlock = Block;
	NumFreed = 0;
	NumFound = 0;
	NumNeedleBytes.store(Num, std::memory_order_release);
}

FFreedMemoryWatch::~FFreedMemoryWatch()
{
	NumNeedleBytes = 0;
}

bool FFreedMemoryWatch::IsAble()
{
	return !VEXEL_SANITIZED;
}

int32 FFreedMemoryWatch::GetNumFreed() const
{
	return NumFreed;
}

int32 FFreedMemoryWatch::GetNumFound() const
{
	return NumFound;
}
