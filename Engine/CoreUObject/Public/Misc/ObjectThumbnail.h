#pragma once

#include "CoreMinimal.h"

/** A small picture of an asset, as its package holds it: compressed. */
class FObjectThumbnail
{
public:
	int32 GetImageWidth() const { return ImageWidth; }
	int32 GetImageHeight() const { return ImageHeight; }
	void SetImageSize(int32 InWidth, int32 InHeight)
	{
		ImageWidth = InWidth;
		ImageHeight = InHeight;
	}
	TArray<uint8>& AccessCompressedImageData() { return CompressedImageData; }
	const TArray<uint8>& AccessCompressedImageData() const { return CompressedImageData; }
	int32 GetCompressedDataSize() const { return CompressedImageData.Num(); }
	bool IsEmpty() const { return ImageWidth == 0 || ImageHeight == 0; }

private:
	int32 ImageWidth = 0;
	int32 ImageHeight = 0;
	TArray<uint8> CompressedImageData;
};

/** By the full names of the objects: "Blueprint /Game/Dir/Asset.Asset". */
using FThumbnailMap = TMap<FName, FObjectThumbnail>;
