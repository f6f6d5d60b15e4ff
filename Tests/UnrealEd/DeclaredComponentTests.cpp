#include "BlueprintEditTest.h"

#include "Components/SceneComponent.h"
#include "EditorAssetLibrary.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/World.h"
#include "Misc/FileHelper.h"
#include "UObject/GarbageCollection.h"
#include "UObject/LinkerLoad.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <set>

namespace
{
const TCHAR* const CharacterMembers[] = {TEXT("Mesh"), TEXT("CapsuleComponent"), TEXT("CharacterMovement"), TEXT("ArrowComponent")};

/** Blueprints of classes that the engine has in C++ and this host only as declarations. */
class FDeclaredComponentTest : public FBlueprintEditTest
{
protected:
	static UClass* GetClass(const TCHAR* Name) { return FindObject<UClass>(nullptr, *(FString(TEXT("/Script/Engine.")) + Name)); }
	static UBlueprint* MakeCharacter(const TCHAR* Name = TEXT("BP_Walker")) { return MakeBlueprint(Name, GetClass(TEXT("Character"))); }
	static UObject* GetDefaults(const UBlueprint& Blueprint) { return Blueprint.GeneratedClass->GetDefaultObject(); }
	static UObject* Get(const UObject* Object, const TCHAR* Member)
	{
		return FindFProperty<FObjectProperty>(Object->GetClass(), Member)->GetObjectPropertyValue_InContainer(Object);
	}
	static USceneComponent* GetMesh(const UObject* Actor) { return CastChecked<USceneComponent>(Get(Actor, TEXT("Mesh"))); }
	static USceneComponent* GetMesh(const UBlueprint& Blueprint) { return GetMesh(GetDefaults(Blueprint)); }
	static float GetFloat(const UObject* Object, const TCHAR* Member)
	{
		return FindFProperty<FFloatProperty>(Object->GetClass(), Member)->GetPropertyValue_InContainer(Object);
	}
	static int32 NumInside(const UObject* Object)
	{
		TArray<UObject*> Inside;
		GetObjectsWithOuter(Object, Inside, true);
		return Inside.Num();
	}
	/** That an actor has the four components of a Character once, its own, made from the archetype's, and hanging as they should. */
	static void ExpectComponents(const UObject* Actor, const UObject* Archetype)
	{
		for (const TCHAR* const Member : CharacterMembers)
		{
			const UObject* const Part = Get(Actor, Member);
			ASSERT_NE(Part, nullptr) << TCHAR_TO_UTF8(Member);
			EXPECT_EQ(Part->GetOuter(), Actor);
			EXPECT_EQ(Part->GetArchetype(), Get(Archetype, Member)) << TCHAR_TO_UTF8(Member);
		}
		const UObject* const Capsule = Get(Actor, TEXT("CapsuleComponent"));
		EXPECT_EQ(CastChecked<AActor>(Actor)->GetRootComponent(), Capsule);
		EXPECT_EQ(GetMesh(Actor)->GetAttachParent(), Capsule);
		EXPECT_EQ(CastChecked<USceneComponent>(Get(Actor, TEXT("ArrowComponent")))->GetAttachParent(), Capsule);
		EXPECT_EQ(Get(Get(Actor, TEXT("CharacterMovement")), TEXT("UpdatedComponent")), Capsule);
		EXPECT_EQ(NumInside(Actor), 4);
	}
	/** Saves the Blueprint, forgets it and loads its file. */
	static UBlueprint* Reload(UBlueprint* Blueprint)
	{
		EXPECT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
		const FString Path = Blueprint->GetPathName();
		Blueprint->GetPackage()->Rename(*(TEXT("/Temp/Forgotten_") + Blueprint->GetName()), nullptr, REN_DontCreateRedirectors);
		UBlueprint* const Loaded = Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(Path));
		EXPECT_TRUE(Loaded && Loaded != Blueprint);
		return Loaded;
	}
};

