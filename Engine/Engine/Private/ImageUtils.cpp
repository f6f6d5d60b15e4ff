#include "ImageUtils.h"

namespace
{
/** The mean of a rectangle of pixels. */
FColor GetMean(const TArray<FColor>& Pixels, int32 Width, const FIntPoint& Min, const FIntPoint& Max, bool bLinearSpace)
{
	FLinearColor Sum(0.0f, 0.0f, 0.0f, 0.0f);
	for (int32 Y = Min.Y; Y < Max.Y; ++Y)
	{
		for (int32 X = Min.X; X < Max.X; ++X)
		{
			const FColor& Pixel = Pixels[Y * Width + X];
			Sum += bLinearSpace ? FLinearColor(Pixel) : Pixel.ReinterpretAsLinear();
		}
	}
	const FLinearColor Mean = Sum / float((Max.X - Min.X) * (Max.Y - Min.Y));
	return bLinearSpace ? Mean.ToFColor(true) : Mean.QuantizeRound();
}
}

void FImageUtils::ImageResize(int32 SrcWidth, int32 SrcHeight, const TArray<FColor>& SrcData, int32 DstWidth, int32 DstHeight,
	TArray<FColor>& DstData, bool bLinearSpace, bool bForceOpaqueOutput)
{
	DstData.Reset();
	DstData.Reserve(DstWidth * DstHeight);
	for (int32 Y = 0; Y < DstHeight; ++Y)
	{
		const int32 MinY = int32(int64(Y) * SrcHeight / DstHeight);
		const int32 MaxY = FMath::Max(int32(int64(Y + 1) * SrcHeight / DstHeight), MinY + 1);
		for (int32 X = 0; X < DstWidth; ++X)
		{
			const int32 MinX = int32(int64(X) * SrcWidth / DstWidth);
			const int32 MaxX = FMath::Max(int32(int64(X + 1) * SrcWidth / DstWidth), MinX + 1);
			FColor& Pixel = DstData.Add_GetRef(GetMean(SrcData, SrcWidth, FIntPoint(MinX, MinY), FIntPoint(MaxX, MaxY), bLinearSpace));
			Pixel.A = bForceOpaqueOutput ? 255 : Pixel.A;
		}
	}
}
