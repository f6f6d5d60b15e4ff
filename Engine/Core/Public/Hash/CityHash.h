#pragma once

#include "CoreTypes.h"

/** CityHash64 of version 1.1: fast and stable everywhere, not for secrets. */
CORE_API uint64 CityHash64(const char* Buffer, uint32 Length);
CORE_API uint64 CityHash64WithSeed(const char* Buffer, uint32 Length, uint64 Seed);
CORE_API uint64 CityHash64WithSeeds(const char* Buffer, uint32 Length, uint64 Seed0, uint64 Seed1);

/** Mixes two 64-bit hashes to one. */
CORE_API uint64 CityHash128to64(uint64 Low, uint64 High);
