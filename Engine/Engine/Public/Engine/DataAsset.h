#pragma once

#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "DataAsset.generated.h"

/** An asset that is one object's values. */
UCLASS(abstract, MinimalAPI, Blueprintable)
class UDataAsset : public UObject
{
	GENERATED_BODY()
};

/** A data asset that the asset manager knows by type and name. */
UCLASS(abstract, MinimalAPI, Blueprintable)
class UPrimaryDataAsset : public UDataAsset
{
	GENERATED_BODY()
};
