#include "PropertyTestTypes.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/GarbageCollection.h"
#include "UObject/LinkerLoad.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnknownProperties.h"

#include <gtest/gtest.h>

namespace
{
FString GetSamplesFolder()
{
	return FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR)) / TEXT("../shared/samples/packages");
}

bool HasSamples()
{
	return IFileManager::Get().DirectoryExists(*GetSamplesFolder());
}

#define SKIP_WITHOUT_SAMPLES() \
	if (!HasSamples()) \
	{ \
		GTEST_SKIP() << "the folder of sample packages is not there"; \
	}

TArray<uint8> ReadSample(const TCHAR* File)
{
	TArray<uint8> Bytes;
	EXPECT_TRUE(FFileHelper::LoadFileToArray(Bytes, *(GetSamplesFolder() / File)));
	return Bytes;
}

TUniquePtr<FLinkerLoad> Inspect(TArray<uint8>&& Bytes, FString& OutError)
{
	return FLinkerLoad::Create(MoveTemp(Bytes), TEXT("sample"), nullptr, OutError);
}

constexpr const TCHAR* SoftRefSample = TEXT("UE56/SimpleRefs/SimpleRefsSoftRef.uasset");

TEST(PackageFile, SummaryNamesImportsAndExportsOfASampleAreRead)
{
	SKIP_WITHOUT_SAMPLES();
	FString Error;
	const TUniquePtr<FLinkerLoad> Linker = Inspect(ReadSample(SoftRefSample), Error);
	ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
	EXPECT_EQ(Linker->Summary.FileVersionUE, GPackageFileUEVersion);
	EXPECT_EQ(Linker->Summary.PackageName, TEXT("/Game/SimpleRefs/SimpleRefsSoftRef"));
	EXPECT_EQ(Linker->Summary.SavedByEngineVersion.ToString(), TEXT("5.6.0-43139311+++UE5+Release-5.6"));
	EXPECT_EQ(Linker->NameMap.Num(), 39);
	ASSERT_EQ(Linker->ImportMap.Num(), 11);
	EXPECT_EQ(Linker->GetImportPathName(2), TEXT("/Script/Engine.Blueprint"));
	ASSERT_EQ(Linker->ExportMap.Num(), 5);
	EXPECT_EQ(Linker->GetExportPathName(2), TEXT("/Game/SimpleRefs/SimpleRefsSoftRef.SimpleRefsSoftRef:EventGraph"));
	EXPECT_EQ(Linker->GetExportClassName(1), FName(TEXT("BlueprintGeneratedClass")));
	EXPECT_EQ(Linker->SoftObjectPathList.Num(), 2);
}

TEST(PackageFile, EveryVersionOfTheSamplesIsReadToItsTables)
{
	SKIP_WITHOUT_SAMPLES();
	TArray<FString> Files;
	FPackageName::FindPackagesInDirectory(Files, GetSamplesFolder());
	EXPECT_GT(Files.Num(), 60);
	for (const FString& File : Files)
	{
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(File, nullptr, Error);
		EXPECT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
	}
}

TEST(PackageFile, EveryCutOffLengthIsAnErrorThatSaysWhy)
{
	SKIP_WITHOUT_SAMPLES();
	const TArray<uint8> Bytes = ReadSample(SoftRefSample);
	for (int32 Length = 0; Length < Bytes.Num(); ++Length)
	{
		FString Error;
		ASSERT_FALSE(Inspect(TArray<uint8>(Bytes.GetData(), Length), Error)) << Length;
		ASSERT_FALSE(Error.IsEmpty()) << Length;
	}
}

TEST(PackageFile, ChangedBytesNeverCrashTheReader)
{
	SKIP_WITHOUT_SAMPLES();
	const TArray<uint8> Bytes = ReadSample(SoftRefSample);
	for (int32 Position = 0; Position < Bytes.Num(); Position += 3)
	{
		TArray<uint8> Changed = Bytes;
		Changed[Position] = 0xff;
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = Inspect(MoveTemp(Changed), Error);
		EXPECT_TRUE(Linker || !Error.IsEmpty());
	}
}

/** A mounted folder of this process, removed at the end. */
class FPackageFolder : public testing::Test
{
protected:
	FPackageFolder()
	{
		Folder = FPaths::ConvertRelativePathToFull(FString(UTF8_TO_TCHAR(testing::TempDir().c_str())) / FString::Printf(TEXT("VexelPackageFileTests%u"), FPlatformProcess::GetCurrentProcessId()));
		IFileManager::Get().MakeDirectory(*Folder, true);
		FPackageName::RegisterMountPoint(TEXT("/PackageTests/"), Folder);
		Types = MakeTestPackage(TEXT("/Script/PropertyTests"));
	}
	~FPackageFolder() override
	{
		FPackageName::UnRegisterMountPoint(TEXT("/PackageTests/"), Folder);
		IFileManager::Get().DeleteDirectory(*Folder, false, true);
	}

