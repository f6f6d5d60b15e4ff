#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "EditorAssetLibrary.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "ObjectEditFixture.h"

#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UnrealType.h"

#include <gmock/gmock.h>

// What edits do to Blueprints that are only on disk, and what they say of values that do not fit a new type.

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const char* OnBlueprint = "{'target_type': 'blueprint'}";
constexpr const char* OnHeal = "{'target_type': 'graph', 'graph': 'Heal'}";
constexpr const char* OnEvent = "{'target_type': 'node', 'graph': 'EventGraph', 'node': 'Hurt_0'}";

class FObjectEditUsersTest : public FObjectEditTest
{
protected:
	static std::string MakeEdit(const char* Scope, const char* Name, const std::string& Value)
	{
		return std::string("{'operation': 'edit_variable', 'scope': '") + Scope + "', 'name': '" + Name + "', 'value': {" + Value + "}}";
	}

	std::vector<std::string> Warnings(const std::string& Target, const std::string& Operations)
	{
		const FAnswer Answer = Edit(Target, Operations);
		EXPECT_FALSE(Answer.HasError());
		EXPECT_THAT(TextsOf(*Answer.GetValue(), TEXT("errors")), IsEmpty());
		return TextsOf(*Answer.GetValue(), TEXT("warnings"));
	}

	template <class PropertyType>
	static typename PropertyType::TCppType& Default(const UBlueprint* Of, const TCHAR* Name)
	{
		PropertyType* const Property = FindFProperty<PropertyType>(Of->GeneratedClass.Get(), Name);
		checkf(Property, TEXT("%s has no %s"), *Of->GetName(), Name);
		return *Property->template ContainerPtrToValuePtr<typename PropertyType::TCppType>(Of->GeneratedClass->GetDefaultObject());
	}

	/** Saves all three, and gives the user and the child up. */
	void SaveAndUnload()
	{
		const FString UserPath = User->GetPathName();
		ChildPath = Child->GetPathName();
		for (UBlueprint* const Saved : {Blueprint, User, Child})
		{
			ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Saved, false));
		}
		// The actions of menus may hold them: they go on under other names, and nothing finds them under their own.
		for (UBlueprint** const Unloaded : {&User, &Child})
		{
			const FName Elsewhere = MakeUniqueObjectName(nullptr, UPackage::StaticClass(), TEXT("/Temp/Unloaded"));
			(*Unloaded)->GetPackage()->Rename(*Elsewhere.ToString(), nullptr, REN_DontCreateRedirectors);
			*Unloaded = nullptr;
		}
		GEditor->ResetTransaction(INVTEXT("Unload"));
		ASSERT_EQ(nullptr, FindObject<UBlueprint>(nullptr, *UserPath));
		ASSERT_EQ(nullptr, FindObject<UBlueprint>(nullptr, *ChildPath));
		UserPathOnDisk = UserPath;
		// Asked for the first time, the registry looks at the files: here, before a test damages one.
		ASSERT_TRUE(IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(UserPath)).IsValid());
	}

	/** What the edit has loaded. */
	void FindAgain()
	{
		User = FindObject<UBlueprint>(nullptr, *UserPathOnDisk);
		Child = FindObject<UBlueprint>(nullptr, *ChildPath);
		ASSERT_NE(nullptr, User);
		ASSERT_NE(nullptr, Child);
	}

	FString UserPathOnDisk;
	FString ChildPath;
};

