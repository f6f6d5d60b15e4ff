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
		const int32 End = Format[Index] == TEXT('{') ? Format.Find(TEXT("}"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Index) : INDEX_NONE;
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

FText UK2Node_FormatText::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("FormatText_Title", "Format Text");
}

FText UK2Node_FormatText::GetMenuCategory() const
{
	return LOCTEXT("FormatText_Category", "Utilities|Text");
}

#undef LOCTEXT_NAMESPACE
