#include "BlueprintWriter.h"
#include "EngineLibraries.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Lighthouse.h"
#include "PinTypes.h"

namespace
{
/** "TEXT" and a value's text, joined. */
UEdGraphNode& AddLabelled(FGraphWriter& Graph, const FString& Label, FName Conversion, UEdGraphNode& From, FName Output, FName Input)
{
	UEdGraphNode& Convert = Graph.AddCall(EngineLibraries::String, Conversion);
	UEdGraphNode& Append = Graph.AddCall(EngineLibraries::String, TEXT("Concat_StrStr"));
	Graph.Feed(From, Output, Convert, Input);
	Graph.SetDefault(Append, TEXT("A"), Label);
	Graph.Feed(Convert, Append, TEXT("B"));
	return Append;
}

void WriteDamage(FGraphWriter Graph)
{
	UEdGraphNode& Damage = Graph.At(0, 0).AddEvent(TEXT("ReceiveAnyDamage"));
	UEdGraphNode& Set = Graph.At(4, 0).AddSet(TEXT("Health"));
	UEdGraphNode& Branch = Graph.AddBranch();
	UEdGraphNode& Die = Graph.AddOwnCall(TEXT("Die"));

	UEdGraphNode& Before = Graph.At(0, 2).AddGet(TEXT("Health"));
	UEdGraphNode& Subtract = Graph.AddCall(EngineLibraries::Math, TEXT("Subtract_DoubleDouble"));
	UEdGraphNode& Clamp = Graph.AddCall(EngineLibraries::Math, TEXT("FClamp"));
	UEdGraphNode& Most = Graph.At(1, 3).AddGet(TEXT("MaxHealth"));
	Graph.Run(Damage, Set);
	Graph.Feed(Before, Subtract, TEXT("A"));
	Graph.Feed(Damage, TEXT("Damage"), Subtract, TEXT("B"));
	Graph.Feed(Subtract, Clamp, TEXT("Value"));
	Graph.Feed(Most, Clamp, TEXT("Max"));
	Graph.Feed(Clamp, Set, TEXT("Health"));

	UEdGraphNode& After = Graph.At(4, 2).AddGet(TEXT("Health"));
	UEdGraphNode& IsDead = Graph.AddCall(EngineLibraries::Math, TEXT("LessEqual_DoubleDouble"));
	Graph.Feed(After, IsDead, TEXT("A"));
	Graph.SetDefault(IsDead, TEXT("B"), TEXT("0.0"));
	Graph.Run(Set, Branch);
	Graph.Feed(IsDead, Branch, TEXT("Condition"));
	Graph.Run(Branch, TEXT("then"), Die);

	UEdGraphNode& Left = Graph.At(4, 3).AddGet(TEXT("Health"));
	UEdGraphNode& Text = AddLabelled(Graph, TEXT("Enemy health: "), TEXT("Conv_DoubleToString"), Left, TEXT("Health"), TEXT("InDouble"));
	UEdGraphNode& Print = Graph.At(7, 1).AddPrint(TEXT("Hello"));
	Graph.Run(Branch, TEXT("else"), Print);
	Graph.Feed(Text, Print, TEXT("InString"));
}

void WriteTick(FGraphWriter Graph)
{
	UEdGraphNode& Tick = Graph.At(0, 5).AddEvent(TEXT("ReceiveTick"));
	UEdGraphNode& Branch = Graph.AddBranch();
	UEdGraphNode& Patrol = Graph.AddOwnCall(TEXT("Patrol"));
	UEdGraphNode& IsDead = Graph.At(0, 6).AddGet(TEXT("bIsDead"));
	Graph.Run(Tick, Branch);
	Graph.Feed(IsDead, Branch, TEXT("Condition"));
	Graph.Run(Branch, TEXT("else"), Patrol);
	Graph.Feed(Tick, TEXT("DeltaSeconds"), Patrol, TEXT("DeltaSeconds"));
}

void WriteDie(FGraphWriter Graph)
{
	UEdGraphNode& Entry = Graph.FindTerminator(*UK2Node_FunctionEntry::StaticClass());
	UEdGraphNode& Set = Graph.At(1, 0).AddSet(TEXT("bIsDead"));
	UEdGraphNode& Loop = Graph.AddMacro(TEXT("ForEachLoop"), TEXT("nodeForEachLoop.t3d"));
	UEdGraphNode& Loot = Graph.At(1, 1).AddGet(TEXT("Loot"));
	Graph.Run(Entry, Set);
	Graph.SetDefault(Set, TEXT("bIsDead"), TEXT("true"));
	Graph.Run(Set, Loop);
	Graph.Feed(Loot, Loop, TEXT("Array"));

	UEdGraphNode& Text = AddLabelled(Graph.At(3, 1), TEXT("The enemy drops: "), TEXT("Conv_NameToString"), Loop, TEXT("Array Element"), TEXT("InName"));
	UEdGraphNode& Print = Graph.At(5, 0).AddPrint(TEXT("Hello"));
	UEdGraphNode& LifeSpan = Graph.At(5, 2).AddCall(EngineLibraries::Actor, TEXT("SetLifeSpan"));
	Graph.Run(Loop, TEXT("LoopBody"), Print);
	Graph.Feed(Text, Print, TEXT("InString"));
	Graph.Run(Loop, TEXT("Completed"), LifeSpan);
	Graph.SetDefault(LifeSpan, TEXT("InLifespan"), TEXT("3.0"));
}

/** Moves towards the patrol point, and chooses the next one on arrival. */
void WritePatrol(FGraphWriter Graph)
{
	UEdGraphNode& Entry = Graph.FindTerminator(*UK2Node_FunctionEntry::StaticClass());
	UEdGraphNode& Move = Graph.At(4, 0).AddCall(EngineLibraries::Actor, TEXT("K2_SetActorLocation"));
	UEdGraphNode& Branch = Graph.AddBranch();
	UEdGraphNode& Set = Graph.At(8, 0).AddSet(TEXT("PatrolIndex"));

	UEdGraphNode& Points = Graph.At(0, 2).AddGet(TEXT("PatrolPoints"));
	UEdGraphNode& Point = Graph.At(1, 2).AddGetItem();
	UEdGraphNode& Index = Graph.At(0, 3).AddGet(TEXT("PatrolIndex"));
	UEdGraphNode& Here = Graph.At(1, 1).AddCall(EngineLibraries::Actor, TEXT("K2_GetActorLocation"));
	UEdGraphNode& Speed = Graph.At(1, 3).AddGet(TEXT("PatrolSpeed"));
	UEdGraphNode& Step = Graph.At(2, 1).AddCall(EngineLibraries::Math, TEXT("VInterpTo_Constant"));
	Graph.Feed(Points, Point, TEXT("Array"));
	Graph.Feed(Index, Point, TEXT("Dimension 1"));
	Graph.Feed(Here, Step, TEXT("Current"));
	Graph.Feed(Point, Step, TEXT("Target"));
	Graph.Feed(Entry, TEXT("DeltaSeconds"), Step, TEXT("DeltaTime"));
	Graph.Feed(Speed, Step, TEXT("InterpSpeed"));
	Graph.Run(Entry, Move);
	Graph.Feed(Step, Move, TEXT("NewLocation"));

	UEdGraphNode& Distance = Graph.At(3, 2).AddCall(EngineLibraries::Math, TEXT("Vector_Distance"));
	UEdGraphNode& Arrived = Graph.AddCall(EngineLibraries::Math, TEXT("LessEqual_DoubleDouble"));
	Graph.Feed(Here, Distance, TEXT("V1"));
	Graph.Feed(Point, Distance, TEXT("V2"));
	Graph.Feed(Distance, Arrived, TEXT("A"));
	Graph.SetDefault(Arrived, TEXT("B"), TEXT("10.0"));
	Graph.Run(Move, Branch);
	Graph.Feed(Arrived, Branch, TEXT("Condition"));

	UEdGraphNode& Next = Graph.At(5, 3).AddCall(EngineLibraries::Math, TEXT("Add_IntInt"));
	UEdGraphNode& Count = Graph.At(5, 4).AddCall(EngineLibraries::Array, TEXT("Array_Length"));
	UEdGraphNode& Wrapped = Graph.At(6, 3).AddCall(EngineLibraries::Math, TEXT("Percent_IntInt"));
	Graph.Feed(Index, Next, TEXT("A"));
	Graph.SetDefault(Next, TEXT("B"), TEXT("1"));
	Graph.Feed(Points, Count, TEXT("TargetArray"));
	Graph.Feed(Next, Wrapped, TEXT("A"));
	Graph.Feed(Count, Wrapped, TEXT("B"));
	Graph.Run(Branch, TEXT("then"), Set);
	Graph.Feed(Wrapped, Set, TEXT("PatrolIndex"));
}

void WriteHealthPercent(FGraphWriter Graph)
{
	UEdGraphNode& Result = Graph.FindTerminator(*UK2Node_FunctionResult::StaticClass());
	UEdGraphNode& Health = Graph.At(0, 1).AddGet(TEXT("Health"));
	UEdGraphNode& Divide = Graph.AddCall(EngineLibraries::Math, TEXT("Divide_DoubleDouble"));
	UEdGraphNode& Most = Graph.At(0, 2).AddGet(TEXT("MaxHealth"));
	Graph.Feed(Health, Divide, TEXT("A"));
	Graph.Feed(Most, Divide, TEXT("B"));
	Graph.Feed(Divide, Result, TEXT("Percent"));
}
}

