#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Editor/EditorEngine.h"
#include "EditorAssetLibrary.h"
#include "Components/ActorComponent.h"
#include "Engine/Blueprint.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "LighthouseFixture.h"
#include "UObject/Package.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

std::string ToText(const FString& String)
{
	return TCHAR_TO_UTF8(*String);
}

std::vector<std::string> ListGraphs(const UBlueprint& Blueprint)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	std::vector<std::string> Names;
	for (const UEdGraph* const Graph : Graphs)
	{
		Names.push_back(ToText(Graph->GetName()));
	}
	return Names;
}

/** "Name: type = default" of every member variable. */
std::vector<std::string> ListVariables(const UBlueprint& Blueprint)
{
	std::vector<std::string> Lines;
	for (const FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		const FString Type = UEdGraphSchema_K2::TypeToText(Variable.VarType).ToString();
		Lines.push_back(ToText(FString::Printf(TEXT("%s: %s = %s"), *Variable.VarName.ToString(), *Type, *Variable.DefaultValue)));
	}
	return Lines;
}

/** What no sound graph has: dead pins, links that one side does not know, steps that nothing reaches. */
std::vector<std::string> FindFaults(const UBlueprint& Blueprint)
{
	std::vector<std::string> Faults;
	TArray<UEdGraphNode*> Nodes;
	FBlueprintEditorUtils::GetAllNodesOfClass(&Blueprint, Nodes);
	EXPECT_GT(Nodes.Num(), 0);
	for (const UEdGraphNode* const Node : Nodes)
	{
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			const std::string Name = ToText(Node->GetPathName() + TEXT(".") + Pin->PinName.ToString());
			const bool bIsStep = UEdGraphSchema_K2::IsExecPin(*Pin) && Pin->Direction == EGPD_Input;
			if (Pin->bOrphanedPin)
			{
				Faults.push_back(Name + " is an orphan");
			}
			if (bIsStep && Pin->LinkedTo.IsEmpty())
			{
				Faults.push_back(Name + " is never reached");
			}
			for (const UEdGraphPin* const Other : Pin->LinkedTo)
			{
				if (!Other || !Other->LinkedTo.Contains(const_cast<UEdGraphPin*>(Pin)))
				{
					Faults.push_back(Name + " is linked on one side");
				}
			}
		}
	}
	return Faults;
}
}

TEST_F(FLighthouseTest, HasItsGraphs)
{
	const UBlueprint* const Door = Load(TEXT("BP_Door"));
	const UBlueprint* const Enemy = Load(TEXT("BP_Enemy"));
	const UBlueprint* const Player = Load(TEXT("BP_Player"));
	ASSERT_TRUE(Door && Enemy && Player);
	EXPECT_THAT(ListGraphs(*Door), ElementsAre("UserConstructionScript", "OpenDoor", "CloseDoor", "CanOpen", "EventGraph"));
	EXPECT_THAT(ListGraphs(*Enemy), ElementsAre("UserConstructionScript", "Die", "Patrol", "GetHealthPercent", "EventGraph"));
	EXPECT_THAT(ListGraphs(*Player), ElementsAre("UserConstructionScript", "AddScore", "CollectItem", "EventGraph"));
}

TEST_F(FLighthouseTest, HasItsVariables)
{
	const UBlueprint* const Door = Load(TEXT("BP_Door"));
	const UBlueprint* const Enemy = Load(TEXT("BP_Enemy"));
	const UBlueprint* const Player = Load(TEXT("BP_Player"));
	ASSERT_TRUE(Door && Enemy && Player);
	EXPECT_THAT(ListVariables(*Door),
		ElementsAre(
			"bIsOpen: Boolean = false",
			"bLocked: Boolean = false",
			"OpenAngle: Float (double-precision) = 90.000000",
			"AutoCloseDelay: Float (double-precision) = 2.000000"));
	EXPECT_THAT(ListVariables(*Enemy),
		ElementsAre(
			"Health: Float (double-precision) = 100.000000",
			"MaxHealth: Float (double-precision) = 100.000000",
			"bIsDead: Boolean = false",
			"Loot: Array of Names = (\"Coin\",\"Key\")",
			"PatrolPoints: Array of Vectors = ((X=0.000000,Y=0.000000,Z=0.000000),(X=600.000000,Y=0.000000,Z=0.000000),"
			"(X=600.000000,Y=400.000000,Z=0.000000))",
			"PatrolIndex: Integer = 0",
			"PatrolSpeed: Float (double-precision) = 150.000000"));
	EXPECT_THAT(ListVariables(*Player), ElementsAre("Score: Integer = 0", "Keys: Integer = 0"));
}

