#include "Components/SceneComponent.h"
#include "EdGraphSchema_K2.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "Engine/MemberReference.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
class FBlueprintInheritanceTest : public FEditorTest
{
protected:
	static UBlueprint* MakeBlueprint(const TCHAR* Name, UClass* Parent = AActor::StaticClass())
	{
		UPackage* const Package = CreatePackage(*(FString(TEXT("/Game/Inheritance_")) + Name));
		return FKismetEditorUtilities::CreateBlueprint(Parent, Package, FName(Name), BPTYPE_Normal);
	}

	static FEdGraphPinType IntType()
	{
		FEdGraphPinType Type;
		Type.PinCategory = UEdGraphSchema_K2::PC_Int;
		return Type;
	}

	static FIntProperty* FindInt(const UBlueprint& Blueprint, const TCHAR* Name)
	{
		return FindFProperty<FIntProperty>(Blueprint.GeneratedClass.Get(), Name);
	}

	/** The value of the class defaults; -1 without such a variable. */
	static int32 GetDefault(const UBlueprint& Blueprint, const TCHAR* Name)
	{
		const FIntProperty* const Property = FindInt(Blueprint, Name);
		return Property ? Property->GetPropertyValue_InContainer(Blueprint.GeneratedClass->GetDefaultObject()) : -1;
	}
};

TEST_F(FBlueprintInheritanceTest, AChildKeepsItsOverrideWhenTheParentRenamesTheVariable)
{
	UBlueprint* const Parent = MakeBlueprint(TEXT("BP_RenamingParent"));
	FBlueprintEditorUtils::AddMemberVariable(Parent, FName(TEXT("Health")), IntType(), TEXT("42"));
	FKismetEditorUtilities::CompileBlueprint(Parent);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_RenamingChild"), Parent->GeneratedClass.Get());
	ASSERT_EQ(GetDefault(*Child, TEXT("Health")), 42);
	FindInt(*Child, TEXT("Health"))->SetPropertyValue_InContainer(Child->GeneratedClass->GetDefaultObject(), 7);
	FBlueprintEditorUtils::RenameMemberVariable(Parent, FName(TEXT("Health")), FName(TEXT("Life")));
	FKismetEditorUtilities::CompileBlueprint(Parent);
	EXPECT_EQ(GetDefault(*Parent, TEXT("Life")), 42);
	EXPECT_EQ(GetDefault(*Child, TEXT("Life")), 7);
	EXPECT_EQ(GetDefault(*Child, TEXT("Health")), -1);
}

TEST_F(FBlueprintInheritanceTest, ANewVariableUnderTheOldNameOfARenamedOneHasItsOwnDefault)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_ReusedName"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Count")), IntType(), TEXT("42"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, FName(TEXT("Count")), FName(TEXT("OldCount")));
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Count")), IntType(), TEXT("5")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(GetDefault(*Blueprint, TEXT("OldCount")), 42);
	EXPECT_EQ(GetDefault(*Blueprint, TEXT("Count")), 5);
}

TEST_F(FBlueprintInheritanceTest, NamesOfAParentsMembersAreTakenInTheChild)
{
	UBlueprint* const Parent = MakeBlueprint(TEXT("BP_NamesParent"));
	FBlueprintEditorUtils::AddMemberVariable(Parent, FName(TEXT("Speed")), IntType());
	UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
		Parent, FName(TEXT("Run")), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Parent, Graph, true, nullptr);
	FKismetEditorUtilities::CompileBlueprint(Parent);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_NamesChild"), Parent->GeneratedClass.Get());
	for (const TCHAR* const Taken : {TEXT("Speed"), TEXT("SPEED"), TEXT("Run"), TEXT("K2_GetActorLocation"), TEXT("EventGraph")})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Taken));
		EXPECT_FALSE(FBlueprintEditorUtils::AddMemberVariable(Child, FName(Taken), IntType()));
		EXPECT_FALSE(FBlueprintEditorUtils::IsGraphNameUnique(Child, FName(Taken)));
		EXPECT_NE(FBlueprintEditorUtils::FindUniqueKismetName(Child, Taken), FName(Taken));
	}
	EXPECT_EQ(Child->NewVariables.Num(), 0);
}

TEST_F(FBlueprintInheritanceTest, AReferenceFollowsARenameByItsIdFromInsideAndOutside)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Referenced"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Before")), IntType());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	FMemberReference Self;
	Self.SetFromField<FProperty>(FindInt(*Blueprint, TEXT("Before")), true);
	FMemberReference External;
	External.SetFromField<FProperty>(FindInt(*Blueprint, TEXT("Before")), false);
	EXPECT_EQ(Self.GetMemberParentClass(), nullptr);
	EXPECT_EQ(External.GetMemberParentClass(), Blueprint->GeneratedClass.Get());
	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, FName(TEXT("Before")), FName(TEXT("After")));
	for (const FMemberReference* const Reference : {&Self, &External})
	{
		const FProperty* const Property = Reference->ResolveMember<FProperty>(Blueprint->GeneratedClass.Get());
		ASSERT_NE(Property, nullptr);
		EXPECT_EQ(Property->GetFName(), FName(TEXT("After")));
		EXPECT_EQ(Reference->GetMemberName(), FName(TEXT("After")));
	}
	FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, FName(TEXT("After")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(External.ResolveMember<FProperty>(Blueprint->GeneratedClass.Get()), nullptr);
	EXPECT_EQ(Self.ResolveMember<FProperty>(AActor::StaticClass()), nullptr);
}

