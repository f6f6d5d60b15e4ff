#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

template <class T>
struct TDefaultDelete
{
	TDefaultDelete() = default;
	template <class OtherType>
	requires std::is_convertible_v<OtherType*, T*>
	TDefaultDelete(const TDefaultDelete<OtherType>&)
	{
	}
	void operator()(T* Object) const
	{
		static_assert(
			sizeof(T) > 0, "TUniquePtr cannot delete an incomplete type: define the owner's destructor where the type is complete");
		delete Object;
	}
};

template <class T>
struct TDefaultDelete<T[]>
{
	void operator()(T* Objects) const { delete[] Objects; }
};

/** Sole owner of an object, or of an array made by `new T[]`. Moves, does not copy. */
template <class T, class Deleter = TDefaultDelete<T>>
class TUniquePtr : private Deleter
{
	template <class OtherType, class OtherDeleter>
	friend class TUniquePtr;

public:
	using ElementType = std::remove_extent_t<T>;

	TUniquePtr(std::nullptr_t = nullptr) {}
	explicit TUniquePtr(ElementType* InObject)
		: Object(InObject)
	{
	}
	TUniquePtr(ElementType* InObject, Deleter InDeleter)
		: Deleter(MoveTemp(InDeleter))
		, Object(InObject)
	{
	}

	TUniquePtr(TUniquePtr&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Object(Other.Release())
	{
	}
	template <class OtherType, class OtherDeleter>
	requires(std::is_convertible_v<OtherType*, T*> && !std::is_array_v<OtherType>)
		TUniquePtr(TUniquePtr<OtherType, OtherDeleter>&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Object(Other.Release())
	{
	}
	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;

	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Release());
			GetDeleter() = MoveTemp(Other.GetDeleter());
		}
		return *this;
	}
	template <class OtherType, class OtherDeleter>
	requires(std::is_convertible_v<OtherType*, T*> && !std::is_array_v<OtherType>)
		TUniquePtr&
		operator=(TUniquePtr<OtherType, OtherDeleter>&& Other)
	{
		Reset(Other.Release());
		GetDeleter() = MoveTemp(Other.GetDeleter());
		return *this;
	}
	TUniquePtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	~TUniquePtr()
	{
		if (Object != nullptr)
		{
			GetDeleter()(Object);
		}
	}

	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return Object != nullptr; }
	ElementType* Get() const { return Object; }
	ElementType* operator->() const { return Object; }
	std::add_lvalue_reference_t<ElementType> operator*() const { return *Object; }
	std::add_lvalue_reference_t<ElementType> operator[](SIZE_T Index) const
		requires std::is_array_v<T>
	{
		return Object[Index];
	}

	/** Gives the object up without deleting it. */
	[[nodiscard]] ElementType* Release()
	{
		ElementType* const Result = Object;
		Object = nullptr;
		return Result;
	}

	/** The old object is deleted after the pointer holds the new one, so that its destructor may look. */
	void Reset(ElementType* InObject = nullptr)
	{
		ElementType* const Old = Object;
		Object = InObject;
		if (Old != nullptr)
		{
			GetDeleter()(Old);
		}
	}

	Deleter& GetDeleter() { return static_cast<Deleter&>(*this); }
	const Deleter& GetDeleter() const { return static_cast<const Deleter&>(*this); }

private:
	ElementType* Object = nullptr;
};

template <class A, class DeleterA, class B, class DeleterB>
bool operator==(const TUniquePtr<A, DeleterA>& Left, const TUniquePtr<B, DeleterB>& Right)
{
	return Left.Get() == Right.Get();
}
template <class A, class DeleterA>
bool operator==(const TUniquePtr<A, DeleterA>& Left, std::nullptr_t)
{
	return Left.Get() == nullptr;
}

template <class T, class Deleter>
uint32 GetTypeHash(const TUniquePtr<T, Deleter>& Pointer)
{
	return PointerHash(Pointer.Get());
}

template <class T, class... ArgTypes>
requires(!std::is_array_v<T>)
	[[nodiscard]] TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(Forward<ArgTypes>(Args)...));
}

template <class T>
requires std::is_unbounded_array_v<T>
[[nodiscard]] TUniquePtr<T> MakeUnique(SIZE_T Num)
{
	return TUniquePtr<T>(new std::remove_extent_t<T>[Num]());
}
