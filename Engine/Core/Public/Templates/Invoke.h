#pragma once

#include "Templates/UnrealTemplate.h"

#include <functional>

/** Calls a function, a functor, a member function or a member, on an object, a reference or any pointer type. */
template <typename FuncType, typename... ArgTypes>
constexpr decltype(auto) Invoke(FuncType&& Func, ArgTypes&&... Args)
{
	return std::invoke(Forward<FuncType>(Func), Forward<ArgTypes>(Args)...);
}

template <typename FuncType, typename... ArgTypes>
struct TInvokeResult
{
	using Type = std::invoke_result_t<FuncType, ArgTypes...>;
};

template <typename FuncType, typename... ArgTypes>
using TInvokeResult_T = typename TInvokeResult<FuncType, ArgTypes...>::Type;

template <typename FuncType, typename... ArgTypes>
struct TIsInvocable
{
	static constexpr bool Value = std::is_invocable_v<FuncType, ArgTypes...>;
};

/** Wraps an overloaded or template function so that it can be handed on as one object. */
#define PROJECTION(FuncName) \
	[](auto&&... Args) -> decltype(auto) { return FuncName(Forward<decltype(Args)>(Args)...); }

#define PROJECTION_MEMBER(Type, FuncName) \
	[](auto&& Object, auto&&... Args) -> decltype(auto) \
	{ return Forward<decltype(Object)>(Object).FuncName(Forward<decltype(Args)>(Args)...); }
