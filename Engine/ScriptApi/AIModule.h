// Package: /Script/AIModule
#pragma once

#include "CoreMinimal.h"
#include "AIModule.generated.h"

/** Small navigation grids that lie over the navigation mesh. */
UCLASS()
class AIMODULE_API UNavLocalGridManager : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (WorldContext = "WorldContextObject"))
	static int32 AddLocalNavigationGridForBox(UObject* WorldContextObject, const FVector& Location, FVector Extent = FVector(1, 1, 1),
		FRotator Rotation = FRotator::ZeroRotator, const int32 Radius2D = 5, const float Height = 100.f, bool bRebuildGrids = true);
};
