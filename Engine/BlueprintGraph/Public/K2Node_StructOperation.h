#pragma once

#include "K2Node_Variable.h"
#include "UObject/Class.h"

#include "K2Node_StructOperation.generated.h"

/** A node about a struct's members. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_StructOperation : public UK2Node_Variable
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UScriptStruct> StructType = nullptr;

	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual bool HasKnownDefinition() const override;
	virtual FText GetMenuCategory() const override;

protected:
	FText GetStructName() const;
};
