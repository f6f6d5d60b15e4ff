#pragma once

#include "IImageWrapper.h"

/** PNG by libpng. */
class FPngImageWrapper final : public IImageWrapper
{
public:
	virtual bool SetCompressed(const void* InCompressedData, int64 InCompressedSize) override;
	virtual bool SetRaw(const void* InRawData, int64 InRawSize, const int32 InWidth, const int32 InHeight, const ERGBFormat InFormat,
		const int32 InBitDepth, const int32 InBytesPerRow) override;
	virtual TArray64<uint8> GetCompressed(int32 Quality) override;
	virtual bool GetRaw(const ERGBFormat InFormat, int32 InBitDepth, TArray64<uint8>& OutRawData) override;

	virtual int64 GetWidth() const override { return Width; }
	virtual int64 GetHeight() const override { return Height; }
	virtual int32 GetBitDepth() const override { return Format == ERGBFormat::Invalid ? 0 : 8; }
	virtual ERGBFormat GetFormat() const override { return Format; }

private:
	/** Whichever was set. */
	TArray64<uint8> Compressed;
	TArray64<uint8> Raw;
	int32 Width = 0;
	int32 Height = 0;
	ERGBFormat Format = ERGBFormat::Invalid;
};
