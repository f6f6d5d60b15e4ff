#include "BlueprintWriter.h"
#include "EngineLibraries.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Lighthouse.h"
#include "PinTypes.h"

namespace
{
void WriteBeginPlay(FGraphWriter Graph)
{
	UEdGraphNode& Begin = Graph.At(0, 0).AddEvent(TEXT("ReceiveBeginPlay"));
	UEdGraphNode& Print = Graph.AddPrint(TEXT("A door waits in the dark"));
	Graph.Run(Begin, Print);
}

void WriteOverlaps(FGraphWriter Graph, const UBlueprint& Player)
{
	UEdGraphNode& Begin = Graph.At(0, 2).AddEvent(TEXT("ReceiveActorBeginOverlap"));
	UEdGraphNode& Cast = Graph.AddCast(Player);
	UEdGraphNode& Branch = Graph.AddBranch();
	UEdGraphNode& Print = Graph.AddPrint(TEXT("The door is locked"));
	UEdGraphNode& Locked = Graph.At(1, 3).AddGet(TEXT("bLocked"));
	UEdGraphNode& Open = Graph.At(3, 3).AddOwnCall(TEXT("OpenDoor"));
	Graph.Run(Begin, Cast);
	Graph.Feed(Begin, TEXT("OtherActor"), Cast, TEXT("Object"));
	Graph.Run(Cast, Branch);
	Graph.Feed(Locked, Branch, TEXT("Condition"));
	Graph.Run(Branch, TEXT("then"), Print);
	Graph.Run(Branch, TEXT("else"), Open);

	UEdGraphNode& End = Graph.At(0, 5).AddEvent(TEXT("ReceiveActorEndOverlap"));
	UEdGraphNode& Delay = Graph.AddCall(EngineLibraries::System, TEXT("Delay"));
	UEdGraphNode& Close = Graph.AddOwnCall(TEXT("CloseDoor"));
	UEdGraphNode& Seconds = Graph.At(0, 6).AddGet(TEXT("AutoCloseDelay"));
	Graph.Run(End, Delay);
	Graph.Feed(Seconds, Delay, TEXT("Duration"));
	Graph.Run(Delay, Close);
}

void WriteToggle(FGraphWriter Graph)
{
	UEdGraphNode& Toggle = Graph.At(0, 8).AddCustomEvent(TEXT("Toggle"));
	UEdGraphNode& FlipFlop = Graph.AddMacro(TEXT("FlipFlop"), TEXT("nodeFlipFlop.t3d"));
	UEdGraphNode& Open = Graph.AddOwnCall(TEXT("OpenDoor"));
	UEdGraphNode& Close = Graph.At(2, 9).AddOwnCall(TEXT("CloseDoor"));
	Graph.Run(Toggle, FlipFlop);
	Graph.Run(FlipFlop, TEXT("A"), Open);
	Graph.Run(FlipFlop, TEXT("B"), Close);
}

/** Sets bIsOpen and turns the door, unless it stands so already. Answers the node that makes the rotation. */
UEdGraphNode& WriteMove(FGraphWriter& Graph, bool bOpens)
{
	UEdGraphNode& Entry = Graph.FindTerminator(*UK2Node_FunctionEntry::StaticClass());
	UEdGraphNode& Branch = Graph.At(1, 0).AddBranch();
	UEdGraphNode& Set = Graph.AddSet(TEXT("bIsOpen"));
	UEdGraphNode& Turn = Graph.AddCall(EngineLibraries::Actor, TEXT("K2_SetActorRotation"));
	UEdGraphNode& IsOpen = Graph.At(0, 1).AddGet(TEXT("bIsOpen"));
	UEdGraphNode& Rotation = Graph.At(2, 1).AddCall(EngineLibraries::Math, TEXT("MakeRotator"));
	Graph.Run(Entry, Branch);
	Graph.Feed(IsOpen, Branch, TEXT("Condition"));
	Graph.Run(Branch, bOpens ? TEXT("else") : TEXT("then"), Set);
	Graph.SetDefault(Set, TEXT("bIsOpen"), bOpens ? TEXT("true") : TEXT("false"));
	Graph.Run(Set, Turn);
	Graph.Feed(Rotation, Turn, TEXT("NewRotation"));
	return Rotation;
}

void WriteOpenDoor(FGraphWriter Graph)
{
	UEdGraphNode& Rotation = WriteMove(Graph, true);
	UEdGraphNode& Angle = Graph.At(1, 2).AddGet(TEXT("OpenAngle"));
	Graph.Feed(Angle, Rotation, TEXT("Yaw"));
}

void WriteCloseDoor(FGraphWriter Graph)
{
	WriteMove(Graph, false);
}

void WriteCanOpen(FGraphWriter Graph)
{
	UEdGraphNode& Result = Graph.FindTerminator(*UK2Node_FunctionResult::StaticClass());
	UEdGraphNode& Locked = Graph.At(0, 1).AddGet(TEXT("bLocked"));
	UEdGraphNode& NotLocked = Graph.AddCall(EngineLibraries::Math, TEXT("Not_PreBool"));
	UEdGraphNode& And = Graph.AddCall(EngineLibraries::Math, TEXT("BooleanAND"));
	UEdGraphNode& IsOpen = Graph.At(0, 2).AddGet(TEXT("bIsOpen"));
	UEdGraphNode& NotOpen = Graph.AddCall(EngineLibraries::Math, TEXT("Not_PreBool"));
	Graph.Feed(Locked, NotLocked, TEXT("A"));
	Graph.Feed(IsOpen, NotOpen, TEXT("A"));
	Graph.Feed(NotLocked, And, TEXT("A"));
	Graph.Feed(NotOpen, And, TEXT("B"));
	Graph.Feed(And, Result, TEXT("bCanOpen"));
}
}

