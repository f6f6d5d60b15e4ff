#include "EditorFixture.h"
#include "PackageSamples.h"

#include "Misc/FileHelper.h"
#include "UObject/LinkerLoad.h"
#include "UObject/LinkerSave.h"
#include "UObject/Package.h"

#include <random>

namespace
{
class FDamagedPackageTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		if (PackageSamples::List().empty())
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
		Damaged = GetProjectDir() / TEXT("Saved/Damaged.uasset");
	}

	/** Loads the bytes with every class that the editor has, and writes them back. False when they were refused or damage was told. */
	bool Take(const TArray<uint8>& Bytes, const FString& Name) const
	{
		EXPECT_TRUE(FFileHelper::SaveArrayToFile(Bytes, *Damaged));
		const PackageSamples::FLoaded Loaded(TCHAR_TO_UTF8(*Damaged), Name);
		if (!Loaded.GetLinker())
		{
			EXPECT_FALSE(Loaded.GetError().IsEmpty());
			return false;
		}
		FLinkerSave Saver(Loaded.GetPackage(), Damaged);
		Saver.StartFromTablesOf(*Loaded.GetLinker());
		Saver.WriteUnchangedObjectsAnew();
		FString Error;
		const bool bWritten = Saver.WriteExports(Error) && !Saver.MakeFile(Error).IsEmpty();
		EXPECT_TRUE(bWritten || !Error.IsEmpty());
		return Loaded.GetLinker()->GetErrors().IsEmpty();
	}

	FString Damaged;
};

TEST_F(FDamagedPackageTest, ChangedBytesOfSamplesEndInObjectsOrErrorsWithEveryClassOfTheEditor)
{
	constexpr int32 NumRounds = 6;
	constexpr int32 MaxChanges = 4;
	std::mt19937 Random(20260131);
	int32 NumNoticed = 0;
	for (const std::string& Sample : PackageSamples::List())
	{
		const FString Name = PackageSamples::GetPackageName(Sample);
		TArray<uint8> Bytes;
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Bytes, UTF8_TO_TCHAR((PackageSamples::GetFolder() / Sample).c_str())));
		FString Error;
		const TUniquePtr<FLinkerLoad> Tables = FLinkerLoad::Create(TArray<uint8>(Bytes), TEXT("sample"), nullptr, Error);
		ASSERT_TRUE(Tables) << TCHAR_TO_UTF8(*Error);
		// The tables are for the tests of the loader; here the classes read what is not theirs.
		const uint32 Start = uint32(Tables->Summary.TotalHeaderSize);
		for (int32 Round = 0; Round < NumRounds; ++Round)
		{
			SCOPED_TRACE(Sample + " round " + std::to_string(Round));
			TArray<uint8> Changed = Bytes;
			const int32 NumChanges = 1 + int32(Random() % MaxChanges);
			for (int32 Change = 0; Change < NumChanges; ++Change)
			{
				const uint32 Place = Start + uint32(Random() % (uint32(Bytes.Num()) - Start));
				// Small numbers are other entries of the tables; large ones are sizes beyond the end.
				Changed[int32(Place)] = Random() % 2 ? uint8(Random() % 8) : uint8(Random());
			}
			NumNoticed += Take(Changed, Name) ? 0 : 1;
		}
	}
	EXPECT_GT(NumNoticed, 0);
}
}
