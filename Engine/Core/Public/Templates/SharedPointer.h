#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <memory>
#include <type_traits>

/**
 * Reference-counted pointers: TSharedPtr (may be null), TSharedRef (never null), TWeakPtr (does not keep the object alive).
 * They stand on std::shared_ptr, so counts are atomic in both modes; the mode stays part of the type, because pointers of
 * different modes do not convert into each other. As ever, one pointer variable must not be written by two threads at once.
 */
enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis;

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedRef<ToType, Mode> StaticCastSharedRef(const TSharedRef<FromType, Mode>& From);

namespace SharedPointerInternals
{
struct FNullTag
{
	explicit FNullTag() = default;
};

/** What MakeShareable answers: an owned object that has no count yet. */
template <class ObjectType>
struct TRawPtrProxy
{
	std::shared_ptr<ObjectType> Object;
};

template <class From, class To>
concept CPointerConvertible = std::is_convertible_v<From*, To*>;

/** Tells an object that derives from TSharedFromThis who counts it; chosen by overload, so a T without it costs nothing. */
template <class ObjectType, class BaseType, ESPMode Mode>
void EnableSharedFromThis(const std::shared_ptr<ObjectType>* Object, const TSharedFromThis<BaseType, Mode>* Shareable)
{
	if (Shareable != nullptr)
	{
		Shareable->UpdateWeakReferenceInternal(*Object);
	}
}

inline void EnableSharedFromThis(...) {}

struct FAccess
{
	template <class PointerType>
	static const auto& Get(const PointerType& Pointer)
	{
		return Pointer.Object;
	}
	template <class PointerType>
	static auto& Get(PointerType& Pointer)
	{
		return Pointer.Object;
	}
};
}

template <class ObjectType, ESPMode InMode>
class TSharedRef
{
public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	/** Takes ownership; Object must not be null. */
	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	explicit TSharedRef(OtherType* InObject)
		: Object(InObject)
	{
		check(Object != nullptr);
		SharedPointerInternals::EnableSharedFromThis(&Object, InObject);
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TSharedRef(SharedPointerInternals::TRawPtrProxy<OtherType>&& Proxy)
		: Object(Proxy.Object)
	{
		check(Object != nullptr);
		SharedPointerInternals::EnableSharedFromThis(&Proxy.Object, Proxy.Object.get());
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	/** Shares Other's count but points to InObject, usually a part of what Other points to. */
	template <class OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other, ObjectType* InObject)
		: Object(SharedPointerInternals::FAccess::Get(Other), InObject)
	{
		check(InObject != nullptr);
	}

	// A reference is never null, not even one that was moved from: it has no move, only the copy.
	TSharedRef(const TSharedRef& Other) = default;
	TSharedRef& operator=(const TSharedRef& Other) = default;

	explicit TSharedRef(std::shared_ptr<ObjectType> InObject, SharedPointerInternals::FNullTag)
		: Object(MoveTemp(InObject))
	{
		check(Object != nullptr);
	}

	ObjectType& Get() const { return *Object; }
	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object.get(); }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Object.use_count()); }
	bool IsUnique() const { return Object.use_count() == 1; }
	TSharedPtr<ObjectType, Mode> ToSharedPtr() const { return TSharedPtr<ObjectType, Mode>(*this); }
	TWeakPtr<ObjectType, Mode> ToWeakPtr() const { return TWeakPtr<ObjectType, Mode>(*this); }

private:
	friend SharedPointerInternals::FAccess;

	std::shared_ptr<ObjectType> Object;
};

template <class ObjectType, ESPMode InMode>
class TSharedPtr
{
public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	TSharedPtr(std::nullptr_t = nullptr) {}

	/** Takes ownership. */
	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	explicit TSharedPtr(OtherType* InObject)
		: Object(InObject)
	{
		SharedPointerInternals::EnableSharedFromThis(&Object, InObject);
	}