TEST_F(FDeclaredComponentTest, CharacterHasTheComponentsThatItsConstructorMakes)
{
	const UObject* const Character = GetClass(TEXT("Character"))->GetDefaultObject();
	const std::pair<const TCHAR*, const TCHAR*> Parts[] = {{TEXT("Mesh"), TEXT("SkeletalMeshComponent CharacterMesh0")},
		{TEXT("CapsuleComponent"), TEXT("CapsuleComponent CollisionCylinder")}, {TEXT("ArrowComponent"), TEXT("ArrowComponent Arrow")},
		{TEXT("CharacterMovement"), TEXT("CharacterMovementComponent CharMoveComp")}};
	for (const auto& [Member, Part] : Parts)
	{
		const UObject* const Object = Get(Character, Member);
		ASSERT_NE(Object, nullptr) << TCHAR_TO_UTF8(Member);
		EXPECT_EQ(Object->GetClass()->GetName() + TEXT(" ") + Object->GetName(), Part);
	}
	EXPECT_EQ(GetFloat(Get(Character, TEXT("CapsuleComponent")), TEXT("CapsuleHalfHeight")), 88.0f);
	EXPECT_EQ(GetFloat(Get(Character, TEXT("CapsuleComponent")), TEXT("CapsuleRadius")), 34.0f);
	EXPECT_EQ(GetFloat(Get(Character, TEXT("CharacterMovement")), TEXT("MaxWalkSpeed")), 600.0f);
	EXPECT_EQ(GetFloat(Get(GetClass(TEXT("PointLight"))->GetDefaultObject(), TEXT("LightComponent")), TEXT("Intensity")), 5000.0f);
}

TEST_F(FDeclaredComponentTest, BlueprintHasItsOwnAndNoOtherRoot)
{
	const UBlueprint* const Walker = MakeCharacter();
	ExpectComponents(GetDefaults(*Walker), GetClass(TEXT("Character"))->GetDefaultObject());
	ExpectComponents(Walker->SkeletonGeneratedClass->GetDefaultObject(), GetClass(TEXT("Character"))->GetDefaultObject());
	EXPECT_TRUE(Walker->SimpleConstructionScript->GetAllNodes().IsEmpty());
	EXPECT_TRUE(GetMesh(*Walker)->HasAnyFlags(RF_Transactional));
}

TEST_F(FDeclaredComponentTest, EveryRowOfTheTableIsMade)
{
	FString Table;
	ASSERT_TRUE(FFileHelper::LoadFileToString(Table, TEXT(VEXEL_SOURCE_DIR "/Engine/ScriptApi/DefaultSubobjects.txt")));
	TArray<FString> Lines;
	Table.ParseIntoArrayLines(Lines);
	int32 NumRows = 0;
	for (const FString& Line : Lines)
	{
		TArray<FString> Columns;
		Line.ParseIntoArray(Columns, TEXT("|"), false);
		if (Line.StartsWith(TEXT("#")) || Columns.Num() < 5)
		{
			continue;
		}
		SCOPED_TRACE(TCHAR_TO_UTF8(*Line));
		++NumRows;
		const UClass* const Owner = UClass::TryFindTypeSlow<UClass>(Columns[0].TrimStartAndEnd().RightChop(1));
		ASSERT_NE(Owner, nullptr);
		const FString ClassName = Columns[3].TrimStartAndEnd();
		const UClass* const Class = ClassName == TEXT("none") ? nullptr : UClass::TryFindTypeSlow<UClass>(ClassName.RightChop(1));
		UObject* const Defaults = Owner->GetDefaultObject();
		const UObject* const Part = Defaults->GetDefaultSubobjectByName(FName(*Columns[2].TrimStartAndEnd()));
		const bool bIsMade = Class && !Class->HasAnyClassFlags(CLASS_Abstract);
		EXPECT_EQ(Part ? Part->GetClass() : nullptr, bIsMade ? Class : nullptr);
		TArray<FString> Members;
		Columns[1].TrimStartAndEnd().ParseIntoArrayWS(Members);
		for (const FString& Member : Members)
		{
			EXPECT_EQ(Get(Defaults, *Member), Part);
		}
		const USceneComponent* const Scene = Cast<USceneComponent>(Part);
		const USceneComponent* const Root = Scene ? CastChecked<AActor>(Defaults)->GetRootComponent() : nullptr;
		EXPECT_TRUE(!Root || Scene == Root || Scene->IsAttachedTo(Root));
	}
	EXPECT_GT(NumRows, 50);
	// Of a class whose super cannot make its root.
	const AActor* const Trigger = CastChecked<AActor>(GetClass(TEXT("TriggerBox"))->GetDefaultObject());
	EXPECT_EQ(CastChecked<USceneComponent>(Get(Trigger, TEXT("SpriteComponent")))->GetAttachParent(), Trigger->GetRootComponent());
	EXPECT_EQ(Get(GetClass(TEXT("SpectatorPawn"))->GetDefaultObject(), TEXT("MeshComponent")), nullptr);
}

