#include "InspectorFixture.h"

#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

#include <random>

namespace
{
/** Both ways in: as `inspect` goes, and with every object made. */
bool TakeBytes(const FBytes& Bytes)
{
	TArray<FString> Errors;
	const bool bInspected = FInspectorTest::Inspect(Bytes, Errors).IsValid();
	EXPECT_TRUE(bInspected || !Errors.IsEmpty());
	static int32 NumLoaded = 0;
	UPackage* const Package = CreatePackage(*FString::Printf(TEXT("/Inspected/Package%d"), ++NumLoaded));
	FString Error;
	TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(TArray<uint8>(Bytes.data(), int32(Bytes.size())), TEXT("bytes"), Package, Error);
	EXPECT_EQ(Linker.IsValid(), bInspected);
	if (Linker)
	{
		Linker->LoadAllObjects();
		Errors.Append(Linker->GetErrors());
	}
	ForEachObjectWithPackage(Package, [](UObject* Object)
		{
			Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
			return true; });
	if (NumLoaded % 100 == 0)
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
	return Errors.IsEmpty();
}

TEST_F(FInspectorTest, ValuesAreReadFromTheirTagsInOldAndNewForm)
{
	for (const char* const Version : {"UE420", "UE427", "UE50", "UE52", "UE54", "UE56"})
	{
		SCOPED_TRACE(Version);
		const TSharedPtr<FJsonObject> Document = InspectSample((std::string(Version) + "/SimpleRefs/SimpleRefsRoot.uasset").c_str());
		const TArray<TSharedPtr<FJsonValue>>* Exports = nullptr;
		ASSERT_TRUE(Document->TryGetArrayField(TEXT("exports"), Exports));
		TSharedPtr<FJsonObject> Blueprint;
		for (const TSharedPtr<FJsonValue>& Export : *Exports)
		{
			Blueprint = Export->AsObject()->GetStringField(TEXT("class")) == TEXT("/Script/Engine.Blueprint") ? Export->AsObject() : Blueprint;
		}
		ASSERT_TRUE(Blueprint);
		const TSharedPtr<FJsonObject> Parent = FindObject(Blueprint, TEXT("properties"), TEXT("name"), TEXT("ParentClass"));
		EXPECT_EQ(Parent->GetStringField(TEXT("value")), FString(TEXT("/Script/CoreUObject.Object")));
		const TSharedPtr<FJsonObject> Guid = FindObject(Blueprint, TEXT("properties"), TEXT("name"), TEXT("BlueprintGuid"));
		EXPECT_EQ(Guid->GetStringField(TEXT("value")).Len(), 32);
	}
}

TEST_F(FInspectorTest, VariablesHaveTheirTypes)
{
	for (const char* const Sample : {"UE420/SimpleRefs/SimpleRefsRoot.uasset", "UE56/SimpleRefs/SimpleRefsRoot.uasset"})
	{
		SCOPED_TRACE(Sample);
		const TSharedPtr<FJsonObject> Document = InspectSample(Sample);
		const TSharedPtr<FJsonObject> Blueprint = FindObject(Document, TEXT("exports"), TEXT("class"), TEXT("/Script/Engine.Blueprint"));
		const TSharedPtr<FJsonObject> Variables = FindObject(Blueprint, TEXT("properties"), TEXT("name"), TEXT("NewVariables"));
		const TArray<TSharedPtr<FJsonValue>>* List = nullptr;
		ASSERT_TRUE(Variables->TryGetArrayField(TEXT("value"), List));
		ASSERT_EQ(List->Num(), 2);
		const TCHAR* const Expected[][2] = {{TEXT("VarHard"), TEXT("class")}, {TEXT("VarSoft"), TEXT("softclass")}};
		for (int32 Index = 0; Index < 2; ++Index)
		{
			EXPECT_EQ((*List)[Index]->AsObject()->GetStringField(TEXT("VarName")), FString(Expected[Index][0]));
			const TSharedPtr<FJsonObject>* Type = nullptr;
			ASSERT_TRUE((*List)[Index]->AsObject()->TryGetObjectField(TEXT("VarType"), Type));
			EXPECT_EQ((*Type)->GetStringField(TEXT("PinCategory")), FString(Expected[Index][1]));
			EXPECT_EQ((*Type)->GetStringField(TEXT("PinSubCategoryObject")), FString(TEXT("/Script/CoreUObject.Object")));
		}
	}
}

TEST_F(FInspectorTest, EverySampleIsReadWithoutAnErrorAndItsSectionsCoverTheFile)
{
	for (const std::filesystem::path& Sample : ListSamples())
	{
		SCOPED_TRACE(Sample.string());
		const FBytes Bytes = ReadFile(Sample);
		TArray<FString> Errors;
		const TSharedPtr<FJsonObject> Document = Inspect(Bytes, Errors);
		ASSERT_TRUE(Document && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
		const TArray<TSharedPtr<FJsonValue>>* Sections = nullptr;
		ASSERT_TRUE(Document->TryGetArrayField(TEXT("sections"), Sections));
		double End = 0;
		for (const TSharedPtr<FJsonValue>& Section : *Sections)
		{
			EXPECT_EQ(Section->AsObject()->GetNumberField(TEXT("offset")), End);
			End += Section->AsObject()->GetNumberField(TEXT("size"));
		}
		EXPECT_EQ(End, double(Bytes.size()));
	}
}

TEST_F(FInspectorTest, ThumbnailsRegistryDataAndDependenciesAreTold)
{
	const TSharedPtr<FJsonObject> Document = InspectSample("AirSim/Weather/WeatherFX/Textures/RainDrop_N.uasset");
	const TSharedPtr<FJsonObject> Thumbnail = FindObject(Document, TEXT("thumbnails"), TEXT("object"), TEXT("RainDrop_N"));
	EXPECT_EQ(Thumbnail->GetStringField(TEXT("class")), TEXT("Texture2D"));
	// As the header of the PNG image in the file has it.
	EXPECT_EQ(Thumbnail->GetNumberField(TEXT("width")), 64);
	EXPECT_EQ(Thumbnail->GetNumberField(TEXT("height")), 256);
	EXPECT_GT(Thumbnail->GetNumberField(TEXT("bytes")), 0);
	const TSharedPtr<FJsonObject> Asset = FindObject(Document, TEXT("asset_registry"), TEXT("object"), TEXT("RainDrop_N"));
	const TSharedPtr<FJsonObject>* Tags = nullptr;
	ASSERT_TRUE(Asset->TryGetObjectField(TEXT("tags"), Tags));
	EXPECT_FALSE((*Tags)->GetStringField(TEXT("Dimensions")).IsEmpty());
}

TEST_F(FInspectorTest, ATruncatedSampleIsRefusedWithTheReason)
{
	for (const std::filesystem::path& Sample : ListSamples())
	{
		SCOPED_TRACE(Sample.string());
		const FBytes Bytes = ReadFile(Sample);
		const size_t Step = Bytes.size() / 40 + 1;
		for (size_t Length = 0; Length < Bytes.size(); Length += Step)
		{
			TArray<FString> Errors;
			EXPECT_FALSE(Inspect(FBytes(Bytes.begin(), Bytes.begin() + ptrdiff_t(Length)), Errors)) << Length;
			ASSERT_EQ(Errors.Num(), 1) << Length;
			EXPECT_FALSE(Errors[0].IsEmpty()) << Length;
		}
	}
}

TEST_F(FInspectorTest, ChangedBytesEndInADocumentOrAnErrorWhicheverWayTheyAreRead)
{
	std::mt19937 Random(20240615);
	int32 NumNoticed = 0;
	for (const std::filesystem::path& Sample : ListSamples())
	{
		SCOPED_TRACE(Sample.string());
		const FBytes Bytes = ReadFile(Sample);
		for (int32 Round = 0; Round < 12; ++Round)
		{
			FBytes Changed = Bytes;
			const int32 NumChanges = 1 + int32(Random() % 4);
			for (int32 Change = 0; Change < NumChanges; ++Change)
			{
				Changed[Random() % Changed.size()] = uint8(Random());
			}
			NumNoticed += TakeBytes(Changed) ? 0 : 1;
		}
	}
	EXPECT_GT(NumNoticed, 0);
}

TEST_F(FInspectorTest, ADamagedTagIsToldWithItsOffset)
{
	FBytes Bytes = ReadFile(GetSamples() / "UE50/SimpleRefs/SimpleRefsRoot.uasset");
	FString Error;
	const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(TArray<uint8>(Bytes.data(), int32(Bytes.size())), TEXT("bytes"), nullptr, Error);
	ASSERT_TRUE(Linker);
	// The name of the first property: an index that the table of names does not have.
	const int64 Offset = Linker->ExportMap[0].SerialOffset;
	Bytes[size_t(Offset) + 3] = 0x7f;
	TArray<FString> Errors;
	ASSERT_TRUE(Inspect(Bytes, Errors));
	ASSERT_EQ(Errors.Num(), 1);
	EXPECT_TRUE(Errors[0].EndsWith(FString::Printf(TEXT("are damaged at offset %lld"), static_cast<long long>(Offset)))) << TCHAR_TO_UTF8(*Errors[0]);
}
}
