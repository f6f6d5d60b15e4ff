#include "BlueprintEditTest.h"
#include "BlueprintEditorLibrary.h"
#include "Components/SceneComponent.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "Engine/World.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_Timeline.h"
#include "K2Node_VariableGet.h"
#include "UObject/Interface.h"
#include "UObject/UnrealType.h"

namespace
{
class FBlueprintPartsTest : public FBlueprintEditTest
{
protected:
	static USCS_Node* AddComponent(UBlueprint* ToBlueprint, const TCHAR* Name, USCS_Node* Parent = nullptr)
	{
		USimpleConstructionScript* const Script = ToBlueprint->SimpleConstructionScript;
		USCS_Node* const Node = Script->CreateNode(USceneComponent::StaticClass(), Name);
		if (Parent)
		{
			Parent->AddChildNode(Node);
		}
		else
		{
			Script->AddNode(Node);
		}
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(ToBlueprint);
		return Node;
	}

	static FTopLevelAssetPath PathOf(const UBlueprint* Interface) { return FTopLevelAssetPath(Interface->GeneratedClass->GetPathName()); }
};

TEST_F(FBlueprintPartsTest, ANewActorBlueprintSuggestsItsEventsAndHasARoot)
{
	TArray<UK2Node_Event*> Events;
	Graph->GetNodesOfClass(Events);
	TArray<FName> Names;
	for (const UK2Node_Event* const Event : Events)
	{
		Names.Add(Event->GetFunctionName());
		EXPECT_TRUE(Event->IsAutomaticallyPlacedGhostNode());
		EXPECT_FALSE(Event->IsNodeEnabled());
	}
	EXPECT_EQ(Names, (TArray<FName>{TEXT("ReceiveBeginPlay"), TEXT("ReceiveActorBeginOverlap"), TEXT("ReceiveTick")}));
	ASSERT_EQ(Blueprint->SimpleConstructionScript->GetRootNodes().Num(), 1);
	EXPECT_EQ(Blueprint->SimpleConstructionScript->GetRootNodes()[0], Blueprint->SimpleConstructionScript->GetDefaultSceneRootNode());
	EXPECT_EQ(Blueprint->SimpleConstructionScript->GetDefaultSceneRootNode()->GetVariableName(), FName(TEXT("DefaultSceneRoot")));
	EXPECT_NE(Blueprint->GeneratedClass->FindPropertyByName(TEXT("DefaultSceneRoot")), nullptr);
}

TEST_F(FBlueprintPartsTest, ASuggestionBecomesARealEventWhenItIsLinkedAndUndoTakesThatBack)
{
	UK2Node_Event* const BeginPlay =
		FBlueprintEditorUtils::FindOverrideForFunction(Blueprint, AActor::StaticClass(), TEXT("ReceiveBeginPlay"));
	ASSERT_NE(BeginPlay, nullptr);
	UK2Node_CallFunction* const Print = AddCall(Graph, TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
	{
		const FScopedTransaction Transaction(Title(TEXT("Link")));
		GetDefault<UEdGraphSchema_K2>()->TryCreateConnection(BeginPlay->GetThenPin(), Print->GetExecPin());
	}
	EXPECT_TRUE(BeginPlay->IsNodeEnabled());
	Undo();
	EXPECT_TRUE(BeginPlay->IsAutomaticallyPlacedGhostNode());
}

TEST_F(FBlueprintPartsTest, EachKindOfBlueprintStartsWithWhatItNeeds)
{
	const struct
	{
		EBlueprintType Type;
		UClass* Parent;
		int32 NumEventGraphs;
		int32 NumFunctions;
		bool bHasComponents;
	} Kinds[] = {
		{BPTYPE_Normal, AActor::StaticClass(), 1, 1, true},
		{BPTYPE_Normal, UActorComponent::StaticClass(), 1, 0, false},
		{BPTYPE_Normal, UObject::StaticClass(), 1, 0, false},
		{BPTYPE_Interface, UInterface::StaticClass(), 0, 0, false},
		{BPTYPE_FunctionLibrary, FindObject<UClass>(nullptr, TEXT("/Script/Engine.BlueprintFunctionLibrary")), 0, 0, false},
		{BPTYPE_MacroLibrary, AActor::StaticClass(), 0, 0, false},
	};
	for (const auto& Kind : Kinds)
	{
		UBlueprint* const Made = MakeBlueprint(TEXT("BP_Kind"), Kind.Parent, Kind.Type);
		EXPECT_EQ(Made->UbergraphPages.Num(), Kind.NumEventGraphs) << Kind.Type;
		EXPECT_EQ(Made->FunctionGraphs.Num(), Kind.NumFunctions) << Kind.Type;
		EXPECT_EQ(Made->SimpleConstructionScript != nullptr, Kind.bHasComponents) << Kind.Type;
		EXPECT_EQ(Made->GeneratedClass->HasAnyClassFlags(CLASS_Interface), Kind.Type == BPTYPE_Interface);
		EXPECT_TRUE(Made->IsUpToDate()) << Kind.Type;
	}
}

TEST_F(FBlueprintPartsTest, ALevelHasOneScriptThatIsNoAsset)
{
	ULevel* const Level = GEditor->GetEditorWorldContext().World()->PersistentLevel;
	UBlueprint* const Script = Level->GetLevelScriptBlueprint();
	ASSERT_NE(Script, nullptr);
	EXPECT_EQ(Level->GetLevelScriptBlueprint(), Script);
	EXPECT_TRUE(FBlueprintEditorUtils::IsLevelScriptBlueprint(Script));
	EXPECT_EQ(Script->GetOuter(), Level);
	EXPECT_FALSE(Script->IsAsset());
	EXPECT_EQ(Script->UbergraphPages.Num(), 1);
}

TEST_F(FBlueprintPartsTest, AComponentOfTheUsersTakesTheDefaultRootsPlace)
{
	USimpleConstructionScript* const Script = Blueprint->SimpleConstructionScript;
	USCS_Node* const Default = Script->GetDefaultSceneRootNode();
	USCS_Node* const Below = AddComponent(Blueprint, TEXT("Below"), Default);
	USCS_Node* Mesh = nullptr;
	{
		const FScopedTransaction Transaction(Title(TEXT("Add")));
		Mesh = AddComponent(Blueprint, TEXT("Mesh"));
	}
	EXPECT_EQ(Script->GetRootNodes(), TArray<USCS_Node*>{Mesh});
	EXPECT_EQ(Script->FindParentNode(Below), Mesh);
	Undo();
	EXPECT_EQ(Script->GetRootNodes(), TArray<USCS_Node*>{Default});
	EXPECT_EQ(Script->FindParentNode(Below), Default);
	EXPECT_EQ(Blueprint->SkeletonGeneratedClass->FindPropertyByName(TEXT("Mesh")), nullptr);
	Redo();
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		Script->RemoveNode(Mesh);
	}
	EXPECT_EQ(Script->GetRootNodes(), TArray<USCS_Node*>{Default}) << "actors need a root again";
}

TEST_F(FBlueprintPartsTest, ARemovedComponentsNameCanBeGivenAgainAndUndoTellsThemApart)
{
	USCS_Node* const First = AddComponent(Blueprint, TEXT("Mesh"));
	UActorComponent* const FirstTemplate = First->ComponentTemplate;
	CastChecked<USceneComponent>(FirstTemplate)->SetRelativeLocation(FVector(1, 2, 3));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		Blueprint->SimpleConstructionScript->RemoveNode(First);
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Add")));
		AddComponent(Blueprint, TEXT("Mesh"));
	}
	Collect();
	Undo();
	Undo();
	EXPECT_EQ(Blueprint->SimpleConstructionScript->FindSCSNode(TEXT("Mesh")), First);
	ASSERT_EQ(First->ComponentTemplate, FirstTemplate);
	EXPECT_EQ(FirstTemplate->GetName(), TEXT("Mesh_GEN_VARIABLE"));
	EXPECT_EQ(CastChecked<USceneComponent>(FirstTemplate)->GetRelativeLocation(), FVector(1, 2, 3));
}

