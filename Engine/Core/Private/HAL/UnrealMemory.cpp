#include "HAL/UnrealMemory.h"

#include "Misc/AssertionMacros.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace
{
/**
 * Small blocks that are freed join their neighbours at once. Left to itself, the allocator gathers them and joins them all at the next
 * large allocation, when they are out of the cache: to free a tree of a million nodes would cost twice as much.
 */
[[maybe_unused]] const int JoinsFreedBlocksAtOnce = mallopt(M_MXFAST, 0);

[[noreturn]] void EndOutOfMemory(SIZE_T Count)
{
	// The log and the formatter would allocate themselves.
	std::fprintf(stderr, "Out of memory: %zu bytes\n", Count);
	std::abort();
}

void* AllocateOrEnd(SIZE_T Count, uint32 Alignment)
{
	void* Result = nullptr;
	if (Alignment <= MIN_ALIGNMENT)
	{
		Result = std::malloc(Count);
	}
	else if (posix_memalign(&Result, Alignment, Count) != 0)
	{
		Result = nullptr;
	}
	if (Result == nullptr)
	{
		EndOutOfMemory(Count);
	}
	return Result;
}
}

void* FMemory::Malloc(SIZE_T Count, uint32 Alignment)
{
	return AllocateOrEnd(std::max<SIZE_T>(Count, 1), Alignment);
}

void* FMemory::MallocZeroed(SIZE_T Count, uint32 Alignment)
{
	return Memzero(Malloc(Count, Alignment), Count);
}

void* FMemory::Realloc(void* Original, SIZE_T Count, uint32 Alignment)
{
	if (Count == 0)
	{
		std::free(Original);
		return nullptr;
	}
	if (Alignment <= MIN_ALIGNMENT)
	{
		void* Result = std::realloc(Original, Count);
		if (Result == nullptr)
		{
			EndOutOfMemory(Count);
		}
		return Result;
	}
	void* Result = AllocateOrEnd(Count, Alignment);
	Memcpy(Result, Original, std::min(Count, GetAllocSize(Original)));
	std::free(Original);
	return Result;
}

void FMemory::Free(void* Original)
{
	std::free(Original);
}

SIZE_T FMemory::GetAllocSize(void* Original)
{
	return malloc_usable_size(Original);
}

void FMemory::Memswap(void* First, void* Second, SIZE_T Count)
{
	uint8* A = static_cast<uint8*>(First);
	std::swap_ranges(A, A + Count, static_cast<uint8*>(Second));
}

bool FMemory::MemIsZero(const void* Ptr, SIZE_T Count)
{
	const uint8* Bytes = static_cast<const uint8*>(Ptr);
	return std::all_of(Bytes, Bytes + Count, [](uint8 Byte)
		{ return Byte == 0; });
}
