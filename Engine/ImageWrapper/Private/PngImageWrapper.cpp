#include "PngImageWrapper.h"

#include <png.h>

namespace
{
constexpr int64 MaxSide = 16384;

struct FPngFormat
{
	ERGBFormat Format;
	png_uint_32 PngFormat;
	int64 BytesPerPixel;
};

constexpr FPngFormat PngFormats[] = {
	{ERGBFormat::RGBA, PNG_FORMAT_RGBA, 4},
	{ERGBFormat::BGRA, PNG_FORMAT_BGRA, 4},
	{ERGBFormat::Gray, PNG_FORMAT_GRAY, 1},
};

const FPngFormat* FindFormat(ERGBFormat Format)
{
	for (const FPngFormat& Each : PngFormats)
	{
		if (Each.Format == Format)
		{
			return &Each;
		}
	}
	return nullptr;
}

/** libpng's own state of one image, freed however reading or writing ends. */
class FPngImage
{
public:
	FPngImage() { Image.version = PNG_IMAGE_VERSION; }
	~FPngImage() { png_image_free(&Image); }
	UE_NONCOPYABLE(FPngImage)

	png_image Image = {};
};

bool BeginReading(const TArray64<uint8>& Bytes, FPngImage& Png)
{
	return png_image_begin_read_from_memory(&Png.Image, Bytes.GetData(), size_t(Bytes.Num())) != 0 && Png.Image.width <= MaxSide &&
		Png.Image.height <= MaxSide;
}
}

bool FPngImageWrapper::SetCompressed(const void* InCompressedData, int64 InCompressedSize)
{
	*this = FPngImageWrapper();
	Compressed.Append(static_cast<const uint8*>(InCompressedData), InCompressedSize);
	FPngImage Png;
	if (!BeginReading(Compressed, Png))
	{
		*this = FPngImageWrapper();
		return false;
	}
	Width = int32(Png.Image.width);
	Height = int32(Png.Image.height);
	Format = (Png.Image.format & PNG_FORMAT_FLAG_COLOR) != 0 ? ERGBFormat::RGBA : ERGBFormat::Gray;
	return true;
}

bool FPngImageWrapper::SetRaw(const void* InRawData, int64 InRawSize, const int32 InWidth, const int32 InHeight, const ERGBFormat InFormat,
	const int32 InBitDepth, const int32 InBytesPerRow)
{
	*this = FPngImageWrapper();
	const FPngFormat* const PngFormat = FindFormat(InFormat);
	if (!PngFormat || InBitDepth != 8 || InWidth <= 0 || InHeight <= 0 || InWidth > MaxSide || InHeight > MaxSide)
	{
		return false;
	}
	const int64 RowBytes = InWidth * PngFormat->BytesPerPixel;
	const int64 Stride = InBytesPerRow > 0 ? InBytesPerRow : RowBytes;
	if (Stride < RowBytes || InRawSize < Stride * (InHeight - 1) + RowBytes)
	{
		return false;
	}
	Raw.Reserve(RowBytes * InHeight);
	for (int64 Row = 0; Row < InHeight; ++Row)
	{
		Raw.Append(static_cast<const uint8*>(InRawData) + Row * Stride, RowBytes);
	}
	Width = InWidth;
	Height = InHeight;
	Format = InFormat;
	return true;
}

TArray64<uint8> FPngImageWrapper::GetCompressed(int32 Quality)
{
	if (!Compressed.IsEmpty() || Raw.IsEmpty())
	{
		return Compressed;
	}
	FPngImage Png;
	Png.Image.width = png_uint_32(Width);
	Png.Image.height = png_uint_32(Height);
	Png.Image.format = FindFormat(Format)->PngFormat;
	png_alloc_size_t Size = PNG_IMAGE_PNG_SIZE_MAX(Png.Image);
	TArray64<uint8> Bytes;
	Bytes.SetNumUninitialized(int64(Size));
	if (png_image_write_to_memory(&Png.Image, Bytes.GetData(), &Size, 0, Raw.GetData(), 0, nullptr) == 0)
	{
		return {};
	}
	Bytes.SetNum(int64(Size));
	Compressed = MoveTemp(Bytes);
	return Compressed;
}

bool FPngImageWrapper::GetRaw(const ERGBFormat InFormat, int32 InBitDepth, TArray64<uint8>& OutRawData)
{
	const FPngFormat* const PngFormat = FindFormat(InFormat);
	if (!PngFormat || InBitDepth != 8 || Format == ERGBFormat::Invalid)
	{
		return false;
	}
	if (InFormat == Format && !Raw.IsEmpty())
	{
		OutRawData = Raw;
		return true;
	}
	const TArray64<uint8> Bytes = GetCompressed(0);
	FPngImage Png;
	if (!BeginReading(Bytes, Png))
	{
		return false;
	}
	Png.Image.format = PngFormat->PngFormat;
	OutRawData.SetNumUninitialized(int64(PNG_IMAGE_SIZE(Png.Image)));
	// Without an alpha channel to keep it in, transparency is laid over black.
	const png_color Black = {};
	return png_image_finish_read(&Png.Image, &Black, OutRawData.GetData(), 0, nullptr) != 0;
}
