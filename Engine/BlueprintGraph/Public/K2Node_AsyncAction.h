#pragma once

#include "K2Node_BaseAsyncTask.h"

#include "K2Node_AsyncAction.generated.h"

/** A task that a class of asynchronous actions makes. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AsyncAction : public UK2Node_BaseAsyncTask
{
	GENERATED_BODY()

public:
	UK2Node_AsyncAction(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	/** Takes the function that makes the task, and the class of the task that it returns. */
	void InitializeProxyFromFunction(const UFunction* ProxyFunction);
};
