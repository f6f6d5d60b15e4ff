#include "StandardMacroGraphs.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_AssignmentStatement.h"
#include "K2Node_CallArrayFunction.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_TemporaryVariable.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogStandardMacros, Log, All);

namespace
{
constexpr int32 ColumnWidth = 288;
constexpr int32 RowHeight = 192;

/** Adds nodes in columns from left to right, and wires them. Inputs of the macro are pins of Entry, outputs pins of Exit. */
class FMacroWiring
{
public:
	explicit FMacroWiring(UEdGraph& InGraph)
		: Graph(InGraph)
		, Entry(const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(&InGraph, true)))
		, Exit(const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(&InGraph, false)))
	{
	}

	UEdGraphPin* In(const TCHAR* Name) const { return Entry->FindPin(FName(Name), EGPD_Output); }
	UEdGraphPin* FirstIn() const { return Entry->GetPinAt(0); }
	UEdGraphPin* Out(const TCHAR* Name) const { return Exit->FindPin(FName(Name), EGPD_Input); }
	bool HasFailed() const { return bFailed; }

	/** A pin of a call; null for a function that is not declared. */
	static UEdGraphPin* Parameter(const UK2Node_CallFunction* Call, const TCHAR* Name)
	{
		return Call ? Call->FindPin(FName(Name)) : nullptr;
	}
	static UEdGraphPin* Result(const UK2Node_CallFunction* Call) { return Call ? Call->GetReturnValuePin() : nullptr; }

	void Link(UEdGraphPin* From, UEdGraphPin* To)
	{
		if (!From || !To || !GetDefault<UEdGraphSchema_K2>()->TryCreateConnection(From, To))
		{
			bFailed = true;
			UE_LOG(LogStandardMacros, Error, TEXT("%s: %s does not go into %s"), *Graph.GetName(),
				From ? *From->GetName() : TEXT("nothing"), To ? *To->GetName() : TEXT("nothing"));
		}
	}

	/** A variable of the macro's own; a persistent one keeps its value from one run to the next. */
	UEdGraphPin* Variable(const FName Category, const bool bIsPersistent)
	{
		return Add<UK2Node_TemporaryVariable>(1, [Category, bIsPersistent](UK2Node_TemporaryVariable& Node)
			{
				Node.VariableType.PinCategory = Category;
				Node.bIsPersistent = bIsPersistent; })
			->GetVariablePin();
	}

	UK2Node_IfThenElse* Branch(UEdGraphPin* Condition)
	{
		UK2Node_IfThenElse* const Node = Add<UK2Node_IfThenElse>();
		Link(Condition, Node->GetConditionPin());
		return Node;
	}

	UK2Node_AssignmentStatement* Assign(UEdGraphPin* Target, UEdGraphPin* Value)
	{
		UK2Node_AssignmentStatement* const Node = Add<UK2Node_AssignmentStatement>();
		Link(Target, Node->GetVariablePin());
		Link(Value, Node->GetValuePin());
		return Node;
	}

	UK2Node_AssignmentStatement* Assign(UEdGraphPin* Target, const TCHAR* Value)
	{
		UK2Node_AssignmentStatement* const Node = Add<UK2Node_AssignmentStatement>();
		Link(Target, Node->GetVariablePin());
		GetDefault<UEdGraphSchema_K2>()->TrySetDefaultValue(*Node->GetValuePin(), Value);
		return Node;
	}

	UK2Node_ExecutionSequence* Sequence() { return Add<UK2Node_ExecutionSequence>(); }

	template <class NodeType = UK2Node_CallFunction>
	NodeType* Call(const TCHAR* ClassPath, const TCHAR* FunctionName)
	{
		const UClass* const Class = FindObject<UClass>(nullptr, ClassPath);
		const UFunction* const Function = Class ? Class->FindFunctionByName(FunctionName) : nullptr;
		if (!Function)
		{
			bFailed = true;
			UE_LOG(LogStandardMacros, Error, TEXT("%s: %s has no function %s"), *Graph.GetName(), ClassPath, FunctionName);
			return nullptr;
		}
		return Add<NodeType>(1, [Function](NodeType& Node)
			{ Node.SetFromFunction(Function); });
	}

	/** A pure function of one operand, or of two; its result. */
	UEdGraphPin* Math(const TCHAR* FunctionName, UEdGraphPin* A, UEdGraphPin* B = nullptr)
	{
		const UK2Node_CallFunction* const Node = Call(TEXT("/Script/Engine.KismetMathLibrary"), FunctionName);
		Link(A, Parameter(Node, TEXT("A")));
		if (B)
		{
			Link(B, Parameter(Node, TEXT("B")));
		}
		return Result(Node);
	}

	/** The number and one more, or one less: the second operand of these functions is 1 unless it is linked. */
	UEdGraphPin* Next(UEdGraphPin* Number, const bool bDown = false)
	{
		return Math(bDown ? TEXT("Subtract_IntInt") : TEXT("Add_IntInt"), Number);
	}

	void Finish()
	{
		Exit->NodePosX = Entry->NodePosX + (Column + 1) * ColumnWidth;
	}

