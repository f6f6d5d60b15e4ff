#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

#include <variant>

struct FEmptyVariantState
{
	bool operator==(const FEmptyVariantState&) const = default;
};

template <typename T>
struct TInPlaceType
{
	using Type = T;
};

/** Holds a value of exactly one of the types; at first, a default one of the first type. */
template <typename... Types>
class TVariant
{
	template <typename T>
	static constexpr bool IsOneOf = (std::is_same_v<T, Types> || ...);

public:
	TVariant() = default;
	template <typename T, typename... ArgTypes>
	requires(IsOneOf<T>) explicit TVariant(TInPlaceType<T>, ArgTypes&&... Args)
		: Storage(std::in_place_type<T>, Forward<ArgTypes>(Args)...)
	{
	}

	template <typename T>
	static constexpr SIZE_T IndexOfType()
	{
		static_assert(IsOneOf<T>, "The variant has no such type");
		SIZE_T Index = 0;
		SIZE_T Found = 0;
		((Found = std::is_same_v<T, Types> ? Index : Found, ++Index), ...);
		return Found;
	}
	SIZE_T GetIndex() const { return Storage.index(); }
	template <typename T>
	bool IsType() const
	{
		static_assert(IsOneOf<T>, "The variant has no such type");
		return std::holds_alternative<T>(Storage);
	}
	template <typename T>
	T& Get()
	{
		T* const Value = TryGet<T>();
		checkf(Value != nullptr, TEXT("The variant holds a value of another type; ask IsType first"));
		return *Value;
	}
	template <typename T>
	const T& Get() const
	{
		return const_cast<TVariant*>(this)->template Get<T>();
	}
	template <typename T>
	const T& Get(const TIdentity_T<T>& DefaultValue UE_LIFETIMEBOUND) const
	{
		const T* const Value = TryGet<T>();
		return Value != nullptr ? *Value : DefaultValue;
	}
	template <typename T>
	T* TryGet()
	{
		return std::get_if<T>(&Storage);
	}
	template <typename T>
	const T* TryGet() const
	{
		return std::get_if<T>(&Storage);
	}
	template <typename T>
	void Set(TIdentity_T<T>&& Value)
	{
		Emplace<T>(MoveTemp(Value));
	}
	template <typename T>
	void Set(const TIdentity_T<T>& Value)
	{
		Emplace<T>(CopyTemp(Value));
	}
	template <typename T, typename... ArgTypes>
	void Emplace(ArgTypes&&... Args)
	{
		Storage.template emplace<T>(Forward<ArgTypes>(Args)...);
	}
	bool operator==(const TVariant&) const = default;

	/** For Visit. */
	std::variant<Types...> Storage;
};

/** Calls the function with the values that the variants hold. */
template <typename FuncType, typename... VariantTypes>
decltype(auto) Visit(FuncType&& Func, VariantTypes&&... Variants)
{
	return std::visit(Forward<FuncType>(Func), (Forward<VariantTypes>(Variants).Storage)...);
}

/** Makes one visitor of several lambdas. */
template <typename... FuncTypes>
struct TOverloaded : FuncTypes...
{
	using FuncTypes::operator()...;
};

template <typename... FuncTypes>
TOverloaded(FuncTypes...) -> TOverloaded<FuncTypes...>;
