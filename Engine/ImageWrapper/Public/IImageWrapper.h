#pragma once

#include "CoreMinimal.h"

/** Kinds of image file. This engine reads and writes PNG, and knows the others by sight. */
enum class EImageFormat : int8
{
	Invalid = -1,
	PNG = 0,
	JPEG,
	GrayscaleJPEG,
	BMP,
	ICO,
	EXR,
	ICNS,
	TGA,
	HDR,
	TIFF
};

/** How the pixels lie in memory. Floating point is not read or written here. */
enum class ERGBFormat : int8
{
	Invalid = -1,
	RGBA = 0,
	BGRA = 1,
	Gray = 2
};

/** An image on its way from pixels to a file's bytes or back. One image a wrapper; any one thread. */
class IImageWrapper
{
public:
	virtual ~IImageWrapper() = default;

	/** Takes a file's bytes; false when they are no image of the wrapper's format, or a larger one than 16384 in a direction. */
	virtual bool SetCompressed(const void* InCompressedData, int64 InCompressedSize) = 0;
	/** Takes pixels, row by row from the top; InBytesPerRow of 0 means that rows lie close. Depths other than 8 are refused. */
	virtual bool SetRaw(const void* InRawData, int64 InRawSize, const int32 InWidth, const int32 InHeight, const ERGBFormat InFormat,
		const int32 InBitDepth, const int32 InBytesPerRow = 0) = 0;
	/** The file's bytes; none when there is no image. Quality means nothing to PNG. */
	virtual TArray64<uint8> GetCompressed(int32 Quality = 0) = 0;
	/** The pixels in another order than they were given. False for a damaged file and for depths other than 8. */
	virtual bool GetRaw(const ERGBFormat InFormat, int32 InBitDepth, TArray64<uint8>& OutRawData) = 0;

	virtual int64 GetWidth() const = 0;
	virtual int64 GetHeight() const = 0;
	virtual int32 GetBitDepth() const = 0;
	virtual ERGBFormat GetFormat() const = 0;
};