TEST_F(FLighthouseTest, DoorHasATriggerOnItsPanel)
{
	const UBlueprint* const Door = Load(TEXT("BP_Door"));
	ASSERT_TRUE(Door && Door->SimpleConstructionScript);
	const USCS_Node* const Panel = Door->SimpleConstructionScript->FindSCSNode(TEXT("Panel"));
	const USCS_Node* const Trigger = Door->SimpleConstructionScript->FindSCSNode(TEXT("Trigger"));
	ASSERT_TRUE(Panel && Trigger);
	EXPECT_TRUE(Trigger->IsChildOf(Panel));
	ASSERT_TRUE(Trigger->ComponentTemplate);
	EXPECT_EQ(Trigger->ComponentTemplate->GetClass()->GetPathName(), TEXT("/Script/Engine.BoxComponent"));
}

TEST_F(FLighthouseTest, HasSoundGraphs)
{
	for (const TCHAR* const Name : LighthouseBlueprints)
	{
		const UBlueprint* const Blueprint = Load(Name);
		ASSERT_TRUE(Blueprint);
		EXPECT_THAT(FindFaults(*Blueprint), IsEmpty());
	}
}

TEST_F(FLighthouseTest, NoTwoNodesStandInOnePlace)
{
	// Nearer than that, two nodes of the smallest kinds would cover each other.
	constexpr int32 LeastAside = 160;
	constexpr int32 LeastBelow = 96;
	for (const TCHAR* const Name : {TEXT("BP_Door"), TEXT("BP_Enemy"), TEXT("BP_Player")})
	{
		TArray<UEdGraph*> Graphs;
		Load(Name)->GetAllGraphs(Graphs);
		for (const UEdGraph* const Graph : Graphs)
		{
			for (int32 A = 0; A < Graph->Nodes.Num(); ++A)
			{
				for (int32 B = A + 1; B < Graph->Nodes.Num(); ++B)
				{
					const UEdGraphNode* const First = Graph->Nodes[A];
					const UEdGraphNode* const Second = Graph->Nodes[B];
					EXPECT_TRUE(FMath::Abs(First->NodePosX - Second->NodePosX) >= LeastAside ||
						FMath::Abs(First->NodePosY - Second->NodePosY) >= LeastBelow)
						<< ToText(Graph->GetPathName()) << ": " << ToText(GetTitle(First)) << ", " << ToText(GetTitle(Second));
				}
			}
		}
	}
}

TEST_F(FLighthouseTest, CompilesAndStaysSoundWhenEveryNodeIsMadeAnew)
{
	for (const TCHAR* const Name : LighthouseBlueprints)
	{
		UBlueprint* const Blueprint = Load(Name);
		ASSERT_TRUE(Blueprint);
		FBlueprintEditorUtils::RefreshAllNodes(Blueprint);
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		EXPECT_EQ(Blueprint->Status, BS_UpToDate) << ToText(Name);
		EXPECT_THAT(FindFaults(*Blueprint), IsEmpty());
	}
}

TEST_F(FLighthouseTest, DoorOpensForThePlayerUnlessItIsLocked)
{
	const UBlueprint* const Door = Load(TEXT("BP_Door"));
	ASSERT_TRUE(Door);
	const UEdGraphNode* const Overlap = FindNode(*FindGraph(*Door, TEXT("EventGraph")), TEXT("Event ActorBeginOverlap"));
	const UEdGraphNode* const Cast = Follow(Overlap, TEXT("then"));
	const UEdGraphNode* const Branch = Follow(Cast, TEXT("then"));
	EXPECT_EQ(GetTitle(Cast), TEXT("Cast To BP_Player"));
	EXPECT_EQ(GetTitle(Branch), TEXT("Branch"));
	EXPECT_EQ(GetTitle(Follow(Branch, TEXT("then"))), TEXT("Print String"));
	EXPECT_EQ(GetTitle(Follow(Branch, TEXT("else"))), TEXT("Open Door"));
}

TEST_F(FLighthouseTest, DamagedEnemyDiesWithoutHealth)
{
	const UBlueprint* const Enemy = Load(TEXT("BP_Enemy"));
	ASSERT_TRUE(Enemy);
	const UEdGraphNode* const Damage = FindNode(*FindGraph(*Enemy, TEXT("EventGraph")), TEXT("Event AnyDamage"));
	const UEdGraphNode* const Set = Follow(Damage, TEXT("then"));
	const UEdGraphNode* const Branch = Follow(Set, TEXT("then"));
	EXPECT_EQ(GetTitle(Set), TEXT("Set Health"));
	EXPECT_EQ(GetTitle(Follow(Branch, TEXT("then"))), TEXT("Die"));
	EXPECT_EQ(GetTitle(Follow(Branch, TEXT("else"))), TEXT("Print String"));
}

