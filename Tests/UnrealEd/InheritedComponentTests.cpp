#include "InheritedComponentTest.h"

#include "BlueprintEditorLibrary.h"
#include "Engine/World.h"
#include "UObject/UnrealType.h"

namespace
{
using FInheritedComponents = FInheritedComponentTest;

TEST_F(FInheritedComponents, AnOverrideIsACopyOfTheNearestTemplateThatActorsOfTheChildAreMadeFrom)
{
	UBlueprint* const Grandchild = MakeBlueprint(TEXT("BP_Grandchild"), Child->GeneratedClass.Get());
	EXPECT_EQ(Child->GetInheritableComponentHandler(false), nullptr);
	EXPECT_EQ(Lamp->GetActualComponentTemplate(ClassOf(Grandchild)), Lamp->ComponentTemplate);

	USceneComponent* const OfChild = Override(Child, Lamp);
	ASSERT_NE(OfChild, nullptr);
	EXPECT_EQ(Override(Child, Lamp), OfChild) << "there is one for a component";
	EXPECT_EQ(OfChild->GetOuter(), Child->GeneratedClass.Get());
	EXPECT_EQ(OfChild->GetName(), TEXT("Lamp_GEN_VARIABLE"));
	EXPECT_TRUE(OfChild->HasAllFlags(RF_ArchetypeObject | RF_InheritableComponentTemplate | RF_Public));
	EXPECT_EQ(OfChild->GetArchetype(), Lamp->ComponentTemplate);
	EXPECT_EQ(OfChild->GetRelativeLocation(), FVector(10, 20, 30));
	SetLocation(OfChild, FVector(1, 20, 30));
	USceneComponent* const OfGrandchild = Override(Grandchild, Lamp);
	EXPECT_EQ(OfGrandchild->GetArchetype(), OfChild);
	EXPECT_EQ(OfGrandchild->GetRelativeLocation(), FVector(1, 20, 30));
	SetLocation(OfGrandchild, FVector(1, 2, 30));

	EXPECT_EQ(Locate(Blueprint, Lamp), FVector(10, 20, 30));
	UWorld* const World = GEditor->GetEditorWorldContext().World();
	const TPair<UBlueprint*, FVector> Expected[] = {
		{Blueprint, FVector(10, 20, 30)}, {Child, FVector(1, 20, 30)}, {Grandchild, FVector(1, 2, 30)}};
	for (const TPair<UBlueprint*, FVector>& Pair : Expected)
	{
		FKismetEditorUtilities::CompileBlueprint(Pair.Key);
		AActor* const Actor = World->SpawnActor(Pair.Key->GeneratedClass.Get());
		const USceneComponent* const Component = FindObjectFast<USceneComponent>(Actor, TEXT("Lamp"));
		ASSERT_NE(Component, nullptr);
		EXPECT_EQ(Component->GetArchetype(), Lamp->GetActualComponentTemplate(ClassOf(Pair.Key)));
		EXPECT_EQ(Component->GetRelativeLocation(), Pair.Value);
		World->DestroyActor(Actor);
	}
}

TEST_F(FInheritedComponents, OnlyWhatAParentAddsCanBeOverridden)
{
	const USCS_Node* const Own = AddComponent(Child, TEXT("Own"));
	const UBlueprint* const Stranger = MakeBlueprint(TEXT("BP_Stranger"));
	const USCS_Node* const Strange = Stranger->SimpleConstructionScript->GetDefaultSceneRootNode();
	for (const FComponentKey& Key : {FComponentKey(Own), FComponentKey(Strange), FComponentKey()})
	{
		EXPECT_EQ(Child->GetInheritableComponentHandler(true)->CreateOverridenComponentTemplate(Key), nullptr);
	}
	EXPECT_TRUE(Child->InheritableComponentHandler->IsEmpty());
	EXPECT_TRUE(Log.Contains("inherits no component Own")) << Log.ToText();
}

TEST_F(FInheritedComponents, AnOverrideComesAndGoesWithUndo)
{
	{
		const FScopedTransaction Transaction(Title(TEXT("Override")));
		SetLocation(Override(Child, Lamp), FVector(1, 2, 3));
	}
	UActorComponent* const Template = Lamp->GetActualComponentTemplate(ClassOf(Child));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		Child->InheritableComponentHandler->RemoveOverridenComponentTemplate(FComponentKey(Lamp));
	}
	EXPECT_EQ(Locate(Child, Lamp), FVector(10, 20, 30));
	EXPECT_TRUE(Undo());
	EXPECT_EQ(Lamp->GetActualComponentTemplate(ClassOf(Child)), Template);
	EXPECT_EQ(Template->GetArchetype(), Lamp->ComponentTemplate);
	EXPECT_EQ(Locate(Child, Lamp), FVector(1, 2, 3));
	EXPECT_TRUE(Undo());
	EXPECT_EQ(Child->InheritableComponentHandler, nullptr);
	EXPECT_EQ(Locate(Child, Lamp), FVector(10, 20, 30));
	Collect();
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_TRUE(Redo());
	EXPECT_EQ(Locate(Child, Lamp), FVector(1, 2, 3));
	EXPECT_EQ(Template->GetName(), TEXT("Lamp_GEN_VARIABLE"));
	EXPECT_TRUE(Undo());
	SetLocation(Override(Child, Lamp), FVector(4, 5, 6));
	EXPECT_EQ(Locate(Child, Lamp), FVector(4, 5, 6)) << "the name is free after an undo";
}

