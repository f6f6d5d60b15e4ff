#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** Gives an enum class the bitwise operators. Stands after the enum, in its namespace. */
#define ENUM_CLASS_FLAGS(Enum) \
	inline Enum& operator|=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = static_cast<Enum>(static_cast<__underlying_type(Enum)>(Lhs) | static_cast<__underlying_type(Enum)>(Rhs)); \
	} \
	inline Enum& operator&=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = static_cast<Enum>(static_cast<__underlying_type(Enum)>(Lhs) & static_cast<__underlying_type(Enum)>(Rhs)); \
	} \
	inline Enum& operator^=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = static_cast<Enum>(static_cast<__underlying_type(Enum)>(Lhs) ^ static_cast<__underlying_type(Enum)>(Rhs)); \
	} \
	inline constexpr Enum operator|(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>(static_cast<__underlying_type(Enum)>(Lhs) | static_cast<__underlying_type(Enum)>(Rhs)); \
	} \
	inline constexpr Enum operator&(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>(static_cast<__underlying_type(Enum)>(Lhs) & static_cast<__underlying_type(Enum)>(Rhs)); \
	} \
	inline constexpr Enum operator^(Enum Lhs, Enum Rhs) \
	{ \
		return static_cast<Enum>(static_cast<__underlying_type(Enum)>(Lhs) ^ static_cast<__underlying_type(Enum)>(Rhs)); \
	} \
	inline constexpr bool operator!(Enum E) \
	{ \
		return !static_cast<__underlying_type(Enum)>(E); \
	} \
	inline constexpr Enum operator~(Enum E) \
	{ \
		return static_cast<Enum>(~static_cast<__underlying_type(Enum)>(E)); \
	}

/** Lets friends of a class use the operators that ENUM_CLASS_FLAGS defines for its nested enum. */
#define FRIEND_ENUM_CLASS_FLAGS(Enum) \
	friend Enum& operator|=(Enum& Lhs, Enum Rhs); \
	friend Enum& operator&=(Enum& Lhs, Enum Rhs); \
	friend Enum& operator^=(Enum& Lhs, Enum Rhs); \
	friend constexpr Enum operator|(Enum Lhs, Enum Rhs); \
	friend constexpr Enum operator&(Enum Lhs, Enum Rhs); \
	friend constexpr Enum operator^(Enum Lhs, Enum Rhs); \
	friend constexpr bool operator!(Enum E); \
	friend constexpr Enum operator~(Enum E);

template <typename Enum>
constexpr bool EnumHasAllFlags(Enum Flags, Enum Contains)
{
	using UnderlyingType = std::underlying_type_t<Enum>;
	return (static_cast<UnderlyingType>(Flags) & static_cast<UnderlyingType>(Contains)) == static_cast<UnderlyingType>(Contains);
}

template <typename Enum>
constexpr bool EnumHasAnyFlags(Enum Flags, Enum Contains)
{
	using UnderlyingType = std::underlying_type_t<Enum>;
	return (static_cast<UnderlyingType>(Flags) & static_cast<UnderlyingType>(Contains)) != 0;
}

/** True when no flag outside `Contains` is set. */
template <typename Enum>
constexpr bool EnumOnlyContainsFlags(Enum Flags, Enum Contains)
{
	using UnderlyingType = std::underlying_type_t<Enum>;
	return (static_cast<UnderlyingType>(Flags) & ~static_cast<UnderlyingType>(Contains)) == 0;
}

template <typename Enum>
constexpr void EnumAddFlags(Enum& Flags, Enum ToAdd)
{
	using UnderlyingType = std::underlying_type_t<Enum>;
	Flags = static_cast<Enum>(static_cast<UnderlyingType>(Flags) | static_cast<UnderlyingType>(ToAdd));
}

template <typename Enum>
constexpr void EnumRemoveFlags(Enum& Flags, Enum ToRemove)
{
	using UnderlyingType = std::underlying_type_t<Enum>;
	Flags = static_cast<Enum>(static_cast<UnderlyingType>(Flags) & ~static_cast<UnderlyingType>(ToRemove));
}
