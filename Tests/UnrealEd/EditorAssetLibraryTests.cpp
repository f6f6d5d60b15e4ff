#include "BlueprintEditTest.h"
#include "EditorAssetLibrary.h"
#include "K2Node_VariableGet.h"
#include "HAL/FileManager.h"
#include "Misc/PackageName.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/ObjectRedirector.h"
#include "UObject/UnrealType.h"

namespace
{
class FEditorAssetLibraryTest : public FBlueprintEditTest
{
protected:
	virtual void SetUp() override
	{
		FBlueprintEditTest::SetUp();
		Folder = FString::Printf(TEXT("/Game/Assets_%s"), *FGuid::NewGuid().ToString());
		Door = FKismetEditorUtilities::CreateBlueprint(
			AActor::StaticClass(), CreatePackage(*(Folder + TEXT("/BP_Door"))), TEXT("BP_Door"), BPTYPE_Normal);
		FBlueprintEditorUtils::AddMemberVariable(Door, TEXT("Angle"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("90"));
		FKismetEditorUtilities::CompileBlueprint(Door);
		ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Door));
	}

	static int32 GetAngle(const UClass* Class)
	{
		const FIntProperty* const Property = Class ? FindFProperty<FIntProperty>(Class, TEXT("Angle")) : nullptr;
		return Property ? Property->GetPropertyValue_InContainer(Class->GetDefaultObject()) : -1;
	}

	FString Folder;
	UBlueprint* Door = nullptr;
};

TEST_F(FEditorAssetLibraryTest, EverySpellingOfAPathNamesTheAsset)
{
	for (const FString& Path : {Folder + TEXT("/BP_Door"), Folder + TEXT("/BP_Door.BP_Door"),
			 TEXT("/Script/Engine.Blueprint'") + Folder + TEXT("/BP_Door.BP_Door'"), TEXT(" ") + Folder + TEXT("/BP_Door ")})
	{
		EXPECT_TRUE(UEditorAssetLibrary::DoesAssetExist(Path)) << TCHAR_TO_UTF8(*Path);
		EXPECT_EQ(UEditorAssetLibrary::LoadAsset(Path), Door) << TCHAR_TO_UTF8(*Path);
	}
	for (const TCHAR* const Path : {TEXT(""), TEXT("Door"), TEXT("/Game/"), TEXT("/Nowhere/BP_Door"), TEXT("/Game/../BP_Door")})
	{
		EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(Path)) << TCHAR_TO_UTF8(Path);
		EXPECT_EQ(UEditorAssetLibrary::LoadAsset(Path), nullptr) << TCHAR_TO_UTF8(Path);
	}
	EXPECT_EQ(UEditorAssetLibrary::LoadBlueprintClass(Folder + TEXT("/BP_Door")), Door->GeneratedClass.Get());
	EXPECT_EQ(UEditorAssetLibrary::GetPathNameForLoadedAsset(Door), Folder + TEXT("/BP_Door.BP_Door"));
	EXPECT_EQ(UEditorAssetLibrary::FindAssetData(Folder + TEXT("/BP_Door")).AssetName, FName(TEXT("BP_Door")));
}

TEST_F(FEditorAssetLibraryTest, ListsAssetsAndFolders)
{
	UObject* const Copy = UEditorAssetLibrary::DuplicateAsset(Folder + TEXT("/BP_Door"), Folder + TEXT("/Sub/Deep/BP_Gate"));
	ASSERT_NE(Copy, nullptr);
	const FString DoorPath = Folder + TEXT("/BP_Door.BP_Door");
	const FString GatePath = Folder + TEXT("/Sub/Deep/BP_Gate.BP_Gate");
	EXPECT_EQ(UEditorAssetLibrary::ListAssets(Folder), (TArray<FString>{DoorPath, GatePath}));
	EXPECT_EQ(UEditorAssetLibrary::ListAssets(Folder + TEXT("/"), false), TArray<FString>{DoorPath});
	EXPECT_EQ(UEditorAssetLibrary::ListAssets(Folder, true, true),
		(TArray<FString>{DoorPath, Folder + TEXT("/Sub/"), Folder + TEXT("/Sub/Deep/"), GatePath}));
	EXPECT_EQ(UEditorAssetLibrary::ListAssets(TEXT("/Game/../Config")).Num(), 0);
	EXPECT_TRUE(UEditorAssetLibrary::DoesDirectoryExist(Folder));
	EXPECT_FALSE(UEditorAssetLibrary::DoesDirectoryExist(Folder + TEXT("/Missing")));
	EXPECT_TRUE(UEditorAssetLibrary::MakeDirectory(Folder + TEXT("/Missing/Below")));
	EXPECT_TRUE(UEditorAssetLibrary::DoesDirectoryExist(Folder + TEXT("/Missing")));
}

