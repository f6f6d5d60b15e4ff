#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <atomic>

/** Base of objects that count their own references; an object deletes itself with the last Release(). Safe on any thread. */
class FThreadSafeRefCountedObject
{
public:
	FThreadSafeRefCountedObject() = default;
	FThreadSafeRefCountedObject(const FThreadSafeRefCountedObject&) = delete;
	FThreadSafeRefCountedObject& operator=(const FThreadSafeRefCountedObject&) = delete;
	virtual ~FThreadSafeRefCountedObject() = default;

	uint32 AddRef() const { return NumRefs.fetch_add(1, std::memory_order_relaxed) + 1; }
	uint32 Release() const
	{
		const uint32 Remaining = NumRefs.fetch_sub(1, std::memory_order_acq_rel) - 1;
		if (Remaining == 0)
		{
			delete this;
		}
		return Remaining;
	}
	uint32 GetRefCount() const { return NumRefs.load(std::memory_order_relaxed); }

private:
	mutable std::atomic<uint32> NumRefs = 0;
};

using FRefCountBase = FThreadSafeRefCountedObject;
using FRefCountedObject = FThreadSafeRefCountedObject;

/** Holds one reference of an object that has AddRef() and Release(). */
template <class ReferencedType>
class TRefCountPtr
{
public:
	TRefCountPtr() = default;
	TRefCountPtr(ReferencedType* InReference, bool bAddRef = true)
		: Reference(InReference)
	{
		if (Reference != nullptr && bAddRef)
		{
			Reference->AddRef();
		}
	}
	TRefCountPtr(const TRefCountPtr& Other)
		: TRefCountPtr(Other.Reference)
	{
	}
	TRefCountPtr(TRefCountPtr&& Other)
		: Reference(Other.Reference)
	{
		Other.Reference = nullptr;
	}
	template <class OtherType>
	TRefCountPtr(const TRefCountPtr<OtherType>& Other)
		: TRefCountPtr(static_cast<ReferencedType*>(Other.GetReference()))
	{
	}
	TRefCountPtr& operator=(TRefCountPtr Other)
	{
		Swap(Reference, Other.Reference);
		return *this;
	}
	~TRefCountPtr()
	{
		if (Reference != nullptr)
		{
			Reference->Release();
		}
	}

	ReferencedType* operator->() const { return Reference; }
	operator ReferencedType*() const { return Reference; }
	ReferencedType* GetReference() const { return Reference; }
	bool IsValid() const { return Reference != nullptr; }
	void SafeRelease() { *this = nullptr; }
	uint32 GetRefCount() const { return Reference != nullptr ? Reference->GetRefCount() : 0; }

private:
	ReferencedType* Reference = nullptr;
};

template <class ReferencedType>
uint32 GetTypeHash(const TRefCountPtr<ReferencedType>& Pointer)
{
	return PointerHash(Pointer.GetReference());
}