void DeclareEnemy(const FLighthouse& Lighthouse, const FNodeTexts& Texts)
{
	const TCHAR* const Points = TEXT("((X=0.000000,Y=0.000000,Z=0.000000),(X=600.000000,Y=0.000000,Z=0.000000),")
		TEXT("(X=600.000000,Y=400.000000,Z=0.000000))");
	FBlueprintWriter Enemy(*Lighthouse.Enemy, Texts);
	Enemy.AddVariable({TEXT("Health"), PinTypes::Double(), TEXT("100.000000"), TEXT("Health that is left. The enemy dies at 0."), TEXT("Health")});
	Enemy.AddVariable({TEXT("MaxHealth"), PinTypes::Double(), TEXT("100.000000"), TEXT("Health of an unhurt enemy."), TEXT("Health"), true});
	Enemy.AddVariable({TEXT("bIsDead"), PinTypes::Bool(), TEXT("false"), TEXT("Whether the enemy has died."), TEXT("Health")});
	Enemy.AddVariable({TEXT("Loot"), PinTypes::NameArray(), TEXT("(\"Coin\",\"Key\")"), TEXT("What the enemy drops when it dies."), nullptr, true});
	Enemy.AddVariable({TEXT("PatrolPoints"), PinTypes::VectorArray(), Points,
		TEXT("Places that the enemy walks to, one after the other."), TEXT("Patrol"), true});
	Enemy.AddVariable({TEXT("PatrolIndex"), PinTypes::Int(), TEXT("0"), TEXT("The patrol point that the enemy walks to."), TEXT("Patrol")});
	Enemy.AddVariable({TEXT("PatrolSpeed"), PinTypes::Double(), TEXT("150.000000"), TEXT("Centimetres a second."), TEXT("Patrol"), true});
	Enemy.AddFunction({TEXT("Die"), TEXT("Drops the loot and lets the enemy vanish after three seconds."), {}, {}});
	Enemy.AddFunction({TEXT("Patrol"), TEXT("Walks towards the next patrol point."), {{TEXT("DeltaSeconds"), PinTypes::Double()}}, {}});
	Enemy.AddFunction({TEXT("GetHealthPercent"), TEXT("Health that is left, from 0 to 1."), {}, {{TEXT("Percent"), PinTypes::Double()}}, true});
}

void WriteEnemy(const FLighthouse& Lighthouse, const FNodeTexts& Texts)
{
	const FBlueprintWriter Enemy(*Lighthouse.Enemy, Texts);
	WriteDie(Enemy.Write(TEXT("Die")));
	WritePatrol(Enemy.Write(TEXT("Patrol")));
	WriteHealthPercent(Enemy.Write(TEXT("GetHealthPercent")));
	WriteDamage(Enemy.Write(TEXT("EventGraph")));
	WriteTick(Enemy.Write(TEXT("EventGraph")));
}