private:
	template <class NodeType>
	NodeType* Add(
		const int32 Row = 0, TFunctionRef<void(NodeType&)> Prepare = [](NodeType&) {})
	{
		FGraphNodeCreator<NodeType> Creator(Graph);
		NodeType* const Node = Creator.CreateNode(false);
		Prepare(*Node);
		Node->NodePosX = Entry->NodePosX + ++Column * ColumnWidth;
		Node->NodePosY = Entry->NodePosY + Row * RowHeight;
		Creator.Finalize();
		return Node;
	}

	UEdGraph& Graph;
	UK2Node_Tunnel* const Entry;
	UK2Node_Tunnel* const Exit;
	int32 Column = 0;
	bool bFailed = false;
};

/** Runs the body and then the step as long as the condition holds; the step leads back to the condition. */
void WireLoop(FMacroWiring& Macro, UK2Node_IfThenElse& Test, UEdGraphPin* BeforeBody, UK2Node_AssignmentStatement* Step)
{
	UK2Node_ExecutionSequence* const Sequence = Macro.Sequence();
	Macro.Link(BeforeBody, Sequence->GetExecPin());
	Macro.Link(Sequence->GetThenPinGivenIndex(0), Macro.Out(TEXT("LoopBody")));
	Macro.Link(Sequence->GetThenPinGivenIndex(1), Step ? Step->GetExecPin() : Test.GetExecPin());
	if (Step)
	{
		Macro.Link(Step->GetThenPin(), Test.GetExecPin());
	}
	Macro.Link(Test.GetElsePin(), Macro.Out(TEXT("Completed")));
}

void WireWhileLoop(FMacroWiring& Macro)
{
	UK2Node_IfThenElse* const Test = Macro.Branch(Macro.In(TEXT("Condition")));
	Macro.Link(Macro.In(TEXT("execute")), Test->GetExecPin());
	WireLoop(Macro, *Test, Test->GetThenPin(), nullptr);
}

void WireIndexLoop(FMacroWiring& Macro, const bool bHasBreak)
{
	UEdGraphPin* const Index = Macro.Variable(UEdGraphSchema_K2::PC_Int, false);
	UK2Node_AssignmentStatement* const Start = Macro.Assign(Index, Macro.In(TEXT("FirstIndex")));
	UK2Node_IfThenElse* const Test = Macro.Branch(Macro.Math(TEXT("LessEqual_IntInt"), Index, Macro.In(TEXT("LastIndex"))));
	Macro.Link(Macro.In(TEXT("execute")), Start->GetExecPin());
	Macro.Link(Start->GetThenPin(), Test->GetExecPin());
	WireLoop(Macro, *Test, Test->GetThenPin(), Macro.Assign(Index, Macro.Next(Index)));
	Macro.Link(Index, Macro.Out(TEXT("Index")));
	if (bHasBreak)
	{
		Macro.Link(Macro.In(TEXT("Break")), Macro.Assign(Index, Macro.Next(Macro.In(TEXT("LastIndex"))))->GetExecPin());
	}
}

