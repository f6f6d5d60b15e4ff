#pragma once

template <typename T, T Val>
struct TIntegralConstant
{
	static constexpr T Value = Val;
	static constexpr T value = Val;

	constexpr operator T() const { return Val; }
};
