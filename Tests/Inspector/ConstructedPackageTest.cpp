#include "ConstructedPackage.h"
#include "InspectorFixture.h"

#include "UObject/CoreObjectVersion.h"
#include "UObject/FrameworkObjectVersion.h"
#include "UObject/GarbageCollection.h"
#include "UObject/LinkerSave.h"
#include "UObject/Package.h"
#include "UObject/PackageSections.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <numeric>

namespace
{
/** Parts of packages that no sample has, and parts that no editor would write. */
class FConstructedPackageTest : public testing::Test
{
protected:
	void SetUp() override { ProcessNewlyLoadedUObjects(); }
	void TearDown() override
	{
		for (UPackage* const Package : Loaded)
		{
			ForEachObjectWithPackage(Package, [](UObject* Object)
				{
					Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
					return true; });
		}
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}

	/** Null, with the reason, when the file is refused; OutErrors has what was wrong with single objects too. */
	TUniquePtr<FLinkerLoad> Load(const FBytes& File, TArray<FString>& OutErrors)
	{
		static int32 NumLoaded = 0;
		UPackage* const Package = CreatePackage(*FString::Printf(TEXT("/Constructed/Loaded%d"), ++NumLoaded));
		Loaded.push_back(Package);
		FString Error;
		TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(TArray<uint8>(File.data(), int32(File.size())), TEXT("constructed"), Package, Error);
		if (!Linker)
		{
			OutErrors.Add(Error);
			return nullptr;
		}
		Linker->LoadAllObjects();
		Linker->TakeFingerprints();
		OutErrors.Append(Linker->GetErrors());
		return Linker;
	}

	/** The file in its own form after an object has got a longer name. */
	static FBytes SaveWithLongName(FLinkerLoad& Linker, const TCHAR* Object)
	{
		UObject* const Renamed = FindObject<UObject>(Linker.LinkerRoot, Object);
		EXPECT_TRUE(Renamed && Renamed->Rename(TEXT("AnObjectWithANameThatMakesTheTablesLonger"), nullptr, REN_DontCreateRedirectors));
		FLinkerSave Saver(Linker.LinkerRoot, TEXT("constructed"));
		Saver.StartFromTablesOf(Linker);
		FString Error;
		EXPECT_TRUE(Saver.WriteExports(Error)) << TCHAR_TO_UTF8(*Error);
		const TArray<uint8> File = Saver.MakeFile(Error);
		EXPECT_FALSE(File.IsEmpty()) << TCHAR_TO_UTF8(*Error);
		return FBytes(File.GetData(), File.GetData() + File.Num());
	}

	static std::vector<std::string> GetTexts(const FJsonObject& Owner, const TCHAR* List)
	{
		std::vector<std::string> Texts;
		const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
		if (Owner.TryGetArrayField(List, Values))
		{
			for (const TSharedPtr<FJsonValue>& Value : *Values)
			{
				Texts.push_back(TCHAR_TO_UTF8(*Value->AsString()));
			}
		}
		return Texts;
	}

	static TSharedPtr<FJsonObject> GetElement(const FJsonObject& Owner, const TCHAR* List, int32 Index)
	{
		const FObjects Objects = GetObjects(Owner, List);
		EXPECT_LT(size_t(Index), Objects.size()) << TCHAR_TO_UTF8(List);
		return size_t(Index) < Objects.size() ? Objects[size_t(Index)] : TSharedPtr<FJsonObject>(MakeShared<FJsonObject>());
	}

	static FBytes MakeNoise(size_t Size)
	{
		FBytes Noise(Size);
		std::iota(Noise.begin(), Noise.end(), uint8(7));
		return Noise;
	}