TEST_F(FBlueprintPartsTest, ARenamedComponentTakesItsUsesAlong)
{
	USCS_Node* const Node = AddComponent(Blueprint, TEXT("Mesh"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	USCS_Node* const ChildNode = AddComponent(Child, TEXT("Lamp"));
	ChildNode->SetParent(Node);
	UK2Node_VariableGet* const Use =
		AddNode<UK2Node_VariableGet>(Graph, [](UK2Node_VariableGet& Get)
			{ Get.VariableReference.SetSelfMember(TEXT("Mesh")); });
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		FBlueprintEditorUtils::RenameComponentMemberVariable(Blueprint, Node, TEXT("Body"));
	}
	EXPECT_EQ(Node->ComponentTemplate->GetName(), TEXT("Body_GEN_VARIABLE"));
	EXPECT_EQ(Use->GetVarName(), FName(TEXT("Body")));
	EXPECT_EQ(ChildNode->ParentComponentOrVariableName, FName(TEXT("Body")));
	EXPECT_NE(Blueprint->SkeletonGeneratedClass->FindPropertyByName(TEXT("Body")), nullptr);
	Undo();
	EXPECT_EQ(Node->GetVariableName(), FName(TEXT("Mesh")));
	EXPECT_EQ(Node->ComponentTemplate->GetName(), TEXT("Mesh_GEN_VARIABLE"));
	EXPECT_EQ(Use->GetVarName(), FName(TEXT("Mesh")));
	EXPECT_EQ(ChildNode->ParentComponentOrVariableName, FName(TEXT("Mesh")));
}

TEST_F(FBlueprintPartsTest, SpawnedActorsHaveTheTreeOfTheirBlueprintAndItsParents)
{
	USCS_Node* const Root = AddComponent(Blueprint, TEXT("Body"));
	USCS_Node* const Arm = AddComponent(Blueprint, TEXT("Arm"), Root);
	CastChecked<USceneComponent>(Arm->ComponentTemplate.Get())->SetRelativeLocation(FVector(10, 0, 0));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Blueprint->GeneratedClass.Get());
	USCS_Node* const Hand = AddComponent(Child, TEXT("Hand"));
	Hand->SetParent(Arm);
	FKismetEditorUtilities::CompileBlueprint(Child);
	AActor* const Actor = GEditor->GetEditorWorldContext().World()->SpawnActor(Child->GeneratedClass.Get());
	ASSERT_NE(Actor, nullptr);
	const auto Find = [Actor](const TCHAR* Name)
	{ return Cast<USceneComponent>(StaticFindObjectFast(nullptr, Actor, Name)); };
	ASSERT_TRUE(Find(TEXT("Body")) && Find(TEXT("Arm")) && Find(TEXT("Hand")));
	EXPECT_EQ(Actor->GetRootComponent(), Find(TEXT("Body")));
	EXPECT_EQ(Find(TEXT("Arm"))->GetAttachParent(), Find(TEXT("Body")));
	EXPECT_EQ(Find(TEXT("Hand"))->GetAttachParent(), Find(TEXT("Arm")));
	EXPECT_EQ(Find(TEXT("Arm"))->GetRelativeLocation(), FVector(10, 0, 0));
	const FObjectProperty* const Variable = FindFProperty<FObjectProperty>(Actor->GetClass(), TEXT("Arm"));
	ASSERT_NE(Variable, nullptr);
	EXPECT_EQ(Variable->GetObjectPropertyValue_InContainer(Actor), Find(TEXT("Arm")));
	Actor->GetWorld()->DestroyActor(Actor);
}

