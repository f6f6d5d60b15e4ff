#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "Math/Vector.h"
#include "Misc/EngineVersion.h"
#include "Serialization/BufferArchive.h"
#include "Serialization/CustomVersion.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"
#include "Serialization/NameAsStringProxyArchive.h"

#include <gtest/gtest.h>

namespace
{
template <typename T>
TArray<uint8> Write(T Value)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << Value;
	return Bytes;
}

template <typename T>
bool Read(const TArray<uint8>& Bytes, T& OutValue)
{
	FMemoryReader Reader(Bytes);
	Reader << OutValue;
	return !Reader.IsError();
}
}

TEST(Archive, ContainersComeBackAsTheyWere)
{
	TMap<FString, TArray<FName>> Map;
	Map.Add(TEXT("One"), {TEXT("A"), TEXT("B_7")});
	Map.Add(TEXT("Ünï"), {});
	TMap<FString, TArray<FName>> Loaded;
	ASSERT_TRUE(Read(Write(Map), Loaded));
	EXPECT_TRUE(Loaded.OrderIndependentCompareEqual(Map));
}

TEST(Archive, EveryTruncationIsAnErrorAndNoCrash)
{
	TMap<FString, TArray<int32>> Map;
	Map.Add(TEXT("One"), {1, 2, 3});
	Map.Add(TEXT("Two"), {4});
	const TArray<uint8> Bytes = Write(Map);
	for (int32 Length = 0; Length < Bytes.Num(); ++Length)
	{
		TMap<FString, TArray<int32>> Loaded;
		EXPECT_FALSE(Read(TArray<uint8>(Bytes.GetData(), Length), Loaded)) << Length;
	}
}

TEST(Archive, CountsThatTheArchiveCannotHoldAllocateNothing)
{
	for (const int32 Count : {-1, 100, 0x7fffffff, static_cast<int32>(0x80000000)})
	{
		const TArray<uint8> Bytes = Write(Count);
		TArray<int64> Numbers;
		EXPECT_FALSE(Read(Bytes, Numbers));
		EXPECT_EQ(Numbers.GetAllocatedSize(), 0u);
		TArray<FString> Strings;
		EXPECT_FALSE(Read(Bytes, Strings));
		EXPECT_EQ(Strings.GetAllocatedSize(), 0u);
		TSet<FString> Set;
		EXPECT_FALSE(Read(Bytes, Set));
		EXPECT_TRUE(Set.IsEmpty());
		TBitArray<> Bits;
		EXPECT_FALSE(Read(Bytes, Bits));
	}
}

TEST(Archive, ReadingPastTheEndGivesZerosAndStaysAnError)
{
	const TArray<uint8> Bytes = {1, 2};
	FMemoryReader Reader(Bytes);
	int32 Number = -1;
	Reader << Number;
	EXPECT_EQ(Number, 0);
	EXPECT_TRUE(Reader.IsError());
	Reader.Seek(0);
	uint8 Byte = 9;
	Reader << Byte;
	EXPECT_EQ(Byte, 0);
	for (const int64 Position : {int64(-1), int64(3), MAX_int64})
	{
		FMemoryReader Seeking(Bytes);
		Seeking.Seek(Position);
		Seeking << Byte;
		EXPECT_TRUE(Seeking.IsError());
	}
}

TEST(Archive, BoolIsFourBytesAndRefusesOtherNumbers)
{
	EXPECT_EQ(Write(true).Num(), 4);
	bool bValue = false;
	EXPECT_FALSE(Read(Write(2), bValue));
}

