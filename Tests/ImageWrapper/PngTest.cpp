#include "IImageWrapperModule.h"
#include "Math/Color.h"
#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>
#include <random>

namespace
{
IImageWrapperModule& GetModule()
{
	return FModuleManager::LoadModuleChecked<IImageWrapperModule>(TEXT("ImageWrapper"));
}

TArray64<uint8> Compress(const TArray<FColor>& Pixels, int32 Width, int32 Height)
{
	const TSharedPtr<IImageWrapper> Wrapper = GetModule().CreateImageWrapper(EImageFormat::PNG);
	EXPECT_TRUE(Wrapper->SetRaw(Pixels.GetData(), Pixels.Num() * sizeof(FColor), Width, Height, ERGBFormat::BGRA, 8));
	return Wrapper->GetCompressed();
}

TArray<FColor> MakePixels(int32 Num)
{
	std::mt19937 Random(7);
	TArray<FColor> Pixels;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Pixels.Add(FColor(uint32(Random())));
	}
	return Pixels;
}
}

TEST(PngImageWrapper, APictureComesBackAsItWas)
{
	const TArray<FColor> Pixels = MakePixels(31 * 17);
	const TArray64<uint8> File = Compress(Pixels, 31, 17);
	EXPECT_EQ(GetModule().DetectImageFormat(File.GetData(), File.Num()), EImageFormat::PNG);
	const TSharedPtr<IImageWrapper> Reader = GetModule().CreateImageWrapper(EImageFormat::PNG);
	ASSERT_TRUE(Reader->SetCompressed(File.GetData(), File.Num()));
	EXPECT_EQ(Reader->GetWidth(), 31);
	EXPECT_EQ(Reader->GetHeight(), 17);
	TArray64<uint8> Raw;
	ASSERT_TRUE(Reader->GetRaw(ERGBFormat::BGRA, 8, Raw));
	ASSERT_EQ(Raw.Num(), int64(Pixels.Num() * sizeof(FColor)));
	EXPECT_EQ(FMemory::Memcmp(Raw.GetData(), Pixels.GetData(), SIZE_T(Raw.Num())), 0);
	ASSERT_TRUE(Reader->GetRaw(ERGBFormat::RGBA, 8, Raw));
	EXPECT_EQ(Raw[0], Pixels[0].R);
	EXPECT_EQ(Raw[2], Pixels[0].B);
	EXPECT_EQ(Raw[3], Pixels[0].A);
}

TEST(PngImageWrapper, RowsMayHaveRoomBehindThem)
{
	TArray<uint8> Bytes;
	Bytes.SetNumZeroed(3 * 8);
	for (int32 Row = 0; Row < 3; ++Row)
	{
		Bytes[Row * 8] = uint8(10 * (Row + 1));
		Bytes[Row * 8 + 1] = 255;
	}
	const TSharedPtr<IImageWrapper> Wrapper = GetModule().CreateImageWrapper(EImageFormat::PNG);
	ASSERT_TRUE(Wrapper->SetRaw(Bytes.GetData(), Bytes.Num(), 2, 3, ERGBFormat::Gray, 8, 8));
	TArray64<uint8> Raw;
	ASSERT_TRUE(Wrapper->GetRaw(ERGBFormat::Gray, 8, Raw));
	EXPECT_EQ(Raw, TArray64<uint8>({10, 255, 20, 255, 30, 255}));
}

TEST(PngImageWrapper, RefusesWhatIsNoPicture)
{
	const TSharedPtr<IImageWrapper> Wrapper = GetModule().CreateImageWrapper(EImageFormat::PNG);
	const TArray<FColor> Pixels = MakePixels(4);
	const int64 Size = Pixels.Num() * sizeof(FColor);
	EXPECT_FALSE(Wrapper->SetRaw(Pixels.GetData(), Size, 3, 2, ERGBFormat::BGRA, 8)) << "too few bytes";
	EXPECT_FALSE(Wrapper->SetRaw(Pixels.GetData(), Size, 0, 2, ERGBFormat::BGRA, 8));
	EXPECT_FALSE(Wrapper->SetRaw(Pixels.GetData(), Size, 2, -2, ERGBFormat::BGRA, 8));
	EXPECT_FALSE(Wrapper->SetRaw(Pixels.GetData(), Size, 2, 2, ERGBFormat::BGRA, 16));
	EXPECT_FALSE(Wrapper->SetRaw(Pixels.GetData(), Size, 1, 1 << 20, ERGBFormat::BGRA, 8)) << "larger than a picture may be";
	EXPECT_FALSE(Wrapper->SetRaw(Pixels.GetData(), Size, 2, 2, ERGBFormat::BGRA, 8, 4)) << "rows that overlap";
	EXPECT_TRUE(Wrapper->GetCompressed().IsEmpty());
	EXPECT_FALSE(Wrapper->SetCompressed("no picture", 10));
	EXPECT_FALSE(Wrapper->SetCompressed(nullptr, 0));
	EXPECT_EQ(GetModule().CreateImageWrapper(EImageFormat::JPEG), nullptr);
	EXPECT_EQ(GetModule().DetectImageFormat("\xFF\xD8\xFF\xE0", 4), EImageFormat::JPEG);
	EXPECT_EQ(GetModule().DetectImageFormat("\xFF", 1), EImageFormat::Invalid);
}

TEST(PngImageWrapper, DamagedFilesEndInAnAnswer)
{
	const TArray64<uint8> File = Compress(MakePixels(40 * 40), 40, 40);
	std::mt19937 Random(20260203);
	int32 NumRefused = 0;
	for (int32 Round = 0; Round < 400; ++Round)
	{
		TArray64<uint8> Damaged = File;
		for (int32 Change = 0; Change < 4; ++Change)
		{
			Damaged[int64(Random() % uint64(Damaged.Num()))] = uint8(Random());
		}
		Damaged.SetNum(1 + int64(Random() % uint64(Damaged.Num())));
		const TSharedPtr<IImageWrapper> Wrapper = GetModule().CreateImageWrapper(EImageFormat::PNG);
		TArray64<uint8> Raw;
		const bool bRead = Wrapper->SetCompressed(Damaged.GetData(), Damaged.Num()) && Wrapper->GetRaw(ERGBFormat::RGBA, 8, Raw);
		NumRefused += bRead ? 0 : 1;
		EXPECT_TRUE(!bRead || Raw.Num() == Wrapper->GetWidth() * Wrapper->GetHeight() * 4);
	}
	EXPECT_GT(NumRefused, 300);
}