	FString Folder;
	UPackage* Types;
};

TEST_F(FPackageFolder, SavedObjectsLoadWithTheirValues)
{
	UClass* const Class = MakeTestClass(Types, TEXT("SavedThing"), {Describe(EPropertyGenKind::Str, TEXT("Label")), Describe(EPropertyGenKind::Object, TEXT("Part"), UObject::StaticClass()), DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Struct, TEXT("Items"), GetItemStruct()), TEXT("Items")), Describe(EPropertyGenKind::Object, TEXT("Outside"), UObject::StaticClass())});
	UPackage* const Package = CreatePackage(TEXT("/PackageTests/Saved"));
	UObject* const Thing = NewObject<UObject>(Package, Class, TEXT("Saved"), RF_Public | RF_Standalone);
	UObject* const Part = NewObject<UObject>(Thing, Class, TEXT("Inner_3"));
	FErrorText Errors;
	const TCHAR* const Values[][2] = {{TEXT("Label"), TEXT("a label")}, {TEXT("Part"), TEXT("Inner_3")}, {TEXT("Items"), TEXT("((Name=\"x\",Count=2))")}, {TEXT("Outside"), TEXT("/Script/CoreUObject.Object")}};
	for (const auto& Value : Values)
	{
		ASSERT_TRUE(Class->FindPropertyByName(FName(Value[0]))->ImportText_InContainer(Value[1], Thing, Thing, PPF_None, &Errors)) << TCHAR_TO_UTF8(*Errors.Text);
	}
	const FString Filename = Folder / TEXT("Saved.uasset");
	ASSERT_TRUE(UPackage::SavePackage(Package, Thing, *Filename, FSavePackageArgs()));

	FString Error;
	UPackage* const LoadedPackage = CreatePackage(TEXT("/PackageTests/LoadedAgain"));
	const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(Filename, LoadedPackage, Error);
	ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
	Linker->LoadAllObjects();
	EXPECT_TRUE(Linker->GetErrors().IsEmpty());
	UObject* const Loaded = FindObject<UObject>(LoadedPackage, TEXT("Saved"));
	ASSERT_TRUE(Loaded);
	EXPECT_EQ(Loaded->GetClass(), Class);
	FString Label;
	Class->FindPropertyByName(TEXT("Label"))->ExportText_InContainer(0, Label, Loaded, nullptr, Loaded, PPF_None);
	EXPECT_EQ(Label, TEXT("a label"));
	FString Items;
	Class->FindPropertyByName(TEXT("Items"))->ExportText_InContainer(0, Items, Loaded, nullptr, Loaded, PPF_None);
	EXPECT_EQ(Items, TEXT("((Name=\"x\",Count=2))"));
	const FObjectProperty* const PartProperty = FindFProperty<FObjectProperty>(Class, TEXT("Part"));
	ASSERT_TRUE(PartProperty->GetObjectPropertyValue_InContainer(Loaded));
	EXPECT_EQ(PartProperty->GetObjectPropertyValue_InContainer(Loaded)->GetPathName(), TEXT("/PackageTests/LoadedAgain.Saved:Inner_3"));
	EXPECT_NE(PartProperty->GetObjectPropertyValue_InContainer(Loaded), Part);
	EXPECT_EQ(FindFProperty<FObjectProperty>(Class, TEXT("Outside"))->GetObjectPropertyValue_InContainer(Loaded), UObject::StaticClass());
}

TEST_F(FPackageFolder, AnUnwritableFileFailsAndLeavesTheOldOne)
{
	UClass* const Class = MakeTestClass(Types, TEXT("UnwritableThing"), {Describe(EPropertyGenKind::Str, TEXT("Label"))});
	UPackage* const Package = CreatePackage(TEXT("/PackageTests/Unwritable"));
	UObject* const Thing = NewObject<UObject>(Package, Class, TEXT("Unwritable"), RF_Public | RF_Standalone);
	FErrorText Errors;
	FSavePackageArgs Args;
	Args.Error = &Errors;
	// A file where a folder should be: no user may write below it, not even root.
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("old"), *(Folder / TEXT("NoFolder"))));
	EXPECT_FALSE(UPackage::SavePackage(Package, Thing, *(Folder / TEXT("NoFolder/Unwritable.uasset")), Args));
	EXPECT_TRUE(Errors.Text.Contains(TEXT("Failed to save package /PackageTests/Unwritable")));
}

