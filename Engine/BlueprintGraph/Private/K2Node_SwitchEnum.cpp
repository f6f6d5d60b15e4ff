#include "K2Node_SwitchEnum.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_SwitchEnum::UK2Node_SwitchEnum(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	bHasDefaultPin = false;
}

void UK2Node_SwitchEnum::SetEnum(UEnum* InEnum)
{
	Enum = InEnum;
	EnumEntries.Empty();
	EnumFriendlyNames.Empty();
	for (const int32 Entry : GetVisibleEnumEntries(Enum))
	{
		EnumEntries.Add(FName(*Enum->GetNameStringByIndex(Entry)));
		EnumFriendlyNames.Add(Enum->GetDisplayNameTextByIndex(Entry));
	}
}

void UK2Node_SwitchEnum::CreateSelectionPin()
{
	// Text and packages have the names of the values, not how a user reads them; a new node may have neither.
	if (Enum && (EnumEntries.Num() == 0 || EnumFriendlyNames.Num() != EnumEntries.Num()))
	{
		SetEnum(Enum);
	}
	SetComparison(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("NotEqual_ByteByte"));
	UEdGraphPin* const Pin = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Byte, Enum.Get(), TEXT("Selection"));
	Pin->DefaultValue = EnumEntries.Num() > 0 ? EnumEntries[0].ToString() : FString();
}

void UK2Node_SwitchEnum::CreateCasePins()
{
	for (int32 Index = 0; Index < EnumEntries.Num(); ++Index)
	{
		UEdGraphPin* const Pin = CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, EnumEntries[Index]);
		Pin->PinFriendlyName = EnumFriendlyNames.IsValidIndex(Index) ? EnumFriendlyNames[Index] : FText::GetEmpty();
	}
}

void UK2Node_SwitchEnum::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	SetEnum(Enum);
	Super::ReallocatePinsDuringReconstruction(OldPins);
}

FText UK2Node_SwitchEnum::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("SwitchEnum_Title", "Switch on {0}"), FText::FromString(Enum ? Enum->GetName() : TEXT("(bad enum)")));
}

#undef LOCTEXT_NAMESPACE