TEST(Archive, PackedNumbersTakeSevenBitsAByte)
{
	for (const uint32 Number : {0u, 127u, 128u, 16384u, 0xffffffffu})
	{
		TArray<uint8> Bytes;
		FMemoryWriter Writer(Bytes);
		uint32 Written = Number;
		Writer.SerializeIntPacked(Written);
		FMemoryReader Reader(Bytes);
		uint32 ReadBack = 1;
		Reader.SerializeIntPacked(ReadBack);
		EXPECT_EQ(ReadBack, Number);
	}
	const TArray<uint8> Endless = {0xff, 0xff, 0xff, 0xff, 0xff, 0xff};
	FMemoryReader Reader(Endless);
	uint32 Number = 0;
	Reader.SerializeIntPacked(Number);
	EXPECT_TRUE(Reader.IsError());
}

TEST(Archive, VectorsOfOlderVersionsAreFloats)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	float Numbers[] = {1.5f, 2.5f, -3.5f};
	Writer << Numbers[0] << Numbers[1] << Numbers[2];
	FMemoryReader Reader(Bytes);
	Reader.SetUEVer(FPackageFileVersion::CreateUE4Version(VER_UE4_CORRECT_LICENSEE_FLAG));
	FVector Vector;
	Reader << Vector;
	EXPECT_EQ(Vector, FVector(1.5, 2.5, -3.5));
	EXPECT_TRUE(Reader.AtEnd());
	EXPECT_EQ(Write(Vector).Num(), 24);
}

TEST(Archive, CustomVersionsAreRecordedWhenSavedAndKnownWhenLoaded)
{
	const FGuid Key(1, 2, 3, 4);
	const FGuid Unknown(5, 6, 7, 8);
	const FCustomVersionRegistration Registration(Key, 7, TEXT("Test"));

	FBufferArchive Writer;
	EXPECT_EQ(Writer.CustomVer(Key), -1);
	Writer.UsingCustomVersion(Key);
	Writer.UsingCustomVersion(Unknown);
	EXPECT_EQ(Writer.CustomVer(Key), 7);
	FCustomVersionContainer Versions = Writer.GetCustomVersions();
	EXPECT_EQ(Versions.GetAllVersions().Num(), 1);

	Versions.SetVersion(Key, 3, TEXT("Test"));
	FMemoryReader Reader(Writer);
	EXPECT_EQ(Reader.CustomVer(Key), 7);
	Reader.SetCustomVersions(Versions);
	EXPECT_EQ(Reader.CustomVer(Key), 3);
	EXPECT_EQ(Reader.CustomVer(Unknown), -1);
}

TEST(Archive, ProxyKeepsNamesAsTextAndTakesOverErrors)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	FNameAsStringProxyArchive Proxy(Writer);
	FName Name(TEXT("Door_3"));
	int32 Number = 5;
	Proxy << Name << Number;

	FMemoryReader Reader(Bytes);
	FNameAsStringProxyArchive ReadingProxy(Reader);
	FName ReadName;
	int32 ReadNumber = 0;
	ReadingProxy << ReadName << ReadNumber;
	EXPECT_EQ(ReadName, Name);
	EXPECT_EQ(ReadNumber, 5);
	ReadingProxy << ReadNumber;
	EXPECT_TRUE(ReadingProxy.IsError());
}

TEST(EngineVersion, ReadsWhatItWrites)
{
	FEngineVersion Version;
	ASSERT_TRUE(FEngineVersion::Parse(TEXT("5.4.3-34507850+++UE5+Release-5.4"), Version));
	EXPECT_EQ(Version.GetBranch(), TEXT("++UE5+Release-5.4"));
	EXPECT_EQ(Version.ToString(), TEXT("5.4.3-34507850+++UE5+Release-5.4"));
	EXPECT_EQ(Version.ToString(EVersionComponent::Minor), TEXT("5.4"));
	EXPECT_EQ(FEngineVersionBase::GetNewest(FEngineVersion::Current(), Version, nullptr), EVersionComparison::First);
	for (const TCHAR* const Text : {TEXT(""), TEXT("5"), TEXT("5.4"), TEXT("5.4.70000"), TEXT("5.4.3x"), TEXT("5..3")})
	{
		EXPECT_FALSE(FEngineVersion::Parse(Text, Version));
	}
}
