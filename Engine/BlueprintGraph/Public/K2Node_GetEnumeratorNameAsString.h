#pragma once

#include "K2Node_GetEnumeratorName.h"

#include "K2Node_GetEnumeratorNameAsString.generated.h"

/** Gets the name of an enumeration's value as a string */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetEnumeratorNameAsString : public UK2Node_GetEnumeratorName
{
	GENERATED_BODY()

protected:
	virtual FName GetResultCategory() const override { return UEdGraphSchema_K2::PC_String; }

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};
