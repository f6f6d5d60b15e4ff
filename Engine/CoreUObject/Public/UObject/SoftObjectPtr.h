#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/WeakObjectPtr.h"

/** A path that remembers its object while that is in memory. */
struct COREUOBJECT_API FSoftObjectPtr
{
	FSoftObjectPtr() = default;
	FSoftObjectPtr(TYPE_OF_NULLPTR) {}
	explicit FSoftObjectPtr(const FSoftObjectPath& ObjectPath)
		: ObjectID(ObjectPath)
	{
	}
	FSoftObjectPtr(const UObject* Object) { *this = Object; }

	FSoftObjectPtr& operator=(const FSoftObjectPath& ObjectPath)
	{
		WeakPtr.Reset();
		ObjectID = ObjectPath;
		return *this;
	}
	FSoftObjectPtr& operator=(const UObject* Object)
	{
		ObjectID = FSoftObjectPath(Object);
		WeakPtr = Object;
		return *this;
	}
	FSoftObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}
	void Reset()
	{
		WeakPtr.Reset();
		ObjectID.Reset();
	}
	void ResetWeakPtr() { WeakPtr.Reset(); }

	/** Null when the object is not in memory. */
	UObject* Get() const;
	UObject* LoadSynchronous() const;
	bool IsNull() const { return ObjectID.IsNull(); }
	bool IsValid() const { return Get() != nullptr; }
	/** A path whose object is not in memory. */
	bool IsPending() const { return Get() == nullptr && ObjectID.IsValid(); }
	bool IsStale() const { return false; }
	explicit operator bool() const { return IsValid(); }

	const FSoftObjectPath& GetUniqueID() const { return ObjectID; }
	FSoftObjectPath& GetUniqueID() { return ObjectID; }
	const FSoftObjectPath& ToSoftObjectPath() const { return ObjectID; }
	FString ToString() const { return ObjectID.ToString(); }
	FString GetLongPackageName() const { return ObjectID.GetLongPackageName(); }
	FString GetAssetName() const { return ObjectID.GetAssetName(); }

	bool operator==(const FSoftObjectPtr& Other) const { return ObjectID == Other.ObjectID; }
	FORCEINLINE friend uint32 GetTypeHash(const FSoftObjectPtr& Ptr) { return GetTypeHash(Ptr.ObjectID); }

private:
	mutable FWeakObjectPtr WeakPtr;
	FSoftObjectPath ObjectID;
};

template <class T = UObject>
struct TSoftObjectPtr
{
	using ElementType = T;

	TSoftObjectPtr() = default;
	TSoftObjectPtr(TYPE_OF_NULLPTR) {}
	template <class U>
	requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr(const U* Object)
		: SoftObjectPtr((const UObject*)Object)
	{
	}
	template <class U>
	requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr(const TObjectPtr<U>& Object)
		: SoftObjectPtr((const UObject*)Object.Get())
	{
	}
	template <class U>
	requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr(const TSoftObjectPtr<U>& Other)
		: SoftObjectPtr(Other.AsBase())
	{
	}
	explicit TSoftObjectPtr(const FSoftObjectPath& ObjectPath)
		: SoftObjectPtr(ObjectPath)
	{
	}
	explicit TSoftObjectPtr(const FSoftObjectPtr& Other)
		: SoftObjectPtr(Other)
	{
	}
	template <class U>
	requires std::is_convertible_v<U*, T*>
		TSoftObjectPtr& operator=(U* Object)
	{
		SoftObjectPtr = (const UObject*)Object;
		return *this;
	}
	TSoftObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		SoftObjectPtr.Reset();
		return *this;
	}
	TSoftObjectPtr& operator=(const FSoftObjectPath& ObjectPath)
	{
		SoftObjectPtr = ObjectPath;
		return *this;
	}

	T* Get() const;
	T* LoadSynchronous() const;
	T& operator*() const { return *Get(); }
	T* operator->() const { return Get(); }
	explicit operator bool() const { return IsValid(); }
	bool IsValid() const { return Get() != nullptr; }
	bool IsNull() const { return SoftObjectPtr.IsNull(); }
	bool IsPending() const { return SoftObjectPtr.IsPending(); }
	void Reset() { SoftObjectPtr.Reset(); }
	FString ToString() const { return SoftObjectPtr.ToString(); }
	FString GetLongPackageName() const { return SoftObjectPtr.GetLongPackageName(); }
	FString GetAssetName() const { return SoftObjectPtr.GetAssetName(); }
	const FSoftObjectPath& GetUniqueID() const { return SoftObjectPtr.GetUniqueID(); }
	const FSoftObjectPath& ToSoftObjectPath() const { return SoftObjectPtr.ToSoftObjectPath(); }
	const FSoftObjectPtr& AsBase() const { return SoftObjectPtr; }

	bool operator==(const TSoftObjectPtr& Other) const { return SoftObjectPtr == Other.SoftObjectPtr; }
	bool operator==(TYPE_OF_NULLPTR) const { return !IsValid(); }
	FORCEINLINE friend uint32 GetTypeHash(const TSoftObjectPtr& Ptr) { return GetTypeHash(Ptr.SoftObjectPtr); }
	friend FArchive& operator<<(FArchive& Ar, TSoftObjectPtr& Ptr)
	{
		Ar << Ptr.SoftObjectPtr;
		return Ar;
	}

