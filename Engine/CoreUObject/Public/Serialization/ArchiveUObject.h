#pragma once

#include "Serialization/Archive.h"
#include "UObject/LazyObjectPtr.h"
#include "UObject/ObjectPtr.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

/** An archive that knows how the kinds of object reference are made of UObject*. Derive and say how a UObject* is stored. */
class COREUOBJECT_API FArchiveUObject : public FArchive
{
public:
	using FArchive::operator<<;
	FArchive& operator<<(FLazyObjectPtr& Value) override;
	FArchive& operator<<(FObjectPtr& Value) override;
	FArchive& operator<<(FSoftObjectPath& Value) override;
	FArchive& operator<<(FSoftObjectPtr& Value) override;
	FArchive& operator<<(FWeakObjectPtr& Value) override;
};
