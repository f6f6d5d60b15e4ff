#include "GraphValidator.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "GraphFlow.h"
#include "K2Node_CallFunction.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Kismet2/CompilerResultsLog.h"
#include "MacroUses.h"
#include "UObject/Class.h"
#include "UObject/PlaceholderObject.h"

namespace
{
const UEdGraphSchema_K2& GetSchema()
{
	return *GetDefault<UEdGraphSchema_K2>();
}

bool TakesManyLinks(const UEdGraphPin& Pin)
{
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(Pin.GetOwningNodeUnchecked());
	return GetSchema().IsDelegateCategory(Pin.PinType.PinCategory) ||
		(Call && GetSchema().IsSelfPin(Pin) && Call->AllowMultipleSelfs(false));
}

/** The type of the pin when it is of a module or project that is not here: nothing is known of what fits it. */
const UObject* FindMissingType(const UEdGraphPin& Pin)
{
	const UObject* const Type = Pin.PinType.PinSubCategoryObject.Get();
	return UE::CoreUObject::IsPlaceholder(Type) ? Type : nullptr;
}
}

FGraphValidator::FGraphValidator(const UBlueprint& InBlueprint, const UEdGraph& InGraph, FCompilerResultsLog& InLog)
	: Blueprint(InBlueprint)
	, Graph(InGraph)
	, Log(InLog)
	, SelfClass(InBlueprint.SkeletonGeneratedClass ? InBlueprint.SkeletonGeneratedClass.Get() : InBlueprint.GeneratedClass.Get())
{
	const EGraphType Type = GetSchema().GetGraphType(&Graph);
	bIsFunction = Type == GT_Function;
	bIsMacro = Type == GT_Macro;
}

void FGraphValidator::Validate()
{
	const FGraphFlow Flow(Graph);
	for (const UK2Node* const Node : Flow.GetNodes())
	{
		if (Flow.IsReached(*Node))
		{
			ValidateNode(*Node);
		}
	}
	for (const UK2Node* const Node : Flow.FindCyclesOfPureNodes())
	{
		Log.Error(TEXT("Dependency cycle detected, preventing @@ from being scheduled"), Node);
	}
	ReportUnreached(Flow);
	if (bIsFunction)
	{
		ValidateFunction(Flow);
	}
}

void FGraphValidator::ValidateNode(const UK2Node& Node)
{
	const int32 NumMessages = Log.Messages.Num();
	Node.ValidateNodeDuringCompilation(Log);
	if (!Node.HasKnownDefinition())
	{
		if (Log.Messages.Num() == NumMessages)
		{
			Log.Error(TEXT("@@ refers to something that does not exist"), &Node);
		}
		// Its pins are those of what it once was.
		return;
	}
	if (!Node.NodeUpgradeMessage.IsEmpty())
	{
		Log.Note(TEXT("@@ - @@"), &Node, Node.NodeUpgradeMessage);
	}
	for (const UEdGraphPin* const Pin : Node.Pins)
	{
		ValidatePin(Node, *Pin);
	}
}

void FGraphValidator::ValidatePin(const UK2Node& Node, const UEdGraphPin& Pin)
{
	if (Pin.bOrphanedPin)
	{
		if (Pin.LinkedTo.Num() > 0)
		{
			Log.Error(TEXT("In use pin @@ no longer exists on node @@. Please refresh node or break links to remove pin."), &Pin, &Node);
		}
		else
		{
			Log.Warning(TEXT("Pin @@ no longer exists on node @@; its value is not used. Please refresh node to remove pin."), &Pin, &Node);
		}
		return;
	}
	if (Pin.SubPins.Num() > 0)
	{
		// Its members stand for it.
		return;
	}
	ValidateLinks(Node, Pin);
	const bool bIsWildcard = Pin.PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard;
	if (bIsWildcard && !Pin.bHidden && !bIsMacro)
	{
		Log.Error(TEXT("The type of @@ is undetermined.  Connect something to @@ to imply a specific type."), &Pin, &Node);
		return;
	}
	if (Pin.Direction == EGPD_Input && Pin.LinkedTo.IsEmpty() && !UEdGraphSchema_K2::IsExecPin(Pin) && !bIsWildcard)
	{
		ValidateUnlinkedInput(Node, Pin);
	}
}

void FGraphValidator::ValidateLinks(const UK2Node& Node, const UEdGraphPin& Pin)
{
	const bool bIsExec = UEdGraphSchema_K2::IsExecPin(Pin);
	const bool bTakesOne = bIsExec ? Pin.Direction == EGPD_Output : Pin.Direction == EGPD_Input && !TakesManyLinks(Pin);
	if (bTakesOne && Pin.LinkedTo.Num() > 1)
	{
		Log.Error(TEXT("@@ of @@ has more than one link, and can have only one"), &Pin, &Node);
	}
	for (const UEdGraphPin* const Other : Pin.LinkedTo)
	{
		const UEdGraphNode* const OtherNode = Other ? Other->GetOwningNodeUnchecked() : nullptr;
		if (!OtherNode || !Other->LinkedTo.Contains(&Pin))
		{
			Log.Error(TEXT("@@ of @@ is linked to a pin that does not know of it. Please break its links."), &Pin, &Node);
			continue;
		}
		// Each link is looked at once, from the side that gives.
		if (Pin.Direction != EGPD_Output || Other->bOrphanedPin)
		{
			continue;
		}
		const FPinConnectionResponse Response = GetSchema().CanCreateConnection(&Pin, Other);
		const bool bIsRefused =
			Response.Response == CONNECT_RESPONSE_DISALLOW || Response.Response == CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE;
		const UObject* const Missing = FindMissingType(Pin) ? FindMissingType(Pin) : FindMissingType(*Other);
		if (bIsRefused && Missing)
		{
			Log.Error(TEXT("@@ and @@ are linked by the type @@, which does not exist"), &Node, OtherNode, Missing);
		}
		else if (bIsRefused)
		{
			Log.Error(TEXT("Can't connect pins @@ and @@: @@"), &Pin, Other, Response.Message);
		}
	}
}