	std::vector<UPackage*> Loaded;
};

/** Two objects of a class that is not known here, one within the other. */
FConstructedPackage MakeTwoObjects()
{
	FConstructedPackage Package;
	const int32 Class = Package.AddClass("/Script/Nowhere", "Thing");
	const int32 Outer = Package.AddObject(Class, "Outer");
	Package.AddObject(Class, "Inner", Outer);
	return Package;
}

TEST_F(FConstructedPackageTest, TablesAreReadAsTheyWereWritten)
{
	FConstructedPackage Package = MakeTwoObjects();
	Package.SoftReferences = {"/Game/Far", "/Game/Near"};
	TArray<FString> Errors;
	const TSharedPtr<FJsonObject> Document = FInspectorTest::Inspect(Package.Build(), Errors);
	ASSERT_TRUE(Document && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	EXPECT_EQ(Document->GetStringField(TEXT("package_name")), FString(TEXT("/Constructed/Package")));
	EXPECT_EQ(GetElement(*Document, TEXT("imports"), 1)->GetStringField(TEXT("path")), FString(TEXT("/Script/Nowhere.Thing")));
	EXPECT_EQ(GetElement(*Document, TEXT("exports"), 1)->GetStringField(TEXT("path")), FString(TEXT("/Constructed/Package.Outer:Inner")));
	EXPECT_EQ(GetElement(*Document, TEXT("exports"), 1)->GetNumberField(TEXT("native_size")), 0);
	EXPECT_EQ(GetTexts(*Document, TEXT("soft_references")), (std::vector<std::string>{"/Game/Far", "/Game/Near"}));
}

TEST_F(FConstructedPackageTest, PreloadDependenciesAreToldByPathAndKeptWhenTheTablesGrow)
{
	FConstructedPackage Package = MakeTwoObjects();
	Package.PreloadDependencies = {-2, 1, -2};
	const int32 OfOuter[] = {0, 0, 1, 0, 0};
	const int32 OfInner[] = {1, 1, 0, 1, 0};
	std::copy(std::begin(OfOuter), std::end(OfOuter), Package.Exports[0].Preload);
	std::copy(std::begin(OfInner), std::end(OfInner), Package.Exports[1].Preload);
	const FBytes File = Package.Build();
	TArray<FString> Errors;
	const TUniquePtr<FLinkerLoad> Linker = Load(File, Errors);
	ASSERT_TRUE(Linker && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	EXPECT_EQ(Linker->ExportMap[1].FirstExportDependency, 1);
	EXPECT_EQ(Linker->ExportMap[1].SerializationBeforeSerializationDependencies, 1);
	EXPECT_EQ(Linker->ExportMap[0].CreateBeforeSerializationDependencies, 1);
	const FBytes Written = SaveWithLongName(*Linker, TEXT("Outer"));
	ASSERT_GT(Written.size(), File.size());
	const std::vector<std::string> Expected = {"/Script/Nowhere.Thing", "/Constructed/Package.Outer", "/Script/Nowhere.Thing"};
	EXPECT_EQ(GetTexts(*FInspectorTest::Inspect(File, Errors), TEXT("preload_dependencies")), Expected);
	const TSharedPtr<FJsonObject> After = FInspectorTest::Inspect(Written, Errors);
	ASSERT_TRUE(After && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	EXPECT_EQ(GetTexts(*After, TEXT("preload_dependencies")).size(), Expected.size());
	EXPECT_EQ(GetTexts(*After, TEXT("preload_dependencies"))[0], Expected[0]);
}

TEST_F(FConstructedPackageTest, BulkDataOfDataResourcesStaysWhereItIsFoundFromItsTable)
{
	FConstructedPackage Package = MakeTwoObjects();
	Package.BulkData = MakeNoise(1000);
	Package.DataResources = {{0, 0, -1, 300, 300, 1, 0x10u}, {0, 300, -1, 700, 9000, 2, 0x2u}};
	const FBytes File = Package.Build();
	TArray<FString> Errors;
	const TSharedPtr<FJsonObject> Document = FInspectorTest::Inspect(File, Errors);
	ASSERT_TRUE(Document && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	const TSharedPtr<FJsonObject> Second = GetElement(*Document, TEXT("data_resources"), 1);
	EXPECT_EQ(Second->GetStringField(TEXT("owner")), FString(TEXT("/Constructed/Package.Outer:Inner")));
	EXPECT_EQ(Second->GetNumberField(TEXT("offset")), 300);
	EXPECT_EQ(Second->GetNumberField(TEXT("size")), 700);
	EXPECT_EQ(Second->GetNumberField(TEXT("raw_size")), 9000);
	EXPECT_EQ(Second->GetStringField(TEXT("bulk_data_flags")), FString(TEXT("0x00000002")));

	const TUniquePtr<FLinkerLoad> Linker = Load(File, Errors);
	ASSERT_TRUE(Linker);
	EXPECT_EQ(Linker->Summary.BulkDataStartOffset, Package.BulkDataOffset);
	const FBytes Written = SaveWithLongName(*Linker, TEXT("Outer"));
	const TUniquePtr<FLinkerLoad> After = Load(Written, Errors);
	ASSERT_TRUE(After && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	ASSERT_GT(After->Summary.BulkDataStartOffset, Package.BulkDataOffset);
	TArray<FPackageDataResource> Resources;
	FString Error;
	ASSERT_TRUE(FPackageSections::ReadDataResources(*After, Resources, Error)) << TCHAR_TO_UTF8(*Error);
	ASSERT_EQ(Resources.Num(), 2);
	EXPECT_EQ(Resources[1].DuplicateSerialOffset, -1);
	const TArray<uint8> Bytes = After->ReadBytes(After->Summary.BulkDataStartOffset + Resources[1].SerialOffset, Resources[1].SerialSize);
	ASSERT_EQ(Bytes.Num(), 700);
	EXPECT_EQ(FBytes(Bytes.GetData(), Bytes.GetData() + Bytes.Num()), FBytes(Package.BulkData.begin() + 300, Package.BulkData.end()));
}

TEST_F(FConstructedPackageTest, PayloadsAreToldFromTheirIndexAndFollowIt)
{
	FConstructedPackage Package = MakeTwoObjects();
	Package.PayloadData = MakeNoise(64);
	Package.Payloads = {{0xab, 0, 24, 100}, {0xcd, 24, 40, 40}, {0xef, -1, 5000, 6000}};
	const FBytes File = Package.Build();
	TArray<FString> Errors;
	const TSharedPtr<FJsonObject> Document = FInspectorTest::Inspect(File, Errors);
	ASSERT_TRUE(Document && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	const TSharedPtr<FJsonObject> First = GetElement(*Document, TEXT("payloads"), 0);
	EXPECT_TRUE(First->GetStringField(TEXT("id")).StartsWith(TEXT("ABAB"))) << TCHAR_TO_UTF8(*First->GetStringField(TEXT("id")));
	EXPECT_EQ(First->GetNumberField(TEXT("compressed_size")), 24);
	EXPECT_EQ(First->GetNumberField(TEXT("raw_size")), 100);
	// Kept in another store: no place in this file.
	EXPECT_EQ(GetElement(*Document, TEXT("payloads"), 2)->GetNumberField(TEXT("offset")), -1);

	const TUniquePtr<FLinkerLoad> Linker = Load(File, Errors);
	ASSERT_TRUE(Linker);
	const FBytes Written = SaveWithLongName(*Linker, TEXT("Outer"));
	const TUniquePtr<FLinkerLoad> After = Load(Written, Errors);
	ASSERT_TRUE(After && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	const int64 IndexBytes = int64(File.size()) - Package.PayloadIndexOffset;
	EXPECT_EQ(After->ReadBytes(After->Summary.PayloadTocOffset, IndexBytes), Linker->ReadBytes(Package.PayloadIndexOffset, IndexBytes));
	EXPECT_EQ(After->Summary.PayloadTocOffset + IndexBytes, After->GetFileSize());
}

TEST_F(FConstructedPackageTest, APayloadOrAnOwnerThatIsNotInTheFileIsToldWithItsOffset)
{
	FConstructedPackage Package = MakeTwoObjects();
	Package.PayloadData = MakeNoise(64);
	Package.Payloads = {{0xab, 0, 24, 100}, {0xcd, 24, int64(1) << 62, 40}};
	TArray<FString> Errors;
	EXPECT_TRUE(FInspectorTest::Inspect(Package.Build(), Errors));
	ASSERT_EQ(Errors.Num(), 1);
	EXPECT_TRUE(Errors[0].StartsWith(TEXT("the bulk data are damaged at offset "))) << TCHAR_TO_UTF8(*Errors[0]);

	FConstructedPackage WithResource = MakeTwoObjects();
	WithResource.DataResources = {{0, 0, -1, 300, 300, 77, 0}};
	Errors.Reset();
	EXPECT_TRUE(FInspectorTest::Inspect(WithResource.Build(), Errors));
	ASSERT_EQ(Errors.Num(), 1);
	EXPECT_TRUE(Errors[0].StartsWith(TEXT("the data resources are damaged at offset "))) << TCHAR_TO_UTF8(*Errors[0]);
}

TEST_F(FConstructedPackageTest, ExportsThatClaimEachOthersBytesAreRefused)
{
	FConstructedPackage Package = MakeTwoObjects();
	FBytes File = Package.Build();
	TArray<FString> Errors;
	const TUniquePtr<FLinkerLoad> Whole = Load(File, Errors);
	ASSERT_TRUE(Whole);
	const int64 Offset = Whole->ExportMap[0].SerialOffset;
	for (const int64 Claimed : {Offset, Offset + 1, int64(0), int64(Whole->Summary.TotalHeaderSize) - 1})
	{
		FBytes Changed = File;
		Package.Patch<int64_t>(Changed, "export 1 offset", Claimed);
		Errors.Reset();
		EXPECT_FALSE(Load(Changed, Errors)) << Claimed;
		ASSERT_EQ(Errors.Num(), 1);
		EXPECT_TRUE(Errors[0].Contains(TEXT(" claims bytes at offset "))) << TCHAR_TO_UTF8(*Errors[0]);
	}
}

TEST_F(FConstructedPackageTest, CirclesOfOutersAndSupersAndClassesEndInErrors)
{
	FConstructedPackage Package = MakeTwoObjects();
	// Two classes that the package defines, neither with a definition that can be read.
	Package.AddObject(0, "FirstClass");
	Package.AddObject(0, "SecondClass");
	const FBytes File = Package.Build();
	using FPatches = std::vector<std::pair<std::string, int32_t>>;
	const FPatches Cases[] = {
		{{"export 0 outer", 1}},
		{{"export 0 outer", 2}},
		{{"export 0 class", 1}},
		{{"export 0 class", 3}, {"export 2 outer", 1}},
		{{"export 2 super", 3}},
		{{"export 2 super", 4}, {"export 3 super", 3}},
		{{"export 0 class", 3}, {"export 2 super", 4}, {"export 3 super", 3}, {"export 2 outer", 2}},
		{{"export 0 template", 2}, {"export 1 template", 1}},
		{{"import 0 outer", -2}},
		{{"import 1 outer", -2}},
		{{"import 1 outer", 1}},
	};
	for (size_t Index = 0; Index < std::size(Cases); ++Index)
	{
		SCOPED_TRACE(Index);
		FBytes Changed = File;
		for (const auto& [Place, Value] : Cases[Index])
		{
			Package.Patch<int32_t>(Changed, Place, Value);
		}
		TArray<FString> Errors;
		const TSharedPtr<FJsonObject> Document = FInspectorTest::Inspect(Changed, Errors);
		EXPECT_TRUE(Document || !Errors.IsEmpty());
		TArray<FString> LoadErrors;
		const TUniquePtr<FLinkerLoad> Linker = Load(Changed, LoadErrors);
		// The classes have no definition, so something is always told; nothing may hang or be followed without end.
		EXPECT_FALSE(LoadErrors.IsEmpty());
		if (Linker)
		{
			FLinkerSave Saver(Linker->LinkerRoot, TEXT("constructed"));
			Saver.StartFromTablesOf(*Linker);
			FString Error;
			EXPECT_TRUE((Saver.WriteExports(Error) && !Saver.MakeFile(Error).IsEmpty()) || !Error.IsEmpty());
		}
	}
}

TEST_F(FConstructedPackageTest, EveryFieldOfTheTablesMayHoldAnyNumber)
{
	FConstructedPackage Package = MakeTwoObjects();
	Package.PreloadDependencies = {-2, 1};
	Package.DataResources = {{0, 0, -1, 10, 10, 1, 0}};
	Package.BulkData = MakeNoise(10);
	Package.Payloads = {{1, 0, 4, 4}};
	Package.PayloadData = MakeNoise(4);
	const FBytes File = Package.Build();
	int32 NumNoticed = 0;
	int32 NumTried = 0;
	for (const auto& [Place, Position] : Package.Places)
	{
		for (const int32 Number : {MAX_int32, MIN_int32, -1, 0, 1, 0x00ffffff, int32(File.size()) - 1, int32(Position)})
		{
			SCOPED_TRACE(Place + " = " + std::to_string(Number));
			FBytes Changed = File;
			Package.Patch<int32_t>(Changed, Place, Number);
			TArray<FString> Errors;
			const bool bInspected = FInspectorTest::Inspect(Changed, Errors).IsValid();
			EXPECT_TRUE(bInspected || !Errors.IsEmpty());
			TArray<FString> LoadErrors;
			EXPECT_EQ(Load(Changed, LoadErrors).IsValid(), bInspected);
			++NumTried;
			NumNoticed += Errors.IsEmpty() ? 0 : 1;
		}
	}
	EXPECT_GT(NumNoticed * 2, NumTried);
}

/** Definitions of structs and classes with members, of versions that have properties within them. */
class FDefinedTypes
{
public:
	FDefinedTypes()
	{
		AddVersion(FCoreObjectVersion::GUID, FCoreObjectVersion::LatestVersion);
		AddVersion(FFrameworkObjectVersion::GUID, FFrameworkObjectVersion::LatestVersion);
	}

	/** A struct with one member: numbers of eight bytes, or values of another struct. */
	int32 AddStruct(const std::string& Name, int32 ArrayDim, int32 MemberStruct)
	{
		const int32 StructClass = FindClass("ScriptStruct");
		const int32 Struct = Package.AddObject(StructClass, Name);
		FBytes& Value = Package.Exports.back().Value;
		FConstructedPackage::Put<int32>(Value, 0);
		FConstructedPackage::Put<int32>(Value, 0);
		FConstructedPackage::Put<int32>(Value, 1);
		PutMember(Value, MemberStruct == 0 ? "Int64Property" : "StructProperty", "Member", ArrayDim, MemberStruct);
		PutScript(Value);
		FConstructedPackage::Put<uint32>(Value, 0);
		return Struct;
	}

	/** A class with one member, a list of structs. */
	int32 AddClassWithList(const std::string& Name, int32 Struct)
	{
		Package.AddObject(0, Name);
		const int32 Class = int32(Package.Exports.size());
		FBytes Value;
		FConstructedPackage::Put<uint32>(Value, 0);
		FConstructedPackage::Put<int32>(Value, FindClass("Object"));
		FConstructedPackage::Put<int32>(Value, 0);
		FConstructedPackage::Put<int32>(Value, 1);
		PutMember(Value, "ArrayProperty", "List", 1, 0);
		PutMember(Value, "StructProperty", "List", 1, Struct);
		PutScript(Value);
		// Functions, flags, within, configuration, Blueprint, interfaces, order, a name, cooked, default object.
		for (const int32 Word : {0, 0, FindClass("Object")})
		{
			FConstructedPackage::Put<int32>(Value, Word);
		}
		Package.PutName(Value, "Engine");
		for (int32 Word = 0; Word < 3; ++Word)
		{
			FConstructedPackage::Put<int32>(Value, 0);
		}
		Package.PutName(Value, "None");
		FConstructedPackage::Put<int32>(Value, 0);
		FConstructedPackage::Put<int32>(Value, 0);
		Package.Exports.back().Value = Value;
		Package.Exports.back().Super = FindClass("Object");
		return Class;
	}

	int32 FindClass(const std::string& Name)
	{
		for (size_t Index = 0; Index < Package.Imports.size(); ++Index)
		{
			if (Package.Imports[Index].Name == Name)
			{
				return -int32(Index) - 1;
			}
		}
		return Package.AddClass("/Script/CoreUObject", Name);
	}

	FConstructedPackage Package;

private:
	void AddVersion(const FGuid& Id, int32 Version) { Package.CustomVersions.push_back({{Id.A, Id.B, Id.C, Id.D}, Version}); }

	void PutMember(FBytes& Value, const std::string& Kind, const std::string& Name, int32 ArrayDim, int32 Struct)
	{
		Package.PutName(Value, Kind);
		Package.PutName(Value, Name);
		// Flags of the field, no metadata.
		FConstructedPackage::Put<uint32>(Value, 0);
		FConstructedPackage::Put<uint32>(Value, 0);
		FConstructedPackage::Put<int32>(Value, ArrayDim);
		FConstructedPackage::Put<int32>(Value, 8);
		FConstructedPackage::Put<uint64>(Value, 0);
		FConstructedPackage::Put<uint16>(Value, 0);
		Package.PutName(Value, "None");
		FConstructedPackage::Put<uint8>(Value, 0);
		if (Struct != 0)
		{
			FConstructedPackage::Put<int32>(Value, Struct);
		}
	}

	static void PutScript(FBytes& Value) { FConstructedPackage::Put<uint64>(Value, 0); }
};

UScriptStruct* FindStruct(const FLinkerLoad& Linker, const TCHAR* Name)
{
	return FindObject<UScriptStruct>(Linker.LinkerRoot, Name);
}

TEST_F(FConstructedPackageTest, StructsWithinStructsGrowNoLargerThanMemory)
{
	constexpr int32 MostElements = 1 << 16;
	constexpr int32 MaxStructBytes = 1 << 24;
	FDefinedTypes Types;
	int32 Inner = 0;
	for (const char* const Name : {"First", "Second", "Third", "Fourth"})
	{
		Inner = Types.AddStruct(Name, MostElements, Inner);
	}
	TArray<FString> Errors;
	const TUniquePtr<FLinkerLoad> Linker = Load(Types.Package.Build(), Errors);
	ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Errors[0]);
	ASSERT_TRUE(FindStruct(*Linker, TEXT("First")));
	EXPECT_EQ(FindStruct(*Linker, TEXT("First"))->GetStructureSize(), MostElements * 8);
	for (const TCHAR* const Name : {TEXT("Second"), TEXT("Third"), TEXT("Fourth")})
	{
		ASSERT_TRUE(FindStruct(*Linker, Name));
		EXPECT_GE(FindStruct(*Linker, Name)->GetStructureSize(), 0);
		EXPECT_LE(FindStruct(*Linker, Name)->GetStructureSize(), MaxStructBytes);
	}
	EXPECT_FALSE(Errors.IsEmpty());
}

TEST_F(FConstructedPackageTest, StructsThatHoldOneAnotherAreRefusedAsDamaged)
{
	constexpr int32 FirstStruct = 1;
	constexpr int32 SecondStruct = 2;
	for (const auto& [MemberOfFirst, MemberOfSecond] : {std::pair(FirstStruct, 0), std::pair(SecondStruct, FirstStruct)})
	{
		FDefinedTypes Types;
		Types.AddStruct("First", 2, MemberOfFirst);
		Types.AddStruct("Second", 2, MemberOfSecond);
		TArray<FString> Errors;
		const TUniquePtr<FLinkerLoad> Linker = Load(Types.Package.Build(), Errors);
		ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Errors[0]);
		EXPECT_FALSE(Errors.IsEmpty());
	}
}

TEST_F(FConstructedPackageTest, AStructThatIsReadAfterItsListHasItsSizeThere)
{
	constexpr int32 NumbersOfStruct = 50;
	FDefinedTypes Types;
	// The class comes first in the file and holds a list of what comes last.
	constexpr int32 LastStruct = 3;
	const int32 Class = Types.AddClassWithList("Holder", LastStruct);
	Types.Package.AddObject(Class, "Thing");
	ASSERT_EQ(Types.AddStruct("Large", NumbersOfStruct, 0), LastStruct);
	TArray<FString> Errors;
	const TUniquePtr<FLinkerLoad> Linker = Load(Types.Package.Build(), Errors);
	ASSERT_TRUE(Linker && Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
	const UObject* const Thing = FindObject<UObject>(Linker->LinkerRoot, TEXT("Thing"));
	ASSERT_TRUE(Thing);
	const FArrayProperty* const List = FindFProperty<FArrayProperty>(Thing->GetClass(), TEXT("List"));
	ASSERT_TRUE(List);
	EXPECT_EQ(List->Inner->GetElementSize(), NumbersOfStruct * 8);
}

TEST_F(FConstructedPackageTest, FewBytesOfAFileDoNotAskForManyLargeElements)
{
	constexpr int32 NumElements = 100'000;
	constexpr int32 NumbersOfStruct = 8'192;
	FDefinedTypes Types;
	const int32 Large = Types.AddStruct("Large", NumbersOfStruct, 0);
	const int32 Class = Types.AddClassWithList("Holder", Large);
	for (const int32 Count : {3, NumElements})
	{
		FDefinedTypes Case = Types;
		Case.Package.AddObject(Class, "Thing");
		FBytes& Value = Case.Package.Exports.back().Value;
		Value.clear();
		FConstructedPackage::Put<uint8>(Value, 0);
		Case.Package.PutName(Value, "List");
		for (const auto& [Node, NumInner] : {std::pair("ArrayProperty", 1), std::pair("StructProperty", 1), std::pair("Large", 1), std::pair("/Constructed/Package", 0)})
		{
			Case.Package.PutName(Value, Node);
			FConstructedPackage::Put<int32>(Value, NumInner);
		}
		FConstructedPackage::Put<int32>(Value, 4 + Count * 8);
		FConstructedPackage::Put<uint8>(Value, 0);
		FConstructedPackage::Put<int32>(Value, Count);
		for (int32 Index = 0; Index <= Count; ++Index)
		{
			Case.Package.PutName(Value, "None");
		}
		FConstructedPackage::Put<uint32>(Value, 0);
		TArray<FString> Errors;
		const TUniquePtr<FLinkerLoad> Linker = Load(Case.Package.Build(), Errors);
		ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Errors[0]);
		const UObject* const Thing = FindObject<UObject>(Linker->LinkerRoot, TEXT("Thing"));
		ASSERT_TRUE(Thing);
		const FArrayProperty* const List = FindFProperty<FArrayProperty>(Thing->GetClass(), TEXT("List"));
		ASSERT_TRUE(List);
		const int32 NumRead = FScriptArrayHelper(List, List->ContainerPtrToValuePtr<void>(Thing)).Num();
		if (Count == 3)
		{
			EXPECT_EQ(NumRead, 3);
			EXPECT_TRUE(Errors.IsEmpty()) << TCHAR_TO_UTF8(*Errors[0]);
			continue;
		}
		constexpr int64 MostBytes = 512 << 20;
		EXPECT_LT(int64(NumRead) * NumbersOfStruct * 8, MostBytes);
		EXPECT_FALSE(Errors.IsEmpty());
	}
}
}
