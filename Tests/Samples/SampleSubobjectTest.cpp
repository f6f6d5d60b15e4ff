#include "EditorFixture.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace
{
/** A package that the real editor wrote, with all its objects. */
class FSamplePackage
{
public:
	explicit FSamplePackage(const std::filesystem::path& File)
		: Package(CreatePackage(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/SampleSubobjects")).ToString()))
	{
		FString Error;
		Linker = FLinkerLoad::Create(FString(UTF8_TO_TCHAR(File.c_str())), Package, Error);
		EXPECT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
	}

	UPackage* Package;
	TUniquePtr<FLinkerLoad> Linker;
};

std::vector<std::filesystem::path> ListSamples()
{
	std::vector<std::filesystem::path> Files;
	std::error_code Missing;
	const std::filesystem::path Folder = std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages";
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder, Missing))
	{
		if (Entry.path().extension() == ".uasset" || Entry.path().extension() == ".umap")
		{
			Files.push_back(Entry.path());
		}
	}
	return Files;
}

/** The nearest class whose constructor this host does not have in C++, if the class has such a super or is one; else null. */
const UClass* FindDeclared(const UClass* Class)
{
	while (Class && !Class->bLaidOutAtRunTime)
	{
		Class = Class->GetSuperClass();
	}
	return Class;
}

/** Packages whose objects have sub-objects that constructors in C++ have made. */
class FSampleSubobjectTest : public FEditorTest
{
protected:
	void SetUp() override
	{
		FEditorTest::SetUp();
		if (ListSamples().empty())
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
	}
};

TEST_F(FSampleSubobjectTest, EverySubobjectOfADeclaredClassThatAPackageNamesIsMade)
{
	std::set<std::string> Found;
	for (const std::filesystem::path& File : ListSamples())
	{
		SCOPED_TRACE(File.filename());
		const FSamplePackage Sample(File);
		ASSERT_TRUE(Sample.Linker);
		for (int32 Index = 0; Index < Sample.Linker->ImportMap.Num(); ++Index)
		{
			const FString Path = Sample.Linker->GetImportPathName(Index);
			FString Owner;
			FString Name;
			const bool bIsSubobject = Path.StartsWith(TEXT("/Script/")) && Path.Split(TEXT(":"), &Owner, &Name) &&
				Owner.Contains(TEXT(".Default__"));
			const UClass* const Class =
				bIsSubobject ? FindObject<UClass>(nullptr, *Owner.Replace(TEXT("Default__"), TEXT(""))) : nullptr;
			if (!Class || !FindDeclared(Class))
			{
				continue;
			}
			const UObject* const Object = StaticFindObject(nullptr, nullptr, *Path);
			ASSERT_TRUE(Object && !UE::CoreUObject::IsPlaceholder(Object)) << TCHAR_TO_UTF8(*Path);
			EXPECT_EQ(Object->GetClass()->GetClassPathName(), Sample.Linker->GetImportClassPath(Index)) << TCHAR_TO_UTF8(*Path);
			EXPECT_TRUE(Object->HasAnyFlags(RF_DefaultSubObject));
			Found.insert(TCHAR_TO_UTF8(*Path));
		}
	}
	for (const char* const Path : {"/Script/Engine.Default__Brush:BrushComponent0", "/Script/Engine.Default__SpotLight:ArrowComponent0",
			 "/Script/Engine.Default__SpotLight:LightComponent0", "/Script/Engine.Default__StaticMeshActor:StaticMeshComponent0",
			 "/Script/UMGEditor.Default__WidgetBlueprint:WidgetTree"})
	{
		EXPECT_TRUE(Found.contains(Path)) << Path;
	}
}

TEST_F(FSampleSubobjectTest, LoadedObjectsHaveTheirSubobjectsOnce)
{
	int32 NumParts = 0;
	for (const std::filesystem::path& File : ListSamples())
	{
		SCOPED_TRACE(File.filename());
		const FSamplePackage Sample(File);
		ASSERT_TRUE(Sample.Linker);
		FLinkerLoad& Linker = *Sample.Linker;
		Linker.LoadAllObjects();
		for (int32 Index = 0; Index < Linker.ExportMap.Num(); ++Index)
		{
			const UObject* const Object = Linker.ExportMap[Index].Object.Get();
			// A native class's own constructor makes what it makes; what an unknown class makes nobody knows.
			if (!Object || !Object->GetClass()->bLaidOutAtRunTime || UE::CoreUObject::IsPlaceholder(Object->GetClass()))
			{
				continue;
			}
			TArray<UObject*> Inside;
			GetObjectsWithOuter(Object, Inside, false);
			for (const UObject* const Part : Inside)
			{
				// What the constructor makes beyond the file has no place in an object that the editor saved with all its parts.
				const int32 Export = Linker.FindExportOf(Part);
				EXPECT_NE(Export, INDEX_NONE) << TCHAR_TO_UTF8(*Part->GetPathName());
				if (Export == INDEX_NONE || (Linker.ExportMap[Export].ObjectFlags & RF_DefaultSubObject) == 0)
				{
					continue;
				}
				++NumParts;
				const UObject* const Archetype = Part->GetArchetype();
				EXPECT_EQ(Archetype->GetOuter(), Object->GetArchetype()) << TCHAR_TO_UTF8(*Part->GetPathName());
				EXPECT_EQ(Archetype->GetFName(), Part->GetFName());
			}
		}
	}
	EXPECT_GE(NumParts, 5);
}

TEST_F(FSampleSubobjectTest, MembersOfAPlacedActorLeadToItsOwnSubobjects)
{
	for (const std::filesystem::path& File : ListSamples())
	{
		if (File.filename() != "SingleCube.umap")
		{
			continue;
		}
		const FSamplePackage Sample(File);
		ASSERT_TRUE(Sample.Linker);
		Sample.Linker->LoadAllObjects();
		const UObject* const Cube = StaticFindObject(
			nullptr, nullptr, *(Sample.Package->GetName() + TEXT(".SingleCube:PersistentLevel.StaticMeshActor_1")));
		ASSERT_NE(Cube, nullptr);
		for (const TCHAR* const Member : {TEXT("StaticMeshComponent"), TEXT("RootComponent")})
		{
			const FObjectProperty* const Property = FindFProperty<FObjectProperty>(Cube->GetClass(), Member);
			ASSERT_NE(Property, nullptr);
			const UObject* const Component = Property->GetObjectPropertyValue_InContainer(Cube);
			ASSERT_NE(Component, nullptr);
			EXPECT_EQ(Component->GetPathName(Cube), TEXT("StaticMeshComponent0"));
			const FProperty* const Location = Component->GetClass()->FindPropertyByName(TEXT("RelativeLocation"));
			EXPECT_EQ(*Location->ContainerPtrToValuePtr<FVector>(Component), FVector(100.0, 200.0, 300.0));
		}
		return;
	}
	FAIL() << "SingleCube.umap is no longer among the samples";
}
}
