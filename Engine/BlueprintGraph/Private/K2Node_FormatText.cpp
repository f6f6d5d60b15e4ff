#include "K2Node_FormatText.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
/** The names between braces, in their order; a backquote takes a brace its meaning. */
TArray<FName> GetArgumentNames(const FString& Format)
{
	TArray<FName> Names;
	for (int32 Index = 0; Index < Format.Len(); ++Index)
	{
		if (Format[Index] == TEXT('`'))
		{
			++Index;
			continue;
		}
		const int32 End = Format[Index] == TEXT('{') ? Format.Find(TEXT("}"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Index)
													 : INDEX_NONE;
		if (End != INDEX_NONE && End > Index + 1)
		{
			Names.AddUnique(FName(*Format.Mid(Index + 1, End - Index - 1)));
			Index = End;
		}
	}
	return Names;
}
}

void UK2Node_FormatText::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Text, TEXT("Format"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Text, TEXT("Result"));
	for (const FName Name : PinNames)
	{
		CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, Name);
	}
}

void UK2Node_FormatText::PinDefaultValueChanged(UEdGraphPin* Pin)
{
	Super::PinDefaultValueChanged(Pin);
	const UEdGraphPin* const Format = GetFormatPin();
	if (Pin != Format || Format->LinkedTo.Num() > 0)
	{
		return;
	}
	Modify();
	PinNames = GetArgumentNames(Format->DefaultTextValue.ToString());
	ReconstructNode();
}

void UK2Node_FormatText::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	UEdGraphPin* const Format = GetFormatPin();
	// A text that comes from elsewhere names other arguments than the node's own text did.
	if (Pin == Format && Format->LinkedTo.Num() > 0 && !Format->DefaultTextValue.IsEmpty())
	{
		Modify();
		Format->DefaultTextValue = FText::GetEmpty();
		PinNames.Empty();
		ReconstructNode();
	}
}

bool UK2Node_FormatText::CanEditArguments() const
{
	const UEdGraphPin* const Format = GetFormatPin();
	return Format && Format->LinkedTo.Num() > 0;
}

void UK2Node_FormatText::SetArgumentName(int32 Index, FName InName)
{
	if (PinNames.IsValidIndex(Index) && RenameUserDefinedPin(PinNames[Index], InName) == ERenamePinResult_Success)
	{
		PinNames[Index] = InName;
	}
}

void UK2Node_FormatText::RemoveArgument(int32 Index)
{
	if (PinNames.IsValidIndex(Index))
	{
		Modify();
		RemovePin(FindArgumentPin(PinNames[Index]));
		PinNames.RemoveAt(Index);
	}
}

void UK2Node_FormatText::SwapArguments(int32 IndexA, int32 IndexB)
{
	if (PinNames.IsValidIndex(IndexA) && PinNames.IsValidIndex(IndexB))
	{
		Modify();
		PinNames.Swap(IndexA, IndexB);
		ReconstructNode();
	}
}

void UK2Node_FormatText::AddInputPin()
{
	if (!CanAddPin())
	{
		return;
	}
	Modify();
	int32 Number = 0;
	while (FindPin(FString::FromInt(Number)))
	{
		++Number;
	}
	PinNames.Add(FName(*FString::FromInt(Number)));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, PinNames.Last());
}

void UK2Node_FormatText::RemoveInputPin(UEdGraphPin* Pin)
{
	if (CanRemovePin(Pin))
	{
		RemoveArgument(PinNames.IndexOfByKey(Pin->PinName));
	}
}

bool UK2Node_FormatText::CanRemovePin(const UEdGraphPin* Pin) const
{
	return CanEditArguments() && Pin && Pin->Direction == EGPD_Input && PinNames.Contains(Pin->PinName);
}

FText UK2Node_FormatText::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("FormatText_Title", "Format Text");
}

FText UK2Node_FormatText::GetMenuCategory() const
{
	return LOCTEXT("FormatText_Category", "Utilities|Text");
}

#undef LOCTEXT_NAMESPACE