TEST_F(FInheritedComponents, AnOverrideFollowsARenameInTheParent)
{
	UBlueprint* const Grandchild = MakeBlueprint(TEXT("BP_Grandchild"), Child->GeneratedClass.Get());
	USceneComponent* const OfChild = Override(Child, Lamp);
	USceneComponent* const OfGrandchild = Override(Grandchild, Lamp);
	SetLocation(OfGrandchild, FVector(1, 2, 3));
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		FBlueprintEditorUtils::RenameComponentMemberVariable(Blueprint, Lamp, TEXT("Lantern"));
	}
	for (int32 Round = 0; Round < 2; ++Round)
	{
		EXPECT_EQ(OfChild->GetName(), TEXT("Lantern_GEN_VARIABLE"));
		EXPECT_EQ(OfGrandchild->GetArchetype(), OfChild);
		EXPECT_EQ(OfChild->GetArchetype(), Lamp->ComponentTemplate);
		EXPECT_EQ(Child->InheritableComponentHandler->FindKey(OfChild).GetSCSVariableName(), FName(TEXT("Lantern")));
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		EXPECT_EQ(Locate(Grandchild, Lamp), FVector(1, 2, 3));
		EXPECT_TRUE(Undo());
		EXPECT_EQ(OfGrandchild->GetName(), TEXT("Lamp_GEN_VARIABLE"));
		EXPECT_EQ(OfGrandchild->GetArchetype(), OfChild);
		EXPECT_EQ(OfChild->GetArchetype(), Lamp->ComponentTemplate);
		EXPECT_EQ(Child->InheritableComponentHandler->FindKey(OfChild).GetSCSVariableName(), FName(TEXT("Lamp")));
		EXPECT_TRUE(Redo());
	}
}

TEST_F(FInheritedComponents, ACompilePutsAsideTheOverrideOfAComponentThatIsGoneAndUndoBringsItBack)
{
	USceneComponent* const Template = Override(Child, Lamp);
	SetLocation(Template, FVector(1, 2, 3));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		Blueprint->SimpleConstructionScript->RemoveNode(Lamp);
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	EXPECT_FALSE(Child->InheritableComponentHandler->IsValid());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_TRUE(Child->InheritableComponentHandler->IsEmpty());
	EXPECT_TRUE(Child->IsUpToDate());
	EXPECT_NE(Template->GetOuter(), Child->GeneratedClass.Get()) << "its name is free";
	Collect();
	EXPECT_TRUE(Undo());
	EXPECT_EQ(Lamp->GetActualComponentTemplate(ClassOf(Child)), Template);
	EXPECT_EQ(Template->GetPathName(), Child->GeneratedClass->GetPathName() + TEXT(":Lamp_GEN_VARIABLE"));
	EXPECT_EQ(Locate(Child, Lamp), FVector(1, 2, 3));
	EXPECT_TRUE(Redo());
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_TRUE(Child->InheritableComponentHandler->IsEmpty());
}

