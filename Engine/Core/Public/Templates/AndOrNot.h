#pragma once

template <typename... Types>
struct TAnd
{
	static constexpr bool Value = (Types::Value && ...);
	static constexpr bool value = Value;
};

template <typename... Types>
struct TOr
{
	static constexpr bool Value = (Types::Value || ...);
	static constexpr bool value = Value;
};

template <typename Type>
struct TNot
{
	static constexpr bool Value = !Type::Value;
	static constexpr bool value = Value;
};

template <bool... Values>
struct TAndValue
{
	static constexpr bool Value = (Values && ...);
};

template <bool... Values>
struct TOrValue
{
	static constexpr bool Value = (Values || ...);
};
