#include "K2Node_BaseAsyncTask.h"

#include "K2Node_CallFunction.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
/** Classes whose task a user may keep, with the pin's name. */
const TCHAR* const ExposedProxy = TEXT("ExposedAsyncProxy");
}

UFunction* UK2Node_BaseAsyncTask::GetFactoryFunction() const
{
	return ProxyFactoryClass ? ProxyFactoryClass->FindFunctionByName(ProxyFactoryFunctionName) : nullptr;
}

bool UK2Node_BaseAsyncTask::HasKnownDefinition() const
{
	return GetFactoryFunction() && ProxyClass;
}

void UK2Node_BaseAsyncTask::AllocateDefaultPins()
{
	CreateExecPin();
	if (!ProxyClass || !ProxyClass->HasMetaDataHierarchical(TEXT("HideThen")))
	{
		CreateThenPin();
	}
	const UFunction* const Function = GetFactoryFunction();
	if (!Function || !ProxyClass)
	{
		return;
	}
	FString ProxyName;
	if (ProxyClass->GetStringMetaDataHierarchical(ExposedProxy, &ProxyName))
	{
		UEdGraphPin* const Proxy = CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Object, ProxyClass.Get(), TEXT("AsyncTaskProxy"));
		Proxy->PinFriendlyName = FText::FromString(FName::NameToDisplayString(ProxyName, false));
	}
	const UFunction* Signature = nullptr;
	for (TFieldIterator<FMulticastDelegateProperty> Property(ProxyClass); Property; ++Property)
	{
		UEdGraphPin* const Pin = CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, Property->GetFName());
		Pin->PinToolTip = Property->GetToolTipText().ToString();
		Pin->PinFriendlyName = Property->GetDisplayNameText();
		Signature = Signature ? Signature : Property->SignatureFunction;
	}
	// The events of a task share one signature, whose parameters are its results.
	ForEachParameter(Signature, [this](FProperty& Parameter, FEdGraphPinType Type)
		{
			Type.bIsReference = false;
			CreatePin(EGPD_Output, Type, Parameter.GetFName()); });
	const TSet<FName> Hidden = UK2Node_CallFunction::GetHiddenParameters(Function, GetBlueprint());
	ForEachParameter(Function, [this, Function, &Hidden](FProperty& Parameter, const FEdGraphPinType& Type)
		{
			if (!IsFunctionInput(Parameter))
			{
				return;
			}
			UEdGraphPin* const Pin = CreatePin(EGPD_Input, Type, Parameter.GetFName());
			Pin->bHidden = Hidden.Contains(Pin->PinName);
			Pin->bAdvancedView = Parameter.HasAnyPropertyFlags(CPF_AdvancedDisplay);
			Pin->bDefaultValueIsIgnored = Parameter.HasAllPropertyFlags(CPF_OutParm | CPF_ReferenceParm);
			GetK2Schema()->SetPinDefaultValue(Pin, Function, &Parameter);
			GeneratePinTooltip(*Pin, FText::GetEmpty()); });
}

FText UK2Node_BaseAsyncTask::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UFunction* const Function = GetFactoryFunction();
	return Function ? UK2Node_CallFunction::GetUserFacingFunctionName(Function)
					: FText::FromString(FName::NameToDisplayString(ProxyFactoryFunctionName.ToString(), false));
}

FText UK2Node_BaseAsyncTask::GetTooltipText() const
{
	return FText::FromString(UK2Node_CallFunction::GetDefaultTooltipForFunction(GetFactoryFunction()));
}

FText UK2Node_BaseAsyncTask::GetMenuCategory() const
{
	const UFunction* const Function = GetFactoryFunction();
	return Function ? UK2Node_CallFunction::GetDefaultCategoryForFunction(Function, FText::GetEmpty()) : FText::GetEmpty();
}

#undef LOCTEXT_NAMESPACE