	template <class OtherType, class DeleterType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TSharedPtr(OtherType* InObject, DeleterType&& Deleter)
		: Object(InObject, Forward<DeleterType>(Deleter))
	{
		SharedPointerInternals::EnableSharedFromThis(&Object, InObject);
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TSharedPtr(SharedPointerInternals::TRawPtrProxy<OtherType>&& Proxy)
		: Object(Proxy.Object)
	{
		SharedPointerInternals::EnableSharedFromThis(&Proxy.Object, Proxy.Object.get());
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TSharedPtr(TSharedPtr<OtherType, Mode>&& Other)
		: Object(MoveTemp(SharedPointerInternals::FAccess::Get(Other)))
	{
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other)
		: Object(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	/** Shares Other's count but points to InObject, usually a part of what Other points to. */
	template <class OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other, ObjectType* InObject)
		: Object(SharedPointerInternals::FAccess::Get(Other), InObject)
	{
	}

	explicit TSharedPtr(std::shared_ptr<ObjectType> InObject, SharedPointerInternals::FNullTag)
		: Object(MoveTemp(InObject))
	{
	}

	TSharedPtr(const TSharedPtr&) = default;
	TSharedPtr(TSharedPtr&&) = default;
	TSharedPtr& operator=(const TSharedPtr&) = default;
	TSharedPtr& operator=(TSharedPtr&&) = default;
	TSharedPtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	/** The pointer must not be null. */
	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType, Mode>(Object, SharedPointerInternals::FNullTag());
	}
	TWeakPtr<ObjectType, Mode> ToWeakPtr() const { return TWeakPtr<ObjectType, Mode>(*this); }

	ObjectType* Get() const { return Object.get(); }
	explicit operator bool() const { return Object != nullptr; }
	bool IsValid() const { return Object != nullptr; }
	std::add_lvalue_reference_t<ObjectType> operator*() const
	{
		check(IsValid());
		return *Object;
	}
	ObjectType* operator->() const
	{
		check(IsValid());
		return Object.get();
	}
	void Reset() { Object.reset(); }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Object.use_count()); }
	bool IsUnique() const { return Object.use_count() == 1; }

private:
	friend SharedPointerInternals::FAccess;

	std::shared_ptr<ObjectType> Object;
};

template <class ObjectType, ESPMode InMode>
class TWeakPtr
{
public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode = InMode;

	TWeakPtr(std::nullptr_t = nullptr) {}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Other)
		: TWeakPtr(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Other)
		: TWeakPtr(SharedPointerInternals::FAccess::Get(Other))
	{
	}

	template <class OtherType>
	requires SharedPointerInternals::CPointerConvertible<OtherType, ObjectType>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other)
		: TWeakPtr(Other.Pin())
	{
	}

	TWeakPtr(const TWeakPtr&) = default;
	TWeakPtr(TWeakPtr&&) = default;
	TWeakPtr& operator=(const TWeakPtr&) = default;
	TWeakPtr& operator=(TWeakPtr&&) = default;
	TWeakPtr& operator=(std::nullptr_t)
	{
		Reset();
		return *this;
	}

	/** The object, kept alive by the answer; null once the last shared pointer to it has gone. Safe on any thread. */
	TSharedPtr<ObjectType, Mode> Pin() const { return TSharedPtr<ObjectType, Mode>(Object.lock(), SharedPointerInternals::FNullTag()); }

	/** Only a hint where other threads hold the object: it may go between this answer and its use. */
	bool IsValid() const { return !Object.expired(); }
	void Reset() { *this = TWeakPtr(); }

	/** Whether Other points to the object of this pointer. */
	bool HasSameObject(const void* Other) const { return Pin().Get() == Other; }

private:
	template <class T, ESPMode M>
	friend uint32 GetTypeHash(const TWeakPtr<T, M>& Pointer);

	TWeakPtr(const std::shared_ptr<ObjectType>& InObject)
		: Object(InObject)
		, Identity(InObject.get())
	{
	}

	std::weak_ptr<ObjectType> Object;
	/** The object's address even after its end, so that a hash does not change under a map. */
	const void* Identity = nullptr;
};

/** Base of objects that hand out shared pointers to themselves. Not usable in their constructors. */
template <class ObjectType, ESPMode Mode>
class TSharedFromThis
{
public:
	TSharedRef<ObjectType, Mode> AsShared()
	{
		TSharedPtr<ObjectType, Mode> Shared = WeakThis.Pin();
		checkf(Shared.IsValid(), TEXT("AsShared() on an object that no shared pointer holds"));
		return Shared.ToSharedRef();
	}
	TSharedRef<const ObjectType, Mode> AsShared() const { return const_cast<TSharedFromThis*>(this)->AsShared(); }

	TWeakPtr<ObjectType, Mode> AsWeak() { return WeakThis; }
	TWeakPtr<const ObjectType, Mode> AsWeak() const { return WeakThis; }