void FGraphValidator::ValidateUnlinkedInput(const UK2Node& Node, const UEdGraphPin& Pin)
{
	if (GetSchema().IsSelfPin(Pin))
	{
		ValidateTarget(Node, Pin);
		return;
	}
	const bool bMustBeLinked = Pin.PinType.bIsReference && Pin.bDefaultValueIsIgnored && !Pin.bHidden &&
		!GetSchema().IsDelegateCategory(Pin.PinType.PinCategory);
	if (bMustBeLinked)
	{
		Log.Error(TEXT("The value of '@@' in action '@@' must have an input wired into it (\"by ref\" params expect a valid input to "
					   "operate on)."),
			&Pin, &Node);
		return;
	}
	if (UE::CoreUObject::IsPlaceholder(Pin.DefaultObject.Get()))
	{
		Log.Error(TEXT("@@, the value of the '@@' pin of @@, does not exist"), Pin.DefaultObject.Get(), &Pin, &Node);
		return;
	}
	const FString Mistake = Pin.bHidden ? FString() : GetSchema().IsCurrentPinDefaultValid(&Pin);
	if (!Mistake.IsEmpty())
	{
		Log.Error(
			TEXT("The current value (@@) of the '@@' pin of @@ is invalid: @@"), Pin.GetDefaultAsString().Left(128), &Pin, &Node, Mistake);
	}
}

void FGraphValidator::ValidateTarget(const UK2Node& Node, const UEdGraphPin& Pin)
{
	// A hidden target is a library's or the node's own matter.
	const UClass* const Wanted = Cast<UClass>(Pin.PinType.PinSubCategoryObject.Get());
	if (Pin.bHidden || !Wanted || Pin.DefaultObject || Pin.PinType.PinSubCategory == UEdGraphSchema_K2::PSC_Self || !SelfClass)
	{
		return;
	}
	const UClass* const WantedClass = Wanted->GetAuthoritativeClass();
	const bool bSelfWillDo = SelfClass->GetAuthoritativeClass()->IsChildOf(WantedClass) || SelfClass->ImplementsInterface(WantedClass);
	if (!bSelfWillDo)
	{
		Log.Error(TEXT("This blueprint (self) is not a @@, therefore '@@' of @@ must have a connection."), Wanted, &Pin, &Node);
	}
}

void FGraphValidator::ReportUnreached(const FGraphFlow& Flow)
{
	for (const UK2Node* const Node : Flow.GetNodes())
	{
		if (Flow.IsReached(*Node) || Node->IsNodePure() || Node->IsNodeSafeToIgnore())
		{
			continue;
		}
		const bool bIsUsed = Node->Pins.ContainsByPredicate([&Flow](const UEdGraphPin* Pin)
			{ return Pin->Direction == EGPD_Output && !UEdGraphSchema_K2::IsExecPin(*Pin) &&
				  Pin->LinkedTo.ContainsByPredicate([&Flow](const UEdGraphPin* Taker)
					  {
							const UK2Node* const TakerNode = Cast<UK2Node>(Taker->GetOwningNodeUnchecked());
							return TakerNode && Flow.IsReached(*TakerNode); }); });
		if (bIsUsed)
		{
			Log.Warning(TEXT("@@ was pruned because its Exec pin is not connected, the connected value is not available and will instead "
							 "be read as default"),
				Node);
		}
		else
		{
			Log.Note(TEXT("@@ is never executed: nothing leads to it"), Node);
		}
	}
}

void FGraphValidator::ValidateFunction(const FGraphFlow& Flow)
{
	const UK2Node_FunctionEntry* Entry = nullptr;
	bool bHasResult = false;
	bool bReachesResult = false;
	for (const UK2Node* const Node : Flow.GetNodes())
	{
		Entry = Entry ? Entry : Cast<UK2Node_FunctionEntry>(Node);
		bHasResult = bHasResult || Node->IsA<UK2Node_FunctionResult>();
		bReachesResult = bReachesResult || (Node->IsA<UK2Node_FunctionResult>() && Flow.IsReached(*Node));
		if (Node->IsA<UK2Node_Event>())
		{
			Log.Error(TEXT("The event @@ cannot stand in the function @@"), Node, &Graph);
		}
		else if (Flow.IsReached(*Node) && MacroUses::IsLatent(*Node))
		{
			Log.Error(TEXT("The latent node @@ cannot be used in the function @@: a function returns at once"), Node, &Graph);
		}
	}
	if (!Entry)
	{
		Log.Error(TEXT("Could not find a root node for the graph @@"), &Graph);
		return;
	}
	const UFunction* const Overridden = Entry->FindSignatureFunction();
	if (!bHasResult && Overridden && UEdGraphSchema_K2::HasFunctionAnyOutputParameter(Overridden))
	{
		Log.Error(TEXT("The function @@ gives values back, but its graph has no return node"), &Graph);
	}
	else if (bHasResult && !bReachesResult)
	{
		Log.Warning(TEXT("No path through the function @@ reaches its return node"), &Graph);
	}
}
