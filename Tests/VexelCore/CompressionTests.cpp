#include "CoreMinimal.h"
#include "VexelCompression.h"

#include <gtest/gtest.h>
#include <random>
#include <zlib.h>

namespace
{
constexpr int32 Limit = 10 << 20;

TArray<uint8> MakeBytes(int32 Num, bool bRandom)
{
	std::mt19937 Random(7);
	TArray<uint8> Bytes;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Bytes.Add(bRandom ? uint8(Random()) : uint8('a' + Index / 100 % 5));
	}
	return Bytes;
}
}

TEST(Compression, DataComesBackAsItWas)
{
	for (const int32 Num : {0, 1, 100, 65535, 65536, 65537, 1'000'000})
	{
		for (const bool bRandom : {false, true})
		{
			const TArray<uint8> Bytes = MakeBytes(Num, bRandom);
			TArray<uint8> Packed;
			TArray<uint8> Unpacked;
			ASSERT_TRUE(FVexelCompression::CompressData(Bytes, Packed));
			ASSERT_TRUE(FVexelCompression::DecompressData(Packed, Unpacked, Num)) << Num;
			EXPECT_TRUE(Unpacked == Bytes) << Num;
			EXPECT_TRUE(bRandom || Num < 1000 || Packed.Num() < Num / 10) << Packed.Num();
			EXPECT_TRUE(Num == 0 || !FVexelCompression::DecompressData(Packed, Unpacked, Num - 1)) << "one byte above its limit";
		}
	}
}

TEST(Compression, TheFormatIsZlibsOwn)
{
	const TArray<uint8> Bytes = MakeBytes(5000, false);
	TArray<uint8> Packed;
	ASSERT_TRUE(FVexelCompression::CompressData(Bytes, Packed));
	uLongf NumBytes = 5000;
	TArray<uint8> Unpacked;
	Unpacked.SetNumZeroed(5000);
	EXPECT_EQ(uncompress(Unpacked.GetData(), &NumBytes, Packed.GetData(), uLong(Packed.Num())), Z_OK);
	EXPECT_TRUE(Unpacked == Bytes);
}

TEST(Compression, DamagedDataIsRefusedWhole)
{
	TArray<uint8> Packed;
	ASSERT_TRUE(FVexelCompression::CompressData(MakeBytes(3000, true), Packed));
	TArray<uint8> Out;
	for (int32 Num = 0; Num < Packed.Num(); Num += 97)
	{
		EXPECT_FALSE(FVexelCompression::DecompressData(MakeArrayView(Packed).Left(Num), Out, Limit)) << "torn at " << Num;
		EXPECT_TRUE(Out.IsEmpty());
		TArray<uint8> Damaged = Packed;
		Damaged[Num] ^= 0x55;
		EXPECT_FALSE(FVexelCompression::DecompressData(Damaged, Out, Limit)) << "damaged at " << Num;
	}
	Packed.Add(0);
	EXPECT_FALSE(FVexelCompression::DecompressData(Packed, Out, Limit)) << "with something behind it";
}

TEST(Compression, ASmallFileThatGrowsTooLargeIsRefused)
{
	TArray<uint8> Zeros;
	Zeros.SetNumZeroed(50 << 20);
	TArray<uint8> Packed;
	ASSERT_TRUE(FVexelCompression::CompressData(Zeros, Packed));
	ASSERT_LT(Packed.Num(), 100'000);
	TArray<uint8> Out;
	EXPECT_FALSE(FVexelCompression::DecompressData(Packed, Out, Limit));
	EXPECT_TRUE(Out.IsEmpty());
}
