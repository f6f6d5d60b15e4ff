#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Templates/AlignmentTemplates.h"
#include "Templates/AndOrNot.h"
#include "Templates/ChooseClass.h"
#include "Templates/EnableIf.h"
#include "Templates/Identity.h"
#include "Templates/IntegralConstant.h"
#include "Templates/TypeCompatibleBytes.h"
#include "Templates/UnrealTypeTraits.h"

#include <cstddef>
#include <initializer_list>
#include <new>
#include <type_traits>
#include <utility>

template <typename T>
struct TRemoveReference
{
	using Type = std::remove_reference_t<T>;
};

template <typename T>
struct TRemoveConst
{
	using Type = std::remove_const_t<T>;
};

template <typename T>
struct TRemoveCV
{
	using Type = std::remove_cv_t<T>;
};

template <typename T>
struct TRemovePointer
{
	using Type = std::remove_pointer_t<T>;
};

template <typename T>
struct TDecay
{
	using Type = std::decay_t<T>;
};

/** Casts to an rvalue; refuses what could not be moved from, where std::move would copy silently. */
template <typename T>
[[nodiscard]] constexpr std::remove_reference_t<T>&& MoveTemp(T&& Object) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp called on an rvalue");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp called on a const object");
	return static_cast<std::remove_reference_t<T>&&>(Object);
}

/** As MoveTemp, for templates where the argument may be const or an rvalue already. */
template <typename T>
[[nodiscard]] constexpr std::remove_reference_t<T>&& MoveTempIfPossible(T&& Object) noexcept
{
	return static_cast<std::remove_reference_t<T>&&>(Object);
}

template <typename T>
[[nodiscard]] constexpr T&& Forward(std::remove_reference_t<T>& Object) noexcept
{
	return static_cast<T&&>(Object);
}

template <typename T>
[[nodiscard]] constexpr T&& Forward(std::remove_reference_t<T>&& Object) noexcept
{
	return static_cast<T&&>(Object);
}

/** Makes a temporary copy, to hand an lvalue to what takes an rvalue. */
template <typename T>
[[nodiscard]] T CopyTemp(const T& Value)
{
	return Value;
}

/** Swaps by exchanging bytes, as the containers relocate. */
template <typename T>
void Swap(T& A, T& B)
{
	if (&A == &B)
	{
		return;
	}
	alignas(T) unsigned char Temporary[sizeof(T)];
	FMemory::Memcpy(Temporary, static_cast<const void*>(&A), sizeof(T));
	FMemory::Memcpy(static_cast<void*>(&A), static_cast<const void*>(&B), sizeof(T));
	FMemory::Memcpy(static_cast<void*>(&B), Temporary, sizeof(T));
}

template <typename T>
void Exchange(T& A, T& B)
{
	Swap(A, B);
}

template <typename T, typename OtherType = T>
T ExchangeValue(T& Target, OtherType&& NewValue)
{
	T Old = MoveTemp(Target);
	Target = Forward<OtherType>(NewValue);
	return Old;
}

template <typename T>
[[nodiscard]] constexpr const T& AsConst(T& Object)
{
	return Object;
}

template <typename T>
void AsConst(const T&&) = delete;

/** Sets a variable for the time of a scope and puts its old value back. */
template <typename RefType, typename AssignedType = RefType>
struct TGuardValue
{
	[[nodiscard]] TGuardValue(RefType& ReferenceValue, const AssignedType& NewValue)
		: RefValue(ReferenceValue)
		, OriginalValue(ReferenceValue)
	{
		RefValue = NewValue;
	}
	~TGuardValue() { RefValue = OriginalValue; }
	TGuardValue(const TGuardValue&) = delete;
	TGuardValue& operator=(const TGuardValue&) = delete;

	const AssignedType& operator*() const { return OriginalValue; }
	const RefType& GetOriginalValue() const { return OriginalValue; }

private:
	RefType& RefValue;
	AssignedType OriginalValue;
};

template <typename Type>
struct TScopeCounter
{
	[[nodiscard]] explicit TScopeCounter(Type& ReferenceValue)
		: RefValue(ReferenceValue)
	{
		++RefValue;
	}
	~TScopeCounter() { --RefValue; }
	TScopeCounter(const TScopeCounter&) = delete;
	TScopeCounter& operator=(const TScopeCounter&) = delete;

private:
	Type& RefValue;
};

class FNoncopyable
{
protected:
	FNoncopyable() = default;
	~FNoncopyable() = default;

private:
	FNoncopyable(const FNoncopyable&) = delete;
	FNoncopyable& operator=(const FNoncopyable&) = delete;
};

/** Gets the data pointer and the count of anything contiguous. */
template <typename T, SIZE_T N>
constexpr T* GetData(T (&Container)[N])
{
	return Container;
}

template <typename T>
constexpr auto GetData(T&& Container) -> decltype(Container.GetData())
{
	return Container.GetData();
}

template <typename T>
constexpr const T* GetData(std::initializer_list<T> List)
{
	return List.begin();
}

template <typename T, SIZE_T N>
constexpr SIZE_T GetNum(T (&)[N])
{
	return N;
}

template <typename T>
constexpr auto GetNum(T&& Container) -> decltype(Container.Num())
{
	return Container.Num();
}

template <typename T>
constexpr int32 GetNum(std::initializer_list<T> List)
{
	return static_cast<int32>(List.size());
}
