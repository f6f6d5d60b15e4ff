#pragma once

#include "CoreMinimal.h"
#include "Math/Color.h"

/** What is done to pictures in memory. Any thread. */
class ENGINE_API FImageUtils
{
public:
	/** Each new pixel is the mean of the old ones that it covers. bLinearSpace takes it of the linear colours. */
	static void ImageResize(int32 SrcWidth, int32 SrcHeight, const TArray<FColor>& SrcData, int32 DstWidth, int32 DstHeight,
		TArray<FColor>& DstData, bool bLinearSpace, bool bForceOpaqueOutput = true);
};
