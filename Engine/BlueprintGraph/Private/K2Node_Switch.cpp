#include "K2Node_Switch.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_Switch::UK2Node_Switch(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bHasDefaultPin(true)
{
}

void UK2Node_Switch::SetComparison(const TCHAR* ClassPath, FName InFunctionName)
{
	FunctionName = InFunctionName;
	// The libraries are declared after the first default objects are made, so the class is looked for when it is needed.
	FunctionClass = FindObject<UClass>(nullptr, ClassPath);
}

void UK2Node_Switch::AllocateDefaultPins()
{
	if (bHasDefaultPin)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("Default"));
	}
	CreateExecPin();
	CreateSelectionPin();
	CreateFunctionPin();
	CreateCasePins();
}

void UK2Node_Switch::CreateFunctionPin()
{
	if (FunctionName.IsNone())
	{
		return;
	}
	UEdGraphPin* const Pin = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object, FunctionClass.Get(), FunctionName);
	Pin->bDefaultValueIsReadOnly = true;
	Pin->bNotConnectable = true;
	Pin->bHidden = true;
	Pin->DefaultObject = FunctionClass ? FunctionClass->GetDefaultObject() : nullptr;
}

void UK2Node_Switch::CreateCasePins()
{
	const TArray<FName>* const Cases = GetNamedCases();
	if (!Cases)
	{
		return;
	}
	// Text of another host may list more names than values, or fewer.
	SetNumCaseValues(Cases->Num());
	for (const FName Case : *Cases)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, Case);
	}
}

void UK2Node_Switch::AddPinToSwitchNode()
{
	TArray<FName>* const Cases = GetNamedCases();
	if (!Cases)
	{
		return;
	}
	Modify();
	int32 Index = Cases->Num();
	FName Name;
	do
	{
		Name = FName(*FString::Printf(TEXT("Case_%d"), Index++));
	} while (Cases->Contains(Name));
	Cases->Add(Name);
	SetNumCaseValues(Cases->Num());
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, Name);
}

void UK2Node_Switch::RemovePinFromSwitchNode(UEdGraphPin* TargetPin)
{
	Modify();
	TArray<FName>* const Cases = GetNamedCases();
	const int32 Case = Cases ? Cases->IndexOfByKey(TargetPin->PinName) : INDEX_NONE;
	if (Case != INDEX_NONE)
	{
		Cases->RemoveAt(Case);
		RemoveCaseValue(Case);
	}
	RemovePin(TargetPin);
}

FText UK2Node_Switch::GetMenuCategory() const
{
	return LOCTEXT("Switch_Category", "Utilities|FlowControl|Switch");
}

#undef LOCTEXT_NAMESPACE
