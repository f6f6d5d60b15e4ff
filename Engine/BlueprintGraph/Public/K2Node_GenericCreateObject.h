#pragma once

#include "K2Node_ConstructObjectFromClass.h"

#include "K2Node_GenericCreateObject.generated.h"

/** Makes an object of a class. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GenericCreateObject : public UK2Node_ConstructObjectFromClass
{
	GENERATED_BODY()

protected:
	virtual bool UseOuter() const override { return true; }
};
