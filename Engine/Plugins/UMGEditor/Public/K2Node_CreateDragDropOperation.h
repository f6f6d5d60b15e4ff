#pragma once

#include "K2Node_ConstructObjectFromClass.h"

#include "K2Node_CreateDragDropOperation.generated.h"

/** Makes the operation that goes along while something is dragged. */
UCLASS()
class UMGEDITOR_API UK2Node_CreateDragDropOperation : public UK2Node_ConstructObjectFromClass
{
	GENERATED_BODY()

public:
	virtual FText GetMenuCategory() const override;

protected:
	virtual UClass* GetClassPinBaseClass() const override;
	virtual FText GetBaseNodeTitle() const override;
	virtual FText GetNodeTitleFormat() const override;
	virtual FText GetNothingSelectedTitle() const override;
};