TEST_F(FObjectEditUsersTest, ARenameReachesBlueprintsThatAreOnlyOnDisk)
{
	Default<FIntProperty>(Child, TEXT("Health")) = 23;
	ASSERT_NO_FATAL_FAILURE(SaveAndUnload());
	EXPECT_THAT(Warnings(OnBlueprint, MakeEdit("member", "Health", "'prop_id': 'Life'")), IsEmpty());
	EXPECT_THAT(Warnings(OnHeal, MakeEdit("in", "Amount", "'prop_id': 'Points'")), IsEmpty());
	EXPECT_THAT(Warnings(OnHeal, "{'operation': 'update', 'prop_path': 'name', 'value': 'Mend'}"), IsEmpty());
	EXPECT_THAT(Warnings(OnEvent, "{'operation': 'update', 'prop_path': 'name', 'value': 'Ouch'}"), IsEmpty());
	ASSERT_NO_FATAL_FAILURE(FindAgain());
	const UEdGraph* const UserGraph = FBlueprintEditorUtils::FindEventGraph(User);
	TArray<UK2Node_CallFunction*> Calls;
	UserGraph->GetNodesOfClass(Calls);
	ASSERT_EQ(2, Calls.Num());
	EXPECT_EQ("Mend", ToStd(Calls[0]->FunctionReference.GetMemberName().ToString()));
	EXPECT_NE(nullptr, Calls[0]->FindPin(TEXT("Points")));
	EXPECT_EQ("Ouch", ToStd(Calls[1]->FunctionReference.GetMemberName().ToString()));
	for (UBlueprint* const Compiled : {Blueprint, User, Child})
	{
		TArray<UK2Node_Variable*> Nodes;
		FBlueprintEditorUtils::FindEventGraph(Compiled)->GetNodesOfClass(Nodes);
		ASSERT_FALSE(Nodes.IsEmpty());
		EXPECT_EQ("Life", ToStd(Nodes[0]->GetVarNameString())) << ToStd(Compiled->GetName());
		EXPECT_NE(nullptr, Nodes[0]->FindPin(TEXT("Life")));
		EXPECT_TRUE(Compiled->GetPackage()->IsDirty()) << "or saving would leave it behind";
		FKismetEditorUtilities::CompileBlueprint(Compiled);
		EXPECT_NE(BS_Error, Compiled->Status) << ToStd(Compiled->GetName());
	}
	EXPECT_EQ(23, Default<FIntProperty>(Child, TEXT("Life")));
	UndoAll();
	EXPECT_EQ("Hurt", ToStd(Calls[1]->FunctionReference.GetMemberName().ToString()));
	EXPECT_NE(nullptr, Calls[0]->FindPin(TEXT("Amount")));
}

TEST_F(FObjectEditUsersTest, OneThatCannotBeLoadedIsNamed)
{
	ASSERT_NO_FATAL_FAILURE(SaveAndUnload());
	FString File;
	ASSERT_TRUE(FPackageName::DoesPackageExist(FPackageName::ObjectPathToPackageName(UserPathOnDisk), &File));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("damaged"), *File));
	const std::string Name = ToStd(Blueprint->GetName());
	EXPECT_THAT(Warnings(OnBlueprint, MakeEdit("member", "Health", "'prop_id': 'Life'")),
		ElementsAre("Blueprints that use '" + Name + "' and were not loaded may not have followed: '" + Name + "_User'"));
	Child = FindObject<UBlueprint>(nullptr, *ChildPath);
	EXPECT_NE(nullptr, Child) << "the others follow all the same";
}