TEST_F(FEditorAssetLibraryTest, ADuplicatedBlueprintStandsOnItsOwn)
{
	FBlueprintEditorUtils::AddMemberVariable(
		Door, TEXT("Other"), MakeType(UEdGraphSchema_K2::PC_Object, NAME_None, Door->GeneratedClass.Get()));
	FKismetEditorUtilities::CompileBlueprint(Door);
	FindFProperty<FIntProperty>(Door->GeneratedClass.Get(), TEXT("Angle"))
		->SetPropertyValue_InContainer(Door->GeneratedClass->GetDefaultObject(), 45);
	UBlueprint* const Gate = Cast<UBlueprint>(UEditorAssetLibrary::DuplicateAsset(Folder + TEXT("/BP_Door"), Folder + TEXT("/BP_Gate")));
	ASSERT_NE(Gate, nullptr);
	EXPECT_EQ(Gate->GeneratedClass->GetPathName(), Folder + TEXT("/BP_Gate.BP_Gate_C"));
	EXPECT_EQ(Gate->GeneratedClass->ClassGeneratedBy, Gate);
	EXPECT_EQ(GetAngle(Gate->GeneratedClass.Get()), 45);
	EXPECT_EQ(Gate->NewVariables[1].VarType.PinSubCategoryObject.Get(), Gate->GeneratedClass.Get()) << "its own class, not the original's";
	EXPECT_NE(Gate->GetBlueprintGuid(), Door->GetBlueprintGuid());
	FBlueprintEditorUtils::RemoveMemberVariable(Gate, TEXT("Angle"));
	FKismetEditorUtilities::CompileBlueprint(Gate);
	EXPECT_EQ(GetAngle(Door->GeneratedClass.Get()), 45);
	EXPECT_EQ(UEditorAssetLibrary::DuplicateAsset(Folder + TEXT("/BP_Door"), Folder + TEXT("/BP_Gate")), nullptr) << "the path is taken";
	EXPECT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Gate));
}

TEST_F(FEditorAssetLibraryTest, ARenamedAssetIsFoundUnderBothPaths)
{
	EXPECT_FALSE(UEditorAssetLibrary::RenameAsset(Folder + TEXT("/BP_Door"), TEXT("/Game/Bad Name?")));
	ASSERT_TRUE(UEditorAssetLibrary::RenameAsset(Folder + TEXT("/BP_Door"), Folder + TEXT("/Sub/BP_Gate")));
	EXPECT_EQ(Door->GetPathName(), Folder + TEXT("/Sub/BP_Gate.BP_Gate"));
	EXPECT_EQ(Door->GeneratedClass->GetPathName(), Folder + TEXT("/Sub/BP_Gate.BP_Gate_C"));
	EXPECT_EQ(Door->GeneratedClass->GetDefaultObject()->GetName(), TEXT("Default__BP_Gate_C"));
	EXPECT_TRUE(FPackageName::DoesPackageExist(Folder + TEXT("/Sub/BP_Gate")));
	EXPECT_EQ(LoadObject<UBlueprint>(nullptr, *(Folder + TEXT("/BP_Door.BP_Door"))), Door) << "the old path leads to the new one";
	EXPECT_EQ(GetAngle(Door->GeneratedClass.Get()), 90);
	FBlueprintEditorUtils::AddMemberVariable(Door, TEXT("More"), MakeType(UEdGraphSchema_K2::PC_Int));
	FKismetEditorUtilities::CompileBlueprint(Door);
	EXPECT_EQ(Door->GeneratedClass->GetName(), TEXT("BP_Gate_C"));
}

TEST_F(FEditorAssetLibraryTest, ADeletedAssetIsGoneFromMemoryDiskAndEditors)
{
	UAssetEditorSubsystem* const Editors = GEditor->GetEditorSubsystem<UAssetEditorSubsystem>();
	ASSERT_TRUE(Editors->OpenEditorForAsset(Door));
	const TWeakObjectPtr<UBlueprint> Weak(Door);
	EXPECT_TRUE(UEditorAssetLibrary::DeleteAsset(Folder + TEXT("/BP_Door")));
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(Folder + TEXT("/BP_Door")));
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(UEditorAssetLibrary::ListAssets(Folder).Num(), 0);
	for (const UObject* const Asset : Editors->GetAllEditedAssets())
	{
		EXPECT_NE(Asset->GetName(), TEXT("BP_Door"));
	}
	UBlueprint* const Again = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(*(Folder + TEXT("/BP_Door"))), TEXT("BP_Door"), BPTYPE_Normal);
	EXPECT_EQ(GetAngle(Again->GeneratedClass.Get()), -1) << "a new asset of the name has nothing of the old one";
	EXPECT_FALSE(UEditorAssetLibrary::DeleteAsset(Folder + TEXT("/BP_Missing")));
}
}
