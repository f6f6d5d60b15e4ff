#include "K2Node_ExecutionSequence.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
constexpr int32 DefaultOutputs = 2;
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
	Modify();
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	int32 Index = Outputs.Num();
	while (FindPin(GetPinNameGivenIndex(Index)))
	{
		++Index;
	}
	FCreatePinParams Params;
	Params.Index = Outputs.Num() > 0 ? GetPinIndex(Outputs.Last()) + 1 : INDEX_NONE;
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, GetPinNameGivenIndex(Index), Params);
}

bool UK2Node_ExecutionSequence::CanRemoveExecutionPin() const
{
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	return Outputs.Num() > DefaultOutputs;
}

void UK2Node_ExecutionSequence::RemovePinFromExecutionNode(UEdGraphPin* TargetPin)
{
	if (!CanRemoveExecutionPin() || !RemovePin(TargetPin))
	{
		return;
	}
	TArray<UEdGraphPin*> Outputs;
	GetOutputPins(Outputs);
	for (int32 Index = 0; Index < Outputs.Num(); ++Index)
	{
		Outputs[Index]->PinName = GetPinNameGivenIndex(Index);
	}
}

UEdGraphPin* UK2Node_ExecutionSequence::GetThenPinGivenIndex(int32 Index) const
{
	return FindPin(GetPinNameGivenIndex(Index));
}

FText UK2Node_ExecutionSequence::GetKeywords() const
{
	return LOCTEXT("SequenceKeywords", "sequence");
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
