#include "EditorFixture.h"
#include "PackageSamples.h"

#include "Misc/FileHelper.h"
#include "Misc/OutputDevice.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/PackageSections.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnknownProperties.h"
#include "UObject/UnrealType.h"

namespace
{
class FKeptBytesTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		if (PackageSamples::List().empty())
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
		Written = GetProjectDir() / TEXT("Saved/Kept.uasset");
	}

	static TArray<uint8> ReadSample(const char* Sample)
	{
		TArray<uint8> Bytes;
		EXPECT_TRUE(FFileHelper::LoadFileToArray(Bytes, UTF8_TO_TCHAR((PackageSamples::GetFolder() / Sample).c_str())));
		return Bytes;
	}

	std::filesystem::path GetWritten() const { return TCHAR_TO_UTF8(*Written); }

	/** The value of a property that has no form here; empty when it was not kept. */
	static TArray<uint8> FindKept(const UObject* Object, FName Name)
	{
		const TMap<FString, TArray<FUnknownProperty>>* const Kept = FUnknownProperties::FindAll(Object);
		const TArray<FUnknownProperty>* const OfObject = Kept ? Kept->Find(FString()) : nullptr;
		const FUnknownProperty* const Found = OfObject ? OfObject->FindByPredicate([Name](const FUnknownProperty& Each)
															 { return Each.Tag.Name == Name; })
													   : nullptr;
		return Found ? Found->Value : TArray<uint8>();
	}

	FString Written;
};

TEST_F(FKeptBytesTest, AValueWithAFormOfItsOwnIsKeptAndItsNeighboursAreRead)
{
	const char* const Sample = "AirSim/HUDAssets/NormalsMaterial.uasset";
	const FString Name = PackageSamples::GetPackageName(Sample);
	const TCHAR* const Path = TEXT("NormalsMaterial.MaterialExpressionAdd_0");
	// Six numbers of four bytes and two names, as the struct's own C++ writes them.
	constexpr int32 InputBytes = 36;
	TArray<uint8> Input;
	{
		const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, Name);
		ASSERT_TRUE(Loaded.GetLinker());
		UObject* const Add = FindObject<UObject>(Loaded.GetPackage(), Path);
		ASSERT_TRUE(Add);
		EXPECT_FALSE(Loaded.GetLinker()->MustKeepBytes(Add));
		Input = FindKept(Add, TEXT("A"));
		EXPECT_EQ(Input.Num(), InputBytes);
		const FFloatProperty* const ConstB = FindFProperty<FFloatProperty>(Add->GetClass(), TEXT("ConstB"));
		ASSERT_TRUE(ConstB);
		EXPECT_EQ(ConstB->GetPropertyValue_InContainer(Add), 0.5f);
		ConstB->SetPropertyValue_InContainer(Add, 0.75f);
		ASSERT_TRUE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs()));
	}
	const PackageSamples::FLoaded Again(GetWritten(), Name);
	ASSERT_TRUE(Again.GetLinker()) << TCHAR_TO_UTF8(*Again.GetError());
	const UObject* const Add = FindObject<UObject>(Again.GetPackage(), Path);
	ASSERT_TRUE(Add);
	EXPECT_EQ(FindKept(Add, TEXT("A")), Input);
	EXPECT_EQ(FindFProperty<FFloatProperty>(Add->GetClass(), TEXT("ConstB"))->GetPropertyValue_InContainer(Add), 0.75f);
}

TEST_F(FKeptBytesTest, AChangeThatOnlyTheStructsOwnCodeCouldWriteIsRefusedAndTheFileStays)
{
	const char* const Sample = "AirSim/HUDAssets/NormalsMaterial.uasset";
	const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample));
	ASSERT_TRUE(Loaded.GetLinker());
	UObject* const Add = FindObject<UObject>(Loaded.GetPackage(), TEXT("NormalsMaterial.MaterialExpressionAdd_0"));
	ASSERT_TRUE(Add);
	const FStructProperty* const Input = FindFProperty<FStructProperty>(Add->GetClass(), TEXT("A"));
	const FProperty* const ConstB = Add->GetClass()->FindPropertyByName(TEXT("ConstB"));
	ASSERT_TRUE(Input && ConstB);
	EXPECT_FALSE(Add->CanEditChange(Input));
	EXPECT_TRUE(Add->CanEditChange(ConstB));
	EXPECT_FALSE(FindKept(Add, TEXT("A")).IsEmpty());

	const FIntProperty* const Index = FindFProperty<FIntProperty>(Input->Struct, TEXT("OutputIndex"));
	void* const Value = Input->ContainerPtrToValuePtr<void>(Add);
	const int32 Before = Index->GetPropertyValue_InContainer(Value);
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("the file of before"), *Written));
	Index->SetPropertyValue_InContainer(Value, Before + 3);
	FStringOutputDevice Error;
	FSavePackageArgs Args;
	Args.Error = &Error;
	EXPECT_FALSE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, Args));
	EXPECT_TRUE(Error.Contains(TEXT("property A of ") + Add->GetPathName() + TEXT(" was changed, and only the engine can write it"))) << TCHAR_TO_UTF8(*Error);
	FString File;
	ASSERT_TRUE(FFileHelper::LoadFileToString(File, *Written));
	EXPECT_EQ(File, TEXT("the file of before"));

	Index->SetPropertyValue_InContainer(Value, Before);
	EXPECT_TRUE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs()));
}

