#pragma once

#include <cstddef>
#include <initializer_list>
#include <type_traits>

/** The element type of a container, an array or a list. */
template <typename T>
struct TElementType
{
	using Type = typename T::ElementType;
};

template <typename T>
struct TElementType<T&> : TElementType<T>
{
};

template <typename T>
struct TElementType<T&&> : TElementType<T>
{
};

template <typename T>
struct TElementType<const T> : TElementType<T>
{
};

template <typename T>
struct TElementType<std::initializer_list<T>>
{
	using Type = std::remove_cv_t<T>;
};

template <typename T, std::size_t N>
struct TElementType<T[N]>
{
	using Type = T;
};

template <typename T, std::size_t N>
struct TElementType<const T[N]>
{
	using Type = const T;
};

template <typename T>
using TElementType_T = typename TElementType<T>::Type;
