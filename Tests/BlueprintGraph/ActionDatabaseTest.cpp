#include "ActionDatabaseFixture.h"
#include "BlueprintBoundEventNodeSpawner.h"
#include "BlueprintEventNodeSpawner.h"
#include "BlueprintFunctionNodeSpawner.h"
#include "BlueprintVariableNodeSpawner.h"
#include "Components/ActorComponent.h"
#include "EdGraphSchema_K2.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/UserDefinedEnum.h"
#include "K2Node_AddComponent.h"
#include "K2Node_CallDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_Event.h"
#include "K2Node_InputKey.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Message.h"
#include "K2Node_PromotableOperator.h"
#include "K2Node_SwitchEnum.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet2/EnumEditorUtils.h"

namespace
{
TEST_F(FActionDatabaseTest, EveryActionMakesItsTemplateAndTellsWhatAMenuShows)
{
	int32 NumActions = 0;
	TMap<FString, int32> Untitled;
	for (const TPair<FObjectKey, FActionList>& Entry : FBlueprintActionDatabase::Get().GetAllActions())
	{
		for (UBlueprintNodeSpawner* const Action : Entry.Value)
		{
			++NumActions;
			ASSERT_TRUE(Action->NodeClass) << TCHAR_TO_UTF8(*Entry.Key.ResolveObjectPtr()->GetPathName());
			const UEdGraphNode* const Template = Action->GetTemplateNode();
			if (!Template || !UBlueprintNodeSpawner::IsTemplateNode(Template) || Action->PrimeDefaultUiSpec().MenuName.IsEmpty())
			{
				++Untitled.FindOrAdd(Action->NodeClass->GetName());
			}
		}
	}
	for (const TPair<FString, int32>& Class : Untitled)
	{
		ADD_FAILURE() << TCHAR_TO_UTF8(*Class.Key) << ": " << Class.Value << " actions without a template or title";
	}
	// The declared functions alone are four thousand.
	EXPECT_GT(NumActions, 6000);
}

TEST_F(FActionDatabaseTest, ACallStandsWhereItIsPutAndAnswersItsFunction)
{
	const UClass* const Library = FindClass(TEXT("/Script/Engine.KismetSystemLibrary"));
	UK2Node_CallFunction* const Node = Spawn<UK2Node_CallFunction>(Library, TEXT("Print String"));
	ASSERT_NE(Node, nullptr);
	EXPECT_EQ(Node->GetGraph(), Graph);
	EXPECT_TRUE(Graph->Nodes.Contains(Node));
	EXPECT_EQ(Node->NodePosX, 16);
	EXPECT_EQ(Node->NodePosY, 32);
	EXPECT_TRUE(Node->NodeGuid.IsValid());
	EXPECT_NE(Node->FindPin(TEXT("InString")), nullptr);
	EXPECT_TRUE(Node->HasAnyFlags(RF_Transactional));
	// The template is another node, and stays out of the graph.
	const UEdGraphNode* const Template = Find(Library, TEXT("Print String"))->GetTemplateNode();
	EXPECT_NE(Template, Node);
	EXPECT_FALSE(Graph->Nodes.Contains(Template));
}

TEST_F(FActionDatabaseTest, AnOperationHasOneActionForAllItsTypes)
{
	const UClass* const Math = FindClass(TEXT("/Script/Engine.KismetMathLibrary"));
	int32 NumAdditions = 0;
	for (const UBlueprintNodeSpawner* const Action : GetActions(Math))
	{
		const FBlueprintActionInfo Info(Math, Action);
		const UFunction* const Function = Info.GetAssociatedFunction();
		NumAdditions += Function && Function->GetName().StartsWith(TEXT("Add_")) &&
				Action->NodeClass == UK2Node_PromotableOperator::StaticClass()
			? 1
			: 0;
		EXPECT_FALSE(Function && Function->GetName() == TEXT("Add_IntInt"));
	}
	EXPECT_EQ(NumAdditions, 1);
}

TEST_F(FActionDatabaseTest, AnEventStandsInItsBlueprintOnce)
{
	UK2Node_Event* const First = Spawn<UK2Node_Event>(AActor::StaticClass(), TEXT("Event Hit"));
	ASSERT_NE(First, nullptr);
	EXPECT_TRUE(First->bOverrideFunction);
	EXPECT_EQ(First->EventReference.GetMemberName(), FName(TEXT("ReceiveHit")));
	const int32 NumNodes = Graph->Nodes.Num();
	EXPECT_EQ(Spawn<UK2Node_Event>(AActor::StaticClass(), TEXT("Event Hit")), First);
	EXPECT_EQ(Graph->Nodes.Num(), NumNodes);
	// An event that was suggested and is disabled becomes a real one.
	UK2Node_Event* const Tick = Spawn<UK2Node_Event>(AActor::StaticClass(), TEXT("Event Tick"));
	ASSERT_NE(Tick, nullptr);
	EXPECT_TRUE(Tick->IsNodeEnabled());
	const UEdGraphNode* const Key = Spawn<UK2Node_InputKey>(UK2Node_InputKey::StaticClass(), TEXT("Space Bar"));
	EXPECT_NE(Key, nullptr);
}

TEST_F(FActionDatabaseTest, ActionsFollowTheirBlueprint)
{
	EXPECT_EQ(Find(Blueprint, TEXT("Get Health")), nullptr);
	bool bTold = false;
	const FDelegateHandle Listener = FBlueprintActionDatabase::Get().OnEntryUpdated().AddLambda([this, &bTold](UObject* Key)
		{ bTold |= Key == Blueprint; });
	AddVariable(TEXT("Health"));
	UK2Node_VariableGet* const Get = Spawn<UK2Node_VariableGet>(Blueprint, TEXT("Get Health"));
	ASSERT_NE(Get, nullptr);
	EXPECT_TRUE(Get->VariableReference.IsSelfContext());
	EXPECT_NE(Spawn<UK2Node_VariableSet>(Blueprint, TEXT("Set Health")), nullptr);
	EXPECT_TRUE(bTold);
	FBlueprintActionDatabase::Get().OnEntryUpdated().Remove(Listener);

	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Energy"));
	EXPECT_EQ(Find(Blueprint, TEXT("Get Health")), nullptr);
	EXPECT_NE(Find(Blueprint, TEXT("Get Energy")), nullptr);

	UEdGraph* const Function = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, TEXT("Heal"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Function, true, nullptr);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UK2Node_CallFunction* const Call = Spawn<UK2Node_CallFunction>(Blueprint, TEXT("Heal"));
	ASSERT_NE(Call, nullptr);
	EXPECT_TRUE(Call->FunctionReference.IsSelfContext());
	FBlueprintEditorUtils::RemoveGraph(Blueprint, Function);
	EXPECT_EQ(Find(Blueprint, TEXT("Heal")), nullptr);

	// Another Blueprint sees them as members of a target.
	UBlueprint* const Mine = Blueprint;
	FGraphTest::SetUp();
	UK2Node_VariableGet* const Foreign = Spawn<UK2Node_VariableGet>(Mine, TEXT("Get Energy"));
	ASSERT_NE(Foreign, nullptr);
	EXPECT_FALSE(Foreign->VariableReference.IsSelfContext());
	EXPECT_NE(Foreign->FindPin(UEdGraphSchema_K2::PN_Self), nullptr);
}

TEST_F(FActionDatabaseTest, CastsMacrosComponentsAndEnumsHaveActions)
{
	const FString CastTitle = TEXT("Cast To ") + Blueprint->GetName();
	UK2Node_DynamicCast* const Cast = Spawn<UK2Node_DynamicCast>(Blueprint, *CastTitle);
	ASSERT_NE(Cast, nullptr);
	EXPECT_EQ(Cast->TargetType.Get(), Blueprint->GeneratedClass.Get());

	const UBlueprint* const Macros = FStandardMacros::Create();
	UK2Node_MacroInstance* const Loop = Spawn<UK2Node_MacroInstance>(Macros, TEXT("For Each Loop"));
	ASSERT_NE(Loop, nullptr);
	EXPECT_EQ(Loop->GetMacroGraph()->GetFName(), FName(TEXT("ForEachLoop")));

	UClass* const Mesh = FindClass(TEXT("/Script/Engine.StaticMeshComponent"));
	UK2Node_AddComponent* const Add = Spawn<UK2Node_AddComponent>(Mesh, TEXT("Add Static Mesh Component"));
	ASSERT_NE(Add, nullptr);
	ASSERT_EQ(Blueprint->ComponentTemplates.Num(), 1);
	EXPECT_TRUE(Blueprint->ComponentTemplates[0]->IsA(Mesh));

	UUserDefinedEnum* const Enum = CastChecked<UUserDefinedEnum>(FEnumEditorUtils::CreateUserDefinedEnum(
		CreatePackage(TEXT("/Game/E_Weather")), TEXT("E_Weather"), RF_Public | RF_Standalone));
	FEnumEditorUtils::AddNewEnumeratorForUserDefinedEnum(Enum);
	UK2Node_SwitchEnum* const Switch = Spawn<UK2Node_SwitchEnum>(Enum, TEXT("Switch on E_Weather"));
	ASSERT_NE(Switch, nullptr);
	EXPECT_EQ(Switch->GetEnum(), Enum);
}

TEST_F(FActionDatabaseTest, ABoundEventIsBoundToItsComponent)
{
	USCS_Node* const Component = Blueprint->SimpleConstructionScript->CreateNode(
		FindClass(TEXT("/Script/Engine.BoxComponent")), TEXT("Box"));
	Blueprint->SimpleConstructionScript->AddNode(Component);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const FObjectProperty* const Property = FindFProperty<FObjectProperty>(Blueprint->SkeletonGeneratedClass.Get(), TEXT("Box"));
	ASSERT_NE(Property, nullptr);
	const UClass* const Declaring = FindClass(TEXT("/Script/Engine.PrimitiveComponent"));
	UBlueprintBoundEventNodeSpawner* Action = nullptr;
	for (UBlueprintNodeSpawner* const Candidate : GetActions(Declaring))
	{
		UBlueprintBoundEventNodeSpawner* const Bound = Cast<UBlueprintBoundEventNodeSpawner>(Candidate);
		Action = Bound && Bound->GetEventDelegate()->GetFName() == FName(TEXT("OnComponentBeginOverlap")) ? Bound : Action;
	}
	ASSERT_NE(Action, nullptr);
	IBlueprintNodeBinder::FBindingSet Bindings;
	Bindings.Add(FBindingObject(Property));
	UK2Node_ComponentBoundEvent* const Event = Cast<UK2Node_ComponentBoundEvent>(Action->Invoke(Graph, Bindings, FVector2D::ZeroVector));
	ASSERT_NE(Event, nullptr);
	EXPECT_EQ(Event->ComponentPropertyName, FName(TEXT("Box")));
	EXPECT_NE(Event->FindPin(TEXT("OtherActor")), nullptr);
	EXPECT_EQ(Action->Invoke(Graph, Bindings, FVector2D::ZeroVector), Event);
}

TEST_F(FActionDatabaseTest, TheFilterRefusesWhatCannotBeThere)
{
	const UClass* const System = FindClass(TEXT("/Script/Engine.KismetSystemLibrary"));
	UEdGraph* const Function = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, TEXT("Work"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Function, true, nullptr);
	EXPECT_FALSE(IsFiltered(System, TEXT("Delay")));
	EXPECT_TRUE(IsFiltered(System, TEXT("Delay"), Function));
	EXPECT_FALSE(IsFiltered(System, TEXT("Print String"), Function));
	EXPECT_FALSE(IsFiltered(AActor::StaticClass(), TEXT("Event Tick")));
	EXPECT_TRUE(IsFiltered(AActor::StaticClass(), TEXT("Event Tick"), Function));
	const UClass* const Pawn = FindClass(TEXT("/Script/Engine.Pawn"));
	EXPECT_TRUE(IsFiltered(Pawn, TEXT("Event Possessed")));
}

TEST_F(FActionDatabaseTest, TemplatesGiveWayAndComeBack)
{
	const UClass* const Math = FindClass(TEXT("/Script/Engine.KismetMathLibrary"));
	UBlueprintNodeSpawner* const Action = Find(Math, TEXT("Clamp (Integer)"));
	ASSERT_NE(Action, nullptr);
	const FString Title = Action->GetTemplateNode()->GetNodeTitle(ENodeTitleType::FullTitle).ToString();
	int32 NumMade = 0;
	for (const TPair<FObjectKey, FActionList>& Entry : FBlueprintActionDatabase::Get().GetAllActions())
	{
		for (UBlueprintNodeSpawner* const Other : Entry.Value)
		{
			NumMade += Other != Action && Other->GetTemplateNode() ? 1 : 0;
		}
	}
	ASSERT_GT(NumMade, 5000);
	EXPECT_EQ(Action->GetCachedTemplateNode(), nullptr);
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(Action->GetTemplateNode()->GetNodeTitle(ENodeTitleType::FullTitle).ToString(), Title);
	EXPECT_NE(Action->GetCachedTemplateNode(), nullptr);
}
}
