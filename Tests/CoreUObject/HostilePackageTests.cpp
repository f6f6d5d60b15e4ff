#include "PropertyTestTypes.h"
#include "TaggedValues.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/GarbageCollection.h"
#include "UObject/LinkerLoad.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectHash.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace
{
FString GetSamplesFolder()
{
	return FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR)) / TEXT("../shared/samples/packages");
}

/** A mounted folder of one test, with packages that are loaded from bytes. */
class FHostilePackages : public testing::Test
{
protected:
	FHostilePackages()
	{
		const char* const TestName = testing::UnitTest::GetInstance()->current_test_info()->name();
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-hostile-XXXXXX").string();
		Folder = UTF8_TO_TCHAR(mkdtemp(Pattern.data()));
		Root = FString::Printf(TEXT("/Hostile%s/"), UTF8_TO_TCHAR(TestName));
		FPackageName::RegisterMountPoint(Root, Folder);
		Types = MakeTestPackage(TEXT("/Script/PropertyTests"));
	}
	~FHostilePackages() override
	{
		FPackageName::UnRegisterMountPoint(Root, Folder);
		IFileManager::Get().DeleteDirectory(*Folder, false, true);
		CollectGarbage(RF_Standalone);
	}

	/** Reads tables and every object into a package of its own. Null, with a reason, when the tables are refused. */
	TUniquePtr<FLinkerLoad> Load(TArray<uint8>&& Bytes, FString& OutError)
	{
		UPackage* const Package = CreatePackage(*FString::Printf(TEXT("%sLoaded%d"), *Root, ++NumLoaded));
		TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(MoveTemp(Bytes), TEXT("hostile"), Package, OutError);
		if (Linker)
		{
			Linker->LoadAllObjects();
		}
		return Linker;
	}

	void Discard(TUniquePtr<FLinkerLoad> Linker)
	{
		if (!Linker)
		{
			return;
		}
		ForEachObjectWithPackage(Linker->LinkerRoot, [](UObject* Object)
			{
				Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
				return true; });
	}

	/** Loads the bytes with a change at every Step-th place. Answers how many of the changes were noticed. */
	int32 LoadChanged(const TArray<uint8>& Original, int32 First, int32 End, int32 Step)
	{
		int32 NumRefused = 0;
		int32 NumDamaged = 0;
		int32 NumDone = 0;
		for (int32 Position = First; Position < End; Position += Step)
		{
			TArray<uint8> Changed = Original;
			Changed[Position] = static_cast<uint8>(Changed[Position] ^ (NumDone % 3 == 0 ? 0xff : NumDone % 3 == 1 ? 0x01
																												   : 0x80));
			FString Error;
			TUniquePtr<FLinkerLoad> Linker = Load(MoveTemp(Changed), Error);
			EXPECT_TRUE(Linker || !Error.IsEmpty()) << Position;
			NumRefused += Linker ? 0 : 1;
			NumDamaged += Linker && !Linker->GetErrors().IsEmpty() ? 1 : 0;
			Discard(MoveTemp(Linker));
			if (++NumDone % 64 == 0)
			{
				CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			}
		}
		return NumRefused + NumDamaged;
	}

	FString SaveEveryKind(const TCHAR* Name, TArray<uint8>& OutBytes, FString& OutText)
	{
		UClass* const Class = GetClassOfEveryKind();
		UPackage* const Package = CreatePackage(*(Root + Name));
		UObject* const Thing = NewObject<UObject>(Package, Class, TEXT("Thing"), RF_Public | RF_Standalone);
		FErrorText Errors;
		const FProperty* const Values = Class->FindPropertyByName(TEXT("Values"));
		EXPECT_TRUE(Values->ImportText_InContainer(EveryKindText, Thing, Thing, PPF_None, &Errors)) << TCHAR_TO_UTF8(*Errors.Text);
		EXPECT_TRUE(Class->FindPropertyByName(TEXT("Soft"))->ImportText_InContainer(TEXT("/Game/Far/A.A:Inner.Deep"), Thing, Thing, PPF_None, &Errors));
		EXPECT_TRUE(Class->FindPropertyByName(TEXT("Soft2"))->ImportText_InContainer(TEXT("/Game/Far/B.B_C"), Thing, Thing, PPF_None, &Errors));
		Values->ExportText_InContainer(0, OutText, Thing, nullptr, Thing, PPF_None);
		const FString Filename = Folder / Name + TEXT(".uasset");
		EXPECT_TRUE(UPackage::SavePackage(Package, Thing, *Filename, FSavePackageArgs()));
		EXPECT_TRUE(FFileHelper::LoadFileToArray(OutBytes, *Filename));
		Thing->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
		return Filename;
	}

