#pragma once

/** Names a type as it is. In a parameter it keeps the type from being deduced from the argument. */
template <typename T>
struct TIdentity
{
	using Type = T;
};

template <typename T>
using TIdentity_T = typename TIdentity<T>::Type;