TEST_F(FObjectEditUsersTest, WhatNoOtherBlueprintCanKnowLoadsNone)
{
	ASSERT_NO_FATAL_FAILURE(SaveAndUnload());
	EXPECT_THAT(Warnings(OnHeal, MakeEdit("local", "Left", "'prop_id': 'Rest'")), IsEmpty());
	EXPECT_THAT(Warnings(OnBlueprint, MakeEdit("member", "Health", "'category': 'Vital'")), IsEmpty());
	EXPECT_THAT(Warnings(OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'Armor', 'value': {'type_id': 'int'}}"), IsEmpty());
	EXPECT_EQ(nullptr, FindObject<UBlueprint>(nullptr, *UserPathOnDisk));
	EXPECT_EQ(nullptr, FindObject<UBlueprint>(nullptr, *ChildPath));
}

TEST_F(FObjectEditUsersTest, DefaultsThatDoNotFitANewTypeAreNamed)
{
	Default<FIntProperty>(Blueprint, TEXT("Health")) = 100;
	Default<FIntProperty>(Child, TEXT("Health")) = 23;
	ASSERT_NO_FATAL_FAILURE(SaveAndUnload());
	const FAnswer Retyped = Edit(OnBlueprint, MakeEdit("member", "Health", "'type_id': 'struct.Vector'"));
	EXPECT_THAT(TextsOf(*Retyped.GetValue(), TEXT("warnings")),
		testing::IsSupersetOf({std::string("The default value '100' of 'Health' does not fit the new type and is lost"),
			"The default value '23' of 'Health' in '" + ToStd(Blueprint->GetName()) + "_Child' does not fit the new type and is lost"}));
	ASSERT_NO_FATAL_FAILURE(FindAgain());
}

TEST_F(FObjectEditUsersTest, DefaultsThatFitANewTypeAreKeptWhereverTheyStand)
{
	Default<FIntProperty>(Blueprint, TEXT("Health")) = 100;
	Default<FIntProperty>(Child, TEXT("Health")) = 23;
	for (const auto& [Type, Own, OfChild] : {std::tuple("real", "100.000000", "23.000000"), std::tuple("string", "100.000000", "23.000000")})
	{
		EXPECT_THAT(Warnings(OnBlueprint, MakeEdit("member", "Health", std::string("'type_id': '") + Type + "'")), testing::Not(testing::Contains(HasSubstr("default value"))));
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		FString Texts[2];
		for (const int32 Index : {0, 1})
		{
			const UClass* const Class = (Index == 0 ? Blueprint : Child)->GeneratedClass;
			Class->FindPropertyByName(TEXT("Health"))->ExportTextItem_InContainer(Texts[Index], Class->GetDefaultObject(), nullptr, nullptr, PPF_None);
		}
		EXPECT_EQ(Own, ToStd(Texts[0])) << Type;
		EXPECT_EQ(OfChild, ToStd(Texts[1])) << Type;
	}
}

TEST_F(FObjectEditUsersTest, ANumberThatIsCutIsTold)
{
	ASSERT_THAT(Warnings(OnBlueprint, "{'operation': 'add_variable', 'scope': 'member', 'name': 'Speed', 'value': {'type_id': 'real'}}"), IsEmpty());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Default<FDoubleProperty>(Blueprint, TEXT("Speed")) = 1.5;
	Default<FDoubleProperty>(Child, TEXT("Speed")) = 4.0;
	EXPECT_THAT(Warnings(OnBlueprint, MakeEdit("member", "Speed", "'type_id': 'int'")),
		ElementsAre("The default value '1.500000' of 'Speed' becomes '1'"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(1, Default<FIntProperty>(Blueprint, TEXT("Speed")));
	EXPECT_EQ(4, Default<FIntProperty>(Child, TEXT("Speed")));
}

TEST_F(FObjectEditUsersTest, ValuesThatPinsOfANewTypeLoseAreNamed)
{
	UK2Node_VariableSet* const Set = FindNodeOfClass<UK2Node_VariableSet>(FBlueprintEditorUtils::FindEventGraph(Child));
	ASSERT_NE(nullptr, Set);
	Set->FindPinChecked(TEXT("Health"))->DefaultValue = TEXT("42");
	UK2Node_CallFunction* const Call = FindNodeOfClass<UK2Node_CallFunction>(FBlueprintEditorUtils::FindEventGraph(User));
	Call->FindPinChecked(TEXT("Amount"))->DefaultValue = TEXT("5");
	const std::string Name = ToStd(Blueprint->GetName());
	EXPECT_THAT(Warnings(OnBlueprint, MakeEdit("member", "Health", "'type_id': 'object.Actor'")),
		testing::Contains(testing::MatchesRegex("The value '42' of 'SetHealth_.'.'Health' in graph 'EventGraph' of '" + Name + "_Child' is lost")));
	EXPECT_THAT(Warnings(OnHeal, MakeEdit("in", "Amount", "'type_id': 'real'")), testing::Not(testing::Contains(HasSubstr("The value"))));
	EXPECT_EQ("5", ToStd(Call->FindPinChecked(TEXT("Amount"))->DefaultValue));
	EXPECT_THAT(Warnings(OnHeal, MakeEdit("in", "Amount", "'type_id': 'object.Actor'")),
		testing::Contains(testing::MatchesRegex("The value '5' of 'Heal_.'.'Amount' in graph 'EventGraph' of '" + Name + "_User' is lost")));
}

TEST_F(FObjectEditUsersTest, DefaultsOfLocalVariablesAndParametersAreNamed)
{
	ASSERT_THAT(Warnings(OnHeal,
					"{'operation': 'update', 'scope': 'local', 'prop_path': 'Left', 'value': '3'},"
					"{'operation': 'update', 'scope': 'in', 'prop_path': 'Amount', 'value': '7'}"),
		IsEmpty());
	EXPECT_THAT(Warnings(OnHeal,
					MakeEdit("local", "Left", "'type_id': 'object.Actor'") + "," + MakeEdit("in", "Amount", "'type_id': 'object.Actor'")),
		testing::AllOf(testing::Contains("The default value '3' of 'Left' in function 'Heal' does not fit the new type and is lost"),
			testing::Contains(testing::MatchesRegex("The value '7' of '.*'.'Amount' in graph 'Heal' is lost"))));
}

TEST_F(FObjectEditUsersTest, ADefaultThatIsSetAfterARenameIsTheOneThatCounts)
{
	Default<FIntProperty>(Blueprint, TEXT("Health")) = 100;
	ASSERT_THAT(EditErrors(OnBlueprint,
					MakeEdit("member", "Health", "'prop_id': 'Life'") + ",{'operation': 'update', 'scope': 'member', 'prop_path': 'Life', 'value': '7'}"),
		IsEmpty());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(7, Default<FIntProperty>(Blueprint, TEXT("Life")));
}
}