TEST_F(FKeptBytesTest, AClassOfTheOldFormKeepsItsListOfPropertiesThatWereObjects)
{
	const char* const Sample = "UE420/SimpleRefs/SimpleRefsRoot.uasset";
	const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample));
	ASSERT_TRUE(Loaded.GetLinker());
	UClass* const Class = FindObject<UClass>(Loaded.GetPackage(), TEXT("SimpleRefsRoot_C"));
	ASSERT_TRUE(Class);
	const int32 Export = Loaded.GetLinker()->FindExportOf(Class);
	ASSERT_NE(Export, INDEX_NONE);
	Class->ClassFlags |= CLASS_HideDropDown;
	ASSERT_TRUE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs()));
	FString Error;
	const TUniquePtr<FLinkerLoad> After = FLinkerLoad::Create(Written, nullptr, Error);
	ASSERT_TRUE(After) << TCHAR_TO_UTF8(*Error);
	const TArray<uint8> Old = Loaded.GetLinker()->GetExportBytes(Export);
	const TArray<uint8> New = After->GetExportBytes(Export);
	ASSERT_EQ(New.Num(), Old.Num());
	int32 NumChanged = 0;
	for (int32 Index = 0; Index < Old.Num(); ++Index)
	{
		NumChanged += Old[Index] == New[Index] ? 0 : 1;
	}
	// One bit of the flags: all that leads from the class to its properties and functions is as it was.
	EXPECT_EQ(NumChanged, 1);
}

TEST_F(FKeptBytesTest, BulkDataStaysBehindAHeaderThatGrows)
{
	const char* const Sample = "AirSim/Weather/WeatherFX/Textures/RainDrop_N.uasset";
	const TArray<uint8> Before = ReadSample(Sample);
	const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample));
	ASSERT_TRUE(Loaded.GetLinker());
	UObject* const Texture = FindObject<UObject>(Loaded.GetPackage(), TEXT("RainDrop_N"));
	ASSERT_TRUE(Texture);
	ASSERT_TRUE(Texture->Rename(TEXT("ADropOfRainWithALongName"), nullptr, REN_DontCreateRedirectors));
	ASSERT_TRUE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs()));
	FString Error;
	const TUniquePtr<FLinkerLoad> After = FLinkerLoad::Create(Written, nullptr, Error);
	ASSERT_TRUE(After) << TCHAR_TO_UTF8(*Error);
	const int64 OldStart = Loaded.GetLinker()->Summary.BulkDataStartOffset;
	const int64 NewStart = After->Summary.BulkDataStartOffset;
	EXPECT_GT(NewStart, OldStart);
	const int64 BulkBytes = Before.Num() - OldStart;
	ASSERT_EQ(After->GetFileSize() - NewStart, BulkBytes);
	EXPECT_EQ(After->ReadBytes(NewStart, BulkBytes), Loaded.GetLinker()->ReadBytes(OldStart, BulkBytes));
	const FString NewName = TEXT("ADropOfRainWithALongName");
	EXPECT_TRUE(After->ExportMap.ContainsByPredicate([&NewName](const FObjectExport& Export)
		{ return Export.ObjectName.ToString() == NewName; }));
}

TEST_F(FKeptBytesTest, ALargeFileIsReadWhereItIsAskedForAndWrittenBackTheSame)
{
	// More bulk data than a file may have that is kept in memory.
	constexpr int32 BulkBytes = 600'000;
	const char* const Sample = "UE56/SimpleRefs/SimpleRefsRoot.uasset";
	const FString Name = PackageSamples::GetPackageName(Sample);
	TArray<uint8> Bytes = ReadSample(Sample);
	TArray<uint8> Tag;
	constexpr int32 TagBytes = 4;
	Tag.Append(Bytes.GetData() + Bytes.Num() - TagBytes, TagBytes);
	Bytes.SetNum(Bytes.Num() - TagBytes);
	const int32 Start = Bytes.Num();
	for (int32 Index = 0; Index < BulkBytes; ++Index)
	{
		Bytes.Add(static_cast<uint8>(Index * 31 >> 3));
	}
	Bytes.Append(Tag);
	const FString Large = GetProjectDir() / TEXT("Saved/Large.uasset");
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(Bytes, *Large));
	const PackageSamples::FLoaded Loaded(TCHAR_TO_UTF8(*Large), Name);
	ASSERT_TRUE(Loaded.GetLinker()) << TCHAR_TO_UTF8(*Loaded.GetError());
	EXPECT_TRUE(Loaded.GetLinker()->GetErrors().IsEmpty());
	EXPECT_TRUE(FindObject<UObject>(Loaded.GetPackage(), TEXT("SimpleRefsRoot.EventGraph")));
	for (const int32 Offset : {0, 1, 65'535, 300'000, BulkBytes - 100})
	{
		const TArray<uint8> Read = Loaded.GetLinker()->ReadBytes(Start + Offset, 100);
		ASSERT_EQ(Read.Num(), 100);
		EXPECT_EQ(FMemory::Memcmp(Read.GetData(), Bytes.GetData() + Start + Offset, 100), 0) << Offset;
	}
	EXPECT_TRUE(Loaded.GetLinker()->ReadBytes(Bytes.Num() - 50, 100).IsEmpty());
	ASSERT_TRUE(UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs()));
	TArray<uint8> Copy;
	ASSERT_TRUE(FFileHelper::LoadFileToArray(Copy, *Written));
	EXPECT_TRUE(Copy == Bytes);
}
}