void DeclareDoor(const FLighthouse& Lighthouse, const FNodeTexts& Texts)
{
	FBlueprintWriter Door(*Lighthouse.Door, Texts);
	USCS_Node& Panel = Door.AddComponent(TEXT("/Script/Engine.StaticMeshComponent"), TEXT("Panel"));
	Door.AddComponent(TEXT("/Script/Engine.BoxComponent"), TEXT("Trigger"), &Panel);
	Door.AddVariable({TEXT("bIsOpen"), PinTypes::Bool(), TEXT("false"), TEXT("Whether the door stands open.")});
	Door.AddVariable({TEXT("bLocked"), PinTypes::Bool(), TEXT("false"), TEXT("A locked door does not open for the player."), nullptr, true});
	Door.AddVariable({TEXT("OpenAngle"), PinTypes::Double(), TEXT("90.000000"), TEXT("Yaw of the open door, in degrees."), TEXT("Door"), true});
	Door.AddVariable({TEXT("AutoCloseDelay"), PinTypes::Double(), TEXT("2.000000"),
		TEXT("Seconds after which the door closes behind the player."), TEXT("Door"), true});
	Door.AddFunction({TEXT("OpenDoor"), TEXT("Opens the door unless it is open."), {}, {}});
	Door.AddFunction({TEXT("CloseDoor"), TEXT("Closes the door if it is open."), {}, {}});
	Door.AddFunction({TEXT("CanOpen"), TEXT("Whether the door is closed and not locked."), {}, {{TEXT("bCanOpen"), PinTypes::Bool()}}, true});
}

void WriteDoor(const FLighthouse& Lighthouse, const FNodeTexts& Texts)
{
	const FBlueprintWriter Door(*Lighthouse.Door, Texts);
	WriteOpenDoor(Door.Write(TEXT("OpenDoor")));
	WriteCloseDoor(Door.Write(TEXT("CloseDoor")));
	WriteCanOpen(Door.Write(TEXT("CanOpen")));
	WriteBeginPlay(Door.Write(TEXT("EventGraph")));
	WriteOverlaps(Door.Write(TEXT("EventGraph")), *Lighthouse.Player);
	WriteToggle(Door.Write(TEXT("EventGraph")));
}
