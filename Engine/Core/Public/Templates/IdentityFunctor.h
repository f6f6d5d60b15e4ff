#pragma once

struct FIdentityFunctor
{
	template <typename T>
	constexpr T&& operator()(T&& Value) const
	{
		return static_cast<T&&>(Value);
	}
};
