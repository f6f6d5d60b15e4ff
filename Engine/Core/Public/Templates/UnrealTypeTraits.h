#pragma once

#include "CoreTypes.h"
#include "Templates/AndOrNot.h"
#include "Templates/EnableIf.h"
#include "Templates/Identity.h"
#include "Templates/IntegralConstant.h"

#include <type_traits>

template <typename T>
struct TIsPointer : TIntegralConstant<bool, std::is_pointer_v<T>>
{
};

template <typename T>
struct TIsEnum : TIntegralConstant<bool, std::is_enum_v<T>>
{
};

template <typename T>
struct TIsEnumClass : TIntegralConstant<bool, std::is_enum_v<T> && !std::is_convertible_v<T, int>>
{
};

template <typename T>
struct TIsArithmetic : TIntegralConstant<bool, std::is_arithmetic_v<T>>
{
};

template <typename T>
struct TIsIntegral : TIntegralConstant<bool, std::is_integral_v<T>>
{
};

template <typename T>
struct TIsFloatingPoint : TIntegralConstant<bool, std::is_floating_point_v<T>>
{
};

template <typename T>
struct TIsClass : TIntegralConstant<bool, std::is_class_v<T>>
{
};

template <typename A, typename B>
struct TIsSame : TIntegralConstant<bool, std::is_same_v<A, B>>
{
};

template <typename DerivedType, typename BaseType>
struct TIsDerivedFrom : TIntegralConstant<bool, std::is_base_of_v<BaseType, DerivedType>>
{
	static constexpr bool IsDerived = std::is_base_of_v<BaseType, DerivedType>;
};

template <typename T>
struct TIsTriviallyDestructible : TIntegralConstant<bool, std::is_trivially_destructible_v<T>>
{
};

template <typename T>
struct TIsTriviallyCopyConstructible : TIntegralConstant<bool, std::is_trivially_copy_constructible_v<T>>
{
};

template <typename T>
struct TIsTrivial : TIntegralConstant<bool, std::is_trivial_v<T>>
{
};

template <typename T>
struct TIsPODType : TIntegralConstant<bool, std::is_trivial_v<T> && std::is_standard_layout_v<T>>
{
};

/** A type whose default value is all zero bytes. Specialised for types that are so without being trivial. */
template <typename T>
struct TIsZeroConstructType : TIntegralConstant<bool, std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_pointer_v<T>>
{
};

template <typename From, typename To>
struct TPointerIsConvertibleFromTo : TIntegralConstant<bool, std::is_convertible_v<From*, const volatile To*>>
{
};

template <typename T>
struct TTypeTraits
{
	using ConstInitType = std::conditional_t<std::is_arithmetic_v<T> || std::is_pointer_v<T>, const T, const T&>;
	using ConstPointerType = std::conditional_t<std::is_pointer_v<T>, const std::remove_pointer_t<T>*, const T&>;
	static constexpr bool IsBytewiseComparable = std::is_enum_v<T> || std::is_arithmetic_v<T> || std::is_pointer_v<T>;
};

template <typename T>
struct TCallTraits
{
	using ValueType = T;
	using Reference = T&;
	using ConstReference = const T&;
	using ParamType = std::conditional_t<std::is_arithmetic_v<T> || std::is_pointer_v<T>, const T, const T&>;
	using ConstPointerType = typename TTypeTraits<T>::ConstPointerType;
};

/**
 * Containers move their elements by copying bytes: a type that points into itself must not be put into one by value. This
 * trait says of a type whether that holds; everything is taken to be relocatable unless it is specialised otherwise.
 */
template <typename T>
struct TIsTriviallyRelocatable : TIntegralConstant<bool, true>
{
};