TEST_F(FDeclaredComponentTest, ValuesOutliveACompileAndReachChildren)
{
	UBlueprint* const Walker = MakeCharacter();
	GetMesh(*Walker)->SetRelativeLocation(FVector(0.0, 0.0, -88.0));
	UBlueprint* const Runner = MakeBlueprint(TEXT("BP_Runner"), Walker->GeneratedClass.Get());
	EXPECT_EQ(GetMesh(*Runner)->GetRelativeLocation(), FVector(0.0, 0.0, -88.0));
	GetMesh(*Runner)->SetRelativeRotation(FRotator(0.0, -90.0, 0.0));
	FKismetEditorUtilities::CompileBlueprint(Walker);
	FKismetEditorUtilities::CompileBlueprint(Runner);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	ExpectComponents(GetDefaults(*Walker), GetClass(TEXT("Character"))->GetDefaultObject());
	ExpectComponents(GetDefaults(*Runner), GetDefaults(*Walker));
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeLocation(), FVector(0.0, 0.0, -88.0));
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeRotation(), FRotator::ZeroRotator);
	EXPECT_EQ(GetMesh(*Runner)->GetRelativeLocation(), FVector(0.0, 0.0, -88.0));
	EXPECT_EQ(GetMesh(*Runner)->GetRelativeRotation(), FRotator(0.0, -90.0, 0.0));
	// What the child did not change is the parent's, and stays so.
	GetMesh(*Walker)->SetRelativeLocation(FVector(0.0, 0.0, -90.0));
	FKismetEditorUtilities::CompileBlueprint(Walker);
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeLocation(), FVector(0.0, 0.0, -90.0));
	EXPECT_EQ(GetMesh(*Runner)->GetRelativeRotation(), FRotator(0.0, -90.0, 0.0));
}

TEST_F(FDeclaredComponentTest, EditIsUndoneAcrossACompile)
{
	UBlueprint* const Walker = MakeCharacter();
	GEditor->ResetTransaction(INVTEXT("Test"));
	{
		const FScopedTransaction Transaction(INVTEXT("Move"));
		GetMesh(*Walker)->Modify();
		GetMesh(*Walker)->SetRelativeLocation(FVector(1.0, 2.0, 3.0));
	}
	FKismetEditorUtilities::CompileBlueprint(Walker);
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeLocation(), FVector(1.0, 2.0, 3.0));
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeLocation(), FVector::ZeroVector);
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeLocation(), FVector(1.0, 2.0, 3.0));
	ExpectComponents(GetDefaults(*Walker), GetClass(TEXT("Character"))->GetDefaultObject());
}

