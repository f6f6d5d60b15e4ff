#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

namespace UE::CoreUObject::Private
{
/** Counted; an object whose count is not zero is not collected. Game thread, except that releasing may happen anywhere. */
COREUOBJECT_API void AddStrongReference(const UObject* Object);
COREUOBJECT_API void ReleaseStrongReference(const UObject* Object);
}

/** Keeps its object from collection, outside reflected members. */
template <typename ObjectType>
class TStrongObjectPtr
{
public:
	using ElementType = ObjectType;

	TStrongObjectPtr() = default;
	TStrongObjectPtr(TYPE_OF_NULLPTR) {}
	explicit TStrongObjectPtr(ObjectType* InObject) { Reset(InObject); }
	explicit TStrongObjectPtr(const TObjectPtr<ObjectType>& InObject) { Reset(InObject.Get()); }
	TStrongObjectPtr(const TStrongObjectPtr& Other) { Reset(Other.Get()); }
	TStrongObjectPtr(TStrongObjectPtr&& Other)
		: Object(Other.Object)
	{
		Other.Object = nullptr;
	}
	template <typename OtherType>
	requires std::is_convertible_v<OtherType*, ObjectType*>
	TStrongObjectPtr(const TStrongObjectPtr<OtherType>& Other)
	{
		Reset(Other.Get());
	}
	~TStrongObjectPtr() { Reset(); }

	TStrongObjectPtr& operator=(const TStrongObjectPtr& Other)
	{
		Reset(Other.Get());
		return *this;
	}
	TStrongObjectPtr& operator=(TStrongObjectPtr&& Other)
	{
		if (this != &Other)
		{
			Reset();
			Object = Other.Object;
			Other.Object = nullptr;
		}
		return *this;
	}

	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object; }
	ObjectType* Get() const { return Object; }
	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return Object != nullptr; }
	void Reset() { Reset(nullptr); }
	void Reset(ObjectType* InNewObject)
	{
		if (InNewObject == Object)
		{
			return;
		}
		if (InNewObject)
		{
			UE::CoreUObject::Private::AddStrongReference((const UObject*)InNewObject);
		}
		if (Object)
		{
			UE::CoreUObject::Private::ReleaseStrongReference((const UObject*)Object);
		}
		Object = InNewObject;
	}
	bool operator==(const TStrongObjectPtr& Other) const { return Object == Other.Object; }
	bool operator==(TYPE_OF_NULLPTR) const { return Object == nullptr; }
	friend uint32 GetTypeHash(const TStrongObjectPtr& Ptr) { return ::PointerHash((const void*)Ptr.Object); }

private:
	ObjectType* Object = nullptr;
};
