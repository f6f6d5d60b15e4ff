#include "EditorFixture.h"

#include "EditorAssetLibrary.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/PropertyTag.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <map>

namespace
{
class FPropertyGuidTest : public FEditorTest
{
protected:
	static UBlueprint* CreateBlueprint(const FString& Name, UClass* Parent)
	{
		return FKismetEditorUtilities::CreateBlueprint(Parent, CreatePackage(*(TEXT("/Game/Guids/") + Name)), FName(*Name), BPTYPE_Normal);
	}

	static void AddIntVariable(UBlueprint* Blueprint, const TCHAR* Name)
	{
		FEdGraphPinType Type;
		Type.PinCategory = UEdGraphSchema_K2::PC_Int;
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, Type));
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
	}

	static int32* FindInt(const UBlueprint* Blueprint, const TCHAR* Name)
	{
		UObject* const Defaults = Blueprint->GeneratedClass->GetDefaultObject();
		const FIntProperty* const Property = FindFProperty<FIntProperty>(Blueprint->GeneratedClass, Name);
		return Property ? Property->ContainerPtrToValuePtr<int32>(Defaults) : nullptr;
	}

	/** The ids of the saved properties of the Blueprint's default object, by name. */
	std::map<std::string, FGuid> ReadSavedGuids(const TCHAR* Name) const
	{
		std::map<std::string, FGuid> Guids;
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(GetProjectDir() / TEXT("Content/Guids") / Name + TEXT(".uasset"), nullptr, Error);
		EXPECT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
		const FString DefaultObject = FString(DEFAULT_OBJECT_PREFIX) + Name + TEXT("_C");
		for (const FObjectExport& Export : Linker->ExportMap)
		{
			if (Export.ObjectName.ToString() != DefaultObject)
			{
				continue;
			}
			// Behind the control byte.
			Linker->Seek(Export.SerialOffset + 1);
			for (FPropertyTag Tag; !Linker->IsError();)
			{
				Tag = FPropertyTag();
				static_cast<FArchive&>(*Linker) << Tag;
				if (Tag.Name.IsNone())
				{
					break;
				}
				Guids[TCHAR_TO_UTF8(*Tag.Name.ToString())] = Tag.HasPropertyGuid ? Tag.PropertyGuid : FGuid();
				Linker->Seek(Linker->Tell() + Tag.Size);
			}
		}
		return Guids;
	}

	static void Unload(UBlueprint* Blueprint)
	{
		Blueprint->GetOutermost()->Rename(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/Unloaded")).ToString(), nullptr, REN_DontCreateRedirectors);
	}

	static UBlueprint* Reload(const TCHAR* Name) { return Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(FString(TEXT("/Game/Guids/")) + Name)); }
};

TEST_F(FPropertyGuidTest, SavedValuesOfVariablesCarryTheirIds)
{
	UBlueprint* const Blueprint = CreateBlueprint(TEXT("BP_Owner"), AActor::StaticClass());
	AddIntVariable(Blueprint, TEXT("Steps"));
	*FindInt(Blueprint, TEXT("Steps")) = 17;
	Cast<AActor>(Blueprint->GeneratedClass->GetDefaultObject())->Tags.Add(TEXT("Native"));
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
	const std::map<std::string, FGuid> Guids = ReadSavedGuids(TEXT("BP_Owner"));
	ASSERT_EQ(Blueprint->NewVariables.Num(), 1);
	ASSERT_TRUE(Guids.contains("Steps") && Guids.contains("Tags"));
	EXPECT_TRUE(Blueprint->NewVariables[0].VarGuid.IsValid());
	EXPECT_EQ(Guids.at("Steps"), Blueprint->NewVariables[0].VarGuid);
	EXPECT_FALSE(Guids.at("Tags").IsValid());
}

TEST_F(FPropertyGuidTest, AValueSavedUnderTheOldNameOfAParentsVariableIsLoadedUnderTheNewOne)
{
	UBlueprint* const Parent = CreateBlueprint(TEXT("BP_Parent"), AActor::StaticClass());
	AddIntVariable(Parent, TEXT("Old"));
	UBlueprint* const Child = CreateBlueprint(TEXT("BP_Child"), Parent->GeneratedClass);
	FKismetEditorUtilities::CompileBlueprint(Child);
	ASSERT_TRUE(FindInt(Child, TEXT("Old")));
	*FindInt(Child, TEXT("Old")) = 23;
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Parent, false));
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Child, false));
	EXPECT_EQ(ReadSavedGuids(TEXT("BP_Child")).at("Old"), Parent->NewVariables[0].VarGuid);
	Unload(Child);

	// While the child is not loaded its parent's variable gets another name, and a new variable the old one.
	FBlueprintEditorUtils::RenameMemberVariable(Parent, TEXT("Old"), TEXT("New"));
	AddIntVariable(Parent, TEXT("Old"));
	*FindInt(Parent, TEXT("Old")) = 5;
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Parent, false));
	const UBlueprint* const Again = Reload(TEXT("BP_Child"));
	ASSERT_TRUE(Again && Again != Child);
	ASSERT_EQ(Again->GeneratedClass->GetSuperClass(), Parent->GeneratedClass);
	ASSERT_TRUE(FindInt(Again, TEXT("New")) && FindInt(Again, TEXT("Old")));
	EXPECT_EQ(*FindInt(Again, TEXT("New")), 23);
	EXPECT_EQ(*FindInt(Again, TEXT("Old")), 5);
}

TEST_F(FPropertyGuidTest, ASavedIdThatNoVariableHasLeavesTheValueToTheName)
{
	UBlueprint* const Parent = CreateBlueprint(TEXT("BP_Other"), AActor::StaticClass());
	AddIntVariable(Parent, TEXT("Steps"));
	UBlueprint* const Child = CreateBlueprint(TEXT("BP_Heir"), Parent->GeneratedClass);
	FKismetEditorUtilities::CompileBlueprint(Child);
	*FindInt(Child, TEXT("Steps")) = 31;
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Child, false));
	Unload(Child);
	// As if somebody had deleted the variable and made it anew.
	Parent->NewVariables[0].VarGuid = FGuid::NewGuid();
	FKismetEditorUtilities::CompileBlueprint(Parent);
	const UBlueprint* const Again = Reload(TEXT("BP_Heir"));
	ASSERT_TRUE(Again && FindInt(Again, TEXT("Steps")));
	EXPECT_EQ(*FindInt(Again, TEXT("Steps")), 31);
}
}