TEST_F(FDeclaredComponentTest, PackageHoldsTheSubobjectsWithWhatIsTheirOwn)
{
	UBlueprint* Walker = MakeCharacter();
	GetMesh(*Walker)->SetRelativeLocation(FVector(0.0, 0.0, -88.0));
	FKismetEditorUtilities::CompileBlueprint(Walker);
	Walker = Reload(Walker);
	ASSERT_NE(Walker, nullptr);
	ExpectComponents(GetDefaults(*Walker), GetClass(TEXT("Character"))->GetDefaultObject());
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeLocation(), FVector(0.0, 0.0, -88.0));

	const FLinkerLoad* const Linker = Walker->GetPackage()->GetLinker();
	ASSERT_NE(Linker, nullptr);
	std::set<std::string> Names;
	for (int32 Index = 0; Index < Linker->ExportMap.Num(); ++Index)
	{
		const FObjectExport& Export = Linker->ExportMap[Index];
		if (Linker->GetExportPathName(Index).Contains(TEXT(":")) && Linker->GetExportPathName(Index).Contains(TEXT(".Default__")))
		{
			Names.insert(TCHAR_TO_UTF8(*Export.ObjectName.ToString()));
			// As the real editor marks them.
			EXPECT_EQ(Export.ObjectFlags, RF_Public | RF_Transactional | RF_ArchetypeObject | RF_DefaultSubObject);
		}
	}
	EXPECT_EQ(Names, (std::set<std::string>{"Arrow", "CharMoveComp", "CharacterMesh0", "CollisionCylinder"}));

	UBlueprint* Runner = MakeBlueprint(TEXT("BP_SavedRunner"), Walker->GeneratedClass.Get());
	GetMesh(*Runner)->SetRelativeRotation(FRotator(0.0, -90.0, 0.0));
	Runner = Reload(Runner);
	ASSERT_NE(Runner, nullptr);
	ExpectComponents(GetDefaults(*Runner), GetDefaults(*Walker));
	EXPECT_EQ(GetMesh(*Runner)->GetRelativeLocation(), FVector(0.0, 0.0, -88.0));
	EXPECT_EQ(GetMesh(*Runner)->GetRelativeRotation(), FRotator(0.0, -90.0, 0.0));
}

TEST_F(FDeclaredComponentTest, CopiedBlueprintHasItsOwn)
{
	UBlueprint* const Walker = MakeCharacter();
	GetMesh(*Walker)->SetRelativeLocation(FVector(0.0, 0.0, -88.0));
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Walker, false));
	const UBlueprint* const Copy = Cast<UBlueprint>(
		UEditorAssetLibrary::DuplicateAsset(Walker->GetPathName(), TEXT("/Game/Copy_") + Walker->GetName()));
	ASSERT_NE(Copy, nullptr);
	ExpectComponents(GetDefaults(*Copy), GetClass(TEXT("Character"))->GetDefaultObject());
	EXPECT_EQ(GetMesh(*Copy)->GetRelativeLocation(), FVector(0.0, 0.0, -88.0));
	GetMesh(*Copy)->SetRelativeLocation(FVector::ZeroVector);
	EXPECT_EQ(GetMesh(*Walker)->GetRelativeLocation(), FVector(0.0, 0.0, -88.0));
}

TEST_F(FDeclaredComponentTest, PlacedActorStandsOnItsOwnRootAndKeepsItsPlace)
{
	UBlueprint* const Walker = MakeCharacter();
	GetMesh(*Walker)->SetRelativeLocation(FVector(0.0, 0.0, -88.0));
	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false);
	const AActor* Placed = World->SpawnActor<AActor>(Walker->GeneratedClass, FVector(10.0, 20.0, 100.0), FRotator::ZeroRotator);
	ASSERT_NE(Placed, nullptr);
	ExpectComponents(Placed, GetDefaults(*Walker));
	EXPECT_EQ(GetMesh(Placed)->K2_GetComponentLocation(), FVector(10.0, 20.0, 12.0));
	EXPECT_EQ(CastChecked<AActor>(GetDefaults(*Walker))->GetActorLocation(), FVector::ZeroVector);
	Walker->SimpleConstructionScript->AddNode(Walker->SimpleConstructionScript->CreateNode(USceneComponent::StaticClass(), TEXT("Hat")));
	FKismetEditorUtilities::CompileBlueprint(Walker);
	Placed = World->PersistentLevel->Actors.Last();
	ASSERT_TRUE(IsValid(Placed));
	EXPECT_EQ(Placed->GetClass(), Walker->GeneratedClass.Get());
	EXPECT_EQ(Placed->GetActorLocation(), FVector(10.0, 20.0, 100.0));
	EXPECT_EQ(GetMesh(Placed)->K2_GetComponentLocation(), FVector(10.0, 20.0, 12.0));
	EXPECT_EQ(Placed->GetComponents().Num(), 5);
	const USceneComponent* const Hat = Cast<USceneComponent>(Get(Placed, TEXT("Hat")));
	ASSERT_NE(Hat, nullptr);
	EXPECT_EQ(Hat->GetAttachParent(), Placed->GetRootComponent());
	World->DestroyWorld(false);
}
}