/** The index that the body sees is apart from the counter, so that it stays that of the last element when the loop has ended. */
void WireArrayLoop(FMacroWiring& Macro, const bool bReverse, const bool bHasBreak)
{
	const TCHAR* const ArrayLibrary = TEXT("/Script/Engine.KismetArrayLibrary");
	UEdGraphPin* const Counter = Macro.Variable(UEdGraphSchema_K2::PC_Int, false);
	UEdGraphPin* const Index = Macro.Variable(UEdGraphSchema_K2::PC_Int, false);
	const UK2Node_CallFunction* const Length = Macro.Call<UK2Node_CallArrayFunction>(ArrayLibrary, TEXT("Array_Length"));
	Macro.Link(Macro.In(TEXT("Array")), Macro.Parameter(Length, TEXT("TargetArray")));
	UEdGraphPin* const Count = Macro.Result(Length);
	UK2Node_AssignmentStatement* const Start = bReverse ? Macro.Assign(Counter, Macro.Next(Count, true)) : Macro.Assign(Counter, TEXT("0"));
	UK2Node_IfThenElse* const Test = Macro.Branch(
		bReverse ? Macro.Math(TEXT("GreaterEqual_IntInt"), Counter) : Macro.Math(TEXT("Less_IntInt"), Counter, Count));
	UK2Node_AssignmentStatement* const Show = Macro.Assign(Index, Counter);
	Macro.Link(Macro.In(TEXT("Exec")), Start->GetExecPin());
	Macro.Link(Start->GetThenPin(), Test->GetExecPin());
	Macro.Link(Test->GetThenPin(), Show->GetExecPin());
	WireLoop(Macro, *Test, Show->GetThenPin(), Macro.Assign(Counter, Macro.Next(Counter, bReverse)));
	const UK2Node_CallFunction* const Get = Macro.Call<UK2Node_CallArrayFunction>(ArrayLibrary, TEXT("Array_Get"));
	Macro.Link(Macro.In(TEXT("Array")), Macro.Parameter(Get, TEXT("TargetArray")));
	Macro.Link(Index, Macro.Parameter(Get, TEXT("Index")));
	Macro.Link(Macro.Parameter(Get, TEXT("Item")), Macro.Out(TEXT("Array Element")));
	Macro.Link(Index, Macro.Out(TEXT("Array Index")));
	if (bHasBreak)
	{
		Macro.Link(Macro.In(TEXT("Break")), Macro.Assign(Counter, Count)->GetExecPin());
	}
}

/** A barrier that takes its first state from an input when it is first met. Where execution gets through. */
UEdGraphPin* WireBarrier(
	FMacroWiring& Macro, UEdGraphPin* Execute, UEdGraphPin* StartClosed, UEdGraphPin* IsClosed, UEdGraphPin* IsInitialized)
{
	UK2Node_IfThenElse* const First = Macro.Branch(IsInitialized);
	UK2Node_AssignmentStatement* const Initialize = Macro.Assign(IsInitialized, TEXT("true"));
	UK2Node_AssignmentStatement* const SetFirst = Macro.Assign(IsClosed, StartClosed);
	UK2Node_IfThenElse* const Test = Macro.Branch(IsClosed);
	Macro.Link(Execute, First->GetExecPin());
	Macro.Link(First->GetThenPin(), Test->GetExecPin());
	Macro.Link(First->GetElsePin(), Initialize->GetExecPin());
	Macro.Link(Initialize->GetThenPin(), SetFirst->GetExecPin());
	Macro.Link(SetFirst->GetThenPin(), Test->GetExecPin());
	return Test->GetElsePin();
}

