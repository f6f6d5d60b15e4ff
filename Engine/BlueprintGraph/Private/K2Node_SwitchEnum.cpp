#include "K2Node_SwitchEnum.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_SwitchEnum::UK2Node_SwitchEnum(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	bHasDefaultPin = false;
}

bool UK2Node_SwitchEnum::HasKnownDefinition() const
{
	// An enumeration that is only named somewhere, and not loaded, has no values.
	return Enum && Enum->NumEnums() > 0;
}

void UK2Node_SwitchEnum::SetEnum(UEnum* InEnum)
{
	Enum = InEnum;
	EnumEntries.Empty();
	EnumFriendlyNames.Empty();
	if (!Enum)
	{
		return;
	}
	const int32 Count = Enum->NumEnums() - (Enum->ContainsExistingMax() ? 1 : 0);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		if (!Enum->HasMetaData(TEXT("Hidden"), Index) && !Enum->HasMetaData(TEXT("Spacer"), Index))
		{
			EnumEntries.Add(FName(*Enum->GetNameStringByIndex(Index)));
			EnumFriendlyNames.Add(Enum->GetDisplayNameTextByIndex(Index));
		}
	}
}

void UK2Node_SwitchEnum::CreateSelectionPin()
{
	SetComparison(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("NotEqual_ByteByte"));
	UEdGraphPin* const Pin = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Byte, Enum.Get(), TEXT("Selection"));
	Pin->DefaultValue = EnumEntries.Num() > 0 ? EnumEntries[0].ToString() : FString();
}

void UK2Node_SwitchEnum::CreateCasePins()
{
	if (Enum && EnumFriendlyNames.Num() != EnumEntries.Num())
	{
		SetEnum(Enum);
	}
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
