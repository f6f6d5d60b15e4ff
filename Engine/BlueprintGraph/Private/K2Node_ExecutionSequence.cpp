#include "K2Node_ExecutionSequence.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
constexpr int32 DefaultOutputs = 2;
}

UK2Node_ExecutionSequence::UK2Node_ExecutionSequence(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	OrphanedPinSaveMode = ESaveOrphanPinMode::SaveNone;
}

FName UK2Node_ExecutionSequence::GetPinNameGivenIndex(int32 Index) const
{
	return FName(*FString::Printf(TEXT("then_%d"), Index));
}

void UK2Node_ExecutionSequence::GetOutputPins(TArray<UEdGraphPin*>& OutPins) const
{
	for (UEdGraphPin* const Pin : Pins)
	{
		if (Pin->Direction == EGPD_Output && UEdGraphSchema_K2::IsExecPin(*Pin))
		{
			OutPins.Add(Pin);
		}
	}
}

void UK2Node_ExecutionSequence::CreateInputs()
{
}

void UK2Node_ExecutionSequence::AllocateDefaultPins()
{
	CreateExecPin();
	for (int32 Index = 0; Index < DefaultOutputs; ++Index)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, GetPinNameGivenIndex(Index));
	}
	CreateInputs();
}

void UK2Node_ExecutionSequence::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	CreateExecPin();
	int32 Index = 0;
	for (const UEdGraphPin* const OldPin : OldPins)
	{
		if (OldPin->Direction == EGPD_Output && UEdGraphSchema_K2::IsExecPin(*OldPin) && !OldPin->bOrphanedPin)
		{
			CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, GetPinNameGivenIndex(Index++));
		}
	}
	CreateInputs();
}

void UK2Node_ExecutionSequence::AddInputPin()
{
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	InsertOutput(Outputs.Num());
}

void UK2Node_ExecutionSequence::InsertPinIntoExecutionNode(UEdGraphPin* TargetPin, bool bBefore)
{
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	const int32 Place = Outputs.IndexOfByKey(TargetPin);
	if (Place != INDEX_NONE)
	{
		InsertOutput(bBefore ? Place : Place + 1);
	}
}

void UK2Node_ExecutionSequence::InsertOutput(int32 Place)
{
	Modify();
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	FCreatePinParams Params;
	Params.Index = Outputs.IsValidIndex(Place) ? GetPinIndex(Outputs[Place]) : Outputs.Num() > 0 ? GetPinIndex(Outputs.Last()) + 1
																								 : INDEX_NONE;
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, NAME_None, Params);
	RenameOutputs();
}

void UK2Node_ExecutionSequence::RenameOutputs()
{
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	RenamePins(Outputs, [this](int32 Index)
		{ return GetPinNameGivenIndex(Index); });
}

bool UK2Node_ExecutionSequence::CanRemovePin(const UEdGraphPin* Pin) const
{
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	return CanRemoveExecutionPin() && Outputs.Contains(const_cast<UEdGraphPin*>(Pin));
}

bool UK2Node_ExecutionSequence::CanRemoveExecutionPin() const
{
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	return Outputs.Num() > DefaultOutputs;
}

void UK2Node_ExecutionSequence::RemovePinFromExecutionNode(UEdGraphPin* TargetPin)
{
	if (CanRemovePin(TargetPin))
	{
		Modify();
		RemovePin(TargetPin);
		RenameOutputs();
	}
}

UEdGraphPin* UK2Node_ExecutionSequence::GetThenPinGivenIndex(int32 Index) const
{
	return FindPin(GetPinNameGivenIndex(Index));
}

FText UK2Node_ExecutionSequence::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("ExecutionSequence_Title", "Sequence");
}

FText UK2Node_ExecutionSequence::GetMenuCategory() const
{
	return LOCTEXT("ExecutionSequence_Category", "Utilities|FlowControl");
}

#undef LOCTEXT_NAMESPACE
