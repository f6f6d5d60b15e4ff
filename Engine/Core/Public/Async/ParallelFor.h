#pragma once

#include "CoreTypes.h"
#include "Templates/Function.h"

enum class EParallelForFlags
{
	None = 0,
	/** On the calling thread, in order. */
	ForceSingleThread = 1,
	/** Takes indices in small portions, for bodies that take very different times. */
	Unbalanced = 2
};

/**
 * Calls Body(Index) for every index from 0 to Num - 1, on the pool's threads and on the calling one, and returns when all calls have.
 * The order is any. The calling thread works too, so that it comes to an end inside a pool's thread and without a pool.
 */
CORE_API void ParallelFor(int32 Num, TFunctionRef<void(int32)> Body, EParallelForFlags Flags = EParallelForFlags::None);

inline void ParallelFor(int32 Num, TFunctionRef<void(int32)> Body, bool bForceSingleThread)
{
	ParallelFor(Num, Body, bForceSingleThread ? EParallelForFlags::ForceSingleThread : EParallelForFlags::None);
}
