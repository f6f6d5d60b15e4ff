#include "K2Node_AsyncAction.h"

#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_AsyncAction::UK2Node_AsyncAction(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	ProxyActivateFunctionName = TEXT("Activate");
}

void UK2Node_AsyncAction::InitializeProxyFromFunction(const UFunction* ProxyFunction)
{
	if (!ProxyFunction)
	{
		return;
	}
	const FObjectProperty* const Result = CastField<FObjectProperty>(ProxyFunction->GetReturnProperty());
	ProxyFactoryFunctionName = ProxyFunction->GetFName();
	ProxyFactoryClass = ProxyFunction->GetOuterUClass();
	ProxyClass = Result ? Result->PropertyClass : nullptr;
}

#undef LOCTEXT_NAMESPACE
