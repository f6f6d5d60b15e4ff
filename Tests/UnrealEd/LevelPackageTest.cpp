#include "EditorFixture.h"

#include "Components/SceneComponent.h"
#include "Editor/EditorEngine.h"
#include "EditorAssetLibrary.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "GameFramework/WorldSettings.h"
#include "HAL/FileManager.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Serialization/MemoryWriter.h"
#include "UObject/LinkerLoad.h"
#include "UObject/ObjectPtr.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <filesystem>

namespace
{
/** Writes native data with the indices of the file that the objects came from. */
class FFileFormWriter : public FMemoryWriter
{
public:
	FFileFormWriter(const FLinkerLoad& InLinker, TArray<uint8>& Bytes)
		: FMemoryWriter(Bytes, true)
		, Linker(InLinker)
	{
		SetUEVer(Linker.UEVer());
	}

	using FMemoryWriter::operator<<;
	FArchive& operator<<(UObject*& Value) override
	{
		FPackageIndex Index;
		for (int32 Export = 0; Export < Linker.ExportMap.Num(); ++Export)
		{
			if (Value && Linker.ExportMap[Export].Object.Get() == Value)
			{
				Index = FPackageIndex::FromExport(Export);
			}
		}
		return static_cast<FArchive&>(*this) << Index;
	}
	FArchive& operator<<(FObjectPtr& Value) override { return *this << Value.GetRaw(); }
	FArchive& operator<<(FName& Value) override
	{
		int32 Words[2] = {0, 0};
		Serialize(Words, sizeof(Words));
		return *this;
	}

private:
	const FLinkerLoad& Linker;
};

struct FMapCase
{
	const char* File;
	const TCHAR* Package;
	const TCHAR* Level;
	int32 NumActors;
	const TCHAR* UrlMap;
	/** Size of the level's data behind its properties. */
	int32 NumNativeBytes;
};

const FMapCase Maps[] = {
	{"CesiumUnreal/Tests/Maps/SingleCube.umap", TEXT("/Temp/SingleCubeMap"), TEXT("SingleCube:PersistentLevel"), 3,
		TEXT("/Game/CesiumSamples/Maps/01/01_CesiumWorld"), 223},
	{"AirSim/AirSimAssets.umap", TEXT("/Temp/AirSimAssetsMap"), TEXT("AirSimAssets:PersistentLevel"), 11,
		TEXT("/Game/FlyingCPP/Maps/FlyingExampleMap"), 218},
};

class FLevelPackageTest : public FEditorTest
{
};

TEST_F(FLevelPackageTest, LevelsOfOtherEnginesAreReadToTheirLastByteAndWrittenAlike)
{
	for (const FMapCase& Map : Maps)
	{
		const std::filesystem::path Path = std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages" / Map.File;
		if (!std::filesystem::exists(Path))
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
		SCOPED_TRACE(Map.File);
		UPackage* const Package = CreatePackage(Map.Package);
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(FString(UTF8_TO_TCHAR(Path.c_str())), Package, Error);
		ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
		Linker->LoadAllObjects();
		ULevel* const Level = FindObject<ULevel>(nullptr, *(FString(Map.Package) + TEXT(".") + Map.Level));
		ASSERT_NE(Level, nullptr);
		EXPECT_EQ(Linker->FindUnreadTail(Level), nullptr);
		EXPECT_EQ(Linker->FindUnreadTail(Level->GetWorld()), nullptr);
		EXPECT_FALSE(Linker->MustKeepBytes(Level));
		EXPECT_EQ(Level->Actors.Num(), Map.NumActors);
		EXPECT_EQ(Level->URL.Map, Map.UrlMap);
		EXPECT_EQ(Level->URL.Port, 7777);
		ASSERT_NE(Level->GetWorldSettings(), nullptr);
		EXPECT_EQ(Level->Actors[0], Level->GetWorldSettings());

		TArray<uint8> Written;
		FFileFormWriter Writer(*Linker, Written);
		Level->Serialize(Writer);
		const TArray<uint8> Read = Linker->GetExportBytes(Linker->FindExportOf(Level));
		ASSERT_GE(Written.Num(), Map.NumNativeBytes);
		EXPECT_EQ(FMemory::Memcmp(Written.GetData() + Written.Num() - Map.NumNativeBytes, Read.GetData() + Read.Num() - Map.NumNativeBytes,
					  Map.NumNativeBytes),
			0);
	}
}

/** Forgets the objects of a package, so that the next use loads its file. */
void Unload(const TCHAR* Name)
{
	UPackage* const Package = FindPackage(nullptr, Name);
	ASSERT_NE(Package, nullptr);
	Package->Rename(
		*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/Unloaded")).ToString(), nullptr, REN_DontCreateRedirectors);
}

TEST_F(FLevelPackageTest, NewLevelIsSavedAsAMapWithItsActorsAndItsScript)
{
	UBlueprint* const Lamp = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(TEXT("/Game/BP_Lamp")), TEXT("BP_Lamp"), BPTYPE_Normal);
	USimpleConstructionScript* const Script = Lamp->SimpleConstructionScript;
	USCS_Node* const Pole = Script->CreateNode(USceneComponent::StaticClass(), TEXT("Pole"));
	Script->AddNode(Pole);
	Pole->AddChildNode(Script->CreateNode(USceneComponent::StaticClass(), TEXT("Bulb")));
	FKismetEditorUtilities::CompileBlueprint(Lamp);
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Lamp, false));

	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false, TEXT("L_Lamp"), CreatePackage(TEXT("/Game/L_Lamp")));
	FActorSpawnParameters Parameters;
	Parameters.Name = TEXT("Lamp");
	AActor* const Placed = World->SpawnActor<AActor>(Lamp->GeneratedClass, FVector(10.0, 20.0, 30.0), FRotator(0.0, 90.0, 0.0), Parameters);
	ASSERT_NE(Placed, nullptr);
	Placed->Tags.Add(TEXT("Bright"));
	AActor* const Gone = World->SpawnActor<AActor>();
	World->SpawnActor<AActor>(AActor::StaticClass(), FVector(1.0, 2.0, 3.0), FRotator::ZeroRotator);
	Gone->Destroy();
	const UBlueprint* const LevelScript = World->PersistentLevel->GetLevelScriptBlueprint();
	EXPECT_EQ(LevelScript->GetPathName(), TEXT("/Game/L_Lamp.L_Lamp:PersistentLevel.L_Lamp"));
	EXPECT_EQ(LevelScript->GeneratedClass->GetPathName(), TEXT("/Game/L_Lamp.L_Lamp_C"));
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(World, false));
	EXPECT_TRUE(IFileManager::Get().FileExists(*(GetProjectDir() / TEXT("Content/L_Lamp.umap"))));
	Unload(TEXT("/Game/L_Lamp"));
	Unload(TEXT("/Game/BP_Lamp"));

	const UWorld* const Loaded = Cast<UWorld>(UEditorAssetLibrary::LoadAsset(TEXT("/Game/L_Lamp")));
	ASSERT_TRUE(Loaded && Loaded != World && Loaded->PersistentLevel);
	ULevel& Level = *Loaded->PersistentLevel;
	ASSERT_EQ(Level.Actors.Num(), 4);
	EXPECT_EQ(Level.Actors[0], Level.GetWorldSettings());
	ASSERT_NE(Level.Actors[1], nullptr);
	EXPECT_NE(Level.Actors[1], Placed);
	EXPECT_EQ(Level.Actors[1]->GetClass()->GetPathName(), TEXT("/Game/BP_Lamp.BP_Lamp_C"));
	EXPECT_TRUE(Level.Actors[1]->ActorHasTag(TEXT("Bright")));
	EXPECT_TRUE(Level.Actors[1]->GetActorLocation().Equals(FVector(10.0, 20.0, 30.0)));
	EXPECT_TRUE(Level.Actors[1]->GetActorForwardVector().Equals(FVector(0.0, 1.0, 0.0), 1.e-6));
	ASSERT_NE(Level.Actors[1]->GetRootComponent(), nullptr);
	EXPECT_EQ(Level.Actors[1]->GetRootComponent()->GetName(), TEXT("Pole"));
	EXPECT_EQ(Level.Actors[1]->GetComponents().Num(), 2);
	EXPECT_EQ(Level.Actors[2], nullptr);
	ASSERT_NE(Level.Actors[3], nullptr);
	EXPECT_TRUE(Level.Actors[3]->GetActorLocation().Equals(FVector(1.0, 2.0, 3.0)));
	const ULevelScriptBlueprint* const LoadedScript = Level.GetLevelScriptBlueprint(true);
	ASSERT_NE(LoadedScript, nullptr);
	EXPECT_EQ(LoadedScript->UbergraphPages.Num(), 1);
}