TEST_F(FBlueprintPartsTest, ActorsOfALevelComeAndGoWithUndo)
{
	USCS_Node* const Body = AddComponent(Blueprint, TEXT("Body"));
	AddComponent(Blueprint, TEXT("Arm"), Body);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UWorld* const World = GEditor->GetEditorWorldContext().World();
	const ULevel* const Level = World->PersistentLevel;
	GEditor->ResetTransaction(Title(TEXT("Test")));
	AActor* Actor = nullptr;
	{
		const FScopedTransaction Transaction(Title(TEXT("Spawn")));
		Actor = World->SpawnActor(Blueprint->GeneratedClass.Get());
	}
	USceneComponent* const Root = Actor->GetRootComponent();
	ASSERT_NE(Root, nullptr);
	{
		const FScopedTransaction Transaction(Title(TEXT("Move")));
		Root->Modify();
		Root->SetRelativeLocation(FVector(5, 6, 7));
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Delete")));
		ASSERT_TRUE(World->DestroyActor(Actor));
	}
	Collect();
	EXPECT_FALSE(Level->Actors.Contains(Actor));
	Undo();
	ASSERT_TRUE(IsValid(Actor));
	EXPECT_TRUE(Level->Actors.Contains(Actor));
	EXPECT_FALSE(Actor->IsActorBeingDestroyed());
	EXPECT_EQ(Actor->GetRootComponent(), Root);
	EXPECT_EQ(Actor->GetComponents().Num(), 2);
	EXPECT_TRUE(Root->IsRegistered());
	EXPECT_EQ(Actor->GetActorLocation(), FVector(5, 6, 7));
	Undo();
	EXPECT_EQ(Actor->GetActorLocation(), FVector::ZeroVector);
	Undo();
	EXPECT_FALSE(Level->Actors.Contains(Actor));
	EXPECT_FALSE(IsValid(Actor));
	Collect();
	ASSERT_TRUE(Redo() && Redo());
	EXPECT_TRUE(Level->Actors.Contains(Actor));
	EXPECT_EQ(Actor->GetActorLocation(), FVector(5, 6, 7));
	EXPECT_EQ(Actor->GetComponents().Num(), 2);
	World->DestroyActor(Actor);
}

