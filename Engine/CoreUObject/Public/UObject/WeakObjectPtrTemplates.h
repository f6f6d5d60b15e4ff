#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

class FArchive;

/** A reference that turns null when its object is given up or collected. May be copied and compared on any thread. */
struct COREUOBJECT_API FWeakObjectPtr
{
	FWeakObjectPtr() = default;
	FWeakObjectPtr(TYPE_OF_NULLPTR) {}
	FWeakObjectPtr(const UObject* Object) { *this = Object; }

	void operator=(const UObject* Object);
	void Reset()
	{
		ObjectIndex = INDEX_NONE;
		ObjectSerialNumber = 0;
	}

	/** Null for an object that is given up, unless bEvenIfGarbage. */
	UObject* Get(bool bEvenIfGarbage) const;
	UObject* Get() const { return Get(false); }
	UObject* GetEvenIfUnreachable() const;
	bool IsValid(bool bEvenIfGarbage = false, bool bThreadsafeTest = false) const { return Get(bEvenIfGarbage) != nullptr; }
	/** Whether it once pointed at an object that is gone. */
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const;
	/** Whether it was never set, or set to null. */
	bool IsExplicitlyNull() const { return ObjectSerialNumber == 0; }
	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const
	{
		return ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber;
	}

	UObject& operator*() const { return *Get(); }
	UObject* operator->() const { return Get(); }
	explicit operator bool() const { return IsValid(); }
	/** Two that point at nothing are equal. */
	bool operator==(const FWeakObjectPtr& Other) const { return HasSameIndexAndSerialNumber(Other) || (!IsValid() && !Other.IsValid()); }

	void Serialize(FArchive& Ar);
	/** The index alone: objects that are made one after another have serial numbers that would undo its spread. */
	FORCEINLINE friend uint32 GetTypeHash(const FWeakObjectPtr& Ptr) { return static_cast<uint32>(Ptr.ObjectIndex); }

	int32 GetObjectIndex() const { return ObjectIndex; }
	int32 GetObjectSerialNumber() const { return ObjectSerialNumber; }

private:
	int32 ObjectIndex = INDEX_NONE;
	int32 ObjectSerialNumber = 0;
};

template <class T = UObject, class TWeakObjectPtrBase = FWeakObjectPtr>
struct TWeakObjectPtr : private TWeakObjectPtrBase
{
	using ElementType = T;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(TYPE_OF_NULLPTR) {}
	template <class U>
	requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr(U* Object)
		: TWeakObjectPtrBase((const UObject*)Object)
	{
	}
	template <class U>
	requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr(const TObjectPtr<U>& Object)
		: TWeakObjectPtrBase((const UObject*)Object.Get())
	{
	}
	template <class U>
	requires(std::is_convertible_v<U*, T*> && !std::is_same_v<U, T>)
		TWeakObjectPtr(const TWeakObjectPtr<U>& Other)
		: TWeakObjectPtrBase(Other.AsBase())
	{
	}
	template <class U>
	requires std::is_convertible_v<U*, T*>
		TWeakObjectPtr& operator=(U* Object)
	{
		TWeakObjectPtrBase::operator=((const UObject*)Object);
		return *this;
	}
	template <class U>
	requires std::is_convertible_v<U*, T*>
		TWeakObjectPtr& operator=(const TObjectPtr<U>& Object)
	{
		return *this = Object.Get();
	}
	TWeakObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	using TWeakObjectPtrBase::Reset;
	T* Get() const { return (T*)TWeakObjectPtrBase::Get(); }
	T* Get(bool bEvenIfGarbage) const { return (T*)TWeakObjectPtrBase::Get(bEvenIfGarbage); }
	T* GetEvenIfUnreachable() const { return (T*)TWeakObjectPtrBase::GetEvenIfUnreachable(); }
	/** The object held strongly, or an empty pointer. */
	T& operator*() const { return *Get(); }
	T* operator->() const { return Get(); }
	bool IsValid(bool bEvenIfGarbage, bool bThreadsafeTest = false) const
	{
		return TWeakObjectPtrBase::IsValid(bEvenIfGarbage, bThreadsafeTest);
	}
	bool IsValid() const { return TWeakObjectPtrBase::IsValid(); }
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const
	{
		return TWeakObjectPtrBase::IsStale(bIncludingGarbage, bThreadsafeTest);
	}
	using TWeakObjectPtrBase::IsExplicitlyNull;
	bool HasSameIndexAndSerialNumber(const TWeakObjectPtr& Other) const { return TWeakObjectPtrBase::HasSameIndexAndSerialNumber(Other); }
	explicit operator bool() const { return IsValid(); }

	template <class U>
	bool operator==(const TWeakObjectPtr<U>& Other) const
	{
		return AsBase() == Other.AsBase();
	}
	template <class U>
	requires(std::is_convertible_v<const U*, const T*> || std::is_convertible_v<const T*, const U*>) bool operator==(const U* Other) const
	{
		return (const UObject*)Get() == (const UObject*)Other;
	}
	template <class U>
	requires(std::is_convertible_v<const U*, const T*> || std::is_convertible_v<const T*, const U*>) bool operator==(
		const TObjectPtr<U>& Other) const
	{
		return *this == Other.Get();
	}
	bool operator==(TYPE_OF_NULLPTR) const { return !IsValid(); }

	const TWeakObjectPtrBase& AsBase() const { return *this; }
	TWeakObjectPtrBase& AsBase() { return *this; }
	FORCEINLINE friend uint32 GetTypeHash(const TWeakObjectPtr& Ptr) { return GetTypeHash(Ptr.AsBase()); }
	friend FArchive& operator<<(FArchive& Ar, TWeakObjectPtr& Ptr)
	{
		Ptr.AsBase().Serialize(Ar);
		return Ar;
	}
};

template <typename T>
TWeakObjectPtr<T> MakeWeakObjectPtr(T* Ptr)
{
	return TWeakObjectPtr<T>(Ptr);
}
template <typename T>
TWeakObjectPtr<T> MakeWeakObjectPtr(const TObjectPtr<T>& Ptr)
{
	return TWeakObjectPtr<T>(Ptr);
}
