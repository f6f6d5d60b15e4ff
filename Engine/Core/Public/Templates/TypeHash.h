#pragma once

#include "CoreTypes.h"

#include <bit>
#include <concepts>
#include <type_traits>

/** Mixes two hashes so that the order matters. The result is stable between runs. */
constexpr uint32 HashCombine(uint32 A, uint32 B)
{
	uint32 Mixed = std::rotl(A * 0x85ebca6bu, 13) + B;
	Mixed = (Mixed ^ (Mixed >> 16)) * 0x7feb352du;
	Mixed = (Mixed ^ (Mixed >> 15)) * 0x846ca68bu;
	return Mixed ^ (Mixed >> 16);
}

/** Mixes two hashes in fewer steps, for hashes that are kept in memory only. */
constexpr uint32 HashCombineFast(uint32 A, uint32 B)
{
	return A ^ (B + 0x9e3779b9 + (A << 6) + (A >> 2));
}

inline uint32 PointerHash(const void* Key)
{
	// The low bits of a pointer are the same for all of an allocation class; the high ones for all of a process.
	const UPTRINT Bits = reinterpret_cast<UPTRINT>(Key) >> 4;
	return static_cast<uint32>(Bits) ^ (static_cast<uint32>(Bits >> 28) * 0x9e3779b1u);
}

inline uint32 PointerHash(const void* Key, uint32 PreviousHash)
{
	return HashCombine(PreviousHash, PointerHash(Key));
}

constexpr uint32 GetTypeHash(const std::integral auto Value)
{
	if constexpr (sizeof(Value) <= 4)
	{
		return static_cast<uint32>(Value);
	}
	else
	{
		return static_cast<uint32>(Value) + (static_cast<uint32>(static_cast<uint64>(Value) >> 32) * 23);
	}
}

constexpr uint32 GetTypeHash(const std::floating_point auto Value)
{
	// Both zeros are equal, so both must hash alike.
	if constexpr (sizeof(Value) == 4)
	{
		return Value == 0.0f ? 0u : std::bit_cast<uint32>(Value);
	}
	else
	{
		return Value == 0.0 ? 0u : GetTypeHash(std::bit_cast<uint64>(Value));
	}
}

template <typename EnumType>
requires std::is_enum_v<EnumType>
constexpr uint32 GetTypeHash(const EnumType Value)
{
	return GetTypeHash(static_cast<std::underlying_type_t<EnumType>>(Value));
}

template <typename T>
uint32 GetTypeHash(T* Value)
{
	return PointerHash(static_cast<const void*>(Value));
}

/** Lets a container call GetTypeHash from inside a class that has a member of that name. */
template <typename T>
uint32 GetTypeHashHelper(const T& Value)
{
	return GetTypeHash(Value);
}
