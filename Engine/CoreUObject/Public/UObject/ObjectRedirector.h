#pragma once

#include "UObject/Class.h"

/** Stands where an asset was before it was moved. Lookups by path go on to its destination. */
class COREUOBJECT_API UObjectRedirector : public UObject
{
	DECLARE_CLASS_INTRINSIC(UObjectRedirector, UObject, CLASS_None, "/Script/CoreUObject")

public:
	TObjectPtr<UObject> DestinationObject = nullptr;

	UObjectRedirector() = default;
	explicit UObjectRedirector(const FObjectInitializer& ObjectInitializer);
	void Serialize(FArchive& Ar) override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	bool IsAsset() const override { return true; }
};