TEST_F(FPackageFolder, ObjectsOfUnknownClassesAreWrittenBackByteForByte)
{
	SKIP_WITHOUT_SAMPLES();
	const FString Copy = Folder / TEXT("SoftRef.uasset");
	const TArray<uint8> Original = ReadSample(SoftRefSample);
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(Original, *Copy));
	UPackage* const Package = LoadPackage(nullptr, TEXT("/PackageTests/SoftRef"), LOAD_None);
	ASSERT_TRUE(Package);
	const FLinkerLoad* const Loaded = Package->GetLinker();
	ASSERT_TRUE(Loaded);
	EXPECT_TRUE(Loaded->HasKeptBytes());
	const FString Written = Folder / TEXT("Written.uasset");
	ASSERT_TRUE(UPackage::SavePackage(Package, nullptr, *Written, FSavePackageArgs()));
	FString Error;
	const TUniquePtr<FLinkerLoad> Again = FLinkerLoad::Create(Written, nullptr, Error);
	ASSERT_TRUE(Again) << TCHAR_TO_UTF8(*Error);
	ASSERT_EQ(Again->ExportMap.Num(), Loaded->ExportMap.Num());
	for (int32 Index = 0; Index < Loaded->ExportMap.Num(); ++Index)
	{
		const TArray<uint8> Before = Loaded->GetExportBytes(Index);
		const TArray<uint8> After = Again->GetExportBytes(Index);
		ASSERT_EQ(Before.Num(), After.Num()) << Index;
		EXPECT_EQ(FMemory::Memcmp(Before.GetData(), After.GetData(), Before.Num()), 0) << Index;
		EXPECT_EQ(Again->GetExportClassPath(Index).ToString(), Loaded->GetExportClassPath(Index).ToString());
	}
}

TEST_F(FPackageFolder, ValuesOfASampleAreReadWithTheirTypes)
{
	SKIP_WITHOUT_SAMPLES();
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(ReadSample(SoftRefSample), *(Folder / TEXT("Values.uasset"))));
	UPackage* const Package = LoadPackage(nullptr, TEXT("/PackageTests/Values"), LOAD_None);
	ASSERT_TRUE(Package);
	EXPECT_TRUE(Package->GetLinker()->GetErrors().IsEmpty());
	const UObject* const Graph = FindObject<UObject>(Package, TEXT("SimpleRefsSoftRef.EventGraph"));
	ASSERT_TRUE(Graph);
	const TMap<FString, TArray<FUnknownProperty>>* const Values = FUnknownProperties::FindAll(Graph);
	ASSERT_TRUE(Values);
	const TArray<FUnknownProperty>& OfGraph = (*Values)[FString()];
	ASSERT_EQ(OfGraph.Num(), 3);
	EXPECT_EQ(OfGraph[0].Tag.Name, FName(TEXT("Schema")));
	EXPECT_EQ(OfGraph[0].Tag.GetType().ToString(), TEXT("ObjectProperty"));
	EXPECT_EQ(OfGraph[1].Tag.Name, FName(TEXT("bAllowDeletion")));
	EXPECT_EQ(OfGraph[1].Tag.BoolVal, 0);
	EXPECT_EQ(OfGraph[2].Tag.GetType().ToString(), TEXT("StructProperty(Guid(/Script/CoreUObject))"));
	EXPECT_EQ(OfGraph[2].Value.Num(), 16);
	EXPECT_EQ(Package->GetMetaData().RootMetaDataMap[FName(TEXT("PackageLocalizationNamespace"))], TEXT("35C7D9CF4AA6BB380FC0CEB2A5BAE3FD"));
}

TEST_F(FPackageFolder, KeptValuesGoWithTheirObjects)
{
	SKIP_WITHOUT_SAMPLES();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	const int32 Before = FUnknownProperties::NumObjects();
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(ReadSample(SoftRefSample), *(Folder / TEXT("Kept.uasset"))));
	UPackage* const Package = LoadPackage(nullptr, TEXT("/PackageTests/Kept"), LOAD_None);
	ASSERT_TRUE(Package);
	EXPECT_GT(FUnknownProperties::NumObjects(), Before);
	ForEachObjectWithPackage(Package, [](UObject* Object)
		{
			Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
			return true; });
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(FUnknownProperties::NumObjects(), Before);
}

TEST(PackageName, NamesAndFilesAreEachOthersInverse)
{
	FPackageName::RegisterMountPoint(TEXT("/Mounted/"), TEXT("/mounted/folder"));
	EXPECT_EQ(FPackageName::LongPackageNameToFilename(TEXT("/Mounted/Dir/Asset"), TEXT(".uasset")), TEXT("/mounted/folder/Dir/Asset.uasset"));
	EXPECT_EQ(FPackageName::FilenameToLongPackageName(TEXT("/mounted/folder/Dir/Asset.uasset")), TEXT("/Mounted/Dir/Asset"));
	FString Filename;
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Mounted/../Other"), Filename));
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Mounted/Dir/Asset")));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Mounted/Bad:Name")));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/NotMounted/Asset")));
	FPackageName::UnRegisterMountPoint(TEXT("/Mounted/"), TEXT("/mounted/folder"));
}
}