/** Opening or closing a barrier settles its state, so that the first execution does not. */
void WireSetBarrier(FMacroWiring& Macro, UEdGraphPin* Execute, UEdGraphPin* IsInitialized, UK2Node_AssignmentStatement* Change)
{
	UK2Node_AssignmentStatement* const Initialize = Macro.Assign(IsInitialized, TEXT("true"));
	Macro.Link(Execute, Initialize->GetExecPin());
	Macro.Link(Initialize->GetThenPin(), Change->GetExecPin());
}

void WireDoOnce(FMacroWiring& Macro)
{
	UEdGraphPin* const IsClosed = Macro.Variable(UEdGraphSchema_K2::PC_Boolean, true);
	UEdGraphPin* const IsInitialized = Macro.Variable(UEdGraphSchema_K2::PC_Boolean, true);
	UEdGraphPin* const Through = WireBarrier(Macro, Macro.In(TEXT("execute")), Macro.In(TEXT("Start Closed")), IsClosed, IsInitialized);
	UK2Node_AssignmentStatement* const Close = Macro.Assign(IsClosed, TEXT("true"));
	Macro.Link(Through, Close->GetExecPin());
	Macro.Link(Close->GetThenPin(), Macro.Out(TEXT("Completed")));
	WireSetBarrier(Macro, Macro.In(TEXT("Reset")), IsInitialized, Macro.Assign(IsClosed, TEXT("false")));
}

void WireGate(FMacroWiring& Macro)
{
	UEdGraphPin* const IsClosed = Macro.Variable(UEdGraphSchema_K2::PC_Boolean, true);
	UEdGraphPin* const IsInitialized = Macro.Variable(UEdGraphSchema_K2::PC_Boolean, true);
	UEdGraphPin* const StartClosed = Macro.In(TEXT("bStartClosed"));
	Macro.Link(WireBarrier(Macro, Macro.In(TEXT("Enter")), StartClosed, IsClosed, IsInitialized), Macro.Out(TEXT("Exit")));
	WireSetBarrier(Macro, Macro.In(TEXT("Open")), IsInitialized, Macro.Assign(IsClosed, TEXT("false")));
	WireSetBarrier(Macro, Macro.In(TEXT("Close")), IsInitialized, Macro.Assign(IsClosed, TEXT("true")));
	UK2Node_IfThenElse* const First = Macro.Branch(IsInitialized);
	UK2Node_AssignmentStatement* const Toggle = Macro.Assign(IsClosed, Macro.Math(TEXT("Not_PreBool"), IsClosed));
	Macro.Link(Macro.In(TEXT("Toggle")), First->GetExecPin());
	Macro.Link(First->GetThenPin(), Toggle->GetExecPin());
	WireSetBarrier(Macro, First->GetElsePin(), IsInitialized, Macro.Assign(IsClosed, Macro.Math(TEXT("Not_PreBool"), StartClosed)));
}

void WireFlipFlop(FMacroWiring& Macro)
{
	UEdGraphPin* const IsA = Macro.Variable(UEdGraphSchema_K2::PC_Boolean, true);
	UK2Node_AssignmentStatement* const Flip = Macro.Assign(IsA, Macro.Math(TEXT("Not_PreBool"), IsA));
	UK2Node_IfThenElse* const Test = Macro.Branch(IsA);
	Macro.Link(Macro.FirstIn(), Flip->GetExecPin());
	Macro.Link(Flip->GetThenPin(), Test->GetExecPin());
	Macro.Link(Test->GetThenPin(), Macro.Out(TEXT("A")));
	Macro.Link(Test->GetElsePin(), Macro.Out(TEXT("B")));
	Macro.Link(IsA, Macro.Out(TEXT("IsA")));
}

