#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtr.h"

/** The identity of an object, as a key of maps: never the same for two objects, also after the first is gone. */
struct FObjectKey
{
	FObjectKey() = default;
	FObjectKey(const UObject* Object)
		: Weak(Object)
	{
	}

	/** Null when the object is gone. */
	UObject* ResolveObjectPtr() const { return Weak.Get(); }
	UObject* ResolveObjectPtrEvenIfGarbage() const { return Weak.Get(true); }
	bool operator==(const FObjectKey& Other) const { return Weak.HasSameIndexAndSerialNumber(Other.Weak); }
	bool operator!=(const FObjectKey& Other) const { return !(*this == Other); }
	friend uint32 GetTypeHash(const FObjectKey& Key) { return GetTypeHash(Key.Weak); }

private:
	FWeakObjectPtr Weak;
};