private:
	FSoftObjectPtr SoftObjectPtr;
};

template <class TClass = UObject>
struct TSoftClassPtr
{
	using ElementType = TClass;

	TSoftClassPtr() = default;
	TSoftClassPtr(TYPE_OF_NULLPTR) {}
	TSoftClassPtr(const UClass* From)
		: SoftObjectPtr((const UObject*)From)
	{
	}
	explicit TSoftClassPtr(const FSoftObjectPath& ObjectPath)
		: SoftObjectPtr(ObjectPath)
	{
	}
	TSoftClassPtr& operator=(const UClass* From)
	{
		SoftObjectPtr = (const UObject*)From;
		return *this;
	}
	TSoftClassPtr& operator=(const FSoftObjectPath& ObjectPath)
	{
		SoftObjectPtr = ObjectPath;
		return *this;
	}

	/** Null when the class is not in memory or not below TClass. */
	UClass* Get() const { return TSubclassOf<TClass>(SoftObjectPtr.Get()); }
	UClass* LoadSynchronous() const { return TSubclassOf<TClass>(SoftObjectPtr.LoadSynchronous()); }
	UClass* operator*() const { return Get(); }
	UClass* operator->() const { return Get(); }
	explicit operator bool() const { return IsValid(); }
	bool IsValid() const { return Get() != nullptr; }
	bool IsNull() const { return SoftObjectPtr.IsNull(); }
	bool IsPending() const { return SoftObjectPtr.IsPending(); }
	void Reset() { SoftObjectPtr.Reset(); }
	FString ToString() const { return SoftObjectPtr.ToString(); }
	FString GetLongPackageName() const { return SoftObjectPtr.GetLongPackageName(); }
	FString GetAssetName() const { return SoftObjectPtr.GetAssetName(); }
	const FSoftObjectPath& GetUniqueID() const { return SoftObjectPtr.GetUniqueID(); }
	const FSoftObjectPath& ToSoftObjectPath() const { return SoftObjectPtr.ToSoftObjectPath(); }

	bool operator==(const TSoftClassPtr& Other) const { return SoftObjectPtr == Other.SoftObjectPtr; }
	FORCEINLINE friend uint32 GetTypeHash(const TSoftClassPtr& Ptr) { return GetTypeHash(Ptr.SoftObjectPtr); }
	friend FArchive& operator<<(FArchive& Ar, TSoftClassPtr& Ptr)
	{
		Ar << Ptr.SoftObjectPtr;
		return Ar;
	}

private:
	FSoftObjectPtr SoftObjectPtr;
};

template <class T>
T* TSoftObjectPtr<T>::Get() const
{
	UObject* const Object = SoftObjectPtr.Get();
	return Object && Object->IsA(T::StaticClass()) ? static_cast<T*>(Object) : nullptr;
}

template <class T>
T* TSoftObjectPtr<T>::LoadSynchronous() const
{
	UObject* const Object = SoftObjectPtr.LoadSynchronous();
	return Object && Object->IsA(T::StaticClass()) ? static_cast<T*>(Object) : nullptr;
}