void WireDoN(FMacroWiring& Macro)
{
	UEdGraphPin* const Counter = Macro.Variable(UEdGraphSchema_K2::PC_Int, true);
	UK2Node_IfThenElse* const Test = Macro.Branch(Macro.Math(TEXT("Less_IntInt"), Counter, Macro.In(TEXT("N"))));
	UK2Node_AssignmentStatement* const Count = Macro.Assign(Counter, Macro.Next(Counter));
	Macro.Link(Macro.In(TEXT("Enter")), Test->GetExecPin());
	Macro.Link(Test->GetThenPin(), Count->GetExecPin());
	Macro.Link(Count->GetThenPin(), Macro.Out(TEXT("Exit")));
	Macro.Link(Counter, Macro.Out(TEXT("Counter")));
	Macro.Link(Macro.In(TEXT("Reset")), Macro.Assign(Counter, TEXT("0"))->GetExecPin());
}

/** Goes on by what a function says, which is called on the way unless it is pure. */
void WireCheck(FMacroWiring& Macro, const UK2Node_CallFunction* Question, const TCHAR* TrueName, const TCHAR* FalseName)
{
	UK2Node_IfThenElse* const Test = Macro.Branch(Macro.Result(Question));
	const bool bIsCalled = Question && !Question->IsNodePure();
	Macro.Link(Macro.FirstIn(), bIsCalled ? Question->GetExecPin() : Test->GetExecPin());
	if (bIsCalled)
	{
		Macro.Link(Question->GetThenPin(), Test->GetExecPin());
	}
	Macro.Link(Test->GetThenPin(), Macro.Out(TrueName));
	Macro.Link(Test->GetElsePin(), Macro.Out(FalseName));
}

void WireIsValid(FMacroWiring& Macro)
{
	const UK2Node_CallFunction* const Valid = Macro.Call(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("IsValid"));
	Macro.Link(Macro.In(TEXT("InputObject")), Macro.Parameter(Valid, TEXT("Object")));
	WireCheck(Macro, Valid, TEXT("Is Valid"), TEXT("Is Not Valid"));
}
}

bool WireStandardMacro(UEdGraph& Graph)
{
	using FWire = void (*)(FMacroWiring&);
	static const TMap<FName, FWire> WireOfMacro = {
		{TEXT("ForEachLoop"), [](FMacroWiring& Macro)
			{ WireArrayLoop(Macro, false, false); }},
		{TEXT("ForEachLoopWithBreak"), [](FMacroWiring& Macro)
			{ WireArrayLoop(Macro, false, true); }},
		{TEXT("ReverseForEachLoop"), [](FMacroWiring& Macro)
			{ WireArrayLoop(Macro, true, false); }},
		{TEXT("ForLoop"), [](FMacroWiring& Macro)
			{ WireIndexLoop(Macro, false); }},
		{TEXT("ForLoopWithBreak"), [](FMacroWiring& Macro)
			{ WireIndexLoop(Macro, true); }},
		{TEXT("WhileLoop"), WireWhileLoop},
		{TEXT("DoOnce"), WireDoOnce},
		{TEXT("Do N"), WireDoN},
		{TEXT("FlipFlop"), WireFlipFlop},
		{TEXT("Gate"), WireGate},
		{TEXT("IsValid"), WireIsValid},
		{TEXT("Switch Has Authority"),
			[](FMacroWiring& Macro)
			{ WireCheck(Macro, Macro.Call(TEXT("/Script/Engine.Actor"), TEXT("HasAuthority")), TEXT("Authority"), TEXT("Remote")); }},
		{TEXT("Can Execute Cosmetic Events"),
			[](FMacroWiring& Macro)
			{
				WireCheck(
					Macro, Macro.Call(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("IsDedicatedServer")), TEXT("False"), TEXT("True"));
			}},
	};
	const FWire* const Wire = WireOfMacro.Find(Graph.GetFName());
	if (!Wire)
	{
		return false;
	}
	FMacroWiring Macro(Graph);
	(*Wire)(Macro);
	Macro.Finish();
	return !Macro.HasFailed();
}
