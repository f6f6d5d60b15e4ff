#pragma once

#include "CoreTypes.h"
#include "Serialization/Archive.h"
#include "Templates/Invoke.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <tuple>

/** A fixed list of values. The one of two values is the pair of maps and has its members named. */
template <typename... Types>
struct TTuple
{
	TTuple() = default;

	template <typename... ArgTypes>
	requires(sizeof...(ArgTypes) == sizeof...(Types) && sizeof...(Types) > 0 &&
		(std::is_constructible_v<Types, ArgTypes&&> && ...)) explicit(!(std::is_convertible_v<ArgTypes&&, Types> && ...))
		TTuple(ArgTypes&&... Args)
		: Values(Forward<ArgTypes>(Args)...)
	{
	}

	template <uint32 Index>
	decltype(auto) Get() &
	{
		return std::get<Index>(Values);
	}
	template <uint32 Index>
	decltype(auto) Get() const&
	{
		return std::get<Index>(Values);
	}
	template <uint32 Index>
	decltype(auto) Get() &&
	{
		return std::get<Index>(MoveTemp(Values));
	}
	template <typename T>
	T& Get()
	{
		return std::get<T>(Values);
	}
	template <typename T>
	const T& Get() const
	{
		return std::get<T>(Values);
	}
	/** Calls the function with the values after the given arguments. */
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return std::apply([&](const Types&... Value) -> decltype(auto)
			{ return ::Invoke(Func, Forward<ArgTypes>(Args)..., Value...); },
			Values);
	}
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyBefore(FuncType&& Func, ArgTypes&&... Args) const
	{
		return std::apply([&](const Types&... Value) -> decltype(auto)
			{ return ::Invoke(Func, Value..., Forward<ArgTypes>(Args)...); },
			Values);
	}

	friend bool operator==(const TTuple& A, const TTuple& B) { return A.Values == B.Values; }
	friend bool operator<(const TTuple& A, const TTuple& B) { return A.Values < B.Values; }

	std::tuple<Types...> Values;
};

template <typename InKeyType, typename InValueType>
struct TTuple<InKeyType, InValueType>
{
	using KeyType = InKeyType;
	using ValueType = InValueType;

	TTuple()
		: Key()
		, Value()
	{
	}
	TTuple(const TTuple&) = default;
	TTuple(TTuple&&) = default;
	TTuple& operator=(const TTuple&) = default;
	TTuple& operator=(TTuple&&) = default;
	~TTuple() = default;

	template <typename KeyArg = InKeyType, typename ValueArg = InValueType>
	requires(std::is_constructible_v<InKeyType, KeyArg&&>&& std::is_constructible_v<InValueType, ValueArg&&>) explicit(
		!std::is_convertible_v<KeyArg&&, InKeyType> || !std::is_convertible_v<ValueArg&&, InValueType>)
		TTuple(KeyArg&& InKey, ValueArg&& InValue)
		: Key(Forward<KeyArg>(InKey))
		, Value(Forward<ValueArg>(InValue))
	{
	}
	template <typename OtherKeyType, typename OtherValueType>
	requires(std::is_constructible_v<InKeyType, const OtherKeyType&>&& std::is_constructible_v<InValueType, const OtherValueType&>)
		TTuple(const TTuple<OtherKeyType, OtherValueType>& Other)
		: Key(Other.Key)
		, Value(Other.Value)
	{
	}
	template <typename OtherKeyType, typename OtherValueType>
	requires(std::is_constructible_v<InKeyType, OtherKeyType&&>&& std::is_constructible_v<InValueType, OtherValueType&&>)
		TTuple(TTuple<OtherKeyType, OtherValueType>&& Other)
		: Key(Forward<OtherKeyType>(Other.Key))
		, Value(Forward<OtherValueType>(Other.Value))
	{
	}
	/** Assigns through the references of a tuple that Tie made. */
	template <typename OtherKeyType, typename OtherValueType>
	requires(!std::is_same_v<TTuple<OtherKeyType, OtherValueType>, TTuple>)
		TTuple&
		operator=(TTuple<OtherKeyType, OtherValueType>&& Other)
	{
		Key = Forward<OtherKeyType>(Other.Key);
		Value = Forward<OtherValueType>(Other.Value);
		return *this;
	}

