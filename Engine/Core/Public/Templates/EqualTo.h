#pragma once

template <typename T = void>
struct TEqualTo
{
	constexpr bool operator()(const T& A, const T& B) const { return A == B; }
};

template <>
struct TEqualTo<void>
{
	template <typename T, typename U>
	constexpr bool operator()(T&& A, U&& B) const
	{
		return static_cast<T&&>(A) == static_cast<U&&>(B);
	}
};
