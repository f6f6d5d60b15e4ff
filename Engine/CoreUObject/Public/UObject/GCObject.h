#pragma once

#include "UObject/UObjectGlobals.h"

/** A holder of objects outside reflection: derive, and give the collector what you hold. */
class COREUOBJECT_API FGCObject
{
public:
	FGCObject();
	FGCObject(const FGCObject& Other);
	FGCObject& operator=(const FGCObject&) { return *this; }
	virtual ~FGCObject();

	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;
	/** For reports about what keeps an object. */
	virtual FString GetReferencerName() const = 0;
	virtual bool GetReferencerPropertyName(UObject* Object, FString& OutPropertyName) const { return false; }
};
