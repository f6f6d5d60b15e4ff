#pragma once

#include "CoreMinimal.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/IntRect.h"
#include "RHITypes.h"

/** Something that pixels can be read from. */
class FRenderTarget
{
public:
	virtual ~FRenderTarget() = default;

	virtual FIntPoint GetSizeXY() const = 0;
	/** Row by row from the top; an empty rectangle means all. Alpha may be anything. False when there is nothing to read. Game thread. */
	virtual bool ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags InFlags = FReadSurfaceDataFlags(),
		FIntRect InRect = FIntRect(0, 0, 0, 0)) = 0;
};

/** What a view of the world is drawn into. */
class FViewport : public FRenderTarget
{
public:
	/** Draws the world as it is now. */
	virtual void Draw(bool bShouldPresent = true) = 0;
};
