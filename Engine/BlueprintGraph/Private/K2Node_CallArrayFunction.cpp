#include "K2Node_CallArrayFunction.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UEdGraphPin* UK2Node_CallArrayFunction::GetTargetArrayPin() const
{
	TArray<UEdGraphPin*> Dependent;
	GetDependentPins(Dependent);
	return Dependent.Num() > 0 ? Dependent[0] : nullptr;
}

void UK2Node_CallArrayFunction::GetDependentPins(TArray<UEdGraphPin*>& OutPins) const
{
	const UFunction* const Function = GetTargetFunction();
	if (!Function)
	{
		return;
	}
	TArray<FString> Names;
	const FString List = Function->GetMetaData(FBlueprintMetadata::MD_ArrayParam) + TEXT(",") + Function->GetMetaData(FBlueprintMetadata::MD_ArrayDependentParam);
	List.Replace(TEXT("|"), TEXT(",")).ParseIntoArray(Names, TEXT(","), true);
	for (const FString& Name : Names)
	{
		if (UEdGraphPin* const Pin = FindPin(Name.TrimStartAndEnd()))
		{
			OutPins.Add(Pin);
		}
	}
}

void UK2Node_CallArrayFunction::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	TArray<UEdGraphPin*> Dependent;
	GetDependentPins(Dependent);
	if (Dependent.Contains(Pin))
	{
		FollowLinkedType(Dependent);
	}
}

#undef LOCTEXT_NAMESPACE
