#include "BlueprintWriter.h"
#include "EngineLibraries.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/World.h"
#include "Failure.h"
#include "GameFramework/Actor.h"
#include "Lighthouse.h"
#include "PinTypes.h"
#include "StableIds.h"
#include "UObject/Package.h"

namespace
{
/** An actor of a Blueprint that stands in the level. */
struct FPlacedActor
{
	const TCHAR* Name;
	const UBlueprint* Blueprint;
	FVector Location;
	double Yaw;
};

void Place(UWorld& World, const FPlacedActor& Row)
{
	FActorSpawnParameters Parameters;
	Parameters.Name = Row.Name;
	Parameters.InitialActorLabel = Row.Name;
	Require(World.SpawnActor<AActor>(Row.Blueprint->GeneratedClass, Row.Location, FRotator(0.0, Row.Yaw, 0.0), Parameters), FString(TEXT("actor ")) + Row.Name);
}

void WriteBeginPlay(FGraphWriter Graph)
{
	UEdGraphNode& BeginPlay = Graph.At(0, 0).AddEvent(TEXT("ReceiveBeginPlay"));
	UEdGraphNode& Print = Graph.AddPrint(TEXT("Welcome to the lighthouse"));
	Graph.Run(BeginPlay, Print);
}

/** The lamp goes out once and is lit again after a while. */
void WriteLamp(FGraphWriter Graph)
{
	UEdGraphNode& Event = Graph.At(0, 2).AddCustomEvent(TEXT("PutOutLamp"));
	UEdGraphNode& Branch = Graph.AddBranch();
	UEdGraphNode& PutOut = Graph.AddSet(TEXT("bLampIsLit"));
	UEdGraphNode& Dark = Graph.AddPrint(TEXT("The lamp goes out"));
	UEdGraphNode& Delay = Graph.AddCall(EngineLibraries::System, TEXT("Delay"));
	UEdGraphNode& Light = Graph.AddSet(TEXT("bLampIsLit"));
	UEdGraphNode& IsLit = Graph.At(0, 3).AddGet(TEXT("bLampIsLit"));
	Graph.Run(Event, Branch);
	Graph.Feed(IsLit, Branch, TEXT("Condition"));
	Graph.Run(Branch, TEXT("then"), PutOut);
	Graph.SetDefault(PutOut, TEXT("bLampIsLit"), TEXT("false"));
	Graph.Run(PutOut, Dark);
	Graph.Run(Dark, Delay);
	Graph.SetDefault(Delay, TEXT("Duration"), TEXT("5.0"));
	Graph.Run(Delay, Light);
	Graph.SetDefault(Light, TEXT("bLampIsLit"), TEXT("true"));
}
}

UWorld& MakeLevel(const FLighthouse& Lighthouse, const FNodeTexts& Texts)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/L_Lighthouse"));
	UWorld& World = Require(UWorld::CreateWorld(EWorldType::Editor, false, TEXT("L_Lighthouse"), Package), TEXT("world L_Lighthouse"));
	const FPlacedActor Rows[] = {
		{TEXT("FrontDoor"), Lighthouse.Door, FVector(0.0, 0.0, 0.0), 0.0},
		{TEXT("LampRoomDoor"), Lighthouse.Door, FVector(0.0, 300.0, 1200.0), 90.0},
		{TEXT("Guard"), Lighthouse.Enemy, FVector(500.0, 100.0, 0.0), 180.0},
	};
	for (const FPlacedActor& Row : Rows)
	{
		Place(World, Row);
	}
	UBlueprint& Script = Require(World.PersistentLevel->GetLevelScriptBlueprint(), TEXT("level Blueprint"));
	Script.BlueprintDescription = TEXT("The level of the lighthouse. It welcomes the player and rules the lamp.");
	StableIds::Fix(Script);
	FBlueprintWriter Writer(Script, Texts);
	Writer.AddVariable({.Name = TEXT("bLampIsLit"), .Type = PinTypes::Bool(), .DefaultValue = TEXT("true"), .Tooltip = TEXT("Whether the lamp of the lighthouse is lit.")});
	WriteBeginPlay(Writer.Write(TEXT("EventGraph")));
	WriteLamp(Writer.Write(TEXT("EventGraph")));
	Writer.Compile();
	return World;
}
