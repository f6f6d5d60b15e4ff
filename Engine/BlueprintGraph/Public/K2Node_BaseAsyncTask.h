#pragma once

#include "K2Node.h"
#include "UObject/Class.h"

#include "K2Node_BaseAsyncTask.generated.h"

/** Starts a task that goes on while the game runs, and continues where it ends. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_BaseAsyncTask : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName ProxyFactoryFunctionName;

	UPROPERTY()
	TObjectPtr<UClass> ProxyFactoryClass = nullptr;

	UPROPERTY()
	TObjectPtr<UClass> ProxyClass = nullptr;

	UPROPERTY()
	FName ProxyActivateFunctionName;

	/** The function that makes the task; null when it is not known. */
	UFunction* GetFactoryFunction() const;
	virtual FName GetCornerIcon() const override { return FName(TEXT("Graph.Latent.LatentIcon")); }
	virtual void AllocateDefaultPins() override;
	virtual bool HasKnownDefinition() const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};
