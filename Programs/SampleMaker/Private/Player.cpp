#include "BlueprintWriter.h"
#include "EngineLibraries.h"
#include "Engine/Blueprint.h"
#include "InputCoreTypes.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Lighthouse.h"
#include "PinTypes.h"

namespace
{
void WriteBeginPlay(FGraphWriter Graph)
{
	UEdGraphNode& Begin = Graph.At(0, 0).AddEvent(TEXT("ReceiveBeginPlay"));
	UEdGraphNode& Sequence = Graph.AddSequence();
	UEdGraphNode& Print = Graph.AddPrint(TEXT("Press E to open doors"));
	UEdGraphNode& Collect = Graph.At(2, 1).AddOwnCall(TEXT("CollectItem"));
	Graph.Run(Begin, Sequence);
	Graph.Run(Sequence, TEXT("then_0"), Print);
	Graph.Run(Sequence, TEXT("then_1"), Collect);
	Graph.SetDefault(Collect, TEXT("Item"), TEXT("Coin"));
}

void WriteInteract(FGraphWriter Graph, UBlueprint& Door)
{
	UEdGraphNode& Interact = Graph.At(0, 5).AddCustomEvent(TEXT("Interact"));
	UEdGraphNode& Overlaps = Graph.At(0, 7).AddCall(EngineLibraries::Actor, TEXT("GetOverlappingActors"));
	UEdGraphNode& Loop = Graph.At(2, 5).AddMacro(TEXT("ForEachLoop"), TEXT("nodeForEachLoop.t3d"));
	UEdGraphNode& Cast = Graph.AddCast(Door);
	UEdGraphNode& Branch = Graph.AddBranch();
	UEdGraphNode& Open = Graph.AddCallOf(Door, TEXT("OpenDoor"));
	UEdGraphNode& CanOpen = Graph.At(4, 6).AddCallOf(Door, TEXT("CanOpen"));
	const FName AsDoor = CastChecked<UK2Node_DynamicCast>(&Cast)->GetCastResultPin()->PinName;
	Graph.SetDefault(Overlaps, TEXT("ClassFilter"), *Door.GeneratedClass.Get());
	Graph.Run(Interact, Loop);
	Graph.Feed(Overlaps, TEXT("OverlappingActors"), Loop, TEXT("Array"));
	Graph.Run(Loop, TEXT("LoopBody"), Cast);
	Graph.Feed(Loop, TEXT("Array Element"), Cast, TEXT("Object"));
	Graph.Run(Cast, Branch);
	Graph.Feed(Cast, AsDoor, CanOpen, TEXT("self"));
	Graph.Feed(CanOpen, Branch, TEXT("Condition"));
	Graph.Run(Branch, TEXT("then"), Open);
	Graph.Feed(Cast, AsDoor, Open, TEXT("self"));

	UEdGraphNode& Key = Graph.At(0, 3).AddInputKey(FKey(TEXT("E")));
	UEdGraphNode& Call = Graph.AddOwnCall(TEXT("Interact"));
	Graph.Run(Key, TEXT("Pressed"), Call);
}

void WriteAddScore(FGraphWriter Graph)
{
	UEdGraphNode& Entry = Graph.FindTerminator(*UK2Node_FunctionEntry::StaticClass());
	UEdGraphNode& Result = Graph.FindTerminator(*UK2Node_FunctionResult::StaticClass());
	UEdGraphNode& Score = Graph.At(0, 1).AddGet(TEXT("Score"));
	UEdGraphNode& Sum = Graph.AddCall(EngineLibraries::Math, TEXT("Add_IntInt"));
	UEdGraphNode& Set = Graph.At(2, 0).AddSet(TEXT("Score"));
	Graph.Run(Entry, Set);
	Graph.Feed(Score, Sum, TEXT("A"));
	Graph.Feed(Entry, TEXT("Points"), Sum, TEXT("B"));
	Graph.Feed(Sum, Set, TEXT("Score"));
	Graph.Run(Set, Result);
	Graph.Feed(Set, TEXT("Output_Get"), Result, TEXT("NewScore"));
}

void WriteCollectItem(FGraphWriter Graph)
{
	UEdGraphNode& Entry = Graph.FindTerminator(*UK2Node_FunctionEntry::StaticClass());
	UEdGraphNode& Switch = Graph.At(1, 0).AddSwitchOnName({TEXT("Coin"), TEXT("Key")});
	UEdGraphNode& AddScore = Graph.At(3, 0).AddOwnCall(TEXT("AddScore"));
	UEdGraphNode& SetKeys = Graph.At(3, 1).AddSet(TEXT("Keys"));
	UEdGraphNode& Print = Graph.At(3, 3).AddPrint(TEXT("That is of no use here"));
	UEdGraphNode& Keys = Graph.At(1, 2).AddGet(TEXT("Keys"));
	UEdGraphNode& Sum = Graph.AddCall(EngineLibraries::Math, TEXT("Add_IntInt"));
	Graph.Run(Entry, Switch);
	Graph.Feed(Entry, TEXT("Item"), Switch, TEXT("Selection"));
	Graph.Run(Switch, TEXT("Coin"), AddScore);
	Graph.SetDefault(AddScore, TEXT("Points"), TEXT("10"));
	Graph.Run(Switch, TEXT("Key"), SetKeys);
	Graph.Feed(Keys, Sum, TEXT("A"));
	Graph.SetDefault(Sum, TEXT("B"), TEXT("1"));
	Graph.Feed(Sum, SetKeys, TEXT("Keys"));
	Graph.Run(Switch, TEXT("Default"), Print);
}
}

void DeclarePlayer(const FLighthouse& Lighthouse, const FNodeTexts& Texts)
{
	FBlueprintWriter Player(*Lighthouse.Player, Texts);
	Player.AddVariable({TEXT("Score"), PinTypes::Int(), TEXT("0"), TEXT("Points that the player has collected.")});
	Player.AddVariable({TEXT("Keys"), PinTypes::Int(), TEXT("0"), TEXT("Keys that the player carries.")});
	Player.AddFunction({TEXT("AddScore"), TEXT("Adds points to the score and answers the new score."),
		{{TEXT("Points"), PinTypes::Int()}}, {{TEXT("NewScore"), PinTypes::Int()}}});
	Player.AddFunction({TEXT("CollectItem"), TEXT("A coin is worth ten points, a key is kept."), {{TEXT("Item"), PinTypes::Name()}}, {}});
}

void WritePlayer(const FLighthouse& Lighthouse, const FNodeTexts& Texts)
{
	const FBlueprintWriter Player(*Lighthouse.Player, Texts);
	WriteAddScore(Player.Write(TEXT("AddScore")));
	WriteCollectItem(Player.Write(TEXT("CollectItem")));
	WriteBeginPlay(Player.Write(TEXT("EventGraph")));
	WriteInteract(Player.Write(TEXT("EventGraph")), *Lighthouse.Door);
}