TEST_F(FBlueprintPartsTest, ATimelineComesAndGoesWithItsNode)
{
	UK2Node_Timeline* const Node = AddNode<UK2Node_Timeline>(Graph);
	UTimelineTemplate* const Template = Node->GetTemplate();
	ASSERT_NE(Template, nullptr);
	{
		const FScopedTransaction Transaction(Title(TEXT("Rename")));
		EXPECT_TRUE(FBlueprintEditorUtils::RenameTimeline(Blueprint, Node->TimelineName, TEXT("Swing")));
	}
	EXPECT_EQ(Node->TimelineName, FName(TEXT("Swing")));
	EXPECT_EQ(Node->GetTemplate(), Template);
	EXPECT_NE(Blueprint->SkeletonGeneratedClass->FindPropertyByName(TEXT("Swing")), nullptr);
	EXPECT_FALSE(FBlueprintEditorUtils::RenameTimeline(Blueprint, TEXT("Swing"), TEXT("bHidden")));
	{
		const FScopedTransaction Transaction(Title(TEXT("Delete")));
		FBlueprintEditorUtils::RemoveNode(Blueprint, Node);
	}
	EXPECT_EQ(Blueprint->Timelines.Num(), 0);
	EXPECT_NE(FBlueprintEditorUtils::AddNewTimeline(Blueprint, TEXT("Swing")), nullptr) << "the name is free";
	FBlueprintEditorUtils::RemoveTimeline(Blueprint, Blueprint->Timelines[0]);
	Undo();
	ASSERT_EQ(Blueprint->Timelines.Num(), 1);
	EXPECT_EQ(Node->GetTemplate(), Template);
	Undo();
	EXPECT_EQ(Node->GetTemplate(), Template);
	EXPECT_NE(Node->TimelineName, FName(TEXT("Swing")));
}

TEST_F(FBlueprintPartsTest, AnInterfaceGivesGraphsThatGoOrStayWithIt)
{
	UBlueprint* const Interface = MakeBlueprint(TEXT("BPI_Openable"), UInterface::StaticClass(), BPTYPE_Interface);
	UEdGraph* const Function = AddFunction(Interface, TEXT("CanOpen"));
	UK2Node_FunctionResult* const Result =
		FBlueprintEditorUtils::FindOrCreateFunctionResultNode(FBlueprintEditorUtils::GetEntryNode(Function));
	ASSERT_NE(Result, nullptr);
	Result->CreateUserDefinedPin(TEXT("bCan"), MakeType(UEdGraphSchema_K2::PC_Boolean), EGPD_Input);
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Interface);
	FKismetEditorUtilities::CompileBlueprint(Interface);
	EXPECT_TRUE(FKismetEditorUtilities::CanBlueprintImplementInterface(Blueprint, Interface->GeneratedClass.Get()));
	EXPECT_FALSE(FKismetEditorUtilities::CanBlueprintImplementInterface(Blueprint, AActor::StaticClass()));
	{
		const FScopedTransaction Transaction(Title(TEXT("Implement")));
		ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, PathOf(Interface)));
	}
	EXPECT_FALSE(FBlueprintEditorUtils::ImplementNewInterface(Blueprint, PathOf(Interface)));
	EXPECT_FALSE(FKismetEditorUtilities::CanBlueprintImplementInterface(Blueprint, Interface->GeneratedClass.Get()));
	ASSERT_EQ(Blueprint->ImplementedInterfaces.Num(), 1);
	ASSERT_EQ(Blueprint->ImplementedInterfaces[0].Graphs.Num(), 1);
	UEdGraph* const Implementation = Blueprint->ImplementedInterfaces[0].Graphs[0];
	EXPECT_EQ(Implementation->GetName(), TEXT("CanOpen"));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveInterface(Blueprint, PathOf(Interface), true);
	}
	EXPECT_EQ(Blueprint->ImplementedInterfaces.Num(), 0);
	ASSERT_TRUE(Blueprint->FunctionGraphs.Contains(Implementation));
	const UFunction* const Kept = Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("CanOpen"));
	ASSERT_NE(Kept, nullptr);
	EXPECT_NE(Kept->FindPropertyByName(TEXT("bCan")), nullptr) << "the signature became the function's own";
	Undo();
	EXPECT_EQ(Blueprint->ImplementedInterfaces.Num(), 1);
	EXPECT_FALSE(Blueprint->FunctionGraphs.Contains(Implementation));
	{
		const FScopedTransaction Transaction(Title(TEXT("Remove")));
		FBlueprintEditorUtils::RemoveInterface(Blueprint, PathOf(Interface), false);
	}
	EXPECT_EQ(Blueprint->SkeletonGeneratedClass->FindFunctionByName(TEXT("CanOpen")), nullptr);
	Undo();
	Undo();
	EXPECT_EQ(Blueprint->ImplementedInterfaces.Num(), 0);
	EXPECT_TRUE(FBlueprintEditorUtils::IsGraphNameUnique(Blueprint, TEXT("CanOpen")));
}