	template <uint32 Index>
	auto& Get() &
	{
		if constexpr (Index == 0)
		{
			return Key;
		}
		else
		{
			static_assert(Index == 1, "A pair has two values");
			return Value;
		}
	}
	template <uint32 Index>
	const auto& Get() const&
	{
		return const_cast<TTuple*>(this)->template Get<Index>();
	}
	template <uint32 Index>
	auto&& Get() &&
	{
		return MoveTemp(const_cast<TTuple*>(this)->template Get<Index>());
	}
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return ::Invoke(Func, Forward<ArgTypes>(Args)..., Key, Value);
	}
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyBefore(FuncType&& Func, ArgTypes&&... Args) const
	{
		return ::Invoke(Func, Key, Value, Forward<ArgTypes>(Args)...);
	}

	friend bool operator==(const TTuple& A, const TTuple& B) { return A.Key == B.Key && A.Value == B.Value; }
	friend bool operator<(const TTuple& A, const TTuple& B)
	{
		return A.Key < B.Key || (!(B.Key < A.Key) && A.Value < B.Value);
	}

	InKeyType Key;
	InValueType Value;
};

template <typename KeyType, typename ValueType>
using TPair = TTuple<KeyType, ValueType>;

template <typename... Types>
TTuple<std::decay_t<Types>...> MakeTuple(Types&&... Args)
{
	return TTuple<std::decay_t<Types>...>(Forward<Types>(Args)...);
}

/** A tuple of references, to assign several variables from one tuple. */
template <typename... Types>
TTuple<Types&...> Tie(Types&... Args)
{
	return TTuple<Types&...>(Args...);
}

template <uint32 Index, typename... Types>
decltype(auto) Get(TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

template <uint32 Index, typename... Types>
decltype(auto) Get(const TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

/** Structured bindings find this one. */
template <std::size_t Index, typename... Types>
decltype(auto) get(TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

template <std::size_t Index, typename... Types>
decltype(auto) get(const TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

template <std::size_t Index, typename... Types>
decltype(auto) get(TTuple<Types...>&& Tuple)
{
	return MoveTemp(Tuple).template Get<Index>();
}

template <typename... Types>
struct std::tuple_size<TTuple<Types...>> : std::integral_constant<std::size_t, sizeof...(Types)>
{
};

template <std::size_t Index, typename... Types>
struct std::tuple_element<Index, TTuple<Types...>> : std::tuple_element<Index, std::tuple<Types...>>
{
};

template <uint32 Index, typename TupleType>
struct TTupleElement
{
	using Type = std::tuple_element_t<Index, std::remove_cv_t<TupleType>>;
};

template <typename TupleType>
struct TTupleArity
{
	static constexpr uint32 Value = std::tuple_size_v<std::remove_cv_t<TupleType>>;
};

namespace UE::Core::Private
{
template <typename TupleType, typename FuncType, std::size_t... Indices>
void VisitTuple(FuncType&& Func, TupleType& Tuple, std::index_sequence<Indices...>)
{
	(::Invoke(Func, Tuple.template Get<Indices>()), ...);
}
}

/** Calls the function with each value in turn. */
template <typename FuncType, typename... Types>
void VisitTupleElements(FuncType&& Func, TTuple<Types...>& Tuple)
{
	UE::Core::Private::VisitTuple(Func, Tuple, std::index_sequence_for<Types...>());
}

template <typename FuncType, typename... Types>
void VisitTupleElements(FuncType&& Func, const TTuple<Types...>& Tuple)
{
	UE::Core::Private::VisitTuple(Func, Tuple, std::index_sequence_for<Types...>());
}

template <typename... Types>
uint32 GetTypeHash(const TTuple<Types...>& Tuple)
{
	uint32 Hash = 0;
	VisitTupleElements([&Hash](const auto& Value)
		{ Hash = HashCombineFast(Hash, GetTypeHash(Value)); },
		Tuple);
	return Hash;
}

template <typename... Types>
FArchive& operator<<(FArchive& Ar, TTuple<Types...>& Tuple)
{
	VisitTupleElements([&Ar](auto& Value)
		{ Ar << Value; },
		Tuple);
	return Ar;
}