TEST_F(FInheritedComponents, AnotherComponentOfTheNameHasNoneOfTheOldOverride)
{
	SetLocation(Override(Child, Lamp), FVector(1, 2, 3));
	Blueprint->SimpleConstructionScript->RemoveNode(Lamp);
	USCS_Node* const Second = AddComponent(Blueprint, TEXT("Lamp"));
	EXPECT_EQ(Locate(Child, Second), FVector::ZeroVector);
	USceneComponent* const NewTemplate = Override(Child, Second);
	ASSERT_NE(NewTemplate, nullptr) << Log.ToText();
	EXPECT_EQ(NewTemplate->GetName(), TEXT("Lamp_GEN_VARIABLE"));
	EXPECT_EQ(NewTemplate->GetRelativeLocation(), FVector::ZeroVector);
	EXPECT_EQ(NumOverrides(Child), 1);
}

TEST_F(FInheritedComponents, AnOverriddenDefaultSceneRootLeavesTheNameToTheChildsOwn)
{
	UBlueprint* const Plain = MakeBlueprint(TEXT("BP_Plain"));
	USCS_Node* const Root = Plain->SimpleConstructionScript->GetDefaultSceneRootNode();
	ASSERT_NE(Root, nullptr);
	UBlueprint* const Below = MakeBlueprint(TEXT("BP_Below"), Plain->GeneratedClass.Get());
	USceneComponent* const Template = Override(Below, Root);
	EXPECT_EQ(Template->GetName(), TEXT("ICH-DefaultSceneRoot_GEN_VARIABLE"));
	EXPECT_EQ(Template->GetArchetype(), Root->ComponentTemplate);
	UBlueprint* const Lowest = MakeBlueprint(TEXT("BP_Lowest"), Below->GeneratedClass.Get());
	EXPECT_EQ(Override(Lowest, Root)->GetName(), TEXT("ICH-DefaultSceneRoot_GEN_VARIABLE"));
	EXPECT_EQ(Override(Lowest, Root)->GetArchetype(), Template);
}

TEST_F(FInheritedComponents, AnotherParentEndsTheOverridesOfTheFormerOne)
{
	Override(Child, Lamp);
	UBlueprintEditorLibrary::ReparentBlueprint(Child, AActor::StaticClass());
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_TRUE(Child->InheritableComponentHandler->IsEmpty());
}

TEST_F(FInheritedComponents, ARecordThatMakesNoDifferenceOutlivesACompileButNoValidation)
{
	UActorComponent* const Template = Override(Child, Lamp);
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_EQ(Lamp->GetActualComponentTemplate(ClassOf(Child)), Template);
	const USCS_Node* const Arm = AddComponent(Blueprint, TEXT("Arm"));
	SetLocation(Override(Child, Arm), FVector(1, 2, 3));
	{
		const FScopedTransaction Transaction(Title(TEXT("Validate")));
		Child->InheritableComponentHandler->ValidateTemplates();
	}
	EXPECT_EQ(Lamp->GetActualComponentTemplate(ClassOf(Child)), Lamp->ComponentTemplate);
	EXPECT_EQ(Locate(Child, Arm), FVector(1, 2, 3));
	EXPECT_TRUE(Undo());
	EXPECT_EQ(Lamp->GetActualComponentTemplate(ClassOf(Child)), Template);
}

TEST_F(FInheritedComponents, ARecordThatNamesAnothersTemplateIsNone)
{
	UInheritableComponentHandler* const Handler = Child->GetInheritableComponentHandler(true);
	const FProperty* const Records = FindFProperty<FProperty>(Handler->GetClass(), TEXT("Records"));
	const FString Text = FString::Printf(
		TEXT("((ComponentTemplate=\"%s\",ComponentKey=(OwnerClass=\"%s\",SCSVariableName=\"Lamp\",AssociatedGuid=%s)),())"),
		*Lamp->ComponentTemplate->GetPathName(), *Blueprint->GeneratedClass->GetPathName(), *Lamp->VariableGuid.ToString());
	ASSERT_NE(Records->ImportText_InContainer(*Text, Handler, Handler, PPF_None), nullptr);
	ASSERT_EQ(NumOverrides(Child), 2);
	EXPECT_EQ(Handler->GetOverridenComponentTemplate(FComponentKey(Lamp)), nullptr);
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_EQ(NumOverrides(Child), 0);
	EXPECT_EQ(Lamp->ComponentTemplate->GetOuter(), Blueprint->GeneratedClass.Get()) << "it stays the parent's";
	SetLocation(Override(Child, Lamp), FVector(1, 2, 3));
	EXPECT_EQ(Locate(Blueprint, Lamp), FVector(10, 20, 30));
}

