#pragma once

#include "CoreMinimal.h"
#include "Misc/TVariant.h"
#include "VexelError.h"

template <typename T>
class TVexelExpected;

namespace VexelInternal
{
template <typename T>
inline constexpr bool TIsVexelExpected = false;
template <typename T>
inline constexpr bool TIsVexelExpected<TVexelExpected<T>> = true;

/**
 * What a T may be answered with. A raw pointer does not become an owning one by the way: that would take ownership of an object
 * that somebody else may own.
 */
template <typename U, typename T>
concept CVexelValueOf = std::is_constructible_v<T, U> &&(std::is_convertible_v<U, T> || !std::is_pointer_v<std::decay_t<U>>);

template <typename T>
concept CVexelError = std::is_base_of_v<FVexelError, std::remove_cvref_t<T>>;
}

/**
 * A value, or the error that stood in its way. Reading the side that is not there is a programming fault and stops the editor.
 * A function that answers one is used through VEXEL_TRY, or the result is looked at.
 */
template <typename T>
class [[nodiscard]] TVexelExpected
{
	static_assert(!std::is_reference_v<T>, "TVexelExpected holds values: answer a pointer or a TSharedRef instead of a reference");
	static_assert(!VexelInternal::CVexelError<T>, "An error is no value: answer TVexelExpected<void> and the error itself");
	static_assert(!VexelInternal::TIsVexelExpected<T>, "An expected value of an expected value: pass the inner one on with VEXEL_TRY");

public:
	using ValueType = T;

	template <typename U = T>
	requires(VexelInternal::CVexelValueOf<U&&, T> && !VexelInternal::CVexelError<U> &&
		!VexelInternal::TIsVexelExpected<std::remove_cvref_t<U>>) TVexelExpected(U&& Value)
		: Storage(TInPlaceType<T>(), Forward<U>(Value))
	{
	}

	template <VexelInternal::CVexelError ErrorType>
	TVexelExpected(ErrorType&& Error)
		: Storage(TInPlaceType<FVexelError>(), Forward<ErrorType>(Error))
	{
	}

	/** From an expected value of a convertible type. */
	template <typename U>
	requires(!std::is_same_v<T, U> && std::is_constructible_v<T, U&&>)
		TVexelExpected(TVexelExpected<U>&& Other)
		: TVexelExpected(Other.HasError() ? TVexelExpected(MoveTemp(Other).GetError()) : TVexelExpected(T(MoveTemp(Other).GetValue())))
	{
	}

	bool HasValue() const { return Storage.template IsType<T>(); }
	bool HasError() const { return !HasValue(); }
	explicit operator bool() const { return HasValue(); }

	T& GetValue() & { return CheckedValue(*this); }
	const T& GetValue() const& { return CheckedValue(*this); }
	T&& GetValue() && { return MoveTemp(CheckedValue(*this)); }

	FVexelError& GetError() & { return CheckedError(*this); }
	const FVexelError& GetError() const& { return CheckedError(*this); }
	FVexelError&& GetError() && { return MoveTemp(CheckedError(*this)); }

private:
	template <typename Self>
	static auto& CheckedValue(Self& This)
	{
		checkf(This.HasValue(), TEXT("The value of a failed result was read: %s"), *This.Storage.template Get<FVexelError>().ToString());
		return This.Storage.template Get<T>();
	}

	template <typename Self>
	static auto& CheckedError(Self& This)
	{
		checkf(This.HasError(), TEXT("The error of a successful result was read"));
		return This.Storage.template Get<FVexelError>();
	}

	TVariant<T, FVexelError> Storage;
};

/** Success, or the error that stood in its way. A default-made one is success. */
template <>
class [[nodiscard]] TVexelExpected<void>
{
public:
	using ValueType = void;

	TVexelExpected() = default;

	template <VexelInternal::CVexelError ErrorType>
	TVexelExpected(ErrorType&& InError)
		: Error(FVexelError(Forward<ErrorType>(InError)))
	{
	}

	bool HasValue() const { return !Error.IsSet(); }
	bool HasError() const { return Error.IsSet(); }
	explicit operator bool() const { return HasValue(); }

	void GetValue() const { checkf(HasValue(), TEXT("The value of a failed result was read: %s"), *Error->ToString()); }

	FVexelError& GetError() & { return const_cast<FVexelError&>(AsConst(*this).GetError()); }
	const FVexelError& GetError() const&
	{
		checkf(HasError(), TEXT("The error of a successful result was read"));
		return Error.GetValue();
	}
	FVexelError&& GetError() && { return MoveTemp(GetError()); }

private:
	TOptional<FVexelError> Error;
};

namespace VexelInternal
{
inline FVexelError WithContext(FVexelError&& Error)
{
	return MoveTemp(Error);
}

inline FVexelError WithContext(FVexelError&& Error, FStringView While)
{
	Error.AppendContext(While);
	return MoveTemp(Error);
}
}

#define VEXEL_JOIN_INNER(A, B) A##B
#define VEXEL_JOIN(A, B) VEXEL_JOIN_INNER(A, B)
#define VEXEL_CONTEXT_TEXT(Format, ...) FString::Printf(TEXT(Format) __VA_OPT__(, ) __VA_ARGS__)

#define VEXEL_TRY_NAMED(Result, Declaration, Expression, ...) \
	auto Result = (Expression); \
	if (Result.HasError()) [[unlikely]] \
	{ \
		return VexelInternal::WithContext(MoveTemp(Result).GetError() __VA_OPT__(, VEXEL_CONTEXT_TEXT(__VA_ARGS__))); \
	} \
	Declaration = MoveTemp(Result).GetValue()

/**
 * Declares a variable from the value of a fallible expression, or returns its error from the calling function:
 *     VEXEL_TRY(TSharedPtr<ILumProperty> Property, Compound->FindProperty(Segment), "while resolving segment '%s'", *Segment);
 * The context line is optional. A type with a comma in it needs an alias.
 */
#define VEXEL_TRY(Declaration, Expression, ...) \
	VEXEL_TRY_NAMED(VEXEL_JOIN(TryResult, __LINE__), Declaration, Expression __VA_OPT__(, ) __VA_ARGS__)

/** The same for an expression whose success carries no value, or none that is wanted. */
#define VEXEL_TRY_VOID(Expression, ...) \
	do \
	{ \
		auto TryResult = (Expression); \
		if (TryResult.HasError()) [[unlikely]] \
		{ \
			return VexelInternal::WithContext(MoveTemp(TryResult).GetError() __VA_OPT__(, VEXEL_CONTEXT_TEXT(__VA_ARGS__))); \
		} \
	} while (false)