	bool DoesSharedInstanceExist() const { return WeakThis.IsValid(); }

	template <class BaseType>
	void UpdateWeakReferenceInternal(const std::shared_ptr<BaseType>& Shared) const
	{
		if (!WeakThis.IsValid())
		{
			ObjectType* Self = const_cast<ObjectType*>(static_cast<const ObjectType*>(this));
			WeakThis = TSharedPtr<ObjectType, Mode>(std::shared_ptr<ObjectType>(Shared, Self), SharedPointerInternals::FNullTag());
		}
	}

protected:
	template <class OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* This)
	{
		return StaticCastSharedRef<OtherType>(This->AsShared());
	}
	template <class OtherType>
	static TSharedRef<const OtherType, Mode> SharedThis(const OtherType* This)
	{
		return StaticCastSharedRef<const OtherType>(This->AsShared());
	}

	// A copy is another object with another count.
	TSharedFromThis() = default;
	TSharedFromThis(const TSharedFromThis&) {}
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }
	~TSharedFromThis() = default;

private:
	mutable TWeakPtr<ObjectType, Mode> WeakThis;
};

/** Wraps an object made by `new` for assignment to a TSharedPtr or TSharedRef. */
template <class ObjectType>
[[nodiscard]] SharedPointerInternals::TRawPtrProxy<ObjectType> MakeShareable(ObjectType* Object)
{
	return {std::shared_ptr<ObjectType>(Object)};
}

/** The same for an object that Deleter(Object) frees. */
template <class ObjectType, class DeleterType>
[[nodiscard]] SharedPointerInternals::TRawPtrProxy<ObjectType> MakeShareable(ObjectType* Object, DeleterType&& Deleter)
{
	return {std::shared_ptr<ObjectType>(Object, Forward<DeleterType>(Deleter))};
}

/** Makes the object and its count in one allocation. */
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe, class... ArgTypes>
[[nodiscard]] TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args)
{
	std::shared_ptr<ObjectType> Object = std::make_shared<ObjectType>(Forward<ArgTypes>(Args)...);
	SharedPointerInternals::EnableSharedFromThis(&Object, Object.get());
	return TSharedRef<ObjectType, Mode>(MoveTemp(Object), SharedPointerInternals::FNullTag());
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedRef<ToType, Mode> StaticCastSharedRef(const TSharedRef<FromType, Mode>& From)
{
	return TSharedRef<ToType, Mode>(From, static_cast<ToType*>(&From.Get()));
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedPtr<ToType, Mode> StaticCastSharedPtr(const TSharedPtr<FromType, Mode>& From)
{
	return TSharedPtr<ToType, Mode>(From, static_cast<ToType*>(From.Get()));
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TWeakPtr<ToType, Mode> StaticCastWeakPtr(const TWeakPtr<FromType, Mode>& From)
{
	return StaticCastSharedPtr<ToType>(From.Pin());
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedRef<ToType, Mode> ConstCastSharedRef(const TSharedRef<FromType, Mode>& From)
{
	return TSharedRef<ToType, Mode>(From, const_cast<ToType*>(&From.Get()));
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedPtr<ToType, Mode> ConstCastSharedPtr(const TSharedPtr<FromType, Mode>& From)
{
	return TSharedPtr<ToType, Mode>(From, const_cast<ToType*>(From.Get()));
}

template <class A, class B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return Left.Get() == Right.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return &Left.Get() == &Right.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return Left.Get() == &Right.Get();
}
template <class A, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Left, std::nullptr_t)
{
	return Left.Get() == nullptr;
}
template <class A, class B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Left, const TWeakPtr<B, Mode>& Right)
{
	return Left.Pin().Get() == Right.Pin().Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return Left.Pin().Get() == Right.Get();
}
template <class A, class B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return Left.Pin().Get() == &Right.Get();
}
template <class A, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Left, std::nullptr_t)
{
	return !Left.IsValid();
}

template <class ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TSharedPtr<ObjectType, Mode>& Pointer)
{
	return PointerHash(Pointer.Get());
}
template <class ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TSharedRef<ObjectType, Mode>& Reference)
{
	return PointerHash(&Reference.Get());
}
template <class ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TWeakPtr<ObjectType, Mode>& Pointer)
{
	return PointerHash(Pointer.Identity);
}
