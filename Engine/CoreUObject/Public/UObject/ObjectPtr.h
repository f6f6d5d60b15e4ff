#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include <type_traits>

/** A reference held by a reflected member. Objects are always resolved here, so it is a pointer with a type of its own. */
struct FObjectPtr
{
	FObjectPtr() = default;
	FObjectPtr(TYPE_OF_NULLPTR) {}
	explicit FObjectPtr(UObject* Object)
		: DebugPtr(Object)
	{
	}

	FORCEINLINE UObject* Get() const { return DebugPtr; }
	FORCEINLINE UObject*& GetRaw() { return DebugPtr; }
	FORCEINLINE UObject* operator->() const { return DebugPtr; }
	FORCEINLINE UObject& operator*() const { return *DebugPtr; }
	explicit operator bool() const { return DebugPtr != nullptr; }
	bool IsNull() const { return DebugPtr == nullptr; }
	UClass* GetClass() const { return DebugPtr ? DebugPtr->GetClass() : nullptr; }
	bool IsA(const UClass* SomeBase) const { return DebugPtr && DebugPtr->IsA(SomeBase); }
	bool operator==(const FObjectPtr& Other) const = default;
	FORCEINLINE friend uint32 GetTypeHash(const FObjectPtr& Object) { return ::PointerHash(Object.DebugPtr); }

private:
	UObject* DebugPtr = nullptr;
};

/** As T*, in members that reflection knows. The same memory as a pointer. */
template <typename T>
struct TObjectPtr
{
	using ElementType = T;

	constexpr TObjectPtr() = default;
	constexpr TObjectPtr(TYPE_OF_NULLPTR) {}
	TObjectPtr(const TObjectPtr& Other) = default;
	TObjectPtr(TObjectPtr&& Other) = default;
	TObjectPtr& operator=(const TObjectPtr& Other) = default;
	TObjectPtr& operator=(TObjectPtr&& Other) = default;

	template <typename U>
	requires std::is_convertible_v<U*, T*>
		FORCEINLINE TObjectPtr(U* Object)
		: Pointer(Object)
	{
	}
	template <typename U>
	requires(std::is_convertible_v<U*, T*> && !std::is_same_v<U, T>)
		FORCEINLINE TObjectPtr(const TObjectPtr<U>& Other)
		: Pointer(Other.Get())
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*>
		FORCEINLINE TObjectPtr& operator=(U* Object)
	{
		Pointer = Object;
		return *this;
	}
	FORCEINLINE TObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Pointer = nullptr;
		return *this;
	}

	FORCEINLINE T* Get() const { return Pointer; }
	FORCEINLINE operator T*() const { return Pointer; }
	template <typename U>
	requires(!std::is_same_v<U, T> && requires(T * Source) { static_cast<U*>(Source); }) explicit operator U*() const
	{
		return static_cast<U*>(Pointer);
	}
	FORCEINLINE T* operator->() const { return Pointer; }
	FORCEINLINE T& operator*() const { return *Pointer; }
	FORCEINLINE bool operator!() const { return Pointer == nullptr; }
	FORCEINLINE explicit operator bool() const { return Pointer != nullptr; }
	bool IsNull() const { return Pointer == nullptr; }

	template <typename U>
	FORCEINLINE bool operator==(const TObjectPtr<U>& Other) const
	{
		return static_cast<const void*>(Pointer) == static_cast<const void*>(Other.Get());
	}
	template <typename U>
	FORCEINLINE bool operator==(U* Other) const
	{
		return Pointer == Other;
	}
	FORCEINLINE bool operator==(TYPE_OF_NULLPTR) const { return Pointer == nullptr; }

	FORCEINLINE friend uint32 GetTypeHash(const TObjectPtr& Object) { return ::PointerHash(static_cast<const void*>(Object.Pointer)); }
	/** For archives and collectors, which take a pointer by reference. */
	FORCEINLINE T*& GetRaw() { return Pointer; }
	friend FArchive& operator<<(FArchive& Ar, TObjectPtr& Object)
	{
		UObject* Value = (UObject*)Object.Pointer;
		Ar << Value;
		Object.Pointer = (T*)Value;
		return Ar;
	}

private:
	T* Pointer = nullptr;
};

/** The pointer inside, of either kind. */
template <typename T>
FORCEINLINE T* ToRawPtr(const TObjectPtr<T>& Ptr)
{
	return Ptr.Get();
}
template <typename T>
FORCEINLINE T* ToRawPtr(T* Ptr)
{
	return Ptr;
}
template <typename T>
FORCEINLINE T*& ToRawPtrRef(TObjectPtr<T>& Ptr)
{
	return Ptr.GetRaw();
}
template <typename T>
FORCEINLINE TObjectPtr<T> ToObjectPtr(T* Ptr)
{
	return TObjectPtr<T>(Ptr);
}

/** A pointer array seen as the other kind; both have the same memory. */
template <typename T, typename AllocatorType>
TArray<T*, AllocatorType>& ToRawPtrTArrayUnsafe(TArray<TObjectPtr<T>, AllocatorType>& Array)
{
	return reinterpret_cast<TArray<T*, AllocatorType>&>(Array);
}
template <typename T, typename AllocatorType>
const TArray<T*, AllocatorType>& ToRawPtrTArrayUnsafe(const TArray<TObjectPtr<T>, AllocatorType>& Array)
{
	return reinterpret_cast<const TArray<T*, AllocatorType>&>(Array);
}
template <typename T, typename AllocatorType>
TArray<TObjectPtr<T>, AllocatorType>& ObjectPtrWrap(TArray<T*, AllocatorType>& Array)
{
	return reinterpret_cast<TArray<TObjectPtr<T>, AllocatorType>&>(Array);
}
template <typename T, typename AllocatorType>
TArray<T*, AllocatorType>& ObjectPtrDecay(TArray<TObjectPtr<T>, AllocatorType>& Array)
{
	return reinterpret_cast<TArray<T*, AllocatorType>&>(Array);
}
template <typename T, typename AllocatorType>
const TArray<T*, AllocatorType>& ObjectPtrDecay(const TArray<TObjectPtr<T>, AllocatorType>& Array)
{
	return reinterpret_cast<const TArray<T*, AllocatorType>&>(Array);
}

template <typename T>
FString GetPathNameSafe(const TObjectPtr<T>& Object)
{
	return GetPathNameSafe(Object.Get());
}
template <typename T>
FString GetNameSafe(const TObjectPtr<T>& Object)
{
	return GetNameSafe(Object.Get());
}
