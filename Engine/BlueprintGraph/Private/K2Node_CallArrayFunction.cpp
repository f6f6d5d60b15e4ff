#include "K2Node_CallArrayFunction.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UEdGraphPin* UK2Node_CallArrayFunction::GetTargetArrayPin() const
{
	const TArray<UEdGraphPin*> Dependent = GetPinsOfOneType();
	return Dependent.Num() > 0 ? Dependent[0] : nullptr;
}

TArray<UEdGraphPin*> UK2Node_CallArrayFunction::GetPinsOfOneType() const
{
	TArray<UEdGraphPin*> Dependent;
	const UFunction* const Function = GetTargetFunction();
	if (!Function)
	{
		return Dependent;
	}
	TArray<FString> Names;
	const FString List = Function->GetMetaData(FBlueprintMetadata::MD_ArrayParam) + TEXT(",") +
		Function->GetMetaData(FBlueprintMetadata::MD_ArrayDependentParam);
	List.Replace(TEXT("|"), TEXT(",")).ParseIntoArray(Names, TEXT(","), true);
	for (const FString& Name : Names)
	{
		if (UEdGraphPin* const Pin = FindPin(Name.TrimStartAndEnd()))
		{
			Dependent.Add(Pin);
		}
	}
	return Dependent;
}

#undef LOCTEXT_NAMESPACE
