#include "InheritedComponentTest.h"

#include "EditorAssetLibrary.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "K2Node_DynamicCast.h"
#include "Misc/PackageName.h"
#include "UObject/Linker.h"

namespace
{
/** Blueprints that are saved, forgotten and loaded again. */
class FInheritedComponentPackage : public FInheritedComponentTest
{
protected:
	static void Save(UBlueprint* Saved) { ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Saved, false)); }

	/** The next use loads the file. */
	static void Unload(const UBlueprint* Unloaded)
	{
		UPackage* const Package = Unloaded->GetPackage();
		ResetLoaders(Package);
		ForEachObjectWithPackage(Package, [](UObject* Object)
			{
				Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
				return true; });
		Package->Rename(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/Unloaded")).ToString(), nullptr,
			REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty);
	}

	UBlueprint* Load(const FString& Path)
	{
		UBlueprint* const Loaded = Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(Path));
		EXPECT_NE(Loaded, nullptr) << TCHAR_TO_UTF8(*Path) << Log.ToText();
		return Loaded;
	}

	/** Forgets both and loads the child, which brings its parent. */
	void LoadAgain()
	{
		const FString ChildPath = Child->GetPathName();
		Unload(Child);
		Unload(Blueprint);
		Child = Load(ChildPath);
		ASSERT_NE(Child, nullptr);
		Blueprint = UBlueprint::GetBlueprintFromClass(Child->ParentClass.Get());
		ASSERT_NE(Blueprint, nullptr);
		Lamp = Blueprint->SimpleConstructionScript->FindSCSNodeByGuid(Lamp->VariableGuid);
	}

	static USceneComponent* TemplateOf(const USCS_Node* Node) { return CastChecked<USceneComponent>(Node->ComponentTemplate.Get()); }
};

TEST_F(FInheritedComponentPackage, HoldsTheOverrideAndWhatItDoesNotChangeIsTheParentsOfNow)
{
	Override(Child, Lamp)->SetRelativeLocation(FVector(1, 2, 3));
	Save(Blueprint);
	Save(Child);
	const FString ChildPath = Child->GetPathName();
	// The child is not there when its parent changes.
	Unload(Child);
	TemplateOf(Lamp)->SetRelativeLocation(FVector(5, 5, 5));
	TemplateOf(Lamp)->bHiddenInGame = true;
	Save(Blueprint);
	Child = Load(ChildPath);
	LoadAgain();
	ASSERT_TRUE(Lamp);
	const UInheritableComponentHandler* const Handler = Child->InheritableComponentHandler;
	ASSERT_TRUE(Handler);
	EXPECT_EQ(Handler, ClassOf(Child)->InheritableComponentHandler);
	EXPECT_EQ(Handler->GetPathName(), Child->GeneratedClass->GetPathName() + TEXT(":InheritableComponentHandler"));
	EXPECT_TRUE(Handler->IsValid());
	const USceneComponent* const Template = Cast<USceneComponent>(Lamp->GetActualComponentTemplate(ClassOf(Child)));
	ASSERT_NE(Template, TemplateOf(Lamp));
	EXPECT_EQ(Template->GetArchetype(), TemplateOf(Lamp));
	EXPECT_EQ(Template->GetRelativeLocation(), FVector(1, 2, 3));
	EXPECT_TRUE(Template->bHiddenInGame);
	EXPECT_FALSE(Child->GetPackage()->IsDirty());
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_EQ(Locate(Child, Lamp), FVector(1, 2, 3));
}

TEST_F(FInheritedComponentPackage, OfAParentThatUsesItsChildLoadsAlikeFromEitherEnd)
{
	AddNode<UK2Node_DynamicCast>(Graph, [this](UK2Node_DynamicCast& Cast)
		{ Cast.TargetType = Child->GeneratedClass.Get(); });
	TemplateOf(Lamp)->bHiddenInGame = true;
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Override(Child, Lamp)->SetRelativeLocation(FVector(1, 2, 3));
	Save(Blueprint);
	Save(Child);
	const FString ParentPath = Blueprint->GetPathName();
	for (const FString& First : {Child->GetPathName(), ParentPath})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*First));
		const FString ChildPath = Child->GetPathName();
		Unload(Child);
		Unload(Blueprint);
		Load(First);
		Child = Load(ChildPath);
		Blueprint = Load(ParentPath);
		ASSERT_TRUE(Child && Blueprint);
		Lamp = Blueprint->SimpleConstructionScript->FindSCSNode(TEXT("Lamp"));
		ASSERT_TRUE(Lamp);
		const USceneComponent* const Template = Cast<USceneComponent>(Lamp->GetActualComponentTemplate(ClassOf(Child)));
		ASSERT_NE(Template, TemplateOf(Lamp));
		EXPECT_EQ(Child->GeneratedClass->GetSuperClass(), Blueprint->GeneratedClass.Get());
		EXPECT_EQ(Template->GetArchetype(), TemplateOf(Lamp));
		EXPECT_EQ(Template->GetRelativeLocation(), FVector(1, 2, 3));
		EXPECT_TRUE(Template->bHiddenInGame);
	}
}

