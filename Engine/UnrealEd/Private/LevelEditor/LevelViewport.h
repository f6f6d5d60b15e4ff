#pragma once

#include "CoreMinimal.h"
#include "UnrealClient.h"

/** The level editor's view of the editor's world. This host draws it as a map. */
class FLevelViewport final : public FViewport
{
public:
	static FLevelViewport& Get();

	virtual FIntPoint GetSizeXY() const override { return Size; }
	virtual bool ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags InFlags, FIntRect InRect) override;
	virtual void Draw(bool bShouldPresent) override;

private:
	FIntPoint Size = FIntPoint(0, 0);
	/** Of the last drawing. */
	TArray<FColor> Pixels;
};
