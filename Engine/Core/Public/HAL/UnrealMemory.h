#pragma once

#include "CoreTypes.h"

#include <cstring>

inline constexpr uint32 DEFAULT_ALIGNMENT = 0;
inline constexpr uint32 MIN_ALIGNMENT = 16;

/** Memory of the engine's containers and objects. An allocation that cannot be had ends the program with a message. */
struct CORE_API FMemory
{
	/** Answers at least `Count` bytes, aligned to 16 or to `Alignment` (a power of two) if that is more. */
	[[nodiscard]] static void* Malloc(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	[[nodiscard]] static void* MallocZeroed(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	/** `Original` may be null; a `Count` of 0 frees and answers null. `Alignment` must be the one that `Original` was made with. */
	static void* Realloc(void* Original, SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	static void Free(void* Original);
	/** Bytes that the allocation really has. */
	static SIZE_T GetAllocSize(void* Original);
	/** Bytes that an allocation of `Count` bytes will really have. */
	static SIZE_T QuantizeSize(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT) { return (Count + 15) & ~static_cast<SIZE_T>(15); }

	static void* Memmove(void* Dest, const void* Src, SIZE_T Count) { return Count != 0 ? std::memmove(Dest, Src, Count) : Dest; }
	static void* Memcpy(void* Dest, const void* Src, SIZE_T Count) { return Count != 0 ? std::memcpy(Dest, Src, Count) : Dest; }
	static void* BigBlockMemcpy(void* Dest, const void* Src, SIZE_T Count) { return Memcpy(Dest, Src, Count); }
	static int32 Memcmp(const void* Lhs, const void* Rhs, SIZE_T Count) { return Count != 0 ? std::memcmp(Lhs, Rhs, Count) : 0; }
	static void* Memset(void* Dest, uint8 Value, SIZE_T Count) { return Count != 0 ? std::memset(Dest, Value, Count) : Dest; }
	static void* Memzero(void* Dest, SIZE_T Count) { return Memset(Dest, 0, Count); }
	static void Memswap(void* First, void* Second, SIZE_T Count);
	/** True when every byte is 0. */
	static bool MemIsZero(const void* Ptr, SIZE_T Count);

	template <typename T>
	static void Memcpy(T& Dest, const T& Src)
	{
		std::memcpy(&Dest, &Src, sizeof(T));
	}

	template <typename T>
	static void Memzero(T& Dest)
	{
		std::memset(static_cast<void*>(&Dest), 0, sizeof(T));
	}
};
