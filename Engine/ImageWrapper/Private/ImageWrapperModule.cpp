#include "IImageWrapperModule.h"

#include "Modules/ModuleManager.h"
#include "PngImageWrapper.h"

namespace
{
/** The bytes that files of a format begin with. */
struct FSignature
{
	EImageFormat Format;
	TConstArrayView<uint8> Bytes;
};

constexpr uint8 PngBytes[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr uint8 JpegBytes[] = {0xFF, 0xD8, 0xFF};
constexpr uint8 BmpBytes[] = {'B', 'M'};
constexpr uint8 IcoBytes[] = {0, 0, 1, 0};
constexpr uint8 ExrBytes[] = {0x76, 0x2F, 0x31, 0x01};
constexpr uint8 IcnsBytes[] = {'i', 'c', 'n', 's'};
constexpr uint8 HdrBytes[] = {'#', '?', 'R', 'A', 'D', 'I', 'A', 'N', 'C', 'E'};
constexpr uint8 LittleTiffBytes[] = {'I', 'I', 42, 0};
constexpr uint8 BigTiffBytes[] = {'M', 'M', 0, 42};

const FSignature Signatures[] = {
	{EImageFormat::PNG, PngBytes},
	{EImageFormat::JPEG, JpegBytes},
	{EImageFormat::BMP, BmpBytes},
	{EImageFormat::ICO, IcoBytes},
	{EImageFormat::EXR, ExrBytes},
	{EImageFormat::ICNS, IcnsBytes},
	{EImageFormat::HDR, HdrBytes},
	{EImageFormat::TIFF, LittleTiffBytes},
	{EImageFormat::TIFF, BigTiffBytes},
};

class FImageWrapperModule final : public IImageWrapperModule
{
public:
	virtual TSharedPtr<IImageWrapper> CreateImageWrapper(const EImageFormat InFormat, const TCHAR* InOptionalDebugImageName) override
	{
		return InFormat == EImageFormat::PNG ? MakeShared<FPngImageWrapper>() : TSharedPtr<IImageWrapper>();
	}

	virtual EImageFormat DetectImageFormat(const void* InCompressedData, int64 InCompressedSize) override
	{
		for (const FSignature& Signature : Signatures)
		{
			if (InCompressedSize >= Signature.Bytes.Num() &&
				FMemory::Memcmp(InCompressedData, Signature.Bytes.GetData(), SIZE_T(Signature.Bytes.Num())) == 0)
			{
				return Signature.Format;
			}
		}
		return EImageFormat::Invalid;
	}
};
}

IMPLEMENT_MODULE(FImageWrapperModule, ImageWrapper)
