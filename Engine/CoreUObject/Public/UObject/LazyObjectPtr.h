#pragma once

#include "CoreMinimal.h"
#include "Misc/Guid.h"
#include "UObject/WeakObjectPtr.h"

/** An object by a GUID of its own, independent of its path. */
struct COREUOBJECT_API FUniqueObjectGuid
{
	FUniqueObjectGuid() = default;
	FUniqueObjectGuid(const FGuid& InGuid)
		: Guid(InGuid)
	{
	}
	FUniqueObjectGuid(const UObject* InObject);

	void Reset() { Guid.Invalidate(); }
	bool IsValid() const { return Guid.IsValid(); }
	bool IsDefault() const { return !Guid.IsValid(); }
	FString ToString() const { return Guid.ToString(EGuidFormats::UniqueObjectGuid); }
	void FromString(const FString& From);
	/** The object that was given this GUID in this run; null when there is none. */
	UObject* ResolveObject() const;
	const FGuid& GetGuid() const { return Guid; }
	static FUniqueObjectGuid GetOrCreateIDForObject(const UObject* Object);

	bool operator==(const FUniqueObjectGuid& Other) const { return Guid == Other.Guid; }
	friend uint32 GetTypeHash(const FUniqueObjectGuid& ObjectGuid) { return GetTypeHash(ObjectGuid.Guid); }
	friend FArchive& operator<<(FArchive& Ar, FUniqueObjectGuid& ObjectGuid)
	{
		Ar << ObjectGuid.Guid;
		return Ar;
	}

private:
	FGuid Guid;
};

/** A reference by GUID, resolved when asked. */
struct COREUOBJECT_API FLazyObjectPtr
{
	FLazyObjectPtr() = default;
	explicit FLazyObjectPtr(const UObject* Object) { *this = Object; }
	explicit FLazyObjectPtr(const FUniqueObjectGuid& InID)
		: ObjectID(InID)
	{
	}
	FLazyObjectPtr& operator=(const UObject* Object);
	FLazyObjectPtr& operator=(const FUniqueObjectGuid& InID);

	UObject* Get() const;
	bool IsNull() const { return !ObjectID.IsValid(); }
	bool IsValid() const { return Get() != nullptr; }
	bool IsPending() const { return Get() == nullptr && ObjectID.IsValid(); }
	void Reset()
	{
		WeakPtr.Reset();
		ObjectID.Reset();
	}
	const FUniqueObjectGuid& GetUniqueID() const { return ObjectID; }
	FUniqueObjectGuid& GetUniqueID() { return ObjectID; }
	bool operator==(const FLazyObjectPtr& Other) const { return ObjectID == Other.ObjectID; }
	friend uint32 GetTypeHash(const FLazyObjectPtr& Ptr) { return GetTypeHash(Ptr.ObjectID); }

private:
	mutable FWeakObjectPtr WeakPtr;
	FUniqueObjectGuid ObjectID;
};

template <class T = UObject>
struct TLazyObjectPtr : private FLazyObjectPtr
{
	TLazyObjectPtr() = default;
	TLazyObjectPtr(TYPE_OF_NULLPTR) {}
	TLazyObjectPtr(T* Object)
		: FLazyObjectPtr((const UObject*)Object)
	{
	}
	T* Get() const { return (T*)FLazyObjectPtr::Get(); }
	T* operator->() const { return Get(); }
	using FLazyObjectPtr::GetUniqueID;
	using FLazyObjectPtr::IsNull;
	using FLazyObjectPtr::IsPending;
	using FLazyObjectPtr::IsValid;
	using FLazyObjectPtr::Reset;
	explicit operator bool() const { return IsValid(); }
	bool operator==(const TLazyObjectPtr& Other) const { return AsBase() == Other.AsBase(); }
	const FLazyObjectPtr& AsBase() const { return *this; }
	FLazyObjectPtr& AsBase() { return *this; }
	friend uint32 GetTypeHash(const TLazyObjectPtr& Ptr) { return GetTypeHash(Ptr.AsBase()); }
	friend FArchive& operator<<(FArchive& Ar, TLazyObjectPtr& Ptr)
	{
		Ar << Ptr.AsBase();
		return Ar;
	}
};