TEST_F(FBlueprintInheritanceTest, WhatAChildDidNotChangeFollowsItsParentWhenTheLayoutChanges)
{
	UBlueprint* const Parent = MakeBlueprint(TEXT("BP_FollowedParent"));
	FBlueprintEditorUtils::AddMemberVariable(Parent, FName(TEXT("Kept")), IntType(), TEXT("1"));
	FBlueprintEditorUtils::AddMemberVariable(Parent, FName(TEXT("Own")), IntType(), TEXT("2"));
	FKismetEditorUtilities::CompileBlueprint(Parent);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_FollowingChild"), Parent->GeneratedClass.Get());
	FindInt(*Child, TEXT("Own"))->SetPropertyValue_InContainer(Child->GeneratedClass->GetDefaultObject(), 20);
	// The parent's next compile gives the variable another default.
	FBlueprintEditorUtils::RemoveMemberVariable(Parent, FName(TEXT("Kept")));
	FBlueprintEditorUtils::AddMemberVariable(Parent, FName(TEXT("Kept")), IntType(), TEXT("10"));
	FBlueprintEditorUtils::AddMemberVariable(Parent, FName(TEXT("Added")), IntType(), TEXT("3"));
	FKismetEditorUtilities::CompileBlueprint(Parent);
	EXPECT_EQ(GetDefault(*Child, TEXT("Kept")), GetDefault(*Parent, TEXT("Kept")));
	EXPECT_EQ(GetDefault(*Child, TEXT("Own")), 20);
	EXPECT_EQ(GetDefault(*Child, TEXT("Added")), 3);
}

TEST_F(FBlueprintInheritanceTest, AValueWhoseTypeChangedGoesThroughItsTextOrIsDropped)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Retyped"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Number")), IntType(), TEXT("42"));
	FEdGraphPinType Text = IntType();
	Text.PinCategory = UEdGraphSchema_K2::PC_String;
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Word")), Text, TEXT("many"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	FBlueprintEditorUtils::ChangeMemberVariableType(Blueprint, FName(TEXT("Number")), Text);
	FBlueprintEditorUtils::ChangeMemberVariableType(Blueprint, FName(TEXT("Word")), IntType());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const FStrProperty* const Number = FindFProperty<FStrProperty>(Blueprint->GeneratedClass.Get(), TEXT("Number"));
	ASSERT_NE(Number, nullptr);
	EXPECT_EQ(Number->GetPropertyValue_InContainer(Blueprint->GeneratedClass->GetDefaultObject()), TEXT("42"));
	EXPECT_EQ(GetDefault(*Blueprint, TEXT("Word")), 0);
}

TEST_F(FBlueprintInheritanceTest, ComponentsOfInstancesHaveTheNearestTemplateAsArchetype)
{
	UBlueprint* const Parent = MakeBlueprint(TEXT("BP_TemplateParent"));
	USimpleConstructionScript* const Script = Parent->SimpleConstructionScript;
	USCS_Node* const Node = Script->CreateNode(USceneComponent::StaticClass(), TEXT("Arm"));
	Script->AddNode(Node);
	FKismetEditorUtilities::CompileBlueprint(Parent);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_TemplateChild"), Parent->GeneratedClass.Get());
	UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, false);
	for (const UBlueprint* const Blueprint : {Parent, Child})
	{
		const AActor* const Actor = World->SpawnActor<AActor>(Blueprint->GeneratedClass, FVector::ZeroVector, FRotator::ZeroRotator);
		const UObject* const Arm = FindObjectFast<USceneComponent>(const_cast<AActor*>(Actor), TEXT("Arm"));
		ASSERT_NE(Arm, nullptr);
		EXPECT_EQ(Arm->GetArchetype(), Node->ComponentTemplate);
		EXPECT_TRUE(Arm->IsBasedOnArchetype(Node->ComponentTemplate));
	}
	// A name that no variable has, or a class that the template is not of, leads to the class's own defaults.
	EXPECT_EQ(Child->GeneratedClass->FindArchetype(USceneComponent::StaticClass(), TEXT("Leg")), nullptr);
	EXPECT_EQ(Child->GeneratedClass->FindArchetype(UBlueprint::StaticClass(), TEXT("Arm")), nullptr);
	EXPECT_EQ(Node->ComponentTemplate->GetArchetype(), USceneComponent::StaticClass()->GetDefaultObject());
	World->DestroyWorld(false);
}
}
