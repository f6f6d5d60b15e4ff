#include "K2Node_FunctionResult.h"

#include "EdGraph/EdGraph.h"
#include "K2Node_FunctionEntry.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

bool UK2Node_FunctionResult::CanCreateUserDefinedPin(
	const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage)
{
	if (InDesiredDirection == EGPD_Output)
	{
		OutErrorMessage = LOCTEXT("AddOutputPinError", "Cannot add output pins to function result node!");
		return false;
	}
	return Super::CanCreateUserDefinedPin(InPinType, InDesiredDirection, OutErrorMessage);
}

void UK2Node_FunctionResult::PostPlacedNewNode()
{
	Super::PostPlacedNewNode();
	TArray<UK2Node_FunctionResult*> Results;
	TArray<UK2Node_FunctionEntry*> Entries;
	GetGraph()->GetNodesOfClass(Results);
	GetGraph()->GetNodesOfClass(Entries);
	if (Entries.Num() > 0 && FunctionReference.GetMemberName().IsNone())
	{
		FunctionReference = Entries[0]->FunctionReference;
		bIsEditable = Entries[0]->bIsEditable;
	}
	for (const UK2Node_FunctionResult* const Other : Results)
	{
		if (Other == this || UserDefinedPins.Num() > 0)
		{
			continue;
		}
		for (const TSharedPtr<FUserPinInfo>& Info : Other->UserDefinedPins)
		{
			UserDefinedPins.Add(MakeShared<FUserPinInfo>(*Info));
		}
	}
}

void UK2Node_FunctionResult::AllocateDefaultPins()
{
	CreateExecPin();
	if (const UFunction* const Function = FindSignatureFunction())
	{
		CreatePinsForFunctionEntryExit(Function, false);
	}
	Super::AllocateDefaultPins();
}

FText UK2Node_FunctionResult::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TitleType == ENodeTitleType::MenuTitle ? LOCTEXT("ReturnNodeMenuTitle", "Add Return Node...")
												  : LOCTEXT("ReturnNode", "Return Node");
}

FText UK2Node_FunctionResult::GetTooltipText() const
{
	return LOCTEXT("ReturnNodeTooltip", "The node terminates the function's execution. It returns output parameters.");
}

#undef LOCTEXT_NAMESPACE