TEST_F(FInheritedComponentPackage, FollowsANameThatTheParentWasSavedWithSince)
{
	Override(Child, Lamp)->SetRelativeLocation(FVector(1, 2, 3));
	TemplateOf(Lamp)->bHiddenInGame = true;
	CastChecked<USceneComponent>(Lamp->GetActualComponentTemplate(ClassOf(Child)))->bHiddenInGame = true;
	Save(Blueprint);
	Save(Child);
	const FString ChildPath = Child->GetPathName();
	const FString ParentPath = Blueprint->GetPathName();
	Unload(Child);
	Unload(Blueprint);
	Blueprint = Load(ParentPath);
	Lamp = Blueprint->SimpleConstructionScript->FindSCSNode(TEXT("Lamp"));
	FBlueprintEditorUtils::RenameComponentMemberVariable(Blueprint, Lamp, TEXT("Lantern"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Save(Blueprint);
	Child = Load(ChildPath);
	const USceneComponent* const Template = Cast<USceneComponent>(Lamp->GetActualComponentTemplate(ClassOf(Child)));
	ASSERT_NE(Template, TemplateOf(Lamp));
	EXPECT_EQ(Template->GetName(), TEXT("Lantern_GEN_VARIABLE"));
	EXPECT_EQ(Template->GetArchetype(), TemplateOf(Lamp));
	EXPECT_EQ(Template->GetRelativeLocation(), FVector(1, 2, 3));
	EXPECT_TRUE(Template->bHiddenInGame) << "what the child does not change is the parent's";
}

TEST_F(FInheritedComponentPackage, PlacedActorsOfALoadedLevelHaveWhatTheChildHasAndWhatIsTheirs)
{
	Override(Child, Lamp)->SetRelativeLocation(FVector(1, 2, 3));
	Save(Blueprint);
	Save(Child);
	const FString Path = FString(TEXT("/Game/L_")) + Child->GetName();
	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false, *FPackageName::GetShortName(Path), CreatePackage(*Path));
	for (const TCHAR* const Name : {TEXT("First"), TEXT("Second")})
	{
		FActorSpawnParameters Parameters;
		Parameters.Name = Name;
		AActor* const Actor = World->SpawnActor<AActor>(Child->GeneratedClass, FVector::ZeroVector, FRotator::ZeroRotator, Parameters);
		FindObjectFast<USceneComponent>(Actor, TEXT("Lamp"))->bHiddenInGame = Name == FString(TEXT("Second"));
	}
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(World, false));
	World->GetPackage()->Rename(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/Unloaded")).ToString(), nullptr,
		REN_DontCreateRedirectors);
	const UWorld* const Loaded = Cast<UWorld>(UEditorAssetLibrary::LoadAsset(Path));
	ASSERT_TRUE(Loaded && Loaded != World);
	for (const TCHAR* const Name : {TEXT("First"), TEXT("Second")})
	{
		AActor* const Actor = FindObjectFast<AActor>(Loaded->PersistentLevel, Name);
		const USceneComponent* const Component = Actor ? FindObjectFast<USceneComponent>(Actor, TEXT("Lamp")) : nullptr;
		ASSERT_NE(Component, nullptr);
		EXPECT_EQ(Component->GetRelativeLocation(), FVector(1, 2, 3));
		EXPECT_EQ(Component->bHiddenInGame, Name == FString(TEXT("Second")));
	}
}

TEST_F(FInheritedComponentPackage, WithoutTheComponentInTheParentIsAValidChild)
{
	Override(Child, Lamp)->SetRelativeLocation(FVector(1, 2, 3));
	Save(Blueprint);
	Save(Child);
	const FString ChildPath = Child->GetPathName();
	Unload(Child);
	Blueprint->SimpleConstructionScript->RemoveNode(Lamp);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Save(Blueprint);
	Child = Load(ChildPath);
	ASSERT_NE(Child, nullptr);
	EXPECT_EQ(CompileForErrors(Child), FString());
	EXPECT_EQ(NumOverrides(Child), 0);
	Save(Child);
	LoadAgain();
	EXPECT_EQ(NumOverrides(Child), 0);
	EXPECT_TRUE(Child->InheritableComponentHandler->IsEmpty());
}
}