TEST_F(FBlueprintPartsTest, AReparentedBlueprintHasItsNewParentsMembersAndItsOwn)
{
	UBlueprint* const NewParent = MakeBlueprint(TEXT("BP_NewParent"));
	FBlueprintEditorUtils::AddMemberVariable(NewParent, TEXT("Speed"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("7"));
	FKismetEditorUtilities::CompileBlueprint(NewParent);
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Own"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("5"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UBlueprintEditorLibrary::ReparentBlueprint(Blueprint, NewParent->GeneratedClass.Get());
	const UClass* const Class = Blueprint->GeneratedClass;
	ASSERT_TRUE(Class->IsChildOf(NewParent->GeneratedClass.Get()));
	EXPECT_EQ(FindFProperty<FIntProperty>(Class, TEXT("Own"))->GetPropertyValue_InContainer(Class->GetDefaultObject()), 5);
	EXPECT_EQ(FindFProperty<FIntProperty>(Class, TEXT("Speed"))->GetPropertyValue_InContainer(Class->GetDefaultObject()), 7);
	EXPECT_EQ(Blueprint->SimpleConstructionScript->GetRootNodes().Num(), 0) << "the parent has a root";
	UBlueprintEditorLibrary::ReparentBlueprint(NewParent, Blueprint->GeneratedClass.Get());
	EXPECT_EQ(NewParent->ParentClass.Get(), AActor::StaticClass()) << "no class derives from itself";
	UBlueprintEditorLibrary::ReparentBlueprint(Blueprint, UObject::StaticClass());
	EXPECT_EQ(Blueprint->ParentClass.Get(), NewParent->GeneratedClass.Get()) << "its components need an actor";
}

TEST_F(FBlueprintPartsTest, VariablesAreMovedDuplicatedAndFlagged)
{
	for (const TCHAR* const Name : {TEXT("A"), TEXT("B"), TEXT("C")})
	{
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, MakeType(UEdGraphSchema_K2::PC_Int), TEXT("4"));
	}
	{
		const FScopedTransaction Transaction(Title(TEXT("Move")));
		EXPECT_TRUE(FBlueprintEditorUtils::MoveVariableBeforeVariable(Blueprint, nullptr, TEXT("C"), TEXT("A"), false));
	}
	EXPECT_EQ(FBlueprintEditorUtils::GetBlueprintVariablesNamesList(Blueprint), (TArray<FName>{TEXT("C"), TEXT("A"), TEXT("B")}));
	Undo();
	EXPECT_EQ(FBlueprintEditorUtils::GetBlueprintVariablesNamesList(Blueprint), (TArray<FName>{TEXT("A"), TEXT("B"), TEXT("C")}));
	const FName Copy = FBlueprintEditorUtils::DuplicateVariable(Blueprint, nullptr, TEXT("B"));
	ASSERT_FALSE(Copy.IsNone());
	EXPECT_NE(FBlueprintEditorUtils::FindMemberVariableGuidByName(Blueprint, Copy),
		FBlueprintEditorUtils::FindMemberVariableGuidByName(Blueprint, TEXT("B")));
	EXPECT_EQ(Blueprint->NewVariables.Last().DefaultValue, TEXT("4"));
	FBlueprintEditorUtils::SetVariableTransientFlag(Blueprint, TEXT("A"), true);
	FBlueprintEditorUtils::SetBlueprintOnlyEditableFlag(Blueprint, TEXT("A"), false);
	const FProperty* const Property = Blueprint->SkeletonGeneratedClass->FindPropertyByName(TEXT("A"));
	EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Transient));
	EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_DisableEditOnInstance));
	EXPECT_EQ(UBlueprintEditorLibrary::RemoveUnusedVariables(Blueprint), 4);
	EXPECT_EQ(Blueprint->NewVariables.Num(), 0);
}
}