	UClass* GetClassOfEveryKind() const
	{
		UClass* const Existing = FindObject<UClass>(Types, TEXT("HolderOfEveryKind"));
		return Existing ? Existing : MakeTestClass(Types, TEXT("HolderOfEveryKind"), {Describe(EPropertyGenKind::Struct, TEXT("Values"), GetEveryKindStruct()), Describe(EPropertyGenKind::SoftObject, TEXT("Soft"), UObject::StaticClass()), Describe(EPropertyGenKind::SoftClass, TEXT("Soft2"), UClass::StaticClass()), Describe(EPropertyGenKind::WeakObject, TEXT("Weak"), UObject::StaticClass()), Describe(EPropertyGenKind::Interface, TEXT("Interface"), UObject::StaticClass())});
	}

	static FString Export(const UObject* Object, const TCHAR* Property)
	{
		FString Text;
		Object->GetClass()->FindPropertyByName(Property)->ExportText_InContainer(0, Text, Object, nullptr, nullptr, PPF_None);
		return Text;
	}

	FString Folder;
	FString Root;
	UPackage* Types;
	int32 NumLoaded = 0;
};
}

TEST_F(FHostilePackages, EveryKindSurvivesSavingAndLoading)
{
	TArray<uint8> Bytes;
	FString Before;
	SaveEveryKind(TEXT("Kinds"), Bytes, Before);
	FString Error;
	const TUniquePtr<FLinkerLoad> Linker = Load(MoveTemp(Bytes), Error);
	ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
	EXPECT_TRUE(Linker->GetErrors().IsEmpty());
	const UObject* const Loaded = FindObject<UObject>(Linker->LinkerRoot, TEXT("Thing"));
	ASSERT_TRUE(Loaded);
	EXPECT_EQ(Export(Loaded, TEXT("Values")), Before);
	EXPECT_EQ(Export(Loaded, TEXT("Soft")), TEXT("/Game/Far/A.A:Inner.Deep"));
	EXPECT_EQ(Export(Loaded, TEXT("Soft2")), TEXT("/Game/Far/B.B_C"));
}

TEST_F(FHostilePackages, ObjectsWithValuesOfTheirClassAloneAreSavedWithoutThem)
{
	UClass* const Class = GetClassOfEveryKind();
	UPackage* const Package = CreatePackage(*(Root + TEXT("Plain")));
	UObject* const Thing = NewObject<UObject>(Package, Class, TEXT("Thing"), RF_Public | RF_Standalone);
	const FString Filename = Folder / TEXT("Plain.uasset");
	ASSERT_TRUE(UPackage::SavePackage(Package, Thing, *Filename, FSavePackageArgs()));
	FString Error;
	const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(Filename, nullptr, Error);
	ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
	ASSERT_EQ(Linker->ExportMap.Num(), 1);
	EXPECT_FALSE(Linker->NameMap.Contains(FName(TEXT("Values"))));
	EXPECT_FALSE(Linker->NameMap.Contains(FName(TEXT("Soft"))));
}

TEST_F(FHostilePackages, EveryChangedByteOfOurOwnPackageEndsInObjectsOrErrors)
{
	TArray<uint8> Bytes;
	FString Text;
	SaveEveryKind(TEXT("Changed"), Bytes, Text);
	EXPECT_GT(LoadChanged(Bytes, 0, Bytes.Num(), 1), Bytes.Num() / 10);
}