TEST_F(FLevelPackageTest, PlacedActorKeepsItsPlaceAndItsComponentsWhenItsBlueprintIsCompiled)
{
	UBlueprint* const Bell = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(TEXT("/Game/BP_Bell")), TEXT("BP_Bell"), BPTYPE_Normal);
	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false);
	World->SpawnActor<AActor>(Bell->GeneratedClass, FVector(7.0, 8.0, 9.0), FRotator::ZeroRotator);
	USimpleConstructionScript* const Script = Bell->SimpleConstructionScript;
	Script->AddNode(Script->CreateNode(USceneComponent::StaticClass(), TEXT("Rope")));
	FKismetEditorUtilities::CompileBlueprint(Bell);
	World->SpawnActor<AActor>(Bell->GeneratedClass, FVector(1.0, 2.0, 3.0), FRotator::ZeroRotator);
	FKismetEditorUtilities::CompileBlueprint(Bell);
	const FVector Places[] = {FVector(7.0, 8.0, 9.0), FVector(1.0, 2.0, 3.0)};
	ASSERT_EQ(World->PersistentLevel->Actors.Num(), 3);
	for (int32 Index = 0; Index < 2; ++Index)
	{
		const AActor* const Placed = World->PersistentLevel->Actors[Index + 1];
		ASSERT_TRUE(IsValid(Placed) && Placed->GetRootComponent());
		EXPECT_EQ(Placed->GetClass(), Bell->GeneratedClass);
		EXPECT_EQ(Placed->GetRootComponent()->GetName(), TEXT("Rope"));
		EXPECT_TRUE(Placed->GetActorLocation().Equals(Places[Index]));
	}
	World->DestroyWorld(false);
}

TEST_F(FLevelPackageTest, ToCompileTheBlueprintOfAPlacedActorIsNoEditOfItsLevel)
{
	UBlueprint* const Buoy = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(TEXT("/Game/BP_Buoy")), TEXT("BP_Buoy"), BPTYPE_Normal);
	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false, TEXT("L_Buoy"), CreatePackage(TEXT("/Game/L_Buoy")));
	AActor* const Placed = World->SpawnActor<AActor>(Buoy->GeneratedClass, FVector(7.0, 8.0, 9.0), FRotator::ZeroRotator);
	for (const bool bEdited : {false, true})
	{
		World->GetPackage()->SetDirtyFlag(bEdited);
		FKismetEditorUtilities::CompileBlueprint(Buoy);
		EXPECT_EQ(World->GetPackage()->IsDirty(), bEdited);
	}
	EXPECT_NE(World->PersistentLevel->Actors[1], Placed);
	World->DestroyWorld(false);
}

TEST_F(FLevelPackageTest, AProjectWithoutAMapOpensAnEmptyWorld)
{
	const UWorld* const World = GEditor->GetEditorWorldContext().World();
	ASSERT_NE(World, nullptr);
	EXPECT_EQ(World->GetName(), TEXT("Untitled"));
}
}