TEST_F(FInheritedComponents, APlacedActorKeepsAValueOfItsOwnThatIsTheGrandparents)
{
	SetLocation(Override(Child, Lamp), FVector(1, 2, 3));
	USCS_Node* const Arm = AddComponent(Child, TEXT("Arm"));
	SetLocation(Arm->ComponentTemplate, FVector(7, 7, 7));
	FKismetEditorUtilities::CompileBlueprint(Child);
	UWorld* const World = GEditor->GetEditorWorldContext().World();
	AActor* const Actor = World->SpawnActor(Child->GeneratedClass.Get());
	const FName Name = Actor->GetFName();
	const auto Find = [World, Name](const TCHAR* Component)
	{
		AActor* const Now = FindObjectFast<AActor>(World->PersistentLevel, Name);
		return FindObjectFast<USceneComponent>(Now, Component);
	};
	SetLocation(Find(TEXT("Lamp")), FVector(10, 20, 30));
	SetLocation(Find(TEXT("Arm")), FVector::ZeroVector);
	FKismetEditorUtilities::CompileBlueprint(Child);
	ASSERT_TRUE(Find(TEXT("Lamp")) && Find(TEXT("Arm")));
	EXPECT_EQ(Find(TEXT("Lamp"))->GetRelativeLocation(), FVector(10, 20, 30)) << "not what the child's override has";
	EXPECT_EQ(Find(TEXT("Arm"))->GetRelativeLocation(), FVector::ZeroVector) << "not what the template has";
	World->DestroyActor(FindObjectFast<AActor>(World->PersistentLevel, Name));
}

TEST_F(FInheritedComponents, AnOverrideOutlivesACompileOfTheComponentsOwnBlueprint)
{
	UBlueprint* const Bulb = MakeBlueprint(TEXT("BP_Bulb"), USceneComponent::StaticClass());
	USCS_Node* const Node = AddComponent(Blueprint, TEXT("Bulb"), Bulb->GeneratedClass.Get());
	SetLocation(Node->ComponentTemplate, FVector(0, 0, 5));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	USceneComponent* const Template = Override(Child, Node);
	Template->bHiddenInGame = true;
	FBlueprintEditorUtils::AddMemberVariable(Bulb, TEXT("Watts"), MakeType(UEdGraphSchema_K2::PC_Int));
	FKismetEditorUtilities::CompileBlueprint(Bulb);
	FKismetEditorUtilities::CompileBlueprint(Child);
	const USceneComponent* const Now = Cast<USceneComponent>(Node->GetActualComponentTemplate(ClassOf(Child)));
	ASSERT_NE(Now, nullptr);
	EXPECT_NE(Now, Template);
	EXPECT_EQ(NumOverrides(Child), 1);
	EXPECT_TRUE(Now->bHiddenInGame);
	EXPECT_EQ(Now->GetRelativeLocation(), FVector(0, 0, 5));
	EXPECT_EQ(Now->GetArchetype(), Node->ComponentTemplate);
	EXPECT_TRUE(Now->HasAllFlags(RF_ArchetypeObject | RF_InheritableComponentTemplate));
}

TEST_F(FInheritedComponents, ACopyOfTheChildHasOverridesOfItsOwn)
{
	SetLocation(Override(Child, Lamp), FVector(1, 2, 3));
	const FString Name = Child->GetName() + TEXT("_Copy");
	UBlueprint* const Copy = DuplicateObject<UBlueprint>(Child, CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name));
	FBlueprintEditorUtils::PostDuplicateBlueprint(Copy, false);
	ASSERT_NE(Copy->InheritableComponentHandler, nullptr);
	ASSERT_NE(Copy->InheritableComponentHandler, Child->InheritableComponentHandler);
	EXPECT_EQ(Locate(Copy, Lamp), FVector(1, 2, 3));
	EXPECT_EQ(Lamp->GetActualComponentTemplate(ClassOf(Copy))->GetOuter(), Copy->GeneratedClass.Get());
	SetLocation(Override(Copy, Lamp), FVector(4, 5, 6));
	EXPECT_EQ(Locate(Child, Lamp), FVector(1, 2, 3));
}
}