TEST_F(FHostilePackages, ChangedWordsOfOurOwnPackageEndInObjectsOrErrors)
{
	TArray<uint8> Bytes;
	FString Text;
	SaveEveryKind(TEXT("Words"), Bytes, Text);
	for (const uint32 Word : {0x7fffffffu, 0x80000000u, 0xffffffffu, 0x00ffffffu})
	{
		for (int32 Position = 0; Position + 4 <= Bytes.Num(); Position += 2)
		{
			TArray<uint8> Changed = Bytes;
			FMemory::Memcpy(Changed.GetData() + Position, &Word, sizeof(Word));
			FString Error;
			TUniquePtr<FLinkerLoad> Linker = Load(MoveTemp(Changed), Error);
			EXPECT_TRUE(Linker || !Error.IsEmpty()) << Position;
			Discard(MoveTemp(Linker));
		}
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
}

TEST_F(FHostilePackages, ObjectsOfEveryFiveSampleAreMadeOrReported)
{
	TArray<FString> Files;
	if (!FPackageName::FindPackagesInDirectory(Files, GetSamplesFolder()))
	{
		GTEST_SKIP() << "the folder of sample packages is not there";
	}
	int32 NumRead = 0;
	for (const FString& File : Files)
	{
		TArray<uint8> Bytes;
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Bytes, *File));
		FString Error;
		TUniquePtr<FLinkerLoad> Linker = Load(MoveTemp(Bytes), Error);
		ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*File) << TCHAR_TO_UTF8(*Error);
		if (Linker->Summary.FileVersionUE >= EUnrealEngineObjectUE5Version::INITIAL_VERSION)
		{
			++NumRead;
			for (int32 Index = 0; Index < Linker->ExportMap.Num(); ++Index)
			{
				EXPECT_TRUE(Linker->ExportMap[Index].Object.Get() || !Linker->GetErrors().IsEmpty()) << TCHAR_TO_UTF8(*File) << " " << Index;
			}
			for (const FString& Problem : Linker->GetErrors())
			{
				ADD_FAILURE() << TCHAR_TO_UTF8(*File) << ": " << TCHAR_TO_UTF8(*Problem);
			}
		}
		Discard(MoveTemp(Linker));
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
	EXPECT_GT(NumRead, 30);
}

TEST_F(FHostilePackages, ChangedBytesOfSampleBodiesEndInObjectsOrErrors)
{
	for (const TCHAR* const Sample : {TEXT("UE50/SimpleRefs/SimpleRefsGraphRef.uasset"), TEXT("UE56/SimpleRefs/SimpleRefsGraphRef.uasset")})
	{
		TArray<uint8> Bytes;
		if (!FFileHelper::LoadFileToArray(Bytes, *(GetSamplesFolder() / Sample)))
		{
			GTEST_SKIP() << "the folder of sample packages is not there";
		}
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(TArray<uint8>(Bytes), Sample, nullptr, Error);
		ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
		const int32 Bodies = static_cast<int32>(Linker->Summary.TotalHeaderSize);
		EXPECT_GT(LoadChanged(Bytes, 0, Bodies, 37), 0);
		// Objects of classes that are not known here are kept as bytes, so nothing need be noticed in them.
		LoadChanged(Bytes, Bodies, Bytes.Num(), 11);
	}
}

TEST_F(FHostilePackages, AnObjectThatIsItsOwnOuterClassOrArchetypeIsReported)
{
	TArray<uint8> Bytes;
	FString Text;
	const FString Filename = SaveEveryKind(TEXT("Circle"), Bytes, Text);
	FString Error;
	const TUniquePtr<FLinkerLoad> Whole = FLinkerLoad::Create(Filename, nullptr, Error);
	ASSERT_TRUE(Whole);
	const int32 Offset = Whole->Summary.ExportOffset;
	// An entry begins with the indices of class, super, template and outer; 1 is the entry itself.
	for (int32 Field = 0; Field < 4; ++Field)
	{
		TArray<uint8> Changed = Bytes;
		const int32 Self = 1;
		FMemory::Memcpy(Changed.GetData() + Offset + Field * sizeof(int32), &Self, sizeof(Self));
		TUniquePtr<FLinkerLoad> Linker = Load(MoveTemp(Changed), Error);
		// An outer cannot be made up; an object without a class that is one is kept as bytes.
		if (Field == 3)
		{
			EXPECT_TRUE(!Linker || !Linker->GetErrors().IsEmpty());
		}
		else if (Field == 0)
		{
			EXPECT_TRUE(!Linker || Linker->HasKeptBytes());
		}
		Discard(MoveTemp(Linker));
	}
}

TEST_F(FHostilePackages, ADamagedFileLeavesThePackageLoadableAfterRepair)
{
	TArray<uint8> Bytes;
	FString Text;
	const FString Filename = SaveEveryKind(TEXT("Source"), Bytes, Text);
	const FString Name = Root + TEXT("Repaired");
	const FString Repaired = Folder / TEXT("Repaired.uasset");
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(TArray<uint8>(Bytes.GetData(), Bytes.Num() / 2), *Repaired));
	EXPECT_EQ(LoadPackage(nullptr, *Name, LOAD_Quiet | LOAD_NoWarn), nullptr);
	ASSERT_TRUE(FFileHelper::SaveArrayToFile(Bytes, *Repaired));
	const UPackage* const Package = LoadPackage(nullptr, *Name, LOAD_None);
	ASSERT_TRUE(Package);
	EXPECT_TRUE(StaticFindObject(nullptr, nullptr, *(Name + TEXT(".Thing"))));
}