TEST_F(FLighthouseTest, PlayerCallsTheDoor)
{
	const UBlueprint* const Player = Load(TEXT("BP_Player"));
	ASSERT_TRUE(Player);
	const UEdGraphNode* const Open = FindNode(*FindGraph(*Player, TEXT("EventGraph")), TEXT("Open Door"));
	ASSERT_TRUE(Open);
	const UEdGraphPin* const Target = Open->FindPin(UEdGraphSchema_K2::PN_Self);
	ASSERT_EQ(Target->LinkedTo.Num(), 1);
	EXPECT_EQ(GetTitle(Target->LinkedTo[0]->GetOwningNode()), TEXT("Cast To BP_Door"));
	EXPECT_EQ(Target->PinType.PinSubCategoryObject->GetPathName(), TEXT("/Game/BP_Door.BP_Door_C"));
}

TEST_F(FLighthouseTest, ExportsTheSameTextAfterItIsSavedAgain)
{
	const std::filesystem::path Content = std::filesystem::path(ToText(GetProjectDir())) / "Content";
	for (const TCHAR* const Name : LighthouseBlueprints)
	{
		UBlueprint* const Blueprint = Load(Name);
		ASSERT_TRUE(Blueprint);
		const FString Before = Export(*Blueprint);
		ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));

		const std::string File = ToText(Name) + ".uasset";
		const FString CopyName = FString(Name) + TEXT("_Copy");
		std::filesystem::rename(Content / File, Content / (ToText(CopyName) + ".uasset"));
		std::filesystem::copy(VEXEL_SOURCE_DIR "/Samples/Lighthouse/Content/" + File, Content / File);
		const UPackage* const Package = LoadPackage(nullptr, *(TEXT("/Game/") + CopyName), LOAD_None);
		ASSERT_TRUE(Package);
		const UBlueprint* const Copy = FindObject<UBlueprint>(const_cast<UPackage*>(Package), Name);
		ASSERT_TRUE(Copy);
		const FString After = Export(*Copy).Replace(*(TEXT("/Game/") + CopyName), *(FString(TEXT("/Game/")) + Name));
		EXPECT_EQ(ToText(After), ToText(Before));
	}
}

TEST_F(FLighthouseTest, EditorOpensTheLevelOfTheProject)
{
	const UWorld* const World = GEditor->GetEditorWorldContext().World();
	ASSERT_TRUE(World);
	EXPECT_EQ(World->GetPathName(), TEXT("/Game/L_Lighthouse.L_Lighthouse"));
	EXPECT_EQ(World->WorldType, EWorldType::Editor);
}

TEST_F(FLighthouseTest, LevelHasItsDoorsItsGuardAndItsScript)
{
	const UWorld* const World = Cast<UWorld>(UEditorAssetLibrary::LoadAsset(TEXT("/Game/L_Lighthouse")));
	ASSERT_TRUE(World && World->PersistentLevel);
	std::vector<std::string> Placed;
	for (const AActor* const Actor : World->PersistentLevel->Actors)
	{
		ASSERT_TRUE(Actor);
		const FVector Location = Actor->GetActorLocation();
		Placed.push_back(ToText(FString::Printf(TEXT("%s: %s at %.0f,%.0f,%.0f"), *Actor->GetName(), *Actor->GetClass()->GetName(), Location.X, Location.Y, Location.Z)));
	}
	EXPECT_THAT(Placed,
		ElementsAre(
			"WorldSettings: WorldSettings at 0,0,0",
			"FrontDoor: BP_Door_C at 0,0,0",
			"LampRoomDoor: BP_Door_C at 0,300,1200",
			"Guard: BP_Enemy_C at 500,100,0"));

	UBlueprint* const Script = World->PersistentLevel->GetLevelScriptBlueprint(true);
	ASSERT_TRUE(Script);
	EXPECT_THAT(ListVariables(*Script), ElementsAre("bLampIsLit: Boolean = true"));
	const UEdGraphNode* const BeginPlay = FindNode(*FindGraph(*Script, TEXT("EventGraph")), TEXT("Event BeginPlay"));
	const UEdGraphNode* const Print = Follow(BeginPlay, TEXT("then"));
	ASSERT_EQ(GetTitle(Print), TEXT("Print String"));
	EXPECT_EQ(Print->FindPin(TEXT("InString"))->DefaultValue, TEXT("Welcome to the lighthouse"));
	EXPECT_THAT(FindFaults(*Script), IsEmpty());
	FKismetEditorUtilities::CompileBlueprint(Script);
	EXPECT_EQ(Script->Status, BS_UpToDate);
}
