#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_CallMaterialParameterCollectionFunction.generated.h"

/** A call of a function that takes a material parameter collection and the name of one of its parameters. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallMaterialParameterCollectionFunction : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	/** The collection that is chosen; null while it comes by a link or there is none. */
	UObject* GetCollection() const;
	/** The parameter names that the chosen collection has, of numbers and of vectors. */
	TArray<FName> GetParameterNames() const;
};
